#include <QDir>

#include "platform/DiskFiles.h"
#include "platform/ProxyFile.h"
#include "support/BotFiles.h"

namespace {

/// Two bots that use the same client's folder.
class ProxyFileTest : public testing::Test {
  protected:
    BotFiles files;
    DiskFiles disk;
    const std::string path = files.Path("proxy.ini").toStdString();
    ProxyFile first{disk}, second{disk};

    /// What lies in the folder, and what proxy.ini says.
    QString Folder() const {
        const QStringList names = QDir(files.Path()).entryList(QDir::Files);
        return names.join(' ') + (names.contains("proxy.ini") ? ": " + files.Read("proxy.ini") : QByteArray());
    }
};

TEST_F(ProxyFileTest, TheUsersFileComesBackWhenTheLastBotHasGone) {
    for (const QByteArray users : {"", "localhost 4321\r\nof my own\n"}) {
        if (!users.isEmpty()) files.Write("proxy.ini", users);
        const QString before = Folder();
        first.Write(path, "localhost 1001\r\n");
        second.Write(path, "localhost 1002\r\n");
        first.TakeAway();
        EXPECT_TRUE(Folder().endsWith("localhost 1002\r\n")) << "it is the other bot's";
        second.TakeAway();
        EXPECT_EQ(Folder(), before);
        first.Write(path, "localhost 1001\r\n");
        second.Write(path, "localhost 1002\r\n");
        second.TakeAway();
        first.TakeAway();
        EXPECT_EQ(Folder(), before);
    }
}

TEST_F(ProxyFileTest, NothingOfTheUsersIsLostInACrashEither) {
    first.Write(path, "localhost 1001\r\n");
    files.Write("proxy.ini", "typed just now");
    first.TakeAway();
    EXPECT_EQ(Folder(), "proxy.ini: typed just now") << "what the user writes meanwhile stays";
    files.Write("proxy.ini", "the user's");
    first.Write(path, "localhost 1001\r\n");
    const QByteArray ours = files.Read("proxy.ini"), marker = files.Read("proxy.ini.written-by-vorel");
    first.TakeAway();
    // As a crash has left it: in the midst of a session, or with ours not written yet.
    for (const bool written : {true, false}) {
        QFile::rename(files.Path("proxy.ini"), files.Path("proxy.ini.kept-by-vorel"));
        files.Write("proxy.ini.written-by-vorel", marker);
        if (written) files.Write("proxy.ini", ours);
        second.Write(path, "localhost 1002\r\n");
        second.TakeAway();
        EXPECT_EQ(Folder(), "proxy.ini: the user's");
    }
    QFile::rename(files.Path("proxy.ini"), files.Path("proxy.ini.kept-by-vorel"));
    files.Write("proxy.ini", "a newer one");
    second.Write(path, "localhost 1002\r\n");
    second.TakeAway();
    EXPECT_EQ(Folder(), "proxy.ini proxy.ini.kept-by-vorel.older: a newer one");
}

}  // namespace
