// The two ways a host hands arguments in: its argc/argv pair and an option
// text with one argument per line.
#include <gtest/gtest.h>
#include <quen_3_1/quen.h>

#include <string>
#include <vector>

#include "support/public_fixture.h"

using quen_3_1::FlagUnknownIsError;
using quen_3_1::Value;
using quen_test::ArgvBuilder;
using quen_test::kNoNumber;
using quen_test::occurrencesOf;
using quen_test::ParserHarness;
using quen_test::plainArgumentsOf;
using quen_test::textsOf;

namespace {

using StringList = std::vector<std::string>;

class ArgsVector : public quen_test::PublicTest {};
class OptionText : public quen_test::PublicTest {};
class EscapedException : public quen_test::PublicTest {};

// A parser with an integer option that has a default and one that has none.
void declareLevelAndName(ParserHarness& harness) {
    harness.option("name", tarvo2::vt_str);
    harness.option("level", tarvo2::vt_int)->defaultValue(tarvo2::variant_t(3));
}

TEST_F(ArgsVector, DefaultsAreNumberedBeforeAnyArgument) {
    ParserHarness harness;
    declareLevelAndName(harness);
    ASSERT_EQ(harness.parseArgs({"--name=bob"}), 0);

    Value const name = harness.result()->get("name", 0, kNoNumber);
    Value const level = harness.result()->get("level", 0, kNoNumber);
    ASSERT_EQ(name.m_status, 0);
    ASSERT_EQ(level.m_status, 0);
    EXPECT_STREQ(level.m_text, "3");
    EXPECT_EQ(level.m_value.as<int>(), 3);
    // "level" is declared after "name", yet its default precedes the parsed value.
    EXPECT_LT(level.m_index, name.m_index);
}

TEST_F(ArgsVector, GivenValueHidesTheDefault) {
    ParserHarness harness;
    declareLevelAndName(harness);
    ASSERT_EQ(harness.parseArgs({"--level=5"}), 0);
    EXPECT_EQ(textsOf(harness.result(), "level"), StringList({"5"}));
}

TEST_F(ArgsVector, ProgramNameAloneGivesOnlyDefaults) {
    ParserHarness harness;
    declareLevelAndName(harness);
    harness.option("file", tarvo2::vt_str)->positional();
    ArgvBuilder argv({"--name=prog"});
    ASSERT_EQ(argv.argc(), 1);

    EXPECT_EQ(harness.parser()->parseArgsVector(argv.argc(), argv.argv(), harness.result()), 0);
    EXPECT_EQ(textsOf(harness.result(), "level"), StringList({"3"}));
    EXPECT_FALSE(harness.result()->present("name", 0, kNoNumber));
    EXPECT_FALSE(harness.result()->present("file", 0, kNoNumber));
    EXPECT_EQ(plainArgumentsOf(harness.result()), StringList());
}

TEST_F(ArgsVector, ArgcZeroBehavesLikeProgramNameAlone) {
    ParserHarness harness;
    declareLevelAndName(harness);
    char* argv[] = {nullptr};

    EXPECT_EQ(harness.parser()->parseArgsVector(0, argv, harness.result()), 0);
    EXPECT_EQ(textsOf(harness.result(), "level"), StringList({"3"}));
    EXPECT_FALSE(harness.result()->present("name", 0, kNoNumber));
    EXPECT_EQ(plainArgumentsOf(harness.result()), StringList());
}

TEST_F(ArgsVector, ProgramNameIsNeverAnArgument) {
    ParserHarness harness;
    declareLevelAndName(harness);
    harness.option("file", tarvo2::vt_str)->positional();
    ArgvBuilder argv({"--level=9", "input.txt", "--name=ann"});

    ASSERT_EQ(harness.parser()->parseArgsVector(argv.argc(), argv.argv(), harness.result()), 0);
    EXPECT_EQ(textsOf(harness.result(), "file"), StringList({"input.txt"}));
    EXPECT_EQ(textsOf(harness.result(), "name"), StringList({"ann"}));
    EXPECT_EQ(textsOf(harness.result(), "level"), StringList({"3"}));
}

TEST_F(ArgsVector, NullEntryFailsAfterDefaultsAndKeepsTheErrorText) {
    ParserHarness harness(FlagUnknownIsError);
    declareLevelAndName(harness);
    ASSERT_EQ(harness.parseArgs({"--zzz"}), 2);
    ASSERT_EQ(harness.error(), "Unknown option: --zzz");
    harness.renewResult();

    ArgvBuilder argv({"prog", "--level=5", "null here", "--name=bob"});
    argv.setNull(2);
    EXPECT_EQ(harness.parser()->parseArgsVector(argv.argc(), argv.argv(), harness.result()), 3);
    EXPECT_EQ(harness.error(), "Unknown option: --zzz");
    // The defaults were applied; nothing was parsed.
    EXPECT_EQ(textsOf(harness.result(), "level"), StringList({"3"}));
    EXPECT_EQ(occurrencesOf(harness.result(), "level"), std::vector<int>());
    EXPECT_FALSE(harness.result()->present("name", 0, kNoNumber));
}

TEST_F(OptionText, OneArgumentPerLine) {
    ParserHarness harness;
    declareLevelAndName(harness);
    ASSERT_EQ(harness.parseText("--level=5\n--name\nbob\n"), 0);
    EXPECT_EQ(textsOf(harness.result(), "level"), StringList({"5"}));
    EXPECT_EQ(textsOf(harness.result(), "name"), StringList({"bob"}));
}

TEST_F(OptionText, LeadingWhiteSpaceIsSkipped) {
    ParserHarness harness;
    harness.option("file", tarvo2::vt_str)->positional();
    ASSERT_EQ(harness.parseText("  -a\r\n\t-a\n \t \v\f-a\n"), 0);
    EXPECT_EQ(textsOf(harness.result(), "file"), StringList({"-a", "-a", "-a"}));
}

TEST_F(OptionText, TrailingBlanksAndTabsAreKept) {
    ParserHarness harness;
    harness.option("file", tarvo2::vt_str)->positional();
    ASSERT_EQ(harness.parseText("-a  \n-b\t\r\nc \r\r\n"), 0);
    EXPECT_EQ(textsOf(harness.result(), "file"), StringList({"-a  ", "-b\t", "c "}));
}

TEST_F(OptionText, TrailingBlanksShowInTheUnknownOptionMessage) {
    ParserHarness harness(FlagUnknownIsError);
    EXPECT_EQ(harness.parseText("-a  \n"), 2);
    EXPECT_EQ(harness.error(), "Unknown option: -a  ");
}

TEST_F(OptionText, LineIsOneArgumentBlanksIncluded) {
    ParserHarness harness;
    declareLevelAndName(harness);
    ASSERT_EQ(harness.parseText("--name=Ann Lee\n"), 0);
    EXPECT_EQ(textsOf(harness.result(), "name"), StringList({"Ann Lee"}));
}

TEST_F(OptionText, CommentLinesAreDropped) {
    ParserHarness harness(FlagUnknownIsError);
    declareLevelAndName(harness);
    ASSERT_EQ(harness.parseText(";--level=5\n#--level=6\n   # --level=7\n\t;--zzz\n--name=a#b;c\n"), 0);
    EXPECT_FALSE(harness.result()->present("level", 0, kNoNumber));
    EXPECT_EQ(textsOf(harness.result(), "name"), StringList({"a#b;c"}));
}

TEST_F(OptionText, NoDefaultsAreApplied) {
    ParserHarness harness;
    declareLevelAndName(harness);
    ASSERT_EQ(harness.parseText("--name=bob\n"), 0);
    EXPECT_FALSE(harness.result()->present("level", 0, kNoNumber));
    EXPECT_EQ(harness.result()->get("level", 0, kNoNumber).m_status, 1);
}

TEST_F(OptionText, LastLineNeedsNoNewline) {
    ParserHarness harness;
    declareLevelAndName(harness);
    ASSERT_EQ(harness.parseText("--level=5\n--name=bob"), 0);
    EXPECT_EQ(textsOf(harness.result(), "level"), StringList({"5"}));
    EXPECT_EQ(textsOf(harness.result(), "name"), StringList({"bob"}));
}

TEST_F(OptionText, EmptyTextReturnsZero) {
    ParserHarness harness(FlagUnknownIsError);
    harness.option("file", tarvo2::vt_str)->positional();
    EXPECT_EQ(harness.parseText(""), 0);
    EXPECT_FALSE(harness.result()->present("file", 0, kNoNumber));
    EXPECT_EQ(plainArgumentsOf(harness.result()), StringList());
}

TEST_F(OptionText, OnlyCommentsAndBlankLinesReturnZero) {
    ParserHarness harness(FlagUnknownIsError);
    harness.option("file", tarvo2::vt_str)->positional();
    EXPECT_EQ(harness.parseText("# first\n\n   \n; second\n\t\r\n\r\n"), 0);
    EXPECT_FALSE(harness.result()->present("file", 0, kNoNumber));
    EXPECT_EQ(plainArgumentsOf(harness.result()), StringList());
}

TEST_F(OptionText, TerminatorEndsRecognition) {
    ParserHarness harness(FlagUnknownIsError);
    declareLevelAndName(harness);
    ASSERT_EQ(harness.parseText("--level=5\n--\n--level=6\n--zzz\n"), 0);
    EXPECT_EQ(textsOf(harness.result(), "level"), StringList({"5"}));
    EXPECT_EQ(plainArgumentsOf(harness.result()), StringList({"--level=6", "--zzz"}));
}

TEST_F(OptionText, AddsToWhatTheCommandLineGave) {
    ParserHarness harness;
    declareLevelAndName(harness);
    ASSERT_EQ(harness.parseArgs({"--name=ann"}), 0);
    ASSERT_EQ(harness.parseText("--name=bob\n--level=4\n"), 0);
    EXPECT_EQ(textsOf(harness.result(), "name"), StringList({"ann", "bob"}));
    EXPECT_EQ(textsOf(harness.result(), "level"), StringList({"4"}));
}

TEST_F(EscapedException, TextEndingInSeparatorOnUnsigned64Option) {
    ParserHarness harness;
    harness.option("size", tarvo2::vt_uint64);
    harness.option("name", tarvo2::vt_str);
    // "1," splits into "1" and a one-NUL piece, which converts as an empty text and throws.
    EXPECT_EQ(harness.parseText("--name=bob\n--size=1,\n--name=late\n"), 4);
    EXPECT_EQ(harness.error(), "Unidentified problem detected.");
    EXPECT_EQ(textsOf(harness.result(), "name"), StringList({"bob"}));
    EXPECT_FALSE(harness.result()->present("size", 0, kNoNumber));
}

TEST_F(EscapedException, CommandLineGivesTheSameCode) {
    ParserHarness harness;
    harness.option("size", tarvo2::vt_uint64);
    EXPECT_EQ(harness.parseArgs({"--size=1,"}), 4);
    EXPECT_EQ(harness.error(), "Unidentified problem detected.");
}

TEST_F(EscapedException, IntegerAllowedValueOnTextOption) {
    ParserHarness harness;
    harness.option("mode", tarvo2::vt_str)->allowValue(tarvo2::variant_t(5));
    EXPECT_EQ(harness.parseText("--mode=fast\n"), 4);
    EXPECT_EQ(harness.error(), "Unidentified problem detected.");
    EXPECT_FALSE(harness.result()->present("mode", 0, kNoNumber));
}

}  // namespace
