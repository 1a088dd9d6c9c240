"""Looks up a word in a word list in windows-1252, with one entry per line.

    lookup.py FILE WORD

The list is sorted in the linguistic order of the default locale, and entries that differ from an
earlier one only in case are dropped. Prints the number of the entry that the word is or would be,
counted from 1. Exits with status 2 if the list cannot be read.
"""

import bisect
import functools
import itertools
import re
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


def entries_of(data):
    """A string for each line that is not empty; lines end in LF or CR LF."""
    lines = re.split(rb"\r?\n", data)
    return [zrstring.String.from_local(line) for line in lines if line]


def without_repetitions(entries):
    """The entries without those that differ from an earlier one only in case.

    Such entries need not be neighbours in linguistic order: "m2", "m²" and "M2" sort like this."""
    order = sorted(range(len(entries)), key=lambda index: folded(entries[index]))
    groups = itertools.groupby(order, key=lambda index: folded(entries[index]))
    return [entries[index] for index in sorted(next(group) for _, group in groups)]


def main(arguments):
    if len(arguments) != 2:
        return "lookup: usage: lookup.py FILE WORD"
    path, word = arguments
    try:
        with open(path, "rb") as file:
            read = entries_of(file.read())
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
