(0:0) When this script is loaded,
(0:1) When you are connected to the game,
(0:2) When your connection to the game has ended,
(0:3) When someone says something,
(0:4) When someone shouts something,
(0:5) When someone emotes something,
(0:6) When someone whispers something to you,
(0:7) When you say something,
(0:8) When you shout something,
(0:9) When you emote something,
(0:10) When you whisper something to someone,
(0:11) When a notice marked with # arrives,
(0:12) When you look at someone and see their looks,
(0:13) When the description of the one you look at arrives,
(0:14) When someone moves or appears,
(0:15) When you enter Acropolis,
(0:16) When you enter Allegria Island,
(0:17) When you enter Furrabian Nights,
(0:18) When you enter the Imaginarium,
(0:19) When you enter any map or dream,
(0:20) When a visitor has arrived,
(0:21) When a visitor is still here,
(0:22) When a visitor has left,
(0:23) When the list of visitors is up to date,
(0:24) When someone uses their breath,
(0:25) When someone uses their flame,
(0:26) When someone asks to join you,
(0:27) When someone asks you to join them,
(0:28) When someone joins you,
(0:29) When someone summons you,
(0:30) When a system notice that begins with You arrives,
(0:31) When a notice that begins with Your arrives,
(0:32) When someone summons you after accepting your request,
(0:33) When someone joins you after accepting your request,
(0:34) When a system notice about a player arrives,
(0:35) When you hear that someone is online,
(0:36) When you hear that someone is not online,
(0:37) When the dream reports a trigger that you set off,
(0:38) When the dream reports a trigger that someone set off,
(0:39) When someone gives a cookie to someone else,
(0:40) When you give someone a cookie,
(0:41) When someone gives you a cookie,
(0:42) When the game tells its time,
(0:43) When dice are rolled and only their sum is told,
(0:44) When dice are rolled and each of them is told,
(0:45) Every {seconds} seconds,
(0:46) When a command with & is typed for you,
(0:47) When a dream appears on the map,
(0:48) When a dream vanishes from the map,
(1:0) and they are called {name},
(1:1) and they are not called {name},
(1:2) and they said {text},
(1:3) and they said something other than {text},
(1:4) and they said something like {pattern},
(1:5) and they said nothing like {pattern},
(1:6) and they said something with {text} in it,
(1:7) and they said something without {text} in it,
(1:8) and the description reads {text},
(1:9) and the description does not read {text},
(1:10) and the description is like {pattern},
(1:11) and the description is not like {pattern},
(1:12) and the description has {text} in it,
(1:13) and the description does not have {text} in it,
(1:14) and their species code is #,
(1:15) and their species code is not #,
(1:16) and their markings code is 5,
(1:17) and their markings code is not 5,
(1:18) and their species code is !,
(1:19) and their species code is not !,
(1:20) and their species code is ],
(1:21) and their markings code is not ],
(1:22) and their species code is ",
(1:23) and their species code is not ",
(1:24) and their species code is %,
(1:25) and their species code is not %,
(1:26) and their species code is $,
(1:28) and their species code is ?,
(1:29) and their markings code is not ?,
(1:30) and their gender code is !,
(1:31) and their gender code is not !,
(1:32) and their gender code is a blank,
(1:33) and their gender code is not a blank,
(1:34) and their gender code is ",
(1:35) and their gender code is not ",
(1:36) and they have a badge,
(1:37) and they have no badge,
(1:38) and their badge code is i or I,
(1:39) and their badge code is neither i nor I,
(1:40) and their badge code is one of Q R S T,
(1:41) and their badge code is none of Q R S T,
(1:42) and their badge code is one of E F G H,
(1:43) and their badge code is none of E F G H,
(1:44) and their badge code is j,
(1:45) and their badge code is not j,
(1:46) and their badge code is one of ] ^ _ `,
(1:47) and their badge code is none of ] ^ _ `,
(1:48) and their badge code is one of A B C D,
(1:49) and their badge code is none of A B C D,
(1:50) and their badge code is one of I J K L,
(1:51) and their badge code is none of I J K L,
(1:52) and their badge code is one of e f g h,
(1:53) and their badge code is none of e f g h,
(1:54) and their badge code is one of U V W X,
(1:55) and their badge code is none of U V W X,
(1:56) and their badge code is one of M N O P,
(1:57) and their badge code is none of M N O P,
(1:58) and their badge code is one of a b c d,
(1:59) and their badge code is none of a b c d,
(1:60) and their badge code is one of Y Z [ \,
(1:61) and their badge code is none of Y Z [ \,
(1:62) and their badge code is one of A E I M Q U Y ] a e,
(1:63) and their badge code is none of A E I M Q U Y ] a e,
(1:64) and their badge code is one of B F J N R V Z ^ b f,
(1:65) and their badge code is none of B F J N R V Z ^ b f,
(1:66) and their badge code is one of C G K O S W [ _ c g,
(1:67) and their badge code is none of C G K O S W [ _ c g,
(1:68) and their badge code is one of D H L P T X \ ` d h,
(1:69) and their badge code is none of D H L P T X \ ` d h,
(1:70) and you are on the map {map},
(1:71) and you are not on the map {map},
(1:72) and you came from the map {map},
(1:73) and you did not come from the map {map},
(1:74) and {name} is among the visitors,
(1:75) and {name} is not among the visitors,
(1:76) and the game's hour is {hour},
(1:77) and the game's hour is not {hour},
(1:78) and the game's minute is {minute},
(1:79) and the game's minute is not {minute},
(1:80) and the game's second is {second},
(1:81) and the game's second is not {second},
(1:82) and the game's time is AM,
(1:83) and the game's time is PM,
(1:84) and the one who spoke, moved or was looked at has the colour code {colors},
(1:85) and the one who spoke or was looked at does not have the colour code {colors},
(1:86) and they came from column {x} and row {y},
(1:87) and they did not come from column {x} and row {y},
(1:88) and they moved to column {x} and row {y},
(1:89) and they did not move to column {x} and row {y},
(1:90) and they now stand at column {x} and row {y},
(1:91) and they do not stand at column {x} and row {y},
(1:92) and whoever set it off came from column {x} and row {y},
(1:93) and whoever set it off did not come from column {x} and row {y},
(1:94) and whoever set it off went to column {x} and row {y},
(1:95) and whoever set it off did not go to column {x} and row {y},
(1:96) and the trigger has the number {number},
(1:97) and the trigger does not have the number {number},
(1:98) and the trigger lies at column {x} and row {y},
(1:99) and the trigger does not lie at column {x} and row {y},
(1:100) and the number of dice is {number},
(1:101) and the number of sides is {number},
(1:102) and die {die} shows less than {number},
(1:103) and die {die} shows at most {number},
(1:104) and die {die} shows exactly {number},
(1:105) and die {die} shows at least {number},
(1:106) and die {die} shows more than {number},
(1:107) and the dice total is less than {number},
(1:108) and the dice total is at most {number},
(1:109) and the dice total is exactly {number},
(1:110) and the dice total is at least {number},
(1:111) and the dice total is more than {number},
(1:112) and the number {number} is less than {limit},
(1:113) and the number {number} is at most {limit},
(1:114) and the number {number} equals {limit},
(1:115) and the number {number} is more than {limit},
(1:116) and the number {number} is at least {limit},
(1:117) and the text {text} is exactly {other},
(1:118) and the text {text} is like {pattern},
(1:119) and the text {text} ends with {ending},
(1:120) and the text {text} is not exactly {other},
(1:121) and the text {text} is not like {pattern},
(1:122) and the text {text} does not end with {ending},
(1:123) and the line {line} stands in the section {section} of the data file {file},
(1:124) and the line {line} does not stand in the section {section} of the data file {file},
(1:125) and you connect without a client,
(1:126) and you connect through a client,
(1:127) and {name} is one of your owners,
(1:128) and {name} is none of your owners,
(1:129) and you may speak on the map {map},
(1:130) and you may not speak on the map {map},
(1:131) and the dream's name is {dream},
(1:132) and the dream's name is not {dream},
(1:133) and the dream lies at column {x} and row {y},
(1:134) and the dream does not lie at column {x} and row {y},
(5:0) connect to the game again.
(5:1) disconnect from the game.
(5:2) show the note {text}.
(5:3) sit down.
(5:4) stand up.
(5:5) lie down.
(5:6) get what lies here.
(5:7) use what you carry.
(5:8) say {text}.
(5:9) shout {text}.
(5:10) emote {text}.
(5:11) whisper {text} to {name}.
(5:12) whisper {text} to them.
(5:13) emit {text}.
(5:14) emit {text} loudly.
(5:15) describe yourself as {text}.
(5:16) go to the main map *.
(5:17) go to the main map #.
(5:18) go to the main map %.
(5:19) go to the main map (.
(5:20) go back to the map you came from.
(5:21) ask who is here.
(5:22) make the moves {moves}.
(5:23) look at {name}.
(5:24) look at column {x} and row {y}.
(5:25) give the command shield.
(5:26) let only the owner upload here.
(5:27) let those you share with upload here.
(5:28) let everyone upload here.
(5:29) let only the owner use the pads here.
(5:30) let those you share with use the pads here.
(5:31) let everyone use the pads here.
(5:32) share the dream with {name}.
(5:33) share the dream with them.
(5:34) eject {name} from the dream.
(5:35) eject them from the dream.
(5:36) greet those who enter with {text}.
(5:37) greet those who enter with the music {number}.
(5:38) unload your dream.
(5:39) unload all your dreams.
(5:40) unload the dream {dream}.
(5:41) stop sharing the dream with {them}.
(5:42) stop sharing the dream with the furre {name}.
(5:43) ask whether {name} is online.
(5:44) join {name}.
(5:45) join them.
(5:46) summon {name}.
(5:47) summon them.
(5:48) give the command parental.
(5:49) ask for the description tags.
(5:50) ask for the game's time.
(5:51) ask for the news.
(5:52) ask for the events.
(5:53) roll {number} dice of {sides} sides for their sum.
(5:54) roll {number} dice of {sides} sides one by one.
(5:55) give the command dragon.
(5:56) give the command phoenix.
(5:57) give the command gryffe.
(5:58) give the command eagle.
(5:59) use your breath.
(5:60) use your flame.
(5:61) make a cookie for them.
(5:62) make a cookie for {name}.
(5:63) make a cookie with the words {text} for them.
(5:64) make out a cookie with the words {text} to {name}.
(5:66) give your cookie to {name}.
(5:67) eat your cookie.
(5:68) take the variable {variable} and store {value} in it.
(5:69) add to the variable {variable} the number {number}.
(5:70) subtract from the variable {variable} the number {number}.
(5:71) multiply the variable {variable} by the number {number}.
(5:72) divide the variable {variable} by the number {number}.
(5:73) in the section {section} of the data file {file} set the entry {key} to the value {value}.
(5:74) in the section {section} of the data file {file} find the entry {key} and keep its value in the variable {variable}.
(5:75) in the section {section} of the data file {file} delete the entry {key}.
(5:76) write the line {line} into the section {section} of the data file {file}.
(5:77) from the section {section} of the data file {file} read all lines into the variable {variable}.
(5:78) delete the line {line} from the section {section} of the data file {file}.
(5:79) delete the section {section} from the data file {file}.
(5:80) connect without a client from now on.
(5:81) connect through a client from now on.
(5:82) make {name} one of your owners.
(5:83) no longer have {name} as your owner.
(5:84) from now on speak on the map {map}.
(5:85) no longer speak on the map {map}.
(5:86) walk to column {x} and row {y}.
(5:87) stop walking.
(5:88) set all variables to 0.
(5:89) delete all variables.
(5:90) delete the variable {variable}.
(5:91) from the section {section} of the data file {file} read a random line into the variable {variable}.
