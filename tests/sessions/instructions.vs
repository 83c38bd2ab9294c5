VSPK 01.00 Vorel
(0:2) When disconnected,
(5:2) tell {out}
(0:45) Every {15} seconds,
(5:69) add to {quarters} the number {1}
(0:19) When a dream is entered,
(5:86) walk to {4} {4}
*Endtriggers* 9999 *Endtriggers*
