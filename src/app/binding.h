// What the layer needs of a bound variable, whatever its C++ type.
#ifndef QUEN_3_1_SRC_APP_BINDING_H
#define QUEN_3_1_SRC_APP_BINDING_H

#include <string>
#include <string_view>
#include <vector>

#include "app/result_data.h"
#include "quen_3_1/app.h"

namespace quen_3_1::app_detail {

class Binding {
public:
    Binding() = default;
    Binding(Binding const&) = delete;
    Binding& operator=(Binding const&) = delete;
    virtual ~Binding() = default;

    // Hands the allowed values to the library's option.
    virtual void describe(IOption& option) const = 0;
    // Hands the variable's value to the library's option as its default, for the help text only:
    // the layer leaves a variable alone when nothing gives it a value.
    virtual void showDefault(IOption& option) const = 0;
    // Empty when `text` is a value that `option` takes, the reason otherwise (the name is
    // copied only into a reason). A number read is left in `number` (ReadNumber), for assign.
    virtual std::string check(std::string_view option, std::string_view text, ReadNumber& number) const = 0;
    // Stores the checked values [first, last) in the variable (the last one unless it takes many).
    virtual void assign(TakenValue const* first, TakenValue const* last) = 0;
    // A declaration mistake of the refinements, or empty.
    virtual std::string mistake(std::string_view option) const = 0;
};

}  // namespace quen_3_1::app_detail

#endif  // QUEN_3_1_SRC_APP_BINDING_H
