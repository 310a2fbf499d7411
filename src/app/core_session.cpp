#include "app/core_session.h"

#include <array>
#include <cstring>
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
// Arguments of a command line that most programs are given, and more.
constexpr std::size_t kShortLine = 64;

// The layer's own options, each a bit of CoreSession::Builtins. The short -h comes with
// --help; it is only a bit of what an App has.
constexpr unsigned kHelp = 1U;
constexpr unsigned kVersion = 2U;
constexpr unsigned kCompletion = 4U;
constexpr unsigned kCollector = 8U;
constexpr unsigned kShortHelp = 16U;

// The names of the layer's own options (each beginning with a lower-case letter); an argument
// that may name one needs the bit of the option, if the App has all of `has`.
struct BuiltinName {
    std::string_view name;
    unsigned has;
    unsigned bit;
};
constexpr BuiltinName kBuiltinNames[] = {{"help", kHelp, kHelp},
                                         {"h", kHelp | kShortHelp, kHelp},
                                         {"version", kVersion, kVersion},
                                         {"completion", kCompletion, kCompletion},
                                         {kCollectorName, kCollector, kCollector}};

// Whether the library may read the typed name (what follows the hyphens, up to an '=' or
// the end) as `name`: as many '-'-separated parts, each typed part a beginning of the
// name's part (an empty one included), as abbreviations are matched.
bool mayName(char const* typed, std::string_view name) {
    std::size_t at = 0;
    for (;; ++typed, ++at) {
        for (; *typed != '\0' && *typed != '=' && *typed != '-'; ++typed, ++at) {
            if (at >= name.size() || name[at] != *typed) {
                return false;
            }
        }
        while (at < name.size() && name[at] != '-') {
            ++at;
        }
        bool const typedEnds = *typed != '-';
        bool const nameEnds = at == name.size();
        if (typedEnds || nameEnds) {
            return typedEnds && nameEnds;
        }
    }
}

// Whether an argument is the terminator, after which the library keeps plain arguments.
bool hasTerminator(Arguments const& args) {
    for (char const* arg : args) {
        if (arg[0] == '-' && arg[1] == '-' && arg[2] == '\0') {
            return true;
        }
    }
    return false;
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

// Most command lines name none of the layer's own options and have no plain argument: each
// of those options, which cost the library a declaration, is handed to it only when an
// argument may name it, so that every message and abbreviation stays the library's own.
CoreSession::CoreSession(AppState const& app, bool top, bool showDefaults)
    : m_app(app), m_showDefaults(showDefaults), m_layout(app, m_builtins), m_gate(app, m_layout) {
    m_available = kCollector;
    if (!app.isTaken("help")) {
        m_builtins.help = "help";
        m_available |= kHelp | (app.isTaken("h") ? 0U : kShortHelp);
    }
    if (!app.m_version.empty() && !app.isTaken("version")) {
        m_builtins.version = "version";
        m_available |= kVersion;
    }
    if (top && !app.isTaken("completion")) {
        m_builtins.completion = "completion";
        m_available |= kCompletion;
    }
    for (BuiltinName const& builtin : kBuiltinNames) {
        if ((m_available & builtin.has) == builtin.has) {
            m_initials |= 1U << static_cast<unsigned>(builtin.name.front() - 'a');
        }
    }
    if (showDefaults) {
        build(m_available);
    }
}

CoreSession::~CoreSession() {
    if (m_parser != nullptr) {
        m_parser->destroy();
    }
}

void CoreSession::build(Builtins builtins) {
    if (m_parser != nullptr) {
        m_parser->destroy();
        m_parser = nullptr;
    }
    m_built = builtins;
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
    registerBuiltins(builtins);
    if ((builtins & kCollector) != 0) {
        m_parser->option(kCollectorName, "", tarvo2::vt_str, kHiddenGroup)->tokenize(0)->positional();
    }
    m_parser->addHandler(&m_gate);
}

void CoreSession::registerOption(OptionState const& option) {
    IOption* declared =
        m_parser->option(option.namesText().c_str(), option.help(), option.kind(), option.m_hidden ? kHiddenGroup : "");
    declared->tokenize(option.m_separator);
    if (option.m_allows) {
        option.binding().describe(*declared);
    }
    if (m_showDefaults) {
        option.binding().showDefault(*declared);
    }
}

void CoreSession::registerBuiltins(Builtins builtins) {
    if ((builtins & kHelp) != 0) {
        m_parser->option((m_available & kShortHelp) != 0 ? "help,h" : "help", text::kHelpDescription, tarvo2::vt_empty,
                         "");
    }
    if ((builtins & kVersion) != 0) {
        m_parser->option("version", text::kVersionDescription, tarvo2::vt_empty, "");
    }
    if ((builtins & kCompletion) != 0) {
        IOption* option = m_parser->option("completion", text::kCompletionDescription, tarvo2::vt_str, "");
        option->tokenize(0);
        for (char const* shell : kShells) {
            option->allowValue(tarvo2::variant_t(shell));
        }
    }
}

// A plain argument (an empty one included) is the collector's: the library refuses it
// there when it begins with '-'. A lone '-' names no option.
CoreSession::Builtins CoreSession::named(Arguments const& args) const {
    Builtins found = 0;
    for (char const* arg : args) {
        if (arg[0] != '-') {
            found |= kCollector;
            continue;
        }
        if (arg[1] == '\0') {
            continue;
        }
        char const* const typed = arg + (arg[1] == '-' && arg[2] != '\0' ? 2 : 1);
        // Most typed names differ from every one of these at their first character.
        auto const letter = static_cast<unsigned>(static_cast<unsigned char>(*typed)) - 'a';
        if (letter < 26U && ((m_initials >> letter) & 1U) == 0) {
            continue;
        }
        bool const emptyFirstPart = *typed == '\0' || *typed == '=' || *typed == '-';
        for (BuiltinName const& builtin : kBuiltinNames) {
            if ((emptyFirstPart || *typed == builtin.name.front()) && (m_available & builtin.has) == builtin.has &&
                mayName(typed, builtin.name)) {
                found |= builtin.bit;
            }
        }
    }
    return found & m_available;
}

void CoreSession::fit(Arguments const& args) {
    Builtins const wanted = named(args);
    if (m_parser == nullptr || (wanted & ~m_built) != 0) {
        build(m_built | wanted);
    }
}

int CoreSession::parse(Arguments const& args, Source source, SourceValues& into, std::vector<std::string>& rest,
                       std::string& error) {
    fit(args);
    if (m_parser == nullptr) {
        error = "the library could not make a parser";
        return 3;
    }
    // A short command line's argument vector is made on the stack.
    std::array<char*, kShortLine> shortLine{};
    std::vector<char*> longLine(args.size() < kShortLine ? 0 : args.size() + 1);
    char** const argv = longLine.empty() ? shortLine.data() : longLine.data();
    argv[0] = m_programName;
    for (std::size_t i = 0; i < args.size(); ++i) {
        // The library's signature predates const: it copies the arguments and never writes to them.
        argv[i + 1] = const_cast<char*>(args[i]);
    }
    // The library would switch its trace on for this first argument; the layer never prints.
    std::string traceless;
    if (!args.empty() && std::strcmp(args[0], kTraceSwitch) == 0) {
        traceless = std::string("--") + kCollectorName + "=" + args[0];
        argv[1] = traceless.data();
    }
    // The gate records every value as it is heard; the library's result is only needed for
    // what follows "--", and storing into one is a good part of a parse's cost.
    ResultHandle handle;
    if (hasTerminator(args)) {
        m_parser->createResult(&handle.result);
    }
    m_gate.begin(source, into, args.size());
    int const code = m_parser->parseArgsVector(static_cast<int>(args.size() + 1), argv, handle.result);
    if (code != 0) {
        error = m_gate.refusal().empty() ? std::string(m_parser->getErrorDesc()) : m_gate.refusal();
        return code;
    }
    if (handle.result == nullptr) {
        return 0;
    }
    char const* text = nullptr;
    for (int found = handle.result->getFirstArgument(&text); found == 0;
         found = handle.result->getNextArgument(&text)) {
        rest.emplace_back(text);
    }
    return 0;
}

// Among every name the App answers to, the layer's own options included.
std::vector<std::string> CoreSession::suggestions(std::string const& argument) {
    if (m_built != m_available) {
        build(m_available);
    }
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
