#include "options/option_description.h"

#include <utility>

#include "options/registered_option_storage.h"
#include "options/required_text.h"

namespace quen_3_1 {

namespace {

NameList ownedNames(std::vector<std::string> const& names) {
    NameList list;
    for (std::string const& name : names) {
        list.own(name);
    }
    return list;
}

}  // namespace

OptionDescription::OptionDescription()
    : OptionDescription(NameList(), std::string(), std::string(), HeldText(), tarvo2::vt_empty, nullptr) {}

OptionDescription::OptionDescription(std::vector<std::string> const& names, std::string const& group,
                                     std::string const& groupTitle, std::string description, kel_variant_type_t type,
                                     Garbage* garbage)
    : OptionDescription(ownedNames(names), group, groupTitle, HeldText(std::move(description)), type, garbage) {}

OptionDescription::OptionDescription(NameList&& names, std::string const& group, std::string const& groupTitle,
                                     HeldText description, kel_variant_type_t type, Garbage* garbage)
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
    if (m_link.registry == nullptr) {
        m_names.own(requiredText(name));
        return this;
    }
    m_link.registry->addSynonym(m_link.index, requiredText(name), m_names);
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
