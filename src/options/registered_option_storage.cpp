#include "options/registered_option_storage.h"

#include <cstring>
#include <string_view>

#include "frontend/trace.h"
#include "frontend/ustring.h"
#include "options/required_text.h"
#include "values/separator_split.h"

namespace quen_3_1 {

namespace {

// A boolean answers to its names with this in front too.
constexpr std::string_view kNegation = "no-";

// True when `group`, up to its first ':', is `name`, which holds no ':'.
bool namesGroup(char const* group, std::string const& name) {
    for (char const c : name) {
        if (*group != c) {
            return false;
        }
        ++group;
    }
    return *group == '\0' || *group == ':';
}

NameList viewsOf(std::vector<std::string> const& names) {
    NameList list;
    for (std::string const& name : names) {
        list.view(name);
    }
    return list;
}

}  // namespace

// The names are split as views of the host's text, and copied into the arena
// only once they are accepted.
IOption* RegisteredOptionStorage::option(char const* names, char const* description, kel_variant_type_t type,
                                         char const* group) {
    std::pair<std::string, std::string> const& groupEntry = recordGroup(requiredText(group));
    m_invalidOption.setStatus(3);
    char const* const text = requiredText(names);
    NameList listed;
    forEachPiece(std::string_view(text, std::strlen(text)), ',',
                 [&listed](std::string_view name) { listed.view(name); });
    NameHashes hashes{};
    if (validateName(listed, hashes) == 1) {
        m_invalidOption.setStatus(1);
        return &m_invalidOption;
    }
    KeptTexts kept = keepTexts(listed, type == tarvo2::vt_bool, requiredText(description));
    std::size_t const index = m_options.size();
    OptionDescription& stored = m_options.emplace_back(std::move(kept.names), groupEntry.first, groupEntry.second,
                                                       HeldText::viewing(kept.description), type, m_garbage);
    for (std::size_t i = 0; i < stored.names().size(); ++i) {
        m_names.add(index, i, stored.names()[i], kept.negated[i], hashes[i]);
    }
    stored.linkTo(this, index);
    return &stored;
}

// One piece of the arena for all of an option's texts: each name followed by
// a NUL, a boolean's name right after its "no-" (so that the negated form,
// which the index needs, costs no copy of its own), then the description.
RegisteredOptionStorage::KeptTexts RegisteredOptionStorage::keepTexts(NameList const& listed, bool boolean,
                                                                      std::string_view description) {
    std::size_t const prefix = boolean ? kNegation.size() : 0;
    std::size_t size = description.size() + 1;
    for (std::string_view const name : listed) {
        size += prefix + name.size() + 1;
    }
    char* at = m_texts.place(size);
    KeptTexts kept;
    for (std::size_t i = 0; i < listed.size(); ++i) {
        std::string_view const name = listed[i];
        if (boolean) {
            std::memcpy(at, kNegation.data(), prefix);
            kept.negated[i] = std::string_view(at, prefix + name.size());
        }
        std::memcpy(at + prefix, name.data(), name.size());
        kept.names.view(std::string_view(at + prefix, name.size()));
        at += prefix + name.size();
        *at++ = '\0';
    }
    std::memcpy(at, description.data(), description.size());
    at[description.size()] = '\0';
    kept.description = std::string_view(at, description.size());
    return kept;
}

// A synonym's copy, laid out as keepTexts lays out a name.
std::string_view RegisteredOptionStorage::keep(std::string_view name, bool boolean, std::string_view& negated) {
    if (!boolean) {
        negated = std::string_view();
        return TextArena::copied(m_texts.copy(name));
    }
    negated = TextArena::copied(m_texts.copy(kNegation, name));
    return negated.substr(kNegation.size());
}

void RegisteredOptionStorage::addSynonym(std::size_t option, char const* name, NameList& names) {
    std::string_view negated;
    names.view(keep(name, m_options[option].type() == tarvo2::vt_bool, negated));
    std::size_t const last = names.size() - 1;
    m_names.add(option, last, names[last], negated);
}

void RegisteredOptionStorage::positionalSet(std::size_t option) {
    if (m_firstPositional == static_cast<std::size_t>(-1) || option < m_firstPositional) {
        m_firstPositional = option;
    }
}

// The first title given to a group wins; later ones are ignored. A group met
// before is found without measuring the host's text first.
std::pair<std::string, std::string> const& RegisteredOptionStorage::recordGroup(char const* group) {
    for (auto const& entry : m_groups) {
        if (namesGroup(group, entry.first)) {
            return entry;
        }
    }
    std::string_view const text(group);
    std::size_t const colon = text.find(':');
    std::string_view const title = colon == std::string_view::npos ? std::string_view() : text.substr(colon + 1);
    m_groups.emplace_back(std::string(text.substr(0, colon)), std::string(title));
    return m_groups.back();
}

int RegisteredOptionStorage::split(std::string const& text, std::vector<std::string>& out) {
    splitAtSeparator(text, ',', out);
    return 0;
}

int RegisteredOptionStorage::validateName(std::vector<std::string> const& names) {
    NameHashes hashes{};
    return validateName(viewsOf(names), hashes);
}

// Hashes each name once, for the lookup here and the registration after it.
int RegisteredOptionStorage::validateName(NameList const& names, NameHashes& hashes) {
    if (names.size() > hashes.size() || (names.size() == 3 && names[2].size() > 2)) {
        return 1;
    }
    for (std::size_t i = 0; i < names.size(); ++i) {
        hashes[i] = NameIndex::hashOf(names[i]);
    }
    unsigned long index = 0;
    if (findOption(names, hashes, index) == 0) {
        internal::trace("An option with the same name is already registered: ", names[0]);
        ORNA_2_10::strings::tv2::consoleError() << ORNA_2_10::strings::tv2::to_utf8(std::string(names[0])) << std::endl;
        return 1;
    }
    return 0;
}

// The index lists the candidates of a name in registration order, so its
// first one is the option the scan would meet first.
int RegisteredOptionStorage::findOption(std::vector<std::string> const& names, unsigned long& index) const {
    for (std::string const& name : names) {
        if (found(m_names.firstNamed(name), index)) {
            return 0;
        }
    }
    return 1;
}

int RegisteredOptionStorage::findOption(NameList const& names, NameHashes const& hashes, unsigned long& index) const {
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (found(m_names.firstNamed(names[i], hashes[i]), index)) {
            return 0;
        }
    }
    return 1;
}

bool RegisteredOptionStorage::found(std::size_t candidate, unsigned long& index) const {
    if (candidate == NameIndex::npos) {
        return false;
    }
    index = m_names.candidate(candidate).option;
    return true;
}

}  // namespace quen_3_1
