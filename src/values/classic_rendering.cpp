#include "values/classic_rendering.h"

#include <charconv>

namespace quen_3_1 {

template <class T>
std::string_view ClassicRendering::renderInteger(T value) {
    std::to_chars_result const done = std::to_chars(m_buffer, m_buffer + sizeof m_buffer, value);
    return std::string_view(m_buffer, static_cast<std::size_t>(done.ptr - m_buffer));
}

std::string_view ClassicRendering::render(bool value) { return value ? "1" : "0"; }

std::string_view ClassicRendering::render(int value) { return renderInteger(value); }

std::string_view ClassicRendering::render(unsigned int value) { return renderInteger(value); }

std::string_view ClassicRendering::render(long long value) { return renderInteger(value); }

std::string_view ClassicRendering::render(unsigned long long value) { return renderInteger(value); }

std::string_view ClassicRendering::render(double value) {
    std::to_chars_result const done =
        std::to_chars(m_buffer, m_buffer + sizeof m_buffer, value, std::chars_format::general, 6);
    return std::string_view(m_buffer, static_cast<std::size_t>(done.ptr - m_buffer));
}

}  // namespace quen_3_1
