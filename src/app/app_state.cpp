#include "app/app_state.h"

#include <utility>

#include "app/collector_name.h"
#include "app/messages.h"
#include "app/name_list.h"

namespace quen_3_1::app_detail {

AppState::AppState(std::string program, std::string about) : m_program(std::move(program)), m_about(std::move(about)) {}

OptionState& AppState::add(std::string names, std::string help, bool positional, std::unique_ptr<Binding> binding) {
    std::vector<std::string> split = splitNameList(names);
    bool const flag = !positional && binding->kind() == tarvo2::vt_bool;
    bool ok = !split.empty() && (!positional || split.size() == 1);
    if (!ok) {
        refuse(text::badName(names));
    } else if (!take(occupiedNames(split, flag))) {
        ok = false;
    } else if (positional && m_vectorPositional) {
        refuse(text::positionalAfterVector(names));
        ok = false;
    }
    if (split.empty()) {
        split.push_back(names);
    }
    auto state = std::make_unique<OptionState>(std::move(names), std::move(split), std::move(help), positional,
                                               std::move(binding));
    OptionState& added = *state;
    if (!ok) {
        m_refused.push_back(std::move(state));
        return added;
    }
    m_vectorPositional = m_vectorPositional || (positional && added.binding().takesMany());
    m_options.push_back(std::move(state));
    return added;
}

void AppState::addFile(std::string names, std::string help) {
    std::vector<std::string> split = splitNameList(names);
    if (split.empty()) {
        refuse(text::badName(names));
    } else if (take(split)) {
        m_files.push_back(FileOption{std::move(names), std::move(split), std::move(help), m_options.size()});
    }
}

App& AppState::addCommand(std::string name, std::string about) {
    std::vector<std::string> const split = splitNameList(name);
    if (split.size() != 1) {
        refuse(text::badName(name));
    }
    for (auto const& command : m_commands) {
        if (AppState::of(*command).m_name == name) {
            refuse(text::declaredTwice(name));
        }
    }
    m_commands.push_back(std::make_unique<App>(m_program + " " + name, std::move(about)));
    AppState::of(*m_commands.back()).m_name = std::move(name);
    return *m_commands.back();
}

void AppState::addExclusive(std::vector<std::string> names, bool required) {
    m_exclusive.push_back(ExclusiveGroup{std::move(names), required});
}

OptionState const* AppState::find(std::string const& name) const {
    for (auto const& option : m_options) {
        if (option->answersTo(name)) {
            return option.get();
        }
    }
    return nullptr;
}

std::string AppState::mistake() const {
    if (!m_mistake.empty()) {
        return m_mistake;
    }
    std::string found = referenceMistake();
    for (auto const& command : m_commands) {
        if (found.empty()) {
            found = AppState::of(*command).mistake();
        }
    }
    return found;
}

bool AppState::take(std::vector<std::string> const& names) {
    for (std::string const& name : names) {
        if (name == kCollectorName) {
            refuse(text::reservedName(name));
            return false;
        }
        if (m_taken.count(name) != 0) {
            refuse(text::declaredTwice(name));
            return false;
        }
    }
    m_taken.insert(names.begin(), names.end());
    return true;
}

void AppState::refuse(std::string const& what) {
    if (m_mistake.empty()) {
        m_mistake = text::badDeclaration(what);
    }
}

// Names are looked up once everything is declared, so they may refer forward.
std::string AppState::referenceMistake() const {
    bool positionals = false;
    for (auto const& option : m_options) {
        std::string const own = option->binding().mistake(option->name());
        if (!own.empty()) {
            return text::badDeclaration(own);
        }
        for (auto const* list : {&option->m_needs, &option->m_excludes}) {
            for (std::string const& other : *list) {
                if (find(other) == nullptr) {
                    return text::badDeclaration(text::unknownReference(other));
                }
            }
        }
        positionals = positionals || option->positional();
    }
    for (ExclusiveGroup const& group : m_exclusive) {
        for (std::string const& other : group.names) {
            if (find(other) == nullptr) {
                return text::badDeclaration(text::unknownReference(other));
            }
        }
    }
    if (positionals && !m_commands.empty()) {
        return text::badDeclaration(text::commandsAndPositionals(m_program));
    }
    return {};
}

}  // namespace quen_3_1::app_detail
