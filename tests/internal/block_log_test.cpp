// The blocks a result's logs grow in: every index finds its own entry across
// the block boundaries, and entries never move while the log grows.
#include "results/block_log.h"

#include <gtest/gtest.h>

#include <cstdint>

using quen_3_1::BlockLog;

TEST(BlockLog, EveryIndexFindsItsEntryAcrossBlocks) {
    BlockLog<std::uint32_t> log;
    for (std::uint32_t i = 0; i < 5000; ++i) {
        ASSERT_EQ(log.push(i * 7), i);
    }
    EXPECT_EQ(log.size(), 5000u);
    // The first blocks hold 32, 64 and 128 entries.
    for (std::uint32_t const at : {0u, 31u, 32u, 95u, 96u, 223u, 224u, 4999u}) {
        EXPECT_EQ(log[at], at * 7) << at;
    }
    for (std::uint32_t i = 0; i < 5000; ++i) {
        ASSERT_EQ(log[i], i * 7);
    }
}

TEST(BlockLog, EntriesStayInPlaceWhileTheLogGrows) {
    BlockLog<std::uint32_t> log;
    log.push(1);
    log.push(2);
    std::uint32_t const* const first = &log[0];
    std::uint32_t const* const second = &log[1];
    for (std::uint32_t i = 0; i < 10000; ++i) {
        log.push(i);
    }
    EXPECT_EQ(&log[0], first);
    EXPECT_EQ(&log[1], second);
    EXPECT_EQ(*first, 1u);
}

TEST(BlockLog, ReservedRoomIsUsedByTheNextPush) {
    BlockLog<std::uint32_t> log;
    log.reserveOne();
    log.reserveOne();
    EXPECT_EQ(log.size(), 0u);
    EXPECT_EQ(log.push(5), 0u);
    EXPECT_EQ(log[0], 5u);
}
