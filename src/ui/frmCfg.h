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
    frmCfg(Profile& profile, const QList<ServerChoice>& servers, Dialogs& dialogs, QWidget* parent = nullptr);

  private:
    Profile& profile_;
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

    /// What the profile is to call a file; nothing, and the user told why, when it can't.
    std::optional<std::string> NameOf(const QString& path);
    std::optional<std::string> NameIn(const QLineEdit& edit, const std::string& before);
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
