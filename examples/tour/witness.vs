VSPK 01.00 Vorel

The witness: one trigger for each thing that a bot can be told, which writes down on the
console what it has heard. Look here for how an event is called and what it carries.

(0:3) When somebody speaks,
   (5:2) note {event 4, somebody speaks: [player]: [message]}

(0:4) When somebody shouts,
   (5:2) note {event 5, somebody shouts: [player]: [message]}

(0:5) When somebody emotes,
   (5:2) note {event 6, somebody emotes: [player] [message]}

(0:6) When somebody whispers to the bot,
   (5:2) note {event 7, somebody whispers to the bot: [player]: [message]}

(0:7) When the bot speaks,
   (5:2) note {event 8, the bot speaks: [message]}

(0:8) When the bot shouts,
   (5:2) note {event 9, the bot shouts: [message]}

(0:9) When the bot emotes,
   (5:2) note {event 10, the bot emotes: [message]}

(0:10) When the bot whispers,
   (5:2) note {event 11, the bot whispers: to [player]: [message]}

(0:11) When a notice of the dream comes,
   (5:2) note {event 12, a notice of the dream comes: [message]}

(0:12) When the bot looks at a furre,
   (5:2) note {event 13, the bot looks at a furre: [look.name], colours [look.colors]}

(0:13) When the description of that furre comes,
   (5:2) note {event 14, the description of that furre comes: [look.desc]}

(0:14) When a furre moves or appears,
   (5:2) note {event 15, a furre moves or appears: [move.colors] from [move.from] into [move.into]}

(0:15) When the bot enters Acropolis,
   (5:2) note {event 16, the bot enters Acropolis: [map]}

(0:16) When the bot enters Allegria Island,
   (5:2) note {event 17, the bot enters Allegria Island: [map]}

(0:17) When the bot enters Furrabian Nights,
   (5:2) note {event 18, the bot enters Furrabian Nights: [map]}

(0:18) When the bot enters Imaginarium,
   (5:2) note {event 19, the bot enters Imaginarium: [map]}

(0:19) When the bot enters any map or dream,
   (5:2) note {event 20, the bot enters any map or dream: [map], from [previousmap]}

(0:20) When a visitor has come,
   (5:2) note {event 21, a visitor has come: [player]}

(0:21) When a visitor is still there,
   (5:2) note {event 22, a visitor is still there: [player]}

(0:22) When a visitor has gone,
   (5:2) note {event 23, a visitor has gone: [player]}

(0:23) When the list of visitors is new,
   (5:2) note {event 24, the list of visitors is new: [visitors]}

(0:24) When somebody breathes,
   (5:2) note {event 25, somebody breathes: ([breath.x],[breath.y])}

(0:25) When somebody breathes fire,
   (5:2) note {event 26, somebody breathes fire: ([flame.x],[flame.y])}

(0:26) When somebody asks to join the bot,
   (5:2) note {event 27, somebody asks to join the bot: [player]}

(0:27) When somebody asks the bot to come,
   (5:2) note {event 28, somebody asks the bot to come: [player]}

(0:28) When somebody joins the bot,
   (5:2) note {event 29, somebody joins the bot: [player]}

(0:29) When somebody summons the bot,
   (5:2) note {event 30, somebody summons the bot: [player]}

(0:30) When a notice says what you did,
   (5:2) note {event 31, a notice says what you did: [player]}

(0:31) When a notice speaks of your request,
   (5:2) note {event 32, a notice speaks of your request: [player]}

(0:32) When the bot is summoned, as it had asked,
   (5:2) note {event 33, the bot is summoned, as it had asked: [player]}

(0:33) When somebody comes, as the bot had asked,
   (5:2) note {event 34, somebody comes, as the bot had asked: [player]}

(0:34) When a player is not here,
   (5:2) note {event 35, a player is not here: [player]}

(0:35) When a player is online,
   (5:2) note {event 36, a player is online: [player]}

(0:36) When a player is not online,
   (5:2) note {event 37, a player is not online: [player]}

(0:37) When the bot sets off a trigger,
   (5:2) note {event 38, the bot sets off a trigger: [dsbot.trigger] at ([dsbot.trigger.x],[dsbot.trigger.y])}

(0:38) When somebody sets off a trigger,
   (5:2) note {event 39, somebody sets off a trigger: [ds.trigger] at ([ds.trigger.x],[ds.trigger.y])}

(0:39) When a cookie is given to somebody else,
   (5:2) note {event 40, a cookie is given to somebody else: [player] to [cookiename]}

(0:40) When the bot gives a cookie,
   (5:2) note {event 41, the bot gives a cookie: to [player]}

(0:41) When the bot is given a cookie,
   (5:2) note {event 42, the bot is given a cookie: by [player]}

(0:42) When the game tells its time,
   (5:2) note {event 43, the game tells its time: [fst.time]}

(0:43) When the sum of dice is thrown,
   (5:2) note {event 44, the sum of dice is thrown: [player]: [dice.amount]d[dice.sides] = [dice.total]}

(0:44) When dice are thrown,
   (5:2) note {event 45, dice are thrown: [player]: [dice.amount]d[dice.sides] = [dice.total], the first [die1]}

(0:47) When a dream opens,
   (5:2) note {event 48, a dream opens: [dream.name] at ([dream.x],[dream.y])}

(0:48) When a dream closes,
   (5:2) note {event 49, a dream closes: at ([dream.x],[dream.y])}

*Endtriggers* 9999 *Endtriggers*
