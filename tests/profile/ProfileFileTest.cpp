#include <gtest/gtest.h>

#include <tuple>

#include "bot/ProfilePaths.h"
#include "engine/FileRemarks.h"
#include "profile/ProfileFile.h"
#include "profile/Settings.h"
#include "support/Cases.h"
#include "support/RehearsalBot.h"

namespace {

using Told = std::vector<std::string>;

constexpr char kProfile[] =
    "Port=1\r\n[General]\r\nFURCADIACLIENT=game/v=2.exe\r\nFurcadiaCharacter=bot.ini\r\nOwners=Ann, Bob\r\n"
    "Maps=Vale\r\nConnectClient=1x\r\nCloseClient=none\r\nPort=80\r\nport "
    "=7\r\nScript=Greet.VS\r\nOwners=Bea\r\nnothing\r\n"
    "[Other]\r\nOwners=Zed\r\n[IGNORES]\r\nMean One\r\n\r\nOwners=Eve\r\n";

/// A bot beside whose profile "bots/bot.tvm" lies a script that tells whose it is.
class ProfileBot : public RehearsalBot {
  public:
    ProfileBot() {
        files.contents["bots/bot.tvm"] = kProfile;
        files.contents["bots/greet.vs"] = "VSPK 01.00 Vorel\n(0:0) loaded,\n(5:2) {loaded for [vorel.owners]}\n\n";
    }
};

TEST(LoadProfile, ReadsTheSectionsItKnows) {
    ProfileBot bot;
    bot.bot.profile.signatureFirst = true;
    EXPECT_TRUE(LoadProfile(bot.bot, "bots/BOT.tvm").found);
    const Profile& profile = bot.bot.profile;
    const std::vector<std::string> texts = {profile.path,          profile.clientPath,  profile.characterPath,
                                            profile.owners.Text(), profile.maps.Text(), profile.scriptPath};
    EXPECT_EQ(Join(texts, "; "), "bots/bot.tvm; game/v=2.exe; bot.ini; Bea; Vale; Greet.VS");
    EXPECT_FALSE(profile.signatureFirst);
    EXPECT_EQ(std::tuple(profile.connectClient, profile.closeClient, profile.port), std::tuple(1, 0, 80));
    EXPECT_EQ(profile.ignores, (std::vector<std::string>{"Mean One", "", "Owners=Eve"}));
    EXPECT_EQ(bot.told, Told{"console loaded for Ann, Bob"}) << "where it is named";
    EXPECT_EQ(bot.bot.place.file, "");
}

TEST(OpenProfile, KnowsNoSectionsAndKeepsTheIgnores) {
    ProfileBot bot;
    bot.bot.profile.ignores = {"Old One"};
    EXPECT_TRUE(OpenProfile(bot.bot, "bots/bot.tvm").found);
    EXPECT_EQ(bot.bot.profile.ignores, Told{"Old One"});
    EXPECT_EQ(bot.bot.profile.owners.Text(), "Eve");
    EXPECT_EQ(bot.told, Told{"console loaded for Ann, Bob"});
}

TEST(Profile, TheSignaturesPlaceIsReadTwoWays) {
    struct {
        const char* value;
        bool loaded, opened;
    } const cases[] = {{"tRUE", true, true}, {"False", false, true}, {"END", false, false}, {"", false, true}};
    for (const auto& [value, loaded, opened] : cases) {
        ProfileBot bot;
        bot.files.contents["bots/bot.tvm"] = "[General]\nLogo=" + std::string(value);
        LoadProfile(bot.bot, "bots/bot.tvm");
        EXPECT_EQ(bot.bot.profile.signatureFirst, loaded) << value;
        OpenProfile(bot.bot, "bots/bot.tvm");
        EXPECT_EQ(bot.bot.profile.signatureFirst, opened) << value;
    }
}

TEST(Profile, MissingFilesLoadNothing) {
    ProfileBot bot;
    bot.bot.profile.owners = "Ann";
    EXPECT_FALSE(LoadProfile(bot.bot, "bots/none.tvm").found);
    EXPECT_FALSE(OpenProfile(bot.bot, "bots/none.tvm").found);
    EXPECT_EQ(bot.bot.profile.owners.Text(), "Ann");
    bot.files.contents.erase("bots/greet.vs");
    EXPECT_EQ(LoadProfile(bot.bot, "bots/bot.tvm").missingScript, "Greet.VS");
    EXPECT_EQ(bot.bot.profile.ignores.size(), 3u);
    EXPECT_EQ(bot.told, Told{});
}

TEST(SaveProfile, WritesTheWholeLayout) {
    RehearsalBot bot;
    Profile& profile = bot.bot.profile;
    profile = {"", "c.exe", "b\xe9.ini", {}, {}, 1, -1, false, 80, "s.vs", {"Mean|One", "Zed"}, true};
    profile.owners = "Ann, Bob", profile.maps = "Vale";
    EXPECT_TRUE(SaveProfile(bot.bot, "bots/mybot"));
    EXPECT_EQ(bot.files.contents["bots/mybot.tvm"],
              "[General]\r\nFurcadiaClient=c.exe\r\nFurcadiaCharacter=b\xe9.ini\r\nOwners=Ann, Bob\r\nMaps=Vale\r\n"
              "ConnectClient=1\r\nCloseClient=-1\r\nLogo=False\r\nPort=80\r\nScript=s.vs\r\n\r\n[Ignores]\r\n"
              "Mean|One\r\nZed\r\n");
    EXPECT_FALSE(profile.dirty);
    EXPECT_TRUE(SaveProfile(bot.bot, profile.path));
    EXPECT_EQ(profile.path, "bots/mybot.tvm");
    bot.files.unwritable = "full.tvm";
    profile.dirty = true;
    EXPECT_EQ(SaveProfile(bot.bot, "full").Fault().Kind(), FaultKind::PathOrFileAccess);
    EXPECT_TRUE(profile.dirty);
}

TEST(Profile, TitleAndNewProfile) {
    ProfileBot bot;
    const std::string bare = WindowTitle(bot.bot);
    LoadProfile(bot.bot, "bots/bot.tvm");
    EXPECT_EQ(WindowTitle(bot.bot), bare + " - [bot.tvm]");
    bot.bot.variables.Set("[a]", "1");
    NewProfile(bot.bot);
    EXPECT_EQ(WindowTitle(bot.bot), bare);
    EXPECT_TRUE(bot.bot.variables.Rows().empty());
    EXPECT_EQ(bot.bot.script->Text(), "VSPK 01.00 Vorel\r\n\r\n*Endtriggers* 9999 *Endtriggers*\r\n");
}

TEST(Profile, RelativePathsPreferTheCurrentFolder) {
    ProfileBot bot;
    LoadProfile(bot.bot, "bots/bot.tvm");
    EXPECT_EQ(FindProfileFile(bot.bot, "GREET.vs"), "bots/greet.vs");
    bot.files.contents["greet.vs"] = "";
    EXPECT_EQ(FindProfileFile(bot.bot, "GREET.vs"), "greet.vs");
    EXPECT_EQ(FindProfileFile(bot.bot, "none.vs"), std::nullopt);
    EXPECT_EQ(FindProfileFile(bot.bot, ""), std::nullopt);
}

TEST(Profile, NamesAFileFromItsFolderWhenOnlyThatFits) {
    const std::string home = "/home/\xc5\x82ukasz/", profile = home + "bots/bot.tvm";
    struct {
        std::string profile, path;
        std::optional<std::string> name;
    } const cases[] = {
        {profile, "/home/caf\xc3\xa9/a.vs", "/home/caf\xe9/a.vs"},
        {profile, home + "bots/a?.vs", "a?.vs"},
        {profile, home + "bots/more/a.vs", "more/a.vs"},
        {profile, home + "a.vs", "../a.vs"},
        {profile, "/home/\xc5\x82ukas/bots/a.vs", std::nullopt},
        {profile, home + "bots/\xc5\x82.vs", std::nullopt},
        {"", home + "a.vs", std::nullopt},
        {"/bots/bot.tvm", home + "a.vs", std::nullopt},
    };
    for (const auto& [from, path, name] : cases) EXPECT_EQ(NameInProfile(from, path), name) << path;
}

struct RemarkCase : Row {
    FileKind kind;
    std::string bytes, matter;  ///< none: nothing is the matter
};

const std::string kGood = "VSPK 01.00 Vorel\r\n(0:0) x,\r\n";
const std::string kCantRun = "the script can't run, for ";
const RemarkCase kRemarks[] = {
    {"Good", FileKind::Script, "vspk 01.00 VOREL\ncaf\xe9\r\r\n", ""},
    {"Empty", FileKind::Script, "", ""},
    {"Utf16", FileKind::Script, "\xFF\xFEV" + std::string(1, '\0'), kCantRun + "it is written in UTF-16"},
    {"Utf16WithoutMark", FileKind::Profile, std::string("[\0G\0", 4), "it is written in UTF-16"},
    {"Mark", FileKind::Character, "\xEF\xBB\xBFName=a\n", "it begins with a byte-order mark"},
    {"CROnly", FileKind::Script, "VSPK 01.00 Vorel\r(0:0) x,\r", kCantRun + "its lines end with CR alone"},
    {"BlankBehind", FileKind::Script, "VSPK 01.00 Vorel\t\n\n", kCantRun + "blanks stand"},
    {"HeaderOnly", FileKind::Script, "VSPK 01.00 Vorel", kCantRun + "there is nothing behind"},
    {"NoHeader", FileKind::Script, "(0:0) x,\n", kCantRun + "its first line is not its header"},
    {"ProfilesNeedNone", FileKind::Profile, "[General]\n", ""},
    {"Utf8", FileKind::Script, kGood + "caf\xc3\xa9", "it is written in UTF-8"},
    {"NoUtf8", FileKind::Script, kGood + "\xc3\xa9 \xe9", ""},
};

class Remarks : public testing::TestWithParam<RemarkCase> {};

TEST_P(Remarks, TellWhatIsTheMatterOfAScriptThatCantRun) {
    const RemarkCase& file = GetParam();
    const std::string remark = FileRemark(file.kind, "f", file.bytes).value_or("");
    EXPECT_EQ(remark.substr(0, file.matter.empty() ? remark.npos : file.matter.size() + 3),
              file.matter.empty() ? "" : "f: " + file.matter);
    const bool told = remark.find("can't run") != remark.npos || file.bytes.empty();
    EXPECT_EQ(file.kind == FileKind::Script && !Script(ScriptTextFromFile(file.bytes)).IsValid(),
              told && file.kind == FileKind::Script);
}

INSTANTIATE_TEST_SUITE_P(File, Remarks, testing::ValuesIn(kRemarks), kCaseName);

TEST(Profile, IgnoredNamesMatchWithBarsAndCaseApart) {
    Profile profile;
    EXPECT_FALSE(IsIgnored(profile, ""));
    profile.ignores = {"Mean|On\xc9"};
    EXPECT_TRUE(IsIgnored(profile, "mean on\xe9"));
    EXPECT_FALSE(IsIgnored(profile, "mean"));
}

TEST(Settings, AreWrittenAndReadBack) {
    MemoryFiles files;
    EXPECT_FALSE(LoadSettings(files, "home").hasPlace);
    EXPECT_TRUE(SaveSettings(files, "home", {"bots/b\xc3\xa9.tvm", 12.5, -3, true}));
    EXPECT_EQ(files.contents["home/tvorel.cfg"], "[General]\r\nRecent=bots/b\xe9.tvm\r\nTop=12.5\r\nLeft=-3\r\n");
    EXPECT_EQ(LoadSettings(files, "home").recent, "bots/b\xc3\xa9.tvm");
    files.contents = {{"home/TVOREL.CFG", "=\nTop =1\nRECENT=a=b\nLeft=2.5 px\nOther=1\n"}};
    const Settings settings = LoadSettings(files, "home");
    EXPECT_EQ(settings.recent, "a=b");
    EXPECT_EQ(settings.left, 2.5);
    EXPECT_EQ(settings.top, 0);
}

}  // namespace
