#include <gmock/gmock.h>
#include <sys/resource.h>

#include <QDir>
#include <csignal>

#include "platform/DiskFiles.h"
#include "support/BotFiles.h"
#include "text/Fault.h"

namespace {

std::string FaultOf(const std::function<void()>& work) {
    try {
        work();
    } catch (const RuntimeFault& fault) {
        return std::string(fault.Name()) + ": " + fault.Detail();
    }
    return "";
}

/// As on a full disk: no file grows beyond this size.
void LimitFileSizes(rlim_t size) {
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = std::min(size, limit.rlim_max);
    setrlimit(RLIMIT_FSIZE, &limit);
}

TEST(DiskFiles, AreWrittenWholeOrNotAtAll) {
    const BotFiles files;
    DiskFiles disk;
    const std::string path = files.Path("pets.ini").toStdString(), bytes("a\0\r\n\xE9", 5), much(200000, 'x');
    disk.Write(path, much);
    disk.Write(path, bytes);
    EXPECT_EQ(disk.Read(path), bytes) << "nothing of the longer file is left";
    LimitFileSizes(1000);
    EXPECT_EQ(FaultOf([&] { disk.Write(path, much); }), "Path or file access error: " + path);
    LimitFileSizes(RLIM_INFINITY);
    EXPECT_EQ(disk.Read(path), bytes);
    EXPECT_EQ(QDir(files.Path()).entryList(QDir::Files | QDir::Hidden), QStringList("pets.ini"));
}

TEST(DiskFiles, AreNamedWhenTheyCantBeReadOrWritten) {
    const BotFiles files;
    DiskFiles disk;
    const std::string folder = files.Path().toStdString(), opensAndThenFails = "/proc/self/mem";
    EXPECT_EQ(FaultOf([&] { disk.Read(folder + "/none"); }), "File not found: " + folder + "/none");
    EXPECT_EQ(FaultOf([&] { disk.Read(folder); }), "Path or file access error: " + folder);
    EXPECT_EQ(FaultOf([&] { disk.Read(opensAndThenFails); }), "Path or file access error: " + opensAndThenFails);
}

TEST(DiskFiles, AreFoundWithoutRegardToCase) {
    const BotFiles files;
    for (const char* name : {"Pets.INI", "twin.ini", "Twin.ini"}) files.Write(name, "");
    ASSERT_TRUE(QDir(files.Path()).mkdir("folder"));
    const struct {
        const char *wanted, *found;
    } cases[] = {{"pets.ini", "Pets.INI"}, {"twin.ini", "twin.ini"}, {"Twin.ini", "Twin.ini"},
                 {"pets", nullptr},        {"FOLDER", nullptr},      {"", nullptr},
                 {"no/such", nullptr}};
    for (const auto& c : cases) {
        const auto found = DiskFiles().Find(files.Path(c.wanted).toStdString());
        EXPECT_EQ(found, c.found ? std::optional(files.Path(c.found).toStdString()) : std::nullopt) << c.wanted;
    }
}

}  // namespace
