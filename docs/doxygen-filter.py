#!/usr/bin/env python3
"""Prints a public header or a page for Doxygen.

In headers, whose line numbers stay, specializations of functions of the standard library are left
out, because Doxygen does not know what they specialize.

Pages are plain Markdown, for readers of the sources. Doxygen gets its own marks: headings have the
labels that web sites for sources give them, after the page's name (`ranges-raw-operands`), links to
pages and headers become references, a link to an example that stands alone becomes its text, and
constants are marked as such, so that they become links.
"""
import pathlib
import re
import sys


def leave_out_specialization(lines, start):
    while lines[start - 1].startswith("///"):
        start -= 1
    while lines[start] != "}":
        lines[start] = ""
        start += 1
    lines[start] = ""


def header(text):
    lines = text.splitlines()
    for i, line in enumerate(lines):
        if line == "template <>" and not lines[i + 1].startswith("struct "):
            leave_out_specialization(lines, i)
    return "\n".join(lines) + "\n"


def slug(heading):
    return re.sub(r"[^\w\- ]", "", heading.lower()).replace(" ", "-")


def labelled(heading, name, contents):
    level, title = heading[1], heading[2]
    if level != "#":
        return f"{level} {title} {{#{name}-{slug(title)}}}"
    title = title.replace("ZRString", "%ZRString")  # the project, not the class
    label = "mainpage" if name == "index" else name
    return f"# {title} {{#{label}}}" + ("\n\n[TOC]" if contents else "")


def reference(link, name):
    page, place = link[1] or name, link[2]
    return f"](@ref {page}-{place})" if place else f"](@ref {page})"


def page(text, name):
    contents = len(re.findall("^## ", text, re.M)) > 2 and name != "index"
    # Every second part is code, in a block or in backticks.
    parts = re.split(r"(^```.*?^```$|^    .*?$|`[^`\n]+`)", text, flags=re.M | re.S)
    for i, part in enumerate(parts[::2]):
        part = re.sub(r"^\[[^]]*\]\(\.\./examples/(\S+)\)$", r"\\verbinclude \1", part, flags=re.M)
        part = re.sub(r"\[([^]\n]*)\n *([^]\n]*\]\()", r"[\1 \2", part)  # a link in one line
        part = re.sub(r"\]\((?:([\w-]+)\.md)?(?:#([\w-]+))?\)", lambda m: reference(m, name), part)
        part = re.sub(r"\]\(\.\./include/\w+/(\w+\.h)\)", r"](@ref \1)", part)
        part = re.sub(r"(?<![\w#])(kZR|ZR_TO)", r"#\1", part)
        part = re.sub(r"^(#+) (.*)$", lambda m: labelled(m, name, contents), part, flags=re.M)
        parts[2 * i] = part
    # Doxygen takes a single backtick and an apostrophe for quotation marks.
    parts[1::2] = [re.sub(r"^`(.*'.*)`$", r"``\1``", code) for code in parts[1::2]]
    return "".join(parts)


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    path = pathlib.Path(sys.argv[1])
    text = path.read_text("utf-8")
    text = header(text) if path.suffix == ".h" else page(text, path.stem)
    sys.stdout.buffer.write(text.encode("utf-8"))


main()
