VSPK 01.00 Vorel
What no condition may hold for is told as WRONG.

Whole texts: case and bars apart, variables filled in first, up to the last brace; no braces, no condition.
(0:3) When someone says something,
 (1:2) {hello|THERE}
 (1:2) {[message]}
 (1:4) {h*[a-f]?e}
 (1:6) {}
(5:2) {texts}
(0:3) When someone says something,
 (1:6) {o|th}
(5:2) {WRONG: a part is found with its bars read as blanks}
(0:3) When someone says something,
 (1:6) {hello} {there}
(5:2) {WRONG: the first argument ends at its own brace}
(0:3) When someone says something,
 (1:2) Hello there
(5:2) {WRONG: no braces}
(0:3) When someone says something,
 (1:3) nobody
(5:2) {WRONG: no braces, negated}
(0:3) When someone says something,
 (1:3) }x{
(5:2) {WRONG: braces the wrong way round}
(0:3) When someone says something,
 (1:27) x
(5:2) {WRONG: a number that was never given out}
(0:3) When someone says something,
 (1:-1) {x}
(5:2) {WRONG: a negative number}
(0:3) When someone says something,
 (1:127) {}
(5:2) {WRONG: somebody owns the bot}
(0:3) When someone says something,
 (1:126) x
(5:2) {WRONG: client mode is 1 only}
(0:3) When someone says something,
 (1:125) x
(5:2) {WRONG: and no client is 0 only}

Badges: one of them minds case, the groups do not take what they don't name, and a look has its tag with the description.
(0:3) When someone says something,
 (1:38)
 (1:50)
(5:2) {badge I}
(0:3) When someone says something,
 (1:38)
 (1:51)
(5:2) {badge i}
(0:12) When you look at someone,
 (1:41)
(5:2) {WRONG: a look's result has no badge}
(0:12) When you look at someone,
 (1:21)
(5:2) {negation of 20 reads the markings, and they are no bracket}
(0:12) When you look at someone,
 (1:29)
(5:2) {WRONG: negation of 28 reads the markings, and they are a question mark}

Lists, numbers, squares
(0:23) When the list of visitors is up to date,
 (1:74) {bob b}
 (1:75) {Ann, Bob B}
(5:2) {visitors}
(0:42) When the game tells its time,
 (1:76) { 7 o'clock}
 (1:79) {5.5}
 (1:80) {nine}
 (1:80) }{nine}
(5:2) {seven [fst.median]}
(0:42) When the game tells its time,
 (1:77) } {8
(5:2) {WRONG: an argument needs a brace of its own}
(0:42) When the game tells its time,
 (1:82)
(5:2) {morning}
(0:42) When the game tells its time,
 (1:83)
(5:2) {afternoon}
(0:14) When someone moves,
 (1:87) {10} {21}
 (1:89) {12}
 (1:88) {12} {21}
(5:2) {moved}
(0:14) When someone moves,
 (1:85) {xx}
(5:2) {WRONG: the negation knows no mover}
(0:14) When someone moves,
 (1:97) {5}
(5:2) {WRONG: no notice, no answer}
(0:47) When a dream appears,
 (1:133) {8}
(5:2) {one argument serves for both}
(0:3) When someone says something,
 (1:114) {1} {2} {1}
(5:2) {the last argument of three}
(0:3) When someone says something,
 (1:118) {abc} {[A-C]bc}
(5:2) {WRONG: a pattern of two arguments minds case}
(0:3) When someone says something,
 (1:119) {hello world} {hello}
 (5:2) {WRONG: a part is found elsewhere than at the end}

Data files: any case, odd headers passed over, every part of a section
(0:3) When someone says something,
 (1:123) {ann b} {SEEN} {guests?}
 (1:123) {Still Seen} {seen} {Guests_}
 (1:123) {LAST} {seen} {Guests_}
 (1:123) {before} {} {Guests_}
 (1:124) {eve} {seen} {Guests_}
 (1:124) {a} {b} {nofile}
(5:2) {data file}
(0:3) When someone says something,
 (1:124) {a} {b}
(5:2) {WRONG: there is no third argument}
*Endtriggers* 9999 *Endtriggers*
