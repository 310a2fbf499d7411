. ./lib.sh
# Texts that a shell would otherwise expand, split or end early.
run roundtrip.sh --value "it's" --value 'say "hi"' --value 'a b  c' --value '$HOME `id` $(id) \\ \n * ? [a] ~ ; & | < > # !'
newline=$(printf 'line one\nline two\n\nline four')
tab=$(printf 'a\tb')
run roundtrip.sh --value "$newline" --value "$tab" "$newline" -- "$tab"
# Bytes beyond ASCII, well-formed UTF-8 or not, and a value that begins with '-'.
utf8=$(printf 'gr\303\274n \346\227\245\346\234\254')
bytes=$(printf '\377\376 \200 \303')
run roundtrip.sh --value "$utf8" --value "$bytes" --value=-dash "$utf8" "$bytes" -- '-x' '--value' "'" ''
# What quenopt prints for them, quoted for the shell.
runq --table tables/roundtrip.table -- --value "it's" --value "''" "a'b" -- "$newline" "$bytes"
