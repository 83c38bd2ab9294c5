VSPK 01.00 Vorel
Tells every event: its code, and what comes with it.
(0:1) When you are connected to the game,
(5:2) tell {2 [player]}
(0:2) When your connection to the game has ended,
(5:2) tell {3 [player]}
(0:3) When someone says something,
(5:2) tell {4 [player]: [message] ([player.colors][player.gender][player.species][player.markings])}
(0:4) When someone shouts something,
(5:2) tell {5 [player]: [message] ([player.colors][player.gender][player.species][player.markings])}
(0:5) When someone emotes something,
(5:2) tell {6 [player]: [message] ([player.colors][player.gender][player.species][player.markings])}
(0:6) When someone whispers something to you,
(5:2) tell {7 [player]: [message] ([player.colors][player.gender][player.species][player.markings])}
(0:7) When you say something,
(5:2) tell {8 [player]: [message] ([player.colors][player.gender][player.species][player.markings])}
(0:8) When you shout something,
(5:2) tell {9 [player]: [message] ([player.colors][player.gender][player.species][player.markings])}
(0:9) When you emote something,
(5:2) tell {10 [player]: [message] ([player.colors][player.gender][player.species][player.markings])}
(0:10) When you whisper something to someone,
(5:2) tell {11 [player]: [message] ([player.colors][player.gender][player.species][player.markings])}
(0:11) When a notice marked with # arrives,
(5:2) tell {12 [player]: [message]}
(0:12) When you look at someone and see their looks,
(5:2) tell {13 [player] [look.name] [look.colors][look.gender][look.species][look.markings]}
(0:13) When the description of the one you look at arrives,
(5:2) tell {14 [player] [look.badge]/[look.desc]}
(0:14) When someone moves or appears,
(5:2) tell {15 [move.colors] [move.from]-[move.into] ([move.from.x],[move.from.y])-([move.into.x],[move.into.y]) [move.frame], own [vorel.from]-[vorel.into] ([vorel.from.x],[vorel.from.y])-([vorel.into.x],[vorel.into.y])}
(0:15) When you enter Acropolis,
(5:2) tell {16 [map]<[previousmap]}
(0:16) When you enter Allegria Island,
(5:2) tell {17 [map]<[previousmap]}
(0:17) When you enter Furrabian Nights,
(5:2) tell {18 [map]<[previousmap]}
(0:18) When you enter the Imaginarium,
(5:2) tell {19 [map]<[previousmap]}
(0:19) When you enter any map or dream,
(5:2) tell {20 [map]<[previousmap]}
(0:20) When a visitor has arrived,
(5:2) tell {21 [player.name] of [visitors]}
(0:21) When a visitor is still here,
(5:2) tell {22 [player]}
(0:22) When a visitor has left,
(5:2) tell {23 [player]}
(0:23) When the list of visitors is up to date,
(5:2) tell {24 [player]}
(0:24) When someone uses their breath,
(5:2) tell {25 [breath.x],[breath.y]}
(0:25) When someone uses their flame,
(5:2) tell {26 [flame.x],[flame.y]}
(0:26) When someone asks to join you,
(5:2) tell {27 [player]}
(0:27) When someone asks you to join them,
(5:2) tell {28 [player]}
(0:28) When someone joins you,
(5:2) tell {29 [player]}
(0:29) When someone summons you,
(5:2) tell {30 [player]}
(0:30) When a system notice that begins with You arrives,
(5:2) tell {31 [player]}
(0:31) When a notice that begins with Your arrives,
(5:2) tell {32 [player]}
(0:32) When someone summons you after accepting your request,
(5:2) tell {33 [player]}
(0:33) When someone joins you after accepting your request,
(5:2) tell {34 [player]}
(0:34) When a system notice about a player arrives,
(5:2) tell {35 [player]}
(0:35) When you hear that someone is online,
(5:2) tell {36 [player]}
(0:36) When you hear that someone is not online,
(5:2) tell {37 [player]}
(0:37) When the dream reports a trigger that you set off,
(5:2) tell {38 [dsbot.from.x],[dsbot.from.y] [dsbot.into.x],[dsbot.into.y] [dsbot.trigger]@[dsbot.trigger.x],[dsbot.trigger.y]}
(0:38) When the dream reports a trigger that someone set off,
(5:2) tell {39 [ds.from.x],[ds.from.y] [ds.into.x],[ds.into.y] [ds.trigger]@[ds.trigger.x],[ds.trigger.y]}
(0:39) When someone gives a cookie to someone else,
(5:2) tell {40 [player], [cookiename]}
(0:40) When you give someone a cookie,
(5:2) tell {41 [player], [cookiename]}
(0:41) When someone gives you a cookie,
(5:2) tell {42 [player], [cookiename]}
(0:42) When the game tells its time,
(5:2) tell {43 [fst], [fst.time], [fst.hour] [fst.minute] [fst.second] [fst.median]}
(0:43) When dice are rolled and only their sum is told,
(5:2) tell {44 [player] [dice.amount]d[dice.sides] [dice.total]: [die1] [die2]}
(0:44) When dice are rolled and each of them is told,
(5:2) tell {45 [player] [dice.amount]d[dice.sides] [dice.total]: [die1] [die2]}
(0:47) When a dream appears on the map,
(5:2) tell {48 [dream.name] [dream.x],[dream.y]}
(0:48) When a dream vanishes from the map,
(5:2) tell {49 [dream.x],[dream.y]}
*Endtriggers* 9999 *Endtriggers*
