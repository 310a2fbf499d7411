. ./lib.sh
runq --help
runq --version
# Wrong use of quenopt itself: 64, nothing on standard output.
runq
runq -- --x
runq --table
runq --table tables/kinds.table --format xml
runq --table tables/kinds.table --prefix 9x
runq --table tables/kinds.table --prefix my-opt
runq --table tables/kinds.table --flags -1
runq --table tables/kinds.table --flags 2x
runq --table tables/kinds.table --colour
runq --table tables/kinds.table stray -- --x
runq --table tables/no-such.table -- --x
# The forms that work: '=' values, another prefix, no prefix, no script arguments.
runq --table=tables/booleans.table --prefix=my --format=sh -- -v
runq --table tables/booleans.table --prefix '' -- --no-color
runq --table tables/booleans.table
