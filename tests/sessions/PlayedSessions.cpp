#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <set>

#include "platform/DiskFiles.h"
#include "profile/ProfileFile.h"
#include "rehearsal/Rehearsal.h"
#include "text/Fault.h"
#include "text/Text.h"

// Plays every session NAME.txt beside this file to the bot NAME.tvm, in a program folder of its own with copies of what
// lies in NAME/, the clock and the random draw fixed. A session that is to end in a fault says so on a line "# ends
// with: fault …". Where there is a NAME.out, everything the bot did must be exactly that, down to the data files that
// it leaves behind, one a line, with "/" for CR LF.

namespace {

namespace fs = std::filesystem;

const fs::path kSessions = fs::path(TVOREL_SOURCE_DIR) / "tests" / "sessions";

std::vector<std::string> AllSessions() {
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(kSessions)) {
        if (entry.path().extension() == ".txt") names.push_back(entry.path().stem());
    }
    return names;
}

/// A folder that is there as long as the test, and begins as a copy of another one where there is such.
struct FreshFolder {
    fs::path path = fs::path(testing::TempDir()) / ("session-" + std::to_string(::getpid()));
    explicit FreshFolder(const fs::path& model) {
        fs::create_directories(path);
        if (fs::exists(model)) fs::copy(model, path);
    }
    ~FreshFolder() { fs::remove_all(path); }
};

class PlayedSession : public testing::TestWithParam<std::string> {
  protected:
    std::string PathOf(const char* extension) const { return (kSessions / GetParam()).string() + extension; }

    DiskFiles disk;
    FreshFolder folder{PathOf("")};
    std::vector<std::string> told;
    Rehearsal rehearsal{disk, folder.path.string(), [this](const std::string& line) { told.push_back(line); }};

    void Play(const WrittenSession& session) {
        rehearsal.host.FreezeClock({2003, 2, 1, 13, 5, 9});
        rehearsal.host.SeedRandom(1);
        try {
            EXPECT_TRUE(LoadProfile(rehearsal.bot, PathOf(".tvm")).missingScript.empty());
            rehearsal.Play(session);
        } catch (const RuntimeFault& fault) {
            told.push_back("fault " + std::string(fault.Name()));
        }
    }

    void TellFiles() {
        const std::set<fs::path> files(fs::directory_iterator(folder.path), fs::directory_iterator());
        for (const fs::path& file : files) {
            told.push_back("file " + file.filename().string() + ": " + ReplaceAll(disk.Read(file), "\r\n", "/"));
        }
    }
};

TEST_P(PlayedSession, DoesWhatIsWritten) {
    const std::string text = disk.Read(PathOf(".txt"));
    const WrittenSession session = ParseSession(text);
    ASSERT_EQ(session.error, std::nullopt);
    Play(session);

    const std::string end = told.empty() ? "" : told.back();
    TellFiles();
    const std::string transcript = Join(told, "\n") + "\n";
    EXPECT_EQ(rehearsal.FailedExpectations(), 0u) << transcript;
    constexpr std::string_view kEndsWith = "# ends with: ";
    const std::size_t announced = text.find(kEndsWith);
    if (announced != text.npos) {
        const std::size_t from = announced + kEndsWith.size();
        EXPECT_EQ(end, text.substr(from, text.find('\n', from) - from)) << transcript;
    } else {
        EXPECT_FALSE(end.starts_with("fault ")) << transcript;
    }
    if (disk.Find(PathOf(".out"))) {
        EXPECT_EQ(transcript, disk.Read(PathOf(".out")));
    }
}

INSTANTIATE_TEST_SUITE_P(Sessions, PlayedSession, testing::ValuesIn(AllSessions()),
                         [](const auto& session) { return ReplaceAll(session.param, "-", "_"); });

}  // namespace
