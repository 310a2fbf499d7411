#include "values/text_hash.h"

#include <chrono>
#include <exception>
#include <random>

namespace quen_3_1 {

namespace {

// Spreads the bits of a word over the whole word (the finaliser of splitmix64).
std::uint64_t scramble(std::uint64_t x) {
    x = (x ^ (x >> 30)) * 0xbf58476d1ce4e5b9ULL;
    x = (x ^ (x >> 27)) * 0x94d049bb133111ebULL;
    return x ^ (x >> 31);
}

// Fills `words` from the system's random source; where it has none, they
// stay as they were.
void randomWords(std::uint64_t (&words)[4]) noexcept {
    try {
        std::random_device device;
        for (std::uint64_t& word : words) {
            word = (static_cast<std::uint64_t>(device()) << 32) ^ device();
        }
    } catch (std::exception const&) {
        // No random source here: the key is made of the other ingredients.
    }
}

}  // namespace

// The random words are mixed with a stack address, the address of this code
// (both moved by address space randomisation) and the clock, so that a key is
// unpredictable even where the random source fails.
HashKey makeHashKey() noexcept {
    std::uint64_t words[4] = {};
    randomWords(words);
    int local = 0;
    auto const stack = static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(&local));
    auto const code = static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(&makeHashKey));
    auto const clock = static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count());
    auto const wall = static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
    return HashKey{scramble(words[0] ^ stack ^ scramble(clock)) ^ words[2],
                   scramble(words[1] ^ code ^ scramble(wall)) ^ words[3]};
}

HashKey makeAddressKey() noexcept {
    int local = 0;
    auto const stack = static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(&local));
    auto const code = static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(&makeAddressKey));
    return HashKey{scramble(stack ^ scramble(code)), scramble(code ^ scramble(stack ^ 0x9e3779b97f4a7c15ULL))};
}

}  // namespace quen_3_1
