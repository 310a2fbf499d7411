// Recognition: the recognizers bid for each leading argument and the one with
// the greatest priority consumes it; what follows the terminator is kept as
// plain arguments.
#include <exception>

#include "frontend/basic_parser.h"
#include "frontend/messages.h"
#include "frontend/trace.h"
#include "recognizers/abbreviation_parser.h"
#include "recognizers/messages.h"
#include "recognizers/positional_options_parser.h"
#include "results/own_result.h"

namespace quen_3_1 {

Status BasicParser::parse(std::string const& terminator, ArgumentList& args, IParseResult* result, std::string& error) {
    internal::quenLogEnabled = false;
    if (!args.empty() && args[0] == frontend_messages::traceSwitch()) {
        internal::quenLogEnabled = true;
        args.popFront();
    }
    PositionalOptionsParser positional(this, &m_garbage, m_flags);
    AbbreviationParser abbreviation(this, &m_garbage, m_flags);
    IArgumentParser* const recognizers[] = {&positional, &abbreviation};
    Recognition findings[2];
    IResultCollector* const collector = ownResult(result);
    while (!args.empty() && args[0] != terminator) {
        // Every recognizer looks; the greatest priority wins, the earlier one a tie.
        std::size_t chosen = 2;
        for (std::size_t i = 0; i < 2; ++i) {
            if (recognizers[i]->recognize(args, m_storage, findings[i]) &&
                (chosen == 2 || recognizers[i]->getPriority() > recognizers[chosen]->getPriority())) {
                chosen = i;
            }
        }
        if (chosen != 2) {
            Status const status = recognizers[chosen]->parse(args, findings[chosen], collector, m_storage, error);
            if (status != Status::Ok) {
                return status;
            }
            continue;
        }
        // Handlers hear of every unclaimed argument, whether or not it is an error.
        bool const unknown = onUknownArgument(args[0].data());
        if ((m_flags & FlagUnknownIsError) != 0 && unknown) {
            error = frontend_messages::unknownOption(std::string(args[0]));
            return Status::Failed;
        }
        internal::trace("ignoring ", args[0]);
        args.popFront();
    }
    return Status::Ok;
}

Status BasicParser::collectNonparsingArguments(ArgumentList const& args, ParseResult* result, std::string& error) {
    try {
        for (std::size_t i = 1; i < args.size(); ++i) {
            std::string const argument(args[i]);
            std::int32_t const number = IArgumentParser::takeNumber();
            if (number == IArgumentParser::kNoNumber) {
                error = recognizer_messages::numbersExhausted();
                return Status::NumbersExhausted;
            }
            if (result != nullptr) {
                result->appendArgument(argument, number);
            }
            internal::trace("collectNonparsingArguments: stored argument: '", argument, "'");
            if ((m_flags & FlagPositionalAfterTerminator) != 0) {
                Status const status = offerToPositional(argument, result, error);
                if (status != Status::Ok) {
                    return status;
                }
            }
        }
        return Status::Ok;
    } catch (std::exception const&) {
        return Status::Refused;
    }
}

// After the terminator even an argument beginning with '-' may fill the
// positional option, so FlagNoHyphenPositional does not apply.
Status BasicParser::offerToPositional(std::string const& argument, ParseResult* result, std::string& error) {
    PositionalOptionsParser positional(this, &m_garbage, m_flags & ~FlagNoHyphenPositional);
    ArgumentList single(std::vector<std::string>{argument});
    Recognition found;
    bool const taken = positional.recognize(single, m_storage, found);
    internal::trace("collectNonparsingArguments: recognize result: ", taken ? 0 : 1, ", message: ", error);
    if (!taken) {
        return Status::Ok;
    }
    Status const status = positional.parse(single, found, result, m_storage, error);
    internal::trace("collectNonparsingArguments: parse result: ", codeOf(status), ", message: ", error);
    return status;
}

}  // namespace quen_3_1
