// The help text as a host sees it: whole texts compared byte for byte.
#include <gtest/gtest.h>

#include <string>

#include "quen_3_1/quen.h"
#include "support/capture.h"
#include "support/public_fixture.h"

namespace {

using quen_3_1::IOption;
using quen_3_1::IParser;
using tarvo2::variant_t;

class HelpText : public quen_test::PublicTest {
protected:
    void SetUp() override {
        PublicTest::SetUp();
        ASSERT_EQ(quen_3_1::createParser(&m_parser, 0), 0);
    }

    void TearDown() override {
        if (m_parser != nullptr) {
            m_parser->destroy();
        }
        PublicTest::TearDown();
    }

    std::string help(bool hidden) { return m_parser->getDescription(hidden); }

    IParser* m_parser = nullptr;
};

char const kGeneral[] =
    "general:General options that apply to every command, whichever input format or output target is chosen";
char const kLimits[] = "limits:Limits";

// A realistic table: three visible groups, a hidden one registered among
// them, a positional option, and a late option of the first group.
void registerTable(IParser* parser) {
    parser->option("verbose,v", "Print progress messages while working.", tarvo2::vt_bool, kGeneral)
        ->defaultValue(variant_t(true));
    parser->option("quiet", "Suppress warnings.", tarvo2::vt_bool, kGeneral)->defaultValue(variant_t(false));
    parser->option("color", "Colour the output.", tarvo2::vt_bool, kGeneral);
    parser
        ->option("output,o",
                 "Write the result to this file instead of the standard output; the file is replaced when it exists.",
                 tarvo2::vt_str, kGeneral)
        ->synonym("out")
        ->synonym("dest");
    parser->option("retries,t", "Retries after a failed transfer.", tarvo2::vt_int64, kGeneral);
    parser->option("attempts,a", "Attempts before giving up.", tarvo2::vt_int64, kGeneral);
    parser->option("help,h", "Show this help and exit.", tarvo2::vt_empty, kGeneral);
    parser->option("dump-state", "Dump internal state.", tarvo2::vt_empty, "quen_hidden:Internal switches");
    parser->option("level,l", "Detail level of the report.", tarvo2::vt_uint, kLimits)->defaultValue(variant_t(3u));
    parser->option("size", "Largest input accepted, in bytes; -1 means no limit.", tarvo2::vt_int64, kLimits)
        ->defaultValue(variant_t(-1LL));
    parser->option("mask", "Bits to keep.", tarvo2::vt_uint64, kLimits)->defaultValue(variant_t(255ULL));
    parser->option("ratio", "Share of the work done in the first pass.", tarvo2::vt_double, kLimits)
        ->defaultValue(variant_t(0.1));
    parser->option("scale", "Scale factor.", tarvo2::vt_double, kLimits)
        ->allowValue(variant_t(0.25))
        ->allowValue(variant_t(1234567.0));
    parser->option("jobs,j", "Worker threads.", tarvo2::vt_int, kLimits)
        ->allowValue(variant_t(1))
        ->allowValue(variant_t(2))
        ->allowValue(variant_t(4))
        ->defaultValue(variant_t(2));
    parser->option("mode", "How hard to try.", tarvo2::vt_str, kLimits)
        ->allowValue(variant_t("fast"))
        ->allowValue(variant_t("slow"))
        ->defaultValue(variant_t("fast"));
    parser->option("offset", "Shift applied to every line number.", tarvo2::vt_int, kLimits)
        ->defaultValue(variant_t(-5));
    parser->option("input", "Files to read.", tarvo2::vt_str, "misc")->positional();
    parser->option("dry-run,n", "Show what would be done.", tarvo2::vt_empty, "misc");
    parser->option("log-file", "Where to write the log.", tarvo2::vt_str, kGeneral)->defaultValue(variant_t("run.log"));
}

TEST_F(HelpText, RealisticTableRendersEveryGroupAndEntry) {
    registerTable(m_parser);
    EXPECT_EQ(help(false), R"(
general
 General options that apply to every command, whichever input format or output
 target is chosen

-v, -verbose (default) | -no-verbose
                              Print progress messages while working.
-quiet | -no-quiet (default)  Suppress warnings.
-color | -no-color            Colour the output.
-dest, -out, -o, -output=<string>
                              Write the result to this file instead of the
                              standard output; the file is replaced when it
                              exists.
-t, -retries=<64 bit integer> Retries after a failed transfer.
-a, -attempts=<64 bit integer>
                              Attempts before giving up.
-h, -help                     Show this help and exit.
-log-file=<string> (run.log)  Where to write the log.

limits
 Limits

-l, -level=<unsigned integer> (3)
                              Detail level of the report.
-size=<64 bit integer> (-1)   Largest input accepted, in bytes; -1 means no
                              limit.
-mask=<unsigned 64 bit or hex> (255)
                              Bits to keep.
-ratio=<double> (0.1)         Share of the work done in the first pass.
-scale=0.25 | 1.23457e+06     Scale factor.
-j, -jobs=1 | 2 | 4 (2)       Worker threads.
-mode=fast | slow (fast)      How hard to try.
-offset=<integer> (-5)        Shift applied to every line number.

misc
-n, -dry-run                  Show what would be done.

)");
}

TEST_F(HelpText, RealisticTableShowsOnlyTheHiddenGroupOnRequest) {
    registerTable(m_parser);
    EXPECT_EQ(help(true), R"(
quen_hidden
 Internal switches

-dump-state                   Dump internal state.

)");
}

TEST_F(HelpText, NoGroupsGiveASingleNewline) {
    EXPECT_EQ(help(false), "\n");
    EXPECT_EQ(help(true), "\n");
}

TEST_F(HelpText, HiddenRequestWithoutHiddenGroupGivesASingleNewline) {
    m_parser->option("verbose", "Talk more.", tarvo2::vt_bool, "general");
    EXPECT_EQ(help(true), "\n");
}

TEST_F(HelpText, HiddenGroupIsLeftOutOfTheVisibleText) {
    m_parser->option("trace-io", "Trace every read.", tarvo2::vt_empty, "quen_hidden");
    m_parser->option("fast", "Go fast.", tarvo2::vt_empty, "general");
    EXPECT_EQ(help(false), R"(
general
-fast                         Go fast.

)");
    EXPECT_EQ(help(true), R"(
quen_hidden
-trace-io                     Trace every read.

)");
}

TEST_F(HelpText, PositionalOptionIsNeverListed) {
    m_parser->option("files", "Files to read.", tarvo2::vt_str, "main:Main")->positional();
    m_parser->option("dump", "Dump.", tarvo2::vt_str, "quen_hidden")->positional();
    EXPECT_EQ(help(false), R"(
main
 Main


)");
    EXPECT_EQ(help(true), R"(
quen_hidden

)");
}

// An option whose group is missing from the group list is never listed
// either, but every registration records its group first, so no call of the
// public interface can produce one; the internal help tests cover it.

TEST_F(HelpText, GroupWithoutNameShowsOnlyItsTitle) {
    m_parser->option("x", "Anything.", tarvo2::vt_empty, ":Untitled group");
    EXPECT_EQ(help(false), R"(
 Untitled group

-x                            Anything.

)");
}

TEST_F(HelpText, GroupOfARefusedRegistrationIsStillShown) {
    m_parser->option("v", "First.", tarvo2::vt_empty, "one");
    quen_test::FdCapture err(2);
    m_parser->option("v", "Second.", tarvo2::vt_empty, "two:Second group");
    EXPECT_EQ(err.finish(), "v\n");
    EXPECT_EQ(help(false), R"(
one
-v                            First.

two
 Second group


)");
}

TEST_F(HelpText, ShortHeadWithEmptyDescriptionIsAbsent) {
    m_parser->option("jobs", "", tarvo2::vt_int, "g");
    m_parser->option("q", "Quiet.", tarvo2::vt_empty, "g");
    EXPECT_EQ(help(false), R"(
g
-q                            Quiet.

)");
}

TEST_F(HelpText, LongHeadWithEmptyDescriptionIsPresent) {
    m_parser->option("very-long-option-name", "", tarvo2::vt_uint64, "g");
    EXPECT_EQ(help(false), R"(
g
-very-long-option-name=<unsigned 64 bit or hex>

)");
}

TEST_F(HelpText, DescriptionEndingInNewlineAddsALineOfIndentation) {
    m_parser->option("x", "Ends here.\n", tarvo2::vt_double, "g");
    EXPECT_EQ(help(false), std::string(R"(
g
-x=<double>                   Ends here.
)") + std::string(30, ' ') + "\n\n");
}

TEST_F(HelpText, HundredCharactersWithoutSpacesWrapInto49And49And2) {
    m_parser->option(
        "x", "0123456789012345678901234567890123456789012345678901234567890123456789012345678901234567890123456789",
        tarvo2::vt_empty, "g");
    EXPECT_EQ(help(false), R"(
g
-x                            0123456789012345678901234567890123456789012345678
                              9012345678901234567890123456789012345678901234567
                              89

)");
}

TEST_F(HelpText, DescriptionLinesBreakAtNewlinesAndDropBlankLines) {
    m_parser->option("x", "First paragraph.\n\n\nSecond paragraph.", tarvo2::vt_empty, "g");
    EXPECT_EQ(help(false), R"(
g
-x                            First paragraph.
                              Second paragraph.

)");
}

TEST_F(HelpText, HeadsOf29And30Characters) {
    m_parser->option("threshold", "Stays beside the head.", tarvo2::vt_uint, "g");
    m_parser->option("thresholds", "Starts on the next line.", tarvo2::vt_uint, "g");
    EXPECT_EQ(help(false), R"(
g
-threshold=<unsigned integer> Stays beside the head.
-thresholds=<unsigned integer>
                              Starts on the next line.

)");
}

TEST_F(HelpText, SynonymsComeFirstMostRecentFirstPrimaryLast) {
    m_parser->option("name", "Named.", tarvo2::vt_empty, "g")->synonym("s1")->synonym("s2")->synonym("s3");
    EXPECT_EQ(help(false), R"(
g
-s3, -s2, -s1, -name          Named.

)");
}

TEST_F(HelpText, BooleanDefaultMarksTheFormItSelects) {
    m_parser->option("on", "True by default.", tarvo2::vt_bool, "g")->defaultValue(variant_t(true));
    m_parser->option("off", "False by default.", tarvo2::vt_bool, "g")->defaultValue(variant_t(false));
    m_parser->option("plain", "No default.", tarvo2::vt_bool, "g");
    EXPECT_EQ(help(false), R"(
g
-on (default) | -no-on        True by default.
-off | -no-off (default)      False by default.
-plain | -no-plain            No default.

)");
}

// Allowed values and defaults are rendered through the option's kind, not
// through the kind of the value given.
TEST_F(HelpText, ValuesRenderThroughTheOptionKind) {
    m_parser->option("tag", "Text option with an integer allowed value.", tarvo2::vt_str, "g")
        ->allowValue(variant_t(7));
    m_parser->option("factor", "Double option with an integer default.", tarvo2::vt_double, "g")
        ->defaultValue(variant_t(2));
    m_parser->option("wide", "Wide text has no kind name.", tarvo2::vt_wstr, "g");
    EXPECT_EQ(help(false), R"(
g
-tag=                         Text option with an integer allowed value.
-factor=<double> (2)          Double option with an integer default.
-wide=<>                      Wide text has no kind name.

)");
}

TEST_F(HelpText, LaterDefaultReplacesTheEarlierOne) {
    m_parser->option("count", "How many.", tarvo2::vt_int, "g")->defaultValue(variant_t(1))->defaultValue(variant_t(9));
    EXPECT_EQ(help(false), R"(
g
-count=<integer> (9)          How many.

)");
}

TEST_F(HelpText, NamelessOptionGivesUnknownErrorHandled) {
    EXPECT_STREQ(m_parser->getErrorDesc(), "");
    m_parser->option("", "No names at all.", tarvo2::vt_int, "g");
    char const* text = m_parser->getDescription(false);
    EXPECT_STREQ(text, "Unknown error handled.");
    EXPECT_STREQ(m_parser->getErrorDesc(), "Unknown error handled.");
    EXPECT_EQ(text, m_parser->getErrorDesc());
}

TEST_F(HelpText, NamelessOptionOutsideTheRequestedGroupsDoesNotFail) {
    m_parser->option("", "No names at all.", tarvo2::vt_int, "g");
    EXPECT_EQ(help(true), "\n");
    EXPECT_STREQ(m_parser->getErrorDesc(), "");
}

TEST_F(HelpText, SameTextTwiceGivesTheSamePointer) {
    m_parser->option("x", "Anything.", tarvo2::vt_empty, "g");
    char const* first = m_parser->getDescription(false);
    char const* second = m_parser->getDescription(false);
    EXPECT_EQ(first, second);
}

TEST_F(HelpText, EarlierTextStaysValidAfterTheTableGrows) {
    m_parser->option("x", "Anything.", tarvo2::vt_empty, "g");
    char const* before = m_parser->getDescription(false);
    m_parser->option("y", "More.", tarvo2::vt_empty, "g");
    char const* after = m_parser->getDescription(false);
    EXPECT_NE(before, after);
    EXPECT_STREQ(before, R"(
g
-x                            Anything.

)");
    EXPECT_STREQ(after, R"(
g
-x                            Anything.
-y                            More.

)");
}

}  // namespace
