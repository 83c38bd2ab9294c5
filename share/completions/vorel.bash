# Completes vorel(1) in bash.

_vorel_files() {  # the files with this ending that the current word may become, and the folders on the way there
    compopt -o filenames
    mapfile -t COMPREPLY < <(compgen -f -X "!*.$1" -- "$2"; compgen -d -- "$2")
}

_vorel_words() { mapfile -t COMPREPLY < <(compgen -W "$1" -- "$2"); }

_vorel() {
    local cur=$2 previous=$3 verb='' word
    for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
        [[ $word == -* ]] || { verb=$word; break; }
    done
    if [[ -z $verb ]]; then
        _vorel_words 'run try practice --help --version' "$cur"
        return
    fi
    case $verb$previous in
        run--log) _vorel_files '*' "$cur" ;;
        run--record | run--tour | practice--tour) _vorel_files txt "$cur" ;;
        run--folder | try--folder) compopt -o filenames; mapfile -t COMPREPLY < <(compgen -d -- "$cur") ;;
        run--server) mapfile -t COMPREPLY < <(compgen -A hostname -- "$cur") ;;
        run--brake) _vorel_words '0 20' "$cur" ;;
        run--port | practice--port) _vorel_words 6000 "$cur" ;;
        try--now | try--seed | practice--name) COMPREPLY=() ;;
        *)
            if [[ $cur == -* ]]; then
                case $verb in
                    run) _vorel_words '--help --practice --tour --server --port --log --record --keep-split-lines
                                       --brake --stay --quiet --folder' "$cur" ;;
                    try) _vorel_words '--help --now --seed --folder' "$cur" ;;
                    practice) _vorel_words '--help --port --tour --name' "$cur" ;;
                esac
            else
                case $verb in
                    run) _vorel_files tvm "$cur" ;;
                    try) if [[ " ${COMP_WORDS[*]:1:COMP_CWORD-1} " == *.tvm\ * ]]; then _vorel_files txt "$cur"
                         else _vorel_files tvm "$cur"; fi ;;
                esac
            fi
            ;;
    esac
}

complete -F _vorel vorel
