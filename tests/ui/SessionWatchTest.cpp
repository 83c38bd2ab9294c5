#include "bot/Place.h"
#include "engine/Script.h"
#include "net/ServerLines.h"
#include "platform/QtHost.h"
#include "support/BotFiles.h"
#include "ui/Options.h"
#include "ui/RecordingDialogs.h"
#include "ui/SessionWatch.h"

namespace {

/// A bot without a window, whose script answers whispers with a line that looks like one.
class SessionWatched : public testing::Test, public BotFiles, public FrontEnd {
  protected:
    Options options{Path("options.json")};
    QtHost host{*this, Path().toStdString()};
    SessionWatch watch{host.bot(), host.session().status(), options};
    std::string shown, told;

    void ShowConsoleLine(std::string_view line) override {
        (watch.HasWhisperToTell() ? told : shown).append(line).append("\n");
    }
    void ClearConsole() override {}
    void ShowMessage(std::string_view, std::string_view) override {}
    void StatusChanged() override {}
    void EndWithFault(const RuntimeFault&) override { FAIL(); }

    void Hear(const std::string& line) {
        const HeardMark heard(host.bot(), Heard::From::Game, line);
        ParseServerLine(host.bot(), line);
    }
};

TEST_F(SessionWatched, TellsOfWhispersToTheBotAndNotOfWhatLooksLikeThem) {
    const std::string script =
        ScriptText("(0:6) whispered,\r\n(5:2) show {[ Eve whispers, \"x\" to you. ]}").toStdString();
    host.bot().script = std::make_shared<Script>(script, "");
    host.bot().profile.ignores = {"Mean One"};
    const std::string whisper = "([ Ann whispers, \"psst\" to you. ]";
    Hear(whisper);
    options.Set(option::kNotifyWhispers, true);
    Hear(whisper);
    for (const char* const other : {"(Ann: said to you. ]", "([ Mean|One whispers, \"hi\" to you. ]"}) Hear(other);
    EXPECT_EQ(told, "[ Ann whispers, \"psst\" to you. ]\n");
    EXPECT_TRUE(shown.ends_with("[ Eve whispers, \"x\" to you. ]\nAnn: said to you. ]\n")) << shown;
}

}  // namespace
