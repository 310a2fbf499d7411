// Splitting name lists and value texts: the character after a separator joins
// the next piece untested, and a trailing separator leaves a NUL piece.
#include "values/separator_split.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace {

using Pieces = std::vector<std::string>;

std::string const kNul(1, '\0');

Pieces split(std::string const& text, char separator = ',') {
    Pieces out;
    quen_3_1::splitAtSeparator(text, separator, out);
    return out;
}

}  // namespace

TEST(SeparatorSplit, TrailingSeparatorGivesNulPiece) {
    std::vector<std::string> out;
    quen_3_1::splitAtSeparator("a,", ',', out);
    ASSERT_EQ(out.size(), 2u);
    EXPECT_EQ(out[1], std::string(1, '\0'));
}

TEST(SeparatorSplit, TwoNames) { EXPECT_EQ(split("a,b"), (Pieces{"a", "b"})); }

TEST(SeparatorSplit, NoSeparatorGivesTheWholeText) { EXPECT_EQ(split("log-file"), (Pieces{"log-file"})); }

TEST(SeparatorSplit, EmptyTextGivesNothing) { EXPECT_EQ(split(""), Pieces{}); }

TEST(SeparatorSplit, DoubleSeparatorKeepsTheSecondInTheNextPiece) { EXPECT_EQ(split("a,,b"), (Pieces{"a", ",b"})); }

TEST(SeparatorSplit, LeadingSeparatorGivesEmptyFirstPiece) { EXPECT_EQ(split(",a"), (Pieces{"", "a"})); }

TEST(SeparatorSplit, TrailingSeparatorAfterTwoNames) { EXPECT_EQ(split("x,y,"), (Pieces{"x", "y", kNul})); }

TEST(SeparatorSplit, LoneSeparatorGivesEmptyAndNul) { EXPECT_EQ(split(","), (Pieces{"", kNul})); }

TEST(SeparatorSplit, TwoSeparatorsAlone) { EXPECT_EQ(split(",,"), (Pieces{"", ","})); }

TEST(SeparatorSplit, ThreeSeparatorsAlone) { EXPECT_EQ(split(",,,"), (Pieces{"", ",", kNul})); }

TEST(SeparatorSplit, SkippedCharacterIsNeverASeparator) {
    EXPECT_EQ(split("a,,,b"), (Pieces{"a", ",", "b"}));
    EXPECT_EQ(split("1,2,3"), (Pieces{"1", "2", "3"}));
    EXPECT_EQ(split("ab,cd,,ef"), (Pieces{"ab", "cd", ",ef"}));
}

TEST(SeparatorSplit, OtherSeparators) {
    EXPECT_EQ(split("1;2;3", ';'), (Pieces{"1", "2", "3"}));
    EXPECT_EQ(split("a,b;c", ';'), (Pieces{"a,b", "c"}));
    EXPECT_EQ(split("a:", ':'), (Pieces{"a", kNul}));
}

TEST(SeparatorSplit, AppendsToExistingPieces) {
    Pieces out{"kept"};
    quen_3_1::splitAtSeparator("a,b", ',', out);
    EXPECT_EQ(out, (Pieces{"kept", "a", "b"}));
}

// A host's NUL-terminated name list, cut in place as views, gives the pieces
// of the same text held in a string; a trailing separator's piece views the NUL.
TEST(SeparatorSplit, PiecesOfATerminatedTextAreThoseOfTheSameString) {
    for (char const* text : {"", "a", "a,b", "a,,b", ",a", "a,", ",", ",,", "a,b,c,", "log-file,lf,l"}) {
        Pieces viewed;
        quen_3_1::forEachPiece(std::string_view(text), ',',
                               [&viewed](std::string_view piece) { viewed.emplace_back(piece); });
        EXPECT_EQ(viewed, split(std::string(text))) << text;
    }
}

// Pieces are appended to what the list already holds.
TEST(SeparatorSplit, PiecesAreAppended) {
    Pieces out{"first"};
    quen_3_1::splitAtSeparator(std::string("a,b"), ',', out);
    EXPECT_EQ(out, (Pieces{"first", "a", "b"}));
}
