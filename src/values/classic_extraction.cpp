// Formatted extraction of numbers as the GNU standard library performs it for
// a default-state stream in the classic locale, step for step: white space
// skipped, an optional sign, leading zeros (and "0x" in base 16), digits
// with overflow detection, and for doubles the same accumulation of the
// number's characters before the text is converted. Building a string stream
// costs far more than the number itself, and conversions run once per value.
#include "values/classic_extraction.h"

#include <charconv>
#include <cstdlib>
#include <limits>
#include <locale>
#include <string>
#include <system_error>
#include <type_traits>

#if defined(__GLIBCXX__) && defined(__GLIBC__) && defined(__cpp_lib_to_chars)
#define QUEN_CLASSIC_EXTRACTION 1
#include <locale.h>
#include <stdlib.h>
#else
#define QUEN_CLASSIC_EXTRACTION 0
#endif

namespace quen_3_1 {

namespace {

bool isClassicSpace(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\v' || c == '\f' || c == '\r'; }

int digitValue(char c, unsigned base) {
    if (c >= '0' && c <= '9') {
        return c - '0';
    }
    if (base == 16) {
        if (c >= 'a' && c <= 'f') {
            return c - 'a' + 10;
        }
        if (c >= 'A' && c <= 'F') {
            return c - 'A' + 10;
        }
    }
    return -1;
}

// The stream's sentry: leading white space is skipped, and a text that ends
// before anything else is a failure.
char const* skipSpace(char const* p) {
    while (isClassicSpace(*p)) {
        ++p;
    }
    return p;
}

// The integer extraction of the standard library's number facet in the
// classic locale, with the facet's own value type V.
template <class V>
bool extractInteger(char const* text, unsigned base, V& value) {
    using U = typename std::make_unsigned<V>::type;
    char const* p = skipSpace(text);
    if (*p == '\0') {
        return false;
    }
    char c = *p;
    bool atEnd = false;
    bool const negative = c == '-';
    if (negative || c == '+') {
        c = *++p;
        atEnd = c == '\0';
    }
    // Leading zeros, and in base 16 the "0x" that may follow a zero.
    bool foundZero = false;
    int digits = 0;
    while (!atEnd) {
        if (c == '0' && (!foundZero || base == 10)) {
            foundZero = true;
            ++digits;
        } else if (foundZero && (c == 'x' || c == 'X') && base == 16) {
            foundZero = false;
            digits = 0;
        } else {
            break;
        }
        c = *++p;
        if (c == '\0') {
            atEnd = true;
        } else if (!foundZero) {
            break;
        }
    }
    U const max = negative && std::is_signed<V>::value
                      ? static_cast<U>(0U - static_cast<U>(std::numeric_limits<V>::min()))
                      : static_cast<U>(std::numeric_limits<V>::max());
    U const smax = static_cast<U>(max / base);
    U result = 0;
    bool overflow = false;
    while (!atEnd) {
        int const digit = digitValue(c, base);
        if (digit < 0) {
            break;
        }
        if (result > smax) {
            overflow = true;
        } else {
            result = static_cast<U>(result * base);
            overflow = overflow || result > max - static_cast<U>(digit);
            result = static_cast<U>(result + static_cast<U>(digit));
            ++digits;
        }
        c = *++p;
        atEnd = c == '\0';
    }
    if ((digits == 0 && !foundZero) || overflow) {
        return false;
    }
    value = static_cast<V>(negative ? static_cast<U>(0U - result) : result);
    return true;
}

#if QUEN_CLASSIC_EXTRACTION
// True while no locale has been built in this process, so that the global
// one is still the classic locale. Asking the locale itself would build the
// classic locale with all its facets: in a host that never uses one, that is
// most of what the first number it converts costs, page faults included.
// The standard library builds the classic locale before any other, and
// building it numbers the character classification facet, whose number is
// zero until then (the facet's id holds nothing but that number, written
// atomically once threads exist).
bool noLocaleBuilt() {
    static_assert(sizeof(std::locale::id) == sizeof(std::size_t), "a facet id is its number");
    auto const* const number = reinterpret_cast<std::size_t const*>(&std::ctype<char>::id);
    return __atomic_load_n(number, __ATOMIC_ACQUIRE) == 0;
}

locale_t classicCLocale() {
    static locale_t const locale = newlocale(LC_ALL_MASK, "C", locale_t());
    return locale;
}

// The characters of a floating-point number as the facet collects them: sign,
// one zero for any run of leading zeros, digits, one decimal point, and an
// exponent with its sign once a digit was seen.
std::string collectFloat(char const* p) {
    std::string collected;
    char c = *p;
    bool atEnd = c == '\0';
    if (!atEnd && (c == '+' || c == '-')) {
        collected += c;
        c = *++p;
        atEnd = c == '\0';
    }
    bool mantissa = false;
    while (!atEnd && c == '0') {
        if (!mantissa) {
            collected += '0';
            mantissa = true;
        }
        c = *++p;
        atEnd = c == '\0';
    }
    bool point = false;
    bool exponent = false;
    while (!atEnd) {
        if (c >= '0' && c <= '9') {
            collected += c;
            mantissa = true;
        } else if (c == '.' && !point && !exponent) {
            collected += '.';
            point = true;
        } else if ((c == 'e' || c == 'E') && !exponent && mantissa) {
            collected += 'e';
            exponent = true;
            c = *++p;
            if (c == '\0') {
                break;
            }
            if (c == '+' || c == '-') {
                collected += c;
            } else {
                continue;
            }
        } else {
            break;
        }
        c = *++p;
        atEnd = c == '\0';
    }
    return collected;
}

// The conversion of the collected text: the whole of it must convert, and an
// infinite result is an overflow.
bool convertFloat(std::string const& collected, double& value) {
    char const* const first = collected.c_str();
    char const* const last = first + collected.size();
    char const* const digits = collected.empty() || collected[0] != '+' ? first : first + 1;
    std::from_chars_result const quick = std::from_chars(digits, last, value);
    if (quick.ec == std::errc() && quick.ptr == last) {
        return true;
    }
    char* end = nullptr;
    value = strtod_l(first, &end, classicCLocale());
    if (end == first || *end != '\0') {
        return false;
    }
    return value != std::numeric_limits<double>::infinity() && value != -std::numeric_limits<double>::infinity();
}
#endif

}  // namespace

ExtractionSupport classicExtraction() {
#if QUEN_CLASSIC_EXTRACTION
    return noLocaleBuilt() || std::locale() == std::locale::classic() ? ExtractionSupport::Classic
                                                                      : ExtractionSupport::StreamOnly;
#else
    return ExtractionSupport::StreamOnly;
#endif
}

// bool and int are read as long, then checked, as the stream does.
bool extractClassic(char const* text, bool& value) {
    long number = 0;
    if (!extractInteger(text, 10, number) || (number != 0 && number != 1)) {
        return false;
    }
    value = number == 1;
    return true;
}

bool extractClassic(char const* text, int& value) {
    long number = 0;
    if (!extractInteger(text, 10, number) || number < std::numeric_limits<int>::min() ||
        number > std::numeric_limits<int>::max()) {
        return false;
    }
    value = static_cast<int>(number);
    return true;
}

bool extractClassic(char const* text, unsigned int& value) { return extractInteger(text, 10, value); }

bool extractClassic(char const* text, long long& value) { return extractInteger(text, 10, value); }

bool extractClassic(char const* text, unsigned long long& value, bool hex) {
    return extractInteger(text, hex ? 16U : 10U, value);
}

bool extractClassic(char const* text, double& value) {
#if QUEN_CLASSIC_EXTRACTION
    char const* const p = skipSpace(text);
    if (*p == '\0') {
        return false;
    }
    return convertFloat(collectFloat(p), value);
#else
    (void)text;
    (void)value;
    return false;
#endif
}

}  // namespace quen_3_1
