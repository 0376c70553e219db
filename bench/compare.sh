#!/usr/bin/env bash
# Times whole processes side by side in one run: zentrel-cli report against the baseline pass
# (zentrel-baseline) and against wc -w, on the 100 KB, 1 MB and 4 MB pages; then prints the
# ratios of the medians and the peak memory of zentrel-cli report.
set -euo pipefail
cd "$(dirname "$0")/.."

need=()
command -v hyperfine >/dev/null || need+=(hyperfine)
[ -x /usr/bin/time ] || need+=(time)
command -v jq >/dev/null || need+=(jq)
if [ ${#need[@]} -gt 0 ]; then
  sudo=""; [ "$(id -u)" -ne 0 ] && sudo=sudo
  $sudo apt-get update -qq && $sudo apt-get install -y -qq "${need[@]}"
fi

cmake --preset dev >/dev/null
cmake --build --preset dev --target zentrel-cli zentrel-baseline zentrel-bench-pages zentrel-bench
bin=build/dev/bin
pages=build/dev/bench-pages
"$bin/zentrel-bench-pages" "$pages"

printf '%-10s %12s %12s %12s %10s %10s %12s\n' page "report ms" "baseline ms" "wc -w ms" \
  "x baseline" "x wc" "peak MiB"
declare -A report_ms
for size in 100k 1m 4m; do
  page="$pages/page-$size.html"
  json=$(mktemp)
  hyperfine -N --warmup 1 --runs 10 --export-json "$json" \
    "$bin/zentrel-cli report $page" "$bin/zentrel-baseline $page" "wc -w $page" >/dev/null
  read -r r b w < <(jq -r '[.results[].median * 1000] | @tsv' "$json")
  rm -f "$json"
  peak_kb=$(/usr/bin/time -v "$bin/zentrel-cli" report "$page" 2>&1 >/dev/null |
            awk -F: '/Maximum resident/ {gsub(/ /, "", $2); print $2}')
  report_ms[$size]=$r
  awk -v p="$size" -v r="$r" -v b="$b" -v w="$w" -v k="$peak_kb" 'BEGIN {
    printf "%-10s %12.1f %12.1f %12.1f %10.2f %10.2f %12.1f\n", p, r, b, w, r / b, r / w, k / 1024 }'
done
awk -v a="${report_ms[4m]}" -v b="${report_ms[1m]}" \
  'BEGIN { printf "4 MB / 1 MB report time: %.2f\n", a / b }'
