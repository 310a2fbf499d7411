// One host of twenty options, declared through quen_3_1's App: the
// compile-time comparison builds it next to the same host written with
// CLI11 and with cxxopts (cli11.cpp, cxxopts.cpp). The three print the same.
#include <quen_3_1/app.h>

#include <cstdio>
#include <string>
#include <vector>

int main(int argc, char** argv) {
    quen_3_1::App app("qarchive", "Pack files into an archive.");
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
    app.option("jobs,j", jobs, "Files packed at once.");
    app.option("level,l", level, "Compression level.");
    app.option("retries,r", retries, "Attempts per file.");
    app.option("timeout", timeout, "Seconds to wait for a locked file.");
    app.option("block-size", blockSize, "Bytes per block.");
    app.option("ratio", ratio, "Smallest useful compression ratio.");
    app.option("threshold", threshold, "Size in MiB above which files are split.");
    app.option("scale", scale, "Weight of the speed estimate.");
    app.option("name,n", name, "Name of the archive.");
    app.option("output,o", output, "Where to write the archive.");
    app.option("format", format, "Archive format.");
    app.option("comment", comment, "Text stored in the archive.");
    app.option("compression", compression, "Compression method.");
    app.option("verbose,v", verbose, "Tell about every file.");
    app.option("quiet,q", quiet, "Print errors only.");
    app.option("force,f", force, "Overwrite an existing archive.");
    app.option("dry-run", dryRun, "Only show what would be packed.");
    app.option("follow-links", followLinks, "Pack what links point to.");
    app.option("exclude,x", excludes, "Patterns to leave out.");
    app.option("include,i", includes, "Patterns to pack.");
    quen_3_1::Result const result = app.parse(argc, argv);
    if (result.done()) {
        return result.exit();
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
