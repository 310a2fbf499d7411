# Completion of 'it'\''s $(x) `y`\z' options: names, --no- forms, allowed values, files,
# and abbreviations of every part of a name (--l-f gives --log-file).
# Load it after compinit.

# Indices in `names` of the best-scoring names for the typed name $1: two
# points for an equal part, one for a part it begins, none unless every part
# matches and both have as many parts. Sets `best`, declared by the caller.
_quen_best_it_27s_20_24_28x_29_20_60y_60_5cz() {
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
_quen_candidates_it_27s_20_24_28x_29_20_60y_60_5cz() {
    emulate -L zsh
    local -a names=('log-file' 'log-format' 'level' 'ratio' 'verbose' 'no-verbose' 'chatty' 'no-chatty' 'version' 'mode' 'dry-run' 'no-dry-run' 'output' 'out' 'files' 'a$(touch${IFS}marker)' 'b`touch marker`' 'c'\''q'\''"d"' 'no-c'\''q'\''"d"' 'd;e|f&g' '@ID@' '@DATA@')
    local -a owners=(1 2 3 4 5 5 5 5 6 7 8 8 9 9 10 11 12 13 13 14 15 16)
    local -a kinds=(f v v x b n v b f f n f b v n x)
    local -a values_2=('plain' 'json' 'json-lines')
    local -a values_3=('1' '2')
    local -a values_7=('fast' 'slow' 'safe mode')
    local -a values_14=('it'\''s' 'back\slash' '$HOME' '*')
    local positional=1
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
        _quen_best_it_27s_20_24_28x_29_20_60y_60_5cz "$word"
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
        _quen_best_it_27s_20_24_28x_29_20_60y_60_5cz "$word"
        for i in $best; do
            reply+=("$form${names[i]}")
        done
        REPLY=expand
    fi
    return 0
}

_quen_complete_it_27s_20_24_28x_29_20_60y_60_5cz() {
    emulate -L zsh
    local -a reply
    local REPLY lead
    _quen_candidates_it_27s_20_24_28x_29_20_60y_60_5cz
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

compdef _quen_complete_it_27s_20_24_28x_29_20_60y_60_5cz 'it'\''s $(x) `y`\z'
