#!/usr/bin/env bash
# clang-format (the repository's .clang-format) over every tracked C++ source.
# Usage: scripts/format.sh           formats the files in place
#        scripts/format.sh --check   changes nothing, fails on a file that is not formatted (CI)
set -euo pipefail
cd "$(dirname "$0")/.."
mapfile -t files < <(git ls-files '*.cpp' '*.h')
if [ "${1:-}" = "--check" ]; then
  clang-format --dry-run -Werror "${files[@]}"
else
  clang-format -i "${files[@]}"
fi
