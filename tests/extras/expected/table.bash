# Completion of 'it'\''s $(x) `y`\z' options: names, --no- forms, allowed values, files,
# and abbreviations of every part of a name (--l-f gives --log-file).

# Indices in `names` of the best-scoring names for the typed name $1: two
# points for an equal part, one for a part it begins, none unless every part
# matches and both have as many parts. Sets `best`, declared by the caller.
_quen_best_it_27s_20_24_28x_29_20_60y_60_5cz() {
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
_quen_files_it_27s_20_24_28x_29_20_60y_60_5cz() {
    local file
    compopt -o filenames 2>/dev/null
    while IFS= read -r file; do
        COMPREPLY+=("$1$file")
    done < <(compgen -f -- "$2")
}

_quen_complete_it_27s_20_24_28x_29_20_60y_60_5cz() {
    local -a names=('log-file' 'log-format' 'level' 'ratio' 'verbose' 'no-verbose' 'chatty' 'no-chatty' 'version' 'mode' 'dry-run' 'no-dry-run' 'output' 'out' 'files' 'a$(touch${IFS}marker)' 'b`touch marker`' 'c'\''q'\''"d"' 'no-c'\''q'\''"d"' 'd;e|f&g' '@ID@' '@DATA@')
    local -a owners=(0 1 2 3 4 4 4 4 5 6 7 7 8 8 9 10 11 12 12 13 14 15)
    local -a kinds=(f v v x b n v b f f n f b v n x)
    local -a values_1=('plain' 'json' 'json-lines')
    local -a values_2=('1' '2')
    local -a values_6=('fast' 'slow' 'safe mode')
    local -a values_13=('it'\''s' 'back\slash' '$HOME' '*')
    local positional=1
    local cur=${COMP_WORDS[COMP_CWORD]} cword=$COMP_CWORD
    local word option='' value='' lead='' next='' kind='' form=-- i ref quoted
    local -a best=()
    COMPREPLY=()
    # After the terminator every word is a plain argument.
    for ((i = 1; i < cword; i++)); do
        if [[ ${COMP_WORDS[i]} == -- ]]; then
            _quen_files_it_27s_20_24_28x_29_20_60y_60_5cz '' "$cur"
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
        _quen_best_it_27s_20_24_28x_29_20_60y_60_5cz "$word"
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
                _quen_files_it_27s_20_24_28x_29_20_60y_60_5cz "$lead" "$value"
            fi
            return 0
        fi
    fi
    if [[ $cur != -* ]]; then
        if ((positional)); then
            _quen_files_it_27s_20_24_28x_29_20_60y_60_5cz '' "$cur"
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
        _quen_best_it_27s_20_24_28x_29_20_60y_60_5cz "$word"
        for i in "${best[@]}"; do
            printf -v quoted '%q' "$form${names[i]}"
            COMPREPLY+=("$quoted")
        done
    fi
    return 0
}

complete -F _quen_complete_it_27s_20_24_28x_29_20_60y_60_5cz -- 'it'\''s $(x) `y`\z'
