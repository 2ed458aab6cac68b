#!/usr/bin/env bash
# usage: build.sh PRESET [TARGET...]
# Configures and builds a preset. What the tools print is shown only if they fail or if it is asked
# for by VERBOSE=1.
set -euo pipefail
cd "$(dirname "$0")/.."

preset=$1
shift
targets=()
[[ $# -eq 0 ]] || targets=(--target "$@")

if command -v ccache >/dev/null; then
  export CMAKE_CXX_COMPILER_LAUNCHER=${CMAKE_CXX_COMPILER_LAUNCHER-ccache}
fi

log=$(mktemp)
trap 'rm -f "$log"' EXIT
if ! cmake --preset "$preset" >"$log" 2>&1; then
  cat "$log" >&2
  exit 1
fi
[[ -z "${VERBOSE:-}" ]] || cat "$log"
cmake --build --preset "$preset" --parallel "$(nproc)" "${targets[@]}"
