#include "ui/frmGS.h"

#include <Qsci/qsciscintilla.h>

#include <QCloseEvent>
#include <QInputDialog>
#include <QMenuBar>
#include <QSplitter>
#include <QStatusBar>
#include <QVBoxLayout>

#include "bot/ProfilePaths.h"
#include "engine/Dispatcher.h"
#include "engine/FileRemarks.h"
#include "engine/Script.h"
#include "platform/QtHost.h"
#include "profile/ProfileFile.h"
#include "text/Fault.h"
#include "ui/CommandList.h"
#include "ui/CommandTree.h"
#include "ui/Dialogs.h"
#include "ui/FindBar.h"
#include "ui/MenuItems.h"
#include "ui/ShownText.h"
#include "ui/VorelSpeakLexer.h"

namespace {

constexpr char kTitle[] = "VorelSpeak Script Editor";
constexpr char kFilter[] = "VorelSpeak Script (*.vs) | *.vs";
constexpr char kSaveTitle[] = "Save Script";
constexpr char kSaveQuestion[] = "Do you want to save any changes to your script?";

}  // namespace

frmGS::frmGS(QtHost& host, Dialogs& dialogs)
    : host_(host),
      dialogs_(dialogs),
      file_(host),
      txtScript_(new QsciScintilla),
      lexer_(new VorelSpeakLexer(this)),
      commands_(new CommandTree) {
    setObjectName("frmGS");
    setWindowIcon(QIcon(":/icons/tvorel.svg"));
    resize(980, 640);
    findBar_ = new FindBar(*txtScript_);
    BuildText();

    auto* const textSide = new QWidget;
    auto* const textLayout = new QVBoxLayout(textSide);
    textLayout->setContentsMargins(0, 0, 0, 0);
    textLayout->addWidget(txtScript_);
    textLayout->addWidget(findBar_);
    auto* const splitter = new QSplitter;
    splitter->setContentsMargins(6, 6, 6, 0);
    splitter->addWidget(textSide);
    splitter->addWidget(commands_);
    splitter->setStretchFactor(0, 1);
    splitter->setSizes({660, 320});
    setCentralWidget(splitter);
    statusBar();  // made now: with its first message it would take the text's last line away
    BuildMenus();
    connect(commands_, &CommandTree::CommandChosen, this, &frmGS::InsertCommand);
    NewScript();
}

void frmGS::BuildText() {
    txtScript_->setObjectName("txtScript");
    txtScript_->setAccessibleName(tr("Script"));
    txtScript_->setAccessibleDescription(tr("The text of the script. F6 leads to the list of commands."));
    txtScript_->setUtf8(true);
    txtScript_->setEolMode(QsciScintilla::EolWindows);
    txtScript_->setLexer(lexer_);
    txtScript_->setMarginType(0, QsciScintilla::NumberMargin);
    txtScript_->setMarginWidth(0, "00000");
    txtScript_->setMarginWidth(1, 0);  // that of symbols, of which there are none
    txtScript_->setCaretLineVisible(true);
    txtScript_->setBraceMatching(QsciScintilla::SloppyBraceMatch);
    txtScript_->setTabWidth(5);  // as far as an effect stands in
    txtScript_->setIndentationsUseTabs(false);
    FollowPalette();
    connect(txtScript_, &QsciScintilla::modificationChanged, this,
            [this](bool changed) { setWindowModified(changed); });
    connect(txtScript_, &QsciScintilla::cursorPositionChanged, this, [this](int line, int column) {
        statusBar()->showMessage(tr("Line %1, column %2").arg(line + 1).arg(column + 1));
    });
}

void frmGS::BuildMenus() {
    QMenu* const file = AddMenu(*menuBar(), "mnuFile", tr("&File"));
    AddItem(*file, "mnuNew", tr("&New"), QKeySequence::New, [this] {
        if (AskToDropChanges()) NewScript();
    });
    AddItem(*file, "mnuOpen", tr("&Open..."), QKeySequence::Open, [this] { Open(); });
    AddItem(*file, "mnuSave", tr("&Save"), QKeySequence::Save, [this] { Save(); });
    AddItem(*file, "mnuSaveAs", tr("Save &As..."), QKeySequence::SaveAs, [this] { SaveAs(); });
    file->addSeparator();
    AddItem(*file, "mnuExit", tr("E&xit"), QKeySequence::Close, [this] { close(); });

    QMenu* const edit = AddMenu(*menuBar(), "mnuEdit", tr("&Edit"));
    AddItem(*edit, "mnuUndo", tr("&Undo"), QKeySequence::Undo, [this] { txtScript_->undo(); });
    AddItem(*edit, "mnuRedo", tr("&Redo"), QKeySequence::Redo, [this] { txtScript_->redo(); });
    edit->addSeparator();
    AddItem(*edit, "mnuCut", tr("Cu&t"), QKeySequence::Cut, [this] { txtScript_->cut(); });
    AddItem(*edit, "mnuCopy", tr("&Copy"), QKeySequence::Copy, [this] { txtScript_->copy(); });
    AddItem(*edit, "mnuPaste", tr("&Paste"), QKeySequence::Paste, [this] { txtScript_->paste(); });
    edit->addSeparator();
    AddItem(*edit, "mnuFind", tr("&Find and replace..."), QKeySequence::Find, [this] { findBar_->Open(); });
    AddItem(*edit, "mnuFindNext", tr("Find &next"), QKeySequence::FindNext, [this] { findBar_->FindNext(); });
    AddItem(*edit, "mnuFindPrevious", tr("Find pre&vious"), QKeySequence::FindPrevious,
            [this] { findBar_->FindPrevious(); });
    AddItem(*edit, "mnuGoTo", tr("&Go to line..."), QKeySequence(Qt::CTRL | Qt::Key_G), [this] { AskForLine(); });

    QMenu* const view = AddMenu(*menuBar(), "mnuView", tr("&View"));
    AddItem(*view, "mnuZoomIn", tr("Zoom &in"), QKeySequence::ZoomIn, [this] { txtScript_->zoomIn(); });
    AddItem(*view, "mnuZoomOut", tr("Zoom &out"), QKeySequence::ZoomOut, [this] { txtScript_->zoomOut(); });
    AddItem(*view, "mnuZoomReset", tr("&Usual size"), QKeySequence(Qt::CTRL | Qt::Key_0),
            [this] { txtScript_->zoomTo(0); });
    view->addSeparator();
    AddItem(*view, "mnuCommands", tr("&Commands"), QKeySequence(Qt::Key_F6), [this] {
        if (txtScript_->hasFocus()) {
            commands_->FocusTree();
        } else {
            txtScript_->setFocus();
        }
    });
}

void frmGS::FollowPalette() {
    lexer_->FollowPalette(palette());
    const QColor text = palette().color(QPalette::Text);
    QColor caretLine = palette().color(QPalette::Highlight);
    caretLine.setAlpha(40);
    txtScript_->setCaretForegroundColor(text);
    txtScript_->setCaretLineBackgroundColor(caretLine);
    txtScript_->setMarginsBackgroundColor(palette().color(QPalette::Window));
    txtScript_->setMarginsForegroundColor(palette().color(QPalette::WindowText));
    txtScript_->setMatchedBraceBackgroundColor(palette().color(QPalette::Highlight));
    txtScript_->setMatchedBraceForegroundColor(palette().color(QPalette::HighlightedText));
}

void frmGS::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) FollowPalette();
}

void frmGS::ShowTitle() {
    const QString title(kTitle);
    // The placeholder is where Qt shows its mark of unsaved changes.
    const QString name = ShownPath(FileNameOf(Path()));
    setWindowTitle((name.isEmpty() ? title : title + " - [" + name + "]") + "[*]");
    setWindowModified(txtScript_->isModified());
}

void frmGS::SetText(const std::string& text) {
    txtScript_->setText(Shown(text));
    txtScript_->setModified(false);
    ShowTitle();
}

bool frmGS::IsDirty() const { return txtScript_->isModified(); }

std::string frmGS::ScriptText() const { return Typed(txtScript_->text()); }

void frmGS::ShowBotScript() {
    const auto& script = host_.bot().script;
    if (!script) return NewScript();
    file_.TakeBotScript();
    SetText(script->Text());
}

Outcome<std::string> frmGS::ShowFile(const std::string& path) {
    auto text = file_.Read(path);
    if (text) SetText(*text);
    return text;
}

void frmGS::NewScript() {
    file_.Forget();
    SetText(kNewScript);
}

void frmGS::RestoreText(const std::string& path, const std::string& text) {
    NewScript();
    // Where it can't be shown, undoing the change leads to the new script.
    if (const auto file = host_.Disk().Find(path)) static_cast<void>(ShowFile(*file));
    file_.TakePath(path);
    // Replaced by hand, as it were: only that counts as a change, and it can be undone.
    txtScript_->selectAll();
    txtScript_->replaceSelectedText(Shown(text));
    ShowTitle();
}

bool frmGS::AskToDropChanges(bool offersCancel) {
    if (!IsDirty()) return true;
    const auto answer = dialogs_.Ask(this, kSaveQuestion, kSaveTitle, offersCancel);
    return answer == Dialogs::Answer::No || (answer == Dialogs::Answer::Yes && Save());
}

void frmGS::Open() {
    if (!AskToDropChanges()) return;
    const auto chosen =
        dialogs_.AskOpenFile(this, "Select a VorelSpeak Script to Open", kFilter, ShownPath(FolderOf(Path())));
    if (chosen) ReadFrom(TypedPath(*chosen));
}

void frmGS::OpenScript(const std::string& path) {
    if (AskToDropChanges()) ReadFrom(path);
}

void frmGS::ReadFrom(const std::string& path) {
    const std::optional<std::string> found = host_.Disk().Find(path);
    if (!found) return;
    host_.RunHandler([&] {
        const std::string text = ValueOrFault(ShowFile(*found));
        NameInProfile();
        RunText(text);
    });
}

void frmGS::RunText(const std::string& text) {
    host_.bot().script = std::make_shared<Script>(text, Path());
    if (const auto remark = FileRemark(FileKind::Script, Path(), ScriptTextToFile(text))) {
        emit ScriptRemarked(ShownPath(*remark));
    }
    RunScript(host_.bot(), EventScriptLoaded);
}

void frmGS::NameInProfile() {
    const ScriptFile::Naming naming = file_.NameInProfile();
    if (naming == ScriptFile::Naming::Anew) emit ScriptFileChanged();
    if (naming != ScriptFile::Naming::Impossible) return;
    const std::string path = host_.Disk().Absolute(Path());
    dialogs_.ShowMessage(this, WhyNotNamed(path), kSaveTitle, Dialogs::Icon::Critical);
}

bool frmGS::Save() { return Path().empty() ? SaveAs() : WriteTo(Path()); }

bool frmGS::SaveAs() {
    const auto chosen = AskSaveName(dialogs_, this, "Save VorelSpeak Script As...", kFilter,
                                    ShownPath(FolderOf(Path())), kScriptExtension);
    return chosen && WriteTo(TypedPath(*chosen));
}

/// Asks before characters that a script can't hold are saved as question marks.
/// @return whether it may be saved so
bool frmGS::AskAboutLosses() {
    for (int line = 0; line < txtScript_->lines(); ++line) {
        const QString text = txtScript_->text(line);
        if (Shown(Typed(text)) == text) continue;
        const QString question =
            tr("Line %1 holds characters that the game does not have. Save them as question marks?").arg(line + 1);
        if (dialogs_.Ask(this, question, kSaveTitle) == Dialogs::Answer::Yes) return true;
        GoToLine(line + 1);
        return false;
    }
    return true;
}

bool frmGS::WriteTo(const std::string& path) {
    if (!AskAboutLosses()) return false;
    const std::string text = ScriptText();
    if (const auto written = file_.Write(path, text); !written) {
        // The text is still here, and can be saved elsewhere.
        const QString why = ShownFault(written.Fault());
        dialogs_.ShowMessage(this, tr("%1.\nThe script counts as not saved; choose another place for it.").arg(why),
                             kSaveTitle, Dialogs::Icon::Critical);
        return false;
    }
    txtScript_->setModified(false);
    ShowTitle();
    NameInProfile();  // first: the script may end the program
    host_.RunHandler([&] { RunText(text); });
    return true;
}

void frmGS::closeEvent(QCloseEvent* event) {
    if (unloading_) return event->accept();
    event->ignore();
    const bool save = IsDirty() && dialogs_.Ask(this, kSaveQuestion, kSaveTitle) == Dialogs::Answer::Yes;
    if (!save || Save()) hide();
}

void frmGS::LoadCommands(const std::string& path) {
    const std::optional<std::string> found = host_.Disk().Find(path);
    commands_->ShowCommands(found ? FileLines(ValueOrFault(host_.Disk().Read(*found))) : std::vector<std::string>());
}

void frmGS::InsertCommand(const QString& command) {
    // By the editor's own messages: its places are bytes of UTF-8, not characters.
    const QByteArray text = Shown(CommandInsertion(Typed(command))).toUtf8();
    const long caret = txtScript_->SendScintilla(QsciScintilla::SCI_GETCURRENTPOS);
    txtScript_->SendScintilla(QsciScintilla::SCI_INSERTTEXT, static_cast<unsigned long>(caret), text.constData());
    txtScript_->SendScintilla(QsciScintilla::SCI_GOTOPOS, static_cast<unsigned long>(caret + text.size()));
}

void frmGS::AskForLine() {
    bool accepted = false;
    const int line = QInputDialog::getInt(this, tr("Go to line"), tr("Line:"), 1, 1, txtScript_->lines(), 1, &accepted);
    if (accepted) GoToLine(line);
}

void frmGS::GoToLine(int line) {
    txtScript_->setCursorPosition(line - 1, 0);
    txtScript_->ensureLineVisible(line - 1);
    txtScript_->setFocus();
}
