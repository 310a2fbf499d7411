#include "options/name_index.h"

#include <algorithm>
#include <utility>

namespace quen_3_1 {

void NameIndex::add(std::size_t option, std::size_t nameIndex, std::string const& name, bool boolean) {
    insert(Candidate{option, nameIndex, false, name, 0, 0, npos, npos});
    if (boolean) {
        insert(Candidate{option, nameIndex, true, "no-" + name, 0, 0, npos, npos});
    }
}

void NameIndex::insert(Candidate candidate) {
    candidate.parts = static_cast<std::size_t>(std::count(candidate.text.begin(), candidate.text.end(), '-')) + 1;
    candidate.firstEnd = std::min(candidate.text.find('-'), candidate.text.size());
    std::size_t const id = m_candidates.size();
    m_candidates.push_back(std::move(candidate));
    Candidate const& stored = m_candidates.back();
    std::string_view const text(stored.text);
    link(m_named.try_emplace(text, Chain{npos, npos}).first->second, id, &Candidate::nextSame);
    if (m_shapes.size() <= stored.parts) {
        m_shapes.resize(stored.parts + 1);
    }
    Chain& shape = m_shapes[stored.parts].try_emplace(text.substr(0, stored.firstEnd), Chain{npos, npos}).first->second;
    link(shape, id, &Candidate::nextShape);
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

// Registration appends at the tail; a synonym added to an earlier option
// lands before later options' names.
void NameIndex::link(Chain& chain, std::size_t id, std::size_t Candidate::*next) {
    if (chain.head == npos) {
        chain.head = id;
        chain.tail = id;
        return;
    }
    if (before(chain.tail, id)) {
        m_candidates[chain.tail].*next = id;
        chain.tail = id;
        return;
    }
    if (before(id, chain.head)) {
        m_candidates[id].*next = chain.head;
        chain.head = id;
        return;
    }
    std::size_t at = chain.head;
    while (before(m_candidates[at].*next, id)) {
        at = m_candidates[at].*next;
    }
    m_candidates[id].*next = m_candidates[at].*next;
    m_candidates[at].*next = id;
}

std::size_t NameIndex::firstNamed(std::string_view name) const {
    auto const found = m_named.find(name);
    return found == m_named.end() ? npos : found->second.head;
}

// The first parts that begin with `first` are one run of the ordered map.
void NameIndex::withShape(std::size_t parts, std::string_view first, std::vector<std::size_t>& out) const {
    if (parts >= m_shapes.size()) {
        return;
    }
    auto const& byFirst = m_shapes[parts];
    std::size_t const start = out.size();
    std::size_t runs = 0;
    for (auto it = byFirst.lower_bound(first); it != byFirst.end() && it->first.substr(0, first.size()) == first;
         ++it) {
        for (std::size_t id = it->second.head; id != npos; id = m_candidates[id].nextShape) {
            out.push_back(id);
        }
        ++runs;
    }
    if (runs > 1) {
        std::sort(out.begin() + static_cast<std::ptrdiff_t>(start), out.end(),
                  [this](std::size_t a, std::size_t b) { return before(a, b); });
    }
}

}  // namespace quen_3_1
