#!/usr/bin/env bash
# Builds the fuzz targets and runs each for SECONDS (default 60) on its corpus: the committed
# seeds plus tests/data, with the token dictionary. Usage: tests/fuzz/run.sh [SECONDS] [TARGET...]
set -euo pipefail
cd "$(dirname "$0")/../.."
seconds=${1:-60}
shift || true
targets=("$@")
[ ${#targets[@]} -eq 0 ] && targets=(analyse rebuild files search)

cmake --preset fuzz >/dev/null
cmake --build --preset fuzz -j "$(nproc)"
bin=build/fuzz/bin
for t in "${targets[@]}"; do
  work=build/fuzz/corpus/$t
  mkdir -p "$work" "tests/fuzz/corpus/$t"
  echo "== fuzz_$t for ${seconds}s"
  ASAN_OPTIONS=detect_leaks=1 "$bin/fuzz_$t" -max_len=65536 -timeout=2 -rss_limit_mb=512 \
    -dict=tests/fuzz/html.dict -max_total_time="$seconds" -print_final_stats=1 \
    -artifact_prefix="build/fuzz/crash-$t-" "$work" "tests/fuzz/corpus/$t" tests/data \
    2>&1 | grep -E '^(#|==|stat::|INFO: Loaded|SUMMARY|property)' | tail -n 12
done
