// The two ways arguments arrive: a process command line and an option text
// with one argument per line.
#include <exception>

#include "frontend/basic_parser.h"
#include "frontend/messages.h"
#include "frontend/option_text_lines.h"
#include "frontend/ustring.h"
#include "recognizers/argument_parser.h"
#include "recognizers/messages.h"
#include "results/own_result.h"

namespace quen_3_1 {

// Defaults are applied before anything else; an exception from that step is
// not caught, as hosts have always seen it.
int BasicParser::parseArgsVector(int argc, char** argv, IParseResult* result) {
    if (Status const spent = refuseWhenNumbersSpent(); spent != Status::Ok) {
        return codeOf(spent);
    }
    ParseResult* const parseResult = ownResult(result);
    if (parseResult != nullptr) {
        std::string error;
        Status const applied = parseResult->applyDefault(m_storage, error);
        if (applied != Status::Ok) {
            setLastError(error);
            return codeOf(applied);
        }
    }
    if (argc <= 1) {
        return 0;
    }
    if (argv == nullptr) {
        return codeOf(Status::Refused);
    }
    try {
        std::vector<std::string_view> views;
        views.reserve(static_cast<std::size_t>(argc - 1));
        for (int i = 1; i < argc; ++i) {
            if (argv[i] == nullptr) {
                return codeOf(Status::Refused);
            }
            views.emplace_back(argv[i]);
        }
        ArgumentList list(std::move(views));
        return codeOf(parseList(list, result));
    } catch (std::exception const&) {
        return codeOf(Status::Refused);
    }
}

// Unlike parseArgsVector, no defaults are applied: a text adds to what a
// command line already gave.
int BasicParser::parseStream(char const* text, IParseResult* result) {
    if (Status const spent = refuseWhenNumbersSpent(); spent != Status::Ok) {
        return codeOf(spent);
    }
    try {
        std::string whole = ORNA_2_10::strings::tv2::to_ustring(text);
        std::vector<std::pair<std::size_t, std::size_t>> const spans = argumentSpansOfText(whole);
        ArgumentList list(std::move(whole), spans);
        return codeOf(parseList(list, result));
    } catch (std::exception const&) {
        return codeOf(Status::Refused);
    }
}

// Once the sequence numbers are spent every parse fails alike, whether or not
// it would have needed one.
Status BasicParser::refuseWhenNumbersSpent() {
    if (!IArgumentParser::numbersExhausted()) {
        return Status::Ok;
    }
    setLastError(recognizer_messages::numbersExhausted());
    return Status::NumbersExhausted;
}

Status BasicParser::parseList(ArgumentList& list, IParseResult* result) {
    try {
        std::string error;
        Status status = parse("--", list, result, error);
        if (status == Status::Ok) {
            status = collectNonparsingArguments(list, ownResult(result), error);
        }
        if (status != Status::Ok) {
            setLastError(error);
        }
        return status;
    } catch (std::exception const&) {
        setLastError(frontend_messages::unidentifiedProblem());
        return Status::Unidentified;
    }
}

}  // namespace quen_3_1
