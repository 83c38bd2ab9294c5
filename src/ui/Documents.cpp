#include "ui/Documents.h"

#include <algorithm>

#include "Version.h"
#include "bot/Bot.h"
#include "bot/ProfilePaths.h"
#include "platform/QtHost.h"
#include "platform/WholeFile.h"
#include "profile/ProfileFile.h"
#include "text/Fault.h"
#include "ui/Dialogs.h"
#include "ui/Options.h"
#include "ui/ProgramFolder.h"
#include "ui/ShownText.h"
#include "ui/frmGS.h"

namespace {

constexpr char kProfileFilter[] = "Tandry Vorel (*.tvm) | *.tvm";
constexpr char kSaveTitle[] = "Save Vorel";
constexpr int kKeepUnsavedMs = 5000;    // what a crash may cost
constexpr int kTrustedAfterMs = 60000;  // a profile that has run so long does not end the program at every start

bool IsProfile(const std::string& path) { return DocumentKind(path) == FileKind::Profile; }

}  // namespace

std::optional<FileKind> DocumentKind(const std::string& path) {
    const std::string name = LowerCase(path);
    if (name.ends_with(kProfileExtension)) return FileKind::Profile;
    return name.ends_with(kScriptExtension) ? std::optional(FileKind::Script) : std::nullopt;
}

Documents::Documents(QWidget* window, QtHost& host, Dialogs& dialogs, Options& options, frmGS& editor,
                     const QString& folder)
    : QObject(window),
      window_(window),
      host_(host),
      dialogs_(dialogs),
      options_(options),
      editor_(editor),
      folder_(folder),
      recovery_(host.Disk(), TypedPath(OwnFolder(folder))) {
    keepUnsaved_.setObjectName("tmrKeepUnsaved");
    connect(&keepUnsaved_, &QTimer::timeout, this, &Documents::PutAsideOrTell);
    connect(&editor, &frmGS::ScriptFileChanged, this, [this] { bot().profile.dirty = true; });
    connect(&editor, &frmGS::ScriptRemarked, this, &Documents::Told);
}

Bot& Documents::bot() const { return host_.bot(); }

void Documents::Begin(const std::string& recent, const std::vector<std::string>& documents) {
    auto profile = recovery_.FoundProfile(), script = recovery_.FoundScript();
    if (profile && !AskToTakeBack(tr("configuration"), profile->path)) profile.reset();
    if (script && !AskToTakeBack(tr("script"), script->path)) script.reset();
    if (profile) {
        TakeUpProfile(profile->path, profile->bytes);
    } else if (script || std::none_of(documents.begin(), documents.end(), IsProfile)) {
        const std::string& path = script ? script->profile : recent;
        if (host_.Disk().Find(path)) OpenProfileFile(path);
    }
    if (faulted_) return;
    if (script) {
        editor_.RestoreText(script->path, script->bytes);
        emit EditorWanted();
    }
    PutAsideOrTell();  // what was not wanted goes
    keepUnsaved_.start(kKeepUnsavedMs);
    for (const std::string& document : documents) {
        if (!faulted_) Open(document);
    }
}

// --- opening -----------------------------------------------------------------------------------------------------

void Documents::NewProfile() {
    if (!AskToDropChanges()) return;
    host_.StopTrying();
    ::NewProfile(bot());
    editor_.NewScript();
    emit ProfileTakenUp();
}

void Documents::Open(const std::string& path) {
    const std::optional<FileKind> kind = DocumentKind(path);
    if (!host_.Disk().Find(path)) {
        emit Told(tr("%1 does not exist.").arg(ShownPath(path)));
    } else if (!kind) {
        emit Told(tr("%1 is neither a profile (.tvm) nor a script (.vs).").arg(ShownPath(path)));
    } else if (kind == FileKind::Script) {
        editor_.OpenScript(path);
        emit EditorWanted();
    } else if (AskToDropChanges()) {
        OpenProfileFile(path);
    }
}

void Documents::OpenProfile() {
    if (!AskToDropChanges()) return;
    const auto chosen = dialogs_.AskOpenFile(window_, "Select a Tandry Vorel to open", kProfileFilter,
                                             ShownPath(FolderOf(bot().profile.path)));
    if (!chosen) return;
    opened_.start();
    host_.RunHandler([&] {
        // Only this item of the menu reads by the second reader, everything else by LoadProfile; see ProfileFile.h.
        const ProfileLoad load = ::OpenProfile(bot(), TypedPath(*chosen));
        if (load.found) bot().profile.dirty = false;  // the mark of the one it was read over
        ShowLoaded(load, TypedPath(*chosen));
    });
}

/// Opens a profile; without its script, if that has ended the program soon after it was opened the last time.
void Documents::OpenProfileFile(const std::string& path) {
    const std::string absolute = host_.Disk().Absolute(path);
    if (options_.Get(option::kFaultedProfile) == ShownPath(absolute)) {
        options_.Set(option::kFaultedProfile, QString());
        emit Told(tr("%1 has ended the program the last time, so its script is not loaded. Opened once more, it is.")
                      .arg(ShownPath(path)));
        return host_.RunHandler([&] {
            TakeUpProfile(absolute, ValueOrFault(host_.Disk().Read(absolute)));
            bot().profile.dirty = false;
        });
    }
    opened_.start();
    host_.RunHandler([&] {
        const ProfileLoad load = LoadProfile(bot(), absolute);
        ShowLoaded(load, absolute);
    });
}

/// Takes up a profile that may have ended the program, without what has done it: its script only stands in the editor.
void Documents::TakeUpProfile(const std::string& path, const std::string& bytes) {
    const auto tellUnreadable = [&](const RuntimeFault& fault) {
        emit Told(tr("%1 can't be read: %2.").arg(ShownPath(path), QString::fromStdString(std::string(fault.Name()))));
    };
    const auto restored = RestoreProfile(bot(), path, bytes);
    if (!restored) return tellUnreadable(restored.Fault());
    bot().script.reset();
    scriptLeftOut_ = true;
    host_.StopTrying();
    emit ProfileTakenUp();
    const auto script = FindProfileFile(bot(), bot().profile.scriptPath);
    if (!script) return editor_.NewScript();
    const auto shown = editor_.ShowFile(*script);
    if (!shown) return tellUnreadable(shown.Fault());
    emit Told(tr("%1 stands in the editor (Script, Edit); saving it there loads it.").arg(ShownPath(*script)));
}

void Documents::ShowLoaded(const ProfileLoad& load, const std::string& path) {
    if (!load.found) return;
    ClearUnfinished(FolderOf(path));
    host_.StopTrying();  // it was for another bot
    emit ProfileTakenUp();
    editor_.ShowBotScript();
    options_.AddRecentProfile(ShownPath(path));
    for (const std::string& remark : load.remarks) emit Told(ShownPath(remark));
    if (!load.missingScript.empty()) {
        emit Told(tr("The profile names the script %1, which does not exist.").arg(Shown(load.missingScript)));
    }
}

// --- saving ------------------------------------------------------------------------------------------------------

bool Documents::SaveProfile() {
    return bot().profile.path.empty() ? SaveProfileAs() : WriteProfile(bot().profile.path);
}

bool Documents::SaveProfileAs() {
    const auto chosen = AskSaveName(dialogs_, window_, "Save Tandry Vorel As...", kProfileFilter,
                                    ShownPath(FolderOf(bot().profile.path)), kProfileExtension);
    return chosen && WriteProfile(TypedPath(*chosen));
}

bool Documents::WriteProfile(const std::string& path) {
    const auto refuse = [this](const QString& why) {
        dialogs_.ShowMessage(window_, why, kSaveTitle, Dialogs::Icon::Critical);
        return false;
    };
    const std::string absolute = host_.Disk().Absolute(path);
    editor_.NameScriptFrom(absolute);
    if (const auto unnamed = NameFilesFrom(bot(), absolute)) return refuse(WhyNotNamed(*unnamed));
    if (const auto saved = ::SaveProfile(bot(), path); !saved) {
        // The profile is still here, and can be saved elsewhere.
        const QString why = ShownFault(saved.Fault());
        return refuse(tr("%1.\nThe profile counts as not saved; choose another place for it.").arg(why));
    }
    emit ProfileSaved();
    options_.AddRecentProfile(ShownPath(bot().profile.path));
    return true;
}

bool Documents::HasChanges() const { return bot().profile.dirty || editor_.IsDirty(); }

bool Documents::AskToDropChanges(bool offersCancel) {
    // The script first: saved under a new name, it changes the profile.
    if (!editor_.AskToDropChanges(offersCancel) || faulted_) return false;
    if (!bot().profile.dirty) return true;
    const auto answer =
        dialogs_.Ask(window_, "Do you want to save any changes to your bot's configuration?", kSaveTitle, offersCancel);
    if (faulted_) return false;  // while the question was open
    return answer == Dialogs::Answer::No || (answer == Dialogs::Answer::Yes && SaveProfile());
}

std::string Documents::RememberProfile() {
    const std::string& path = bot().profile.path;
    const QString open = FitsCodePage(path) ? QString() : ShownPath(path);
    if (open != options_.Get(option::kOpenProfile)) options_.Set(option::kOpenProfile, open);
    return path;
}

// --- unsaved work ------------------------------------------------------------------------------------------------

/// @param file  what it is a change of; empty for a new one
/// @return whether the unsaved work of the last time is wanted
bool Documents::AskToTakeBack(const QString& what, const std::string& file) {
    const QString name = file.empty() ? what : what + " " + ShownPath(FileNameOf(file));
    return dialogs_.Ask(window_,
                        tr("The program did not end in order the last time. Take back the unsaved %1?").arg(name),
                        kProductName) == Dialogs::Answer::Yes;
}

/// @return why it can't be done; empty when it is
std::string Documents::PutAside() {
    using Copy = Recovery::Copy;
    const std::string& profile = bot().profile.path;
    const std::string noScript = recovery_.KeepScript(
        editor_.IsDirty() ? std::optional(Copy{editor_.Path(), profile, editor_.ScriptText()}) : std::nullopt);
    const std::string noProfile = recovery_.KeepProfile(
        bot().profile.dirty ? std::optional(Copy{profile, profile, ProfileBytes(bot().profile)}) : std::nullopt);
    return noScript.empty() ? noProfile : noScript;
}

void Documents::PutAsideOrTell() {
    const std::string why = PutAside();
    if (!why.empty() && !toldUnkept_)
        emit TroubleTold(tr("Unsaved work can't be put aside, and would be lost in a crash: %1").arg(ShownPath(why)));
    toldUnkept_ = !why.empty();
}

void Documents::End() {
    keepUnsaved_.stop();
    if (faulted_) return;
    recovery_.KeepScript(std::nullopt);
    recovery_.KeepProfile(std::nullopt);
}

void Documents::EndWithFault() {
    faulted_ = true;
    if (opened_.isValid() && !opened_.hasExpired(kTrustedAfterMs))
        options_.Set(option::kFaultedProfile, ShownPath(bot().profile.path));
}

QString Documents::PutAsideAfterFault() {
    // Before the first time, what an earlier run has left is still to be offered.
    const std::string why = keepUnsaved_.isActive() ? PutAside() : std::string();
    if (!why.empty()) return tr("Unsaved work could not be put aside: %1").arg(ShownPath(why));
    if (!recovery_.FoundScript() && !recovery_.FoundProfile()) return {};
    return tr("Unsaved work was put aside in %1, and will be offered at the next start.").arg(folder_);
}
