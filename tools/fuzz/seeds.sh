# The inputs that the fuzz targets begin with, made of the tests and the examples. Sourced by scripts/fuzz.

# Writes each line of standard input into a file of its own.
a_file_each() { mkdir -p "$1"; split -l 1 -a 4 - "$1/line-"; }

# Copies files; their folders go into their names.
copies() {
    local file
    mkdir -p "$1"
    for file in "${@:2}"; do cp "$file" "$1/${file//\//-}"; done
}

seeds_for_server() {
    { sed -n 's/^server //p' tests/sessions/*.txt; sed -n 's/^[A-Z][a-z]*< //p' tests/practice/dream.txt; } | sort -u |
        sed 's/$/\r/' | tr '\r' '\n' | grep -v '^$' | a_file_each "$1"
    sed -n 's/^server //p' tests/sessions/protocol.txt >"$1/all"
}
seeds_for_clients() {
    { sed -n 's/^client //p; s/^type />/p' tests/sessions/*.txt; sed -n 's/^[A-Z][a-z]*> //p' tests/practice/dream.txt; } |
        sort -u | a_file_each "$1"
}
seeds_for_scripts() {
    copies "$1" examples/*/*.vs tests/sessions/*.vs
    # Every command of the language, with its arguments.
    grep -h '^([15]:' tests/language/*.txt | a_file_each "$1"
    sed -i '1i (0:6) when somebody whispers,' "$1"/line-*
}
seeds_for_walkers() { seeds_for_scripts "$1"; }
seeds_for_files() { copies "$1" examples/*/*.tvm examples/*/*.ini tests/sessions/*.tvm tests/sessions/*.ini tests/sessions/*/*; }
seeds_for_sessions() { copies "$1" examples/*/rehearsal.txt tests/sessions/*.txt; }
seeds_for_tours() {
    copies "$1" examples/*/tour.txt
    grep -h '^| `' docs/practice.md | grep -o '`[^`]*`' | tr -d '`' | a_file_each "$1"
    { printf 'pause\nclients\n'; sed -n 's/^[A-Z][a-z]*> //p' tests/practice/dream.txt; } >"$1/clients"
}
seeds_for_visitors() {
    sed -nE 's/.*\(1:[246]\)[^{]*\{([^}]*)\}.*/w\1/p' examples/*/*.vs | a_file_each "$1"
    sed -nE 's/.*\(1:[246]\)[^{]*\{([^}]*)\}.*/w\1/p' examples/*/*.vs | sed 's/\*/tea/; s/$/\nt/' >"$1/all"
    sed -n 's/^[A-Z][a-z]*> />/p' tests/practice/dream.txt | a_file_each "$1/commands"
}

# The words of the language, for all targets.
dictionary() { grep -oE '\[[a-z.0-9]+\]' docs/language.md | sort -u | sed 's/.*/"&"/'; }
