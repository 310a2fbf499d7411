// How the parser hands its events to the host's handlers and combines their
// answers: notifications reach everyone, a value veto stops the poll, an
// unknown-argument verdict asks everyone.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "frontend/basic_parser.h"
#include "frontend/trace.h"
#include "quen_3_1/quen.h"
#include "support/internal_fixture.h"

namespace {

using quen_3_1::EventHandler;
using quen_3_1::IParser;
using quen_3_1::Value;

class RecordingHandler;

struct Call {
    RecordingHandler const* handler;
    std::string event;
    char const* text;  // the pointer the handler was given
};

// Appends every call to a log shared by all handlers of a test, so the order
// across handlers is visible, and answers as configured.
class RecordingHandler final : public EventHandler {
public:
    bool onOptionParse(char const* name) override {
        record("option", name);
        return optionAnswer;
    }
    bool onValueParse(char const* name, Value const& value) override {
        record("value", name);
        seenText = value.m_text;
        seenIndex = value.m_index;
        return valueAnswer;
    }
    bool onUknownArgument(char const* argument) override {
        record("unknown", argument);
        return unknownAnswer;
    }

    std::vector<Call>* log = nullptr;
    bool optionAnswer = true;
    bool valueAnswer = true;
    bool unknownAnswer = true;
    char const* seenText = nullptr;
    int seenIndex = 0;

private:
    void record(char const* event, char const* text) { log->push_back(Call{this, event, text}); }
};

class EventFanoutTest : public quen_test::InternalTest {
protected:
    void SetUp() override {
        InternalTest::SetUp();
        ASSERT_EQ(quen_3_1::createParser(&m_parser, 0), 0);
        // Elements of one array: handlers[0] is below handlers[1] in pointer order.
        for (RecordingHandler& handler : handlers) {
            handler.log = &calls;
        }
    }
    void TearDown() override {
        m_parser->destroy();
        InternalTest::TearDown();
    }

    // Registers the handlers in the reverse of their pointer order.
    void addBothReversed() {
        ASSERT_TRUE(m_parser->addHandler(&handlers[1]));
        ASSERT_TRUE(m_parser->addHandler(&handlers[0]));
    }

    Value sampleValue() { return Value{"42", 0, 1234, tarvo2::variant_t(42)}; }

    IParser* m_parser = nullptr;
    std::vector<Call> calls;
    RecordingHandler handlers[2];
};

TEST_F(EventFanoutTest, AddingTwiceIsRefusedTheSecondTime) {
    EXPECT_TRUE(m_parser->addHandler(&handlers[0]));
    EXPECT_FALSE(m_parser->addHandler(&handlers[0]));
    // Still held once: one call per event.
    EXPECT_TRUE(m_parser->onOptionParse("level"));
    ASSERT_EQ(calls.size(), 1u);
    EXPECT_EQ(calls[0].handler, &handlers[0]);
}

TEST_F(EventFanoutTest, RemovingAHandlerNeverAddedFails) {
    EXPECT_FALSE(m_parser->removeHandler(&handlers[0]));
    EXPECT_TRUE(m_parser->addHandler(&handlers[1]));
    EXPECT_FALSE(m_parser->removeHandler(&handlers[0]));
}

TEST_F(EventFanoutTest, RemovedHandlerIsNoLongerCalled) {
    addBothReversed();
    EXPECT_TRUE(m_parser->removeHandler(&handlers[0]));
    EXPECT_FALSE(m_parser->removeHandler(&handlers[0]));
    m_parser->onOptionParse("level");
    ASSERT_EQ(calls.size(), 1u);
    EXPECT_EQ(calls[0].handler, &handlers[1]);
    // It can come back later.
    EXPECT_TRUE(m_parser->addHandler(&handlers[0]));
    calls.clear();
    m_parser->onOptionParse("level");
    EXPECT_EQ(calls.size(), 2u);
}

TEST_F(EventFanoutTest, NullHandlerIsRefused) {
    EXPECT_FALSE(m_parser->addHandler(nullptr));
    EXPECT_FALSE(m_parser->removeHandler(nullptr));
    // Nothing null was put in the set, so the events run safely.
    EXPECT_TRUE(m_parser->onOptionParse("level"));
    EXPECT_TRUE(m_parser->onValueParse("level", sampleValue()));
    EXPECT_TRUE(m_parser->onUknownArgument("--x"));
    EXPECT_TRUE(m_parser->addHandler(&handlers[0]));
    EXPECT_TRUE(m_parser->onValueParse("level", sampleValue()));
    EXPECT_EQ(calls.size(), 1u);
}

TEST_F(EventFanoutTest, OptionEventReachesAllInPointerOrder) {
    addBothReversed();
    handlers[0].optionAnswer = false;
    handlers[1].optionAnswer = false;
    // Answers are ignored: the event is a notification.
    EXPECT_TRUE(m_parser->onOptionParse("level"));
    ASSERT_EQ(calls.size(), 2u);
    EXPECT_EQ(calls[0].handler, &handlers[0]);
    EXPECT_EQ(calls[1].handler, &handlers[1]);
    EXPECT_EQ(calls[0].event, "option");
    EXPECT_EQ(calls[1].event, "option");
    EXPECT_EQ(std::string(calls[0].text), "level");
}

TEST_F(EventFanoutTest, ValueVetoStopsThePoll) {
    addBothReversed();
    handlers[0].valueAnswer = false;
    EXPECT_FALSE(m_parser->onValueParse("level", sampleValue()));
    ASSERT_EQ(calls.size(), 1u);
    EXPECT_EQ(calls[0].handler, &handlers[0]);
    EXPECT_EQ(calls[0].event, "value");
}

TEST_F(EventFanoutTest, ValueVetoByTheLastHandlerAfterAllWereAsked) {
    addBothReversed();
    handlers[1].valueAnswer = false;
    EXPECT_FALSE(m_parser->onValueParse("level", sampleValue()));
    ASSERT_EQ(calls.size(), 2u);
    EXPECT_EQ(calls[0].handler, &handlers[0]);
    EXPECT_EQ(calls[1].handler, &handlers[1]);
}

TEST_F(EventFanoutTest, ValueAcceptedByAllIsAccepted) {
    addBothReversed();
    Value const value = sampleValue();
    EXPECT_TRUE(m_parser->onValueParse("level", value));
    ASSERT_EQ(calls.size(), 2u);
    EXPECT_EQ(calls[0].handler, &handlers[0]);
    EXPECT_EQ(calls[1].handler, &handlers[1]);
    // The value itself is passed through unchanged.
    for (RecordingHandler const& handler : handlers) {
        EXPECT_EQ(handler.seenText, value.m_text);
        EXPECT_EQ(handler.seenIndex, 1234);
    }
}

TEST_F(EventFanoutTest, UnknownArgumentPollsAllAndCombinesWithAnd) {
    addBothReversed();
    handlers[0].unknownAnswer = false;
    EXPECT_FALSE(m_parser->onUknownArgument("--mystery"));
    ASSERT_EQ(calls.size(), 2u);
    EXPECT_EQ(calls[0].handler, &handlers[0]);
    EXPECT_EQ(calls[1].handler, &handlers[1]);
    EXPECT_EQ(calls[0].event, "unknown");
    EXPECT_EQ(std::string(calls[1].text), "--mystery");

    calls.clear();
    handlers[0].unknownAnswer = true;
    handlers[1].unknownAnswer = false;
    EXPECT_FALSE(m_parser->onUknownArgument("--mystery"));
    EXPECT_EQ(calls.size(), 2u);

    calls.clear();
    handlers[1].unknownAnswer = true;
    EXPECT_TRUE(m_parser->onUknownArgument("--mystery"));
    EXPECT_EQ(calls.size(), 2u);
}

TEST_F(EventFanoutTest, WithoutHandlersValuesAreAcceptedAndArgumentsUnknown) {
    EXPECT_TRUE(m_parser->onValueParse("level", sampleValue()));
    EXPECT_TRUE(m_parser->onUknownArgument("--mystery"));
    EXPECT_TRUE(m_parser->onOptionParse("level"));
    EXPECT_TRUE(calls.empty());
}

TEST_F(EventFanoutTest, HandlersGetTheParsersKeptCopyOfTheName) {
    addBothReversed();
    char first[] = "level";
    char second[] = "level";
    m_parser->onOptionParse(first);
    m_parser->onValueParse(second, sampleValue());
    ASSERT_EQ(calls.size(), 4u);
    char const* const kept = calls[0].text;
    EXPECT_NE(kept, first);
    EXPECT_NE(kept, second);
    EXPECT_EQ(std::string(kept), "level");
    // The same name is one kept copy, for every handler and every event.
    for (Call const& call : calls) {
        EXPECT_EQ(call.text, kept);
    }
    // The copy does not depend on the caller's buffer.
    std::strcpy(first, "xxxxx");
    std::strcpy(second, "yyyyy");
    EXPECT_EQ(std::string(kept), "level");
}

// A caller's buffer reused for another name gets that name's copy, and a name
// that comes back gets the copy it had before.
TEST_F(EventFanoutTest, NamesChangingInOneBufferEachGetTheirOwnKeptCopy) {
    ASSERT_TRUE(m_parser->addHandler(&handlers[0]));
    char buffer[] = "level";
    m_parser->onOptionParse(buffer);
    std::strcpy(buffer, "mode!");
    m_parser->onValueParse(buffer, sampleValue());
    std::strcpy(buffer, "level");
    m_parser->onValueParse(buffer, sampleValue());
    m_parser->onOptionParse(nullptr);
    ASSERT_EQ(calls.size(), 4u);
    EXPECT_EQ(std::string(calls[0].text), "level");
    EXPECT_EQ(std::string(calls[1].text), "mode!");
    EXPECT_EQ(calls[2].text, calls[0].text);
    EXPECT_EQ(std::string(calls[3].text), "");
}

TEST_F(EventFanoutTest, HandlersGetTheParsersKeptCopyOfTheArgument) {
    addBothReversed();
    std::string argument = "--mystery";
    m_parser->onUknownArgument(argument.c_str());
    m_parser->onUknownArgument(argument.c_str());
    ASSERT_EQ(calls.size(), 4u);
    EXPECT_NE(calls[0].text, argument.c_str());
    EXPECT_EQ(std::string(calls[0].text), "--mystery");
    EXPECT_EQ(calls[2].text, calls[0].text);
    m_parser->onUknownArgument("--other");
    ASSERT_EQ(calls.size(), 6u);
    EXPECT_NE(calls[4].text, calls[0].text);
    EXPECT_EQ(std::string(calls[4].text), "--other");
}

}  // namespace
