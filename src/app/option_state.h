// One declared option or positional of an App: its names, help, refinements
// and the binding to the host's variable.
#ifndef QUEN_3_1_SRC_APP_OPTION_STATE_H
#define QUEN_3_1_SRC_APP_OPTION_STATE_H

#include <memory>
#include <string>
#include <vector>

#include "app/binding.h"

namespace quen_3_1::app_detail {

class OptionState {
public:
    OptionState(std::string namesText, std::vector<std::string> names, std::string help, bool positional,
                std::unique_ptr<Binding> binding);

    std::string const& namesText() const { return m_namesText; }
    std::vector<std::string> const& names() const { return *m_names; }
    // The names, for a result to keep without copying them.
    std::shared_ptr<std::vector<std::string> const> const& sharedNames() const { return m_names; }
    // The first name: the one the library reports and events carry.
    std::string const& name() const { return m_names->front(); }
    bool answersTo(std::string const& name) const;
    std::string const& help() const { return m_help; }
    bool positional() const { return m_positional; }
    Binding& binding() { return *m_binding; }
    Binding const& binding() const { return *m_binding; }

    bool m_required = false;
    bool m_hidden = false;
    char m_separator = 0;
    std::string m_env;
    std::vector<std::string> m_needs;
    std::vector<std::string> m_excludes;
    // The Option<T> handed to the host; its type is known to App only.
    std::shared_ptr<void> m_handle;

private:
    std::string m_namesText;
    std::shared_ptr<std::vector<std::string> const> m_names;
    std::string m_help;
    bool m_positional;
    std::unique_ptr<Binding> m_binding;
};

}  // namespace quen_3_1::app_detail

#endif  // QUEN_3_1_SRC_APP_OPTION_STATE_H
