// quen-app-demo: a made-up photo shelf tool written against the application
// layer. Every option is bound to a variable of its own type; the program
// declares its commands, parses, and prints what it received: every value in
// command-line order with its sequence number and where it came from, then
// the variables of the chosen command.
#include <quen_3_1/app.h>

#include <cstdio>
#include <optional>
#include <string>
#include <vector>

namespace {

// Options of the program itself, valid before any command.
struct Global {
    bool verbose = false;
    bool colour = true;
    int jobs = 4;
    std::string shelf = "~/Shelf";
    int debug = 0;
};

struct Import {
    std::string album;
    std::vector<std::string> tags;
    std::string quality = "normal";
    std::optional<double> maxSize;
    std::string rename = "{date}-{name}";
    bool move = false;
    bool link = false;
    std::optional<std::string> since;
    std::optional<std::string> until;
    bool allDates = false;
    std::string source;
    std::vector<std::string> files;
};

struct RemoteAdd {
    std::string name;
    std::string url;
    unsigned port = 443;
    unsigned long long chunkSize = 4194304;
    std::optional<int> timeout;
    std::vector<std::string> albums;
};

struct RemoteRemove {
    std::string name;
    bool force = false;
};

struct Variables {
    Global global;
    Import import;
    RemoteAdd remoteAdd;
    RemoteRemove remoteRemove;
};

// A pattern names files inside the album, never a path elsewhere.
std::string noSlash(std::string const& pattern) {
    return pattern.find('/') == std::string::npos ? std::string() : "a rename pattern cannot contain '/'";
}

void declareGlobal(quen_3_1::App& app, Global& v) {
    app.version("2.3.0")
        .epilog("Run 'quen-app-demo COMMAND --help' for the options of a command.")
        .envPrefix("QUEN_APP_DEMO")
        .optionsFile("config", "Read more options from this file, one per line.");
    app.option("verbose,v", v.verbose, "Tell about every photo.");
    app.option("colour", v.colour, "Colour the output.");
    app.option("jobs,j", v.jobs, "Photos handled at once.").range(1, 64);
    app.option("shelf", v.shelf, "Where the albums live.").env("SHELF_HOME");
    app.option("debug", v.debug, "Internal diagnostics.").hidden();
}

void declareImport(quen_3_1::App& app, Import& v) {
    app.option("album,a", v.album, "Album to import into.").required();
    app.option("tag,t", v.tags, "Tags for every photo, separated by commas; may be given again.").split(',');
    app.option("quality,q", v.quality, "How much to keep; a beginning is enough.").allow({"draft", "normal", "best"});
    app.option("max-size", v.maxSize, "Skip photos larger than this many MiB.").range(0.1, 10000.0);
    app.option("rename", v.rename, "Name pattern for the copies.").check(noSlash);
    app.option("move", v.move, "Move the photos instead of copying them.");
    app.option("link", v.link, "Link the photos instead of copying them.");
    app.exclusive({"move", "link"});
    app.option("since", v.since, "Only photos taken on or after this date.").needs("until");
    app.option("until", v.until, "Only photos taken on or before this date.");
    app.option("all-dates", v.allDates, "Import every photo whatever its date.").excludes("since");
    app.positional("source", v.source, "Folder or camera to import from.").required();
    app.positional("files", v.files, "Photos to import; all when none are given.");
}

void declareRemote(quen_3_1::App& remote, RemoteAdd& add, RemoteRemove& remove) {
    quen_3_1::App& adding = remote.command("add", "Add a place to share albums to.");
    adding.option("port,p", add.port, "Port of the place.").range(1U, 65535U);
    adding.option("chunk-size", add.chunkSize, "Bytes sent at a time.").range(4096ULL, 1073741824ULL);
    adding.option("timeout", add.timeout, "Seconds to wait for the place; no limit when not given.");
    adding.positional("name", add.name, "Name of the place.").required();
    adding.positional("url", add.url, "Address of the place.").required();
    adding.positional("albums", add.albums, "Albums to share there.");

    quen_3_1::App& removing = remote.command("remove", "Remove a place.");
    removing.option("force,f", remove.force, "Remove it even while albums are shared there.");
    removing.positional("name", remove.name, "Name of the place.").required();
}

std::string shown(bool value) { return value ? "true" : "false"; }
std::string shown(int value) { return std::to_string(value); }
std::string shown(unsigned value) { return std::to_string(value); }
std::string shown(unsigned long long value) { return std::to_string(value); }
std::string shown(double value) {
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%g", value);
    return buffer;
}
std::string shown(std::string const& value) { return "'" + value + "'"; }
template <class T>
std::string shown(std::optional<T> const& value) {
    return value ? shown(*value) : "(not given)";
}
template <class T>
std::string shown(std::vector<T> const& values) {
    std::string text = "[";
    for (T const& value : values) {
        text += (text.size() > 1 ? ", " : "") + shown(value);
    }
    return text + "]";
}

template <class T>
void show(char const* name, T const& value) {
    std::printf("  %-10s %s\n", name, shown(value).c_str());
}

char const* sourceName(quen_3_1::Source source) {
    switch (source) {
        case quen_3_1::Source::Environment:
            return "environment";
        case quen_3_1::Source::File:
            return "file";
        case quen_3_1::Source::CommandLine:
            break;
    }
    return "command line";
}

void printReceived(quen_3_1::Result const& result) {
    std::string path;
    for (std::string const& name : result.command()) {
        path += (path.empty() ? "" : " ") + name;
    }
    std::printf("Command: %s\n", path.empty() ? "(none)" : path.c_str());
    std::printf("Received, in command-line order:\n");
    for (quen_3_1::Entry const& entry : result.entries()) {
        std::printf("  %5d  %-10s %-12s '%s'\n", entry.sequence, entry.name.c_str(), sourceName(entry.source),
                    entry.text.c_str());
    }
    if (!result.rest().empty()) {
        std::printf("After --: %s\n", shown(result.rest()).c_str());
    }
}

void printVariables(std::vector<std::string> const& command, Variables const& v) {
    std::printf("Program options:\n");
    show("verbose", v.global.verbose);
    show("colour", v.global.colour);
    show("jobs", v.global.jobs);
    show("shelf", v.global.shelf);
    if (command == std::vector<std::string>{"import"}) {
        Import const& i = v.import;
        std::printf("import:\n");
        show("album", i.album);
        show("tag", i.tags);
        show("quality", i.quality);
        show("max-size", i.maxSize);
        show("rename", i.rename);
        show("move", i.move);
        show("link", i.link);
        show("since", i.since);
        show("until", i.until);
        show("all-dates", i.allDates);
        show("source", i.source);
        show("files", i.files);
    } else if (command == std::vector<std::string>{"remote", "add"}) {
        RemoteAdd const& a = v.remoteAdd;
        std::printf("remote add:\n");
        show("port", a.port);
        show("chunk-size", a.chunkSize);
        show("timeout", a.timeout);
        show("name", a.name);
        show("url", a.url);
        show("albums", a.albums);
    } else if (command == std::vector<std::string>{"remote", "remove"}) {
        std::printf("remote remove:\n");
        show("force", v.remoteRemove.force);
        show("name", v.remoteRemove.name);
    }
}

}  // namespace

int main(int argc, char** argv) {
    Variables v;
    quen_3_1::App app("quen-app-demo", "Keep photos in albums on a shelf and share them.");
    declareGlobal(app, v.global);
    declareImport(app.command("import", "Copy photos into an album."), v.import);
    declareRemote(app.command("remote", "Manage the places albums are shared to."), v.remoteAdd, v.remoteRemove);

    quen_3_1::Result const result = app.parse(argc, argv);
    if (result.done()) {
        return result.exit();
    }
    printReceived(result);
    printVariables(result.command(), v);
    return 0;
}
