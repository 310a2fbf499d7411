// Writing into a result: stored occurrences under every name of an option,
// applied defaults, plain arguments and the sequence numbers that order them.
#include <gtest/gtest.h>

#include <atomic>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "frontend/trace.h"
#include "options/option_description.h"
#include "options/registered_option_storage.h"
#include "recognizers/argument_parser.h"
#include "results/option_data.h"
#include "results/parse_result.h"
#include "support/internal_fixture.h"
#include "values/garbage.h"

namespace {

using quen_3_1::Garbage;
using quen_3_1::IArgumentParser;
using quen_3_1::OptionData;
using quen_3_1::OptionDescription;
using quen_3_1::ParseResult;
using quen_3_1::RegisteredOptionStorage;
using quen_3_1::ValueEntry;

static_assert(std::is_same<ValueEntry, std::pair<std::pair<std::string, tarvo2::variant_t>, std::int32_t>>::value,
              "a value entry is ((text, value), number)");
static_assert(std::is_same<decltype(OptionData::m_positions), std::vector<std::int32_t>>::value,
              "occurrence numbers are 32-bit signed");
static_assert(std::is_same<decltype(OptionData::m_values), std::vector<ValueEntry>>::value, "values in order");
static_assert(std::is_same<decltype(OptionData::m_default), ValueEntry>::value, "one default entry");
static_assert(std::is_same<decltype(IArgumentParser::m_idx), std::atomic<std::int32_t>>::value,
              "the counter is 32-bit signed and atomic");

ValueEntry entry(std::string text, tarvo2::variant_t value, std::int32_t number) {
    return ValueEntry(std::make_pair(std::move(text), value), number);
}

OptionData occurrence(std::int32_t number, std::vector<ValueEntry> values = {}) {
    OptionData data;
    data.m_positions.push_back(number);
    data.m_values = std::move(values);
    return data;
}

std::vector<std::int32_t> numbersOf(std::vector<ValueEntry> const& values) {
    std::vector<std::int32_t> numbers;
    for (ValueEntry const& value : values) {
        numbers.push_back(value.second);
    }
    return numbers;
}

std::vector<std::string> textsOf(std::vector<ValueEntry> const& values) {
    std::vector<std::string> texts;
    for (ValueEntry const& value : values) {
        texts.push_back(value.first.first);
    }
    return texts;
}

class ParseResultStoreTest : public quen_test::InternalTest {
protected:
    void SetUp() override {
        InternalTest::SetUp();
        m_storage.setGarbage(&m_garbage);
    }

    OptionData at(std::string const& name) const { return quen_test::storedOptions(m_result).at(name); }
    bool has(std::string const& name) const { return quen_test::storedOptions(m_result).count(name) != 0; }

    Garbage m_garbage;
    RegisteredOptionStorage m_storage;
    ParseResult m_result;
};

TEST_F(ParseResultStoreTest, StoreReturnsZeroAndKeysEveryName) {
    OptionDescription const option({"alpha", "al", "a"}, "g", "", "An option", tarvo2::vt_int, &m_garbage);
    EXPECT_EQ(m_result.store(option, occurrence(10, {entry("5", tarvo2::variant_t(5), 11)})), 0);
    ASSERT_EQ(quen_test::storedOptions(m_result).size(), 3u);
    for (char const* name : {"alpha", "al", "a"}) {
        SCOPED_TRACE(name);
        ASSERT_TRUE(has(name));
        EXPECT_EQ(at(name).m_positions, std::vector<std::int32_t>({10}));
        ASSERT_EQ(at(name).m_values.size(), 1u);
        EXPECT_EQ(at(name).m_values[0].first.first, "5");
        EXPECT_EQ(at(name).m_values[0].first.second, tarvo2::variant_t(5));
        EXPECT_EQ(at(name).m_values[0].second, 11);
    }
}

TEST_F(ParseResultStoreTest, FirstStoreReplacesWhatASynonymHeld) {
    // An earlier option took the name "a"; the new option's first store
    // overwrites that entry along with its own primary name.
    OptionDescription const earlier({"a"}, "g", "", "Earlier", tarvo2::vt_int, &m_garbage);
    OptionData old = occurrence(1, {entry("9", tarvo2::variant_t(9), 2)});
    old.m_default = entry("8", tarvo2::variant_t(8), 3);
    m_result.store(earlier, old);

    OptionDescription const option({"alpha", "a"}, "g", "", "Later", tarvo2::vt_int, &m_garbage);
    OptionData fresh = occurrence(20, {entry("5", tarvo2::variant_t(5), 21)});
    fresh.m_default = entry("4", tarvo2::variant_t(4), 19);
    m_result.store(option, fresh);

    for (char const* name : {"alpha", "a"}) {
        SCOPED_TRACE(name);
        EXPECT_EQ(at(name).m_positions, std::vector<std::int32_t>({20}));
        EXPECT_EQ(textsOf(at(name).m_values), std::vector<std::string>({"5"}));
        EXPECT_EQ(at(name).m_default.first.first, "4");
        EXPECT_EQ(at(name).m_default.first.second, tarvo2::variant_t(4));
        EXPECT_EQ(at(name).m_default.second, 19);
    }
}

TEST_F(ParseResultStoreTest, LaterStoresAppendInStoreOrder) {
    OptionDescription const option({"alpha", "al", "a"}, "g", "", "An option", tarvo2::vt_str, &m_garbage);
    OptionData first = occurrence(30, {entry("x", tarvo2::variant_t("x"), 31)});
    m_result.store(option, first);
    // Numbers out of order on purpose: entries follow the store calls.
    OptionData second =
        occurrence(12, {entry("y", tarvo2::variant_t("y"), 13), entry("z", tarvo2::variant_t("z"), 14)});
    second.m_default = entry("ignored", tarvo2::variant_t("ignored"), 99);
    EXPECT_EQ(m_result.store(option, second), 0);
    m_result.store(option, occurrence(40));

    for (char const* name : {"alpha", "al", "a"}) {
        SCOPED_TRACE(name);
        EXPECT_EQ(at(name).m_positions, std::vector<std::int32_t>({30, 12, 40}));
        EXPECT_EQ(textsOf(at(name).m_values), std::vector<std::string>({"x", "y", "z"}));
        EXPECT_EQ(numbersOf(at(name).m_values), std::vector<std::int32_t>({31, 13, 14}));
        EXPECT_STREQ(at(name).m_values[2].first.second.as<char const*>(), "z");
        // A later store leaves the default entry alone.
        EXPECT_EQ(at(name).m_default.first.first, "");
        EXPECT_EQ(at(name).m_default.first.second.m_type, tarvo2::vt_empty);
        EXPECT_EQ(at(name).m_default.second, 0);
    }
}

TEST_F(ParseResultStoreTest, StoreOfAnOptionWithoutNamesThrowsOutOfRange) {
    OptionDescription const nameless;
    EXPECT_THROW(m_result.store(nameless, occurrence(1)), std::out_of_range);
    EXPECT_TRUE(quen_test::storedOptions(m_result).empty());
}

TEST_F(ParseResultStoreTest, ApplyDefaultNumbersEveryNameOnce) {
    m_storage.option("level,l", "A level", tarvo2::vt_int, "g")->defaultValue(tarvo2::variant_t(3));
    m_storage.option("name", "A name", tarvo2::vt_str, "g")->defaultValue(tarvo2::variant_t("x.log"));
    std::string message = "untouched";
    std::int32_t const before = IArgumentParser::m_idx;
    EXPECT_EQ(quen_3_1::codeOf(m_result.applyDefault(m_storage, message)), 0);
    EXPECT_EQ(message, "untouched");
    EXPECT_EQ(IArgumentParser::m_idx, before + 3);

    ASSERT_EQ(quen_test::storedOptions(m_result).size(), 3u);
    EXPECT_EQ(at("level").m_default.second, before);
    EXPECT_EQ(at("l").m_default.second, before + 1);
    EXPECT_EQ(at("name").m_default.second, before + 2);
    for (char const* name : {"level", "l"}) {
        SCOPED_TRACE(name);
        EXPECT_EQ(at(name).m_default.first.first, "3");
        EXPECT_EQ(at(name).m_default.first.second.m_type, tarvo2::vt_int);
        EXPECT_EQ(at(name).m_default.first.second.as<int>(), 3);
        EXPECT_TRUE(at(name).m_positions.empty());
        EXPECT_TRUE(at(name).m_values.empty());
    }
    EXPECT_EQ(at("name").m_default.first.first, "x.log");
    EXPECT_STREQ(at("name").m_default.first.second.as<char const*>(), "x.log");
}

TEST_F(ParseResultStoreTest, ApplyDefaultRendersThroughTheOptionsKind) {
    // A boolean option whose default was given as an integer prints as a boolean.
    m_storage.option("fast", "Go fast", tarvo2::vt_bool, "g")->defaultValue(tarvo2::variant_t(5));
    m_storage.option("ratio", "A ratio", tarvo2::vt_double, "g")->defaultValue(tarvo2::variant_t(1234567.0));
    m_storage.option("mask", "A mask", tarvo2::vt_uint64, "g")->defaultValue(tarvo2::variant_t(0xffULL));
    std::string message;
    EXPECT_EQ(quen_3_1::codeOf(m_result.applyDefault(m_storage, message)), 0);
    EXPECT_EQ(at("fast").m_default.first.first, "1");
    // The value is a copy of the default as given, not converted.
    EXPECT_EQ(at("fast").m_default.first.second.m_type, tarvo2::vt_int);
    EXPECT_EQ(at("fast").m_default.first.second.as<int>(), 5);
    EXPECT_EQ(at("ratio").m_default.first.first, "1.23457e+06");
    EXPECT_EQ(at("ratio").m_default.first.second.as<double>(), 1234567.0);
    EXPECT_EQ(at("mask").m_default.first.first, "255");
}

TEST_F(ParseResultStoreTest, ApplyDefaultSkipsValuelessOptionsAndOptionsWithoutDefault) {
    m_storage.option("quiet,q", "No value", tarvo2::vt_empty, "g")->defaultValue(tarvo2::variant_t(1));
    m_storage.option("plain,p", "No default", tarvo2::vt_int, "g");
    m_storage.option("level", "A level", tarvo2::vt_int, "g")->defaultValue(tarvo2::variant_t(2));
    std::string message;
    std::int32_t const before = IArgumentParser::m_idx;
    EXPECT_EQ(quen_3_1::codeOf(m_result.applyDefault(m_storage, message)), 0);
    EXPECT_EQ(IArgumentParser::m_idx, before + 1);
    EXPECT_FALSE(has("quiet"));
    EXPECT_FALSE(has("q"));
    EXPECT_FALSE(has("plain"));
    EXPECT_FALSE(has("p"));
    ASSERT_TRUE(has("level"));
    EXPECT_EQ(at("level").m_default.second, before);
}

TEST_F(ParseResultStoreTest, ApplyDefaultFindsNoNameOnANamelessOption) {
    // The registry lets an empty name list through.
    m_storage.option("", "Nameless", tarvo2::vt_int, "g")->defaultValue(tarvo2::variant_t(1));
    ASSERT_EQ(m_storage.size(), 1u);
    ASSERT_TRUE(m_storage.at(0).names().empty());
    std::string message = "untouched";
    std::int32_t const before = IArgumentParser::m_idx;
    EXPECT_EQ(quen_3_1::codeOf(m_result.applyDefault(m_storage, message)), 0);
    EXPECT_EQ(message, "untouched");
    EXPECT_EQ(IArgumentParser::m_idx, before);
    EXPECT_TRUE(quen_test::storedOptions(m_result).empty());
    EXPECT_THROW(m_result.store(m_storage.at(0), occurrence(1)), std::out_of_range);
}

TEST_F(ParseResultStoreTest, ApplyDefaultKeepsStoredOccurrences) {
    m_storage.option("level,l", "A level", tarvo2::vt_int, "g")->defaultValue(tarvo2::variant_t(3));
    m_result.store(m_storage.at(0), occurrence(5, {entry("7", tarvo2::variant_t(7), 6)}));
    std::string message;
    std::int32_t const before = IArgumentParser::m_idx;
    EXPECT_EQ(quen_3_1::codeOf(m_result.applyDefault(m_storage, message)), 0);
    for (char const* name : {"level", "l"}) {
        SCOPED_TRACE(name);
        EXPECT_EQ(at(name).m_positions, std::vector<std::int32_t>({5}));
        EXPECT_EQ(textsOf(at(name).m_values), std::vector<std::string>({"7"}));
        EXPECT_EQ(at(name).m_default.first.first, "3");
    }
    EXPECT_EQ(at("level").m_default.second, before);
    EXPECT_EQ(at("l").m_default.second, before + 1);
}

TEST_F(ParseResultStoreTest, ApplyDefaultAgainReplacesTheDefaultWithNewNumbers) {
    m_storage.option("level,l", "A level", tarvo2::vt_int, "g")->defaultValue(tarvo2::variant_t(3));
    std::string message;
    m_result.applyDefault(m_storage, message);
    std::int32_t const firstNumber = at("level").m_default.second;
    m_result.applyDefault(m_storage, message);
    EXPECT_GT(at("level").m_default.second, firstNumber);
    EXPECT_EQ(at("l").m_default.second, at("level").m_default.second + 1);
    EXPECT_EQ(at("level").m_default.first.first, "3");
}

TEST_F(ParseResultStoreTest, FirstStoreAfterDefaultsAppendsNextToTheDefault) {
    m_storage.option("level,l", "A level", tarvo2::vt_int, "g")->defaultValue(tarvo2::variant_t(3));
    std::string message;
    m_result.applyDefault(m_storage, message);
    std::int32_t const levelDefault = at("level").m_default.second;
    std::int32_t const shortDefault = at("l").m_default.second;

    // What a recognizer hands over carries an empty default; it must not win.
    OptionData data = occurrence(IArgumentParser::takeNumber());
    data.m_values.push_back(entry("9", tarvo2::variant_t(9), IArgumentParser::takeNumber()));
    m_result.store(m_storage.at(0), data);

    for (char const* name : {"level", "l"}) {
        SCOPED_TRACE(name);
        EXPECT_EQ(at(name).m_positions, data.m_positions);
        EXPECT_EQ(textsOf(at(name).m_values), std::vector<std::string>({"9"}));
        EXPECT_EQ(at(name).m_default.first.first, "3");
        EXPECT_EQ(at(name).m_default.first.second.as<int>(), 3);
        EXPECT_GT(at(name).m_positions[0], at(name).m_default.second);
    }
    EXPECT_EQ(at("level").m_default.second, levelDefault);
    EXPECT_EQ(at("l").m_default.second, shortDefault);
}

TEST_F(ParseResultStoreTest, PlainArgumentsKeepTheirOrderAndNumbers) {
    m_result.appendArgument("first", 17);
    m_result.appendArgument("second", 4);
    m_result.appendArgument("", 25);
    ASSERT_EQ(m_result.arguments().size(), 3u);
    EXPECT_EQ(m_result.arguments()[0], std::make_pair(std::string("first"), std::int32_t{17}));
    EXPECT_EQ(m_result.arguments()[1], std::make_pair(std::string("second"), std::int32_t{4}));
    EXPECT_EQ(m_result.arguments()[2], std::make_pair(std::string(""), std::int32_t{25}));
    char const* text = nullptr;
    ASSERT_EQ(m_result.getFirstArgument(&text), 0);
    EXPECT_EQ(std::string(text), "first");
    ASSERT_EQ(m_result.getNextArgument(&text), 0);
    EXPECT_EQ(std::string(text), "second");
    ASSERT_EQ(m_result.getNextArgument(&text), 0);
    EXPECT_EQ(std::string(text), "");
    EXPECT_EQ(m_result.getNextArgument(&text), 1);
    // Plain arguments are not options.
    EXPECT_TRUE(quen_test::storedOptions(m_result).empty());
}

TEST_F(ParseResultStoreTest, SequenceCounterOnlyGrows) {
    std::int32_t const first = IArgumentParser::takeNumber();
    std::int32_t const second = IArgumentParser::takeNumber();
    EXPECT_EQ(second, first + 1);
    EXPECT_EQ(IArgumentParser::m_idx, second + 1);
    // New parsers and results do not reset it.
    quen_3_1::IParser* parser = nullptr;
    ASSERT_EQ(quen_3_1::createParser(&parser, 0), 0);
    quen_3_1::IParseResult* result = nullptr;
    ASSERT_EQ(parser->createResult(&result), 0);
    EXPECT_EQ(IArgumentParser::m_idx, second + 1);
    // A parse takes numbers past everything taken before.
    parser->option("level", "A level", tarvo2::vt_int, "g");
    ASSERT_EQ(parser->parseStream("--level=4", result), 0);
    quen_3_1::Value const value = result->get("level");
    EXPECT_EQ(value.m_status, 0);
    EXPECT_GT(value.m_index, second);
    EXPECT_GT(IArgumentParser::m_idx, value.m_index);
    result->destroy();
    parser->destroy();
    EXPECT_GT(IArgumentParser::takeNumber(), value.m_index);
}

TEST_F(ParseResultStoreTest, EmptyValueEntryAndOptionDataShape) {
    ValueEntry const empty{};
    EXPECT_EQ(empty.first.first, "");
    EXPECT_EQ(empty.first.second.m_type, tarvo2::vt_empty);
    EXPECT_EQ(empty.second, 0);

    OptionData const data{};
    EXPECT_TRUE(data.m_positions.empty());
    EXPECT_TRUE(data.m_values.empty());
    EXPECT_EQ(data.m_default.first.first, "");
    EXPECT_EQ(data.m_default.first.second.m_type, tarvo2::vt_empty);
    EXPECT_EQ(data.m_default.second, 0);

    // Fields in the order positions, values, default.
    char const* const positions = reinterpret_cast<char const*>(&data.m_positions);
    char const* const values = reinterpret_cast<char const*>(&data.m_values);
    char const* const fallback = reinterpret_cast<char const*>(&data.m_default);
    EXPECT_LT(positions, values);
    EXPECT_LT(values, fallback);
}

TEST_F(ParseResultStoreTest, OptionDataCopiesDeeply) {
    OptionData original = occurrence(1, {entry("text", tarvo2::variant_t("text"), 2)});
    original.m_default = entry("d", tarvo2::variant_t("d"), 3);
    OptionData const copy = original;
    ASSERT_EQ(copy.m_values.size(), 1u);
    EXPECT_NE(copy.m_values[0].first.second.as<char const*>(), original.m_values[0].first.second.as<char const*>());
    EXPECT_STREQ(copy.m_values[0].first.second.as<char const*>(), "text");
    EXPECT_NE(copy.m_default.first.second.as<char const*>(), original.m_default.first.second.as<char const*>());
    EXPECT_STREQ(copy.m_default.first.second.as<char const*>(), "d");
    EXPECT_EQ(copy.m_positions, original.m_positions);
    EXPECT_EQ(copy.m_default.second, 3);
}

TEST_F(ParseResultStoreTest, EveryNameReachesTheOneRecordOfItsOption) {
    OptionDescription const option({"alpha", "a"}, "g", "", "An option", tarvo2::vt_str, &m_garbage);
    m_result.store(option, occurrence(1, {entry("v", tarvo2::variant_t("v"), 2)}));
    m_result.store(option, occurrence(3, {entry("w", tarvo2::variant_t("w"), 4)}));
    std::size_t const record = m_result.names().at("alpha").record;
    EXPECT_EQ(m_result.names().at("a").record, record);
    EXPECT_EQ(m_result.record(record).names, 2u);
    EXPECT_EQ(textsOf(at("alpha").m_values), std::vector<std::string>({"v", "w"}));
}

TEST_F(ParseResultStoreTest, NameListedTwiceGetsARecordOfItsOwn) {
    OptionDescription const option({"alpha", "a", "alpha"}, "g", "", "An option", tarvo2::vt_str, &m_garbage);
    m_result.store(option, occurrence(1, {entry("v", tarvo2::variant_t("v"), 2)}));
    m_result.store(option, occurrence(3, {entry("w", tarvo2::variant_t("w"), 4)}));
    EXPECT_NE(m_result.names().at("alpha").record, m_result.names().at("a").record);
    EXPECT_EQ(textsOf(at("alpha").m_values), std::vector<std::string>({"v", "w", "w"}));
    EXPECT_EQ(textsOf(at("a").m_values), std::vector<std::string>({"v", "w"}));
}

TEST_F(ParseResultStoreTest, SynonymOfAnotherOptionFollowsTheLastFirstStore) {
    OptionDescription const first({"x", "x2"}, "g", "", "First", tarvo2::vt_str, &m_garbage);
    OptionDescription const second({"y", "x"}, "g", "", "Second", tarvo2::vt_str, &m_garbage);
    m_result.store(first, occurrence(1, {entry("a", tarvo2::variant_t("a"), 2)}));
    m_result.store(second, occurrence(3, {entry("b", tarvo2::variant_t("b"), 4)}));
    m_result.store(first, occurrence(5, {entry("c", tarvo2::variant_t("c"), 6)}));
    EXPECT_EQ(textsOf(at("x").m_values), std::vector<std::string>({"b", "c"}));
    EXPECT_EQ(textsOf(at("x2").m_values), std::vector<std::string>({"a", "c"}));
    EXPECT_EQ(textsOf(at("y").m_values), std::vector<std::string>({"b"}));
}

TEST_F(ParseResultStoreTest, IterationGoesOnWithValuesStoredAfterItsEnd) {
    OptionDescription const option({"alpha"}, "g", "", "An option", tarvo2::vt_str, &m_garbage);
    m_result.store(option, occurrence(1, {entry("v", tarvo2::variant_t("v"), 2)}));
    char const* text = nullptr;
    tarvo2::variant_t value;
    int number = 0;
    ASSERT_EQ(m_result.get("alpha", &text, value, 0, 0x7fffffff, number), 0);
    EXPECT_STREQ(text, "v");
    EXPECT_EQ(m_result.next("alpha", &text, value, number), 1);
    m_result.store(option, occurrence(3, {entry("w", tarvo2::variant_t("w"), 4)}));
    ASSERT_EQ(m_result.next("alpha", &text, value, number), 0);
    EXPECT_STREQ(text, "w");
    EXPECT_EQ(number, 4);
    EXPECT_EQ(m_result.next("alpha", &text, value, number), 1);
}

}  // namespace
