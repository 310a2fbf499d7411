// The table of chains by exact text: every text added is found again after
// the table has grown many times, and a text never added is not found.
#include "options/chain_table.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

using quen_3_1::ChainTable;

namespace {

struct Texts {
    std::vector<std::string> all;
    auto textOf() const {
        return [this](std::size_t id) { return std::string_view(all[id]); };
    }
};

}  // namespace

TEST(ChainTable, EmptyTableFindsNothing) {
    ChainTable const table;
    Texts const texts;
    EXPECT_EQ(table.find("log-file", texts.textOf()), nullptr);
}

TEST(ChainTable, EveryTextIsFoundAfterTheTableGrew) {
    ChainTable table;
    Texts texts;
    for (std::size_t i = 0; i < 10000; ++i) {
        texts.all.push_back("name-" + std::to_string(i));
        ChainTable::Chain& chain = table.findOrAdd(texts.all.back(), texts.textOf());
        ASSERT_EQ(chain.head, ChainTable::npos) << i;
        chain.head = i;
        chain.tail = i;
    }
    for (std::size_t i = 0; i < texts.all.size(); ++i) {
        ChainTable::Chain const* const chain = table.find(texts.all[i], texts.textOf());
        ASSERT_NE(chain, nullptr) << i;
        EXPECT_EQ(chain->head, i);
    }
    EXPECT_EQ(table.find("name-10000", texts.textOf()), nullptr);
    EXPECT_EQ(table.find("name-", texts.textOf()), nullptr);
}

TEST(ChainTable, AddingAKnownTextGivesItsChain) {
    ChainTable table;
    Texts texts;
    texts.all = {"verbose", "version"};
    for (std::size_t i = 0; i < texts.all.size(); ++i) {
        ChainTable::Chain& chain = table.findOrAdd(texts.all[i], texts.textOf());
        chain.head = i;
        chain.tail = i;
    }
    std::string const again = std::string("verb") + "ose";
    ChainTable::Chain& chain = table.findOrAdd(again, texts.textOf());
    EXPECT_EQ(chain.head, 0U);
    EXPECT_EQ(chain.tail, 0U);
}
