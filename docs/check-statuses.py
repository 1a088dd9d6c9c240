#!/usr/bin/env python3
"""Checks the tables that the pages derive from the comments of ZRStringHandles.h.

    check-statuses.py [--update]

A page holds a table between the comments <!-- NAME --> and <!-- /NAME -->; the NAMEs are
`statuses` (what each function tests, in order) and `minus-one` (which lengths may be -1).
--update writes the tables instead of comparing them.
"""
import pathlib
import re
import sys

DOCS = pathlib.Path(__file__).resolve().parent
HEADER = DOCS.parent / "include/ZRString/ZRStringHandles.h"
PAGES = [DOCS / "ranges.md", DOCS / "statuses.md"]

sys.path.append(str(DOCS.parent / "tools"))
import handle_header  # noqa: E402
from handle_header import FIRST_PARAMETER, INDEX_OUTSIDE  # noqa: E402

CONDITIONS = {
    "null": "null",
    "negative": "&lt;&nbsp;0",
    "below -1": "&lt;&nbsp;−1",
    "below 1": "&lt;&nbsp;1",
    "no memory": "no memory",
    "the array is empty": "array empty",
    "index is outside the array": "index outside",
}

# What -1 means where it does not mean "to the end".
MINUS_ONE = {
    ("ZRStringCreateFromUniChars", "length"): "up to the zero unit",
    ("ZRStringCreateFromLocalString", "length"): "up to the zero byte",
    ("ZRMutableStringRemoveBetween", "end"): "through the end",
    ("ZRMutableStringGetBufferWithCapacity", "minCapacity"): "the current capacity",
    ("ZRMutableStringReleaseBuffer", "newLength"): "up to the first zero unit",
}


def statuses_table(all_functions):
    positional = [status for each in all_functions for status in each.tests]
    columns = [*range(FIRST_PARAMETER, max(set(positional) - {INDEX_OUTSIDE}) + 1), INDEX_OUTSIDE]
    rows = [
        "| Function | " + " | ".join(map(str, columns)) + " |",
        "|---" * (len(columns) + 1) + "|",
    ]
    group = None
    for each in all_functions:
        if each.group != group:
            group = each.group
            rows.append(f"| **{group}** " + "|" * (len(columns) + 1))
        cells = []
        for status in columns:
            if status in each.tests:
                test = each.tests[status]
                cause = CONDITIONS[test.cause]
                cells.append(f"{test.parameter} {cause}" if test.parameter else cause)
            else:
                cells.append("–" if status - FIRST_PARAMETER < len(each.parameters) else "")
        rows.append(f"| {each.name}() | " + " | ".join(cells) + " |")
    return rows


def minus_one_table(all_functions):
    rows = ["| Function | Accepts −1 | Refuses −1 |", "|---|---|---|"]
    for each in all_functions:
        accepted, refused = {}, []  # meaning -> parameters
        for status, test in each.tests.items():
            if test.cause == "below -1":
                meaning = MINUS_ONE.get((each.name, test.parameter), "to the end")
                accepted.setdefault(meaning, []).append(f"`{test.parameter}`")
            elif test.cause != "null" and re.search("([lL]ength|^count)$", test.parameter or ""):
                refused.append(f"`{test.parameter}`: status {status}")
        if accepted or refused:
            meanings = [f"{', '.join(names)}: {meaning}" for meaning, names in accepted.items()]
            rows.append(f"| {each.name}() | {'; '.join(meanings)} | {', '.join(refused)} |")
    return rows


def main():
    update = sys.argv[1:] == ["--update"]
    if sys.argv[1:] and not update:
        sys.exit(__doc__)
    all_functions = handle_header.functions(HEADER)
    tables = {
        "statuses": statuses_table(all_functions),
        "minus-one": minus_one_table(all_functions),
    }
    for page in PAGES:
        text = page.read_text(encoding="utf-8")
        for name in list(tables):
            begin, end = f"<!-- {name} -->\n", f"<!-- /{name} -->\n"
            before, found, rest = text.partition(begin)
            shown, closed, after = rest.partition(end)
            if not (found and closed):
                continue
            table = "\n" + "\n".join(tables.pop(name)) + "\n\n"
            if update:
                text = before + begin + table + end + after
            elif shown != table:
                different = [line for line in table.splitlines() if line not in shown.splitlines()]
                sys.exit(
                    f"{page}: '{name}' differs from {HEADER.name}; run docs/check-statuses.py "
                    "--update. Expected, among others:\n" + "\n".join(different)
                )
        if update:
            page.write_text(text, encoding="utf-8")
    if tables:
        sys.exit("no page holds " + " nor ".join(tables))


main()
