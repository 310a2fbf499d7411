#include "app/completion_tree.h"

#include <vector>

namespace quen_3_1::app_detail {

namespace {

// One command level: its path (" remote add"; empty for the program) and its words.
struct Level {
    std::string path;
    std::vector<std::string> words;
};

// Single quotes hold everything literally but a single quote, written '\''.
std::string quoted(std::string const& text) {
    std::string out = "'";
    for (char c : text) {
        out += c == '\'' ? std::string("'\\''") : std::string(1, c);
    }
    return out + "'";
}

// fish reads \' and \\ inside single quotes.
std::string fishQuoted(std::string const& text) {
    std::string out = "'";
    for (char c : text) {
        if (c == '\'' || c == '\\') {
            out += '\\';
        }
        out += c;
    }
    return out + "'";
}

// How a user writes the name: -j, --jobs.
std::string typed(std::string_view name) { return (name.size() == 1 ? "-" : "--") + std::string(name); }

std::vector<std::string> optionWords(AppState const& app, bool top) {
    std::vector<std::string> words;
    for (auto const& option : app.m_options) {
        if (option->positional() || option->m_hidden) {
            continue;
        }
        for (std::size_t i = 0; i < option->nameCount(); ++i) {
            std::string_view const name = option->nameAt(i);
            words.push_back(typed(name));
            if (option->kind() == tarvo2::vt_bool && name.size() > 1) {
                words.push_back("--no-" + std::string(name));
            }
        }
    }
    for (FileOption const& file : app.m_files) {
        for (std::string const& name : file.names) {
            words.push_back(typed(name));
        }
    }
    words.emplace_back(app.isTaken("help") ? "" : "--help");
    words.emplace_back(app.m_version.empty() || app.isTaken("version") ? "" : "--version");
    words.emplace_back(!top || app.isTaken("completion") ? "" : "--completion");
    return words;
}

void collectLevels(AppState const& app, std::string const& path, bool top, std::vector<Level>& levels) {
    Level level{path, optionWords(app, top)};
    for (auto const& command : app.m_commands) {
        level.words.push_back(AppState::of(*command).m_name);
    }
    levels.push_back(level);
    for (auto const& command : app.m_commands) {
        AppState const& child = AppState::of(*command);
        collectLevels(child, path + " " + child.m_name, false, levels);
    }
}

std::string functionName(std::string const& program) {
    std::string name = "_quen_app_";
    for (char c : program) {
        bool const plain = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
        name += plain ? c : '_';
    }
    return name;
}

std::string wordList(Level const& level, std::string (*quote)(std::string const&)) {
    std::string list;
    for (std::string const& word : level.words) {
        if (!word.empty()) {
            list += " " + quote(word);
        }
    }
    return list;
}

std::string bashScript(std::string const& program, std::vector<Level> const& levels) {
    std::string const function = functionName(program);
    std::string script = function + "() {\n    local cur=\"${COMP_WORDS[COMP_CWORD]}\" level='' word i\n";
    script += "    for ((i = 1; i < COMP_CWORD; i++)); do\n        word=\"${COMP_WORDS[i]}\"\n";
    script += "        case \"$level $word\" in\n";
    for (Level const& level : levels) {
        if (!level.path.empty()) {
            script += "        " + quoted(level.path) + ") level=" + quoted(level.path) + " ;;\n";
        }
    }
    script += "        esac\n    done\n    local words=()\n    case \"$level\" in\n";
    for (Level const& level : levels) {
        script += "    " + quoted(level.path) + ") words=(" + wordList(level, quoted) + ") ;;\n";
    }
    script += "    esac\n    COMPREPLY=()\n    for word in \"${words[@]}\"; do\n";
    script += "        [[ \"$word\" == \"$cur\"* ]] && COMPREPLY+=(\"$word\")\n    done\n    return 0\n}\n";
    return script + "complete -F " + function + " " + quoted(program) + "\n";
}

std::string zshScript(std::string const& program, std::vector<Level> const& levels) {
    std::string const function = functionName(program);
    std::string script = function + "() {\n    local level='' i\n    for ((i = 2; i < CURRENT; i++)); do\n";
    script += "        case \"$level ${words[i]}\" in\n";
    for (Level const& level : levels) {
        if (!level.path.empty()) {
            script += "        " + quoted(level.path) + ") level=" + quoted(level.path) + " ;;\n";
        }
    }
    script += "        esac\n    done\n    local -a candidates\n    case \"$level\" in\n";
    for (Level const& level : levels) {
        script += "    " + quoted(level.path) + ") candidates=(" + wordList(level, quoted) + ") ;;\n";
    }
    script += "    esac\n    compadd -- \"${candidates[@]}\"\n}\n";
    return script + "compdef " + function + " " + quoted(program) + "\n";
}

std::string fishScript(std::string const& program, std::vector<Level> const& levels) {
    std::string const function = functionName(program);
    std::string script = "function " + function + "\n    set -l level ''\n    set -l first 1\n";
    script += "    for word in (commandline -opc)\n        if test $first = 1\n            set first 0\n";
    script += "            continue\n        end\n";
    for (Level const& level : levels) {
        if (!level.path.empty()) {
            script += "        if test \"$level $word\" = " + fishQuoted(level.path) + "\n            set level " +
                      fishQuoted(level.path) + "\n            continue\n        end\n";
        }
    }
    script += "    end\n";
    for (Level const& level : levels) {
        script += "    if test \"$level\" = " + fishQuoted(level.path) + "\n        printf '%s\\n'" +
                  wordList(level, fishQuoted) + "\n    end\n";
    }
    script += "end\n";
    return script + "complete -c " + fishQuoted(program) + " -f -a '(" + function + ")'\n";
}

}  // namespace

std::string completionScript(AppState const& root, std::string const& shell) {
    std::vector<Level> levels;
    collectLevels(root, "", true, levels);
    if (shell == "bash") {
        return bashScript(root.m_program, levels);
    }
    if (shell == "zsh") {
        return zshScript(root.m_program, levels);
    }
    return shell == "fish" ? fishScript(root.m_program, levels) : std::string();
}

}  // namespace quen_3_1::app_detail
