#!/usr/bin/env bash
# Completion in bash as readline asks for it: COMP_WORDS and COMP_CWORD set,
# the registered function called, COMPREPLY read. Usage: bash_completion_test.sh HOST
set -u
host="${1:?host}"
passed=0
failed=0

work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
"$host" bash >"$work/with.bash" || { echo "not ok - the host printed no bash script"; exit 1; }
"$host" bash without-positional >"$work/without.bash" || { echo "not ok - the host printed no bash script"; exit 1; }
mkdir "$work/files" "$work/files/sub"
touch "$work/files/alpha.txt" "$work/files/beta.log"
cd "$work/files" || exit 1

# Completes the last of the words after the program name with the function
# that is registered for the program, into COMPREPLY.
complete_words() {
    local function
    COMP_WORDS=(quen-sample "$@")
    COMP_CWORD=$#
    COMPREPLY=()
    function=$(complete -p quen-sample | sed -E 's/.*-F ([^ ]+) .*/\1/')
    "$function"
}

# check NAME EXPECTED WORD...: EXPECTED is the candidates joined by '|', in
# the order offered.
check() {
    local name=$1 expected=$2
    shift 2
    complete_words "$@"
    report "$name" "$expected" "$(IFS='|' && echo "${COMPREPLY[*]}")"
}

# check_files: like check, for file names, which come in directory order.
check_files() {
    local name=$1 expected=$2
    shift 2
    complete_words "$@"
    report "$name" "$expected" "$(printf '%s\n' "${COMPREPLY[@]}" | sed '/^$/d' | sort | paste -sd'|')"
}

report() {
    if [[ "$3" == "$2" ]]; then
        echo "ok - $1"
        passed=$((passed + 1))
    else
        echo "not ok - $1: expected '$2', got '$3'"
        failed=$((failed + 1))
    fi
}

source ../with.bash
report "the function is registered for the program" \
    "complete -F _quen_complete_quen_2dsample quen-sample" "$(complete -p quen-sample)"

check "unique part-wise abbreviation expands" "--log-format" --l-fo
check "tied abbreviation lists the tied names" "--log-file|--log-format" --l-f
check "plain prefix lists every name it begins" "--log-file|--log-format" --lo
check "single hyphen keeps its form" "-verbose|-version" -v
check "booleans have a no- form" "--no-verbose|--no-chatty|--no-dry-run" --no-
check "abbreviated no- form expands" "--no-verbose" --n-v
check "synonyms are names too" "--chatty" --ch
check "every part may be abbreviated" "--dry-run" --d-r
check "hidden options are not offered" "" --debug
check "hidden options are not expanded" "" --d-d
check "a lone hyphen lists all names" \
    "--log-file|--log-format|--level|--verbose|--no-verbose|--chatty|--no-chatty|--version|--mode|--dry-run|--no-dry-run|--output|--out|--files" -
check "nothing matches" "" --zzz
check "allowed values as the next word" "plain|json|json-lines" --log-format ""
check "allowed values after an abbreviated name" "json|json-lines" --l-fo j
check "allowed values after = in one word" "--log-format=json|--log-format=json-lines" --log-format=j
check "allowed values after = split off by readline" "json|json-lines" --log-format = j
check "allowed values right after a split-off =" "plain|json|json-lines" --log-format =
check "allowed values have their blanks escaped" '--mode=slow|--mode=safe\ mode' --mode=s
check "numbers are not guessed" "" --level ""
check "booleans take no value after =" "" --verbose=
check_files "text values complete as files" "alpha.txt|beta.log|sub" --log-file ""
check_files "files after = keep the name" "--out=alpha.txt" --out=a
check_files "a boolean takes no next word, so files follow" "alpha.txt|beta.log|sub" --verbose ""
check_files "plain words are files for the positional option" "alpha.txt|beta.log|sub" ""
check_files "plain words filter files" "alpha.txt" a
check_files "after the terminator only files" "beta.log" -- b
check_files "after the terminator even hyphens are files" "" -- -

complete -r quen-sample
source ../without.bash
check "without a positional option an empty word lists names" \
    "--log-file|--log-format|--level|--verbose|--no-verbose|--chatty|--no-chatty|--version|--mode|--dry-run|--no-dry-run|--output|--out" ""
check "without a positional option plain words complete nothing" "" a

echo "$passed passed, $failed failed"
[[ $failed -eq 0 ]]
