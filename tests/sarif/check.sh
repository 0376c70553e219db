#!/usr/bin/env bash
# Validates lint's SARIF against the official SARIF 2.1.0 JSON schema: the golden file (which
# the lint tests prove the program writes byte for byte) and a fresh run of the real binary over
# the test site, whose paths are absolute. Installs the pinned validator from the npm registry
# into WORK once. Exit 77 (skipped) when node or npm is missing.
# Usage: tests/sarif/check.sh WORK ZENTREL_CLI TEST_DATA
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
work=$1 cli=$2 data=$3

if ! command -v node >/dev/null || ! command -v npm >/dev/null; then
  echo "node and npm are needed to validate SARIF; skipped"
  exit 77
fi
mkdir -p "$work"
cp "$here/package.json" "$here/package-lock.json" "$here/validate.js" "$work/"
if [ ! -d "$work/node_modules/ajv" ]; then
  (cd "$work" && npm ci --no-audit --no-fund --loglevel=error)
fi
status=0
"$cli" lint --format sarif "$data/lint/site" "$data/lint/site/missing.html" \
  >"$work/fresh.sarif" || status=$?
[ "$status" -eq 1 ] || { echo "lint exited $status, not 1"; exit 1; }
node "$work/validate.js" "$data/lint_site.sarif" "$work/fresh.sarif"
