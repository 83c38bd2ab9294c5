VSPK 01.00 Vorel
(0:45) Every {900} seconds,
(5:2) tell {a quarter}
(0:3) When somebody speaks {1200},
(5:2) tell {any cause with a number is a timer, too}
(0:2) When out of 60 seconds a minute is over,
(5:69) add to {minutes} the number {1}
*Endtriggers* 9999 *Endtriggers*
