#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "cli/Vorel.h"

namespace {

/// `vorel run` with a pipe for standard output that is read only when the test wants.
class UnreadOutput : public RunBench {
  protected:
    UnreadOutput() {
        files.WriteBot("bot", QByteArray("(0:6) whispered to,\r\n (5:44) join {[player]}.\r\n") + kGone);
        EXPECT_EQ(::mkfifo(qPrintable(files.Path("out")), S_IRUSR | S_IWUSR), 0);
        pipe = ::open(qPrintable(files.Path("out")), O_RDWR | O_NONBLOCK | O_CLOEXEC);
        vorel = Run({"bot.tvm", "--log", "log.txt", "--record", "/dev/full", "--keep-split-lines"}, files.Path("out"));
    }
    ~UnreadOutput() override { ::close(pipe); }

    /// More lines than find room.
    static constexpr int kFlood = 40;
    void Flood() {
        for (int line = 0; line < kFlood; ++line) server.Say("(hello " + QByteArray(60'000, 'x') + "\n");
    }
    bool AnswersTo(const QByteArray& name) {
        server.Say("([ " + name + " whispers, \"are you there?\" to you. ]\n");
        return server.Hears("join " + name + "\n");
    }
    bool ReadsUntil(const QByteArray& text) {
        return Eventually([&] {
            QByteArray bytes(65'536, '\0');
            const auto count = ::read(pipe, bytes.data(), 65'536);
            if (count > 0) out += bytes.left(count);
            return out.contains(text);
        });
    }

    int pipe = -1;
    std::unique_ptr<Vorel> vorel;
    QByteArray out;
};

TEST_F(UnreadOutput, HoldsUpNeitherTheBotNorItsEnd) {
    Flood();
    ASSERT_TRUE(AnswersTo("Ann"));
    ASSERT_TRUE(ReadsUntil("Ann whispers"));
    const QByteArray dropped = QByteArray::number(kFlood - out.count("xxx\n"));
    EXPECT_TRUE(out.contains("\n… " + dropped + " lines were not shown, since nobody read them\n[ Ann whispers"));
    Flood();
    ASSERT_TRUE(AnswersTo("Bob"));
    vorel->Signal(SIGTERM);
    EXPECT_EQ(vorel->Ends(), 0);
    EXPECT_TRUE(files.Read("log.txt").endsWith("gone\n"));
    EXPECT_EQ(vorel->err, "vorel run: the recording can't be written any more\n") << "though the output was stuck";
}

TEST_F(UnreadOutput, WhoseReaderHasGoneIsGivenUp) {
    ::close(std::exchange(pipe, -1));
    ASSERT_TRUE(AnswersTo("Ann"));
    ASSERT_TRUE(AnswersTo("Bob"));
    server.Close();
    EXPECT_NE(vorel->Ends(), -1);
}

}  // namespace
