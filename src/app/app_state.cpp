#include "app/app_state.h"

#include <utility>

#include "app/collector_name.h"
#include "app/messages.h"
#include "app/name_id.h"
#include "app/name_list.h"

namespace quen_3_1::app_detail {

namespace {

// Room for a typical program's options before the list first grows.
std::size_t const kFirstOptions = 32;

}  // namespace

AppState::AppState(std::string program, std::string about)
    : m_program(std::move(program)), m_about(std::move(about)), m_names(std::make_shared<NameTable>()) {}

void AppState::add(std::string&& names, std::string_view help, bool positional, OptionHandle state) {
    NameList const split = NameList::split(names);
    bool const flag = !positional && state->kind() == tarvo2::vt_bool;
    bool ok = !split.empty() && (!positional || split.size() == 1);
    if (!ok) {
        refuse(text::badName(names));
    } else if (!take(split, names, flag, static_cast<std::uint32_t>(m_options.size()))) {
        ok = false;
    } else if (positional && m_vectorPositional) {
        refuse(text::positionalAfterVector(names));
        ok = false;
    }
    state->declare(std::move(names), split, m_arena.copy(help), positional, m_refined);
    if (!ok) {
        m_refused.push_back(std::move(state));
        return;
    }
    m_vectorPositional = m_vectorPositional || (positional && state->takesMany());
    m_positionals = m_positionals || positional;
    if (m_options.empty()) {
        m_options.reserve(kFirstOptions);
    }
    m_options.push_back(std::move(state));
}

void AppState::addFile(std::string names, std::string help) {
    NameList const split = NameList::split(names);
    if (split.empty()) {
        refuse(text::badName(names));
    } else if (take(split, names, false, name_id::kFile | static_cast<std::uint32_t>(m_files.size()))) {
        std::vector<std::string> each;
        for (std::size_t i = 0; i < split.size(); ++i) {
            each.emplace_back(split.at(names, i));
        }
        m_files.push_back(FileOption{std::move(names), std::move(each), std::move(help), m_options.size()});
    }
}

App& AppState::addCommand(std::string name, std::string about) {
    if (NameList::split(name).size() != 1) {
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

OptionState const* AppState::find(std::string_view name) const {
    std::size_t const index = optionIndex(name);
    return index == kNoOption ? nullptr : m_options[index].get();
}

std::size_t AppState::optionIndex(std::string_view name) const {
    std::uint32_t const id = m_names->find(name);
    return id != NameTable::kNone && name_id::isOption(id) ? id : kNoOption;
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

// In the order the library would meet them: each name, then a flag's no- form of it. A
// refusal leaves the names before it claimed, which no one looks up: the App is refused.
bool AppState::take(NameList const& names, std::string_view text, bool flag, std::uint32_t id) {
    if (m_names.use_count() > 1) {
        m_names = std::make_shared<NameTable>(*m_names);
    }
    for (std::size_t i = 0; i < names.size(); ++i) {
        std::string_view const name = names.at(text, i);
        if (!claim(name, id)) {
            return false;
        }
        if (flag && !claim(m_negated.assign(kNegation).append(name), id | name_id::kNegated)) {
            return false;
        }
    }
    return true;
}

// A list may name the same option twice, or name a flag like its own no- form: a real name wins.
bool AppState::claim(std::string_view name, std::uint32_t id) {
    if (name == kCollectorName) {
        refuse(text::reservedName(std::string(name)));
        return false;
    }
    std::uint32_t const held = m_names->insert(name, id);
    if (held == NameTable::kNone) {
        return true;
    }
    if ((held | name_id::kNegated) != (id | name_id::kNegated)) {
        refuse(text::declaredTwice(std::string(name)));
        return false;
    }
    if ((id & name_id::kNegated) == 0) {
        m_names->update(name, id);
    }
    return true;
}

void AppState::refuse(std::string const& what) {
    if (m_mistake.empty()) {
        m_mistake = text::badDeclaration(what);
    }
}

// Names are looked up once everything is declared, so they may refer forward.
std::string AppState::referenceMistake() const {
    for (std::size_t i = 0; m_refined && i < m_options.size(); ++i) {
        OptionState const* const option = m_options[i].get();
        std::string const own = option->m_ranged ? option->binding().mistake(option->firstName()) : std::string();
        if (!own.empty()) {
            return text::badDeclaration(own);
        }
        if (!option->linked()) {
            continue;
        }
        OptionLinks const& links = std::as_const(*option).links();
        for (auto const* list : {&links.needs, &links.excludes}) {
            for (std::string const& other : *list) {
                if (find(other) == nullptr) {
                    return text::badDeclaration(text::unknownReference(other));
                }
            }
        }
    }
    for (ExclusiveGroup const& group : m_exclusive) {
        for (std::string const& other : group.names) {
            if (find(other) == nullptr) {
                return text::badDeclaration(text::unknownReference(other));
            }
        }
    }
    if (m_positionals && !m_commands.empty()) {
        return text::badDeclaration(text::commandsAndPositionals(m_program));
    }
    return {};
}

}  // namespace quen_3_1::app_detail
