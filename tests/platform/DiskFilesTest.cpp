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

/// A fault of this kind that names this file.
auto Fails(FaultKind kind, const std::string& file) {
    return testing::Throws<RuntimeFault>(
        testing::AllOf(testing::Property(&RuntimeFault::Kind, kind), testing::Property(&RuntimeFault::Detail, file)));
}

TEST(DiskFiles, AreWrittenWholeOrNotAtAllAndNamedInFaults) {
    const BotFiles files;
    DiskFiles disk;
    const std::string folder = files.Path().toStdString(), path = folder + "/pets.ini", memory = "/proc/self/mem";
    const std::string bytes("a\0\r\n\xE9", 5), much(200000, 'x');
    disk.Write(path, much);
    disk.Write(path, bytes);
    EXPECT_EQ(disk.Read(path), bytes) << "nothing of the longer file is left";
    LimitFileSizes(1000);
    EXPECT_THAT([&] { disk.Write(path, much); }, Fails(FaultKind::PathOrFileAccess, path));
    LimitFileSizes(RLIM_INFINITY);
    EXPECT_EQ(disk.Read(path), bytes);
    EXPECT_EQ(QDir(files.Path()).entryList(QDir::Files | QDir::Hidden), QStringList("pets.ini"));
    EXPECT_THAT([&] { disk.Read(path + "none"); }, Fails(FaultKind::FileNotFound, path + "none"));
    EXPECT_THAT([&] { disk.Read(folder); }, Fails(FaultKind::PathOrFileAccess, folder));
    EXPECT_THAT([&] { disk.Read(memory); }, Fails(FaultKind::PathOrFileAccess, memory)) << "opens, and fails then";
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
