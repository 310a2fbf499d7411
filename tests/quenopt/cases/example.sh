. ./lib.sh
run example.sh --verb -l 3 --mode f a.txt -- -odd-name
run example.sh b.txt 'c d.txt'
run example.sh -h
run example.sh --level 4
