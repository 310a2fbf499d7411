#ifndef QUEN_3_1_RECOGNIZERS_ABBREVIATION_PARSER_H
#define QUEN_3_1_RECOGNIZERS_ABBREVIATION_PARSER_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "recognizers/argument_parser.h"
#include "recognizers/decomposed_name.h"

namespace quen_3_1 {

class NameIndex;

// The recognizer of named options: -name, --name, --name=value, --name value,
// and --no-name for booleans, with every part of a name abbreviable.
class AbbreviationParser final : public IArgumentParser {
public:
    // A candidate name that the typed name matches, with its score.
    struct NameMatch {
        bool sameLength = false;
        std::int32_t score = 0;
        DecomposedName name;
    };

    AbbreviationParser(EventHandler* handler, Garbage* garbage, std::int32_t flags);

    int recognize(ArgumentList& args, RegisteredOptionStorage& storage, std::string& message) override;
    int parse(ArgumentList& args, IResultCollector* collector, RegisteredOptionStorage& storage,
              std::string& message) override;
    int getPriority() override { return -10; }

    // Every registered name in registration order, each boolean's "no-" form
    // right after its name. Appends to `names`.
    void makeOptionNamesList(RegisteredOptionStorage& storage, std::vector<DecomposedName>& names);
    // Appends a record for every candidate the typed name matches: 2 per
    // equal part, 1 per proper prefix, no match on any other part.
    void makeNameMatch(std::vector<NameMatch>& matches, DecomposedName const& typed,
                       std::vector<DecomposedName> const& names);
    // 0 with `best` set for a unique best same-length match, 1 when there is
    // none, 2 with `message` set when the best score is tied.
    int findBest(std::vector<NameMatch> const& matches, DecomposedName& best, std::string& message);
    // What findBest gives for the matches of `typed` against the whole
    // candidate list, found through the registry's index of names: only
    // candidates with as many parts and a first part that `typed`'s first
    // part begins can score, and a candidate equal to `typed` beats every
    // other. `best` is the winning candidate of the index.
    int findBestIndexed(NameIndex const& index, std::string_view typed, std::size_t& best, std::string& message);

    std::size_t optionIndex() const { return m_optionIndex; }
    // The best matches of the last findBest or findBestIndexed. The indexed
    // search keeps only the winners' ids; their records are built on first use.
    std::vector<NameMatch> const& bestMatches() const;
    std::size_t bestCount() const { return m_pendingIndex != nullptr ? m_bestIds.size() : m_bestMatches.size(); }

    // 'a', 'b', 'c': the names of `matches` as messages list them.
    static std::string listNames(std::vector<NameMatch> const& matches);

private:
    int decideValue(ArgumentList& args, OptionDescription const& option, std::string& value, std::size_t& consumed,
                    std::string& message);
    int valueFromNextArgument(ArgumentList& args, OptionDescription const& option, std::string& value,
                              std::size_t& consumed, std::string& message);
    int fail(std::string& message, std::string text);
    std::string tokenPart(ArgumentList const& args);

    std::size_t m_optionIndex;
    mutable std::vector<NameMatch> m_bestMatches;
    // The index whose winners (m_bestIds, all scoring m_bestScore) are not
    // turned into m_bestMatches yet; null once they are.
    mutable NameIndex const* m_pendingIndex = nullptr;
    std::int32_t m_bestScore = 0;
    // Working storage of findBestIndexed, kept to spare allocations.
    std::vector<std::string_view> m_typedParts;
    std::vector<std::size_t> m_shaped;
    std::vector<std::size_t> m_bestIds;
};

}  // namespace quen_3_1

#endif
