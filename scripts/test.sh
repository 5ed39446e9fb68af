#!/usr/bin/env bash
# Sets up and runs every test: installs the packages, builds with AddressSanitizer and
# UndefinedBehaviorSanitizer (warnings as errors) and runs CTest, which refuses an empty run
# (a test checks that no group of tests is missing).
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/bagimliliklar.sh
cmake -S . -B build-test -G Ninja -DCMAKE_BUILD_TYPE=Debug -DNEVO_SANITIZE=ON -DNEVO_WERROR=ON
cmake --build build-test
ctest --test-dir build-test --output-on-failure --no-tests=error
