// Completion scripts for bash, zsh and fish. Each script carries the visible
// option names and values, and its own copy of the recognizer's part-wise
// scoring, so that --l-f expands to --log-file without calling the program
// back: completion then costs no start of the program and no side effects.
#include "extras/completion_script.h"

#include <cstdio>
#include <exception>
#include <utility>

#include "extras/visible_names.h"
#include "frontend/basic_parser.h"
#include "quen_3_1/extras.h"

namespace quen_3_1 {

namespace {

// Placeholders of the templates below: @ID@ (function name part),
// @PROGRAM@ (the program, quoted for the shell) and @DATA@ (the names,
// owners, kinds, values and positional flag, as the shell's variables).
char const kBashTemplate[] = R"SCRIPT(# Completion of @PROGRAM@ options: names, --no- forms, allowed values, files,
# and abbreviations of every part of a name (--l-f gives --log-file).

# Indices in `names` of the best-scoring names for the typed name $1: two
# points for an equal part, one for a part it begins, none unless every part
# matches and both have as many parts. Sets `best`, declared by the caller.
_quen_best_@ID@() {
    local rest=$1 score top=0 i j
    local -a typed=() parts=()
    best=()
    while [[ $rest == *-* ]]; do
        typed+=("${rest%%-*}")
        rest=${rest#*-}
    done
    typed+=("$rest")
    for i in "${!names[@]}"; do
        parts=()
        rest=${names[i]}
        while [[ $rest == *-* ]]; do
            parts+=("${rest%%-*}")
            rest=${rest#*-}
        done
        parts+=("$rest")
        ((${#parts[@]} == ${#typed[@]})) || continue
        score=0
        for j in "${!typed[@]}"; do
            if [[ ${parts[j]} == "${typed[j]}" ]]; then
                ((score += 2))
            elif [[ ${parts[j]} == "${typed[j]}"* ]]; then
                ((score += 1))
            else
                score=0
                break
            fi
        done
        ((score > 0)) || continue
        if ((score > top)); then
            top=$score
            best=("$i")
        elif ((score == top)); then
            best+=("$i")
        fi
    done
}

# File names that begin with $2, each behind the text $1.
_quen_files_@ID@() {
    local file
    compopt -o filenames 2>/dev/null
    while IFS= read -r file; do
        COMPREPLY+=("$1$file")
    done < <(compgen -f -- "$2")
}

_quen_complete_@ID@() {
@DATA@
    local cur=${COMP_WORDS[COMP_CWORD]} cword=$COMP_CWORD
    local word option='' value='' lead='' next='' kind='' form=-- i ref quoted
    local -a best=()
    COMPREPLY=()
    # After the terminator every word is a plain argument.
    for ((i = 1; i < cword; i++)); do
        if [[ ${COMP_WORDS[i]} == -- ]]; then
            _quen_files_@ID@ '' "$cur"
            return 0
        fi
    done
    # A value: readline splits --name=value into three words when '=' breaks
    # words (then only the value is replaced), otherwise it is one word.
    if ((cword >= 3)) && [[ ${COMP_WORDS[cword-1]} == = && ${COMP_WORDS[cword-2]} == -?* ]]; then
        option=${COMP_WORDS[cword-2]} value=$cur
    elif ((cword >= 2)) && [[ $cur == = && ${COMP_WORDS[cword-1]} == -?* ]]; then
        option=${COMP_WORDS[cword-1]}
    elif [[ $cur == -?*=* ]]; then
        option=${cur%%=*} value=${cur#*=} lead=${cur%%=*}=
    elif ((cword >= 2)) && [[ ${COMP_WORDS[cword-1]} == -?* && ${COMP_WORDS[cword-1]} != *=* ]]; then
        option=${COMP_WORDS[cword-1]} value=$cur next=1
    fi
    if [[ -n $option ]]; then
        if [[ $option == --?* ]]; then
            word=${option:2}
        else
            word=${option:1}
        fi
        _quen_best_@ID@ "$word"
        if ((${#best[@]} == 1)); then
            kind=${kinds[owners[best[0]]]}
        fi
        if [[ -z $next || $kind == [vfx] ]]; then
            if [[ $kind == v ]]; then
                # Readline inserts replies as they stand: blanks and quotes
                # in a value are escaped here.
                ref="values_${owners[best[0]]}[@]"
                for word in "${!ref}"; do
                    if [[ $word == "$value"* ]]; then
                        printf -v word '%q' "$word"
                        COMPREPLY+=("$lead$word")
                    fi
                done
            elif [[ $kind == f ]]; then
                _quen_files_@ID@ "$lead" "$value"
            fi
            return 0
        fi
    fi
    if [[ $cur != -* ]]; then
        if ((positional)); then
            _quen_files_@ID@ '' "$cur"
            return 0
        fi
        if [[ -n $cur ]]; then
            return 0
        fi
    fi
    # A name: every one that begins with the typed text, else the best
    # abbreviation matches, as the parser would rank them.
    word=''
    if [[ $cur == --?* ]]; then
        word=${cur:2}
    elif [[ $cur == -?* && $cur != -- ]]; then
        form=- word=${cur:1}
    fi
    # Names are escaped as values are: readline inserts replies as they stand.
    for i in "${!names[@]}"; do
        if [[ ${names[i]} == "$word"* ]]; then
            printf -v quoted '%q' "$form${names[i]}"
            COMPREPLY+=("$quoted")
        fi
    done
    if ((${#COMPREPLY[@]} == 0)); then
        _quen_best_@ID@ "$word"
        for i in "${best[@]}"; do
            printf -v quoted '%q' "$form${names[i]}"
            COMPREPLY+=("$quoted")
        done
    fi
    return 0
}

complete -F _quen_complete_@ID@ -- @PROGRAM@
)SCRIPT";

char const kZshTemplate[] = R"SCRIPT(# Completion of @PROGRAM@ options: names, --no- forms, allowed values, files,
# and abbreviations of every part of a name (--l-f gives --log-file).
# Load it after compinit.

# Indices in `names` of the best-scoring names for the typed name $1: two
# points for an equal part, one for a part it begins, none unless every part
# matches and both have as many parts. Sets `best`, declared by the caller.
_quen_best_@ID@() {
    emulate -L zsh
    local rest=$1 score top=0 i j
    local -a typed parts
    best=()
    while [[ $rest == *-* ]]; do
        typed+=("${rest%%-*}")
        rest=${rest#*-}
    done
    typed+=("$rest")
    for (( i = 1; i <= ${#names}; i++ )); do
        parts=()
        rest=${names[i]}
        while [[ $rest == *-* ]]; do
            parts+=("${rest%%-*}")
            rest=${rest#*-}
        done
        parts+=("$rest")
        (( ${#parts} == ${#typed} )) || continue
        score=0
        for (( j = 1; j <= ${#typed}; j++ )); do
            if [[ ${parts[j]} == "${typed[j]}" ]]; then
                (( score += 2 ))
            elif [[ ${parts[j]} == "${typed[j]}"* ]]; then
                (( score += 1 ))
            else
                score=0
                break
            fi
        done
        (( score > 0 )) || continue
        if (( score > top )); then
            top=$score
            best=($i)
        elif (( score == top )); then
            best+=($i)
        fi
    done
}

# The candidates for the word under the cursor, into `reply`, and how to
# offer them, into `REPLY`: "words" are matched against the word, "expand"
# replaces it, "files" asks for file names (behind the text `lead`).
_quen_candidates_@ID@() {
    emulate -L zsh
@DATA@
    local cur=${words[CURRENT]} word option='' value='' next='' kind='' form=-- i ref
    local -a best
    reply=() REPLY=words lead=''
    # After the terminator every word is a plain argument.
    for (( i = 2; i < CURRENT; i++ )); do
        if [[ ${words[i]} == -- ]]; then
            REPLY=files
            return 0
        fi
    done
    if [[ $cur == -?*=* ]]; then
        option=${cur%%=*} value=${cur#*=} lead=${cur%%=*}=
    elif (( CURRENT > 2 )) && [[ ${words[CURRENT-1]} == -?* && ${words[CURRENT-1]} != *=* ]]; then
        option=${words[CURRENT-1]} value=$cur next=1
    fi
    if [[ -n $option ]]; then
        if [[ $option == --?* ]]; then
            word=${option:2}
        else
            word=${option:1}
        fi
        _quen_best_@ID@ "$word"
        if (( ${#best} == 1 )); then
            kind=${kinds[owners[best[1]]]}
        fi
        if [[ -z $next || $kind == [vfx] ]]; then
            if [[ $kind == v ]]; then
                ref=values_${owners[best[1]]}
                for word in "${(@P)ref}"; do
                    if [[ $word == "$value"* ]]; then
                        reply+=("$lead$word")
                    fi
                done
            elif [[ $kind == f ]]; then
                REPLY=files
            fi
            return 0
        fi
    fi
    if [[ $cur != -* ]]; then
        if (( positional )); then
            REPLY=files
            return 0
        fi
        if [[ -n $cur ]]; then
            return 0
        fi
    fi
    # A name: every one that begins with the typed text, else the best
    # abbreviation matches, as the parser would rank them.
    word=''
    if [[ $cur == --?* ]]; then
        word=${cur:2}
    elif [[ $cur == -?* && $cur != -- ]]; then
        form=- word=${cur:1}
    fi
    for (( i = 1; i <= ${#names}; i++ )); do
        if [[ ${names[i]} == "$word"* ]]; then
            reply+=("$form${names[i]}")
        fi
    done
    if (( ${#reply} == 0 )); then
        _quen_best_@ID@ "$word"
        for i in $best; do
            reply+=("$form${names[i]}")
        done
        REPLY=expand
    fi
    return 0
}

_quen_complete_@ID@() {
    emulate -L zsh
    local -a reply
    local REPLY lead
    _quen_candidates_@ID@
    case $REPLY in
    (files)
        if [[ -n $lead ]]; then
            compset -P 1 '*='
        fi
        _files
        ;;
    (expand)
        compadd -U -- "${reply[@]}"
        ;;
    (*)
        compadd -- "${reply[@]}"
        ;;
    esac
}

compdef _quen_complete_@ID@ @PROGRAM@
)SCRIPT";

char const kFishTemplate[] = R"SCRIPT(# Completion of @PROGRAM@ options: names, --no- forms, allowed values, files,
# and abbreviations of every part of a name (--l-f gives --log-file).

# Indices among the names $argv[2..] of the best-scoring ones for the typed
# name $argv[1]: two points for an equal part, one for a part it begins, none
# unless every part matches and both have as many parts.
function _quen_best_@ID@
    set -l typed (string split -- - $argv[1])
    set -l top 0
    set -l best
    set -l index 0
    for name in $argv[2..-1]
        set index (math $index + 1)
        set -l parts (string split -- - $name)
        test (count $parts) -eq (count $typed); or continue
        set -l score 0
        for j in (seq (count $typed))
            set -l length (string length -- $typed[$j])
            if test "$parts[$j]" = "$typed[$j]"
                set score (math $score + 2)
            else if test $length -eq 0; or test (string sub -l $length -- $parts[$j]) = "$typed[$j]"
                set score (math $score + 1)
            else
                set score 0
                break
            end
        end
        test $score -gt 0; or continue
        if test $score -gt $top
            set top $score
            set best $index
        else if test $score -eq $top
            set -a best $index
        end
    end
    if set -q best[1]
        printf '%s\n' $best
    end
end

# File names that begin with $argv[2], each behind the text $argv[1].
function _quen_files_@ID@
    for file in (__fish_complete_path $argv[2])
        printf '%s\n' "$argv[1]$file"
    end
end

function _quen_complete_@ID@
@DATA@
    set -l words (commandline -opc)
    set -l cur (commandline -ct)
    set -q cur[1]; or set cur ''
    set -l option
    set -l value
    set -l lead
    set -l next
    set -l kind
    set -l form --
    set -l word
    # After the terminator every word is a plain argument.
    if contains -- -- $words[2..-1]
        _quen_files_@ID@ '' "$cur"
        return 0
    end
    if string match -q -- '-?*=*' "$cur"
        set option (string split -m 1 -- = "$cur")[1]
        set value (string split -m 1 -- = "$cur")[2]
        set lead $option=
    else if test (count $words) -ge 2; and string match -q -- '-?*' $words[-1]; and not string match -q -- '*=*' $words[-1]
        set option $words[-1]
        set value "$cur"
        set next 1
    end
    if test -n "$option"
        if string match -q -- '--?*' "$option"
            set word (string sub -s 3 -- "$option")
        else
            set word (string sub -s 2 -- "$option")
        end
        set -l best (_quen_best_@ID@ "$word" $names)
        if test (count $best) -eq 1
            set kind $kinds[$owners[$best[1]]]
        end
        if test -z "$next"; or contains -- "$kind" v f x
            if test "$kind" = v
                set -l ref values_$owners[$best[1]]
                for word in $$ref
                    if test (string sub -l (string length -- "$value") -- "$word") = "$value"
                        printf '%s\n' "$lead$word"
                    end
                end
            else if test "$kind" = f
                _quen_files_@ID@ "$lead" "$value"
            end
            return 0
        end
    end
    if not string match -q -- '-*' "$cur"
        if test $positional -eq 1
            _quen_files_@ID@ '' "$cur"
            return 0
        end
        if test -n "$cur"
            return 0
        end
    end
    # A name: every one that begins with the typed text, else the best
    # abbreviation matches, as the parser would rank them.
    set word ''
    if string match -q -- '--?*' "$cur"
        set word (string sub -s 3 -- "$cur")
    else if string match -q -- '-?*' "$cur"; and test "$cur" != --
        set form -
        set word (string sub -s 2 -- "$cur")
    end
    set -l found
    for name in $names
        if test (string sub -l (string length -- "$word") -- "$name") = "$word"
            set -a found "$form$name"
        end
    end
    if test (count $found) -eq 0
        for i in (_quen_best_@ID@ "$word" $names)
            set -a found "$form$names[$i]"
        end
    end
    if set -q found[1]
        printf '%s\n' $found
    end
end

complete -c @PROGRAM@ -f -k -a '(_quen_complete_@ID@)'
)SCRIPT";

// Single quotes for bash and zsh: a quote inside becomes '\''.
std::string posixQuote(std::string const& text) {
    std::string quoted = "'";
    for (char c : text) {
        quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    }
    return quoted + "'";
}

// Single quotes for fish, where only \\ and \' are escapes inside them.
std::string fishQuote(std::string const& text) {
    std::string quoted = "'";
    for (char c : text) {
        if (c == '\\' || c == '\'') {
            quoted += '\\';
        }
        quoted += c;
    }
    return quoted + "'";
}

std::string joinQuoted(std::vector<std::string> const& words, std::string (*quote)(std::string const&)) {
    std::string joined;
    for (std::string const& word : words) {
        joined += (joined.empty() ? "" : " ") + quote(word);
    }
    return joined;
}

// The model's data as local variables. Bash counts options from 0, zsh and
// fish from 1; each shell's indices follow its own arrays.
std::string renderData(CompletionModel const& model, std::string const& shell) {
    bool const fish = shell == "fish";
    std::size_t const base = shell == "bash" ? 0 : 1;
    std::string (*quote)(std::string const&) = fish ? fishQuote : posixQuote;
    std::string owners;
    for (std::size_t owner : model.owners) {
        owners += (owners.empty() ? "" : " ") + std::to_string(owner + base);
    }
    std::string kinds;
    for (CompletionModel::Option const& option : model.options) {
        kinds += (kinds.empty() ? "" : " ") + std::string(1, static_cast<char>(option.kind));
    }
    std::string data;
    auto variable = [&](std::string const& name, std::string const& list, bool array) {
        if (fish) {
            data += "    set -l " + name + (list.empty() ? "" : " " + list) + "\n";
        } else if (array) {
            data += "    local -a " + name + "=(" + list + ")\n";
        } else {
            data += "    local " + name + "=" + list + "\n";
        }
    };
    variable("names", joinQuoted(model.names, quote), true);
    variable("owners", owners, true);
    variable("kinds", kinds, true);
    for (std::size_t i = 0; i < model.options.size(); ++i) {
        if (model.options[i].kind == CompletionModel::Allowed) {
            variable("values_" + std::to_string(i + base), joinQuoted(model.options[i].values, quote), true);
        }
    }
    variable("positional", model.positional ? "1" : "0", false);
    return data;
}

// Fills the placeholders in one pass, so that a name or value that happens
// to look like a placeholder stays as it is.
std::string fill(std::string const& text, std::vector<std::pair<std::string, std::string>> const& fills) {
    std::string filled;
    std::size_t at = 0;
    while (at < text.size()) {
        bool replaced = false;
        for (auto const& entry : fills) {
            if (text.compare(at, entry.first.size(), entry.first) == 0) {
                filled += entry.second;
                at += entry.first.size();
                replaced = true;
                break;
            }
        }
        if (!replaced) {
            filled += text[at++];
        }
    }
    return filled;
}

CompletionModel::ValueKind valueKind(OptionDescription const& option) {
    switch (option.type()) {
        case tarvo2::vt_bool:
            return CompletionModel::Boolean;
        case tarvo2::vt_empty:
            return CompletionModel::NoValue;
        default:
            break;
    }
    if (!option.allowedValues().empty()) {
        return CompletionModel::Allowed;
    }
    switch (option.type()) {
        case tarvo2::vt_str:
        case tarvo2::vt_wstr:
        case tarvo2::vt_str_ref:
        case tarvo2::vt_wstr_ref:
            return CompletionModel::FileName;
        default:
            return CompletionModel::FreeValue;
    }
}

}  // namespace

CompletionModel makeCompletionModel(RegisteredOptionStorage const& storage) {
    CompletionModel model;
    std::size_t const none = storage.size();
    std::vector<std::size_t> modelIndex(storage.size(), none);
    for (VisibleName const& visible : visibleNames(storage)) {
        if (modelIndex[visible.option] == none) {
            OptionDescription const& option = storage.at(visible.option);
            CompletionModel::Option entry{valueKind(option), {}};
            if (entry.kind == CompletionModel::Allowed) {
                for (tarvo2::variant_t const& allowed : option.allowedValues()) {
                    std::string const text = option.toString(option.garbage(), allowed);
                    if (!text.empty() && text.find_first_of(std::string("\n\r\0", 3)) == std::string::npos) {
                        entry.values.push_back(text);
                    }
                }
            }
            modelIndex[visible.option] = model.options.size();
            model.options.push_back(entry);
        }
        model.names.push_back(visible.name);
        model.owners.push_back(modelIndex[visible.option]);
    }
    for (std::size_t i = 0; i < storage.size(); ++i) {
        model.positional = model.positional || storage.at(i).isPositional();
    }
    return model;
}

std::string completionFunctionId(std::string const& program) {
    std::string id;
    for (char c : program) {
        if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9')) {
            id += c;
        } else {
            char hex[4];
            std::snprintf(hex, sizeof hex, "_%02x", static_cast<unsigned>(static_cast<unsigned char>(c)));
            id += hex;
        }
    }
    return id;
}

std::string renderCompletionScript(CompletionModel const& model, std::string const& program, std::string const& shell) {
    char const* script = shell == "bash"   ? kBashTemplate
                         : shell == "zsh"  ? kZshTemplate
                         : shell == "fish" ? kFishTemplate
                                           : nullptr;
    if (script == nullptr || program.find_first_of("\n\r") != std::string::npos) {
        return std::string();
    }
    return fill(script, {{"@DATA@\n", renderData(model, shell)},
                         {"@ID@", completionFunctionId(program)},
                         {"@PROGRAM@", shell == "fish" ? fishQuote(program) : posixQuote(program)}});
}

char const* completionScript(IParser* parser, char const* program, char const* shell) {
    BasicParser* basic = dynamic_cast<BasicParser*>(parser);
    if (basic == nullptr || program == nullptr || *program == '\0' || shell == nullptr) {
        return nullptr;
    }
    try {
        std::string const script = renderCompletionScript(makeCompletionModel(basic->storage()), program, shell);
        return script.empty() ? nullptr : basic->keeper().keep(script);
    } catch (std::exception const&) {
        return nullptr;
    }
}

}  // namespace quen_3_1
