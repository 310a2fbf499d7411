// Text to value, value to text and the display names, each following the
// option's declared kind rather than the kind of the value handed in.
#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <stdexcept>
#include <string>

#include "options/option_description.h"
#include "values/garbage.h"

using quen_3_1::Garbage;
using quen_3_1::OptionDescription;
using tarvo2::kel_variant_type_t;
using tarvo2::variant_t;

namespace {

class TypedConversions : public ::testing::Test {
protected:
    OptionDescription optionOf(kel_variant_type_t type) {
        return OptionDescription({"opt"}, "general", "", "help", type, &m_keeper);
    }

    variant_t convert(kel_variant_type_t type, char const* text) { return optionOf(type).fromString(text, &m_keeper); }

    std::string render(kel_variant_type_t type, variant_t const& value) {
        char const* const text = optionOf(type).toString(&m_keeper, value);
        EXPECT_NE(text, nullptr);
        return text == nullptr ? std::string("<null>") : std::string(text);
    }

    void expectConverted(kel_variant_type_t type, char const* text, kel_variant_type_t kind, std::uint64_t payload) {
        variant_t const value = convert(type, text);
        EXPECT_EQ(value.m_type, kind) << "text '" << text << "'";
        EXPECT_EQ(value.m_data, payload) << "text '" << text << "'";
    }

    void expectRefused(kel_variant_type_t type, char const* text) {
        variant_t const value = convert(type, text);
        EXPECT_EQ(value.m_type, tarvo2::vt_empty) << "text '" << text << "'";
        EXPECT_EQ(value.m_data, 0u) << "text '" << text << "'";
    }

    Garbage m_keeper;
};

std::uint64_t bitsOf(double d) {
    variant_t const v(d);
    return v.m_data;
}

}  // namespace

// ---------------------------------------------------------------- unsigned 64-bit and hexadecimal

TEST_F(TypedConversions, HexWithPrefixOrSuffixGives31) {
    expectConverted(tarvo2::vt_uint64, "0x1F", tarvo2::vt_uint64, 31);
    expectConverted(tarvo2::vt_uint64, "0X1f", tarvo2::vt_uint64, 31);
    expectConverted(tarvo2::vt_uint64, "1Fh", tarvo2::vt_uint64, 31);
    expectConverted(tarvo2::vt_uint64, "1fH", tarvo2::vt_uint64, 31);
}

TEST_F(TypedConversions, HexSuffixOnDecimalDigitsIsHex) {
    expectConverted(tarvo2::vt_uint64, "123h", tarvo2::vt_uint64, 291);
}

TEST_F(TypedConversions, PlainDigitsAreDecimal) {
    expectConverted(tarvo2::vt_uint64, "123", tarvo2::vt_uint64, 123);
    expectConverted(tarvo2::vt_uint64, "18446744073709551615", tarvo2::vt_uint64, 0xFFFFFFFFFFFFFFFFull);
    expectConverted(tarvo2::vt_uint64, "0x10", tarvo2::vt_uint64, 16);
}

TEST_F(TypedConversions, HexLettersWithoutMarkerFail) { expectRefused(tarvo2::vt_uint64, "FF"); }

TEST_F(TypedConversions, BadDigitAfterPrefixFallsBackToDecimalZero) {
    expectConverted(tarvo2::vt_uint64, "0x1G", tarvo2::vt_uint64, 0);
}

TEST_F(TypedConversions, LowercaseHexWithSuffix) {
    expectConverted(tarvo2::vt_uint64, "ffh", tarvo2::vt_uint64, 255);
    expectConverted(tarvo2::vt_uint64, "FFFFFFFFFFFFFFFFh", tarvo2::vt_uint64, 0xFFFFFFFFFFFFFFFFull);
}

TEST_F(TypedConversions, SuffixAloneFails) {
    expectRefused(tarvo2::vt_uint64, "h");
    expectRefused(tarvo2::vt_uint64, "H");
}

TEST_F(TypedConversions, TooLargeUnsigned64Fails) { expectRefused(tarvo2::vt_uint64, "18446744073709551616"); }

TEST_F(TypedConversions, EmptyTextOnUnsigned64ThrowsOutOfRange) {
    OptionDescription const option = optionOf(tarvo2::vt_uint64);
    EXPECT_THROW(option.fromString("", &m_keeper), std::out_of_range);
}

// ---------------------------------------------------------------- int

TEST_F(TypedConversions, IntSkipsLeadingBlanks) { expectConverted(tarvo2::vt_int, " 42", tarvo2::vt_int, 42); }

TEST_F(TypedConversions, IntIgnoresTrailingCharacters) { expectConverted(tarvo2::vt_int, "42abc", tarvo2::vt_int, 42); }

TEST_F(TypedConversions, IntWithoutDigitsFails) {
    expectRefused(tarvo2::vt_int, "abc");
    expectRefused(tarvo2::vt_int, "");
    expectRefused(tarvo2::vt_int, " ");
}

TEST_F(TypedConversions, IntReadsNoHexPrefix) { expectConverted(tarvo2::vt_int, "0x1F", tarvo2::vt_int, 0); }

TEST_F(TypedConversions, IntThatDoesNotFitFails) {
    expectRefused(tarvo2::vt_int, "99999999999");
    expectRefused(tarvo2::vt_int, "2147483648");
}

TEST_F(TypedConversions, NegativeIntIsSignExtended) {
    expectConverted(tarvo2::vt_int, "-7", tarvo2::vt_int, 0xFFFFFFFFFFFFFFF9ull);
    expectConverted(tarvo2::vt_int, "-2147483648", tarvo2::vt_int, 0xFFFFFFFF80000000ull);
    expectConverted(tarvo2::vt_int, "2147483647", tarvo2::vt_int, 2147483647u);
}

TEST_F(TypedConversions, DecimalOnlyForInt) { expectConverted(tarvo2::vt_int, "010", tarvo2::vt_int, 10); }

// ---------------------------------------------------------------- other numbers

TEST_F(TypedConversions, UnsignedIsZeroExtended) {
    expectConverted(tarvo2::vt_uint, "4294967295", tarvo2::vt_uint, 0xFFFFFFFFull);
    expectRefused(tarvo2::vt_uint, "4294967296");
    expectRefused(tarvo2::vt_uint, "x");
}

TEST_F(TypedConversions, Int64TakesTheFullRange) {
    expectConverted(tarvo2::vt_int64, "-9223372036854775808", tarvo2::vt_int64, 0x8000000000000000ull);
    expectConverted(tarvo2::vt_int64, "9223372036854775807", tarvo2::vt_int64, 0x7FFFFFFFFFFFFFFFull);
    expectRefused(tarvo2::vt_int64, "9223372036854775808");
    expectRefused(tarvo2::vt_int64, "ff");
}

TEST_F(TypedConversions, DoubleParsesDecimalAndExponent) {
    expectConverted(tarvo2::vt_double, "2.5", tarvo2::vt_double, bitsOf(2.5));
    expectConverted(tarvo2::vt_double, "1e3", tarvo2::vt_double, bitsOf(1000.0));
    expectConverted(tarvo2::vt_double, " -0.125xyz", tarvo2::vt_double, bitsOf(-0.125));
    expectRefused(tarvo2::vt_double, "x1");
}

// ---------------------------------------------------------------- bool

TEST_F(TypedConversions, BoolAcceptsOnlyOneAndZero) {
    expectConverted(tarvo2::vt_bool, "1", tarvo2::vt_bool, 1);
    expectConverted(tarvo2::vt_bool, "0", tarvo2::vt_bool, 0);
    expectRefused(tarvo2::vt_bool, "2");
    expectRefused(tarvo2::vt_bool, "true");
    expectRefused(tarvo2::vt_bool, "false");
}

// ---------------------------------------------------------------- string

TEST_F(TypedConversions, StringTakesAnyTextAsOwnedCopyOfInternedText) {
    variant_t const value = convert(tarvo2::vt_str, "some text, with comma");
    EXPECT_EQ(value.m_type, tarvo2::vt_str);
    ASSERT_NE(value.as<char const*>(), nullptr);
    EXPECT_STREQ(value.as<char const*>(), "some text, with comma");
    EXPECT_NE(value.as<char const*>(), m_keeper.init("some text, with comma"));
}

TEST_F(TypedConversions, StringTakesTheEmptyText) {
    variant_t const value = convert(tarvo2::vt_str, "");
    EXPECT_EQ(value.m_type, tarvo2::vt_str);
    ASSERT_NE(value.as<char const*>(), nullptr);
    EXPECT_STREQ(value.as<char const*>(), "");
}

TEST_F(TypedConversions, StringConvertedTwiceIsInternedOnce) {
    char first[] = "interned";
    (void)convert(tarvo2::vt_str, first);
    char const* const kept = m_keeper.init("interned");
    char second[] = "interned";
    variant_t const again = convert(tarvo2::vt_str, second);
    EXPECT_STREQ(again.as<char const*>(), "interned");
    EXPECT_EQ(m_keeper.init("interned"), kept);
}

// ---------------------------------------------------------------- kinds without conversion

TEST_F(TypedConversions, KindsWithoutConversionGiveEmpty) {
    for (kel_variant_type_t type :
         {tarvo2::vt_int8, tarvo2::vt_uint8, tarvo2::vt_int16, tarvo2::vt_uint16, tarvo2::vt_long, tarvo2::vt_float,
          tarvo2::vt_wstr, tarvo2::vt_str_ref, tarvo2::vt_wstr_ref, tarvo2::vt_blob, tarvo2::vt_empty}) {
        SCOPED_TRACE(static_cast<int>(type));
        expectRefused(type, "1");
        expectRefused(type, "text");
        expectRefused(type, "");
    }
}

// ---------------------------------------------------------------- value to text

TEST_F(TypedConversions, BoolPrintsOneOrZero) {
    EXPECT_EQ(render(tarvo2::vt_bool, variant_t(true)), "1");
    EXPECT_EQ(render(tarvo2::vt_bool, variant_t(false)), "0");
    EXPECT_EQ(render(tarvo2::vt_bool, variant_t(7)), "1");
}

TEST_F(TypedConversions, IntegersPrintInDecimal) {
    EXPECT_EQ(render(tarvo2::vt_int, variant_t(-7)), "-7");
    EXPECT_EQ(render(tarvo2::vt_uint, variant_t(4294967295u)), "4294967295");
    EXPECT_EQ(render(tarvo2::vt_int64, variant_t(std::numeric_limits<long long>::min())), "-9223372036854775808");
    EXPECT_EQ(render(tarvo2::vt_uint64, variant_t(std::numeric_limits<unsigned long long>::max())),
              "18446744073709551615");
    EXPECT_EQ(render(tarvo2::vt_uint64, variant_t(31ull)), "31");
}

TEST_F(TypedConversions, PrintingFollowsTheOptionKindNotTheValueKind) {
    EXPECT_EQ(render(tarvo2::vt_int, variant_t(0x100000005LL)), "5");
    EXPECT_EQ(render(tarvo2::vt_uint, variant_t(-1)), "4294967295");
    EXPECT_EQ(render(tarvo2::vt_uint64, variant_t(-1)), "18446744073709551615");
    EXPECT_EQ(render(tarvo2::vt_double, variant_t(2)), "2");
    EXPECT_EQ(render(tarvo2::vt_double, variant_t(-1)), "1.84467e+19");
}

TEST_F(TypedConversions, DoublePrintsSixSignificantDigits) {
    EXPECT_EQ(render(tarvo2::vt_double, variant_t(0.1)), "0.1");
    EXPECT_EQ(render(tarvo2::vt_double, variant_t(1234567.0)), "1.23457e+06");
    EXPECT_EQ(render(tarvo2::vt_double, variant_t(2.5)), "2.5");
}

TEST_F(TypedConversions, StringPrintsItsText) {
    EXPECT_EQ(render(tarvo2::vt_str, variant_t("fast")), "fast");
    EXPECT_EQ(render(tarvo2::vt_str, variant_t::str_ref("borrowed")), "borrowed");
    EXPECT_EQ(render(tarvo2::vt_str, variant_t("")), "");
}

TEST_F(TypedConversions, StringOptionWithNonTextValuePrintsEmpty) {
    EXPECT_EQ(render(tarvo2::vt_str, variant_t(5)), "");
    EXPECT_EQ(render(tarvo2::vt_str, variant_t()), "");
    EXPECT_EQ(render(tarvo2::vt_str, variant_t(L"wide")), "");
    EXPECT_EQ(render(tarvo2::vt_str, variant_t(static_cast<char const*>(nullptr))), "");
}

TEST_F(TypedConversions, KindsWithoutConversionPrintEmpty) {
    EXPECT_EQ(render(tarvo2::vt_wstr, variant_t(L"wide")), "");
    EXPECT_EQ(render(tarvo2::vt_empty, variant_t(3)), "");
    EXPECT_EQ(render(tarvo2::vt_blob, variant_t::blob("ab", 2)), "");
}

TEST_F(TypedConversions, PrintedTextsAreInternedInTheKeeper) {
    OptionDescription const number = optionOf(tarvo2::vt_int);
    char const* const first = number.toString(&m_keeper, variant_t(12));
    char const* const second = number.toString(&m_keeper, variant_t(12));
    EXPECT_EQ(first, second);
    EXPECT_EQ(m_keeper.init("12"), first);
    OptionDescription const text = optionOf(tarvo2::vt_str);
    variant_t const value("owned");
    char const* const printed = text.toString(&m_keeper, value);
    EXPECT_NE(printed, value.as<char const*>());
    EXPECT_EQ(m_keeper.init("owned"), printed);
}

// ---------------------------------------------------------------- type names

TEST_F(TypedConversions, TypeNamesOfConvertibleKinds) {
    EXPECT_EQ(optionOf(tarvo2::vt_bool).getTypeName(), "undefined");
    EXPECT_EQ(optionOf(tarvo2::vt_int).getTypeName(), "integer");
    EXPECT_EQ(optionOf(tarvo2::vt_uint).getTypeName(), "unsigned integer");
    EXPECT_EQ(optionOf(tarvo2::vt_int64).getTypeName(), "64 bit integer");
    EXPECT_EQ(optionOf(tarvo2::vt_uint64).getTypeName(), "unsigned 64 bit or hex");
    EXPECT_EQ(optionOf(tarvo2::vt_double).getTypeName(), "double");
    EXPECT_EQ(optionOf(tarvo2::vt_str).getTypeName(), "string");
}

TEST_F(TypedConversions, TypeNamesOfOtherKindsAreEmpty) {
    for (kel_variant_type_t type :
         {tarvo2::vt_int8, tarvo2::vt_uint8, tarvo2::vt_int16, tarvo2::vt_uint16, tarvo2::vt_long, tarvo2::vt_float,
          tarvo2::vt_wstr, tarvo2::vt_str_ref, tarvo2::vt_wstr_ref, tarvo2::vt_blob, tarvo2::vt_empty}) {
        EXPECT_EQ(optionOf(type).getTypeName(), "") << "kind " << static_cast<int>(type);
    }
}
