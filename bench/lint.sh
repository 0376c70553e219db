#!/usr/bin/env bash
# Lint throughput over a site of 1000 generated pages of 20 to 200 KB (zentrel-bench-pages
# --site 1000, in folders of 100): pages per second with 1 and 2 jobs, and the time per MB
# against zentrel-cli report over the same pages, all measured side by side in one hyperfine
# run. Beside them, two single-job lint processes on the two halves of the site at once: what
# two cores of this machine give to work that shares nothing, the ceiling for --jobs 2.
# Prints a Markdown table of the medians.
# Usage: bench/lint.sh [RUNS]   (RUNS per command, default 10)
set -euo pipefail
cd "$(dirname "$0")/.."
runs=${1:-10}

# shellcheck source=bench/bench_tools.sh
source bench/bench_tools.sh

cmake --preset dev >/dev/null
cmake --build --preset dev --target zentrel-cli zentrel-bench-pages >/dev/null
bin=build/dev/bin
site=build/dev/bench-site
[ -d "$site" ] || "$bin/zentrel-bench-pages" --site 1000 "$site"
mapfile -t pages < <(find "$site" -name '*.html' | sort)
mapfile -t sections < <(find "$site" -mindepth 1 -maxdepth 1 -type d | sort)
half=$((${#sections[@]} / 2))
halves="$bin/zentrel-cli lint --jobs 1 ${sections[*]:0:$half} >/dev/null &"
halves+=" $bin/zentrel-cli lint --jobs 1 ${sections[*]:$half} >/dev/null; wait"
mb=$(cat "${pages[@]}" | wc -c | awk '{ printf "%.2f", $1 / 1048576 }')
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT

pressure() { awk -F'[ =]' '/^some/ { print $5 }' /proc/pressure/cpu 2>/dev/null || echo "?"; }
before=$(pressure)
# The shell's start-up (about a millisecond) is subtracted from every command by hyperfine.
hyperfine --warmup 2 --runs "$runs" --export-json "$out/h.json" \
  -n "zentrel-cli lint --jobs 1" "$bin/zentrel-cli lint --jobs 1 $site" \
  -n "zentrel-cli lint --jobs 2" "$bin/zentrel-cli lint --jobs 2 $site" \
  -n "2 processes, --jobs 1, half the site each" "$halves" \
  -n "zentrel-cli report (every page)" "$bin/zentrel-cli report ${pages[*]}" >/dev/null 2>&1
after=$(pressure)

echo "Machine: $(nproc) cores, $(awk -F': ' '/model name/ {print $2; exit}' /proc/cpuinfo);" \
  "CPU pressure (some, avg60) $before% before, $after% after"
echo "Command: bench/lint.sh $runs (hyperfine medians of $runs runs after 2 warm-ups)"
echo "Site: ${#pages[@]} pages, $mb MB"
echo
echo "| command | median ms | user+sys ms | pages/s | ms per MB |"
echo "|---|---:|---:|---:|---:|"
jq -r '.results[] | [.command, .median * 1000, (.user + .system) * 1000] | @tsv' "$out/h.json" |
  awk -F'\t' -v n="${#pages[@]}" -v mb="$mb" '
    { ms[NR] = $2
      printf "| %s | %.0f | %.0f | %.0f | %.2f |\n", $1, $2, $3, n / ($2 / 1000), $2 / mb }
    END {
      printf "\n2 jobs against 1: %.2f times the pages per second (target ≥ 1.7)\n", ms[1] / ms[2]
      printf "2 processes on halves against 1 job: %.2f (what this machine gives)\n", ms[1] / ms[3]
      printf "report / lint (1 job), time per MB: %.1f\n", ms[4] / ms[1] }'
