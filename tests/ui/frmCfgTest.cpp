#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

#include "ui/Desk.h"
#include "ui/frmCfg.h"

namespace {

using Answer = Dialogs::Answer;

template <typename List>
QStringList Entries(const List& list) {
    QStringList entries;
    for (int i = 0; i < list.count(); ++i) entries << list.model()->index(i, 0).data().toString();
    return entries;
}

class Configuration : public testing::Test {
  protected:
    Profile profile;
    RecordingDialogs dialogs;
    std::unique_ptr<frmCfg> form;

    void SetUp() override {
        profile.clientPath = "/games/client.exe";
        profile.characterPath = "/bots/bot.ini";
        profile.owners = "Ann, Bob|Two";
        profile.maps = "Vale";
        profile.port = 80;
        profile.closeClient = 1;
        profile.ignores = {"Mean One"};
        profile.serverAddress = "b.example";
        Open();
    }
    void Open() {
        form = std::make_unique<frmCfg>(profile, QList<ServerChoice>{{"First", "a.example"}, {"Second", "b.example"}},
                                        dialogs);
        form->show();
    }
    template <typename Control>
    Control& The(const QString& name) const {
        return Named<Control>(*form, name);
    }
    /// @return what was told and asked
    QStringList Click(const QString& name, std::optional<QString> typed = {}, Answer answer = Answer::Cancel) {
        dialogs.texts.assign(1, typed);
        dialogs.answers.assign(1, answer);
        The<QPushButton>(name).click();
        return dialogs.Take();
    }
    /// What the controls hold.
    QString Shown() const {
        return QStringList{The<QLineEdit>("txtClient").text(),
                           The<QLineEdit>("txtINI").text(),
                           Entries(The<QComboBox>("cmbOwner")).join(", "),
                           Entries(The<QComboBox>("cmbMaps")).join(", "),
                           The<QComboBox>("cmbAddress").currentText(),
                           The<QComboBox>("cmbPort").currentText(),
                           The<QCheckBox>("chkClient").isChecked() ? "link" : "alone",
                           The<QCheckBox>("chkClose").isChecked() ? "close" : "leave",
                           The<QRadioButton>("optSignature_0").isChecked() ? "first" : "last",
                           Entries(The<QListWidget>("lstIgnores")).join(", ")}
            .join("; ");
    }
};

TEST_F(Configuration, ShowsTheProfileOnItsPages) {
    EXPECT_EQ(form->windowTitle(), "Tandry Vorel Configuration");
    EXPECT_EQ(Shown(),
              "/games/client.exe; /bots/bot.ini; Ann, Bob|Two; Vale; Second; 80; alone; close; last; Mean One");
    EXPECT_EQ(The<QCheckBox>("chkClient").text() + The<QPushButton>("cmdRI").text(),
              "Connect with Furcadia client. &Remove");
    QStringList frames;
    for (const QGroupBox* const frame : form->findChildren<QGroupBox*>()) frames << frame->title();
    for (const char* const caption : {"Furcadia Character File (*.ini)", "Bot Owner(s)", "Connection",
                                      "Quiet mode is turned off on the following maps/dreams: "}) {
        EXPECT_TRUE(frames.contains(caption)) << caption;
    }
    auto& pages = The<QListWidget>("lstCfg");
    for (int page = pages.count() - 1; page >= 0; --page) {
        QTest::mouseClick(pages.viewport(), Qt::LeftButton, {}, pages.visualItemRect(pages.item(page)).center());
        QStringList visible;
        for (int i = 0; i < pages.count(); ++i) {
            const auto& frame = Named<QGroupBox>(*form, QStringLiteral("fmeCfg_%1").arg(i));
            if (frame.isVisible()) visible << frame.title();
        }
        EXPECT_EQ(visible, QStringList{pages.item(page)->text()});
    }
}

TEST_F(Configuration, AsksAndRefusesInTheseWords) {
    struct {
        const char *button, *typed, *told;
    } const cases[] = {
        {"cmdAdd_Owner", "", "text [New Bot Owner] Enter the name of the new bot owner"},
        {"cmdAdd_Owner", "ann", "message [Invalid] ann is already on the bot owner list"},
        {"cmdAdd_Map", "", "text [New Active Map] Enter the name of the new active map"},
        {"cmdAdd_Map", "vale", "message [Invalid] vale is already on the active map list"},
        {"cmdAI", "undefined",
         "text [Tandry Vorel - Ignore List] What is the name of the furre you want your bot to ignore?"},
        {"cmdAI", "mean|one",
         "information [Tandry Vorel - Ignore List] mean one is already on the Tandry Vorel ignore list."},
        {"cmdRI", "", "message [Invalid Selection] Select a furre to remove from the ignore list."},
        {"cmdClient", nullptr,
         "open [Select a Furcadia client] Furcadia Client (Furcadia.exe) | Furcadia.exe in /games"},
        {"cmdINI", nullptr, "open [Select a Furcadia character] Furcadia Character (*.ini) | *.ini in /bots"},
    };
    const QString before = Shown();
    The<QComboBox>("cmbOwner").setCurrentIndex(0);
    for (const auto& [button, typed, told] : cases) {
        EXPECT_EQ(Click(button, typed ? std::optional<QString>(typed) : std::nullopt).last(), told);
    }
    EXPECT_EQ(Shown(), before);
    EXPECT_EQ(The<QComboBox>("cmbOwner").currentIndex(), 0) << "a refusal changes nothing";
    EXPECT_FALSE(profile.dirty);
}

TEST_F(Configuration, EditsItsLists) {
    for (const char* const list : {"Owner", "Map"}) {
        auto& box = The<QComboBox>(list == std::string("Map") ? "cmbMaps" : "cmbOwner");
        Click(QStringLiteral("cmdAdd_%1").arg(list), "Pillow Wars");
        EXPECT_EQ(box.currentText(), "Pillow|Wars");
        box.setCurrentIndex(0);
        while (box.count() > 1) Click(QStringLiteral("cmdDel_%1").arg(list));
        EXPECT_EQ(box.currentIndex(), 0) << "the last one is chosen";
        for (int i = 0; i < 2; ++i) EXPECT_EQ(Click(QStringLiteral("cmdDel_%1").arg(list)), QStringList());
        EXPECT_EQ(box.count(), 0);
    }
    Click("cmdAI", "Other|One");
    The<QListWidget>("lstIgnores").setCurrentRow(0);
    EXPECT_EQ(
        Click("cmdRI", {}, Answer::No),
        QStringList{"yes-no [Tandry Vorel - Ignore List] Are you sure you want to remove Mean One from the Tandry "
                    "Vorel Ignore List?"});
    EXPECT_EQ(profile.ignores, (std::vector<std::string>{"Mean One", "Other One"}));
    Click("cmdRI", {}, Answer::Yes);
    EXPECT_EQ(profile.ignores, std::vector<std::string>{"Other One"});
    Click("cmdClient", "/new/Furcadia.exe");
    Click("cmdINI", "/new/bot.ini");
    EXPECT_TRUE(Shown().startsWith("/new/Furcadia.exe; /new/bot.ini; ") && Shown().endsWith("; Other One")) << Shown();
}

TEST_F(Configuration, OnlyOKWritesIntoTheProfile) {
    const auto change = [this] {
        The<QLineEdit>("txtClient").setText("/c");
        The<QLineEdit>("txtINI").setText("/i");
        Click("cmdAdd_Owner", "Eve");
        Click("cmdDel_Map");
        The<QCheckBox>("chkClient").setChecked(true);
        The<QCheckBox>("chkClose").setChecked(false);
        The<QRadioButton>("optSignature_0").click();
        The<QComboBox>("cmbPort").setCurrentText("6000");
        The<QComboBox>("cmbAddress").setCurrentIndex(0);
    };
    const QString before = Shown();
    change();
    Click("cmdCancel");
    Open();
    EXPECT_EQ(Shown(), before);
    change();
    Click("cmdOK");
    EXPECT_FALSE(form->isVisible());
    EXPECT_TRUE(profile.dirty);
    Open();
    EXPECT_EQ(Shown(), "/c; /i; Ann, Bob|Two, Eve; ; First; 6000; link; leave; first; Mean One");
}

TEST(ConfigurationInTheWindow, OffersTheGameFirstThenThePracticeDream) {
    Desk desk;
    desk.Start();
    QTimer::singleShot(0, qApp, [] {
        QWidget* const form = QApplication::activeModalWidget();
        ASSERT_NE(form, nullptr);
        auto& address = Named<QComboBox>(*form, "cmbAddress");
        EXPECT_EQ(Entries(address), (QStringList{kGameServer, "Practice dream on this computer"}));
        address.setCurrentIndex(0);
        Named<QPushButton>(*form, "cmdOK").click();
    });
    desk.The<QAbstractButton>("cmdC_2").click();
    desk.Start();
    EXPECT_EQ(desk.bot().profile.serverAddress, kGameServer) << "kept for the next start";
}

}  // namespace
