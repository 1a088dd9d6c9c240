#!/usr/bin/env bash
# Installs the Debian packages that are named and missing. Prints nothing if none is missing. Waits
# while another apt is at work, but not for ever.
# usage: install-packages.sh PACKAGE...
set -euo pipefail

[[ ${1:--} != -* ]] || { echo "usage: tools/install-packages.sh PACKAGE..." >&2; exit 2; }
missing=()
for package in "$@"; do
  # A word for each architecture.
  status=$(dpkg-query -W -f '${db:Status-Status} ' "$package" 2> /dev/null || true)
  [[ " $status" == *' installed '* ]] || missing+=("$package")
done
[ "${#missing[@]}" -gt 0 ] || exit 0

fail() {
  echo "These Debian packages are missing and $1: ${missing[*]}" >&2
  exit 1
}

command -v apt-get > /dev/null || fail "there is no apt-get to install them with"
as_root=(env)
if [ "$(id -u)" -ne 0 ]; then
  command -v sudo > /dev/null || fail "only root can install them"
  as_root=(sudo env)
fi
log=$(mktemp)
trap 'rm -f "$log"' EXIT

# apt waits for dpkg's lock (DPkg::Lock::Timeout), but not for its own locks.
apt_get() {
  local waiting=false
  until "${as_root[@]}" LC_ALL=C DEBIAN_FRONTEND=noninteractive \
    apt-get -q -o DPkg::Lock::Timeout=600 "$@" > "$log" 2>&1; do
    if [ "$SECONDS" -ge 600 ] || ! grep -q '^E: Could not get lock' "$log"; then
      fail "could not be installed ($(sed -n 's/^E: //p' "$log" | head -n 1))"
    fi
    "$waiting" || echo "-- waiting for another apt"
    waiting=true
    sleep 2
  done
}

echo "-- installing ${missing[*]}"
apt_get update
apt_get install -y --no-install-recommends "${missing[@]}"
