#!/usr/bin/env bash
# Runs clazy and clang-tidy, with clang's own warnings, over src/; each finding is an error.
# Arguments are the files to look at instead: scripts/lint.sh src/core/Path.cpp
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh lint
# The tools parse the sources themselves and need no more than the commands and the export headers,
# which configuring writes. Most of their time goes into Qt's headers, so the whole of src/ is looked
# at joined, a dozen sources to a unit.
preset=lint
[[ $# -gt 0 ]] || preset=lint-joined
cmake --preset "$preset" >/dev/null

files=("$@")
if [[ $# -eq 0 ]]; then
  mapfile -t files < <(find "build/$preset/src" -path '*/Unity/*' -name '*.cxx' | sort)
fi

# Beyond level 1: what of the higher levels finds mistakes rather than tastes (a graphics item's parent
# is an item, so that check of parents is none of them). Off:
#  old-style-connect        connections go by string signature, the interface by which plug-in code
#                           and tests reach signals and slots; a failed one fails the tests
#  fully-qualified-moc-types  for the same reason: signatures are written inside the namespace
#  overloaded-signal        the string names the overload that is meant
clazy=level1,no-old-style-connect,no-fully-qualified-moc-types,no-overloaded-signal
clazy+=,base-class-event,copyable-polymorphic
clazy+=,isempty-vs-count,qvariant-template-instantiation,returning-void-expression
clazy+=,signal-with-return-value,tr-non-literal,unneeded-cast,virtual-call-ctor

# What each tool counts in headers of others is of no interest; it goes to the log.
log=$(mktemp)
trap 'rm -f "$log"' EXIT
check() {
  local name=$1
  shift
  if ! printf '%s\0' "${files[@]}" | xargs -0 -n 1 -P "$(nproc)" "$@" >"$log" 2>&1 ||
    grep -qE '(warning|error): ' "$log"; then
    grep -vE '^([0-9]+ warnings?|Suppressed|Use -header-filter)' "$log" >&2
    echo "lint: $name found something" >&2
    return 1
  fi
  echo "lint: $name finds nothing in ${#files[@]} units"
}

failed=0
check clazy clazy-standalone -p "build/$preset" --header-filter='.*/src/.*' --checks="$clazy" || failed=1
# A joined unit is nothing but sources that are included.
check clang-tidy clang-tidy-14 -p "build/$preset" --quiet --checks=-bugprone-suspicious-include || failed=1
exit $failed
