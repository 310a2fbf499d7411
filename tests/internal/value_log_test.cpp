// The log a result keeps its occurrence numbers and values in: chains of
// several options interleaved in one log, each read back in its own order,
// texts kept whole, converted values taken or copied.
#include "results/value_log.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace {

using quen_3_1::ValueEntry;
using quen_3_1::ValueLog;

ValueEntry entry(std::string text, tarvo2::variant_t value, std::int32_t number) {
    return ValueEntry(std::make_pair(std::move(text), value), number);
}

std::vector<std::int32_t> positionsOf(ValueLog const& log, ValueLog::Chain const& chain) {
    std::vector<std::int32_t> numbers;
    for (std::uint32_t at = chain.first; at != ValueLog::kEnd; at = log.position(at).next) {
        numbers.push_back(log.position(at).number);
    }
    return numbers;
}

std::vector<std::string> textsOf(ValueLog const& log, ValueLog::Chain const& chain) {
    std::vector<std::string> texts;
    for (std::uint32_t at = chain.first; at != ValueLog::kEnd; at = log.value(at).next) {
        texts.emplace_back(ValueLog::textOf(log.value(at)));
    }
    return texts;
}

TEST(ValueLog, InterleavedChainsKeepTheirOwnOrder) {
    // A chain runs through one of the two logs: positions and values each have their own.
    ValueLog log;
    ValueLog::Chain first;
    ValueLog::Chain second;
    ValueLog::Chain secondValues;
    for (std::int32_t i = 0; i < 100; ++i) {
        log.addPosition(i % 3 == 0 ? first : second, i);
        if (i % 3 != 0) {
            log.addValue(secondValues, entry(std::to_string(i), tarvo2::variant_t(i), i));
        }
    }
    std::vector<std::int32_t> const firstPositions = positionsOf(log, first);
    ASSERT_EQ(firstPositions.size(), 34u);
    EXPECT_EQ(firstPositions.front(), 0);
    EXPECT_EQ(firstPositions[1], 3);
    EXPECT_EQ(firstPositions.back(), 99);
    EXPECT_EQ(positionsOf(log, second).size(), 66u);
    std::vector<std::string> const secondTexts = textsOf(log, secondValues);
    ASSERT_EQ(secondTexts.size(), 66u);
    EXPECT_EQ(secondTexts[0], "1");
    EXPECT_EQ(secondTexts[1], "2");
    EXPECT_EQ(secondTexts[2], "4");
    EXPECT_EQ(secondTexts.back(), "98");
}

TEST(ValueLog, EmptyChainHasNoEntries) {
    ValueLog log;
    ValueLog::Chain const chain;
    EXPECT_TRUE(chain.empty());
    EXPECT_TRUE(positionsOf(log, chain).empty());
}

TEST(ValueLog, TextsKeepTheirNulCharacters) {
    ValueLog log;
    ValueLog::Chain chain;
    log.addValue(chain, entry(std::string("a\0b", 3), tarvo2::variant_t("a"), 4));
    std::string_view const text = ValueLog::textOf(log.value(chain.first));
    EXPECT_EQ(text, std::string_view("a\0b", 3));
    EXPECT_EQ(log.value(chain.first).text[3], '\0');
}

TEST(ValueLog, TakenValueLeavesTheEntryEmpty) {
    ValueLog log;
    ValueLog::Chain chain;
    ValueEntry given = entry("word", tarvo2::variant_t("word"), 9);
    log.takeValue(chain, given);
    EXPECT_EQ(given.first.second.m_type, tarvo2::vt_empty);
    EXPECT_EQ(given.first.first, "word");
    ValueEntry const stored = log.entryAt(chain.first);
    EXPECT_EQ(stored.first.first, "word");
    EXPECT_STREQ(stored.first.second.as<char const*>(), "word");
    EXPECT_EQ(stored.second, 9);
}

TEST(ValueLog, CopiedChainsAreIndependentOfTheirSource) {
    ValueLog log;
    ValueLog::Chain sourcePositions;
    ValueLog::Chain sourceValues;
    log.addPosition(sourcePositions, 1);
    log.addValue(sourceValues, entry("x", tarvo2::variant_t("x"), 2));
    ValueLog::Chain copyPositions;
    ValueLog::Chain copyValues;
    log.copyPositions(sourcePositions, copyPositions);
    log.copyValues(sourceValues, copyValues);
    log.addPosition(sourcePositions, 3);
    log.addValue(copyValues, entry("y", tarvo2::variant_t("y"), 4));
    EXPECT_EQ(positionsOf(log, sourcePositions), std::vector<std::int32_t>({1, 3}));
    EXPECT_EQ(positionsOf(log, copyPositions), std::vector<std::int32_t>({1}));
    EXPECT_EQ(textsOf(log, sourceValues), std::vector<std::string>({"x"}));
    EXPECT_EQ(textsOf(log, copyValues), std::vector<std::string>({"x", "y"}));
    EXPECT_NE(log.value(copyValues.first).value.data, log.value(sourceValues.first).value.data);
}

TEST(ValueLog, KeptEntryStandsOutsideEveryChain) {
    ValueLog log;
    ValueLog::Chain chain;
    log.addValue(chain, entry("a", tarvo2::variant_t(1), 1));
    std::uint32_t const kept = log.keep(entry("d", tarvo2::variant_t(2), 5));
    log.addValue(chain, entry("b", tarvo2::variant_t(3), 6));
    EXPECT_EQ(textsOf(log, chain), std::vector<std::string>({"a", "b"}));
    EXPECT_EQ(log.value(kept).next, ValueLog::kEnd);
    EXPECT_EQ(log.entryAt(kept).first.second, tarvo2::variant_t(2));
}

}  // namespace
