// A minimal host built outside the project's tree: it reaches the library only
// through the installed header and the CMake package, pkg-config or
// add_subdirectory, exactly as an application would.
#include <quen_3_1/quen.h>

#include <cstdio>
#include <cstring>

int main() {
    quen_3_1::IParser* parser = nullptr;
    if (quen_3_1::createParser(&parser, quen_3_1::FlagUnknownIsError) != 0 || parser == nullptr) {
        std::fputs("createParser failed\n", stderr);
        return 1;
    }
    parser->option("log-file,lf", "Where to write the log", tarvo2::vt_str, "general:General options")
        ->defaultValue(tarvo2::variant_t("run.log"));
    parser->option("count", "How many times", tarvo2::vt_int, "general");

    quen_3_1::IParseResult* result = nullptr;
    parser->createResult(&result);
    char arg0[] = "host";
    char arg1[] = "--count";
    char arg2[] = "42";
    char* argv[] = {arg0, arg1, arg2};
    int const code = parser->parseArgsVector(3, argv, result);
    if (code != 0) {
        std::fprintf(stderr, "parse failed with %d: %s\n", code, parser->getErrorDesc());
    }

    int const count = result->get("count").m_value.as<int>();
    char const* logFile = quen_3_1::getLastValue(result, "lf").as<char const*>();
    std::printf("count=%d log-file=%s\n", count, logFile != nullptr ? logFile : "(null)");
    bool const right = code == 0 && count == 42 && logFile != nullptr && std::strcmp(logFile, "run.log") == 0;

    result->destroy();
    parser->destroy();
    return right ? 0 : 1;
}
