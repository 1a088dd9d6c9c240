#!/usr/bin/env python3
"""Prints a public header as Doxygen is to read it. Line numbers stay as they are.

Specializations of the standard library's functions are left out: Doxygen has no declaration to
attach them to.
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
