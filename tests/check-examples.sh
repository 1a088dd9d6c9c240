#!/usr/bin/env bash
# Runs the examples on a small word list with awkward lines and compares what they print.
# usage: check-examples.sh FOLDER-OF-THE-EXAMPLES
# $ARGUMENTS is the encoding in which the system takes arguments that the example gets in
# windows-1252: UTF-8 for Wine, which converts them.
set -euo pipefail
examples=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
locale=LC_ALL=fr_FR.UTF-8  # ICU takes its default locale from here, installed or not
failures=0

# expect WHAT EXIT-STATUS EXPECTED-OUTPUT COMMAND...: standard output and error, without times
expect() {
  local what=$1 status=$2 expected=$3 actual code=0
  shift 3
  actual=$(env "$locale" "$@" 2>&1 | tr '\0' '@' | tr -d '\r') || code=$?
  actual=$(sed -E "s/ +[0-9.]+ ms$//; s#$work/##g" <<< "$actual")
  if [ "$code" != "$status" ] || [ "$actual" != "$expected" ]; then
    printf 'FAILED: %s: exit status %s, expected %s\n' "$what" "$code" "$status"
    diff <(printf '%s\n' "$expected") <(printf '%s\n' "$actual") || true
    failures=$((failures + 1))
  fi
}

# Empty and blank lines, CR LF, bytes 0x80 to 0x9F, a zero byte, case, no newline at the end.
printf 'zythum\r\n\ncote\n\r\nc\364t\351\n  \n\tc\364te \n\200uro\nCOTE\n\214uvre\na\0b\n\237\r\ncot\351' > "$work/words"

printed='zythum'
expect 'the word list' 0 "read               13
edited             10
sorted             10
kept                9
saved               9
reloaded            9
           1  €uro
           2  a@b
           3  cote
           4  coté
           5  côte
           6  côté
           7  Œuvre
           8  Ÿ
           9  $printed
côté is entry 6" "$examples/wordlist" "$work/words" --save "$work/list" --find côté
expect 'the reloaded list' 0 "loaded              9
           1  €uro
           2  a@b
           3  cote
           4  coté
           5  côte
           6  côté
           7  Œuvre
           8  Ÿ
           9  $printed
cotee is not in the list; it would be entry 7" "$examples/wordlist" --load "$work/list" --find cotee
expect 'a replacement' 0 'read               13
edited             10
sorted             10
kept               10
           1  €ur0
           2  a@b
           3  c0te
           4  c0té
           5  COTE
           6  côte
           7  côté
           8  Œuvre
           9  Ÿ
          10  zythum' "$examples/wordlist" "$work/words" --replace o 0

printf 'b\n\351' > "$work/two"
env "$locale" "$examples/wordlist" "$work/two" --save "$work/list" > /dev/null
expect 'the saved bytes' 0 ' 02 00 00 00 01 00 00 00 62 00 01 00 00 00 e9 00' \
  od -An -v -tx1 "$work/list"

head -c 15 "$work/list" > "$work/short"
(cat "$work/list"; echo) > "$work/long"
printf '\1\0\0\0\377\377\377\377' > "$work/negative"
usage='usage: wordlist FILE [--replace OLD NEW] [--save LIST] [--find WORD]
       wordlist --load LIST [--find WORD]'
expect 'a short file' 2 'wordlist: short is damaged: the data ends inside a record' \
  "$examples/wordlist" --load "$work/short"
expect 'a long file' 2 'wordlist: long is damaged: there is data after the last record' \
  "$examples/wordlist" --load "$work/long"
expect 'a negative length' 2 'wordlist: negative is damaged (negative length), or memory ran out' \
  "$examples/wordlist" --load "$work/negative"
expect 'no file' 2 'wordlist: cannot read missing' "$examples/wordlist" "$work/missing"
for folder in "$work" "--load $work" "$work/two --save $work"; do
  # shellcheck disable=SC2086 # several arguments
  expect 'a folder' 2 "wordlist: $work is a folder" \
    sh -c 'exec "$@" > /dev/null' - "$examples/wordlist" $folder
done
for output in '> /dev/full' '>&-'; do
  for arguments in "$work/two --save $work/unwritten" "--load $work/list" --help; do
    # shellcheck disable=SC2086 # several arguments
    expect "output $output" 2 'wordlist: cannot write to standard output' \
      sh -c "exec \"\$@\" $output" - "$examples/wordlist" $arguments
  done
done
expect 'no list from a run that failed' 1 '' test -e "$work/unwritten"
for option in -h --help; do
  expect "the first lines of $option" 0 "$usage" \
    sh -c '"$@" | head -2' - "$examples/wordlist" $option
done
expect 'no arguments' 2 "wordlist: give either a word list or --load
$usage" "$examples/wordlist"
expect 'a wrong option' 2 "wordlist: unknown option --lost
$usage" "$examples/wordlist" --lost
expect 'an unwritable list' 2 'read                2
edited              2
sorted              2
kept                2
wordlist: cannot open missing/list' \
  "$examples/wordlist" "$work/two" --save "$work/missing/list"

expect 'the look-up' 0 '11 entries, 10 kept
entry 7' "$examples/lookup" "$work/words" \
  "$(printf 'c\364t\351' | iconv -f WINDOWS-1252 -t "${ARGUMENTS:-WINDOWS-1252}")"

[ "$failures" -eq 0 ] && echo "the examples print what they should"
exit $((failures > 0))
