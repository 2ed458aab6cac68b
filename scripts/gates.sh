#!/usr/bin/env bash
# All that a change has to pass, cheapest first after the tests: tests, format, growth, fuzz,
# sanitizers, lint.
# Every gate runs even if an earlier one failed; the last lines say which did.
set -uo pipefail
cd "$(dirname "$0")/.."

mkdir -p build
scripts/setup.sh lint || exit 1

verdicts=()
failed=0
gate() {
  local name=$1 started=$SECONDS verdict=passed
  shift
  echo "== $name"
  if ! "$@"; then
    verdict=FAILED
    failed=1
  fi
  verdicts+=("$(printf '%-11s %s (%d s)' "$name" "$verdict" $((SECONDS - started)))")
}
logged() {
  local log=$1
  shift
  "$@" 2>&1 | tee "$log"
}

gate tests logged build/gate-tests.log ./test
gate format scripts/check-format.sh
gate growth scripts/check-growth.sh
gate fuzz scripts/fuzz.sh 20
gate sanitizers logged build/gate-sanitizers.log scripts/sanitize.sh
gate lint scripts/lint.sh

echo "== closing lines"
for name in sanitizers tests; do
  echo "$name:"
  sed -n '/tests passed,/,$p' "build/gate-$name.log"
done
printf '%s\n' "${verdicts[@]}"
exit $failed
