#!/usr/bin/env bash
# Holds the picture of the rooms in docs/architecture.md to the table that the build keeps, arrow by arrow.
# Argument: the sources.
set -euo pipefail

# "room from" for each room that a line of the table lets it include from.
arrows_of_table() {
    awk '/^add_room\(/ {
        sub(/^add_room\(/, ""); sub(/\).*/, "")
        taking = 0
        for (i = 2; i <= NF; ++i) {
            if ($i == "FROM") taking = 1
            else if ($i == "LINKS" || $i == "PROGRAM") taking = 0
            else if (taking) print $1, $i
        }
    }' "$1/src/Rooms.cmake"
}

arrows_of_picture() { sed -n 's/^ *\([a-z]*\) --> \([a-z]*\)$/\1 \2/p' "$1/docs/architecture.md"; }

echo "What the build allows (-) and what is drawn (+):"
diff -U0 <(arrows_of_table "$1" | sort) <(arrows_of_picture "$1" | sort)
