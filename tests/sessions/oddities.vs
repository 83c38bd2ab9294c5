VSPK 01.00 Vorel
(0:3) At speech {no number here},
(5:8) say {a} and {b}
(5:64) send {Hi} to {Bob}
(5:41) unshare without braces
(5:41) unshare {whoever}
(0:5) At an emote,
(5:3)
(5:72) divide {n} by {[word2]}
*Endtriggers* 9999 *Endtriggers*
