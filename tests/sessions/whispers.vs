VSPK 01.00 Vorel
(0:6) When whispered to,
(5:12) answer {[word1]: [startingword2], [player.name] of [player.colors]}
(0:6) When whispered to,
(1:0) and the player is named {some furre},
(5:47) summon them
(0:10) When it whispers itself,
(5:2) tell {told [player]: [message]}
*Endtriggers* 9999 *Endtriggers*
