// A file, read as each kind of file that there is. What is written must be read back the same.
#include <cstdlib>

#include "engine/DataFile.h"
#include "engine/Dispatcher.h"
#include "fuzz/FuzzBot.h"
#include "net/CharacterFile.h"
#include "profile/ProfileFile.h"
#include "profile/Settings.h"

namespace {

void Promise(bool holds) {
    if (!holds) std::abort();
}

void ReadProfile(const std::string& bytes) {
    FuzzBot bot;
    bot.files.contents["bot.tvm"] = bytes;
    bot.files.contents["bot.vs"] = "VSPK 01.00 Vorel\r\n(0:0) loaded,\r\n (5:2) note {[vorel.owners]}.\r\n";
    bot.Handle([&] { LoadProfile(bot.bot, "bot.tvm"); });
    bot.Handle([&] { ValueOrFault(SaveProfile(bot.bot, "saved.tvm")); });
    bot.Handle([&] { OpenProfile(bot.bot, "bot.tvm"); });
    bot.Handle([&] { ValueOrFault(RestoreProfile(bot.bot, "bot.tvm", bytes)); });
}

void ReadSettings(const std::string& bytes) {
    FuzzBot bot;
    bot.files.contents["folder/" + std::string(kSettingsFile)] = bytes;
    bot.Handle([&] { ValueOrFault(SaveSettings(bot.files, "folder", LoadSettings(bot.files, "folder"))); });
}

void ReadCharacterFile(const std::string& bytes) {
    FuzzBot bot;
    bot.files.contents["greeter.ini"] = bytes;
    bot.Handle([&] { bot.LogIn(); });
}

void ReadData(const std::string& bytes) {
    DataFile file = DataFile::Parse(bytes);
    const std::string written = file.Bytes();
    Promise(DataFile::Parse(written).Bytes() == written);
    const std::string name = bytes.substr(0, bytes.find('\n'));
    DataFileHolds(bytes, name, "tea");
    file.SetValue(name, "key", "value");
    Promise(file.Value(name, "key") == "value");
    file.AddLine(name, "tea");
    Promise(file.RemoveLines(name, "tea") && file.RemoveEntry(name, "key") && file.RemoveSection(name));
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes = InputText(data, size);
    ReadProfile(bytes);
    ReadSettings(bytes);
    ReadCharacterFile(bytes);
    ReadData(bytes);
    return 0;
}
