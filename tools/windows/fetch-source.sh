#!/usr/bin/env bash
# Replaces FOLDER by an unpacked Debian source package. Keeps the package lists for that to itself:
# the machine's apt configuration stays as it is.
# usage: fetch-source.sh PACKAGE VERSION FOLDER
set -euo pipefail
[ $# -eq 3 ] || { echo "usage: fetch-source.sh PACKAGE VERSION FOLDER" >&2; exit 2; }
package=$1 version=$2 folder=$(realpath -m "$3")

parts=$(mktemp -d)
trap 'rm -rf "$parts"' EXIT
mkdir -p "$parts/lists/partial" "$parts/archives/partial"
# shellcheck source=/dev/null
codename=$(. /etc/os-release && echo "$VERSION_CODENAME")
mirror=$("$(dirname "${BASH_SOURCE[0]}")/../debian-mirror.sh")
echo "deb-src [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] $mirror $codename main" \
  > "$parts/sources.list"
apt=(apt-get -q -o Dir::Etc::SourceList="$parts/sources.list" -o Dir::Etc::SourceParts=-
  -o Dir::State::Lists="$parts/lists" -o Dir::Cache="$parts" -o APT::Sandbox::User=root)
cd "$parts"
"${apt[@]}" update
"${apt[@]}" source "$package=$version"
rm -rf "$folder"
mkdir -p "$(dirname "$folder")"
mv "$parts/$package"-*/ "$folder"
