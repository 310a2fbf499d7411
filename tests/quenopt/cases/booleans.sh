. ./lib.sh
run booleans.sh
run booleans.sh --verbose
run booleans.sh -v
run booleans.sh --no-verbose
run booleans.sh -no-v
run booleans.sh --verb --no-col
run booleans.sh --no-verb --color
# Every occurrence is kept, in command-line order.
run booleans.sh --verbose --no-verbose -v
run booleans.sh --verbose=1
run booleans.sh --verbose=
run booleans.sh --no-verbose=0
