#!/usr/bin/env python3
"""Compares the instructions that callgrind counted with the table in instructions.txt.

    judge-instructions.py [--record] SYSTEM FOLDER

FOLDER holds callgrind's dumps out.1, out.2 and so on, in the order of the calls; SYSTEM is what
they were counted with. --record writes the numbers into the table. Fails if a call passes its limit
or, without --record, its record by more than 2, or if a row is missing on either side; but only if
the table was recorded with SYSTEM.
"""

import itertools
import pathlib
import re
import sys

TABLE = pathlib.Path(__file__).resolve().with_name("instructions.txt")
CALLS = 1000  # of each function in a dump
TOLERANCE = 2


def counts(folder):
    """ICU's and the library's instructions for each call, by its name. Calls that follow each other
    may share the ICU call before them."""
    counted, icu = {}, 0
    for number in itertools.count(1):
        dump = folder / f"out.{number}"
        if not dump.exists():
            return counted
        text = dump.read_text(encoding="utf-8")
        name, side = re.search(r"^desc: Trigger: Client Request: (.*)\|(\w+)$", text, re.M).groups()
        instructions = int(re.search(r"^summary: (\d+)$", text, re.M)[1]) / CALLS
        if side == "icu":
            icu = instructions
        else:
            counted[name] = icu, instructions


def judge(lines, counted, recording):
    """Prints the table. Returns its lines with the new numbers, and the complaints. Takes what the
    table has out of `counted`."""
    written, complaints, limit, whole = [], [], None, False
    print(*(f"{head:>8}" for head in ("ICU", "library", "more", "recorded", "limit")))
    for line in lines:
        row = re.fullmatch(r" +(\S+) (.*)", line)
        if re.match("[-0-9]", line):
            limit, whole = line.split()[0], " whole: " in line
        elif row and row[2] not in counted:
            complaints.append(f"{row[2]}: not counted")
        elif row:
            recorded, name = int(row[1]), row[2]
            icu, library = counted.pop(name)
            more = int(f"{library - (0 if whole else icu):.0f}")
            print(f"{icu:8.0f} {library:8.0f} {more:8} {recorded:8} {limit:>8}  {name}")
            if limit != "-" and more > int(limit):
                complaints.append(f"{name}: {more}, the limit is {limit}")
            if not recording and more > recorded + TOLERANCE:
                complaints.append(f"{name}: {more}, {recorded} recorded")
            if more < recorded - TOLERANCE:
                print("  fewer than recorded: --record lowers the record")
            line = f"{more:6} {name}"
        written.append(line)
    return written, complaints + [f"{name}: not in {TABLE.name}" for name in counted]


def main():
    *options, system, folder = sys.argv[1:] if len(sys.argv) > 2 else (None, "", "")
    recording = options == ["--record"]
    if options and not recording:
        sys.exit(__doc__)
    lines = TABLE.read_text(encoding="utf-8").splitlines()
    place = next(i for i, line in enumerate(lines) if line.startswith("recorded with "))
    recorded_with, here = lines[place], f"recorded with {system}"
    written, complaints = judge(lines, counts(pathlib.Path(folder)), recording)
    if recording:
        written[place] = here
        TABLE.write_text("\n".join(written) + "\n", encoding="utf-8")
    if not recording and recorded_with != here:
        print(f"\nnot judged: {recorded_with}, this is {system}")
    elif complaints:
        sys.stdout.write("\nfailed:\n" + "".join(f"  {complaint}\n" for complaint in complaints))
        sys.exit(1)
    else:
        print("\nall within their limits" + ("" if recording else " and records"))


main()
