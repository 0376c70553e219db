#!/usr/bin/env bash
# Times whole processes side by side in one run and prints Markdown tables of the medians:
#  - zentrel-cli report against the baseline pass (zentrel-baseline) and wc -w on the 100 KB,
#    1 MB and 4 MB pages, with the peak resident memory of zentrel-cli report;
#  - the text scan (scan 0) of the 4 MB page with 200 keywords against the same with 20;
#  - zentrel-cli report over a site of 1000 pages of 20 to 200 KB in one process (pages/s);
#  - zentrel-cli rebuild of the 4 MB page with all 13 META tag fields set, against the
#    baseline pass over the same page;
#  - in-process (Google Benchmark): the analysis stage by stage, the whole analysis and the
#    rebuild-and-save against the baseline pass over the page in memory.
# With OTHER, a folder holding another build's zentrel-cli (say, the one before a change), that
# program runs in the same hyperfine runs and its figures stand beside this build's.
# Usage: bench/compare.sh [RUNS] [OTHER]   (RUNS per command, default 10)
set -euo pipefail
cd "$(dirname "$0")/.."
runs=${1:-10}
other=${2:-}

# shellcheck source=bench/bench_tools.sh
source bench/bench_tools.sh

cmake --preset dev -DZENTREL_WITH_BENCH=ON >/dev/null
cmake --build --preset dev --target zentrel-cli zentrel-baseline zentrel-bench-pages \
  zentrel-bench >/dev/null
bin=build/dev/bin
pages=build/dev/bench-pages
site=build/dev/bench-site
"$bin/zentrel-bench-pages" "$pages"
[ -d "$site" ] || "$bin/zentrel-bench-pages" --site 1000 "$site"
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT
printf 'Keywords_MatchingType: 0\r\n' >"$out/scan0.prefs"

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
# The command run with this build's zentrel-cli and, with OTHER, with the other one.
both() {
  echo "$bin/zentrel-cli $*"
  [ -z "$other" ] || echo "$other/zentrel-cli $*"
}

echo "Machine: $(nproc) cores, $(awk -F': ' '/model name/ {print $2; exit}' /proc/cpuinfo)"
echo "Command: bench/compare.sh $runs${other:+ $other} (hyperfine medians of $runs runs after 2" \
  "warm-ups)"
echo "CPU pressure (some, avg60) at the start: $(awk -F'[ =]' '/^some/ {print $5}' \
  /proc/pressure/cpu 2>/dev/null || echo '?') %"
echo
head="| page | zentrel-cli report ms | baseline ms | wc -w ms | report / baseline | target |"
head+=" peak MiB (report) |"
rule="|---|---:|---:|---:|---:|---:|---:|"
[ -z "$other" ] || { head+=" other ms | other / baseline | other peak MiB |"; rule+="---:|---:|---:|"; }
echo "$head"
echo "$rule"
declare -A report_ms other_ms
for size in 100k 1m 4m; do
  page="$pages/page-$size.html"
  mapfile -t cmds < <(both report "$page")
  read -r r b w o < <(medians "${cmds[@]}" "$bin/zentrel-baseline $page" "wc -w $page" | awk -F'\t' \
    -v n="${#cmds[@]}" '{ if (n == 2) print $1, $3, $4, $2; else print $1, $2, $3, 0 }')
  report_ms[$size]=$r
  other_ms[$size]=$o
  case $size in 100k) target="≤ 5" ;; 1m) target="≤ 3.5" ;; 4m) target="≤ 4" ;; esac
  peak=$(peak_mib "$bin/zentrel-cli" report "$page")
  line=$(awk -v p="$size" -v r="$r" -v b="$b" -v w="$w" -v t="$target" -v k="$peak" 'BEGIN {
    printf "| %s | %.1f | %.1f | %.1f | %.2f | %s | %s |", p, r, b, w, r / b, t, k }')
  if [ -n "$other" ]; then
    line+=$(awk -v o="$o" -v b="$b" -v k="$(peak_mib "$other/zentrel-cli" report "$page")" \
      'BEGIN { printf " %.1f | %.2f | %s |", o, o / b, k }')
  fi
  echo "$line"
done
echo
awk -v a="${report_ms[4m]}" -v b="${report_ms[1m]}" -v c="${other_ms[4m]}" -v d="${other_ms[1m]}" \
  'BEGIN { printf "4 MB / 1 MB report time: %.2f (target ≤ 4.2)", a / b
           if (d > 0) printf "; other: %.2f", c / d
           print "" }'
echo "Peak memory of the 4 MB report: target ≤ 18 MiB"
echo

# The text scan over the 4 MB page: its own 20 keywords against 200 (the same page with a
# longer keywords line).
mapfile -t cmds < <(both report --prefs "$out/scan0.prefs" "$pages/page-4m.html"
  both report --prefs "$out/scan0.prefs" "$pages/page-4m-k200.html")
medians "${cmds[@]}" >"$out/scan0.tsv"
echo "| text scan (scan 0), 4 MB page | 20 keywords ms | 200 keywords ms | 200 / 20 | target |"
echo "|---|---:|---:|---:|---:|"
awk -F'\t' -v other="$other" '{
  if (other == "") { printf "| this build | %.1f | %.1f | %.2f | ≤ 1.3 |\n", $1, $2, $2 / $1 }
  else {
    printf "| this build | %.1f | %.1f | %.2f | ≤ 1.3 |\n", $1, $3, $3 / $1
    printf "| other | %.1f | %.1f | %.2f | |\n", $2, $4, $4 / $2 } }' "$out/scan0.tsv"
echo

# A site in one process: every page analysed by one zentrel-cli report.
mapfile -t sitePages < <(find "$site" -name '*.html' | sort)
mb=$(cat "${sitePages[@]}" | wc -c | awk '{ printf "%.1f", $1 / 1048576 }')
mapfile -t cmds < <(both report "${sitePages[*]}")
medians "${cmds[@]}" >"$out/site.tsv"
echo "| ${#sitePages[@]} pages of 20-200 KB ($mb MB), one process | ms | pages/s | ms per MB |"
echo "|---|---:|---:|---:|"
awk -F'\t' -v n="${#sitePages[@]}" -v mb="$mb" -v other="$other" '{
  printf "| zentrel-cli report | %.0f | %.0f | %.2f |\n", $1, n / ($1 / 1000), $1 / mb
  if (other != "") printf "| other | %.0f | %.0f | %.2f |\n", $2, n / ($2 / 1000), $2 / mb }' \
  "$out/site.tsv"
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

stages='Baseline|Decode|WordCount|KeywordTallyScan0|KeywordTallyScan1|WholeAnalysis|RebuildAndSave'
"$bin/zentrel-bench" --benchmark_filter="BM_($stages)/4194304" \
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
