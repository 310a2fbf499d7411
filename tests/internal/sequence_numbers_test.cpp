// The end of the sequence range: the last number is handed out, then every
// operation that needs one fails with its own code and message instead of
// storing, the result keeps what it had, and nothing wraps.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "recognizers/argument_parser.h"
#include "support/internal_fixture.h"

using quen_3_1::BasicParser;
using quen_3_1::IArgumentParser;
using quen_3_1::ParseResult;
using tarvo2::variant_t;

namespace {

constexpr std::int32_t kLast = 2147483646;
char const kExhausted[] = "Sequence numbers exhausted: this process can number no more values.";

// Moves the process-wide counter near its end for one test and back after it.
class SequenceEnd : public quen_test::InternalTest {
protected:
    void SetUp() override {
        InternalTest::SetUp();
        m_saved = IArgumentParser::m_idx.load();
    }
    void TearDown() override {
        IArgumentParser::m_idx.store(m_saved);
        InternalTest::TearDown();
    }

    int parseArgs(std::vector<std::string> texts) {
        texts.insert(texts.begin(), "prog");
        std::vector<char*> argv;
        for (std::string& text : texts) {
            argv.push_back(&text[0]);
        }
        return parser.parseArgsVector(static_cast<int>(argv.size()), argv.data(), &result);
    }

    std::string error() { return parser.getErrorDesc(); }

    BasicParser parser{0};
    ParseResult result;
    std::int32_t m_saved = 0;
};

}  // namespace

TEST_F(SequenceEnd, TheLastNumberIsHandedOutThenNoneAndNothingWraps) {
    IArgumentParser::m_idx.store(kLast - 1);
    EXPECT_EQ(IArgumentParser::takeNumber(), kLast - 1);
    EXPECT_FALSE(IArgumentParser::numbersExhausted());
    EXPECT_EQ(IArgumentParser::takeNumber(), kLast);
    EXPECT_TRUE(IArgumentParser::numbersExhausted());
    EXPECT_EQ(IArgumentParser::takeNumber(), IArgumentParser::kNoNumber);
    EXPECT_EQ(IArgumentParser::takeNumber(), IArgumentParser::kNoNumber);
    EXPECT_EQ(IArgumentParser::m_idx.load(), IArgumentParser::kNoNumber);
}

TEST_F(SequenceEnd, AValueThatGetsTheLastNumberIsStored) {
    parser.option("tag", "help", tarvo2::vt_str, "general");
    IArgumentParser::m_idx.store(kLast - 1);
    EXPECT_EQ(parseArgs({"--tag=hello"}), 0);
    quen_3_1::Value const value = result.get("tag", 0, 0x7fffffff);
    EXPECT_EQ(value.m_status, 0);
    EXPECT_STREQ(value.m_text, "hello");
    EXPECT_EQ(value.m_index, kLast);
}

TEST_F(SequenceEnd, AValueWithoutANumberFailsAndIsNotStored) {
    parser.option("tag", "help", tarvo2::vt_str, "general");
    EXPECT_EQ(parseArgs({"--tag=first"}), 0);
    IArgumentParser::m_idx.store(kLast);
    EXPECT_EQ(parseArgs({"--tag=hello"}), 5);
    EXPECT_EQ(error(), kExhausted);
    std::vector<std::string> texts;
    for (quen_3_1::Value v = result.get("tag", 0, 0x7fffffff); v.m_status == 0; v = result.next("tag")) {
        texts.emplace_back(v.m_text);
    }
    EXPECT_EQ(texts, std::vector<std::string>{"first"});
}

TEST_F(SequenceEnd, AnOccurrenceWithoutANumberFails) {
    parser.option("verbose", "help", tarvo2::vt_empty, "general");
    IArgumentParser::m_idx.store(IArgumentParser::kNoNumber);
    std::string message;
    quen_3_1::ArgumentList args(std::vector<std::string>{"--verbose"});
    EXPECT_EQ(parser.parse("--", args, &result, message), 5);
    EXPECT_EQ(message, kExhausted);
    EXPECT_FALSE(result.present("verbose", 0, 0x7fffffff));
}

TEST_F(SequenceEnd, DefaultsWithoutNumbersFailAndKeepTheOnesSetBefore) {
    parser.option("level,lv", "help", tarvo2::vt_int, "general")->defaultValue(variant_t(3));
    IArgumentParser::m_idx.store(kLast);
    EXPECT_EQ(parseArgs({}), 5);
    EXPECT_EQ(error(), kExhausted);
    EXPECT_EQ(result.get("level", 0, 0x7fffffff).m_index, kLast);
    EXPECT_EQ(result.get("lv", 0, 0x7fffffff).m_status, 1);
}

TEST_F(SequenceEnd, PlainArgumentsAfterTheTerminatorStopAtTheLastNumber) {
    IArgumentParser::m_idx.store(kLast);
    EXPECT_EQ(parseArgs({"--", "kept", "refused"}), 5);
    EXPECT_EQ(error(), kExhausted);
    ASSERT_EQ(result.arguments().size(), 1U);
    EXPECT_EQ(result.arguments()[0].first, "kept");
    EXPECT_EQ(result.arguments()[0].second, kLast);
}

TEST_F(SequenceEnd, EveryLaterParseFailsTheSameWay) {
    IArgumentParser::m_idx.store(IArgumentParser::kNoNumber);
    EXPECT_EQ(parseArgs({}), 5);
    EXPECT_EQ(error(), kExhausted);
    BasicParser other(0);
    ParseResult fresh;
    EXPECT_EQ(other.parseStream("", &fresh), 5);
    EXPECT_STREQ(other.getErrorDesc(), kExhausted);
    EXPECT_EQ(other.parseStream("unclaimed\n", &fresh), 5);
    EXPECT_EQ(IArgumentParser::m_idx.load(), IArgumentParser::kNoNumber);
}
