#ifndef QUEN_3_1_RECOGNIZERS_DECOMPOSED_NAME_H
#define QUEN_3_1_RECOGNIZERS_DECOMPOSED_NAME_H

#include <string>
#include <string_view>
#include <vector>

namespace quen_3_1 {

// An option name as its '-'-separated parts; there is always one part more
// than there are hyphens ("x-" gives "x" and "").
struct DecomposedName {
    DecomposedName() : parts(1) {}
    explicit DecomposedName(std::string const& name);

    // Replaces the parts by those of `name`, reusing their storage.
    void assign(std::string_view name);

    // The parts joined with "-": the name it was built from.
    std::string getName() const;

    std::vector<std::string> parts;
};

}  // namespace quen_3_1

#endif
