#!/usr/bin/env bash
# Replaces PREFIX, with which ICU was configured in this folder, by the ICU that was built here.
# usage: install-icu.sh PREFIX
set -euo pipefail

rm -rf "$1"
make install
cd "$1/bin"
# For i686 the icudt*.dll that is installed is the empty stub against which the other DLLs were
# linked, and libicudt*.dll has the data; for x86_64 the data has the right name at once.
for dll in libicudt*.dll; do
  [ ! -f "$dll" ] || mv -f "$dll" "${dll#lib}"
done
if [ "$(stat -c %s icudt*.dll)" -lt 10000000 ]; then
  echo "icudt*.dll has no data in it" >&2
  exit 1
fi
