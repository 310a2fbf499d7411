#include "app/positional_check.h"

#include <vector>

#include "app/library_reason.h"

namespace quen_3_1::app_detail {

namespace {

// Parser and result of one check, released however the check ends.
struct Scratch {
    IParser* parser = nullptr;
    IParseResult* result = nullptr;
    Scratch() = default;
    Scratch(Scratch const&) = delete;
    Scratch& operator=(Scratch const&) = delete;
    ~Scratch() {
        if (result != nullptr) {
            result->destroy();
        }
        if (parser != nullptr) {
            parser->destroy();
        }
    }
};

// The library's verdict; an empty text or a flag has nothing for it to check.
std::string libraryCheck(OptionState const& option, std::string& text) {
    if (text.empty() || option.kind() == tarvo2::vt_bool) {
        return {};
    }
    Scratch scratch;
    if (createParser(&scratch.parser, 0) != 0 || scratch.parser->createResult(&scratch.result) != 0) {
        return "the library could not make a parser";
    }
    IOption* declared = scratch.parser->option(option.name().c_str(), "", option.kind(), "");
    declared->tokenize(0);
    option.binding().describe(*declared);
    std::string argument = "--" + option.name() + "=" + text;
    std::string program;
    std::vector<char*> argv{program.data(), argument.data()};
    if (scratch.parser->parseArgsVector(2, argv.data(), scratch.result) != 0) {
        return libraryReason(scratch.parser->getErrorDesc(), argument);
    }
    Value const value = scratch.result->get(option.name().c_str());
    if (value.m_status == 0 && value.m_text != nullptr) {
        text = value.m_text;
    }
    return {};
}

}  // namespace

std::string checkPositional(OptionState const& option, std::string& text, ReadNumber& number) {
    std::string reason = libraryCheck(option, text);
    return reason.empty() ? option.binding().check(option.name(), text, number) : reason;
}

}  // namespace quen_3_1::app_detail
