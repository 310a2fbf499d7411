// quen_3_1 application layer: options bound to variables of their own C++
// type, subcommands, help, validation and several sources of values, built on
// the public interfaces of quen.h and extras.h only.
//
// The layer is compiled into the library: a host's translation unit sees only
// declarations, and every template below is instantiated in the library for
// the listed types, so including this header stays cheap.
#ifndef QUEN_3_1_APP_H
#define QUEN_3_1_APP_H

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <type_traits>
#include <vector>

#include "quen.h"

namespace quen_3_1 {

template <class T>
class Option;
class Result;

namespace app_detail {

class AppState;
class OptionState;
class ResultData;

// The type that one value of T has: T itself, or what a std::optional or
// std::vector holds.
template <class T>
struct ElementOf {
    using type = T;
};
template <class T>
struct ElementOf<std::optional<T>> {
    using type = T;
};
template <class T>
struct ElementOf<std::vector<T>> {
    using type = T;
};

template <class T>
constexpr bool isNumber = std::is_arithmetic_v<T> && !std::is_same_v<T, bool>;

template <class E>
constexpr bool isElement =
    std::is_same_v<E, bool> || std::is_same_v<E, int> || std::is_same_v<E, unsigned> || std::is_same_v<E, long long> ||
    std::is_same_v<E, unsigned long long> || std::is_same_v<E, double> || std::is_same_v<E, std::string>;

// The types a variable may have: an element, or a std::optional or std::vector of one.
template <class T>
using IfBindable = std::enable_if_t<isElement<typename ElementOf<T>::type>>;

}  // namespace app_detail

// A program's (or a subcommand's) options and arguments. Not copyable; the
// App must outlive every Option it returned and the variables bound to it.
class QUEN_API App {
public:
    explicit App(std::string program, std::string about = {});
    App(App const&) = delete;
    App& operator=(App const&) = delete;
    ~App();

    // Adds --version: prints "PROGRAM TEXT\n", exit code 0.
    App& version(std::string text);
    // Printed at the end of --help.
    App& epilog(std::string text);
    // Every visible option of this App (not its commands) also read from PREFIX_NAME: the
    // first name in upper case, '-' as '_'; "QSYNC" and "QSYNC_" both give QSYNC_LOG_FILE.
    // A flag's variable holds 1, 0, true, false, yes, no, on or off.
    App& envPrefix(std::string prefix);

    // An option bound to a variable; its value before parsing is the default.
    template <class T, class = app_detail::IfBindable<T>>
    Option<T>& option(std::string names, T& target, std::string help);
    // The same; a help text written in place (a literal) is copied without a std::string
    // of its own. Null is taken as empty.
    template <class T, class = app_detail::IfBindable<T>>
    Option<T>& option(std::string names, T& target, char const* help);

    // A positional argument; filled in declaration order, a std::vector takes the rest.
    template <class T, class = app_detail::IfBindable<T>>
    Option<T>& positional(std::string name, T& target, std::string help);
    template <class T, class = app_detail::IfBindable<T>>
    Option<T>& positional(std::string name, T& target, char const* help);

    // An option whose values are option-text files, read before the command line.
    App& optionsFile(std::string names, std::string help);

    // A subcommand with options of its own; it lives as long as this App.
    App& command(std::string name, std::string about);

    // At most one (required: exactly one) of the named options may be given.
    App& exclusive(std::vector<std::string> names, bool required = false);

    // Parses argv[1..argc-1]. Never throws for anything a user types, never
    // prints, never exits; the bound variables are set only when it succeeds.
    // A declaration mistake (a malformed or repeated name, a positional after a
    // std::vector positional, a relation naming no option) is reported here,
    // with exit code 70. Apps on different threads may parse at once; one App
    // is used by one thread at a time (environment variables are read, never set).
    Result parse(int argc, char const* const* argv);

private:
    friend class app_detail::AppState;
    std::unique_ptr<app_detail::AppState> m_state;
};

// Refines an option declared by App::option or App::positional. E is T, or
// what T holds when it is a std::optional or a std::vector.
template <class T>
class QUEN_API Option {
public:
    using Element = typename app_detail::ElementOf<T>::type;

    // Parse fails when the option is not given.
    Option& required();
    // Only these values are accepted; a text value may be abbreviated.
    Option& allow(std::vector<Element> values);
    // Numbers only: both ends included.
    template <class U = Element, class = std::enable_if_t<app_detail::isNumber<U>>>
    Option& range(U lowest, U highest) {
        return setRange(lowest, highest);
    }
    // A non-empty return is the error text for that value.
    Option& check(std::function<std::string(Element const&)> test);
    // Read from this variable when not on the command line.
    Option& env(std::string variable);
    // Given => `other` must be given too.
    Option& needs(std::string other);
    // Given => `other` must not be given.
    Option& excludes(std::string other);
    // Values are split at `separator` (default: never).
    Option& split(char separator);
    // Not in --help, not completed.
    Option& hidden();

    // Made by App only.
    explicit Option(app_detail::OptionState* state);

private:
    Option& setRange(Element lowest, Element highest);
    app_detail::OptionState* m_state;
};

// Where a value came from.
enum class Source : std::uint8_t { CommandLine, Environment, File };

// One value of one option, as Result::entries() lists them.
struct Entry {
    std::string name;       // the option's first name
    std::string text;       // the value text (an abbreviated allowed value in full; "1"/"0" for a flag)
    std::int32_t sequence;  // the library's sequence number: command-line order
    Source source;
};

// What App::parse returns: a snapshot of plain data, cheap to copy, safe to
// read from any number of threads and loops at once.
class QUEN_API Result {
public:
    // True after --help, --version, --completion or an error: the program should stop.
    bool done() const;
    // 0, 2 for every error a user can cause, 70 for a bad declaration in the program.
    int exitCode() const;
    // The help, version or completion text, or the error ("PROGRAM: error: ...").
    std::string const& message() const;
    // Prints message() (stdout for help/version, stderr for errors), returns exitCode().
    int exit() const;
    // The chosen subcommand path, e.g. {"remote", "add"}.
    std::vector<std::string> const& command() const;
    // Given on the command line, in a file or in the environment (by any of its names).
    bool given(std::string const& name) const;
    // How many times given.
    std::size_t count(std::string const& name) const;
    // The arguments after "--" that no positional took.
    std::vector<std::string> const& rest() const;

    // Every value of every option and positional that took effect (the command line's, else the
    // environment's, else the files'), by sequence number. Owned by the result; safe from any thread.
    std::vector<Entry> const& entries() const;
    // The entries of one option (by any of its names), in order: a copy the caller owns.
    // Nothing when no option has that name. Safe from any thread.
    std::vector<Entry> entries(std::string const& name) const;

    // Made by App::parse only.
    explicit Result(std::shared_ptr<app_detail::ResultData const> data);

private:
    std::shared_ptr<app_detail::ResultData const> m_data;
};

// The library holds the instances for every supported type; a host
// instantiates none of them.
// The macro argument is a type used as a template argument: it can not be parenthesized.
// NOLINTBEGIN(bugprone-macro-parentheses)
#define QUEN_APP_EXTERN_TYPE(T)                                                                                     \
    extern template class Option<T>;                                                                                \
    extern template Option<T>& App::option<T>(std::string, T&, std::string);                                        \
    extern template Option<T>& App::option<T>(std::string, T&, char const*);                                        \
    extern template Option<T>& App::positional<T>(std::string, T&, std::string);                                    \
    extern template Option<T>& App::positional<T>(std::string, T&, char const*);                                    \
    extern template class Option<std::optional<T>>;                                                                 \
    extern template Option<std::optional<T>>& App::option<std::optional<T>>(std::string, std::optional<T>&,         \
                                                                            std::string);                           \
    extern template Option<std::optional<T>>& App::option<std::optional<T>>(std::string, std::optional<T>&,         \
                                                                            char const*);                           \
    extern template Option<std::optional<T>>& App::positional<std::optional<T>>(std::string, std::optional<T>&,     \
                                                                                std::string);                       \
    extern template Option<std::optional<T>>& App::positional<std::optional<T>>(std::string, std::optional<T>&,     \
                                                                                char const*);                       \
    extern template class Option<std::vector<T>>;                                                                   \
    extern template Option<std::vector<T>>& App::option<std::vector<T>>(std::string, std::vector<T>&, std::string); \
    extern template Option<std::vector<T>>& App::option<std::vector<T>>(std::string, std::vector<T>&, char const*); \
    extern template Option<std::vector<T>>& App::positional<std::vector<T>>(std::string, std::vector<T>&,           \
                                                                            std::string);                           \
    extern template Option<std::vector<T>>& App::positional<std::vector<T>>(std::string, std::vector<T>&, char const*);
QUEN_APP_EXTERN_TYPE(bool)
QUEN_APP_EXTERN_TYPE(int)
QUEN_APP_EXTERN_TYPE(unsigned)
QUEN_APP_EXTERN_TYPE(long long)
QUEN_APP_EXTERN_TYPE(unsigned long long)
QUEN_APP_EXTERN_TYPE(double)
QUEN_APP_EXTERN_TYPE(std::string)
#undef QUEN_APP_EXTERN_TYPE
// NOLINTEND(bugprone-macro-parentheses)

}  // namespace quen_3_1

#endif  // QUEN_3_1_APP_H
