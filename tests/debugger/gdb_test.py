"""Runs inside GDB: compares what the printers, and the rules for Visual Studio, make of the locals
of Samples.cpp with the comments there."""

import pathlib
import re
import string
import unittest
from xml.etree import ElementTree

import gdb

HERE = pathlib.Path(__file__).resolve().parent
VIEWS = HERE.parents[1] / "tools/debugger"
NATVIS = "{http://schemas.microsoft.com/vstudio/debugger/natvis/2010}"
RULES = ElementTree.parse(VIEWS / "ZRString.natvis").find(NATVIS + "Type[@Name='ZRString']")
SAMPLES = {}  # what must be displayed, by the name of the local
for line in (HERE / "Samples.cpp").read_text(encoding="utf-8").splitlines():
    if "  //= " in line:
        name, display = re.search(r"(\w+)(?:;|\(| =).*//= (.*)", line).groups()
        display = re.sub(r"(\w+)\"\*(\d+)", lambda text: text[1] * int(text[2]) + '"', display)
        SAMPLES[name] = string.Template(display).substitute(SAMPLES)

COMMANDS = {"print " + name: display for name, display in SAMPLES.items()} | {
    "print *unborn": "<no string: nothing readable as its body at 0x0>",
    "print *dead": "<no string: nothing readable as its body at ADDRESS>",
    "print *damaged": "<no string: nothing readable as its body at ADDRESS>",
    "print (ZRStringRef__*)-1": "ADDRESS <no string: unreadable>",
    "print arrayHandle": "ADDRESS " + SAMPLES["array"].replace("ENTRY", "ADDRESS "),
    "backtrace 1": SAMPLES["shared"],
    "with print elements 1 -- print surrogateText": '""... (length 6, holders 1)',
    "with print elements 2 -- print surrogateText": '"😀"... (length 6, holders 1)',
    "with host-charset ASCII -- print surrogateText":
        SAMPLES["surrogateText"].replace("😀", "\\U0001f600"),
}


def start(program):
    for command in ("file " + program, "set print elements 0", "break Stop", "run", "up"):
        gdb.execute(command, to_string=True)


def evaluated(expression, name):
    """What Visual Studio shows for an expression in a rule about the local `name`."""
    text = re.fullmatch(r"(.*),\[(.*)\]su", expression)
    if not text:
        return gdb.parse_and_eval(re.sub(r"\bbody_", name + ".body_", expression))
    start, length = (int(evaluated(part, name)) for part in text.groups())
    units = gdb.selected_inferior().read_memory(start, 2 * length).tobytes() if length else b""
    return '"%s"' % units.decode("utf-16-le")


def shown_by_rules(name):
    """What each kind of rule shows for the local `name`: the first valid one, of the items all."""
    shown = {}
    for rule in RULES.iter():
        kind = rule.get("Name") or rule.tag.removeprefix(NATVIS)
        counts = rule.text.strip() and (kind[0] == "[" or kind not in shown)
        if counts and evaluated(rule.get("Condition", "1"), name):
            text = rule.text if kind == "DisplayString" else "{%s}" % rule.text
            text = re.sub("{(.*?)}", lambda part: str(evaluated(part[1], name)), text)
            shown[kind] = shown.get(kind, "") + text
    return shown


class Views(unittest.TestCase):
    def check(self, commands):
        for command, display in commands.items():
            # Without the library's debug information Clang's array type is incomplete, and entries
            # are shown with their addresses.
            pattern = re.escape(display).replace("ENTRY", "(ADDRESS )?")
            pattern = pattern.replace("ADDRESS", "0x[0-9a-f]+")
            with self.subTest(command):
                try:
                    shown = gdb.execute(command, to_string=True)
                except gdb.error as error:
                    shown = str(error)
                if "Couldn't write extended state" in shown:  # seen in virtual machines
                    self.skipTest("the system does not let GDB call functions of the program")
                self.assertRegex(shown, r"^(\$\d+ = |#0 .*reference=)%s(\) at .*)?\n$" % pattern)

    def test_printers_load_by_themselves(self):
        for command in ("set auto-load scripts-directory", "add-auto-load-safe-path"):
            gdb.execute("%s %s" % (command, pathlib.Path("auto-load").resolve()))
        start("zrstring-samples")
        self.check(COMMANDS)

    def test_printers_with_the_types_of_the_bodies(self):
        gdb.execute("set auto-load off")
        gdb.execute("source %s" % (VIEWS / "zrstring-gdb.py"))
        start("zrstring-typed-samples")
        self.check(COMMANDS | {"print Digits(3, 2)": '"012012" (length 6, holders 1)'})

    def test_rules_for_visual_studio(self):
        """Their expressions are C++, and GDB evaluates C++ too."""
        start("zrstring-typed-samples")
        for name, display in SAMPLES.items():
            parts = re.fullmatch(r'(<.*>|"\w*") \((?:length (\d+), )?holders (\d+)\)', display)
            if parts:
                text, length, holders = parts.groups("0")
                expected = {"StringView": text} if text[0] == '"' else {}
                expected |= {"DisplayString": display, "[holders]": holders, "[length]": length}
                with self.subTest(name):
                    self.assertEqual(shown_by_rules(name), expected)


result = unittest.main(argv=[__file__], exit=False, verbosity=2).result
gdb.execute("quit %d" % (not result.wasSuccessful()))
