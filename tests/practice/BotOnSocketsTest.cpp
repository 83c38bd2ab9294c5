#include <QSignalSpy>
#include <QTest>
#include <algorithm>

#include "platform/QtHost.h"
#include "practice/Application.h"
#include "practice/DreamBench.h"
#include "practice/PracticeServer.h"
#include "profile/ProfileFile.h"
#include "text/Fault.h"

namespace {

constexpr int kPatienceMs = 20000;
const std::string kTour = std::string(TVOREL_SOURCE_DIR) + "/examples/tour/";

class Notebook final : public FrontEnd {
  public:
    void ShowConsoleLine(std::string_view line) override { lines.emplace_back(line); }
    void ClearConsole() override {}
    void ShowMessage(std::string_view, std::string_view text) override { ADD_FAILURE() << text; }
    void StatusChanged() override {}
    void EndWithFault(const RuntimeFault& fault) override { ADD_FAILURE() << fault.Name(); }
    bool Holds(const char* line) const { return std::find(lines.begin(), lines.end(), line) != lines.end(); }

  private:
    Lines lines;
};

TEST(BotOnSockets, HearsTheWholeTour) {
    EnsureApplication();
    PracticeSettings settings;
    settings.tour = ReadTour(DiskFiles().Read(kTour + "tour.txt"), "tour.txt").tour;
    settings.secondMs = 5;
    PracticeServer server(std::move(settings));
    QSignalSpy ended(&server, &PracticeServer::TourEnded);
    const quint16 port = server.Listen(0).port;
    Notebook notebook;
    QtHost host(notebook, ".");
    ASSERT_TRUE(LoadProfile(host.bot(), kTour + "witness.tvm").found);
    host.session().SetServer("127.0.0.1", port);
    host.session().Connect();
    ASSERT_TRUE(ended.wait(kPatienceMs));
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return notebook.Holds("event 4, somebody speaks: Ann: that was all"); }, kPatienceMs))
        << "the last line may still be on its way";
    EXPECT_TRUE(notebook.Holds("event 7, somebody whispers to the bot: Bob: psst"));
    EXPECT_TRUE(notebook.Holds("event 33, the bot is summoned, as it had asked: Ann"));
    host.session().Disconnect();
}

}  // namespace
