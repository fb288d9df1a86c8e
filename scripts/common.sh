# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash
# What ./run and ./test share. Sourced by bash; `root` is the checkout.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

fail() {
  printf '%s\n' "$1" >&2
  exit "${2:-1}"
}

# The packages named in the given lists that are not installed.
missing_packages() {
  local wanted installed
  wanted=$(sed -e '/^#/d' "$@" | sort -u)
  # shellcheck disable=SC2086 # one argument for each package
  installed=$(dpkg-query -W -f '${db:Status-Status} ${Package}\n' $wanted 2>/dev/null |
    sed -n 's/^installed //p' | sort -u)
  comm -23 <(printf '%s\n' "$wanted") <(printf '%s\n' "$installed")
}

as_root() {
  if [ "$(id -u)" = 0 ]; then
    "$@"
  elif command -v sudo >/dev/null; then
    sudo "$@"
  else
    fail "Packages have to be installed, which takes root or sudo; the command is: $*"
  fi
}

# Installs what is missing of the lists, and does not touch the package system when nothing is.
install_packages() {
  command -v dpkg-query >/dev/null || return 0 # not Debian: the person has seen to it
  local missing
  missing=$(missing_packages "$@")
  [ -n "$missing" ] || return 0
  local quiet=(env DEBIAN_FRONTEND=noninteractive apt-get -o DPkg::Lock::Timeout=600 -q -y)
  as_root "${quiet[@]}" update
  # shellcheck disable=SC2086 # one argument for each package
  as_root "${quiet[@]}" install --no-install-recommends $missing
}

# Builds the given targets of a preset, by default all. Once a build folder stands, the build itself
# sees to it that the configuration is up to date, but for what the presets say.
build_preset() {
  local preset=$1
  shift
  (
    cd "$root"
    [ "build/$preset/build.ninja" -nt CMakePresets.json ] || cmake --preset "$preset"
    cmake --build "build/$preset" "${@/#/--target=}"
  )
}

# What a package has from its surroundings: the time that all files bear, which is that of the last
# commit unless the caller names another, and the modes of what CPack puts together.
package_surroundings() {
  umask 022
  [ -n "${SOURCE_DATE_EPOCH:-}" ] || SOURCE_DATE_EPOCH=$(git -C "$root" log -1 --format=%ct)
  export SOURCE_DATE_EPOCH
}
