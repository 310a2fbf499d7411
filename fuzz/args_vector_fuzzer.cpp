// A command line under every combination of the four flags, with a host
// handler that may veto values and excuse unknown arguments.
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "fuzz_support.h"
#include "option_table.h"

namespace {

class SteeringHandler final : public quen_3_1::EventHandler {
public:
    explicit SteeringHandler(quen_fuzz::HandedOut& texts) : m_texts(texts) {}

    bool onOptionParse(char const* name) override {
        m_texts.keep(name);
        return true;
    }
    bool onValueParse(char const* name, quen_3_1::Value const& value) override {
        m_texts.keep(name);
        quen_fuzz::check(value.m_status == 0, "a value event carries a value");
        return std::strcmp(value.m_text, "veto") != 0;
    }
    bool onUknownArgument(char const* argument) override {
        m_texts.keep(argument);
        return std::strncmp(argument, "--ok", 4) != 0;
    }

private:
    quen_fuzz::HandedOut& m_texts;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    if (size < 2) {
        return 0;
    }
    quen_fuzz::installCountingHooks();
    long const before = quen_fuzz::outstandingAllocations();
    {
        int const flags = data[0] & 0x1e;
        bool const withHandler = (data[1] & 1) != 0;
        std::vector<std::string> args = quen_fuzz::splitArguments(data + 2, size - 2);
        args.insert(args.begin(), "prog");
        std::vector<char*> argv;
        for (std::string& arg : args) {
            argv.push_back(&arg[0]);
        }
        quen_fuzz::HandedOut texts;
        SteeringHandler handler(texts);
        quen_3_1::IParser* parser = nullptr;
        quen_fuzz::check(quen_3_1::createParser(&parser, flags) == 0, "parser created");
        quen_fuzz::declareOptions(parser);
        if (withHandler) {
            quen_fuzz::check(parser->addHandler(&handler), "handler added");
        }
        quen_3_1::IParseResult* result = nullptr;
        parser->createResult(&result);
        int const code = parser->parseArgsVector(static_cast<int>(argv.size()), argv.data(), result);
        quen_fuzz::check(quen_fuzz::isLibraryCode(code), "parseArgsVector returns a library code");
        quen_fuzz::check(code != 1 || withHandler, "only a handler vetoes");
        quen_fuzz::check(
            code != 2 || (flags & quen_3_1::FlagUnknownIsError) != 0 || std::strlen(parser->getErrorDesc()) > 0,
            "code 2 comes with a message");
        texts.keep(parser->getErrorDesc());
        quen_fuzz::walkResult(result, quen_fuzz::declaredNames(), texts);
        texts.verifyReadable();
        result->destroy();
        parser->destroy();
    }
    quen_fuzz::check(quen_fuzz::outstandingAllocations() == before, "memory hooks balanced after destroy");
    return 0;
}
