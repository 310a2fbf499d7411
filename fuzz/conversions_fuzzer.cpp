// Text to value and back for every kind with a conversion: whatever converts
// prints to a text that converts to the same value again.
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>

#include "fuzz_support.h"
#include "options/option_description.h"
#include "values/garbage.h"

namespace {

quen_3_1::kel_variant_type_t const kKinds[] = {tarvo2::vt_bool,  tarvo2::vt_int,    tarvo2::vt_uint,
                                               tarvo2::vt_int64, tarvo2::vt_uint64, tarvo2::vt_double,
                                               tarvo2::vt_str,   tarvo2::vt_wstr,   tarvo2::vt_empty};

// Only an empty text may make the unsigned 64-bit kind throw.
tarvo2::variant_t convert(quen_3_1::OptionDescription const& option, std::string const& text,
                          quen_3_1::Garbage& keeper) {
    try {
        return option.fromString(text.c_str(), &keeper);
    } catch (std::out_of_range const&) {
        quen_fuzz::check(option.type() == tarvo2::vt_uint64 && text.c_str()[0] == '\0',
                         "only an empty unsigned 64-bit text throws");
        return tarvo2::variant_t();
    }
}

void roundTrip(quen_3_1::kel_variant_type_t kind, std::string const& text) {
    quen_3_1::Garbage keeper;
    quen_3_1::OptionDescription const option({"x"}, "g", "", "", kind, &keeper);
    tarvo2::variant_t const value = convert(option, text, keeper);
    if (value.m_type == tarvo2::vt_empty) {
        return;
    }
    quen_fuzz::check(value.m_type == kind, "a converted value has the option's kind");
    std::string const printed = option.toString(&keeper, value);
    tarvo2::variant_t const again = convert(option, printed, keeper);
    quen_fuzz::check(again.m_type == kind, "a printed value converts again");
    if (kind == tarvo2::vt_double) {
        quen_fuzz::check(printed == option.toString(&keeper, again), "printing a reread double is stable");
    } else {
        quen_fuzz::check(again == value, "a printed value converts back to itself");
    }
    std::string checked = text;
    tarvo2::variant_t validated;
    std::string message;
    quen_fuzz::check(option.validate(checked, validated, message), "a convertible text validates");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    quen_fuzz::installCountingHooks();
    long const before = quen_fuzz::outstandingAllocations();
    std::string const text(reinterpret_cast<char const*>(data), size);
    for (quen_3_1::kel_variant_type_t kind : kKinds) {
        roundTrip(kind, text);
    }
    quen_fuzz::check(quen_fuzz::outstandingAllocations() == before, "memory hooks balanced");
    return 0;
}
