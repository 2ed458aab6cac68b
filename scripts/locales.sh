#!/usr/bin/env bash
# Runs the suite on a machine set to each of the languages, each with one of the time zones:
# locales.sh [CTEST ARGUMENT...]. The languages themselves are made in build/locales, of the sources
# of Debian's package locales.
set -uo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh test || exit 1
scripts/build.sh dev || exit 1
pairs=(C=UTC de_DE=Europe/Berlin tr_TR=America/Sao_Paulo ja_JP=Asia/Kathmandu zh_CN=Pacific/Apia
  th_TH=UTC ar_EG=Pacific/Apia fa_IR=Asia/Kathmandu mr_IN=America/Sao_Paulo)
export LOCPATH=$PWD/build/locales
mkdir -p "$LOCPATH"

failed=0
for pair in "${pairs[@]}"; do
  language=${pair%=*}
  zone=${pair#*=}
  if [[ $language != C && ! -d $LOCPATH/$language.UTF-8 ]]; then
    localedef -i "$language" -f UTF-8 "$LOCPATH/$language.UTF-8" || exit 1
  fi
  # The environment of the tests is written when the build is configured.
  cmake --preset dev -D "ZAVO_TEST_LOCALE=$language.UTF-8" -D "ZAVO_TEST_ZONE=$zone" >/dev/null || exit 1
  echo "== $language in $zone"
  ctest --preset dev "$@" >"build/locales/$language.log" || failed=1
  sed -n '/tests passed,/,$p' "build/locales/$language.log"
done
cmake --preset dev -U ZAVO_TEST_LOCALE -U ZAVO_TEST_ZONE >/dev/null
exit $failed
