#!/usr/bin/env bash
# Prints the date that packages carry instead of that of their making, in seconds since 1970:
# $SOURCE_DATE_EPOCH if that is set, else that of the last commit (installing git if it is missing)
# or, outside a git checkout, that of the newest file.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

if [ -n "${SOURCE_DATE_EPOCH-}" ]; then
  echo "$SOURCE_DATE_EPOCH"
elif [ -e .git ]; then
  command -v git > /dev/null || tools/install-packages.sh git >&2
  # The checkout may be another user's: root makes packages too.
  git -c safe.directory='*' log -1 --format=%ct
else
  find . -path ./build -prune -o -type f ! -path '*/__pycache__/*' -printf '%T@\n' |
    sort -n | sed -n '$s/\..*//p'
fi
