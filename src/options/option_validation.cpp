// Checks one value text of an option against its kind and allowed values.
// The message texts are read by hosts and kept word for word.
#include <stdexcept>
#include <string>

#include "options/messages.h"
#include "options/option_description.h"
#include "values/garbage.h"
#include "values/variant_transfer.h"

namespace quen_3_1 {

namespace {

// Only texts can be abbreviated: another kind among a text option's allowed
// values is the host's mistake. A null text stands for the empty text.
std::string allowedTextOf(tarvo2::variant_t const& allowed) {
    if (allowed.m_type != tarvo2::vt_str && allowed.m_type != tarvo2::vt_str_ref) {
        throw std::logic_error("an allowed value of a text option is not a text");
    }
    char const* const text = allowed.as<char const*>();
    return text != nullptr ? text : "";
}

}  // namespace

bool OptionDescription::validate(std::string& text, tarvo2::variant_t& value, std::string& message) const {
    convert(text.c_str(), m_garbage, value);
    if (value.m_type == tarvo2::vt_empty) {
        message = option_messages::cannotParse(primaryName(), text, getTypeName());
        return false;
    }
    if (m_allowedValues.empty()) {
        return true;
    }
    for (tarvo2::variant_t const& allowed : m_allowedValues) {
        if (value == allowed) {
            return true;
        }
    }
    if (m_type == tarvo2::vt_str) {
        AbbreviationOutcome const outcome = validateAbbreviation(text, value, message);
        if (outcome != AbbreviationOutcome::NoMatch) {
            return outcome == AbbreviationOutcome::Unique;
        }
    }
    message = option_messages::notAllowed(primaryName(), text, allowedValuesList());
    return false;
}

// A unique beginning of an allowed text stands for it; several are ambiguous.
OptionDescription::AbbreviationOutcome OptionDescription::validateAbbreviation(std::string& text,
                                                                               tarvo2::variant_t& value,
                                                                               std::string& message) const {
    int matches = 0;
    std::string matched;
    for (tarvo2::variant_t const& allowed : m_allowedValues) {
        std::string const allowedText = allowedTextOf(allowed);
        if (allowedText.size() >= text.size() && allowedText.compare(0, text.size(), text) == 0) {
            ++matches;
            matched = allowedText;
            tarvo2::variant_t allowedValue(matched.c_str());
            transferVariant(value, allowedValue);
        }
    }
    if (matches == 1) {
        text = matched;
        return AbbreviationOutcome::Unique;
    }
    if (matches > 1) {
        message = option_messages::ambiguousValue(primaryName(), allowedValuesList());
        return AbbreviationOutcome::Ambiguous;
    }
    return AbbreviationOutcome::NoMatch;
}

std::string OptionDescription::allowedValuesList() const {
    std::string list;
    for (std::size_t i = 0; i < m_allowedValues.size(); ++i) {
        list += "'";
        list += toString(m_garbage, m_allowedValues[i]);
        list += i + 1 < m_allowedValues.size() ? "', " : "'";
    }
    return list;
}

}  // namespace quen_3_1
