// Hosts that care about order rebuild the command line from sequence numbers:
// every occurrence and every value is numbered, and the numbers of one
// command line, or of a command line followed by an option text, increase in
// the order in which things were written.
#include <gtest/gtest.h>
#include <quen_3_1/quen.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "support/public_fixture.h"

using quen_3_1::FlagNoHyphenPositional;
using quen_3_1::FlagPositionalAfterTerminator;
using quen_3_1::IParseResult;
using quen_3_1::Value;
using quen_test::kNoNumber;
using quen_test::occurrencesOf;
using quen_test::ParserHarness;
using quen_test::plainArgumentsOf;
using quen_test::textsOf;
using quen_test::valuesOf;

namespace {

using StringList = std::vector<std::string>;

class CommandLineOrder : public quen_test::PublicTest {};
class RangeSelection : public quen_test::PublicTest {};

char const* const kPrimaryNames[] = {"verbose", "level", "log-file", "include", "color", "dry-run", "jobs", "file"};

void declareOptions(ParserHarness& harness) {
    harness.option("verbose,v", tarvo2::vt_bool);
    harness.option("level,l", tarvo2::vt_int);
    harness.option("log-file", tarvo2::vt_str);
    harness.option("include,I", tarvo2::vt_str);
    harness.option("color", tarvo2::vt_bool)->defaultValue(tarvo2::variant_t(true));
    harness.option("dry-run", tarvo2::vt_empty);
    harness.option("jobs", tarvo2::vt_uint)->defaultValue(tarvo2::variant_t(4u));
    harness.option("file", tarvo2::vt_str)->positional();
}

// Every occurrence as "name" and every value as "name=text", sorted by sequence number.
StringList commandLineOrder(IParseResult* result) {
    std::vector<std::pair<int, std::string>> events;
    for (char const* name : kPrimaryNames) {
        for (int number : occurrencesOf(result, name)) {
            events.emplace_back(number, name);
        }
        for (Value const& value : valuesOf(result, name)) {
            // Options without values yield their occurrences again, without text.
            if (value.m_text != nullptr) {
                events.emplace_back(value.m_index, std::string(name) + "=" + value.m_text);
            }
        }
    }
    std::sort(events.begin(), events.end());
    StringList order;
    for (std::size_t i = 0; i < events.size(); ++i) {
        if (i > 0 && events[i].first == events[i - 1].first) {
            ADD_FAILURE() << "number " << events[i].first << " given twice";
        }
        order.push_back(events[i].second);
    }
    return order;
}

TEST_F(CommandLineOrder, EveryFormInWrittenOrder) {
    ParserHarness harness(FlagNoHyphenPositional | FlagPositionalAfterTerminator);
    declareOptions(harness);
    ASSERT_EQ(harness.parseArgs({"-v", "--level", "2", "--l-f=run.log", "a.txt", "--zzz", "--include=x,y", "--no-col",
                                 "-I", "z", "--dry-run", "b.txt", "--level=5", "-dry-r", "--", "-c.txt", "d.txt"}),
              0);

    // One line per argument, in the order written.
    // clang-format off
    StringList const expected{
        "jobs=4",                                 // default of an option not given
        "verbose", "verbose=1",                   // -v
        "level", "level=2",                       // --level 2
        "log-file", "log-file=run.log",           // --l-f=run.log
        "file", "file=a.txt",                     // a.txt
        "include", "include=x", "include=y",      // --include=x,y
        "color", "color=0",                       // --no-col
        "include", "include=z",                   // -I z
        "dry-run",                                // --dry-run
        "file", "file=b.txt",                     // b.txt
        "level", "level=5",                       // --level=5
        "dry-run",                                // -dry-r
        "file", "file=-c.txt",                    // -- -c.txt
        "file", "file=d.txt"};                    // d.txt
    // clang-format on
    EXPECT_EQ(commandLineOrder(harness.result()), expected);
    EXPECT_EQ(plainArgumentsOf(harness.result()), StringList({"-c.txt", "d.txt"}));
}

TEST_F(CommandLineOrder, OptionTextContinuesTheCommandLine) {
    ParserHarness harness(FlagNoHyphenPositional);
    declareOptions(harness);
    ASSERT_EQ(harness.parseArgs({"--verbose", "-l", "1", "a.txt", "--", "tail"}), 0);
    ASSERT_EQ(harness.parseText("; settings of the run\n"
                                "--level=7\n"
                                "  --include=w\n"
                                "e.txt\n"
                                "--no-verbose\n"
                                "--dry-r\n"
                                "--\n"
                                "more"),
              0);

    EXPECT_EQ(
        commandLineOrder(harness.result()),
        StringList({"color=1", "jobs=4", "verbose", "verbose=1", "level", "level=1", "file", "file=a.txt", "level",
                    "level=7", "include", "include=w", "file", "file=e.txt", "verbose", "verbose=0", "dry-run"}));
    EXPECT_EQ(plainArgumentsOf(harness.result()), StringList({"tail", "more"}));
}

TEST_F(CommandLineOrder, DefaultsPrecedeTheCommandLine) {
    ParserHarness harness;
    declareOptions(harness);
    ASSERT_EQ(harness.parseArgs({"--jobs=2"}), 0);
    EXPECT_EQ(commandLineOrder(harness.result()), StringList({"color=1", "jobs", "jobs=2"}));
    Value const color = harness.result()->get("color", 0, kNoNumber);
    Value const jobs = harness.result()->get("jobs", 0, kNoNumber);
    EXPECT_LT(color.m_index, jobs.m_index);
}

// Sections of a command line: each --input opens one, and the --define values
// and --strict flags that follow belong to it.
class Sections : public RangeSelection {
protected:
    void SetUp() override {
        RangeSelection::SetUp();
        harness.option("input", tarvo2::vt_str);
        harness.option("define,D", tarvo2::vt_str)->tokenize(0);
        harness.option("strict", tarvo2::vt_empty);
        ASSERT_EQ(harness.parseArgs({"-D", "early", "--input=a.src", "--define=x=1", "--strict", "-D", "y", "--strict",
                                     "--input=b.src", "--strict", "-D", "z,w"}),
                  0);
        IParseResult* const result = harness.result();
        ASSERT_STREQ(result->get("input", 0, kNoNumber).m_text, "a.src");
        first = result->nextPosition();
        second = result->nextPosition();
        ASSERT_EQ(result->nextPosition(), kNoNumber);
    }

    ParserHarness harness;
    int first = 0;
    int second = 0;
};

TEST_F(Sections, ValuesBetweenTheFirstAndSecondOccurrence) {
    EXPECT_EQ(textsOf(harness.result(), "define", first, second), StringList({"x=1", "y"}));
    EXPECT_EQ(textsOf(harness.result(), "D", first, second), StringList({"x=1", "y"}));
}

TEST_F(Sections, ValuesBeforeAndAfter) {
    EXPECT_EQ(textsOf(harness.result(), "define", 0, first), StringList({"early"}));
    EXPECT_EQ(textsOf(harness.result(), "define", second, kNoNumber), StringList({"z,w"}));
}

TEST_F(Sections, LastValueOfASection) {
    EXPECT_STREQ(quen_3_1::getLastValue(harness.result(), "define", first, second).m_text, "y");
}

TEST_F(Sections, FlagsOfASectionByOccurrenceNumbers) {
    // next() of an option without values runs past the range, so the host
    // compares the numbers that nextPosition gives with the upper bound.
    IParseResult* const result = harness.result();
    Value const opening = result->get("strict", first, second);
    ASSERT_EQ(opening.m_status, 0);
    std::vector<int> inSection{opening.m_index};
    for (int number = result->nextPosition(); number < second; number = result->nextPosition()) {
        inSection.push_back(number);
    }
    std::vector<int> const all = occurrencesOf(result, "strict");
    ASSERT_EQ(all.size(), 3u);
    EXPECT_EQ(inSection, std::vector<int>({all[0], all[1]}));
    EXPECT_LT(first, all[0]);
    EXPECT_LT(all[1], second);
    EXPECT_LT(second, all[2]);
}

}  // namespace
