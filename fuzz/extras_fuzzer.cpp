// The extras over fuzzed option tables: completion scripts, suggestions and
// options from the environment.
//
// Input: lines. Lines up to the first empty line declare options as
// "names|kind|group|allowed,values|flags"; then one line is the program name,
// one the typed text for suggestions, and every further line "NAME=value"
// sets the environment variable QUENFUZZ_NAME for parseEnvironment.
//
// Checked: a completion script comes for every valid program name; outside
// single quotes it is byte for byte the script of the same table under
// harmless names (no byte of a name, value or program reaches the script
// unquoted); suggestions are at most `max` distinct visible names;
// parseEnvironment answers with a code.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <set>
#include <string>
#include <vector>

#include "extras/completion_script.h"
#include "extras/visible_names.h"
#include "frontend/basic_parser.h"
#include "fuzz_support.h"
#include "quen_3_1/extras.h"

namespace {

using quen_fuzz::splitAt;

char const kPrefix[] = "QUENFUZZ_";

tarvo2::kel_variant_type_t kindOf(std::string const& text) {
    switch (text.empty() ? 's' : text[0]) {
        case 'b':
            return tarvo2::vt_bool;
        case 'i':
            return tarvo2::vt_int;
        case 'd':
            return tarvo2::vt_double;
        case 'n':
            return tarvo2::vt_empty;
        default:
            return tarvo2::vt_str;
    }
}

void declare(quen_3_1::IParser* parser, std::string const& line, std::vector<std::string>& names) {
    std::vector<std::string> fields = splitAt(line, '|');
    fields.resize(5);
    tarvo2::kel_variant_type_t const kind = kindOf(fields[1]);
    quen_3_1::IOption* option = parser->option(fields[0].c_str(), "", kind, fields[2].c_str());
    if (!fields[3].empty()) {
        for (std::string const& value : splitAt(fields[3], ',')) {
            option->allowValue(kind == tarvo2::vt_int ? tarvo2::variant_t(static_cast<int>(value.size()))
                                                      : tarvo2::variant_t(value.c_str()));
        }
    }
    for (char c : fields[4]) {
        if (c == '@') {
            option->positional();
        } else if (c == '+') {
            option->synonym((fields[0] + "-alias").c_str());
        }
    }
    for (std::string const& name : splitAt(fields[0], ',')) {
        names.push_back(name);
    }
}

// Where the quoted run that starts after the quote at `open` ends: at the
// next quote; in fish a backslash escapes a backslash or a quote inside quotes.
std::size_t closingQuote(std::string const& script, std::size_t open, bool fish) {
    for (std::size_t i = open + 1; i < script.size(); ++i) {
        if (fish && script[i] == '\\' && i + 1 < script.size() && (script[i + 1] == '\\' || script[i + 1] == '\'')) {
            ++i;
        } else if (script[i] == '\'') {
            return i;
        }
    }
    quen_fuzz::check(false, "every quote of the script is closed");
    return script.size();
}

// The script with every run of quoted texts and backslash-escaped bytes --
// literal text to the shell -- written as one quote byte: what is left is
// what the shell reads as code.
std::string unquoted(std::string const& script, bool fish) {
    std::string out;
    std::size_t i = 0;
    while (i < script.size()) {
        bool literal = false;
        while (i < script.size()) {
            if (script[i] == '\'') {
                i = closingQuote(script, i, fish) + 1;
            } else if (script[i] == '\\' && i + 1 < script.size() && script[i + 1] != '\n') {
                i += 2;
            } else {
                break;
            }
            literal = true;
        }
        if (literal) {
            out += '\'';
        } else if (i < script.size()) {
            out += script[i++];
        }
    }
    return out;
}

// The script with the functions named for `program` renamed for "ID".
std::string withNeutralFunctions(std::string text, std::string const& program) {
    std::string const id = quen_3_1::completionFunctionId(program);
    for (char const* function : {"_quen_best_", "_quen_files_", "_quen_complete_", "_quen_candidates_"}) {
        std::string const from = function + id;
        std::string const to = function + std::string("ID");
        for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size())) {
            text.replace(at, from.size(), to);
        }
    }
    return text;
}

void checkCompletion(quen_3_1::IParser* parser, std::string const& line) {
    std::string const program = line.c_str();  // as a host would pass it
    auto* basic = dynamic_cast<quen_3_1::BasicParser*>(parser);
    quen_3_1::CompletionModel const model = quen_3_1::makeCompletionModel(basic->storage());
    // The same table under harmless names and values, for a harmless program.
    quen_3_1::CompletionModel harmless = model;
    for (std::size_t i = 0; i < harmless.names.size(); ++i) {
        harmless.names[i] = "n" + std::to_string(i);
    }
    for (quen_3_1::CompletionModel::Option& option : harmless.options) {
        for (std::size_t i = 0; i < option.values.size(); ++i) {
            option.values[i] = "v" + std::to_string(i);
        }
    }
    bool const valid = !program.empty() && program.find('\r') == std::string::npos;
    for (char const* shell : {"bash", "zsh", "fish"}) {
        char const* script = quen_3_1::completionScript(parser, program.c_str(), shell);
        quen_fuzz::check((script != nullptr) == valid, "a script for every valid program name");
        if (script == nullptr) {
            continue;
        }
        bool const fish = std::string(shell) == "fish";
        std::string const reference = quen_3_1::renderCompletionScript(harmless, "p", shell);
        quen_fuzz::check(unquoted(withNeutralFunctions(script, program), fish) ==
                             unquoted(withNeutralFunctions(reference, "p"), fish),
                         "outside quotes the script is that of harmless names");
    }
    quen_fuzz::check(quen_3_1::completionScript(parser, program.c_str(), "tcsh") == nullptr, "no script for tcsh");
}

void checkSuggestions(quen_3_1::IParser* parser, std::string const& typed, int max) {
    auto* basic = dynamic_cast<quen_3_1::BasicParser*>(parser);
    std::set<std::string> visible;
    for (quen_3_1::VisibleName const& name : quen_3_1::visibleNames(basic->storage())) {
        visible.insert(name.name);
    }
    std::vector<char const*> out(static_cast<std::size_t>(max) + 1, nullptr);
    int const count = quen_3_1::suggestNames(parser, typed.c_str(), out.data(), max);
    quen_fuzz::check(count >= 0 && count <= max, "at most max suggestions");
    std::set<std::string> seen;
    for (int i = 0; i < count; ++i) {
        quen_fuzz::check(out[static_cast<std::size_t>(i)] != nullptr, "a suggestion is a text");
        std::string const name = out[static_cast<std::size_t>(i)];
        quen_fuzz::check(visible.count(name) == 1, "every suggestion is a visible name");
        quen_fuzz::check(seen.insert(name).second, "no name is suggested twice");
    }
    quen_fuzz::check(out[static_cast<std::size_t>(max)] == nullptr, "nothing written beyond max");
}

void checkEnvironment(quen_3_1::IParser* parser, std::vector<std::string> const& lines,
                      std::vector<std::string> const& names) {
    std::vector<std::string> variables;
    for (std::string const& line : lines) {
        std::size_t const equals = line.find('=');
        std::string const name = kPrefix + line.substr(0, equals);
        if (equals == std::string::npos || name.find('\0') != std::string::npos) {
            continue;
        }
        setenv(name.c_str(), line.c_str() + equals + 1, 1);
        variables.push_back(name);
    }
    quen_3_1::IParseResult* result = nullptr;
    parser->createResult(&result);
    int const code = quen_3_1::parseEnvironment(parser, result, kPrefix);
    quen_fuzz::check(quen_fuzz::isLibraryCode(code), "parseEnvironment answers with a code");
    quen_fuzz::HandedOut texts;
    quen_fuzz::walkResult(result, names, texts);
    texts.verifyReadable();
    result->destroy();
    for (std::string const& name : variables) {
        unsetenv(name.c_str());
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    std::string const input(reinterpret_cast<char const*>(data), size);
    std::size_t const split = input.find("\n\n");
    std::vector<std::string> rest =
        split == std::string::npos ? std::vector<std::string>() : splitAt(input.substr(split + 2), '\n');
    rest.resize(std::max<std::size_t>(rest.size(), 2));
    quen_3_1::IParser* parser = nullptr;
    quen_fuzz::check(quen_3_1::createParser(&parser, static_cast<int>(size % 32)) == 0, "parser created");
    std::vector<std::string> names;
    std::vector<std::string> const table = splitAt(input.substr(0, split), '\n');
    for (std::size_t i = 0; i < table.size() && i < 64; ++i) {
        declare(parser, table[i], names);
    }
    checkCompletion(parser, rest[0]);
    checkSuggestions(parser, rest[1], static_cast<int>(size % 6));
    checkEnvironment(parser, std::vector<std::string>(rest.begin() + 2, rest.end()), names);
    parser->destroy();
    return 0;
}
