#include "app/level_parse.h"

#include <algorithm>
#include <cstdlib>
#include <exception>
#include <utility>

#include "app/command_match.h"
#include "app/command_suggestion.h"
#include "app/completion_tree.h"
#include "app/help_text.h"
#include "app/library_reason.h"
#include "app/messages.h"
#include "app/positional_check.h"

namespace quen_3_1::app_detail {

namespace {

std::size_t const kMaxCommandSuggestions = 3;

char const* const kTrueWords[] = {"1", "true", "yes", "on"};
char const* const kFalseWords[] = {"0", "false", "no", "off"};

bool isOneOf(std::string const& word, char const* const (&words)[4]) {
    return std::any_of(std::begin(words), std::end(words), [&](char const* w) { return word == w; });
}

// The first `count` arguments of the file.
Arguments argumentsOf(FileArguments const& file, std::size_t count) {
    Arguments args;
    args.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        args.push_back(file.arguments[i].c_str());
    }
    return args;
}

std::string upperName(std::string const& name) {
    std::string variable;
    for (char c : name) {
        variable += c == '-' ? '_' : (c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c);
    }
    return variable;
}

}  // namespace

LevelParse::LevelParse(AppState& app, AppState const& root)
    : m_app(app),
      m_root(root),
      m_session(app, &app == &root),
      m_line{Source::CommandLine, {}, std::vector<std::size_t>(m_session.layout().size())},
      m_positionalCounts(app.hasPositionals() ? app.m_options.size() : 0) {}

bool LevelParse::run(Arguments const& args, ResultData& out, std::vector<Commit>& commits) {
    std::string error;
    // A command's arguments are numbered after everything its parents took.
    for (TakenValue const& value : out.m_values) {
        m_session.startAfter(value.sequence);
    }
    m_level = static_cast<std::uint32_t>(out.m_levels.size());
    out.m_levels.push_back(CountedLevel{m_app.sharedNames(), out.m_counts.size(), m_app.m_options.size(), false});
    int const code = m_session.parse(args, Source::CommandLine, m_line, m_rest, error);
    m_lineEnd = m_session.lastSequence();
    if (stopAtBuiltin(out)) {
        return false;
    }
    if (code != 0) {
        std::string const argument = m_session.failedArgument(error);
        return fail(out, error,
                    argument.empty() ? std::string() : text::didYouMean(m_session.suggestions(argument), "--"));
    }
    if (!readFiles(out) || !readEnvironment(out) || !fillPositionals(out, commits) || !checkRelations(out)) {
        return false;
    }
    takeNamed(out, commits);
    return descend(out, commits);
}

bool LevelParse::stopAtBuiltin(ResultData& out) {
    SlotLayout const& layout = m_session.layout();
    auto const given = [&](std::size_t slot) { return m_line.counts[slot] != 0; };
    SourceValue const* const shell = lastOf(m_line, layout.completion());
    if (given(layout.help())) {
        out.m_message = helpText(m_app, CoreSession::description(m_app, &m_app == &m_root));
    } else if (given(layout.version())) {
        out.m_message = text::versionLine(m_app.m_program, m_app.m_version);
    } else if (given(layout.completion()) && shell != nullptr) {
        out.m_message = completionScript(m_root, shell->text);
    } else {
        return false;
    }
    out.m_done = true;
    out.m_toStandardOutput = true;
    return true;
}

bool LevelParse::fail(ResultData& out, std::string const& message, std::string const& hint) const {
    out.m_done = true;
    out.m_exitCode = kUsageExitCode;
    out.m_toStandardOutput = false;
    out.m_message =
        text::errorLine(m_app.m_program, message) + hint + usageLine(m_app) + text::tryHelpLine(m_app.m_program);
    return false;
}

bool LevelParse::readFiles(ResultData& out) {
    for (std::size_t j = 0; j < m_app.m_files.size(); ++j) {
        for (Entry const& path : entriesOf(m_line, m_session.layout().file(j))) {
            if (!readFile(path.text, out)) {
                return false;
            }
        }
    }
    return true;
}

bool LevelParse::readFile(std::string const& path, ResultData& out) {
    FileArguments file;
    FileRead const read = readOptionsFile(path, file);
    if (read == FileRead::TooLarge) {
        return fail(out, text::fileTooLarge(path, kMaxOptionsFileBytes));
    }
    if (read != FileRead::Read) {
        return fail(out, text::unreadableFile(path));
    }
    std::vector<std::string> rest;
    std::string error;
    if (m_session.parse(argumentsOf(file, file.arguments.size()), Source::File, m_files, rest, error) != 0) {
        return fail(out, text::inFile(path, failingLine(file, error), error));
    }
    return true;
}

// The first line at which the file's arguments fail with this same error. Once they include
// the failing argument, every longer beginning of the file fails alike: the first such
// beginning is found by halving, in a few parses rather than one per line.
std::size_t LevelParse::failingLine(FileArguments const& file, std::string const& error) {
    if (file.lines.empty()) {
        return 1;
    }
    std::size_t first = 1;
    std::size_t last = file.arguments.size();
    while (first < last) {
        std::size_t const middle = first + (last - first) / 2;
        if (failsAlike(file, middle, error)) {
            last = middle;
        } else {
            first = middle + 1;
        }
    }
    return file.lines[first - 1];
}

// Whether the first `count` arguments of the file fail with `error`.
bool LevelParse::failsAlike(FileArguments const& file, std::size_t count, std::string const& error) {
    SourceValues scratch;
    std::vector<std::string> rest;
    std::string again;
    return m_session.parse(argumentsOf(file, count), Source::File, scratch, rest, again) != 0 && again == error;
}

bool LevelParse::readEnvironment(ResultData& out) {
    if (m_app.m_envPrefix.empty() && !m_app.refined()) {
        return true;
    }
    for (auto const& option : m_app.m_options) {
        if (option->positional() || (m_app.m_envPrefix.empty() && !option->linked())) {
            continue;
        }
        std::string const variable = variableOf(*option);
        if (!variable.empty() && !readVariable(*option, variable, out)) {
            return false;
        }
    }
    return true;
}

bool LevelParse::readVariable(OptionState const& option, std::string const& variable, ResultData& out) {
    char const* found = std::getenv(variable.c_str());
    if (found == nullptr || *found == '\0') {
        return true;
    }
    std::string const value = found;
    std::string argument = "--" + option.name() + "=" + value;
    if (option.kind() == tarvo2::vt_bool) {
        if (!isOneOf(value, kTrueWords) && !isOneOf(value, kFalseWords)) {
            return fail(out, text::inVariable(variable, text::notBoolean(value)));
        }
        argument = (isOneOf(value, kTrueWords) ? "--" : "--no-") + option.name();
    }
    std::vector<std::string> rest;
    std::string error;
    if (m_session.parse({argument.c_str()}, Source::Environment, m_environment, rest, error) != 0) {
        return fail(out, text::inVariable(variable, libraryReason(error, argument)));
    }
    return true;
}

std::string LevelParse::variableOf(OptionState const& option) const {
    if (!option.links().env.empty()) {
        return option.links().env;
    }
    if (m_app.m_envPrefix.empty() || option.m_hidden) {
        return {};
    }
    std::string const& prefix = m_app.m_envPrefix;
    return prefix + (prefix.back() == '_' ? "" : "_") + upperName(option.name());
}

// The command line wins over the environment, the environment over the files.
SourceValues* LevelParse::winner(std::size_t slot) {
    for (SourceValues* source : {&m_line, &m_environment, &m_files}) {
        if (slot < source->counts.size() && source->counts[slot] > 0) {
            return source;
        }
    }
    return nullptr;
}

bool LevelParse::given(std::string const& name) {
    std::size_t const index = m_app.optionIndex(name);
    if (index == AppState::kNoOption) {
        return false;
    }
    if (m_app.m_options[index]->positional()) {
        return m_positionalCounts[index] > 0;
    }
    return winner(m_session.layout().option(index)) != nullptr;
}

// The winners' values move into the result, each option's together in declaration order,
// and every option's count with them. Nothing reads them here afterwards.
void LevelParse::takeNamed(ResultData& out, std::vector<Commit>& commits) {
    SlotLayout const& layout = m_session.layout();
    std::size_t const options = m_app.m_options.size();
    commits.reserve(commits.size() + options);
    bool const lineOnly = lineOnlyInOrder();
    if (lineOnly) {
        takeLine(out, commits);
    } else {
        takeWinners(out, commits);
    }
    out.m_counts.resize(out.m_counts.size() + options + m_app.m_files.size());
    std::size_t* const counts = out.m_counts.data() + out.m_counts.size() - options - m_app.m_files.size();
    for (std::size_t i = 0; i < options; ++i) {
        if (m_app.hasPositionals() && m_app.m_options[i]->positional()) {
            counts[i] = m_positionalCounts[i];
        } else if (lineOnly) {
            counts[i] = m_line.counts[layout.option(i)];
        } else {
            SourceValues const* const source = winner(layout.option(i));
            counts[i] = source == nullptr ? 0 : source->counts[layout.option(i)];
        }
    }
    for (std::size_t j = 0; j < m_app.m_files.size(); ++j) {
        counts[options + j] = m_line.counts[layout.file(j)];
    }
    out.m_levels[m_level].counted = true;
}

// No other source was parsed, so its counts were never made. The library reports no value
// of a positional, which it does not know.
bool LevelParse::lineOnlyInOrder() const {
    if (!m_environment.counts.empty() || !m_files.counts.empty()) {
        return false;
    }
    std::size_t const options = m_session.layout().options();
    std::size_t last = 0;
    for (SourceValue const& value : m_line.values) {
        if (value.option < options) {
            if (value.option < last) {
                return false;
            }
            last = value.option;
        }
    }
    return true;
}

void LevelParse::takeLine(ResultData& out, std::vector<Commit>& commits) {
    std::size_t const options = m_session.layout().options();
    bool const whole =
        out.m_values.empty() && std::all_of(m_line.values.begin(), m_line.values.end(),
                                            [&](SourceValue const& value) { return value.option < options; });
    if (whole) {
        // Every value is taken, in this order: the list itself moves into the result.
        out.m_values.swap(m_line.values);
        for (std::size_t i = 0; i < out.m_values.size(); ++i) {
            TakenValue& value = out.m_values[i];
            value.level = m_level;
            if (i == 0 || value.option != out.m_values[i - 1].option) {
                commits.emplace_back(&m_app.m_options[value.option]->binding(), i, 0);
            }
            ++commits.back().count;
        }
        return;
    }
    out.m_values.reserve(out.m_values.size() + m_line.values.size());
    std::size_t current = options;
    for (SourceValue& value : m_line.values) {
        if (value.option >= options) {
            continue;
        }
        if (value.option != current) {
            current = value.option;
            commits.emplace_back(&m_app.m_options[current]->binding(), out.m_values.size(), 0);
        }
        ++commits.back().count;
        out.m_values.push_back(
            TakenValue{std::move(value.text), value.sequence, m_line.source, m_level, value.option, value.number});
    }
}

// Counted first, then placed.
void LevelParse::takeWinners(ResultData& out, std::vector<Commit>& commits) {
    SlotLayout const& layout = m_session.layout();
    std::size_t const options = m_app.m_options.size();
    auto const taken = [&](SourceValues* source, std::size_t slot) {
        return slot < layout.options() && !m_app.m_options[slot]->positional() && winner(slot) == source;
    };
    std::vector<std::size_t> place(options + 1);
    for (SourceValues* source : {&m_line, &m_environment, &m_files}) {
        for (SourceValue const& value : source->values) {
            if (taken(source, value.option)) {
                ++place[value.option + 1];
            }
        }
    }
    std::size_t const base = out.m_values.size();
    for (std::size_t i = 0; i < options; ++i) {
        place[i + 1] += place[i];
        if (place[i + 1] != place[i]) {
            commits.emplace_back(&m_app.m_options[i]->binding(), base + place[i], place[i + 1] - place[i]);
        }
    }
    out.m_values.resize(base + place[options], TakenValue{});
    for (SourceValues* source : {&m_line, &m_environment, &m_files}) {
        for (SourceValue& value : source->values) {
            if (taken(source, value.option)) {
                TakenValue& kept = out.m_values[base + place[value.option]++];
                kept.text = std::move(value.text);
                kept.sequence = value.sequence;
                kept.source = source->source;
                kept.level = m_level;
                kept.option = value.option;
                kept.number = value.number;
            }
        }
    }
}

bool LevelParse::fillPositionals(ResultData& out, std::vector<Commit>& commits) {
    if (!m_app.m_commands.empty()) {
        return true;
    }
    std::size_t const collector = m_session.layout().collector();
    SourceValues const* collected = winner(collector);
    std::vector<Entry> plain = collected == nullptr ? std::vector<Entry>() : entriesOf(*collected, collector);
    std::size_t const beforeTerminator = plain.size();
    // The library numbers each argument after "--" in turn once the others are
    // parsed but does not hand the numbers out: these follow the last value's.
    std::int32_t sequence = m_lineEnd;
    for (std::string const& text : m_rest) {
        plain.push_back(Entry{std::string(), text, ++sequence, Source::CommandLine});
    }
    std::size_t next = 0;
    for (std::size_t index = 0; m_app.hasPositionals() && index < m_app.m_options.size(); ++index) {
        OptionState& option = *m_app.m_options[index];
        if (!option.positional()) {
            continue;
        }
        std::size_t const take =
            option.takesMany() ? plain.size() - next : std::min<std::size_t>(1, plain.size() - next);
        std::size_t const first = out.m_values.size();
        for (std::size_t i = 0; i < take; ++i, ++next) {
            Entry& entry = plain[next];
            ReadNumber number = 0;
            std::string const reason = checkPositional(option, entry.text, number);
            if (!reason.empty()) {
                return fail(out, reason);
            }
            out.m_values.push_back(TakenValue{std::move(entry.text), entry.sequence, entry.source, m_level,
                                              static_cast<std::uint32_t>(index), number});
        }
        m_positionalCounts[index] = take;
        if (take != 0) {
            commits.emplace_back(&option.binding(), first, take);
        }
    }
    if (next < beforeTerminator) {
        return fail(out, text::unexpectedArgument(plain[next].text));
    }
    for (; next < plain.size(); ++next) {
        out.m_rest.push_back(plain[next].text);
    }
    return true;
}

bool LevelParse::checkRelations(ResultData& out) {
    for (std::size_t i = 0; m_app.refined() && i < m_app.m_options.size(); ++i) {
        OptionState const* const option = m_app.m_options[i].get();
        if (!option->m_required && !option->linked()) {
            continue;
        }
        OptionLinks const& links = std::as_const(*option).links();
        bool const present = given(option->name());
        if (option->m_required && !present) {
            return fail(out, text::required(option->name()));
        }
        if (!present) {
            continue;
        }
        for (std::string const& other : links.needs) {
            if (!given(other)) {
                return fail(out, text::needs(option->name(), other));
            }
        }
        for (std::string const& other : links.excludes) {
            if (given(other)) {
                return fail(out, text::excludes(option->name(), other));
            }
        }
    }
    for (ExclusiveGroup const& group : m_app.m_exclusive) {
        auto const count =
            std::count_if(group.names.begin(), group.names.end(), [&](std::string const& name) { return given(name); });
        if (count > 1) {
            return fail(out, text::exclusive(group.names));
        }
        if (count == 0 && group.required) {
            return fail(out, text::exclusiveRequired(group.names));
        }
    }
    return true;
}

bool LevelParse::descend(ResultData& out, std::vector<Commit>& commits) {
    if (m_app.m_commands.empty()) {
        return true;
    }
    std::vector<Entry> const plain = entriesOf(m_line, m_session.layout().collector());
    if (plain.empty()) {
        out.m_rest.insert(out.m_rest.end(), m_rest.begin(), m_rest.end());
        return true;
    }
    std::vector<std::string> names;
    for (auto const& command : m_app.m_commands) {
        names.push_back(AppState::of(*command).m_name);
    }
    std::vector<std::string> const matches = matchCommand(plain.front().text, names);
    if (matches.empty()) {
        return fail(out, text::unknownCommand(plain.front().text),
                    text::didYouMean(nearCommands(plain.front().text, names, kMaxCommandSuggestions), ""));
    }
    if (matches.size() != 1) {
        return fail(out, text::ambiguousCommand(plain.front().text, matches));
    }
    Arguments args;
    for (auto entry = plain.begin() + 1; entry != plain.end(); ++entry) {
        args.push_back(entry->text.c_str());
    }
    if (!m_rest.empty()) {
        args.push_back("--");
        for (std::string const& text : m_rest) {
            args.push_back(text.c_str());
        }
    }
    out.m_command.push_back(matches.front());
    auto const index = static_cast<std::size_t>(std::find(names.begin(), names.end(), matches.front()) - names.begin());
    return LevelParse(AppState::of(*m_app.m_commands[index]), m_root).run(args, out, commits);
}

void parseProgram(AppState& app, Arguments const& args, ResultData& out) {
    std::string const mistake = app.mistake();
    if (!mistake.empty()) {
        out.m_done = true;
        out.m_exitCode = kDeclarationExitCode;
        out.m_message = text::errorLine(app.m_program, mistake);
        return;
    }
    std::vector<Commit> commits;
    if (LevelParse(app, app).run(args, out, commits)) {
        for (Commit const& commit : commits) {
            TakenValue const* const first = out.m_values.data() + commit.first;
            commit.binding->assign(first, first + commit.count);
        }
    }
    auto const bySequence = [](TakenValue const& a, TakenValue const& b) { return a.sequence < b.sequence; };
    // Options given in the order they were declared leave nothing to sort.
    if (!std::is_sorted(out.m_values.begin(), out.m_values.end(), bySequence)) {
        std::stable_sort(out.m_values.begin(), out.m_values.end(), bySequence);
    }
}

}  // namespace quen_3_1::app_detail
