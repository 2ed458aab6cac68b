#!/usr/bin/env bash
# Makes the Debian packages in build/package/packages.
set -euo pipefail
cd "$(dirname "$0")/.."

# The same sources give the same packages, whenever they are made: files are as old as the version.
version_date=$(sed -n 's/^set(ZAVO_VERSION_DATE \(.*\))$/\1/p' CMakeLists.txt)
export SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(date --utc --date="$version_date" +%s)}
export QT_RCC_SOURCE_DATE_OVERRIDE=$SOURCE_DATE_EPOCH

scripts/setup.sh test
scripts/build.sh package
cpack --preset package
