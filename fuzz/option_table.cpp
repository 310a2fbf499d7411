#include "option_table.h"

namespace quen_fuzz {

void declareOptions(quen_3_1::IParser* parser) {
    parser->option("verbose,v", "Print every step", tarvo2::vt_bool, "general:General options")
        ->defaultValue(tarvo2::variant_t(false));
    parser->option("checksum,c", "Compare contents", tarvo2::vt_bool, "general")->defaultValue(tarvo2::variant_t(true));
    parser->option("help,h", "Show this help", tarvo2::vt_empty, "general");
    parser->option("log-file,lf", "Where to write the log", tarvo2::vt_str, "general")
        ->defaultValue(tarvo2::variant_t("sync.log"));
    parser->option("level", "Detail of the log", tarvo2::vt_int, "general")
        ->allowValue(tarvo2::variant_t(1))
        ->allowValue(tarvo2::variant_t(2))
        ->allowValue(tarvo2::variant_t(3))
        ->defaultValue(tarvo2::variant_t(2));
    parser->option("mode,m", "How to transfer", tarvo2::vt_str, "transfer:Transfer settings")
        ->allowValue(tarvo2::variant_t("fast"))
        ->allowValue(tarvo2::variant_t("full"))
        ->allowValue(tarvo2::variant_t("small"))
        ->defaultValue(tarvo2::variant_t("full"));
    parser->option("block-size,bs", "Block size, decimal or hex", tarvo2::vt_uint64, "transfer")
        ->defaultValue(tarvo2::variant_t(4096ULL));
    parser->option("rate", "Bandwidth limit in MiB/s", tarvo2::vt_double, "transfer");
    parser->option("retries", "Attempts per file", tarvo2::vt_uint, "transfer");
    parser->option("offset", "Start offset", tarvo2::vt_int64, "transfer");
    parser->option("exclude,x", "Patterns to skip", tarvo2::vt_str, "filter:Filters")->synonym("skip");
    parser->option("include-only", "Only these patterns", tarvo2::vt_str, "filter")->tokenize(0);
    parser->option("no-delete", "Keep extra files", tarvo2::vt_bool, "filter");
    parser->option("debug-dump", "Internal dump", tarvo2::vt_empty, "quen_hidden");
    parser->option("files", "Files to synchronise", tarvo2::vt_str, "filter")->positional();
}

std::vector<std::string> const& declaredNames() {
    static std::vector<std::string> const names{
        "verbose",   "v",          "checksum", "c",      "help",    "h",      "log-file", "lf", "level", "mode",
        "m",         "block-size", "bs",       "rate",   "retries", "offset", "exclude",  "x",  "skip",  "include-only",
        "no-delete", "debug-dump", "files",    "unknown"};
    return names;
}

}  // namespace quen_fuzz
