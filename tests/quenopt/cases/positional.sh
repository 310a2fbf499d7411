. ./lib.sh
run positional.sh a b c
# Options and plain arguments mix; "--" ends the options.
run positional.sh a -v b --name n -- -x c
run positional.sh -- --verbose
run positional.sh a -- b -- c
run positional.sh -- '' --
# An empty plain argument is kept.
run positional.sh '' a ''
run positional.sh 'a b' '  ' -- 'c  d'
# Without "--", an argument that begins with '-' must be an option.
run positional.sh a -x
run positional.sh -
run positional.sh -- -
# A split positional argument gives several values and is restored whole.
run split_positional.sh 1,2 3 -- 4,5
run split_positional.sh 0x10 7,8,9
run split_positional.sh 1 x
