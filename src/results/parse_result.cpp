#include "results/parse_result.h"

#include "options/option_description.h"
#include "options/registered_option_storage.h"
#include "recognizers/argument_parser.h"

namespace quen_3_1 {

ParseResult::ParseResult()
    : m_valueCursor(0),
      m_positionCursor(0),
      m_from(0),
      m_to(0x7fffffff),
      m_current(m_options.end()),
      m_argumentCursor(0) {}

void ParseResult::destroy() { delete this; }

int ParseResult::store(OptionDescription const& option, OptionData const& data) {
    std::vector<std::string> const& names = option.names();
    std::string const& primary = names.at(0);
    if (m_options.find(primary) == m_options.end()) {
        for (std::string const& name : names) {
            m_options[name] = data;
        }
        return 0;
    }
    for (std::string const& name : names) {
        OptionData& entry = m_options[name];
        entry.m_positions.insert(entry.m_positions.end(), data.m_positions.begin(), data.m_positions.end());
        entry.m_values.insert(entry.m_values.end(), data.m_values.begin(), data.m_values.end());
    }
    return 0;
}

int ParseResult::applyDefault(RegisteredOptionStorage& storage, std::string& /*message*/) {
    for (std::size_t i = 0; i < storage.size(); ++i) {
        OptionDescription const& option = storage.at(i);
        if (option.type() == tarvo2::vt_empty || !option.hasDefault()) {
            continue;
        }
        for (std::string const& name : option.names()) {
            ValueEntry& entry = m_options[name].m_default;
            entry.first.first = option.toString(option.garbage(), option.getDefault());
            entry.first.second = option.getDefault();
            entry.second = IArgumentParser::takeNumber();
        }
    }
    return 0;
}

void ParseResult::appendArgument(std::string const& text, std::int32_t number) {
    m_arguments.emplace_back(text, number);
}

}  // namespace quen_3_1
