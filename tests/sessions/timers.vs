VSPK 01.00 Vorel
(0:45) Every {900} seconds,
(5:2) tell {a quarter}
(0:3) When somebody speaks {1200},
(5:2) tell {any cause with a number is a timer, too}
(0:2) When out of 60 seconds a minute is over,
(5:69) add to {minutes} the number {1}
(0:1) When connected,
(5:68) {n} and store {1800}
(0:7) Every [n] seconds,
(5:2) tell {half an hour}
(0:7) Every 1700 seconds, which the full hour cuts short,
(5:2) tell {1700, or the hour}
(0:7) Every 3600 seconds, not every 7200,
(5:2) tell {an hour}
(0:7) Every 0 7 seconds, which is never,
(5:2) tell {WRONG}
(0:7) Every 65537 seconds, which is past 16 bits,
(5:2) tell {WRONG}
*Endtriggers* 9999 *Endtriggers*
