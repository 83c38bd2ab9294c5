#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <csignal>

#include "platform/DiskFiles.h"
#include "platform/WholeFile.h"
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

/// A fault of this kind that names this file, and behind it the reason, if there is one.
template <typename File>
auto Is(FaultKind kind, const File& file) {
    return testing::AllOf(testing::Property(&RuntimeFault::Kind, kind), testing::Property(&RuntimeFault::Detail, file));
}
auto CantWrite(const std::string& file, const char* why) { return Is(FaultKind::PathOrFileAccess, file + ": " + why); }

/// The rights of an ordinary user while it lasts: those who run tests may be root, who may do everything.
class OrdinaryUser {
  public:
    OrdinaryUser() { EXPECT_EQ(own_ == 0 ? seteuid(kNobody) : 0, 0); }
    ~OrdinaryUser() { EXPECT_EQ(seteuid(own_), 0); }

  private:
    static constexpr uid_t kNobody = 65534;
    const uid_t own_ = geteuid();
};

/// A folder with a writer at work.
class Writing : public testing::Test, public BotFiles {
  protected:
    DiskFiles disk;
    std::string folder = Path().toStdString(), path = folder + "/pets.ini";

    QStringList Names() const {
        return QDir(Path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System);
    }
    mode_t ModeOf(const char* name) const {
        struct stat status {};
        EXPECT_EQ(stat((folder + "/" + name).c_str(), &status), 0);
        return status.st_mode & 07777;
    }
};

TEST_F(Writing, IsDoneWholeOrNotAtAll) {
    const std::string bytes("a\0\r\n\xE9", 5), much(200000, 'x');
    EXPECT_TRUE(disk.Write(path, much));
    EXPECT_TRUE(disk.Write(path, bytes));
    { WholeFile(path).Append("what is given up leaves no trace"); }
    EXPECT_EQ(*disk.Read(path), bytes) << "nothing of the longer file is left";
    // Small and large ones, room for nothing and for all but the last byte.
    for (const auto& [room, size] : {std::pair{0, 1}, {2, 100}, {1000, 16383}, {1000, 200000}, {199999, 200000}}) {
        LimitFileSizes(static_cast<rlim_t>(room));
        const std::string wanted(static_cast<std::size_t>(size), 'y');
        EXPECT_THAT(disk.Write(path, wanted).Fault(), CantWrite(path, "File too large")) << room;
        EXPECT_THAT(disk.Write(path + "new", wanted).Fault(), CantWrite(path + "new", "File too large")) << room;
        LimitFileSizes(RLIM_INFINITY);
        EXPECT_EQ(*disk.Read(path), bytes) << room;
        EXPECT_EQ(Names(), QStringList("pets.ini")) << room;
    }
}

TEST_F(Writing, KeepsModesAndLinks) {
    EXPECT_TRUE(disk.Write(path, "new"));
    EXPECT_EQ(ModeOf("pets.ini"), 0600) << "for its owner alone";
    for (const mode_t mode : {0200U, 0660U, 0644U}) {
        chmod(path.c_str(), mode);
        EXPECT_TRUE(disk.Write(path, "more"));
        EXPECT_EQ(ModeOf("pets.ini"), mode);
    }
    ASSERT_TRUE(QDir(Path()).mkdir("far"));
    for (const auto& [link, target] : {std::pair{"near", "pets.ini"}, {"twice", "near"}, {"dangling", "far/new"}}) {
        ASSERT_TRUE(QFile::link(target, Path(link)));
        EXPECT_TRUE(disk.Write(folder + "/" + link, link));
        EXPECT_EQ(std::string_view(link) == "dangling" ? Read("far/new") : Read("pets.ini"), link);
        EXPECT_TRUE(QFileInfo(Path(link)).isSymLink()) << link;
    }
    const std::string ring = folder + "/ring";
    ASSERT_EQ(symlink("ring", ring.c_str()), 0);
    EXPECT_THAT(disk.Write(ring, "").Fault(), CantWrite(ring, "Too many levels of symbolic links"));
}

TEST_F(Writing, RefusesWhatMayNotBeReplacedAndSaysWhy) {
    Write("guarded", "old");
    Write("free", "old");
    ASSERT_TRUE(QDir(Path()).mkdir("closed"));
    Write("closed/inside", "old");
    ASSERT_EQ(mkfifo(Path("pipe").toUtf8().constData(), 0666), 0);
    // clang-format off
    for (const auto& [name, mode] : {std::pair{"", 0777}, {"free", 0666}, {"guarded", 0444}, {"closed", 0555},
                                     {"closed/inside", 0666}, {"pipe", 0666}}) {
        ASSERT_EQ(chmod(Path(name).toUtf8().constData(), static_cast<mode_t>(mode)), 0);
    }
    // clang-format on
    const QStringList before = Names();
    const std::string cut = folder + std::string("/free\0.ini", 10);
    const OrdinaryUser user;
    EXPECT_TRUE(disk.Write(folder + "/free", "new"));
    // clang-format off
    for (const auto& [name, why] : {
             std::pair{"guarded", "Permission denied"}, {"closed/inside", "Permission denied"}, {"closed/new", "Permission denied"},
             {"closed", "Is a directory"}, {"", "Is a directory"}, {"none/such", "No such file or directory"},
             {"free/such", "Not a directory"}, {"pipe", "It is no ordinary file"}}) {
        // clang-format on
        const std::string refused = folder + "/" + name;
        EXPECT_THAT(disk.Write(refused, "new").Fault(), CantWrite(refused, why));
    }
    EXPECT_THAT(disk.Write(cut, "new").Fault(), CantWrite(cut, "Invalid argument"));
    EXPECT_EQ(Read("closed/inside"), "old");
    EXPECT_EQ(Names(), before);
}

TEST_F(Writing, ClearsWhatAKilledProcessHasLeftAndNothingElse) {
    const QString left = ".tvorel-unfinished-0123456789abcdef";
    const QStringList others = {".tvorel-unfinished-0123456789abcde", ".tvorel-unfinished-0123456789abcdefg",
                                ".tvorel-unfinished-0123456789ABCDEF", "tvorel-unfinished-0123456789abcdef",
                                "pets.ini.Xy12Zw"};
    for (const QString& name : others + QStringList(left)) Write(name, "half");
    const QString link = ".tvorel-unfinished-00000000000000ff", sub = ".tvorel-unfinished-00000000000000fe";
    ASSERT_EQ(symlink("pets.ini", Path(link).toUtf8().constData()), 0);
    ASSERT_TRUE(QDir(Path()).mkdir(sub));
    WholeFile slow(path);
    EXPECT_FALSE(Names().contains(left)) << "with the first file in a folder";
    for (const QString& name : others + QStringList{link, sub})
        EXPECT_TRUE(Names().contains(name)) << name.toStdString();
    slow.Append("one ");
    Write(left, "half");
    ClearUnfinished(folder);
    EXPECT_FALSE(Names().contains(left));
    slow.Append("two");
    EXPECT_TRUE(slow.Commit());
    EXPECT_EQ(Read("pets.ini"), "one two") << "what is being written is no leftover";
    EXPECT_EQ(Names().size(), others.size() + 2 + 1);
    ClearUnfinished(folder + "/none");
}

TEST(DiskFiles, AreFoundWithoutRegardToCaseAndNameWhatTheyCantRead) {
    const BotFiles files;
    for (const char* name : {"Pets.INI", "twin.ini", "Twin.ini"}) files.Write(name, "");
    ASSERT_TRUE(QDir(files.Path()).mkdir("folder"));
    const DiskFiles disk;
    // clang-format off
    for (const auto& [wanted, found] : {std::pair{"pets.ini", "Pets.INI"}, {"twin.ini", "twin.ini"}, {"Twin.ini", "Twin.ini"},
                                        {"pets", ""}, {"FOLDER", ""}, {"", ""}, {"no/such", ""}}) {
        // clang-format on
        const std::string path = disk.Find(files.Path(wanted).toStdString()).value_or("");
        EXPECT_EQ(path, *found ? files.Path(found).toStdString() : "") << wanted;
    }
    const std::string folder = files.Path().toStdString(), none = folder + "/none", memory = "/proc/self/mem";
    EXPECT_THAT(disk.Read(none).Fault(), Is(FaultKind::FileNotFound, none));
    EXPECT_THAT(disk.Read(folder).Fault(), Is(FaultKind::PathOrFileAccess, folder));
    EXPECT_THAT(disk.Read(memory).Fault(), Is(FaultKind::PathOrFileAccess, memory)) << "opens, and fails then";
}

using testing::HasSubstr;

TEST(DataFolder, OpensOrdinaryFilesOfItsOwnAndNamesTheRest) {
    const BotFiles files;
    const QDir folder(files.Path());
    ASSERT_TRUE(folder.mkdir("data") && folder.mkdir("data/Folder.ini") && folder.mkdir("data/in"));
    const std::string data = files.Path("data").toStdString();
    files.Write("outside.ini", "secret");
    files.Write("data/pets.ini", "cat");
    files.Write("data/in/deep.ini", "deep");
    files.Write("data/large.ini", QByteArray(static_cast<int>(kDataFileLimit), 'x'));
    files.Write("data/larger.ini", QByteArray(static_cast<int>(kDataFileLimit) + 1, 'x'));
    ASSERT_EQ(::mkfifo((data + "/pipe.ini").c_str(), 0600), 0);
    // clang-format off
    for (const auto& [target, link] : {std::pair{"../outside.ini", "out.ini"}, {"/dev/zero", "zero.ini"},
                                       {"../none.ini", "nowhere.ini"}, {"in/deep.ini", "deep.ini"}}) {
        // clang-format on
        ASSERT_EQ(::symlink(target, (data + "/" + link).c_str()), 0);
    }
    DiskFiles disk;
    const auto open = [&](const std::string& name) { return disk.ReadData(disk.DataPath(data, name)); };
    EXPECT_EQ(*open("PETS.ini"), "cat");
    EXPECT_EQ(*open("deep.ini"), "deep") << "a link within the folder";
    EXPECT_EQ((*open("large.ini"))->size(), kDataFileLimit);
    EXPECT_EQ(*open("none.ini"), std::nullopt);
    EXPECT_EQ(disk.DataPath(data, std::string("a\0b\n\x7F.ini", 9)), data + "/a_b__.ini");
    // clang-format off
    for (const auto& [name, why] : {std::pair{"out.ini", "leads out of its folder"}, {"zero.ini", "leads out of its folder"},
                                    {"nowhere.ini", "leads nowhere"}, {"folder.ini", "is a folder"},
                                    {"pipe.ini", "a device or a pipe"}, {"larger.ini", "larger than 16 MiB"}}) {
        // clang-format on
        EXPECT_THAT(open(name).Fault(), Is(FaultKind::PathOrFileAccess, HasSubstr(why))) << name;
    }
}

TEST(DataFolder, IsLockedForOneAtATime) {
    const BotFiles files;
    const std::string folder = files.Path().toStdString();
    const auto lock = [&] { return modDataFolder::LockFolder(folder, std::chrono::milliseconds(0)); };
    auto first = ValueOrFault(lock());
    EXPECT_THAT(lock().Fault(),
                Is(FaultKind::PathOrFileAccess, folder + ": another program keeps its data files locked"));
    first.reset();
    EXPECT_TRUE(lock());
}

}  // namespace
