"""Reads ZRStringHandles.h for the scripts that derive something from it or compare it.

functions() raises ValueError if it misses a function or if statuses do not agree with the
declaration.
"""

import dataclasses
import re

FIRST_PARAMETER, INDEX_OUTSIDE = 4, 12  # kZRStatusFirstParameter, kZRStatusIndexOutside

# What a clause of "@return" may say of a parameter, by what the parameter is; and of status 12.
CAUSES = {"pointer": ["null"], "integer": ["negative", "below -1", "below 1"]}
OUTSIDE_CAUSES = ["no memory", "the array is empty", "index is outside the array"]


@dataclasses.dataclass
class Test:
    """A cause of a status. `parameter` is None where the status names no parameter."""

    parameter: str
    cause: str
    member_status: int  # what the interface class's member returns instead


@dataclasses.dataclass
class Function:
    group: str
    name: str
    parameters: list  # of pairs: type, name
    tests: dict  # status -> Test, in the order tested


def _tests(name, parameters, comment):
    """The tests that "@return 0; 4 string is null; ..." lists. "5 string is null (not 6)" is a
    status that does not follow from the position; the member has the one that does."""
    names = [parameter for _, parameter in parameters]
    causes = {
        parameter: CAUSES["pointer" if kind.endswith("*") else "integer"]
        for kind, parameter in parameters
    }
    success, *clauses = comment.partition("@return ")[2].rstrip(".").split("; ")
    if success != "0":
        raise ValueError(f"{name}: the first status is not 0")
    tests = {}
    for clause in clauses:
        status, _, cause = clause.partition(" ")
        tested = re.fullmatch(r"(\w+) is ([\w -]+)(?: \(not (\d+)\))?", cause)
        if status == str(INDEX_OUTSIDE):
            if cause not in OUTSIDE_CAUSES:
                raise ValueError(f"{name}: '{clause}' is not one of {', '.join(OUTSIDE_CAUSES)}")
            tests[INDEX_OUTSIDE] = Test(None, cause, INDEX_OUTSIDE)
        elif status.isdecimal() and tested and tested[1] in names:
            if tested[2] not in causes[tested[1]]:
                allowed = " or ".join(causes[tested[1]])
                raise ValueError(f"{name}: '{clause}': {tested[1]} can be {allowed}")
            by_position = FIRST_PARAMETER + names.index(tested[1])
            if by_position != int(tested[3] or status) or tested[3] == status:
                raise ValueError(f"{name}: the position of {tested[1]} gives {by_position}")
            tests[int(status)] = Test(tested[1], tested[2], by_position)
        else:
            raise ValueError(f"{name}: cannot read '{clause}'")
    if list(tests) != sorted(tests):
        raise ValueError(f"{name}: the statuses are not in the order of the tests")
    return tests


def functions(path):
    """The functions of the header, in its order."""
    with open(path, encoding="utf-8") as file:
        text = file.read()
    found = []
    group = comment = ""
    # A declaration on one line each.
    for line in re.sub(r"(?<=[,(])\n +", " ", text).splitlines():
        declaration = re.fullmatch(r"ZR_API ZRLong ZR_CALL (\w+)\( ?(.*)\);", line)
        if declaration:
            parameters = [
                re.fullmatch(r"(.*\W)(\w+)", parameter).groups()
                for parameter in declaration[2].split(", ")
            ]
            parameters = [(kind.strip(), name) for kind, name in parameters]
            name = declaration[1]
            found.append(Function(group, name, parameters, _tests(name, parameters, comment)))
        elif line.startswith("/// @name "):
            group = line[len("/// @name ") :]
        comment = f"{comment} {line[3:].strip()}" if line.startswith("///") else ""
    if not found or len(found) != text.count("ZR_API"):
        raise ValueError(f"{path}: {len(found)} of {text.count('ZR_API')} declarations were read")
    return found


def enumerators(*paths):
    """The values of all enumerators of the headers, by name."""
    values = {}
    for path in paths:
        with open(path, encoding="utf-8") as file:
            for name, value in re.findall(r"^ +(k\w+) = ([-\w]+)", file.read(), re.MULTILINE):
                values[name] = int(value, 0)
    return values
