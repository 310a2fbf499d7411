. ./lib.sh
# 10, the default: unknown options are errors, also with a positional option.
run flags.sh positional.table 10 a --zzz
# 2: the positional option takes what no option takes.
run flags.sh positional.table 2 a --zzz -
# 0: without a positional option, unknown arguments are dropped.
run flags.sh booleans.table 0 --zzz x -v -- y
# 4: the arguments after "--" also fill the positional option, and are restored once.
run flags.sh positional.table 14 a -- b -c
# 16: the first positional argument takes all the rest.
run flags.sh positional.table 0x12 -v a -v -- b
run flags.sh positional.table 0 --no-verb
