"""Tests of the example programs: the word list in C++, and the look-up in C and in Python.

    programs_test.py FOLDER-OF-THE-PROGRAMS [LOOKUP.PY]

$ARGUMENTS is the encoding in which the system takes arguments that `lookup` gets in windows-1252:
UTF-8 for Wine, which converts them and so cannot pass UTF-8.
"""

import os
import pathlib
import re
import shlex
import shutil
import subprocess
import sys
import tempfile
import unittest

# Empty lines, CR LF, a CR alone, bytes 0x80 to 0x9F, a zero byte, no newline at the end.
AWKWARD = (
    b"zythum\r\n\ncote\n\r\nc\xf4t\xe9\na\nc\xf4te\n\x80uro\nCOTE\n"
    b"\x8cuvre\na\0b\na\rb\n\x9f\r\ncot\xe9"
)
SORTED = ["€uro", "a", "a\rb", "a\0b", "cote", "coté", "côte", "côté", "Œuvre", "Ÿ", "zythum"]

# Lists: the data, the number of lines and of entries, the words kept, and the places of words.
# A place below 0 is where a word would be that is not in the list.
PLACES = {"€uro": 1, "a\rb": 3, "côté": 8, "zythum": 11, "cotee": -9, "zz": -12, "COTE": -6}
LISTS = [
    (AWKWARD, 14, 12, SORTED, PLACES),
    (b"M2", 1, 1, ["M2"], {"m2": -1}),
    (b"", 0, 0, [], {"a": -1}),
    (b"\n\r\n", 2, 0, [], {"a": -1}),
    # In order: m2, m², M2. Entries that are equal but for case need not be neighbours.
    (b"M2\nm\xb2\nm2", 3, 3, ["m2", "m²"], {"m²": 2}),
]

SAVED = b"\2\0\0\0\1\0\0\0b\0\1\0\0\0\xe9\0"
FILES = {"awkward": AWKWARD, "blank": b"\tc\xf4t\xe9 \n  \nc\xd4T\xc9", "two": b"b\n\xe9"}
FILES |= {"saved": SAVED, "short": SAVED[:-1], "long": SAVED + b"\n"}
FILES["negative"] = b"\1\0\0\0\xff\xff\xff\xff"

USAGE = """usage: wordlist FILE [--replace OLD NEW] [--save LIST] [--find WORD]
       wordlist --load LIST [--find WORD]
"""
FAILURES = {  # and how their messages begin
    "wordlist --load short": "short is damaged: the data ends inside a record\n",
    "wordlist --load long": "long is damaged: there is data after the last record\n",
    "wordlist --load negative": "negative is damaged (negative length), or memory ran out\n",
    "wordlist missing": "cannot read missing\n",
    "wordlist .": ". is a folder\n",
    "wordlist two --save . > printed": ". is a folder\n",
    "wordlist two --save missing/list > printed": "cannot open missing/list\n",
    "wordlist two --save unwritten > /dev/full": "cannot write to standard output\n",
    "wordlist --load saved >&-": "cannot write to standard output\n",
    "wordlist --help > /dev/full": "cannot write to standard output\n",
    "wordlist": "give either a word list or --load\n" + USAGE,
    "wordlist two --load saved": "give either a word list or --load\n" + USAGE,
    "wordlist two two": "more than one word list\n" + USAGE,
    "wordlist two --lost": "unknown option --lost\n" + USAGE,
    "wordlist two --find": "an argument is missing after --find\n" + USAGE,
    "lookup": "usage: lookup",
    "lookup two a b": "usage: lookup",
    "lookup missing a": "cannot read missing",
    "lookup . a": "cannot read .",
    "wordlist-short blank": "a line is too long in blank\n",
    "lookup-short blank a": "a line is too long in blank\n",
}


def listing(words, last="", **counts):
    """What `wordlist` prints, without the times."""
    lines = [f"{number:12}  {word}\n" for number, word in enumerate(words, 1)]
    if len(lines) > 10:
        lines[5:-5] = [f"{'...':>12}\n"]
    return "".join([f"{stage:12}{count:9}\n" for stage, count in counts.items()] + lines) + last


class Examples(unittest.TestCase):
    def check(self, command, output, complaint=""):
        """Runs a command in the shell. If it fails, its message must begin with `complaint`."""
        with self.subTest(command):
            encoding = ENCODING if command.startswith("lookup --windows-1252") else "utf-8"
            encoded = b"exec " + command.encode(encoding)
            done = subprocess.run(encoded, shell=True, capture_output=True)
            printed = re.sub(r"( +[0-9.]+ ms)?\r?\n", "\n", done.stdout.decode())
            message = done.stderr.decode().replace("\r", "")[: len(complaint) or None]
            expected = 2 if complaint else 0, output, complaint
            self.assertEqual((done.returncode, printed, message), expected)

    def test_words_are_found(self):
        for data, lines, entries, words, places in LISTS:
            pathlib.Path("list").write_bytes(data)
            pathlib.Path("utf-8").write_bytes(data.decode("windows-1252").encode())
            counts = {"read": lines, "edited": entries, "sorted": entries, "kept": len(words)}
            for word, place in places.items():
                is_at = "entry" if place > 0 else "not in the list; it would be entry"
                is_at += f" {abs(place)}\n"
                printed = listing(words, f"{word} is {is_at}", **counts)
                self.check(f"wordlist list --find '{word}'", printed)
                printed = f"{entries} entries, {len(words)} kept\n{is_at}"
                for lookup in LOOKUPS:
                    self.check(f"{lookup} --windows-1252 list '{word}'", printed)
                    if ENCODING != "UTF-8":
                        self.check(f"{lookup} utf-8 '{word}'", printed)

    def test_lists_are_edited_saved_and_loaded(self):
        counts = {"read": 14, "edited": 12, "sorted": 12, "kept": 11}
        replaced = listing(SORTED[:-1], **counts | {"kept": 10})
        self.check("wordlist awkward --replace zythum a", replaced)
        self.check("wordlist awkward --save list", listing(SORTED, **counts, saved=11, reloaded=11))
        self.check("wordlist --load list", listing(SORTED, loaded=11))
        self.check("wordlist blank", listing(["côté"], read=3, edited=2, sorted=2, kept=1))
        for lookup in LOOKUPS:
            self.check(lookup + " --windows-1252 blank '  '", "3 entries, 3 kept\nentry 2\n")
        self.check("wordlist two --save list > printed", "")
        self.assertEqual(pathlib.Path("list").read_bytes(), SAVED)
        for option in ("-h", "--help"):
            self.check(f"wordlist {option} | head -n 2", USAGE)

    def test_both_languages_edit_one_string(self):
        printed = "Python: ['Hello Zoë,', 'Regards']\nC++: REGARDS\nPython: REGARDS!\n"
        if shutil.which("embed"):  # which CMake leaves out, and says so, without Python's headers
            self.check("env ASAN_OPTIONS=detect_leaks=0 PYTHONIOENCODING=utf-8 embed", printed)

    def test_failures_are_sentences_and_status_2(self):
        for command, complaint in FAILURES.items():
            name, _, arguments = command.partition(" ")
            if name.endswith("-short") and not shutil.which(name):
                continue  # a package of the examples
            complaint = name.removesuffix("-short") + ": " + complaint
            for program in LOOKUPS if name == "lookup" else [name]:
                self.check(f"{program} {arguments}", "", complaint)
        for lookup in LOOKUPS[1:]:
            complaint = "lookup: cannot load the ZRString library"
            self.check("env ZRSTRING_LIBRARY=missing " + lookup, "", complaint)
        self.assertFalse(os.path.exists("unwritten"))


if __name__ == "__main__":
    programs, *scripts = map(os.path.abspath, sys.argv[1:])
    ENCODING = os.environ.get("ARGUMENTS", "windows-1252")
    # The leaks that a sanitizer finds in Python are Python's. ICU's default locale is LC_ALL's.
    python = f"env ASAN_OPTIONS=detect_leaks=0 {sys.executable} "
    LOOKUPS = ["lookup", *(python + shlex.quote(script) for script in scripts)]
    os.environ["PATH"] = programs + ":" + os.environ["PATH"]
    os.environ.update(LC_ALL="fr_FR.UTF-8", PYTHONUTF8="1", ASAN_OPTIONS="")
    with tempfile.TemporaryDirectory() as folder:
        os.chdir(folder)
        for name, data in FILES.items():
            pathlib.Path(name).write_bytes(data)
        unittest.main(argv=sys.argv[:1], verbosity=2)
