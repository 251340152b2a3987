# shellcheck shell=bash
# What wine64, wine32 and prefijo share: which Wine, which prefix, which screen.
# The caller has read comun.sh and says the bitness with `elegir_wine 64` or `elegir_wine 32`.

# Put before every Wine command.
LANZADOR=()

# The 32-bit root as seen from inside: its own system folders, and the machine's checkout, cache,
# temporary files and devices at their own paths.
entrar_raiz32() {
    local d
    LANZADOR+=(bwrap --die-with-parent --proc /proc --dev-bind /dev /dev --ro-bind /sys /sys)
    for d in "$RAIZ32"/{bin,sbin,lib,lib32,lib64,libx32,usr,etc,var}; do
        if [ -L "$d" ]; then
            LANZADOR+=(--symlink "$(readlink "$d")" "/${d##*/}")
        elif [ -d "$d" ]; then
            LANZADOR+=(--ro-bind "$d" "/${d##*/}")
        fi
    done
    # Wine takes the user's name from here.
    LANZADOR+=(--ro-bind /etc/passwd /etc/passwd --bind /tmp /tmp)
    for d in "$CACHE" "$RAIZ" "${WINEPREFIX:-}" "$PWD"; do
        case "$d" in
        '' | / | /tmp | /tmp/* | /usr/* | /etc/* | /var | /proc/*) ;;
        *) [ ! -d "$d" ] || LANZADOR+=(--bind "$d" "$d") ;;
        esac
    done
    LANZADOR+=(--chdir "$PWD")
}

# elegir_wine BITS: sets the environment and the prefix's path; makes nothing.
elegir_wine() {
    BITS="$1"
    PANTALLA="${PINCELA_PANTALLA:-nula}" PPP="${PINCELA_PPP:-96}" IDIOMA="${PINCELA_IDIOMA:-C.UTF-8}"
    local variante="$BITS-${PINCELA_USO:-pruebas}"
    case "$PANTALLA" in
    nula) ;;
    xvfb | propia) variante+="-$PANTALLA" ;;
    *) morir "PINCELA_PANTALLA is nula, xvfb or propia, not '$PANTALLA'" ;;
    esac
    [ "$PPP" = 96 ] || variante+="-$PPP"
    [ "$IDIOMA" = C.UTF-8 ] || variante+="-$IDIOMA"
    export WINEPREFIX="${WINEPREFIX:-$CACHE/prefijos/$CLAVE/$variante}"
    export WINEDEBUG="${WINEDEBUG--all}" WINEDLLOVERRIDES="${WINEDLLOVERRIDES-mscoree,mshtml,winedbg.exe=}"
    # C.UTF-8 gives code page 1252 and the decimal point; es_ES.UTF-8 gives the decimal comma. Wine
    # needs no more than the name: the locale itself need not be installed.
    LANZADOR=(env -u LANG -u LANGUAGE -u WINELOADER -u WINESERVER "LC_ALL=$IDIOMA")
    export WINEARCH="win$BITS"
    if [ "$BITS" = 64 ]; then
        [ -x /usr/lib/wine/wine64 ] || morir "there is no 64-bit Wine here: run 'make setup'"
        WINE=/usr/lib/wine/wine64
        return
    fi
    WINE=/usr/lib/wine/wine
    case "$(modo32)" in
    raiz) entrar_raiz32 ;;
    no) morir "there is no 32-bit Wine here: run 'make setup'" ;;
    esac
}

# With the prefix's server awake, whatever Wine starts for itself was started with no handle of
# ours: a build tool that waits for the end of our output isn't kept waiting by a service.
despertar() {
    [ -e "$WINEPREFIX/hecho" ] || con_cerrojo "$WINEPREFIX.cerrojo" "$RAIZ/herramientas/prefijo" hacer "$BITS" ||
        morir "the Wine prefix $WINEPREFIX could not be made"
    con_cerrojo "$WINEPREFIX.cerrojo" "$RAIZ/herramientas/prefijo" despertar "$BITS"
}

# The component that the run is about, registered in the same session.
registrar_antes() {
    [ -n "${PINCELA_COMPONENTE:-}" ] || return 0
    "${LANZADOR[@]}" timeout 120 "$WINE" regsvr32 /s "$(ruta_windows "$PINCELA_COMPONENTE")" \
        </dev/null >/dev/null 2>&1 || morir "regsvr32 failed on $PINCELA_COMPONENTE"
}

# A screen of our own for one run, closed with it. One run at a time in the prefix, because Wine's
# desktop dies with its screen.
correr_en_xvfb() {
    local estado=0 numero
    if [ "${PINCELA_XVFB_CERRADO:-}" != si ]; then
        PINCELA_XVFB_CERRADO=si con_cerrojo "$WINEPREFIX.pantalla" "$0" --pantalla xvfb "$@"
        return
    fi
    exec {aviso}< <(exec Xvfb -displayfd 1 -screen 0 2560x1600x24 -nolisten tcp 2>/dev/null)
    SERVIDOR_X=$!
    trap 'kill "$SERVIDOR_X" 2>/dev/null' EXIT
    read -r -t 20 -u "$aviso" numero || morir "Xvfb did not start"
    export DISPLAY=":$numero"
    despertar
    registrar_antes
    "${LANZADOR[@]}" "$WINE" "$@" || estado=$?
    "${LANZADOR[@]}" wineserver -k >/dev/null 2>&1 || true
    "${LANZADOR[@]}" timeout 20 wineserver -w >/dev/null 2>&1 || true
    return $estado
}

# correr BITS [OPTION...] PROGRAM [ARGUMENT...]: does not return, except with the exit code.
correr() {
    local bits="$1"
    shift
    while true; do
        case "${1:-}" in
        --pantalla) export PINCELA_PANTALLA="${2:-}" ;;
        --ppp) export PINCELA_PPP="${2:-}" ;;
        --uso) export PINCELA_USO="${2:-}" ;;
        --idioma) export PINCELA_IDIOMA="${2:-}" ;;
        --componente) export PINCELA_COMPONENTE="${2:-}" ;;
        '' | -*) morir "usage: wine$bits [--pantalla nula|xvfb|propia] [--ppp N] [--uso NAME] [--idioma LOCALE] [--componente FILE] PROGRAM..." ;;
        *) break ;;
        esac
        shift 2
    done
    elegir_wine "$bits"
    if [ "$PANTALLA" = xvfb ]; then
        correr_en_xvfb "$@"
        return
    fi
    [ "$PANTALLA" = propia ] || unset DISPLAY
    despertar
    registrar_antes
    exec "${LANZADOR[@]}" "$WINE" "$@"
}
