// The routine every recognizer shares: a value text is split at the option's
// tokenizer, each piece validated, announced to the handlers and numbered,
// and the occurrence handed to the result in one store call.
#include "recognizers/argument_parser.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "frontend/basic_parser.h"
#include "frontend/trace.h"
#include "options/option_description.h"
#include "recognizers/argument_list.h"
#include "results/option_data.h"
#include "results/parse_result.h"
#include "results/result_collector.h"
#include "support/capture.h"
#include "support/internal_fixture.h"
#include "values/garbage.h"

namespace {

using quen_3_1::ArgumentList;
using quen_3_1::BasicParser;
using quen_3_1::EventHandler;
using quen_3_1::Garbage;
using quen_3_1::IArgumentParser;
using quen_3_1::IResultCollector;
using quen_3_1::OptionData;
using quen_3_1::OptionDescription;
using quen_3_1::ParseResult;
using quen_3_1::RegisteredOptionStorage;
using quen_3_1::Value;
using quen_test::textsOf;

// The bare base with the shared routine made reachable.
class ProbeRecognizer final : public IArgumentParser {
public:
    ProbeRecognizer(EventHandler* handler, Garbage* garbage) : IArgumentParser(handler, garbage, 0) {}

    bool recognize(ArgumentList const& /*args*/, RegisteredOptionStorage const& /*storage*/,
                   quen_3_1::Recognition& /*found*/) override {
        return false;
    }
    quen_3_1::Status parse(ArgumentList& /*args*/, quen_3_1::Recognition const& /*found*/,
                           quen_3_1::IResultCollector* /*collector*/, RegisteredOptionStorage const& /*storage*/,
                           std::string& /*message*/) override {
        return quen_3_1::Status::Failed;
    }
    int getPriority() override { return 0; }

    using IArgumentParser::parseValueAndAddOption;
};

// A recognizer with heap-held parts of its own, to be deleted through the base.
class HeavyRecognizer final : public IArgumentParser {
public:
    HeavyRecognizer(EventHandler* handler, Garbage* garbage, bool* destroyed)
        : IArgumentParser(handler, garbage, 0x10), m_destroyed(destroyed) {
        m_name = "HeavyRecognizerWithANameLongerThanAnyInlineStringBuffer";
        m_matches.assign(64, "a candidate name long enough to need its own allocation");
    }
    ~HeavyRecognizer() override { *m_destroyed = true; }

    bool recognize(ArgumentList const& /*args*/, RegisteredOptionStorage const& /*storage*/,
                   quen_3_1::Recognition& /*found*/) override {
        return true;
    }
    quen_3_1::Status parse(ArgumentList& /*args*/, quen_3_1::Recognition const& /*found*/,
                           quen_3_1::IResultCollector* /*collector*/, RegisteredOptionStorage const& /*storage*/,
                           std::string& /*message*/) override {
        return quen_3_1::Status::Ok;
    }
    int getPriority() override { return -1; }

private:
    bool* m_destroyed;
    std::vector<std::string> m_matches;
};

// Counts store calls, keeps what each one delivered, and passes it on.
class RecordingCollector final : public IResultCollector {
public:
    explicit RecordingCollector(ParseResult* target) : m_target(target) {}

    int store(OptionDescription const& option, OptionData& data) override {
        options.push_back(&option);
        stored.push_back(data);
        return m_target->store(option, data);
    }

    std::vector<OptionDescription const*> options;
    std::vector<OptionData> stored;

private:
    ParseResult* m_target;
};

struct ValueEvent {
    std::string name;
    std::string text;
    std::int32_t status;
    std::int32_t index;
    tarvo2::variant_t value;
};

// Records every value event; refuses the value event number `vetoAt` (1-based).
class ValueWatcher final : public EventHandler {
public:
    bool onValueParse(char const* name, Value const& value) override {
        events.push_back(ValueEvent{name, value.as<char const*>(), value.m_status, value.m_index, value.m_value});
        return static_cast<int>(events.size()) != vetoAt;
    }

    std::vector<ValueEvent> events;
    int vetoAt = 0;
};

class ArgumentParserTest : public quen_test::InternalTest {
protected:
    void SetUp() override {
        InternalTest::SetUp();
        quen_3_1::IParser* parser = nullptr;
        ASSERT_EQ(quen_3_1::createParser(&parser, 0), 0);
        m_parser = dynamic_cast<BasicParser*>(parser);
        ASSERT_NE(m_parser, nullptr);
        quen_3_1::IParseResult* result = nullptr;
        ASSERT_EQ(m_parser->createResult(&result), 0);
        m_result = dynamic_cast<ParseResult*>(result);
        ASSERT_NE(m_result, nullptr);
        m_collector = new RecordingCollector(m_result);
        m_recognizer = new ProbeRecognizer(m_parser, &m_garbage);
        ASSERT_TRUE(m_parser->addHandler(&m_watcher));
    }
    void TearDown() override {
        delete m_recognizer;
        delete m_collector;
        m_result->destroy();
        m_parser->destroy();
        InternalTest::TearDown();
    }

    OptionDescription& declare(char const* names, tarvo2::kel_variant_type_t type) {
        return *dynamic_cast<OptionDescription*>(m_parser->option(names, "An option", type, "g"));
    }

    int run(std::string value, OptionDescription const& option, std::string const& argument) {
        ArgumentList args(std::vector<std::string>{argument, "--after"});
        int const code =
            quen_3_1::codeOf(m_recognizer->parseValueAndAddOption(value, m_message, option, args, m_collector));
        // The routine never consumes arguments.
        EXPECT_EQ(args.size(), 2u);
        EXPECT_EQ(args[0], argument);
        return code;
    }

    // Runs the routine with the trace switched on; it must give `code`. Returns
    // what reached standard output.
    std::string traced(std::string value, OptionDescription const& option, std::string const& argument, int code) {
        return quen_test::traceOf([&] { EXPECT_EQ(run(std::move(value), option, argument), code); });
    }

    Garbage m_garbage;
    BasicParser* m_parser = nullptr;
    ParseResult* m_result = nullptr;
    RecordingCollector* m_collector = nullptr;
    ProbeRecognizer* m_recognizer = nullptr;
    ValueWatcher m_watcher;
    std::string m_message;
};

TEST_F(ArgumentParserTest, TokenMessageQuotesTheArgument) {
    std::string token = "--x";
    EXPECT_EQ(m_recognizer->formatTokenMessage(token), " in argument: '--x'");
    std::string empty;
    EXPECT_EQ(m_recognizer->formatTokenMessage(empty), " in argument: ''");
}

TEST_F(ArgumentParserTest, EmptyValueStoresOneOccurrenceWithoutValues) {
    OptionDescription const& option = declare("quiet", tarvo2::vt_empty);
    std::int32_t const before = IArgumentParser::m_idx;
    EXPECT_EQ(run("", option, "--quiet"), 0);
    EXPECT_EQ(IArgumentParser::m_idx, before + 1);
    ASSERT_EQ(m_collector->stored.size(), 1u);
    EXPECT_EQ(m_collector->options[0], &option);
    OptionData const& data = m_collector->stored[0];
    EXPECT_EQ(data.m_positions, std::vector<std::int32_t>({before}));
    EXPECT_TRUE(data.m_values.empty());
    EXPECT_EQ(data.m_default.first.first, "");
    EXPECT_EQ(data.m_default.first.second.m_type, tarvo2::vt_empty);
    EXPECT_EQ(data.m_default.second, 0);
    EXPECT_TRUE(m_watcher.events.empty());
    ASSERT_EQ(quen_test::storedOptions(*m_result).count("quiet"), 1u);
    EXPECT_EQ(quen_test::storedOptions(*m_result).at("quiet").m_positions, std::vector<std::int32_t>({before}));
}

TEST_F(ArgumentParserTest, TokenizerGivesOneValuePerPieceInOneStore) {
    OptionDescription const& option = declare("n", tarvo2::vt_int);
    std::int32_t const before = IArgumentParser::m_idx;
    EXPECT_EQ(run("1,2", option, "--n=1,2"), 0);
    EXPECT_EQ(IArgumentParser::m_idx, before + 3);

    ASSERT_EQ(m_collector->stored.size(), 1u);
    OptionData const& data = m_collector->stored[0];
    EXPECT_EQ(data.m_positions, std::vector<std::int32_t>({before}));
    ASSERT_EQ(data.m_values.size(), 2u);
    EXPECT_EQ(data.m_values[0].first.first, "1");
    EXPECT_EQ(data.m_values[0].first.second.m_type, tarvo2::vt_int);
    EXPECT_EQ(data.m_values[0].first.second.as<int>(), 1);
    EXPECT_EQ(data.m_values[0].second, before + 1);
    EXPECT_EQ(data.m_values[1].first.first, "2");
    EXPECT_EQ(data.m_values[1].first.second.as<int>(), 2);
    EXPECT_EQ(data.m_values[1].second, before + 2);

    ASSERT_EQ(m_watcher.events.size(), 2u);
    for (std::size_t i = 0; i < 2; ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(m_watcher.events[i].name, "n");
        EXPECT_EQ(m_watcher.events[i].status, 0);
        EXPECT_EQ(m_watcher.events[i].text, data.m_values[i].first.first);
        EXPECT_EQ(m_watcher.events[i].index, data.m_values[i].second);
        EXPECT_EQ(m_watcher.events[i].value, data.m_values[i].first.second);
    }

    OptionData const& kept = quen_test::storedOptions(*m_result).at("n");
    EXPECT_EQ(kept.m_positions, data.m_positions);
    EXPECT_EQ(textsOf(kept.m_values), std::vector<std::string>({"1", "2"}));
}

TEST_F(ArgumentParserTest, DoubledSeparatorJoinsTheNextPiece) {
    OptionDescription const& option = declare("list", tarvo2::vt_str);
    EXPECT_EQ(run("1,,2", option, "--list=1,,2"), 0);
    ASSERT_EQ(m_collector->stored.size(), 1u);
    EXPECT_EQ(textsOf(m_collector->stored[0].m_values), std::vector<std::string>({"1", ",2"}));
    ASSERT_EQ(m_watcher.events.size(), 2u);
    EXPECT_EQ(m_watcher.events[1].text, ",2");
}

TEST_F(ArgumentParserTest, TrailingSeparatorGivesANulValue) {
    OptionDescription const& option = declare("list", tarvo2::vt_str);
    EXPECT_EQ(run("1,", option, "--list=1,"), 0);
    ASSERT_EQ(m_collector->stored.size(), 1u);
    EXPECT_EQ(textsOf(m_collector->stored[0].m_values), std::vector<std::string>({"1", std::string(1, '\0')}));
    EXPECT_EQ(m_watcher.events.size(), 2u);
}

TEST_F(ArgumentParserTest, LoneSeparatorGivesAnEmptyAndANulValue) {
    OptionDescription const& option = declare("list", tarvo2::vt_str);
    EXPECT_EQ(run(",", option, "--list=,"), 0);
    ASSERT_EQ(m_collector->stored.size(), 1u);
    EXPECT_EQ(textsOf(m_collector->stored[0].m_values), std::vector<std::string>({"", std::string(1, '\0')}));
}

TEST_F(ArgumentParserTest, OtherTokenizerCharacterSplitsThere) {
    OptionDescription& option = declare("list", tarvo2::vt_str);
    option.tokenize(';');
    EXPECT_EQ(run("a,b;c", option, "--list=a,b;c"), 0);
    ASSERT_EQ(m_collector->stored.size(), 1u);
    EXPECT_EQ(textsOf(m_collector->stored[0].m_values), std::vector<std::string>({"a,b", "c"}));
}

TEST_F(ArgumentParserTest, WithoutTokenizerTheTextStaysWhole) {
    OptionDescription& option = declare("list", tarvo2::vt_str);
    option.tokenize(0);
    std::int32_t const before = IArgumentParser::m_idx;
    EXPECT_EQ(run("1,2", option, "--list=1,2"), 0);
    EXPECT_EQ(IArgumentParser::m_idx, before + 2);
    ASSERT_EQ(m_collector->stored.size(), 1u);
    OptionData const& data = m_collector->stored[0];
    EXPECT_EQ(data.m_positions, std::vector<std::int32_t>({before}));
    ASSERT_EQ(data.m_values.size(), 1u);
    EXPECT_EQ(data.m_values[0].first.first, "1,2");
    EXPECT_STREQ(data.m_values[0].first.second.as<char const*>(), "1,2");
    EXPECT_EQ(data.m_values[0].second, before + 1);
    ASSERT_EQ(m_watcher.events.size(), 1u);
    EXPECT_EQ(m_watcher.events[0].text, "1,2");
    EXPECT_EQ(m_watcher.events[0].index, before + 1);
}

TEST_F(ArgumentParserTest, OccurrenceNumberPrecedesConsecutiveValueNumbers) {
    OptionDescription const& option = declare("n", tarvo2::vt_int);
    EXPECT_EQ(run("4,5,6", option, "--n=4,5,6"), 0);
    EXPECT_EQ(run("7", option, "--n=7"), 0);
    ASSERT_EQ(m_collector->stored.size(), 2u);
    OptionData const& first = m_collector->stored[0];
    ASSERT_EQ(first.m_values.size(), 3u);
    EXPECT_LT(first.m_positions[0], first.m_values[0].second);
    EXPECT_EQ(first.m_values[1].second, first.m_values[0].second + 1);
    EXPECT_EQ(first.m_values[2].second, first.m_values[1].second + 1);
    OptionData const& second = m_collector->stored[1];
    EXPECT_GT(second.m_positions[0], first.m_values[2].second);
    ASSERT_EQ(second.m_values.size(), 1u);
    EXPECT_LT(second.m_positions[0], second.m_values[0].second);
    // The second occurrence is appended in the result.
    OptionData const& kept = quen_test::storedOptions(*m_result).at("n");
    EXPECT_EQ(kept.m_positions, std::vector<std::int32_t>({first.m_positions[0], second.m_positions[0]}));
    EXPECT_EQ(textsOf(kept.m_values), std::vector<std::string>({"4", "5", "6", "7"}));
}

TEST_F(ArgumentParserTest, AbbreviatedAllowedValueIsStoredInFull) {
    OptionDescription& option = declare("mode", tarvo2::vt_str);
    option.allowValue(tarvo2::variant_t("fast"))->allowValue(tarvo2::variant_t("small"));
    EXPECT_EQ(run("s", option, "--mode=s"), 0);
    ASSERT_EQ(m_collector->stored.size(), 1u);
    ASSERT_EQ(m_collector->stored[0].m_values.size(), 1u);
    EXPECT_EQ(m_collector->stored[0].m_values[0].first.first, "small");
    EXPECT_STREQ(m_collector->stored[0].m_values[0].first.second.as<char const*>(), "small");
    ASSERT_EQ(m_watcher.events.size(), 1u);
    EXPECT_EQ(m_watcher.events[0].text, "small");
}

TEST_F(ArgumentParserTest, ValidationFailureStoresNothing) {
    OptionDescription const& option = declare("level", tarvo2::vt_int);
    std::int32_t const before = IArgumentParser::m_idx;
    EXPECT_EQ(run("x", option, "--level=x"), 2);
    EXPECT_EQ(m_message,
              "Value validation problem in argument '--level=x': Option 'level' can not parse 'x' value, requires a "
              "type 'integer' here.");
    EXPECT_TRUE(m_collector->stored.empty());
    EXPECT_TRUE(quen_test::storedOptions(*m_result).empty());
    EXPECT_TRUE(m_watcher.events.empty());
    // The occurrence number stays taken.
    EXPECT_EQ(IArgumentParser::m_idx, before + 1);
}

TEST_F(ArgumentParserTest, ValidationFailureOfALaterPieceKeepsEarlierEvents) {
    OptionDescription const& option = declare("level", tarvo2::vt_int);
    std::int32_t const before = IArgumentParser::m_idx;
    EXPECT_EQ(run("1,x,3", option, "--level=1,x,3"), 2);
    EXPECT_EQ(m_message,
              "Value validation problem in argument '--level=1,x,3': Option 'level' can not parse 'x' value, "
              "requires a type 'integer' here.");
    EXPECT_TRUE(m_collector->stored.empty());
    EXPECT_TRUE(quen_test::storedOptions(*m_result).empty());
    ASSERT_EQ(m_watcher.events.size(), 1u);
    EXPECT_EQ(m_watcher.events[0].text, "1");
    EXPECT_EQ(IArgumentParser::m_idx, before + 2);
}

TEST_F(ArgumentParserTest, ValidationFailureWithoutTokenizerNamesTheWholeText) {
    OptionDescription& option = declare("level", tarvo2::vt_int);
    option.tokenize(0);
    EXPECT_EQ(run("abc", option, "--lev=abc"), 2);
    EXPECT_EQ(m_message,
              "Value validation problem in argument '--lev=abc': Option 'level' can not parse 'abc' value, requires a "
              "type 'integer' here.");
    EXPECT_TRUE(m_collector->stored.empty());
}

TEST_F(ArgumentParserTest, HandlerVetoOfTheSecondPieceStoresNothing) {
    OptionDescription const& option = declare("n", tarvo2::vt_int);
    m_watcher.vetoAt = 2;
    std::int32_t const before = IArgumentParser::m_idx;
    EXPECT_EQ(run("1,2,3", option, "--n=1,2,3"), 1);
    EXPECT_EQ(m_message, "Value '1,2,3' is not valid for option 'n' in argument '--n=1,2,3'");
    EXPECT_TRUE(m_collector->stored.empty());
    EXPECT_TRUE(quen_test::storedOptions(*m_result).empty());
    ASSERT_EQ(m_watcher.events.size(), 2u);
    EXPECT_EQ(m_watcher.events[0].text, "1");
    EXPECT_EQ(m_watcher.events[0].index, before + 1);
    EXPECT_EQ(m_watcher.events[1].text, "2");
    EXPECT_EQ(m_watcher.events[1].index, before + 2);
    // Numbers taken by the failed call stay taken: the next call continues after them.
    EXPECT_EQ(IArgumentParser::m_idx, before + 3);
    m_watcher.vetoAt = 0;
    EXPECT_EQ(run("", option, "--n"), 0);
    ASSERT_EQ(m_collector->stored.size(), 1u);
    EXPECT_EQ(m_collector->stored[0].m_positions, std::vector<std::int32_t>({before + 3}));
}

TEST_F(ArgumentParserTest, VetoOfAnAbbreviatedSinglePieceQuotesTheTextAsGiven) {
    OptionDescription& option = declare("mode", tarvo2::vt_str);
    option.allowValue(tarvo2::variant_t("fast"))->allowValue(tarvo2::variant_t("small"));
    m_watcher.vetoAt = 1;
    EXPECT_EQ(run("s", option, "--mode=s"), 1);
    EXPECT_EQ(m_message, "Value 's' is not valid for option 'mode' in argument '--mode=s'");
    ASSERT_EQ(m_watcher.events.size(), 1u);
    EXPECT_EQ(m_watcher.events[0].text, "small");
    EXPECT_TRUE(m_collector->stored.empty());
}

TEST_F(ArgumentParserTest, HandlerVetoWithoutTokenizer) {
    OptionDescription& option = declare("path", tarvo2::vt_str);
    option.tokenize(0);
    m_watcher.vetoAt = 1;
    EXPECT_EQ(run("a,b", option, "--path=a,b"), 1);
    EXPECT_EQ(m_message, "Value 'a,b' is not valid for option 'path' in argument '--path=a,b'");
    EXPECT_TRUE(m_collector->stored.empty());
    ASSERT_EQ(m_watcher.events.size(), 1u);
    EXPECT_EQ(m_watcher.events[0].text, "a,b");
}

TEST_F(ArgumentParserTest, TraceOfASplitValue) {
    OptionDescription const& option = declare("n", tarvo2::vt_int);
    EXPECT_EQ(traced("1,2", option, "--n=1,2", 0),
              "UndefinedParser: adding values to result container:\n"
              "UndefinedParser: using tokenizer on char: ','\n"
              "UndefinedParser: value is: '1'\n"
              "UndefinedParser: sent event on value parsed, option: 'n', value: '1'\n"
              "UndefinedParser: value is: '2'\n"
              "UndefinedParser: sent event on value parsed, option: 'n', value: '2'\n"
              "UndefinedParser: stored option to result container.\n");
}

TEST_F(ArgumentParserTest, TraceOfAnAbbreviatedValue) {
    OptionDescription& option = declare("mode", tarvo2::vt_str);
    option.allowValue(tarvo2::variant_t("fast"))->allowValue(tarvo2::variant_t("small"));
    EXPECT_EQ(traced("s", option, "--mode=s", 0),
              "UndefinedParser: adding values to result container:\n"
              "UndefinedParser: using tokenizer on char: ','\n"
              "UndefinedParser: value is: 's'\n"
              "UndefinedParser: sent event on value parsed, option: 'mode', value: 'small'\n"
              "UndefinedParser: stored option to result container.\n");
}

TEST_F(ArgumentParserTest, TraceOfAnEmptyValue) {
    OptionDescription const& option = declare("quiet", tarvo2::vt_empty);
    EXPECT_EQ(traced("", option, "--quiet", 0), "UndefinedParser: stored option to result container.\n");
}

TEST_F(ArgumentParserTest, TraceWithoutTokenizer) {
    OptionDescription& option = declare("path", tarvo2::vt_str);
    option.tokenize(0);
    EXPECT_EQ(traced("a,b", option, "--path=a,b", 0),
              "UndefinedParser: adding values to result container:\n"
              "UndefinedParser: not using tokenizer\n"
              "UndefinedParser: stored option to result container.\n");
}

TEST_F(ArgumentParserTest, TraceOfAValidationFailure) {
    OptionDescription const& option = declare("level", tarvo2::vt_int);
    EXPECT_EQ(traced("x", option, "--level=x", 2),
              "UndefinedParser: adding values to result container:\n"
              "UndefinedParser: using tokenizer on char: ','\n"
              "UndefinedParser: value is: 'x'\n"
              "UndefinedParser: Value validation problem in argument '--level=x': Option 'level' can not parse 'x' "
              "value, requires a type 'integer' here.\n");
}

TEST_F(ArgumentParserTest, TraceOfAVeto) {
    OptionDescription const& option = declare("n", tarvo2::vt_int);
    m_watcher.vetoAt = 2;
    EXPECT_EQ(traced("1,2,3", option, "--n=1,2,3", 1),
              "UndefinedParser: adding values to result container:\n"
              "UndefinedParser: using tokenizer on char: ','\n"
              "UndefinedParser: value is: '1'\n"
              "UndefinedParser: sent event on value parsed, option: 'n', value: '1'\n"
              "UndefinedParser: value is: '2'\n"
              "UndefinedParserValue '1,2,3' is not valid for option 'n' in argument '--n=1,2,3' One of the handler "
              "signaled the value is not valid.\n");
}

TEST_F(ArgumentParserTest, TraceOfAVetoWithoutTokenizer) {
    OptionDescription& option = declare("path", tarvo2::vt_str);
    option.tokenize(0);
    m_watcher.vetoAt = 1;
    EXPECT_EQ(traced("a,b", option, "--path=a,b", 1),
              "UndefinedParser: adding values to result container:\n"
              "UndefinedParser: not using tokenizer\n"
              "UndefinedParserValue 'a,b' is not valid for option 'path' in argument '--path=a,b' One of the handler "
              "signaled the value is not valid.\n");
}

TEST_F(ArgumentParserTest, NoTraceWhileSwitchedOff) {
    OptionDescription const& option = declare("n", tarvo2::vt_int);
    quen_test::FdCapture capture(1);
    EXPECT_EQ(run("1,2", option, "--n=1,2"), 0);
    m_watcher.vetoAt = 3;
    EXPECT_EQ(run("3", option, "--n=3"), 1);
    EXPECT_EQ(run("x", option, "--n=x"), 2);
    EXPECT_EQ(capture.finish(), "");
}

TEST_F(ArgumentParserTest, RecognizerDeletedThroughTheBaseReleasesItsParts) {
    bool destroyed = false;
    IArgumentParser* const recognizer = new HeavyRecognizer(m_parser, &m_garbage, &destroyed);
    EXPECT_EQ(recognizer->getPriority(), -1);
    delete recognizer;
    EXPECT_TRUE(destroyed);
}

}  // namespace
