#include "ui/ConsoleLog.h"

#include <QDateTime>

bool ConsoleLog::Open(const QString& path) {
    file_.close();
    file_.setFileName(path);
    return file_.open(QIODevice::WriteOnly | QIODevice::Append);
}

void ConsoleLog::Append(const QString& line) {
    if (!file_.isOpen()) return;
    file_.write(QDateTime::currentDateTime().toString(u"yyyy-MM-dd HH:mm:ss ").toUtf8() + line.toUtf8() + '\n');
    file_.flush();
}
