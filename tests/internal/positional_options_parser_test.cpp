#include "recognizers/positional_options_parser.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "recognizers/argument_list.h"
#include "support/capture.h"
#include "support/internal_fixture.h"

using quen_3_1::ArgumentList;
using quen_3_1::OptionData;
using quen_3_1::PositionalOptionsParser;
using quen_test::remaining;
using quen_test::textsOf;
using quen_test::traceOf;

namespace {

class PositionalOptions : public quen_test::RecognizerTest {
protected:
    int recognize(PositionalOptionsParser& recognizer, ArgumentList& args) {
        return recognizer.recognize(args, storage, found) ? 0 : 1;
    }

    int parse(PositionalOptionsParser& recognizer, ArgumentList& args) {
        return quen_3_1::codeOf(recognizer.parse(args, found, &result, storage, message));
    }

    // What the pipeline does with an argument this recognizer takes.
    int recognizeAndParse(PositionalOptionsParser& recognizer, ArgumentList& args) {
        int const taken = recognize(recognizer, args);
        EXPECT_EQ(taken, 0) << args[0];
        if (taken != 0) {
            return -1;
        }
        return parse(recognizer, args);
    }

    // The trace of recognizing and parsing the front of `arguments`, which must give `code`.
    std::string traceOfParsing(PositionalOptionsParser& recognizer, std::vector<std::string> arguments, int code) {
        ArgumentList args(std::move(arguments));
        return traceOf([&] { EXPECT_EQ(recognizeAndParse(recognizer, args), code); });
    }

    // What recognize found, kept for parse as the pipeline keeps it.
    quen_3_1::Recognition found;
};

}  // namespace

TEST_F(PositionalOptions, PriorityIsMinusHundred) {
    PositionalOptionsParser recognizer(&parser, &garbage, 0);
    EXPECT_EQ(recognizer.getPriority(), -100);
}

TEST_F(PositionalOptions, WithoutPositionalOptionEveryArgumentIsRefused) {
    add("level", tarvo2::vt_int);
    add("file", tarvo2::vt_str);
    PositionalOptionsParser recognizer(&parser, &garbage, 0);
    message = "untouched";
    for (std::string const argument : {"a", "-x", "--zzz", ""}) {
        ArgumentList args(std::vector<std::string>{argument});
        EXPECT_EQ(recognize(recognizer, args), 1) << argument;
        EXPECT_EQ(args.size(), 1U);
    }
    EXPECT_EQ(message, "untouched");
}

TEST_F(PositionalOptions, EmptyRegistryRefuses) {
    PositionalOptionsParser recognizer(&parser, &garbage, 0);
    ArgumentList args(std::vector<std::string>{"a"});
    EXPECT_EQ(recognize(recognizer, args), 1);
}

TEST_F(PositionalOptions, RecognizeTakesWithoutConsuming) {
    add("file", tarvo2::vt_str)->positional();
    PositionalOptionsParser recognizer(&parser, &garbage, 0);
    ArgumentList args(std::vector<std::string>{"a", "b"});
    message = "untouched";
    EXPECT_EQ(recognize(recognizer, args), 0);
    EXPECT_EQ(remaining(args), (std::vector<std::string>{"a", "b"}));
    EXPECT_EQ(message, "untouched");
    EXPECT_TRUE(quen_test::storedOptions(result).empty());
}

TEST_F(PositionalOptions, EachPlainArgumentIsItsOwnOccurrence) {
    add("file", tarvo2::vt_str)->positional();
    PositionalOptionsParser recognizer(&parser, &garbage, 0);
    ArgumentList args(std::vector<std::string>{"a", "b"});

    ASSERT_EQ(recognizeAndParse(recognizer, args), 0);
    EXPECT_EQ(remaining(args), (std::vector<std::string>{"b"}));
    ASSERT_EQ(quen_test::storedOptions(result).count("file"), 1U);
    EXPECT_EQ(quen_test::storedOptions(result).at("file").m_positions.size(), 1U);
    EXPECT_EQ(textsOf(quen_test::storedOptions(result).at("file")), (std::vector<std::string>{"a"}));

    ASSERT_EQ(recognizeAndParse(recognizer, args), 0);
    EXPECT_TRUE(args.empty());

    OptionData const& data = quen_test::storedOptions(result).at("file");
    ASSERT_EQ(data.m_positions.size(), 2U);
    ASSERT_EQ(data.m_values.size(), 2U);
    EXPECT_EQ(textsOf(data), (std::vector<std::string>{"a", "b"}));
    EXPECT_STREQ(data.m_values[0].first.second.as<char const*>(), "a");
    EXPECT_STREQ(data.m_values[1].first.second.as<char const*>(), "b");
    // Each occurrence is numbered before its value, and "b" after all of "a".
    EXPECT_LT(data.m_positions[0], data.m_values[0].second);
    EXPECT_LT(data.m_values[0].second, data.m_positions[1]);
    EXPECT_LT(data.m_positions[1], data.m_values[1].second);
    EXPECT_EQ(recorder.options, (std::vector<std::string>{"file", "file"}));
    EXPECT_EQ(recorder.values, (std::vector<std::string>{"file=a", "file=b"}));
}

TEST_F(PositionalOptions, HyphenArgumentIsTakenWithoutNoHyphenFlag) {
    add("file", tarvo2::vt_str)->positional();
    PositionalOptionsParser recognizer(&parser, &garbage, 0);
    ArgumentList args(std::vector<std::string>{"--zzz"});
    ASSERT_EQ(recognizeAndParse(recognizer, args), 0);
    EXPECT_TRUE(args.empty());
    EXPECT_EQ(textsOf(quen_test::storedOptions(result).at("file")), (std::vector<std::string>{"--zzz"}));
}

TEST_F(PositionalOptions, NoHyphenFlagRefusesArgumentsStartingWithHyphen) {
    add("file", tarvo2::vt_str)->positional();
    PositionalOptionsParser recognizer(&parser, &garbage, quen_3_1::FlagNoHyphenPositional);
    for (std::string const argument : {"--zzz", "-x", "-", "--"}) {
        ArgumentList args(std::vector<std::string>{argument});
        EXPECT_EQ(recognize(recognizer, args), 1) << argument;
    }
    ArgumentList plain(std::vector<std::string>{"a-b"});
    EXPECT_EQ(recognize(recognizer, plain), 0);
}

TEST_F(PositionalOptions, EmptyArgumentIsOccurrenceWithoutValue) {
    add("file", tarvo2::vt_str)->positional();
    PositionalOptionsParser recognizer(&parser, &garbage, 0);
    ArgumentList args(std::vector<std::string>{""});
    ASSERT_EQ(recognizeAndParse(recognizer, args), 0);
    EXPECT_TRUE(args.empty());
    OptionData const& data = quen_test::storedOptions(result).at("file");
    EXPECT_EQ(data.m_positions.size(), 1U);
    EXPECT_TRUE(data.m_values.empty());
    EXPECT_EQ(recorder.options, (std::vector<std::string>{"file"}));
    EXPECT_TRUE(recorder.values.empty());
}

TEST_F(PositionalOptions, EmptyArgumentIsTakenAlsoWithNoHyphenFlag) {
    add("file", tarvo2::vt_str)->positional();
    PositionalOptionsParser recognizer(&parser, &garbage, quen_3_1::FlagNoHyphenPositional);
    ArgumentList args(std::vector<std::string>{""});
    ASSERT_EQ(recognizeAndParse(recognizer, args), 0);
    EXPECT_TRUE(args.empty());
    OptionData const& data = quen_test::storedOptions(result).at("file");
    EXPECT_EQ(data.m_positions.size(), 1U);
    EXPECT_TRUE(data.m_values.empty());
}

TEST_F(PositionalOptions, WithoutRunFlagOneParseTakesOneArgument) {
    add("file", tarvo2::vt_str)->positional();
    PositionalOptionsParser recognizer(&parser, &garbage, 0);
    ArgumentList args(std::vector<std::string>{"a", "b", "c"});
    ASSERT_EQ(recognizeAndParse(recognizer, args), 0);
    EXPECT_EQ(remaining(args), (std::vector<std::string>{"b", "c"}));
}

TEST_F(PositionalOptions, RunFlagTakesAllTheRestInOneParse) {
    add("level", tarvo2::vt_int);
    add("file", tarvo2::vt_str)->positional();
    PositionalOptionsParser recognizer(&parser, &garbage, quen_3_1::FlagPositionalRun);
    ArgumentList args(std::vector<std::string>{"a", "-x", "--level", "", "b"});
    ASSERT_EQ(recognizeAndParse(recognizer, args), 0);
    EXPECT_TRUE(args.empty());
    OptionData const& data = quen_test::storedOptions(result).at("file");
    EXPECT_EQ(data.m_positions.size(), 5U);
    EXPECT_EQ(textsOf(data), (std::vector<std::string>{"a", "-x", "--level", "b"}));
    EXPECT_EQ(quen_test::storedOptions(result).count("level"), 0U);
    EXPECT_EQ(recorder.options, (std::vector<std::string>(5, "file")));
}

TEST_F(PositionalOptions, ValueIsTakenWholeAndSplitByTokenizer) {
    add("file", tarvo2::vt_str)->positional();
    PositionalOptionsParser recognizer(&parser, &garbage, 0);
    ArgumentList args(std::vector<std::string>{"--name=x,y"});
    ASSERT_EQ(recognizeAndParse(recognizer, args), 0);
    OptionData const& data = quen_test::storedOptions(result).at("file");
    EXPECT_EQ(data.m_positions.size(), 1U);
    EXPECT_EQ(textsOf(data), (std::vector<std::string>{"--name=x", "y"}));
}

TEST_F(PositionalOptions, OnlyFirstPositionalOptionIsFilled) {
    add("level", tarvo2::vt_int);
    add("first", tarvo2::vt_str)->positional();
    add("second", tarvo2::vt_str)->positional();
    PositionalOptionsParser recognizer(&parser, &garbage, 0);
    ArgumentList args(std::vector<std::string>{"a", "b", "c"});
    while (!args.empty()) {
        ASSERT_EQ(recognizeAndParse(recognizer, args), 0);
    }
    EXPECT_EQ(textsOf(quen_test::storedOptions(result).at("first")), (std::vector<std::string>{"a", "b", "c"}));
    EXPECT_EQ(quen_test::storedOptions(result).count("second"), 0U);
    EXPECT_EQ(quen_test::storedOptions(result).count("level"), 0U);
}

TEST_F(PositionalOptions, PositionalOptionIsStoredUnderEveryName) {
    add("file,f", tarvo2::vt_str)->positional();
    PositionalOptionsParser recognizer(&parser, &garbage, 0);
    ArgumentList args(std::vector<std::string>{"a"});
    ASSERT_EQ(recognizeAndParse(recognizer, args), 0);
    EXPECT_EQ(textsOf(quen_test::storedOptions(result).at("file")), (std::vector<std::string>{"a"}));
    EXPECT_EQ(textsOf(quen_test::storedOptions(result).at("f")), (std::vector<std::string>{"a"}));
    EXPECT_EQ(recorder.options, (std::vector<std::string>{"file"}));
}

TEST_F(PositionalOptions, IntegerPositionalConvertsItsValue) {
    add("count", tarvo2::vt_int)->positional();
    PositionalOptionsParser recognizer(&parser, &garbage, 0);
    ArgumentList args(std::vector<std::string>{"42"});
    ASSERT_EQ(recognizeAndParse(recognizer, args), 0);
    OptionData const& data = quen_test::storedOptions(result).at("count");
    ASSERT_EQ(data.m_values.size(), 1U);
    EXPECT_EQ(data.m_values[0].first.second.m_type, tarvo2::vt_int);
    EXPECT_EQ(data.m_values[0].first.second.as<int>(), 42);
}

TEST_F(PositionalOptions, InvalidValueFailsAndKeepsTheArgument) {
    add("count", tarvo2::vt_int)->positional();
    PositionalOptionsParser recognizer(&parser, &garbage, 0);
    ArgumentList args(std::vector<std::string>{"abc", "7"});
    EXPECT_EQ(recognizeAndParse(recognizer, args), 2);
    EXPECT_EQ(message,
              "Value validation problem in argument 'abc': Option 'count' can not parse 'abc' value, requires a type "
              "'integer' here.");
    EXPECT_EQ(remaining(args), (std::vector<std::string>{"abc", "7"}));
    EXPECT_TRUE(quen_test::storedOptions(result).empty());
}

TEST_F(PositionalOptions, RunStopsAtInvalidValueKeepingEarlierOnes) {
    add("count", tarvo2::vt_int)->positional();
    PositionalOptionsParser recognizer(&parser, &garbage, quen_3_1::FlagPositionalRun);
    ArgumentList args(std::vector<std::string>{"1", "abc", "3"});
    EXPECT_EQ(recognizeAndParse(recognizer, args), 2);
    EXPECT_EQ(message,
              "Value validation problem in argument 'abc': Option 'count' can not parse 'abc' value, requires a type "
              "'integer' here.");
    EXPECT_EQ(remaining(args), (std::vector<std::string>{"abc", "3"}));
    EXPECT_EQ(textsOf(quen_test::storedOptions(result).at("count")), (std::vector<std::string>{"1"}));
}

TEST_F(PositionalOptions, HandlerVetoFailsWithOneAndKeepsTheArgument) {
    add("file", tarvo2::vt_str)->positional();
    recorder.accept = false;
    PositionalOptionsParser recognizer(&parser, &garbage, 0);
    ArgumentList args(std::vector<std::string>{"a"});
    EXPECT_EQ(recognizeAndParse(recognizer, args), 1);
    EXPECT_EQ(message, "Value 'a' is not valid for option 'file' in argument 'a'");
    EXPECT_EQ(remaining(args), (std::vector<std::string>{"a"}));
    EXPECT_TRUE(quen_test::storedOptions(result).empty());
}

// Trace

TEST_F(PositionalOptions, TraceOfStoredArgument) {
    add("file", tarvo2::vt_str)->positional();
    PositionalOptionsParser recognizer(&parser, &garbage, 0);
    EXPECT_EQ(traceOfParsing(recognizer, {"a", "b"}, 0),
              "PositionalOptionsParser: recognizing argument 'a'\n"
              "PositionalOptionsParser: parsing argument 'a'\n"
              "PositionalOptionsParser: option is 'file'\n"
              "PositionalOptionsParser: adding values to result container:\n"
              "PositionalOptionsParser: using tokenizer on char: ','\n"
              "PositionalOptionsParser: value is: 'a'\n"
              "PositionalOptionsParser: sent event on value parsed, option: 'file', value: 'a'\n"
              "PositionalOptionsParser: stored option to result container.\n"
              "PositionalOptionsParser: removing argument: 'a'\n");
}

TEST_F(PositionalOptions, TraceWithoutTokenizer) {
    add("file", tarvo2::vt_str)->positional()->tokenize(0);
    PositionalOptionsParser recognizer(&parser, &garbage, 0);
    EXPECT_EQ(traceOfParsing(recognizer, {"a,b"}, 0),
              "PositionalOptionsParser: recognizing argument 'a,b'\n"
              "PositionalOptionsParser: parsing argument 'a,b'\n"
              "PositionalOptionsParser: option is 'file'\n"
              "PositionalOptionsParser: adding values to result container:\n"
              "PositionalOptionsParser: not using tokenizer\n"
              "PositionalOptionsParser: stored option to result container.\n"
              "PositionalOptionsParser: removing argument: 'a,b'\n");
    EXPECT_EQ(textsOf(quen_test::storedOptions(result).at("file")), (std::vector<std::string>{"a,b"}));
}

TEST_F(PositionalOptions, TraceOfEmptyArgument) {
    add("file", tarvo2::vt_str)->positional();
    PositionalOptionsParser recognizer(&parser, &garbage, quen_3_1::FlagNoHyphenPositional);
    EXPECT_EQ(traceOfParsing(recognizer, {""}, 0),
              "PositionalOptionsParser: recognizing argument ''\n"
              "PositionalOptionsParser: parsing argument ''\n"
              "PositionalOptionsParser: option is 'file'\n"
              "PositionalOptionsParser: stored option to result container.\n"
              "PositionalOptionsParser: removing argument: ''\n");
}

TEST_F(PositionalOptions, TraceOfRun) {
    add("file", tarvo2::vt_str)->positional();
    PositionalOptionsParser recognizer(&parser, &garbage, quen_3_1::FlagPositionalRun);
    EXPECT_EQ(traceOfParsing(recognizer, {"a", "-x"}, 0),
              "PositionalOptionsParser: recognizing argument 'a'\n"
              "PositionalOptionsParser: parsing argument 'a'\n"
              "PositionalOptionsParser: option is 'file'\n"
              "PositionalOptionsParser: adding values to result container:\n"
              "PositionalOptionsParser: using tokenizer on char: ','\n"
              "PositionalOptionsParser: value is: 'a'\n"
              "PositionalOptionsParser: sent event on value parsed, option: 'file', value: 'a'\n"
              "PositionalOptionsParser: stored option to result container.\n"
              "PositionalOptionsParser: removing argument: 'a'\n"
              "PositionalOptionsParser: adding values to result container:\n"
              "PositionalOptionsParser: using tokenizer on char: ','\n"
              "PositionalOptionsParser: value is: '-x'\n"
              "PositionalOptionsParser: sent event on value parsed, option: 'file', value: '-x'\n"
              "PositionalOptionsParser: stored option to result container.\n"
              "PositionalOptionsParser: removing argument: '-x'\n");
}

TEST_F(PositionalOptions, TraceOfRefusedArgument) {
    add("file", tarvo2::vt_str)->positional();
    PositionalOptionsParser recognizer(&parser, &garbage, quen_3_1::FlagNoHyphenPositional);
    ArgumentList args(std::vector<std::string>{"-x"});
    std::string const trace = traceOf([&] { EXPECT_EQ(recognize(recognizer, args), 1); });
    EXPECT_EQ(trace, "PositionalOptionsParser: recognizing argument '-x'\n");
}

TEST_F(PositionalOptions, TraceOfValidationFailure) {
    add("count", tarvo2::vt_int)->positional();
    PositionalOptionsParser recognizer(&parser, &garbage, 0);
    EXPECT_EQ(traceOfParsing(recognizer, {"abc"}, 2),
              "PositionalOptionsParser: recognizing argument 'abc'\n"
              "PositionalOptionsParser: parsing argument 'abc'\n"
              "PositionalOptionsParser: option is 'count'\n"
              "PositionalOptionsParser: adding values to result container:\n"
              "PositionalOptionsParser: using tokenizer on char: ','\n"
              "PositionalOptionsParser: value is: 'abc'\n"
              "PositionalOptionsParser: Value validation problem in argument 'abc': Option 'count' can not parse "
              "'abc' value, requires a type 'integer' here.\n");
}

TEST_F(PositionalOptions, TraceOfHandlerVeto) {
    add("file", tarvo2::vt_str)->positional();
    recorder.accept = false;
    PositionalOptionsParser recognizer(&parser, &garbage, 0);
    EXPECT_EQ(traceOfParsing(recognizer, {"a"}, 1),
              "PositionalOptionsParser: recognizing argument 'a'\n"
              "PositionalOptionsParser: parsing argument 'a'\n"
              "PositionalOptionsParser: option is 'file'\n"
              "PositionalOptionsParser: adding values to result container:\n"
              "PositionalOptionsParser: using tokenizer on char: ','\n"
              "PositionalOptionsParser: value is: 'a'\n"
              "PositionalOptionsParserValue 'a' is not valid for option 'file' in argument 'a' One of the handler "
              "signaled the value is not valid.\n");
}

TEST_F(PositionalOptions, NothingIsWrittenWhileTracingIsOff) {
    add("file", tarvo2::vt_str)->positional();
    PositionalOptionsParser recognizer(&parser, &garbage, quen_3_1::FlagPositionalRun);
    ArgumentList args(std::vector<std::string>{"a", "b"});
    quen_test::FdCapture capture(1);
    EXPECT_EQ(recognizeAndParse(recognizer, args), 0);
    EXPECT_EQ(capture.finish(), "");
    EXPECT_TRUE(args.empty());
}
