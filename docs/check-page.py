#!/usr/bin/env python3
"""Checks that what a page names exists, and that the page shows what a program prints.

    check-page.py PAGE [PROGRAM [ARGUMENT...]]

Names are the targets of relative links, and in backticks the names of files with the endings below,
of folders with their slash, and of tests in tests/*.cpp (Suite.Name). A name without its folder may
be anywhere in the tree, and a star stands for any characters. A file may be made from one whose
name ends in ".in".

Every block of the program's output (lines between blank lines) must be a block of the page, where
code fences end a block too.
"""
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
FILE = re.compile(
    r"[\w.*/-]*[\w*-]\.(?:cpp|h|c|cs|go|rs|py|sh|md|txt|cmake|dot)|[\w-]+(?:/[\w-]+)*/"
)
TEST = re.compile(r"[A-Z]\w+\.[A-Z]\w+")


def missing_names(page, text):
    text = re.sub(r"^```.*?^```", "", text, flags=re.M | re.S)
    for link in re.findall(r"\]\((?!https?:|#|@ref)([^)#]+)", text):
        if not (page.parent / link).exists():
            yield link
    names = set(re.findall(r"`([^`\n]+)`", text))
    tops = [path for path in ROOT.glob("[!.]*") if path.name != "build"]
    paths = [path for top in tops for path in (top, *top.rglob("*"))]
    for name in filter(FILE.fullmatch, names):
        source = pathlib.Path(name).name + ".in"
        if not any(path.match(name) or path.name == source for path in paths):
            yield name
    sources = "".join(path.read_text("utf-8") for path in ROOT.glob("tests/*.cpp"))
    for name in filter(TEST.fullmatch, names):
        if not re.search(rf"^TEST\w*\({name.replace('.', ', ')}\)", sources, re.M):
            yield name


def blocks(text):
    lines = ["" if line.startswith("```") else line.rstrip() for line in text.splitlines()]
    return [block for block in re.split("\n\n+", "\n".join(lines).strip("\n")) if block]


def main():
    if sys.argv[1:2] in ([], ["-h"], ["--help"]):
        sys.exit(__doc__)
    page, program = pathlib.Path(sys.argv[1]), sys.argv[2:]
    text = page.read_text("utf-8")
    faults = [f"{page} names {name}, which does not exist" for name in missing_names(page, text)]
    if program:
        run = subprocess.run(program, stdout=subprocess.PIPE, check=True, encoding="utf-8")
        printed = blocks(run.stdout) or ["(the program printed nothing)"]
        shown = blocks(text)
        faults += [f"{page} does not show:\n\n{block}" for block in printed if block not in shown]
    if faults:
        sys.exit("\n".join(faults))


main()
