# Completion of 'it\'s $(x) `y`\\z' options: names, --no- forms, allowed values, files,
# and abbreviations of every part of a name (--l-f gives --log-file).

# Indices among the names $argv[2..] of the best-scoring ones for the typed
# name $argv[1]: two points for an equal part, one for a part it begins, none
# unless every part matches and both have as many parts.
function _quen_best_it_27s_20_24_28x_29_20_60y_60_5cz
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
function _quen_files_it_27s_20_24_28x_29_20_60y_60_5cz
    for file in (__fish_complete_path $argv[2])
        printf '%s\n' "$argv[1]$file"
    end
end

function _quen_complete_it_27s_20_24_28x_29_20_60y_60_5cz
    set -l names 'log-file' 'log-format' 'level' 'ratio' 'verbose' 'no-verbose' 'chatty' 'no-chatty' 'version' 'mode' 'dry-run' 'no-dry-run' 'output' 'out' 'files' 'a$(touch${IFS}marker)' 'b`touch marker`' 'c\'q\'"d"' 'no-c\'q\'"d"' 'd;e|f&g' '@ID@' '@DATA@'
    set -l owners 1 2 3 4 5 5 5 5 6 7 8 8 9 9 10 11 12 13 13 14 15 16
    set -l kinds f v v x b n v b f f n f b v n x
    set -l values_2 'plain' 'json' 'json-lines'
    set -l values_3 '1' '2'
    set -l values_7 'fast' 'slow' 'safe mode'
    set -l values_14 'it\'s' 'back\\slash' '$HOME' '*'
    set -l positional 1
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
        _quen_files_it_27s_20_24_28x_29_20_60y_60_5cz '' "$cur"
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
        set -l best (_quen_best_it_27s_20_24_28x_29_20_60y_60_5cz "$word" $names)
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
                _quen_files_it_27s_20_24_28x_29_20_60y_60_5cz "$lead" "$value"
            end
            return 0
        end
    end
    if not string match -q -- '-*' "$cur"
        if test $positional -eq 1
            _quen_files_it_27s_20_24_28x_29_20_60y_60_5cz '' "$cur"
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
        for i in (_quen_best_it_27s_20_24_28x_29_20_60y_60_5cz "$word" $names)
            set -a found "$form$names[$i]"
        end
    end
    if set -q found[1]
        printf '%s\n' $found
    end
end

complete -c 'it\'s $(x) `y`\\z' -f -k -a '(_quen_complete_it_27s_20_24_28x_29_20_60y_60_5cz)'
