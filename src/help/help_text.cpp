// The help text: groups in registry order, one entry per listed option with
// its names and value syntax, descriptions wrapped into a right-hand column.
#include "help/help_text.h"

#include <sstream>

#include "options/registered_option_storage.h"

namespace quen_3_1 {

namespace {

char const kHiddenGroup[] = "quen_hidden";
std::size_t const kNameColumnLimit = 29;
unsigned long const kDescriptionColumn = 30;
unsigned long const kDescriptionWidth = 50;
unsigned long const kGroupIndent = 1;
unsigned long const kGroupWidth = 80;

bool isShown(std::string const& group, bool hidden) { return (group == kHiddenGroup) == hidden; }

// Synonyms first, the most recently added first; the primary name last.
std::string namesPart(OptionDescription const& option) {
    NameList const& names = option.names();
    std::string_view const primary = names.at(0);
    std::string head;
    for (std::size_t i = names.size() - 1; i >= 1; --i) {
        head += "-";
        head += names[i];
        head += ", ";
    }
    head += "-";
    head += primary;
    return head;
}

// The default marker follows the form that the default selects.
std::string booleanPart(OptionDescription const& option) {
    bool const hasDefault = option.hasDefault();
    bool const defaultTrue = option.getDefault().m_data != 0;
    std::string part = hasDefault && defaultTrue ? " (default)" : "";
    part += " | -no-";
    part += option.primaryName();
    if (hasDefault && !defaultTrue) {
        part += " (default)";
    }
    return part;
}

std::string valuePart(OptionDescription const& option) {
    std::string part;
    std::vector<tarvo2::variant_t> const& allowed = option.allowedValues();
    if (allowed.empty()) {
        part = "=<" + option.getTypeName() + ">";
    } else {
        part = "=";
        for (std::size_t i = 0; i < allowed.size(); ++i) {
            part += (i == 0 ? "" : " | ");
            part += option.toString(option.garbage(), allowed[i]);
        }
    }
    if (option.hasDefault()) {
        part += " (" + std::string(option.toString(option.garbage(), option.getDefault())) + ")";
    }
    return part;
}

std::string headOf(OptionDescription const& option) {
    std::string head = namesPart(option);
    if (option.type() == tarvo2::vt_bool) {
        head += booleanPart(option);
    } else if (option.type() != tarvo2::vt_empty) {
        head += valuePart(option);
    }
    return head;
}

// A head too long for the name column gets a line of its own.
std::string describeOption(OptionDescription const& option) {
    std::string head = headOf(option);
    std::string prefix;
    if (head.size() > kNameColumnLimit) {
        prefix = head + "\n";
        head.clear();
    }
    return prefix + paragraphString(std::string(option.description()), head, kDescriptionColumn, kDescriptionWidth);
}

}  // namespace

std::string describeOptions(RegisteredOptionStorage const& options, bool hidden) {
    std::stringstream text;
    text << "\n";
    for (auto const& group : options.groups()) {
        if (!isShown(group.first, hidden)) {
            continue;
        }
        if (!group.first.empty()) {
            text << group.first << "\n";
        }
        if (!group.second.empty()) {
            text << paragraphString(group.second, "", kGroupIndent, kGroupWidth) << "\n";
        }
        for (std::size_t i = 0; i < options.size(); ++i) {
            OptionDescription const& option = options.at(i);
            if (!option.isPositional() && option.group() == group.first) {
                text << describeOption(option);
            }
        }
        text << "\n";
    }
    return text.str();
}

// An empty text drops the head. A text ending in blanks or newlines gives a
// last line of indentation only: the emptiness test precedes the stripping.
std::string paragraphString(std::string text, std::string head, unsigned long indent, unsigned long width) {
    if (text.empty()) {
        return std::string();
    }
    std::string out;
    std::string line = std::move(head);
    for (;;) {
        text.erase(0, text.find_first_not_of(" \n"));
        unsigned long limit = 0;
        if (line.size() < indent) {
            line.resize(indent, ' ');
            limit = width - 1;
        } else {
            limit = width - 2 + indent - line.size();
            line += ' ';
        }
        std::size_t const n = std::min<std::size_t>(text.find('\n'), limit);
        std::string chunk = text.substr(0, n);
        if (chunk.size() < text.size() && text[n] != ' ' && text.at(n - 1) != ' ' && text[n] != '\n') {
            std::size_t const space = text.rfind(' ', n);
            chunk = space == std::string::npos ? text : text.substr(0, space);
        }
        if (chunk.size() > limit) {
            chunk.resize(limit);
        }
        out += line + chunk + "\n";
        text.erase(0, chunk.size());
        line.clear();
        if (text.empty()) {
            return out;
        }
    }
}

}  // namespace quen_3_1
