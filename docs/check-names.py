#!/usr/bin/env python3
"""Checks that the files, folders and tests that pages name exist.

    check-names.py PAGE...

Looks at the targets of relative links, and at everything in backticks that is the name of a file, of
a folder with its slash, or of a test (Suite.Name). A name without its folder may be anywhere in the
tree, and a star stands for any characters. A file may be made from one whose name ends in ".in".
"""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
FILE = re.compile(r"[\w.*/-]*[\w*-]\.(?:cpp|h|c|py|sh|md|txt|cmake|dot)")
FOLDER = re.compile(r"[\w-]+(?:/[\w-]+)*/")
TEST = re.compile(r"([A-Z]\w+)\.([A-Z]\w+)")


def tree():
    """All files and folders but those of builds and hidden ones."""
    found = []
    for path in ROOT.iterdir():
        if path.name != "build" and not path.name.startswith("."):
            found += [path, *path.rglob("*")]
    return found


def main():
    paths = tree()
    tests = {
        match.groups()
        for path in (ROOT / "tests").glob("*.cpp")
        for match in re.finditer(r"^TEST(?:_F)?\((\w+), (\w+)\)", path.read_text("utf-8"), re.M)
    }
    missing = []
    named = 0
    for page in map(pathlib.Path, sys.argv[1:]):
        text = re.sub(r"^```.*?^```", "", page.read_text("utf-8"), flags=re.M | re.S)
        names = set(re.findall(r"`([^`\n]+)`", text))
        wanted = [
            name
            for name in names
            if (FILE.fullmatch(name) or FOLDER.fullmatch(name))
            and not any(path.match(name.rstrip("/")) for path in paths)
            and not any(path.name == pathlib.Path(name).name + ".in" for path in paths)
        ]
        found = [TEST.fullmatch(name) for name in names]
        wanted += [match[0] for match in found if match and match.groups() not in tests]
        links = re.findall(r"\]\((?!https?:|#|@ref)([^)#]+)", text)
        wanted += [link for link in links if not (page.parent / link).exists()]
        named += len(names) + len(links)
        missing += [f"{page.name} names {name}, which does not exist" for name in sorted(wanted)]
    if not named:
        sys.exit("the pages name nothing")
    if missing:
        sys.exit("\n".join(missing))


main()
