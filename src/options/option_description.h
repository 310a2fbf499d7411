#ifndef QUEN_3_1_OPTIONS_OPTION_DESCRIPTION_H
#define QUEN_3_1_OPTIONS_OPTION_DESCRIPTION_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "options/held_text.h"
#include "options/name_list.h"
#include "quen_3_1/quen.h"

namespace quen_3_1 {

class Garbage;
class RegisteredOptionStorage;

// Everything known about one registered option. Hosts refine it through
// IOption; recognizers, validation, results and help read it.
class OptionDescription final : public IOption {
public:
    // The registry's placeholder: no names, kind vt_empty, no keeper.
    OptionDescription();
    // One that owns copies of its names and description.
    OptionDescription(std::vector<std::string> const& names, std::string const& group, std::string const& groupTitle,
                      std::string description, kel_variant_type_t type, Garbage* garbage);
    // The registry's: names and description view text the registry keeps.
    OptionDescription(NameList&& names, std::string const& group, std::string const& groupTitle, HeldText description,
                      kel_variant_type_t type, Garbage* garbage);
    OptionDescription(OptionDescription const& other) = default;
    OptionDescription& operator=(OptionDescription const& other) = default;
    ~OptionDescription() override = default;

    IOption* synonym(char const* name) override;
    IOption* allowValue(tarvo2::variant_t const& value) override;
    IOption* defaultValue(tarvo2::variant_t const& value) override;
    IOption* tokenize(char c) override;
    IOption* positional() override;

    std::int32_t status() const { return m_status; }
    void setStatus(std::int32_t status) { m_status = status; }
    NameList const& names() const { return m_names; }
    // Followed by a NUL. Throws std::out_of_range for an option registered without names.
    std::string_view primaryName() const { return m_names.at(0); }
    std::string const& group() const { return m_group; }
    std::string const& groupTitle() const { return m_groupTitle; }
    std::string_view description() const { return m_description.view(); }
    bool isPositional() const { return m_positional; }
    bool hasDefault() const { return m_hasDefault; }
    char tokenizer() const { return m_tokenizer; }
    kel_variant_type_t type() const { return m_type; }
    tarvo2::variant_t const& getDefault() const { return m_default; }
    std::vector<tarvo2::variant_t> const& allowedValues() const { return m_allowedValues; }
    Garbage* garbage() const { return m_garbage; }
    // Called by the registry that stores this description, so that names and
    // the positional flag set later reach its indexes, and its synonyms are
    // kept with its other names.
    void linkTo(RegisteredOptionStorage* registry, std::size_t index) {
        m_link.registry = registry;
        m_link.index = index;
    }

    // Runs op.execute<T>() for the native type of m_type; false for kinds
    // without a conversion.
    template <class Op>
    bool typedOperation(Op& op) const;
    // The text converted to m_type; vt_empty when it does not convert.
    tarvo2::variant_t fromString(char const* text, Garbage* keeper) const;
    // The same into `value`, whose content is released first.
    void convert(char const* text, Garbage* keeper, tarvo2::variant_t& value) const;
    // The value rendered through m_type, interned in `keeper`.
    char const* toString(Garbage* keeper, tarvo2::variant_t const& value) const;
    // Display name of m_type used in messages and help.
    std::string getTypeName() const;
    // Converts `text` and checks it against the allowed values; an allowed
    // text it abbreviates replaces it. False with `message` set on refusal.
    bool validate(std::string& text, tarvo2::variant_t& value, std::string& message) const;

private:
    enum class AbbreviationOutcome { Unique, Ambiguous, NoMatch };

    std::string allowedValuesList() const;
    AbbreviationOutcome validateAbbreviation(std::string& text, tarvo2::variant_t& value, std::string& message) const;

    std::int32_t m_status;
    NameList m_names;
    std::string m_group;
    std::string m_groupTitle;
    HeldText m_description;
    bool m_positional;
    bool m_hasDefault;
    char m_tokenizer;
    kel_variant_type_t m_type;
    tarvo2::variant_t m_default;
    std::vector<tarvo2::variant_t> m_allowedValues;
    Garbage* m_garbage;

    // Only the stored description is linked; a copy is nobody's and stays unlinked.
    struct RegistryLink {
        RegisteredOptionStorage* registry = nullptr;
        std::size_t index = 0;
        RegistryLink() = default;
        RegistryLink(RegistryLink const& /*other*/) {}
        // Assignment keeps this description's own link, so assigning to itself changes nothing.
        // NOLINTNEXTLINE(bugprone-unhandled-self-assignment)
        RegistryLink& operator=(RegistryLink const& /*other*/) { return *this; }
        ~RegistryLink() = default;
    };
    RegistryLink m_link;
};

}  // namespace quen_3_1

#endif
