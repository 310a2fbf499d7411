#include "recognizers/positional_options_parser.h"

#include "frontend/trace.h"
#include "options/registered_option_storage.h"

namespace quen_3_1 {

namespace {

constexpr std::size_t kNone = static_cast<std::size_t>(-1);

// Only the first positional option is ever filled; the registry keeps its index.
std::size_t firstPositional(RegisteredOptionStorage const& storage) { return storage.firstPositional(); }

}  // namespace

PositionalOptionsParser::PositionalOptionsParser(EventHandler* handler, Garbage* garbage, std::int32_t flags)
    : IArgumentParser(handler, garbage, flags) {
    m_name = "PositionalOptionsParser";
}

int PositionalOptionsParser::recognize(ArgumentList& args, RegisteredOptionStorage& storage, std::string& /*message*/) {
    std::string const& argument = args[0];
    internal::trace(m_name, ": recognizing argument '", argument, "'");
    std::size_t const index = firstPositional(storage);
    if ((m_flags & FlagNoHyphenPositional) != 0 && !argument.empty() && argument[0] == '-') {
        return 1;
    }
    return index == kNone ? 1 : 0;
}

int PositionalOptionsParser::parse(ArgumentList& args, IResultCollector* collector, RegisteredOptionStorage& storage,
                                   std::string& message) {
    internal::trace(m_name, ": parsing argument '", args[0], "'");
    OptionDescription const& option = storage.at(firstPositional(storage));
    internal::trace(m_name, ": option is '", option.primaryName(), "'");
    for (;;) {
        std::string value = args[0];
        m_handler->onOptionParse(option.primaryName().c_str());
        int const code = parseValueAndAddOption(value, message, option, args, collector);
        if (code != 0) {
            return code;
        }
        internal::trace(m_name, ": removing argument: '", args[0], "'");
        args.popFront();
        if (args.empty() || (m_flags & FlagPositionalRun) == 0) {
            return 0;
        }
    }
}

}  // namespace quen_3_1
