// The hash of the library's own tables: equal texts hash alike, and every
// byte, the length and the position of a byte change the low bits that pick
// a bucket; it is keyed per process, so collisions cannot be prepared.
#include "values/text_hash.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "support/colliding_texts.h"

using quen_3_1::hashText;

namespace {

// The spread of the bits is a property of the hash, not of one key: with a
// fixed key these checks give the same answer in every run, where the
// process's random key would make them fail once in a few thousand runs.
std::uint64_t fixedKeyHash(std::string const& text) {
    quen_3_1::HashKey const key{0x0123456789abcdefULL, 0xfedcba9876543210ULL};
    return quen_3_1::sipHash<1, 3>(key, text);
}

}  // namespace

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
    std::uint64_t const reference = fixedKeyHash(base) & 0xffff;
    for (std::size_t i = 0; i < base.size(); ++i) {
        std::string changed = base;
        changed[i] = 'b';
        EXPECT_NE(fixedKeyHash(changed) & 0xffff, reference) << "byte " << i;
    }
}

// Generated value texts (as a long command line has them) spread over the
// buckets of a table of 4,096: no bucket gets a crowd.
TEST(TextHash, NumberedTextsSpreadOverTheLowBits) {
    constexpr std::size_t kBuckets = 4096;
    std::size_t counts[kBuckets] = {};
    for (int i = 0; i < 20000; ++i) {
        ++counts[fixedKeyHash("v" + std::to_string(i)) & (kBuckets - 1)];
    }
    std::size_t largest = 0;
    for (std::size_t count : counts) {
        largest = count > largest ? count : largest;
    }
    EXPECT_LE(largest, 20U);
}

// The keyed hash is SipHash; with two and four rounds and the published key
// 00..0f it gives the published reference value of the 15-byte message 00..0e.
TEST(TextHash, SipHashMatchesThePublishedReference) {
    quen_3_1::HashKey const key{0x0706050403020100ULL, 0x0f0e0d0c0b0a0908ULL};
    std::string message;
    for (char c = 0; c < 15; ++c) {
        message.push_back(c);
    }
    EXPECT_EQ((quen_3_1::sipHash<2, 4>(key, message)), 0xa129ca6149be45e5ULL);
}

TEST(TextHash, TablesHashWithTheProcessKey) {
    EXPECT_EQ(hashText("log-file"), (quen_3_1::sipHash<1, 3>(quen_3_1::processHashKey(), "log-file")));
}

TEST(TextHash, KeysDifferFromCallToCall) {
    quen_3_1::HashKey const a = quen_3_1::makeHashKey();
    quen_3_1::HashKey const b = quen_3_1::makeHashKey();
    EXPECT_FALSE(a.k0 == b.k0 && a.k1 == b.k1);
    EXPECT_NE((quen_3_1::sipHash<1, 3>(a, "name")), (quen_3_1::sipHash<1, 3>(b, "name")));
}

// Texts built to share one value of the former, unkeyed hash (its mixing
// steps could be undone) spread over the buckets like any other texts.
TEST(TextHash, TextsCollidingUnderTheFormerHashSpreadOverTheBuckets) {
    std::vector<std::string> const texts = quen_test::collidingTexts(20000);
    std::uint64_t const shared = quen_test::former_hash::of(texts.front());
    std::size_t sharing = 0;
    for (std::string const& text : texts) {
        sharing += quen_test::former_hash::of(text) == shared ? 1U : 0U;
    }
    ASSERT_EQ(sharing, texts.size());

    constexpr std::size_t kBuckets = 4096;
    std::vector<std::size_t> counts(kBuckets, 0);
    for (std::string const& text : texts) {
        ++counts[fixedKeyHash(text) & (kBuckets - 1)];
    }
    std::size_t largest = 0;
    for (std::size_t count : counts) {
        largest = count > largest ? count : largest;
    }
    EXPECT_LE(largest, 20U);
}
