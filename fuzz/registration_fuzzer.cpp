// Options declared from fuzzed name lists, kinds, groups, allowed values and
// defaults, then a parse of the remaining lines and the help texts.
//
// Input: lines. Lines up to the first empty line declare options as
// "names|kind|group|allowed,values|default|flags"; the rest is an option text.
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "fuzz_support.h"

namespace {

std::vector<std::string> fields(std::string const& line) {
    std::vector<std::string> out(1);
    for (char c : line) {
        if (c == '|') {
            out.emplace_back();
        } else {
            out.back() += c;
        }
    }
    out.resize(6);
    return out;
}

quen_3_1::kel_variant_type_t kindOf(std::string const& text) {
    int const code = text.empty() ? 12 : static_cast<unsigned char>(text[0]) % 18;
    return static_cast<quen_3_1::kel_variant_type_t>(code);
}

tarvo2::variant_t valueOf(std::string const& text, quen_3_1::kel_variant_type_t kind) {
    switch (kind) {
        case tarvo2::vt_bool:
            return tarvo2::variant_t(text.size() % 2 == 1);
        case tarvo2::vt_int:
            return tarvo2::variant_t(static_cast<int>(text.size()) - 3);
        case tarvo2::vt_uint64:
            return tarvo2::variant_t(static_cast<unsigned long long>(text.size()) << 40);
        case tarvo2::vt_double:
            return tarvo2::variant_t(static_cast<double>(text.size()) / 4);
        case tarvo2::vt_blob:
            return tarvo2::variant_t::blob(text.data(), static_cast<std::uint32_t>(text.size()));
        default:
            return tarvo2::variant_t(text.c_str());
    }
}

void declare(quen_3_1::IParser* parser, std::string const& line, std::vector<std::string>& names) {
    std::vector<std::string> const f = fields(line);
    quen_3_1::kel_variant_type_t const kind = kindOf(f[1]);
    quen_3_1::IOption* option = parser->option(f[0].c_str(), f[5].c_str(), kind, f[2].c_str());
    std::string value;
    for (char c : f[3] + ",") {
        if (c != ',') {
            value += c;
            continue;
        }
        // A value of another kind now and then, as a careless host would give.
        option->allowValue(valueOf(value, value.size() % 5 == 4 ? tarvo2::vt_int : kind));
        value.clear();
    }
    if (!f[4].empty()) {
        option->defaultValue(valueOf(f[4], kind));
    }
    for (char c : f[5]) {
        if (c == '@') {
            option->positional();
        } else if (c == '~') {
            option->tokenize(0);
        } else if (c == '^') {
            option->tokenize(';');
        } else if (c == '+') {
            std::string const alias = f[0] + "-alias";
            option->synonym(alias.c_str());
            names.emplace_back(alias.c_str());
        }
    }
    // The library reads the name list up to its first NUL, as read back here,
    // so a synonym equal to a declared name counts as that name listed twice.
    std::string name;
    for (char c : std::string(f[0].c_str()) + ",") {
        if (c == ',') {
            names.push_back(name);
            name.clear();
        } else {
            name += c;
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    quen_fuzz::installCountingHooks();
    long const before = quen_fuzz::outstandingAllocations();
    {
        std::string const input(reinterpret_cast<char const*>(data), size);
        std::size_t const split = input.find("\n\n");
        std::string const table = input.substr(0, split);
        std::string const text = split == std::string::npos ? std::string() : input.substr(split + 2);
        quen_fuzz::HandedOut texts;
        quen_3_1::IParser* parser = nullptr;
        quen_fuzz::check(quen_3_1::createParser(&parser, static_cast<int>(size % 32)) == 0, "parser created");
        std::vector<std::string> names;
        std::size_t start = 0;
        while (start <= table.size() && names.size() < 256) {
            std::size_t end = table.find('\n', start);
            if (end == std::string::npos) {
                end = table.size();
            }
            declare(parser, table.substr(start, end - start), names);
            start = end + 1;
        }
        quen_3_1::IParseResult* result = nullptr;
        parser->createResult(&result);
        char arg0[] = "prog";
        char* argv[] = {arg0};
        quen_fuzz::check(parser->parseArgsVector(1, argv, result) == 0, "defaults alone never fail");
        quen_fuzz::parseTextAndReadBack(parser, result, text, names, texts);
        result->destroy();
        parser->destroy();
    }
    quen_fuzz::check(quen_fuzz::outstandingAllocations() == before, "memory hooks balanced after destroy");
    return 0;
}
