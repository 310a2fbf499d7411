. ./lib.sh
# A malformed table prints an exit command like any other failure: both
# forms stop, with 65.
run one_step.sh tables/malformed.table
run two_steps.sh tables/malformed.table
run two_steps.sh tables/booleans.table --bogus
run two_steps.sh tables/help.table --help
run two_steps.sh tables/booleans.table -v
