// quen-demo: a made-up file synchronisation tool that shows a host of
// quen_3_1 from start to end. It declares its options from a table, parses
// its own command line and any options files into one result, and prints what
// it received in the order in which it was given. QUEN_DEMO_* environment
// variables supply values too; the command line wins over them.
#include <quen_3_1/extras.h>
#include <quen_3_1/quen.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace {

using quen_3_1::IParser;
using quen_3_1::IParseResult;
using quen_3_1::Value;
using tarvo2::variant_t;

constexpr int kNoNumber = 0x7fffffff;  // what a query answers when there is no position
constexpr char kTraceSwitch[] = "quenoption=quenlogenable=1";
constexpr char kEnvironmentPrefix[] = "QUEN_DEMO_";
constexpr int kSuggestions = 3;
constexpr int kCannotReadFile = 66;  // an options file that cannot be read; not a library code

// Unknown options are errors, and a file name never starts with '-', so a
// mistyped option cannot slip into the file list.
constexpr int kParserFlags = quen_3_1::FlagUnknownIsError | quen_3_1::FlagNoHyphenPositional;

constexpr char kTransfer[] = "transfer:What to synchronise and how";
constexpr char kNetwork[] = "network:Talking to the remote side";
constexpr char kGeneral[] = "general:General options";
constexpr char kHidden[] = "quen_hidden";

// One declared option. A fallback of kind vt_empty means "no default";
// split 0 takes a value text whole, so paths may contain commas.
struct OptionRow {
    char const* names;
    tarvo2::kel_variant_type_t kind;
    char const* group;
    char const* description;
    variant_t fallback;
    std::vector<variant_t> allowed;
    char split;
    char const* synonym;
    bool positional;
};

// The options, one row each: the first line declares, the second refines
// (default, allowed values, split character, synonym, positional).
// clang-format off
std::vector<OptionRow> optionTable() {
    using namespace tarvo2;
    return {
        {"source,src,s", vt_str, kTransfer, "Directory to copy from.",
         ".", {}, 0, nullptr, false},
        {"target,dst,t", vt_str, kTransfer, "Directory to copy to.",
         {}, {}, 0, nullptr, false},
        {"mode,m", vt_str, kTransfer,
         "mirror makes the target an exact copy, update copies newer files only, merge copies newer files and "
         "keeps everything else. Any unambiguous beginning will do.",
         "update", {"mirror", "update", "merge"}, ',', nullptr, false},
        {"delete-extra", vt_bool, kTransfer, "Remove files from the target that the source does not have.",
         false, {}, ',', nullptr, false},
        {"preserve-times,keep-times", vt_bool, kTransfer, "Give every copy the modification time of its original.",
         true, {}, ',', nullptr, false},
        {"exclude,x", vt_str, kTransfer, "Patterns of files to skip, separated by commas; may be given again.",
         {}, {}, ',', "skip", false},
        {"block-size", vt_uint64, kTransfer, "Bytes compared at a time; decimal, or hexadecimal as 0x20000 or 20000h.",
         65536ULL, {}, ',', nullptr, false},
        {"files", vt_str, kTransfer, "Files or directories to synchronise.",
         {}, {}, 0, nullptr, true},
        {"retries,r", vt_int, kNetwork, "How often to retry a failed transfer.",
         3, {0, 1, 3, 5}, ',', nullptr, false},
        {"bandwidth-limit,bw-limit", vt_double, kNetwork, "Upper limit of the transfer rate in MiB/s.",
         {}, {}, 0, nullptr, false},
        {"compress,z", vt_bool, kNetwork, "Compress data on the wire.",
         true, {}, ',', nullptr, false},
        {"checksum,c", vt_bool, kNetwork, "Compare files by their content, not by size and time.",
         false, {}, ',', "verify", false},
        {"timeout", vt_int, kNetwork, "Seconds to wait for the remote side.",
         30, {}, ',', nullptr, false},
        {"verbose,v", vt_bool, kGeneral, "Tell about every file.",
         false, {}, ',', nullptr, false},
        {"log-file,lf", vt_str, kGeneral, "Where to write the log.",
         "quen-demo.log", {}, 0, nullptr, false},
        {"options-file", vt_str, kGeneral,
         "Read more options from this file, one per line; '#' and ';' start comments.",
         {}, {}, 0, nullptr, false},
        {"help,h", vt_empty, kGeneral, "Show this help and exit.",
         {}, {}, ',', nullptr, false},
        {"completion", vt_str, kGeneral, "Print a completion script for this shell and exit.",
         {}, {"bash", "zsh", "fish"}, 0, nullptr, false},
        {"debug-level", vt_int, kHidden, "Internal diagnostics, not shown in the help.",
         0, {}, ',', nullptr, false},
    };
}
// clang-format on

std::string primaryName(OptionRow const& row) {
    std::string names = row.names;
    return names.substr(0, names.find(','));
}

void declare(IParser* parser, OptionRow const& row) {
    quen_3_1::IOption* option = parser->option(row.names, row.description, row.kind, row.group);
    option->tokenize(row.split);
    if (row.fallback.m_type != tarvo2::vt_empty) {
        option->defaultValue(row.fallback);
    }
    for (variant_t const& value : row.allowed) {
        option->allowValue(value);
    }
    if (row.synonym != nullptr) {
        option->synonym(row.synonym);
    }
    if (row.positional) {
        option->positional();
    }
}

// Remembers the last argument no option took, to suggest names for it.
class UnknownArgumentRecorder final : public quen_3_1::EventHandler {
public:
    bool onUknownArgument(char const* argument) override {
        m_last = argument;
        return true;
    }
    std::string const& last() const { return m_last; }

private:
    std::string m_last;
};

// suggestNames drops the hyphens and any "=value" of the argument itself.
void suggest(IParser* parser, std::string const& argument) {
    char const* names[kSuggestions] = {};
    int const count = quen_3_1::suggestNames(parser, argument.c_str(), names, kSuggestions);
    for (int i = 0; i < count; ++i) {
        std::fprintf(stderr, "%s --%s", i == 0 ? "Did you mean" : i + 1 == count ? " or" : ",", names[i]);
    }
    if (count > 0) {
        std::fprintf(stderr, "?\n");
    }
}

void fail(IParser* parser, int code, UnknownArgumentRecorder const& unknown) {
    std::fprintf(stderr, "%s\n", parser->getErrorDesc());
    if (code == 2 && !unknown.last().empty()) {
        suggest(parser, unknown.last());
    }
}

bool readFile(std::string const& path, std::string& text) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream content;
    content << in.rdbuf();
    text = content.str();
    return static_cast<bool>(in);
}

// The files named by --options-file, taken before any of them is parsed:
// parsing one adds to the result that this walk reads.
std::vector<std::string> optionsFiles(IParseResult* result) {
    std::vector<std::string> paths;
    for (Value value = result->get("options-file"); value.m_status == 0; value = result->next("options-file")) {
        paths.emplace_back(value.m_text);
    }
    return paths;
}

// The environment first, then the command line, then every options file.
int parseSources(IParser* parser, IParseResult* result, int argc, char** argv) {
    if (int code = quen_3_1::parseEnvironment(parser, result, kEnvironmentPrefix)) {
        return code;
    }
    if (int code = parser->parseArgsVector(argc, argv, result)) {
        return code;
    }
    // Each parse switches the trace off unless its first argument is the switch.
    bool traced = argc > 1 && std::strcmp(argv[1], kTraceSwitch) == 0;
    for (std::string const& path : optionsFiles(result)) {
        std::string text;
        if (!readFile(path, text)) {
            std::fprintf(stderr, "quen-demo: cannot read options file '%s'\n", path.c_str());
            return kCannotReadFile;
        }
        if (traced) {
            text.insert(0, std::string(kTraceSwitch) + "\n");
        }
        if (int code = parser->parseStream(text.c_str(), result)) {
            return code;
        }
    }
    return 0;
}

// Parses every source into one result; later sources carry later sequence
// numbers, so the command line wins over the environment.
int parseAll(IParser* parser, IParseResult* result, int argc, char** argv) {
    UnknownArgumentRecorder unknown;
    parser->addHandler(&unknown);
    int const code = parseSources(parser, result, argc, argv);
    if (code != 0 && code != kCannotReadFile) {
        fail(parser, code, unknown);
    }
    parser->removeHandler(&unknown);
    return code;
}

struct Entry {
    std::string option;
    Value value;
};

// Sorts what the result holds into the values that were given and the
// defaults used instead. Only a default comes without an occurrence number.
void collect(IParseResult* result, std::vector<OptionRow> const& rows, std::vector<Entry>& given,
             std::vector<Entry>& defaults) {
    for (OptionRow const& row : rows) {
        std::string name = primaryName(row);
        Value value = result->get(name.c_str());
        if (value.m_status != 0) {
            continue;
        }
        bool occurred = value.m_text == nullptr || result->nextPosition() != kNoNumber;
        std::vector<Entry>& into = occurred ? given : defaults;
        for (; value.m_status == 0; value = result->next(name.c_str())) {
            into.push_back({name, value});
        }
    }
    // Sequence numbers put values of different options back into the order of the command line.
    auto byNumber = [](Entry const& a, Entry const& b) { return a.value.m_index < b.value.m_index; };
    std::sort(given.begin(), given.end(), byNumber);
    std::sort(defaults.begin(), defaults.end(), byNumber);
}

char const* kindName(tarvo2::kel_variant_type_t kind) {
    switch (kind) {
        case tarvo2::vt_bool:
            return "bool";
        case tarvo2::vt_int:
            return "int";
        case tarvo2::vt_uint64:
            return "uint64";
        case tarvo2::vt_double:
            return "double";
        case tarvo2::vt_str:
            return "text";
        default:
            return "none";
    }
}

// The converted value, for the kinds whose text is not the whole story.
std::string converted(variant_t const& value) {
    std::ostringstream out;
    switch (value.m_type) {
        case tarvo2::vt_bool:
            out << (value.as<bool>() ? "true" : "false");
            break;
        case tarvo2::vt_int:
            out << value.as<int>();
            break;
        case tarvo2::vt_uint64:
            out << value.as<unsigned long long>();
            break;
        case tarvo2::vt_double:
            out << value.as<double>();
            break;
        default:
            return "";
    }
    return " = " + out.str();
}

void printEntries(char const* title, std::vector<Entry> const& entries) {
    std::printf("%s\n", title);
    for (Entry const& entry : entries) {
        Value const& value = entry.value;
        std::string text = value.m_text == nullptr ? "" : "'" + std::string(value.m_text) + "'";
        std::printf("  %5d  %-16s %-7s %s%s\n", value.m_index, entry.option.c_str(), kindName(value.m_value.m_type),
                    text.c_str(), converted(value.m_value).c_str());
    }
    if (entries.empty()) {
        std::printf("  (none)\n");
    }
}

void printArguments(IParseResult* result) {
    std::printf("Plain arguments after --:\n");
    char const* text = nullptr;
    if (result->getFirstArgument(&text) != 0) {
        std::printf("  (none)\n");
        return;
    }
    do {
        std::printf("  '%s'\n", text);
    } while (result->getNextArgument(&text) == 0);
}

void printResult(IParseResult* result, std::vector<OptionRow> const& rows) {
    std::vector<Entry> given;
    std::vector<Entry> defaults;
    collect(result, rows, given, defaults);
    printEntries("Received, in command-line order:", given);
    printEntries("Defaults used:", defaults);
    printArguments(result);
}

}  // namespace

int main(int argc, char** argv) {
    IParser* parser = nullptr;
    if (int code = quen_3_1::createParser(&parser, kParserFlags)) {
        return code;
    }
    std::vector<OptionRow> const rows = optionTable();
    for (OptionRow const& row : rows) {
        declare(parser, row);
    }
    IParseResult* result = nullptr;
    parser->createResult(&result);

    int code = parseAll(parser, result, argc, argv);
    Value const shell = result->get("completion");
    if (code == 0 && shell.m_status == 0) {
        std::fputs(quen_3_1::completionScript(parser, "quen-demo", shell.m_text), stdout);
    } else if (code == 0 && result->present("help")) {
        std::printf("Usage: quen-demo [options] [FILE...] [-- ARGUMENT...]\n%s", parser->getDescription(false));
    } else if (code == 0) {
        printResult(result, rows);
    }
    result->destroy();
    parser->destroy();
    return code;
}
