#!/usr/bin/env python3
"""Makes the search of the reference pages find names and titles by each of their words, and the
side bar find functions with long comments.

usage: finish-pages.py HTML_FOLDER

Doxygen's search compares the beginning of names only. This script adds an entry for every word of a
name (so that "utf8" finds FromUtf8()), for every heading, and for what the first columns of the
tables of questions and of the names in other libraries say. The entries are those of the search in
everything, whose files are search/all_NUMBER.js; the number is the place of the entries' first
letter in a list in search/searchdata.js. Doxygen 1.9.4 has an HTML file beside each of them.

The side bar names the members of a namespace below their header, where those with long comments
have no anchor: its links go to the namespace's page instead.
"""
import html
import pathlib
import re
import sys

ENTRY = re.compile(r"^  \['(.+)_\d+',\[(.*)\]\],?$", re.M)
LETTERS = re.compile(r'(0: )"([^"]*)"')
WORD = re.compile(r"[A-Z]+(?=[A-Z][a-z])|[A-Z]?[a-z]+\d*|[A-Z]+\d*|\d+")
TABLES = ("questions", "qstring", "unicodestring")
COMMON = set("a an and are as at be by do does for from if in is it its no not of on or the to "
             "what which who with zr".split())


def key(text):
    """The text as Doxygen's script writes what a reader types."""
    return re.sub(r"[^a-z0-9\u0080-\uffff]", lambda m: f"_{ord(m[0]):02x}", text.lower())


def keys(text, skipped=frozenset()):
    """One for each word that is not skipped: the text from there on."""
    starts = [(match.start(), match[0]) for match in WORD.finditer(text)]
    return {key(text[start:]) for start, word in starts if word.lower() not in skipped}


def plain(markup):
    return " ".join(html.unescape(re.sub("<[^>]*>", "", markup)).split())


def places(page):
    """Titles on a page, as (title, target)."""
    text = page.read_text("utf-8")
    found = re.search(r'<div class="title">(.*?)</div>', text)
    if page.name.endswith("-members.html") or "<!-- contents -->" not in text or not found:
        return
    title, target = plain(found[1]), page.name
    pattern = (r'<h[1-4][^>]*>\s*<a class="anchor" id="([^"]+)"></a>(.*?)</h'
               r'|<tr class="markdownTableRow\w*">\s*<td[^>]*>(.*?)</td>')
    for label, heading, cell in re.findall(pattern, text, re.S):
        if label:
            target = f"{page.name}#{label}"
            yield plain(heading), title, target
        elif page.stem in TABLES and plain(cell):
            yield plain(cell), title, target


def mend_side_bar(folder):
    anchors = {page.name: set(re.findall(r' id="(\w+)"', page.read_text("utf-8")))
               for page in folder.glob("*.html")}
    homes = {name: page for page, names in anchors.items() if page.startswith("namespace")
             for name in names}

    def mended(link):
        page, name = link[1], link[2]
        return f'"{page if name in anchors[page] else homes.get(name, page)}#{name}"'

    for script in folder.glob("*.js"):
        text = script.read_text("utf-8")
        script.write_text(re.sub(r'"(\w+\.html)#(\w+)"', mended, text), "utf-8")


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    folder = pathlib.Path(sys.argv[1])
    mend_side_bar(folder)
    search = folder / "search"
    data = (search / "searchdata.js").read_text("utf-8")
    letters = LETTERS.search(data)[2]
    entries = {}

    def add(name_keys, result):
        """Later versions of Doxygen have entries for headings, too."""
        shown = tuple(re.findall(r"'([^']*)'", result)[:2])
        for new in name_keys:
            entries.setdefault((new, shown), result)

    for number in range(len(letters)):
        text = (search / f"all_{number:x}.js").read_text("utf-8")
        for old, result in ENTRY.findall(text):
            result = result.replace("'%", "'")
            name = html.unescape(re.match("'(.*?)'", result)[1])
            add({old.removeprefix("_25"), *keys(name)}, result)
    for page in folder.glob("*.html"):
        for name, title, target in places(page):
            shown = [html.escape(text).replace("'", "&#39;") for text in (name, title)]
            result = f"'{shown[0]}',['../{target}',1,'{shown[1]}']"
            add(keys(name, COMMON), result)

    files = {}
    for new, result in sorted((new, result) for (new, _), result in entries.items()):
        files.setdefault("~" if new.startswith("_7e") else new[0], []).append((new, result))
    letters += "".join(sorted(files.keys() - set(letters)))
    (search / "searchdata.js").write_text(LETTERS.sub(rf'\1"{letters}"', data, 1), "utf-8")
    template = search / "all_0.html"
    for number, letter in enumerate(letters):
        lines = [f"  ['{new}_{i}',[{result}]]"
                 for i, (new, result) in enumerate(files.get(letter, []))]
        name = f"all_{number:x}"
        (search / f"{name}.js").write_text(
            "var searchData=\n[\n" + ",\n".join(lines) + "\n];\n", "utf-8")
        if template.exists():
            text = template.read_text("utf-8").replace("all_0.js", f"{name}.js")
            (search / f"{name}.html").write_text(text, "utf-8")


main()
