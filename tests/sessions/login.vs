VSPK 01.00 Vorel

Says hello to who comes, where it may speak.
(0:0) When the script has been loaded,
(5:2) tell {[vorel.owners] may command me}
(0:1) When connected,
(5:2) tell {in as [vorel.name] ([vorel.colors][vorel.gender][vorel.species][vorel.markings])}
(5:21) ask who is here
(0:2) When disconnected,
(5:2) tell {out}
(5:0) and back again
(0:20) When somebody comes,
(5:8) say {Welcome to [map], [player]!}
(0:19) When a dream is entered,
(5:2) tell {from [previousmap] to [map]}
*Endtriggers* 9999 *Endtriggers*
