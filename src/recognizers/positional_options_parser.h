#ifndef QUEN_3_1_RECOGNIZERS_POSITIONAL_OPTIONS_PARSER_H
#define QUEN_3_1_RECOGNIZERS_POSITIONAL_OPTIONS_PARSER_H

#include <cstdint>
#include <string>

#include "recognizers/argument_parser.h"

namespace quen_3_1 {

// The recognizer of last resort: plain arguments become values of the first
// option declared positional.
class PositionalOptionsParser final : public IArgumentParser {
public:
    PositionalOptionsParser(EventHandler* handler, Garbage* garbage, std::int32_t flags);

    bool recognize(ArgumentList const& args, RegisteredOptionStorage const& storage, Recognition& found) override;
    Status parse(ArgumentList& args, Recognition const& found, IResultCollector* collector,
                 RegisteredOptionStorage const& storage, std::string& message) override;
    int getPriority() override { return -100; }
};

}  // namespace quen_3_1

#endif
