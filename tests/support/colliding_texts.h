#ifndef QUEN_TESTS_SUPPORT_COLLIDING_TEXTS_H
#define QUEN_TESTS_SUPPORT_COLLIDING_TEXTS_H

// Texts that all collide under the library's former, unkeyed table hash, and
// random texts of the same shape to compare them with.
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace quen_test {

namespace former_hash {

constexpr std::uint64_t kStep = 0xbf58476d1ce4e5b9ULL;
constexpr std::uint64_t kFinal = 0x94d049bb133111ebULL;
constexpr std::uint64_t kStart = 0x9e3779b97f4a7c15ULL;

inline std::uint64_t mix(std::uint64_t h, std::uint64_t word) {
    h = (h ^ word) * kStep;
    return h ^ (h >> 31);
}

// The former hash, for texts of a multiple of eight bytes.
inline std::uint64_t of(std::string_view text) {
    std::uint64_t h = kStart ^ text.size();
    for (std::size_t i = 0; i + 8 <= text.size(); i += 8) {
        std::uint64_t word = 0;
        std::memcpy(&word, text.data() + i, 8);
        h = mix(h, word);
    }
    h *= kFinal;
    return h ^ (h >> 32);
}

// The odd factor's inverse modulo 2^64, by Newton's iteration.
inline std::uint64_t inverse(std::uint64_t odd) {
    std::uint64_t x = odd;
    for (int i = 0; i < 6; ++i) {
        x *= 2 - odd * x;
    }
    return x;
}

// The state before a mixing step that ends in `state`, with the word taken out.
inline std::uint64_t unmix(std::uint64_t state) {
    std::uint64_t const unshifted = state ^ (state >> 31) ^ (state >> 62);
    return unshifted * inverse(kStep);
}

}  // namespace former_hash

// True when no byte could be changed or dropped on the way into a command
// line or an option text: no control character, blank, comma (the value separator) or leading '-'.
inline bool plainBytes(std::string const& text) {
    for (char c : text) {
        if (static_cast<unsigned char>(c) <= 0x20) {
            return false;
        }
    }
    return !text.empty() && text[0] != '-' && text[0] != ';' && text[0] != '#' && text.find(',') == std::string::npos;
}

// `count` distinct 16-byte texts with one and the same former hash: the
// first eight bytes are free, the last eight steer the state back to a fixed
// one (the mixing step is invertible).
inline std::vector<std::string> collidingTexts(std::size_t count) {
    std::uint64_t const target = 0x0123456789abcdefULL;
    std::uint64_t const before = former_hash::unmix(target);
    std::uint64_t const start = former_hash::kStart ^ 16;
    std::vector<std::string> texts;
    for (std::uint64_t i = 0; texts.size() < count; ++i) {
        std::string text(16, 'a');
        std::uint64_t rest = i;
        for (std::size_t b = 0; b < 8; ++b, rest /= 52) {
            std::uint64_t const digit = rest % 52;
            text[b] = static_cast<char>(digit < 26 ? 'a' + digit : 'A' + (digit - 26));
        }
        std::uint64_t first = 0;
        std::memcpy(&first, text.data(), 8);
        std::uint64_t const second = before ^ former_hash::mix(start, first);
        std::memcpy(&text[8], &second, 8);
        if (plainBytes(text)) {
            texts.push_back(text);
        }
    }
    return texts;
}

// `count` random 16-byte texts of letters and digits (distinct in practice).
inline std::vector<std::string> randomTexts(std::size_t count, std::uint32_t seed) {
    static char const kAlphabet[] = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
    std::mt19937 generator(seed);
    std::uniform_int_distribution<std::size_t> pick(0, sizeof kAlphabet - 2);
    std::vector<std::string> texts(count, std::string(16, 'a'));
    for (std::string& text : texts) {
        for (char& c : text) {
            c = kAlphabet[pick(generator)];
        }
    }
    return texts;
}

}  // namespace quen_test

#endif
