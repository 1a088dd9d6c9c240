#!/usr/bin/env bash
# Tries what a release needs, on every system that the platforms page names.
set -euo pipefail
top=$(realpath "$(dirname "${BASH_SOURCE[0]}")/..")
. "$top/tools/steps.inc.sh"
cd "$top"

usage() {
  cat << 'USAGE'
usage: tools/release-check.sh [-n] [PART...]

Tries the PARTs that are named, or all of them, and goes on after a failure. Prints a table of what
was tried on which system, and a verdict, which is the exit status, too. The output of a part is in
build/release-check/PART.log. -n only prints what would run.
  version       commit, changelog and what is written from the headers: all of this version
  tests         ./run-tests on this machine
  compatibility names, types and tests of 1.0.0
  languages     the programs in Rust, Go and C#
  instructions  the instructions of each call against their limits
  packages      every package made twice: the same bytes
  aarch64, s390x, i386   the tests on these processors
  win32, win64           the tests and packages for Windows, under Wine; as root
  bookworm, trixie       the README's commands and the packages on a bare Debian; as root
USAGE
}

version=$(sed -n 's/^project(ZRString VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
# shellcheck source=/dev/null
here=$(. /etc/os-release && echo "${NAME%% *} ${VERSION_ID-}, $(uname -m | tr _ -)")
out=build/release-check
rows=$out/rows.md table=$out/table.md
dry_run=false failed=() left=()

check_version() {
  grep -E "^## ${version//./\\.}, [0-9]{4}-[0-9]{2}-[0-9]{2}$" CHANGELOG.md ||
    { echo "CHANGELOG.md has no section '## $version, YEAR-MONTH-DAY'"; return 1; }
  git diff --exit-code --stat HEAD
  tools/write-derived.py --check
}

count_instructions() {
  tools/install-packages.sh cmake g++ libbenchmark-dev libicu-dev ninja-build python3 valgrind
  benchmarks/count-instructions.sh
}

# try PART COMMAND [SYSTEM WHAT FOLDER...]: tries a part if it is wanted. If it passes, the table
# gets a row of this system, or the rows that COMMAND prints.
try() {
  local part=$1 command=$2 log=$out/$1.log status
  shift 2
  [[ " $wanted " == *" $part "* ]] || { left+=("$part"); return 0; }
  if "$dry_run"; then
    echo "$part: $command"
    return
  fi
  say "$part"
  set +e  # not a condition, in which functions would go on after a failure
  # shellcheck disable=SC2086 # a command and its arguments
  (logged "$log" $command)
  status=$?
  set -e
  # What was left out was not tried.
  if [ $status -ne 0 ] || grep -E 'NOT CHECKED|SKIPPED|\*\*\*Skipped|not judged' "$log"; then
    failed+=("$part")
    echo "| ${1:-$part} | | | FAILED: $part |" >> "$rows"
  elif [ $# -gt 0 ]; then
    tested "$@" >> "$rows"
  else
    grep '^| ' "$log" >> "$rows" || true
  fi
}

# Makes one row of all rows of a system.
merge() {
  awk -F ' *[|] *' '
    function join(list, each, separator) {
      return list (list == "" || each == "" ? "" : separator) each
    }
    !($2 in tried) { systems[++count] = $2 }
    {
      tried[$2] = join(tried[$2], $5, "; ")
      if ($4 != "") icu[$2] = $4
      number = split($3, compilers, ", ")
      for (i = 1; i <= number; ++i)
        if (!seen[$2, compilers[i]]++) with[$2] = join(with[$2], compilers[i], ", ")
    }
    END {
      print "| System | Compilers | ICU | What ran |\n|---|---|---|---|"
      for (i = 1; i <= count; ++i) {
        name = systems[i]
        print "| " name " | " with[name] " | " icu[name] " | " tried[name] " |"
      }
    }' "$1"
}

case ${1-} in
  -h | --help) usage; exit 0 ;;
  -n | --dry-run) dry_run=true; shift ;;
esac
parts='version tests compatibility languages instructions packages'
parts+=' aarch64 s390x i386 win32 win64 bookworm trixie'
wanted=${*:-$parts}
for part in $wanted; do
  [[ " $parts " == *" $part "* ]] || { usage >&2; exit 2; }
done
"$dry_run" || { mkdir -p "$out" && : > "$rows"; }

one_process='the tests that run in one process'
windows='the tests and the package'
try version check_version
try tests ./run-tests "$here" run-tests build/release build/clang
try compatibility tests/compatibility.sh "$here" 'the tests of 1.0.0' build/compatibility/today
try languages tests/languages.sh "$here" 'programs in Rust, Go and C#' build/languages/zrstring
try instructions count_instructions "$here" 'instruction counts' build/benchmark
try packages tests/same-packages.sh "$here" 'each package twice'
try aarch64 'tests/processors.sh aarch64' 'aarch64, under QEMU' "$one_process" \
  build/aarch64/zrstring
try s390x 'tests/processors.sh s390x' 's390x (big-endian), under QEMU' "$one_process" \
  build/s390x/zrstring
try i386 'tests/processors.sh i386' 'i386 (32-bit Linux)' "$one_process" build/i386/zrstring
try win32 'tests/windows/run.sh i686' 'Windows, 32 bits, under Wine' "$windows" build/windows-i686
try win64 'tests/windows/run.sh x86_64' 'Windows, 64 bits, under Wine' "$windows" \
  build/windows-x86_64
try bookworm 'tests/bare-systems.sh bookworm'
try trixie 'tests/bare-systems.sh trixie'
"$dry_run" && exit

merge "$rows" | tee "$table"
[ ${#left[@]} -eq 0 ] || say "not tried: ${left[*]}"
[ ${#failed[@]} -eq 0 ] || die "FAILED: ${failed[*]}"
[ ${#left[@]} -gt 0 ] || diff <(sed -n '/^| System /,/^$/{/^|/p}' docs/platforms.md) "$table" ||
  die "docs/platforms.md has another table"
say "passed: ZRString $version${left[*]:+, as far as it was tried}"
