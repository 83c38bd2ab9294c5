#include "profile/ProfileFile.h"
#include "support/Written.h"
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
    std::string server = "b.example";

    void SetUp() override {
        Write("configured.tvm", kBefore);
        Start();
        Desk::Open("configured.tvm");
        Open();
    }
    void Open() {
        const QList<ServerChoice> servers = {{"First", "a.example"}, {"Second", "b.example"}};
        form = std::make_unique<frmCfg>(bot().profile, server, servers, dialogs);
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
    std::string Written() const { return ProfileBytes(bot().profile) + server; }
};

TEST_F(Configuration, AsksRefusesAndEditsItsLists) {
    QString lists = Lists();
    for (const Block& step : BlocksOf("tests/ui/configuration.txt")) {
        QStringList answers = QString::fromStdString(step[0]).split(':');
        const QString button = answers.takeFirst(), told = Click(button, answers);
        for (auto line = step.begin() + 1; line != step.end(); ++line) {
            if (line->starts_with("= "))
                lists = QString::fromStdString(line->substr(2));
            else
                EXPECT_TRUE(told.contains(QString::fromStdString(*line))) << *line;
        }
        EXPECT_EQ(Lists(), lists) << step[0];
        if (button == "cmdAI") The<QListWidget>("lstIgnores").setCurrentRow(0);
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
    EXPECT_EQ(window->host().session().ChosenServer(), kGameServer) << "kept for the next start";
}

}  // namespace
