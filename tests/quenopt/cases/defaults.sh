. ./lib.sh
# Only defaults: their counts are 0.
run defaults.sh
# Given values replace the defaults.
run defaults.sh --no-verbose --quiet --level 4 --size 1 --offset 5 --limit 0x20 --ratio 2 --mode slow --tags x,y --heading T --name n
# A default is the library's rendering of the table's value (except for a double).
runq --table tables/defaults.table
runq --table tables/defaults.table --format json
