#!/usr/bin/env bash
# Times the heavy inputs (bench/heavy_inputs.cpp) with zentrel-cli report side by side with
# the plain 4 MB page and its 20 keywords, all in one hyperfine run, and prints a Markdown
# table: each input's median wall time and mean CPU time as ratios of the plain page's
# (target: wall time at most 2 times) and its peak resident memory (target at most 256 MiB;
# an input whose report alone is larger is held to 1.5 times its report plus its page, and
# its time is shown beside that of writing as many bytes into fresh memory once).
# Usage: bench/heavy.sh [RUNS] [ZENTREL_CLI]
#   RUNS per command (default 5); ZENTREL_CLI times another build on the same inputs.
set -euo pipefail
cd "$(dirname "$0")/.."
runs=${1:-5}

# shellcheck source=bench/bench_tools.sh
source bench/bench_tools.sh

cmake --preset dev -DZENTREL_WITH_BENCH=ON >/dev/null
cmake --build --preset dev --target zentrel-cli zentrel-bench-pages >/dev/null
cli=$(realpath "${2:-build/dev/bin/zentrel-cli}")
inputs=build/dev/bench-heavy
build/dev/bin/zentrel-bench-pages --heavy "$inputs"
cp "$inputs/page-4m.html" "$inputs/plain-4m.html"
: >"$inputs/plain-4m.prefs"
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT

# name<TAB>report (its report alone may pass the memory ceiling) or ceiling
mapfile -t rows < <(printf 'plain-4m\tceiling\n'; cat "$inputs/heavy.list")
names=() kinds=() peaks=() sizes=() commands=() floors=()
for row in "${rows[@]}"; do
  name=${row%%$'\t'*}
  names+=("$name")
  kinds+=("${row##*$'\t'}")
  command="$cli report --prefs $inputs/$name.prefs $inputs/$name.html"
  commands+=("$command")
  # shellcheck disable=SC2086  # the command is split into its words on purpose
  /usr/bin/time -f %M -o "$out/peak" $command >"$out/report" 2>/dev/null || true
  peaks+=("$(cat "$out/peak")")
  sizes+=("$(stat -c %s "$out/report")")
done
# The floor of a report larger than the ceiling: writing that many bytes into fresh memory once.
for i in "${!names[@]}"; do
  if [ "${kinds[$i]}" = report ]; then
    floors[i]=${#commands[@]}
    commands+=("dd if=/dev/zero of=/dev/null bs=${sizes[$i]} count=1")
  fi
done
hyperfine -N -i --warmup 1 --runs "$runs" --export-json "$out/h.json" "${commands[@]}" \
  >/dev/null 2>&1
mapfile -t medians < <(jq -r '.results[].median * 1000' "$out/h.json")
mapfile -t cpus < <(jq -r '.results[] | (.user + .system) * 1000' "$out/h.json")

echo "Machine: $(nproc) cores, $(awk -F': ' '/model name/ {print $2; exit}' /proc/cpuinfo)"
echo "Command: bench/heavy.sh $runs $cli (hyperfine medians of $runs runs after 1 warm-up)"
echo
echo "| input | ms | × plain | CPU ms | × plain | peak MiB | report MiB | page MiB | time target | memory target |"
echo "|---|---:|---:|---:|---:|---:|---:|---:|---|---|"
for i in "${!names[@]}"; do
  floor=${floors[$i]:-}
  awk -v n="${names[$i]}" -v k="${kinds[$i]}" -v ms="${medians[$i]}" -v plain="${medians[0]}" \
    -v cpu="${cpus[$i]}" -v plaincpu="${cpus[0]}" \
    -v peak="${peaks[$i]}" -v report="${sizes[$i]}" -v floor="${floor:+${medians[$floor]}}" \
    -v page="$(stat -c %s "$inputs/${names[$i]}.html")" 'BEGIN {
      peak /= 1024; report /= 1048576; page /= 1048576; ratio = ms / plain
      time = ratio <= 2 ? "≤ 2 × plain: yes" : "≤ 2 × plain: no"
      if (floor != "")
        time = time sprintf(" (writing the report once takes %.0f ms)", floor)
      memory = k == "report" ? (peak <= 1.5 * report + page ? "≤ 1.5 × report + page: yes" \
                                                            : "≤ 1.5 × report + page: no") \
                             : (peak <= 256 ? "≤ 256 MiB: yes" : "≤ 256 MiB: no")
      printf "| %s | %.0f | %.2f | %.0f | %.2f | %.1f | %.1f | %.1f | %s | %s |\n",
        n, ms, ratio, cpu, cpu / plaincpu, peak, report, page, time, memory }'
done
