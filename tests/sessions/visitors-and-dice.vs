VSPK 01.00 Vorel
(0:20) When somebody comes,
(5:2) tell {+[player]}
(0:21) When somebody stays,
(5:2) tell {=[player]}
(0:22) When somebody leaves,
(5:2) tell {-[player]}
(0:23) When the visitors are known,
(5:2) tell {[visitors] ([visitorcount])}
(0:43) When a total is rolled,
(5:54) roll {1[dice.amount]} dice of {[dice.sides]}
(0:44) When dice are rolled,
(5:8) say {[player] rolled [die1] and [die2], [die3], [dice.total] in all}
(0:41) When a cookie is given to it,
(5:8) say {Thank you, [player]}
(0:40) When it gives a cookie,
(5:2) tell {[player] got one from [cookiename]}
*Endtriggers* 9999 *Endtriggers*
