#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <set>

#include "platform/DiskFiles.h"
#include "profile/ProfileFile.h"
#include "rehearsal/Rehearsal.h"
#include "support/Written.h"

// Plays every session NAME.txt beside this file to the bot NAME.tvm, in a program folder of its own with copies of what
// lies in NAME/, the clock and the random draw fixed. Everything the bot did, and the fault that ended it, must be
// exactly NAME.out, down to the data files that it leaves behind, one a line, with "/" for CR LF.

namespace {

namespace fs = std::filesystem;

const fs::path kSessions = fs::path(TVOREL_SOURCE_DIR) / "tests" / "sessions";

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
        const auto played = rehearsal.Play(
            session, [this] { EXPECT_TRUE(LoadProfile(rehearsal.bot, PathOf(".tvm")).missingScript.empty()); });
        if (!played) told.push_back("fault " + std::string(played.Fault().Name()));
    }

    void TellFiles() {
        const std::set<fs::path> files(fs::directory_iterator(folder.path), fs::directory_iterator());
        for (const fs::path& file : files) {
            told.push_back("file " + file.filename().string() + ": " + ReplaceAll(*disk.Read(file), "\r\n", "/"));
        }
    }
};

TEST_P(PlayedSession, DoesWhatIsWritten) {
    const WrittenSession session = ParseSession(*disk.Read(PathOf(".txt")));
    ASSERT_EQ(session.error, std::nullopt);
    Play(session);
    TellFiles();
    EXPECT_EQ(Join(told, "\n") + "\n", *disk.Read(PathOf(".out")));
}

INSTANTIATE_TEST_SUITE_P(Sessions, PlayedSession, testing::ValuesIn(NamesIn("tests/sessions", ".txt")),
                         [](const auto& session) { return ReplaceAll(session.param, "-", "_"); });

}  // namespace
