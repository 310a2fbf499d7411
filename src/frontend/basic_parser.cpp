#include "frontend/basic_parser.h"

#include <exception>
#include <new>

#include "results/parse_result.h"

namespace quen_3_1 {

BasicParser::BasicParser(int flags) : m_flags(flags) { m_storage.setGarbage(&m_garbage); }

void BasicParser::destroy() { delete this; }

// Nowhere to store the result is a refused call, like a failed construction.
int BasicParser::createResult(IParseResult** out) {
    if (out == nullptr) {
        return 3;
    }
    *out = new ParseResult();
    return 0;
}

IOption* BasicParser::option(char const* names, char const* description, kel_variant_type_t type, char const* group) {
    return m_storage.option(names, description, type, group);
}

char const* BasicParser::getErrorDesc() { return m_garbage.keep(m_lastError); }

void BasicParser::setLastError(std::string const& text) { m_lastError = text; }

int createParser(IParser** out, int flags) {
    if (out == nullptr) {
        return 3;
    }
    try {
        *out = new BasicParser(flags);
        return 0;
    } catch (std::exception const&) {
        return 3;
    }
}

}  // namespace quen_3_1
