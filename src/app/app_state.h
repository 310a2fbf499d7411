// Everything an App declares, checked as it is declared: a mistake is kept
// (the first one) and reported by parse instead of crashing or printing.
#ifndef QUEN_3_1_SRC_APP_APP_STATE_H
#define QUEN_3_1_SRC_APP_APP_STATE_H

#include <memory>
#include <set>
#include <string>
#include <vector>

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

struct ExclusiveGroup {
    std::vector<std::string> names;
    bool required;
};

class AppState {
public:
    AppState(std::string program, std::string about);

    // Declares an option or positional; a refused one is kept aside, so that the
    // host may still refine what it got back.
    OptionState& add(std::string names, std::string help, bool positional, std::unique_ptr<Binding> binding);
    void addFile(std::string names, std::string help);
    App& addCommand(std::string name, std::string about);
    void addExclusive(std::vector<std::string> names, bool required);

    // The state of an App (App keeps it private; this class is its friend).
    static AppState& of(App& app) { return *app.m_state; }
    static AppState const& of(App const& app) { return *app.m_state; }

    // The declared option or positional answering to `name` exactly, or null.
    OptionState const* find(std::string const& name) const;
    bool isTaken(std::string const& name) const { return m_taken.count(name) != 0; }
    // The first declaration mistake of this App or of its commands, or empty.
    std::string mistake() const;

    std::string m_program;
    std::string m_about;
    std::string m_name;  // the command name, for a command
    std::string m_version;
    std::string m_epilog;
    std::string m_envPrefix;
    std::vector<std::unique_ptr<OptionState>> m_options;
    std::vector<FileOption> m_files;
    std::vector<std::unique_ptr<App>> m_commands;
    std::vector<ExclusiveGroup> m_exclusive;

private:
    bool take(std::vector<std::string> const& names);
    void refuse(std::string const& what);
    std::string referenceMistake() const;

    std::set<std::string> m_taken;
    std::vector<std::unique_ptr<OptionState>> m_refused;
    std::string m_mistake;
    bool m_vectorPositional = false;
};

}  // namespace quen_3_1::app_detail

#endif  // QUEN_3_1_SRC_APP_APP_STATE_H
