// The table a result finds its names in: one entry per distinct name, found
// again by the same text however it is given, and entries that stay where
// they are while the table grows.
#include "results/name_table.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

using quen_3_1::NameTable;

TEST(NameTable, UnknownNamesAreNotFound) {
    NameTable<int> table;
    EXPECT_EQ(table.find("level"), nullptr);
    EXPECT_EQ(table.count("level"), 0u);
    EXPECT_TRUE(table.empty());
    EXPECT_THROW(table.at("level"), std::out_of_range);
}

TEST(NameTable, AddingANameTwiceKeepsTheFirstEntry) {
    NameTable<int> table;
    auto const added = table.findOrAdd("level", 7);
    ASSERT_NE(added.first, nullptr);
    EXPECT_TRUE(added.second);
    EXPECT_EQ(*added.first, 7);
    auto const again = table.findOrAdd(std::string("level"), 9);
    EXPECT_FALSE(again.second);
    EXPECT_EQ(again.first, added.first);
    EXPECT_EQ(*again.first, 7);
    EXPECT_EQ(table.size(), 1u);
    EXPECT_EQ(table.at("level"), 7);
    EXPECT_EQ(table.count("level"), 1u);
}

TEST(NameTable, NamesDifferingInLengthOrLastByteAreDistinct) {
    NameTable<int> table;
    table.findOrAdd("log", 1);
    table.findOrAdd("log-", 2);
    table.findOrAdd("loh", 3);
    table.findOrAdd(std::string_view("log\0", 4), 4);
    table.findOrAdd("", 5);
    EXPECT_EQ(table.size(), 5u);
    EXPECT_EQ(table.at("log"), 1);
    EXPECT_EQ(table.at("log-"), 2);
    EXPECT_EQ(table.at("loh"), 3);
    EXPECT_EQ(table.at(std::string_view("log\0", 4)), 4);
    EXPECT_EQ(table.at(""), 5);
    EXPECT_EQ(table.find("lo"), nullptr);
}

TEST(NameTable, EntriesStayInPlaceWhileTheTableGrows) {
    NameTable<int> table;
    std::vector<int*> first;
    for (int i = 0; i < 1000; ++i) {
        first.push_back(table.findOrAdd("name-" + std::to_string(i), i).first);
    }
    EXPECT_EQ(table.size(), 1000u);
    for (int i = 0; i < 1000; ++i) {
        std::string const name = "name-" + std::to_string(i);
        ASSERT_EQ(table.find(name), first[static_cast<std::size_t>(i)]) << name;
        EXPECT_EQ(*table.find(name), i);
    }
    EXPECT_EQ(table.find("name-1000"), nullptr);
}

TEST(NameTable, EntriesCanBeChangedThroughWhatFindGives) {
    NameTable<std::string> table;
    table.findOrAdd("mode", "fast");
    *table.find("mode") = "slow";
    EXPECT_EQ(table.at("mode"), "slow");
}
