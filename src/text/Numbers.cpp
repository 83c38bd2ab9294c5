#include "text/Numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>

namespace {

constexpr int kSignificantDigits = 15;  // so many a double holds for certain, whatever the number

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// The length of the number at the start of text: a sign, digits and at most one point.
std::size_t NumberLength(std::string_view text) {
    std::size_t length = !text.empty() && (text[0] == '-' || text[0] == '+') ? 1 : 0;
    bool point = false;
    for (; length < text.size() && (IsDigit(text[length]) || (text[length] == '.' && !point)); ++length) {
        point = point || text[length] == '.';
    }
    return length;
}

Outcome<std::int16_t> Narrowed(int number) {
    if (!Fits16(number)) return RuntimeFault(FaultKind::Overflow);
    return static_cast<std::int16_t>(number);
}

Outcome<std::int16_t> Rounded(double number) {
    // Everything past this cannot round into the range, and would not fit the int below.
    if (!(std::fabs(number) < 40000.0)) return RuntimeFault(FaultKind::Overflow);
    const double floor = std::floor(number);
    const double rest = number - floor;
    const int whole = static_cast<int>(floor);
    const bool up = rest > 0.5 || (rest == 0.5 && whole % 2 != 0);
    return Narrowed(up ? whole + 1 : whole);
}

}  // namespace

std::int16_t RoundTo16(double number) { return ValueOrFault(Rounded(number)); }

Outcome<std::int16_t> ReadNumber(std::string_view text) {
    const bool negative = !text.empty() && text[0] == '-';
    const std::string_view digits = negative ? text.substr(1) : text;
    if (digits.empty() || digits.find_first_not_of("0123456789") != std::string_view::npos) {
        return RuntimeFault(FaultKind::TypeMismatch);
    }
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc{}) return RuntimeFault(FaultKind::Overflow);
    return Narrowed(number);
}

std::int16_t NumberOrFault(std::string_view text) { return ValueOrFault(ReadNumber(text)); }

double LeadingNumber(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    text = text.substr(0, NumberLength(text));
    if (!text.empty() && text[0] == '+') text.remove_prefix(1);
    double number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
    if (error == std::errc::result_out_of_range) {
        // Both too large and too small end here; a number with a digit other than 0 before its point is too large.
        const std::string_view whole = text.substr(0, text.find('.'));
        if (whole.find_first_of("123456789") == std::string_view::npos) return 0;
        return text[0] == '-' ? -HUGE_VAL : HUGE_VAL;
    }
    return number == 0 ? 0 : number;  // no "-0"
}

Outcome<std::int16_t> ReadLeadingNumber(std::string_view text) { return Rounded(LeadingNumber(text)); }

std::int16_t LeadingNumberOrZero(std::string_view text) { return ValueOrFault(ReadLeadingNumber(text)); }

std::string FormatNumber(double number) {
    std::array<char, 40> scientific{};  // "d.dddddddddddddde-ddd", whatever the user's locale has for a point
    std::to_chars(scientific.data(), scientific.data() + scientific.size() - 1, std::fabs(number),
                  std::chars_format::scientific, kSignificantDigits - 1);
    std::string digits(1, scientific[0]);
    digits.append(scientific.data() + 2, kSignificantDigits - 1);
    const int exponent = std::atoi(scientific.data() + 2 + kSignificantDigits);
    digits.erase(digits.find_last_not_of('0') + 1);
    if (digits.empty()) return "0";

    // The point stands behind exponent + 1 digits: zeros fill up what is missing on either side.
    const auto point = static_cast<std::size_t>(std::max(exponent + 1, 0));
    if (exponent < 0) digits.insert(0, static_cast<std::size_t>(-exponent - 1), '0');
    if (digits.size() < point) digits.append(point - digits.size(), '0');
    std::string text = point == 0 ? "0" : digits.substr(0, point);
    if (digits.size() > point) text += "." + digits.substr(point);
    return number < 0 ? "-" + text : text;
}
