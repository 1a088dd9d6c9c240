#!/usr/bin/env bash
# Installs the Debian packages that are named and missing; says nothing when there are none.
# usage: install-packages.sh PACKAGE...
set -euo pipefail

missing=()
for package in "$@"; do
  status=$(dpkg-query -W -f '${db:Status-Status}' "$package" 2> /dev/null || true)
  [ "$status" = installed ] || missing+=("$package")
done
[ "${#missing[@]}" -gt 0 ] || exit 0

fail() {
  echo "These Debian packages are missing and $1: ${missing[*]}" >&2
  exit 1
}

command -v apt-get > /dev/null || fail "there is no apt-get to install them with"
as_root=()
if [ "$(id -u)" -ne 0 ]; then
  command -v sudo > /dev/null || fail "only root can install them"
  as_root=(sudo)
fi
echo "-- installing ${missing[*]}"
log=$(mktemp)
trap 'rm -f "$log"' EXIT
export DEBIAN_FRONTEND=noninteractive
if ! { "${as_root[@]}" apt-get update -q &&
  "${as_root[@]}" apt-get install -y -q --no-install-recommends "${missing[@]}"; } > "$log" 2>&1; then
  tail -n 20 "$log" >&2
  fail "could not be installed"
fi
