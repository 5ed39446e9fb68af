#!/usr/bin/env bash
# Sets up, builds and runs the shell against the demo web application on loopback.
# NEVO_ADRES=https://… bash scripts/calistir.sh runs it against another address instead.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/bagimliliklar.sh
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DNEVO_TESTS=OFF
cmake --build build
if [ -n "${NEVO_ADRES:-}" ]; then
  exec build/bin/nevo
fi
exec 3< <(exec python3 resources/demo/sunucu.py)
sunucu=$!
trap 'kill $sunucu 2>/dev/null || true' EXIT
read -r adres <&3
echo "Tanıtım uygulaması: $adres"
NEVO_ADRES="$adres/" build/bin/nevo
