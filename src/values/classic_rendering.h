#ifndef QUEN_3_1_VALUES_CLASSIC_RENDERING_H
#define QUEN_3_1_VALUES_CLASSIC_RENDERING_H

#include <cstddef>
#include <string_view>

namespace quen_3_1 {

// What `std::stringstream() << value` writes for a stream in its default
// state under the classic "C" locale (booleans as 1 and 0, doubles as %g with
// six significant digits), without building the stream. Conversions use it
// only while classicExtraction() holds; otherwise the stream itself renders.
class ClassicRendering {
public:
    std::string_view render(bool value);
    std::string_view render(int value);
    std::string_view render(unsigned int value);
    std::string_view render(long long value);
    std::string_view render(unsigned long long value);
    std::string_view render(double value);

private:
    template <class T>
    std::string_view renderInteger(T value);

    // Room for a 64-bit number with its sign, and for any %g rendering.
    char m_buffer[32] = {};
};

}  // namespace quen_3_1

#endif
