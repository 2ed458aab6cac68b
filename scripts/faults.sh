#!/usr/bin/env bash
# Lets every call on files go wrong in every way while the program saves, works on a full disk, kills
# the program at random times and lets two programs save side by side: 10,000 kills and 1,000
# meetings, or as told: faults.sh [KILLS [MEETINGS [CALLS]]]. CALLS is how many calls of an operation
# are tried. As root it does all of it as root and as an ordinary user.
set -euo pipefail
cd "$(dirname "$0")/.."

kills=${1:-10000}
meetings=${2:-1000}
calls=${3:-1000000}
home=$PWD/build/faults

cmake --preset dev
cmake --build --preset dev --target zavo-faults
mkdir -p "$home/run"
chmod 700 "$home/run"

export QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen} LC_ALL=C.UTF-8 HOME=$home
export XDG_RUNTIME_DIR=$home/run XDG_CONFIG_HOME=$home/config
build/dev/tests/faults/zavo-faults --calls "$calls" --full-disk 1 --kills "$kills" \
  --meetings "$meetings" 2>"$home/log" | tee "$home/out"
