// Splitting name lists and value texts: the character after a separator joins
// the next piece untested, and a trailing separator leaves a NUL piece.
#include "values/separator_split.h"

#include <gtest/gtest.h>

#include <string>
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

// A host's NUL-terminated name list splits as the same text held in a string.
TEST(SeparatorSplit, TerminatedTextSplitsLikeTheSameString) {
    for (char const* text : {"", "a", "a,b", "a,,b", ",a", "a,", ",", ",,", "a,b,c,", "log-file,lf,l"}) {
        Pieces fromText;
        quen_3_1::splitAtSeparator(text, ',', fromText);
        EXPECT_EQ(fromText, split(std::string(text))) << text;
    }
}

// Pieces are appended to what the list already holds.
TEST(SeparatorSplit, PiecesAreAppended) {
    Pieces out{"first"};
    quen_3_1::splitAtSeparator(std::string("a,b"), ',', out);
    EXPECT_EQ(out, (Pieces{"first", "a", "b"}));
}
