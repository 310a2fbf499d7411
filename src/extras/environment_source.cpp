// Option values from environment variables. They go through parseStream, so
// they are recognized, validated and numbered exactly like command-line
// arguments; a host that reads them first lets the command line win.
#include "extras/environment_source.h"

#include <cstdlib>
#include <exception>

#include "extras/visible_names.h"
#include "frontend/basic_parser.h"
#include "quen_3_1/extras.h"
#include "results/own_result.h"

namespace quen_3_1 {

std::string environmentVariableName(std::string const& prefix, std::string const& name) {
    std::string variable = prefix;
    for (char c : name) {
        if (c == '-') {
            c = '_';
        } else if (c >= 'a' && c <= 'z') {
            c = static_cast<char>(c - 'a' + 'A');
        }
        variable += c;
    }
    return variable;
}

int environmentArguments(RegisteredOptionStorage const& storage, std::string const& prefix,
                         EnvironmentLookup const& lookup, std::string& text, std::string& error) {
    for (std::size_t i = 0; i < storage.size(); ++i) {
        OptionDescription const& option = storage.at(i);
        if (isHiddenOption(option) || option.type() == tarvo2::vt_empty || option.names().empty() ||
            !isTypeableName(option.primaryName())) {
            continue;
        }
        std::string const name(option.primaryName());
        std::string const variable = environmentVariableName(prefix, name);
        char const* found = lookup(variable);
        if (found == nullptr || *found == '\0') {
            continue;
        }
        std::string const value = found;
        if (value.find_first_of("\r\n") != std::string::npos) {
            error = "Environment variable '" + variable + "' holds a line break";
            return 2;
        }
        std::string argument = "--" + name;
        if (option.type() == tarvo2::vt_bool && value == "0") {
            argument = "--no-" + name;
        } else if (option.type() != tarvo2::vt_bool || value != "1") {
            argument += "=" + value;
        }
        text += argument + "\n";
    }
    return 0;
}

int parseEnvironment(IParser* parser, IParseResult* result, char const* prefix) {
    BasicParser* basic = dynamic_cast<BasicParser*>(parser);
    if (basic == nullptr || ownResult(result) == nullptr) {
        return 3;
    }
    std::string text;
    try {
        std::string error;
        EnvironmentLookup const lookup = [](std::string const& variable) { return std::getenv(variable.c_str()); };
        int const code = environmentArguments(basic->storage(), prefix == nullptr ? "" : prefix, lookup, text, error);
        if (code != 0) {
            basic->setLastError(error);
            return code;
        }
    } catch (std::exception const&) {
        return 3;
    }
    return basic->parseStream(text.c_str(), result);
}

}  // namespace quen_3_1
