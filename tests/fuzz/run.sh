#!/usr/bin/env bash
# Builds the fuzz targets and runs each for SECONDS (default 60) after running the inputs of
# earlier findings (tests/fuzz/regressions/TARGET) and replaying its corpus: the working corpus
# in build/fuzz/corpus, the committed seeds and tests/data, with the token dictionary. Exits
# non-zero when any target crashed, broke a property, leaked, timed out or ran out of memory;
# the reproducer is left as build/fuzz/crash-TARGET-*.
# Usage: tests/fuzz/run.sh [SECONDS] [TARGET...]
# Extra libFuzzer flags may be given in FUZZ_FLAGS (e.g. FUZZ_FLAGS="-jobs=1 -workers=1").
# FUZZ_PRESET=fuzz-fast builds the targets without the sanitizers, for long runs that look for
# crashes, broken properties and hangs at several times the speed.
set -uo pipefail
cd "$(dirname "$0")/../.."
seconds=${1:-60}
shift || true
targets=("$@")
[ ${#targets[@]} -eq 0 ] && targets=(analyse rebuild files search checks)

preset=${FUZZ_PRESET:-fuzz}
cmake --preset "$preset" >/dev/null || exit 2
cmake --build --preset "$preset" -j "$(nproc)" || exit 2
bin=build/$preset/bin
# A small quarantine keeps AddressSanitizer's memory well under the RSS limit.
export ASAN_OPTIONS=detect_leaks=1:quarantine_size_mb=16:malloc_context_size=10
failed=()
for t in "${targets[@]}"; do
  work=build/fuzz/corpus/$t
  log=build/fuzz/fuzz_$t.log
  mkdir -p "$work" "tests/fuzz/corpus/$t"
  # Inputs of earlier findings are run one by one first; they are kept out of the seeds so
  # that the short runs do not spend their minute mutating the oddest pages.
  regressions=(tests/fuzz/regressions/$t/*)
  if [ -e "${regressions[0]}" ] && ! "$bin/fuzz_$t" "${regressions[@]}" >"$log" 2>&1; then
    echo "!! fuzz_$t failed on a regression input; log: $log"
    failed+=("$t")
    continue
  fi
  echo "== fuzz_$t for ${seconds}s"
  # shellcheck disable=SC2086
  "$bin/fuzz_$t" -max_len=65536 -timeout=2 -rss_limit_mb=512 -dict=tests/fuzz/html.dict \
    -max_total_time="$seconds" -print_final_stats=1 -artifact_prefix="build/fuzz/crash-$t-" \
    ${FUZZ_FLAGS:-} "$work" "tests/fuzz/corpus/$t" tests/data >"$log" 2>&1
  status=$?
  grep -E '^(#[0-9]+[[:space:]]+(INITED|DONE)|stat::|SUMMARY|property failed|.*runtime error|==[0-9]+==ERROR)' \
    "$log" | tail -n 12
  if [ $status -ne 0 ]; then
    echo "!! fuzz_$t failed (exit $status); log: $log"
    grep -E '^(artifact_prefix|Test unit written)' "$log" || true
    failed+=("$t")
  fi
done
if [ ${#failed[@]} -ne 0 ]; then
  echo "FAILED: ${failed[*]}"
  exit 1
fi
echo "all fuzz targets passed"
