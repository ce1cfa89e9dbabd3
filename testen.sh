#!/usr/bin/env bash
# Builds everything with warnings as errors and runs every test; on request the logic under the sanitizers too.
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")"
# shellcheck source=tools/bau.sh
source tools/bau.sh

zeige_hilfe() {
    cat <<'TEXT'
Aufruf: ./testen.sh [--gruendlich]

Richtet ein, was auf Debian 12 noch fehlt (als root oder mit sudo), übersetzt alles und führt alle Tests aus.
Mit --gruendlich laufen danach die Tests der Logik noch einmal unter AddressSanitizer und UndefinedBehaviorSanitizer.
TEXT
}

gruendlich=
case ${1-} in
'') ;;
--gruendlich) gruendlich=ja ;;
--hilfe | --help | -h)
    zeige_hilfe
    exit 0
    ;;
*)
    zeige_hilfe >&2
    exit 2
    ;;
esac

# Names a stage, runs the rest of its arguments and says how long that took.
abschnitt() {
    local titel=$1 anfang=$SECONDS
    shift
    melde "" "== $titel =="
    "$@"
    melde "== $titel: $(((SECONDS - anfang) / 60)) min $(((SECONDS - anfang) % 60)) s =="
}

if [[ $gruendlich ]]; then
    melde "Beim ersten Mal dauert das auf zwei Kernen etwa 13 Minuten, danach nur, was sich geändert hat."
else
    melde "Beim ersten Mal dauert das auf zwei Kernen etwa 9 Minuten, danach nur, was sich geändert hat."
fi
installiere_pakete

konfiguriere release
abschnitt "Übersetzen" cmake --build --preset release
if [[ ! $gruendlich ]]; then
    abschnitt "Alle Tests" ctest --preset release --progress
    exit
fi

konfiguriere asan-ubsan
abschnitt "Die Logik mit Sanitizern übersetzen" cmake --build --preset asan-ubsan --target tests-logic
abschnitt "Die Tests der Logik mit Sanitizern" ctest --preset asan-ubsan -L logic --progress
abschnitt "Alle Tests" ctest --preset release --progress
