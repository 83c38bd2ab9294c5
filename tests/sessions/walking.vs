VSPK 01.00 Vorel
(0:46) At the command &x y,
(5:86) walk to {[word1]} {[word2]}
(0:14) When a furre moves,
(5:2) tell {now at [vorel.into]}
(0:4) At a shout,
(5:87) stop
*Endtriggers* 9999 *Endtriggers*
