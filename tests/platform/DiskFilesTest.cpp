#include <gmock/gmock.h>
#include <sys/resource.h>

#include <QDir>
#include <csignal>

#include "platform/DiskFiles.h"
#include "support/BotFiles.h"
#include "text/Fault.h"

namespace {

/// As on a full disk: no file grows beyond this size.
void LimitFileSizes(rlim_t size) {
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = std::min(size, limit.rlim_max);
    setrlimit(RLIMIT_FSIZE, &limit);
}

TEST(DiskFiles, AreWrittenWholeOrNotAtAllAndNamedInFaults) {
    const BotFiles files;
    DiskFiles disk;
    const std::string path = files.Path("pets.ini").toStdString(), bytes("a\0\r\n\xE9", 5), much(200000, 'x');
    const auto faultOf = [&](auto work, const std::string& file) {
        try {
            work(file);
        } catch (const RuntimeFault& fault) {
            return std::string(fault.Name()) + (fault.Detail() == file ? "" : " of another file");
        }
        return std::string("none");
    };
    const auto write = [&](const std::string& file) { disk.Write(file, much); };
    const auto read = [&](const std::string& file) { disk.Read(file); };
    EXPECT_EQ(faultOf(write, path), "none");
    disk.Write(path, bytes);
    EXPECT_EQ(disk.Read(path), bytes) << "nothing of the longer file is left";
    LimitFileSizes(1000);
    EXPECT_EQ(faultOf(write, path), "Path or file access error");
    LimitFileSizes(RLIM_INFINITY);
    EXPECT_EQ(disk.Read(path), bytes);
    EXPECT_EQ(QDir(files.Path()).entryList(QDir::Files | QDir::Hidden), QStringList("pets.ini"));
    EXPECT_EQ(faultOf(read, path + "none"), "File not found");
    EXPECT_EQ(faultOf(read, files.Path().toStdString()), "Path or file access error");
    EXPECT_EQ(faultOf(read, "/proc/self/mem"), "Path or file access error") << "which opens, and fails then";
}

TEST(DiskFiles, AreFoundWithoutRegardToCase) {
    const BotFiles files;
    for (const char* name : {"Pets.INI", "twin.ini", "Twin.ini"}) files.Write(name, "");
    ASSERT_TRUE(QDir(files.Path()).mkdir("folder"));
    for (const auto& [wanted, found] : {std::pair{"pets.ini", "Pets.INI"},
                                        {"twin.ini", "twin.ini"},
                                        {"Twin.ini", "Twin.ini"},
                                        {"pets", ""},
                                        {"FOLDER", ""},
                                        {"", ""},
                                        {"no/such", ""}}) {
        const std::string path = DiskFiles().Find(files.Path(wanted).toStdString()).value_or("");
        EXPECT_EQ(path, *found ? files.Path(found).toStdString() : "") << wanted;
    }
}

}  // namespace
