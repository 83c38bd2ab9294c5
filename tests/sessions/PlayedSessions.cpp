#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

#include "platform/DiskFiles.h"
#include "profile/ProfileFile.h"
#include "rehearsal/Rehearsal.h"
#include "support/Written.h"
#include "text/Fault.h"

// Plays every session NAME.txt beside this file to the bot NAME.tvm, in a program folder of its own, the clock and the
// random draw fixed. Everything the bot did, and the fault that ended it, must be exactly NAME.out.

namespace {

namespace fs = std::filesystem;

const fs::path kSessions = fs::path(TVOREL_SOURCE_DIR) / "tests" / "sessions";

/// A folder that is there as long as the test.
struct FreshFolder {
    fs::path path = fs::path(testing::TempDir()) / ("session-" + std::to_string(::getpid()));
    FreshFolder() { fs::create_directories(path); }
    ~FreshFolder() { fs::remove_all(path); }
};

class PlayedSession : public testing::TestWithParam<std::string> {
  protected:
    std::string PathOf(const char* extension) const { return (kSessions / GetParam()).string() + extension; }

    DiskFiles disk;
    FreshFolder folder;
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
};

TEST_P(PlayedSession, DoesWhatIsWritten) {
    const WrittenSession session = ParseSession(disk.Read(PathOf(".txt")));
    ASSERT_EQ(session.error, std::nullopt);
    Play(session);
    EXPECT_EQ(Join(told, "\n") + "\n", disk.Read(PathOf(".out")));
}

INSTANTIATE_TEST_SUITE_P(Sessions, PlayedSession, testing::ValuesIn(NamesIn("tests/sessions", ".txt")),
                         [](const auto& session) { return ReplaceAll(session.param, "-", "_"); });

}  // namespace
