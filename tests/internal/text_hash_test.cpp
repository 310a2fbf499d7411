// The hash of the library's own tables: equal texts hash alike, and every
// byte, the length and the position of a byte change the low bits that pick
// a bucket.
#include "values/text_hash.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <set>
#include <string>

using quen_3_1::hashText;

TEST(TextHash, EqualTextsHashAlike) {
    std::string const a = "log-file";
    std::string const b = std::string("log-") + "file";
    EXPECT_EQ(hashText(a), hashText(b));
    EXPECT_EQ(quen_3_1::TextHash()(a), quen_3_1::TextHash()(b));
}

TEST(TextHash, TrailingNulCharactersAndLengthCount) {
    EXPECT_NE(hashText(std::string_view("a", 1)), hashText(std::string_view("a\0", 2)));
    EXPECT_NE(hashText(std::string_view()), hashText(std::string_view("\0", 1)));
    EXPECT_NE(hashText("ab"), hashText("ba"));
}

TEST(TextHash, OneChangedByteAnywhereChangesTheLowBits) {
    std::string const base(40, 'a');
    std::uint64_t const reference = hashText(base) & 0xffff;
    for (std::size_t i = 0; i < base.size(); ++i) {
        std::string changed = base;
        changed[i] = 'b';
        EXPECT_NE(hashText(changed) & 0xffff, reference) << "byte " << i;
    }
}

// Generated value texts (as a long command line has them) spread over the
// buckets of a table of 4,096: no bucket gets a crowd.
TEST(TextHash, NumberedTextsSpreadOverTheLowBits) {
    constexpr std::size_t kBuckets = 4096;
    std::size_t counts[kBuckets] = {};
    for (int i = 0; i < 20000; ++i) {
        ++counts[hashText("v" + std::to_string(i)) & (kBuckets - 1)];
    }
    std::size_t largest = 0;
    for (std::size_t count : counts) {
        largest = count > largest ? count : largest;
    }
    EXPECT_LE(largest, 20U);
}
