#include "options/option_description.h"

#include <utility>

#include "options/registered_option_storage.h"

namespace quen_3_1 {

OptionDescription::OptionDescription()
    : OptionDescription(std::vector<std::string>(), std::string(), std::string(), std::string(), tarvo2::vt_empty,
                        nullptr) {}

OptionDescription::OptionDescription(std::vector<std::string> names, std::string const& group,
                                     std::string const& groupTitle, std::string description, kel_variant_type_t type,
                                     Garbage* garbage)
    : OptionDescription(std::move(names), group, groupTitle, HeldText(std::move(description)), type, garbage) {}

OptionDescription::OptionDescription(std::vector<std::string>&& names, std::string const& group,
                                     std::string const& groupTitle, HeldText description, kel_variant_type_t type,
                                     Garbage* garbage)
    : m_status(0),
      m_names(std::move(names)),
      m_group(group),
      m_groupTitle(groupTitle),
      m_description(std::move(description)),
      m_positional(false),
      m_hasDefault(false),
      m_tokenizer(','),
      m_type(type),
      m_garbage(garbage) {}

IOption* OptionDescription::synonym(char const* name) {
    m_names.emplace_back(name);
    if (m_link.registry != nullptr) {
        m_link.registry->nameAdded(m_link.index);
    }
    return this;
}

IOption* OptionDescription::allowValue(tarvo2::variant_t const& value) {
    m_allowedValues.push_back(value);
    return this;
}

IOption* OptionDescription::defaultValue(tarvo2::variant_t const& value) {
    m_default = value;
    m_hasDefault = true;
    return this;
}

IOption* OptionDescription::tokenize(char c) {
    m_tokenizer = c;
    return this;
}

IOption* OptionDescription::positional() {
    m_positional = true;
    if (m_link.registry != nullptr) {
        m_link.registry->positionalSet(m_link.index);
    }
    return this;
}

}  // namespace quen_3_1
