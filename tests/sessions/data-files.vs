VSPK 01.00 Vorel
(0:46) At the command &note,
(5:73) in {Seen} of {log:book} under {[word1]} write {[startingword2]}
(5:76) add {[word1]|[word2]} to {List} of {log:book}
(0:4) At a shout,
(5:74) from {SEEN} of {LOG:BOOK} take {[player]} into {found}
(5:77) read {list} of {log_book} into {all}
(5:2) tell {[found]; [all]}
(0:5) At an emote,
(5:75) in {Seen} of {log_book} forget {[player]}
(5:78) drop {[player] waves} from {List} of {log_book}
(5:77) read {list} of {log_book} into {all}
(5:91) and draw from {List} of {log_book} into {one}
(5:2) tell {[all]; [one]}

A file of somebody's own making, with LF, parts of sections, an odd header and an odd key: it is written with CR LF.
(0:10) When it whispers itself, reading:
(5:74) from {s} of {old?} take {K} into {first}
(5:74) from {S} of {old_} take {LATE} into {later}
(5:74) from {S} of {old_} take {=} into {no key ends at the first character}
(5:74) from {S} of {old_} take {none} into {none}
(5:74) from {S}} of {old_} take {k} into {past a brace too many}
(5:74) from {S} of {old_} {three groups}
(5:2) tell {[first]; [later]; [no key ends at the first character]; [none]; [past a brace too many]}
(5:77) read {s} of {old_} into {parts}
(5:77) read {} of {old_} into {front}
(5:77) read {nothing} of {old_} into {nothing}
(5:77) read {Empty} of {old_} into {empty}
(5:91) draw from {Empty} of {old_} into {drawn}
(5:2) tell {[parts]; [front]; [nothing]; [empty]; [drawn]}
(5:74) from {kept} of {READ} take {as} into {as}
(5:2) tell {[as]}
(0:9) When it emotes itself,
(5:91) draw from {Draw} of {old_} into {a}
(5:91) draw from {Draw} of {old_} into {b}
(5:91) draw from {Draw} of {old_} into {c}
(5:91) draw from {Draw} of {old_} into {d}
(5:2) tell {[a] [b] [c] [d]}
(0:10) When it whispers itself, writing:
(5:75) in {s} of {old_} forget {K}
(5:75) in {S} of {old_} forget {}
(5:73) in {s} of {old_} under {K} write {first of the part}
(5:73) in {S} of {old_} under {late} write {found in a later part}
(5:73) in {S} of {old_} under {new} write {at the end of the first part}
(5:73) in {S} of {old_} under {three groups}
(5:73) in {U} of {old_} under {key} write {in a section at the end}
(5:76) add {a line} to {t} of {old_}
(5:78) drop {a|b} from {s} of {old_}
(5:78) drop {no such line} from {s} of {old_}
(5:79) leave {twice} out of {old_}
(5:79) leave {only} out of {only}
(0:10) When it whispers itself, without a file:
(5:74) from {s} of {none} take {k} into {none}
(5:75) in {s} of {none} forget {k}
(5:77) read {s} of {none} into {none}
(5:78) drop {line} from {s} of {none}
(5:79) leave {s} out of {none}
(5:91) draw from {s} of {none} into {none}
(5:2) tell {[none]}
*Endtriggers* 9999 *Endtriggers*
