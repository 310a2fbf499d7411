#ifndef QUEN_TESTS_SUPPORT_PUBLIC_FIXTURE_H
#define QUEN_TESTS_SUPPORT_PUBLIC_FIXTURE_H

// Helpers for tests that use the library the way a host does: through
// <quen_3_1/quen.h> and the shared library only.
#include <gtest/gtest.h>
#include <quen_3_1/quen.h>

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace quen_test {

// The sequence number of a Value that carries none, and the "everything" bound.
constexpr int kNoNumber = 0x7fffffff;

// The argument that switches tracing on when it comes first.
constexpr char kTraceSwitch[] = "quenoption=quenlogenable=1";

// An argv as main() receives it: writable texts followed by a null entry.
class ArgvBuilder {
public:
    explicit ArgvBuilder(std::vector<std::string> arguments) : m_texts(std::move(arguments)) {
        for (std::string& text : m_texts) {
            m_pointers.push_back(&text[0]);
        }
        m_pointers.push_back(nullptr);
    }
    // The pointers refer into m_texts, so a copy would dangle.
    ArgvBuilder(ArgvBuilder const&) = delete;
    ArgvBuilder& operator=(ArgvBuilder const&) = delete;

    int argc() const { return static_cast<int>(m_texts.size()); }
    char** argv() { return m_pointers.data(); }
    // Makes entry `index` a null pointer, as a broken host might hand over.
    void setNull(std::size_t index) { m_pointers.at(index) = nullptr; }

private:
    std::vector<std::string> m_texts;
    std::vector<char*> m_pointers;
};

// Every parse switches tracing off unless its first argument is the switch,
// so parsing an empty text on a throwaway parser leaves tracing off.
inline void resetTraceSwitch() {
    quen_3_1::IParser* parser = nullptr;
    ASSERT_EQ(quen_3_1::createParser(&parser, 0), 0);
    quen_3_1::IParseResult* result = nullptr;
    parser->createResult(&result);
    EXPECT_EQ(parser->parseStream("", result), 0);
    result->destroy();
    parser->destroy();
}

// One parser and one result, released when the holder goes.
class ParserHarness {
public:
    explicit ParserHarness(int flags = 0) {
        EXPECT_EQ(quen_3_1::createParser(&m_parser, flags), 0);
        EXPECT_EQ(m_parser->createResult(&m_result), 0);
    }
    ParserHarness(ParserHarness const&) = delete;
    ParserHarness& operator=(ParserHarness const&) = delete;
    ~ParserHarness() {
        m_result->destroy();
        m_parser->destroy();
    }

    quen_3_1::IParser* parser() const { return m_parser; }
    quen_3_1::IParseResult* result() const { return m_result; }

    quen_3_1::IOption* option(char const* names, tarvo2::kel_variant_type_t type) {
        return m_parser->option(names, "help text", type, "general");
    }

    // Parses a command line; "prog" is put in front as the program name.
    int parseArgs(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), "prog");
        ArgvBuilder argv(std::move(arguments));
        return m_parser->parseArgsVector(argv.argc(), argv.argv(), m_result);
    }

    int parseText(char const* text) { return m_parser->parseStream(text, m_result); }

    std::string error() const { return m_parser->getErrorDesc(); }

    // Drops the current result and continues with an empty one.
    void renewResult() {
        m_result->destroy();
        m_result = nullptr;
        EXPECT_EQ(m_parser->createResult(&m_result), 0);
    }

private:
    quen_3_1::IParser* m_parser = nullptr;
    quen_3_1::IParseResult* m_result = nullptr;
};

// Every value get() and the following next() calls yield, in order.
inline std::vector<quen_3_1::Value> valuesOf(quen_3_1::IParseResult* result, char const* name, int from = 0,
                                             int to = kNoNumber) {
    std::vector<quen_3_1::Value> values;
    for (quen_3_1::Value value = result->get(name, from, to); value.m_status == 0; value = result->next(name)) {
        values.push_back(value);
    }
    return values;
}

// The texts of valuesOf; "<null>" stands for a record without text.
inline std::vector<std::string> textsOf(quen_3_1::IParseResult* result, char const* name, int from = 0,
                                        int to = kNoNumber) {
    std::vector<std::string> texts;
    for (quen_3_1::Value const& value : valuesOf(result, name, from, to)) {
        texts.push_back(value.m_text == nullptr ? std::string("<null>") : std::string(value.m_text));
    }
    return texts;
}

// The sequence numbers of valuesOf.
inline std::vector<int> numbersOf(quen_3_1::IParseResult* result, char const* name, int from = 0, int to = kNoNumber) {
    std::vector<int> numbers;
    for (quen_3_1::Value const& value : valuesOf(result, name, from, to)) {
        numbers.push_back(value.m_index);
    }
    return numbers;
}

// The occurrence numbers of an option: present() leaves the position cursor on
// the first occurrence, and nextPosition() walks from there.
inline std::vector<int> occurrencesOf(quen_3_1::IParseResult* result, char const* name) {
    std::vector<int> numbers;
    if (!result->present(name, 0, kNoNumber)) {
        return numbers;
    }
    for (int number = result->nextPosition(); number != kNoNumber; number = result->nextPosition()) {
        numbers.push_back(number);
    }
    return numbers;
}

// The plain arguments in the order the result keeps them.
inline std::vector<std::string> plainArgumentsOf(quen_3_1::IParseResult* result) {
    std::vector<std::string> arguments;
    char const* text = nullptr;
    for (int code = result->getFirstArgument(&text); code == 0; code = result->getNextArgument(&text)) {
        arguments.emplace_back(text);
    }
    return arguments;
}

// Leaves tracing off before and after every test, whatever order they run in.
class PublicTest : public ::testing::Test {
protected:
    void SetUp() override { resetTraceSwitch(); }
    void TearDown() override { resetTraceSwitch(); }
};

}  // namespace quen_test

#endif
