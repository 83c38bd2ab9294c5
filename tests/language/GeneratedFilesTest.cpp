#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

#include "language/Commands.h"
#include "language/Reference.h"

TEST(GeneratedFiles, AreWhatTheTablesYield) {
    const auto expectSame = [](const std::string& path, const std::string& expected) {
        std::ifstream file(std::string(TVOREL_SOURCE_DIR "/") + path, std::ios::binary);
        const std::string bytes{std::istreambuf_iterator<char>(file), {}};
        EXPECT_TRUE(bytes == expected) << path << " is out of date: run scripts/language";
    };
    expectSame("share/vslist.vs", CommandListFile());
    expectSame("docs/language.md", LanguageReference());
}
