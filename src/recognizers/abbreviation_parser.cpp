#include "recognizers/abbreviation_parser.h"

#include <utility>

#include "frontend/trace.h"
#include "options/name_index.h"
#include "options/registered_option_storage.h"

namespace quen_3_1 {

namespace {

constexpr std::size_t kNoOption = static_cast<std::size_t>(-1);

// The typed name: what follows the leading hyphens, up to the first '='.
std::string_view typedName(std::string const& argument, std::size_t hyphens) {
    std::size_t const equals = argument.find('=');
    std::size_t const end = equals == std::string::npos ? argument.size() : equals;
    return std::string_view(argument).substr(hyphens, end - hyphens);
}

}  // namespace

AbbreviationParser::AbbreviationParser(EventHandler* handler, Garbage* garbage, std::int32_t flags)
    : IArgumentParser(handler, garbage, flags), m_optionIndex(kNoOption) {
    m_name = "AbbreviationParser";
}

int AbbreviationParser::recognize(ArgumentList& args, RegisteredOptionStorage& storage, std::string& message) {
    std::string const& argument = args[0];
    internal::trace(m_name, ": recognizing argument '", argument, "'");
    m_optionIndex = kNoOption;
    if (argument.size() < 2 || argument[0] != '-') {
        return 1;
    }
    std::size_t const hyphens = argument.size() > 2 && argument[1] == '-' ? 2 : 1;
    std::string_view const typed = typedName(argument, hyphens);
    std::size_t best = 0;
    int const found = findBestIndexed(storage.names(), typed, best, message);
    if (found == 2) {
        internal::trace(m_name, ": failed to get best match for '", typed, "' in argument '", argument, "':", message);
        return 0;
    }
    if (found != 0) {
        return 1;
    }
    NameIndex::Candidate const& winner = storage.names().candidate(best);
    internal::trace(m_name, ": best match option for '", typed, "' in argument '", argument, "' is '", winner.text,
                    "'");
    // Looking the winner's name up again (isAdded) finds this same option: a
    // unique best match is the only candidate with its name, since an equal
    // name would have tied with it.
    m_optionIndex = winner.option;
    return 0;
}

int AbbreviationParser::parse(ArgumentList& args, IResultCollector* collector, RegisteredOptionStorage& storage,
                              std::string& message) {
    std::string const& argument = args[0];
    internal::trace(m_name, ": parsing argument '", argument, "'");
    if (bestCount() > 1) {
        std::size_t const hyphens = (argument[0] == '-' ? 1U : 0U) + (argument[1] == '-' ? 1U : 0U);
        message = "Ambiguous option '" + std::string(typedName(argument, hyphens)) + "'" + tokenPart(args) +
                  ", could be: " + listNames(bestMatches());
        return 2;
    }
    OptionDescription const& option = storage.at(m_optionIndex);
    internal::trace(m_name, ": detected option: '", option.primaryName(), "'");
    std::size_t consumed = 1;
    std::string value;
    std::size_t const equals = argument.find('=');
    if (equals != std::string::npos) {
        value = argument.substr(equals + 1);
        internal::trace(m_name, ": value from the same argument taken: '", value, "'");
    }
    int const code = decideValue(args, option, value, consumed, message);
    if (code != 0) {
        return code;
    }
    m_handler->onOptionParse(option.primaryName().c_str());
    internal::trace(m_name, ": sent event on option parsed");
    int const stored = parseValueAndAddOption(value, message, option, args, collector);
    if (stored != 0) {
        return stored;
    }
    for (std::size_t i = 0; i < consumed; ++i) {
        internal::trace(m_name, ": removing argument: '", args[0], "'");
        args.popFront();
    }
    return 0;
}

// No-value options refuse a value, booleans take "1"/"0" from the matched
// name, and other kinds fall back to the next argument.
int AbbreviationParser::decideValue(ArgumentList& args, OptionDescription const& option, std::string& value,
                                    std::size_t& consumed, std::string& message) {
    if (option.type() == tarvo2::vt_empty) {
        if (!value.empty()) {
            return fail(message, "Option '" + option.primaryName() + "'does not requires a value" + tokenPart(args));
        }
        return 0;
    }
    if (option.type() != tarvo2::vt_bool) {
        return value.empty() ? valueFromNextArgument(args, option, value, consumed, message) : 0;
    }
    if (!value.empty()) {
        return fail(message, "Option '" + option.primaryName() + "' is boolean and should be declared in form " +
                                 "'--option' or '--no-option'" + tokenPart(args));
    }
    // The matched name decides, so a boolean whose own name starts with "no-" gives "0".
    value = bestMatches().front().name.getName().compare(0, 3, "no-") == 0 ? "0" : "1";
    return 0;
}

// A next argument that begins with '-' is refused even when it is a negative
// number: "--num=-5" is the way to give one.
int AbbreviationParser::valueFromNextArgument(ArgumentList& args, OptionDescription const& option, std::string& value,
                                              std::size_t& consumed, std::string& message) {
    internal::trace(m_name, ": no value in the same argument, looking next");
    if (args.size() == 1) {
        return fail(message, "Option '" + option.primaryName() + "' requires a value" + tokenPart(args));
    }
    value = args[1];
    if (!value.empty() && value[0] == '-') {
        return fail(message, "Option '" + option.primaryName() + "received value from the next argument: '" + value +
                                 "', but it seems to be an option. Use '-option=value' declaration form" +
                                 " or make sure that value is not missed");
    }
    consumed = 2;
    internal::trace(m_name, ": got value from the next argument: '", value, "'");
    if (value.empty()) {
        return fail(message, "Option '" + option.primaryName() + "' requires a value" + tokenPart(args));
    }
    return 0;
}

// formatTokenMessage of the argument being parsed.
std::string AbbreviationParser::tokenPart(ArgumentList const& args) {
    std::string token = args[0];
    return formatTokenMessage(token);
}

int AbbreviationParser::fail(std::string& message, std::string text) {
    message = std::move(text);
    internal::trace(m_name, ": ", message);
    return 2;
}

}  // namespace quen_3_1
