. ./lib.sh
# A malformed table prints nothing to evaluate: the one-step form goes on,
# the two-step form stops with 65.
run one_step.sh tables/malformed.table
run two_steps.sh tables/malformed.table
run two_steps.sh tables/booleans.table --bogus
run two_steps.sh tables/help.table --help
run two_steps.sh tables/booleans.table -v
