. ./lib.sh
# bash arrays keep each value a word of its own, newlines included.
run bash_arrays.sh
newline=$(printf 'one\ntwo')
run bash_arrays.sh -t a,b -t "it's" --value "$newline" --value 'a  b' 'x y' '' -- "$newline"
runq --table tables/bash_arrays.table --format bash -- -t a,b --value "it's" f1 -- f2
runq --table tables/bash_arrays.table --format bash -- --bogus
