# Shared by the scripts beside it: goes to the top of the checkout and installs what is missing.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# Installs the packages that are named on standard input, one a line, and not installed yet.
install_packages() {
    local wanted missing=()
    mapfile -t wanted
    local package
    for package in "${wanted[@]}"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            echo "These packages are missing. Install them as root, then call this script again:" >&2
            echo "    apt-get install ${missing[*]}" >&2
            exit 1
        fi
        as_root=(sudo)
    fi
    echo "Installing: ${missing[*]}" >&2
    "${as_root[@]}" apt-get update -qq >&2
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >&2
}

install_packages < <(grep -v '^#' scripts/packages.txt)

# Configures and builds a preset, with its compiler.
build_preset() {
    case $1 in clang | fuzz) install_packages <<<$'clang\nlibclang-rt-14-dev' ;; esac
    cmake --preset "$1" >&2
    cmake --build --preset "$1" "${@:2}" >&2
}
