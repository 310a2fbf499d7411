#include "results/parse_result.h"

#include <algorithm>

#include "options/option_description.h"
#include "options/registered_option_storage.h"
#include "recognizers/argument_parser.h"
#include "values/variant_transfer.h"

namespace quen_3_1 {

ParseResult::ParseResult()
    : m_valueCursor(0), m_positionCursor(0), m_from(0), m_to(0x7fffffff), m_current(nullptr), m_argumentCursor(0) {}

void ParseResult::destroy() { delete this; }

namespace {

// Appends copies of `from`. When `to` has to grow, its own entries are moved
// over with their values handed on, not copied through the memory hooks.
void appendValues(std::vector<ValueEntry>& to, std::vector<ValueEntry> const& from) {
    if (to.size() + from.size() > to.capacity()) {
        std::vector<ValueEntry> grown;
        grown.reserve(std::max(to.size() + from.size(), 2 * to.capacity()));
        for (ValueEntry& entry : to) {
            grown.emplace_back();
            ValueEntry& moved = grown.back();
            moved.first.first.swap(entry.first.first);
            transferVariant(moved.first.second, entry.first.second);
            moved.second = entry.second;
        }
        to.swap(grown);
    }
    to.insert(to.end(), from.begin(), from.end());
}

}  // namespace

int ParseResult::store(OptionDescription const& option, OptionData const& data) {
    std::vector<std::string> const& names = option.names();
    std::string const& primary = names.at(0);
    auto const first = m_options.find(primary);
    if (first == m_options.end()) {
        for (std::string const& name : names) {
            auto const placed = m_options.try_emplace(name, data);
            if (!placed.second) {
                placed.first->second = data;
            }
        }
        return 0;
    }
    for (std::size_t i = 0; i < names.size(); ++i) {
        OptionData& entry = i == 0 ? first->second : m_options[names[i]];
        entry.m_positions.insert(entry.m_positions.end(), data.m_positions.begin(), data.m_positions.end());
        appendValues(entry.m_values, data.m_values);
    }
    return 0;
}

int ParseResult::applyDefault(RegisteredOptionStorage& storage, std::string& message) {
    for (std::size_t i = 0; i < storage.size(); ++i) {
        OptionDescription const& option = storage.at(i);
        if (option.type() == tarvo2::vt_empty || !option.hasDefault()) {
            continue;
        }
        for (std::string const& name : option.names()) {
            std::int32_t const number = IArgumentParser::takeNumber();
            if (number == IArgumentParser::kNoNumber) {
                message = IArgumentParser::kNumbersExhaustedMessage;
                return IArgumentParser::kNumbersExhaustedCode;
            }
            ValueEntry& entry = m_options[name].m_default;
            entry.first.first = option.toString(option.garbage(), option.getDefault());
            entry.first.second = option.getDefault();
            entry.second = number;
        }
    }
    return 0;
}

void ParseResult::appendArgument(std::string const& text, std::int32_t number) {
    m_arguments.emplace_back(text, number);
}

}  // namespace quen_3_1
