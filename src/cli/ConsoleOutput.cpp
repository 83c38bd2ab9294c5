#include "cli/ConsoleOutput.h"

#include <QDateTime>
#include <iostream>

#include "cli/Report.h"

bool ConsoleOutput::LogTo(const std::string& path) {
    log_.setFileName(QString::fromStdString(path));
    return log_.open(QIODevice::WriteOnly | QIODevice::Append);
}

void ConsoleOutput::Show(const std::string& label, std::string_view line) {
    const std::string shown = (label.empty() ? "" : "[" + label + "] ") + Printable(line);
    if (!quiet_) std::cout << shown << std::endl;
    if (log_.isOpen()) Log(shown);
}

void ConsoleOutput::Log(const std::string& line) {
    const QString time = QDateTime::currentDateTime().toString(u"yyyy-MM-dd HH:mm:ss ");
    const QByteArray entry = time.toUtf8() + QByteArray::fromStdString(line) + '\n';
    const bool written = log_.write(entry) == entry.size() && log_.flush();
    if (!written && !logBroken_) std::cerr << "vorel run: the log can't be written any more" << std::endl;
    logBroken_ = !written;
}
