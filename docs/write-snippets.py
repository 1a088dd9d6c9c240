#!/usr/bin/env python3
"""Writes parts of programs into the pages, which so read well without Doxygen, too.

usage: write-snippets.py [--check]

A comment `<!-- snippet: FILE [NAME] -->` stands before a block of code. The block becomes the lines
of FILE, from docs/snippets/ or examples/, between two comments `//! [NAME]`; without a name, the
whole file. --check changes nothing, and fails if a page is not as written.
"""
import pathlib
import re
import sys
import textwrap

DOCS = pathlib.Path(__file__).resolve().parent
BLOCK = re.compile(r"(<!-- snippet: (\S+)(?: (\w+))? -->\n```(\w+)\n).*?(?<=\n)(```\n)", re.S)


def snippet(name, part):
    path = next(folder / name for folder in (DOCS / "snippets", DOCS.parent / "examples")
                if (folder / name).exists())
    text = path.read_text("utf-8")
    if part is None:
        return text
    _, lines, _ = re.split(rf"^ *//! \[{part}\]\n", text, flags=re.M)
    return textwrap.dedent(lines)


def main():
    check = sys.argv[1:] == ["--check"]
    if sys.argv[1:] and not check:
        sys.exit(__doc__)
    stale = []
    for page in sorted(DOCS.glob("*.md")):
        old = page.read_text("utf-8")
        new = BLOCK.sub(lambda block: block[1] + snippet(block[2], block[3]) + block[5], old)
        if len(BLOCK.findall(new)) != new.count("<!-- snippet:"):
            sys.exit(f"{page}: a snippet's comment is not followed by a block of code")
        if new != old:
            stale.append(page.name)
            if not check:
                page.write_text(new, "utf-8")
    if stale and check:
        sys.exit(f"not as docs/write-snippets.py writes them: {', '.join(stale)}")


main()
