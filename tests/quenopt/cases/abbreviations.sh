. ./lib.sh
# Each part of a name may be abbreviated.
run abbreviations.sh --l-f x --l-l 2 --d-r
run abbreviations.sh --log-f=y --lo-lev=3 --dry-r
run abbreviations.sh --verb --vers
run abbreviations.sh --no-verb
run abbreviations.sh --outp o1 --out o2
# Ties between the best candidates are ambiguous.
run abbreviations.sh --ve
run abbreviations.sh --ou x
run abbreviations.sh --l-x y
# A name of one part never matches a name of two.
run abbreviations.sh --log x
