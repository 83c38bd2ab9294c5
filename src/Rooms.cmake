# The rooms of the house. FROM names the rooms that a room may include from; those that they stand on come with them.
# What a room may not know is not on its include path. docs/architecture.md draws this table, and a test compares the two.

# Text of the game in 8 bits, 16-bit numbers, the fault. The standard library alone.
add_room(text)

# What the game itself is made of: squares, looks, base 95, names, lists of them, patterns.
add_room(game      FROM text)

# What a bot is: its state, events, variables, the data of its profile, and the ports through which it touches the world.
add_room(bot       FROM game)

# Every line that goes to the game.
add_room(send      FROM bot)

# The walk.
add_room(movement  FROM send)

# Scripts: read, conditions, effects, the dispatcher, data files, taking up a script.
add_room(engine    FROM movement)

# Profile, settings and the logic of their dialog, read and written.
add_room(profile   FROM engine)

# The lines of the server and the client, and the session.
add_room(net       FROM engine)

# What every command, event and variable is called and means.
add_room(language  FROM engine)

# The stand-in world, written sessions, recordings.
add_room(rehearsal FROM net)

# What the machine gives.
add_room(platform  FROM net LINKS Qt6::Core Qt6::Network)

# The practice dream.
add_room(practice  FROM game LINKS Qt6::Core Qt6::Network)

# The programs: the windows of tvorel, a library that the tests can open; what opens them; and vorel.
add_room(ui        FROM platform practice profile language LINKS Qt6::Widgets Qt6::Svg ${QSCINTILLA_LIBRARY})
add_room(program   FROM ui PROGRAM tvorel)
add_room(cli       FROM rehearsal platform practice profile PROGRAM vorel LINKS CLI11::CLI11)
