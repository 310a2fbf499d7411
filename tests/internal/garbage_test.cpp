// The string keeper: interned texts are shared by equal content and live as
// long as the keeper, however many texts follow.
#include "values/garbage.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using quen_3_1::Garbage;

TEST(Garbage, NullGivesEmptyTextNeverNull) {
    Garbage keeper;
    char const* const text = keeper.init(nullptr);
    ASSERT_NE(text, nullptr);
    EXPECT_STREQ(text, "");
    ASSERT_NE(keeper.init(nullptr), nullptr);
    EXPECT_STREQ(keeper.init(nullptr), "");
}

TEST(Garbage, KeepsACopyNotTheCallersPointer) {
    Garbage keeper;
    char source[] = "volatile";
    char const* const kept = keeper.init(source);
    EXPECT_NE(kept, source);
    source[0] = 'V';
    EXPECT_STREQ(kept, "volatile");
}

TEST(Garbage, EqualTextsGiveTheSamePointer) {
    Garbage keeper;
    char first[] = "same";
    char second[] = "same";
    char const* const a = keeper.init(first);
    char const* const b = keeper.init(second);
    EXPECT_EQ(a, b);
    EXPECT_EQ(keeper.init("same"), a);
    EXPECT_EQ(keeper.init(a), a);
}

TEST(Garbage, EmptyTextIsInternedLikeAnyOther) {
    Garbage keeper;
    char const* const a = keeper.init("");
    ASSERT_NE(a, nullptr);
    EXPECT_STREQ(a, "");
    EXPECT_EQ(keeper.init(""), a);
}

TEST(Garbage, DifferentTextsGiveDifferentPointers) {
    Garbage keeper;
    char const* const a = keeper.init("alpha");
    char const* const b = keeper.init("beta");
    char const* const c = keeper.init("Alpha");
    EXPECT_NE(a, b);
    EXPECT_NE(a, c);
    EXPECT_STREQ(a, "alpha");
    EXPECT_STREQ(b, "beta");
    EXPECT_STREQ(c, "Alpha");
}

TEST(Garbage, PointersStayValidAfterManyInsertions) {
    Garbage keeper;
    char const* const anchor = keeper.init("anchor");
    std::vector<char const*> kept;
    for (int i = 0; i < 5000; ++i) {
        kept.push_back(keeper.init(("text-" + std::to_string(i)).c_str()));
    }
    EXPECT_STREQ(anchor, "anchor");
    EXPECT_EQ(keeper.init("anchor"), anchor);
    for (int i = 0; i < 5000; ++i) {
        std::string const expected = "text-" + std::to_string(i);
        ASSERT_STREQ(kept[static_cast<std::size_t>(i)], expected.c_str());
        ASSERT_EQ(keeper.init(expected.c_str()), kept[static_cast<std::size_t>(i)]);
    }
}

TEST(Garbage, KeepersDoNotShareTexts) {
    Garbage one;
    Garbage two;
    char const* const a = one.init("shared");
    char const* const b = two.init("shared");
    EXPECT_NE(a, b);
    EXPECT_STREQ(a, "shared");
    EXPECT_STREQ(b, "shared");
}

TEST(Garbage, KeepHoldsTextsWithNulCharacters) {
    Garbage keeper;
    std::string const withNul("a\0b", 3);
    char const* const a = keeper.keep(withNul);
    char const* const b = keeper.keep("a");
    EXPECT_NE(a, b);
    EXPECT_EQ(std::string(a, 3), withNul);
    EXPECT_EQ(keeper.keep(withNul), a);
    EXPECT_EQ(keeper.init("a"), b);
}

TEST(Garbage, TextsLargerThanAnyBlockAreInternedToo) {
    Garbage keeper;
    std::string const large(100000, 'x');
    char const* const a = keeper.keep(large);
    char const* const small = keeper.init("small");
    EXPECT_EQ(std::string(a), large);
    EXPECT_EQ(keeper.init(large.c_str()), a);
    EXPECT_EQ(keeper.init("small"), small);
}

TEST(Garbage, TextsDifferingOnlyInLengthStayApart) {
    Garbage keeper;
    char const* const shorter = keeper.init("ab");
    char const* const longer = keeper.keep(std::string("ab\0", 3));
    EXPECT_NE(shorter, longer);
    EXPECT_EQ(keeper.init("ab"), shorter);
}
