"""Stops the sample program in GDB and looks at its strings through the printers.

    gdb_test.py GDB PROGRAM TYPED_PROGRAM PRINTERS LIBRARY NATVIS [AUTO_LOAD_DIRECTORY]

TYPED_PROGRAM is the same program with the types of the bodies in its debug information. GDB must
load the printers by itself from AUTO_LOAD_DIRECTORY, which belongs to an installed tree. Without
that argument the test makes such a directory for the library as built.
"""

import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

SKIPPED = 77

STATES = [
    ("inlineText", '"café \\"x\\"\\n\\u0001" (length 10, holders 1)'),
    ("longestInline", '"012345678012345678012345678" (length 27, holders 1)'),
    ("heapText", '"012345678901234567890123456789" (length 30, holders 1)'),
    ("longText", '"' + "0123456789" * 20 + '"... (length 1200, holders 1)'),
    ("emptyText", '"" (length 0, holders 1)'),
    ("secondHolder", '"shared" (length 6, holders 3)'),
    ("thirdHolder", '"shared" (length 6, holders 3)'),
    ("openText", "<buffer open> (holders 1)"),
    ("brokenText", "<error state> (holders 1)"),
    ("surrogateText", '"😀a\\ude00b\\ud83d" (length 6, holders 1)'),
    ("*unborn", "<no string: nothing readable as its body at 0x0>"),
    ("*dead", "<no string: nothing readable as its body at ADDRESS>"),
    ("emptyArray", "ZRStringPtrArray of 0"),
    (
        "array",
        'ZRStringPtrArray of 3 = {ENTRY"first" (length 5, holders 1), 0x0, '
        'ENTRY"second" (length 6, holders 1)}',
    ),
    ("handle", 'ADDRESS "shared" (length 6, holders 3)'),
    ("mutableHandle", 'ADDRESS "shared" (length 6, holders 3)'),
    ("nullHandle", "0x0"),
    (
        "arrayHandle",
        'ADDRESS ZRStringPtrArray of 3 = {ADDRESS "first" (length 5, holders 1), 0x0, '
        'ADDRESS "second" (length 6, holders 1)}',
    ),
]

def run_gdb(commands, before=(), charset="C.UTF-8", program=None, **variables):
    """GDB's output for `commands`, run in main() of the stopped program."""
    arguments = [GDB, "-q", "-nx", "-batch"]
    for command in before:
        arguments += ["-iex", command]
    for command in ["break Stop", "run", "up", *commands]:
        arguments += ["-ex", command]
    environment = dict(os.environ, LC_ALL=charset, DEBUGINFOD_URLS="", **variables)
    environment["ASAN_OPTIONS"] = "detect_leaks=0"  # leak detection fails in a debugger
    result = subprocess.run(
        arguments + [program or PROGRAM],
        env=environment,
        stdout=subprocess.PIPE,
        stderr=subprocess.STDOUT,
        timeout=120,
    )
    return result.stdout.decode("utf-8", "backslashreplace")


def printed(commands, **options):
    """The result of each `print` among `commands`, and all of GDB's output."""
    output = run_gdb(commands, **options)
    return re.findall(r"^\$\d+ = (.*)$", output, re.MULTILINE), output


class Printers(unittest.TestCase):
    def check(self, rows, commands=(), **options):
        options.setdefault("before", ["source " + PRINTERS])
        shown, output = printed([*commands, *("print " + row[0] for row in rows)], **options)
        if "Couldn't write extended state" in output:  # seen in virtual machines
            self.skipTest("the system does not let GDB call functions of the program")
        self.assertEqual(len(shown), len(rows), output)
        for (expression, expected), line in zip(rows, shown):
            # Without the library's debug information Clang's array type is incomplete, and entries
            # are shown with their addresses.
            pattern = re.escape(expected).replace("ENTRY", "(ADDRESS )?")
            pattern = pattern.replace("ADDRESS", "0x[0-9a-f]+")
            with self.subTest(expression):
                self.assertRegex(line, "^" + pattern + "$")

    def test_every_state(self):
        self.check(STATES)

    def test_result_of_a_function(self):
        rows = [("Repeated(digits, 3, 2)", '"012012" (length 6, holders 1)')]
        self.check(rows, program=TYPED_PROGRAM)

    def test_element_limit_cuts_between_characters(self):
        rows = [("surrogateText", '""... (length 6, holders 1)')]
        self.check(rows, ["set print elements 1"])
        rows = [("surrogateText", '"😀"... (length 6, holders 1)')]
        self.check(rows, ["set print elements 2"])
        rows = [("longText", '"' + "0123456789" * 120 + '" (length 1200, holders 1)')]
        self.check(rows, ["set print elements 0"])

    def test_character_set_without_the_characters(self):
        rows = [
            ("inlineText", '"caf\\u00e9 \\"x\\"\\n\\u0001" (length 10, holders 1)'),
            ("surrogateText", '"\\U0001f600a\\ude00b\\ud83d" (length 6, holders 1)'),
        ]
        self.check(rows, charset="C")

    def test_arguments_in_a_backtrace(self):
        output = run_gdb(["backtrace 1"], before=["source " + PRINTERS])
        self.assertIn('reference="shared" (length 6, holders 3)', output)

    def test_loads_by_itself(self):
        with tempfile.TemporaryDirectory() as made:
            directory = AUTO_LOAD_DIRECTORY or os.path.realpath(made)
            if not AUTO_LOAD_DIRECTORY:
                place = directory + os.path.dirname(LIBRARY)
                os.makedirs(place)
                script = os.path.join(place, os.path.basename(LIBRARY) + "-gdb.py")
                shutil.copyfile(PRINTERS, script)
            before = [
                "set auto-load scripts-directory " + directory,
                "add-auto-load-safe-path " + directory,
            ]
            self.check(STATES[:1], before=before)


class Natvis(unittest.TestCase):
    """Visual Studio's expressions are C++, and GDB evaluates C++ too."""

    def test_expressions_give_what_each_state_holds(self):
        script = os.path.join(os.path.dirname(os.path.abspath(__file__)), "evaluate_natvis.py")
        names = "longestInline heapText longText emptyText thirdHolder openText brokenText".split()
        texts = ["012345678" * 3, "0123456789" * 3, "0123456789" * 120, "", "shared"]
        expected = []
        for name, text in zip(names, texts):
            holders = 3 if text == "shared" else 1
            display = '"%s" (length %d, holders %d)' % (text, len(text), holders)
            expected += ["%s DisplayString %s" % (name, display)]
            expected += ["%s StringView \"%s\"" % (name, text)]
            expected += ["%s [holders] %d" % (name, holders), "%s [length] %d" % (name, len(text))]
        for name, state in zip(names[-2:], ("buffer open", "error state")):
            expected += ["%s DisplayString <%s> (holders 1)" % (name, state)]
            expected += [name + " [holders] 1", name + " [length] 0"]
        output = run_gdb(["source " + script], program=TYPED_PROGRAM, NATVIS=NATVIS,
                         SAMPLES=" ".join(names))
        found = re.findall(r"^natvis: (.*)$", output, re.MULTILINE)
        self.assertEqual(found, expected, output)


if __name__ == "__main__":
    GDB, PROGRAM, TYPED_PROGRAM, PRINTERS, LIBRARY, NATVIS, *REST = sys.argv[1:]
    AUTO_LOAD_DIRECTORY = REST[0] if REST else None
    if not shutil.which(GDB):
        print("skipped: there is no GDB on this machine")
        sys.exit(SKIPPED)
    unittest.main(argv=sys.argv[:1], verbosity=2)
