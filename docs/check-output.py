#!/usr/bin/env python3
"""Checks that a page shows what a program prints.

    check-output.py PAGE PROGRAM [ARGUMENT...]

Every block of the program's output (lines between blank lines) must be a block of the page. In the
page, code fences end a block too.
"""
import subprocess
import sys


def blocks(text):
    found, current = [], []
    for line in text.splitlines() + [""]:
        if line.strip() and not line.startswith("```"):
            current.append(line.rstrip())
        elif current:
            found.append("\n".join(current))
            current = []
    return found


def main():
    with open(sys.argv[1], encoding="utf-8") as page:
        shown = blocks(page.read())
    run = subprocess.run(sys.argv[2:], stdout=subprocess.PIPE, check=True)
    printed = blocks(run.stdout.decode("utf-8").replace("\r\n", "\n"))
    if not printed:
        sys.exit("the program printed nothing")
    missing = [block for block in printed if block not in shown]
    if missing:
        sys.exit("not in " + sys.argv[1] + " as printed:\n\n" + "\n\n".join(missing))


main()
