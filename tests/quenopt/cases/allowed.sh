. ./lib.sh
run allowed.sh
run allowed.sh --mode full --level 3 --speed 0.5
# An unambiguous beginning of an allowed text stands for it.
run allowed.sh --mode s
run allowed.sh -m fa -m fu
run allowed.sh --mode f
run allowed.sh --mode Fast
run allowed.sh --mode fastest
# Numbers are compared as numbers.
run allowed.sh --level 02 --speed 2.0 --speed 1
run allowed.sh --level 5
run allowed.sh --speed 0.25
