// A whole process that uses quen_3_1 for the least a host does: one option
// declared, one argument parsed, its value read back and printed.
#include <quen_3_1/quen.h>

#include <cstdio>
#include <string>

int main(int argc, char** argv) {
    quen_3_1::IParser* parser = nullptr;
    if (quen_3_1::createParser(&parser, 0) != 0) {
        return 2;
    }
    parser->option("level", "How much to do.", tarvo2::vt_int, "main");
    quen_3_1::IParseResult* result = nullptr;
    parser->createResult(&result);
    int const code = parser->parseArgsVector(argc, argv, result);
    quen_3_1::Value const value = result->get("level");
    std::string const shown = value.m_status == 0 ? value.m_text : "none";
    std::printf("%d %s\n", code, shown.c_str());
    result->destroy();
    parser->destroy();
    return 0;
}
