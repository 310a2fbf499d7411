#include "app/option_state.h"

#include <algorithm>
#include <utility>

namespace quen_3_1::app_detail {

OptionState::OptionState(std::string namesText, std::vector<std::string> names, std::string help, bool positional,
                         std::unique_ptr<Binding> binding)
    : m_namesText(std::move(namesText)),
      m_names(std::make_shared<std::vector<std::string> const>(std::move(names))),
      m_help(std::move(help)),
      m_positional(positional),
      m_binding(std::move(binding)) {}

bool OptionState::answersTo(std::string const& name) const {
    return std::find(m_names->begin(), m_names->end(), name) != m_names->end();
}

}  // namespace quen_3_1::app_detail
