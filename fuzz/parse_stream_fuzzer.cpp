// Arbitrary bytes as an option text against a fixed table, then every query
// and both help texts.
#include <cstddef>
#include <cstdint>
#include <string>

#include "fuzz_support.h"
#include "option_table.h"

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    quen_fuzz::installCountingHooks();
    long const before = quen_fuzz::outstandingAllocations();
    {
        quen_fuzz::HandedOut texts;
        quen_3_1::IParser* parser = nullptr;
        quen_fuzz::check(quen_3_1::createParser(&parser, quen_3_1::FlagUnknownIsError) == 0, "parser created");
        quen_fuzz::declareOptions(parser);
        quen_3_1::IParseResult* result = nullptr;
        parser->createResult(&result);
        std::string const text(reinterpret_cast<char const*>(data), size);
        quen_fuzz::parseTextAndReadBack(parser, result, text, quen_fuzz::declaredNames(), texts);
        result->destroy();
        parser->destroy();
    }
    quen_fuzz::check(quen_fuzz::outstandingAllocations() == before, "memory hooks balanced after destroy");
    return 0;
}
