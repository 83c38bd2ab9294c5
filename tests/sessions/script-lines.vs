vspk 01.00 VOREL
The first line counts in any case. This one is free text.
(0:3)
(5:2) {WRONG: a cause needs text behind its number}
(0:3) When someone says something,
(5:2) {1}
(1:27) behind an effect, a condition is passed over,
(5:2) {2}
(5:1 so this is no effect, or the bot would leave.
(0:3) When someone says something, and no condition follows lines of other categories,
(2:1) like this one,
(1:27) that never holds,
(5:2) {3}
(0:3) When someone says something, but conditions do follow free text,
like this,

(1:27) that never holds,
(5:2) {WRONG: the condition was passed over}
(0:3) When someone says something,
(5:2) {4}
(a remark like an effect, which counts as the next cause)
(5:2) {WRONG: the trigger has ended}
 *Endtriggers* 9999 *Endtriggers* 
(0:3) When someone says something, and the end above is none,
(5:2) {5: [player]}
(5:1) leave, which is an event within the event,
(5:2) {6: [player] is nobody's name any more}
(0:2) When your connection to the game has ended,
(5:2) {gone}
(0:5) When someone emotes something,
(a remark like a condition)
(5:2) {WRONG: that was a fault}
(0:3) When someone says something, whose effects go on
*Endtriggers* 9999 *Endtriggers*
(5:2) {7}
(0:6) When someone whispers something to you,
(5:2) {WRONG: the script has ended}
(0:3) When someone says something, coming from the effects above,
(5:2) {8}
(5:2) {WRONG: the last line}