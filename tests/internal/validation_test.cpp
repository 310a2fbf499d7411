// Checking one value text against an option's kind and allowed values, with
// unambiguous beginnings of allowed texts standing for the whole text.
#include <gtest/gtest.h>

#include <initializer_list>
#include <stdexcept>
#include <string>

#include "options/option_description.h"
#include "values/garbage.h"

using quen_3_1::Garbage;
using quen_3_1::OptionDescription;
using tarvo2::variant_t;

namespace {

// One validation's three outputs.
struct Outcome {
    bool accepted;
    std::string text;
    variant_t value;
    std::string message;
};

class Validation : public ::testing::Test {
protected:
    OptionDescription& option(char const* name, tarvo2::kel_variant_type_t type,
                              std::initializer_list<variant_t> allowed = {}) {
        m_option = OptionDescription({name}, "general", "", "help", type, &m_keeper);
        for (variant_t const& value : allowed) {
            m_option.allowValue(value);
        }
        return m_option;
    }

    // A text option whose allowed values are the ones kModes lists.
    void declareModes() { option("mode", tarvo2::vt_str, {variant_t("fast"), variant_t("full"), variant_t("small")}); }

    Outcome check(char const* text) const {
        Outcome outcome{false, text, variant_t(), std::string()};
        outcome.accepted = m_option.validate(outcome.text, outcome.value, outcome.message);
        return outcome;
    }

    Garbage m_keeper;
    OptionDescription m_option;
};

std::string const kModes = "'fast', 'full', 'small'";

}  // namespace

// ---------------------------------------------------------------- conversion

TEST_F(Validation, AnyConvertibleTextPassesWithoutAllowedValues) {
    option("level", tarvo2::vt_int);
    Outcome const outcome = check("17");
    EXPECT_TRUE(outcome.accepted);
    EXPECT_EQ(outcome.text, "17");
    EXPECT_EQ(outcome.value.m_type, tarvo2::vt_int);
    EXPECT_EQ(outcome.value.as<int>(), 17);
    EXPECT_EQ(outcome.message, "");
}

TEST_F(Validation, UnparsableIntegerNamesTheType) {
    option("level", tarvo2::vt_int, {variant_t(1)});
    Outcome const outcome = check("abc");
    EXPECT_FALSE(outcome.accepted);
    EXPECT_EQ(outcome.message, "Option 'level' can not parse 'abc' value, requires a type 'integer' here.");
    EXPECT_EQ(outcome.text, "abc");
    EXPECT_EQ(outcome.value.m_type, tarvo2::vt_empty);
}

TEST_F(Validation, UnparsableValuesOfOtherKindsNameTheirTypes) {
    option("flag", tarvo2::vt_bool);
    EXPECT_EQ(check("2").message, "Option 'flag' can not parse '2' value, requires a type 'undefined' here.");
    option("count", tarvo2::vt_uint);
    EXPECT_EQ(check("x").message, "Option 'count' can not parse 'x' value, requires a type 'unsigned integer' here.");
    option("size", tarvo2::vt_int64);
    EXPECT_EQ(check("").message, "Option 'size' can not parse '' value, requires a type '64 bit integer' here.");
    option("mask", tarvo2::vt_uint64);
    EXPECT_EQ(check("FF").message,
              "Option 'mask' can not parse 'FF' value, requires a type 'unsigned 64 bit or hex' here.");
    option("ratio", tarvo2::vt_double);
    EXPECT_EQ(check("half").message, "Option 'ratio' can not parse 'half' value, requires a type 'double' here.");
}

TEST_F(Validation, KindWithoutConversionRefusesWithEmptyTypeName) {
    option("wide", tarvo2::vt_wstr);
    Outcome const outcome = check("anything");
    EXPECT_FALSE(outcome.accepted);
    EXPECT_EQ(outcome.message, "Option 'wide' can not parse 'anything' value, requires a type '' here.");
}

TEST_F(Validation, EmptyTextOnUnsigned64Throws) {
    option("mask", tarvo2::vt_uint64);
    EXPECT_THROW(check(""), std::out_of_range);
}

// ---------------------------------------------------------------- exact pass

TEST_F(Validation, IntegerAllowedValueMatchesByNumberAndKeepsTheText) {
    option("level", tarvo2::vt_int, {variant_t(1), variant_t(2), variant_t(3)});
    Outcome const outcome = check("02");
    EXPECT_TRUE(outcome.accepted);
    EXPECT_EQ(outcome.text, "02");
    EXPECT_EQ(outcome.value.m_type, tarvo2::vt_int);
    EXPECT_EQ(outcome.value.as<int>(), 2);
    EXPECT_EQ(outcome.message, "");
}

TEST_F(Validation, IntegerNotAllowedListsEveryAllowedValue) {
    option("level", tarvo2::vt_int, {variant_t(1), variant_t(2)});
    Outcome const outcome = check("5");
    EXPECT_FALSE(outcome.accepted);
    EXPECT_EQ(outcome.message, "Option 'level' does not allow value '5'. Possible values follows: '1', '2'");
    EXPECT_EQ(outcome.text, "5");
}

TEST_F(Validation, SingleAllowedValueListHasNoSeparator) {
    option("level", tarvo2::vt_int, {variant_t(1)});
    EXPECT_EQ(check("3").message, "Option 'level' does not allow value '3'. Possible values follows: '1'");
}

TEST_F(Validation, DoubleAcceptsAllowedIntegerAcrossKinds) {
    option("ratio", tarvo2::vt_double, {variant_t(2)});
    Outcome const outcome = check("2.0");
    EXPECT_TRUE(outcome.accepted);
    EXPECT_EQ(outcome.text, "2.0");
    EXPECT_EQ(outcome.value.m_type, tarvo2::vt_double);
    EXPECT_EQ(outcome.value.as<double>(), 2.0);
}

TEST_F(Validation, DoubleRefusalListsAllowedValuesThroughTheOptionKind) {
    option("ratio", tarvo2::vt_double, {variant_t(2), variant_t(0.5)});
    EXPECT_EQ(check("2.5").message, "Option 'ratio' does not allow value '2.5'. Possible values follows: '2', '0.5'");
}

TEST_F(Validation, NegativeIntegerNeverMatchesNegativeDouble) {
    option("ratio", tarvo2::vt_double, {variant_t(-1)});
    Outcome const outcome = check("-1");
    EXPECT_FALSE(outcome.accepted);
    EXPECT_EQ(outcome.message, "Option 'ratio' does not allow value '-1'. Possible values follows: '1.84467e+19'");
}

TEST_F(Validation, HexTextMatchesAllowedNumber) {
    option("mask", tarvo2::vt_uint64, {variant_t(31ull), variant_t(255ull)});
    Outcome const outcome = check("0x1F");
    EXPECT_TRUE(outcome.accepted);
    EXPECT_EQ(outcome.text, "0x1F");
    EXPECT_EQ(outcome.value.as<unsigned long long>(), 31u);
    EXPECT_EQ(check("1").message, "Option 'mask' does not allow value '1'. Possible values follows: '31', '255'");
}

TEST_F(Validation, NumbersAreNeverAbbreviated) {
    option("level", tarvo2::vt_int, {variant_t(10), variant_t(20)});
    EXPECT_EQ(check("1").message, "Option 'level' does not allow value '1'. Possible values follows: '10', '20'");
}

// ---------------------------------------------------------------- text abbreviations

TEST_F(Validation, UniqueBeginningBecomesTheAllowedText) {
    declareModes();
    Outcome const outcome = check("s");
    EXPECT_TRUE(outcome.accepted);
    EXPECT_EQ(outcome.text, "small");
    EXPECT_EQ(outcome.value.m_type, tarvo2::vt_str);
    EXPECT_STREQ(outcome.value.as<char const*>(), "small");
    EXPECT_EQ(outcome.message, "");
}

TEST_F(Validation, LongerUniqueBeginning) {
    declareModes();
    Outcome const outcome = check("fa");
    EXPECT_TRUE(outcome.accepted);
    EXPECT_EQ(outcome.text, "fast");
    EXPECT_STREQ(outcome.value.as<char const*>(), "fast");
}

TEST_F(Validation, ExactTextIsAcceptedAsWritten) {
    declareModes();
    Outcome const outcome = check("full");
    EXPECT_TRUE(outcome.accepted);
    EXPECT_EQ(outcome.text, "full");
    EXPECT_STREQ(outcome.value.as<char const*>(), "full");
}

TEST_F(Validation, SharedBeginningIsAmbiguous) {
    declareModes();
    Outcome const outcome = check("f");
    EXPECT_FALSE(outcome.accepted);
    EXPECT_EQ(outcome.message, "Ambiguous value for option 'mode'. Possible values follows: " + kModes);
    EXPECT_EQ(outcome.message, "Ambiguous value for option 'mode'. Possible values follows: 'fast', 'full', 'small'");
    EXPECT_EQ(outcome.text, "f");
    // The value is left on the last match; callers discard it.
    EXPECT_STREQ(outcome.value.as<char const*>(), "full");
}

TEST_F(Validation, CaseMatters) {
    declareModes();
    Outcome const outcome = check("Fast");
    EXPECT_FALSE(outcome.accepted);
    EXPECT_EQ(outcome.message, "Option 'mode' does not allow value 'Fast'. Possible values follows: " + kModes);
    EXPECT_EQ(outcome.text, "Fast");
}

TEST_F(Validation, TextLongerThanEveryAllowedTextIsRefused) {
    declareModes();
    Outcome const outcome = check("fastest");
    EXPECT_FALSE(outcome.accepted);
    EXPECT_EQ(outcome.message,
              "Option 'mode' does not allow value 'fastest'. Possible values follows: 'fast', 'full', 'small'");
}

TEST_F(Validation, EmptyTextWithSeveralAllowedValuesIsAmbiguous) {
    declareModes();
    Outcome const outcome = check("");
    EXPECT_FALSE(outcome.accepted);
    EXPECT_EQ(outcome.message, "Ambiguous value for option 'mode'. Possible values follows: 'fast', 'full', 'small'");
}

TEST_F(Validation, EmptyTextWithOneAllowedValueBecomesIt) {
    option("mode", tarvo2::vt_str, {variant_t("only")});
    Outcome const outcome = check("");
    EXPECT_TRUE(outcome.accepted);
    EXPECT_EQ(outcome.text, "only");
    EXPECT_STREQ(outcome.value.as<char const*>(), "only");
}

TEST_F(Validation, AllowedEmptyTextMatchesExactlyFirst) {
    option("mode", tarvo2::vt_str, {variant_t("fast"), variant_t(""), variant_t("full")});
    Outcome const outcome = check("");
    EXPECT_TRUE(outcome.accepted);
    EXPECT_EQ(outcome.text, "");
    EXPECT_STREQ(outcome.value.as<char const*>(), "");
    EXPECT_EQ(check("x").message,
              "Option 'mode' does not allow value 'x'. Possible values follows: 'fast', '', 'full'");
}

TEST_F(Validation, BorrowedAllowedTextsWorkLikeOwnedOnes) {
    option("mode", tarvo2::vt_str, {variant_t::str_ref("fast"), variant_t::str_ref("small")});
    EXPECT_TRUE(check("fast").accepted);
    Outcome const outcome = check("sm");
    EXPECT_TRUE(outcome.accepted);
    EXPECT_EQ(outcome.text, "small");
}

TEST_F(Validation, IntegerAllowedValueOnTextOptionThrowsLogicError) {
    option("mode", tarvo2::vt_str, {variant_t(5)});
    EXPECT_THROW(check("a"), std::logic_error);
}

// ---------------------------------------------------------------- null allowed texts

// A null allowed text stands for the empty text: it admits "" and nothing
// else, and it abbreviates nothing.
TEST_F(Validation, NullAllowedTextAdmitsTheEmptyTextOnly) {
    option("mode", tarvo2::vt_str, {variant_t(static_cast<char const*>(nullptr)), variant_t::str_ref(nullptr)});
    Outcome const empty = check("");
    EXPECT_TRUE(empty.accepted);
    EXPECT_STREQ(empty.value.as<char const*>(), "");
    Outcome const other = check("x");
    EXPECT_FALSE(other.accepted);
    EXPECT_EQ(other.message, "Option 'mode' does not allow value 'x'. Possible values follows: '', ''");
}

// Parsing a value never adds to the keeper: the converted text is the
// value's own copy.
TEST_F(Validation, TextValuesAreNotKeptByTheKeeper) {
    option("mode", tarvo2::vt_str);
    std::size_t const before = m_keeper.size();
    for (int i = 0; i < 100; ++i) {
        Outcome const outcome = check(("value " + std::to_string(i)).c_str());
        EXPECT_TRUE(outcome.accepted);
    }
    EXPECT_EQ(m_keeper.size(), before);
}
