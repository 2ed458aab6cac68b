#!/usr/bin/env bash
# Feeds the fuzz targets with inputs of every kind: fuzz.sh [SECONDS [TARGET...]], by default an hour
# for each target. What is found stays in build/fuzz/found, inputs that led to new places in
# build/fuzz/corpus, beside those that are kept in fuzz/corpus.
set -euo pipefail
cd "$(dirname "$0")/.."

seconds=${1:-3600}
[[ $# -eq 0 ]] || shift
targets=("$@")
if [[ ${#targets[@]} -eq 0 ]]; then
  for source in fuzz/fuzz_*.cpp; do
    targets+=("$(basename "$source" .cpp)")
  done
fi

scripts/setup.sh lint
scripts/build.sh fuzz "${targets[@]}"
build=$PWD/build/fuzz
mkdir -p "$build/found" "$build/run"
chmod 700 "$build/run"

fuzz_target() {
  local name=$1 log=$build/$1.log
  local kept=fuzz/corpus/$name new=$build/corpus/$name
  mkdir -p "$new"
  # To choose inputs by the rarity of what they reach takes most of the time with a large corpus.
  if "$build/fuzz/$name" -seed="$seed" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=512 -max_len=4096 \
    -use_value_profile=1 -entropic=0 -print_final_stats=1 -artifact_prefix="$build/found/$name-" \
    "$new" "$kept" >"$log" 2>&1; then
    echo "$name: $(sed -n 's/^stat::\(number_of_executed_units\|slowest_unit_time_sec\|peak_rss_mb\): */ /p' \
      "$log" | tr -d '\n' | awk '{print $1 " inputs, the slowest " $2 " s, " $3 " MiB"}')"
  else
    echo "$name: FAILED, see $log and $build/found"
    grep -m 3 -E 'WRONG|ERROR|runtime error' "$log" || true
    return 1
  fi
}
export -f fuzz_target
# A short run makes the same inputs every time, a long one others.
seed=0
[[ $seconds -gt 60 ]] || seed=1
export build seconds seed
# Fonts and the styles of Qt are never given back.
export ASAN_OPTIONS=detect_leaks=0:quarantine_size_mb=32 UBSAN_OPTIONS=print_stacktrace=1
export LC_ALL=C.UTF-8 HOME=$build/run XDG_RUNTIME_DIR=$build/run XDG_CONFIG_HOME=$build/run

printf '%s\n' "${targets[@]}" | xargs -P "$(nproc)" -I {} bash -c 'fuzz_target {}'
