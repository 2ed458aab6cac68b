#!/usr/bin/env bash
# Uses the whole window at random under the sanitizers: 100 seeds of 20,000 events, or as told:
# monkey.sh [SEEDS [EVENTS [FIRST_SEED]]]. The log of a seed that failed stays in build/monkey. With
# QT_QPA_PLATFORM=xcb the window is on the display that DISPLAY names, and a run does not repeat itself.
set -euo pipefail
cd "$(dirname "$0")/.."

seeds=${1:-100}
events=${2:-20000}
first=${3:-1}
logs=$PWD/build/monkey
home=$logs/home

cmake --preset asan
cmake --build --preset asan --target zavo-monkey
mkdir -p "$home/run"
chmod 700 "$home/run"

run_seed() {
  local log=$logs/$1.log out=$logs/$1.out
  if build/asan/tests/monkey/zavo-monkey --seed "$1" --events "$events" --log "$log" >"$out" 2>&1
  then
    echo "seed $1: $(tail -n 1 "$out")"
    rm "$log" "$out"
  else
    echo "seed $1: FAILED, see $log and $out"
    return 1
  fi
}
export -f run_seed
export logs events
export QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen} LC_ALL=C.UTF-8 HOME=$home
export XDG_RUNTIME_DIR=$home/run XDG_CONFIG_HOME=$home/config
export UBSAN_OPTIONS=print_stacktrace=1
export LSAN_OPTIONS=suppressions=$PWD/cmake/leaks.supp:print_suppressions=0

seq "$first" $((first + seeds - 1)) | xargs -P "$(nproc)" -I {} bash -c 'run_seed {}'
