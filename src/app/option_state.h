// One declared option or positional of an App: its names, help, refinements
// and the binding to the host's variable (held by the derived BoundOption<T>,
// so that a declaration is one allocation).
#ifndef QUEN_3_1_SRC_APP_OPTION_STATE_H
#define QUEN_3_1_SRC_APP_OPTION_STATE_H

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "app/binding.h"
#include "app/name_list.h"

namespace quen_3_1::app_detail {

// What few options are refined with: made when first set, so that the others stay small.
struct OptionLinks {
    std::string env;
    std::vector<std::string> needs;
    std::vector<std::string> excludes;
};

class OptionState {
public:
    OptionState(OptionState const&) = delete;
    OptionState& operator=(OptionState const&) = delete;
    virtual ~OptionState() = default;

    // Once, when the App takes the declaration.
    // `names` is `namesText` split (empty when it breaks the rules); `help` lives as long as the App.
    // `refined` (the App's) is set once a requirement, range, variable or relation is.
    void declare(std::string&& namesText, NameList const& names, char const* help, bool positional, bool& refined);
    // Notes on the App that this declaration has a requirement, range, variable or relation.
    void refine() { *m_refined = true; }

    std::string const& namesText() const { return m_namesText; }
    std::size_t nameCount() const { return m_names.size(); }
    std::string_view nameAt(std::size_t i) const { return m_names.at(m_namesText, i); }
    // The first name: the one the library reports and events carry (the whole
    // text when it could not be split).
    std::string_view firstName() const { return m_names.empty() ? std::string_view(m_namesText) : nameAt(0); }
    // The same as a string of its own, for messages and arguments built from it.
    std::string name() const { return std::string(firstName()); }
    char const* help() const { return m_help; }
    bool positional() const { return m_positional; }
    Binding& binding() { return *m_binding; }
    Binding const& binding() const { return *m_binding; }
    // The library's kind of one value, and whether every value is kept (a std::vector).
    tarvo2::kel_variant_type_t kind() const { return m_kind; }
    bool takesMany() const { return m_many; }

    // Whether a variable or a relation was ever set.
    bool linked() const { return m_links != nullptr; }
    // The variable and relations, empty when never set.
    OptionLinks const& links() const { return m_links != nullptr ? *m_links : unlinked(); }
    // The same, to be set.
    OptionLinks& links();

    bool m_required = false;
    bool m_hidden = false;
    char m_separator = 0;
    // A range was set, which may be empty: a declaration mistake.
    bool m_ranged = false;
    // Allowed values were set, which the library is told.
    bool m_allows = false;

protected:
    OptionState(tarvo2::kel_variant_type_t kind, bool many) : m_kind(kind), m_many(many) {}
    // Once, by the derived declaration that holds the binding, when it has made it.
    void bind(Binding& binding) { m_binding = &binding; }

private:
    static OptionLinks const& unlinked();

    Binding* m_binding = nullptr;
    tarvo2::kel_variant_type_t m_kind;
    bool m_many;
    bool m_positional = false;
    bool* m_refined = nullptr;
    char const* m_help = "";
    std::string m_namesText;
    NameList m_names;
    std::unique_ptr<OptionLinks> m_links;
};

}  // namespace quen_3_1::app_detail

#endif  // QUEN_3_1_SRC_APP_OPTION_STATE_H
