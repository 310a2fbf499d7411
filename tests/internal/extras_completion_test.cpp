#include <gtest/gtest.h>
#include <stdlib.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "extras/completion_script.h"
#include "frontend/basic_parser.h"
#include "frontend/trace.h"
#include "options/registered_option_storage.h"
#include "recognizers/decomposed_name.h"
#include "support/internal_fixture.h"
#include "support/literal_name_matching.h"

using quen_3_1::BasicParser;
using quen_3_1::CompletionModel;
using quen_3_1::DecomposedName;
using quen_3_1::RegisteredOptionStorage;

namespace {

bool shellInstalled(std::string const& shell) {
    return std::system(("command -v " + shell + " >/dev/null 2>&1").c_str()) == 0;
}

std::string readFile(std::string const& path) {
    std::ifstream in(path);
    std::stringstream text;
    text << in.rdbuf();
    return text.str();
}

std::vector<std::string> linesOf(std::string const& text) {
    std::vector<std::string> lines;
    std::stringstream stream(text);
    std::string line;
    while (std::getline(stream, line)) {
        lines.push_back(line);
    }
    return lines;
}

std::string lastLine(std::string const& text) {
    std::vector<std::string> const lines = linesOf(text);
    return lines.empty() ? std::string() : lines.back();
}

// A scratch directory that disappears with the test.
class ScratchDirectory {
public:
    ScratchDirectory() {
        char pattern[] = "/tmp/quen-extras-XXXXXX";
        char const* made = mkdtemp(pattern);
        m_path = made == nullptr ? std::string() : made;
    }
    ScratchDirectory(ScratchDirectory const&) = delete;
    ScratchDirectory& operator=(ScratchDirectory const&) = delete;
    ~ScratchDirectory() {
        if (!m_path.empty()) {
            std::system(("rm -rf '" + m_path + "'").c_str());
        }
    }
    std::string file(std::string const& name) const { return m_path + "/" + name; }
    bool ok() const { return !m_path.empty(); }

private:
    std::string m_path;
};

class CompletionScriptTest : public quen_test::InternalTest {
protected:
    // Names that stress the part-wise scoring: shared prefixes, a name and its
    // abbreviation, a non-boolean "no-" name, empty parts.
    void registerTrickyNames() {
        parser.option("verbose", "", tarvo2::vt_bool, "g");
        parser.option("version", "", tarvo2::vt_empty, "g");
        parser.option("a-file", "", tarvo2::vt_str, "g");
        parser.option("add-file", "", tarvo2::vt_str, "g");
        parser.option("log-file", "", tarvo2::vt_str, "g");
        parser.option("log-format", "", tarvo2::vt_str, "g");
        parser.option("log-level", "", tarvo2::vt_int, "g");
        parser.option("output", "", tarvo2::vt_str, "g")->synonym("out");
        parser.option("no-cache", "", tarvo2::vt_str, "g");
        parser.option("dry-run", "", tarvo2::vt_bool, "g");
        parser.option("x--y", "", tarvo2::vt_str, "g");
        parser.option("tail-", "", tarvo2::vt_str, "g");
        parser.option("keep-old-files", "", tarvo2::vt_bool, "g");
        parser.option("keep-open", "", tarvo2::vt_bool, "g");
    }

    RegisteredOptionStorage& storage() { return const_cast<RegisteredOptionStorage&>(parser.storage()); }

    // What a script must offer for one typed word that begins with '-':
    // every name the typed text begins, else the library's own best matches.
    std::string expectedCandidates(std::string const& word) {
        std::string form = "--";
        std::string typed;
        if (word.size() > 2 && word.compare(0, 2, "--") == 0) {
            typed = word.substr(2);
        } else if (word.size() > 1 && word != "--") {
            form = "-";
            typed = word.substr(1);
        }
        std::vector<std::string> offered;
        quen_test::LiteralNameMatching recognizer;
        std::vector<DecomposedName> names;
        recognizer.makeOptionNamesList(storage(), names);
        for (DecomposedName const& name : names) {
            if (name.getName().compare(0, typed.size(), typed) == 0) {
                offered.push_back(form + name.getName());
            }
        }
        if (offered.empty()) {
            std::vector<quen_test::NameMatch> matches;
            recognizer.makeNameMatch(matches, DecomposedName(typed), names);
            DecomposedName best;
            std::string message;
            int const found = recognizer.findBest(matches, best, message);
            if (found == 0) {
                offered.push_back(form + best.getName());
            } else if (found == 2) {
                for (quen_test::NameMatch const& match : recognizer.bestMatches()) {
                    offered.push_back(form + match.name.getName());
                }
            }
        }
        std::string joined;
        for (std::string const& name : offered) {
            joined += (joined.empty() ? "" : "|") + name;
        }
        return joined;
    }

    // Typed words for every registered name: each part cut to nothing, one
    // character, all but its last or all of it, in every combination, with
    // one or two hyphens, plus a mistyped last character.
    std::vector<std::string> typedWords() {
        std::vector<std::string> words;
        std::vector<DecomposedName> names;
        quen_test::LiteralNameMatching recognizer;
        recognizer.makeOptionNamesList(storage(), names);
        for (DecomposedName const& name : names) {
            std::vector<std::string> typed{""};
            for (std::size_t j = 0; j < name.parts.size(); ++j) {
                std::string const& part = name.parts[j];
                std::vector<std::size_t> lengths{0, 1, part.size() > 1 ? part.size() - 1 : 0, part.size()};
                std::vector<std::string> longer;
                for (std::string const& start : typed) {
                    for (std::size_t length : lengths) {
                        std::string next = start + (j == 0 ? "" : "-") + part.substr(0, length);
                        if (std::find(longer.begin(), longer.end(), next) == longer.end()) {
                            longer.push_back(next);
                        }
                    }
                }
                typed = longer;
            }
            for (std::string const& word : typed) {
                words.push_back("--" + word);
                words.push_back("-" + word);
                if (!word.empty()) {
                    words.push_back("--" + word.substr(0, word.size() - 1) + "q");
                }
            }
        }
        std::sort(words.begin(), words.end());
        words.erase(std::unique(words.begin(), words.end()), words.end());
        return words;
    }

    // Runs `driver` with `command` next to the script for `shell`; one output
    // line per word.
    std::vector<std::string> runDriver(std::string const& shell, std::string const& command, std::string const& driver,
                                       std::vector<std::string> const& words) {
        ScratchDirectory scratch;
        EXPECT_TRUE(scratch.ok());
        std::ofstream(scratch.file("script"))
            << quen_3_1::renderCompletionScript(quen_3_1::makeCompletionModel(parser.storage()), "quen-probe", shell);
        std::ofstream wordsFile(scratch.file("words"));
        for (std::string const& word : words) {
            wordsFile << word << "\n";
        }
        wordsFile.close();
        std::ofstream(scratch.file("driver")) << driver;
        std::string const run = "cd '" + scratch.file("") + "' && " + command + " driver > out 2> err";
        EXPECT_EQ(std::system(run.c_str()), 0) << readFile(scratch.file("err"));
        EXPECT_EQ(readFile(scratch.file("err")), "");
        return linesOf(readFile(scratch.file("out")));
    }

    // Every `stride`th typed word is tried: fish completes slowly.
    void expectParity(std::string const& shell, std::string const& command, std::string const& driver,
                      std::size_t stride = 1) {
        registerTrickyNames();
        std::vector<std::string> words;
        std::vector<std::string> const all = typedWords();
        for (std::size_t i = 0; i < all.size(); i += stride) {
            words.push_back(all[i]);
        }
        ASSERT_GT(words.size(), 300U);
        std::vector<std::string> const got = runDriver(shell, command, driver, words);
        ASSERT_EQ(got.size(), words.size());
        for (std::size_t i = 0; i < words.size(); ++i) {
            EXPECT_EQ(got[i], expectedCandidates(words[i])) << shell << " completing '" << words[i] << "'";
        }
    }

    BasicParser parser{0};
};

TEST_F(CompletionScriptTest, ModelListsVisibleNamesInRecognizerOrderWithNoForms) {
    parser.option("log-file", "", tarvo2::vt_str, "g");
    parser.option("verbose", "", tarvo2::vt_bool, "g")->synonym("chatty");
    parser.option("debug-dump", "", tarvo2::vt_str, "quen_hidden");
    parser.option("version", "", tarvo2::vt_empty, "g");
    CompletionModel const model = quen_3_1::makeCompletionModel(parser.storage());
    EXPECT_EQ(model.names,
              (std::vector<std::string>{"log-file", "verbose", "no-verbose", "chatty", "no-chatty", "version"}));
    EXPECT_EQ(model.owners, (std::vector<std::size_t>{0, 1, 1, 1, 1, 2}));
    ASSERT_EQ(model.options.size(), 3U);
    EXPECT_EQ(model.options[0].kind, CompletionModel::FileName);
    EXPECT_EQ(model.options[1].kind, CompletionModel::Boolean);
    EXPECT_EQ(model.options[2].kind, CompletionModel::NoValue);
    EXPECT_FALSE(model.positional);
}

TEST_F(CompletionScriptTest, ModelRendersAllowedValuesInOrderAndTellsNumbersFromTexts) {
    parser.option("mode", "", tarvo2::vt_str, "g")->allowValue("fast")->allowValue("safe mode");
    parser.option("level", "", tarvo2::vt_uint, "g")->allowValue(1U)->allowValue(3U);
    parser.option("count", "", tarvo2::vt_int64, "g");
    CompletionModel const model = quen_3_1::makeCompletionModel(parser.storage());
    ASSERT_EQ(model.options.size(), 3U);
    EXPECT_EQ(model.options[0].kind, CompletionModel::Allowed);
    EXPECT_EQ(model.options[0].values, (std::vector<std::string>{"fast", "safe mode"}));
    EXPECT_EQ(model.options[1].kind, CompletionModel::Allowed);
    EXPECT_EQ(model.options[1].values, (std::vector<std::string>{"1", "3"}));
    EXPECT_EQ(model.options[2].kind, CompletionModel::FreeValue);
}

TEST_F(CompletionScriptTest, ModelLeavesOutUntypeableNamesAndCountsAnyPositionalOption) {
    parser.option("x,y,", "", tarvo2::vt_str, "g");
    parser.option(",a", "", tarvo2::vt_str, "g");
    parser.option("files", "", tarvo2::vt_str, "quen_hidden")->positional();
    CompletionModel const model = quen_3_1::makeCompletionModel(parser.storage());
    EXPECT_EQ(model.names, (std::vector<std::string>{"x", "y", "a"}));
    EXPECT_EQ(model.owners, (std::vector<std::size_t>{0, 0, 1}));
    EXPECT_TRUE(model.positional);
}

TEST_F(CompletionScriptTest, FunctionIdKeepsLettersAndDigitsAndEncodesTheRest) {
    EXPECT_EQ(quen_3_1::completionFunctionId("quen-sample"), "quen_2dsample");
    EXPECT_EQ(quen_3_1::completionFunctionId("a_b.2"), "a_5fb_2e2");
    EXPECT_EQ(quen_3_1::completionFunctionId("Tool9"), "Tool9");
}

TEST_F(CompletionScriptTest, EachShellRegistersTheFunctionForTheQuotedProgram) {
    CompletionModel const model = quen_3_1::makeCompletionModel(parser.storage());
    EXPECT_EQ(lastLine(quen_3_1::renderCompletionScript(model, "it's", "bash")),
              "complete -F _quen_complete_it_27s -- 'it'\\''s'");
    EXPECT_EQ(lastLine(quen_3_1::renderCompletionScript(model, "it's", "zsh")),
              "compdef _quen_complete_it_27s 'it'\\''s'");
    EXPECT_EQ(lastLine(quen_3_1::renderCompletionScript(model, "it's", "fish")),
              "complete -c 'it\\'s' -f -k -a '(_quen_complete_it_27s)'");
}

TEST_F(CompletionScriptTest, DataIsQuotedForEachShell) {
    parser.option("mode", "", tarvo2::vt_str, "g")->allowValue("it's")->allowValue("a\\b");
    parser.option("quiet", "", tarvo2::vt_bool, "g");
    CompletionModel const model = quen_3_1::makeCompletionModel(parser.storage());
    std::string const bash = quen_3_1::renderCompletionScript(model, "p", "bash");
    std::string const fish = quen_3_1::renderCompletionScript(model, "p", "fish");
    std::string const zsh = quen_3_1::renderCompletionScript(model, "p", "zsh");
    EXPECT_NE(bash.find("    local -a names=('mode' 'quiet' 'no-quiet')\n"
                        "    local -a owners=(0 1 1)\n"
                        "    local -a kinds=(v b)\n"
                        "    local -a values_0=('it'\\''s' 'a\\b')\n"
                        "    local positional=0\n"),
              std::string::npos)
        << bash;
    EXPECT_NE(zsh.find("    local -a owners=(1 2 2)\n"
                       "    local -a kinds=(v b)\n"
                       "    local -a values_1=('it'\\''s' 'a\\b')\n"),
              std::string::npos)
        << zsh;
    EXPECT_NE(fish.find("    set -l names 'mode' 'quiet' 'no-quiet'\n"
                        "    set -l owners 1 2 2\n"
                        "    set -l kinds v b\n"
                        "    set -l values_1 'it\\'s' 'a\\\\b'\n"
                        "    set -l positional 0\n"),
              std::string::npos)
        << fish;
}

TEST_F(CompletionScriptTest, PlaceholderLookalikesInNamesStayAsTheyAre) {
    parser.option("@ID@", "", tarvo2::vt_str, "g");
    std::string const bash =
        quen_3_1::renderCompletionScript(quen_3_1::makeCompletionModel(parser.storage()), "p", "bash");
    EXPECT_NE(bash.find("    local -a names=('@ID@')\n"), std::string::npos) << bash;
}

TEST_F(CompletionScriptTest, OtherShellsAndProgramsWithLineBreaksGetNoScript) {
    CompletionModel const model = quen_3_1::makeCompletionModel(parser.storage());
    EXPECT_EQ(quen_3_1::renderCompletionScript(model, "p", "tcsh"), "");
    EXPECT_EQ(quen_3_1::renderCompletionScript(model, "p", "Bash"), "");
    EXPECT_EQ(quen_3_1::renderCompletionScript(model, "p\nrm -rf x", "bash"), "");
}

TEST_F(CompletionScriptTest, BashOffersWhatTheLibraryWouldMatch) {
    if (!shellInstalled("bash")) {
        GTEST_SKIP() << "bash is not installed";
    }
    expectParity("bash", "bash",
                 "source ./script\n"
                 "while IFS= read -r word; do\n"
                 "    COMP_WORDS=(quen-probe \"$word\")\n"
                 "    COMP_CWORD=1\n"
                 "    _quen_complete_quen_2dprobe\n"
                 "    line=''\n"
                 "    for candidate in \"${COMPREPLY[@]}\"; do line+=\"${line:+|}$candidate\"; done\n"
                 "    printf '%s\\n' \"$line\"\n"
                 "done < words\n");
}

TEST_F(CompletionScriptTest, ZshOffersWhatTheLibraryWouldMatch) {
    if (!shellInstalled("zsh")) {
        GTEST_SKIP() << "zsh is not installed";
    }
    expectParity("zsh", "zsh -f",
                 "compdef() { :; }\n"
                 "source ./script\n"
                 "typeset -a words reply\n"
                 "typeset REPLY lead CURRENT=2 word\n"
                 "while IFS= read -r word; do\n"
                 "    words=(quen-probe \"$word\")\n"
                 "    _quen_candidates_quen_2dprobe\n"
                 "    print -r -- \"${(j:|:)reply}\"\n"
                 "done < words\n");
}

TEST_F(CompletionScriptTest, FishOffersWhatTheLibraryWouldMatch) {
    if (!shellInstalled("fish")) {
        GTEST_SKIP() << "fish is not installed";
    }
    expectParity("fish", "fish --no-config",
                 "source ./script\n"
                 "while read -l word\n"
                 "    echo (string join -- '|' (complete -C \"quen-probe $word\"))\n"
                 "end < words\n",
                 4);
}

}  // namespace
