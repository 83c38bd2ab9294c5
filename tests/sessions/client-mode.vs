VSPK 01.00 Vorel
(0:1) When connected,
(5:2) tell {up}
(0:2) When disconnected,
(5:2) tell {down}
(0:46) At a client command,
(5:2) tell {[vorel.name] was told [message]}
(0:3) At speech,
(5:2) tell {[player] spoke}
*Endtriggers* 9999 *Endtriggers*
