#ifndef QUEN_3_1_RESULTS_PARSE_RESULT_H
#define QUEN_3_1_RESULTS_PARSE_RESULT_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "quen_3_1/quen.h"
#include "results/option_data.h"
#include "results/result_collector.h"
#include "values/garbage.h"
#include "values/text_hash.h"

namespace quen_3_1 {

class RegisteredOptionStorage;

// The result of one or more parses: option data keyed by every name of every
// stored option, plain arguments, and the cursors of the current query.
class ParseResult final : public IParseResult, public IResultCollector {
public:
    ParseResult();
    ParseResult(ParseResult const&) = delete;
    ParseResult& operator=(ParseResult const&) = delete;

    void destroy() override;
    bool present(char const* name, int from, int to) override;
    Value get(char const* name, int from, int to) override;
    Value next(char const* name) override;
    int nextPosition() override;
    int getFirstArgument(char const** text) override;
    int getNextArgument(char const** text) override;
    ~ParseResult() override = default;

    // The first store of an option replaces its data under every name; later
    // stores append. Returns 0.
    int store(OptionDescription const& option, OptionData const& data) override;
    // Sets the default entry of every option that has one, one sequence number
    // per name. Returns 0, or the code and message of IArgumentParser for
    // spent sequence numbers (the defaults set before stay).
    int applyDefault(RegisteredOptionStorage& storage, std::string& message);
    // Keeps a plain argument with its sequence number.
    void appendArgument(std::string const& text, std::int32_t number);

    // Query internals; codes 0 found, 1 not found, 3 standard exception.
    int get(std::string const& name, char const** text, tarvo2::variant_t& value, int from, int to, int& number);
    int next(std::string const& name, char const** text, tarvo2::variant_t& value, int& number);
    int getFirstArgument(std::string& text);
    int getNextArgument(std::string& text);

    std::unordered_map<std::string, OptionData, TextHash> const& options() const { return m_options; }
    std::vector<std::pair<std::string, std::int32_t>> const& arguments() const { return m_arguments; }

private:
    // Nothing depends on the order of the names, so a hash map serves; its
    // elements stay in place when it grows, which m_current relies on.
    using OptionMap = std::unordered_map<std::string, OptionData, TextHash>;

    bool hasCurrent() const { return m_current != nullptr; }
    template <class Query>
    Value publicQuery(char const* name, Query query);
    int readDefault(char const** text, tarvo2::variant_t& value, int& number);
    int readNext(char const** text, tarvo2::variant_t& value, int& number);
    int nextValue(char const** text, tarvo2::variant_t& value, int& number);
    int nextOccurrence(int& number);

    OptionMap m_options;
    std::size_t m_valueCursor;
    std::size_t m_positionCursor;
    std::int32_t m_from;
    std::int32_t m_to;
    OptionData* m_current;  // null when the last lookup failed
    Garbage m_garbage;
    std::vector<std::pair<std::string, std::int32_t>> m_arguments;
    std::size_t m_argumentCursor;
};

}  // namespace quen_3_1

#endif
