// Null pointers the interface does not forbid get a defined answer instead of
// a write through null.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "quen_3_1/quen.h"
#include "support/public_fixture.h"

using quen_test::ParserHarness;
using tarvo2::variant_t;

TEST(NullPointers, CreateParserWithoutOutputAnswersThree) { EXPECT_EQ(quen_3_1::createParser(nullptr, 0), 3); }

TEST(NullPointers, CreateResultWithoutOutputAnswersThree) {
    ParserHarness harness;
    EXPECT_EQ(harness.parser()->createResult(nullptr), 3);
}

TEST(NullPointers, ArgumentIterationWithoutOutputAnswersOneAndDoesNotMove) {
    ParserHarness harness;
    EXPECT_EQ(harness.parseArgs({"--", "first", "second"}), 0);
    quen_3_1::IParseResult* const result = harness.result();
    EXPECT_EQ(result->getFirstArgument(nullptr), 1);
    char const* text = nullptr;
    ASSERT_EQ(result->getFirstArgument(&text), 0);
    EXPECT_STREQ(text, "first");
    EXPECT_EQ(result->getNextArgument(nullptr), 1);
    ASSERT_EQ(result->getNextArgument(&text), 0);
    EXPECT_STREQ(text, "second");
    EXPECT_EQ(result->getNextArgument(&text), 1);
}

TEST(NullPointers, ArgumentIterationWithoutOutputOnAnEmptyResultAnswersOne) {
    ParserHarness harness;
    EXPECT_EQ(harness.result()->getFirstArgument(nullptr), 1);
    EXPECT_EQ(harness.result()->getNextArgument(nullptr), 1);
}

// A null allowed text stands for the empty text.
TEST(NullPointers, NullAllowedTextRefusesOtherValues) {
    ParserHarness harness;
    harness.option("mode", tarvo2::vt_str)->allowValue(variant_t(static_cast<char const*>(nullptr)));
    EXPECT_EQ(harness.parseText("--mode=x\n"), 2);
    EXPECT_EQ(harness.error(),
              "Value validation problem in argument '--mode=x': Option 'mode' does not allow value 'x'. "
              "Possible values follows: ''");
}

TEST(NullPointers, NullBorrowedAllowedTextIsNoAbbreviationTarget) {
    ParserHarness harness;
    harness.option("mode", tarvo2::vt_str)->allowValue(variant_t::str_ref(nullptr))->allowValue(variant_t("fast"));
    EXPECT_EQ(harness.parseText("--mode=f\n"), 0);
    EXPECT_EQ(quen_test::textsOf(harness.result(), "mode"), (std::vector<std::string>{"fast"}));
}

TEST(NullPointers, NullDefaultTextIsTheEmptyText) {
    ParserHarness harness;
    harness.option("mode", tarvo2::vt_str)->defaultValue(variant_t(static_cast<char const*>(nullptr)));
    EXPECT_EQ(harness.parseArgs({}), 0);
    quen_3_1::Value const value = harness.result()->get("mode");
    EXPECT_EQ(value.m_status, 1);
    EXPECT_FALSE(harness.result()->present("mode"));
}

TEST(NullPointers, HelpRendersNullTextsAsEmpty) {
    ParserHarness harness;
    harness.option("mode", tarvo2::vt_str)
        ->allowValue(variant_t(static_cast<char const*>(nullptr)))
        ->allowValue(variant_t("fast"))
        ->defaultValue(variant_t::str_ref(nullptr));
    EXPECT_EQ(std::string(harness.parser()->getDescription(false)),
              "\ngeneral\n-mode= | fast ()              help text\n\n");
}
