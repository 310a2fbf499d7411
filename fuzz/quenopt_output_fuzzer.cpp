// quenopt's output over fuzzed tables and arguments, in-process: the table is
// read, the arguments parsed, and each format written as quenopt writes it.
//
// Input: the table's text, an empty line, then the script's arguments split
// at NUL bytes and line breaks; the input's length picks the flag word.
//
// Checked, with a decoder of the documented grammar written here: the sh and
// bash formats hold only "exit N" (N not 0 on failure), or "unset VAR" /
// "VAR=WORD" (sh) / "VAR=(WORD...)" (bash) and "VAR_count=DIGITS" per option,
// then one "set -- WORD..." line; they assign only the table's variables, each
// once, and decode byte for byte to the parse outcome. JSON holds no raw
// control byte but the line breaks between its members.
#include <cstddef>
#include <cstdint>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "fuzz_support.h"
#include "output_formats.h"
#include "parse_outcome.h"

namespace {

int const kFlagWords[] = {quen_3_1::FlagUnknownIsError | quen_3_1::FlagNoHyphenPositional, 0,
                          quen_3_1::FlagUnknownIsError, quen_3_1::FlagPositionalAfterTerminator};

// Reads the output of one format, line by line, as a POSIX shell would.
class Decoder {
public:
    explicit Decoder(std::string const& text) : m_text(text) {}

    bool atEnd() const { return m_at == m_text.size(); }

    // Consumes `literal` if the text continues with it.
    bool take(std::string const& literal) {
        if (m_text.compare(m_at, literal.size(), literal) != 0) {
            return false;
        }
        m_at += literal.size();
        return true;
    }

    // A run of [A-Za-z0-9_].
    std::string identifier() {
        std::size_t const start = m_at;
        while (m_at < m_text.size() && isIdentifierByte(m_text[m_at])) {
            ++m_at;
        }
        return m_text.substr(start, m_at - start);
    }

    // One shell word made of single-quoted runs and backslash-escaped bytes;
    // anything else (an expansion, a blank, a separator) ends it.
    std::string word() {
        std::string decoded;
        bool any = false;
        while (m_at < m_text.size()) {
            char const c = m_text[m_at];
            if (c == '\'') {
                std::size_t const close = m_text.find('\'', m_at + 1);
                quen_fuzz::check(close != std::string::npos, "a quoted run is closed");
                decoded.append(m_text, m_at + 1, close - m_at - 1);
                m_at = close + 1;
            } else if (c == '\\' && m_at + 1 < m_text.size() && m_text[m_at + 1] != '\n') {
                decoded += m_text[m_at + 1];
                m_at += 2;
            } else {
                break;
            }
            any = true;
        }
        quen_fuzz::check(any, "a word where the grammar has one");
        return decoded;
    }

private:
    static bool isIdentifierByte(char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
    }

    std::string const& m_text;
    std::size_t m_at = 0;
};

std::string joinedValues(quenopt::OptionOutcome const& option) {
    std::string joined;
    for (quenopt::OptionValue const& value : option.values) {
        joined += (&value == &option.values.front() ? "" : "\n") + value.text;
    }
    return joined;
}

void checkShell(quenopt::OptionTable const& table, quenopt::ParseOutcome const& outcome, bool arrays) {
    std::ostringstream out;
    quenopt::writeOutcome(out, arrays ? quenopt::Format::Bash : quenopt::Format::Sh, outcome);
    std::string const text = out.str();
    Decoder decoder(text);
    if (outcome.code != 0 || outcome.help) {
        int const status = quenopt::exitStatus(outcome);
        quen_fuzz::check((status == 0) == (outcome.code == 0), "a failed parse exits with a status not 0");
        quen_fuzz::check(text == "exit " + std::to_string(status) + "\n", "a failure or help is one exit line");
        return;
    }
    std::map<std::string, quenopt::TableOption const*> variables;
    for (quenopt::TableOption const& option : table.options) {
        variables[option.variable] = &option;
    }
    std::set<std::string> assigned;
    for (quenopt::OptionOutcome const& option : outcome.options) {
        std::string variable;
        if (decoder.take("unset ")) {
            variable = decoder.identifier();
            quen_fuzz::check(option.values.empty(), "unset only for an option without values");
        } else {
            variable = decoder.identifier();
            quen_fuzz::check(decoder.take("="), "an assignment");
            if (arrays) {
                quen_fuzz::check(decoder.take("("), "an array");
                std::vector<std::string> words;
                while (!decoder.take(")")) {
                    quen_fuzz::check(words.empty() || decoder.take(" "), "array words are blank-separated");
                    words.push_back(decoder.word());
                }
                quen_fuzz::check(words.size() == option.values.size(), "one array word per value");
                for (std::size_t i = 0; i < words.size(); ++i) {
                    quen_fuzz::check(words[i] == option.values[i].text, "array words decode to the values");
                }
            } else {
                quen_fuzz::check(decoder.word() == joinedValues(option), "the word decodes to the values");
            }
        }
        quen_fuzz::check(decoder.take("\n"), "one statement a line");
        auto const found = variables.find(variable);
        quen_fuzz::check(found != variables.end() && found->second == option.option, "only the table's variables");
        quen_fuzz::check(assigned.insert(variable).second, "each variable once");
        quen_fuzz::check(decoder.take(variable + "_count=" + std::to_string(option.count) + "\n"), "the count");
    }
    quen_fuzz::check(assigned.size() == table.options.size(), "every option of the table is set or unset");
    quen_fuzz::check(decoder.take("set --"), "the arguments are restored");
    for (std::string const& argument : outcome.arguments) {
        quen_fuzz::check(decoder.take(" ") && decoder.word() == argument, "set -- decodes to the arguments");
    }
    quen_fuzz::check(decoder.take("\n") && decoder.atEnd(), "nothing after set --");
}

void checkJson(quenopt::ParseOutcome const& outcome) {
    std::ostringstream out;
    quenopt::writeOutcome(out, quenopt::Format::Json, outcome);
    std::string const text = out.str();
    quen_fuzz::check(text.compare(0, 2, "{\n") == 0 && text.size() >= 4 && text.compare(text.size() - 2, 2, "}\n") == 0,
                     "one JSON object");
    for (char c : text) {
        quen_fuzz::check(static_cast<unsigned char>(c) >= 0x20 || c == '\n', "no raw control byte in JSON");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    std::string const input(reinterpret_cast<char const*>(data), size);
    std::size_t const split = input.find("\n\n");
    std::istringstream tableText(input.substr(0, split));
    quenopt::OptionTable table;
    std::string error;
    if (!quenopt::readTable(tableText, "fuzz", "opt", table, error)) {
        quen_fuzz::check(error.compare(0, 5, "fuzz:") == 0, "a refused table is named in the message");
        return 0;
    }
    std::vector<std::string> arguments;
    if (split != std::string::npos) {
        std::string const rest = input.substr(split + 2);
        arguments = quen_fuzz::splitArguments(reinterpret_cast<std::uint8_t const*>(rest.data()), rest.size());
    }
    quenopt::ParseOutcome outcome;
    std::string problem;
    int const flags = kFlagWords[size % (sizeof kFlagWords / sizeof kFlagWords[0])];
    quen_fuzz::check(quenopt::runParse(table, flags, arguments, outcome, problem), "the library can be used");
    checkShell(table, outcome, false);
    checkShell(table, outcome, true);
    checkJson(outcome);
    return 0;
}
