// A script, walked by the dispatcher and by the slow walker of the tests. Both must do the same, event by event and
// fault by fault.
#include <cstdint>
#include <cstdlib>
#include <iostream>

#include "engine/Judge.h"
#include "engine/Script.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Case played{ScriptTextFromFile(std::string(kScriptHeader) + "\r\n" + std::string(data, data + size)), "", {}};
    played.steps = {"let [n]=7",           "let (1:125=(1:27",  // names without brackets stand for any text
                    "[map]=Acropolis",     "maps=Acropolis",   "[message]=hello there", "player.name=Ann",
                    "[look.desc]=a furre", "dice=3 5",         "dice.amount=2",         "dice.total=8"};
    for (int event = 0; event < 52; ++event) played.steps.push_back("event " + std::to_string(event));
    Tally tally;
    const std::string disagreement = Disagreement(played, tally);
    if (disagreement.empty()) return 0;
    std::cerr << disagreement;
    std::abort();
}
