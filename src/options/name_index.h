#ifndef QUEN_3_1_OPTIONS_NAME_INDEX_H
#define QUEN_3_1_OPTIONS_NAME_INDEX_H

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "options/chain_table.h"
#include "options/stable_list.h"
#include "values/text_hash.h"

namespace quen_3_1 {

// Every name the registry's options answer to, kept up to date as options
// and synonyms are added, so that lookups and abbreviation matching do not
// walk all options for every argument. A candidate is one entry of the
// candidate list: each option's names in order, a boolean's "no-" form right
// after its name, options in registration order. Candidates with the same
// name, and candidates with the same number of parts and first part, are
// chained in that order.
class NameIndex {
public:
    static constexpr std::size_t npos = static_cast<std::size_t>(-1);

    struct Candidate {
        std::size_t option;     // index of the option in the registry
        std::size_t name;       // index of the name in the option's names
        bool negated;           // the "no-" form of a boolean option's name
        std::string_view text;  // the name as a whole ("no-" included), kept by the registry
        std::size_t parts;      // number of '-'-separated parts
        std::size_t firstEnd;   // length of the first part
        std::size_t nextSame;   // the next candidate with the same text; npos after the last
    };

    // The hash the index files `name` under; a caller that looks a name up
    // and then adds it hashes it once.
    static std::uint64_t hashOf(std::string_view name) { return hashDeclaredName(name); }

    // Adds the option's name at `nameIndex` and, unless `negated` is empty
    // (a boolean's is "no-" and the name), its "no-" form. The index views
    // both texts: the caller keeps them for as long as the index.
    void add(std::size_t option, std::size_t nameIndex, std::string_view name, std::string_view negated) {
        add(option, nameIndex, name, negated, hashOf(name));
    }
    // The same with the name's hashOf.
    void add(std::size_t option, std::size_t nameIndex, std::string_view name, std::string_view negated,
             std::uint64_t hash);

    // The first candidate named exactly `name` (follow nextNamed for the
    // others); npos when there is none.
    std::size_t firstNamed(std::string_view name) const { return firstNamed(name, hashOf(name)); }
    // The same with the name's hashOf.
    std::size_t firstNamed(std::string_view name, std::uint64_t hash) const;
    // The candidate after `id` with the same name; npos after the last.
    std::size_t nextNamed(std::size_t id) const { return m_candidates[id].nextSame; }
    // Appends the candidates with `parts` parts whose first part begins with
    // `first`, in candidate-list order. The chains by shape are built here, on
    // first use: exact names, the common case, never need them.
    void withShape(std::size_t parts, std::string_view first, std::vector<std::size_t>& out) const;

    Candidate const& candidate(std::size_t id) const { return m_candidates[id]; }
    std::size_t size() const { return m_candidates.size(); }

private:
    using Chain = ChainTable::Chain;

    // Files the candidate just appended under its text.
    void insert(std::uint64_t hash);
    void linkShapes() const;
    bool before(std::size_t a, std::size_t b) const;
    // The text of a candidate, as the chain table reads its keys.
    auto textOf() const {
        return [this](std::size_t id) { return m_candidates[id].text; };
    }
    // Links `id` into `chain`, whose links `next(id)` gives.
    template <class Next>
    void link(Chain& chain, std::size_t id, Next const& next) const;

    // Never moved, so that the keys below can view the candidates' texts.
    StableList<Candidate> m_candidates;
    ChainTable m_named;
    // By number of parts, then by first part, and by candidate the next one
    // of the same shape: filled in lazily for the candidates added since.
    mutable std::vector<std::map<std::string_view, Chain>> m_shapes;
    mutable std::vector<std::size_t> m_nextShape;
};

}  // namespace quen_3_1

#endif
