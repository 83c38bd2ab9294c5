#include "FaultBench.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <csignal>
#include <fstream>
#include <iterator>
#include <sstream>

namespace fs = std::filesystem;

namespace {

constexpr unsigned kMostSeconds = 60;  // for one process; what takes longer hangs
constexpr char kScript[] =
    "VSPK 01.00 Vorel\r\n(0:0) loaded,\r\n (5:76) add {new} to {words} in {book}.\r\n"
    "*Endtriggers* 9999 *Endtriggers*\r\n";

void Put(const fs::path& file, const std::string& content) {
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << content;
}

std::string Get(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

std::vector<char*> Pointers(const std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    for (const std::string& text : texts) pointers.push_back(const_cast<char*>(text.c_str()));
    pointers.push_back(nullptr);
    return pointers;
}

/// Behind a fork in a process with threads: only what is allowed there.
[[noreturn]] void Become(char* const* command, char* const* environment, const char* output) {
    const int out = open(output, O_WRONLY | O_CREAT | O_TRUNC, 0600), in = open("/dev/null", O_RDONLY);
    if (dup2(in, STDIN_FILENO) < 0 || dup2(out, STDOUT_FILENO) < 0 || dup2(out, STDERR_FILENO) < 0) _exit(127);
    alarm(kMostSeconds);
    execve(command[0], command, environment);
    _exit(127);
}

}  // namespace

Bench::Bench(fs::path folder, std::string notes, const Kind& kind, bool isOld)
    : folder_(std::move(folder)),
      file_(folder_ / (isOld ? kind.file : kind.newFile)),
      notes_(std::move(notes)),
      kind_(kind),
      isOld_(isOld) {}

Bench::~Bench() {
    std::error_code error;
    fs::remove_all(folder_, error);
    fs::remove(notes_ + ".out", error);
    fs::remove(notes_ + ".calls", error);
}

void Bench::Lay() const {
    fs::remove_all(folder_);
    for (const char* const part : {"program/tvorel.own", "bot", "client", "out", "data", "teller"})
        fs::create_directories(folder_ / part);
    fs::permissions(folder_, fs::perms::owner_all);
    Put(folder_ / "bot/bot.ini", "Name=bot\nPassword=none\nDesc=\nColors=cccccccccc\nSpec=1\n");
    Put(folder_ / "bot/bot.vs", "VSPK 01.00 Vorel\r\n*Endtriggers* 9999 *Endtriggers*\r\n");
    Put(folder_ / "bot/bot.tvm", "[General]\r\nFurcadiaCharacter=bot.ini\r\nOwners=Ann\r\nScript=bot.vs\r\n");
    Put(folder_ / "teller/bot.tvm", "[General]\r\nScript=bot.vs\r\n");
    Put(folder_ / "teller/bot.vs", kScript);
    Put(folder_ / "teller/session.txt", "");
    fs::create_symlink("/bin/true", folder_ / "client/client");
    if (std::string(kind_.name) != "command-list") Put(folder_ / "program/vslist.vs", "(0:0) loaded,\r\n");
    if (!isOld_) return;
    Put(file_, kind_.oldContent);
    fs::permissions(file_, fs::perms(0640));
}

std::vector<std::string> Bench::Command(bool starts) const {
    const std::string profile = folder_ / "teller/bot.tvm", data = folder_ / "data";
    switch (kind_.by) {
        case Kind::By::Try:
            return {FAULTS_VOREL, "try", profile, folder_ / "teller/session.txt", "--folder", data};
        case Kind::By::Run:
            return {FAULTS_VOREL, "run", profile, "--folder", data};
        case Kind::By::Windows:
            break;
    }
    if (starts && kind_.clearedByStart) return {FAULTS_SAVES, "start", folder_};
    return {FAULTS_SAVES, kind_.name, folder_, file_};
}

Outcome Bench::Run(const std::vector<std::string>& command, const std::vector<std::string>& settings) const {
    const std::string output = notes_ + ".out";
    std::vector<std::string> environment = {"QT_QPA_PLATFORM=offscreen", "HOME=" + folder_.string(), "LC_ALL=C.UTF-8",
                                            "XDG_RUNTIME_DIR=" + folder_.string()};
    environment.insert(environment.end(), settings.begin(), settings.end());
    const auto argv = Pointers(command), envp = Pointers(environment);
    const pid_t process = fork();
    if (process == 0) Become(argv.data(), envp.data(), output.c_str());
    int status = 0;
    waitpid(process, &status, 0);
    return {WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL, WIFEXITED(status) ? WEXITSTATUS(status) : -1,
            Get(output)};
}

Outcome Bench::Save(const std::string& plan) const {
    std::vector<std::string> settings = {"LD_PRELOAD=" FAULTS_INJECT,
                                         "TVOREL_FAULT_FOLDER=" + file_.parent_path().string(),
                                         "TVOREL_FAULT_LIST=" + notes_ + ".calls", "TVOREL_FAULT_PLAN=" + plan};
    if (kind_.by != Kind::By::Windows) settings.emplace_back("TVOREL_FAULT_ARMED=1");
    return Run(Command(false), settings);
}

std::vector<std::string> Bench::Calls() const {
    Lay();
    fs::remove(notes_ + ".calls");
    Save();
    std::istringstream list(Get(notes_ + ".calls"));
    std::vector<std::string> calls;
    for (std::string call; std::getline(list, call);) calls.push_back(call);
    return calls;
}

Outcome Bench::StartAgain() const { return Run(Command(true), {}); }

bool Bench::IsSuccess(const Outcome& outcome) const {
    constexpr int kConfigExit = 78;  // of `vorel run`, for a bot that can't connect: here it has no owner
    return outcome.status == (kind_.by == Kind::By::Run ? kConfigExit : 0);
}

std::string Bench::Content() const {
    if (!fs::exists(file_)) return "absent";
    std::string content = Get(file_);
    const auto isDigit = [](unsigned char c) { return std::isdigit(c) != 0; };
    if (kind_.hasChanceNumbers) std::replace_if(content.begin(), content.end(), isDigit, '0');
    std::ostringstream mode;
    mode << std::oct << static_cast<int>(fs::status(file_).permissions()) << ' ';
    return mode.str() + content;
}

std::vector<std::string> Bench::Leftovers() const {
    constexpr std::array<const char*, 14> kExpected = {"bot.ini",
                                                       "bot.vs",
                                                       "bot.tvm",
                                                       "client",
                                                       "vslist.vs",
                                                       "tvorel.own",
                                                       "tvorel.cfg",
                                                       "options.json",
                                                       "unsaved.lock",
                                                       "unsaved-script.bak",
                                                       "unsaved-profile.bak",
                                                       "console.txt",
                                                       "update.zip",
                                                       "book.ini"};
    std::vector<std::string> leftovers;
    for (const auto& entry : fs::directory_iterator(file_.parent_path())) {
        const std::string name = entry.path().filename();
        const bool expected = std::find(kExpected.begin(), kExpected.end(), name) != kExpected.end();
        if (!expected && entry.path() != file_) leftovers.push_back(name);
    }
    return leftovers;
}
