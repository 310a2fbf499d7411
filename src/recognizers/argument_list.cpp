#include "recognizers/argument_list.h"

namespace quen_3_1 {

ArgumentList::ArgumentList(std::vector<std::string> items) : m_owned(std::move(items)) {
    m_items.reserve(m_owned.size());
    for (std::string const& item : m_owned) {
        m_items.emplace_back(item);
    }
}

ArgumentList::ArgumentList(std::string text, std::vector<std::pair<std::size_t, std::size_t>> const& spans)
    : m_text(std::move(text)) {
    m_items.reserve(spans.size());
    for (auto const& span : spans) {
        // What follows an argument is the end of the text, a line end or a dropped '\r'.
        m_text[span.first + span.second] = '\0';
        m_items.emplace_back(m_text.data() + span.first, span.second);
    }
}

}  // namespace quen_3_1
