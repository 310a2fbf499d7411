. ./lib.sh
# Every option's values in command-line order with their sequence numbers,
# the plain arguments, and the error if any.
runq --table tables/kinds.table --format json --
runq --table tables/positional.table --format json -- a -v '' --name n b -- c
runq --table tables/repeated.table --format json -- --tag a,b --count 1 --tag c --count 2
runq --table tables/kinds.table --format json -- --dry-run --count 3 --dry-run
runq --table tables/kinds.table --format json -- --count 3 --bogus --flag
# Quotes, backslashes and control characters are escaped; UTF-8 passes;
# other bytes become \u00XX.
controls=$(printf 'q" b\\ n\n t\t r\r e\033 d\177 f\f b\b')
bytes=$(printf 'gr\303\274n \377 \303( \355\240\200 \360\237\230\200')
runq --table tables/roundtrip.table --format json -- --value "$controls" "$bytes"
