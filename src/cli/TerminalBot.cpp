#include "cli/TerminalBot.h"

#include <QTimer>

#include "cli/Report.h"
#include "net/FaultText.h"
#include "net/Passwords.h"
#include "profile/ProfileFile.h"
#include "text/Text.h"

namespace {
constexpr char kSplitLineAdvice[] =
    " The network may have split it: --keep-split-lines puts such lines together again.";
}

TerminalBot::TerminalBot(std::string profilePath, std::string label, const std::string& folder, ConsoleOutput& output,
                         Owner owner)
    : profilePath_(std::move(profilePath)),
      label_(std::move(label)),
      output_(output),
      owner_(std::move(owner)),
      host_(*this, folder) {}

TerminalBot::~TerminalBot() { host_.session().SetObserver(nullptr); }

bool TerminalBot::Load() {
    ProfileLoad load;
    bool faulted = true;
    host_.RunHandler([&] {
        load = LoadProfile(host_.bot(), profilePath_);
        faulted = false;
    });
    for (const std::string& remark : load.remarks) TellOfRun(remark);
    if (!load.missingScript.empty()) TellOfRun(MissingScript(profilePath_, load));
    return load.found || faulted;  // a fault has told its own story, and is not a profile that is missing
}

std::optional<std::string> TerminalBot::RecordTo(const std::string& path) {
    std::optional<std::string> opened = recordFile_.Open(path);
    if (!opened) return std::nullopt;
    recording_ = std::make_unique<Recording>(host_.bot(), [this](const std::string& lines) { Record(lines); });
    host_.session().SetObserver(recording_.get());
    return opened;
}

void TerminalBot::Record(const std::string& lines) {
    if (!recordFile_.Write(lines)) TellOfRun("the recording can't be written any more");
}

std::string TerminalBot::Label() const {
    const std::string& name = status().botName;
    return name.empty() ? label_ : ToUtf8(name);
}

void TerminalBot::Connect() { host_.ConnectNow(); }

void TerminalBot::Leave() { host_.Leave(); }

void TerminalBot::TypeLine(const std::string& line) {
    host_.RunHandler([&] { host_.session().TypeLine(line); });
}

void TerminalBot::ShowConsoleLine(std::string_view line) {
    if (!output_.IsRead()) return;
    output_.Show(hasLabel_ ? Label() : "", WithoutPasswords(host_.bot(), line));
}

void TerminalBot::ShowMessage(std::string_view title, std::string_view text) {
    TellOfRun(profilePath_ + ": " + Printable(title) + ": " + Printable(text));
}

void TerminalBot::StatusChanged() {
    // Whether this is the end shows only when the script has had its turn: it may connect again.
    QTimer::singleShot(0, &host_, [this] {
        endTold_ = endTold_ && status().canConnect;
        if (status().canConnect && status().IsLost() && !std::exchange(endTold_, true)) TellEnd();
        if (status().IsIdle()) owner_.onIdle();
    });
}

void TerminalBot::TellEnd() { TellOfRun(profilePath_ + ": " + Printable(ReasonOfEnd(status()))); }

void TerminalBot::EndWithFault(const RuntimeFault& fault) {
    std::string why = FaultForTerminal(fault, host_.bot());
    if (recording_) recording_->Remark(FromUtf8(why));
    if (!keepsSplitLines_ && MayComeOfASplitLine(host_.bot())) why += kSplitLineAdvice;
    owner_.onFault(hasLabel_ ? "[" + Label() + "] " + why : why);
}

void TerminalBot::KeepSplitLines(bool keep) {
    keepsSplitLines_ = keep;
    host_.session().KeepSplitLines(keep);
}
