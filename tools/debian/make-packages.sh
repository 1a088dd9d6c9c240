#!/usr/bin/env bash
# Makes the Debian packages libzrstring1, libzrstring-dev, libzrstring1-dbgsym and python3-zrstring
# in build/packages. Installs the Debian packages that are missing for that.
set -euo pipefail
top=$(realpath "$(dirname "${BASH_SOURCE[0]}")/../..")
. "$top/tools/steps.inc.sh"
[ $# -eq 0 ] || die "there are no options"
out=$top/build/packages

"$top/tools/install-packages.sh" build-essential cmake debhelper dh-python libicu-dev python3

version=$(sed -n 's/^project(ZRString VERSION \([0-9.]*\).*/\1/p' "$top/CMakeLists.txt")
source=$out/zrstring-$version
rm -rf "$out"
copy_project "$source"
cp -r "$source/tools/debian" "$source/debian"
# What is built does not depend on the day: the build takes its date from the changelog, and files
# that are copied into the packages keep theirs.
date=$("$top/tools/source-date.sh")
sed "s/@VERSION@/$version/; s/@DATE@/$(LC_ALL=C date -u -R -d "@$date")/" \
  "$source/debian/changelog.in" > "$source/debian/changelog"
find "$source" -exec touch -h -d "@$date" {} +

say "making the packages"
logged "$out/build.log" env -C "$source" dpkg-buildpackage -b -us -uc -j"$(nproc)"
rm -rf "$source"
printf '%s\n' "$out"/*.deb
