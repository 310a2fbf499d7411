#include "recognizers/abbreviation_parser.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "recognizers/argument_list.h"
#include "support/capture.h"
#include "support/internal_fixture.h"
#include "support/recognizer_probe.h"

using quen_3_1::AbbreviationParser;
using quen_3_1::ArgumentList;
using quen_3_1::OptionData;
using quen_test::remaining;
using quen_test::textsOf;
using quen_test::traceOf;

namespace {

constexpr std::size_t kNoOption = static_cast<std::size_t>(-1);

class AbbreviationParsing : public quen_test::RecognizerTest {
protected:
    // The options most tests share; indexes 0 to 4 in this order.
    void addCommon() {
        add("verbose", tarvo2::vt_bool);
        add("version", tarvo2::vt_empty);
        add("level", tarvo2::vt_int);
        add("flag", tarvo2::vt_empty);
        add("name", tarvo2::vt_str);
    }

    int recognize(ArgumentList& args) { return recognizer.recognize(args, storage, message); }
    int parse(ArgumentList& args) { return recognizer.parse(args, &result, storage, message); }

    // What the pipeline does with an argument this recognizer takes.
    int recognizeAndParse(ArgumentList& args) {
        int const taken = recognize(args);
        EXPECT_EQ(taken, 0) << args[0];
        if (taken != 0) {
            return -1;
        }
        return parse(args);
    }

    // The trace of recognizing the front argument, which must give `code`.
    std::string traceOfRecognizing(ArgumentList& args, int code) {
        return traceOf([&] { EXPECT_EQ(recognize(args), code); });
    }

    // Recognizing `argument` alone must take it as option `index` and trace `trace`.
    void expectTakenAs(std::string const& argument, std::size_t index, char const* trace) {
        ArgumentList args(std::vector<std::string>{argument});
        EXPECT_EQ(traceOfRecognizing(args, 0), trace);
        EXPECT_EQ(recognizer.optionIndex(), index);
    }

    // The trace of recognizing and parsing the front of `arguments`, which must give `code`.
    std::string traceOfParsing(std::vector<std::string> arguments, int code) {
        ArgumentList args(std::move(arguments));
        return traceOf([&] { EXPECT_EQ(recognizeAndParse(args), code); });
    }

    OptionData stored(std::string const& name) { return quen_test::storedOptions(result).at(name); }

    quen_test::RecognizerProbe<AbbreviationParser> recognizer{&parser, &garbage, 0};
};

}  // namespace

TEST_F(AbbreviationParsing, PriorityIsMinusTen) { EXPECT_EQ(recognizer.getPriority(), -10); }

// recognize

TEST_F(AbbreviationParsing, OneAndTwoHyphensFindTheSameOption) {
    addCommon();
    ArgumentList single(std::vector<std::string>{"-level"});
    ASSERT_EQ(recognize(single), 0);
    EXPECT_EQ(recognizer.optionIndex(), 2U);
    ArgumentList twice(std::vector<std::string>{"--level"});
    ASSERT_EQ(recognize(twice), 0);
    EXPECT_EQ(recognizer.optionIndex(), 2U);
    EXPECT_EQ(twice.size(), 1U);
}

TEST_F(AbbreviationParsing, LoneHyphenAndPlainWordsAreNotTaken) {
    addCommon();
    message = "untouched";
    for (std::string const argument : {"-", "x", "", "level", "l-evel", "=level"}) {
        ArgumentList args(std::vector<std::string>{argument});
        EXPECT_EQ(recognize(args), 1) << argument;
        EXPECT_EQ(recognizer.optionIndex(), kNoOption) << argument;
    }
    EXPECT_EQ(message, "untouched");
}

TEST_F(AbbreviationParsing, TypedNameEndsAtFirstEquals) {
    addCommon();
    expectTakenAs("--lev=3=4", 2U,
                  "AbbreviationParser: recognizing argument '--lev=3=4'\n"
                  "AbbreviationParser: best match option for 'lev' in argument '--lev=3=4' is 'level'\n");
}

TEST_F(AbbreviationParsing, SingleHyphenTypedName) {
    addCommon();
    expectTakenAs("-n", 4U,
                  "AbbreviationParser: recognizing argument '-n'\n"
                  "AbbreviationParser: best match option for 'n' in argument '-n' is 'name'\n");
}

TEST_F(AbbreviationParsing, ThirdHyphenBelongsToTheName) {
    add("level", tarvo2::vt_int);
    add("xray", tarvo2::vt_bool);
    // "-x" has an empty first part, a prefix of "no".
    expectTakenAs("---x", 1U,
                  "AbbreviationParser: recognizing argument '---x'\n"
                  "AbbreviationParser: best match option for '-x' in argument '---x' is 'no-xray'\n");
}

TEST_F(AbbreviationParsing, TerminatorMatchesEveryTwoPartName) {
    add("level", tarvo2::vt_int);
    add("log-file", tarvo2::vt_str);
    expectTakenAs("--", 1U,
                  "AbbreviationParser: recognizing argument '--'\n"
                  "AbbreviationParser: best match option for '-' in argument '--' is 'log-file'\n");
}

TEST_F(AbbreviationParsing, UniqueMatchIsTakenWithItsIndex) {
    addCommon();
    ArgumentList args(std::vector<std::string>{"--verb", "next"});
    message = "untouched";
    EXPECT_EQ(traceOfRecognizing(args, 0),
              "AbbreviationParser: recognizing argument '--verb'\n"
              "AbbreviationParser: best match option for 'verb' in argument '--verb' is 'verbose'\n");
    EXPECT_EQ(recognizer.optionIndex(), 0U);
    EXPECT_EQ(message, "untouched");
    EXPECT_EQ(remaining(args), (std::vector<std::string>{"--verb", "next"}));
}

TEST_F(AbbreviationParsing, NoFormIsTakenForItsBoolean) {
    addCommon();
    expectTakenAs("--no-verb", 0U,
                  "AbbreviationParser: recognizing argument '--no-verb'\n"
                  "AbbreviationParser: best match option for 'no-verb' in argument '--no-verb' is 'no-verbose'\n");
}

TEST_F(AbbreviationParsing, AmbiguityIsTakenSoThatParseReportsIt) {
    addCommon();
    ArgumentList args(std::vector<std::string>{"--ve"});
    EXPECT_EQ(traceOfRecognizing(args, 0),
              "AbbreviationParser: recognizing argument '--ve'\n"
              "AbbreviationParser: failed to get best match for 've' in argument '--ve':Ambiguous option, possible "
              "options are: 'verbose', 'version'\n");
    EXPECT_EQ(message, "Ambiguous option, possible options are: 'verbose', 'version'");
    EXPECT_EQ(recognizer.optionIndex(), kNoOption);
    EXPECT_EQ(recognizer.found().tied.size(), 2U);
}

TEST_F(AbbreviationParsing, NoMatchIsNotTaken) {
    addCommon();
    ArgumentList args(std::vector<std::string>{"--zzz"});
    message = "untouched";
    EXPECT_EQ(traceOfRecognizing(args, 1), "AbbreviationParser: recognizing argument '--zzz'\n");
    EXPECT_EQ(message, "untouched");
    EXPECT_EQ(recognizer.optionIndex(), kNoOption);
}

TEST_F(AbbreviationParsing, EmptyRegistryTakesNothing) {
    ArgumentList args(std::vector<std::string>{"--verbose"});
    EXPECT_EQ(recognize(args), 1);
}

TEST_F(AbbreviationParsing, EveryRecognizeForgetsThePreviousOption) {
    addCommon();
    ArgumentList found(std::vector<std::string>{"--level"});
    ASSERT_EQ(recognize(found), 0);
    ASSERT_EQ(recognizer.optionIndex(), 2U);
    ArgumentList plain(std::vector<std::string>{"x"});
    EXPECT_EQ(recognize(plain), 1);
    EXPECT_EQ(recognizer.optionIndex(), kNoOption);
}

// parse: booleans

TEST_F(AbbreviationParsing, SingleAndDoubleHyphenParseAlike) {
    addCommon();
    ArgumentList args(std::vector<std::string>{"-verbose", "--verbose"});
    ASSERT_EQ(recognizeAndParse(args), 0);
    EXPECT_EQ(remaining(args), (std::vector<std::string>{"--verbose"}));
    ASSERT_EQ(recognizeAndParse(args), 0);
    EXPECT_TRUE(args.empty());
    EXPECT_EQ(stored("verbose").m_positions.size(), 2U);
    EXPECT_EQ(textsOf(stored("verbose")), (std::vector<std::string>{"1", "1"}));
}

TEST_F(AbbreviationParsing, AbbreviatedBooleanStoresOne) {
    addCommon();
    ArgumentList args(std::vector<std::string>{"--verb", "next"});
    ASSERT_EQ(recognizeAndParse(args), 0);
    EXPECT_EQ(remaining(args), (std::vector<std::string>{"next"}));
    OptionData const& data = stored("verbose");
    ASSERT_EQ(data.m_values.size(), 1U);
    EXPECT_EQ(data.m_values[0].first.first, "1");
    EXPECT_EQ(data.m_values[0].first.second.m_type, tarvo2::vt_bool);
    EXPECT_TRUE(data.m_values[0].first.second.as<bool>());
    EXPECT_LT(data.m_positions.at(0), data.m_values[0].second);
    EXPECT_EQ(recorder.options, (std::vector<std::string>{"verbose"}));
    EXPECT_EQ(recorder.values, (std::vector<std::string>{"verbose=1"}));
}

TEST_F(AbbreviationParsing, NoFormStoresZero) {
    addCommon();
    ArgumentList args(std::vector<std::string>{"--no-verb", "-no-verbose"});
    ASSERT_EQ(recognizeAndParse(args), 0);
    ASSERT_EQ(recognizeAndParse(args), 0);
    EXPECT_TRUE(args.empty());
    OptionData const& data = stored("verbose");
    EXPECT_EQ(textsOf(data), (std::vector<std::string>{"0", "0"}));
    EXPECT_FALSE(data.m_values[0].first.second.as<bool>());
    EXPECT_EQ(quen_test::storedOptions(result).count("no-verbose"), 0U);
    EXPECT_EQ(recorder.options, (std::vector<std::string>{"verbose", "verbose"}));
}

TEST_F(AbbreviationParsing, BooleanRefusesValueAfterEquals) {
    addCommon();
    ArgumentList args(std::vector<std::string>{"--verbose=1"});
    EXPECT_EQ(recognizeAndParse(args), 2);
    EXPECT_EQ(message,
              "Option 'verbose' is boolean and should be declared in form '--option' or '--no-option' in argument: "
              "'--verbose=1'");
    EXPECT_EQ(remaining(args), (std::vector<std::string>{"--verbose=1"}));
    EXPECT_TRUE(quen_test::storedOptions(result).empty());
    EXPECT_TRUE(recorder.options.empty());
}

TEST_F(AbbreviationParsing, BooleanWithNothingAfterEqualsStoresOne) {
    addCommon();
    ArgumentList args(std::vector<std::string>{"--verbose="});
    ASSERT_EQ(recognizeAndParse(args), 0);
    EXPECT_TRUE(args.empty());
    EXPECT_EQ(textsOf(stored("verbose")), (std::vector<std::string>{"1"}));
}

TEST_F(AbbreviationParsing, BooleanNeverTakesTheNextArgument) {
    addCommon();
    ArgumentList args(std::vector<std::string>{"--verbose", "0"});
    ASSERT_EQ(recognizeAndParse(args), 0);
    EXPECT_EQ(remaining(args), (std::vector<std::string>{"0"}));
    EXPECT_EQ(textsOf(stored("verbose")), (std::vector<std::string>{"1"}));
}

TEST_F(AbbreviationParsing, BooleanNamedWithNoPrefixStoresZeroWhenGiven) {
    add("no-cache", tarvo2::vt_bool);
    ArgumentList args(std::vector<std::string>{"--no-cache", "--no-c", "--no-no-cache"});
    ASSERT_EQ(recognizeAndParse(args), 0);
    ASSERT_EQ(recognizeAndParse(args), 0);
    ASSERT_EQ(recognizeAndParse(args), 0);
    EXPECT_TRUE(args.empty());
    EXPECT_EQ(textsOf(stored("no-cache")), (std::vector<std::string>{"0", "0", "0"}));
}

TEST_F(AbbreviationParsing, BooleanSynonymStoresUnderEveryName) {
    storage.option("verbose", "help", tarvo2::vt_bool, "general")->synonym("loud");
    ArgumentList args(std::vector<std::string>{"--no-loud"});
    ASSERT_EQ(recognizeAndParse(args), 0);
    EXPECT_EQ(textsOf(stored("verbose")), (std::vector<std::string>{"0"}));
    EXPECT_EQ(textsOf(stored("loud")), (std::vector<std::string>{"0"}));
    EXPECT_EQ(recorder.options, (std::vector<std::string>{"verbose"}));
}

// parse: options with a value

TEST_F(AbbreviationParsing, ValueFromNextArgumentConsumesTwo) {
    addCommon();
    ArgumentList args(std::vector<std::string>{"--level", "3", "rest"});
    ASSERT_EQ(recognizeAndParse(args), 0);
    EXPECT_EQ(remaining(args), (std::vector<std::string>{"rest"}));
    OptionData const& data = stored("level");
    ASSERT_EQ(data.m_values.size(), 1U);
    EXPECT_EQ(data.m_values[0].first.first, "3");
    EXPECT_EQ(data.m_values[0].first.second.m_type, tarvo2::vt_int);
    EXPECT_EQ(data.m_values[0].first.second.as<int>(), 3);
    EXPECT_EQ(data.m_positions.size(), 1U);
}

TEST_F(AbbreviationParsing, ValueAfterEqualsConsumesOne) {
    addCommon();
    ArgumentList args(std::vector<std::string>{"--level=3", "4"});
    ASSERT_EQ(recognizeAndParse(args), 0);
    EXPECT_EQ(remaining(args), (std::vector<std::string>{"4"}));
    EXPECT_EQ(stored("level").m_values.at(0).first.second.as<int>(), 3);
}

TEST_F(AbbreviationParsing, ValueIsEverythingAfterTheFirstEquals) {
    addCommon();
    ArgumentList args(std::vector<std::string>{"-na=a=b"});
    ASSERT_EQ(recognizeAndParse(args), 0);
    EXPECT_EQ(textsOf(stored("name")), (std::vector<std::string>{"a=b"}));
}

TEST_F(AbbreviationParsing, NegativeNumberGoesAfterEquals) {
    addCommon();
    ArgumentList args(std::vector<std::string>{"--level=-3"});
    ASSERT_EQ(recognizeAndParse(args), 0);
    EXPECT_EQ(stored("level").m_values.at(0).first.second.as<int>(), -3);
}

TEST_F(AbbreviationParsing, NextArgumentStartingWithHyphenIsRefused) {
    addCommon();
    ArgumentList args(std::vector<std::string>{"--level", "-3"});
    EXPECT_EQ(recognizeAndParse(args), 2);
    EXPECT_EQ(message,
              "Option 'levelreceived value from the next argument: '-3', but it seems to be an option. Use "
              "'-option=value' declaration form or make sure that value is not missed");
    EXPECT_EQ(remaining(args), (std::vector<std::string>{"--level", "-3"}));
    EXPECT_TRUE(quen_test::storedOptions(result).empty());
    EXPECT_TRUE(recorder.options.empty());
}

TEST_F(AbbreviationParsing, MissingValueAtTheEnd) {
    addCommon();
    ArgumentList args(std::vector<std::string>{"--level"});
    EXPECT_EQ(recognizeAndParse(args), 2);
    EXPECT_EQ(message, "Option 'level' requires a value in argument: '--level'");
    EXPECT_EQ(remaining(args), (std::vector<std::string>{"--level"}));
    EXPECT_TRUE(quen_test::storedOptions(result).empty());
}

TEST_F(AbbreviationParsing, NothingAfterEqualsLooksAtTheNextArgument) {
    addCommon();
    ArgumentList args(std::vector<std::string>{"--level=", "4", "rest"});
    ASSERT_EQ(recognizeAndParse(args), 0);
    EXPECT_EQ(remaining(args), (std::vector<std::string>{"rest"}));
    EXPECT_EQ(stored("level").m_values.at(0).first.second.as<int>(), 4);
}

TEST_F(AbbreviationParsing, EmptyNextArgumentIsAMissingValue) {
    addCommon();
    ArgumentList args(std::vector<std::string>{"--level", ""});
    EXPECT_EQ(recognizeAndParse(args), 2);
    EXPECT_EQ(message, "Option 'level' requires a value in argument: '--level'");
    EXPECT_EQ(remaining(args), (std::vector<std::string>{"--level", ""}));
    EXPECT_TRUE(quen_test::storedOptions(result).empty());
}

TEST_F(AbbreviationParsing, InvalidValueFailsValidation) {
    addCommon();
    ArgumentList args(std::vector<std::string>{"--lev=abc"});
    EXPECT_EQ(recognizeAndParse(args), 2);
    EXPECT_EQ(message,
              "Value validation problem in argument '--lev=abc': Option 'level' can not parse 'abc' value, requires "
              "a type 'integer' here.");
    EXPECT_EQ(remaining(args), (std::vector<std::string>{"--lev=abc"}));
    EXPECT_TRUE(quen_test::storedOptions(result).empty());
    // The option was announced before its value was checked.
    EXPECT_EQ(recorder.options, (std::vector<std::string>{"level"}));
}

TEST_F(AbbreviationParsing, TextValueIsSplitByTokenizer) {
    addCommon();
    ArgumentList args(std::vector<std::string>{"--name", "a,b"});
    ASSERT_EQ(recognizeAndParse(args), 0);
    EXPECT_TRUE(args.empty());
    EXPECT_EQ(stored("name").m_positions.size(), 1U);
    EXPECT_EQ(textsOf(stored("name")), (std::vector<std::string>{"a", "b"}));
}

TEST_F(AbbreviationParsing, SynonymStoresUnderPrimaryNameToo) {
    storage.option("output,o", "help", tarvo2::vt_str, "general");
    ArgumentList args(std::vector<std::string>{"-o=file.txt"});
    ASSERT_EQ(recognizeAndParse(args), 0);
    EXPECT_EQ(textsOf(stored("output")), (std::vector<std::string>{"file.txt"}));
    EXPECT_EQ(textsOf(stored("o")), (std::vector<std::string>{"file.txt"}));
    EXPECT_EQ(recorder.options, (std::vector<std::string>{"output"}));
}

// parse: options without a value

TEST_F(AbbreviationParsing, NoValueOptionStoresOccurrenceWithoutValues) {
    addCommon();
    ArgumentList args(std::vector<std::string>{"--flag", "x"});
    ASSERT_EQ(recognizeAndParse(args), 0);
    EXPECT_EQ(remaining(args), (std::vector<std::string>{"x"}));
    OptionData const& data = stored("flag");
    EXPECT_EQ(data.m_positions.size(), 1U);
    EXPECT_TRUE(data.m_values.empty());
    EXPECT_EQ(recorder.options, (std::vector<std::string>{"flag"}));
    EXPECT_TRUE(recorder.values.empty());
}

TEST_F(AbbreviationParsing, NoValueOptionRefusesValue) {
    addCommon();
    ArgumentList args(std::vector<std::string>{"--flag=x"});
    EXPECT_EQ(recognizeAndParse(args), 2);
    EXPECT_EQ(message, "Option 'flag'does not requires a value in argument: '--flag=x'");
    EXPECT_EQ(remaining(args), (std::vector<std::string>{"--flag=x"}));
    EXPECT_TRUE(quen_test::storedOptions(result).empty());
}

TEST_F(AbbreviationParsing, NoValueOptionWithNothingAfterEquals) {
    addCommon();
    ArgumentList args(std::vector<std::string>{"--flag=", "x"});
    ASSERT_EQ(recognizeAndParse(args), 0);
    EXPECT_EQ(remaining(args), (std::vector<std::string>{"x"}));
    EXPECT_TRUE(stored("flag").m_values.empty());
}

// parse: ambiguity

TEST_F(AbbreviationParsing, AmbiguousAbbreviationFailsInParse) {
    addCommon();
    ArgumentList args(std::vector<std::string>{"--ve"});
    ASSERT_EQ(recognize(args), 0);
    EXPECT_EQ(message, "Ambiguous option, possible options are: 'verbose', 'version'");
    EXPECT_EQ(parse(args), 2);
    EXPECT_EQ(message, "Ambiguous option 've' in argument: '--ve', could be: 'verbose', 'version'");
    EXPECT_EQ(remaining(args), (std::vector<std::string>{"--ve"}));
    EXPECT_TRUE(quen_test::storedOptions(result).empty());
    EXPECT_TRUE(recorder.options.empty());
}

TEST_F(AbbreviationParsing, AmbiguityNamesTypedNameWithoutValue) {
    addCommon();
    ArgumentList args(std::vector<std::string>{"-ve=3"});
    EXPECT_EQ(recognizeAndParse(args), 2);
    EXPECT_EQ(message, "Ambiguous option 've' in argument: '-ve=3', could be: 'verbose', 'version'");
}

TEST_F(AbbreviationParsing, AmbiguousTerminatorShowsEmptyName) {
    add("log-file", tarvo2::vt_str);
    add("out-dir", tarvo2::vt_str);
    ArgumentList args(std::vector<std::string>{"--"});
    EXPECT_EQ(recognizeAndParse(args), 2);
    EXPECT_EQ(message, "Ambiguous option '' in argument: '--', could be: 'log-file', 'out-dir'");
}

// Trace

TEST_F(AbbreviationParsing, TraceOfValueFromNextArgument) {
    addCommon();
    EXPECT_EQ(traceOfParsing({"--level", "3"}, 0),
              "AbbreviationParser: recognizing argument '--level'\n"
              "AbbreviationParser: best match option for 'level' in argument '--level' is 'level'\n"
              "AbbreviationParser: parsing argument '--level'\n"
              "AbbreviationParser: detected option: 'level'\n"
              "AbbreviationParser: no value in the same argument, looking next\n"
              "AbbreviationParser: got value from the next argument: '3'\n"
              "AbbreviationParser: sent event on option parsed\n"
              "AbbreviationParser: adding values to result container:\n"
              "AbbreviationParser: using tokenizer on char: ','\n"
              "AbbreviationParser: value is: '3'\n"
              "AbbreviationParser: sent event on value parsed, option: 'level', value: '3'\n"
              "AbbreviationParser: stored option to result container.\n"
              "AbbreviationParser: removing argument: '--level'\n"
              "AbbreviationParser: removing argument: '3'\n");
}

TEST_F(AbbreviationParsing, TraceOfValueAfterEquals) {
    addCommon();
    EXPECT_EQ(traceOfParsing({"-lev=3", "x"}, 0),
              "AbbreviationParser: recognizing argument '-lev=3'\n"
              "AbbreviationParser: best match option for 'lev' in argument '-lev=3' is 'level'\n"
              "AbbreviationParser: parsing argument '-lev=3'\n"
              "AbbreviationParser: detected option: 'level'\n"
              "AbbreviationParser: value from the same argument taken: '3'\n"
              "AbbreviationParser: sent event on option parsed\n"
              "AbbreviationParser: adding values to result container:\n"
              "AbbreviationParser: using tokenizer on char: ','\n"
              "AbbreviationParser: value is: '3'\n"
              "AbbreviationParser: sent event on value parsed, option: 'level', value: '3'\n"
              "AbbreviationParser: stored option to result container.\n"
              "AbbreviationParser: removing argument: '-lev=3'\n");
}

TEST_F(AbbreviationParsing, TraceOfNothingAfterEqualsThenNextArgument) {
    add("name", tarvo2::vt_str)->tokenize(0);
    EXPECT_EQ(traceOfParsing({"--name=", "a,b"}, 0),
              "AbbreviationParser: recognizing argument '--name='\n"
              "AbbreviationParser: best match option for 'name' in argument '--name=' is 'name'\n"
              "AbbreviationParser: parsing argument '--name='\n"
              "AbbreviationParser: detected option: 'name'\n"
              "AbbreviationParser: value from the same argument taken: ''\n"
              "AbbreviationParser: no value in the same argument, looking next\n"
              "AbbreviationParser: got value from the next argument: 'a,b'\n"
              "AbbreviationParser: sent event on option parsed\n"
              "AbbreviationParser: adding values to result container:\n"
              "AbbreviationParser: not using tokenizer\n"
              "AbbreviationParser: stored option to result container.\n"
              "AbbreviationParser: removing argument: '--name='\n"
              "AbbreviationParser: removing argument: 'a,b'\n");
    EXPECT_EQ(textsOf(stored("name")), (std::vector<std::string>{"a,b"}));
}

TEST_F(AbbreviationParsing, TraceOfNoForm) {
    addCommon();
    EXPECT_EQ(traceOfParsing({"--no-verb"}, 0),
              "AbbreviationParser: recognizing argument '--no-verb'\n"
              "AbbreviationParser: best match option for 'no-verb' in argument '--no-verb' is 'no-verbose'\n"
              "AbbreviationParser: parsing argument '--no-verb'\n"
              "AbbreviationParser: detected option: 'verbose'\n"
              "AbbreviationParser: sent event on option parsed\n"
              "AbbreviationParser: adding values to result container:\n"
              "AbbreviationParser: using tokenizer on char: ','\n"
              "AbbreviationParser: value is: '0'\n"
              "AbbreviationParser: sent event on value parsed, option: 'verbose', value: '0'\n"
              "AbbreviationParser: stored option to result container.\n"
              "AbbreviationParser: removing argument: '--no-verb'\n");
}

TEST_F(AbbreviationParsing, TraceOfNoValueOption) {
    addCommon();
    EXPECT_EQ(traceOfParsing({"--fl", "x"}, 0),
              "AbbreviationParser: recognizing argument '--fl'\n"
              "AbbreviationParser: best match option for 'fl' in argument '--fl' is 'flag'\n"
              "AbbreviationParser: parsing argument '--fl'\n"
              "AbbreviationParser: detected option: 'flag'\n"
              "AbbreviationParser: sent event on option parsed\n"
              "AbbreviationParser: stored option to result container.\n"
              "AbbreviationParser: removing argument: '--fl'\n");
}

TEST_F(AbbreviationParsing, TraceOfBooleanWithValue) {
    addCommon();
    EXPECT_EQ(traceOfParsing({"--verbose=1"}, 2),
              "AbbreviationParser: recognizing argument '--verbose=1'\n"
              "AbbreviationParser: best match option for 'verbose' in argument '--verbose=1' is 'verbose'\n"
              "AbbreviationParser: parsing argument '--verbose=1'\n"
              "AbbreviationParser: detected option: 'verbose'\n"
              "AbbreviationParser: value from the same argument taken: '1'\n"
              "AbbreviationParser: Option 'verbose' is boolean and should be declared in form '--option' or "
              "'--no-option' in argument: '--verbose=1'\n");
}

TEST_F(AbbreviationParsing, TraceOfValueForNoValueOption) {
    addCommon();
    EXPECT_EQ(traceOfParsing({"--flag=x"}, 2),
              "AbbreviationParser: recognizing argument '--flag=x'\n"
              "AbbreviationParser: best match option for 'flag' in argument '--flag=x' is 'flag'\n"
              "AbbreviationParser: parsing argument '--flag=x'\n"
              "AbbreviationParser: detected option: 'flag'\n"
              "AbbreviationParser: value from the same argument taken: 'x'\n"
              "AbbreviationParser: Option 'flag'does not requires a value in argument: '--flag=x'\n");
}

TEST_F(AbbreviationParsing, TraceOfMissingValueAtTheEnd) {
    addCommon();
    EXPECT_EQ(traceOfParsing({"--level"}, 2),
              "AbbreviationParser: recognizing argument '--level'\n"
              "AbbreviationParser: best match option for 'level' in argument '--level' is 'level'\n"
              "AbbreviationParser: parsing argument '--level'\n"
              "AbbreviationParser: detected option: 'level'\n"
              "AbbreviationParser: no value in the same argument, looking next\n"
              "AbbreviationParser: Option 'level' requires a value in argument: '--level'\n");
}

TEST_F(AbbreviationParsing, TraceOfNextArgumentLookingLikeOption) {
    addCommon();
    EXPECT_EQ(traceOfParsing({"--level", "-3"}, 2),
              "AbbreviationParser: recognizing argument '--level'\n"
              "AbbreviationParser: best match option for 'level' in argument '--level' is 'level'\n"
              "AbbreviationParser: parsing argument '--level'\n"
              "AbbreviationParser: detected option: 'level'\n"
              "AbbreviationParser: no value in the same argument, looking next\n"
              "AbbreviationParser: Option 'levelreceived value from the next argument: '-3', but it seems to be an "
              "option. Use '-option=value' declaration form or make sure that value is not missed\n");
}

TEST_F(AbbreviationParsing, TraceOfEmptyNextArgument) {
    addCommon();
    EXPECT_EQ(traceOfParsing({"--level", ""}, 2),
              "AbbreviationParser: recognizing argument '--level'\n"
              "AbbreviationParser: best match option for 'level' in argument '--level' is 'level'\n"
              "AbbreviationParser: parsing argument '--level'\n"
              "AbbreviationParser: detected option: 'level'\n"
              "AbbreviationParser: no value in the same argument, looking next\n"
              "AbbreviationParser: got value from the next argument: ''\n"
              "AbbreviationParser: Option 'level' requires a value in argument: '--level'\n");
}

TEST_F(AbbreviationParsing, TraceOfInvalidValue) {
    addCommon();
    EXPECT_EQ(traceOfParsing({"--level=abc"}, 2),
              "AbbreviationParser: recognizing argument '--level=abc'\n"
              "AbbreviationParser: best match option for 'level' in argument '--level=abc' is 'level'\n"
              "AbbreviationParser: parsing argument '--level=abc'\n"
              "AbbreviationParser: detected option: 'level'\n"
              "AbbreviationParser: value from the same argument taken: 'abc'\n"
              "AbbreviationParser: sent event on option parsed\n"
              "AbbreviationParser: adding values to result container:\n"
              "AbbreviationParser: using tokenizer on char: ','\n"
              "AbbreviationParser: value is: 'abc'\n"
              "AbbreviationParser: Value validation problem in argument '--level=abc': Option 'level' can not parse "
              "'abc' value, requires a type 'integer' here.\n");
}

TEST_F(AbbreviationParsing, AmbiguityOfParseIsNotTraced) {
    addCommon();
    ArgumentList args(std::vector<std::string>{"--ve"});
    ASSERT_EQ(recognize(args), 0);
    std::string const trace = traceOf([&] { EXPECT_EQ(parse(args), 2); });
    EXPECT_EQ(trace, "AbbreviationParser: parsing argument '--ve'\n");
}

TEST_F(AbbreviationParsing, NothingIsWrittenWhileTracingIsOff) {
    addCommon();
    ArgumentList args(std::vector<std::string>{"--level", "3", "--flag=x"});
    quen_test::FdCapture capture(1);
    EXPECT_EQ(recognizeAndParse(args), 0);
    EXPECT_EQ(recognizeAndParse(args), 2);
    EXPECT_EQ(capture.finish(), "");
}
