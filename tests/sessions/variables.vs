VSPK 01.00 Vorel
Names with and without brackets, and numbers
(0:0) When this script is loaded,
(5:68) {n} and store {a}b}
(5:2) {[n]}
(5:68) {n]} and store {}
(5:68) {N} and store {5}
(5:2) {now empty: [n]}
(5:69) {n} {7}
(5:69) {n}
(5:69) {n {1}
(5:69) {n} {100} {0.1}
(5:2) {[n]}
(5:71) {n} {-0}
(5:69) {n} {7 dwarfs}
(5:72) {n} {3}
(5:2) {[n]}
(5:69) {added} {0.5}
(5:70) {subtracted} {0.5}
(5:71) {multiplied} {0.5}
(5:72) {divided} {0.5}
(5:72) {undivided} {0}
(5:2) {[added] [subtracted] [multiplied] [divided] [undivided]}

Variables that each need a pass of their own: the line of an effect has one, and each sender adds its own.
(0:19) When you enter any map or dream,
 (1:129) {[map]}
(5:89) nothing is left,
(5:68) {a} and store {done}
(5:68) {p} and store {[a}
(5:68) {b} and store {[p]]}
(5:68) {q} and store {[b}
(5:68) {c} and store {[q]]}
(5:68) {r} and store {[c}
(5:68) {d} and store {[r]]}
(5:68) {s} and store {[d}
(5:68) {e} and store {[s]]}
(5:2) {[e]}
(5:40) {[e]}
(5:42) {[e]}
(5:43) {[e]}
(5:13) {[e]}
(5:68) {n} and store {A B}
(5:68) {m} and store {[n}
(5:68) {name} and store {[m]]}
(5:11) {[name]} to {[name]}
(5:68) {x} and store {}
(5:68) {y} and store {[x}
(5:68) {z} and store {[y]]}
(5:22) {[z]}
(5:68) {player} and store {mine}
(0:3) When someone says something,
(5:2) {[player]}
*Endtriggers* 9999 *Endtriggers*
