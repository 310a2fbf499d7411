// The completion scripts as a host prints them, compared byte for byte with
// the scripts kept in tests/extras/expected: the shell text is assembled at
// build time, and any change to what a host prints shows up here.
#include <gtest/gtest.h>
#include <quen_3_1/extras.h>
#include <quen_3_1/quen.h>

#include <fstream>
#include <sstream>
#include <string>

namespace {

std::string readExpected(std::string const& name) {
    std::ifstream in(std::string(QUEN_EXPECTED_SCRIPTS_DIR) + "/" + name, std::ios::binary);
    std::stringstream text;
    text << in.rdbuf();
    return text.str();
}

// Owns a parser for one test.
class Table {
public:
    Table() { quen_3_1::createParser(&m_parser, 0); }
    Table(Table const&) = delete;
    Table& operator=(Table const&) = delete;
    ~Table() {
        if (m_parser != nullptr) {
            m_parser->destroy();
        }
    }
    quen_3_1::IParser* operator->() const { return m_parser; }
    std::string script(char const* program, char const* shell) const {
        char const* text = quen_3_1::completionScript(m_parser, program, shell);
        return text == nullptr ? std::string("(none)") : std::string(text);
    }

private:
    quen_3_1::IParser* m_parser = nullptr;
};

// Synonyms, a hidden option, allowed values with a blank, every kind of
// value and a positional option.
void declareSample(Table const& table) {
    table->option("log-file", "Where the log goes.", tarvo2::vt_str, "general:General options");
    table->option("log-format", "How log lines look.", tarvo2::vt_str, "general")
        ->allowValue("plain")
        ->allowValue("json")
        ->allowValue("json-lines");
    table->option("level", "Detail of the log.", tarvo2::vt_int, "general")->allowValue(1)->allowValue(2);
    table->option("ratio", "A fraction.", tarvo2::vt_double, "general");
    table->option("verbose", "Tell more.", tarvo2::vt_bool, "general")->synonym("chatty");
    table->option("version", "Print the version.", tarvo2::vt_empty, "general");
    table->option("mode", "How to copy.", tarvo2::vt_str, "copy:Copying")
        ->allowValue("fast")
        ->allowValue("slow")
        ->allowValue("safe mode");
    table->option("dry-run", "Change nothing.", tarvo2::vt_bool, "copy");
    table->option("output", "Target directory.", tarvo2::vt_str, "copy")->synonym("out");
    table->option("debug-dump", "Internal state dump.", tarvo2::vt_str, "quen_hidden");
    table->option("files", "Files to copy.", tarvo2::vt_str, "copy")->positional();
}

// Names and values a shell would run, expand or split if they reached it
// unquoted, and names that look like the templates' placeholders.
void declareAwkward(Table const& table) {
    table->option("a$(touch${IFS}marker)", "", tarvo2::vt_empty, "g");
    table->option("b`touch marker`", "", tarvo2::vt_str, "g");
    table->option("c'q'\"d\"", "", tarvo2::vt_bool, "g");
    table->option("d;e|f&g", "", tarvo2::vt_str, "g")
        ->allowValue("it's")
        ->allowValue("back\\slash")
        ->allowValue("$HOME")
        ->allowValue("*")
        ->allowValue("two\nlines");
    table->option("@ID@", "", tarvo2::vt_empty, "g");
    table->option("@DATA@", "", tarvo2::vt_int, "g");
}

// One table holds both kinds, so that one script per shell pins them all.
TEST(CompletionScripts, EveryKindOfOptionAndAwkwardNamesInEveryShell) {
    Table table;
    declareSample(table);
    declareAwkward(table);
    for (char const* shell : {"bash", "zsh", "fish"}) {
        EXPECT_EQ(table.script("it's $(x) `y`\\z", shell), readExpected(std::string("table.") + shell)) << shell;
    }
}

TEST(CompletionScripts, EmptyTableInEveryShell) {
    Table table;
    for (char const* shell : {"bash", "zsh", "fish"}) {
        EXPECT_EQ(table.script("p", shell), readExpected(std::string("empty.") + shell)) << shell;
    }
}

}  // namespace
