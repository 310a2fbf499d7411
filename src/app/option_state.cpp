#include "app/option_state.h"

#include <utility>

namespace quen_3_1::app_detail {

void OptionState::declare(std::string namesText, NameList names, char const* help, bool positional) {
    m_namesText = std::move(namesText);
    m_names = names;
    m_name = m_names.empty() ? m_namesText : std::string(nameAt(0));
    m_help = help;
    m_positional = positional;
}

}  // namespace quen_3_1::app_detail
