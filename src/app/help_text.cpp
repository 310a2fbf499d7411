#include "app/help_text.h"

#include <algorithm>

#include "app/messages.h"

namespace quen_3_1::app_detail {

namespace {

// The column at which the library starts option descriptions, and the width it wraps them to.
std::size_t const kDescriptionColumn = 30;
std::size_t const kDescriptionWidth = 50;

std::string positionalUsage(OptionState const& option) {
    std::string usage = "<" + option.name() + ">";
    if (option.takesMany()) {
        usage += "...";
    }
    return option.m_required ? usage : "[" + usage + "]";
}

// The longest start of `text` that goes on one line: up to a line break or the
// width, and, when that would split a word, up to the last blank before it (a
// word longer than the line is cut).
std::size_t lineLength(std::string const& text) {
    std::size_t const limit = kDescriptionWidth - 1;
    std::size_t const end = std::min(text.find('\n'), limit);
    bool const splitsWord = end < text.size() && text[end] != ' ' && text[end] != '\n' && text[end - 1] != ' ';
    if (!splitsWord) {
        return end;
    }
    std::size_t const blank = text.rfind(' ', end);
    return blank == std::string::npos ? end : blank;
}

// A name and its description, in the library's columns, wrapped as the library wraps
// option descriptions; a name too long for its column gets a line of its own.
std::string row(std::string const& name, std::string description) {
    std::string line = "  " + name;
    std::string rows;
    if (line.size() >= kDescriptionColumn) {
        rows = line + "\n";
        line.clear();
    }
    do {
        description.erase(0, description.find_first_not_of(" \n"));
        std::size_t const length = lineLength(description);
        line.resize(kDescriptionColumn, ' ');
        rows += line + description.substr(0, length) + "\n";
        description.erase(0, length);
        description.erase(0, description.find_first_not_of(" \n"));
        line.clear();
    } while (!description.empty());
    return rows;
}

std::string section(char const* heading, std::string const& rows) {
    return rows.empty() ? std::string() : std::string(heading) + "\n" + rows + "\n";
}

std::string positionalRows(AppState const& app) {
    std::string rows;
    for (auto const& option : app.m_options) {
        if (option->positional() && !option->m_hidden) {
            rows += row(positionalUsage(*option), option->help());
        }
    }
    return rows;
}

std::string commandRows(AppState const& app) {
    std::string rows;
    for (auto const& command : app.m_commands) {
        rows += row(AppState::of(*command).m_name, AppState::of(*command).m_about);
    }
    return rows;
}

}  // namespace

std::string usageLine(AppState const& app) {
    std::string line = text::kUsage + app.m_program + text::kOptionsSuffix;
    for (auto const& option : app.m_options) {
        if (option->positional()) {
            line += " " + positionalUsage(*option);
        }
    }
    if (!app.m_commands.empty()) {
        line += text::kCommandSuffix;
    }
    return line + "\n";
}

std::string helpText(AppState const& app, std::string const& description) {
    std::string help = usageLine(app) + "\n";
    if (!app.m_about.empty()) {
        help += app.m_about + "\n\n";
    }
    // The library's text opens with an empty line and closes each group with one.
    std::string const options = description.size() > 1 && description[0] == '\n' ? description.substr(1) : "";
    help += options.empty() ? "" : std::string(text::kOptionsHeading) + "\n" + options;
    help += section(text::kArgumentsHeading, positionalRows(app));
    help += section(text::kCommandsHeading, commandRows(app));
    if (!app.m_epilog.empty()) {
        help += app.m_epilog + "\n";
    }
    return help;
}

}  // namespace quen_3_1::app_detail
