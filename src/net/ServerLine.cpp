#include "net/ServerLine.h"

#include "text/Fault.h"

std::string_view ServerLine::Text(std::size_t position, std::ptrdiff_t length) const {
    if (length < 0 || position - 1 + static_cast<std::size_t>(length) > line_.size()) {
        throw RuntimeFault(FaultKind::InvalidProcedureCall);
    }
    return line_.substr(position - 1, static_cast<std::size_t>(length));
}

Appearance ServerLine::LooksAt(std::size_t position) const {
    const std::size_t genderAt = position + kColorsLength;
    return {std::string(Text(position, kColorsLength)), Char(genderAt), Char(genderAt + 1), Char(genderAt + 2)};
}

std::string_view ServerLine::RestFrom(std::size_t position) const {
    return Text(position, static_cast<std::ptrdiff_t>(line_.size()) - static_cast<std::ptrdiff_t>(position - 1));
}

std::string_view ServerLine::WordAt(std::size_t position) const {
    const std::string_view rest = RestFrom(position);
    return rest.substr(0, rest.find(' '));
}

std::string_view ServerLine::BehindWordAt(std::size_t position) const {
    const std::string_view rest = RestFrom(position);
    const std::size_t blank = rest.find(' ');
    return blank == rest.npos ? std::string_view() : rest.substr(blank + 1);
}

std::string_view CutBetween(std::string_view text, std::size_t begin, std::size_t end) {
    if (begin == text.npos || end == text.npos || end < begin || end > text.size()) {
        throw RuntimeFault(FaultKind::InvalidProcedureCall);
    }
    return text.substr(begin, end - begin);
}

std::string_view WithoutLast(std::string_view text, std::size_t count) {
    if (text.size() < count) throw RuntimeFault(FaultKind::InvalidProcedureCall);
    return text.substr(0, text.size() - count);
}
