// The parser object itself: factory, lifetime, result creation, option
// forwarding to the registry and the last-error text.
#include "frontend/basic_parser.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "frontend/trace.h"
#include "options/option_description.h"
#include "quen_3_1/quen.h"
#include "results/parse_result.h"
#include "support/internal_fixture.h"

namespace {

using quen_3_1::BasicParser;
using quen_3_1::IOption;
using quen_3_1::IParser;
using quen_3_1::IParseResult;
using quen_3_1::OptionData;
using quen_3_1::OptionDescription;
using quen_3_1::ParseResult;

// Counts every event it receives, so a test can see that nobody called it.
class CountingHandler final : public quen_3_1::EventHandler {
public:
    bool onOptionParse(char const* /*name*/) override {
        ++calls;
        return true;
    }
    bool onValueParse(char const* /*name*/, quen_3_1::Value const& /*value*/) override {
        ++calls;
        return true;
    }
    bool onUknownArgument(char const* /*argument*/) override {
        ++calls;
        return true;
    }

    int calls = 0;
};

class BasicParserTest : public quen_test::InternalTest {};

// A freshly created parser seen as the implementation class.
BasicParser* newParser(int flags) {
    IParser* parser = nullptr;
    if (quen_3_1::createParser(&parser, flags) != 0) {
        return nullptr;
    }
    return dynamic_cast<BasicParser*>(parser);
}

OptionData occurrence(std::int32_t number) {
    OptionData data;
    data.m_positions.push_back(number);
    return data;
}

TEST_F(BasicParserTest, FactorySucceedsForAnyFlags) {
    int const flagWords[] = {0, 0x1e, static_cast<int>(0xffffffffu), quen_3_1::FlagUnknownIsError, 0x40};
    for (int const flags : flagWords) {
        SCOPED_TRACE(flags);
        IParser* parser = nullptr;
        EXPECT_EQ(quen_3_1::createParser(&parser, flags), 0);
        ASSERT_NE(parser, nullptr);
        EXPECT_NE(dynamic_cast<BasicParser*>(parser), nullptr);
        parser->destroy();
    }
}

TEST_F(BasicParserTest, FactoryGivesDistinctParsers) {
    IParser* first = nullptr;
    IParser* second = nullptr;
    ASSERT_EQ(quen_3_1::createParser(&first, 0), 0);
    ASSERT_EQ(quen_3_1::createParser(&second, 0), 0);
    EXPECT_NE(first, second);
    BasicParser* const firstImpl = dynamic_cast<BasicParser*>(first);
    BasicParser* const secondImpl = dynamic_cast<BasicParser*>(second);
    ASSERT_NE(firstImpl, nullptr);
    ASSERT_NE(secondImpl, nullptr);
    first->option("alpha", "First parser's option", tarvo2::vt_int, "g");
    EXPECT_EQ(firstImpl->storage().size(), 1u);
    EXPECT_EQ(secondImpl->storage().size(), 0u);
    first->destroy();
    second->destroy();
}

TEST_F(BasicParserTest, FreshParserIsEmpty) {
    BasicParser* parser = newParser(0);
    ASSERT_NE(parser, nullptr);
    EXPECT_EQ(parser->storage().size(), 0u);
    EXPECT_TRUE(parser->storage().groups().empty());
    EXPECT_EQ(std::string(parser->getErrorDesc()), "");
    parser->destroy();
}

TEST_F(BasicParserTest, DestroyReleasesEverythingWithoutCallingHandlers) {
    CountingHandler handlers[2];
    BasicParser* parser = newParser(quen_3_1::FlagUnknownIsError);
    ASSERT_NE(parser, nullptr);
    parser->option("log-file,lf", "Where to write the log", tarvo2::vt_str, "general:General options")
        ->defaultValue(tarvo2::variant_t("run.log"))
        ->allowValue(tarvo2::variant_t("run.log"));
    parser->option("verbose,v", "Print more", tarvo2::vt_bool, "general");
    parser->setLastError("a text long enough to live on the heap, not inside the string");
    ASSERT_NE(parser->getErrorDesc(), nullptr);
    EXPECT_TRUE(parser->addHandler(&handlers[0]));
    EXPECT_TRUE(parser->addHandler(&handlers[1]));
    parser->destroy();
    EXPECT_EQ(handlers[0].calls, 0);
    EXPECT_EQ(handlers[1].calls, 0);
}

TEST_F(BasicParserTest, CreateResultGivesAnEmptyResult) {
    BasicParser* parser = newParser(0);
    ASSERT_NE(parser, nullptr);
    IParseResult* result = nullptr;
    EXPECT_EQ(parser->createResult(&result), 0);
    ASSERT_NE(result, nullptr);
    ParseResult* const store = dynamic_cast<ParseResult*>(result);
    ASSERT_NE(store, nullptr);
    EXPECT_TRUE(quen_test::storedOptions(*store).empty());
    EXPECT_TRUE(store->arguments().empty());
    char const* text = nullptr;
    EXPECT_EQ(result->getFirstArgument(&text), 1);
    EXPECT_EQ(text, nullptr);
    result->destroy();
    parser->destroy();
}

TEST_F(BasicParserTest, TwoResultsAreIndependent) {
    BasicParser* parser = newParser(0);
    ASSERT_NE(parser, nullptr);
    IParseResult* first = nullptr;
    IParseResult* second = nullptr;
    ASSERT_EQ(parser->createResult(&first), 0);
    ASSERT_EQ(parser->createResult(&second), 0);
    ASSERT_NE(first, nullptr);
    ASSERT_NE(second, nullptr);
    EXPECT_NE(first, second);

    ParseResult* const firstStore = dynamic_cast<ParseResult*>(first);
    ParseResult* const secondStore = dynamic_cast<ParseResult*>(second);
    ASSERT_NE(firstStore, nullptr);
    ASSERT_NE(secondStore, nullptr);
    OptionDescription const option({"alpha"}, "g", "", "An option", tarvo2::vt_empty, nullptr);
    firstStore->store(option, occurrence(7));
    firstStore->appendArgument("plain", 8);
    EXPECT_EQ(quen_test::storedOptions(*firstStore).size(), 1u);
    EXPECT_EQ(firstStore->arguments().size(), 1u);
    EXPECT_TRUE(quen_test::storedOptions(*secondStore).empty());
    EXPECT_TRUE(secondStore->arguments().empty());

    first->destroy();
    second->destroy();
    parser->destroy();
}

TEST_F(BasicParserTest, ResultOutlivesItsParser) {
    BasicParser* parser = newParser(0);
    ASSERT_NE(parser, nullptr);
    IParseResult* result = nullptr;
    ASSERT_EQ(parser->createResult(&result), 0);
    parser->destroy();

    ParseResult* const store = dynamic_cast<ParseResult*>(result);
    ASSERT_NE(store, nullptr);
    store->appendArgument("left over", 3);
    char const* text = nullptr;
    ASSERT_EQ(result->getFirstArgument(&text), 0);
    EXPECT_EQ(std::string(text), "left over");
    result->destroy();
}

TEST_F(BasicParserTest, OptionIsForwardedToTheRegistry) {
    BasicParser* parser = newParser(0);
    ASSERT_NE(parser, nullptr);
    IOption* const option =
        parser->option("log-file,lf", "Where to write the log", tarvo2::vt_str, "general:General options");
    ASSERT_EQ(parser->storage().size(), 1u);
    OptionDescription const& stored = parser->storage().at(0);
    EXPECT_EQ(option, &stored);
    ASSERT_EQ(stored.names().size(), 2u);
    EXPECT_EQ(stored.names()[0], "log-file");
    EXPECT_EQ(stored.names()[1], "lf");
    EXPECT_EQ(stored.description(), "Where to write the log");
    EXPECT_EQ(stored.type(), tarvo2::vt_str);
    EXPECT_EQ(stored.group(), "general");
    EXPECT_EQ(stored.groupTitle(), "General options");
    EXPECT_EQ(stored.status(), 0);
    ASSERT_EQ(parser->storage().groups().size(), 1u);
    EXPECT_EQ(parser->storage().groups()[0].first, "general");
    EXPECT_EQ(parser->storage().groups()[0].second, "General options");
    parser->destroy();
}

TEST_F(BasicParserTest, RefusedOptionReturnsTheRegistryPlaceholder) {
    BasicParser* parser = newParser(0);
    ASSERT_NE(parser, nullptr);
    parser->option("verbose,v", "Print more", tarvo2::vt_bool, "general");
    IOption* const refused = parser->option("a,b,c,d", "Too many names", tarvo2::vt_int, "other");
    EXPECT_EQ(refused, &parser->storage().invalidOption());
    EXPECT_EQ(parser->storage().invalidOption().status(), 1);
    EXPECT_EQ(parser->storage().size(), 1u);
    // The group is recorded even for a refused registration.
    ASSERT_EQ(parser->storage().groups().size(), 2u);
    EXPECT_EQ(parser->storage().groups()[1].first, "other");
    parser->destroy();
}

TEST_F(BasicParserTest, ErrorTextOfAFreshParserIsEmptyNotNull) {
    BasicParser* parser = newParser(0);
    ASSERT_NE(parser, nullptr);
    char const* const text = parser->getErrorDesc();
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(std::string(text), "");
    EXPECT_EQ(parser->getErrorDesc(), text);
    parser->destroy();
}

TEST_F(BasicParserTest, SameErrorTextGivesSamePointer) {
    BasicParser* parser = newParser(0);
    ASSERT_NE(parser, nullptr);
    parser->setLastError("Unknown option: --frobnicate");
    char const* const first = parser->getErrorDesc();
    char const* const second = parser->getErrorDesc();
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(std::string(first), "Unknown option: --frobnicate");
    EXPECT_EQ(first, second);
    // Setting the same text again is still the same kept copy.
    parser->setLastError(std::string("Unknown option: ") + "--frobnicate");
    EXPECT_EQ(parser->getErrorDesc(), first);
    parser->destroy();
}

TEST_F(BasicParserTest, DifferentErrorTextGivesDifferentPointerAndKeepsTheOld) {
    BasicParser* parser = newParser(0);
    ASSERT_NE(parser, nullptr);
    parser->setLastError("first problem");
    char const* const first = parser->getErrorDesc();
    parser->setLastError("second problem");
    char const* const second = parser->getErrorDesc();
    EXPECT_NE(first, second);
    EXPECT_EQ(std::string(second), "second problem");
    // A text handed out earlier stays valid until the parser goes.
    EXPECT_EQ(std::string(first), "first problem");
    parser->setLastError("first problem");
    EXPECT_EQ(parser->getErrorDesc(), first);
    parser->destroy();
}

TEST_F(BasicParserTest, SetLastErrorReplacesTheText) {
    BasicParser* parser = newParser(0);
    ASSERT_NE(parser, nullptr);
    parser->setLastError("something failed");
    EXPECT_EQ(std::string(parser->getErrorDesc()), "something failed");
    parser->setLastError("");
    EXPECT_EQ(std::string(parser->getErrorDesc()), "");
    parser->destroy();
}

TEST_F(BasicParserTest, SuccessfulOperationsKeepThePreviousErrorText) {
    BasicParser* parser = newParser(0);
    ASSERT_NE(parser, nullptr);
    parser->setLastError("an earlier problem");
    parser->option("level", "A level", tarvo2::vt_int, "g");
    IParseResult* result = nullptr;
    ASSERT_EQ(parser->createResult(&result), 0);
    EXPECT_EQ(parser->parseStream("--level=3", result), 0);
    char arg0[] = "prog";
    char arg1[] = "--level=4";
    char* argv[] = {arg0, arg1};
    EXPECT_EQ(parser->parseArgsVector(2, argv, result), 0);
    EXPECT_TRUE(parser->addHandler(parser));
    EXPECT_TRUE(parser->removeHandler(parser));
    EXPECT_EQ(std::string(parser->getErrorDesc()), "an earlier problem");
    result->destroy();
    parser->destroy();
}

TEST_F(BasicParserTest, FailedParseRecordsItsMessageUntilTheNextFailure) {
    BasicParser* parser = newParser(quen_3_1::FlagUnknownIsError);
    ASSERT_NE(parser, nullptr);
    parser->option("level", "A level", tarvo2::vt_int, "g");
    IParseResult* result = nullptr;
    ASSERT_EQ(parser->createResult(&result), 0);
    EXPECT_EQ(parser->parseStream("--frobnicate", result), 2);
    EXPECT_EQ(std::string(parser->getErrorDesc()), "Unknown option: --frobnicate");
    EXPECT_EQ(parser->parseStream("--level=3", result), 0);
    EXPECT_EQ(std::string(parser->getErrorDesc()), "Unknown option: --frobnicate");
    EXPECT_EQ(parser->parseStream("--level=x", result), 2);
    EXPECT_EQ(std::string(parser->getErrorDesc()),
              "Value validation problem in argument '--level=x': Option 'level' can not parse 'x' value, requires "
              "a type 'integer' here.");
    result->destroy();
    parser->destroy();
}

}  // namespace
