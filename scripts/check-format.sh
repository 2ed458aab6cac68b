#!/usr/bin/env bash
# Holds every C++ file to .clang-format. With --fix, brings them in line instead.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh lint
mode=(--dry-run --Werror)
[[ "${1:-}" != --fix ]] || mode=(-i)
find src tests benchmarks fuzz \( -name '*.h' -o -name '*.cpp' \) -print0 |
  xargs -0 --no-run-if-empty clang-format-14 "${mode[@]}"
echo "format: as .clang-format wants it"
