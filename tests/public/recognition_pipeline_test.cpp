// How the recognizers share out a command line: the trace switch, unknown
// arguments, the "--" terminator, the positional flags and failures.
#include <gtest/gtest.h>
#include <quen_3_1/quen.h>

#include <string>
#include <vector>

#include "support/capture.h"
#include "support/public_fixture.h"

using quen_3_1::FlagNoHyphenPositional;
using quen_3_1::FlagPositionalAfterTerminator;
using quen_3_1::FlagPositionalRun;
using quen_3_1::FlagUnknownIsError;
using quen_3_1::Value;
using quen_test::FdCapture;
using quen_test::kNoNumber;
using quen_test::kTraceSwitch;
using quen_test::occurrencesOf;
using quen_test::ParserHarness;
using quen_test::plainArgumentsOf;
using quen_test::textsOf;

namespace {

using StringList = std::vector<std::string>;

class Pipeline : public quen_test::PublicTest {};
class TraceSwitch : public quen_test::PublicTest {};
class UnknownArgument : public quen_test::PublicTest {};
class Terminator : public quen_test::PublicTest {};
class PositionalFlags : public quen_test::PublicTest {};
class Failure : public quen_test::PublicTest {};

// Answers onUknownArgument with a fixed verdict and remembers what it was asked.
class UnknownArgumentJudge final : public quen_3_1::EventHandler {
public:
    explicit UnknownArgumentJudge(bool verdict) : m_verdict(verdict) {}
    bool onUknownArgument(char const* argument) override {
        m_asked.emplace_back(argument);
        return m_verdict;
    }
    StringList const& asked() const { return m_asked; }

private:
    bool m_verdict;
    StringList m_asked;
};

// Refuses one value text.
class ValueVeto final : public quen_3_1::EventHandler {
public:
    explicit ValueVeto(std::string refused) : m_refused(std::move(refused)) {}
    bool onValueParse(char const* /*name*/, Value const& value) override { return m_refused != value.m_text; }

private:
    std::string m_refused;
};

TEST_F(Pipeline, EmptyListReturnsZeroAndStoresNothing) {
    ParserHarness harness(FlagUnknownIsError);
    harness.option("file", tarvo2::vt_str)->positional();
    EXPECT_EQ(harness.parseText(""), 0);
    EXPECT_FALSE(harness.result()->present("file", 0, kNoNumber));
    EXPECT_EQ(plainArgumentsOf(harness.result()), StringList());
}

TEST_F(Pipeline, ArgumentBothRecognizersClaimGoesToTheNamedOption) {
    ParserHarness harness;
    harness.option("file", tarvo2::vt_str)->positional();
    harness.option("level", tarvo2::vt_int);
    ASSERT_EQ(harness.parseArgs({"--level=3", "a.txt"}), 0);
    EXPECT_EQ(textsOf(harness.result(), "level"), StringList({"3"}));
    EXPECT_EQ(textsOf(harness.result(), "file"), StringList({"a.txt"}));
}

TEST_F(TraceSwitch, EmptyListStillSwitchesTracingOff) {
    ParserHarness harness;
    harness.option("verbose,v", tarvo2::vt_bool);
    ASSERT_EQ(harness.parseArgs({kTraceSwitch}), 0);
    ASSERT_EQ(harness.parseText(""), 0);

    quen_test::Outputs const written = quen_test::outputsOf([&] { harness.option("v", tarvo2::vt_int); });
    EXPECT_EQ(written.out, "");
    EXPECT_EQ(written.err, "v\n");
}

TEST_F(TraceSwitch, SwitchIsNeitherAnOptionNorAPlainArgument) {
    ParserHarness harness;
    harness.option("file", tarvo2::vt_str)->positional();
    FdCapture out(1);
    ASSERT_EQ(harness.parseArgs({kTraceSwitch, "a"}), 0);
    std::string const trace = out.finish();
    EXPECT_EQ(textsOf(harness.result(), "file"), StringList({"a"}));
    EXPECT_EQ(plainArgumentsOf(harness.result()), StringList());
    EXPECT_EQ(trace.find("quenoption"), std::string::npos) << trace;
}

TEST_F(TraceSwitch, AsSecondArgumentItIsAnOrdinaryArgument) {
    ParserHarness harness;
    harness.option("file", tarvo2::vt_str)->positional();
    FdCapture out(1);
    ASSERT_EQ(harness.parseArgs({"a", kTraceSwitch}), 0);
    EXPECT_EQ(out.finish(), "");
    EXPECT_EQ(textsOf(harness.result(), "file"), StringList({"a", kTraceSwitch}));
}

TEST_F(TraceSwitch, AsSecondArgumentItCanBeUnknown) {
    ParserHarness harness(FlagUnknownIsError);
    harness.option("level", tarvo2::vt_int);
    FdCapture out(1);
    EXPECT_EQ(harness.parseArgs({"--level=1", kTraceSwitch}), 2);
    EXPECT_EQ(out.finish(), "");
    EXPECT_EQ(harness.error(), "Unknown option: quenoption=quenlogenable=1");
}

TEST_F(TraceSwitch, OnlyTheExactTextCounts) {
    for (char const* text :
         {"quenoption=quenlogenable=1 \n", "QUENOPTION=QUENLOGENABLE=1\n", "quenoption=quenlogenable=10\n"}) {
        ParserHarness harness(FlagUnknownIsError);
        FdCapture out(1);
        EXPECT_EQ(harness.parseText(text), 2) << text;
        EXPECT_EQ(out.finish(), "") << text;
        EXPECT_EQ(harness.error(), "Unknown option: " + std::string(text, std::string(text).size() - 1)) << text;
    }
}

TEST_F(TraceSwitch, LeadingBlanksOfAnOptionTextLineAreNotPartOfIt) {
    ParserHarness harness;
    FdCapture out(1);
    ASSERT_EQ(harness.parseText("  \tquenoption=quenlogenable=1\r\nx\n"), 0);
    EXPECT_EQ(out.finish(),
              "PositionalOptionsParser: recognizing argument 'x'\n"
              "AbbreviationParser: recognizing argument 'x'\n"
              "ignoring x\n");
}

TEST_F(TraceSwitch, HoldsForOneParseOnly) {
    ParserHarness harness;
    FdCapture first(1);
    ASSERT_EQ(harness.parseArgs({kTraceSwitch, "stray"}), 0);
    EXPECT_EQ(first.finish(),
              "PositionalOptionsParser: recognizing argument 'stray'\n"
              "AbbreviationParser: recognizing argument 'stray'\n"
              "ignoring stray\n");

    FdCapture second(1);
    ASSERT_EQ(harness.parseArgs({"stray"}), 0);
    EXPECT_EQ(second.finish(), "");
}

TEST_F(UnknownArgument, DroppedWithoutFlags) {
    ParserHarness harness;
    harness.option("level", tarvo2::vt_int);
    FdCapture out(1);
    ASSERT_EQ(harness.parseArgs({"--zzz", "--level=1", "stray"}), 0);
    EXPECT_EQ(out.finish(), "");
    EXPECT_EQ(textsOf(harness.result(), "level"), StringList({"1"}));
    EXPECT_EQ(plainArgumentsOf(harness.result()), StringList());
}

TEST_F(UnknownArgument, DroppedWithAnIgnoringLineWhenTracing) {
    ParserHarness harness;
    FdCapture out(1);
    ASSERT_EQ(harness.parseText("quenoption=quenlogenable=1\n--zzz\n"), 0);
    EXPECT_EQ(out.finish(),
              "PositionalOptionsParser: recognizing argument '--zzz'\n"
              "AbbreviationParser: recognizing argument '--zzz'\n"
              "ignoring --zzz\n");
}

TEST_F(UnknownArgument, HandlersHearOfItWithoutFlags) {
    ParserHarness harness;
    UnknownArgumentJudge judge(true);
    ASSERT_TRUE(harness.parser()->addHandler(&judge));
    ASSERT_EQ(harness.parseArgs({"--zzz", "x"}), 0);
    EXPECT_EQ(judge.asked(), StringList({"--zzz", "x"}));
}

TEST_F(UnknownArgument, ErrorWithFlagUnknownIsError) {
    ParserHarness harness(FlagUnknownIsError);
    harness.option("level", tarvo2::vt_int);
    EXPECT_EQ(harness.parseArgs({"--level=1", "--zzz", "--level=2"}), 2);
    EXPECT_EQ(harness.error(), "Unknown option: --zzz");
    EXPECT_EQ(textsOf(harness.result(), "level"), StringList({"1"}));
}

TEST_F(UnknownArgument, ErrorWhenTheHandlerConfirms) {
    ParserHarness harness(FlagUnknownIsError);
    UnknownArgumentJudge judge(true);
    ASSERT_TRUE(harness.parser()->addHandler(&judge));
    EXPECT_EQ(harness.parseArgs({"--zzz"}), 2);
    EXPECT_EQ(harness.error(), "Unknown option: --zzz");
    EXPECT_EQ(judge.asked(), StringList({"--zzz"}));
}

TEST_F(UnknownArgument, ExcusedByAHandlerThatReturnsFalse) {
    ParserHarness harness(FlagUnknownIsError);
    harness.option("level", tarvo2::vt_int);
    UnknownArgumentJudge judge(false);
    ASSERT_TRUE(harness.parser()->addHandler(&judge));
    FdCapture out(1);
    EXPECT_EQ(harness.parseArgs({"--level=1", "--zzz", "--level=2"}), 0);
    EXPECT_EQ(out.finish(), "");
    EXPECT_EQ(judge.asked(), StringList({"--zzz"}));
    EXPECT_EQ(textsOf(harness.result(), "level"), StringList({"1", "2"}));
    EXPECT_EQ(plainArgumentsOf(harness.result()), StringList());
}

TEST_F(UnknownArgument, ExcusedArgumentIsTracedAsIgnored) {
    ParserHarness harness(FlagUnknownIsError);
    UnknownArgumentJudge judge(false);
    ASSERT_TRUE(harness.parser()->addHandler(&judge));
    FdCapture out(1);
    EXPECT_EQ(harness.parseArgs({kTraceSwitch, "--zzz"}), 0);
    EXPECT_EQ(out.finish(),
              "PositionalOptionsParser: recognizing argument '--zzz'\n"
              "AbbreviationParser: recognizing argument '--zzz'\n"
              "ignoring --zzz\n");
}

TEST_F(Terminator, FollowingArgumentsArePlainWithConsecutiveNumbers) {
    ParserHarness harness(FlagUnknownIsError);
    harness.option("level", tarvo2::vt_int);
    ASSERT_EQ(harness.parseArgs({"--level=1", "--", "--level=2", "c"}), 0);
    EXPECT_EQ(plainArgumentsOf(harness.result()), StringList({"--level=2", "c"}));
    // A later occurrence shows that exactly two numbers went to the two plain
    // arguments, right after the first occurrence and its value.
    ASSERT_EQ(harness.parseText("--level=3\n"), 0);
    std::vector<int> const occurrences = occurrencesOf(harness.result(), "level");
    ASSERT_EQ(occurrences.size(), 2u);
    EXPECT_EQ(occurrences[1], occurrences[0] + 4);
    EXPECT_EQ(textsOf(harness.result(), "level"), StringList({"1", "3"}));
}

TEST_F(Terminator, SecondTerminatorIsAPlainArgument) {
    ParserHarness harness;
    harness.option("file", tarvo2::vt_str)->positional();
    ASSERT_EQ(harness.parseArgs({"a", "--", "b", "--", "c"}), 0);
    EXPECT_EQ(textsOf(harness.result(), "file"), StringList({"a"}));
    EXPECT_EQ(plainArgumentsOf(harness.result()), StringList({"b", "--", "c"}));
}

TEST_F(Terminator, ListEndingWithItStoresNothing) {
    ParserHarness harness;
    harness.option("level", tarvo2::vt_int);
    ASSERT_EQ(harness.parseArgs({"--level=1", "--"}), 0);
    EXPECT_EQ(plainArgumentsOf(harness.result()), StringList());
    // No number was taken for the terminator.
    ASSERT_EQ(harness.parseText("--level=2\n"), 0);
    std::vector<int> const occurrences = occurrencesOf(harness.result(), "level");
    ASSERT_EQ(occurrences.size(), 2u);
    EXPECT_EQ(occurrences[1], occurrences[0] + 2);
}

TEST_F(Terminator, PlainArgumentsAccumulateOverParses) {
    ParserHarness harness;
    ASSERT_EQ(harness.parseArgs({"--", "a"}), 0);
    ASSERT_EQ(harness.parseText("--\nb\n"), 0);
    EXPECT_EQ(plainArgumentsOf(harness.result()), StringList({"a", "b"}));
}

TEST_F(PositionalFlags, AfterTerminatorFillsThePositionalOption) {
    ParserHarness harness(FlagPositionalAfterTerminator);
    harness.option("file", tarvo2::vt_str)->positional();
    FdCapture out(1);
    ASSERT_EQ(harness.parseArgs({kTraceSwitch, "--", "x"}), 0);
    EXPECT_EQ(out.finish(),
              "collectNonparsingArguments: stored argument: 'x'\n"
              "PositionalOptionsParser: recognizing argument 'x'\n"
              "collectNonparsingArguments: recognize result: 0, message: \n"
              "PositionalOptionsParser: parsing argument 'x'\n"
              "PositionalOptionsParser: option is 'file'\n"
              "PositionalOptionsParser: adding values to result container:\n"
              "PositionalOptionsParser: using tokenizer on char: ','\n"
              "PositionalOptionsParser: value is: 'x'\n"
              "PositionalOptionsParser: sent event on value parsed, option: 'file', value: 'x'\n"
              "PositionalOptionsParser: stored option to result container.\n"
              "PositionalOptionsParser: removing argument: 'x'\n"
              "collectNonparsingArguments: parse result: 0, message: \n");
    EXPECT_EQ(plainArgumentsOf(harness.result()), StringList({"x"}));
    EXPECT_EQ(textsOf(harness.result(), "file"), StringList({"x"}));
}

TEST_F(PositionalFlags, AfterTerminatorWithoutPositionalOptionOnlyRecognizes) {
    ParserHarness harness(FlagPositionalAfterTerminator);
    FdCapture out(1);
    ASSERT_EQ(harness.parseArgs({kTraceSwitch, "--", "x"}), 0);
    EXPECT_EQ(out.finish(),
              "collectNonparsingArguments: stored argument: 'x'\n"
              "PositionalOptionsParser: recognizing argument 'x'\n"
              "collectNonparsingArguments: recognize result: 1, message: \n");
    EXPECT_EQ(plainArgumentsOf(harness.result()), StringList({"x"}));
}

TEST_F(PositionalFlags, AfterTerminatorHyphenArgumentsFillThePositionalOption) {
    ParserHarness harness(FlagPositionalAfterTerminator | FlagNoHyphenPositional);
    harness.option("file", tarvo2::vt_str)->positional();
    ASSERT_EQ(harness.parseArgs({"--", "-y", "--level=2"}), 0);
    EXPECT_EQ(textsOf(harness.result(), "file"), StringList({"-y", "--level=2"}));
    EXPECT_EQ(plainArgumentsOf(harness.result()), StringList({"-y", "--level=2"}));
}

TEST_F(PositionalFlags, AfterTerminatorFailingPositionalParseReturnsItsCode) {
    ParserHarness harness(FlagPositionalAfterTerminator);
    harness.option("count", tarvo2::vt_int)->positional();
    EXPECT_EQ(harness.parseArgs({"--", "5", "abc", "7"}), 2);
    EXPECT_EQ(harness.error(),
              "Value validation problem in argument 'abc': Option 'count' can not parse 'abc' value, requires a type "
              "'integer' here.");
    // What came before the failure stays; what follows it is not reached.
    EXPECT_EQ(textsOf(harness.result(), "count"), StringList({"5"}));
    EXPECT_EQ(plainArgumentsOf(harness.result()), StringList({"5", "abc"}));
}

TEST_F(PositionalFlags, AfterTerminatorFailureIsTraced) {
    ParserHarness harness(FlagPositionalAfterTerminator);
    harness.option("count", tarvo2::vt_int)->tokenize(0)->positional();
    FdCapture out(1);
    EXPECT_EQ(harness.parseArgs({kTraceSwitch, "--", "abc"}), 2);
    EXPECT_EQ(out.finish(),
              "collectNonparsingArguments: stored argument: 'abc'\n"
              "PositionalOptionsParser: recognizing argument 'abc'\n"
              "collectNonparsingArguments: recognize result: 0, message: \n"
              "PositionalOptionsParser: parsing argument 'abc'\n"
              "PositionalOptionsParser: option is 'count'\n"
              "PositionalOptionsParser: adding values to result container:\n"
              "PositionalOptionsParser: not using tokenizer\n"
              "PositionalOptionsParser: Value validation problem in argument 'abc': Option 'count' can not parse "
              "'abc' value, requires a type 'integer' here.\n"
              "collectNonparsingArguments: parse result: 2, message: Value validation problem in argument 'abc': "
              "Option 'count' can not parse 'abc' value, requires a type 'integer' here.\n");
}

TEST_F(PositionalFlags, WithoutAfterTerminatorPlainArgumentsStayPlain) {
    ParserHarness harness;
    harness.option("file", tarvo2::vt_str)->positional();
    ASSERT_EQ(harness.parseArgs({"a", "--", "b"}), 0);
    EXPECT_EQ(textsOf(harness.result(), "file"), StringList({"a"}));
    EXPECT_EQ(plainArgumentsOf(harness.result()), StringList({"b"}));
}

TEST_F(PositionalFlags, WithoutNoHyphenUnknownOptionFillsThePositionalOption) {
    ParserHarness harness(FlagUnknownIsError);
    harness.option("file", tarvo2::vt_str)->positional();
    ASSERT_EQ(harness.parseArgs({"a", "--zzz", "-b"}), 0);
    EXPECT_EQ(textsOf(harness.result(), "file"), StringList({"a", "--zzz", "-b"}));
}

TEST_F(PositionalFlags, NoHyphenLeavesHyphenArgumentsUnclaimed) {
    ParserHarness harness(FlagNoHyphenPositional);
    harness.option("file", tarvo2::vt_str)->positional();
    ASSERT_EQ(harness.parseArgs({"a", "-b", "c"}), 0);
    EXPECT_EQ(textsOf(harness.result(), "file"), StringList({"a", "c"}));
    EXPECT_EQ(plainArgumentsOf(harness.result()), StringList());
}

TEST_F(PositionalFlags, NoHyphenWithUnknownIsErrorFails) {
    ParserHarness harness(FlagNoHyphenPositional | FlagUnknownIsError);
    harness.option("file", tarvo2::vt_str)->positional();
    EXPECT_EQ(harness.parseArgs({"a", "-b", "c"}), 2);
    EXPECT_EQ(harness.error(), "Unknown option: -b");
    EXPECT_EQ(textsOf(harness.result(), "file"), StringList({"a"}));
}

TEST_F(PositionalFlags, NoHyphenStillTakesAnEmptyArgument) {
    ParserHarness harness(FlagNoHyphenPositional | FlagUnknownIsError);
    harness.option("file", tarvo2::vt_str)->positional();
    ASSERT_EQ(harness.parseArgs({"", "b"}), 0);
    EXPECT_EQ(textsOf(harness.result(), "file"), StringList({"b"}));
    EXPECT_EQ(occurrencesOf(harness.result(), "file").size(), 2u);
}

TEST_F(PositionalFlags, RunTakesEveryRemainingArgument) {
    ParserHarness harness(FlagPositionalRun | FlagUnknownIsError);
    harness.option("file", tarvo2::vt_str)->positional();
    harness.option("level", tarvo2::vt_int);
    ASSERT_EQ(harness.parseArgs({"--level=1", "a", "--level=2", "-x", "b"}), 0);
    EXPECT_EQ(textsOf(harness.result(), "level"), StringList({"1"}));
    EXPECT_EQ(textsOf(harness.result(), "file"), StringList({"a", "--level=2", "-x", "b"}));
}

TEST_F(PositionalFlags, RunSwallowsTheTerminator) {
    ParserHarness harness(FlagPositionalRun);
    harness.option("file", tarvo2::vt_str)->positional();
    // The pipeline looks for "--" only between recognizer steps, and the run is one step.
    ASSERT_EQ(harness.parseArgs({"a", "--", "b"}), 0);
    EXPECT_EQ(textsOf(harness.result(), "file"), StringList({"a", "--", "b"}));
    EXPECT_EQ(plainArgumentsOf(harness.result()), StringList());
}

TEST_F(PositionalFlags, RunFailureKeepsWhatItTookBefore) {
    ParserHarness harness(FlagPositionalRun);
    harness.option("count", tarvo2::vt_int)->positional();
    EXPECT_EQ(harness.parseArgs({"1", "2", "x", "3"}), 2);
    EXPECT_EQ(harness.error(),
              "Value validation problem in argument 'x': Option 'count' can not parse 'x' value, requires a type "
              "'integer' here.");
    EXPECT_EQ(textsOf(harness.result(), "count"), StringList({"1", "2"}));
}

TEST_F(Failure, HandlerVetoReturnsOneWithItsMessage) {
    ParserHarness harness;
    harness.option("name", tarvo2::vt_str);
    ValueVeto veto("bad");
    ASSERT_TRUE(harness.parser()->addHandler(&veto));
    EXPECT_EQ(harness.parseArgs({"--name=ok", "--name", "bad", "--name=late"}), 1);
    EXPECT_EQ(harness.error(), "Value 'bad' is not valid for option 'name' in argument '--name'");
    EXPECT_EQ(textsOf(harness.result(), "name"), StringList({"ok"}));
}

TEST_F(Failure, VetoOfOnePieceNamesTheWholeValueText) {
    ParserHarness harness;
    harness.option("name", tarvo2::vt_str);
    ValueVeto veto("bad");
    ASSERT_TRUE(harness.parser()->addHandler(&veto));
    EXPECT_EQ(harness.parseText("--name=good,bad\n"), 1);
    EXPECT_EQ(harness.error(), "Value 'good,bad' is not valid for option 'name' in argument '--name=good,bad'");
    EXPECT_FALSE(harness.result()->present("name", 0, kNoNumber));
}

TEST_F(Failure, EverythingStoredBeforeStays) {
    ParserHarness harness(FlagUnknownIsError);
    harness.option("file", tarvo2::vt_str)->positional();
    harness.option("level", tarvo2::vt_int);
    harness.option("verbose", tarvo2::vt_bool);
    EXPECT_EQ(harness.parseArgs({"--level=1", "in.txt", "--verbose", "--level=x", "out.txt", "--", "tail"}), 2);
    EXPECT_EQ(harness.error(),
              "Value validation problem in argument '--level=x': Option 'level' can not parse 'x' value, requires a "
              "type 'integer' here.");
    EXPECT_EQ(textsOf(harness.result(), "level"), StringList({"1"}));
    EXPECT_EQ(textsOf(harness.result(), "file"), StringList({"in.txt"}));
    EXPECT_EQ(textsOf(harness.result(), "verbose"), StringList({"1"}));
    EXPECT_EQ(plainArgumentsOf(harness.result()), StringList());
}

TEST_F(Failure, RecognizerMessageBecomesTheErrorText) {
    ParserHarness harness;
    harness.option("verbose", tarvo2::vt_bool);
    harness.option("version", tarvo2::vt_bool);
    EXPECT_EQ(harness.parseArgs({"--ver"}), 2);
    EXPECT_EQ(harness.error(), "Ambiguous option 'ver' in argument: '--ver', could be: 'verbose', 'version'");
}

}  // namespace
