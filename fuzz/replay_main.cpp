// Runs a fuzz target's entry point over files and directories of inputs, so
// the seed corpus and every past crash input replay in ordinary test runs.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "fuzz_support.h"

namespace {

int replayFile(std::filesystem::path const& path) {
    std::ifstream in(path, std::ios::binary);
    std::vector<char> const bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    LLVMFuzzerTestOneInput(reinterpret_cast<std::uint8_t const*>(bytes.data()), bytes.size());
    return 1;
}

}  // namespace

int main(int argc, char** argv) {
    int replayed = 0;
    for (int i = 1; i < argc; ++i) {
        std::filesystem::path const path(argv[i]);
        if (std::filesystem::is_directory(path)) {
            for (auto const& entry : std::filesystem::recursive_directory_iterator(path)) {
                if (entry.is_regular_file()) {
                    replayed += replayFile(entry.path());
                }
            }
        } else if (std::filesystem::exists(path)) {
            replayed += replayFile(path);
        }
    }
    std::printf("replayed %d inputs\n", replayed);
    return replayed > 0 ? 0 : 1;
}
