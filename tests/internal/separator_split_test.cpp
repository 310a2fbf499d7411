#include <gtest/gtest.h>

#include "values/separator_split.h"

TEST(SeparatorSplit, TrailingSeparatorGivesNulPiece) {
    std::vector<std::string> out;
    quen_3_1::splitAtSeparator("a,", ',', out);
    ASSERT_EQ(out.size(), 2u);
    EXPECT_EQ(out[1], std::string(1, '\0'));
}
