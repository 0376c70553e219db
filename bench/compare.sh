#!/usr/bin/env bash
# Times whole processes side by side in one run and prints a Markdown table of the medians:
#  - zentrel-cli report against the baseline pass (zentrel-baseline) and wc -w on the 100 KB,
#    1 MB and 4 MB pages, with the peak resident memory of zentrel-cli report;
#  - zentrel-cli rebuild of the 4 MB page with all 13 META tag fields set, against the
#    baseline pass over the same page;
#  - in-process (Google Benchmark): the rebuild-and-save and the whole analysis against the
#    baseline pass over the page in memory.
# Usage: bench/compare.sh [RUNS]   (RUNS per command, default 10)
set -euo pipefail
cd "$(dirname "$0")/.."
runs=${1:-10}

# shellcheck source=bench/bench_tools.sh
source bench/bench_tools.sh

cmake --preset dev -DZENTREL_WITH_BENCH=ON >/dev/null
cmake --build --preset dev --target zentrel-cli zentrel-baseline zentrel-bench-pages \
  zentrel-bench >/dev/null
bin=build/dev/bin
pages=build/dev/bench-pages
"$bin/zentrel-bench-pages" "$pages"
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT

# Medians in ms of the given commands, measured in one hyperfine run so that the machine's
# load is alike for all of them.
medians() {
  hyperfine -N --warmup 2 --runs "$runs" --export-json "$out/h.json" "$@" >/dev/null 2>&1
  jq -r '[.results[].median * 1000] | @tsv' "$out/h.json"
}
peak_mib() {
  /usr/bin/time -v "$@" 2>&1 >/dev/null |
    awk -F: '/Maximum resident/ {gsub(/ /, "", $2); printf "%.1f", $2 / 1024}'
}

echo "Machine: $(nproc) cores, $(awk -F': ' '/model name/ {print $2; exit}' /proc/cpuinfo)"
echo "Command: bench/compare.sh $runs (hyperfine medians of $runs runs after 2 warm-ups)"
echo
echo "| page | zentrel-cli report ms | baseline ms | wc -w ms | report / baseline | target | peak MiB (report) |"
echo "|---|---:|---:|---:|---:|---:|---:|"
declare -A report_ms
for size in 100k 1m 4m; do
  page="$pages/page-$size.html"
  read -r r b w < <(medians "$bin/zentrel-cli report $page" "$bin/zentrel-baseline $page" \
    "wc -w $page")
  report_ms[$size]=$r
  target="≤ 10"; [ "$size" = 100k ] && target="≤ 5"
  peak=$(peak_mib "$bin/zentrel-cli" report "$page")
  awk -v p="$size" -v r="$r" -v b="$b" -v w="$w" -v t="$target" -v k="$peak" 'BEGIN {
    printf "| %s | %.1f | %.1f | %.1f | %.2f | %s | %s |\n", p, r, b, w, r / b, t, k }'
done
echo
awk -v a="${report_ms[4m]}" -v b="${report_ms[1m]}" \
  'BEGIN { printf "4 MB / 1 MB report time: %.2f (target ≤ 4.5)\n", a / b }'
echo

page="$pages/page-4m.html"
rebuild="$bin/zentrel-cli rebuild $page -o $out/rebuilt.html"
for name in pagetitle description abstract keywords generator progid author copyright rating \
  robots revisit-after distribution expires; do
  rebuild+=" --set $name=new-$name-value"
done
read -r rb b < <(medians "$rebuild" "$bin/zentrel-baseline $page")
# shellcheck disable=SC2086  # the command is split into its words on purpose
peak=$(peak_mib $rebuild)
echo "| process, 4 MB page | ms | baseline ms | ratio | peak MiB |"
echo "|---|---:|---:|---:|---:|"
awk -v r="$rb" -v b="$b" -v k="$peak" 'BEGIN {
  printf "| zentrel-cli rebuild, 13 fields set (analysis + rebuild + save) | %.1f | %.1f | %.2f | %s |\n",
    r, b, r / b, k }'
echo

"$bin/zentrel-bench" --benchmark_filter='BM_(Baseline|RebuildAndSave|WholeAnalysis)/4194304' \
  --benchmark_repetitions=5 --benchmark_report_aggregates_only=true \
  --benchmark_format=json >"$out/b.json" 2>/dev/null
jq -r '.benchmarks[] | select(.aggregate_name == "median") |
  [.run_name, .real_time, .cpu_time] | @tsv' "$out/b.json" >"$out/b.tsv"
awk -F'\t' '
  { name[NR] = $1; real[NR] = $2; cpu[NR] = $3; if ($1 ~ /BM_Baseline/) { br = $2; bc = $3 } }
  END {
    print "| in process, 4 MB page (median of 5) | wall ms | CPU ms | wall / baseline | CPU / baseline |"
    print "|---|---:|---:|---:|---:|"
    for (i = 1; i <= NR; ++i)
      printf "| %s | %.2f | %.2f | %.2f | %.2f |\n", name[i], real[i], cpu[i], real[i] / br, cpu[i] / bc
  }' "$out/b.tsv"
