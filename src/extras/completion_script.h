#ifndef QUEN_3_1_EXTRAS_COMPLETION_SCRIPT_H
#define QUEN_3_1_EXTRAS_COMPLETION_SCRIPT_H

#include <string>
#include <vector>

namespace quen_3_1 {

class RegisteredOptionStorage;

// What a completion script needs to know of a parser's visible options.
struct CompletionModel {
    // How the value of an option completes.
    enum ValueKind : char {
        Boolean = 'b',    // no value; the name has a "no-" form
        NoValue = 'n',    // no value at all
        Allowed = 'v',    // one of the allowed values
        FileName = 'f',   // a text without allowed values: most often a path
        FreeValue = 'x',  // a number or other value that cannot be guessed
    };
    struct Option {
        ValueKind kind;
        std::vector<std::string> values;  // rendered allowed values, for Allowed
    };

    std::vector<std::string> names;   // the recognizer's candidate names, hidden ones left out
    std::vector<std::size_t> owners;  // for each name, its option in `options`
    std::vector<Option> options;      // the visible options that own at least one name
    bool positional = false;          // plain arguments fill an option, so they complete as files
};

CompletionModel makeCompletionModel(RegisteredOptionStorage const& storage);

// The script for "bash", "zsh" or "fish"; empty for any other shell.
std::string renderCompletionScript(CompletionModel const& model, std::string const& program, std::string const& shell);

// The part of a shell function name that stands for `program`: its letters and
// digits, every other byte as '_' followed by its two hex digits, so that no
// two programs share a function.
std::string completionFunctionId(std::string const& program);

}  // namespace quen_3_1

#endif
