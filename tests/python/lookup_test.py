"""Tests of the look-up in Python and in C. The arguments are lookup.py and the program."""

import os
import re
import subprocess
import sys
import tempfile
import unittest

# Empty and blank lines, CR LF, a CR alone, bytes 0x80 to 0x9F, a zero byte, no newline at the end.
AWKWARD = (
    b"zythum\r\n\ncote\n\r\nc\xf4t\xe9\n  \nc\xf4te\n\x80uro\nCOTE\n"
    b"\x8cuvre\na\0b\na\rb\n\x9f\r\ncot\xe9"
)
KEPT = "12 entries, 11 kept\n"
VAIN = "not in the list; it would be entry "

ROWS = [
    ("the last of four that differ in accents", AWKWARD, "c\u00f4t\u00e9", KEPT + "entry 8\n"),
    ("with a bare CR", AWKWARD, "a\rb", KEPT + "entry 3\n"),
    ("from bytes 0x80 to 0x9F", AWKWARD, "\u20acuro", KEPT + "entry 2\n"),
    ("the last one", AWKWARD, "zythum", KEPT + "entry 11\n"),
    ("in vain, amid", AWKWARD, "cotee", KEPT + VAIN + "9\n"),
    ("in vain, behind", AWKWARD, "zz", KEPT + VAIN + "12\n"),
    ("dropped in another case", AWKWARD, "COTE", KEPT + VAIN + "6\n"),
    ("there in another case only", b"M2", "m2", "1 entries, 1 kept\n" + VAIN + "1\n"),
    ("an empty file", b"", "a", "0 entries, 0 kept\n" + VAIN + "1\n"),
    ("newlines only", b"\n\r\n", "a", "0 entries, 0 kept\n" + VAIN + "1\n"),
    # Sorted m2, m2 with a superscript, M2: entries that are equal but for case are not neighbours.
    ("apart in order", b"M2\nm\xb2\nm2", "m\u00b2", "3 entries, 2 kept\nentry 2\n"),
]


class Lookup(unittest.TestCase):
    def check(self, arguments, expected):
        """Runs both. `expected` is what they print, or the sentence that they fail with."""
        environment = dict(os.environ, LC_ALL="fr_FR.UTF-8", PYTHONUTF8="1")
        in_c = [PROGRAM, *(argument.encode("windows-1252") for argument in arguments)]
        for command in [[sys.executable, SCRIPT, *arguments], in_c]:
            with self.subTest(command):
                done = subprocess.run(command, env=environment, capture_output=True)
                printed, complaint = done.stdout.decode(), done.stderr.decode()
                if done.returncode == 0:
                    self.assertEqual((printed, complaint), (expected.replace("\n", os.linesep), ""))
                    continue
                self.assertEqual((done.returncode, printed, complaint.count("\n")), (2, "", 1))
                self.assertRegex(complaint, "^lookup: " + expected)

    def test_lists(self):
        with tempfile.TemporaryDirectory() as directory:
            path = os.path.join(directory, "words")
            for name, data, word, printed in ROWS:
                with open(path, "wb") as file:
                    file.write(data)
                with self.subTest(name):
                    self.check([path, word], printed)

    def test_failures_are_sentences_and_status_2(self):
        with tempfile.TemporaryDirectory() as directory:
            missing = os.path.join(directory, "missing")
            for arguments in [], [missing], [missing, "a", "b"]:
                self.check(arguments, "usage: lookup(.py)? FILE WORD")
            self.check([missing, "a"], "cannot read " + re.escape(missing))
            self.check([directory, "a"], "cannot read " + re.escape(directory))
            environment = dict(os.environ, ZRSTRING_LIBRARY=missing)
            command = [sys.executable, SCRIPT]
            done = subprocess.run(command, env=environment, capture_output=True)
            self.assertEqual((done.returncode, done.stdout), (2, b""))
            self.assertIn(b"lookup: cannot load the ZRString library", done.stderr)


if __name__ == "__main__":
    SCRIPT, PROGRAM = sys.argv[1:]
    unittest.main(argv=sys.argv[:1], verbosity=2)
