// Read access to a result. Queries move the cursors and the range of the
// current option only; every text handed out is kept by the result.
#include <exception>

#include "results/parse_result.h"

namespace quen_3_1 {

namespace {

constexpr std::int32_t kNoNumber = 0x7fffffff;

Value notFound(std::int32_t status) { return Value{nullptr, status, kNoNumber, tarvo2::variant_t()}; }

void makeNotFound(Value& value, std::int32_t status) {
    value.m_text = nullptr;
    value.m_status = status;
    value.m_index = kNoNumber;
    if (value.m_value.m_type != tarvo2::vt_empty || value.m_value.m_data != 0) {
        value.m_value = tarvo2::variant_t();
    }
}

}  // namespace

int ParseResult::get(std::string_view name, char const** text, tarvo2::variant_t& value, int from, int to,
                     int& number) {
    try {
        m_from = from;
        m_to = to;
        m_current = m_names.find(name);
        if (!hasCurrent()) {
            return 1;
        }
        restart(m_valueCursor);
        restart(m_positionCursor);
        if (onlyDefault()) {
            return readDefault(text, value, number);
        }
        for (std::uint32_t at = upcomingPosition(m_positionCursor);; at = upcomingPosition(m_positionCursor)) {
            if (at == ValueLog::kEnd) {
                return 1;
            }
            std::int32_t const position = m_log.position(at).number;
            if (from <= position && position < to) {
                break;
            }
            pass(m_positionCursor, at);
        }
        return text == nullptr ? 0 : readNext(text, value, number);
    } catch (std::exception const&) {
        return 3;
    }
}

int ParseResult::next(std::string const& /*name*/, char const** text, tarvo2::variant_t& value, int& number) {
    try {
        return readNext(text, value, number);
    } catch (std::exception const&) {
        return 3;
    }
}

bool ParseResult::onlyDefault() const {
    std::uint32_t const entry = m_current->defaultEntry;
    return currentRecord().positions.empty() && entry != ValueLog::kEnd &&
           !ValueLog::textOf(m_log.value(entry)).empty();
}

int ParseResult::readDefault(char const** text, tarvo2::variant_t& value, int& number) {
    ValueLog::Stored const& entry = m_log.value(m_current->defaultEntry);
    if (text != nullptr) {
        *text = entry.text;
    }
    assignPayload(value, entry.value);
    number = entry.number;
    return 0;
}

int ParseResult::readNext(char const** text, tarvo2::variant_t& value, int& number) {
    if (!hasCurrent()) {
        return 1;
    }
    if (onlyDefault()) {
        // present() arms a single delivery of the default by setting both bounds to the maximum.
        if (m_from != kNoNumber || m_to != kNoNumber) {
            return 1;
        }
        readDefault(text, value, number);
        m_from = 0;
        m_to = kNoNumber;
        return 0;
    }
    if (!currentRecord().values.empty()) {
        return nextValue(text, value, number);
    }
    return nextOccurrence(number);
}

template <class NextOf>
std::uint32_t ParseResult::upcoming(Cursor& cursor, ValueLog::Chain Record::*chain, NextOf nextOf) const {
    ValueLog::Chain const& entries = currentRecord().*chain;
    if (cursor.record != m_current->record) {
        std::size_t const passed = cursor.passed;
        cursor = Cursor{0, ValueLog::kEnd, m_current->record};
        for (std::uint32_t at = entries.first; cursor.passed < passed && at != ValueLog::kEnd; at = nextOf(at)) {
            pass(cursor, at);
        }
    }
    return cursor.last == ValueLog::kEnd ? entries.first : nextOf(cursor.last);
}

std::uint32_t ParseResult::upcomingPosition(Cursor& cursor) const {
    return upcoming(cursor, &Record::positions, [this](std::uint32_t at) { return m_log.position(at).next; });
}

std::uint32_t ParseResult::upcomingValue(Cursor& cursor) const {
    return upcoming(cursor, &Record::values, [this](std::uint32_t at) { return m_log.value(at).next; });
}

// The upper bound is included for values, unlike for occurrences.
int ParseResult::nextValue(char const** text, tarvo2::variant_t& value, int& number) {
    std::uint32_t at = upcomingValue(m_valueCursor);
    while (at != ValueLog::kEnd && m_log.value(at).number < m_from) {
        pass(m_valueCursor, at);
        at = upcomingValue(m_valueCursor);
    }
    if (at == ValueLog::kEnd || m_log.value(at).number > m_to) {
        return 1;
    }
    ValueLog::Stored const& entry = m_log.value(at);
    if (text != nullptr) {
        *text = entry.text;
    }
    assignPayload(value, entry.value);
    number = entry.number;
    pass(m_valueCursor, at);
    return 0;
}

// Options without values yield their occurrence numbers, past the range too.
int ParseResult::nextOccurrence(int& number) {
    std::uint32_t const at = upcomingPosition(m_positionCursor);
    if (at == ValueLog::kEnd) {
        return 1;
    }
    number = m_log.position(at).number;
    pass(m_positionCursor, at);
    return 0;
}

bool ParseResult::present(char const* name, int from, int to) {
    std::string const key(name);
    tarvo2::variant_t scratchValue;
    int scratchNumber = 0;
    int const code = get(key, nullptr, scratchValue, from, to, scratchNumber);
    if (code == 0 && onlyDefault()) {
        m_from = kNoNumber;
        m_to = kNoNumber;
    }
    return code == 0;
}

// The public form of a query: a Value, the not-found one on failure. A
// standard exception escaping the query itself reads as status 1, and so does
// a null name, which is never looked up. Every path
// returns the one local Value, so it is built in place and its variant is
// never copied on the way out.
template <class Query>
Value ParseResult::publicQuery(char const* name, Query query) {
    Value result{nullptr, 0, kNoNumber, tarvo2::variant_t()};
    int code = 1;
    if (name != nullptr) {
        try {
            char const* text = nullptr;
            code = query(&text, result.m_value, result.m_index);
            result.m_text = text;
        } catch (std::exception const&) {
            code = 1;
        }
    }
    if (code != 0) {
        makeNotFound(result, code);
    }
    return result;
}

Value ParseResult::get(char const* name, int from, int to) {
    return publicQuery(name, [this, name, from, to](char const** text, tarvo2::variant_t& value, int& number) {
        return get(std::string_view(name), text, value, from, to, number);
    });
}

// An iteration goes on with the option of the last lookup whatever the name
// says, so the name is not even copied.
Value ParseResult::next(char const* name) {
    return publicQuery(name, [this](char const** text, tarvo2::variant_t& value, int& number) {
        static std::string const unread;
        return next(unread, text, value, number);
    });
}

int ParseResult::nextPosition() {
    if (!hasCurrent()) {
        return kNoNumber;
    }
    std::uint32_t const at = upcomingPosition(m_positionCursor);
    if (at == ValueLog::kEnd) {
        return kNoNumber;
    }
    pass(m_positionCursor, at);
    return m_log.position(at).number;
}

int ParseResult::getFirstArgument(std::string& text) {
    if (m_arguments.empty()) {
        return 1;
    }
    m_argumentCursor = 0;
    return getNextArgument(text);
}

int ParseResult::getNextArgument(std::string& text) {
    if (m_argumentCursor >= m_arguments.size()) {
        return 1;
    }
    text = m_arguments[m_argumentCursor++].first;
    return 0;
}

// A null output gets 1 (nothing delivered) and leaves the iteration where it is.
int ParseResult::getFirstArgument(char const** text) {
    if (text == nullptr) {
        return 1;
    }
    std::string argument;
    int const code = getFirstArgument(argument);
    if (code == 0) {
        *text = m_garbage.keep(argument);
    }
    return code;
}

int ParseResult::getNextArgument(char const** text) {
    if (text == nullptr) {
        return 1;
    }
    std::string argument;
    int const code = getNextArgument(argument);
    if (code == 0) {
        *text = m_garbage.keep(argument);
    }
    return code;
}

Value getLastValue(IParseResult* result, char const* name, int from, int to) {
    Value answer = notFound(1);
    if (result == nullptr || name == nullptr) {
        return answer;
    }
    Value current = result->get(name, from, to);
    while (current.m_status == 0) {
        answer = current;
        current = result->next(name);
    }
    return answer;
}

}  // namespace quen_3_1
