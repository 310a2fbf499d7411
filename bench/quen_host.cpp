#include "quen_host.h"

#include <cstring>

namespace qbench {

using quen_3_1::IParser;
using quen_3_1::IParseResult;
using quen_3_1::Value;

namespace {

tarvo2::kel_variant_type_t kindCode(Kind kind) {
    switch (kind) {
        case Kind::Int:
            return tarvo2::vt_int;
        case Kind::Double:
            return tarvo2::vt_double;
        case Kind::String:
            return tarvo2::vt_str;
        case Kind::Flag:
            break;
    }
    return tarvo2::vt_bool;
}

}  // namespace

IParser* makeParser(Workload const& w) {
    IParser* parser = nullptr;
    quen_3_1::createParser(&parser, 0);
    for (OptionSpec const& option : w.options) {
        parser->option(option.name.c_str(), "A benchmark option.", kindCode(option.kind), "bench");
    }
    return parser;
}

Checksum readBack(IParseResult* result, Workload const& w) {
    Checksum sum;
    for (OptionSpec const& option : w.options) {
        char const* const name = option.name.c_str();
        Value value = result->get(name);
        if (value.m_status != 0) {
            sum.addAbsent();
            continue;
        }
        while (value.m_status == 0) {
            switch (option.kind) {
                case Kind::Int:
                    sum.addInt(value.as<int>());
                    break;
                case Kind::Double:
                    sum.addDouble(value.as<double>());
                    break;
                case Kind::String: {
                    char const* const text = value.as<char const*>();
                    sum.addText(text, std::strlen(text));
                    break;
                }
                case Kind::Flag:
                    if (value.as<bool>()) {
                        sum.addFlag();
                    }
                    break;
            }
            value = result->next(name);
        }
    }
    return sum;
}

}  // namespace qbench
