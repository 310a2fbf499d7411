// Reading quenopt's option table: one option per line,
//   names | kind | group | attributes | description
// with '#' comment lines. Every check that the library would make silently
// (or by writing to standard error) is made here first, so that a bad table
// is reported with its file, line and field before anything is registered.
#ifndef QUENOPT_OPTION_TABLE_H
#define QUENOPT_OPTION_TABLE_H

#include <quen_3_1/quen.h>

#include <cstddef>
#include <istream>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quenopt {

// The names field: up to three names, primary first.
class NameList {
public:
    std::string_view const* begin() const { return m_names; }
    std::string_view const* end() const { return m_names + m_count; }
    std::size_t size() const { return m_count; }
    std::string_view front() const { return m_names[0]; }
    std::string_view operator[](std::size_t at) const { return m_names[at]; }
    void push_back(std::string_view name) { m_names[m_count++] = name; }

private:
    std::string_view m_names[3];
    std::size_t m_count = 0;
};

// What only some lines give: synonyms, a default and allowed values.
struct TableOptionExtras {
    std::vector<std::string_view> synonyms;  // synonym= attributes, in order
    bool hasDefault = false;
    tarvo2::variant_t defaultValue;
    std::string_view defaultText;  // as written in the table
    std::vector<tarvo2::variant_t> allowed;
};

// One line of the table, checked and ready to be registered. Its texts are
// views of the table's text, which outlives it: a large table costs no heap
// block per option.
struct TableOption {
    int line = 0;
    tarvo2::kel_variant_type_t kind = tarvo2::vt_empty;
    NameList names;
    char const* kindName = "";  // as written: bool, int, ..., none
    std::string_view group;
    std::string_view description;
    std::string variable;   // shell variable of the values; "_count" is appended for the count
    bool hasSplit = false;  // false keeps the library's own splitting at ','
    char split = ',';       // 0 after split=none
    bool positional = false;

    // The option's extras; none for most lines.
    TableOptionExtras const& extras() const;
    // The extras, made on first use.
    TableOptionExtras& editExtras();

private:
    std::unique_ptr<TableOptionExtras> m_extras;
};

struct OptionTable {
    OptionTable() = default;
    // The options' views point into `text`: a table stays where it was read.
    OptionTable(OptionTable const&) = delete;
    OptionTable& operator=(OptionTable const&) = delete;

    std::string text;  // the table as read
    // Reserved for every line of the text at once: no copies as it grows, and
    // one block for all options instead of one for every few.
    std::vector<TableOption> options;

    // The option that answers --help: kind none with "help" among its names.
    TableOption const* helpOption() const;
    // The option marked positional, if any.
    TableOption const* positionalOption() const;
};

// Reads the table from `in`. `source` names the file in messages; `prefix`
// makes the variable names (prefix + "_" + name, or the bare name when the
// prefix is empty). Returns true, or false with `error` set to a message of
// the form "FILE:LINE: field 'F': what is wrong".
bool readTable(std::istream& in, std::string const& source, std::string const& prefix, OptionTable& table,
               std::string& error);

// True when `text` may name a shell variable.
bool isShellIdentifier(std::string const& text);

}  // namespace quenopt

#endif
