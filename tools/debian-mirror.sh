#!/usr/bin/env bash
# Prints the address of the Debian mirror that apt on this machine uses.
set -euo pipefail

# shellcheck source=/dev/null
codename=$(. /etc/os-release && echo "${VERSION_CODENAME:-}")
find_mirror() {
  # shellcheck disable=SC2016 # the variable is apt's
  apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' 'Origin: Debian' \
    "Release: $codename" 'Component: main'
}
mirror=$(find_mirror)
if [ -z "$mirror" ]; then
  apt-get -q update > /dev/null
  mirror=$(find_mirror)
fi
if [ -z "$mirror" ]; then
  echo "apt on this machine has no mirror configured for Debian's $codename main" >&2
  exit 1
fi
echo "${mirror%%$'\n'*}"
