// The arena behind the string keeper: copies are NUL-terminated, never move,
// and texts of any size fit, whether they share a block or need their own.
#include "values/text_arena.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using quen_3_1::TextArena;

TEST(TextArena, CopyIsTerminatedAndNotTheCallersBuffer) {
    TextArena arena;
    std::string source = "value";
    char const* const copy = arena.copy(source);
    source[0] = 'X';
    EXPECT_STREQ(copy, "value");
    EXPECT_NE(copy, source.c_str());
}

TEST(TextArena, EmptyTextGivesAnEmptyTerminatedCopy) {
    TextArena arena;
    char const* const copy = arena.copy(std::string_view());
    ASSERT_NE(copy, nullptr);
    EXPECT_STREQ(copy, "");
}

TEST(TextArena, KeepsNulCharactersInsideTheText) {
    TextArena arena;
    std::string const withNul("a\0b", 3);
    char const* const copy = arena.copy(withNul);
    EXPECT_EQ(std::string(copy, 3), withNul);
    EXPECT_EQ(copy[3], '\0');
}

TEST(TextArena, EarlierCopiesSurviveManyBlocks) {
    TextArena arena;
    std::vector<char const*> copies;
    for (int i = 0; i < 20000; ++i) {
        copies.push_back(arena.copy("text-" + std::to_string(i)));
    }
    for (int i = 0; i < 20000; ++i) {
        ASSERT_STREQ(copies[static_cast<std::size_t>(i)], ("text-" + std::to_string(i)).c_str());
    }
}

TEST(TextArena, LargeTextsBetweenSmallOnesKeepEveryCopyIntact) {
    TextArena arena;
    std::string const large(200000, 'L');
    std::string const medium(100, 'M');
    char const* const small1 = arena.copy("small-1");
    char const* const big = arena.copy(large);
    char const* const mid = arena.copy(medium);
    char const* const small2 = arena.copy("small-2");
    EXPECT_STREQ(small1, "small-1");
    EXPECT_EQ(std::string(big), large);
    EXPECT_EQ(std::string(mid), medium);
    EXPECT_STREQ(small2, "small-2");
}

TEST(TextArena, CopiedGivesBackTheWholeTextNulCharactersIncluded) {
    TextArena arena;
    std::string const withNul("x\0y\0", 4);
    char const* const a = arena.copy(withNul);
    char const* const b = arena.copy("");
    EXPECT_EQ(TextArena::copied(a), withNul);
    EXPECT_EQ(TextArena::copied(b), std::string_view());
}

TEST(TextArena, JoinedCopyHoldsBothTextsAndItsLength) {
    TextArena arena;
    char const* const copy = arena.copy("no-", std::string_view("verbose"));
    EXPECT_STREQ(copy, "no-verbose");
    EXPECT_EQ(TextArena::copied(copy), "no-verbose");
    char const* const tailOnly = arena.copy(std::string_view(), std::string_view("x\0y", 3));
    EXPECT_EQ(TextArena::copied(tailOnly), std::string_view("x\0y", 3));
    EXPECT_EQ(tailOnly[3], '\0');
}
