// Inputs that once crashed or misbehaved; each is kept as a regression test.
#include <gtest/gtest.h>

#include "quen_3_1/quen.h"
#include "support/public_fixture.h"

using quen_test::ParserHarness;

TEST(Robustness, NamelessPositionalOptionFailsWithCodeFour) {
    ParserHarness harness;
    harness.parser()->option("", "no names at all", tarvo2::vt_str, "g")->positional();
    EXPECT_EQ(harness.parseText("value\n"), 4);
    EXPECT_EQ(harness.error(), "Unidentified problem detected.");
}

TEST(Robustness, NamelessOptionWithDefaultIsSkippedByDefaults) {
    ParserHarness harness;
    harness.parser()->option("", "no names at all", tarvo2::vt_str, "g")->defaultValue(tarvo2::variant_t("d"));
    EXPECT_EQ(harness.parseArgs({}), 0);
    EXPECT_EQ(harness.result()->get("").m_status, 1);
    EXPECT_FALSE(harness.result()->present(""));
}
