#include "profile/ProfileFile.h"
#include "ui/Desk.h"
#include "ui/frmCfg.h"

namespace {

QString Entries(const QAbstractItemModel& list) {
    QStringList entries;
    for (int i = 0; i < list.rowCount(); ++i) entries << list.index(i, 0).data().toString();
    return entries.join(", ");
}

constexpr char kBefore[] =
    "[General]\r\nFurcadiaClient=/games/client.exe\r\nFurcadiaCharacter=/bots/bot.ini\r\nOwners=Ann, Bob|Two\r\n"
    "Maps=Vale\r\nConnectClient=0\r\nCloseClient=1\r\nLogo=False\r\nPort=80\r\nScript=bot.vs\r\n\r\n"
    "[Ignores]\r\nMean One\r\n";

class Configuration : public Desk {
  protected:
    std::unique_ptr<frmCfg> form;

    void SetUp() override {
        Write("configured.tvm", kBefore);
        Start();
        Desk::Open("configured.tvm");
        bot().profile.serverAddress = "b.example";
        Open();
    }
    void Open() {
        const QList<ServerChoice> servers = {{"First", "a.example"}, {"Second", "b.example"}};
        form = std::make_unique<frmCfg>(bot().profile, servers, dialogs);
        form->show();
    }
    template <typename Control>
    Control& The(const QString& name) const {
        return Named<Control>(*form, name);
    }
    QString Click(const QString& name, const QStringList& answers = {}) {
        return dialogs.During(answers, [&] { dialogs.Choose(*form, name); });
    }
    QString Lists() const {
        return Entries(*The<QComboBox>("cmbOwner").model()) + "; " + Entries(*The<QComboBox>("cmbMaps").model()) +
               "; " + Entries(*The<QListWidget>("lstIgnores").model());
    }
    std::string Written() const { return ProfileBytes(bot().profile) + bot().profile.serverAddress; }
};

struct Step {
    const char* button;
    QStringList answers;
    const char *told, *lists;  ///< the last that is told, and the lists after it, none when they are as before
};

// clang-format off
const Step kSteps[] = {
    {"cmdAdd_Owner", {""},            "text [New Bot Owner] Enter the name of the new bot owner", ""},
    {"cmdAdd_Owner", {"ann"},         "message [Invalid] ann is already on the bot owner list", ""},
    {"cmdAdd_Owner", {"Pillow Wars"}, "", "Ann, Bob|Two, Pillow|Wars; Vale; Mean One"},
    {"cmdDel_Owner", {},              "", "Ann, Bob|Two; Vale; Mean One"},
    {"cmdAdd_Map",   {""},            "text [New Active Map] Enter the name of the new active map", ""},
    {"cmdAdd_Map",   {"vale"},        "message [Invalid] vale is already on the active map list", ""},
    {"cmdAdd_Map",   {"A B"},         "", "Ann, Bob|Two; Vale, A|B; Mean One"},
    {"cmdDel_Map",   {},              "", "Ann, Bob|Two; Vale; Mean One"},
    {"cmdDel_Map",   {},              "", "Ann, Bob|Two; ; Mean One"},
    {"cmdDel_Map",   {},              "", ""},
    {"cmdRI",        {},              "message [Invalid Selection] Select a furre to remove from the ignore list.", ""},
    {"cmdAI",        {"undefined"},   "[Tandry Vorel - Ignore List] What is the name of the furre you want your bot to ignore?", ""},
    {"cmdAI",        {"mean|one"},    "information [Tandry Vorel - Ignore List] mean one is already on the Tandry Vorel ignore list.", ""},
    {"cmdAI",        {"Other|One"},   "", "Ann, Bob|Two; ; Mean One, Other One"},
    {"cmdRI",        {"No"},          "Are you sure you want to remove Mean One from the Tandry Vorel Ignore List?", ""},
    {"cmdRI",        {"Yes"},         "", "Ann, Bob|Two; ; Other One"},
    {"cmdClient",    {"Cancel"},      "open [Select a Furcadia client] Furcadia Client (Furcadia.exe) | Furcadia.exe in /games", ""},
    {"cmdINI",       {"Cancel"},      "open [Select a Furcadia character] Furcadia Character (*.ini) | *.ini in /bots", ""},
};
// clang-format on

TEST_F(Configuration, AsksRefusesAndEditsItsLists) {
    QString lists = Lists();
    for (const auto& [button, answers, told, changed] : kSteps) {
        EXPECT_TRUE(Click(button, answers).contains(told)) << told;
        if (*changed) lists = changed;
        EXPECT_EQ(Lists(), lists) << button << answers.join('|');
        if (button == std::string("cmdAI")) The<QListWidget>("lstIgnores").setCurrentRow(0);
    }
    EXPECT_EQ(bot().profile.ignores, std::vector<std::string>{"Other One"}) << "at once";
}

TEST_F(Configuration, OnlyOKWritesIntoTheProfile) {
    const auto change = [this] {
        The<QComboBox>("cmbOwner").setCurrentIndex(0);
        EXPECT_TRUE(Click("cmdAdd_Owner", {"ann"}).contains("already"));
        EXPECT_EQ(The<QComboBox>("cmbOwner").currentIndex(), 0) << "a refusal changes nothing";
        EXPECT_FALSE(bot().profile.dirty);
        Click("cmdAdd_Owner", {"Eve"});
        EXPECT_EQ(The<QComboBox>("cmbOwner").currentText(), "Eve");
        Click("cmdClient", {"/c/client.exe"});
        Click("cmdINI", {"/c/bot.ini"});
        Click("cmdDel_Map");
        The<QCheckBox>("chkClient").setChecked(true);
        The<QCheckBox>("chkClose").setChecked(false);
        The<QRadioButton>("optSignature_0").click();
        The<QComboBox>("cmbPort").setCurrentText("6000");
        The<QComboBox>("cmbAddress").setCurrentIndex(0);
    };
    const std::string before = kBefore + std::string("b.example");
    Click("cmdOK");
    EXPECT_EQ(Written(), before) << "as it was shown";
    Open();
    The<QComboBox>("cmbPort").setCurrentText("65536");
    EXPECT_EQ(Click("cmdOK"), "message [Invalid] The port is a number from 1 to 32767.");
    EXPECT_TRUE(form->isVisible() && Written() == before);
    for (const char* const leave : {"cmdCancel", "cmdOK"}) {
        bot().profile.dirty = false;
        Open();
        change();
        EXPECT_EQ(Written(), before);
        Click(leave);
        EXPECT_FALSE(form->isVisible());
        EXPECT_EQ(Written() == before, leave == std::string("cmdCancel"));
    }
    EXPECT_TRUE(bot().profile.dirty);
    EXPECT_EQ(
        Written(),
        "[General]\r\nFurcadiaClient=/c/client.exe\r\nFurcadiaCharacter=/c/bot.ini\r\nOwners=Ann, Bob|Two, Eve\r\n"
        "Maps=\r\nConnectClient=1\r\nCloseClient=0\r\nLogo=True\r\nPort=6000\r\nScript=bot.vs\r\n\r\n"
        "[Ignores]\r\nMean One\r\na.example");
}

TEST_F(Configuration, ShowsItsPagesAndOffersTheGameFirstThenThePracticeDream) {
    QTimer::singleShot(0, qApp, [] {
        QWidget* const shown = QApplication::activeModalWidget();
        ASSERT_NE(shown, nullptr);
        auto& pages = Named<QListWidget>(*shown, "lstCfg");
        for (int page = pages.count() - 1; page >= 0; --page) {
            QTest::mouseClick(pages.viewport(), Qt::LeftButton, {}, pages.visualItemRect(pages.item(page)).center());
            for (int i = 0; i < pages.count(); ++i) {
                EXPECT_EQ(Named(*shown, QStringLiteral("fmeCfg_%1").arg(i)).isVisible(), i == page);
            }
        }
        auto& address = Named<QComboBox>(*shown, "cmbAddress");
        EXPECT_EQ(Entries(*address.model()), QString(kGameServer) + ", Practice dream on this computer");
        address.setCurrentIndex(0);
        Named<QPushButton>(*shown, "cmdOK").click();
    });
    Choose("cmdC_2");
    Start();
    EXPECT_EQ(bot().profile.serverAddress, kGameServer) << "kept for the next start";
}

}  // namespace
