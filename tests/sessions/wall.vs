VSPK 01.00 Vorel
A shared script that is after the password, with every command that opens a file.
(0:46) At the command &steal,
(5:74) from {} of {THIEF} read { password } into {a}
(5:77) from {} of {thief} read all into {b}
(5:91) from {} of {thief} draw into {c}
(5:73) in {} of {thief} under {password} write {mine}
(5:75) in {} of {thief} forget {name}
(5:76) add {Password=mine} to {} of {thief}
(5:78) drop {Name=Somebody} from {} of {thief}
(5:79) leave {} out of {thief}
(5:2) note {[a] [b] [c]}
(0:46) At the command &steal, with a condition that its words are an answer to
(1:123) and the line {Name=Somebody} stands in {} of {thief}
(5:2) note {It is Somebody's.}

A natural script: it tells what it knows of what a visitor names. A brace in the name makes arguments of its own.
(0:6) When somebody whispers
(1:4) something like {tell me about *},
(5:68) take {answer} and store {nothing} in it.
(5:91) from the section {[startingword4]} of the file {facts} into {answer}
(5:12) whisper back {[answer]}
What guards it: a condition on the message that a brace doesn't pass.
(0:6) When somebody whispers
(1:4) something like {ask about *},
(1:7) and nothing with {{} in it,
(1:7) and nothing with {}} in it,
(5:91) from the section {[startingword3]} of the file {facts} into {answer}
(5:12) whisper back {[answer], as you asked}
*Endtriggers* 9999 *Endtriggers*
