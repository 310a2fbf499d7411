. ./lib.sh
# Nothing given: every variable is unset and every count is 0.
run kinds.sh
run kinds.sh --flag --count 42 --size 7 --offset=-9000000000 --mask 0xff --ratio 2.5 --name hello --dry-run
run kinds.sh -f -c=-3 -size=4294967295 -offset 9223372036854775807 -mask 1Fh -ratio 1e-3 -name 'x y' -dry-run -dry-run
run kinds.sh --no-flag --mask 18446744073709551615 --mask 0X1f --mask 123h --ratio=-0.5 --offset=-9223372036854775808
# Integers are written in decimal; the library reads the leading number.
run kinds.sh --count 042 --count 42abc --count +5
run kinds.sh --count abc
run kinds.sh --count 99999999999
run kinds.sh --size=4294967296
run kinds.sh --mask FF
run kinds.sh --ratio x
# A value that begins with '-' only follows '='.
run kinds.sh --ratio -0.5
run kinds.sh --dry-run=yes
run kinds.sh --flag=1
run kinds.sh --name
run kinds.sh --name ''
