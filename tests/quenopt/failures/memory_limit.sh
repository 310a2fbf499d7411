#!/bin/sh
# quenopt under a memory limit fails in many places: while it loads, reads
# the table, parses, or builds its output, by an allocation that fails or by
# a crash. Whatever happens, a script in either form must either run with
# the parsed arguments or stop; it must never run on with the raw ones.
#   memory_limit.sh SHELL QUENOPT
# Exits 77 (skipped) when SHELL is not installed or when quenopt cannot run
# under a memory limit at all (a sanitizer reserves more than any limit).
shell=$1
quenopt=$2

if ! command -v "$shell" >/dev/null 2>&1; then
    echo "skipped: '$shell' is not installed"
    exit 77
fi
if ! (ulimit -v 200000 && "$quenopt" --version) >/dev/null 2>&1; then
    echo "skipped: quenopt does not start under a memory limit (a sanitizer build reserves more)"
    exit 77
fi

work=$(mktemp -d) || exit 1
trap 'rm -rf "$work"' EXIT
mkdir "$work/bin"
# The limit applies to quenopt alone, not to the shell that runs the script.
cat >"$work/bin/quenopt" <<WRAPPER
#!/bin/sh
ulimit -v "\$QUENOPT_LIMIT" || exit 99
exec "$quenopt" "\$@"
WRAPPER
chmod +x "$work/bin/quenopt"
printf '%s\n' 'tag | string | g | split=none | A tag.' 'mode | string | g |  | How.' \
    'files | string | | positional split=none |' >"$work/table"
cat >"$work/one_step.sh" <<'SCRIPT'
eval "$(quenopt --table "$QUENOPT_TABLE" -- "$@")" || exit
echo "ran with $opt_tag_count tags, mode $opt_mode, $# arguments"
SCRIPT
cat >"$work/two_steps.sh" <<'SCRIPT'
code=$(quenopt --table "$QUENOPT_TABLE" -- "$@") || exit
eval "$code"
echo "ran with $opt_tag_count tags, mode $opt_mode, $# arguments"
SCRIPT
PATH=$work/bin:$PATH
QUENOPT_TABLE=$work/table
export PATH QUENOPT_TABLE

tag=--tag=$(printf '%0120000d' 0 | tr 0 x)
parsed="ran with 3 tags, mode fast, 2 arguments"
failed=0
for form in one_step two_steps; do
    stopped=0
    unstarted=0
    limit=4000
    while [ "$limit" -le 16000 ]; do
        QUENOPT_LIMIT=$limit "$shell" "$work/$form.sh" "$tag" "$tag" "$tag" --mode=fast a b \
            >"$work/out" 2>"$work/err"
        status=$?
        out=$(cat "$work/out")
        if grep -q -e 'error while loading shared libraries' \
            -e 'cannot allocate TLS data structures' "$work/err"; then
            # The dynamic loader gave up (mapping a library, or the first
            # thread's thread-local block) and quenopt never ran: nothing it
            # does can help (the one-step form then evaluates an empty text).
            unstarted=$((unstarted + 1))
        elif [ -n "$out" ] && [ "$out" != "$parsed" ]; then
            echo "not ok - $form under a limit of $limit KB ran on: '$out' (status $status)"
            sed 's/^/    stderr: /' "$work/err"
            failed=1
        elif [ -z "$out" ]; then
            if [ "$status" -eq 0 ]; then
                echo "not ok - $form under a limit of $limit KB neither ran nor stopped with a failure"
                failed=1
            fi
            stopped=$((stopped + 1))
        fi
        limit=$((limit + 250))
    done
    echo "$form: $stopped limits stopped the script, $unstarted kept quenopt from starting, the others parsed"
    if [ "$stopped" -eq 0 ]; then
        echo "not ok - no limit made quenopt fail in the $form form; the range of limits needs moving"
        failed=1
    fi
done
exit $failed
