#include "option_table.h"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <string_view>
#include <utility>

#include "line_claims.h"

namespace quenopt {

namespace {

struct KindName {
    char const* name;
    tarvo2::kel_variant_type_t kind;
};

KindName const kKinds[] = {
    {"bool", tarvo2::vt_bool},   {"int", tarvo2::vt_int},       {"uint", tarvo2::vt_uint},
    {"int64", tarvo2::vt_int64}, {"uint64", tarvo2::vt_uint64}, {"double", tarvo2::vt_double},
    {"string", tarvo2::vt_str},  {"none", tarvo2::vt_empty},
};

bool isBlank(char c) { return c == ' ' || c == '\t'; }

// `text` without the blanks around it.
std::string_view trimmed(std::string_view text) {
    while (!text.empty() && isBlank(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && isBlank(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

// The whole of `in`; false after a read error. A file's size is known
// beforehand, and its text is read in one piece into a string of that size.
bool readAll(std::istream& in, std::string& text) {
    std::streambuf& buffer = *in.rdbuf();
    std::streamoff const start = buffer.pubseekoff(0, std::ios::cur, std::ios::in);
    if (start >= 0) {
        std::streamoff const end = buffer.pubseekoff(0, std::ios::end, std::ios::in);
        if (end >= 0 && std::streamoff(buffer.pubseekpos(start, std::ios::in)) != start) {
            return false;
        }
        if (end > start) {
            text.resize(static_cast<std::size_t>(end - start));
            in.read(&text[0], static_cast<std::streamsize>(text.size()));
            text.resize(static_cast<std::size_t>(in.gcount()));
        }
    }
    char piece[1 << 16];
    while (in.read(piece, sizeof piece) || in.gcount() > 0) {
        text.append(piece, static_cast<std::size_t>(in.gcount()));
    }
    return !in.bad();
}

// The shortest line that holds an option, with its newline.
std::size_t const kShortestLine = 6;

// Options whose claims are checked together (see RunClaims).
std::size_t const kRunLength = 16;

std::vector<std::string> splitAt(std::string const& text, char separator) {
    std::vector<std::string> pieces;
    std::string::size_type start = 0;
    while (true) {
        std::string::size_type end = text.find(separator, start);
        if (end == std::string::npos) {
            pieces.push_back(text.substr(start));
            return pieces;
        }
        pieces.push_back(text.substr(start, end - start));
        start = end + 1;
    }
}

// The next blank-separated word of `text` (empty at its end); `text` keeps what follows.
std::string_view nextWord(std::string_view& text) {
    std::size_t first = 0;
    while (first < text.size() && isBlank(text[first])) {
        ++first;
    }
    std::size_t last = first;
    while (last < text.size() && !isBlank(text[last])) {
        ++last;
    }
    std::string_view const word = text.substr(first, last - first);
    text.remove_prefix(last);
    return word;
}

bool isDigit(char c) { return c >= '0' && c <= '9'; }

bool isNameCharacter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || isDigit(c) || c == '-' || c == '_';
}

// Names become both command-line names and parts of shell variable names, so
// they are kept to letters, digits, '-' and '_', starting with a letter or digit.
bool checkName(std::string_view name, std::string& why) {
    if (name.empty()) {
        why = "empty name";
        return false;
    }
    for (char c : name) {
        if (!isNameCharacter(c)) {
            why = "name '" + std::string(name) + "' holds '" + std::string(1, c) +
                  "'; names use letters, digits, '-' and '_'";
            return false;
        }
    }
    if (name[0] == '-' || name[0] == '_') {
        why = "name '" + std::string(name) + "' must begin with a letter or a digit";
        return false;
    }
    return true;
}

bool parseSigned(std::string const& text, long long low, long long high, long long& out) {
    if (text.empty() || !(isDigit(text[0]) || text[0] == '-' || text[0] == '+')) {
        return false;
    }
    char* end = nullptr;
    errno = 0;
    long long value = std::strtoll(text.c_str(), &end, 10);
    if (errno != 0 || *end != '\0' || value < low || value > high) {
        return false;
    }
    out = value;
    return true;
}

bool parseUnsigned(std::string const& text, int base, unsigned long long high, unsigned long long& out) {
    if (text.empty()) {
        return false;
    }
    for (char c : text) {
        if (!(isDigit(c) || (base == 16 && std::isxdigit(static_cast<unsigned char>(c))))) {
            return false;
        }
    }
    char* end = nullptr;
    errno = 0;
    unsigned long long value = std::strtoull(text.c_str(), &end, base);
    if (errno != 0 || *end != '\0' || value > high) {
        return false;
    }
    out = value;
    return true;
}

// Converts a default or allowed value written in the table to the option's kind.
bool convertValue(TableOption const& option, std::string const& text, tarvo2::variant_t& out) {
    switch (option.kind) {
        case tarvo2::vt_bool:
            if (text == "1" || text == "true") {
                out = tarvo2::variant_t(true);
                return true;
            }
            if (text == "0" || text == "false") {
                out = tarvo2::variant_t(false);
                return true;
            }
            return false;
        case tarvo2::vt_int: {
            long long value = 0;
            if (!parseSigned(text, std::numeric_limits<int>::min(), std::numeric_limits<int>::max(), value)) {
                return false;
            }
            out = tarvo2::variant_t(static_cast<int>(value));
            return true;
        }
        case tarvo2::vt_uint: {
            unsigned long long value = 0;
            if (!parseUnsigned(text, 10, std::numeric_limits<unsigned int>::max(), value)) {
                return false;
            }
            out = tarvo2::variant_t(static_cast<unsigned int>(value));
            return true;
        }
        case tarvo2::vt_int64: {
            long long value = 0;
            if (!parseSigned(text, std::numeric_limits<long long>::min(), std::numeric_limits<long long>::max(),
                             value)) {
                return false;
            }
            out = tarvo2::variant_t(value);
            return true;
        }
        case tarvo2::vt_uint64: {
            unsigned long long value = 0;
            bool hex = text.size() > 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X');
            if (!parseUnsigned(hex ? text.substr(2) : text, hex ? 16 : 10,
                               std::numeric_limits<unsigned long long>::max(), value)) {
                return false;
            }
            out = tarvo2::variant_t(value);
            return true;
        }
        case tarvo2::vt_double: {
            if (text.empty() || text[0] == ' ' || text[0] == '\t') {
                return false;
            }
            char* end = nullptr;
            errno = 0;
            double value = std::strtod(text.c_str(), &end);
            if (errno != 0 || *end != '\0') {
                return false;
            }
            out = tarvo2::variant_t(value);
            return true;
        }
        case tarvo2::vt_str:
            out = tarvo2::variant_t(text.c_str());
            return true;
        default:
            return false;
    }
}

// Sets `error` to "FILE:LINE: field 'F': what is wrong"; returns false.
bool lineError(std::string const& source, int line, char const* field, std::string const& why, std::string& error) {
    error = source + ":" + std::to_string(line) + ": field '" + field + "': " + why;
    return false;
}

// Everything the checks of later lines need to know about earlier ones.
struct TableState {
    LineClaims names;      // command-line names (with "no-" forms of booleans)
    LineClaims variables;  // shell variables
    int positionalLine = 0;
};

class LineReader {
public:
    LineReader(std::string const& source, int line, std::string const& prefix, TableState& state)
        : m_source(source), m_line(line), m_prefix(prefix), m_state(state) {}

    bool read(std::string_view text, TableOption& option, std::string& error) {
        option.line = m_line;
        // The description is the last field and may itself hold '|'.
        std::string_view fields[5];
        std::size_t count = 0;
        while (count < 4) {
            std::size_t const bar = text.find('|');
            if (bar == std::string_view::npos) {
                break;
            }
            fields[count++] = trimmed(text.substr(0, bar));
            text.remove_prefix(bar + 1);
        }
        fields[count++] = trimmed(text);
        if (count < 2) {
            return fail("kind", "missing; a line needs at least 'names | kind'", error);
        }
        if (!readNames(fields[0], option, error) || !readKind(fields[1], option, error) ||
            !readAttributes(fields[3], option, error)) {
            return false;
        }
        option.group = fields[2];
        option.description = fields[4];
        // An error in the claims of this line, checked later, still comes
        // before any error of a later line that this would change.
        if (option.positional) {
            m_state.positionalLine = m_line;
        }
        return true;
    }

private:
    bool fail(char const* field, std::string const& why, std::string& error) const {
        return lineError(m_source, m_line, field, why, error);
    }

    bool readKind(std::string_view text, TableOption& option, std::string& error) const {
        if (text.empty()) {
            return fail("kind", "missing", error);
        }
        for (KindName const& kind : kKinds) {
            if (text == kind.name) {
                option.kindName = kind.name;
                option.kind = kind.kind;
                return true;
            }
        }
        return fail("kind",
                    "unknown kind '" + std::string(text) +
                        "'; kinds are bool, int, uint, int64, uint64, double, string and none",
                    error);
    }

    bool readNames(std::string_view text, TableOption& option, std::string& error) const {
        if (text.empty()) {
            return fail("names", "missing", error);
        }
        if (std::count(text.begin(), text.end(), ',') > 2) {
            return fail("names", "more than three names", error);
        }
        NameList names;
        while (true) {
            std::size_t const comma = text.find(',');
            std::string_view const name = trimmed(text.substr(0, comma));
            std::string why;
            if (!checkName(name, why)) {
                return fail("names", why, error);
            }
            names.push_back(name);
            if (comma == std::string_view::npos) {
                break;
            }
            text.remove_prefix(comma + 1);
        }
        // The library keeps a third name for a short form.
        if (names.size() == 3 && names[2].size() > 2) {
            return fail("names", "the third name '" + std::string(names[2]) + "' is longer than two characters", error);
        }
        option.names = names;
        std::string variable(names[0]);
        for (char& c : variable) {
            if (c == '-') {
                c = '_';
            }
        }
        option.variable = m_prefix.empty() ? variable : m_prefix + "_" + variable;
        if (!isShellIdentifier(option.variable)) {
            return fail("names", "'" + option.variable + "' is not a shell variable name", error);
        }
        return true;
    }

    bool readAttributes(std::string_view text, TableOption& option, std::string& error) {
        bool hasAllow = false;
        for (std::string_view word = nextWord(text); !word.empty(); word = nextWord(text)) {
            std::size_t const equals = word.find('=');
            std::string_view const key = word.substr(0, equals);
            std::string_view const value =
                equals == std::string_view::npos ? std::string_view() : word.substr(equals + 1);
            if (word == "positional") {
                if (option.positional) {
                    return fail("attributes", "'positional' is given twice", error);
                }
                if (option.kind == tarvo2::vt_empty) {
                    return fail("attributes", "an option of kind none cannot be positional", error);
                }
                if (m_state.positionalLine != 0) {
                    return fail("attributes",
                                "only one option can be positional; line " + std::to_string(m_state.positionalLine) +
                                    " has one",
                                error);
                }
                option.positional = true;
            } else if (equals == std::string::npos) {
                return fail("attributes", "unknown attribute '" + std::string(word) + "'", error);
            } else if (key == "default") {
                if (option.editExtras().hasDefault) {
                    return fail("attributes", "'default' is given twice", error);
                }
                if (option.kind == tarvo2::vt_empty) {
                    return fail("attributes", "an option of kind none takes no default", error);
                }
                if (value.empty()) {
                    return fail("attributes", "empty default", error);
                }
                if (!convertValue(option, std::string(value), option.editExtras().defaultValue)) {
                    return fail("attributes", "default '" + std::string(value) + "' is not a valid " + option.kindName,
                                error);
                }
                option.editExtras().hasDefault = true;
                option.editExtras().defaultText = value;
            } else if (key == "allow") {
                if (hasAllow) {
                    return fail("attributes", "'allow' is given twice", error);
                }
                if (option.kind == tarvo2::vt_empty || option.kind == tarvo2::vt_bool) {
                    return fail("attributes",
                                std::string("an option of kind ") + option.kindName + " takes no allowed values",
                                error);
                }
                for (std::string const& piece : splitAt(std::string(value), ',')) {
                    tarvo2::variant_t allowed;
                    if (piece.empty()) {
                        return fail("attributes", "empty allowed value", error);
                    }
                    if (!convertValue(option, piece, allowed)) {
                        return fail("attributes", "allowed value '" + piece + "' is not a valid " + option.kindName,
                                    error);
                    }
                    option.editExtras().allowed.push_back(allowed);
                }
                hasAllow = true;
            } else if (key == "split") {
                if (option.hasSplit) {
                    return fail("attributes", "'split' is given twice", error);
                }
                if (option.kind == tarvo2::vt_empty || option.kind == tarvo2::vt_bool) {
                    return fail("attributes", std::string("an option of kind ") + option.kindName + " takes no split",
                                error);
                }
                if (value == "none") {
                    option.split = 0;
                } else if (value.size() == 1) {
                    option.split = value[0];
                } else {
                    return fail("attributes", "split takes one character or 'none', not '" + std::string(value) + "'",
                                error);
                }
                option.hasSplit = true;
            } else if (key == "synonym") {
                std::string why;
                if (!checkName(value, why)) {
                    return fail("attributes", "synonym: " + why, error);
                }
                option.editExtras().synonyms.push_back(value);
            } else {
                return fail("attributes", "unknown attribute '" + std::string(key) + "'", error);
            }
        }
        return true;
    }

    std::string const& m_source;
    int m_line;
    std::string const& m_prefix;
    TableState& m_state;
};

// Refuses a name that an earlier option answers to, counting the "no-" forms
// of booleans both ways, and a variable that an earlier option uses; records
// them otherwise. Options are checked in runs: the hashes of a whole run are
// computed and their slots fetched first, as in a large table every lookup
// would otherwise wait for memory on its own.
class RunClaims {
public:
    RunClaims(std::string const& source, TableState& state) : m_source(source), m_state(state) {}

    // Checks and records the options from `first` to the end, in order.
    bool check(std::vector<TableOption> const& options, std::size_t first, std::string& error) {
        m_used = 0;
        m_ends.clear();
        for (std::size_t at = first; at < options.size(); ++at) {
            gather(options[at]);
        }
        std::size_t begin = 0;
        for (std::size_t at = first; at < options.size(); ++at) {
            std::size_t const end = m_ends[at - first];
            if (!checkOne(options[at], begin, end, error)) {
                return false;
            }
            begin = end;
        }
        return true;
    }

private:
    struct Claim {
        std::string text;
        char const* field = nullptr;                   // null for a variable
        std::string_view const* negationOf = nullptr;  // the name a "no-" form negates, or null
        std::uint64_t hash = 0;
        // How messages name a name; built only for a message.
        std::string shown() const {
            std::string name = "name '" + text + "'";
            return negationOf == nullptr ? name : name + " (the negation of '" + std::string(*negationOf) + "')";
        }
    };

    // The next claim, its text storage kept from earlier runs.
    Claim& next() {
        if (m_used == m_claims.size()) {
            m_claims.emplace_back();
        }
        return m_claims[m_used++];
    }

    // The next claim on `table`: its text, hashed, and the slot it will probe fetched.
    template <class Table>
    Claim& add(Table& table, std::string_view before, std::string_view text, std::string_view after) {
        Claim& claim = next();
        claim.text.assign(before);
        claim.text += text;
        claim.text += after;
        claim.hash = table.hashOf(claim.text);
        table.prefetch(claim.hash);
        return claim;
    }

    void addName(std::string_view text, char const* field, std::string_view const* negationOf, char const* before) {
        Claim& claim = add(m_state.names, before, text, {});
        claim.field = field;
        claim.negationOf = negationOf;
    }

    void addVariable(std::string_view text, char const* suffix) {
        Claim& claim = add(m_state.variables, {}, text, suffix);
        claim.field = nullptr;
        claim.negationOf = nullptr;
    }

    // The option's names, then the "no-" forms of a boolean's, then its two variables.
    void gather(TableOption const& option) {
        for (std::string_view const& name : option.names) {
            addName(name, "names", nullptr, "");
        }
        for (std::string_view const& name : option.extras().synonyms) {
            addName(name, "attributes", nullptr, "");
        }
        if (option.kind == tarvo2::vt_bool) {
            for (std::string_view const& name : option.names) {
                addName(name, "names", &name, "no-");
            }
            for (std::string_view const& name : option.extras().synonyms) {
                addName(name, "attributes", &name, "no-");
            }
        }
        addVariable(option.variable, "");
        addVariable(option.variable, "_count");
        m_ends.push_back(m_used);
    }

    bool checkOne(TableOption const& option, std::size_t begin, std::size_t end, std::string& error) {
        std::size_t const variables = end - 2;
        for (std::size_t at = begin; at < variables; ++at) {
            Claim const& claim = m_claims[at];
            if (int const taken = m_state.names.lineOf(claim.text, claim.hash)) {
                return lineError(m_source, option.line, claim.field,
                                 claim.shown() + " is already taken by line " + std::to_string(taken), error);
            }
            for (std::size_t earlier = begin; earlier < at; ++earlier) {
                if (m_claims[earlier].text == claim.text) {
                    return lineError(m_source, option.line, claim.field, claim.shown() + " is given twice", error);
                }
            }
        }
        for (std::size_t at = variables; at < end; ++at) {
            Claim const& claim = m_claims[at];
            if (int const taken = m_state.variables.lineOf(claim.text, claim.hash)) {
                return lineError(m_source, option.line, "names",
                                 "variable '" + claim.text + "' is already taken by line " + std::to_string(taken),
                                 error);
            }
        }
        for (std::size_t at = begin; at < variables; ++at) {
            m_state.names.claim(m_claims[at].text, m_claims[at].hash, option.line);
        }
        for (std::size_t at = variables; at < end; ++at) {
            m_state.variables.claim(m_claims[at].text, m_claims[at].hash, option.line);
        }
        return true;
    }

    std::string const& m_source;
    TableState& m_state;
    std::vector<Claim> m_claims;  // the run's claims; only the first m_used are current
    std::size_t m_used = 0;
    std::vector<std::size_t> m_ends;  // by option of the run: the end of its claims
};

}  // namespace

bool isShellIdentifier(std::string const& text) {
    if (text.empty() || isDigit(text[0])) {
        return false;
    }
    for (char c : text) {
        if (!((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || isDigit(c) || c == '_')) {
            return false;
        }
    }
    return true;
}

TableOptionExtras const& TableOption::extras() const {
    static TableOptionExtras const none;
    return m_extras == nullptr ? none : *m_extras;
}

TableOptionExtras& TableOption::editExtras() {
    if (m_extras == nullptr) {
        m_extras = std::make_unique<TableOptionExtras>();
    }
    return *m_extras;
}

TableOption const* OptionTable::helpOption() const {
    for (TableOption const& option : options) {
        if (option.kind != tarvo2::vt_empty) {
            continue;
        }
        for (std::string_view const& name : option.names) {
            if (name == "help") {
                return &option;
            }
        }
        for (std::string_view const& name : option.extras().synonyms) {
            if (name == "help") {
                return &option;
            }
        }
    }
    return nullptr;
}

TableOption const* OptionTable::positionalOption() const {
    for (TableOption const& option : options) {
        if (option.positional) {
            return &option;
        }
    }
    return nullptr;
}

bool readTable(std::istream& in, std::string const& source, std::string const& prefix, OptionTable& table,
               std::string& error) {
    std::string& text = table.text;
    if (!readAll(in, text)) {
        error = source + ": read error";
        return false;
    }
    // Sized for the common table (one name per line) at once: growing line by
    // line costs more than the lookups. An option's line takes at least six
    // bytes ("a|int" and its newline), so a text of blank lines reserves no
    // more than one of options would. Every option claims two variables.
    std::size_t const lines = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')) + 1;
    std::size_t const most = std::min(lines, (text.size() + 1) / kShortestLine);
    table.options.reserve(most);
    TableState state;
    state.names.reserve(most);
    state.variables.reserve(2 * most);
    RunClaims claims(source, state);
    std::size_t unchecked = 0;  // options at the end of the table whose claims wait for their run
    std::string readError;
    bool read = true;
    int line = 0;
    // Lines as std::getline() gives them: no empty line after a final newline.
    for (std::size_t start = 0; start < text.size();) {
        std::size_t end = std::min(text.find('\n', start), text.size());
        std::string_view current(text.data() + start, end - start);
        start = end + 1;
        ++line;
        if (!current.empty() && current.back() == '\r') {
            current.remove_suffix(1);
        }
        std::string_view const content = trimmed(current);
        if (content.empty() || content[0] == '#') {
            continue;
        }
        TableOption option;
        LineReader reader(source, line, prefix, state);
        if (!reader.read(content, option, readError)) {
            read = false;
            break;
        }
        table.options.push_back(std::move(option));
        if (++unchecked == kRunLength) {
            if (!claims.check(table.options, table.options.size() - kRunLength, error)) {
                return false;
            }
            unchecked = 0;
        }
    }
    // The claims of the lines before a line that cannot be read come first.
    if (!claims.check(table.options, table.options.size() - unchecked, error)) {
        return false;
    }
    if (!read) {
        error = readError;
    }
    return read;
}

}  // namespace quenopt
