#!/usr/bin/env bash
# Installs a build into a folder of the build tree, packs it too, and asks each reader of the installed files whether it
# is content: desktop, software catalogue, MIME database, manual, shell, systemd.
# Arguments: the sources, the build, the version.
set -uo pipefail
sources=$1 build=$2 version=$3
place=$build/packaging-test
root=$place/installed
failures=0

fail() { echo "FAILED: $*" >&2; failures=$((failures + 1)); }

# Runs a checker that has nothing to say about what is right: any word of it counts as a failure.
silent() {
    local said
    said=$("$@" 2>&1) && [ -z "$said" ] || fail "$*: $said"
}

# Links and files with something in them.
files_in() { find "$1" ! -type d ! -empty -printf '%P\n' | sort; }

check_files() { silent comm -23 <(sort "$sources/tests/packaging/expected.txt") <(files_in "$root"); }

# The package holds what is installed, and asks for what the executables load without naming it.
check_package() {
    cpack --config "$build/CPackConfig.cmake" -B "$place" >"$place/cpack" 2>&1 || fail "cpack: $(cat "$place/cpack")"
    dpkg-deb -x "$place"/tandry-vorel_"$version"_*.deb "$place/unpacked" || return
    silent diff <(files_in "$root") <(files_in "$place/unpacked/usr")
    dpkg-deb -f "$place"/*.deb Depends | grep -q libqt6svg6 || fail "the package does not ask for the reader of icons"
}

check_desktop() {
    local desktop=$root/share/applications/org.tandryvorel.tvorel.desktop metainfo type
    metainfo=$(echo "$root"/share/metainfo/*.xml)
    silent desktop-file-validate "$desktop"
    appstreamcli validate --no-net "$metainfo" >"$place/appstream" 2>&1 || fail "$(cat "$place/appstream")"
    grep -q "<release version=\"$version\"" "$metainfo" || fail "the metadata have no release $version"
    XDG_DATA_DIRS=$root/share silent update-mime-database "$root/share/mime"
    for type in application/x-tandry-vorel-profile text/x-vorelspeak; do
        grep -q ":$type:" "$root/share/mime/globs2" || fail "no file ending has the type $type"
        grep -q "^MimeType=.*$type;" "$desktop" || fail "the desktop entry does not open $type"
    done
}

warnings_of() { man --warnings -E UTF-8 -Tutf8 -Z -l "$1" 2>&1 >/dev/null; }

check_manual() {
    local page
    for page in "$root"/share/man/man1/*.gz; do silent warnings_of "$page"; done
}

# What the program says of itself: a "verb" or "verb --option" a line.
said_by_help() {
    local verb
    for verb in $("$root/bin/vorel" --help | sed -n '/^Subcommands:/,$ s/^  \([a-z]\+\) .*/\1/p'); do
        echo "$verb"
        "$root/bin/vorel" "$verb" --help | sed -n "s/^  \(-h,\)\?\(--[a-z-]*\).*/$verb \2/p"
    done
}

# The same as bash offers it.
said_by_completion() (
    source "$root/share/bash-completion/completions/vorel"
    offer() { COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); _vorel vorel "${!#}" "${COMP_WORDS[COMP_CWORD-1]}"; }
    offer vorel ''
    for verb in "${COMPREPLY[@]}"; do
        [[ $verb != -* ]] || continue
        echo "$verb"
        offer vorel "$verb" -
        printf "$verb %s\n" "${COMPREPLY[@]}"
    done
)

check_completions() {
    local verb option manual
    silent diff <(said_by_help | sort) <(said_by_completion | sort)
    manual=$(MANWIDTH=200 man -E ascii -P cat -l "$root/share/man/man1/vorel.1.gz")
    while read -r verb option; do
        grep -q -- "vorel $verb" <<<"$manual" && grep -q -- "${option:-$verb}\b" <<<"$manual" ||
            fail "the manual leaves out $verb $option"
        grep -q -- "from $verb'" "$root"/share/fish/*/vorel.fish &&
            { [ -z "$option" ] || grep -q -- "-l ${option#--}\b" "$root"/share/fish/*/vorel.fish; } ||
            fail "fish does not complete $verb $option"
        grep -q -- "${option:-$verb}\b" "$root"/share/zsh/*/_vorel || fail "zsh does not complete $verb $option"
    done < <(said_by_help)
}

# With the path of the program as it is here, and a profile, or a folder of them.
check_units() {
    command -v systemd-analyze >/dev/null || return 0
    local unit
    for unit in vorel vorel-many; do
        sed "s|\([= ]\)vorel run|\1$root/bin/vorel run|" "$root/lib/systemd/user/$unit@.service" >"$place/$unit@bots.service"
        XDG_RUNTIME_DIR=$place silent systemd-analyze --user --man=no verify "$place/$unit@bots.service"
    done
}

rm -rf "$place"
mkdir -p "$place"
cmake --install "$build" --prefix "$root" >/dev/null || fail "cmake --install"
check_files
check_package
check_desktop
check_manual
check_completions
check_units
exit $((failures > 0))
