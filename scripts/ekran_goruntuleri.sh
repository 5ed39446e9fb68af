#!/usr/bin/env bash
# Saves screenshots of the shell on the demo (curtain, sign-in, main, offline page).
set -euo pipefail
cd "$(dirname "$0")/.."
[ -x build/bin/nevo ] || { cmake -S . -B build -G Ninja && cmake --build build; }
NEVO_IKILI="$PWD/build/bin/nevo" /usr/bin/python3 tests/gtk/ekran_goruntuleri.py "${1:-ekran}"
