// The host of app.cpp written with CLI11, for the compile-time comparison.
#include <CLI/CLI.hpp>
#include <cstdio>
#include <string>
#include <vector>

int main(int argc, char** argv) {
    CLI::App app("Pack files into an archive.", "qarchive");
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
    app.add_option("-j,--jobs", jobs, "Files packed at once.")->capture_default_str();
    app.add_option("-l,--level", level, "Compression level.")->capture_default_str();
    app.add_option("-r,--retries", retries, "Attempts per file.")->capture_default_str();
    app.add_option("--timeout", timeout, "Seconds to wait for a locked file.")->capture_default_str();
    app.add_option("--block-size", blockSize, "Bytes per block.")->capture_default_str();
    app.add_option("--ratio", ratio, "Smallest useful compression ratio.")->capture_default_str();
    app.add_option("--threshold", threshold, "Size in MiB above which files are split.")->capture_default_str();
    app.add_option("--scale", scale, "Weight of the speed estimate.")->capture_default_str();
    app.add_option("-n,--name", name, "Name of the archive.")->capture_default_str();
    app.add_option("-o,--output", output, "Where to write the archive.")->capture_default_str();
    app.add_option("--format", format, "Archive format.")->capture_default_str();
    app.add_option("--comment", comment, "Text stored in the archive.")->capture_default_str();
    app.add_option("--compression", compression, "Compression method.")->capture_default_str();
    app.add_flag("-v,--verbose,!--no-verbose", verbose, "Tell about every file.");
    app.add_flag("-q,--quiet,!--no-quiet", quiet, "Print errors only.");
    app.add_flag("-f,--force,!--no-force", force, "Overwrite an existing archive.");
    app.add_flag("--dry-run,!--no-dry-run", dryRun, "Only show what would be packed.");
    app.add_flag("--follow-links,!--no-follow-links", followLinks, "Pack what links point to.");
    app.add_option("-x,--exclude", excludes, "Patterns to leave out.")->capture_default_str();
    app.add_option("-i,--include", includes, "Patterns to pack.")->capture_default_str();
    CLI11_PARSE(app, argc, argv);
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
