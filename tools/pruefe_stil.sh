#!/usr/bin/env bash
# Checks format and lint of the whole tree and changes nothing. Needs a compile database: build/release.
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.."
# shellcheck source=tools/bau.sh
source tools/bau.sh

# Version 16 is the first that takes braces away and leaves lambdas as they were.
pakete+=(clang-format-16 clang-tidy-16)
installiere_pakete
konfiguriere release

melde "== Format =="
git ls-files -z '*.h' '*.cpp' | xargs -0 clang-format-16 --dry-run --Werror

# A precompiled header of gcc means nothing to clang; what it includes is included by each file as well.
melde "== Lint =="
datenbank=$(mktemp -d)
trap 'rm -rf "$datenbank"' EXIT
sed -E 's/ -Winvalid-pch//; s/ -include [^ ]*cmake_pch\.hxx//; s/ -Wno-restrict//' build/release/compile_commands.json \
    >"$datenbank/compile_commands.json"
git ls-files -z '*.cpp' ':!fuzz' ':!cmake' |
    xargs -0 -n 4 -P "$(nproc)" clang-tidy-16 --quiet -p "$datenbank" 2> >(grep -v 'warnings generated' >&2)
