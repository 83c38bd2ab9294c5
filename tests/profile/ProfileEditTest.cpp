#include "profile/ProfileEdit.h"
#include "support/Cases.h"

namespace {

using Names = std::vector<std::string>;

/// A list, a name that is added, an entry that is deleted then (-1: none), and what comes of it.
struct ListCase : Row {
    const char *before, *added;
    int deleted;
    bool refused;
    Names entries;
    const char* text;
};

// clang-format off
const ListCase kListCases[] = {
    {"WritesBlanksAsBars",         "Vale",         "Pillow Wars", -1, false, {"Vale", "Pillow|Wars"}, "Vale, Pillow|Wars"},
    {"RefusesOneThatIsThere",      "Pillow|Wars",  "PILLOW WARS", -1, true,  {"Pillow|Wars"},         "Pillow|Wars"},
    {"ComparesWholeEntries",       "Bobby",        "Bob",         -1, false, {"Bobby", "Bob"},        "Bobby, Bob"},
    {"CutsTheNameOutOfLongerOnes", "Bobby",        "Bob",          1, false, {"Bobby"},               "by"},
    {"DeletesTheFirst",            "Ann",          "Bob",          0, false, {"Bob"},                 "Bob"},
    {"DeletesTheOnlyOne",          "",             "Ann",          0, false, {},                      ""},
    {"SplitsAtCommaAndBlankOnly",  "Ann,Bob, Eve", "Zed",          1, false, {"Ann,Bob", "Zed"},      "Ann,Bob, Zed"},
};
// clang-format on

class NameLists : public testing::TestWithParam<ListCase> {};

TEST_P(NameLists, AreEdited) {
    const ListCase& the = GetParam();
    Profile profile;
    profile.owners = profile.maps = the.before;
    ProfileEdit edit(profile);
    const std::string refusedOwner = edit.AddOwner(the.added).value_or(""),
                      refusedMap = edit.AddMap(the.added).value_or("");
    EXPECT_EQ(refusedOwner, the.refused ? "PILLOW|WARS is already on the bot owner list" : "");
    EXPECT_EQ(refusedMap, the.refused ? "PILLOW|WARS is already on the active map list" : "");
    EXPECT_EQ(profile.dirty, !the.refused);
    edit.DeleteOwner(static_cast<std::size_t>(the.deleted));
    edit.DeleteMap(static_cast<std::size_t>(the.deleted));
    for (const ProfileEdit::NameList* const list : {&edit.Owners(), &edit.Maps()}) {
        EXPECT_EQ(list->entries, the.entries);
        EXPECT_EQ(list->text, the.text);
    }
    EXPECT_EQ(profile.owners.Text() + profile.maps.Text(), std::string(the.before) + the.before)
        << "until it is applied";
}

INSTANTIATE_TEST_SUITE_P(ProfileEdit, NameLists, testing::ValuesIn(kListCases), kCaseName);

TEST(ProfileEdit, AppliesUsablePortsAndNoEmptyEntries) {
    for (const auto& [typed, port] : {std::pair{"32767", 32767}, {"32768", 6000}, {"0", 6000}, {"", 6000}}) {
        Profile profile;
        profile.owners = "Ann, , Bob";
        ProfileEdit(profile).Apply({"", "", false, false, false, typed});
        EXPECT_EQ(profile.port, port) << typed;
        EXPECT_EQ(profile.owners.Text(), "Ann, Bob");
    }
}

}  // namespace
