// App: the host's entry point; declarations go to AppState, parse to parseProgram.
#include "quen_3_1/app.h"

#include <exception>
#include <string_view>
#include <utility>

#include "app/app_state.h"
#include "app/bound_option.h"
#include "app/instance_types.h"
#include "app/level_parse.h"
#include "app/messages.h"
#include "app/result_data.h"

namespace quen_3_1 {

namespace app_detail {

namespace {

Arguments argumentsOf(int argc, char const* const* argv) {
    Arguments args;
    args.reserve(argv == nullptr || argc < 1 ? 0 : static_cast<std::size_t>(argc - 1));
    for (int i = 1; argv != nullptr && i < argc; ++i) {
        args.push_back(argv[i] == nullptr ? "" : argv[i]);
    }
    return args;
}

// A null help is taken as empty.
std::string_view textOf(char const* help) { return help == nullptr ? std::string_view() : std::string_view(help); }

// The binding and the declaration made in the App's arena; the help is copied there too.
// The names move once, into the declaration: each move of a short text copies it again.
template <class T>
Option<T>& declareBound(AppState& app, std::string&& names, T& target, std::string_view help, bool positional) {
    auto bound = app.m_arena.make<BoundOption<T>>(target);
    Option<T>& handle = bound->handle();
    app.add(std::move(names), help, positional, OptionHandle(bound.release()));
    return handle;
}

}  // namespace

}  // namespace app_detail

App::App(std::string program, std::string about)
    : m_state(std::make_unique<app_detail::AppState>(std::move(program), std::move(about))) {}

App::~App() = default;

App& App::version(std::string text) {
    m_state->m_version = std::move(text);
    return *this;
}

App& App::epilog(std::string text) {
    m_state->m_epilog = std::move(text);
    return *this;
}

App& App::envPrefix(std::string prefix) {
    m_state->m_envPrefix = std::move(prefix);
    return *this;
}

template <class T, class>
Option<T>& App::option(std::string names, T& target, std::string help) {
    return app_detail::declareBound(*m_state, std::move(names), target, help, false);
}

template <class T, class>
Option<T>& App::option(std::string names, T& target, char const* help) {
    return app_detail::declareBound(*m_state, std::move(names), target, app_detail::textOf(help), false);
}

template <class T, class>
Option<T>& App::positional(std::string name, T& target, std::string help) {
    return app_detail::declareBound(*m_state, std::move(name), target, help, true);
}

template <class T, class>
Option<T>& App::positional(std::string name, T& target, char const* help) {
    return app_detail::declareBound(*m_state, std::move(name), target, app_detail::textOf(help), true);
}

App& App::optionsFile(std::string names, std::string help) {
    m_state->addFile(std::move(names), std::move(help));
    return *this;
}

App& App::command(std::string name, std::string about) {
    return m_state->addCommand(std::move(name), std::move(about));
}

App& App::exclusive(std::vector<std::string> names, bool required) {
    m_state->addExclusive(std::move(names), required);
    return *this;
}

Result App::parse(int argc, char const* const* argv) {
    auto data = std::make_shared<app_detail::ResultData>();
    try {
        app_detail::parseProgram(*m_state, app_detail::argumentsOf(argc, argv), *data);
    } catch (std::exception const& caught) {
        data = std::make_shared<app_detail::ResultData>();
        data->m_done = true;
        data->m_exitCode = app_detail::kDeclarationExitCode;
        data->m_message = app_detail::text::errorLine(m_state->m_program, caught.what());
    }
    return Result(std::move(data));
}

// The macro argument is a type used as a template argument: it can not be parenthesized.
// NOLINTBEGIN(bugprone-macro-parentheses)
#define QUEN_APP_INSTANTIATE(T)                                                                                        \
    template Option<T>& App::option<T>(std::string, T&, std::string);                                                  \
    template Option<T>& App::option<T>(std::string, T&, char const*);                                                  \
    template Option<T>& App::positional<T>(std::string, T&, std::string);                                              \
    template Option<T>& App::positional<T>(std::string, T&, char const*);                                              \
    template Option<std::optional<T>>& App::option<std::optional<T>>(std::string, std::optional<T>&, std::string);     \
    template Option<std::optional<T>>& App::option<std::optional<T>>(std::string, std::optional<T>&, char const*);     \
    template Option<std::optional<T>>& App::positional<std::optional<T>>(std::string, std::optional<T>&, std::string); \
    template Option<std::optional<T>>& App::positional<std::optional<T>>(std::string, std::optional<T>&, char const*); \
    template Option<std::vector<T>>& App::option<std::vector<T>>(std::string, std::vector<T>&, std::string);           \
    template Option<std::vector<T>>& App::option<std::vector<T>>(std::string, std::vector<T>&, char const*);           \
    template Option<std::vector<T>>& App::positional<std::vector<T>>(std::string, std::vector<T>&, std::string);       \
    template Option<std::vector<T>>& App::positional<std::vector<T>>(std::string, std::vector<T>&, char const*);
QUEN_APP_FOR_EACH_ELEMENT(QUEN_APP_INSTANTIATE)
#undef QUEN_APP_INSTANTIATE
// NOLINTEND(bugprone-macro-parentheses)

}  // namespace quen_3_1
