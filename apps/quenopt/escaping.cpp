#include "escaping.h"

#include <cstddef>

namespace quenopt {

namespace {

char const kHex[] = "0123456789abcdef";

void appendUnicodeEscape(std::string& out, unsigned char byte) {
    out += "\\u00";
    out += kHex[byte >> 4];
    out += kHex[byte & 0x0f];
}

// Length of the well-formed UTF-8 sequence that starts at `at`, or 0 when the
// byte there does not start one (stray continuation bytes, overlong forms,
// surrogates and code points above U+10FFFF are all refused).
std::size_t utf8SequenceLength(std::string const& text, std::size_t at) {
    auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    unsigned char lead = byte(at);
    std::size_t length = 0;
    unsigned char low = 0x80;
    unsigned char high = 0xbf;
    if (lead >= 0xc2 && lead <= 0xdf) {
        length = 2;
    } else if (lead >= 0xe0 && lead <= 0xef) {
        length = 3;
        if (lead == 0xe0) {
            low = 0xa0;
        } else if (lead == 0xed) {
            high = 0x9f;
        }
    } else if (lead >= 0xf0 && lead <= 0xf4) {
        length = 4;
        if (lead == 0xf0) {
            low = 0x90;
        } else if (lead == 0xf4) {
            high = 0x8f;
        }
    } else {
        return 0;
    }
    if (at + length > text.size()) {
        return 0;
    }
    // Only the second byte has the narrowed range; the rest are plain continuations.
    if (byte(at + 1) < low || byte(at + 1) > high) {
        return 0;
    }
    for (std::size_t i = 2; i < length; ++i) {
        if (byte(at + i) < 0x80 || byte(at + i) > 0xbf) {
            return 0;
        }
    }
    return length;
}

}  // namespace

std::string shellQuote(std::string const& text) {
    std::string out = "'";
    for (char c : text) {
        if (c == '\'') {
            out += "'\\''";
        } else {
            out += c;
        }
    }
    out += '\'';
    return out;
}

std::string jsonString(std::string const& text) {
    std::string out = "\"";
    std::size_t at = 0;
    while (at < text.size()) {
        unsigned char c = static_cast<unsigned char>(text[at]);
        if (c >= 0x80) {
            std::size_t length = utf8SequenceLength(text, at);
            if (length == 0) {
                appendUnicodeEscape(out, c);
                ++at;
            } else {
                out.append(text, at, length);
                at += length;
            }
            continue;
        }
        switch (c) {
            case '"':
                out += "\\\"";
                break;
            case '\\':
                out += "\\\\";
                break;
            case '\b':
                out += "\\b";
                break;
            case '\f':
                out += "\\f";
                break;
            case '\n':
                out += "\\n";
                break;
            case '\r':
                out += "\\r";
                break;
            case '\t':
                out += "\\t";
                break;
            default:
                if (c < 0x20 || c == 0x7f) {
                    appendUnicodeEscape(out, c);
                } else {
                    out += static_cast<char>(c);
                }
        }
        ++at;
    }
    out += '"';
    return out;
}

}  // namespace quenopt
