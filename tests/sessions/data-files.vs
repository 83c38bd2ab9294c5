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
*Endtriggers* 9999 *Endtriggers*
