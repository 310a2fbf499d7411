// Everything an App declares, checked as it is declared: a mistake is kept
// (the first one) and reported by parse instead of crashing or printing.
#ifndef QUEN_3_1_SRC_APP_APP_STATE_H
#define QUEN_3_1_SRC_APP_APP_STATE_H

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "app/name_list.h"
#include "app/name_table.h"
#include "app/option_arena.h"
#include "app/option_state.h"
#include "quen_3_1/app.h"

namespace quen_3_1::app_detail {

struct FileOption {
    std::string namesText;
    std::vector<std::string> names;
    std::string help;
    // How many options were declared before it: the help lists it among them in that order.
    std::size_t position;
};

// A declaration, in its App's arena.
using OptionHandle = OptionArena::Handle<OptionState>;

struct ExclusiveGroup {
    std::vector<std::string> names;
    bool required;
};

class AppState {
public:
    static constexpr std::size_t kNoOption = static_cast<std::size_t>(-1);

    AppState(std::string program, std::string about);

    // Declares an option or positional (its help copied into the arena); a refused one is
    // kept aside, so that the host may still refine what it got back.
    void add(std::string&& names, std::string_view help, bool positional, OptionHandle state);
    void addFile(std::string names, std::string help);
    App& addCommand(std::string name, std::string about);
    void addExclusive(std::vector<std::string> names, bool required);

    // The state of an App (App keeps it private; this class is its friend).
    static AppState& of(App& app) { return *app.m_state; }
    static AppState const& of(App const& app) { return *app.m_state; }

    // The declared option or positional answering to `name` exactly, or null.
    OptionState const* find(std::string_view name) const;
    // Its index in m_options, or kNoOption.
    std::size_t optionIndex(std::string_view name) const;
    // Taken by an option, a positional, an options-file option or a flag's no- form.
    bool isTaken(std::string_view name) const { return m_names->contains(name); }
    // Every name this App answers to (see name_id.h).
    NameTable const& names() const { return *m_names; }
    // The same, for a result to keep.
    std::shared_ptr<NameTable const> sharedNames() const { return m_names; }
    // The first declaration mistake of this App or of its commands, or empty.
    std::string mistake() const;
    // Whether a positional was declared.
    bool hasPositionals() const { return m_positionals; }
    // Whether an option has a requirement, range, variable or relation: most have none, and
    // the checks of those then need not visit every option.
    bool refined() const { return m_refined; }

    // First: it outlives the declarations it holds.
    OptionArena m_arena;
    std::string m_program;
    std::string m_about;
    std::string m_name;  // the command name, for a command
    std::string m_version;
    std::string m_epilog;
    std::string m_envPrefix;
    std::vector<OptionHandle> m_options;
    std::vector<FileOption> m_files;
    std::vector<std::unique_ptr<App>> m_commands;
    std::vector<ExclusiveGroup> m_exclusive;

private:
    // Claims the names (a flag's no- forms too) for `id`; false (and the mistake kept) when
    // one is taken or reserved.
    bool take(NameList const& names, std::string_view text, bool flag, std::uint32_t id);
    bool claim(std::string_view name, std::uint32_t id);
    void refuse(std::string const& what);
    std::string referenceMistake() const;

    // Shared with the results of earlier parses: copied before it changes.
    std::shared_ptr<NameTable> m_names;
    std::vector<OptionHandle> m_refused;
    std::string m_mistake;
    // A flag's no- form of a name, built here to be looked up.
    std::string m_negated;
    bool m_vectorPositional = false;
    bool m_positionals = false;
    bool m_refined = false;
};

}  // namespace quen_3_1::app_detail

#endif  // QUEN_3_1_SRC_APP_APP_STATE_H
