#include "app/whole_values.h"

#include <algorithm>
#include <cerrno>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <sstream>
#include <string_view>

namespace quen_3_1::app_detail {

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

bool isHexDigit(char c) { return isDigit(c) || (c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f'); }

// What a decimal number is made of.
bool isNumberCharacter(char c) { return isDigit(c) || c == '.' || c == 'e' || c == 'E' || c == '+' || c == '-'; }

// Not empty, and every character passes: a loop, cheaper than a search for a set.
template <class Test>
bool allOf(std::string_view text, Test test) {
    return !text.empty() && std::all_of(text.begin(), text.end(), test);
}

// Digits with an optional leading '-' (signed types only); no blanks, no '+'.
bool isDecimal(std::string_view text, bool sign) {
    std::size_t const start = sign && !text.empty() && text[0] == '-' ? 1 : 0;
    return allOf(text.substr(start), isDigit);
}

// The digits of `digits` (all of them digits) as a number; false when it does not fit.
bool readDigits(std::string_view digits, unsigned long long& out) {
    unsigned long long const most = std::numeric_limits<unsigned long long>::max();
    unsigned long long value = 0;
    for (char const c : digits) {
        auto const digit = static_cast<unsigned>(c - '0');
        if (value > (most - digit) / 10) {
            return false;
        }
        value = value * 10 + digit;
    }
    out = value;
    return true;
}

// Read here rather than by strtoll: the text is known to be digits, so only the bounds need care.
bool readSigned(std::string_view text, long long& out) {
    if (!isDecimal(text, true)) {
        return false;
    }
    bool const negative = text[0] == '-';
    unsigned long long magnitude = 0;
    auto const largest = static_cast<unsigned long long>(std::numeric_limits<long long>::max());
    if (!readDigits(text.substr(negative ? 1 : 0), magnitude) || magnitude > largest + (negative ? 1 : 0)) {
        return false;
    }
    // Negated in unsigned arithmetic: the most negative value has no positive counterpart.
    out = negative ? static_cast<long long>(0 - magnitude) : static_cast<long long>(magnitude);
    return true;
}

// Powers of ten that a double holds exactly.
double const kExactPowers[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                               1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
int const kMostExactPower = 22;
// Fewer significant digits than this make a whole number that a double holds exactly.
int const kExactDigits = 16;

// strtod reads the decimal point of the locale; the short path only knows '.'.
bool pointIsDot() {
    char const* const point = std::localeconv()->decimal_point;
    return point[0] == '.' && point[1] == '\0';
}

// A decimal text of few digits, read without strtod: its digits as a whole number and a power
// of ten, both exact in a double, so that one division rounds once, as strtod does. False (and
// nothing set) for every other text, which strtod then reads.
bool readShortDecimal(std::string_view text, double& out) {
    bool const hasSign = !text.empty() && (text[0] == '-' || text[0] == '+');
    bool const negative = hasSign && text[0] == '-';
    std::size_t at = hasSign ? 1 : 0;
    unsigned long long digits = 0;
    int significant = 0;
    int scale = 0;
    bool any = false;
    bool point = false;
    for (; at < text.size() && (isDigit(text[at]) || (text[at] == '.' && !point)); ++at) {
        if (text[at] == '.') {
            point = true;
            continue;
        }
        any = true;
        significant += digits != 0 || text[at] != '0' ? 1 : 0;
        digits = digits * 10 + static_cast<unsigned>(text[at] - '0');
        scale -= point ? 1 : 0;
        if (significant >= kExactDigits) {
            return false;
        }
    }
    if (!any || at != text.size() || scale < -kMostExactPower || (point && !pointIsDot())) {
        return false;
    }
    double const value = static_cast<double>(digits) / kExactPowers[-scale];
    out = negative ? -value : value;
    return true;
}

// `text` is hexadecimal digits only.
bool readUnsigned(std::string_view text, int base, unsigned long long& out) {
    std::string const terminated(text);
    errno = 0;
    out = std::strtoull(terminated.c_str(), nullptr, base);
    return errno == 0;
}

template <class T>
std::string streamed(T value) {
    std::ostringstream stream;
    stream << value;
    return stream.str();
}

}  // namespace

bool readWhole(std::string_view text, bool& out) {
    if (text.size() != 1 || (text[0] != '1' && text[0] != '0')) {
        return false;
    }
    out = text[0] == '1';
    return true;
}

bool readWhole(std::string_view text, int& out) {
    long long wide = 0;
    if (!readSigned(text, wide) || wide < std::numeric_limits<int>::min() || wide > std::numeric_limits<int>::max()) {
        return false;
    }
    out = static_cast<int>(wide);
    return true;
}

bool readWhole(std::string_view text, unsigned& out) {
    unsigned long long wide = 0;
    if (!isDecimal(text, false) || !readDigits(text, wide) || wide > std::numeric_limits<unsigned>::max()) {
        return false;
    }
    out = static_cast<unsigned>(wide);
    return true;
}

bool readWhole(std::string_view text, long long& out) { return readSigned(text, out); }

bool readWhole(std::string_view text, unsigned long long& out) {
    if (text.size() > 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X') && allOf(text.substr(2), isHexDigit)) {
        return readUnsigned(text.substr(2), 16, out);
    }
    if (text.size() > 1 && (text.back() == 'h' || text.back() == 'H') &&
        allOf(text.substr(0, text.size() - 1), isHexDigit)) {
        return readUnsigned(text.substr(0, text.size() - 1), 16, out);
    }
    return isDecimal(text, false) && readDigits(text, out);
}

bool readWhole(std::string_view text, double& out) {
    // What the short path takes is made of number characters only.
    if (readShortDecimal(text, out)) {
        return true;
    }
    // No blanks, hexadecimal, "inf" or "nan": only what a decimal number is made of.
    if (!allOf(text, isNumberCharacter)) {
        return false;
    }
    std::string const terminated(text);
    char* end = nullptr;
    errno = 0;
    double const value = std::strtod(terminated.c_str(), &end);
    if (errno != 0 || end != terminated.c_str() + terminated.size() || !std::isfinite(value)) {
        return false;
    }
    out = value;
    return true;
}

std::string wholeKind(bool const& /*tag*/) { return "1 or 0"; }
std::string wholeKind(int const& /*tag*/) { return "a whole integer"; }
std::string wholeKind(unsigned const& /*tag*/) { return "a whole unsigned integer"; }
std::string wholeKind(long long const& /*tag*/) { return "a whole 64 bit integer"; }
std::string wholeKind(unsigned long long const& /*tag*/) {
    return "a whole unsigned 64 bit integer (decimal, 0x... or ...h)";
}
std::string wholeKind(double const& /*tag*/) { return "a finite decimal number"; }

std::string valueText(bool value) { return value ? "1" : "0"; }
std::string valueText(int value) { return std::to_string(value); }
std::string valueText(unsigned value) { return std::to_string(value); }
std::string valueText(long long value) { return std::to_string(value); }
std::string valueText(unsigned long long value) { return std::to_string(value); }
std::string valueText(double value) { return streamed(value); }
std::string valueText(std::string const& value) { return value; }

}  // namespace quen_3_1::app_detail
