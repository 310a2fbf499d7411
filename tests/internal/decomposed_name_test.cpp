#include "recognizers/decomposed_name.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using quen_3_1::DecomposedName;

namespace {

using Parts = std::vector<std::string>;

}  // namespace

TEST(DecomposedName, EveryHyphenSeparatesTwoParts) {
    struct Case {
        char const* behaviour;
        char const* text;
        Parts parts;
    };
    Case const cases[] = {
        {"hyphen separates parts", "log-file", {"log", "file"}},
        {"name without hyphen is one part", "verbose", {"verbose"}},
        {"double hyphen leaves an empty middle part", "a--b", {"a", "", "b"}},
        {"leading hyphen gives an empty first part", "-x", {"", "x"}},
        {"trailing hyphen gives an empty last part", "x-", {"x", ""}},
        {"empty text gives one empty part", "", {""}},
        {"lone hyphen gives two empty parts", "-", {"", ""}},
    };
    for (Case const& c : cases) {
        SCOPED_TRACE(c.behaviour);
        DecomposedName const name(c.text);
        EXPECT_EQ(name.parts, c.parts);
    }
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
