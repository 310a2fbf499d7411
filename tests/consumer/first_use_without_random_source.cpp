// A host that declares options and parses must not have the library open the
// system's random source: tables of declared names are keyed by addresses.
// The host stands in for the standard library's random device (the library's
// references bind to the host's definitions first) and counts its uses.
#include <quen_3_1/quen.h>

#include <cstdio>
#include <random>

#if defined(__GLIBCXX__)
extern "C" {
void quenHostRandomInit(void* device, void const* token) __asm__(
    "_ZNSt13random_device7_M_initERKNSt7__cxx1112basic_stringIcSt11char_traitsIcESaIcEEE");
unsigned quenHostRandomValue(void* device) __asm__("_ZNSt13random_device9_M_getvalEv");
void quenHostRandomEnd(void* device) __asm__("_ZNSt13random_device7_M_finiEv");
}

namespace {
int opened = 0;
}  // namespace

extern "C" __attribute__((visibility("default"))) void quenHostRandomInit(void* /*device*/, void const* /*token*/) {
    ++opened;
}
extern "C" __attribute__((visibility("default"))) unsigned quenHostRandomValue(void* /*device*/) { return 4; }
extern "C" __attribute__((visibility("default"))) void quenHostRandomEnd(void* /*device*/) {}
#endif

int main() {
#if !defined(__GLIBCXX__) || !defined(_GLIBCXX_USE_CXX11_ABI) || _GLIBCXX_USE_CXX11_ABI == 0
    std::puts("skipped: the stand-in is for the GNU standard library's random device");
    return 77;
#else
    quen_3_1::IParser* parser = nullptr;
    if (quen_3_1::createParser(&parser, 0) != 0 || parser == nullptr) {
        std::puts("createParser failed");
        return 1;
    }
    parser->option("level,l", "How much to do.", tarvo2::vt_int, "main");
    parser->option("log-file", "Where to write.", tarvo2::vt_str, "main");
    quen_3_1::IParseResult* result = nullptr;
    parser->createResult(&result);
    char arg0[] = "host";
    char arg1[] = "--lev=3";
    char arg2[] = "--l-f=out.txt";
    char* argv[] = {arg0, arg1, arg2};
    int const code = parser->parseArgsVector(3, argv, result);
    int const level = result->get("level").m_value.as<int>();
    int const openedByLibrary = opened;
    result->destroy();
    parser->destroy();
    if (code != 0 || level != 3) {
        std::printf("parsed %d: level %d\n", code, level);
        return 1;
    }
    if (openedByLibrary != 0) {
        std::puts("declaring and parsing opened the random source");
        return 1;
    }
    // The stand-in must be what a random device reaches, or the check above
    // could not fail.
    std::random_device device;
    if (opened != 1 || device() != 4) {
        std::puts("the stand-in random device was not used");
        return 1;
    }
    std::puts("parsed without the random source");
    return 0;
#endif
}
