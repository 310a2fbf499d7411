// Owned texts, wide texts and blocks go through the process-wide hooks, each
// allocation released exactly once; scalars and borrowed texts never touch them.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <map>
#include <new>
#include <vector>

#include "quen_3_1/quen.h"

using tarvo2::variant_t;

namespace {

// What the counting hooks saw since the fixture installed them.
struct HookLedger {
    std::map<void*, std::size_t> live;  // pointer -> requested bytes
    std::vector<std::size_t> requested;
    std::vector<void*> released;
    int unknownReleases = 0;
};

HookLedger* g_ledger = nullptr;

void* countingAllocate(std::size_t bytes) {
    void* p = std::malloc(bytes);
    g_ledger->live[p] = bytes;
    g_ledger->requested.push_back(bytes);
    return p;
}

void countingRelease(void* p) {
    g_ledger->released.push_back(p);
    auto const found = g_ledger->live.find(p);
    if (found == g_ledger->live.end()) {
        ++g_ledger->unknownReleases;  // double release or foreign memory: never freed here
        return;
    }
    g_ledger->live.erase(found);
    std::free(p);
}

void* payloadPointer(variant_t const& v) { return reinterpret_cast<void*>(static_cast<std::uintptr_t>(v.m_data)); }

class MemoryHooks : public ::testing::Test {
protected:
    void SetUp() override {
        m_saved = variant_t::m_mem;
        g_ledger = &m_ledger;
        variant_t::m_mem.release = &countingRelease;
        variant_t::m_mem.allocate = &countingAllocate;
    }

    void TearDown() override {
        variant_t::m_mem = m_saved;
        g_ledger = nullptr;
    }

    std::size_t allocations() const { return m_ledger.requested.size(); }
    std::size_t releases() const { return m_ledger.released.size(); }

    // Every allocation was released once, and nothing else was released.
    void expectBalanced() const {
        EXPECT_TRUE(m_ledger.live.empty());
        EXPECT_EQ(m_ledger.unknownReleases, 0);
        EXPECT_EQ(allocations(), releases());
    }

    // The variant `make` gives must take exactly one block of `bytes`, keep it
    // while it lives and give that same block back when it goes.
    template <class Make>
    void expectOneBlockOf(std::size_t bytes, Make make) {
        void* block = nullptr;
        {
            variant_t const v = make();
            ASSERT_EQ(allocations(), 1u);
            EXPECT_EQ(m_ledger.requested[0], bytes);
            block = payloadPointer(v);
            EXPECT_EQ(releases(), 0u);
        }
        ASSERT_EQ(releases(), 1u);
        EXPECT_EQ(m_ledger.released[0], block);
        expectBalanced();
    }

    HookLedger m_ledger;
    variant_t::hooks_t m_saved{};
};

}  // namespace

TEST(MemoryHookDefaults, AreTheCHeapPair) {
    EXPECT_EQ(variant_t::m_mem.release, &std::free);
    EXPECT_EQ(variant_t::m_mem.allocate, &std::malloc);
}

TEST_F(MemoryHooks, ScalarsAndBorrowedTextsNeverTouchTheHooks) {
    {
        variant_t const empty;
        variant_t const flag(true);
        variant_t const i(-3);
        variant_t const u(3u);
        variant_t const l(-4L);
        variant_t const ul(4UL);
        variant_t const ll(-5LL);
        variant_t const ull(5ULL);
        variant_t const d(0.5);
        variant_t const ref = variant_t::str_ref("borrowed");
        variant_t const wref = variant_t::wstr_ref(L"borrowed");
        variant_t copy(i);
        copy = d;
        copy = ref;
        copy = wref;
        copy = empty;
        variant_t const& alias = copy;
        copy = alias;
        std::vector<variant_t> many(20, flag);
        many.push_back(ll);
        many.push_back(ull);
        many.push_back(u);
        many.push_back(l);
        many.push_back(ul);
    }
    EXPECT_EQ(allocations(), 0u);
    EXPECT_EQ(releases(), 0u);
}

TEST_F(MemoryHooks, NullTextsAllocateAndReleaseNothing) {
    {
        variant_t const text(static_cast<char const*>(nullptr));
        variant_t const wide(static_cast<wchar_t const*>(nullptr));
        variant_t copy(text);
        copy = wide;
    }
    EXPECT_EQ(allocations(), 0u);
    EXPECT_EQ(releases(), 0u);
}

TEST_F(MemoryHooks, TextAllocatesLengthPlusTerminatorOnce) {
    expectOneBlockOf(6u, [] { return variant_t("hello"); });
}

TEST_F(MemoryHooks, WideTextAllocatesFourBytesPerCharacter) {
    expectOneBlockOf(20u, [] { return variant_t(L"wide"); });
}

TEST_F(MemoryHooks, BlobAllocatesCountPlusBytes) {
    expectOneBlockOf(9u, [] { return variant_t::blob("12345", 5); });
}

TEST_F(MemoryHooks, EmptyBlobStillOwnsItsCount) {
    {
        variant_t const v = variant_t::blob("", 0);
        ASSERT_EQ(allocations(), 1u);
        EXPECT_EQ(m_ledger.requested[0], 4u);
    }
    EXPECT_EQ(releases(), 1u);
    expectBalanced();
}

TEST_F(MemoryHooks, CopiesAllocateTheirOwnMemory) {
    {
        variant_t const text("copy");
        variant_t const wide(L"copy");
        variant_t const block = variant_t::blob("copy", 4);
        EXPECT_EQ(allocations(), 3u);
        variant_t const textCopy(text);
        variant_t const wideCopy(wide);
        variant_t const blockCopy(block);
        ASSERT_EQ(allocations(), 6u);
        EXPECT_EQ(m_ledger.requested[3], 5u);
        EXPECT_EQ(m_ledger.requested[4], 20u);
        EXPECT_EQ(m_ledger.requested[5], 8u);
        EXPECT_EQ(releases(), 0u);
    }
    EXPECT_EQ(releases(), 6u);
    expectBalanced();
}

TEST_F(MemoryHooks, AssignmentReleasesTheOldContentFirst) {
    {
        variant_t target("old text");
        void* const old = payloadPointer(target);
        variant_t const source("new");
        target = source;
        ASSERT_EQ(releases(), 1u);
        EXPECT_EQ(m_ledger.released[0], old);
        ASSERT_EQ(allocations(), 3u);
        EXPECT_EQ(m_ledger.requested[2], 4u);
        EXPECT_NE(payloadPointer(target), payloadPointer(source));
    }
    EXPECT_EQ(releases(), 3u);
    expectBalanced();
}

TEST_F(MemoryHooks, SelfAssignmentOfOwnedKindsCausesNoTraffic) {
    {
        variant_t text("self");
        variant_t wide(L"self");
        variant_t block = variant_t::blob("self", 4);
        variant_t const& textAlias = text;
        variant_t const& wideAlias = wide;
        variant_t const& blockAlias = block;
        text = textAlias;
        wide = wideAlias;
        block = blockAlias;
        EXPECT_EQ(allocations(), 3u);
        EXPECT_EQ(releases(), 0u);
        EXPECT_STREQ(text.as<char const*>(), "self");
    }
    EXPECT_EQ(releases(), 3u);
    expectBalanced();
}

TEST_F(MemoryHooks, ReassignmentAcrossKindsReleasesEachOwnedContentOnce) {
    {
        variant_t v("text");
        v = variant_t(5);  // the text goes back
        EXPECT_EQ(allocations(), 1u);
        EXPECT_EQ(releases(), 1u);
        v = variant_t(L"wide");  // the temporary's copy and v's copy
        EXPECT_EQ(allocations(), 3u);
        EXPECT_EQ(releases(), 2u);
        v = variant_t::blob("ab", 2);
        EXPECT_EQ(allocations(), 5u);
        EXPECT_EQ(releases(), 4u);
        v = variant_t::str_ref("borrowed");  // the block goes back
        EXPECT_EQ(allocations(), 5u);
        EXPECT_EQ(releases(), 5u);
        v = variant_t("again");
        v = variant_t();  // the text goes back, empty owns nothing
        EXPECT_EQ(allocations(), 7u);
        EXPECT_EQ(releases(), 7u);
        EXPECT_EQ(v.m_type, tarvo2::vt_empty);
    }
    EXPECT_EQ(releases(), 7u);
    expectBalanced();
}

TEST_F(MemoryHooks, FreeDataReleasesWithoutChangingTheKind) {
    variant_t text("released");
    void* const block = payloadPointer(text);
    text.free_data();
    ASSERT_EQ(releases(), 1u);
    EXPECT_EQ(m_ledger.released[0], block);
    EXPECT_EQ(text.m_type, tarvo2::vt_str);
    // Hand the variant a null text so that its destructor releases nothing more.
    text.m_data = 0;
    variant_t blob = variant_t::blob("b", 1);
    blob.free_data();
    EXPECT_EQ(releases(), 2u);
    EXPECT_EQ(blob.m_type, tarvo2::vt_blob);
    blob.m_type = tarvo2::vt_empty;
    expectBalanced();
}

TEST_F(MemoryHooks, ContainersOfOwnedValuesStayBalanced) {
    {
        std::vector<variant_t> values;
        for (int i = 0; i < 40; ++i) {
            values.push_back(variant_t(i % 2 == 0 ? "even" : "odd"));
            values.push_back(variant_t::blob("xy", 2));
            values.push_back(variant_t(i));
        }
        std::vector<variant_t> copy = values;
        copy.erase(copy.begin(), copy.begin() + 10);
        values = copy;
        EXPECT_GT(allocations(), 0u);
    }
    expectBalanced();
}

// ---------------------------------------------------------------- exhausted memory

namespace {

void* refusingAllocate(std::size_t /*bytes*/) { return nullptr; }

// The hooks of a process out of memory: every allocation answers null.
class RefusingHooks : public ::testing::Test {
protected:
    void SetUp() override {
        m_saved = variant_t::m_mem;
        variant_t::m_mem.allocate = &refusingAllocate;
    }
    void TearDown() override { variant_t::m_mem = m_saved; }

    variant_t::hooks_t m_saved{};
};

}  // namespace

TEST_F(RefusingHooks, OwnedTextsAndBlocksRaiseBadAlloc) {
    EXPECT_THROW(variant_t("text"), std::bad_alloc);
    EXPECT_THROW(variant_t(L"wide"), std::bad_alloc);
    EXPECT_THROW(variant_t::blob("ab", 2), std::bad_alloc);
}

TEST_F(RefusingHooks, FailedCopyLeavesTheTargetEmpty) {
    variant_t::m_mem = m_saved;
    variant_t const text("text");
    variant_t target("old");
    variant_t::m_mem.allocate = &refusingAllocate;
    EXPECT_THROW(target = text, std::bad_alloc);
    EXPECT_EQ(target.m_type, tarvo2::vt_empty);
    EXPECT_THROW((void)variant_t(text), std::bad_alloc);
    variant_t::m_mem = m_saved;
}

TEST_F(RefusingHooks, ScalarsStillNeedNoMemory) {
    variant_t const number(5);
    variant_t copy(number);
    EXPECT_EQ(copy.as<int>(), 5);
}

// A text value needs an owned copy; a parse that cannot get one fails as any
// standard exception during recognition does, and nothing is stored.
TEST_F(RefusingHooks, ParseOfATextValueFailsWithCodeFour) {
    quen_3_1::IParser* parser = nullptr;
    variant_t::m_mem = m_saved;
    ASSERT_EQ(quen_3_1::createParser(&parser, 0), 0);
    parser->option("name", "help", tarvo2::vt_str, "general");
    quen_3_1::IParseResult* result = nullptr;
    ASSERT_EQ(parser->createResult(&result), 0);
    variant_t::m_mem.allocate = &refusingAllocate;
    EXPECT_EQ(parser->parseStream("--name=value\n", result), 4);
    variant_t::m_mem = m_saved;
    EXPECT_STREQ(parser->getErrorDesc(), "Unidentified problem detected.");
    EXPECT_FALSE(result->present("name"));
    result->destroy();
    parser->destroy();
}
