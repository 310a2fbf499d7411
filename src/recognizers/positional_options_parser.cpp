#include "recognizers/positional_options_parser.h"

#include "frontend/trace.h"
#include "options/registered_option_storage.h"

namespace quen_3_1 {

PositionalOptionsParser::PositionalOptionsParser(EventHandler* handler, Garbage* garbage, std::int32_t flags)
    : IArgumentParser(handler, garbage, flags) {
    m_name = "PositionalOptionsParser";
}

// Only the first positional option is ever filled; the registry keeps its index.
bool PositionalOptionsParser::recognize(ArgumentList const& args, RegisteredOptionStorage const& storage,
                                        Recognition& found) {
    std::string_view const argument = args[0];
    internal::trace(m_name, ": recognizing argument '", argument, "'");
    found = Recognition();
    if ((m_flags & FlagNoHyphenPositional) != 0 && !argument.empty() && argument[0] == '-') {
        return false;
    }
    found.option = storage.firstPositional();
    return found.option != Recognition::npos;
}

Status PositionalOptionsParser::parse(ArgumentList& args, Recognition const& found, IResultCollector* collector,
                                      RegisteredOptionStorage const& storage, std::string& message) {
    internal::trace(m_name, ": parsing argument '", args[0], "'");
    OptionDescription const& option = storage.at(found.option);
    internal::trace(m_name, ": option is '", option.primaryName(), "'");
    for (;;) {
        std::string value(args[0]);
        m_handler->onOptionParse(option.primaryName().data());
        Status const status = parseValueAndAddOption(value, message, option, args, collector);
        if (status != Status::Ok) {
            return status;
        }
        internal::trace(m_name, ": removing argument: '", args[0], "'");
        args.popFront();
        if (args.empty() || (m_flags & FlagPositionalRun) == 0) {
            return Status::Ok;
        }
    }
}

}  // namespace quen_3_1
