#!/usr/bin/env bash
#
# Builds the Debian packages and uses them on a bare Debian 12: with both of them and a C compiler
# the program in install/c is built there and run, with the runtime package alone it is run again.
#
# Takes minutes, needs root, cmake, ninja, dpkg-dev and debootstrap, and fetches Debian from the
# mirror that this machine's apt is set up with. Everything is done in a scratch folder below
# $TMPDIR (default: /var/tmp), which is removed at the end.

set -euo pipefail
export LC_ALL=C.UTF-8
unset DESTDIR

codename=bookworm
top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)
started=$SECONDS

say() { printf '[%3ds] %s\n' "$((SECONDS - started))" "$*"; }
die() {
  printf 'packages: %s\n' "$*" >&2
  exit 1
}

# logged COMMAND...: runs the command quietly; shows the end of its output if it fails.
logged() {
  "$@" >"$work/log" 2>&1 </dev/null || {
    tail -n 40 "$work/log" >&2
    die "failed: $*"
  }
}

# Nothing is removed as long as something is mounted below the scratch folder.
clean_up() {
  local mounted
  mapfile -t mounted < <(cut -d' ' -f5 /proc/self/mountinfo | grep -F "$work/" | sort -r)
  if [ "${#mounted[@]}" -gt 0 ] && ! umount "${mounted[@]}"; then
    echo "packages: could not unmount everything below $work, which stays" >&2
    return
  fi
  rm -rf --one-file-system "$work"
}

find_mirror() {
  # shellcheck disable=SC2016 # the variable is apt's
  apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' 'Origin: Debian' \
    "Release: $codename" 'Component: main' | head -n 1
}

# in_root ROOT COMMAND...: runs a command inside one of the bare systems.
in_root() {
  local root=$1
  shift
  chroot "$root" /usr/bin/env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 \
    DEBIAN_FRONTEND=noninteractive ${http_proxy:+http_proxy="$http_proxy"} "$@"
}

install_in() {
  local root=$1
  shift
  logged in_root "$root" apt-get install -y --no-install-recommends -o Acquire::Retries=3 "$@"
}

field() { dpkg-deb -f "$1" "$2"; }

# check_files PACKAGE COMPONENT: the files in the package with those of COMPONENT in
# install/files.txt, below /usr and in the multiarch directory.
check_files() {
  sed -n "s|^$2 ||p" "$top/tests/install/files.txt" |
    sed -e "s|/FULL_LIBDIR/|/usr/$libdir/|" -e "s|^LIBDIR/|$libdir/|" -e 's|CONFIG|release|' \
      -e 's|^|./usr/|' | LC_ALL=C sort >"$work/expected"
  dpkg-deb --fsys-tarfile "$1" | tar -t | grep -v '/$' | LC_ALL=C sort >"$work/found"
  diff -u "$work/expected" "$work/found" || die "the files in $(basename "$1")"
}

# check_run ROOT: runs the program in the system and compares what it prints.
check_run() {
  in_root "$1" /road >"$work/output" || die "the program ended with status $?"
  # shellcheck disable=SC2016 # the marks of a code block, not commands
  sed -n '/{#output}/,/{#rules}/{/^```$/,/^```$/p}' "$top/docs/index.md" | sed '1d; $d' |
    diff -u - "$work/output" || die "the output of the program"
}

absent_in() {
  # shellcheck disable=SC2016 # the variable is dpkg's
  ! in_root "$1" dpkg-query -W -f '${db:Status-Status}\n' "$2" 2>/dev/null | grep -x installed ||
    die "$2 is installed, so this shows nothing"
}

[ "$(id -u)" -eq 0 ] || die "must be run as root"
# shellcheck source=/dev/null
[ "$(. /etc/os-release && echo "${VERSION_CODENAME:-}")" = "$codename" ] || die "made for Debian 12"
for tool in cmake cpack ninja dpkg-shlibdeps debootstrap; do
  command -v "$tool" >/dev/null || die "$tool is not installed"
done
mirror=$(find_mirror)
[ -n "$mirror" ] || die "apt on this machine knows no mirror of Debian 12, or has not been updated"
if [ -z "${http_proxy:-}" ]; then
  eval "$(apt-config shell http_proxy Acquire::http::Proxy)"
  if [ -n "${http_proxy:-}" ]; then export http_proxy; fi
fi

work=$(cd "$(mktemp -d "${TMPDIR:-/var/tmp}/zrstring-packages.XXXXXX")" && pwd -P)
trap clean_up EXIT
trap 'exit 130' INT
trap 'exit 143' TERM
chmod 755 "$work"

say "building the packages"
logged cmake -G Ninja -S "$top" -B "$work/build" -DCMAKE_BUILD_TYPE=Release \
  -DCMAKE_INSTALL_PREFIX=/usr -DZRSTRING_BUILD_TESTS=OFF -DZRSTRING_BUILD_EXAMPLES=OFF
logged cmake --build "$work/build"
logged cpack --config "$work/build/CPackConfig.cmake" -B "$work/packages"
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:.*=//p' "$work/build/CMakeCache.txt")-1
architecture=$(dpkg --print-architecture)
runtime=libzrstring1_${version}_$architecture.deb
development=libzrstring-dev_${version}_$architecture.deb
for package in "$runtime" "$development"; do
  [ -f "$work/packages/$package" ] || die "cpack made no $package"
done

say "looking into the packages"
libdir=lib/$(dpkg-architecture -qDEB_HOST_MULTIARCH)
check_files "$work/packages/$runtime" Runtime
check_files "$work/packages/$development" Development
depends=$(field "$work/packages/$runtime" Depends)
for needed in libc6 libicu72 libstdc++6; do
  [[ ", $depends" == *", $needed "* ]] || die "libzrstring1 does not depend on $needed: $depends"
done
depends=$(field "$work/packages/$development" Depends)
[ "$depends" = "libzrstring1 (= $version)" ] || die "libzrstring-dev depends on: $depends"
dpkg-deb -I "$work/packages/$runtime" triggers | grep -qx 'activate-noawait ldconfig' ||
  die "libzrstring1 does not trigger ldconfig"

say "making a bare Debian 12 from $mirror"
logged debootstrap --variant=minbase --keyring=/usr/share/keyrings/debian-archive-keyring.gpg \
  "$codename" "$work/full" "$mirror"
cp -a "$work/full" "$work/slim"
for root in "$work/full" "$work/slim"; do
  mount -t proc proc "$root/proc"
  cp -r "$work/packages" "$root/packages"
done

say "installing both packages there, then a compiler and pkg-config"
install_in "$work/full" "/packages/$runtime" "/packages/$development"
install_in "$work/full" gcc libc6-dev pkg-config
absent_in "$work/full" libicu-dev

say "building the program there and running it"
cp "$top/docs/snippets/road.c" "$work/full/"
# shellcheck disable=SC2016 # expanded by the shell in there
logged in_root "$work/full" sh -c 'cc -std=c99 -pedantic -Wall -Wextra -Werror \
  $(pkg-config --cflags zrstring) -o /road /road.c $(pkg-config --libs zrstring)'
check_run "$work/full"

say "running it where only the runtime package was installed"
install_in "$work/slim" "/packages/$runtime"
absent_in "$work/slim" libzrstring-dev
cp "$work/full/road" "$work/slim/"
check_run "$work/slim"

say "the packages work"
