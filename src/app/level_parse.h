// The parse of one App level: the command line, the options files and the
// environment weighed against each other, the values checked and put in
// order, the positionals filled, and the chosen command parsed in turn.
#ifndef QUEN_3_1_SRC_APP_LEVEL_PARSE_H
#define QUEN_3_1_SRC_APP_LEVEL_PARSE_H

#include <string>
#include <vector>

#include "app/app_state.h"
#include "app/core_session.h"
#include "app/option_files.h"
#include "app/result_data.h"
#include "app/source_values.h"

namespace quen_3_1::app_detail {

// Values for one variable, stored only when the whole parse succeeded: the
// result's values [first, first + count), before they are put in order.
struct Commit {
    // Made where the list keeps it: a commit built aside and copied in was read back as one
    // wide load over the narrower stores that had just made it, which stalls.
    Commit(Binding* target, std::size_t from, std::size_t values) : binding(target), first(from), count(values) {}

    Binding* binding;
    std::size_t first;
    std::size_t count;
};

class LevelParse {
public:
    // `root` is the program's App (its own, or a command's ancestor), for the completion script.
    LevelParse(AppState& app, AppState const& root);

    // False when parsing stops at this level: help, version, completion or an error, in `out`.
    bool run(Arguments const& args, ResultData& out, std::vector<Commit>& commits);

private:
    bool stopAtBuiltin(ResultData& out);
    // `hint`: a "Did you mean" line, or empty.
    bool fail(ResultData& out, std::string const& message, std::string const& hint = {}) const;
    bool readFiles(ResultData& out);
    bool readFile(std::string const& path, ResultData& out);
    std::size_t failingLine(FileArguments const& file, std::string const& error);
    bool failsAlike(FileArguments const& file, std::size_t count, std::string const& error);
    bool readEnvironment(ResultData& out);
    bool readVariable(OptionState const& option, std::string const& variable, ResultData& out);
    std::string variableOf(OptionState const& option) const;
    // The values of the option at `slot` from the source that wins, or null when no source gave it.
    SourceValues* winner(std::size_t slot);
    bool given(std::string const& name);
    void takeNamed(ResultData& out, std::vector<Commit>& commits);
    // Whether only the command line gave options values, each option's given together and in
    // declaration order: then they are taken as they stand.
    bool lineOnlyInOrder() const;
    void takeLine(ResultData& out, std::vector<Commit>& commits);
    void takeWinners(ResultData& out, std::vector<Commit>& commits);
    bool fillPositionals(ResultData& out, std::vector<Commit>& commits);
    bool checkRelations(ResultData& out);
    bool descend(ResultData& out, std::vector<Commit>& commits);

    AppState& m_app;
    AppState const& m_root;
    CoreSession m_session;
    SourceValues m_line;
    SourceValues m_environment;
    SourceValues m_files;
    std::vector<std::string> m_rest;
    // The last number of the command line's values, before what follows "--".
    std::int32_t m_lineEnd = 0;
    // By option index; only positionals' are set (none kept for an App without positionals).
    std::vector<std::size_t> m_positionalCounts;
    // This level's index in the result's levels.
    std::uint32_t m_level = 0;
};

// The whole parse of a program: declaration mistakes first, then every level.
void parseProgram(AppState& app, Arguments const& args, ResultData& out);

}  // namespace quen_3_1::app_detail

#endif  // QUEN_3_1_SRC_APP_LEVEL_PARSE_H
