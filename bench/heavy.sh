#!/usr/bin/env bash
# Times the heavy inputs (bench/heavy_inputs.cpp) with zentrel-cli report side by side with
# the plain 4 MB page and its 20 keywords, all in one hyperfine run, and prints a Markdown
# table: each input's median time as a ratio of the plain page's (target at most 2) and its
# peak resident memory (target at most 256 MiB; an input whose report alone is larger shows
# its peak against the size of its report instead, target at most 1.5 times it plus the page).
# Usage: bench/heavy.sh [RUNS] [ZENTREL_CLI]
#   RUNS per command (default 5); ZENTREL_CLI times another build on the same inputs.
set -euo pipefail
cd "$(dirname "$0")/.."
runs=${1:-5}

# shellcheck source=bench/bench_tools.sh
source bench/bench_tools.sh

cmake --preset dev >/dev/null
cmake --build --preset dev --target zentrel-cli zentrel-bench-pages >/dev/null
cli=$(realpath "${2:-build/dev/bin/zentrel-cli}")
inputs=build/dev/bench-heavy
build/dev/bin/zentrel-bench-pages --heavy "$inputs"
cp "$inputs/page-4m.html" "$inputs/plain-4m.html"
: >"$inputs/plain-4m.prefs"
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT

# name<TAB>report (the report alone may pass the memory ceiling) or ceiling
mapfile -t rows < <(printf 'plain-4m\tceiling\n'; cat "$inputs/heavy.list")
commands=()
for row in "${rows[@]}"; do
  name=${row%%$'\t'*}
  commands+=("$cli report --prefs $inputs/$name.prefs $inputs/$name.html")
done
hyperfine -N -i --warmup 1 --runs "$runs" --export-json "$out/h.json" "${commands[@]}" \
  >/dev/null 2>&1
mapfile -t medians < <(jq -r '.results[].median * 1000' "$out/h.json")

echo "Machine: $(nproc) cores, $(awk -F': ' '/model name/ {print $2; exit}' /proc/cpuinfo)"
echo "Command: bench/heavy.sh $runs $cli (hyperfine medians of $runs runs after 1 warm-up)"
echo
echo "| input | ms | × plain | peak MiB | report MiB | page MiB | target met |"
echo "|---|---:|---:|---:|---:|---:|---|"
for i in "${!rows[@]}"; do
  name=${rows[$i]%%$'\t'*}
  kind=${rows[$i]##*$'\t'}
  /usr/bin/time -f %M -o "$out/peak" "$cli" report --prefs "$inputs/$name.prefs" \
    "$inputs/$name.html" >"$out/report" 2>/dev/null || true
  awk -v n="$name" -v k="$kind" -v ms="${medians[$i]}" -v plain="${medians[0]}" \
    -v peak="$(cat "$out/peak")" -v report="$(stat -c %s "$out/report")" \
    -v page="$(stat -c %s "$inputs/$name.html")" 'BEGIN {
      peak /= 1024; report /= 1048576; page /= 1048576; ratio = ms / plain
      ceiling = k == "report" ? 1.5 * report + page : 256
      met = ratio <= 2 && peak <= ceiling ? "yes" : "no"
      printf "| %s | %.0f | %.2f | %.1f | %.1f | %.1f | %s |\n", n, ms, ratio, peak, report, page, met }'
done
