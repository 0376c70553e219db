#!/usr/bin/env bash
# Builds everything and runs every test. With --asan: the same suite under AddressSanitizer
# and UndefinedBehaviorSanitizer.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh

preset=ci
if [ "${1:-}" = "--asan" ]; then preset=asan; fi
jobs=$(nproc 2>/dev/null || echo 2)

cmake --preset "$preset" >/dev/null
cmake --build --preset "$preset" -j "$jobs"
ctest --preset "$preset" -j "$jobs"
