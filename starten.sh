#!/usr/bin/env bash
# Installs, builds and starts the program: one command on a fresh Debian 12, and no wait from the second time on.
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")"
# shellcheck source=tools/bau.sh
source tools/bau.sh

verzeichnis=$PWD/programm

zeige_hilfe() {
    cat <<'TEXT'
Aufruf: ./starten.sh [--hilfe] [ARGUMENTE FÜR DAS PROGRAMM ...]

Richtet ein, was auf Debian 12 noch fehlt (als root oder mit sudo), baut Tombrix und startet es.
Die Ziehungsdateien und die Hilfe liegen im Ordner programm/. Fehlende Ziehungsdateien werden mit
erfundenen Musterziehungen angelegt; eine vorhandene Datei bleibt immer, wie sie ist.

Ohne Bildschirm (weder DISPLAY noch WAYLAND_DISPLAY gesetzt) läuft das Programm auf einem VNC-Bildschirm,
der nur von diesem Rechner aus zu erreichen ist; beim Start steht da, wie man sich verbindet.
TEXT
}

hat_datei() { [[ -n $(find "$verzeichnis" -maxdepth 1 -iname "$1" -print -quit) ]]; }

# Fills up what is missing. The sample is always made of three files, so it is made aside and only what is missing is taken.
lege_musterdateien_an() {
    local name ablage
    local fehlend=()
    for name in SALOTTO.DAT MALOTTO.DAT MBLOTTO.DAT; do
        hat_datei "$name" || fehlend+=("$name")
    done
    ((${#fehlend[@]})) || return 0
    ablage=$(mktemp -d "$verzeichnis/muster.XXXXXX")
    build/release/tombrix-muster "$ablage" >/dev/null || {
        rm -rf "$ablage"
        scheitere "Die Musterziehungen ließen sich nicht anlegen."
    }
    for name in "${fehlend[@]}"; do
        mv -n "$ablage/$name" "$verzeichnis/$name"
    done
    rm -rf "$ablage"
    melde "Mit erfundenen Musterziehungen angelegt (keine echten Ergebnisse): ${fehlend[*]}"
}

lege_hilfe_an() {
    cmp -s hilfe/lotto-hilfe.html "$verzeichnis/lotto-hilfe.html" || cp hilfe/lotto-hilfe.html "$verzeichnis/"
}

freier_vnc_port() {
    local port
    for port in {5900..5919}; do
        if ! (exec 3<>"/dev/tcp/127.0.0.1/$port") 2>/dev/null; then
            printf '%s\n' "$port"
            return
        fi
    done
    scheitere "Von den VNC-Ports 5900 bis 5919 ist keiner frei."
}

# Qt's VNC platform has no password and listens on every address. The library in front of it keeps it to this machine;
# the path is a relative one because LD_PRELOAD splits at blanks and colons.
richte_vnc_ein() {
    local port bibliothek=build/release/libnurlokal.so
    [[ -z $(LD_PRELOAD=$bibliothek env true 2>&1) ]] ||
        scheitere "$bibliothek lässt sich nicht laden; ohne sie stünde der VNC-Bildschirm dem ganzen Netz offen."
    port=$(freier_vnc_port)
    cat <<TEXT

Hier ist kein Bildschirm: Tombrix läuft auf einem VNC-Bildschirm, zu erreichen nur von diesem Rechner aus
(aber ohne Passwort: auch von dessen anderen Benutzern).

  Am eigenen Rechner:  ssh -L $port:localhost:$port $(id -un)@$HOSTNAME
  und daneben:         vncviewer localhost:$port

Ein Werkzeug schließt man mit Esc, das Programm mit "Beenden" im Menü oder hier mit Strg+C.
Die Hilfe zum Nachlesen: $verzeichnis/lotto-hilfe.html

TEXT
    export QT_QPA_PLATFORM=vnc:size=1280x800:port=$port LD_PRELOAD=$bibliothek
}

case ${1-} in
--hilfe | --help | -h)
    zeige_hilfe
    exit 0
    ;;
esac

installiere_pakete
konfiguriere release
cmake --build --preset release --target tombrix tombrix-muster nurlokal
mkdir -p "$verzeichnis"
lege_musterdateien_an
lege_hilfe_an
if [[ -z ${DISPLAY-} && -z ${WAYLAND_DISPLAY-} && -z ${QT_QPA_PLATFORM-} ]]; then
    richte_vnc_ein
fi
export TOMBRIX_VERZEICHNIS=$verzeichnis
exec build/release/tombrix "$@"
