// The straightforward forms of what the library does through its name index
// number extraction and line splitter, kept outside the library as the reference that the
// differential test and fuzz target compare the fast paths with.
#ifndef QUEN_TESTS_SUPPORT_STRAIGHTFORWARD_PATHS_H
#define QUEN_TESTS_SUPPORT_STRAIGHTFORWARD_PATHS_H

#include <locale>
#include <sstream>
#include <string>
#include <vector>

#include "frontend/option_text_lines.h"
#include "options/registered_option_storage.h"

namespace quen_test {

// An option answers to its own names, and a boolean also to "no-" + each of them.
inline bool answersTo(quen_3_1::OptionDescription const& option, std::string const& name) {
    for (std::string_view const own : option.names()) {
        if (own == name) {
            return true;
        }
    }
    if (option.type() != tarvo2::vt_bool || name.compare(0, 3, "no-") != 0) {
        return false;
    }
    for (std::string_view const own : option.names()) {
        if (name.compare(3, std::string::npos, own) == 0) {
            return true;
        }
    }
    return false;
}

// findOption by walking every option for every name: 0 with `index` set, or 1.
inline int scanForOption(quen_3_1::RegisteredOptionStorage const& storage, std::vector<std::string> const& names,
                         unsigned long& index) {
    for (std::string const& name : names) {
        for (std::size_t i = 0; i < storage.size(); ++i) {
            if (answersTo(storage.at(i), name)) {
                index = i;
                return 0;
            }
        }
    }
    return 1;
}

// One value of type T read by a fresh string stream in its default state (or
// in base 16): what the stream-free number extraction must agree with.
template <class T>
bool extractByStream(char const* text, T& value, bool hex = false) {
    std::stringstream stream(text);
    if (hex) {
        stream >> std::hex;
    }
    stream >> value;
    return !stream.fail();
}

// The library's arguments of an option text as texts of their own, for
// comparing with the reference below.
inline std::vector<std::string> argumentsOfText(std::string const& text) {
    std::vector<std::string> args;
    for (auto const& span : quen_3_1::argumentSpansOfText(text)) {
        args.emplace_back(text, span.first, span.second);
    }
    return args;
}

// The arguments of an option text read line by line from a string stream,
// blanks classified one character at a time by the global locale.
inline std::vector<std::string> argumentsOfTextByStream(std::string const& text) {
    std::vector<std::string> args;
    std::ctype<char> const& ctype = std::use_facet<std::ctype<char>>(std::locale());
    std::stringstream stream(text);
    std::string line;
    while (!stream.eof()) {
        std::getline(stream, line);
        std::size_t first = 0;
        while (first < line.size() && ctype.is(std::ctype_base::space, line[first])) {
            ++first;
        }
        if (first < line.size() && (line[first] == ';' || line[first] == '#')) {
            continue;
        }
        std::size_t last = line.size();
        while (last > first && (line[last - 1] == '\r' || line[last - 1] == '\n')) {
            --last;
        }
        if (last > first) {
            args.emplace_back(line, first, last - first);
        }
    }
    return args;
}

}  // namespace quen_test

#endif
