// Events raised during recognition reach every host handler in ascending
// pointer order, each with the parser's own copy of the name.
#include <cstring>

#include "frontend/basic_parser.h"

namespace quen_3_1 {

// A null handler would be called during fan-out, so it is refused.
bool BasicParser::addHandler(EventHandler* handler) { return handler != nullptr && m_handlers.insert(handler).second; }

bool BasicParser::removeHandler(EventHandler* handler) { return m_handlers.erase(handler) != 0; }

// An option's events come in a row (the option, then each of its values), and
// the keeper gives equal texts one pointer: so the last name kept is reused
// while the text is the same, without hashing it again.
char const* BasicParser::keptEventName(char const* name) {
    if (name == nullptr) {
        return m_garbage.init(name);
    }
    if (m_lastEventName == nullptr || std::strcmp(name, m_lastEventName) != 0) {
        m_lastEventName = m_garbage.init(name);
    }
    return m_lastEventName;
}

// A notification: every handler hears it, answers are ignored.
bool BasicParser::onOptionParse(char const* name) {
    if (m_handlers.empty()) {
        return true;
    }
    char const* const kept = keptEventName(name);
    // One handler, the usual case, is called without walking the set.
    if (m_handlers.size() == 1) {
        (*m_handlers.begin())->onOptionParse(kept);
        return true;
    }
    for (EventHandler* handler : m_handlers) {
        handler->onOptionParse(kept);
    }
    return true;
}

// A veto: the first handler that refuses ends the poll.
bool BasicParser::onValueParse(char const* name, Value const& value) {
    if (m_handlers.empty()) {
        return true;
    }
    char const* const kept = keptEventName(name);
    if (m_handlers.size() == 1) {
        return (*m_handlers.begin())->onValueParse(kept, value);
    }
    bool accepted = true;
    for (auto it = m_handlers.begin(); accepted && it != m_handlers.end(); ++it) {
        accepted = (*it)->onValueParse(kept, value);
    }
    return accepted;
}

// A verdict: every handler is asked; one false excuses the argument.
bool BasicParser::onUknownArgument(char const* argument) {
    if (m_handlers.empty()) {
        return true;
    }
    char const* const kept = m_garbage.init(argument);
    bool unknown = true;
    for (EventHandler* handler : m_handlers) {
        unknown = handler->onUknownArgument(kept) && unknown;
    }
    return unknown;
}

}  // namespace quen_3_1
