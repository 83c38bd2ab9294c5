#include <fstream>
#include <iostream>
#include <string>

#include "language/Commands.h"
#include "language/Reference.h"

namespace {

bool Write(const std::string& path, const std::string& bytes) {
    std::ofstream file(path, std::ios::binary);
    file << bytes;
    file.close();
    if (!file) std::cerr << path << " can't be written.\n";
    return static_cast<bool>(file);
}

}  // namespace

/// Writes the command list and the language reference from the tables of the language.
/// The one argument is the top folder of the checkout.
int main(int count, char** arguments) {
    if (count != 2) {
        std::cerr << "usage: tvorel_language FOLDER\n";
        return 2;
    }
    const std::string folder = arguments[1];
    const bool list = Write(folder + "/share/vslist.vs", CommandListFile());
    const bool reference = Write(folder + "/docs/language.md", LanguageReference());
    return list && reference ? 0 : 1;
}
