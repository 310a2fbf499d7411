// The host of app.cpp written with cxxopts, for the compile-time comparison.
#include <cstdio>
#include <cxxopts.hpp>
#include <exception>
#include <string>
#include <vector>

int main(int argc, char** argv) {
    cxxopts::Options app("qarchive", "Pack files into an archive.");
    int jobs = 4;
    int level = 3;
    int retries = 5;
    int timeout = 30;
    long long blockSize = 65536;
    double ratio = 0.5;
    double threshold = 1.25;
    double scale = 1.0;
    std::string name = "archive";
    std::string output = "out.qa";
    std::string format = "tar";
    std::string comment;
    std::string compression = "fast";
    bool verbose = false;
    bool quiet = false;
    bool force = false;
    bool dryRun = false;
    bool followLinks = false;
    std::vector<std::string> excludes;
    std::vector<std::string> includes;
    // clang-format off
    app.add_options()
        ("h,help", "Show this help and exit.")
        ("j,jobs", "Files packed at once.", cxxopts::value<int>(jobs))
        ("l,level", "Compression level.", cxxopts::value<int>(level))
        ("r,retries", "Attempts per file.", cxxopts::value<int>(retries))
        ("timeout", "Seconds to wait for a locked file.", cxxopts::value<int>(timeout))
        ("block-size", "Bytes per block.", cxxopts::value<long long>(blockSize))
        ("ratio", "Smallest useful compression ratio.", cxxopts::value<double>(ratio))
        ("threshold", "Size in MiB above which files are split.", cxxopts::value<double>(threshold))
        ("scale", "Weight of the speed estimate.", cxxopts::value<double>(scale))
        ("n,name", "Name of the archive.", cxxopts::value<std::string>(name))
        ("o,output", "Where to write the archive.", cxxopts::value<std::string>(output))
        ("format", "Archive format.", cxxopts::value<std::string>(format))
        ("comment", "Text stored in the archive.", cxxopts::value<std::string>(comment))
        ("compression", "Compression method.", cxxopts::value<std::string>(compression))
        ("v,verbose", "Tell about every file.", cxxopts::value<bool>(verbose))
        ("q,quiet", "Print errors only.", cxxopts::value<bool>(quiet))
        ("f,force", "Overwrite an existing archive.", cxxopts::value<bool>(force))
        ("dry-run", "Only show what would be packed.", cxxopts::value<bool>(dryRun))
        ("follow-links", "Pack what links point to.", cxxopts::value<bool>(followLinks))
        ("x,exclude", "Patterns to leave out.", cxxopts::value<std::vector<std::string>>(excludes))
        ("i,include", "Patterns to pack.", cxxopts::value<std::vector<std::string>>(includes));
    // clang-format on
    try {
        if (app.parse(argc, argv).count("help") != 0) {
            std::fputs(app.help().c_str(), stdout);
            return 0;
        }
    } catch (std::exception const& error) {
        std::fprintf(stderr, "qarchive: %s\n", error.what());
        return 2;
    }
    std::printf("jobs=%d level=%d retries=%d timeout=%d block-size=%lld\n", jobs, level, retries, timeout, blockSize);
    std::printf("ratio=%g threshold=%g scale=%g\n", ratio, threshold, scale);
    std::printf("name=%s output=%s format=%s comment=%s compression=%s\n", name.c_str(), output.c_str(), format.c_str(),
                comment.c_str(), compression.c_str());
    std::printf("verbose=%d quiet=%d force=%d dry-run=%d follow-links=%d\n", verbose, quiet, force, dryRun,
                followLinks);
    for (std::string const& pattern : excludes) {
        std::printf("exclude=%s\n", pattern.c_str());
    }
    for (std::string const& pattern : includes) {
        std::printf("include=%s\n", pattern.c_str());
    }
    return 0;
}
