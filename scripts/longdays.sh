#!/usr/bin/env bash
# Uses the program for long: 10,000 schedules opened, 1,000 times started and closed, a week with its
# midnights in minutes by a clock that runs faster (faketime). Memory may grow by 5 MiB in each,
# and the number of descriptors by none. Then a part of it under the sanitizers, which tell what was
# never given back.
set -euo pipefail
cd "$(dirname "$0")/.."

if ! command -v faketime >/dev/null; then
  echo "longdays: needs faketime: apt-get install faketime" >&2
  exit 1
fi
scripts/build.sh release zavo-longdays
scripts/build.sh asan zavo-longdays

home=$PWD/build/longdays
mkdir -p "$home/run"
chmod 700 "$home/run"
export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 HOME=$home
export XDG_RUNTIME_DIR=$home/run XDG_CONFIG_HOME=$home/config
# What is freed goes back to the system, so that only what is kept is counted.
export MALLOC_TRIM_THRESHOLD_=131072 MALLOC_ARENA_MAX=1
program=build/release/tests/longdays/zavo-longdays

failed=0
"$program" --schedules 10000 --resident || failed=1
"$program" --cycles 1000 --resident || failed=1
# Berlin goes to summer time in that week.
TZ=Europe/Berlin faketime -f '@2026-03-24 22:00:00 x2000' "$program" --days 7 --resident || failed=1
LSAN_OPTIONS=suppressions=cmake/leaks.supp:print_suppressions=0 \
  build/asan/tests/longdays/zavo-longdays --schedules 500 --cycles 50 || failed=1
exit $failed
