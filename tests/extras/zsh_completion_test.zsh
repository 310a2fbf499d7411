# Completion in zsh through its own completion system: an interactive zsh on
# a pseudo-terminal loads compinit and the script, then Tab is typed. The
# matches zsh would offer are captured by wrapping compadd (its -O option
# does the matching and hands the matches back); what Tab inserts is read from
# the edit buffer. Usage: zsh -f zsh_completion_test.zsh HOST
zmodload zsh/zpty || exit 1
host=${1:?host}
integer passed=0 failed=0 step=0

work=$(mktemp -d)
trap 'zpty -d quen 2>/dev/null; rm -rf $work' EXIT
$host zsh > $work/with.zsh || { print "not ok - the host printed no zsh script"; exit 1 }
mkdir $work/files $work/files/sub
touch $work/files/alpha.txt $work/files/beta.log
cd $work/files || exit 1

zpty quen zsh -f -i

# Reads the terminal until a line that is only `marker`; keeps what came.
read_until() {
    local marker=$1 line
    output=''
    repeat 600; do
        if zpty -r -t quen line; then
            output+=$line
            [[ ${${line%$'\n'}%$'\r'} == $marker ]] && return 0
        else
            sleep 0.05
        fi
    done
    return 1
}

# Runs a command line in the shell under test and waits for it to finish.
run() {
    (( step++ ))
    zpty -w quen "$1; print SYNC-\$(( $step ))"
    read_until SYNC-$step || { print "not ok - no answer to: $1"; exit 1 }
}

# Types `line` and Tab (and `after`), then clears the line; `output` gets
# what the terminal showed.
type_tab() {
    (( step++ ))
    zpty -w -n quen "$1"$'\t'"$2"
    zpty -w quen $'\C-u'"print SYNC-\$(( $step ))"
    read_until SYNC-$step || { print "not ok - no answer to: $1"; exit 1 }
}

report() {
    if [[ $3 == $2 ]]; then
        print -r -- "ok - $1"
        (( passed++ ))
    else
        print -r -- "not ok - $1: expected '$2', got '$3'"
        (( failed++ ))
    fi
}

# check NAME EXPECTED LINE [sorted]: the matches offered for LINE, joined by '|'.
check() {
    local -a got
    local l
    type_tab $3
    for l in ${(f)output//$'\r'/}; do
        [[ $l == *MATCH:* ]] && got+=("${l#*MATCH:}")
    done
    [[ -n $4 ]] && got=(${(o)got})
    report $1 $2 ${(j:|:)got}
}

# inserts NAME EXPECTED LINE: the edit buffer after Tab.
inserts() {
    local l got=''
    type_tab $3 $'\C-xb'
    for l in ${(f)output//$'\r'/}; do
        [[ $l == *BUFFER:*:END* ]] && got=${${l#*BUFFER:}%%:END*}
    done
    report $1 $2 $got
}

run "PS1='' RPS1=''; autoload -Uz compinit; compinit -u -D; source ../with.zsh"
run 'show-buffer() { print -r -- "BUFFER:$BUFFER:END" }; zle -N show-buffer; bindkey "^Xb" show-buffer'
run 'print -r -- "REGISTERED:$_comps[quen-sample]"'
report "the function is registered for the program" _quen_complete_quen_2dsample \
    ${${(M)${(f)output//$'\r'/}:#REGISTERED:*}#REGISTERED:}

inserts "unique part-wise abbreviation is inserted" "quen-sample --log-format " "quen-sample --l-fo"
inserts "abbreviated no- form is inserted" "quen-sample --no-verbose " "quen-sample --n-v"
inserts "allowed value after = is inserted quoted" 'quen-sample --mode=safe\ mode ' "quen-sample --mode=sa"
inserts "file after = is inserted behind the name" "quen-sample --out=alpha.txt " "quen-sample --out=al"
inserts "allowed value as the next word is inserted" "quen-sample --l-fo plain " "quen-sample --l-fo p"

run 'compadd() { local -a m; if (( ${@[(I)-[OAD]*]} )); then builtin compadd "$@"; return; fi; builtin compadd -O m "$@"; print -rl -- ${m/#/MATCH:}; }'
check "unique part-wise abbreviation expands" "--log-format" "quen-sample --l-fo"
check "tied abbreviation lists the tied names" "--log-file|--log-format" "quen-sample --l-f"
check "plain prefix lists every name it begins" "--log-file|--log-format" "quen-sample --lo"
check "single hyphen keeps its form" "-verbose|-version" "quen-sample -v"
check "booleans have a no- form" "--no-verbose|--no-chatty|--no-dry-run" "quen-sample --no-"
check "hidden options are not offered" "" "quen-sample --debug"
check "hidden options are not expanded" "" "quen-sample --d-d"
check "allowed values as the next word" "plain|json|json-lines" "quen-sample --log-format "
check "allowed values after = in one word" "--log-format=json|--log-format=json-lines" "quen-sample --log-format=j"
check "allowed values keep their blanks" "--mode=slow|--mode=safe mode" "quen-sample --mode=s"
check "numbers are not guessed" "" "quen-sample --level "
check "text values complete as files" "alpha.txt|beta.log|sub" "quen-sample --log-file " sorted
check "files after = keep the name apart" "alpha.txt" "quen-sample --out=a" sorted
check "plain words are files for the positional option" "alpha.txt|beta.log|sub" "quen-sample " sorted
check "after the terminator only files" "beta.log" "quen-sample -- b" sorted

print "$passed passed, $failed failed"
(( failed == 0 ))
