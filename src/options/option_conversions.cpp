// Text to value and back for every kind that has a conversion, and the kinds'
// display names. Extraction uses a stream in its default state, so leading
// blanks are skipped and characters after the number are ignored.
#include <sstream>
#include <string>

#include "options/messages.h"
#include "options/option_description.h"
#include "options/typed_operations.h"
#include "values/classic_extraction.h"
#include "values/classic_rendering.h"
#include "values/garbage.h"
#include "values/variant_transfer.h"

namespace quen_3_1 {

namespace {

char const kHexDigits[] = "1234567890ABCDEFabcdef";

bool allHexDigits(std::string const& text, std::size_t from, std::size_t to) {
    return from >= to || text.find_first_not_of(kHexDigits, from) >= to;
}

// "0x1F" and "1Fh" are hexadecimal; anything else is read as decimal, so
// "0x1G" gives 0. An empty text raises std::out_of_range, as it always has.
bool isHexadecimal(std::string const& text) {
    bool hex = false;
    if (text.compare(0, 2, "0x") == 0 || text.compare(0, 2, "0X") == 0) {
        hex = allHexDigits(text, 2, text.size());
    }
    std::string const last = text.substr(text.size() - 1);
    if ((last == "h" || last == "H") && allHexDigits(text, 0, text.size() - 1)) {
        hex = true;
    }
    return hex;
}

// A fresh stream in its default state; under the classic global locale the
// same extraction is done without building the stream.
template <class T>
bool extract(char const* text, T& out) {
    if (classicExtraction() == ExtractionSupport::Classic) {
        return extractClassic(text, out);
    }
    std::stringstream stream(text);
    stream >> out;
    return !stream.fail();
}

bool extractUnsigned64(char const* text, unsigned long long& out) {
    std::string const s(text);
    bool const hex = isHexadecimal(s);
    if (classicExtraction() == ExtractionSupport::Classic) {
        return extractClassic(text, out, hex);
    }
    std::stringstream stream(s);
    if (hex) {
        stream >> std::hex;
    }
    stream >> out;
    return !stream.fail();
}

}  // namespace

// A number is written in place: a temporary variant's construction and
// destruction are out-of-line calls for two plain words.
template <class T>
bool OperationFromString::execute() {
    T number{};
    if (!extract(text, number)) {
        return false;
    }
    setNumber(*value, number);
    return true;
}

template <>
bool OperationFromString::execute<unsigned long long>() {
    unsigned long long number = 0;
    if (!extractUnsigned64(text, number)) {
        return false;
    }
    setNumber(*value, number);
    return true;
}

// The value owns its own copy: interning it would make the keeper grow with
// every value ever parsed, and the kept copy would never be handed out.
template <>
bool OperationFromString::execute<char const*>() {
    tarvo2::variant_t owned(text);
    transferVariant(*value, owned);
    return true;
}

template <class T>
bool OperationToString::execute() {
    if (classicExtraction() == ExtractionSupport::Classic) {
        ClassicRendering rendering;
        text = keeper->keep(rendering.render(value.as<T>()));
        return true;
    }
    std::stringstream stream;
    stream << value.as<T>();
    text = keeper->keep(stream.str());
    return true;
}

template <>
bool OperationToString::execute<char const*>() {
    text = keeper->init(value.as<char const*>());
    return true;
}

template <class T>
bool OperatorGetTypeName::execute() {
    name = option_messages::typeNameUndefined();
    return true;
}

template <>
bool OperatorGetTypeName::execute<int>() {
    name = option_messages::typeNameInteger();
    return true;
}

template <>
bool OperatorGetTypeName::execute<unsigned int>() {
    name = option_messages::typeNameUnsigned();
    return true;
}

template <>
bool OperatorGetTypeName::execute<long long>() {
    name = option_messages::typeNameInteger64();
    return true;
}

template <>
bool OperatorGetTypeName::execute<unsigned long long>() {
    name = option_messages::typeNameUnsigned64();
    return true;
}

template <>
bool OperatorGetTypeName::execute<double>() {
    name = option_messages::typeNameDouble();
    return true;
}

template <>
bool OperatorGetTypeName::execute<char const*>() {
    name = option_messages::typeNameText();
    return true;
}

template <class Op>
bool OptionDescription::typedOperation(Op& op) const {
    switch (m_type) {
        case tarvo2::vt_bool:
            return op.template execute<bool>();
        case tarvo2::vt_int:
            return op.template execute<int>();
        case tarvo2::vt_uint:
            return op.template execute<unsigned int>();
        case tarvo2::vt_int64:
            return op.template execute<long long>();
        case tarvo2::vt_uint64:
            return op.template execute<unsigned long long>();
        case tarvo2::vt_double:
            return op.template execute<double>();
        case tarvo2::vt_str:
            return op.template execute<char const*>();
        default:
            return false;
    }
}

tarvo2::variant_t OptionDescription::fromString(char const* text, Garbage* keeper) const {
    tarvo2::variant_t result;
    convert(text, keeper, result);
    return result;
}

void OptionDescription::convert(char const* text, Garbage* keeper, tarvo2::variant_t& value) const {
    clearVariant(value);
    OperationFromString op{this, keeper, text, &value};
    typedOperation(op);
}

// Kinds without a conversion render as the empty text.
char const* OptionDescription::toString(Garbage* keeper, tarvo2::variant_t const& value) const {
    OperationToString op{this, keeper, "", value};
    typedOperation(op);
    return op.text;
}

std::string OptionDescription::getTypeName() const {
    OperatorGetTypeName op{this, std::string()};
    typedOperation(op);
    return op.name;
}

}  // namespace quen_3_1
