// Lets the slow walker of the tests judge the dispatcher on as many cases as one likes; see scripts/fuzz. Arguments:
// the number of cases and the seed of the first. Leaves with 1 at a case on which they disagree, which it prints.
#include <cstdlib>
#include <iostream>

#include "engine/Judge.h"

int main(int count, char** arguments) {
    if (count != 3) return EXIT_FAILURE;
    const unsigned long cases = std::strtoul(arguments[1], nullptr, 10);
    const auto first = static_cast<unsigned>(std::strtoul(arguments[2], nullptr, 10));
    Tally tally;
    for (unsigned i = 0; i < cases; ++i) {
        const std::string disagreement = JudgeSeed(first + i, tally);
        if (disagreement.empty()) continue;
        std::cout << disagreement;
        return EXIT_FAILURE;
    }
    std::cout << cases << " cases, " << tally.told << " of which told something and " << tally.faults << " faulted\n";
    return EXIT_SUCCESS;
}
