# Completion in fish through its own machinery: `complete -C` asks for the
# candidates of a command line exactly as Tab does, fish's matching included.
# Usage: fish --no-config fish_completion_test.fish HOST
set -l host $argv[1]
set -g passed 0
set -g failed 0

set -l work (mktemp -d)
$host fish >$work/with.fish
and $host fish without-positional >$work/without.fish
or begin
    echo "not ok - the host printed no fish script"
    exit 1
end
mkdir $work/files $work/files/sub
touch $work/files/alpha.txt $work/files/beta.log
cd $work/files; or exit 1

function report
    if test "$argv[3]" = "$argv[2]"
        echo "ok - $argv[1]"
        set passed (math $passed + 1)
    else
        echo "not ok - $argv[1]: expected '$argv[2]', got '$argv[3]'"
        set failed (math $failed + 1)
    end
end

# check NAME EXPECTED LINE [sorted]: the candidates for LINE joined by '|';
# descriptions after a tab are dropped.
function check
    set -l got (complete -C "$argv[3]" | string replace -r '\t.*' '')
    if test "$argv[4]" = sorted
        set got (printf '%s\n' $got | sort)
    end
    set -l joined (string join -- '|' $got)
    report $argv[1] $argv[2] "$joined"
end

source ../with.fish
set -l registered (complete quen-sample)
report "the function is registered for the program" \
    "complete -k --no-files quen-sample -a '(_quen_complete_quen_2dsample)'" "$registered"

check "unique part-wise abbreviation expands" --log-format "quen-sample --l-fo"
check "tied abbreviation lists the tied names" "--log-file|--log-format" "quen-sample --l-f"
check "plain prefix lists every name it begins" "--log-file|--log-format" "quen-sample --lo"
check "single hyphen keeps its form" "-verbose|-version" "quen-sample -v"
check "booleans have a no- form" "--no-verbose|--no-chatty|--no-dry-run" "quen-sample --no-"
check "abbreviated no- form expands" --no-verbose "quen-sample --n-v"
check "every part may be abbreviated" --dry-run "quen-sample --d-r"
check "hidden options are not offered" "" "quen-sample --debug"
check "hidden options are not expanded" "" "quen-sample --d-d"
check "allowed values as the next word" "plain|json|json-lines" "quen-sample --log-format "
check "allowed values after an abbreviated name" "json|json-lines" "quen-sample --l-fo j"
check "allowed values after = in one word" "--log-format=json|--log-format=json-lines" "quen-sample --log-format=j"
check "allowed values keep their blanks" "--mode=slow|--mode=safe mode" "quen-sample --mode=s"
check "numbers are not guessed" "" "quen-sample --level "
check "text values complete as files" "alpha.txt|beta.log|sub/" "quen-sample --log-file " sorted
check "files after = keep the name" "--out=alpha.txt" "quen-sample --out=a" sorted
check "plain words are files for the positional option" "alpha.txt|beta.log|sub/" "quen-sample " sorted
check "after the terminator only files" beta.log "quen-sample -- b" sorted

complete -e -c quen-sample
source ../without.fish
check "without a positional option an empty word lists names" \
    "--log-file|--log-format|--level|--verbose|--no-verbose|--chatty|--no-chatty|--version|--mode|--dry-run|--no-dry-run|--output|--out" \
    "quen-sample "
check "without a positional option plain words complete nothing" "" "quen-sample a"

cd /
rm -rf $work
echo "$passed passed, $failed failed"
test $failed -eq 0
