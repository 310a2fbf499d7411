#ifndef QUEN_3_1_OPTIONS_TYPED_OPERATIONS_H
#define QUEN_3_1_OPTIONS_TYPED_OPERATIONS_H

#include <string>

#include "quen_3_1/quen.h"

namespace quen_3_1 {

class Garbage;
class OptionDescription;

// Operation records run by OptionDescription::typedOperation for the native
// type of an option's kind. Each lives for one call.

// Text (input) to value (output into `value`, which owns nothing and stays
// vt_empty unless the text converts).
struct OperationFromString {
    OptionDescription const* owner;
    Garbage* keeper;
    char const* text;
    tarvo2::variant_t* value;

    template <class T>
    bool execute();
};

// Value (input) to interned text (output).
struct OperationToString {
    OptionDescription const* owner;
    Garbage* keeper;
    char const* text;
    tarvo2::variant_t value;

    template <class T>
    bool execute();
};

// Display name of the kind (output).
struct OperatorGetTypeName {
    OptionDescription const* owner;
    std::string name;

    template <class T>
    bool execute();
};

}  // namespace quen_3_1

#endif
