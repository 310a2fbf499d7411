#include "recognizers/decomposed_name.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using quen_3_1::DecomposedName;

namespace {

using Parts = std::vector<std::string>;

}  // namespace

TEST(DecomposedName, HyphenSeparatesParts) {
    DecomposedName const name("log-file");
    EXPECT_EQ(name.parts, (Parts{"log", "file"}));
}

TEST(DecomposedName, NameWithoutHyphenIsOnePart) {
    DecomposedName const name("verbose");
    EXPECT_EQ(name.parts, (Parts{"verbose"}));
}

TEST(DecomposedName, DoubleHyphenLeavesEmptyMiddlePart) {
    DecomposedName const name("a--b");
    EXPECT_EQ(name.parts, (Parts{"a", "", "b"}));
}

TEST(DecomposedName, LeadingHyphenGivesEmptyFirstPart) {
    DecomposedName const name("-x");
    EXPECT_EQ(name.parts, (Parts{"", "x"}));
}

TEST(DecomposedName, TrailingHyphenGivesEmptyLastPart) {
    DecomposedName const name("x-");
    EXPECT_EQ(name.parts, (Parts{"x", ""}));
}

TEST(DecomposedName, EmptyTextGivesOneEmptyPart) {
    DecomposedName const name("");
    EXPECT_EQ(name.parts, (Parts{""}));
}

TEST(DecomposedName, LoneHyphenGivesTwoEmptyParts) {
    DecomposedName const name("-");
    EXPECT_EQ(name.parts, (Parts{"", ""}));
}

TEST(DecomposedName, PartCountIsHyphenCountPlusOne) {
    for (std::string const text : {"", "a", "-", "--", "a-b-c", "---", "no-log-file", "-a-"}) {
        DecomposedName const name(text);
        std::size_t hyphens = 0;
        for (char const c : text) {
            hyphens += c == '-' ? 1U : 0U;
        }
        EXPECT_EQ(name.parts.size(), hyphens + 1) << text;
    }
}

TEST(DecomposedName, GetNameGivesBackTheText) {
    for (std::string const text : {"", "a", "-", "--", "log-file", "a--b", "-x", "x-", "no-verbose", "---x"}) {
        EXPECT_EQ(DecomposedName(text).getName(), text);
    }
}

TEST(DecomposedName, GetNameJoinsPartsWithHyphens) {
    DecomposedName name("a");
    name.parts = {"no", "", "log", "file"};
    EXPECT_EQ(name.getName(), "no--log-file");
}

TEST(DecomposedName, CopyHasTheSameParts) {
    DecomposedName const original("log-file");
    DecomposedName const copy(original);
    EXPECT_EQ(copy.parts, (Parts{"log", "file"}));
    EXPECT_EQ(copy.getName(), "log-file");
}

TEST(DecomposedName, CopyIsIndependentOfOriginal) {
    DecomposedName original("log-file");
    DecomposedName const copy(original);
    original.parts[0] = "err";
    EXPECT_EQ(copy.getName(), "log-file");
    EXPECT_EQ(original.getName(), "err-file");
}

TEST(DecomposedName, AssignmentReplacesParts) {
    DecomposedName target("a-b-c");
    DecomposedName const source("verbose");
    target = source;
    EXPECT_EQ(target.parts, (Parts{"verbose"}));
    EXPECT_EQ(target.getName(), "verbose");
}

TEST(DecomposedName, AssignmentFromPartsOfAnother) {
    DecomposedName target("x");
    DecomposedName const source("no-log-file");
    target.parts = source.parts;
    EXPECT_EQ(target.getName(), "no-log-file");
    EXPECT_EQ(target.parts.size(), 3U);
}
