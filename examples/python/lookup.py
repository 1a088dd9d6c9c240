"""Looks up a word in a word list with one entry per line, in UTF-8 or, by an option, windows-1252.

    lookup.py [--windows-1252] FILE WORD

The list is sorted in the linguistic order of the default locale; then entries that equal an earlier
one without regard to case are dropped. Prints the number of the entry that the word
then is or would be, counted from 1. Exits with status 2 if the list cannot be read.
"""

import bisect
import functools
import itertools
import sys

try:
    import zrstring
except ImportError as error:
    print("lookup: %s" % error, file=sys.stderr)
    sys.exit(2)


def key_by(options):
    return functools.cmp_to_key(lambda left, right: left.icompare(right, options))


collated = key_by(zrstring.COLLATED)
folded = key_by(zrstring.IGNORE_CASE)


def from_utf8(data):
    return zrstring.String(data.decode("utf-8", "replace"))


def entries_of(data, decoded):
    """A string for each line that is not empty; lines end in LF or CR LF."""
    lines = [line.removesuffix(b"\r") for line in data.split(b"\n")]
    return [decoded(line) for line in lines if line]


def without_repetitions(entries):
    """The entries without those that equal an earlier one without regard to case.

    Such entries need not be neighbours in linguistic order: in many locales, "m2", "m²" and "M2"
    sort like this."""
    order = sorted(range(len(entries)), key=lambda index: folded(entries[index]))
    groups = itertools.groupby(order, key=lambda index: folded(entries[index]))
    return [entries[index] for index in sorted(next(group) for _, group in groups)]


def main(arguments):
    decoded = from_utf8
    if arguments[:1] == ["--windows-1252"]:
        decoded = zrstring.String.from_local
        del arguments[0]
    if len(arguments) != 2:
        return "lookup: usage: lookup.py [--windows-1252] FILE WORD"
    path, word = arguments
    try:
        with open(path, "rb") as file:
            read = entries_of(file.read(), decoded)
    except OSError as error:
        return "lookup: cannot read %s: %s" % (path, error.strerror)
    kept = without_repetitions(sorted(read, key=collated))
    wanted = collated(zrstring.String(word))
    place = bisect.bisect_left([collated(entry) for entry in kept], wanted)
    found = place < len(kept) and collated(kept[place]) == wanted
    print("%d entries, %d kept" % (len(read), len(kept)))
    print(("entry %d" if found else "not in the list; it would be entry %d") % (place + 1))
    return None


if __name__ == "__main__":
    failure = main(sys.argv[1:])
    if failure:
        print(failure, file=sys.stderr)
        sys.exit(2)
