#ifndef QUEN_3_1_VALUES_TEXT_HASH_H
#define QUEN_3_1_VALUES_TEXT_HASH_H

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace quen_3_1 {

// A hash of a text for the library's own tables: eight bytes at a time with
// a multiply-xorshift step, then a full avalanche, so that the low bits that
// pick a bucket depend on every byte. Names and values are mostly short, and
// this is several times cheaper than the standard library's hash on them.
inline std::uint64_t hashText(std::string_view text) {
    constexpr std::uint64_t kStep = 0xbf58476d1ce4e5b9ULL;
    std::uint64_t h = 0x9e3779b97f4a7c15ULL ^ text.size();
    char const* p = text.data();
    std::size_t n = text.size();
    for (; n >= 8; p += 8, n -= 8) {
        std::uint64_t word = 0;
        std::memcpy(&word, p, 8);
        h = (h ^ word) * kStep;
        h ^= h >> 31;
    }
    if (n != 0) {
        std::uint64_t word = 0;
        for (std::size_t i = 0; i < n; ++i) {
            word |= static_cast<std::uint64_t>(static_cast<unsigned char>(p[i])) << (8 * i);
        }
        h = (h ^ word) * kStep;
        h ^= h >> 31;
    }
    h *= 0x94d049bb133111ebULL;
    h ^= h >> 32;
    return h;
}

// The same as a hash function object for the standard unordered containers.
struct TextHash {
    std::size_t operator()(std::string_view text) const { return static_cast<std::size_t>(hashText(text)); }
};

}  // namespace quen_3_1

#endif
