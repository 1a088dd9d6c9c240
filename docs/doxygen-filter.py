#!/usr/bin/env python3
"""Prints a public header for Doxygen, with unchanged line numbers.

Specializations of functions of the standard library are left out, because Doxygen does not know
what they specialize.
"""
import sys


def leave_out_specialization(lines, start):
    while lines[start - 1].startswith("///"):
        start -= 1
    while lines[start] != "}":
        lines[start] = ""
        start += 1
    lines[start] = ""


def main():
    with open(sys.argv[1], encoding="utf-8") as file:
        lines = file.read().splitlines()
    for i, line in enumerate(lines):
        if line == "template <>" and not lines[i + 1].startswith("struct "):
            leave_out_specialization(lines, i)
    sys.stdout.buffer.write(("\n".join(lines) + "\n").encode("utf-8"))


main()
