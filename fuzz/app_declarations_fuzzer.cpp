// Programs whose declarations come from the fuzzer, through App: any name,
// any relation, commands nested at will, then a fuzzed command line.
//
// Input: lines up to a 0xFF byte, each one declaration: its first byte says
// what (i s b v: an option of int, text, flag or list; p q: a positional of
// text or list; c: a command, whose declarations follow until a line "u";
// f: an options file; e: an exclusive group of comma-separated names) or how
// to refine the last option (n needs, x excludes, a allow, r range, k check,
// R required, h hidden, E env, S split), the rest of the line its text. What
// follows the 0xFF byte are the arguments, split at NUL and newline bytes.
//
// Checked: parse answers 0, 2 or 70, whatever was declared; a declaration
// mistake is one line "prog: error: bad declaration: ..." (a mistake in a
// command is the program's too) and is reported alike by a second parse.
#include <quen_3_1/app.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <type_traits>
#include <vector>

#include "fuzz_support.h"

namespace {

using quen_fuzz::check;
using quen_fuzz::splitAt;

// The variables the declarations bind: a deque never moves what it holds.
struct Variables {
    std::deque<int> numbers;
    std::deque<std::string> texts;
    std::deque<bool> flags;
    std::deque<std::vector<std::string>> lists;
};

// Applies one refinement to `option`, as the line's first byte says.
template <class T>
void refine(quen_3_1::Option<T>& option, char what, std::string const& text) {
    using Element = typename quen_3_1::Option<T>::Element;
    switch (what) {
        case 'n':
            option.needs(text);
            break;
        case 'x':
            option.excludes(text);
            break;
        case 'a':
            if constexpr (std::is_same_v<Element, std::string>) {
                option.allow(splitAt(text, ','));
            } else if constexpr (std::is_same_v<Element, int>) {
                option.allow({static_cast<int>(text.size()), 7});
            } else {
                option.allow({!text.empty()});
            }
            break;
        case 'r':
            if constexpr (std::is_same_v<Element, int>) {
                option.range(static_cast<int>(text.size()) - 4, static_cast<int>(text.size() % 5));
            }
            break;
        case 'k':
            option.check([text](Element const&) { return text; });
            break;
        case 'R':
            option.required();
            break;
        case 'h':
            option.hidden();
            break;
        case 'E':
            option.env("QUEN_APP_FUZZ_NEVER_SET_" + text);
            break;
        case 'S':
            option.split(text.empty() ? ',' : text[0]);
            break;
        default:
            break;
    }
}

class Declarations {
public:
    explicit Declarations(quen_3_1::App& app) : m_levels{&app} {}

    void line(std::string const& line) {
        if (line.empty()) {
            return;
        }
        char const what = line[0];
        std::string const text = line.substr(1);
        quen_3_1::App& app = *m_levels.back();
        switch (what) {
            case 'i':
                bind(app.option(text, m_variables.numbers.emplace_back(), "A number."));
                break;
            case 's':
                bind(app.option(text, m_variables.texts.emplace_back(), "A text."));
                break;
            case 'b':
                bind(app.option(text, m_variables.flags.emplace_back(), "A flag."));
                break;
            case 'v':
                bind(app.option(text, m_variables.lists.emplace_back(), "A list."));
                break;
            case 'p':
                bind(app.positional(text, m_variables.texts.emplace_back(), "A plain text."));
                break;
            case 'q':
                bind(app.positional(text, m_variables.lists.emplace_back(), "The rest."));
                break;
            case 'c':
                m_levels.push_back(&app.command(text, "A command."));
                m_refine = nullptr;
                break;
            case 'u':
                if (m_levels.size() > 1) {
                    m_levels.pop_back();
                }
                m_refine = nullptr;
                break;
            case 'f':
                app.optionsFile(text, "Options from a file.");
                break;
            case 'e':
                app.exclusive(splitAt(text, ','), text.size() % 2 == 0);
                break;
            default:
                if (m_refine) {
                    m_refine(what, text);
                }
                break;
        }
    }

private:
    template <class T>
    void bind(quen_3_1::Option<T>& option) {
        m_refine = [&option](char what, std::string const& text) { refine(option, what, text); };
    }

    std::vector<quen_3_1::App*> m_levels;
    Variables m_variables;
    std::function<void(char, std::string const&)> m_refine;
};

void checkOutcome(quen_3_1::Result const& result) {
    int const code = result.exitCode();
    check(code == 0 || code == 2 || code == 70, "exit code 0, 2 or 70");
    if (code != 70) {
        return;
    }
    // No declared text holds a newline (declarations are lines): the report is one line.
    std::string const& message = result.message();
    std::string const head = "prog: error: bad declaration: ";
    check(message.compare(0, head.size(), head) == 0, "a mistake is reported as such, naming the program");
    check(message.find('\n') == message.size() - 1, "one mistake is reported, on one line");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    std::uint8_t const* const end = data + size;
    std::uint8_t const* const cut = std::find(data, end, std::uint8_t{0xFF});
    std::vector<std::string> args = cut == end
                                        ? std::vector<std::string>()
                                        : quen_fuzz::splitArguments(cut + 1, static_cast<std::size_t>(end - cut - 1));
    args.insert(args.begin(), "prog");
    std::vector<char const*> argv;
    for (std::string const& arg : args) {
        argv.push_back(arg.c_str());
    }
    argv.push_back(nullptr);

    quen_3_1::App app("prog", "Declared by the fuzzer.");
    Declarations declarations(app);
    for (std::string const& line : splitAt(std::string(data, cut), '\n')) {
        declarations.line(line);
    }
    quen_3_1::Result const first = app.parse(static_cast<int>(args.size()), argv.data());
    checkOutcome(first);
    if (first.exitCode() == 70) {
        quen_3_1::Result const second = app.parse(static_cast<int>(args.size()), argv.data());
        check(second.exitCode() == 70 && second.message() == first.message(), "a mistake is reported alike again");
    }
    return 0;
}
