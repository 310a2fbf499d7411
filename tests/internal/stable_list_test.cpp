// The append-only list of a registry's options and of the name index's
// candidates: elements never move, are found by their index and are
// destroyed once each with the list.
#include "options/stable_list.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <stdexcept>
#include <string>
#include <vector>

using quen_3_1::StableList;

namespace {

// Counts the live elements, so that a test sees each destroyed once.
struct Counted {
    explicit Counted(std::size_t v) : value(v) { ++live; }
    Counted(Counted const&) = delete;
    Counted& operator=(Counted const&) = delete;
    ~Counted() { --live; }
    std::size_t value;
    static int live;
};
int Counted::live = 0;

// Refuses to be built from a negative number.
struct Checked {
    explicit Checked(int v) : value(v) {
        if (v < 0) {
            throw std::invalid_argument("negative");
        }
    }
    int value;
};

// Larger than a block: one element per block.
struct Large {
    char bytes[2000];
    std::size_t value;
};

}  // namespace

TEST(StableList, EmptyListHasNothing) {
    StableList<std::string> const list;
    EXPECT_TRUE(list.empty());
    EXPECT_EQ(list.size(), 0u);
}

TEST(StableList, ElementsStayWhereTheyWereAcrossManyBlocks) {
    StableList<std::string> list;
    std::vector<std::string const*> addresses;
    for (std::size_t i = 0; i < 1000; ++i) {
        std::string const& added = list.emplace_back(std::to_string(i));
        EXPECT_EQ(&added, &list.back());
        addresses.push_back(&added);
    }
    ASSERT_EQ(list.size(), 1000u);
    for (std::size_t i = 0; i < 1000; ++i) {
        EXPECT_EQ(&list[i], addresses[i]) << i;
        EXPECT_EQ(list[i], std::to_string(i)) << i;
    }
}

TEST(StableList, EveryElementIsDestroyedOnceWithTheList) {
    {
        StableList<Counted> list;
        for (std::size_t i = 0; i < 300; ++i) {
            list.emplace_back(i);
        }
        EXPECT_EQ(Counted::live, 300);
        EXPECT_EQ(list[299].value, 299u);
    }
    EXPECT_EQ(Counted::live, 0);
}

TEST(StableList, ElementLargerThanABlockGetsOneOfItsOwn) {
    StableList<Large> list;
    for (std::size_t i = 0; i < 20; ++i) {
        list.emplace_back().value = i;
    }
    for (std::size_t i = 0; i < 20; ++i) {
        EXPECT_EQ(list[i].value, i);
    }
}

TEST(StableList, FailedConstructionLeavesTheListAsItWas) {
    StableList<Checked> list;
    list.emplace_back(1);
    EXPECT_THROW(list.emplace_back(-1), std::invalid_argument);
    ASSERT_EQ(list.size(), 1u);
    EXPECT_EQ(list.emplace_back(2).value, 2);
    EXPECT_EQ(list[1].value, 2);
}
