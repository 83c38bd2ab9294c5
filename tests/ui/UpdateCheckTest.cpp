#include <gmock/gmock.h>

#include <QDir>

#include "support/BotFiles.h"
#include "support/Cases.h"
#include "support/GameServer.h"
#include "ui/RecordingDialogs.h"
#include "ui/UpdateCheck.h"

namespace {

QByteArray Ok(const QByteArray& body) {
    return "HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body;
}

/// What the server does after its answer.
enum class Then { kClose, kStayOpen, kNeverEnd };

/// An update check whose server lets itself be asked once, under small limits.
class Update : public testing::Test {
  public:
    GameServer server;
    UpdateCheck check{QUrl(QString("http://127.0.0.1:%1/base/").arg(server.listener.serverPort())),
                      {1000, 1000, std::chrono::milliseconds(200)}};
    bool done = false;

    void Answer(const QByteArray& request, const QByteArray& answer, Then then) {
        ASSERT_TRUE(server.Hears("GET " + request + " "));
        server.Say(answer);
        if (then == Then::kClose) server.Close();
        EXPECT_TRUE(Eventually([&] {
            if (then == Then::kNeverEnd) server.Say(QByteArray(100'000, '9'));
            return done;
        }));
    }
};

/// What the server answers, and what comes of it: what is offered, or what a file holds where "old" was.
struct AnswerCase : Row {
    QByteArray answer;
    QString outcome;
    Then then = Then::kClose;
};

class Notice : public Update, public testing::WithParamInterface<AnswerCase> {};

TEST_P(Notice, OffersOnlyANewerVersion) {
    const GameServer elsewhere;
    QByteArray answer = GetParam().answer;
    answer.replace("PORT", QByteArray::number(elsewhere.listener.serverPort()));
    QString found;
    QObject::connect(&check, &UpdateCheck::NewerFound, &check,
                     [&](const QString& version, const QString& text) { found += version + ":" + text; });
    QObject::connect(&check, &UpdateCheck::Looked, &check, [&] { done = true; });
    check.Look();
    Answer("/base/tandryvorel.txt", answer, GetParam().then);
    EXPECT_EQ(found, GetParam().outcome);
    EXPECT_TRUE(elsewhere.bots.empty());
}

using enum Then;
// clang-format off
const AnswerCase kNotices[] = {
    {"Newer", Ok("99.1\r\nBetter walks.\nAnd more.\n"), "99.1:Better walks.\nAnd more."},
    {"LongText", Ok("99.1\n" + QByteArray(30, '\n') + QByteArray("a\n").repeated(30)),
                 "99.1:" + QString("a\n").repeated(19) + QString::fromUtf8("a…")},
    {"Ours", Ok("1.0.0\nThis one."), ""}, {"Older", Ok("0.9.9\nLong ago."), ""}, {"Empty", Ok(""), ""},
    {"NoVersion", Ok("<html>99.1</html>"), ""}, {"VersionAndMore", Ok("99.1 <b>\ntext"), ""},
    {"Binary", Ok(QByteArray("99.1\n\x01\x02\xff", 8)), ""}, {"TooLong", Ok("99.1\n" + QByteArray(1000, 'a')), ""},
    {"CutOff", "HTTP/1.1 200 OK\r\nContent-Length: 99\r\n\r\n99.1\nhalf", ""},
    {"NotFound", "HTTP/1.1 404 No\r\nContent-Length: 4\r\n\r\n99.1", ""}, {"NoHttp", "99.1\n\n", ""},
    {"LeadsElsewhere", "HTTP/1.1 302 Go\r\nLocation: http://127.0.0.1:PORT/\r\nContent-Length: 0\r\n\r\n", ""},
    {"Silent", "", "", kStayOpen}, {"StopsHalfway", "HTTP/1.1 200 OK\r\n\r\n99.1\nhalf", "", kStayOpen},
    {"Endless", "HTTP/1.1 200 OK\r\n\r\n99.1\n", "", kNeverEnd},
    {"EndlessHeader", "HTTP/1.1 200 OK\r\nVersion: ", "", kNeverEnd},
};
const AnswerCase kArchives[] = {
    {"Whole", Ok("PK new"), "PK new"}, {"CutOff", "HTTP/1.1 200 OK\r\nContent-Length: 99\r\n\r\nPK", "old"},
    {"NotFound", "HTTP/1.1 404 No\r\nContent-Length: 2\r\n\r\nPK", "old"},
    {"Stalled", "HTTP/1.1 200 OK\r\n\r\nPK", "old", kStayOpen}, {"Endless", "HTTP/1.1 200 OK\r\n\r\nPK", "old", kNeverEnd},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Server, Notice, testing::ValuesIn(kNotices), kCaseName);

class Archive : public Update, public testing::WithParamInterface<AnswerCase> {};

TEST_P(Archive, AppearsWholeOrNotAtAll) {
    const BotFiles files;
    QString why;
    QObject::connect(&check, &UpdateCheck::ArchiveDone, &check, [&](const QString& reason) {
        why = reason;
        done = true;
    });
    check.FetchArchive(files.Write("update.zip", "old"));
    Answer("/base/software/tvupdate.zip", GetParam().answer, GetParam().then);
    EXPECT_EQ(files.Read("update.zip"), GetParam().outcome);
    EXPECT_EQ(why.isEmpty(), GetParam().outcome != "old") << why.toStdString();
    EXPECT_EQ(QDir(files.Path()).entryList(QDir::Files), QStringList("update.zip")) << "and nothing beside it";
}

INSTANTIATE_TEST_SUITE_P(Server, Archive, testing::ValuesIn(kArchives), kCaseName);

}  // namespace
