#include "parse_outcome.h"

#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <iostream>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>

#include "fail_closed.h"

namespace quenopt {

namespace {

int const kNone = 0x7fffffff;

// The library traces to standard output when a script's first argument is its
// trace switch. Standard output is the text that the script evaluates, so
// while the library parses, whatever it writes there goes to standard error.
class TraceToStandardError {
public:
    TraceToStandardError() {
        std::cout.flush();
        std::fflush(stdout);
        m_saved = dup(1);
        if (m_saved >= 0) {
            setScriptDescriptor(m_saved);
            dup2(2, 1);
        }
    }
    TraceToStandardError(TraceToStandardError const&) = delete;
    TraceToStandardError& operator=(TraceToStandardError const&) = delete;
    ~TraceToStandardError() {
        std::cout.flush();
        std::fflush(stdout);
        if (m_saved >= 0) {
            dup2(m_saved, 1);
            setScriptDescriptor(1);
            close(m_saved);
        }
    }

private:
    int m_saved = -1;
};

struct ParserHolder {
    quen_3_1::IParser* parser = nullptr;
    quen_3_1::IParseResult* result = nullptr;
    ParserHolder() = default;
    ParserHolder(ParserHolder const&) = delete;
    ParserHolder& operator=(ParserHolder const&) = delete;
    ~ParserHolder() {
        if (result != nullptr) {
            result->destroy();
        }
        if (parser != nullptr) {
            parser->destroy();
        }
    }
};

// The texts that the library takes with their terminating NUL, in buffers
// kept from one option to the next.
struct RegistrationTexts {
    std::string names;
    std::string description;
    std::string group;
};

void registerOption(quen_3_1::IParser& parser, TableOption const& option, RegistrationTexts& texts) {
    texts.names.clear();
    for (std::string_view const& name : option.names) {
        if (!texts.names.empty()) {
            texts.names += ',';
        }
        texts.names += name;
    }
    texts.description.assign(option.description);
    texts.group.assign(option.group);
    quen_3_1::IOption* registered =
        parser.option(texts.names.c_str(), texts.description.c_str(), option.kind, texts.group.c_str());
    for (std::string_view const& synonym : option.extras().synonyms) {
        registered->synonym(std::string(synonym).c_str());
    }
    for (tarvo2::variant_t const& allowed : option.extras().allowed) {
        registered->allowValue(allowed);
    }
    if (option.extras().hasDefault) {
        registered->defaultValue(option.extras().defaultValue);
    }
    if (option.hasSplit) {
        registered->tokenize(option.split);
    }
    if (option.positional) {
        registered->positional();
    }
}

bool bySequence(OptionValue const& a, OptionValue const& b) { return a.sequence < b.sequence; }

// The values of occurrence `index` among `values`, sorted by sequence number:
// values follow their occurrence's number and come before the next occurrence's.
std::pair<std::vector<OptionValue>::const_iterator, std::vector<OptionValue>::const_iterator> valuesOf(
    std::vector<OptionValue> const& values, std::vector<int> const& occurrences, std::size_t index) {
    int const end = index + 1 < occurrences.size() ? occurrences[index + 1] : kNone;
    auto first = std::lower_bound(values.begin(), values.end(), OptionValue{"", occurrences[index]}, bySequence);
    auto last = std::lower_bound(first, values.end(), OptionValue{"", end}, bySequence);
    return {first, last};
}

// Integers are written in plain decimal whatever form the user chose (hex,
// a sign, trailing characters the conversion ignored), so that shell
// arithmetic can use them; other kinds keep their text.
std::string valueText(TableOption const& option, quen_3_1::Value const& value) {
    switch (option.kind) {
        case tarvo2::vt_int:
            return std::to_string(value.m_value.as<int>());
        case tarvo2::vt_uint:
            return std::to_string(value.m_value.as<unsigned int>());
        case tarvo2::vt_int64:
            return std::to_string(value.m_value.as<long long>());
        case tarvo2::vt_uint64:
            return std::to_string(value.m_value.as<unsigned long long>());
        default:
            return value.m_text == nullptr ? std::string() : std::string(value.m_text);
    }
}

OptionOutcome collectOption(quen_3_1::IParseResult& result, TableOption const& option) {
    OptionOutcome outcome;
    outcome.option = &option;
    std::string const primary(option.names[0]);
    char const* name = primary.c_str();
    quen_3_1::Value first = result.get(name);
    if (first.m_status != 0) {
        return outcome;
    }
    if (first.m_text == nullptr) {
        // No values at all: get() and next() walk the occurrences.
        outcome.occurrences.push_back(first.m_index);
        for (int position = result.nextPosition(); position != kNone; position = result.nextPosition()) {
            outcome.occurrences.push_back(position);
        }
    } else {
        outcome.values.push_back({valueText(option, first), first.m_index});
        for (quen_3_1::Value value = result.next(name); value.m_status == 0; value = result.next(name)) {
            outcome.values.push_back({valueText(option, value), value.m_index});
        }
        result.get(name);
        for (int position = result.nextPosition(); position != kNone; position = result.nextPosition()) {
            outcome.occurrences.push_back(position);
        }
        if (outcome.occurrences.empty()) {
            // The option was not given; get() answered with its default. The
            // library renders a double default with six digits; the table's
            // own text loses nothing.
            outcome.fromDefault = true;
            if (option.kind == tarvo2::vt_double) {
                outcome.values.front().text = option.extras().defaultText;
            }
            return outcome;
        }
    }
    if (option.kind == tarvo2::vt_empty) {
        outcome.count = outcome.occurrences.size();
        return outcome;
    }
    // Only an empty positional argument makes an occurrence without values;
    // it stands for one empty value.
    std::stable_sort(outcome.values.begin(), outcome.values.end(), bySequence);
    std::vector<OptionValue> empty;
    for (std::size_t i = 0; i < outcome.occurrences.size(); ++i) {
        auto range = valuesOf(outcome.values, outcome.occurrences, i);
        if (range.first == range.second) {
            empty.push_back({"", outcome.occurrences[i]});
        }
    }
    std::size_t const given = outcome.values.size();
    outcome.values.insert(outcome.values.end(), empty.begin(), empty.end());
    std::inplace_merge(outcome.values.begin(), outcome.values.begin() + static_cast<std::ptrdiff_t>(given),
                       outcome.values.end(), bySequence);
    outcome.count = outcome.values.size();
    return outcome;
}

// The arguments that the positional option took, one per occurrence: the
// pieces of a split argument are joined again with the split character.
std::vector<std::string> positionalArguments(OptionOutcome const& outcome) {
    std::vector<std::string> arguments;
    if (outcome.fromDefault) {
        return arguments;
    }
    TableOption const& option = *outcome.option;
    char split = option.hasSplit ? option.split : ',';
    for (std::size_t i = 0; i < outcome.occurrences.size(); ++i) {
        std::string argument;
        auto range = valuesOf(outcome.values, outcome.occurrences, i);
        for (auto value = range.first; value != range.second; ++value) {
            if (value != range.first && split != 0) {
                argument += split;
            }
            argument += value->text;
        }
        arguments.push_back(argument);
    }
    return arguments;
}

}  // namespace

bool runParse(OptionTable const& table, int flags, std::vector<std::string> const& arguments, ParseOutcome& outcome,
              std::string& problem) {
    try {
        ParserHolder holder;
        if (quen_3_1::createParser(&holder.parser, flags) != 0) {
            problem = "cannot create a parser";
            return false;
        }
        RegistrationTexts registration;
        for (TableOption const& option : table.options) {
            registerOption(*holder.parser, option, registration);
        }
        holder.parser->createResult(&holder.result);

        std::vector<std::string> texts;
        texts.reserve(arguments.size() + 1);
        texts.push_back("quenopt");
        texts.insert(texts.end(), arguments.begin(), arguments.end());
        std::vector<char*> argv;
        argv.reserve(texts.size() + 1);
        for (std::string& text : texts) {
            argv.push_back(text.data());
        }
        argv.push_back(nullptr);
        {
            TraceToStandardError redirect;
            outcome.code = holder.parser->parseArgsVector(static_cast<int>(texts.size()), argv.data(), holder.result);
        }
        if (outcome.code != 0) {
            outcome.error = holder.parser->getErrorDesc();
        }

        // The options not given go straight to their place, in a vector sized
        // for the whole table; the given ones (few, as a rule) are sorted apart
        // and then moved in before them, without a second array of outcomes.
        std::vector<OptionOutcome> given;
        outcome.options.reserve(table.options.size());
        TableOption const* positional = table.positionalOption();
        TableOption const* help = table.helpOption();
        std::vector<std::string> positionalTaken;
        for (TableOption const& option : table.options) {
            OptionOutcome collected = collectOption(*holder.result, option);
            if (&option == positional) {
                positionalTaken = positionalArguments(collected);
            }
            if (&option == help && !collected.occurrences.empty() && outcome.code == 0) {
                outcome.help = true;
                outcome.helpText = holder.parser->getDescription(false);
            }
            (collected.occurrences.empty() ? outcome.options : given).push_back(std::move(collected));
        }
        std::stable_sort(given.begin(), given.end(), [](OptionOutcome const& a, OptionOutcome const& b) {
            return a.occurrences.front() < b.occurrences.front();
        });
        outcome.options.insert(outcome.options.begin(), std::make_move_iterator(given.begin()),
                               std::make_move_iterator(given.end()));

        std::vector<std::string> afterTerminator;
        char const* text = nullptr;
        for (int code = holder.result->getFirstArgument(&text); code == 0;
             code = holder.result->getNextArgument(&text)) {
            afterTerminator.push_back(text);
        }
        // With this flag each argument after "--" also became a positional
        // value; it is restored once, as an argument after "--".
        if ((flags & quen_3_1::FlagPositionalAfterTerminator) != 0) {
            std::size_t twice = std::min(afterTerminator.size(), positionalTaken.size());
            positionalTaken.resize(positionalTaken.size() - twice);
        }
        outcome.arguments = positionalTaken;
        outcome.arguments.insert(outcome.arguments.end(), afterTerminator.begin(), afterTerminator.end());
        return true;
    } catch (std::exception const& failure) {
        problem = failure.what();
        return false;
    }
}

}  // namespace quenopt
