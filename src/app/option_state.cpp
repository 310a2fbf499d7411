#include "app/option_state.h"

#include <utility>

namespace quen_3_1::app_detail {

void OptionState::declare(std::string namesText, std::vector<std::string> names, std::string help, bool positional) {
    m_namesText = std::move(namesText);
    m_names = std::move(names);
    m_help = std::move(help);
    m_positional = positional;
}

}  // namespace quen_3_1::app_detail
