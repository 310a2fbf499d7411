// The two ways arguments arrive: a process command line and an option text
// with one argument per line.
#include <exception>

#include "frontend/basic_parser.h"
#include "frontend/option_text_lines.h"
#include "frontend/ustring.h"
#include "recognizers/argument_parser.h"
#include "results/parse_result.h"

namespace quen_3_1 {

namespace {

ParseResult* asParseResult(IParseResult* result) { return dynamic_cast<ParseResult*>(result); }

}  // namespace

// Defaults are applied before anything else; an exception from that step is
// not caught, as hosts have always seen it.
int BasicParser::parseArgsVector(int argc, char** argv, IParseResult* result) {
    if (int const spent = refuseWhenNumbersSpent()) {
        return spent;
    }
    ParseResult* const parseResult = asParseResult(result);
    if (parseResult != nullptr) {
        std::string error;
        int const code = parseResult->applyDefault(m_storage, error);
        if (code != 0) {
            setLastError(error);
            return code;
        }
    }
    if (argc <= 1) {
        return 0;
    }
    if (argv == nullptr) {
        return 3;
    }
    try {
        std::vector<std::string> args(argv + 1, argv + argc);
        return parseVector(args, result);
    } catch (std::exception const&) {
        return 3;
    }
}

// Unlike parseArgsVector, no defaults are applied: a text adds to what a
// command line already gave.
int BasicParser::parseStream(char const* text, IParseResult* result) {
    if (int const spent = refuseWhenNumbersSpent()) {
        return spent;
    }
    try {
        std::vector<std::string> args = argumentsOfText(ORNA_2_10::strings::tv2::to_ustring(text));
        return parseVector(args, result);
    } catch (std::exception const&) {
        return 3;
    }
}

// Once the sequence numbers are spent every parse fails alike, whether or not
// it would have needed one.
int BasicParser::refuseWhenNumbersSpent() {
    if (!IArgumentParser::numbersExhausted()) {
        return 0;
    }
    setLastError(IArgumentParser::kNumbersExhaustedMessage);
    return IArgumentParser::kNumbersExhaustedCode;
}

int BasicParser::parseVector(std::vector<std::string>& args, IParseResult* result) {
    try {
        std::string error;
        ArgumentList list(std::move(args));
        int code = parse("--", list, result, error);
        if (code == 0) {
            code = collectNonparsingArguments("--", list, asParseResult(result), error);
        }
        args = list.takeRemaining();
        if (code != 0) {
            setLastError(error);
        }
        return code;
    } catch (std::exception const&) {
        setLastError("Unidentified problem detected.");
        return 4;
    }
}

}  // namespace quen_3_1
