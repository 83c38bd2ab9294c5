VSPK 01.00 Vorel

The score keeper: everybody may play for points. It shows variables and data files:
points are counted in a variable and kept in the data file scores.ini, one entry a furre.

(0:1) When the bot is connected,
     (5:68) take {rounds} and store {0} in it.

(0:45) Every {5} seconds,
     (5:21) ask who is here.

(0:20) When a visitor has arrived
 (1:1) and it is not {[vorel.name]},
     (5:12) whisper {Whisper play to me, or score.} to it.


*** A round: the bot rolls, and whoever asked last gets the points ***

(0:6) When somebody whispers
 (1:2) just {play},
     (5:68) take {guest} and store {[player]} in it.
     (5:69) add to {rounds} the number {1}.
     (5:54) roll {1} die of {20} sides.

(0:44) When dice have been rolled
 (1:101) with {20} sides,
     (5:68) take {points} and store {0} in it.
     (5:74) from the section {points} of the file {scores} read the entry {[guest]} into {points}.
     (5:69) add to {points} the number {[dice.total]}.
     (5:73) into the section {points} of the file {scores} write for {[guest]} the value {[points]}.
     (5:8) say {Round [rounds]: [guest] gets [dice.total] points and now has [points].}


*** Asking for the score ***

(0:6) When somebody whispers
 (1:2) just {score},
     (5:68) take {points} and store {no} in it.
     (5:74) from the section {points} of the file {scores} read the entry {[player]} into {points}.
     (5:12) whisper back {You have [points] points.}

(0:6) When somebody whispers
 (1:2) just {reset}
 (1:127) and the owners' list holds {[player]},
     (5:79) remove the section {points} from the file {scores}.
     (5:8) say {All scores are gone.}

*Endtriggers* 9999 *Endtriggers*
