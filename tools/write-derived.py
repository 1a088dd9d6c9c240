#!/usr/bin/env python3
"""Writes what is derived from the declarations and comments of ZRStringHandles.h.

    write-derived.py [--check]

These are the three interface classes (include/ZRString/ZRStringInterfaces.h and
handles/InterfaceClasses.cpp), the rows of the test of statuses (tests/HandleRows.inc), the
tables in docs/statuses.md and docs/ranges.md, the declarations in python/zrstring/handles.py, and
those for other languages in examples/languages/. The version in python/zrstring/_version.py comes
from CMakeLists.txt, and other constants come from ZRTypes.h. Run the script after a change of one
of them and commit what it writes. --check only compares, and fails if a file is out of date.
"""

import dataclasses
import pathlib
import re
import sys
import textwrap

import handle_header
import language_declarations
from handle_header import FIRST_PARAMETER, INDEX_OUTSIDE
from line_wrapping import WIDTH, wrapped

ROOT = pathlib.Path(__file__).resolve().parent.parent
HANDLES = ROOT / "include/ZRString/ZRStringHandles.h"
INTERFACES = ROOT / "include/ZRString/ZRStringInterfaces.h"
CLASSES = ROOT / "handles/InterfaceClasses.cpp"
ROWS = ROOT / "tests/HandleRows.inc"
STATUSES = ROOT / "docs/statuses.md"
RANGES = ROOT / "docs/ranges.md"
TYPES = ROOT / "include/ZRString/ZRTypes.h"
LANGUAGES = ROOT / "examples/languages"
PYTHON = ROOT / "python/zrstring/handles.py"
PYTHON_VERSION = ROOT / "python/zrstring/_version.py"


@dataclasses.dataclass
class InterfaceClass:
    name: str
    group: str  # the functions that its members repeat
    comment: str
    more_declarations: str = ""
    more_definitions: str = ""


INTERFACE_CLASSES = [
    InterfaceClass(
        "ZRAccessorStringDKInterfaceImpl",
        "Immutable strings",
        "/// Immutable strings. Every member has the name of its plain function.\n",
    ),
    InterfaceClass(
        "ZRMutableStringDKInterfaceImpl",
        "Mutable strings",
        "/// Mutable strings. Every member but ZRStringRefConst() has the name of its plain "
        "function.\n",
        more_declarations="""\

  /// The immutable handle of a mutable string, null for null. Returns no status, and has no plain
  /// function.
  static ZRStringRef__* ZRStringRefConst(ZRMutableStringRef__* string);
""",
        more_definitions="""\

ZRStringRef__* ZRMutableStringDKInterfaceImpl::ZRStringRefConst(ZRMutableStringRef__* string) {
  return string ? StringOf(string).GetZRStringRef() : nullptr;
}
""",
    ),
    InterfaceClass(
        "ZRStringCDKInterfaceImpl",
        "Arrays of strings",
        "/// Arrays of strings. Every member has another name than its plain function.\n",
    ),
]

HEADER_BEGIN = """\
#ifndef ZRSTRING_ZRSTRINGINTERFACES_H
#define ZRSTRING_ZRSTRINGINTERFACES_H

#include <ZRString/ZRStringHandles.h>

/// @file
/// The functions of the handle interface as static members of three classes. ZRStringHandles.h
/// says what each does and returns. The classes have no data; DK and CDK are part of their
/// published names.

// Written by tools/write-derived.py: edit ZRStringHandles.h and run that.
"""

SOURCE_BEGIN = """\
// Written by tools/write-derived.py: edit ZRStringHandles.h and run that.

#include <ZRString/ZRStringInterfaces.h>

#include "string/Handles.h"
"""

ROWS_BEGIN = """\
// Written by tools/write-derived.py: edit ZRStringHandles.h and run that.
"""

# The kind of argument in HandlesTest.cpp for each test of a parameter. For tests for null, the type
# of the parameter decides.
TESTED = {"negative": "notNegative", "below -1": "toEnd", "below 1": "count"}
NOT_NULL = {
    "ZRStringRef__*": "string",
    "ZRMutableStringRef__*": "mutableString",
    "ZRStringPtrArrayRef__*": "array",
    "const unsigned short*": "units",
    "const unsigned char*": "units",
    "const char*": "units",
}

# The declarations in the Python package, and a table in a page, are between these lines.
PYTHON_BEGIN = "# Written by tools/write-derived.py: edit ZRStringHandles.h and run that.\n"
PYTHON_END = "# Up to here.\n"
TABLE_BEGIN = "<!-- written by tools/write-derived.py -->\n\n"
TABLE_END = "\n<!-- end of what is written -->\n"

# How the table of statuses words the causes.
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


def member_name(interface, function):
    if interface.group != "Arrays of strings":
        return function.name
    if function.name == "ZRStrPtrArrCreateFromZRStrPtrArr":
        return "ZRSPtrArrayCreateFromZRSPtrArray"
    return "ZRSPtrArray" + function.name.removeprefix("ZRStringPtrArray")


def declared_parameters(function):
    return [f"{kind} {name}" for kind, name in function.parameters]


def declaration(interface, function):
    head = f"  static ZRLong {member_name(interface, function)}("
    return (
        f"  /// Calls ::{function.name}().{departure_note(function)}\n"
        f"{wrapped(head, declared_parameters(function), ');', ' ' * 6)}\n"
    )


def departures(function):
    """The statuses that a member does not share with its function."""
    return [
        (status, test) for status, test in function.tests.items() if test.member_status != status
    ]


def departure_note(function):
    return "".join(
        f" Returns {test.member_status}, not {status}, if `{test.parameter}` is {test.cause}."
        for status, test in departures(function)
    )


def definition(interface, function):
    head = f"ZRLong {interface.name}::{member_name(interface, function)}("
    signature = wrapped(head, declared_parameters(function), ") {", " " * 4)
    names = [name for _, name in function.parameters]
    differing = departures(function)
    if not differing:
        body = wrapped(f"  return ::{function.name}(", names, ");", " " * 6) + "\n"
    else:
        ((status, test),) = differing
        body = (
            wrapped(f"  const ZRLong status = ::{function.name}(", names, ");", " " * 6) + "\n"
            f"  return status == {status} ? {test.member_status} : status;\n"
        )
    return f"\n{signature}\n{body}}}\n"


def kinds(function):
    """The kind of each parameter. An array's index is tested last: after it nothing may follow."""
    tested = {test.parameter: test.cause for test in function.tests.values()}
    outside = function.tests.get(INDEX_OUTSIDE)
    for position, (kind, name) in enumerate(function.parameters, 1):
        if name in tested:
            yield TESTED.get(tested[name]) or NOT_NULL.get(kind, "out")
        elif outside and outside.cause.startswith("index") and position == len(function.parameters):
            yield "index"
        else:
            yield "any"


def row(interface, function):
    member = f"{interface.name}::{member_name(interface, function)}"
    return f"ZR_ROW({', '.join([function.name, member, *kinds(function)])})\n"


def table_row(cells):
    return f"| {' | '.join(cells)} |\n"


def statuses_table(functions):
    statuses = {status for function in functions for status in function.tests} - {INDEX_OUTSIDE}
    columns = [*range(FIRST_PARAMETER, max(statuses) + 1), INDEX_OUTSIDE]
    table = table_row(["Function", *map(str, columns)]) + "|---" * (len(columns) + 1) + "|\n"
    group = None
    for function in functions:
        if function.group != group:
            group = function.group
            table += f"| **{group}** " + "|" * (len(columns) + 1) + "\n"
        cells = [f"{function.name}()"]
        for status in columns:
            test = function.tests.get(status)
            if test:
                cause = CONDITIONS[test.cause]
                cells.append(f"{test.parameter} {cause}" if test.parameter else cause)
            else:
                cells.append("–" if status - FIRST_PARAMETER < len(function.parameters) else "")
        table += table_row(cells)
    return table


def minus_one_table(functions):
    table = table_row(["Function", "Accepts −1", "Refuses −1"]) + "|---|---|---|\n"
    for function in functions:
        accepted, refused = {}, []  # meaning -> parameters
        for status, test in function.tests.items():
            if test.cause == "below -1":
                meaning = MINUS_ONE.get((function.name, test.parameter), "to the end")
                accepted.setdefault(meaning, []).append(f"`{test.parameter}`")
            elif test.cause != "null" and re.search("([lL]ength|^count)$", test.parameter or ""):
                refused.append(f"`{test.parameter}`: status {status}")
        if accepted or refused:
            meanings = [f"{', '.join(names)}: {meaning}" for meaning, names in accepted.items()]
            table += table_row([f"{function.name}()", "; ".join(meanings), ", ".join(refused)])
    return table


def python_type(kind):
    """What the Python package calls a parameter's type."""
    names = {"ZRLong": "Long", "ZRULong": "ULong", "unsigned char": "Bool"}
    names |= {"unsigned short": "Unit", "const unsigned short*": "Units"}
    names |= {"unsigned short*": "Units", "const char*": "Bytes", "const unsigned char*": "Bytes"}
    names |= {"ZRStringRef__*": "StringRef", "ZRMutableStringRef__*": "MutableStringRef"}
    names |= {"ZRStringPtrArrayRef__*": "ArrayRef"}
    return names.get(kind) or f"Out({python_type(kind.removesuffix('*'))})"


def python_declarations(functions):
    text = positions = ""
    for function in functions:
        pairs = [f"{name}={python_type(kind)}" for kind, name in function.parameters]
        call = f'{function.name} = Function("{function.name}", {", ".join(pairs)})'
        text += textwrap.fill(call, WIDTH, subsequent_indent=" " * 4) + "\n"
        for status, test in function.tests.items():
            if status != test.member_status:
                position = test.member_status - FIRST_PARAMETER + 1
                positions += f'    ("{function.name}", {status}): {position},\n'
    comment = "\n# Positions of invalid parameters whose status is not 3 + the position.\n"
    return f"{text}{comment}POSITIONS = {{\n{positions}}}\n"


def python_version():
    project = (ROOT / "CMakeLists.txt").read_text(encoding="utf-8")
    version = re.search(r"^project\(ZRString VERSION ([0-9.]+)", project, re.MULTILINE)[1]
    comment = "# Written by tools/write-derived.py: edit CMakeLists.txt and run that."
    return f'{comment}\n__version__ = "{version}"\n'


def with_text(path, text, begin=TABLE_BEGIN, end=TABLE_END):
    """The file, with `text` in place of what it holds between `begin` and `end`."""
    before, begin, rest = path.read_text(encoding="utf-8").partition(begin)
    _, end, after = rest.partition(end)
    if not end:
        sys.exit(f"{path} has no place for what is derived")
    return before + begin + text + end + after


def written(functions):
    header, source, rows = HEADER_BEGIN, SOURCE_BEGIN, ROWS_BEGIN
    for interface in INTERFACE_CLASSES:
        members = [function for function in functions if function.group == interface.group]
        name = interface.name
        header += f"\n{interface.comment}class ZR_API {name} {{\n public:\n"
        header += f"  /// Copies nothing.\n  {name}& operator=(const {name}&);\n\n"
        header += "".join(declaration(interface, function) for function in members)
        header += f"{interface.more_declarations}}};\n"
        source += f"\n{name}& {name}::operator=(\n    const {name}&) = default;\n"
        source += "".join(definition(interface, function) for function in members)
        source += interface.more_definitions
        rows += "".join(row(interface, function) for function in members)
    return {
        INTERFACES: header + "\n#endif\n",
        CLASSES: source,
        ROWS: rows,
        STATUSES: with_text(STATUSES, statuses_table(functions)),
        RANGES: with_text(RANGES, minus_one_table(functions)),
        PYTHON: with_text(PYTHON, python_declarations(functions), PYTHON_BEGIN, PYTHON_END),
        PYTHON_VERSION: python_version(),
    }


def main():
    check = sys.argv[1:] == ["--check"]
    if sys.argv[1:] and not check:
        sys.exit(__doc__)
    try:
        functions = handle_header.functions(HANDLES)
        constants = handle_header.enumerators(TYPES, HANDLES)
        files = dict(language_declarations.files(LANGUAGES, functions, constants))
        files.update(written(functions))
    except ValueError as error:
        sys.exit(f"{HANDLES.name}: {error}")
    stale = []
    for path, text in files.items():
        if not path.exists() or path.read_text(encoding="utf-8") != text:
            stale.append(str(path.relative_to(ROOT)))
            if not check:
                path.write_text(text, encoding="utf-8")
    if check and stale:
        sys.exit(f"{', '.join(stale)} out of date: run tools/write-derived.py")


main()
