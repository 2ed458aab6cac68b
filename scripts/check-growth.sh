#!/usr/bin/env bash
# Counts the instructions of single operations on a time table of few and of many bands and holds
# their growth to a little more than that of the bands. Counts are the same on a busy machine.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh lint
scripts/build.sh dev bench_timetable

operations=(load selectAll groupStep clear)
few=288
many=1440
exponent=1.15

counts=$(mktemp -d)
trap 'rm -rf "$counts"' EXIT

# A dump follows each operation, in their order; what is counted begins and ends with it.
count() {
  local bands=$1 list
  list=$(IFS=, && echo "${operations[*]}")
  if ! valgrind --tool=callgrind --callgrind-out-file="$counts/$bands" \
    --toggle-collect=measuredOperation --dump-after=measuredOperation \
    build/dev/benchmarks/bench_timetable --once "$list" "$bands" >"$counts/log" 2>&1; then
    cat "$counts/log" >&2
    return 1
  fi
}

instructions() {
  sed -n 's/^summary: //p' "$counts/$1.$2"
}

count $few
count $many
failed=0
printf '%-12s %14s %14s %7s\n' instructions "$few bands" "$many bands" growth
for i in "${!operations[@]}"; do
  a=$(instructions $few $((i + 1)))
  b=$(instructions $many $((i + 1)))
  awk -v name="${operations[$i]}" -v a="$a" -v b="$b" -v few=$few -v many=$many -v most=$exponent '
    BEGIN {
      grown = a > 0 && b > 0 ? log(b / a) / log(many / few) : 99
      printf "%-12s %14d %14d  n^%.2f%s\n", name, a, b, grown, (grown > most ? "  TOO MUCH" : "")
      exit (grown > most)
    }' || failed=1
done
exit $failed
