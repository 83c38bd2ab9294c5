// Runs bots for a long while and looks whether they grow: one against a stand-in game server that sends as fast as the
// bot answers, and the greeter with its tour again and again in the practice dream.
//
// Usage: tvorel_soak VOREL EXAMPLES MINUTES [option of `vorel run`...]
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QHostAddress>
#include <QRegularExpression>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <memory>

#include "soak/GameLines.h"
#include "soak/WatchedBot.h"

namespace {

/// An answer that takes longer is missing.
constexpr int kLongestAnswerMs = 30'000;

QByteArray ReadFile(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void WriteFile(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) qFatal("%s", qPrintable(path));
}

struct Task {
    QString vorel, examples;
    int ms = 0;
    QStringList options;  ///< more ones of `vorel run`

    int WarmUpMs() const { return std::max(30'000, ms / 4); }
};

/// One of the two runs.
class Soak {
  public:
    explicit Soak(const Task& itsTask) : task(itsTask) {
        QObject::connect(&bot.process, &QProcess::finished, &bot.process, [this](int status) {
            if (status != 0) fault = "it left with " + QByteArray::number(status);
            over = true;
        });
        bot.process.setWorkingDirectory(folder.path());
        bot.process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        bot.Watch(task.WarmUpMs());
    }

    bool Passed() const { return fault.isEmpty() && !bot.HasGrown(); }

    void Print(const char* name) const {
        std::printf("%-10s %11lld %9lld %10lld %10lld %8lld %6lld  %s\n", name, lines, answers,
                    static_cast<long long>(bot.first.residentKib), static_cast<long long>(bot.last.residentKib),
                    static_cast<long long>(bot.first.descriptors), static_cast<long long>(bot.last.descriptors),
                    !fault.isEmpty() ? fault.constData()
                    : bot.HasGrown() ? "it has grown"
                                     : "passed");
    }

    bool over = false;

  protected:
    const Task& task;
    QTemporaryDir folder;
    WatchedBot bot;
    long long lines = 0, answers = 0;
    QByteArray fault;
};

/// The stand-in game server, which sends the next lines once all answers to the last ones have come.
class Generator final : public Soak {
  public:
    explicit Generator(const Task& itsTask) : Soak(itsTask) {
        server_.listen(QHostAddress::LocalHost);
        QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] { Meet(); });
        patience_.setSingleShot(true);
        QObject::connect(&patience_, &QTimer::timeout, &server_, [this] { GiveUp("an answer is missing"); });
        WriteBot();
        bot.process.setStandardOutputFile(QProcess::nullDevice());
        bot.process.start(task.vorel, QStringList{"run", "bot.tvm", "--server", "127.0.0.1", "--keep-split-lines",
                                                  "--port", QString::number(server_.serverPort())} +
                                          task.options);
        patience_.start(kLongestAnswerMs);
        time_.start();
    }

  private:
    QTcpServer server_;
    QTcpSocket* socket_ = nullptr;
    QTimer patience_;
    QElapsedTimer time_;
    GameLines source_;
    Batch batch_;
    QByteArray heard_;
    bool loggedIn_ = false;

    /// A bot that notes everything and answers whispers.
    void WriteBot() {
        QByteArray script = ReadFile(task.examples + "/tour/witness.vs");
        script.insert(script.indexOf("\r\n") + 2, kAnsweringTrigger);
        WriteFile(folder.filePath("bot.vs"), script);
        WriteFile(folder.filePath("bot.ini"),
                  "Name=Greeter\r\nPassword=x\r\nDesc=A bot.\r\nColors=w#3#3#3#3#\r\nSpec=121\r\n");
        WriteFile(folder.filePath("bot.tvm"),
                  "[General]\r\nFurcadiaCharacter=bot.ini\r\nOwners=Ann\r\nMaps=Furrabian Nights\r\nScript=bot.vs\r\n");
    }

    void Meet() {
        socket_ = server_.nextPendingConnection();
        QObject::connect(socket_, &QTcpSocket::readyRead, socket_, [this] { Hear(); });
    }

    void Hear() {
        heard_ += socket_->readAll();
        if (!loggedIn_) {
            if (!heard_.contains("\ndesc ") || !heard_.endsWith('\n')) return;
            loggedIn_ = true;
            return SendNext();
        }
        if (heard_.size() < batch_.answers.size()) return;
        if (heard_ != batch_.answers) return GiveUp("an answer is wrong");
        lines += batch_.lineCount;
        answers += batch_.answerCount;
        if (time_.elapsed() < task.ms) return SendNext();
        patience_.stop();
        bot.process.terminate();
    }

    void SendNext() {
        heard_.clear();
        batch_ = source_.Next();
        socket_->write(batch_.lines);
        patience_.start(kLongestAnswerMs);
    }

    void GiveUp(const QByteArray& why) {
        fault = why;
        bot.process.kill();
    }
};

/// The greeter in the practice dream, whose visitors come again and again.
class Greeter final : public Soak {
  public:
    explicit Greeter(const Task& itsTask) : Soak(itsTask) {
        WriteTour();
        QObject::connect(&bot.process, &QProcess::readyReadStandardOutput, &bot.process, [this] { Read(); });
        QObject::connect(&bot.process, &QProcess::finished, &bot.process, [this] { CountAnswers(); });
        bot.process.setStandardInputFile(QProcess::nullDevice());
        bot.process.start(task.vorel, {"run", task.examples + "/greeter/greeter.tvm", "--practice", "--tour",
                                       "tour.txt", "--folder", folder.path()});
        bound_.setSingleShot(true);
        QObject::connect(&bound_, &QTimer::timeout, &bot.process, [this] { bot.process.kill(); });
        bound_.start(2 * task.ms + kLongestAnswerMs);
    }

  private:
    QByteArray out_;
    int times_ = 0;
    QTimer bound_;

    /// The greeter's own tour without its long pauses, as often as there is time.
    void WriteTour() {
        QString tour = QString::fromLatin1(ReadFile(task.examples + "/greeter/tour.txt"));
        tour.replace(QRegularExpression("after \\d+"), "after 1");
        times_ = std::max(1, task.ms / 1000 / static_cast<int>(tour.count("after 1")));
        WriteFile(folder.filePath("tour.txt"), tour.repeated(times_).toLatin1());
    }

    void Read() {
        const QByteArray bytes = bot.process.readAllStandardOutput();
        lines += bytes.count('\n');
        out_ += bytes;
    }

    /// Each time round the visitors want the same of it.
    void CountAnswers() {
        Read();
        for (const char* const answer :
             {"You whisper \"Hello, Ann!", "You say, \"Greeter rolled", "You whisper \"I will remember tea.\"",
              "You say, \"I am at", "You say, \"Thank you for the cookie, Bob!", "You whisper \"Goodbye, Ann."}) {
            const qsizetype count = out_.count(answer);
            answers += count;
            if (count != times_) fault = "\"" + QByteArray(answer) + "…\" came " + QByteArray::number(count) + " times";
        }
    }
};

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 4) qFatal("usage: tvorel_soak VOREL EXAMPLES MINUTES [option of `vorel run`...]");
    const Task task{QDir::current().absoluteFilePath(arguments[1]), QDir::current().absoluteFilePath(arguments[2]),
                    static_cast<int>(arguments[3].toDouble() * 60'000), arguments.mid(4)};
    Generator generator(task);
    Greeter greeter(task);
    QTimer end;
    QObject::connect(&end, &QTimer::timeout, [&] {
        if (generator.over && greeter.over) QCoreApplication::quit();
    });
    end.start(100);
    QCoreApplication::exec();
    std::printf("%-10s %11s %9s %10s %10s %8s %6s\n", "", "lines", "answers", "KiB first", "KiB last", "fd first",
                "last");
    generator.Print("generator");
    greeter.Print("greeter");
    return generator.Passed() && greeter.Passed() ? 0 : 1;
}
