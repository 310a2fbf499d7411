#include "app/core_session.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <string_view>

#include "app/collector_name.h"
#include "app/messages.h"
#include "quen_3_1/extras.h"

namespace quen_3_1::app_detail {

namespace {

char const kHiddenGroup[] = "quen_hidden";
char const kTraceSwitch[] = "quenoption=quenlogenable=1";
char const* const kShells[] = {"bash", "zsh", "fish"};
int const kMaxSuggestions = 3;

// Whether the library may read `argument` as naming the option `name`: after one or two
// hyphens, up to an '=', a beginning of the name (an empty one included, to be safe).
bool mayName(std::string_view argument, std::string_view name) {
    if (argument.size() < 2 || argument[0] != '-') {
        return false;
    }
    std::string_view typed = argument.substr(argument.size() > 2 && argument[1] == '-' ? 2 : 1);
    typed = typed.substr(0, typed.find('='));
    return name.compare(0, typed.size(), typed) == 0;
}

// A result released when it goes out of scope.
struct ResultHandle {
    IParseResult* result = nullptr;
    ResultHandle() = default;
    ResultHandle(ResultHandle const&) = delete;
    ResultHandle& operator=(ResultHandle const&) = delete;
    ~ResultHandle() {
        if (result != nullptr) {
            result->destroy();
        }
    }
};

}  // namespace

// Most command lines never name --completion: its shells, which cost the library a value
// each to keep, are handed to it only for arguments that may name it.
CoreSession::CoreSession(AppState const& app, bool top, bool showDefaults)
    : m_app(app), m_top(top), m_showDefaults(showDefaults), m_layout(app, m_builtins), m_gate(app, m_layout) {
    build(showDefaults);
}

CoreSession::~CoreSession() {
    if (m_parser != nullptr) {
        m_parser->destroy();
    }
}

void CoreSession::build(bool shells) {
    if (m_parser != nullptr) {
        m_parser->destroy();
        m_parser = nullptr;
    }
    m_shells = shells;
    AppState const& app = m_app;
    int const flags = FlagUnknownIsError | FlagNoHyphenPositional | (app.m_commands.empty() ? 0 : FlagPositionalRun);
    if (createParser(&m_parser, flags) != 0) {
        m_parser = nullptr;
        return;
    }
    auto file = app.m_files.begin();
    for (std::size_t i = 0; i <= app.m_options.size(); ++i) {
        for (; file != app.m_files.end() && file->position == i; ++file) {
            m_parser->option(file->namesText.c_str(), file->help.c_str(), tarvo2::vt_str, "")->tokenize(0);
        }
        if (i == app.m_options.size()) {
            break;
        }
        OptionState const& option = *app.m_options[i];
        if (!option.positional()) {
            registerOption(option);
        }
    }
    registerBuiltins(shells);
    m_parser->option(kCollectorName, "", tarvo2::vt_str, kHiddenGroup)->tokenize(0)->positional();
    m_parser->addHandler(&m_gate);
}

void CoreSession::registerOption(OptionState const& option) {
    IOption* declared = m_parser->option(option.namesText().c_str(), option.help(), option.binding().kind(),
                                         option.m_hidden ? kHiddenGroup : "");
    declared->tokenize(option.m_separator);
    option.binding().describe(*declared);
    if (m_showDefaults) {
        option.binding().showDefault(*declared);
    }
}

void CoreSession::registerBuiltins(bool shells) {
    AppState const& app = m_app;
    if (!app.isTaken("help")) {
        m_builtins.help = "help";
        m_parser->option(app.isTaken("h") ? "help" : "help,h", text::kHelpDescription, tarvo2::vt_empty, "");
    }
    if (!app.m_version.empty() && !app.isTaken("version")) {
        m_builtins.version = "version";
        m_parser->option("version", text::kVersionDescription, tarvo2::vt_empty, "");
    }
    if (m_top && !app.isTaken("completion")) {
        m_builtins.completion = "completion";
        IOption* option = m_parser->option("completion", text::kCompletionDescription, tarvo2::vt_str, "");
        option->tokenize(0);
        for (std::size_t i = 0; shells && i < std::size(kShells); ++i) {
            option->allowValue(tarvo2::variant_t(kShells[i]));
        }
    }
}

void CoreSession::fit(Arguments const& args) {
    if (m_shells || m_builtins.completion.empty()) {
        return;
    }
    std::string_view const completion = m_builtins.completion;
    if (std::any_of(args.begin(), args.end(), [&](char const* arg) { return mayName(arg, completion); })) {
        build(true);
    }
}

int CoreSession::parse(Arguments const& args, Source source, SourceValues& into, std::vector<std::string>& rest,
                       std::string& error) {
    fit(args);
    if (m_parser == nullptr) {
        error = "the library could not make a parser";
        return 3;
    }
    std::vector<char*> argv;
    argv.reserve(args.size() + 1);
    argv.push_back(m_programName);
    for (char const* arg : args) {
        // The library's signature predates const: it copies the arguments and never writes to them.
        argv.push_back(const_cast<char*>(arg));
    }
    // The library would switch its trace on for this first argument; the layer never prints.
    std::string traceless;
    if (!args.empty() && std::strcmp(args[0], kTraceSwitch) == 0) {
        traceless = std::string("--") + kCollectorName + "=" + args[0];
        argv[1] = traceless.data();
    }
    ResultHandle handle;
    m_parser->createResult(&handle.result);
    m_gate.begin(source, into, args.size());
    int const code = m_parser->parseArgsVector(static_cast<int>(argv.size()), argv.data(), handle.result);
    if (code != 0) {
        error = m_gate.refusal().empty() ? std::string(m_parser->getErrorDesc()) : m_gate.refusal();
        return code;
    }
    char const* text = nullptr;
    for (int found = handle.result->getFirstArgument(&text); found == 0;
         found = handle.result->getNextArgument(&text)) {
        rest.emplace_back(text);
    }
    return 0;
}

std::vector<std::string> CoreSession::suggestions(std::string const& argument) {
    char const* names[kMaxSuggestions] = {};
    int const count = m_parser == nullptr ? 0 : suggestNames(m_parser, argument.c_str(), names, kMaxSuggestions);
    return std::vector<std::string>(names, names + count);
}

std::string CoreSession::failedArgument(std::string const& error) const {
    std::string const ambiguous = "Ambiguous option '";
    if (error.compare(0, ambiguous.size(), ambiguous) == 0) {
        return "--" + error.substr(ambiguous.size(), error.find('\'', ambiguous.size()) - ambiguous.size());
    }
    return m_gate.unknown();
}

std::string CoreSession::description(AppState const& app, bool top) {
    CoreSession const session(app, top, true);
    return session.m_parser == nullptr ? std::string() : session.m_parser->getDescription(false);
}

}  // namespace quen_3_1::app_detail
