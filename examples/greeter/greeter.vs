VSPK 01.00 Vorel

The greeter: a bot that welcomes visitors, answers whispers, rolls dice, goes for a walk
and remembers what it is told. Change a line, save, and see what it does differently.

Lines like this one, which begin with a letter, are remarks. A line that begins with a
number in parentheses is a command: (0:n) says when something is to happen, (1:n) under
which further condition, (5:n) what the bot does then. Words in square brackets are
variables: [player] is the furre it is all about, [message] what was said.
Remarks must not begin with a parenthesis.


*** When the script is loaded, and when the bot is connected ***

(0:0) When the script is loaded,
     (5:2) show the note {The greeter is ready: whisper hello, roll, walk, remember tea, or recall to it.}

(0:1) When the bot is connected,
     (5:21) ask who is here.


*** Greeting: the game does not say when somebody arrives, so the bot asks every few seconds ***

(0:45) Every {3} seconds,
     (5:21) ask who is here.

(0:20) When a visitor has arrived
 (1:1) and it is not {[vorel.name]},
     (5:8) say {Welcome, [player]! Whisper hello to me.}

(0:22) When a visitor has left
 (1:1) and it was not {[vorel.name]},
     (5:10) do {waves after [player].}


*** Whispers ***

(0:6) When somebody whispers
 (1:6) something with {hello} in it,
     (5:12) whisper back {Hello, [player]! Try roll, walk, remember and recall.}

(0:6) When somebody whispers
 (1:2) just {roll},
     (5:54) roll {2} dice of {6} sides.

(0:44) When somebody has rolled dice
 (1:100) with {2} dice
 (1:111) and a total above {7},
     (5:8) say {[player] rolled [die1] and [die2]: [dice.total], well done!}

(0:44) When somebody has rolled dice
 (1:100) with {2} dice
 (1:108) and a total of at most {7},
     (5:8) say {[player] rolled [die1] and [die2]: [dice.total].}


*** A walk round the end of the wall: the bot tries another way where it can't go on ***

(0:6) When somebody whispers
 (1:2) just {walk},
     (5:8) say {I am at [vorel.into] and walk to the other side of the wall.}
     (5:86) walk to the column {24} and the row {20}.

(0:14) When a furre has moved
 (1:84) with the colors {[vorel.colors]}, which are the bot's own,
 (1:88) to the column {24} and the row {20},
     (5:8) say {Here I am, at [vorel.into]!}

(0:6) When somebody whispers
 (1:2) just {walk back},
     (5:8) say {I am at [vorel.into] and walk back.}
     (5:86) walk to the column {30} and the row {15}.


*** What the bot is told to remember goes into the data file memories.ini ***

(0:6) When somebody whispers
 (1:4) something like {remember *},
 (1:7) and nothing with {}} in it, which would end the line too early,
     (5:76) write the line {[startingword2]} into the section {[player]} of the file {memories}.
     (5:12) whisper back {I will remember [startingword2].}

(0:6) When somebody whispers
 (1:2) just {recall},
     (5:68) take {memory} and store {nothing yet} in it.
     (5:91) from the section {[player]} of the file {memories} read a line into {memory}.
     (5:12) whisper back {You told me: [memory]}


*** Company ***

(0:26) When somebody asks to join the bot,
     (5:47) let them come.

(0:41) When somebody gives the bot a cookie,
     (5:8) say {Thank you for the cookie, [player]!}

(0:6) When somebody whispers
 (1:6) something with {goodbye} in it,
     (5:12) whisper back {Goodbye, [player]. It was nice to have you here.}

*Endtriggers* 9999 *Endtriggers*
