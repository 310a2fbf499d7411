#ifndef QUEN_3_1_RECOGNIZERS_ABBREVIATION_PARSER_H
#define QUEN_3_1_RECOGNIZERS_ABBREVIATION_PARSER_H

#include <cstddef>
#include <cstdint>
#include <string>

#include "recognizers/argument_parser.h"
#include "recognizers/name_matching.h"

namespace quen_3_1 {

// The recognizer of named options: -name, --name, --name=value, --name value,
// and --no-name for booleans, with every part of a name abbreviable.
class AbbreviationParser final : public IArgumentParser {
public:
    AbbreviationParser(EventHandler* handler, Garbage* garbage, std::int32_t flags);

    // Takes an argument of a unique best match and an ambiguous one alike,
    // so that parse reports the ambiguity.
    bool recognize(ArgumentList const& args, RegisteredOptionStorage const& storage, Recognition& found) override;
    Status parse(ArgumentList& args, Recognition const& found, IResultCollector* collector,
                 RegisteredOptionStorage const& storage, std::string& message) override;
    int getPriority() override { return -10; }

private:
    Status decideValue(ArgumentList const& args, Recognition const& found, OptionDescription const& option,
                       std::string& value, std::string& message);
    Status valueFromNextArgument(ArgumentList const& args, OptionDescription const& option, std::string& value,
                                 std::string& message);
    Status fail(std::string& message, std::string text);
    std::string tokenPart(ArgumentList const& args);

    BestNameMatch m_matcher;
};

}  // namespace quen_3_1

#endif
