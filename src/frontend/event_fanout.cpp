// Events raised during recognition reach every host handler in ascending
// pointer order, each with the parser's own copy of the name.
#include "frontend/basic_parser.h"

namespace quen_3_1 {

// A null handler would be called during fan-out, so it is refused.
bool BasicParser::addHandler(EventHandler* handler) { return handler != nullptr && m_handlers.insert(handler).second; }

bool BasicParser::removeHandler(EventHandler* handler) { return m_handlers.erase(handler) != 0; }

// A notification: every handler hears it, answers are ignored.
bool BasicParser::onOptionParse(char const* name) {
    if (m_handlers.empty()) {
        return true;
    }
    char const* const kept = m_garbage.init(name);
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
    char const* const kept = m_garbage.init(name);
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
