#!/usr/bin/env bash
# Builds the desktop program and starts it.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
cmake --preset dev >/dev/null
cmake --build --preset dev --target zentrel zentrel-cli zentrel_resources
exec build/dev/bin/zentrel "$@"
