// Word wrapping of help paragraphs, rule by rule, and the one help-text case
// that the public interface cannot produce.
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "frontend/basic_parser.h"
#include "frontend/trace.h"
#include "help/help_text.h"
#include "options/option_description.h"
#include "support/internal_fixture.h"

namespace {

using quen_3_1::BasicParser;

class ParagraphString : public quen_test::InternalTest {};

std::string spaces(std::size_t count) { return std::string(count, ' '); }

TEST_F(ParagraphString, EmptyTextDropsTheHead) { EXPECT_EQ(quen_3_1::paragraphString("", "-x=<integer>", 30, 50), ""); }

TEST_F(ParagraphString, EmptyTextWithEmptyHeadGivesNothing) { EXPECT_EQ(quen_3_1::paragraphString("", "", 1, 80), ""); }

TEST_F(ParagraphString, LeadingSpacesAndNewlinesAreStripped) {
    EXPECT_EQ(quen_3_1::paragraphString("  \n \n  word", "", 4, 20), "    word\n");
}

TEST_F(ParagraphString, ShortHeadIsPaddedToTheIndent) {
    EXPECT_EQ(quen_3_1::paragraphString("text", "-a", 6, 20), "-a    text\n");
}

// The head takes the whole indent and one space more, so the first line may
// hold width - 2 + indent - head characters of text.
TEST_F(ParagraphString, HeadAsLongAsTheIndentGetsOneSpace) {
    EXPECT_EQ(quen_3_1::paragraphString("abcd efg hij", "-abc", 4, 10), "-abc abcd efg\n    hij\n");
}

TEST_F(ParagraphString, HeadLongerThanTheIndentShortensTheFirstLine) {
    EXPECT_EQ(quen_3_1::paragraphString("abc defgh", "-abcdef", 4, 10), "-abcdef abc\n    defgh\n");
}

// head longer than indent + width - 2: the limit wraps around in unsigned
// arithmetic and the first text line is not shortened at all.
TEST_F(ParagraphString, HeadBeyondTheLineKeepsTheWholeFirstLine) {
    std::string const head = "-a-very-long-head-of-thirty-ch";
    ASSERT_EQ(head.size(), 30u);
    EXPECT_EQ(quen_3_1::paragraphString("aaaa bbbb cccc dddd eeee", head, 10, 10),
              head + " aaaa bbbb cccc dddd eeee\n");
}

TEST_F(ParagraphString, HeadBeyondTheLineStillBreaksAtANewline) {
    std::string const head = "-a-very-long-head-of-thirty-ch";
    EXPECT_EQ(quen_3_1::paragraphString("first part\nsecond", head, 10, 10),
              head + " first part\n" + spaces(10) + "second\n");
}

TEST_F(ParagraphString, BreakInsideAWordMovesTheWordDown) {
    EXPECT_EQ(quen_3_1::paragraphString("alpha betagamma", "", 2, 12), "  alpha\n  betagamma\n");
}

TEST_F(ParagraphString, BreakOnASpaceKeepsTheLineWhole) {
    EXPECT_EQ(quen_3_1::paragraphString("alpha beta gamma", "", 2, 11), "  alpha beta\n  gamma\n");
}

// A limit that ends right after a space is not a split word: the space stays
// at the end of the line.
TEST_F(ParagraphString, BreakRightAfterASpaceKeepsTheTrailingSpace) {
    EXPECT_EQ(quen_3_1::paragraphString("alpha beta gamma", "", 2, 12), "  alpha beta \n  gamma\n");
}

TEST_F(ParagraphString, WordLongerThanTheLineIsBrokenHard) {
    EXPECT_EQ(quen_3_1::paragraphString("abcdefghijklmno", "", 2, 6), "  abcde\n  fghij\n  klmno\n");
}

TEST_F(ParagraphString, LongWordAfterAShortOneGetsItsOwnLinesThenBreaksHard) {
    EXPECT_EQ(quen_3_1::paragraphString("ab cdefghijkl", "", 2, 6), "  ab\n  cdefg\n  hijkl\n");
}

TEST_F(ParagraphString, HundredCharactersWithoutSpacesGiveLinesOf49And49And2) {
    std::string const text =
        "0123456789012345678901234567890123456789012345678901234567890123456789012345678901234567890123456789";
    ASSERT_EQ(text.size(), 100u);
    EXPECT_EQ(quen_3_1::paragraphString(text, "-x", 30, 50),
              "-x" + spaces(28) + "0123456789012345678901234567890123456789012345678\n" + spaces(30) +
                  "9012345678901234567890123456789012345678901234567\n" + spaces(30) + "89\n");
}

// The emptiness test comes before the stripping, so what is left after the
// last word gives one line of indentation only.
TEST_F(ParagraphString, TextEndingInANewlineGivesALineOfIndentationOnly) {
    EXPECT_EQ(quen_3_1::paragraphString("abc\n", "", 4, 10), "    abc\n    \n");
}

TEST_F(ParagraphString, SpacesLeftAfterTheLastBreakGiveALineOfIndentationOnly) {
    EXPECT_EQ(quen_3_1::paragraphString("abcde   ", "", 2, 6), "  abcde\n  \n");
}

TEST_F(ParagraphString, TrailingSpacesThatFitStayOnTheLine) {
    EXPECT_EQ(quen_3_1::paragraphString("abc  ", "", 4, 10), "    abc  \n");
}

TEST_F(ParagraphString, EmbeddedNewlinesAreHardBreaks) {
    EXPECT_EQ(quen_3_1::paragraphString("one\ntwo three", "-h", 4, 20), "-h  one\n    two three\n");
}

TEST_F(ParagraphString, ConsecutiveBlankLinesCollapse) {
    EXPECT_EQ(quen_3_1::paragraphString("one\n\n\ntwo\n  \n three", "", 2, 20), "  one\n  two\n  three\n");
}

TEST_F(ParagraphString, NewlineBeforeTheLimitWinsOverTheWidth) {
    EXPECT_EQ(quen_3_1::paragraphString("ab cd\nef gh ij kl", "", 2, 9), "  ab cd\n  ef gh ij\n  kl\n");
}

// A zero limit reaches the character before position 0 through the
// bounds-checked access.
TEST_F(ParagraphString, ZeroLimitAfterPaddingThrowsOutOfRange) {
    EXPECT_THROW(quen_3_1::paragraphString("word", "", 3, 1), std::out_of_range);
}

TEST_F(ParagraphString, ZeroLimitAfterALongHeadThrowsOutOfRange) {
    EXPECT_THROW(quen_3_1::paragraphString("word", "-abcd", 3, 4), std::out_of_range);
}

TEST_F(ParagraphString, ZeroLimitWithOnlyBlanksLeftDoesNotThrow) {
    EXPECT_EQ(quen_3_1::paragraphString(" \n ", "", 3, 1), "   \n");
}

TEST_F(ParagraphString, GroupTitleWrapsAt79CharactersAfterOneSpace) {
    std::string const title =
        "Options read before any command runs, whatever the input format or target is; also read from the settings "
        "file";
    EXPECT_EQ(quen_3_1::paragraphString(title, "", 1, 80),
              " Options read before any command runs, whatever the input format or target is;\n"
              " also read from the settings file\n");
}

TEST_F(ParagraphString, GroupTitleOfExactly79CharactersStaysOnOneLine) {
    std::string const title = "Exactly seventy-nine characters of title text, which all fit on the first line.";
    ASSERT_EQ(title.size(), 79u);
    EXPECT_EQ(quen_3_1::paragraphString(title, "", 1, 80), " " + title + "\n");
}

// The registry records every option's group before storing the option, so no
// public call produces an option whose group is missing from the group list.
// The parser's stored description is replaced in place to get one.
class HelpTextGroups : public ParagraphString {};

TEST_F(HelpTextGroups, OptionWhoseGroupMatchesNoGroupIsNeverListed) {
    BasicParser parser(0);
    parser.option("kept", "Listed.", tarvo2::vt_int, "main:Main");
    parser.option("moved", "Not listed.", tarvo2::vt_int, "main:Main");
    ASSERT_EQ(parser.storage().size(), 2u);
    quen_3_1::OptionDescription const& stored = parser.storage().at(1);
    const_cast<quen_3_1::OptionDescription&>(stored) = quen_3_1::OptionDescription(
        {"moved"}, "elsewhere", "Elsewhere", "Not listed.", tarvo2::vt_int, stored.garbage());
    ASSERT_EQ(parser.storage().at(1).group(), "elsewhere");
    EXPECT_STREQ(parser.getDescription(false),
                 "\n"
                 "main\n"
                 " Main\n"
                 "\n"
                 "-kept=<integer>               Listed.\n"
                 "\n");
}

}  // namespace
