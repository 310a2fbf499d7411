. ./lib.sh
run repeated.sh -t a -t b,c --tag=d --count 1 --count 2
run repeated.sh --path /usr/bin:/bin --path /sbin --word x,y --word 'z w'
# The splitting keeps the character right after a separator.
run repeated.sh --tag a,,b --tag c,
run repeated.sh --path a:b,c
run repeated.sh --count 1,2 --count 3
run repeated.sh --count 1,x
