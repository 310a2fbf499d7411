// A long-lived parser keeps only what it hands out: parsing ever new values
// into fresh results leaves its keeper as it was.
#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

#include "support/internal_fixture.h"

using quen_3_1::BasicParser;
using quen_3_1::ParseResult;
using tarvo2::variant_t;

namespace {

class ParserMemory : public quen_test::InternalTest {
protected:
    ParserMemory() : parser(0) {
        parser.option("text", "help", tarvo2::vt_str, "general")->tokenize(',');
        parser.option("number", "help", tarvo2::vt_int64, "general")->defaultValue(variant_t(7LL));
        parser.option("mode", "help", tarvo2::vt_str, "general")
            ->allowValue(variant_t("fast"))
            ->allowValue(variant_t("full"))
            ->defaultValue(variant_t("fast"));
        parser.option("rest", "help", tarvo2::vt_str, "general")->positional();
    }

    // One command line with values that no earlier one had.
    int parseRound(int round) {
        std::string const tag = std::to_string(round);
        std::vector<std::string> texts{
            "prog", "--text=a" + tag + ",b" + tag, "--number", tag, "--mode=fu", "p" + tag, "--", "after" + tag};
        std::vector<char*> argv;
        for (std::string& text : texts) {
            argv.push_back(&text[0]);
        }
        ParseResult* result = new ParseResult();
        int const code = parser.parseArgsVector(static_cast<int>(argv.size()), argv.data(), result);
        result->destroy();
        return code;
    }

    BasicParser parser;
};

}  // namespace

TEST_F(ParserMemory, KeeperDoesNotGrowWithTheValuesParsed) {
    ASSERT_EQ(parseRound(0), 0);
    std::size_t const after = parser.keeper().size();
    for (int round = 1; round < 200; ++round) {
        ASSERT_EQ(parseRound(round), 0);
    }
    EXPECT_EQ(parser.keeper().size(), after);
}

TEST_F(ParserMemory, KeeperDoesNotGrowWithParsedOptionTexts) {
    ParseResult result;
    ASSERT_EQ(parser.parseStream("--text=first\n", &result), 0);
    std::size_t const after = parser.keeper().size();
    for (int round = 1; round < 200; ++round) {
        std::string const text = "--text=value" + std::to_string(round) + "\n" + "plain" + std::to_string(round) + "\n";
        ASSERT_EQ(parser.parseStream(text.c_str(), &result), 0);
    }
    EXPECT_EQ(parser.keeper().size(), after);
}
