#!/usr/bin/env bash
# Builds with the address and undefined-behaviour sanitizers and runs all tests. Arguments go to
# ctest.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh test
scripts/build.sh asan
ctest --preset asan "$@"
