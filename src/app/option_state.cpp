#include "app/option_state.h"

#include <utility>

namespace quen_3_1::app_detail {

void OptionState::declare(std::string&& namesText, NameList const& names, char const* help, bool positional,
                          bool& refined) {
    m_refined = &refined;
    m_namesText = std::move(namesText);
    m_names = names;
    m_help = help;
    m_positional = positional;
}

OptionLinks const& OptionState::unlinked() {
    static OptionLinks const none;
    return none;
}

OptionLinks& OptionState::links() {
    if (m_links == nullptr) {
        refine();
        m_links = std::make_unique<OptionLinks>();
    }
    return *m_links;
}

}  // namespace quen_3_1::app_detail
