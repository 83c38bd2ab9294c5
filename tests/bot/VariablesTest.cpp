#include <algorithm>
#include <random>
#include <utility>

#include "bot/Variables.h"
#include "engine/PlainRules.h"
#include "support/Cases.h"
#include "support/RehearsalBot.h"
#include "text/Limits.h"

namespace {

using Rows = std::vector<std::pair<std::string, std::string>>;

/// What the list of user variables does, in the plainest way.
struct PlainRows {
    Rows rows;

    Rows::iterator Row(const std::string& name) {
        return std::find_if(rows.begin(), rows.end(), [&](const auto& row) { return row.first == name; });
    }
    void Set(const std::string& name, const std::string& value) {
        const auto row = Row(name);
        row == rows.end() ? rows.push_back({name, value}) : void(row->second = value);
    }
    void Rename(const std::string& name, const std::string& newName) {
        if (name == newName || Row(name) == rows.end()) return;
        Remove(newName);
        Row(name)->first = newName;
    }
    void Remove(const std::string& name) {
        std::erase_if(rows, [&](const auto& row) { return row.first == name; });
    }
};

TEST(Variables, AreReplacedAsIfEachHadItsTurn) {
    const std::vector<std::string> pieces = Split(
        "[,],a,b,[a],[b],[a[b],ab,[ab,[[,]],[x],[word1],[word2], ,[word,2]"
        ",[word03],[die2],[startingword2],[startingword1,[die,[die9],word1],x",
        ",");
    std::mt19937 random(7);
    const auto below = [&](std::size_t limit) { return random() % limit; };
    const auto text = [&](std::size_t longest) {
        std::string made;
        for (std::size_t count = below(longest + 1); count > 0; --count) made += pieces[below(pieces.size())];
        return made;
    };
    RehearsalBot fast;
    PlainRows plain;
    fast.bot.state.dice.amount = 2;
    fast.bot.state.dieValues = {7, 1};
    int replaced = 0;
    for (int round = 0; round < 20000; ++round) {
        const std::string name = text(2), other = text(3);
        const auto change = below(10);
        if (change < 7) plain.Set(name, other), fast.bot.variables.Set(name, other);
        if (change == 7) plain.Rename(name, other), fast.bot.variables.Rename(name, other);
        if (change > 7 || plain.rows.size() > 8) plain.Remove(name), fast.bot.variables.Remove(name);
        if (plain.rows.size() > 12) plain.rows.clear(), fast.bot.variables.Clear();
        fast.bot.state.message = "w" + text(4);  // an empty message has no words at all
        const std::string line = text(9);
        const std::string expected = ExpandPlainly(fast.bot, line);
        ASSERT_EQ(ExpandVariables(fast.bot, line), expected) << round << ": " << line;
        Rows rows;
        for (const auto& [rank, row] : fast.bot.variables.Rows()) rows.emplace_back(row.name, row.value);
        ASSERT_EQ(rows, plain.rows);
        ASSERT_EQ(fast.bot.variables.Find(name) != nullptr, plain.Row(name) != plain.rows.end());
        replaced += line == expected ? 0 : 1;
    }
    EXPECT_GT(replaced, 5000);
}

TEST(Variables, MakeNoTextBeyondItsBounds) {
    RehearsalBot bot;
    const std::string names(std::size_t{3} * 1024, 'v');
    bot.bot.variables.Set("vvv", std::string(1024, 'x'));
    EXPECT_EQ(ExpandVariables(bot.bot, names).size(), kLongestText);
    EXPECT_EQ(FaultOf([&] { ExpandVariables(bot.bot, names + "y"); }), FaultKind::OutOfMemory);
    EXPECT_EQ(FaultOf([&] { ExpandVariables(bot.bot, std::string(kLongestText + 1, 'y')); }), FaultKind::OutOfMemory);
}

/// Ways to make ever more of a message of 400,000 letters, and of a memory that names itself 200 times.
class Multiplies : public testing::TestWithParam<const char*> {};

TEST_P(Multiplies, EndsInAFault) {
    RehearsalBot bot;
    bot.files.contents["folder/f.ini"] = "[list]\r\n" + ReplaceAll(std::string(400000, 'a'), "a", "a\r\n") +
                                         "[long]\r\nkey=" + std::string(kLongestText + 1, 'a');
    bot.bot.variables.Set("[memory]", ReplaceAll(std::string(200, 'm'), "m", "[memory]"));
    bot.SetScript({"(0:46) told,", GetParam(), "(0:2) never,"});
    bot.bot.variables.Set("[thrice]", "[word1][word1][word1]");
    const auto tell = [&] { bot.session.TypeLine("\"&" + std::string(400000, 'b')); };
    EXPECT_EQ(FaultOf([&] { tell(), tell(), tell(); }), FaultKind::OutOfMemory);
    EXPECT_TRUE(bot.told.empty()) << bot.told.front().size();
}

INSTANTIATE_TEST_SUITE_P(Variables, Multiplies,
                         testing::Values("(5:15) describe {[memory]}", "(5:8) say {[word1][word1][startingword1]}",
                                         "(5:22) move {[message]}", "(5:82) take the owner {[message]}",
                                         "(5:77) {list} {f} {v}", "(5:74) {long} {f} {key} {v}",
                                         // Every condition is tested, also where another one does not hold.
                                         "(1:2) {no}\r\n(1:2) {[message][word1][message]}\r\n(5:3) sit",
                                         "(1:2) {no}\r\n(1:2) {[thrice]}\r\n(5:3) sit"));

}  // namespace
