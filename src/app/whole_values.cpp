#include "app/whole_values.h"

#include <algorithm>
#include <cerrno>
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
bool isDecimal(std::string const& text, bool sign) {
    std::size_t const start = sign && !text.empty() && text[0] == '-' ? 1 : 0;
    return allOf(std::string_view(text).substr(start), isDigit);
}

bool readSigned(std::string const& text, long long& out) {
    if (!isDecimal(text, true)) {
        return false;
    }
    errno = 0;
    out = std::strtoll(text.c_str(), nullptr, 10);
    return errno == 0;
}

bool readUnsigned(std::string const& text, int base, unsigned long long& out) {
    errno = 0;
    out = std::strtoull(text.c_str(), nullptr, base);
    return errno == 0;
}

template <class T>
std::string streamed(T value) {
    std::ostringstream stream;
    stream << value;
    return stream.str();
}

}  // namespace

bool readWhole(std::string const& text, bool& out) {
    if (text != "1" && text != "0") {
        return false;
    }
    out = text == "1";
    return true;
}

bool readWhole(std::string const& text, int& out) {
    long long wide = 0;
    if (!readSigned(text, wide) || wide < std::numeric_limits<int>::min() || wide > std::numeric_limits<int>::max()) {
        return false;
    }
    out = static_cast<int>(wide);
    return true;
}

bool readWhole(std::string const& text, unsigned& out) {
    unsigned long long wide = 0;
    if (!isDecimal(text, false) || !readUnsigned(text, 10, wide) || wide > std::numeric_limits<unsigned>::max()) {
        return false;
    }
    out = static_cast<unsigned>(wide);
    return true;
}

bool readWhole(std::string const& text, long long& out) { return readSigned(text, out); }

bool readWhole(std::string const& text, unsigned long long& out) {
    std::string_view const view = text;
    if (text.size() > 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X') && allOf(view.substr(2), isHexDigit)) {
        return readUnsigned(text.substr(2), 16, out);
    }
    if (text.size() > 1 && (text.back() == 'h' || text.back() == 'H') &&
        allOf(view.substr(0, text.size() - 1), isHexDigit)) {
        return readUnsigned(text.substr(0, text.size() - 1), 16, out);
    }
    return isDecimal(text, false) && readUnsigned(text, 10, out);
}

bool readWhole(std::string const& text, double& out) {
    // No blanks, hexadecimal, "inf" or "nan": only what a decimal number is made of.
    if (!allOf(text, isNumberCharacter)) {
        return false;
    }
    char* end = nullptr;
    errno = 0;
    double const value = std::strtod(text.c_str(), &end);
    if (errno != 0 || end != text.c_str() + text.size() || !std::isfinite(value)) {
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
