#!/usr/bin/env bash
# Holds the picture of the rooms in docs/architecture.md to what the build keeps, room by room and arrow by arrow, and
# that no file goes round it by a path of its own. Arguments: the sources, the build.
set -euo pipefail

# The first picture: "room NAME" for a box, "NAME FROM" for an arrow, and what is neither as it stands.
drawn() {
    sed -n '/^flowchart/,/^```/p' "$1/docs/architecture.md" |
        sed -E '/^flowchart|^```$|^ *$|^ *(subgraph .*|end)$/d
                s/^ *([a-z]+)\["[^"]*"\]$/room \1/; s/^ *([a-z]+) --> ([a-z]+)$/\1 \2/'
}

echo "What the build allows (-) and what is drawn (+), and includes that begin with a dot:"
diff -U0 <(sort "$2/src/arrows") <(drawn "$1" | sort)
! grep -rnE '#include *"\.' "$1/src"
