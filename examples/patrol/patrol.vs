VSPK 01.00 Vorel

The watchman: walks from corner to corner of its round and calls out the time. It shows
timers and walking: the first number in the text of a cause is its interval in seconds.

(0:1) When the bot is connected,
     (5:68) take {corner} and store {0} in it.
     (5:8) say {My round begins.}

(0:45) Every {8} seconds,
     (5:69) add to {corner} the number {1}.
     (5:50) ask for the time.

(0:45) Every {8} seconds,
 (1:114) when {[corner]} equals {1},
     (5:86) walk to the column {26} and the row {20}.

(0:45) Every {8} seconds,
 (1:114) when {[corner]} equals {2},
     (5:86) walk to the column {32} and the row {15}.

(0:45) Every {8} seconds,
 (1:113) when {3} is at most {[corner]},
     (5:86) walk to the column {26} and the row {15}.
     (5:68) take {corner} and store {0} in it.


*** The answer to the question for the time ***

(0:42) When the game has told its time
 (1:82) and it is before noon,
     (5:8) say {It is [fst.time], and a good morning. I am at [vorel.into].}

(0:42) When the game has told its time
 (1:83) and it is after noon,
     (5:8) say {It is [fst.time], and all is quiet. I am at [vorel.into].}


*** Whoever wants the watchman to rest whispers so ***

(0:6) When somebody whispers
 (1:2) just {halt},
     (5:87) stop the walk.
     (5:12) whisper back {I stand at [vorel.into].}

*Endtriggers* 9999 *Endtriggers*
