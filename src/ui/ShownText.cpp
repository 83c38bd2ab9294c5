#include "ui/ShownText.h"

#include <QCoreApplication>

QString WhyNotNamed(const std::string& path) {
    return QCoreApplication::translate("UnnamedFile",
                                       "The profile can't name %1: it is written in the letters of Windows-1252, and "
                                       "this path holds others.\nA profile that is saved in the same folder, or "
                                       "beside it, can name the file from there. Save it there first.")
        .arg(ShownPath(path));
}
