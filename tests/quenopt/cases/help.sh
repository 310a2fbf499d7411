. ./lib.sh
# The help text goes to standard error and the script stops with 0.
run help.sh --help
run help.sh -h --verbose
run help.sh --verbose
# An error before or after the help request wins.
run help.sh --help --bogus
run help.sh --level 9 --help
# Without a help option in the table, --help is an unknown option.
run errors.sh --help
runq --table tables/help.table -- -h
runq --table tables/help.table --format json -- --verbose --help
