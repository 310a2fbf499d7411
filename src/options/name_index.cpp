#include "options/name_index.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace quen_3_1 {

void NameIndex::add(std::size_t option, std::size_t nameIndex, std::string_view name, std::string_view negated,
                    std::uint64_t hash) {
    m_candidates.emplace_back(option, nameIndex, false, name, std::size_t{1}, name.size(), npos);
    insert(hash);
    if (!negated.empty()) {
        m_candidates.emplace_back(option, nameIndex, true, negated, std::size_t{1}, std::size_t{0}, npos);
        insert(hashOf(negated));
    }
}

void NameIndex::insert(std::uint64_t hash) {
    std::size_t const id = m_candidates.size() - 1;
    Candidate& candidate = m_candidates[id];
    std::string_view const text = candidate.text;
    char const* const end = text.data() + text.size();
    auto nextHyphen = [end](char const* from) {
        return static_cast<char const*>(std::memchr(from, '-', static_cast<std::size_t>(end - from)));
    };
    char const* hyphen = nextHyphen(text.data());
    candidate.firstEnd = hyphen == nullptr ? text.size() : static_cast<std::size_t>(hyphen - text.data());
    for (; hyphen != nullptr; hyphen = nextHyphen(hyphen + 1)) {
        ++candidate.parts;
    }
    link(m_named.findOrAdd(text, hash, textOf()), id,
         [this](std::size_t at) -> std::size_t& { return m_candidates[at].nextSame; });
}

// Links the candidates added since the last call. link() places each by
// candidate-list order, so linking later gives the chains linking at once would.
void NameIndex::linkShapes() const {
    for (std::size_t id = m_nextShape.size(); id < m_candidates.size(); ++id) {
        Candidate const& candidate = m_candidates[id];
        if (m_shapes.size() <= candidate.parts) {
            m_shapes.resize(candidate.parts + 1);
        }
        m_nextShape.push_back(npos);
        std::string_view const first = candidate.text.substr(0, candidate.firstEnd);
        link(m_shapes[candidate.parts].try_emplace(first, Chain{npos, npos}).first->second, id,
             [this](std::size_t at) -> std::size_t& { return m_nextShape[at]; });
    }
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
template <class Next>
void NameIndex::link(Chain& chain, std::size_t id, Next const& next) const {
    if (chain.head == npos) {
        chain.head = id;
        chain.tail = id;
        return;
    }
    if (before(chain.tail, id)) {
        next(chain.tail) = id;
        chain.tail = id;
        return;
    }
    if (before(id, chain.head)) {
        next(id) = chain.head;
        chain.head = id;
        return;
    }
    std::size_t at = chain.head;
    while (before(next(at), id)) {
        at = next(at);
    }
    next(id) = next(at);
    next(at) = id;
}

std::size_t NameIndex::firstNamed(std::string_view name, std::uint64_t hash) const {
    Chain const* const chain = m_named.find(name, hash, textOf());
    return chain == nullptr ? npos : chain->head;
}

// The first parts that begin with `first` are one run of the ordered map.
void NameIndex::withShape(std::size_t parts, std::string_view first, std::vector<std::size_t>& out) const {
    linkShapes();
    if (parts >= m_shapes.size()) {
        return;
    }
    auto const& byFirst = m_shapes[parts];
    std::size_t const start = out.size();
    std::size_t runs = 0;
    for (auto it = byFirst.lower_bound(first); it != byFirst.end() && it->first.substr(0, first.size()) == first;
         ++it) {
        for (std::size_t id = it->second.head; id != npos; id = m_nextShape[id]) {
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
