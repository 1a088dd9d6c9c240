#!/usr/bin/env bash
# Cross-builds the ZIP packages for Windows on Debian.
set -euo pipefail
top=$(realpath "$(dirname "${BASH_SOURCE[0]}")/../..")
. "$top/tools/steps.inc.sh"

usage() {
  cat << 'USAGE'
usage: tools/windows/make-packages.sh [i686|x86_64 [CMAKE-ARGUMENT...]]

Makes build/windows-ARCH/zrstring-VERSION-win32.zip (i686) and -win64.zip (x86_64), or the one whose
ARCH is named. Installs the Debian packages that are missing. Builds ICU first, which may take half
an hour; it is kept in $ZRSTRING_CACHE (~/.cache/zrstring-windows) for the next time.
USAGE
}

case ${1:-both} in
  both) "$0" i686 && exec "$0" x86_64 ;;
  i686) arch=$1 bits=32 ;;
  x86_64) arch=$1 bits=64 ;;
  -h | --help) usage; exit 0 ;;
  *) usage >&2; exit 2 ;;
esac
shift
[[ ${1:--} = -* ]] || { usage >&2; exit 2; }

cache=$(realpath -m "${ZRSTRING_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/zrstring-windows}")
# ICU's build cannot cope with such a folder, and says so only after minutes.
[[ $cache != *[[:space:]]* ]] ||
  die "the folder of the cache must not have a space in its path: '$cache'"
mkdir -p "$cache"
build=$top/build/windows-$arch
check_build_folder "$build" "$top"

"$top/tools/install-packages.sh" binutils cmake debian-archive-keyring dpkg-dev \
  "g++-mingw-w64-${arch/_/-}-posix" googletest icu-devtools llvm make ninja-build zip

# Prints how far the build of ICU is, until this script ends.
show_progress() {
  local built=$cache/icu-$arch-prefix/src/icu-$arch-build
  local source=$cache/icu-source-prefix/src/icu-source/source
  while sleep 20 > /dev/null && kill -0 $$; do
    say "ICU for $arch: $(find "$built"/{common,i18n} -name '*.o' | wc -l) of" \
      "$(find "$source"/{common,i18n} -name '*.cpp' | wc -l) files compiled"
  done 2> /dev/null
}

# Only one run at a time builds them. The lock ends with the command: --close keeps processes that
# the command starts from inheriting it.
locked() { flock --close "$cache/lock" nice "$@"; }

say "ICU for $arch: building what has changed"
show_progress &
progress=$!
trap 'kill "$progress" 2> /dev/null || true' EXIT
# Through a link, so that all checkouts use the same build.
locked ln -sfn "$top" "$cache/checkout"
logged "$cache/configure.log" locked cmake -G 'Unix Makefiles' \
  -S "$cache/checkout/tools/windows/dependencies" -B "$cache"
logged "$cache/build-$arch.log" locked make -C "$cache" -j"$(nproc)" "icu-$arch" "googletest-$arch"
kill "$progress"

say "ZRString for $arch: building"
logged "$build/logs/configure.log" cmake -U 'ICU_*' -U GTest_DIR -G Ninja -S "$top" -B "$build" \
  --toolchain "$top/cmake/mingw-$arch.cmake" -DCMAKE_BUILD_TYPE=Release \
  -DCMAKE_FIND_ROOT_PATH="$cache/$arch/icu;$cache/$arch/googletest" \
  -DZRSTRING_WARNINGS_AS_ERRORS=ON -DZRSTRING_BUILD_TESTS=OFF -DZRSTRING_BUILD_EXAMPLES=OFF "$@"
logged "$build/logs/build.log" nice cmake --build "$build"

# Nothing in the archive depends on when, where and by whom it is made: the files are sorted and
# have the date of the sources, which MinGW's strip puts into ZRString.dll, too.
make_zip() {
  local stage=$build/package SOURCE_DATE_EPOCH
  SOURCE_DATE_EPOCH=$("$top/tools/source-date.sh")
  export SOURCE_DATE_EPOCH
  rm -rf "$stage" "$build/$package.zip"
  cmake --install "$build" --prefix "$stage/$package" --strip
  cd "$stage"
  find . -exec touch -h -d "@$SOURCE_DATE_EPOCH" {} +
  find "$package" -type f | LC_ALL=C sort | TZ=UTC zip -X -q -@ "$build/$package.zip"
  rm -rf "$stage"
}
package=zrstring-$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/CMakeCache.txt")-win$bits
logged "$build/logs/package.log" make_zip
say "made $build/$package.zip"
