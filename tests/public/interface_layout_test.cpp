// The binary contract of the public header: hosts built against any release
// call the interfaces through fixed vtable slots and read fixed field offsets,
// so none of these may move.
#include <gtest/gtest.h>
#include <quen_3_1/quen.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "support/public_fixture.h"

using quen_3_1::EventHandler;
using quen_3_1::IOption;
using quen_3_1::IParser;
using quen_3_1::IParseResult;
using quen_3_1::Value;
using tarvo2::variant_t;

namespace {

// A pointer to member function as the Itanium C++ ABI lays it out: for a
// virtual function, `ptr` is 1 plus the byte offset of its vtable slot.
struct MemberFunctionPointer {
    std::uintptr_t ptr;
    std::ptrdiff_t adj;
};

template <class F>
MemberFunctionPointer representationOf(F function) {
    static_assert(sizeof(F) == sizeof(MemberFunctionPointer), "Itanium layout expected");
    MemberFunctionPointer representation{};
    std::memcpy(&representation, &function, sizeof representation);
    return representation;
}

// The vtable slot of a virtual member function; -1 when it is not virtual.
template <class F>
long slotOf(F function) {
    MemberFunctionPointer const representation = representationOf(function);
    if ((representation.ptr & 1u) == 0 || representation.adj != 0) {
        return -1;
    }
    return static_cast<long>((representation.ptr - 1) / sizeof(void*));
}

#if defined(__x86_64__) && (defined(__GNUC__) || defined(__clang__))
constexpr bool kItaniumX8664 = true;
#else
constexpr bool kItaniumX8664 = false;
#endif

class VirtualSlots : public ::testing::Test {
protected:
    void SetUp() override {
        if (!kItaniumX8664) {
            GTEST_SKIP() << "slot numbers are read from the x86-64 Itanium member pointer layout";
        }
    }
};

TEST(VariantLayout, TwoMachineWordsPayloadThenKind) {
    EXPECT_TRUE(std::is_standard_layout<variant_t>::value);
    EXPECT_EQ(sizeof(variant_t), 16u);
    EXPECT_EQ(alignof(variant_t), 8u);
    EXPECT_EQ(offsetof(variant_t, m_data), 0u);
    EXPECT_EQ(sizeof(variant_t::m_data), 8u);
    EXPECT_EQ(offsetof(variant_t, m_type), 8u);
    EXPECT_EQ(sizeof(variant_t::m_type), 4u);
}

TEST(VariantLayout, MemoryHooksReleaseThenAllocate) {
    EXPECT_EQ(offsetof(variant_t::hooks_t, release), 0u);
    EXPECT_EQ(offsetof(variant_t::hooks_t, allocate), sizeof(void*));
    EXPECT_EQ(sizeof(variant_t::hooks_t), 2 * sizeof(void*));
}

TEST(VariantLayout, PayloadAndKindOfConstructedValues) {
    variant_t const minusOne(-1);
    EXPECT_EQ(minusOne.m_type, tarvo2::vt_int);
    EXPECT_EQ(minusOne.m_data, 0xffffffffffffffffull);
    variant_t const unsignedMax(0xffffffffu);
    EXPECT_EQ(unsignedMax.m_type, tarvo2::vt_uint);
    EXPECT_EQ(unsignedMax.m_data, 0xffffffffull);
    variant_t const empty;
    EXPECT_EQ(empty.m_type, tarvo2::vt_empty);
    EXPECT_EQ(empty.m_data, 0u);
}

TEST(ValueLayout, TextStatusIndexThenVariant) {
    EXPECT_TRUE(std::is_standard_layout<Value>::value);
    EXPECT_EQ(sizeof(Value), 32u);
    EXPECT_EQ(offsetof(Value, m_text), 0u);
    EXPECT_EQ(sizeof(Value::m_text), 8u);
    EXPECT_EQ(offsetof(Value, m_status), 8u);
    EXPECT_EQ(sizeof(Value::m_status), 4u);
    EXPECT_EQ(offsetof(Value, m_index), 12u);
    EXPECT_EQ(sizeof(Value::m_index), 4u);
    EXPECT_EQ(offsetof(Value, m_value), 16u);
    EXPECT_EQ(sizeof(Value::m_value), 16u);
}

TEST(KindCodes, FixedNumbers) {
    EXPECT_TRUE((std::is_same<std::underlying_type<tarvo2::kel_variant_type_t>::type, std::int32_t>::value));
    EXPECT_TRUE((std::is_same<quen_3_1::kel_variant_type_t, tarvo2::kel_variant_type_t>::value));
    EXPECT_EQ(tarvo2::vt_bool, 0);
    EXPECT_EQ(tarvo2::vt_int, 6);
    EXPECT_EQ(tarvo2::vt_uint, 7);
    EXPECT_EQ(tarvo2::vt_int64, 8);
    EXPECT_EQ(tarvo2::vt_uint64, 9);
    EXPECT_EQ(tarvo2::vt_double, 11);
    EXPECT_EQ(tarvo2::vt_str, 12);
    EXPECT_EQ(tarvo2::vt_wstr, 13);
    EXPECT_EQ(tarvo2::vt_str_ref, 14);
    EXPECT_EQ(tarvo2::vt_wstr_ref, 15);
    EXPECT_EQ(tarvo2::vt_blob, 16);
    EXPECT_EQ(tarvo2::vt_empty, 17);
}

TEST(FlagBits, FixedValues) {
    EXPECT_EQ(quen_3_1::FlagUnknownIsError, 0x02);
    EXPECT_EQ(quen_3_1::FlagPositionalAfterTerminator, 0x04);
    EXPECT_EQ(quen_3_1::FlagNoHyphenPositional, 0x08);
    EXPECT_EQ(quen_3_1::FlagPositionalRun, 0x10);
    // Plain ints, so that combinations need no cast.
    int const combined = quen_3_1::FlagUnknownIsError | quen_3_1::FlagPositionalRun;
    EXPECT_EQ(combined, 0x12);
}

TEST_F(VirtualSlots, EventHandler) {
    EXPECT_EQ(slotOf(&EventHandler::onOptionParse), 0);
    EXPECT_EQ(slotOf(&EventHandler::onValueParse), 1);
    EXPECT_EQ(slotOf(&EventHandler::onUknownArgument), 2);
}

TEST_F(VirtualSlots, IParserFollowsTheEventHandlerSlots) {
    EXPECT_EQ(slotOf(&IParser::onOptionParse), 0);
    EXPECT_EQ(slotOf(&IParser::onValueParse), 1);
    EXPECT_EQ(slotOf(&IParser::onUknownArgument), 2);
    EXPECT_EQ(slotOf(&IParser::destroy), 3);
    EXPECT_EQ(slotOf(&IParser::createResult), 4);
    EXPECT_EQ(slotOf(&IParser::option), 5);
    EXPECT_EQ(slotOf(&IParser::parseArgsVector), 6);
    EXPECT_EQ(slotOf(&IParser::parseStream), 7);
    EXPECT_EQ(slotOf(&IParser::getErrorDesc), 8);
    EXPECT_EQ(slotOf(&IParser::getDescription), 9);
    EXPECT_EQ(slotOf(&IParser::addHandler), 10);
    EXPECT_EQ(slotOf(&IParser::removeHandler), 11);
}

TEST_F(VirtualSlots, IOption) {
    EXPECT_EQ(slotOf(&IOption::synonym), 0);
    EXPECT_EQ(slotOf(&IOption::allowValue), 1);
    EXPECT_EQ(slotOf(&IOption::defaultValue), 2);
    EXPECT_EQ(slotOf(&IOption::tokenize), 3);
    EXPECT_EQ(slotOf(&IOption::positional), 4);
}

TEST_F(VirtualSlots, IParseResult) {
    EXPECT_EQ(slotOf(&IParseResult::destroy), 0);
    EXPECT_EQ(slotOf(&IParseResult::present), 1);
    EXPECT_EQ(slotOf(&IParseResult::get), 2);
    EXPECT_EQ(slotOf(&IParseResult::next), 3);
    EXPECT_EQ(slotOf(&IParseResult::nextPosition), 4);
    EXPECT_EQ(slotOf(&IParseResult::getFirstArgument), 5);
    EXPECT_EQ(slotOf(&IParseResult::getNextArgument), 6);
}

TEST(Destructors, EventHandlerHasNoVirtualDestructor) {
    EXPECT_FALSE(std::has_virtual_destructor<EventHandler>::value);
    // Protected: a handler is never deleted through the interface.
    EXPECT_FALSE(std::is_destructible<EventHandler>::value);
}

TEST(Destructors, InterfacesHaveVirtualDestructors) {
    EXPECT_TRUE(std::has_virtual_destructor<IParser>::value);
    EXPECT_TRUE(std::has_virtual_destructor<IOption>::value);
    EXPECT_TRUE(std::has_virtual_destructor<IParseResult>::value);
}

TEST(Destructors, LibraryObjectsAreReleasedThroughDestroy) {
    EXPECT_FALSE(std::is_destructible<IParser>::value);
    EXPECT_FALSE(std::is_destructible<IParseResult>::value);
}

TEST(Interfaces, AbstractExceptTheHandler) {
    EXPECT_FALSE(std::is_abstract<EventHandler>::value);
    EXPECT_TRUE(std::is_abstract<IParser>::value);
    EXPECT_TRUE(std::is_abstract<IOption>::value);
    EXPECT_TRUE(std::is_abstract<IParseResult>::value);
    EXPECT_TRUE((std::is_base_of<EventHandler, IParser>::value));
}

TEST(Interfaces, ParserIsItsOwnEventHandlerAtTheSameAddress) {
    quen_test::ParserHarness harness;
    IParser* const parser = harness.parser();
    EventHandler* const handler = parser;
    EXPECT_EQ(static_cast<void*>(handler), static_cast<void*>(parser));
    // Raised on the parser itself, the events answer true without handlers.
    EXPECT_TRUE(handler->onOptionParse("x"));
    EXPECT_TRUE(handler->onValueParse("x", Value{"v", 0, 1, variant_t(1)}));
    EXPECT_TRUE(handler->onUknownArgument("--x"));
}

TEST(Interfaces, DefaultHandlerAnswersTrue) {
    class Silent final : public EventHandler {};
    Silent silent;
    EventHandler& handler = silent;
    EXPECT_TRUE(handler.onOptionParse("x"));
    EXPECT_TRUE(handler.onValueParse("x", Value{"v", 0, 1, variant_t(1)}));
    EXPECT_TRUE(handler.onUknownArgument("--x"));
    EXPECT_EQ(sizeof(EventHandler), sizeof(void*));
}

}  // namespace
