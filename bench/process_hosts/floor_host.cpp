// without_library.cpp with one call into an empty shared library: the
// difference to that host is the fixed cost of mapping one more object.
#include <cstdio>
#include <cstring>
#include <string>

extern "C" int quenProcessEmpty(int value);

int main(int argc, char** argv) {
    std::string shown = "none";
    for (int i = 1; i < argc; ++i) {
        if (std::strncmp(argv[i], "--level=", 8) == 0) {
            shown = argv[i] + 8;
        }
    }
    std::printf("%d %s\n", quenProcessEmpty(-1), shown.c_str());
    return 0;
}
