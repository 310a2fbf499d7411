// The library's parser for one App level: the App's options registered
// through quen.h, the layer's own options (help, version, completion, the
// plain-argument collector), and one parse per source.
#ifndef QUEN_3_1_SRC_APP_CORE_SESSION_H
#define QUEN_3_1_SRC_APP_CORE_SESSION_H

#include <cstdint>
#include <string>
#include <vector>

#include "app/app_state.h"
#include "app/slot_layout.h"
#include "app/value_gate.h"

namespace quen_3_1::app_detail {

// Arguments to parse (no program name): texts that outlive the parse, not copied.
using Arguments = std::vector<char const*>;

class CoreSession {
public:
    // `top`: the App is the program itself (it gets --completion). `showDefaults`: the options
    // carry their variables' values as defaults, which only the help text shows.
    CoreSession(AppState const& app, bool top, bool showDefaults = false);
    CoreSession(CoreSession const&) = delete;
    CoreSession& operator=(CoreSession const&) = delete;
    ~CoreSession();

    // Parses `args` (no program name) as coming from `source`; `rest` gets what
    // follows "--". Returns 0 or the library's code with `error` set.
    int parse(Arguments const& args, Source source, SourceValues& into, std::vector<std::string>& rest,
              std::string& error);
    // Where parse records each option's values.
    SlotLayout const& layout() const { return m_layout; }

    // The typed names nearest to the unknown or ambiguous `argument`, best first.
    std::vector<std::string> suggestions(std::string const& argument);
    // The option argument that `error` (from parse) is about, for suggestions; empty for other errors.
    std::string failedArgument(std::string const& error) const;
    // The library's help text of the options of `app`, with their defaults.
    static std::string description(AppState const& app, bool top);

    // Numbers recorded from now on are greater than `sequence`.
    void startAfter(std::int32_t sequence) { m_gate.startAfter(sequence); }
    // The greatest number recorded so far.
    std::int32_t lastSequence() const { return m_gate.lastSequence(); }

private:
    // The layer's own options, as bits: each is handed to the library only when needed.
    using Builtins = unsigned;

    // A new parser with every option of the App and the layer's options in `builtins`.
    void build(Builtins builtins);
    void registerOption(OptionState const& option);
    void registerBuiltins(Builtins builtins);
    // The layer's options that an argument of `args` may name (or, for the collector, be).
    Builtins named(Arguments const& args) const;
    // The parser that `args` need: built again, with more of the layer's options, when an
    // argument may name one it lacks.
    void fit(Arguments const& args);

    AppState const& m_app;
    bool m_showDefaults;
    // The layer's options this App has, and those the current parser has.
    Builtins m_available = 0;
    Builtins m_built = 0;
    // Bit c - 'a' set when a name of the layer's options this App has begins with letter c.
    std::uint32_t m_initials = 0;
    IParser* m_parser = nullptr;
    BuiltinNames m_builtins;
    SlotLayout m_layout;
    ValueGate m_gate;
    // The program name the library skips: it is never read.
    char m_programName[1] = {};
};

}  // namespace quen_3_1::app_detail

#endif  // QUEN_3_1_SRC_APP_CORE_SESSION_H
