// Recognition: the recognizers bid for each leading argument and the one with
// the greatest priority consumes it; what follows the terminator is kept as
// plain arguments.
#include <exception>
#include <memory>

#include "frontend/basic_parser.h"
#include "frontend/trace.h"
#include "recognizers/abbreviation_parser.h"
#include "recognizers/positional_options_parser.h"
#include "results/parse_result.h"

namespace quen_3_1 {

namespace {

char const kTraceSwitch[] = "quenoption=quenlogenable=1";

// The claimant with the greatest priority; the earlier one wins a tie.
IArgumentParser* chooseClaimant(std::vector<IArgumentParser*> const& claimants) {
    IArgumentParser* best = nullptr;
    int bestPriority = -99999999;
    for (IArgumentParser* claimant : claimants) {
        if (claimant->getPriority() > bestPriority) {
            bestPriority = claimant->getPriority();
            best = claimant;
        }
    }
    return best;
}

}  // namespace

int BasicParser::parse(std::string const& terminator, ArgumentList& args, IParseResult* result, std::string& error) {
    internal::quenLogEnabled = false;
    if (!args.empty() && args[0] == kTraceSwitch) {
        internal::quenLogEnabled = true;
        args.popFront();
    }
    PositionalOptionsParser positional(this, &m_garbage, m_flags);
    AbbreviationParser abbreviation(this, &m_garbage, m_flags);
    std::vector<IArgumentParser*> const recognizers{&positional, &abbreviation};
    IResultCollector* const collector = dynamic_cast<ParseResult*>(result);
    std::vector<IArgumentParser*> claimants;
    while (!args.empty() && args[0] != terminator) {
        claimants.clear();
        for (IArgumentParser* recognizer : recognizers) {
            std::string message;
            if (recognizer->recognize(args, m_storage, message) == 0) {
                claimants.push_back(recognizer);
            }
        }
        if (!claimants.empty()) {
            int const code = chooseClaimant(claimants)->parse(args, collector, m_storage, error);
            if (code != 0) {
                return code;
            }
            continue;
        }
        // Handlers hear of every unclaimed argument, whether or not it is an error.
        bool const unknown = onUknownArgument(args[0].c_str());
        if ((m_flags & FlagUnknownIsError) != 0 && unknown) {
            error = "Unknown option: " + args[0];
            return 2;
        }
        internal::trace("ignoring ", args[0]);
        args.popFront();
    }
    return 0;
}

int BasicParser::collectNonparsingArguments(std::string const& terminator, ArgumentList& args, ParseResult* result,
                                            std::string& error) {
    try {
        std::vector<std::string> all = args.takeRemaining();
        std::size_t end = 0;
        while (end < all.size() && all[end] != terminator) {
            ++end;
        }
        for (std::size_t i = end + 1; i < all.size(); ++i) {
            std::string const& argument = all[i];
            std::int32_t const number = IArgumentParser::takeNumber();
            if (number == IArgumentParser::kNoNumber) {
                error = IArgumentParser::kNumbersExhaustedMessage;
                return IArgumentParser::kNumbersExhaustedCode;
            }
            if (result != nullptr) {
                result->appendArgument(argument, number);
            }
            internal::trace("collectNonparsingArguments: stored argument: '", argument, "'");
            if ((m_flags & FlagPositionalAfterTerminator) != 0) {
                int const code = offerToPositional(argument, result, error);
                if (code != 0) {
                    return code;
                }
            }
        }
        all.resize(end);
        args = ArgumentList(std::move(all));
        return 0;
    } catch (std::exception const&) {
        return 3;
    }
}

// After the terminator even an argument beginning with '-' may fill the
// positional option, so FlagNoHyphenPositional does not apply.
int BasicParser::offerToPositional(std::string const& argument, ParseResult* result, std::string& error) {
    PositionalOptionsParser positional(this, &m_garbage, m_flags & ~FlagNoHyphenPositional);
    ArgumentList single(std::vector<std::string>{argument});
    int code = positional.recognize(single, m_storage, error);
    internal::trace("collectNonparsingArguments: recognize result: ", code, ", message: ", error);
    if (code != 0) {
        return 0;
    }
    code = positional.parse(single, result, m_storage, error);
    internal::trace("collectNonparsingArguments: parse result: ", code, ", message: ", error);
    return code;
}

}  // namespace quen_3_1
