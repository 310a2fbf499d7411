// The cheaper keyed hash of the name index, into which only declared names go:
// equal names hash alike, every byte and the length count, and generated names
// spread over the low bits that pick a slot and the high bits kept as a tag.
#include <gtest/gtest.h>

#include <cstdint>
#include <set>
#include <string>
#include <string_view>

#include "values/text_hash.h"

using quen_3_1::hashDeclaredName;

namespace {

// As for the text hash: the spread is checked with a fixed key, so that the
// checks give the same answer in every run.
std::uint64_t fixedKeyHash(std::string_view text) {
    quen_3_1::HashKey const key{0x0123456789abcdefULL, 0xfedcba9876543210ULL};
    return quen_3_1::declaredNameHash(key, text);
}

// The largest number of `count` generated names that share one of 4,096 values
// of `bits`.
template <class Name, class Bits>
std::size_t largestCrowd(int count, Name const& name, Bits const& bits) {
    constexpr std::size_t kBuckets = 4096;
    std::size_t counts[kBuckets] = {};
    std::size_t largest = 0;
    for (int i = 0; i < count; ++i) {
        std::size_t const bucket = bits(fixedKeyHash(name(i))) & (kBuckets - 1);
        largest = ++counts[bucket] > largest ? counts[bucket] : largest;
    }
    return largest;
}

}  // namespace

TEST(DeclaredNameHash, EqualNamesHashAlike) {
    std::string const a = "log-file";
    std::string const b = std::string("log-") + "file";
    EXPECT_EQ(hashDeclaredName(a), hashDeclaredName(b));
    EXPECT_EQ(hashDeclaredName(a), quen_3_1::declaredNameHash(quen_3_1::declaredNameKey(), a));
}

TEST(DeclaredNameHash, TrailingNulCharactersLengthAndOrderCount) {
    EXPECT_NE(fixedKeyHash(std::string_view("a", 1)), fixedKeyHash(std::string_view("a\0", 2)));
    EXPECT_NE(fixedKeyHash(std::string_view()), fixedKeyHash(std::string_view("\0", 1)));
    EXPECT_NE(fixedKeyHash("ab"), fixedKeyHash("ba"));
    EXPECT_NE(fixedKeyHash("abcdefgh"), fixedKeyHash(std::string_view("abcdefgh\0", 9)));
}

// Every length from empty to three words, where the last bytes are read as
// overlapping words: one changed byte anywhere changes the slot bits.
TEST(DeclaredNameHash, OneChangedByteAnywhereChangesTheLowBits) {
    for (std::size_t size = 1; size <= 24; ++size) {
        std::string const base(size, 'a');
        std::uint64_t const reference = fixedKeyHash(base) & 0xffff;
        for (std::size_t i = 0; i < size; ++i) {
            std::string changed = base;
            changed[i] = 'b';
            EXPECT_NE(fixedKeyHash(changed) & 0xffff, reference) << "size " << size << ", byte " << i;
        }
    }
}

TEST(DeclaredNameHash, NamesOfEveryLengthHashApart) {
    std::set<std::uint64_t> seen;
    for (std::size_t size = 0; size <= 40; ++size) {
        EXPECT_TRUE(seen.insert(fixedKeyHash(std::string(size, 'x'))).second) << size;
    }
}

// Generated option names spread over the slots of a table of 4,096 and over
// the tag's bits: no value gets a crowd.
TEST(DeclaredNameHash, GeneratedNamesSpreadOverSlotsAndTags) {
    auto const numbered = [](int i) { return "option-" + std::to_string(i); };
    auto const shortNames = [](int i) { return std::to_string(i); };
    auto const low = [](std::uint64_t hash) { return static_cast<std::size_t>(hash); };
    auto const high = [](std::uint64_t hash) { return static_cast<std::size_t>(hash >> 32); };
    EXPECT_LE(largestCrowd(20000, numbered, low), 20U);
    EXPECT_LE(largestCrowd(20000, numbered, high), 20U);
    EXPECT_LE(largestCrowd(20000, shortNames, low), 20U);
    EXPECT_LE(largestCrowd(20000, shortNames, high), 20U);
}

TEST(DeclaredNameHash, KeysChangeTheHash) {
    quen_3_1::HashKey const a{1, 2};
    quen_3_1::HashKey const b{3, 4};
    EXPECT_NE(quen_3_1::declaredNameHash(a, "name"), quen_3_1::declaredNameHash(b, "name"));
}
