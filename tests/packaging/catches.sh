#!/usr/bin/env bash
# Holds that faults are caught only where a program's loop begins and where a session is played. What can go wrong
# elsewhere is an Outcome. Argument: the sources.
set -euo pipefail
cd "$1"

echo "Where faults may be caught (-) and where they are (+):"
diff -U0 - <(grep -roE 'catch ?\(\s*(const )?(::)?(RuntimeFault|std::exception|\.\.\.)' src | cut -d: -f1 | sort) <<'FILES'
src/cli/main.cpp
src/platform/Guarded.h
src/platform/QtHost.cpp
src/practice/PracticeServer.cpp
src/program/tvorel.cpp
src/rehearsal/Rehearsal.cpp
FILES
