#ifndef QUEN_3_1_OPTIONS_NAME_INDEX_H
#define QUEN_3_1_OPTIONS_NAME_INDEX_H

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace quen_3_1 {

// Every name the registry's options answer to, kept up to date as options
// and synonyms are added, so that lookups and abbreviation matching do not
// walk all options for every argument. A candidate is one entry of the
// candidate list: each option's names in order, a boolean's "no-" form right
// after its name, options in registration order. Lists of candidates are
// always in that order.
class NameIndex {
public:
    struct Candidate {
        std::size_t option;    // index of the option in the registry
        std::size_t name;      // index of the name in the option's names
        bool negated;          // the "no-" form of a boolean option's name
        std::string text;      // the name as a whole ("no-" included)
        std::size_t parts;     // number of '-'-separated parts
        std::size_t firstEnd;  // length of the first part
    };

    // Adds the option's name at `nameIndex` and, for a boolean, its "no-" form.
    void add(std::size_t option, std::size_t nameIndex, std::string const& name, bool boolean);

    // The candidates named exactly `name`; null when there are none.
    std::vector<std::size_t> const* exact(std::string const& name) const;
    // Appends the candidates with `parts` parts whose first part begins with
    // `first`, in candidate-list order.
    void withShape(std::size_t parts, std::string_view first, std::vector<std::size_t>& out) const;

    Candidate const& candidate(std::size_t id) const { return m_candidates[id]; }
    std::size_t size() const { return m_candidates.size(); }

private:
    void insert(Candidate candidate);
    bool before(std::size_t a, std::size_t b) const;
    void insertOrdered(std::vector<std::size_t>& ids, std::size_t id) const;

    std::vector<Candidate> m_candidates;
    std::unordered_map<std::string, std::vector<std::size_t>> m_exact;
    // By number of parts, then by first part.
    std::vector<std::map<std::string, std::vector<std::size_t>, std::less<>>> m_shapes;
};

}  // namespace quen_3_1

#endif
