// Running the library over a script's arguments and gathering what the
// output formats need: each option's values in command-line order, the plain
// arguments that `set --` restores, and the error or help request.
#ifndef QUENOPT_PARSE_OUTCOME_H
#define QUENOPT_PARSE_OUTCOME_H

#include <string>
#include <vector>

#include "option_table.h"

namespace quenopt {

struct OptionValue {
    std::string text;
    int sequence = 0;  // the library's sequence number of the value (or of its default)
};

struct OptionOutcome {
    TableOption const* option = nullptr;
    // Values in command-line order; an occurrence that carries no value (an
    // empty positional argument) counts as one empty value, except for kind none.
    std::vector<OptionValue> values;
    std::vector<int> occurrences;  // sequence numbers of the occurrences
    bool fromDefault = false;      // `values` holds the default alone
    // Values taken from the command line; occurrences for kind none; 0 for a default.
    std::size_t count = 0;
};

struct ParseOutcome {
    int code = 0;       // the library's return code
    std::string error;  // its message when code is not 0
    bool help = false;  // the table's help option was given (and the parse succeeded)
    std::string helpText;
    // Options given on the command line, by first occurrence, then the others in table order.
    std::vector<OptionOutcome> options;
    // The positional option's arguments, then those after "--", as `set --` restores them.
    std::vector<std::string> arguments;
};

// Registers the table with a new parser created with `flags`, parses
// `arguments` (the script's, without a program name) and fills `outcome`.
// Returns false, with `problem` set, only when the library cannot be used at all.
bool runParse(OptionTable const& table, int flags, std::vector<std::string> const& arguments, ParseOutcome& outcome,
              std::string& problem);

}  // namespace quenopt

#endif
