#pragma once

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTimer>

/// What a process takes of the computer.
struct Footprint {
    qint64 residentKib = 0;
    qsizetype descriptors = 0;
};

/// A `vorel run` whose footprint after its warm-up is compared with the one at its end.
class WatchedBot {
  public:
    QProcess process;
    Footprint first, last;

    /// @param warmUpMs  when the footprint is first taken; from then on every second
    void Watch(int warmUpMs) {
        QTimer::singleShot(warmUpMs, &process, [this] { first = last = Take(); });
        QObject::connect(&second_, &QTimer::timeout, &process, [this] {
            if (first.residentKib > 0 && process.state() == QProcess::Running) last = Take();
        });
        second_.start(1000);
    }

    bool HasGrown() const {
        constexpr qint64 kMostKib = 1024;
        return last.residentKib > first.residentKib + kMostKib || last.descriptors > first.descriptors;
    }

  private:
    QTimer second_;

    /// The last one, when the process has gone meanwhile.
    Footprint Take() const {
        const QString place = QStringLiteral("/proc/%1/").arg(process.processId());
        QFile status(place + "status");
        if (!status.open(QIODevice::ReadOnly)) return last;
        const QByteArray text = status.readAll();
        const qsizetype at = text.indexOf("VmRSS:");
        if (at < 0) return last;
        const QByteArray number = text.mid(at + 6, text.indexOf("kB", at) - at - 6).trimmed();
        return {number.toLongLong(), QDir(place + "fd").entryList(QDir::Files | QDir::System).size()};
    }
};
