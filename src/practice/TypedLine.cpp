#include "practice/TypedLine.h"

std::string CommandOfTypedLine(std::string_view typed) {
    if (typed.empty()) return {};
    std::string rest(typed.substr(1));
    switch (typed.front()) {
        case '-':
        case ':':
            return std::string(typed);
        case '`':
            return rest;
        case '/':
            return "wh " + rest;
        default:
            return "\"" + std::string(typed);
    }
}
