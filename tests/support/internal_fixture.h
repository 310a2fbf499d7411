#ifndef QUEN_TESTS_SUPPORT_INTERNAL_FIXTURE_H
#define QUEN_TESTS_SUPPORT_INTERNAL_FIXTURE_H

// Helpers for tests of internal classes; they include headers from src/, so
// only tests/internal may use them.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "frontend/basic_parser.h"
#include "frontend/trace.h"
#include "options/registered_option_storage.h"
#include "recognizers/argument_list.h"
#include "results/option_data.h"
#include "results/parse_result.h"
#include "support/capture.h"
#include "values/garbage.h"

namespace quen_test {

// Leaves tracing off before and after every test, whatever order they run in.
class InternalTest : public ::testing::Test {
protected:
    void SetUp() override { quen_3_1::internal::quenLogEnabled = false; }
    void TearDown() override { quen_3_1::internal::quenLogEnabled = false; }
};

// Everything written to standard output while `body` runs with tracing on.
template <class Body>
std::string traceOf(Body body) {
    FdCapture capture(1);
    quen_3_1::internal::quenLogEnabled = true;
    body();
    quen_3_1::internal::quenLogEnabled = false;
    return capture.finish();
}

// The arguments a recognizer left, in order.
inline std::vector<std::string> remaining(quen_3_1::ArgumentList const& args) {
    std::vector<std::string> rest;
    for (std::size_t i = 0; i < args.size(); ++i) {
        rest.emplace_back(args[i]);
    }
    return rest;
}

// The texts of stored value entries, in order.
inline std::vector<std::string> textsOf(std::vector<quen_3_1::ValueEntry> const& values) {
    std::vector<std::string> texts;
    for (quen_3_1::ValueEntry const& value : values) {
        texts.push_back(value.first.first);
    }
    return texts;
}

inline std::vector<std::string> textsOf(quen_3_1::OptionData const& data) { return textsOf(data.m_values); }

// What a result holds under each name, as a map of names to copies of their
// option's data with the name's own default.
class StoredOptions {
public:
    explicit StoredOptions(quen_3_1::ParseResult const& result) : m_result(result) {}

    // Throws std::out_of_range for a name the result does not know.
    quen_3_1::OptionData at(std::string const& name) const {
        quen_3_1::ParseResult::NameEntry const& entry = m_result.names().at(name);
        quen_3_1::ParseResult::Record const& record = m_result.record(entry.record);
        quen_3_1::ValueLog const& log = m_result.log();
        quen_3_1::OptionData data;
        for (std::uint32_t at = record.positions.first; at != quen_3_1::ValueLog::kEnd; at = log.position(at).next) {
            data.m_positions.push_back(log.position(at).number);
        }
        for (std::uint32_t at = record.values.first; at != quen_3_1::ValueLog::kEnd; at = log.value(at).next) {
            data.m_values.push_back(log.entryAt(at));
        }
        if (entry.defaultEntry != quen_3_1::ValueLog::kEnd) {
            data.m_default = log.entryAt(entry.defaultEntry);
        }
        return data;
    }
    std::size_t count(std::string const& name) const { return m_result.names().count(name); }
    std::size_t size() const { return m_result.names().size(); }
    bool empty() const { return m_result.names().empty(); }

private:
    quen_3_1::ParseResult const& m_result;
};

inline StoredOptions storedOptions(quen_3_1::ParseResult const& result) { return StoredOptions(result); }

// Remembers the option and value events a parser fans out; refuses every
// value while `accept` is false.
class EventRecorder final : public quen_3_1::EventHandler {
public:
    bool onOptionParse(char const* name) override {
        options.emplace_back(name);
        return true;
    }
    bool onValueParse(char const* name, quen_3_1::Value const& value) override {
        values.push_back(std::string(name) + "=" + value.m_text);
        return accept;
    }

    std::vector<std::string> options;
    std::vector<std::string> values;
    bool accept = true;
};

// What a recognizer works with: the parser that fans out its events (heard by
// `recorder`), a registry, a result and the message it may set.
class RecognizerTest : public InternalTest {
protected:
    RecognizerTest() : parser(0) {
        storage.setGarbage(&garbage);
        parser.addHandler(&recorder);
    }

    quen_3_1::IOption* add(char const* names, quen_3_1::kel_variant_type_t type) {
        return storage.option(names, "help", type, "general");
    }

    quen_3_1::BasicParser parser;
    quen_3_1::Garbage garbage;
    quen_3_1::RegisteredOptionStorage storage;
    quen_3_1::ParseResult result;
    EventRecorder recorder;
    std::string message;
};

}  // namespace quen_test

#endif
