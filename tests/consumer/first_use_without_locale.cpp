// A host that has the library convert a number and never uses a locale
// itself: the library must not build one for it. Building the standard
// library's classic locale was the largest part of what a small host's
// first parse cost, page faults included. A global locale that a host does
// set is still honoured (the conversion tests pin that).
#include <quen_3_1/quen.h>

#include <cstddef>
#include <cstdio>
#include <cstring>
#include <locale>

namespace {

// The number the standard library gives the character classification facet
// when it builds its first locale, the classic one; zero until then.
std::size_t classificationFacetNumber() {
    auto const* const number = reinterpret_cast<std::size_t const*>(&std::ctype<char>::id);
    return __atomic_load_n(number, __ATOMIC_ACQUIRE);
}

}  // namespace

int main() {
#if !defined(__GLIBCXX__)
    std::puts("skipped: facet numbering is the GNU standard library's");
    return 77;
#else
    static_assert(sizeof(std::locale::id) == sizeof(std::size_t), "a facet id is its number");
    if (classificationFacetNumber() != 0) {
        std::puts("a locale was built before the host started");
        return 1;
    }
    quen_3_1::IParser* parser = nullptr;
    if (quen_3_1::createParser(&parser, 0) != 0 || parser == nullptr) {
        std::puts("createParser failed");
        return 1;
    }
    parser->option("level", "How much to do.", tarvo2::vt_int, "main");
    parser->option("ratio", "How much of it.", tarvo2::vt_double, "main");
    quen_3_1::IParseResult* result = nullptr;
    parser->createResult(&result);
    char arg0[] = "host";
    char arg1[] = "--level=3";
    char arg2[] = "--ratio=0.25";
    char* argv[] = {arg0, arg1, arg2};
    int const code = parser->parseArgsVector(3, argv, result);
    int const level = result->get("level").m_value.as<int>();
    double const ratio = result->get("ratio").m_value.as<double>();
    std::size_t const number = classificationFacetNumber();
    result->destroy();
    parser->destroy();
    if (code != 0 || level != 3 || ratio != 0.25) {
        std::printf("parsed %d: level %d, ratio %g\n", code, level, ratio);
        return 1;
    }
    if (number != 0) {
        std::puts("converting the numbers built a locale");
        return 1;
    }
    std::puts("converted without a locale");
    return 0;
#endif
}
