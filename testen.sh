#!/usr/bin/env bash
# Builds everything with warnings as errors and runs every test, then the tests of the logic under the sanitizers.
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")"
# shellcheck source=tools/bau.sh
source tools/bau.sh

installiere_pakete

melde "== Alles, optimiert =="
konfiguriere release
cmake --build --preset release
ctest --preset release

melde "== Die Logik unter AddressSanitizer und UndefinedBehaviorSanitizer =="
konfiguriere asan-ubsan
cmake --build --preset asan-ubsan --target tests-logic
ctest --preset asan-ubsan -L logic
