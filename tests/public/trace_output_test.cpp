// The trace a parse writes to standard output when its first argument is the
// switch, read back from file descriptor 1 exactly as a terminal gets it.
#include <gtest/gtest.h>
#include <quen_3_1/quen.h>

#include <string>
#include <vector>

#include "support/capture.h"
#include "support/public_fixture.h"

using quen_3_1::FlagNoHyphenPositional;
using quen_3_1::Value;
using quen_test::ArgvBuilder;
using quen_test::FdCapture;
using quen_test::kTraceSwitch;
using quen_test::ParserHarness;
using quen_test::plainArgumentsOf;
using quen_test::textsOf;

namespace {

using StringList = std::vector<std::string>;

class Trace : public quen_test::PublicTest {};

// A host's typical table: a boolean, an integer with a short name, a list,
// a text taken whole, a flag without value and the input files.
void declareTypicalOptions(ParserHarness& harness) {
    harness.option("verbose,v", tarvo2::vt_bool);
    harness.option("level,l", tarvo2::vt_int);
    harness.option("list", tarvo2::vt_str);
    harness.option("name", tarvo2::vt_str)->tokenize(0);
    harness.option("dry-run", tarvo2::vt_empty);
    harness.option("file", tarvo2::vt_str)->positional();
}

StringList typicalCommandLine() {
    return {"--verb", "-l", "3", "--zzz", "--list=a,b", "--name=x,y", "--d-r", "in.txt", "--no-v", "--", "tail", "--"};
}

char const kTypicalTrace[] =
    "PositionalOptionsParser: recognizing argument '--verb'\n"
    "AbbreviationParser: recognizing argument '--verb'\n"
    "AbbreviationParser: best match option for 'verb' in argument '--verb' is 'verbose'\n"
    "AbbreviationParser: parsing argument '--verb'\n"
    "AbbreviationParser: detected option: 'verbose'\n"
    "AbbreviationParser: sent event on option parsed\n"
    "AbbreviationParser: adding values to result container:\n"
    "AbbreviationParser: using tokenizer on char: ','\n"
    "AbbreviationParser: value is: '1'\n"
    "AbbreviationParser: sent event on value parsed, option: 'verbose', value: '1'\n"
    "AbbreviationParser: stored option to result container.\n"
    "AbbreviationParser: removing argument: '--verb'\n"
    "PositionalOptionsParser: recognizing argument '-l'\n"
    "AbbreviationParser: recognizing argument '-l'\n"
    "AbbreviationParser: best match option for 'l' in argument '-l' is 'l'\n"
    "AbbreviationParser: parsing argument '-l'\n"
    "AbbreviationParser: detected option: 'level'\n"
    "AbbreviationParser: no value in the same argument, looking next\n"
    "AbbreviationParser: got value from the next argument: '3'\n"
    "AbbreviationParser: sent event on option parsed\n"
    "AbbreviationParser: adding values to result container:\n"
    "AbbreviationParser: using tokenizer on char: ','\n"
    "AbbreviationParser: value is: '3'\n"
    "AbbreviationParser: sent event on value parsed, option: 'level', value: '3'\n"
    "AbbreviationParser: stored option to result container.\n"
    "AbbreviationParser: removing argument: '-l'\n"
    "AbbreviationParser: removing argument: '3'\n"
    "PositionalOptionsParser: recognizing argument '--zzz'\n"
    "AbbreviationParser: recognizing argument '--zzz'\n"
    "ignoring --zzz\n"
    "PositionalOptionsParser: recognizing argument '--list=a,b'\n"
    "AbbreviationParser: recognizing argument '--list=a,b'\n"
    "AbbreviationParser: best match option for 'list' in argument '--list=a,b' is 'list'\n"
    "AbbreviationParser: parsing argument '--list=a,b'\n"
    "AbbreviationParser: detected option: 'list'\n"
    "AbbreviationParser: value from the same argument taken: 'a,b'\n"
    "AbbreviationParser: sent event on option parsed\n"
    "AbbreviationParser: adding values to result container:\n"
    "AbbreviationParser: using tokenizer on char: ','\n"
    "AbbreviationParser: value is: 'a'\n"
    "AbbreviationParser: sent event on value parsed, option: 'list', value: 'a'\n"
    "AbbreviationParser: value is: 'b'\n"
    "AbbreviationParser: sent event on value parsed, option: 'list', value: 'b'\n"
    "AbbreviationParser: stored option to result container.\n"
    "AbbreviationParser: removing argument: '--list=a,b'\n"
    "PositionalOptionsParser: recognizing argument '--name=x,y'\n"
    "AbbreviationParser: recognizing argument '--name=x,y'\n"
    "AbbreviationParser: best match option for 'name' in argument '--name=x,y' is 'name'\n"
    "AbbreviationParser: parsing argument '--name=x,y'\n"
    "AbbreviationParser: detected option: 'name'\n"
    "AbbreviationParser: value from the same argument taken: 'x,y'\n"
    "AbbreviationParser: sent event on option parsed\n"
    "AbbreviationParser: adding values to result container:\n"
    "AbbreviationParser: not using tokenizer\n"
    "AbbreviationParser: stored option to result container.\n"
    "AbbreviationParser: removing argument: '--name=x,y'\n"
    "PositionalOptionsParser: recognizing argument '--d-r'\n"
    "AbbreviationParser: recognizing argument '--d-r'\n"
    "AbbreviationParser: best match option for 'd-r' in argument '--d-r' is 'dry-run'\n"
    "AbbreviationParser: parsing argument '--d-r'\n"
    "AbbreviationParser: detected option: 'dry-run'\n"
    "AbbreviationParser: sent event on option parsed\n"
    "AbbreviationParser: stored option to result container.\n"
    "AbbreviationParser: removing argument: '--d-r'\n"
    "PositionalOptionsParser: recognizing argument 'in.txt'\n"
    "AbbreviationParser: recognizing argument 'in.txt'\n"
    "PositionalOptionsParser: parsing argument 'in.txt'\n"
    "PositionalOptionsParser: option is 'file'\n"
    "PositionalOptionsParser: adding values to result container:\n"
    "PositionalOptionsParser: using tokenizer on char: ','\n"
    "PositionalOptionsParser: value is: 'in.txt'\n"
    "PositionalOptionsParser: sent event on value parsed, option: 'file', value: 'in.txt'\n"
    "PositionalOptionsParser: stored option to result container.\n"
    "PositionalOptionsParser: removing argument: 'in.txt'\n"
    "PositionalOptionsParser: recognizing argument '--no-v'\n"
    "AbbreviationParser: recognizing argument '--no-v'\n"
    "AbbreviationParser: best match option for 'no-v' in argument '--no-v' is 'no-v'\n"
    "AbbreviationParser: parsing argument '--no-v'\n"
    "AbbreviationParser: detected option: 'verbose'\n"
    "AbbreviationParser: sent event on option parsed\n"
    "AbbreviationParser: adding values to result container:\n"
    "AbbreviationParser: using tokenizer on char: ','\n"
    "AbbreviationParser: value is: '0'\n"
    "AbbreviationParser: sent event on value parsed, option: 'verbose', value: '0'\n"
    "AbbreviationParser: stored option to result container.\n"
    "AbbreviationParser: removing argument: '--no-v'\n"
    "collectNonparsingArguments: stored argument: 'tail'\n"
    "collectNonparsingArguments: stored argument: '--'\n";

// Refuses every value.
class RefuseAll final : public quen_3_1::EventHandler {
public:
    bool onValueParse(char const* /*name*/, Value const& /*value*/) override { return false; }
};

TEST_F(Trace, TypicalCommandLineIsTracedLineByLine) {
    ParserHarness harness(FlagNoHyphenPositional);
    declareTypicalOptions(harness);
    StringList arguments = typicalCommandLine();
    arguments.insert(arguments.begin(), kTraceSwitch);

    FdCapture out(1);
    ASSERT_EQ(harness.parseArgs(arguments), 0);
    EXPECT_EQ(out.finish(), kTypicalTrace);

    EXPECT_EQ(textsOf(harness.result(), "verbose"), StringList({"1", "0"}));
    EXPECT_EQ(textsOf(harness.result(), "level"), StringList({"3"}));
    EXPECT_EQ(textsOf(harness.result(), "list"), StringList({"a", "b"}));
    EXPECT_EQ(textsOf(harness.result(), "name"), StringList({"x,y"}));
    EXPECT_EQ(textsOf(harness.result(), "dry-run").size(), 1u);
    EXPECT_EQ(textsOf(harness.result(), "file"), StringList({"in.txt"}));
    EXPECT_EQ(plainArgumentsOf(harness.result()), StringList({"tail", "--"}));
}

TEST_F(Trace, OptionTextIsTracedTheSameWay) {
    ParserHarness harness(FlagNoHyphenPositional);
    declareTypicalOptions(harness);
    std::string text = std::string(kTraceSwitch) + "\n# a comment\n";
    for (std::string const& argument : typicalCommandLine()) {
        text += "  " + argument + "\r\n";
    }

    FdCapture out(1);
    ASSERT_EQ(harness.parseText(text.c_str()), 0);
    EXPECT_EQ(out.finish(), kTypicalTrace);
}

TEST_F(Trace, NothingOnStandardOutputWithoutTheSwitch) {
    ParserHarness harness(FlagNoHyphenPositional);
    declareTypicalOptions(harness);
    StringList arguments = typicalCommandLine();
    arguments.insert(arguments.begin(), {"--unknown", "-q", "-"});

    FdCapture out(1);
    ASSERT_EQ(harness.parseArgs(arguments), 0);
    EXPECT_EQ(out.finish(), "");
    EXPECT_EQ(textsOf(harness.result(), "list"), StringList({"a", "b"}));
}

TEST_F(Trace, AmbiguousAbbreviation) {
    ParserHarness harness;
    harness.option("verbose", tarvo2::vt_bool);
    harness.option("version", tarvo2::vt_empty);

    FdCapture out(1);
    EXPECT_EQ(harness.parseArgs({kTraceSwitch, "--ve"}), 2);
    EXPECT_EQ(out.finish(),
              "PositionalOptionsParser: recognizing argument '--ve'\n"
              "AbbreviationParser: recognizing argument '--ve'\n"
              "AbbreviationParser: failed to get best match for 've' in argument '--ve':Ambiguous option, possible "
              "options are: 'verbose', 'version'\n"
              "AbbreviationParser: parsing argument '--ve'\n");
    EXPECT_EQ(harness.error(), "Ambiguous option 've' in argument: '--ve', could be: 'verbose', 'version'");
}

TEST_F(Trace, MissingValue) {
    ParserHarness harness;
    harness.option("level", tarvo2::vt_int);

    FdCapture out(1);
    EXPECT_EQ(harness.parseArgs({kTraceSwitch, "--level"}), 2);
    EXPECT_EQ(out.finish(),
              "PositionalOptionsParser: recognizing argument '--level'\n"
              "AbbreviationParser: recognizing argument '--level'\n"
              "AbbreviationParser: best match option for 'level' in argument '--level' is 'level'\n"
              "AbbreviationParser: parsing argument '--level'\n"
              "AbbreviationParser: detected option: 'level'\n"
              "AbbreviationParser: no value in the same argument, looking next\n"
              "AbbreviationParser: Option 'level' requires a value in argument: '--level'\n");
    EXPECT_EQ(harness.error(), "Option 'level' requires a value in argument: '--level'");
}

TEST_F(Trace, VetoedValue) {
    ParserHarness harness;
    harness.option("level", tarvo2::vt_int)->tokenize(0);
    RefuseAll refuse;
    ASSERT_TRUE(harness.parser()->addHandler(&refuse));

    FdCapture out(1);
    EXPECT_EQ(harness.parseArgs({kTraceSwitch, "--level=4"}), 1);
    EXPECT_EQ(out.finish(),
              "PositionalOptionsParser: recognizing argument '--level=4'\n"
              "AbbreviationParser: recognizing argument '--level=4'\n"
              "AbbreviationParser: best match option for 'level' in argument '--level=4' is 'level'\n"
              "AbbreviationParser: parsing argument '--level=4'\n"
              "AbbreviationParser: detected option: 'level'\n"
              "AbbreviationParser: value from the same argument taken: '4'\n"
              "AbbreviationParser: sent event on option parsed\n"
              "AbbreviationParser: adding values to result container:\n"
              "AbbreviationParser: not using tokenizer\n"
              "AbbreviationParserValue '4' is not valid for option 'level' in argument '--level=4' One of the "
              "handler signaled the value is not valid.\n");
}

TEST_F(Trace, RegistrationAfterATracedParseIsTraced) {
    ParserHarness harness;
    harness.option("verbose,v", tarvo2::vt_bool);
    FdCapture first(1);
    ASSERT_EQ(harness.parseArgs({kTraceSwitch}), 0);
    EXPECT_EQ(first.finish(), "");

    quen_test::Outputs const written = quen_test::outputsOf([&] { harness.option("v", tarvo2::vt_int); });
    EXPECT_EQ(written.out, "An option with the same name is already registered: v\n");
    EXPECT_EQ(written.err, "v\n");
}

TEST_F(Trace, ProgramNameAloneDoesNotSwitchTracingOff) {
    ParserHarness harness;
    harness.option("verbose,v", tarvo2::vt_bool);
    ASSERT_EQ(harness.parseArgs({kTraceSwitch}), 0);
    ArgvBuilder argv({"prog"});
    ASSERT_EQ(harness.parser()->parseArgsVector(argv.argc(), argv.argv(), harness.result()), 0);

    quen_test::Outputs const written = quen_test::outputsOf([&] { harness.option("level,verbose", tarvo2::vt_int); });
    EXPECT_EQ(written.out, "An option with the same name is already registered: level\n");
    EXPECT_EQ(written.err, "level\n");
}

TEST_F(Trace, ParseWithoutTheSwitchSwitchesRegistrationTracingOff) {
    ParserHarness harness;
    harness.option("verbose,v", tarvo2::vt_bool);
    ASSERT_EQ(harness.parseArgs({kTraceSwitch}), 0);
    ASSERT_EQ(harness.parseArgs({"--v"}), 0);

    quen_test::Outputs const written = quen_test::outputsOf([&] { harness.option("v", tarvo2::vt_int); });
    EXPECT_EQ(written.out, "");
    EXPECT_EQ(written.err, "v\n");
}

}  // namespace
