#include "ui/frmCfg.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedLayout>
#include <utility>

#include "bot/Files.h"
#include "bot/ProfilePaths.h"
#include "ui/Dialogs.h"
#include "ui/ShownText.h"

namespace {

constexpr char kIgnoreTitle[] = "Tandry Vorel - Ignore List";

template <typename Widget>
Widget* Named(Widget* widget, const QString& name, const QString& accessibleName, const QString& description) {
    widget->setObjectName(name);
    widget->setAccessibleName(accessibleName);
    widget->setAccessibleDescription(description);
    return widget;
}

QGroupBox* NewFrame(const QString& caption, QGridLayout* page) {
    auto* const frame = new QGroupBox(caption);
    page->addWidget(frame, page->rowCount(), 0);
    return frame;
}

void ShowList(QComboBox* box, const std::vector<std::string>& entries) {
    box->clear();
    for (const std::string& entry : entries) box->addItem(Shown(entry));
    box->setCurrentIndex(box->count() - 1);  // what has just been added stands there
}

}  // namespace

frmCfg::frmCfg(Profile& profile, std::string& server, const QList<ServerChoice>& servers, Dialogs& dialogs,
               QWidget* parent)
    : QDialog(parent), profile_(profile), server_(server), edit_(profile), dialogs_(dialogs) {
    setObjectName("frmCfg");
    setWindowTitle("Tandry Vorel Configuration");
    lstCfg_ = Named(new QListWidget, "lstCfg", tr("Pages"), tr("Chooses which page of the configuration is shown"));
    pages_ = new QStackedLayout;  // as large as its largest page
    auto* const columns = new QHBoxLayout;
    columns->addWidget(lstCfg_);
    columns->addLayout(pages_, 1);
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(columns, 1);

    BuildSetup();
    BuildConnection(servers);
    BuildOptions();
    BuildIgnores();
    for (QGroupBox* const page : fmeCfg_) {
        pages_->addWidget(page);
        lstCfg_->addItem(page->title());
    }
    lstCfg_->setFixedWidth(lstCfg_->sizeHintForColumn(0) + 4 * lstCfg_->frameWidth() + 16);

    auto* const buttons = new QDialogButtonBox;
    auto* const cmdOK = Named(new QPushButton(tr("&OK")), "cmdOK", tr("OK"), tr("Takes the changes over"));
    auto* const cmdCancel = Named(new QPushButton(tr("&Cancel")), "cmdCancel", tr("Cancel"), tr("Drops the changes"));
    buttons->addButton(cmdOK, QDialogButtonBox::AcceptRole);
    buttons->addButton(cmdCancel, QDialogButtonBox::RejectRole);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &frmCfg::cmdOK_Click);
    connect(buttons, &QDialogButtonBox::rejected, this, &frmCfg::reject);
    connect(lstCfg_, &QListWidget::currentRowChanged, this, &frmCfg::ShowPage);

    ShowProfile();
    lstCfg_->setCurrentRow(0);
}

QGridLayout* frmCfg::AddPage(const QString& caption) {
    auto* const page = new QGroupBox(caption);
    page->setObjectName(QStringLiteral("fmeCfg_%1").arg(fmeCfg_.size()));
    fmeCfg_ << page;
    auto* const layout = new QGridLayout(page);
    return layout;
}

void frmCfg::BuildSetup() {
    QGridLayout* const page = AddPage("Setup");
    const auto pathFrame = [&](const QString& caption, QLineEdit* edit, QPushButton* pick, void (frmCfg::*onPick)()) {
        auto* const row = new QHBoxLayout(NewFrame(caption, page));
        row->addWidget(edit, 1);
        row->addWidget(pick);
        pick->setAutoDefault(false);  // as all buttons but OK: Enter in a field is no press of its neighbour
        connect(pick, &QPushButton::clicked, this, onPick);
    };
    txtClient_ = Named(new QLineEdit, "txtClient", tr("Furcadia client"), tr("Path of the game client's program"));
    pathFrame(
        "Furcadia Client", txtClient_,
        Named(new QPushButton(tr("&Browse...")), "cmdClient", tr("Choose the client"), tr("Picks the game client")),
        &frmCfg::cmdClient_Click);
    txtINI_ = Named(new QLineEdit, "txtINI", tr("Character file"), tr("Path of the character the bot logs in with"));
    pathFrame(
        "Furcadia Character File (*.ini)", txtINI_,
        Named(new QPushButton(tr("B&rowse...")), "cmdINI", tr("Choose the character"), tr("Picks the character file")),
        &frmCfg::cmdINI_Click);

    auto* const row = new QHBoxLayout(NewFrame("Bot Owner(s)", page));
    cmbOwner_ = Named(new QComboBox, "cmbOwner", tr("Bot owners"), tr("Who owns the bot"));
    auto* const add = Named(new QPushButton(tr("&Add...")), "cmdAdd_Owner", tr("Add an owner"), tr("Asks for a name"));
    auto* const remove = Named(new QPushButton(tr("&Delete")), "cmdDel_Owner", tr("Delete the owner"),
                               tr("Takes the shown owner off the list"));
    row->addWidget(cmbOwner_, 1);
    for (QPushButton* const button : {add, remove}) {
        row->addWidget(button);
        button->setAutoDefault(false);
    }
    connect(add, &QPushButton::clicked, this, &frmCfg::cmdAdd_Owner_Click);
    connect(remove, &QPushButton::clicked, this, &frmCfg::cmdDel_Owner_Click);
    page->setRowStretch(page->rowCount(), 1);
}

void frmCfg::BuildConnection(const QList<ServerChoice>& servers) {
    QGridLayout* const page = AddPage("Connection");
    auto* const grid = new QGridLayout(NewFrame("Connection", page));
    cmbAddress_ = Named(new QComboBox, "cmbAddress", tr("Address"), tr("The server the bot connects to by itself"));
    for (const ServerChoice& server : servers) cmbAddress_->addItem(server.caption, ShownPath(server.address));
    cmbPort_ = Named(new QComboBox, "cmbPort", tr("Port"), tr("The server's port"));
    cmbPort_->setEditable(true);
    cmbPort_->addItems({"80", "6000"});
    auto* const address = new QLabel("Address:");
    auto* const port = new QLabel(tr("&Port:"));
    address->setBuddy(cmbAddress_);
    port->setBuddy(cmbPort_);
    grid->addWidget(address, 0, 0);
    grid->addWidget(cmbAddress_, 0, 1);
    grid->addWidget(port, 1, 0);
    grid->addWidget(cmbPort_, 1, 1);
    grid->setColumnStretch(1, 1);
    chkClient_ = Named(new QCheckBox("Connect with Furcadia client. "), "chkClient", tr("Connect with Furcadia client"),
                       tr("The game client connects through the bot, so that you can watch and play along"));
    chkClose_ = Named(new QCheckBox(tr("C&lose the client when the session ends.")), "chkClose", tr("Close the client"),
                      tr("Closes the client's window when the session ends"));
    page->addWidget(chkClient_, page->rowCount(), 0);
    page->addWidget(chkClose_, page->rowCount(), 0);
    page->setRowStretch(page->rowCount(), 1);
}

void frmCfg::BuildOptions() {
    QGridLayout* const page = AddPage("Options");
    auto* const maps = new QHBoxLayout(NewFrame("Quiet mode is turned off on the following maps/dreams: ", page));
    cmbMaps_ = Named(new QComboBox, "cmbMaps", tr("Maps where the bot may speak"), tr("Elsewhere the bot keeps quiet"));
    auto* const add = Named(new QPushButton(tr("Add &map...")), "cmdAdd_Map", tr("Add a map"), tr("Asks for a name"));
    auto* const remove = Named(new QPushButton(tr("D&elete map")), "cmdDel_Map", tr("Delete the map"),
                               tr("Takes the shown map off the list"));
    maps->addWidget(cmbMaps_, 1);
    for (QPushButton* const button : {add, remove}) {
        maps->addWidget(button);
        button->setAutoDefault(false);
    }
    connect(add, &QPushButton::clicked, this, &frmCfg::cmdAdd_Map_Click);
    connect(remove, &QPushButton::clicked, this, &frmCfg::cmdDel_Map_Click);

    auto* const signature = new QVBoxLayout(NewFrame(tr("Signature in the bot's description"), page));
    optSignatureFirst_ = Named(new QRadioButton(tr("Be&fore the description")), "optSignature_0",
                               tr("Signature before the description"), tr("[Tandry Vorel] description"));
    optSignatureLast_ = Named(new QRadioButton(tr("Be&hind the description")), "optSignature_1",
                              tr("Signature behind the description"), tr("description [Tandry Vorel]"));
    signature->addWidget(optSignatureFirst_);
    signature->addWidget(optSignatureLast_);
    page->setRowStretch(page->rowCount(), 1);
}

void frmCfg::BuildIgnores() {
    QGridLayout* const page = AddPage("Ignore List");
    lstIgnores_ = Named(new QListWidget, "lstIgnores", tr("Ignored furres"), tr("Whom the bot does not hear"));
    auto* const add = Named(new QPushButton(tr("Ad&d...")), "cmdAI", tr("Ignore a furre"), tr("Asks for a name"));
    auto* const remove = Named(new QPushButton("&Remove"), "cmdRI", tr("Remove"), tr("Hears the chosen furre again"));
    page->addWidget(lstIgnores_, 0, 0, 1, 3);
    page->addWidget(add, 1, 0);
    page->addWidget(remove, 1, 1);
    page->setColumnStretch(2, 1);
    for (QPushButton* const button : {add, remove}) button->setAutoDefault(false);
    connect(add, &QPushButton::clicked, this, &frmCfg::cmdAI_Click);
    connect(remove, &QPushButton::clicked, this, &frmCfg::cmdRI_Click);
}

void frmCfg::ShowProfile() {
    txtClient_->setText(Shown(profile_.clientPath));
    txtINI_->setText(Shown(profile_.characterPath));
    cmbAddress_->setCurrentIndex(std::max(0, cmbAddress_->findData(ShownPath(server_))));
    cmbPort_->setCurrentText(QString::number(profile_.port));
    ShowList(cmbOwner_, edit_.Owners().entries);
    ShowList(cmbMaps_, edit_.Maps().entries);
    chkClient_->setChecked(profile_.connectClient != 0);
    chkClose_->setChecked(profile_.closeClient != 0);
    (profile_.signatureFirst ? optSignatureFirst_ : optSignatureLast_)->setChecked(true);
    for (const std::string& name : profile_.ignores) lstIgnores_->addItem(Shown(name));
}

void frmCfg::ShowPage(int page) {
    if (page >= 0) pages_->setCurrentIndex(page);
}

bool frmCfg::AskToAdd(AddToList add, const QString& prompt, const QString& title) {
    const auto typed = dialogs_.AskText(this, prompt, title);
    if (!typed || typed->isEmpty()) return false;
    const auto refusal = (edit_.*add)(Typed(*typed));
    if (refusal) dialogs_.ShowMessage(this, Shown(*refusal), "Invalid");
    return !refusal;
}

void frmCfg::cmdAdd_Map_Click() {
    if (AskToAdd(&ProfileEdit::AddMap, "Enter the name of the new active map", "New Active Map"))
        ShowList(cmbMaps_, edit_.Maps().entries);
}

void frmCfg::cmdDel_Map_Click() {
    if (cmbMaps_->currentIndex() < 0) return;
    edit_.DeleteMap(static_cast<std::size_t>(cmbMaps_->currentIndex()));
    ShowList(cmbMaps_, edit_.Maps().entries);
}

void frmCfg::cmdAdd_Owner_Click() {
    if (AskToAdd(&ProfileEdit::AddOwner, "Enter the name of the new bot owner", "New Bot Owner"))
        ShowList(cmbOwner_, edit_.Owners().entries);
}

void frmCfg::cmdDel_Owner_Click() {
    if (cmbOwner_->currentIndex() < 0) return;
    edit_.DeleteOwner(static_cast<std::size_t>(cmbOwner_->currentIndex()));
    ShowList(cmbOwner_, edit_.Owners().entries);
}

void frmCfg::cmdAI_Click() {
    const auto typed =
        dialogs_.AskText(this, "What is the name of the furre you want your bot to ignore?", kIgnoreTitle);
    if (!typed) return;
    std::string name = Typed(*typed);
    switch (edit_.AddIgnore(name)) {
        case ProfileEdit::IgnoreAnswer::Added:
            lstIgnores_->addItem(Shown(name));
            break;
        case ProfileEdit::IgnoreAnswer::AlreadyThere:
            dialogs_.ShowMessage(this, Shown(name) + " is already on the Tandry Vorel ignore list.", kIgnoreTitle,
                                 Dialogs::Icon::Information);
            break;
        case ProfileEdit::IgnoreAnswer::Nothing:
            break;
    }
}

void frmCfg::cmdRI_Click() {
    const QListWidgetItem* const item = lstIgnores_->currentItem();
    if (!item) return dialogs_.ShowMessage(this, "Select a furre to remove from the ignore list.", "Invalid Selection");
    const QString question = "Are you sure you want to remove " + item->text() + " from the Tandry Vorel Ignore List?";
    if (dialogs_.Ask(this, question, kIgnoreTitle) != Dialogs::Answer::Yes) return;
    edit_.RemoveIgnore(static_cast<std::size_t>(lstIgnores_->currentRow()));
    delete lstIgnores_->takeItem(lstIgnores_->currentRow());
}

QString frmCfg::FolderOfNamed(const QLineEdit& edit) const {
    const std::string folder = FolderOf(TypedPath(edit.text()));
    // A file that is named from the profile's folder, because its whole path can't be.
    const bool fromProfile = !FitsCodePage(profile_.path) && !folder.starts_with('/');
    return ShownPath(fromProfile ? JoinPath(FolderOf(profile_.path), folder) : folder);
}

std::optional<std::string> frmCfg::NameOrTell(const QString& path) {
    auto name = NameInProfile(profile_.path, TypedPath(path));
    if (!name) dialogs_.ShowMessage(this, WhyNotNamed(TypedPath(path)), "Invalid");
    return name;
}

void frmCfg::TakeChosen(QLineEdit& edit, const QString& path) {
    const auto name = NameOrTell(path);
    if (!name) return;
    edit.setText(Shown(*name));
    edit_.MarkChanged();
}

std::optional<std::string> frmCfg::NameOrTell(const QLineEdit& edit, const std::string& before) {
    return edit.text() == Shown(before) ? before : NameOrTell(edit.text());
}

void frmCfg::cmdClient_Click() {
    const auto chosen = dialogs_.AskOpenFile(
        this, "Select a Furcadia client", "Furcadia Client (Furcadia.exe) | Furcadia.exe", FolderOfNamed(*txtClient_));
    if (chosen) TakeChosen(*txtClient_, *chosen);
}

void frmCfg::cmdINI_Click() {
    const auto chosen = dialogs_.AskOpenFile(this, "Select a Furcadia character", "Furcadia Character (*.ini) | *.ini",
                                             FolderOfNamed(*txtINI_));
    if (chosen) TakeChosen(*txtINI_, *chosen);
}

void frmCfg::cmdOK_Click() {
    if (!ProfileEdit::IsUsablePort(Typed(cmbPort_->currentText()))) {
        return dialogs_.ShowMessage(this, tr("The port is a number from 1 to 32767."), "Invalid");
    }
    const auto client = NameOrTell(*txtClient_, profile_.clientPath);
    const auto character = client ? NameOrTell(*txtINI_, profile_.characterPath) : std::nullopt;
    if (!client || !character) return;
    edit_.Apply({*client, *character, chkClient_->isChecked(), chkClose_->isChecked(), optSignatureFirst_->isChecked(),
                 Typed(cmbPort_->currentText())});
    const std::string server = TypedPath(cmbAddress_->currentData().toString());
    if (std::exchange(server_, server) != server) edit_.MarkChanged();
    accept();
}
