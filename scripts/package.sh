#!/usr/bin/env bash
# Makes the Debian packages in build/package/packages.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh test
scripts/build.sh package
cpack --preset package
