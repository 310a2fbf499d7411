#ifndef QUEN_3_1_VALUES_TEXT_HASH_H
#define QUEN_3_1_VALUES_TEXT_HASH_H

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace quen_3_1 {

// The secret of the library's hash tables: chosen at random once per process,
// so that nobody can prepare texts that all land in one bucket.
struct HashKey {
    std::uint64_t k0;
    std::uint64_t k1;
};

// A fresh random key; never throws (falls back on addresses and the clock).
HashKey makeHashKey() noexcept;

// The key of this process, made on first use.
inline HashKey const& processHashKey() {
    static HashKey const key = makeHashKey();
    return key;
}

// A key from where the system placed this process's stack and the library's
// code, both moved by address space randomisation: no random source, no clock.
HashKey makeAddressKey() noexcept;

// The key of the tables that hold declared names only (see declaredNameHash).
// A host that declares options and parses never opens the random source for
// it, which would cost each process a system resource and a fresh stack page.
inline HashKey const& declaredNameKey() {
    static HashKey const key = makeAddressKey();
    return key;
}

namespace detail {

constexpr std::uint64_t rotateLeft(std::uint64_t x, int bits) { return (x << bits) | (x >> (64 - bits)); }

struct SipState {
    std::uint64_t v0;
    std::uint64_t v1;
    std::uint64_t v2;
    std::uint64_t v3;

    void round() {
        v0 += v1;
        v1 = rotateLeft(v1, 13);
        v1 ^= v0;
        v0 = rotateLeft(v0, 32);
        v2 += v3;
        v3 = rotateLeft(v3, 16);
        v3 ^= v2;
        v0 += v3;
        v3 = rotateLeft(v3, 21);
        v3 ^= v0;
        v2 += v1;
        v1 = rotateLeft(v1, 17);
        v1 ^= v2;
        v2 = rotateLeft(v2, 32);
    }

    template <int Rounds>
    void absorb(std::uint64_t word) {
        v3 ^= word;
        for (int i = 0; i < Rounds; ++i) {
            round();
        }
        v0 ^= word;
    }
};

}  // namespace detail

// SipHash with `C` rounds per word and `D` final rounds, over the text's
// bytes read as little-endian words.
template <int C, int D>
std::uint64_t sipHash(HashKey const& key, std::string_view text) {
    detail::SipState s{key.k0 ^ 0x736f6d6570736575ULL, key.k1 ^ 0x646f72616e646f6dULL, key.k0 ^ 0x6c7967656e657261ULL,
                       key.k1 ^ 0x7465646279746573ULL};
    char const* p = text.data();
    std::size_t n = text.size();
    for (; n >= 8; p += 8, n -= 8) {
        std::uint64_t word = 0;
        std::memcpy(&word, p, 8);
        s.absorb<C>(word);
    }
    std::uint64_t last = static_cast<std::uint64_t>(text.size()) << 56;
    for (std::size_t i = 0; i < n; ++i) {
        last |= static_cast<std::uint64_t>(static_cast<unsigned char>(p[i])) << (8 * i);
    }
    s.absorb<C>(last);
    s.v2 ^= 0xff;
    for (int i = 0; i < D; ++i) {
        s.round();
    }
    return s.v0 ^ s.v1 ^ s.v2 ^ s.v3;
}

// The hash of a text for the library's tables into which typed text goes (a
// keeper of values and texts): keyed, so that its collisions cannot be computed outside
// the process, and with few rounds, as names and values are mostly short.
inline std::uint64_t hashText(std::string_view text) { return sipHash<1, 3>(processHashKey(), text); }

namespace detail {

inline std::uint64_t loadWord(char const* p) {
    std::uint64_t word = 0;
    std::memcpy(&word, p, 8);
    return word;
}

inline std::uint64_t loadHalf(char const* p) {
    std::uint32_t half = 0;
    std::memcpy(&half, p, 4);
    return half;
}

// The finaliser of splitmix64: every bit of `x` reaches every bit of the result.
inline std::uint64_t finalise(std::uint64_t x) {
    x = (x ^ (x >> 30)) * 0xbf58476d1ce4e5b9ULL;
    x = (x ^ (x >> 27)) * 0x94d049bb133111ebULL;
    return x ^ (x >> 31);
}

}  // namespace detail

// The hash of a name for tables into which only the names a host declares are
// ever inserted (the name index, a result's names): a typed argument is only
// looked up there, so no input can lengthen their runs of slots, and a few
// multiplications per eight bytes do where SipHash's rounds cost several times
// as much. Tables into which typed text is inserted (the keeper of values and
// texts) keep hashText, whose collisions cannot be computed. The key only
// keeps a host's own names from landing alike in every process.
inline std::uint64_t declaredNameHash(HashKey const& key, std::string_view text) {
    char const* const p = text.data();
    std::size_t const n = text.size();
    std::uint64_t h = key.k0 ^ (static_cast<std::uint64_t>(n) * 0x9e3779b97f4a7c15ULL);
    for (std::size_t i = 0; i + 8 <= n; i += 8) {
        h = detail::rotateLeft((h ^ detail::loadWord(p + i)) * 0x9e3779b97f4a7c15ULL, 29);
    }
    // The last bytes are read again as one word (overlapping), so no byte loop.
    std::uint64_t last = 0;
    if (n >= 8) {
        last = detail::loadWord(p + n - 8);
    } else if (n >= 4) {
        last = detail::loadHalf(p) | (detail::loadHalf(p + n - 4) << 32);
    } else if (n > 0) {
        last = static_cast<unsigned char>(p[0]) |
               (static_cast<std::uint64_t>(static_cast<unsigned char>(p[n / 2])) << 8) |
               (static_cast<std::uint64_t>(static_cast<unsigned char>(p[n - 1])) << 16);
    }
    return detail::finalise((h ^ last) * 0x9e3779b97f4a7c15ULL ^ key.k1);
}

// The same with the declared-name key of this process.
inline std::uint64_t hashDeclaredName(std::string_view text) { return declaredNameHash(declaredNameKey(), text); }

// The same as a hash function object for the standard unordered containers.
struct TextHash {
    std::size_t operator()(std::string_view text) const { return static_cast<std::size_t>(hashText(text)); }
};

}  // namespace quen_3_1

#endif
