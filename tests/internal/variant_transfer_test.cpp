// The library's own moves of variants: numbers written in place exactly as
// the constructors lay them out, and texts handed over or released once.
#include "values/variant_transfer.h"

#include <gtest/gtest.h>

#include <cstring>
#include <limits>

using tarvo2::variant_t;

namespace {

template <class T>
void expectLaidOutAsConstructed(T number) {
    variant_t const constructed(number);
    variant_t written;
    quen_3_1::setNumber(written, number);
    EXPECT_EQ(written.m_type, constructed.m_type);
    EXPECT_EQ(written.m_data, constructed.m_data);
}

}  // namespace

TEST(VariantTransfer, NumbersWrittenInPlaceMatchTheConstructors) {
    expectLaidOutAsConstructed(true);
    expectLaidOutAsConstructed(false);
    expectLaidOutAsConstructed(-5);
    expectLaidOutAsConstructed(std::numeric_limits<int>::min());
    expectLaidOutAsConstructed(4000000000U);
    expectLaidOutAsConstructed(-9000000000LL);
    expectLaidOutAsConstructed(std::numeric_limits<unsigned long long>::max());
    expectLaidOutAsConstructed(-0.0);
    expectLaidOutAsConstructed(3.25);
    expectLaidOutAsConstructed(std::numeric_limits<double>::infinity());
}

TEST(VariantTransfer, ClearReleasesAnOwnedTextAndEmpties) {
    variant_t text("owned");
    quen_3_1::clearVariant(text);
    EXPECT_EQ(text.m_type, tarvo2::vt_empty);
    EXPECT_EQ(text.m_data, 0u);
    variant_t number(7);
    quen_3_1::clearVariant(number);
    EXPECT_EQ(number.m_type, tarvo2::vt_empty);
    EXPECT_EQ(number.m_data, 0u);
}

TEST(VariantTransfer, TransferHandsTheTextOverAndReleasesTheTargets) {
    variant_t source("new");
    char const* const kept = source.as<char const*>();
    variant_t target("old");
    quen_3_1::transferVariant(target, source);
    EXPECT_EQ(target.m_type, tarvo2::vt_str);
    EXPECT_EQ(target.as<char const*>(), kept);
    EXPECT_STREQ(target.as<char const*>(), "new");
    EXPECT_EQ(source.m_type, tarvo2::vt_empty);
    EXPECT_EQ(source.m_data, 0u);
    quen_3_1::transferVariant(target, target);
    EXPECT_STREQ(target.as<char const*>(), "new");
}
