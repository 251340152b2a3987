# shellcheck shell=bash
# Shared by the scripts of this folder: where things live, and how to speak to the user.
# Read with `source`; sets no option of the caller.

RAIZ="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)"
: "${HOME:=$(getent passwd "$(id -u)" | cut -d: -f6)}"
CACHE="${PINCELA_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/pincela}"
# Everything of one checkout carries this key, so that two checkouts never share a Wine prefix.
CLAVE="${RAIZ##*/}-$(cksum <<<"$RAIZ" | cut -d' ' -f1)"
# A 32-bit Wine for machines whose own package archive can't provide one.
RAIZ32="$CACHE/raiz32"

decir() { printf '%s\n' "pincela: $*" >&2; }
morir() {
    decir "$*"
    exit 1
}

# Runs a command as root; fails, rather than asking, where nobody can answer.
como_root() {
    if [ "$(id -u)" = 0 ]; then
        "$@"
    elif ! command -v sudo >/dev/null; then
        decir "'$1' needs root, and there is no sudo"
        return 1
    elif [ -t 0 ]; then
        sudo "$@"
    else
        sudo -n "$@"
    fi
}

# con_cerrojo FILE COMMAND...: one at a time. The command doesn't inherit the lock, because a Wine
# server outlives whoever started it.
con_cerrojo() {
    mkdir -p "${1%/*}" && flock -o "$@"
}

# The name a Windows program knows a file by.
ruta_windows() {
    local ruta
    ruta="$(realpath "$1")"
    printf 'Z:%s\n' "${ruta//\//\\}"
}

# How 32-bit programs can run here: "sistema" (the machine's own wine32), "raiz" (the root in the
# cache) or "no".
modo32() {
    if [ -x /usr/lib/wine/wine ]; then
        echo sistema
    elif [ -e "$RAIZ32/listo" ]; then
        echo raiz
    else
        echo no
    fi
}
