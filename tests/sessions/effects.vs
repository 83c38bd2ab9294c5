VSPK 01.00 Vorel
How effects take their arguments apart: what is not there or not whole does nothing.
(0:6) When someone whispers something to you,
 (1:2) {texts}
(5:2) {a} and {b}
(5:15) {}
(5:22) {bdefglSsuw7xB}
(5:22) {}
(5:24) {1.5}
(5:37) {12 x}
(5:41) no braces
(5:41) {Bob}
(5:65) {no such effect}
(5:92) {no such effect}
(5:-1) {no such effect}

No maps, no words.
(0:6) When someone whispers something to you,
 (1:2) {speak nowhere}
(5:85) {chess|island}
(5:85) {home}

Where the bot may speak
(0:6) When someone whispers something to you,
 (1:4) {speak*}
(5:2) {speaking on [map]}
(5:8) Hi}
(5:12) {Hi} back
(5:11) {Hi you} to {Bob B}
(5:11) {Hi} for {Bob}
(5:11) x } to {a} {b}
(5:11) {Hi} to {
(5:64) {Hi} to {Bob}
(5:53) {2}{6}
(5:53) {2}{x}
(5:54) {0}{6}
(5:54) {2}
(5:54) {2} {6

Owners are added as often as it is said, and taken out altogether.
(0:6) When someone whispers something to you,
 (1:2) {owners}
(5:82) {Bob}
(5:82) {Eve E}
(5:82) {Bob}
(5:2) {[vorel.owners]}
(5:83) {bob}
(5:2) {[vorel.owners]}
(5:83) {eve|e}
(5:2) {[vorel.owners]}

A connection comes back only when nobody asked for its end; with nobody left to own the bot that says so.
(0:2) When your connection to the game has ended,
(5:2) {ended}
(5:0)
(0:6) When someone whispers something to you,
 (1:2) {texts}
(5:0)
*Endtriggers* 9999 *Endtriggers*
