#!/usr/bin/env bash
# Installs the Debian packages that are missing. Without an argument: what building and running need;
# with "test" also what the tests need, and with "lint" what the format and lint checks need, too.
set -euo pipefail
group=${1:-}

packages=(
  g++ cmake ninja-build
  qtbase5-dev libqt5svg5-dev qttools5-dev qttools5-dev-tools libkf5archive-dev
  libkf5calendarcore-dev
  # Does the transfers of uploads.
  rsync
  # Qt's own catalogues, and fonts that cover the scripts of the example channels.
  qttranslations5-l10n fonts-dejavu-core fonts-ipafont-gothic
)
if [[ "$group" == test || "$group" == lint ]]; then
  packages+=(
    # Read what the program exported.
    python3 poppler-utils
    # An upload by ssh is tested with a server of its own.
    openssh-client openssh-server
    # Links the tests.
    mold
    # A display for the test that copies from one program to another.
    xvfb
    # Presses keys in a program on that display.
    xdotool
    # Make the packages, look at them and at what goes along with the program, and install it.
    hicolor-icon-theme file dpkg-dev fakeroot lintian desktop-file-utils appstream mandoc doxygen
  )
fi
if [[ "$group" == lint ]]; then
  packages+=(clang-14 libclang-rt-14-dev clang-format-14 clang-tidy-14 clazy valgrind)
fi

if ! command -v dpkg-query >/dev/null; then
  echo "setup: this is no Debian system. Install by hand what stands for: ${packages[*]}" >&2
  exit 1
fi

installed=$(dpkg-query --show --showformat='${db:Status-Status} ${Package}\n' 2>/dev/null |
  sed -n 's/^installed //p')
missing=()
for package in "${packages[@]}"; do
  grep -qxF -- "$package" <<<"$installed" || missing+=("$package")
done
[[ ${#missing[@]} -gt 0 ]] || exit 0

as_root=()
if [[ $(id -u) -ne 0 ]]; then
  if ! command -v sudo >/dev/null; then
    echo "setup: as root, run: apt-get install ${missing[*]}" >&2
    exit 1
  fi
  as_root=(sudo)
fi

echo "setup: installing ${missing[*]}"
# What is asked by no one must not wait for an answer.
apt=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq -o Dpkg::Use-Pty=0)
"${apt[@]}" update </dev/null
"${apt[@]}" install --yes --no-install-recommends "${missing[@]}" </dev/null
