#!/usr/bin/env python3
"""Checks the tables of the pages that are made from the comments of ZRStringHandles.h.

    check-statuses.py [--update] ZRStringHandles.h PAGE...

A page holds a table between the comments <!-- NAME --> and <!-- /NAME -->; the NAMEs are
`statuses` (what each function tests, in order) and `minus-one` (which lengths may be -1).
Each status in a comment is held against the declaration below it: it must be 3 + the position of
the parameter that it names. --update writes the tables instead of comparing them.
"""
import re
import sys

FUNCTIONS = 60
OUTSIDE = 12
# The one comment whose status is not 3 + the position of its parameter.
DEPARTURES = {("InsertZRStringRefAt", "string"): 5}

CONDITIONS = {"null": "null", "negative": "&lt;&nbsp;0", "below -1": "&lt;&nbsp;−1",
              "below 1": "&lt;&nbsp;1"}

OUTSIDE_CAUSES = {
    "no memory": "no memory",
    "the array is empty": "array empty",
    "index is outside the array": "index outside",
}

MINUS_ONE = {
    ("ZRStringCreateFromUniChars", "length"): "up to the zero unit",
    ("ZRStringCreateFromLocalString", "length"): "up to the zero byte",
    ("ZRMutableStringRemoveBetween", "end"): "through the end",
    ("ZRMutableStringGetBufferWithCapacity", "minCapacity"): "the current capacity",
    ("ZRMutableStringReleaseBuffer", "newLength"): "up to the first zero unit",
}


class Function:
    def __init__(self, group, name, parameters, statuses):
        self.group = group
        self.name = name
        self.parameters = parameters
        self.tests = {}  # status -> (parameter or None, condition)
        self.read(statuses)

    def fail(self, text):
        sys.exit(f"{self.name}: {text}")

    def read(self, statuses):
        clauses = [clause.strip() for clause in statuses.rstrip(".").split(";")]
        if clauses[0] != "0":
            self.fail("the first status is not 0")
        for clause in clauses[1:]:
            match = re.fullmatch(r"(\d+) (.*)", clause)
            if not match:
                self.fail(f"cannot read '{clause}'")
            self.add(int(match[1]), match[2])
        if list(self.tests) != sorted(self.tests):
            self.fail("the statuses are not in the order of the tests")

    def add(self, status, cause):
        if status == OUTSIDE:
            self.tests[status] = (None, OUTSIDE_CAUSES[cause])
            return
        match = re.fullmatch(r"(\w+) is (null|negative|below -1|below 1)(?: \(not \d+\))?", cause)
        if not match or match[1] not in self.parameters:
            self.fail(f"cannot read '{cause}'")
        expected = 4 + self.parameters.index(match[1])
        expected = DEPARTURES.get((self.name, match[1]), expected)
        if status != expected:
            self.fail(f"{match[1]} has status {status}, its position gives {expected}")
        self.tests[status] = (match[1], CONDITIONS[match[2]])


def functions(header):
    found = []
    group = None
    comment = []
    for line in re.sub(r",\n +", ", ", header).splitlines():
        if line.startswith("/// @name "):
            group = line[len("/// @name "):]
            comment = []
        elif line.startswith("///"):
            comment.append(line[3:].strip())
        elif line.startswith("ZR_API"):
            match = re.fullmatch(r"ZR_API ZRLong ZR_CALL (\w+)\((.*)\);", line)
            if not match:
                sys.exit(f"cannot read '{line}'")
            parameters = [re.search(r"(\w+)$", each)[1] for each in match[2].split(", ")]
            statuses = " ".join(comment).partition("@return ")[2]
            found.append(Function(group, match[1], parameters, statuses))
        else:
            comment = []
    if len(found) != FUNCTIONS:
        sys.exit(f"{len(found)} functions, not {FUNCTIONS}")
    return found


def statuses_table(all_functions):
    last = max(status for each in all_functions for status in each.tests if status != OUTSIDE)
    columns = list(range(4, last + 1)) + [OUTSIDE]
    rows = ["| Function | " + " | ".join(map(str, columns)) + " |",
            "|---" * (len(columns) + 1) + "|"]
    group = None
    for each in all_functions:
        if each.group != group:
            group = each.group
            rows.append(f"| **{group}** " + "|" * (len(columns) + 1))
        cells = []
        for status in columns:
            if status in each.tests:
                parameter, cause = each.tests[status]
                cells.append(f"{parameter} {cause}" if parameter else cause)
            else:
                cells.append("–" if status - 4 < len(each.parameters) else "")
        rows.append(f"| {each.name}() | " + " | ".join(cells) + " |")
    return rows


def minus_one_table(all_functions):
    rows = ["| Function | Accepts −1 | Refuses −1 |", "|---|---|---|"]
    for each in all_functions:
        accepted, refused = {}, []  # meaning -> parameters
        for status, (parameter, condition) in each.tests.items():
            if condition == CONDITIONS["below -1"]:
                meaning = MINUS_ONE.get((each.name, parameter), "to the end")
                accepted.setdefault(meaning, []).append(f"`{parameter}`")
            elif parameter and re.search("[lL]ength$|^count$", parameter) and \
                    condition != CONDITIONS["null"]:
                refused.append(f"`{parameter}`: status {status}")
        if accepted or refused:
            meanings = [f"{', '.join(names)}: {meaning}" for meaning, names in accepted.items()]
            rows.append(f"| {each.name}() | {'; '.join(meanings)} | {', '.join(refused)} |")
    return rows


def main():
    arguments = sys.argv[1:]
    update = arguments[:1] == ["--update"]
    header, *pages = arguments[update:]
    with open(header, encoding="utf-8") as file:
        all_functions = functions(file.read())
    tables = {"statuses": statuses_table(all_functions),
              "minus-one": minus_one_table(all_functions)}
    for page in pages:
        with open(page, encoding="utf-8") as file:
            text = file.read()
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
                sys.exit(f"{page}: '{name}' differs from {header}; expected among others:\n" +
                         "\n".join(different))
        if update:
            with open(page, "w", encoding="utf-8") as file:
                file.write(text)
    if tables:
        sys.exit("no page holds " + " nor ".join(tables))


main()
