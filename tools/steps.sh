# shellcheck shell=bash
# Sourced by the project's scripts: functions to print a step, run a command, and stop.

# say SENTENCE...: prints what comes next, and the seconds since the script started.
say() { printf -- '-- [%ds] %s\n' "$SECONDS" "$*"; }

# die SENTENCE...: stops the script with an error message.
die() {
  printf '%s: %s\n' "${0##*/}" "$*" >&2
  exit 1
}

# logged LOG COMMAND...: runs COMMAND with its output in LOG. If it fails, prints the end of LOG and
# stops. COMMAND may be a function: the subshell has a `set -e` that no surrounding condition undoes.
logged() {
  local log=$1 status
  shift
  mkdir -p "$(dirname "$log")"
  set +e
  (set -e; "$@") > "$log" 2>&1 < /dev/null
  status=$?
  set -e
  [ "$status" -eq 0 ] || {
    tail -n 50 "$log" >&2
    die "exit status $status from: $* (output in $log)"
  }
}
