# shellcheck shell=bash
# Sourced by the project's scripts: functions to print a step, run a command, and stop.

# say SENTENCE...: prints what comes next, and the seconds since the script started.
say() { printf -- '-- [%ds] %s\n' "$SECONDS" "$*"; }

# die SENTENCE...: stops the script with an error message.
die() {
  printf '%s: %s\n' "${0##*/}" "$*" >&2
  exit 1
}

# check_build_folder FOLDER SOURCES: stops if CMake configured FOLDER for sources elsewhere.
check_build_folder() {
  local sources
  sources=$(sed -n 's/^CMAKE_HOME_DIRECTORY:INTERNAL=//p' "$1/CMakeCache.txt" 2> /dev/null || true)
  [ -z "$sources" ] || [ "$sources" -ef "$2" ] ||
    die "$1 was made when the sources were in $sources. Remove it: rm -r '$1'"
}

# copy_project FOLDER: the project's sources, as they are now, without build/ and .git/. The
# project's folder is in $top.
copy_project() {
  mkdir -p "$1"
  tar -C "${top:?}" --exclude=./build --exclude=./.git -c . | tar -C "$1" -x
}

# tested SYSTEM WHAT [FOLDER...]: prints a row for the table of tools/release-check.sh: what was
# tried, and the compilers and the ICU of these build folders. $root is the system that they are in,
# if it is another one. MinGW calls itself GCC 12.0 for each 12.
tested() {
  local folder compilers='' icu=''
  for folder in "${@:3}"; do
    compilers+=${compilers:+, }$(
      sed -nE 's/^set\(CMAKE_CXX_COMPILER_(ID|VERSION) "(.*)"\)/\2/p' \
        "$folder"/CMakeFiles/*/CMakeCXXCompiler.cmake |
        sed -E 'N; s/GNU/GCC/; s/\n([0-9]+\.[0-9]+).*/ \1/; s/^(GCC.*)\.0$/\1/')
    icu=$(sed -n 's/^ICU_INCLUDE_DIR:PATH=//p' "$folder/CMakeCache.txt")
    icu=$(sed -nE 's/^#define U_ICU_VERSION "(.*)"/\1/p' "${root-}$icu/unicode/uvernum.h")
  done
  echo "| $1 | $compilers | $icu | $2 |"
}

# show_ninja LOG: shows, until it is killed, the counter that ninja writes to LOG: at once on a
# terminal, and otherwise every 20 seconds.
show_ninja() {
  local line shown='' next=$((SECONDS + 20))
  # sleep may outlive this function for a moment: it must not hold the script's output.
  while sleep 0.5 &> /dev/null && kill -0 $$; do
    [ -t 1 ] || [ "$SECONDS" -ge "$next" ] || continue
    line=$(tail -c 9999 "$1" | grep -aE '^\[[0-9]+/[0-9]+\] ' | tail -n 1) || continue
    [ "$line" != "$shown" ] || continue
    shown=$line
    if [ -t 1 ]; then
      printf '\r\e[K%.78s' "$line"
    else
      next=$((SECONDS + 20))
      say "${line%%] *}]"
    fi
  done 2> /dev/null
}

# logged LOG COMMAND...: runs COMMAND with its output in LOG. If it fails, prints the end of LOG and
# stops. COMMAND may be a function. Do not call this in a condition: bash then ignores `set -e`.
logged() {
  local log=$1 status progress
  shift
  { mkdir -p "$(dirname "$log")" && : > "$log"; } 2> /dev/null ||
    die "cannot write $log: its folder is read-only or belongs to another user"
  show_ninja "$log" &
  progress=$!
  set +e
  (set -e; "$@") > "$log" 2>&1 < /dev/null
  status=$?
  kill "$progress"
  wait "$progress" 2> /dev/null
  set -e
  [ ! -t 1 ] || printf '\r\e[K'
  [ "$status" -eq 0 ] || {
    tail -n 50 "$log" >&2
    die "exit status $status from: $* (output in $log)"
  }
}
