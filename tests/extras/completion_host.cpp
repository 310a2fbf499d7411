// A host whose options cover every way a value completes; it prints its
// completion script for the shell named by its first argument. With
// "without-positional" as second argument it registers no positional option,
// so that plain words complete as option names; with "hostile" it registers
// only names that a shell would run as commands if they reached the command
// line unquoted.
#include <quen_3_1/extras.h>
#include <quen_3_1/quen.h>

#include <cstdio>
#include <cstring>

namespace {

// Prints the script for `shell` and destroys the parser.
int printScript(quen_3_1::IParser* parser, char const* shell) {
    char const* script = quen_3_1::completionScript(parser, "quen-sample", shell);
    if (script == nullptr) {
        std::fprintf(stderr, "no completion script for shell '%s'\n", shell);
        parser->destroy();
        return 1;
    }
    std::fputs(script, stdout);
    parser->destroy();
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "usage: %s SHELL [without-positional]\n", argv[0]);
        return 2;
    }
    bool const positional = argc < 3 || std::strcmp(argv[2], "without-positional") != 0;
    bool const hostile = argc >= 3 && std::strcmp(argv[2], "hostile") == 0;
    quen_3_1::IParser* parser = nullptr;
    if (quen_3_1::createParser(&parser, 0) != 0) {
        return 3;
    }
    if (hostile) {
        parser->option("a$(touch${IFS}marker)", "Substitution.", tarvo2::vt_empty, "general");
        parser->option("b`touch${IFS}marker`", "Old-style substitution.", tarvo2::vt_empty, "general");
        parser->option("c'$(touch${IFS}marker)'", "Quotes.", tarvo2::vt_empty, "general");
        parser->option("d;touch${IFS}marker;", "Separators.", tarvo2::vt_bool, "general");
        return printScript(parser, argv[1]);
    }
    parser->option("log-file", "Where the log goes.", tarvo2::vt_str, "general:General options");
    parser->option("log-format", "How log lines look.", tarvo2::vt_str, "general")
        ->allowValue("plain")
        ->allowValue("json")
        ->allowValue("json-lines");
    parser->option("level", "Detail of the log.", tarvo2::vt_int, "general");
    parser->option("verbose", "Tell more.", tarvo2::vt_bool, "general")->synonym("chatty");
    parser->option("version", "Print the version.", tarvo2::vt_empty, "general");
    parser->option("mode", "How to copy.", tarvo2::vt_str, "copy:Copying")
        ->allowValue("fast")
        ->allowValue("slow")
        ->allowValue("safe mode");
    parser->option("dry-run", "Change nothing.", tarvo2::vt_bool, "copy");
    parser->option("output", "Target directory.", tarvo2::vt_str, "copy")->synonym("out");
    parser->option("debug-dump", "Internal state dump.", tarvo2::vt_str, "quen_hidden");
    if (positional) {
        parser->option("files", "Files to copy.", tarvo2::vt_str, "copy")->positional();
    }
    return printScript(parser, argv[1]);
}
