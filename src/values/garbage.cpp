#include "values/garbage.h"

namespace quen_3_1 {

char const* Garbage::init(char const* text) {
    static char const empty[] = "";
    if (text == nullptr) {
        return empty;
    }
    return keep(std::string(text));
}

char const* Garbage::keep(std::string const& text) { return m_strings.insert(text).first->c_str(); }

}  // namespace quen_3_1
