// The tagged value: construction from every kind, deep copies, assignment,
// release, equality across kinds, typed reads and the binary layout hosts
// compile against.
#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <cwchar>
#include <limits>
#include <type_traits>

#include "quen_3_1/quen.h"

using quen_3_1::Value;
using tarvo2::variant_t;

namespace {

char const* narrowPointer(variant_t const& v) {
    return reinterpret_cast<char const*>(static_cast<std::uintptr_t>(v.m_data));
}

wchar_t const* widePointer(variant_t const& v) {
    return reinterpret_cast<wchar_t const*>(static_cast<std::uintptr_t>(v.m_data));
}

unsigned char const* blockPointer(variant_t const& v) {
    return reinterpret_cast<unsigned char const*>(static_cast<std::uintptr_t>(v.m_data));
}

std::uint32_t blockCount(variant_t const& v) {
    std::uint32_t count = 0;
    std::memcpy(&count, blockPointer(v), sizeof count);
    return count;
}

std::uint64_t bitsOf(double d) {
    std::uint64_t bits = 0;
    std::memcpy(&bits, &d, sizeof bits);
    return bits;
}

// A variant of a kind that no constructor produces, with a raw payload.
variant_t rawVariant(tarvo2::kel_variant_type_t type, std::uint64_t data) {
    variant_t v;
    v.m_type = type;
    v.m_data = data;
    return v;
}

double const kTwoToThe64 = 18446744073709551616.0;

}  // namespace

// ---------------------------------------------------------------- construction

TEST(VariantConstruction, DefaultIsEmptyWithZeroPayload) {
    variant_t const v;
    EXPECT_EQ(v.m_type, tarvo2::vt_empty);
    EXPECT_EQ(v.m_data, 0u);
}

TEST(VariantConstruction, BoolStoresZeroOrOne) {
    variant_t const yes(true);
    variant_t const no(false);
    EXPECT_EQ(yes.m_type, tarvo2::vt_bool);
    EXPECT_EQ(yes.m_data, 1u);
    EXPECT_EQ(no.m_type, tarvo2::vt_bool);
    EXPECT_EQ(no.m_data, 0u);
}

TEST(VariantConstruction, IntIsSignExtended) {
    variant_t const negative(-1);
    EXPECT_EQ(negative.m_type, tarvo2::vt_int);
    EXPECT_EQ(negative.m_data, 0xFFFFFFFFFFFFFFFFull);
    variant_t const positive(42);
    EXPECT_EQ(positive.m_type, tarvo2::vt_int);
    EXPECT_EQ(positive.m_data, 42u);
    variant_t const lowest(std::numeric_limits<int>::min());
    EXPECT_EQ(lowest.m_data, 0xFFFFFFFF80000000ull);
}

TEST(VariantConstruction, UnsignedIsZeroExtended) {
    variant_t const v(0xFFFFFFFFu);
    EXPECT_EQ(v.m_type, tarvo2::vt_uint);
    EXPECT_EQ(v.m_data, 0x00000000FFFFFFFFull);
}

TEST(VariantConstruction, LongIsSigned64Bit) {
    variant_t const v(-2L);
    EXPECT_EQ(v.m_type, tarvo2::vt_int64);
    EXPECT_EQ(v.m_data, 0xFFFFFFFFFFFFFFFEull);
}

TEST(VariantConstruction, UnsignedLongIsUnsigned64Bit) {
    variant_t const v(0x123456789AUL);
    EXPECT_EQ(v.m_type, tarvo2::vt_uint64);
    EXPECT_EQ(v.m_data, 0x123456789Aull);
}

TEST(VariantConstruction, LongLongIsSigned64Bit) {
    variant_t const v(std::numeric_limits<long long>::min());
    EXPECT_EQ(v.m_type, tarvo2::vt_int64);
    EXPECT_EQ(v.m_data, 0x8000000000000000ull);
}

TEST(VariantConstruction, UnsignedLongLongIsUnsigned64Bit) {
    variant_t const v(std::numeric_limits<unsigned long long>::max());
    EXPECT_EQ(v.m_type, tarvo2::vt_uint64);
    EXPECT_EQ(v.m_data, 0xFFFFFFFFFFFFFFFFull);
}

TEST(VariantConstruction, DoubleKeepsItsBits) {
    variant_t const v(1.5);
    EXPECT_EQ(v.m_type, tarvo2::vt_double);
    EXPECT_EQ(v.m_data, bitsOf(1.5));
    variant_t const negativeZero(-0.0);
    EXPECT_EQ(negativeZero.m_data, 0x8000000000000000ull);
}

TEST(VariantConstruction, TextIsAnOwnedCopy) {
    char source[] = "hello";
    variant_t const v(static_cast<char const*>(source));
    EXPECT_EQ(v.m_type, tarvo2::vt_str);
    ASSERT_NE(narrowPointer(v), nullptr);
    EXPECT_NE(narrowPointer(v), source);
    source[0] = 'j';
    EXPECT_STREQ(narrowPointer(v), "hello");
}

TEST(VariantConstruction, EmptyTextIsOwnedToo) {
    char const source[] = "";
    variant_t const v(source);
    EXPECT_EQ(v.m_type, tarvo2::vt_str);
    ASSERT_NE(narrowPointer(v), nullptr);
    EXPECT_NE(narrowPointer(v), source);
    EXPECT_STREQ(narrowPointer(v), "");
}

TEST(VariantConstruction, NullTextIsTextWithNullPointer) {
    variant_t const v(static_cast<char const*>(nullptr));
    EXPECT_EQ(v.m_type, tarvo2::vt_str);
    EXPECT_EQ(v.m_data, 0u);
}

TEST(VariantConstruction, WideTextIsAnOwnedCopy) {
    wchar_t source[] = L"wide \u00e9";
    variant_t const v(static_cast<wchar_t const*>(source));
    EXPECT_EQ(v.m_type, tarvo2::vt_wstr);
    ASSERT_NE(widePointer(v), nullptr);
    EXPECT_NE(widePointer(v), source);
    source[0] = L'W';
    EXPECT_EQ(std::wcscmp(widePointer(v), L"wide \u00e9"), 0);
}

TEST(VariantConstruction, NullWideTextIsWideWithNullPointer) {
    variant_t const v(static_cast<wchar_t const*>(nullptr));
    EXPECT_EQ(v.m_type, tarvo2::vt_wstr);
    EXPECT_EQ(v.m_data, 0u);
}

TEST(VariantConstruction, StrRefBorrowsThePointer) {
    char const text[] = "borrowed";
    variant_t const v = variant_t::str_ref(text);
    EXPECT_EQ(v.m_type, tarvo2::vt_str_ref);
    EXPECT_EQ(narrowPointer(v), text);
}

TEST(VariantConstruction, WstrRefBorrowsThePointer) {
    wchar_t const text[] = L"borrowed";
    variant_t const v = variant_t::wstr_ref(text);
    EXPECT_EQ(v.m_type, tarvo2::vt_wstr_ref);
    EXPECT_EQ(widePointer(v), text);
}

TEST(VariantConstruction, BlobStoresCountThenBytes) {
    unsigned char bytes[] = {1, 0, 255, 7, 9};
    variant_t const v = variant_t::blob(bytes, 5);
    EXPECT_EQ(v.m_type, tarvo2::vt_blob);
    ASSERT_NE(blockPointer(v), nullptr);
    EXPECT_NE(blockPointer(v), bytes);
    EXPECT_EQ(blockCount(v), 5u);
    bytes[0] = 99;
    EXPECT_EQ(std::memcmp(blockPointer(v) + 4, "\x01\x00\xff\x07\x09", 5), 0);
}

TEST(VariantConstruction, EmptyBlobHasABlockWithZeroCount) {
    char const bytes[] = "ignored";
    variant_t const v = variant_t::blob(bytes, 0);
    EXPECT_EQ(v.m_type, tarvo2::vt_blob);
    ASSERT_NE(blockPointer(v), nullptr);
    EXPECT_EQ(blockCount(v), 0u);
}

// ---------------------------------------------------------------- copy

TEST(VariantCopy, TextCopyOwnsItsOwnMemory) {
    variant_t const original("copy me");
    variant_t const copy(original);
    EXPECT_EQ(copy.m_type, tarvo2::vt_str);
    EXPECT_NE(narrowPointer(copy), narrowPointer(original));
    EXPECT_STREQ(narrowPointer(copy), "copy me");
}

TEST(VariantCopy, NullTextCopiesAsNullTextNotEmpty) {
    variant_t const original(static_cast<char const*>(nullptr));
    variant_t const copy(original);
    EXPECT_EQ(copy.m_type, tarvo2::vt_str);
    EXPECT_EQ(copy.m_data, 0u);
}

TEST(VariantCopy, WideTextCopyOwnsItsOwnMemory) {
    variant_t const original(L"wide");
    variant_t const copy(original);
    EXPECT_EQ(copy.m_type, tarvo2::vt_wstr);
    EXPECT_NE(widePointer(copy), widePointer(original));
    EXPECT_EQ(std::wcscmp(widePointer(copy), L"wide"), 0);
}

TEST(VariantCopy, NullWideTextCopiesAsNullWideText) {
    variant_t const original(static_cast<wchar_t const*>(nullptr));
    variant_t const copy(original);
    EXPECT_EQ(copy.m_type, tarvo2::vt_wstr);
    EXPECT_EQ(copy.m_data, 0u);
}

TEST(VariantCopy, BlobCopyOwnsItsOwnBlock) {
    variant_t const original = variant_t::blob("abc", 3);
    variant_t const copy(original);
    EXPECT_EQ(copy.m_type, tarvo2::vt_blob);
    EXPECT_NE(blockPointer(copy), blockPointer(original));
    EXPECT_EQ(blockCount(copy), 3u);
    EXPECT_EQ(std::memcmp(blockPointer(copy) + 4, "abc", 3), 0);
}

TEST(VariantCopy, EmptyBlobCopyHasZeroCount) {
    variant_t const original = variant_t::blob("", 0);
    variant_t const copy(original);
    EXPECT_EQ(copy.m_type, tarvo2::vt_blob);
    EXPECT_NE(blockPointer(copy), blockPointer(original));
    EXPECT_EQ(blockCount(copy), 0u);
}

TEST(VariantCopy, BorrowedTextsCopyThePointer) {
    char const text[] = "shared";
    wchar_t const wide[] = L"shared";
    variant_t const narrowCopy(variant_t::str_ref(text));
    variant_t const wideCopy(variant_t::wstr_ref(wide));
    EXPECT_EQ(narrowCopy.m_type, tarvo2::vt_str_ref);
    EXPECT_EQ(narrowPointer(narrowCopy), text);
    EXPECT_EQ(wideCopy.m_type, tarvo2::vt_wstr_ref);
    EXPECT_EQ(widePointer(wideCopy), wide);
}

TEST(VariantCopy, ScalarsCopyKindAndPayload) {
    variant_t const number(-5);
    variant_t const real(2.25);
    variant_t const empty;
    variant_t const odd = rawVariant(tarvo2::vt_int16, 0x1234);
    variant_t const numberCopy(number);
    variant_t const realCopy(real);
    variant_t const emptyCopy(empty);
    variant_t const oddCopy(odd);
    EXPECT_EQ(numberCopy.m_type, tarvo2::vt_int);
    EXPECT_EQ(numberCopy.m_data, number.m_data);
    EXPECT_EQ(realCopy.m_type, tarvo2::vt_double);
    EXPECT_EQ(realCopy.m_data, bitsOf(2.25));
    EXPECT_EQ(emptyCopy.m_type, tarvo2::vt_empty);
    EXPECT_EQ(emptyCopy.m_data, 0u);
    EXPECT_EQ(oddCopy.m_type, tarvo2::vt_int16);
    EXPECT_EQ(oddCopy.m_data, 0x1234u);
}

// ---------------------------------------------------------------- assignment

TEST(VariantAssignment, ReturnsTheTarget) {
    variant_t target;
    variant_t const source(7);
    variant_t& result = (target = source);
    EXPECT_EQ(&result, &target);
}

TEST(VariantAssignment, TextOverScalarCopiesTheText) {
    variant_t target(3);
    variant_t const source("assigned");
    target = source;
    EXPECT_EQ(target.m_type, tarvo2::vt_str);
    EXPECT_NE(narrowPointer(target), narrowPointer(source));
    EXPECT_STREQ(narrowPointer(target), "assigned");
}

TEST(VariantAssignment, TextOverTextReplacesIt) {
    variant_t target("old");
    variant_t const source("new");
    target = source;
    EXPECT_EQ(target.m_type, tarvo2::vt_str);
    EXPECT_NE(narrowPointer(target), narrowPointer(source));
    EXPECT_STREQ(narrowPointer(target), "new");
    EXPECT_STREQ(narrowPointer(source), "new");
}

TEST(VariantAssignment, NullTextStaysNull) {
    variant_t target("old");
    target = variant_t(static_cast<char const*>(nullptr));
    EXPECT_EQ(target.m_type, tarvo2::vt_str);
    EXPECT_EQ(target.m_data, 0u);
}

TEST(VariantAssignment, NullWideTextStaysNull) {
    variant_t target(L"old");
    target = variant_t(static_cast<wchar_t const*>(nullptr));
    EXPECT_EQ(target.m_type, tarvo2::vt_wstr);
    EXPECT_EQ(target.m_data, 0u);
}

TEST(VariantAssignment, ScalarOverTextTakesKindAndPayload) {
    variant_t target("text");
    target = variant_t(9.5);
    EXPECT_EQ(target.m_type, tarvo2::vt_double);
    EXPECT_EQ(target.m_data, bitsOf(9.5));
    target = variant_t();
    EXPECT_EQ(target.m_type, tarvo2::vt_empty);
    EXPECT_EQ(target.m_data, 0u);
}

TEST(VariantAssignment, WideAndBlobOverOtherKinds) {
    variant_t target(1);
    target = variant_t(L"wide");
    EXPECT_EQ(target.m_type, tarvo2::vt_wstr);
    EXPECT_EQ(std::wcscmp(widePointer(target), L"wide"), 0);
    target = variant_t::blob("xy", 2);
    EXPECT_EQ(target.m_type, tarvo2::vt_blob);
    EXPECT_EQ(blockCount(target), 2u);
    EXPECT_EQ(std::memcmp(blockPointer(target) + 4, "xy", 2), 0);
    char const borrowed[] = "ref";
    target = variant_t::str_ref(borrowed);
    EXPECT_EQ(target.m_type, tarvo2::vt_str_ref);
    EXPECT_EQ(narrowPointer(target), borrowed);
}

TEST(VariantAssignment, SelfAssignmentOfTextKeepsTheText) {
    variant_t v("self");
    char const* const before = narrowPointer(v);
    variant_t const& alias = v;
    v = alias;
    EXPECT_EQ(v.m_type, tarvo2::vt_str);
    EXPECT_EQ(narrowPointer(v), before);
    EXPECT_STREQ(narrowPointer(v), "self");
}

TEST(VariantAssignment, SelfAssignmentOfWideTextKeepsTheText) {
    variant_t v(L"self");
    wchar_t const* const before = widePointer(v);
    variant_t const& alias = v;
    v = alias;
    EXPECT_EQ(v.m_type, tarvo2::vt_wstr);
    EXPECT_EQ(widePointer(v), before);
    EXPECT_EQ(std::wcscmp(widePointer(v), L"self"), 0);
}

TEST(VariantAssignment, SelfAssignmentOfBlobKeepsTheBlock) {
    variant_t v = variant_t::blob("blk", 3);
    unsigned char const* const before = blockPointer(v);
    variant_t const& alias = v;
    v = alias;
    EXPECT_EQ(v.m_type, tarvo2::vt_blob);
    EXPECT_EQ(blockPointer(v), before);
    EXPECT_EQ(blockCount(v), 3u);
    EXPECT_EQ(std::memcmp(blockPointer(v) + 4, "blk", 3), 0);
}

TEST(VariantAssignment, SelfAssignmentOfNullTextKeepsNull) {
    variant_t v(static_cast<char const*>(nullptr));
    variant_t const& alias = v;
    v = alias;
    EXPECT_EQ(v.m_type, tarvo2::vt_str);
    EXPECT_EQ(v.m_data, 0u);
}

TEST(VariantAssignment, SelfAssignmentOfScalarsIsHarmless) {
    variant_t number(-12);
    variant_t const& numberAlias = number;
    number = numberAlias;
    EXPECT_EQ(number.m_type, tarvo2::vt_int);
    EXPECT_EQ(number.as<int>(), -12);
    char const text[] = "ref";
    variant_t reference = variant_t::str_ref(text);
    variant_t const& referenceAlias = reference;
    reference = referenceAlias;
    EXPECT_EQ(reference.m_type, tarvo2::vt_str_ref);
    EXPECT_EQ(narrowPointer(reference), text);
}

// ---------------------------------------------------------------- free_data

TEST(VariantFreeData, LeavesTheKindInPlace) {
    variant_t v("released");
    v.free_data();
    EXPECT_EQ(v.m_type, tarvo2::vt_str);
    // The block is gone; a null text makes the destructor release nothing more.
    v.m_data = 0;
}

TEST(VariantFreeData, ScalarsKeepKindAndPayload) {
    variant_t v(77);
    v.free_data();
    EXPECT_EQ(v.m_type, tarvo2::vt_int);
    EXPECT_EQ(v.m_data, 77u);
    variant_t empty;
    empty.free_data();
    EXPECT_EQ(empty.m_type, tarvo2::vt_empty);
}

TEST(VariantFreeData, BorrowedTextIsNotReleased) {
    char const text[] = "not mine";
    variant_t v = variant_t::str_ref(text);
    v.free_data();
    EXPECT_EQ(v.m_type, tarvo2::vt_str_ref);
    EXPECT_EQ(narrowPointer(v), text);
    EXPECT_STREQ(text, "not mine");
}

// ---------------------------------------------------------------- equality

TEST(VariantEquality, SameIntegerKindComparesPayloads) {
    EXPECT_TRUE(variant_t(5) == variant_t(5));
    EXPECT_FALSE(variant_t(5) == variant_t(6));
    EXPECT_TRUE(variant_t(true) == variant_t(true));
    EXPECT_FALSE(variant_t(true) == variant_t(false));
    EXPECT_TRUE(variant_t(7ull) == variant_t(7ull));
    EXPECT_TRUE(rawVariant(tarvo2::vt_uint8, 3) == rawVariant(tarvo2::vt_uint8, 3));
    EXPECT_FALSE(rawVariant(tarvo2::vt_uint8, 3) == rawVariant(tarvo2::vt_uint8, 4));
}

TEST(VariantEquality, DifferentIntegerKindsComparePayloads) {
    EXPECT_TRUE(variant_t(true) == variant_t(1));
    EXPECT_TRUE(variant_t(1) == variant_t(true));
    EXPECT_TRUE(variant_t(-1) == variant_t(-1LL));
    EXPECT_TRUE(variant_t(-1LL) == variant_t(std::numeric_limits<unsigned long long>::max()));
    EXPECT_TRUE(variant_t(2) == variant_t(2u));
    EXPECT_TRUE(rawVariant(tarvo2::vt_long, 9) == variant_t(9));
    // Sign extension makes -1 differ from the unsigned 32-bit maximum.
    EXPECT_FALSE(variant_t(-1) == variant_t(0xFFFFFFFFu));
    EXPECT_FALSE(variant_t(false) == variant_t(2));
}

TEST(VariantEquality, IntegerAgainstDoubleUsesUnsignedPayload) {
    EXPECT_TRUE(variant_t(2) == variant_t(2.0));
    EXPECT_TRUE(variant_t(2.0) == variant_t(2));
    EXPECT_FALSE(variant_t(2) == variant_t(2.5));
    EXPECT_FALSE(variant_t(-1) == variant_t(-1.0));
    EXPECT_FALSE(variant_t(-1.0) == variant_t(-1));
    EXPECT_TRUE(variant_t(-1) == variant_t(kTwoToThe64));
    EXPECT_TRUE(variant_t(std::numeric_limits<unsigned long long>::max()) == variant_t(kTwoToThe64));
    EXPECT_TRUE(variant_t(true) == variant_t(1.0));
}

TEST(VariantEquality, DoublesCompareAsDoubles) {
    EXPECT_TRUE(variant_t(0.5) == variant_t(0.5));
    EXPECT_FALSE(variant_t(0.5) == variant_t(0.25));
    // Different bits, equal values.
    EXPECT_TRUE(variant_t(0.0) == variant_t(-0.0));
    variant_t const f1 = rawVariant(tarvo2::vt_float, bitsOf(1.5));
    variant_t const f2 = rawVariant(tarvo2::vt_float, bitsOf(1.5));
    EXPECT_TRUE(f1 == f2);
}

TEST(VariantEquality, NaNEqualsNothing) {
    variant_t const nan(std::numeric_limits<double>::quiet_NaN());
    variant_t const& same = nan;
    EXPECT_FALSE(nan == same);
    EXPECT_FALSE(nan == variant_t(std::numeric_limits<double>::quiet_NaN()));
    EXPECT_FALSE(nan == variant_t(0));
    EXPECT_FALSE(variant_t(0) == nan);
    variant_t const floatNan = rawVariant(tarvo2::vt_float, bitsOf(std::numeric_limits<double>::quiet_NaN()));
    EXPECT_FALSE(floatNan == floatNan);
}

TEST(VariantEquality, TextsCompareByCharacters) {
    EXPECT_TRUE(variant_t("abc") == variant_t("abc"));
    EXPECT_FALSE(variant_t("abc") == variant_t("abd"));
    EXPECT_FALSE(variant_t("abc") == variant_t("ab"));
    EXPECT_TRUE(variant_t("") == variant_t(""));
}

TEST(VariantEquality, BorrowedTextEqualsOwnedText) {
    char const text[] = "same";
    variant_t const borrowed = variant_t::str_ref(text);
    variant_t const owned("same");
    EXPECT_TRUE(borrowed == owned);
    EXPECT_TRUE(owned == borrowed);
    EXPECT_TRUE(borrowed == variant_t::str_ref("same"));
    EXPECT_FALSE(borrowed == variant_t("other"));
    EXPECT_FALSE(variant_t("other") == borrowed);
}

TEST(VariantEquality, WideTextsCompareByCharacters) {
    wchar_t const text[] = L"wide";
    variant_t const borrowed = variant_t::wstr_ref(text);
    variant_t const owned(L"wide");
    EXPECT_TRUE(owned == variant_t(L"wide"));
    EXPECT_FALSE(owned == variant_t(L"widE"));
    EXPECT_TRUE(borrowed == owned);
    EXPECT_TRUE(owned == borrowed);
    EXPECT_TRUE(borrowed == variant_t::wstr_ref(L"wide"));
    EXPECT_FALSE(borrowed == variant_t(L"other"));
}

TEST(VariantEquality, NarrowNeverEqualsWide) {
    EXPECT_FALSE(variant_t("a") == variant_t(L"a"));
    EXPECT_FALSE(variant_t(L"a") == variant_t("a"));
    EXPECT_FALSE(variant_t::str_ref("a") == variant_t::wstr_ref(L"a"));
}

TEST(VariantEquality, TextNeverEqualsNumber) {
    EXPECT_FALSE(variant_t("1") == variant_t(1));
    EXPECT_FALSE(variant_t(1) == variant_t("1"));
    EXPECT_FALSE(variant_t::str_ref("1.5") == variant_t(1.5));
}

TEST(VariantEquality, BlobsCompareCountAndBytes) {
    EXPECT_TRUE(variant_t::blob("abc", 3) == variant_t::blob("abc", 3));
    EXPECT_FALSE(variant_t::blob("abc", 3) == variant_t::blob("abd", 3));
    EXPECT_FALSE(variant_t::blob("abc", 3) == variant_t::blob("abcd", 4));
    EXPECT_FALSE(variant_t::blob("abcd", 4) == variant_t::blob("abc", 3));
    EXPECT_TRUE(variant_t::blob("x", 0) == variant_t::blob("y", 0));
    EXPECT_FALSE(variant_t::blob("abc", 3) == variant_t("abc"));
}

TEST(VariantEquality, EmptiesAreEqualAndEqualNothingElse) {
    EXPECT_TRUE(variant_t() == variant_t());
    EXPECT_FALSE(variant_t() == variant_t(0));
    EXPECT_FALSE(variant_t(0) == variant_t());
    EXPECT_FALSE(variant_t() == variant_t(false));
    EXPECT_FALSE(variant_t() == variant_t(0.0));
    EXPECT_FALSE(variant_t() == variant_t(""));
    EXPECT_FALSE(variant_t("") == variant_t());
    EXPECT_FALSE(variant_t() == variant_t::blob("", 0));
}

TEST(VariantEquality, InequalityIsTheNegation) {
    EXPECT_FALSE(variant_t(3) != variant_t(3));
    EXPECT_TRUE(variant_t(3) != variant_t(4));
    EXPECT_TRUE(variant_t(-1) != variant_t(-1.0));
    EXPECT_FALSE(variant_t() != variant_t());
    EXPECT_TRUE(variant_t("a") != variant_t("b"));
}

// ---------------------------------------------------------------- typed reads

TEST(VariantTypedRead, NegativeIntReadAsDoubleIsTwoToThe64) {
    variant_t const v(-1);
    EXPECT_EQ(v.as<double>(), kTwoToThe64);
    EXPECT_EQ(v.as<double>(), std::ldexp(1.0, 64));
}

TEST(VariantTypedRead, IntegerKindsReadAsDoubleThroughUnsignedPayload) {
    EXPECT_EQ(variant_t(7).as<double>(), 7.0);
    EXPECT_EQ(variant_t(true).as<double>(), 1.0);
    EXPECT_EQ(variant_t(-2LL).as<double>(), kTwoToThe64);
    EXPECT_EQ(variant_t(3000000000u).as<double>(), 3000000000.0);
}

TEST(VariantTypedRead, DoubleReadsItsBits) {
    EXPECT_EQ(variant_t(2.5).as<double>(), 2.5);
    EXPECT_EQ(variant_t(-1.0).as<double>(), -1.0);
    EXPECT_EQ(rawVariant(tarvo2::vt_float, bitsOf(0.75)).as<double>(), 0.75);
}

TEST(VariantTypedRead, IntegersReadTheirWidth) {
    variant_t const negative(-1);
    EXPECT_EQ(negative.as<int>(), -1);
    EXPECT_EQ(negative.as<unsigned int>(), 0xFFFFFFFFu);
    EXPECT_EQ(negative.as<long long>(), -1LL);
    EXPECT_EQ(negative.as<unsigned long long>(), 0xFFFFFFFFFFFFFFFFull);
    variant_t const wide(0x100000005LL);
    EXPECT_EQ(wide.as<int>(), 5);
    EXPECT_EQ(wide.as<unsigned int>(), 5u);
    EXPECT_EQ(wide.as<long long>(), 0x100000005LL);
    EXPECT_EQ(variant_t(0xFFFFFFFFu).as<int>(), -1);
    EXPECT_EQ(variant_t(0xFFFFFFFFu).as<long long>(), 0xFFFFFFFFLL);
}

TEST(VariantTypedRead, BoolIsNonZeroPayload) {
    EXPECT_TRUE(variant_t(true).as<bool>());
    EXPECT_FALSE(variant_t(false).as<bool>());
    EXPECT_TRUE(variant_t(2).as<bool>());
    EXPECT_FALSE(variant_t(0).as<bool>());
    EXPECT_TRUE(variant_t(0x100000000LL).as<bool>());
}

TEST(VariantTypedRead, TextPointerOnlyForNarrowTexts) {
    variant_t const owned("owned");
    EXPECT_EQ(owned.as<char const*>(), narrowPointer(owned));
    char const text[] = "borrowed";
    EXPECT_EQ(variant_t::str_ref(text).as<char const*>(), text);
    EXPECT_EQ(variant_t(static_cast<char const*>(nullptr)).as<char const*>(), nullptr);
    EXPECT_EQ(variant_t(L"wide").as<char const*>(), nullptr);
    EXPECT_EQ(variant_t::wstr_ref(L"wide").as<char const*>(), nullptr);
    EXPECT_EQ(variant_t(12).as<char const*>(), nullptr);
    EXPECT_EQ(variant_t(1.0).as<char const*>(), nullptr);
    EXPECT_EQ(variant_t().as<char const*>(), nullptr);
    EXPECT_EQ(variant_t::blob("ab", 2).as<char const*>(), nullptr);
}

// ---------------------------------------------------------------- Value

TEST(ValueRecord, TextReadGivesTextWhenStatusIsZero) {
    char const text[] = "given";
    Value const value{text, 0, 5, variant_t(1)};
    EXPECT_EQ(value.as<char const*>(), text);
}

TEST(ValueRecord, TextReadGivesNullWhenStatusIsNonZero) {
    char const text[] = "given";
    Value const failed{text, 1, 0x7fffffff, variant_t()};
    EXPECT_EQ(failed.as<char const*>(), nullptr);
    Value const other{text, 2, 3, variant_t("x")};
    EXPECT_EQ(other.as<char const*>(), nullptr);
}

TEST(ValueRecord, OtherReadsUseTheVariant) {
    Value const value{"7", 0, 4, variant_t(7)};
    EXPECT_EQ(value.as<int>(), 7);
    EXPECT_EQ(value.as<double>(), 7.0);
}

TEST(ValueRecord, CopyOwnsItsVariantText) {
    Value const original{"t", 0, 1, variant_t("owned")};
    Value const copy(original);
    EXPECT_EQ(copy.m_text, original.m_text);
    EXPECT_EQ(copy.m_status, 0);
    EXPECT_EQ(copy.m_index, 1);
    EXPECT_NE(copy.m_value.as<char const*>(), original.m_value.as<char const*>());
    EXPECT_STREQ(copy.m_value.as<char const*>(), "owned");
}

// ---------------------------------------------------------------- layout

TEST(VariantLayout, KindCodesAreFixed) {
    EXPECT_EQ(static_cast<int>(tarvo2::vt_bool), 0);
    EXPECT_EQ(static_cast<int>(tarvo2::vt_int8), 1);
    EXPECT_EQ(static_cast<int>(tarvo2::vt_uint8), 2);
    EXPECT_EQ(static_cast<int>(tarvo2::vt_int16), 3);
    EXPECT_EQ(static_cast<int>(tarvo2::vt_uint16), 4);
    EXPECT_EQ(static_cast<int>(tarvo2::vt_long), 5);
    EXPECT_EQ(static_cast<int>(tarvo2::vt_int), 6);
    EXPECT_EQ(static_cast<int>(tarvo2::vt_uint), 7);
    EXPECT_EQ(static_cast<int>(tarvo2::vt_int64), 8);
    EXPECT_EQ(static_cast<int>(tarvo2::vt_uint64), 9);
    EXPECT_EQ(static_cast<int>(tarvo2::vt_float), 10);
    EXPECT_EQ(static_cast<int>(tarvo2::vt_double), 11);
    EXPECT_EQ(static_cast<int>(tarvo2::vt_str), 12);
    EXPECT_EQ(static_cast<int>(tarvo2::vt_wstr), 13);
    EXPECT_EQ(static_cast<int>(tarvo2::vt_str_ref), 14);
    EXPECT_EQ(static_cast<int>(tarvo2::vt_wstr_ref), 15);
    EXPECT_EQ(static_cast<int>(tarvo2::vt_blob), 16);
    EXPECT_EQ(static_cast<int>(tarvo2::vt_empty), 17);
}

TEST(VariantLayout, KindIsSigned32Bit) {
    using Underlying = std::underlying_type_t<tarvo2::kel_variant_type_t>;
    EXPECT_EQ(sizeof(tarvo2::kel_variant_type_t), 4u);
    EXPECT_TRUE(std::is_signed<Underlying>::value);
}

TEST(VariantLayout, TwoMachineWordsPayloadFirst) {
    EXPECT_EQ(offsetof(variant_t, m_data), 0u);
    EXPECT_EQ(offsetof(variant_t, m_type), 8u);
    EXPECT_EQ(sizeof(variant_t), 16u);
    EXPECT_EQ(sizeof(variant_t::m_data), 8u);
}

TEST(VariantLayout, MemoryHooksReleaseThenAllocate) {
    EXPECT_EQ(offsetof(variant_t::hooks_t, release), 0u);
    EXPECT_EQ(offsetof(variant_t::hooks_t, allocate), sizeof(void*));
}

TEST(ValueLayout, FieldsInOrder) {
    EXPECT_EQ(offsetof(Value, m_text), 0u);
    EXPECT_EQ(offsetof(Value, m_status), 8u);
    EXPECT_EQ(offsetof(Value, m_index), 12u);
    EXPECT_EQ(offsetof(Value, m_value), 16u);
    EXPECT_EQ(sizeof(Value), 32u);
    EXPECT_EQ(sizeof(Value::m_status), 4u);
    EXPECT_EQ(sizeof(Value::m_index), 4u);
}

// ---------------------------------------------------------------- hardening

// The two floating kinds (10 and 11) meet under no equality rule, so the
// same payload does not make them equal.
TEST(VariantEquality, FloatKindNeverEqualsDoubleKind) {
    variant_t const floating = rawVariant(tarvo2::vt_float, bitsOf(2.0));
    variant_t const dbl(2.0);
    EXPECT_FALSE(floating == dbl);
    EXPECT_FALSE(dbl == floating);
    EXPECT_TRUE(floating != dbl);
    EXPECT_TRUE(floating == rawVariant(tarvo2::vt_float, bitsOf(2.0)));
    EXPECT_FALSE(floating == variant_t(3ULL));
}

// A null text (kinds 12 and 13 may hold one) compares like the empty text.
TEST(VariantEquality, NullTextComparesLikeTheEmptyText) {
    variant_t const null(static_cast<char const*>(nullptr));
    EXPECT_TRUE(null == variant_t(static_cast<char const*>(nullptr)));
    EXPECT_TRUE(null == variant_t(""));
    EXPECT_TRUE(variant_t("") == null);
    EXPECT_TRUE(null == variant_t::str_ref(""));
    EXPECT_TRUE(variant_t::str_ref(nullptr) == null);
    EXPECT_FALSE(null == variant_t("x"));
    EXPECT_FALSE(variant_t::str_ref("x") == null);
}

TEST(VariantEquality, NullWideTextComparesLikeTheEmptyWideText) {
    variant_t const null(static_cast<wchar_t const*>(nullptr));
    EXPECT_TRUE(null == variant_t(static_cast<wchar_t const*>(nullptr)));
    EXPECT_TRUE(null == variant_t(L""));
    EXPECT_TRUE(variant_t::wstr_ref(nullptr) == variant_t::wstr_ref(L""));
    EXPECT_FALSE(null == variant_t(L"x"));
    EXPECT_FALSE(variant_t::wstr_ref(L"x") == null);
}
