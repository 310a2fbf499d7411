// An option's names: views of its registry's texts without an allocation for
// the three a declaration may list, owned copies in every copy of the list.
#include "options/name_list.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

using quen_3_1::NameList;

namespace {

std::vector<std::string> textsOf(NameList const& list) { return std::vector<std::string>(list.begin(), list.end()); }

}  // namespace

TEST(NameList, EmptyByDefault) {
    NameList const list;
    EXPECT_TRUE(list.empty());
    EXPECT_EQ(list.size(), 0u);
    EXPECT_EQ(list.begin(), list.end());
    EXPECT_THROW(list.at(0), std::out_of_range);
}

TEST(NameList, ViewedNamesAreNotCopied) {
    std::string const kept = "log-file";
    NameList list;
    list.view(kept);
    EXPECT_EQ(list[0].data(), kept.data());
    EXPECT_EQ(list.at(0), "log-file");
}

TEST(NameList, NamesPastTheThirdKeepTheirOrder) {
    std::vector<std::string> const kept = {"a", "bb", "ccc", "dddd", "e"};
    NameList list;
    for (std::string const& name : kept) {
        list.view(name);
    }
    EXPECT_EQ(list.size(), 5u);
    EXPECT_EQ(textsOf(list), kept);
    EXPECT_EQ(list[3].data(), kept[3].data());
    EXPECT_THROW(list.at(5), std::out_of_range);
}

TEST(NameList, OwnedNameIsACopyEndedByNul) {
    std::string source = "verbose";
    NameList list;
    list.own(source);
    source.assign("changed");
    EXPECT_EQ(list.at(0), "verbose");
    EXPECT_EQ(list[0].data()[list[0].size()], '\0');
}

TEST(NameList, CopyOwnsWhatTheOriginalViewed) {
    std::string first = "mode";
    std::string second = "m";
    NameList list;
    list.view(first);
    list.view(second);
    NameList const copy(list);
    NameList assigned;
    assigned.view(first);
    assigned = list;
    first.assign("overwritten");
    second.assign("x");
    EXPECT_EQ(textsOf(copy), (std::vector<std::string>{"mode", "m"}));
    EXPECT_EQ(textsOf(assigned), (std::vector<std::string>{"mode", "m"}));
    EXPECT_EQ(copy[1].data()[1], '\0');
}

TEST(NameList, MoveKeepsViewsAndEmptiesTheSource) {
    std::string const kept = "level";
    NameList list;
    list.view(kept);
    list.own("lvl");
    for (int i = 0; i < 3; ++i) {
        list.own("extra-" + std::to_string(i));
    }
    std::string_view const owned = list[4];
    NameList moved(std::move(list));
    EXPECT_EQ(moved[0].data(), kept.data());
    EXPECT_EQ(moved[4].data(), owned.data());
    EXPECT_EQ(textsOf(moved), (std::vector<std::string>{"level", "lvl", "extra-0", "extra-1", "extra-2"}));
    EXPECT_TRUE(list.empty());  // NOLINT(bugprone-use-after-move): a moved-from list is empty
    NameList target;
    target = std::move(moved);
    EXPECT_EQ(target.size(), 5u);
    EXPECT_EQ(target[4], "extra-2");
}

TEST(NameList, AssigningToItselfKeepsTheNames) {
    NameList list;
    list.own("name");
    NameList& same = list;
    list = same;
    list = std::move(same);
    EXPECT_EQ(textsOf(list), (std::vector<std::string>{"name"}));
}
