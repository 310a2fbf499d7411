// Reading a result back: values one by one, occurrence numbers, ranges of
// sequence numbers, defaults, plain arguments and the not-found record.
#include <gtest/gtest.h>
#include <quen_3_1/quen.h>

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "support/public_fixture.h"

using quen_3_1::getLastValue;
using quen_3_1::IParseResult;
using quen_3_1::Value;
using quen_test::kNoNumber;
using quen_test::numbersOf;
using quen_test::occurrencesOf;
using quen_test::ParserHarness;
using quen_test::textsOf;

namespace {

using StringList = std::vector<std::string>;

class ResultQuery : public quen_test::PublicTest {};
class RangeQuery : public quen_test::PublicTest {};
class DefaultQuery : public quen_test::PublicTest {};
class PlainArgumentQuery : public quen_test::PublicTest {};
class NullName : public quen_test::PublicTest {};

// The record every failed query returns.
void expectNotFound(Value const& value) {
    EXPECT_EQ(value.m_text, nullptr);
    EXPECT_EQ(value.m_status, 1);
    EXPECT_EQ(value.m_index, kNoNumber);
    EXPECT_EQ(value.m_value.m_type, tarvo2::vt_empty);
}

TEST_F(ResultQuery, GetThenNextEndsWithStatusOne) {
    ParserHarness harness;
    harness.option("level", tarvo2::vt_int);
    ASSERT_EQ(harness.parseArgs({"--level=5"}), 0);
    IParseResult* const result = harness.result();

    Value const first = result->get("level", 0, kNoNumber);
    EXPECT_EQ(first.m_status, 0);
    EXPECT_STREQ(first.m_text, "5");
    EXPECT_EQ(first.m_value.m_type, tarvo2::vt_int);
    EXPECT_EQ(first.m_value.as<int>(), 5);
    EXPECT_STREQ(first.as<char const*>(), "5");
    expectNotFound(result->next("level"));
    expectNotFound(result->next("level"));
}

TEST_F(ResultQuery, UnknownNameIsNotFound) {
    ParserHarness harness;
    harness.option("level", tarvo2::vt_int);
    ASSERT_EQ(harness.parseArgs({"--level=5"}), 0);
    EXPECT_FALSE(harness.result()->present("other", 0, kNoNumber));
    expectNotFound(harness.result()->get("other", 0, kNoNumber));
    expectNotFound(harness.result()->next("other"));
    expectNotFound(getLastValue(harness.result(), "other", 0, kNoNumber));
}

TEST_F(ResultQuery, SynonymsGiveTheSameValues) {
    ParserHarness harness;
    harness.option("output,out,o", tarvo2::vt_str)->synonym("target");
    ASSERT_EQ(harness.parseArgs({"--o=x", "--target", "y", "--output=z"}), 0);
    IParseResult* const result = harness.result();

    EXPECT_EQ(textsOf(result, "output"), StringList({"x", "y", "z"}));
    std::vector<int> const numbers = numbersOf(result, "output");
    for (char const* name : {"out", "o", "target"}) {
        EXPECT_EQ(textsOf(result, name), StringList({"x", "y", "z"})) << name;
        EXPECT_EQ(numbersOf(result, name), numbers) << name;
        EXPECT_EQ(occurrencesOf(result, name), occurrencesOf(result, "output")) << name;
    }
}

TEST_F(ResultQuery, CommaTokenizerGivesIncreasingNumbers) {
    ParserHarness harness;
    harness.option("list", tarvo2::vt_str);
    ASSERT_EQ(harness.parseArgs({"--list=a,b,c"}), 0);
    IParseResult* const result = harness.result();

    Value const a = result->get("list", 0, kNoNumber);
    Value const b = result->next("list");
    Value const c = result->next("list");
    EXPECT_STREQ(a.m_text, "a");
    EXPECT_STREQ(b.m_text, "b");
    EXPECT_STREQ(c.m_text, "c");
    EXPECT_EQ(b.m_index, a.m_index + 1);
    EXPECT_EQ(c.m_index, b.m_index + 1);
    expectNotFound(result->next("list"));
    // One occurrence, numbered right before its values.
    EXPECT_EQ(occurrencesOf(result, "list"), std::vector<int>({a.m_index - 1}));
}

TEST_F(ResultQuery, OptionWithoutValuesYieldsOccurrenceNumbers) {
    ParserHarness harness;
    harness.option("flag", tarvo2::vt_empty);
    harness.option("level", tarvo2::vt_int);
    ASSERT_EQ(harness.parseArgs({"--flag", "--level=1", "-flag", "--level=2", "--fl"}), 0);
    IParseResult* const result = harness.result();

    Value const first = result->get("flag", 0, kNoNumber);
    Value const second = result->next("flag");
    Value const third = result->next("flag");
    for (Value const* value : {&first, &second, &third}) {
        EXPECT_EQ(value->m_status, 0);
        EXPECT_EQ(value->m_text, nullptr);
        EXPECT_EQ(value->as<char const*>(), nullptr);
    }
    expectNotFound(result->next("flag"));
    std::vector<int> const levels = numbersOf(result, "level");
    ASSERT_EQ(levels.size(), 2u);
    EXPECT_LT(first.m_index, levels[0]);
    EXPECT_LT(levels[0], second.m_index);
    EXPECT_LT(second.m_index, levels[1]);
    EXPECT_LT(levels[1], third.m_index);
}

TEST_F(ResultQuery, NextWithAnotherNameContinuesTheLastOption) {
    ParserHarness harness;
    harness.option("alpha", tarvo2::vt_str);
    harness.option("beta", tarvo2::vt_str);
    ASSERT_EQ(harness.parseArgs({"--alpha=a1,a2,a3", "--beta=b1"}), 0);
    IParseResult* const result = harness.result();

    EXPECT_STREQ(result->get("alpha", 0, kNoNumber).m_text, "a1");
    EXPECT_STREQ(result->next("beta").m_text, "a2");
    EXPECT_STREQ(result->next("unknown").m_text, "a3");
    expectNotFound(result->next("beta"));
}

TEST_F(ResultQuery, LookupOfAnotherOptionEndsTheIteration) {
    ParserHarness harness;
    harness.option("alpha", tarvo2::vt_str);
    harness.option("beta", tarvo2::vt_str);
    ASSERT_EQ(harness.parseArgs({"--alpha=a1,a2", "--beta=b1,b2"}), 0);
    IParseResult* const result = harness.result();

    EXPECT_STREQ(result->get("alpha", 0, kNoNumber).m_text, "a1");
    EXPECT_TRUE(result->present("beta", 0, kNoNumber));
    EXPECT_STREQ(result->next("alpha").m_text, "b1");
    EXPECT_STREQ(result->next("alpha").m_text, "b2");
    expectNotFound(result->next("alpha"));
}

TEST_F(ResultQuery, PresentThenNextYieldsTheFirstValue) {
    ParserHarness harness;
    harness.option("list", tarvo2::vt_str);
    ASSERT_EQ(harness.parseArgs({"--list=a,b"}), 0);
    IParseResult* const result = harness.result();

    ASSERT_TRUE(result->present("list", 0, kNoNumber));
    EXPECT_STREQ(result->next("list").m_text, "a");
    EXPECT_STREQ(result->next("list").m_text, "b");
    expectNotFound(result->next("list"));
}

TEST_F(ResultQuery, GetLastValueGivesTheLastOfGetAndNext) {
    ParserHarness harness;
    harness.option("list", tarvo2::vt_str);
    ASSERT_EQ(harness.parseArgs({"--list=a,b", "--list=c"}), 0);
    Value const last = getLastValue(harness.result(), "list", 0, kNoNumber);
    EXPECT_EQ(last.m_status, 0);
    EXPECT_STREQ(last.m_text, "c");
    EXPECT_EQ(last.m_index, numbersOf(harness.result(), "list").back());
}

TEST_F(ResultQuery, NextPositionAfterFailedLookupIsTheNoNumber) {
    ParserHarness harness;
    harness.option("level", tarvo2::vt_int);
    ASSERT_EQ(harness.parseArgs({"--level=1", "--level=2"}), 0);
    IParseResult* const result = harness.result();

    expectNotFound(result->get("missing", 0, kNoNumber));
    EXPECT_EQ(result->nextPosition(), kNoNumber);
    ASSERT_EQ(result->get("level", 0, kNoNumber).m_status, 0);
    EXPECT_FALSE(result->present("missing", 0, kNoNumber));
    EXPECT_EQ(result->nextPosition(), kNoNumber);
}

TEST_F(ResultQuery, NextPositionAfterGetOfOptionWithValuesStartsWithTheFirstInRange) {
    ParserHarness harness;
    harness.option("level", tarvo2::vt_int);
    ASSERT_EQ(harness.parseArgs({"--level=1", "--level=2", "--level=3"}), 0);
    IParseResult* const result = harness.result();
    std::vector<int> const occurrences = occurrencesOf(result, "level");
    ASSERT_EQ(occurrences.size(), 3u);

    Value const second = result->get("level", occurrences[1], kNoNumber);
    EXPECT_STREQ(second.m_text, "2");
    EXPECT_EQ(result->nextPosition(), occurrences[1]);
    EXPECT_EQ(result->nextPosition(), occurrences[2]);
    EXPECT_EQ(result->nextPosition(), kNoNumber);
}

TEST_F(ResultQuery, NextPositionAfterGetOfOptionWithoutValuesStartsWithTheFollowingOne) {
    ParserHarness harness;
    harness.option("flag", tarvo2::vt_empty);
    ASSERT_EQ(harness.parseArgs({"--flag", "--flag", "--flag"}), 0);
    IParseResult* const result = harness.result();

    Value const first = result->get("flag", 0, kNoNumber);
    ASSERT_EQ(first.m_status, 0);
    int const second = result->nextPosition();
    int const third = result->nextPosition();
    EXPECT_LT(first.m_index, second);
    EXPECT_LT(second, third);
    EXPECT_EQ(result->nextPosition(), kNoNumber);
    EXPECT_EQ(occurrencesOf(result, "flag"), std::vector<int>({first.m_index, second, third}));
}

// Three occurrences of "level", each numbered right before its value.
class ThreeOccurrences : public RangeQuery {
protected:
    void SetUp() override {
        RangeQuery::SetUp();
        harness.option("level", tarvo2::vt_int);
        ASSERT_EQ(harness.parseArgs({"--level=1", "--level=2", "--level=3"}), 0);
        occurrences = occurrencesOf(harness.result(), "level");
        values = numbersOf(harness.result(), "level");
        ASSERT_EQ(occurrences.size(), 3u);
        ASSERT_EQ(values.size(), 3u);
    }

    ParserHarness harness;
    std::vector<int> occurrences;
    std::vector<int> values;
};

TEST_F(ThreeOccurrences, ValuesFollowTheirOccurrences) {
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(values[i], occurrences[i] + 1) << i;
    }
}

TEST_F(ThreeOccurrences, UpperBoundAtAnOccurrenceExcludesIt) {
    IParseResult* const result = harness.result();
    EXPECT_EQ(textsOf(result, "level", 0, occurrences[1]), StringList({"1"}));
    EXPECT_EQ(textsOf(result, "level", occurrences[1], occurrences[2]), StringList({"2"}));
    expectNotFound(result->get("level", 0, occurrences[0]));
    EXPECT_FALSE(result->present("level", occurrences[0] + 1, occurrences[1]));
}

TEST_F(ThreeOccurrences, LowerBoundIsIncluded) {
    EXPECT_EQ(textsOf(harness.result(), "level", occurrences[1], kNoNumber), StringList({"2", "3"}));
    EXPECT_EQ(textsOf(harness.result(), "level", occurrences[2], kNoNumber), StringList({"3"}));
}

TEST_F(ThreeOccurrences, ValuesAreSelectedByTheirOwnNumbers) {
    // Only the third occurrence lies in the range, but the second value is
    // numbered after the second occurrence and so lies in it as well.
    EXPECT_EQ(textsOf(harness.result(), "level", occurrences[1] + 1, kNoNumber), StringList({"2", "3"}));
    EXPECT_EQ(textsOf(harness.result(), "level", values[1], kNoNumber), StringList({"2", "3"}));
    EXPECT_EQ(textsOf(harness.result(), "level", values[1] + 1, kNoNumber), StringList({"3"}));
}

TEST_F(ThreeOccurrences, ValueNumberedExactlyAtTheUpperBoundIsIncludedByNext) {
    IParseResult* const result = harness.result();
    Value const second = result->get("level", occurrences[1], values[2]);
    EXPECT_STREQ(second.m_text, "2");
    Value const third = result->next("level");
    EXPECT_STREQ(third.m_text, "3");
    EXPECT_EQ(third.m_index, values[2]);
    expectNotFound(result->next("level"));
}

TEST_F(ThreeOccurrences, ValueAboveTheUpperBoundEndsNext) {
    IParseResult* const result = harness.result();
    EXPECT_STREQ(result->get("level", occurrences[1], occurrences[2]).m_text, "2");
    expectNotFound(result->next("level"));
}

TEST_F(ThreeOccurrences, GetLastValueStaysInRange) {
    Value const last = getLastValue(harness.result(), "level", 0, occurrences[2]);
    EXPECT_STREQ(last.m_text, "2");
    EXPECT_EQ(last.m_index, values[1]);
    expectNotFound(getLastValue(harness.result(), "level", values[2] + 1, kNoNumber));
}

TEST_F(RangeQuery, OptionWithoutValuesIteratesPastTheRange) {
    ParserHarness harness;
    harness.option("flag", tarvo2::vt_empty);
    ASSERT_EQ(harness.parseArgs({"--flag", "--flag", "--flag"}), 0);
    std::vector<int> const occurrences = occurrencesOf(harness.result(), "flag");
    ASSERT_EQ(occurrences.size(), 3u);

    std::vector<int> numbers;
    for (Value value = harness.result()->get("flag", occurrences[1], occurrences[2]); value.m_status == 0;
         value = harness.result()->next("flag")) {
        numbers.push_back(value.m_index);
    }
    EXPECT_EQ(numbers, std::vector<int>({occurrences[1], occurrences[2]}));
    Value const last = getLastValue(harness.result(), "flag", 0, occurrences[1]);
    EXPECT_EQ(last.m_status, 0);
    EXPECT_EQ(last.m_index, occurrences[2]);
}

TEST_F(DefaultQuery, OnlyDefaultIsPresentAndYieldedOnceByNext) {
    ParserHarness harness;
    harness.option("level", tarvo2::vt_int)->defaultValue(tarvo2::variant_t(7));
    ASSERT_EQ(harness.parseArgs({}), 0);
    IParseResult* const result = harness.result();

    EXPECT_TRUE(result->present("level", 0, kNoNumber));
    Value const value = result->next("level");
    EXPECT_EQ(value.m_status, 0);
    EXPECT_STREQ(value.m_text, "7");
    EXPECT_EQ(value.m_value.m_type, tarvo2::vt_int);
    EXPECT_EQ(value.m_value.as<int>(), 7);
    EXPECT_NE(value.m_index, kNoNumber);
    expectNotFound(result->next("level"));
    EXPECT_EQ(result->nextPosition(), kNoNumber);
}

TEST_F(DefaultQuery, OnlyDefaultIsYieldedByGetWhateverTheRange) {
    ParserHarness harness;
    harness.option("level", tarvo2::vt_int)->defaultValue(tarvo2::variant_t(7));
    ASSERT_EQ(harness.parseArgs({}), 0);
    IParseResult* const result = harness.result();

    Value const everything = result->get("level", 0, kNoNumber);
    ASSERT_EQ(everything.m_status, 0);
    EXPECT_STREQ(everything.m_text, "7");
    // After get (not present) the default is not yielded a second time.
    expectNotFound(result->next("level"));
    for (std::pair<int, int> const& range : {std::make_pair(0, 0), std::make_pair(everything.m_index + 1, kNoNumber),
                                             std::make_pair(kNoNumber, kNoNumber)}) {
        Value const value = result->get("level", range.first, range.second);
        EXPECT_EQ(value.m_status, 0);
        EXPECT_STREQ(value.m_text, "7");
        EXPECT_EQ(value.m_index, everything.m_index);
    }
    EXPECT_TRUE(result->present("level", everything.m_index + 1, everything.m_index + 1));
}

TEST_F(DefaultQuery, OnlyDefaultIsTheLastValue) {
    ParserHarness harness;
    harness.option("name", tarvo2::vt_str)->defaultValue(tarvo2::variant_t("anonymous"));
    ASSERT_EQ(harness.parseArgs({}), 0);
    Value const last = getLastValue(harness.result(), "name", 0, kNoNumber);
    EXPECT_EQ(last.m_status, 0);
    EXPECT_STREQ(last.m_text, "anonymous");
    EXPECT_STREQ(last.m_value.as<char const*>(), "anonymous");
}

TEST_F(DefaultQuery, EachNameHasItsOwnDefaultNumber) {
    ParserHarness harness;
    harness.option("level,l", tarvo2::vt_int)->defaultValue(tarvo2::variant_t(7));
    ASSERT_EQ(harness.parseArgs({}), 0);
    Value const primary = harness.result()->get("level", 0, kNoNumber);
    Value const synonym = harness.result()->get("l", 0, kNoNumber);
    EXPECT_STREQ(primary.m_text, "7");
    EXPECT_STREQ(synonym.m_text, "7");
    EXPECT_EQ(synonym.m_index, primary.m_index + 1);
}

TEST_F(DefaultQuery, DefaultRenderedAsEmptyTextCountsAsNone) {
    ParserHarness harness;
    harness.option("name", tarvo2::vt_str)->defaultValue(tarvo2::variant_t(""));
    // A text option reads an integer default as no text at all.
    harness.option("mode", tarvo2::vt_str)->defaultValue(tarvo2::variant_t(3));
    ASSERT_EQ(harness.parseArgs({}), 0);
    for (char const* name : {"name", "mode"}) {
        EXPECT_FALSE(harness.result()->present(name, 0, kNoNumber)) << name;
        expectNotFound(harness.result()->get(name, 0, kNoNumber));
        expectNotFound(getLastValue(harness.result(), name, 0, kNoNumber));
    }
}

TEST_F(DefaultQuery, DefaultOfAnOptionThatOccursIsNeverYielded) {
    ParserHarness harness;
    harness.option("level", tarvo2::vt_int)->defaultValue(tarvo2::variant_t(7));
    ASSERT_EQ(harness.parseArgs({"--level=1", "--level=2"}), 0);
    IParseResult* const result = harness.result();

    EXPECT_EQ(textsOf(result, "level"), StringList({"1", "2"}));
    ASSERT_TRUE(result->present("level", 0, kNoNumber));
    EXPECT_STREQ(result->next("level").m_text, "1");
    EXPECT_STREQ(result->next("level").m_text, "2");
    expectNotFound(result->next("level"));
    EXPECT_STREQ(getLastValue(result, "level", 0, kNoNumber).m_text, "2");
}

TEST_F(DefaultQuery, RangeWithoutOccurrenceIgnoresTheDefault) {
    ParserHarness harness;
    harness.option("level", tarvo2::vt_int)->defaultValue(tarvo2::variant_t(7));
    ASSERT_EQ(harness.parseArgs({"--level=1"}), 0);
    std::vector<int> const occurrences = occurrencesOf(harness.result(), "level");
    ASSERT_EQ(occurrences.size(), 1u);

    EXPECT_FALSE(harness.result()->present("level", occurrences[0] + 1, kNoNumber));
    expectNotFound(harness.result()->get("level", occurrences[0] + 1, kNoNumber));
    expectNotFound(getLastValue(harness.result(), "level", occurrences[0] + 1, kNoNumber));
}

TEST_F(PlainArgumentQuery, NoneLeavesTheOutputUntouched) {
    ParserHarness harness;
    ASSERT_EQ(harness.parseArgs({"--"}), 0);
    char const sentinel[] = "untouched";
    char const* text = sentinel;
    EXPECT_EQ(harness.result()->getFirstArgument(&text), 1);
    EXPECT_EQ(text, sentinel);
    EXPECT_EQ(harness.result()->getNextArgument(&text), 1);
    EXPECT_EQ(text, sentinel);
}

TEST_F(PlainArgumentQuery, FirstThenNextInOrder) {
    ParserHarness harness;
    ASSERT_EQ(harness.parseArgs({"--", "x", "", "y"}), 0);
    IParseResult* const result = harness.result();
    char const sentinel[] = "untouched";
    char const* text = sentinel;

    ASSERT_EQ(result->getFirstArgument(&text), 0);
    EXPECT_STREQ(text, "x");
    ASSERT_EQ(result->getNextArgument(&text), 0);
    EXPECT_STREQ(text, "");
    ASSERT_EQ(result->getNextArgument(&text), 0);
    EXPECT_STREQ(text, "y");
    char const* const last = text;
    EXPECT_EQ(result->getNextArgument(&text), 1);
    EXPECT_EQ(text, last);
    // getFirstArgument starts over.
    ASSERT_EQ(result->getFirstArgument(&text), 0);
    EXPECT_STREQ(text, "x");
}

TEST_F(PlainArgumentQuery, IndependentOfTheOptionIteration) {
    ParserHarness harness;
    harness.option("list", tarvo2::vt_str);
    ASSERT_EQ(harness.parseArgs({"--list=a,b", "--", "x", "y"}), 0);
    IParseResult* const result = harness.result();
    char const* text = nullptr;

    EXPECT_STREQ(result->get("list", 0, kNoNumber).m_text, "a");
    ASSERT_EQ(result->getFirstArgument(&text), 0);
    EXPECT_STREQ(text, "x");
    EXPECT_STREQ(result->next("list").m_text, "b");
    ASSERT_EQ(result->getNextArgument(&text), 0);
    EXPECT_STREQ(text, "y");
}

TEST_F(PlainArgumentQuery, TextsLiveAsLongAsTheResult) {
    ParserHarness harness;
    harness.option("list", tarvo2::vt_str);
    ASSERT_EQ(harness.parseArgs({"--list=a", "--", "x"}), 0);
    char const* argument = nullptr;
    ASSERT_EQ(harness.result()->getFirstArgument(&argument), 0);
    char const* const value = harness.result()->get("list", 0, kNoNumber).m_text;
    // Many further queries do not move or release what was handed out.
    for (int i = 0; i < 100; ++i) {
        char const* scratch = nullptr;
        harness.result()->getFirstArgument(&scratch);
        harness.result()->get("list", 0, kNoNumber);
    }
    EXPECT_STREQ(argument, "x");
    EXPECT_STREQ(value, "a");
}

TEST_F(NullName, GetAndNextGiveTheNotFoundRecord) {
    ParserHarness harness;
    harness.option("level", tarvo2::vt_int);
    ASSERT_EQ(harness.parseArgs({"--level=1,2"}), 0);
    expectNotFound(harness.result()->get(nullptr, 0, kNoNumber));
    ASSERT_EQ(harness.result()->get("level", 0, kNoNumber).m_status, 0);
    expectNotFound(harness.result()->next(nullptr));
}

TEST_F(NullName, GetLastValueGivesTheNotFoundRecord) {
    ParserHarness harness;
    harness.option("level", tarvo2::vt_int);
    ASSERT_EQ(harness.parseArgs({"--level=1"}), 0);
    expectNotFound(getLastValue(harness.result(), nullptr, 0, kNoNumber));
    expectNotFound(getLastValue(nullptr, "level", 0, kNoNumber));
}

TEST_F(NullName, PresentThrowsLogicError) {
    ParserHarness harness;
    harness.option("level", tarvo2::vt_int);
    ASSERT_EQ(harness.parseArgs({"--level=1"}), 0);
    EXPECT_THROW(harness.result()->present(nullptr, 0, kNoNumber), std::logic_error);
}

TEST(ValueText, NullUnlessStatusIsZero) {
    char const text[] = "kept";
    Value const valid{text, 0, 5, tarvo2::variant_t()};
    Value const invalid{text, 1, 5, tarvo2::variant_t()};
    Value const failed{text, 3, 5, tarvo2::variant_t()};
    EXPECT_EQ(valid.as<char const*>(), text);
    EXPECT_EQ(invalid.as<char const*>(), nullptr);
    EXPECT_EQ(failed.as<char const*>(), nullptr);
}

TEST(ValueText, OtherReadsUseTheVariant) {
    Value const value{"12", 1, 5, tarvo2::variant_t(42)};
    EXPECT_EQ(value.as<int>(), 42);
    EXPECT_EQ(value.as<long long>(), 42);
}

}  // namespace

// A result parsed into again while an option is being read: the many new
// options stored by the second parse do not disturb the iteration under way.
TEST_F(ResultQuery, IterationSurvivesAnotherParseIntoTheSameResult) {
    ParserHarness harness;
    harness.option("level", tarvo2::vt_int);
    std::string text;
    for (int i = 0; i < 300; ++i) {
        std::string const name = "option-" + std::to_string(i);
        harness.option(name.c_str(), tarvo2::vt_int);
        text += "--" + name + "=" + std::to_string(i) + "\n";
    }
    ASSERT_EQ(harness.parseArgs({"--level=1", "--level=2", "--level=3"}), 0);
    IParseResult* const result = harness.result();

    Value const first = result->get("level", 0, kNoNumber);
    EXPECT_STREQ(first.m_text, "1");
    ASSERT_EQ(harness.parseText(text.c_str()), 0);
    Value const second = result->next("level");
    EXPECT_STREQ(second.m_text, "2");
    Value const third = result->next("level");
    EXPECT_STREQ(third.m_text, "3");
    expectNotFound(result->next("level"));
    EXPECT_EQ(textsOf(result, "option-299"), StringList({"299"}));
}

// A name listed twice in one declaration is one key of the result, and every
// store after the first appends to each name in the list: that key collects
// each later value twice, with the same number. Kept as hosts have seen it.
// (Typing the doubled name itself is ambiguous: it names two candidates.)
TEST_F(ResultQuery, NameListedTwiceCollectsEachLaterValueTwice) {
    ParserHarness harness;
    harness.option("level,lv,lv", tarvo2::vt_int);
    ASSERT_EQ(harness.parseArgs({"--level=1", "--level=2"}), 0);
    IParseResult* const result = harness.result();

    EXPECT_EQ(textsOf(result, "level"), StringList({"1", "2"}));
    EXPECT_EQ(textsOf(result, "lv"), StringList({"1", "2", "2"}));
    std::vector<int> const numbers = numbersOf(result, "lv");
    ASSERT_EQ(numbers.size(), 3U);
    EXPECT_LT(numbers[0], numbers[1]);
    EXPECT_EQ(numbers[1], numbers[2]);
    EXPECT_EQ(occurrencesOf(result, "lv").size(), 3U);
}

// The doubling appends a later store's whole batch once per listing: a value
// split in two comes back as its two parts, then the same two parts again.
TEST_F(ResultQuery, NameListedTwiceCollectsASplitValueAsTwoBatches) {
    ParserHarness harness;
    harness.option("level,lv,lv", tarvo2::vt_str);
    ASSERT_EQ(harness.parseArgs({"--level=x", "--level=a,b"}), 0);
    IParseResult* const result = harness.result();

    EXPECT_EQ(textsOf(result, "level"), StringList({"x", "a", "b"}));
    EXPECT_EQ(textsOf(result, "lv"), StringList({"x", "a", "b", "a", "b"}));
    std::vector<int> const numbers = numbersOf(result, "lv");
    ASSERT_EQ(numbers.size(), 5U);
    EXPECT_LT(numbers[0], numbers[1]);
    EXPECT_LT(numbers[1], numbers[2]);
    EXPECT_EQ(numbers[3], numbers[1]);
    EXPECT_EQ(numbers[4], numbers[2]);
}

// A synonym equal to a name the option already has is that name listed once
// more: each value after the first store comes once per listing, one number.
TEST_F(ResultQuery, SynonymEqualToItsOwnNameCollectsEachLaterValueAgain) {
    ParserHarness harness;
    harness.option("level,lv", tarvo2::vt_int)->synonym("lv")->synonym("lv");
    ASSERT_EQ(harness.parseArgs({"--level=1", "--level=2"}), 0);
    IParseResult* const result = harness.result();

    EXPECT_EQ(textsOf(result, "level"), StringList({"1", "2"}));
    EXPECT_EQ(textsOf(result, "lv"), StringList({"1", "2", "2", "2"}));
    std::vector<int> const numbers = numbersOf(result, "lv");
    ASSERT_EQ(numbers.size(), 4U);
    EXPECT_LT(numbers[0], numbers[1]);
    EXPECT_EQ(numbers[1], numbers[3]);
}
