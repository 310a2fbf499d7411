// Completion scripts for bash, zsh and fish. Each script carries the visible
// option names and values, and its own copy of the recognizer's part-wise
// scoring, so that --l-f expands to --log-file without calling the program
// back: completion then costs no start of the program and no side effects.
// The shell text itself is in extras/completion, one file per shell.
#include "extras/completion_script.h"

#include <cstdio>
#include <exception>
#include <utility>

#include "extras/completion_templates.h"
#include "extras/visible_names.h"
#include "frontend/basic_parser.h"
#include "quen_3_1/extras.h"

namespace quen_3_1 {

namespace {

// Single quotes for bash and zsh: a quote inside becomes '\''.
std::string posixQuote(std::string const& text) {
    std::string quoted = "'";
    for (char c : text) {
        quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    }
    return quoted + "'";
}

// Single quotes for fish, where only \\ and \' are escapes inside them.
std::string fishQuote(std::string const& text) {
    std::string quoted = "'";
    for (char c : text) {
        if (c == '\\' || c == '\'') {
            quoted += '\\';
        }
        quoted += c;
    }
    return quoted + "'";
}

std::string joinQuoted(std::vector<std::string> const& words, std::string (*quote)(std::string const&)) {
    std::string joined;
    for (std::string const& word : words) {
        joined += (joined.empty() ? "" : " ") + quote(word);
    }
    return joined;
}

// The model's data as local variables. Bash counts options from 0, zsh and
// fish from 1; each shell's indices follow its own arrays.
std::string renderData(CompletionModel const& model, std::string const& shell) {
    bool const fish = shell == "fish";
    std::size_t const base = shell == "bash" ? 0 : 1;
    std::string (*quote)(std::string const&) = fish ? fishQuote : posixQuote;
    std::string owners;
    for (std::size_t owner : model.owners) {
        owners += (owners.empty() ? "" : " ") + std::to_string(owner + base);
    }
    std::string kinds;
    for (CompletionModel::Option const& option : model.options) {
        kinds += (kinds.empty() ? "" : " ") + std::string(1, static_cast<char>(option.kind));
    }
    std::string data;
    auto variable = [&](std::string const& name, std::string const& list, bool array) {
        if (fish) {
            data += "    set -l " + name + (list.empty() ? "" : " " + list) + "\n";
        } else if (array) {
            data += "    local -a " + name + "=(" + list + ")\n";
        } else {
            data += "    local " + name + "=" + list + "\n";
        }
    };
    variable("names", joinQuoted(model.names, quote), true);
    variable("owners", owners, true);
    variable("kinds", kinds, true);
    for (std::size_t i = 0; i < model.options.size(); ++i) {
        if (model.options[i].kind == CompletionModel::Allowed) {
            variable("values_" + std::to_string(i + base), joinQuoted(model.options[i].values, quote), true);
        }
    }
    variable("positional", model.positional ? "1" : "0", false);
    return data;
}

// Fills the placeholders in one pass, so that a name or value that happens
// to look like a placeholder stays as it is.
std::string fill(std::string const& text, std::vector<std::pair<std::string, std::string>> const& fills) {
    std::string filled;
    std::size_t at = 0;
    while (at < text.size()) {
        bool replaced = false;
        for (auto const& entry : fills) {
            if (text.compare(at, entry.first.size(), entry.first) == 0) {
                filled += entry.second;
                at += entry.first.size();
                replaced = true;
                break;
            }
        }
        if (!replaced) {
            filled += text[at++];
        }
    }
    return filled;
}

CompletionModel::ValueKind valueKind(OptionDescription const& option) {
    switch (option.type()) {
        case tarvo2::vt_bool:
            return CompletionModel::Boolean;
        case tarvo2::vt_empty:
            return CompletionModel::NoValue;
        default:
            break;
    }
    if (!option.allowedValues().empty()) {
        return CompletionModel::Allowed;
    }
    switch (option.type()) {
        case tarvo2::vt_str:
        case tarvo2::vt_wstr:
        case tarvo2::vt_str_ref:
        case tarvo2::vt_wstr_ref:
            return CompletionModel::FileName;
        default:
            return CompletionModel::FreeValue;
    }
}

}  // namespace

CompletionModel makeCompletionModel(RegisteredOptionStorage const& storage) {
    CompletionModel model;
    std::size_t const none = storage.size();
    std::vector<std::size_t> modelIndex(storage.size(), none);
    for (VisibleName const& visible : visibleNames(storage)) {
        if (modelIndex[visible.option] == none) {
            OptionDescription const& option = storage.at(visible.option);
            CompletionModel::Option entry{valueKind(option), {}};
            if (entry.kind == CompletionModel::Allowed) {
                for (tarvo2::variant_t const& allowed : option.allowedValues()) {
                    std::string const text = option.toString(option.garbage(), allowed);
                    if (!text.empty() && text.find_first_of(std::string("\n\r\0", 3)) == std::string::npos) {
                        entry.values.push_back(text);
                    }
                }
            }
            modelIndex[visible.option] = model.options.size();
            model.options.push_back(entry);
        }
        model.names.push_back(visible.name);
        model.owners.push_back(modelIndex[visible.option]);
    }
    for (std::size_t i = 0; i < storage.size(); ++i) {
        model.positional = model.positional || storage.at(i).isPositional();
    }
    return model;
}

std::string completionFunctionId(std::string const& program) {
    std::string id;
    for (char c : program) {
        if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9')) {
            id += c;
        } else {
            char hex[4];
            std::snprintf(hex, sizeof hex, "_%02x", static_cast<unsigned>(static_cast<unsigned char>(c)));
            id += hex;
        }
    }
    return id;
}

std::string renderCompletionScript(CompletionModel const& model, std::string const& program, std::string const& shell) {
    char const* script = shell == "bash"   ? kBashCompletionTemplate
                         : shell == "zsh"  ? kZshCompletionTemplate
                         : shell == "fish" ? kFishCompletionTemplate
                                           : nullptr;
    if (script == nullptr || program.find_first_of("\n\r") != std::string::npos) {
        return std::string();
    }
    // The templates' placeholders: @DATA@ (the names, owners, kinds, values
    // and positional flag, as the shell's variables), @ID@ (function name
    // part) and @PROGRAM@ (the program, quoted for the shell).
    return fill(script, {{"@DATA@\n", renderData(model, shell)},
                         {"@ID@", completionFunctionId(program)},
                         {"@PROGRAM@", shell == "fish" ? fishQuote(program) : posixQuote(program)}});
}

char const* completionScript(IParser* parser, char const* program, char const* shell) {
    BasicParser* basic = dynamic_cast<BasicParser*>(parser);
    if (basic == nullptr || program == nullptr || *program == '\0' || shell == nullptr) {
        return nullptr;
    }
    try {
        std::string const script = renderCompletionScript(makeCompletionModel(basic->storage()), program, shell);
        return script.empty() ? nullptr : basic->keeper().keep(script);
    } catch (std::exception const&) {
        return nullptr;
    }
}

}  // namespace quen_3_1
