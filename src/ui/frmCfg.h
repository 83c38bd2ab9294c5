#pragma once

#include <QDialog>
#include <QList>

#include "profile/ProfileEdit.h"

class Dialogs;
class QCheckBox;
class QComboBox;
class QGridLayout;
class QGroupBox;
class QLineEdit;
class QListWidget;
class QPushButton;
class QRadioButton;
class QStackedLayout;

/// A server the user can choose: what is shown, and the address behind it.
struct ServerChoice {
    QString caption;
    std::string address;
};

/// The configuration dialog: shows a profile and hands what is done to ProfileEdit.
class frmCfg final : public QDialog {
    Q_OBJECT

  public:
    /// @param server  the chosen one of the servers, Windows-1252
    frmCfg(Profile& profile, std::string& server, const QList<ServerChoice>& servers, Dialogs& dialogs,
           QWidget* parent = nullptr);

  private:
    Profile& profile_;
    std::string& server_;
    ProfileEdit edit_;
    Dialogs& dialogs_;

    QListWidget* lstCfg_;
    QStackedLayout* pages_;
    QList<QGroupBox*> fmeCfg_;
    QLineEdit *txtClient_, *txtINI_;
    QComboBox *cmbOwner_, *cmbMaps_, *cmbAddress_, *cmbPort_;
    QListWidget* lstIgnores_;
    QCheckBox *chkClient_, *chkClose_;
    QRadioButton *optSignatureFirst_, *optSignatureLast_;

    QGridLayout* AddPage(const QString& caption);
    void BuildSetup();
    void BuildConnection(const QList<ServerChoice>& servers);
    void BuildOptions();
    void BuildIgnores();
    void ShowProfile();
    void ShowPage(int page);

    /// What the profile is to call a file; nothing when it can't, and then the user is told why.
    std::optional<std::string> NameOrTell(const QString& path);
    std::optional<std::string> NameOrTell(const QLineEdit& edit, const std::string& before);

    /// Asks for a name for one of the profile's lists.
    /// @return whether it is on the list now; not when it was refused, which the user is told, or cancelled
    using AddToList = std::optional<std::string> (ProfileEdit::*)(std::string_view);
    bool AskToAdd(AddToList add, const QString& prompt, const QString& title);
    void TakeChosen(QLineEdit& edit, const QString& path);
    QString FolderOfNamed(const QLineEdit& edit) const;

    void cmdAdd_Map_Click();
    void cmdDel_Map_Click();
    void cmdAdd_Owner_Click();
    void cmdDel_Owner_Click();
    void cmdAI_Click();
    void cmdRI_Click();
    void cmdClient_Click();
    void cmdINI_Click();
    void cmdOK_Click();
};
