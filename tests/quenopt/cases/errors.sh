. ./lib.sh
# The library's message goes to standard error and the script stops with its code.
run errors.sh --count 1
run errors.sh --bogus
run errors.sh --count 1 stray
run errors.sh --count
run errors.sh --count -1
run errors.sh --count one
run errors.sh --count=1 --dry-run=1
run errors.sh --fl=1
run errors.sh --n x --d
# quenopt prints the exit command itself.
runq --table tables/kinds.table -- --bogus
runq --table tables/kinds.table --format bash -- --count
