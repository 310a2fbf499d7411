#ifndef QUEN_3_1_FRONTEND_BASIC_PARSER_H
#define QUEN_3_1_FRONTEND_BASIC_PARSER_H

#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "options/registered_option_storage.h"
#include "quen_3_1/quen.h"
#include "recognizers/argument_list.h"
#include "recognizers/status.h"
#include "values/garbage.h"

namespace quen_3_1 {

class ParseResult;

// The one IParser: owns the option registry, the text keeper, the last error
// and the flags, and fans events out to the host's handlers.
class BasicParser final : public IParser {
public:
    explicit BasicParser(int flags);
    BasicParser(BasicParser const&) = delete;
    BasicParser& operator=(BasicParser const&) = delete;

    bool onOptionParse(char const* name) override;
    bool onValueParse(char const* name, Value const& value) override;
    bool onUknownArgument(char const* argument) override;
    void destroy() override;
    int createResult(IParseResult** out) override;
    IOption* option(char const* names, char const* description, kel_variant_type_t type, char const* group) override;
    int parseArgsVector(int argc, char** argv, IParseResult* result) override;
    int parseStream(char const* text, IParseResult* result) override;
    char const* getErrorDesc() override;
    char const* getDescription(bool hidden) override;
    bool addHandler(EventHandler* handler) override;
    bool removeHandler(EventHandler* handler) override;
    ~BasicParser() override = default;

    // Runs recognition, then keeps what follows the terminator. Anything but
    // Ok comes with the text recorded as the last error.
    Status parseList(ArgumentList& list, IParseResult* result);
    // Lets the recognizers bid for each leading argument until the terminator.
    virtual Status parse(std::string const& terminator, ArgumentList& args, IParseResult* result, std::string& error);

    void setLastError(std::string const& text);
    // Stores every argument after the terminator that recognition stopped at
    // as a plain argument; with FlagPositionalAfterTerminator also offers it
    // to the positional option.
    Status collectNonparsingArguments(ArgumentList const& args, ParseResult* result, std::string& error);

    RegisteredOptionStorage const& storage() const { return m_storage; }
    // The keeper of every text this parser hands out.
    Garbage& keeper() { return m_garbage; }

private:
    // Ok while sequence numbers are left; else NumbersExhausted, with the last error set.
    Status refuseWhenNumbersSpent();
    Status offerToPositional(std::string const& argument, ParseResult* result, std::string& error);
    // The keeper's copy of an event's option name.
    char const* keptEventName(char const* name);

    RegisteredOptionStorage m_storage;
    Garbage m_garbage;
    std::string m_lastError;
    std::int32_t m_flags;
    std::set<EventHandler*> m_handlers;
    char const* m_lastEventName = nullptr;  // kept by m_garbage
};

}  // namespace quen_3_1

#endif
