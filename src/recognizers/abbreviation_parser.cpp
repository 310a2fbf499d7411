#include "recognizers/abbreviation_parser.h"

#include <string_view>
#include <utility>

#include "frontend/trace.h"
#include "options/name_index.h"
#include "options/registered_option_storage.h"
#include "recognizers/messages.h"

namespace quen_3_1 {

namespace {

// Booleans and options without a value never take the next argument; the
// others do unless a value follows the '='.
std::size_t argumentsTaken(kel_variant_type_t type, std::string_view argument, std::size_t valueStart) {
    if (type == tarvo2::vt_empty || type == tarvo2::vt_bool) {
        return 1;
    }
    return valueStart == Recognition::npos || valueStart == argument.size() ? 2 : 1;
}

}  // namespace

AbbreviationParser::AbbreviationParser(EventHandler* handler, Garbage* garbage, std::int32_t flags)
    : IArgumentParser(handler, garbage, flags) {
    m_name = "AbbreviationParser";
}

bool AbbreviationParser::recognize(ArgumentList const& args, RegisteredOptionStorage const& storage,
                                   Recognition& found) {
    std::string_view const argument = args[0];
    internal::trace(m_name, ": recognizing argument '", argument, "'");
    found = Recognition();
    if (argument.size() < 2 || argument[0] != '-') {
        return false;
    }
    std::size_t const equals = argument.find('=');
    found.nameStart = argument.size() > 2 && argument[1] == '-' ? 2 : 1;
    found.nameEnd = equals == std::string_view::npos ? argument.size() : equals;
    found.valueStart = equals == std::string_view::npos ? Recognition::npos : equals + 1;
    std::string_view const typed = argument.substr(found.nameStart, found.nameEnd - found.nameStart);
    NameIndex const& index = storage.names();
    std::vector<std::size_t> const& best = m_matcher.find(index, typed);
    if (best.empty()) {
        return false;
    }
    if (best.size() > 1) {
        found.tied = best;
        if (internal::quenLogEnabled) {
            internal::trace(m_name, ": failed to get best match for '", typed, "' in argument '", argument,
                            "':", recognizer_messages::ambiguousCandidates(listCandidates(index, best)));
        }
        return true;
    }
    NameIndex::Candidate const& winner = index.candidate(best.front());
    internal::trace(m_name, ": best match option for '", typed, "' in argument '", argument, "' is '", winner.text,
                    "'");
    found.option = winner.option;
    found.noForm = winner.text.compare(0, 3, "no-") == 0;
    found.arguments = argumentsTaken(storage.at(winner.option).type(), argument, found.valueStart);
    return true;
}

Status AbbreviationParser::parse(ArgumentList& args, Recognition const& found, IResultCollector* collector,
                                 RegisteredOptionStorage const& storage, std::string& message) {
    std::string_view const argument = args[0];
    internal::trace(m_name, ": parsing argument '", argument, "'");
    if (!found.tied.empty()) {
        // The message drops both leading hyphens, so "--" shows an empty name
        // although it was matched as "-".
        std::size_t const start = argument[1] == '-' ? 2 : 1;
        message = recognizer_messages::ambiguousOption(std::string(argument.substr(start, found.nameEnd - start)),
                                                       tokenPart(args), listCandidates(storage.names(), found.tied));
        return Status::Failed;
    }
    OptionDescription const& option = storage.at(found.option);
    internal::trace(m_name, ": detected option: '", option.primaryName(), "'");
    std::string value;
    if (found.valueStart != Recognition::npos) {
        value.assign(argument.substr(found.valueStart));
        internal::trace(m_name, ": value from the same argument taken: '", value, "'");
    }
    Status const decided = decideValue(args, found, option, value, message);
    if (decided != Status::Ok) {
        return decided;
    }
    m_handler->onOptionParse(option.primaryName().data());
    internal::trace(m_name, ": sent event on option parsed");
    Status const stored = parseValueAndAddOption(value, message, option, args, collector);
    if (stored != Status::Ok) {
        return stored;
    }
    for (std::size_t i = 0; i < found.arguments; ++i) {
        internal::trace(m_name, ": removing argument: '", args[0], "'");
        args.popFront();
    }
    return Status::Ok;
}

// No-value options refuse a value, booleans take "1"/"0" from the matched
// name, and other kinds fall back to the next argument.
Status AbbreviationParser::decideValue(ArgumentList const& args, Recognition const& found,
                                       OptionDescription const& option, std::string& value, std::string& message) {
    if (option.type() == tarvo2::vt_empty) {
        if (!value.empty()) {
            return fail(message, recognizer_messages::valueRefused(option.primaryName(), tokenPart(args)));
        }
        return Status::Ok;
    }
    if (option.type() != tarvo2::vt_bool) {
        return found.arguments == 2 ? valueFromNextArgument(args, option, value, message) : Status::Ok;
    }
    if (!value.empty()) {
        return fail(message, recognizer_messages::booleanForm(option.primaryName(), tokenPart(args)));
    }
    value = found.noForm ? "0" : "1";
    return Status::Ok;
}

// A next argument that begins with '-' is refused even when it is a negative
// number: "--num=-5" is the way to give one.
Status AbbreviationParser::valueFromNextArgument(ArgumentList const& args, OptionDescription const& option,
                                                 std::string& value, std::string& message) {
    internal::trace(m_name, ": no value in the same argument, looking next");
    if (args.size() == 1) {
        return fail(message, recognizer_messages::valueRequired(option.primaryName(), tokenPart(args)));
    }
    value.assign(args[1]);
    if (!value.empty() && value[0] == '-') {
        return fail(message, recognizer_messages::nextLooksLikeOption(option.primaryName(), value));
    }
    internal::trace(m_name, ": got value from the next argument: '", value, "'");
    if (value.empty()) {
        return fail(message, recognizer_messages::valueRequired(option.primaryName(), tokenPart(args)));
    }
    return Status::Ok;
}

// formatTokenMessage of the argument being parsed.
std::string AbbreviationParser::tokenPart(ArgumentList const& args) {
    std::string token(args[0]);
    return formatTokenMessage(token);
}

Status AbbreviationParser::fail(std::string& message, std::string text) {
    message = std::move(text);
    internal::trace(m_name, ": ", message);
    return Status::Failed;
}

}  // namespace quen_3_1
