#!/usr/bin/env bash
# Completion typed by a user in a real terminal: tmux runs an interactive
# SHELL, the test types the program name and the start of an option, presses
# Tab, then Enter. The options' names hold command substitutions, quotes and
# separators; none may run, and the program must get the name as it is.
# Usage: typed_completion_test.sh SHELL HOST
set -u
shell=${1:?shell}
host=${2:?host}
for tool in "$shell" tmux; do
    if ! command -v "$tool" >/dev/null 2>&1; then
        echo "SKIP: $tool is not installed; install it (tools/packages.txt lists it) to run this test"
        exit 77
    fi
done

work=$(mktemp -d)
socket=$work/tmux.socket
cleanup() {
    tmux -S "$socket" kill-server 2>/dev/null
    rm -rf "$work"
}
trap cleanup EXIT
mkdir "$work/run"
"$host" "$shell" hostile >"$work/script" || { echo "not ok - the host printed no $shell script"; exit 1; }

# Waits up to ten seconds for the file $1.
wait_for() {
    local tries
    for ((tries = 0; tries < 200; tries++)); do
        [[ -e $1 ]] && return 0
        sleep 0.05
    done
    return 1
}

# The line that sets the shell up: the script loaded, the program a function
# that writes its arguments one per line, then a file that says it is ready.
case $shell in
bash)
    command=(bash --norc --noprofile -i)
    setup="source '$work/script'; quen-sample() { printf '%s\n' \"\$@\" >'$work/args'; }; touch '$work/ready'"
    ;;
zsh)
    command=(zsh -f -i)
    setup="autoload -U compinit && compinit -u -D; source '$work/script'; quen-sample() { printf '%s\n' \"\$@\" >'$work/args'; }; touch '$work/ready'"
    ;;
fish)
    command=(fish --no-config -i)
    setup="source '$work/script'; function quen-sample; printf '%s\n' \$argv >'$work/args'; end; touch '$work/ready'"
    ;;
*)
    echo "not ok - no way to drive $shell"
    exit 1
    ;;
esac

cd "$work/run" || exit 1
HOME=$work ZDOTDIR=$work PS1='$ ' TERM=xterm \
    tmux -S "$socket" -f /dev/null new-session -d -x 200 -y 50 "${command[*]}"
tmux -S "$socket" send-keys -l "$setup"
tmux -S "$socket" send-keys Enter
if ! wait_for "$work/ready"; then
    echo "not ok - $shell did not start in tmux"
    tmux -S "$socket" capture-pane -p
    exit 1
fi

# Waits up to ten seconds for the shell to complete the line that reads $1:
# for the last line of the screen that holds $1 to go on after it.
wait_for_completion() {
    local tries line
    for ((tries = 0; tries < 100; tries++)); do
        sleep 0.1
        line=$(tmux -S "$socket" capture-pane -p | grep -F -- "$1" | tail -n 1)
        line=${line%"${line##*[! ]}"}
        if [[ -n $line && $line != *"$1" ]]; then
            sleep 0.2
            return 0
        fi
    done
    return 1
}

passed=0
failed=0
# check TYPED EXPECTED: types "quen-sample TYPED", Tab, Enter; the program
# must get the one argument EXPECTED, and no command may have run.
check() {
    local typed=$1 expected=$2 got
    rm -f "$work/args"
    tmux -S "$socket" send-keys -l "quen-sample $typed"
    sleep 0.3
    tmux -S "$socket" send-keys Tab
    wait_for_completion "quen-sample $typed"
    tmux -S "$socket" send-keys Enter
    if ! wait_for "$work/args"; then
        got="(the program did not run)"
        tmux -S "$socket" send-keys C-c
    else
        got=$(cat "$work/args")
    fi
    if [[ -e $work/run/marker ]]; then
        echo "not ok - $typed<Tab>: completing ran a command; the line was"
        tmux -S "$socket" capture-pane -p | grep quen-sample | tail -1
        rm -f "$work/run/marker"
        failed=$((failed + 1))
    elif [[ $got != "$expected" ]]; then
        echo "not ok - $typed<Tab>: the program got '$got', not '$expected'"
        failed=$((failed + 1))
    else
        echo "ok - $typed<Tab> gives $expected"
        passed=$((passed + 1))
    fi
}

check --a '--a$(touch${IFS}marker)'
check --b '--b`touch${IFS}marker`'
check --c "--c'\$(touch\${IFS}marker)'"
check --d '--d;touch${IFS}marker;'
check --no '--no-d;touch${IFS}marker;'

echo "$shell: $passed passed, $failed failed"
[[ $failed -eq 0 ]]
