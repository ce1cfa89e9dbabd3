# shellcheck shell=bash
# What starten.sh and testen.sh share: the packages and the configure run. Both source it from the root of the tree.

pakete=(
    g++                   # C++20
    cmake                 # presets of version 5
    ninja-build           # the generator of the presets
    qt6-base-dev          # Core, Gui, Widgets, PrintSupport, Test
    qt6-multimedia-dev    # the sounds
    qt6-qpa-plugins       # the VNC platform, for machines without a display
    qt6-translations-l10n # German captions of Qt's own boxes and dialogs
    libqt6svg6            # draws the program's icon; Qt looks for it at run time only
    fonts-liberation      # metrics of "Courier New" and Arial
    libgtest-dev          # the configure run looks for it,
    libgmock-dev          # for this
    libbenchmark-dev      # and for this
    poppler-utils         # the tests of printing read the pages
)
# A Wayland session without X needs a platform plugin of its own.
if [[ -n ${WAYLAND_DISPLAY-} && -z ${DISPLAY-} ]]; then
    pakete+=(qt6-wayland)
fi

melde() { printf '%s\n' "$@"; }

scheitere() {
    printf 'Fehler: %s\n' "$*" >&2
    exit 1
}

# Installs what is missing and nothing else; with all there it asks neither the network nor for rights.
installiere_pakete() {
    command -v dpkg-query >/dev/null ||
        scheitere "Dieses Skript richtet Debian 12 ein; hier gibt es kein dpkg. Gebraucht werden: ${pakete[*]}"
    local vorhanden paket
    local fehlend=()
    # shellcheck disable=SC2016 # the braces are dpkg-query's
    vorhanden=$(dpkg-query -W -f '${Package} ${db:Status-Status}\n' "${pakete[@]}" 2>/dev/null || true)
    for paket in "${pakete[@]}"; do
        grep -qxF "$paket installed" <<<"$vorhanden" || fehlend+=("$paket")
    done
    ((${#fehlend[@]})) || return 0

    local als_root=()
    if ((EUID != 0)); then
        command -v sudo >/dev/null ||
            scheitere "Es fehlen Pakete, und ohne sudo kann nur root sie einrichten: apt-get install ${fehlend[*]}"
        als_root=(sudo)
    fi
    melde "Fehlende Pakete werden eingerichtet: ${fehlend[*]}"
    "${als_root[@]}" apt-get update -q </dev/null ||
        melde "Die Paketlisten ließen sich nicht erneuern; es geht mit den vorhandenen weiter."
    "${als_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends \
        -o DPkg::Lock::Timeout=120 "${fehlend[@]}" </dev/null ||
        scheitere "Die Pakete ließen sich nicht einrichten: ${fehlend[*]}"
}

# Configures a preset if that was never done or the presets have changed since; ninja sees all other changes itself.
konfiguriere() {
    local preset=$1
    local regeln=build/$preset/build.ninja
    if [[ ! -f $regeln || CMakePresets.json -nt $regeln ]]; then
        cmake --preset "$preset"
    fi
}
