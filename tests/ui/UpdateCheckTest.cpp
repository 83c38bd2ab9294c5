#include <gmock/gmock.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "support/Cases.h"
#include "support/GameServer.h"
#include "ui/UpdateCheck.h"

namespace {

/// A web server on this computer that answers the first request for every path with the same bytes, then closes, stays
/// silent, or never ends.
class WebServer {
  public:
    enum class Then { kClose, kStayOpen, kNeverEnd };

    explicit WebServer(QByteArray answer, Then then = Then::kClose) {
        listener.listen(QHostAddress::LocalHost);
        QObject::connect(&listener, &QTcpServer::newConnection, &listener, [this, answer, then] {
            QTcpSocket* const browser = listener.nextPendingConnection();
            QObject::connect(browser, &QTcpSocket::readyRead, browser, [this, browser, answer, then] {
                asked += browser->readAll();
                browser->write(answer);
                if (then == Then::kClose) browser->disconnectFromHost();
            });
            if (then == Then::kNeverEnd)
                QObject::connect(browser, &QTcpSocket::bytesWritten, browser,
                                 [browser] { browser->write(QByteArray(100'000, '9')); });
        });
    }
    QUrl Address() const { return QUrl(QString("http://127.0.0.1:%1/base").arg(listener.serverPort())); }

    QByteArray asked;
    QTcpServer listener;
};

QByteArray Ok(const QByteArray& body) {
    return "HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body;
}

constexpr UpdateLimits kSmall{1000, 1000, std::chrono::milliseconds(200)};

struct UpdateCase {
    const char* name;
    QByteArray answer;
    WebServer::Then then;
    QString found;
};

class Update : public testing::TestWithParam<UpdateCase> {};

TEST_P(Update, OffersOnlyANewerVersion) {
    const WebServer elsewhere(Ok("99.0\nfrom elsewhere"));
    QByteArray answer = GetParam().answer;
    answer.replace("ELSEWHERE", elsewhere.Address().toEncoded());
    const WebServer server(answer, GetParam().then);
    UpdateCheck check(server.Address(), kSmall);
    QString found;
    bool looked = false;
    QObject::connect(&check, &UpdateCheck::NewerFound, &check,
                     [&](const QString& version, const QString& text) { found += version + ":" + text; });
    QObject::connect(&check, &UpdateCheck::Looked, &check, [&] { looked = true; });
    check.Look();
    EXPECT_TRUE(Eventually([&] { return looked; }));
    EXPECT_EQ(found, GetParam().found);
    EXPECT_TRUE(server.asked.startsWith("GET /base/tandryvorel.txt ")) << server.asked.toStdString();
    EXPECT_EQ(elsewhere.asked, "");
}

using enum WebServer::Then;
INSTANTIATE_TEST_SUITE_P(
    Notices, Update,
    testing::Values(
        UpdateCase{"Newer", Ok("99.1\r\nBetter walks.\nAnd more.\n"), kClose, "99.1:Better walks.\nAnd more."},
        UpdateCase{"LongText", Ok("99.1\n" + QByteArray(30, '\n') + QByteArray("a\n").repeated(30)), kClose,
                   "99.1:" + QString("a\n").repeated(19) + QString::fromUtf8("a…")},
        UpdateCase{"Ours", Ok("1.0.0\nThis one."), kClose, ""}, UpdateCase{"Older", Ok("0.9.9\nLong ago."), kClose, ""},
        UpdateCase{"NoVersion", Ok("<html>99.1</html>"), kClose, ""},
        UpdateCase{"VersionAndMore", Ok("99.1 <b>\ntext"), kClose, ""},
        UpdateCase{"Binary", Ok(QByteArray("99.1\n\x01\x02\xff", 8)), kClose, ""},
        UpdateCase{"Empty", Ok(""), kClose, ""},
        UpdateCase{"TooLong", Ok("99.1\n" + QByteArray(1000, 'a')), kClose, ""},
        UpdateCase{"CutOff", "HTTP/1.1 200 OK\r\nContent-Length: 99\r\n\r\n99.1\nhalf", kClose, ""},
        UpdateCase{"NotFound", "HTTP/1.1 404 No\r\nContent-Length: 4\r\n\r\n99.1", kClose, ""},
        UpdateCase{"NoHttp", "99.1\n\n", kClose, ""},
        UpdateCase{"LeadsElsewhere", "HTTP/1.1 302 Go\r\nLocation: ELSEWHERE\r\nContent-Length: 0\r\n\r\n", kClose, ""},
        UpdateCase{"LeadsInACircle", "HTTP/1.1 302 Go\r\nLocation: /base/tandryvorel.txt\r\nContent-Length: 0\r\n\r\n",
                   kClose, ""},
        UpdateCase{"Silent", "", kStayOpen, ""},
        UpdateCase{"StopsHalfway", "HTTP/1.1 200 OK\r\n\r\n99.1\nhalf", kStayOpen, ""},
        UpdateCase{"Endless", "HTTP/1.1 200 OK\r\n\r\n99.1\n", kNeverEnd, ""},
        UpdateCase{"EndlessHeader", "HTTP/1.1 200 OK\r\nVersion: ", kNeverEnd, ""}),
    kCaseName);

/// What a fetched archive's file holds, with "!" before it when the fetching failed; what stood there is "old".
QByteArray Fetched(const QByteArray& answer, WebServer::Then then) {
    const QTemporaryDir folder;
    QFile file(folder.filePath("update.zip"));
    if (!file.open(QIODevice::ReadWrite)) return "unwritable";
    file.write("old");
    file.close();
    const WebServer server(answer, then);
    UpdateCheck check(server.Address(), kSmall);
    std::optional<QString> outcome;
    QObject::connect(&check, &UpdateCheck::ArchiveDone, &check, [&](const QString& why) { outcome = why; });
    check.FetchArchive(file.fileName());
    EXPECT_TRUE(Eventually([&] { return outcome.has_value(); }));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList("update.zip")) << "and nothing beside it";
    return file.open(QIODevice::ReadOnly) ? (outcome->isEmpty() ? "" : "!") + file.readAll() : "gone";
}

TEST(UpdateArchive, AppearsWholeOrNotAtAll) {
    EXPECT_EQ(Fetched(Ok("PK new"), kClose), "PK new");
    EXPECT_EQ(Fetched("HTTP/1.1 200 OK\r\nContent-Length: 99\r\n\r\nPK", kClose), "!old");
    EXPECT_EQ(Fetched("HTTP/1.1 404 No\r\nContent-Length: 2\r\n\r\nPK", kClose), "!old");
    EXPECT_EQ(Fetched("HTTP/1.1 200 OK\r\n\r\nPK", kStayOpen), "!old");
    EXPECT_EQ(Fetched("HTTP/1.1 200 OK\r\n\r\nPK", kNeverEnd), "!old");
}

}  // namespace
