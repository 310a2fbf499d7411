. ./lib.sh
# Each table names the file, the line and the field; nothing reaches standard output.
runq --table tables/malformed.table -- --x
table 'onlyname'
table 'x | integer | | | An integer'
table ' | int'
table 'a,b,c,d | int'
table 'alpha,beta,gamma | int'
table 'alpha,beta,ga | int | | default=1'
table 'a b | int'
table 'x.y | int'
table '-x | int'
table 'x,,y | int'
table 'x | int | | default=abc'
table 'x | int | | default=99999999999'
table 'x | uint | | default=-1'
table 'x | uint64 | | default=0xZZ'
table 'x | double | | default=1.5.2'
table 'x | bool | | default=yes'
table 'x | int | | default='
table 'x | int | | default=1 default=2'
table 'x | none | | default=1'
table 'x | bool | | allow=0,1'
table 'x | none | | allow=a'
table 'x | string | | allow=a,,b'
table 'x | int | | allow=1,two'
table 'x | string | | allow=a allow=b'
table 'x | string | | split=ab'
table 'x | string | | split='
table 'x | bool | | split=:'
table 'x | string | | colour=red'
table 'x | string | | required'
table 'x | none | | positional'
table 'x | string | | positional positional'
table 'x | string | | synonym=-y'
table 'x | string | | synonym=y synonym=y'
# Clashes with earlier lines, counting the "no-" names of booleans.
table '# first an option
x | string | | positional

y | string | | positional'
table 'verbose | bool
no-verbose | string'
table 'no-debug | int
debug | bool'
table 'x | int
y | int | | synonym=x'
table 'x,x | int'
# Names that give the same variable.
table 'a-b | int
a_b | int'
table 'x | int
x-count | int'
table 'x | int' --prefix ''
table 'x1 | int
1x | int' --prefix ''
# The first wrong line is the one reported, whether its names clash or it
# cannot be read at all.
table 'x | string
x | string | | positional
y | string | | positional'
table 'x | string
x | string
y | integer'
table 'x | string
y | integer
x | string'
table 'a | int
b | int
c | int
d | int
e | int
f | int
g | int
h | int
i | int
j | int
k | int
l | int
m | int
n | int
o | int
p | int
q | int
r | int
s | int
t-count | int
t | int
b | int'
# Lines end at a newline, a carriage return before it included; the last
# line needs none.
printf 'x | int\r\n\r\n# comment\r\ny | int | | default=2\r' | runq --table - -- --x=1
printf 'x | int\ny | int | | default=2' | runq --table - -- --x=1
printf 'x | int\nx | int' | runq --table - -- --x=1
# A table file given as standard input reads as from the file itself.
runq --table - -- --x <tables/malformed.table
