#ifndef QUEN_3_1_OPTIONS_REGISTERED_OPTION_STORAGE_H
#define QUEN_3_1_OPTIONS_REGISTERED_OPTION_STORAGE_H

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "options/name_index.h"
#include "options/option_description.h"
#include "options/stable_list.h"
#include "values/text_arena.h"

namespace quen_3_1 {

class Garbage;

// The options of one parser, in registration order, and the help groups in
// first-seen order. Descriptions never move, so an IOption* handed to the
// host stays valid for the parser's whole life.
class RegisteredOptionStorage {
public:
    RegisteredOptionStorage() = default;
    RegisteredOptionStorage(RegisteredOptionStorage const&) = delete;
    RegisteredOptionStorage& operator=(RegisteredOptionStorage const&) = delete;
    virtual ~RegisteredOptionStorage() = default;

    // Registers an option; a refused name list returns the detached placeholder
    // (status 1). The group is recorded even then.
    virtual IOption* option(char const* names, char const* description, kel_variant_type_t type, char const* group);

    // Comma-separated names, with the quirks of splitAtSeparator. Returns 0.
    static int split(std::string const& text, std::vector<std::string>& out);
    // 0 when the list may be registered, 1 when too long, badly formed or clashing.
    int validateName(std::vector<std::string> const& names);
    // 0 with `index` set when any of `names` (or "no-" + a boolean's name) is taken.
    int findOption(std::vector<std::string> const& names, unsigned long& index) const;

    // Every name the options answer to.
    NameIndex const& names() const { return m_names; }
    // Index of the first option declared positional; all bits set when there is none.
    std::size_t firstPositional() const { return m_firstPositional; }
    // Told by a stored option when the host refines it. A synonym is kept
    // here, appended to `names` (the option's) and to the index.
    void addSynonym(std::size_t option, char const* name, NameList& names);
    void positionalSet(std::size_t option);

    void setGarbage(Garbage* garbage) { m_garbage = garbage; }
    std::size_t size() const { return m_options.size(); }
    OptionDescription const& at(std::size_t index) const { return m_options[index]; }
    std::vector<std::pair<std::string, std::string>> const& groups() const { return m_groups; }
    OptionDescription const& invalidOption() const { return m_invalidOption; }

private:
    // The hashes of a name list that may be registered (at most three names).
    using NameHashes = std::array<std::uint64_t, 3>;

    std::pair<std::string, std::string> const& recordGroup(char const* group);
    // An accepted option's texts as the arena keeps them; `negated` only for a boolean.
    struct KeptTexts {
        NameList names;
        std::array<std::string_view, std::tuple_size<NameHashes>::value> negated{};
        std::string_view description;
    };
    KeptTexts keepTexts(NameList const& listed, bool boolean, std::string_view description);
    // A copy of `name` in the arena; a boolean's "no-" form of it in `negated`,
    // else an empty view.
    std::string_view keep(std::string_view name, bool boolean, std::string_view& negated);
    int validateName(NameList const& names, NameHashes& hashes);
    int findOption(NameList const& names, NameHashes const& hashes, unsigned long& index) const;
    // True with `index` set to the option of `candidate`, unless it is npos.
    bool found(std::size_t candidate, unsigned long& index) const;

    // The descriptions' texts and the options' names: one block for many
    // options instead of allocations each. Declared first, so that it
    // outlives the options and the index.
    TextArena m_texts;
    StableList<OptionDescription> m_options;
    std::vector<std::pair<std::string, std::string>> m_groups;
    Garbage* m_garbage = nullptr;
    OptionDescription m_invalidOption;
    NameIndex m_names;
    std::size_t m_firstPositional = static_cast<std::size_t>(-1);
};

}  // namespace quen_3_1

#endif
