#include "options/name_index.h"

#include <algorithm>
#include <utility>

namespace quen_3_1 {

void NameIndex::add(std::size_t option, std::size_t nameIndex, std::string const& name, bool boolean) {
    insert(Candidate{option, nameIndex, false, name, 0, 0});
    if (boolean) {
        insert(Candidate{option, nameIndex, true, "no-" + name, 0, 0});
    }
}

void NameIndex::insert(Candidate candidate) {
    candidate.parts = static_cast<std::size_t>(std::count(candidate.text.begin(), candidate.text.end(), '-')) + 1;
    candidate.firstEnd = std::min(candidate.text.find('-'), candidate.text.size());
    std::size_t const id = m_candidates.size();
    m_candidates.push_back(std::move(candidate));
    Candidate const& stored = m_candidates.back();
    insertOrdered(m_exact[stored.text], id);
    if (m_shapes.size() <= stored.parts) {
        m_shapes.resize(stored.parts + 1);
    }
    insertOrdered(m_shapes[stored.parts][stored.text.substr(0, stored.firstEnd)], id);
}

// Candidate-list order: by option, then by name, the plain name before its "no-" form.
bool NameIndex::before(std::size_t a, std::size_t b) const {
    Candidate const& x = m_candidates[a];
    Candidate const& y = m_candidates[b];
    if (x.option != y.option) {
        return x.option < y.option;
    }
    if (x.name != y.name) {
        return x.name < y.name;
    }
    return !x.negated && y.negated;
}

// A synonym added to an earlier option lands before later options' names.
void NameIndex::insertOrdered(std::vector<std::size_t>& ids, std::size_t id) const {
    auto const at =
        std::upper_bound(ids.begin(), ids.end(), id, [this](std::size_t a, std::size_t b) { return before(a, b); });
    ids.insert(at, id);
}

std::vector<std::size_t> const* NameIndex::exact(std::string const& name) const {
    auto const found = m_exact.find(name);
    return found == m_exact.end() ? nullptr : &found->second;
}

// The first parts that begin with `first` are one run of the ordered map.
void NameIndex::withShape(std::size_t parts, std::string_view first, std::vector<std::size_t>& out) const {
    if (parts >= m_shapes.size()) {
        return;
    }
    auto const& byFirst = m_shapes[parts];
    std::size_t const start = out.size();
    std::size_t runs = 0;
    for (auto it = byFirst.lower_bound(first);
         it != byFirst.end() && it->first.compare(0, first.size(), first) == 0 && it->first.size() >= first.size();
         ++it) {
        out.insert(out.end(), it->second.begin(), it->second.end());
        ++runs;
    }
    if (runs > 1) {
        std::sort(out.begin() + static_cast<std::ptrdiff_t>(start), out.end(),
                  [this](std::size_t a, std::size_t b) { return before(a, b); });
    }
}

}  // namespace quen_3_1
