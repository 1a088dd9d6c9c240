"""Tests of examples/python/zrstring.py. The arguments are ZRStringHandles.h and ZRTypes.h."""

import contextlib
import doctest
import gc
import pathlib
import subprocess
import sys
import unittest
from unittest import mock

import zrstring
from zrstring import IndexOutside, InvalidArgument, MutableString, String, StringArray

sys.path.append(str(pathlib.Path(__file__).resolve().parents[2] / "tools"))
import handle_header  # noqa: E402

# The C types of the parameters, and what passes them; an out-parameter has one more asterisk.
TYPES = {
    "ZRLong": zrstring.Long,
    "ZRULong": zrstring.ULong,
    "unsigned short": zrstring.Unit,
    "unsigned short*": zrstring.Units,
    "ZRStringRef__*": zrstring.Handle,
    "ZRMutableStringRef__*": zrstring.Handle,
    "ZRStringPtrArrayRef__*": zrstring.Handle,
}
TYPES = {name + "*": zrstring.Out(passed) for name, passed in TYPES.items()} | TYPES
TYPES |= {"const char*": zrstring.Bytes, "const unsigned char*": zrstring.Bytes}
TYPES |= {"const unsigned short*": zrstring.Units, "unsigned char*": zrstring.Out(zrstring.Bool)}

# Functions that the module leaves out: Python does without them, or cannot use them safely.
NOT_USED = """
GetZRStringRefAt ZRMutableStringAppendUniChars ZRMutableStringCreateEmpty ZRStringFindUniChars
ZRMutableStringCreateFromCString ZRMutableStringGetBufferWithCapacity ZRStringGetBuffer
ZRMutableStringInsertUniChars ZRMutableStringLastIndexOf ZRMutableStringReleaseBuffer
ZRMutableStringReplaceWithUniChars ZRStrPtrArrCreateFromZRStrPtrArr ZRStringCreateFromCString
ZRStringGetUniCharsAt ZRStringIsEmpty ZRStringPtrArrayDeleteAll ZRStringPtrArrayIsEmpty
ZRStringRFindUniChars
""".split()

CONSTANTS = {
    "kZRToEnd": zrstring.TO_END,
    "kZRCompareIgnoreCase": zrstring.IGNORE_CASE,
    "kZRCompareIgnoreCaseTurkic": zrstring.IGNORE_CASE_TURKIC,
    "kZRCompareIgnoreCaseCodePointOrder": zrstring.IGNORE_CASE_CODE_POINT_ORDER,
    "kZRCompareCollated": zrstring.COLLATED,
}

EDITS = [
    ("append", ("!",), "Stra\u00dfe!"),
    ("insert", (3, "xyzu", 1, 2), "Stryza\u00dfe"),
    ("set", ("replaced", 2), "placed"),
    ("set_unit", (0, "s"), "stra\u00dfe"),
    ("replace", (1, 2, "--"), "S--a\u00dfe"),
    ("find_and_replace", ("r", "RR"), "StRRa\u00dfe"),
    ("remove_between", (1, 2), "Sa\u00dfe"),
    ("pad_leading", (8, "*"), "**Stra\u00dfe"),
    ("pad_trailing", (8,), "Stra\u00dfe  "),
    ("truncate", (2,), "St"),
    ("to_upper", (), "STRASSE"),
    ("to_lower", (), "stra\u00dfe"),
    ("reverse", (1,), "Se\u00dfart"),
    ("trim", (), "Stra\u00dfe"),
]


@contextlib.contextmanager
def destroyed():
    """The list of the destroy functions called, kept up to date."""
    calls = []

    def recording(name, function):
        return lambda handle: (calls.append(name), function(handle))

    names = ["ZRStringDestroy", "ZRMutableStringDestroy", "ZRStringPtrArrayDestroy"]
    spies = {name: recording(name, zrstring._functions[name]) for name in names}
    with mock.patch.dict(zrstring._functions, spies):
        yield calls


def library_entries(array):
    """The handles that the library's own array holds."""
    get = zrstring._library.GetZRStringRefAt
    get.argtypes = [zrstring.Handle, zrstring.Long, zrstring.Out(zrstring.Handle)]
    handles = [zrstring.Handle() for _ in range(len(array))]
    for index, handle in enumerate(handles):
        get(array, index, handle)
    return [handle.value for handle in handles]


class Module(unittest.TestCase):
    def test_functions_and_constants_are_those_of_the_headers(self):
        for function in handle_header.functions(HEADERS[0]):
            with self.subTest(function.name):
                parameters = [(name, TYPES[kind]) for kind, name in function.parameters]
                used = None if function.name in NOT_USED else parameters
                self.assertEqual(zrstring.FUNCTIONS.get(function.name), used)
                for status, test in function.tests.items() if used else ():
                    if test.parameter:
                        error = InvalidArgument(function.name, status)
                        self.assertEqual(error.parameter, test.parameter)
        declared = handle_header.enumerators(*HEADERS)
        compared = [name for name in declared if name.startswith("kZRCompare")]
        self.assertEqual({name: declared[name] for name in ["kZRToEnd", *compared]}, CONSTANTS)

    def test_arguments(self):
        s, m, a = String("abc"), MutableString("abc"), StringArray(["x"])
        rows = [
            (lambda: String(None), "ZRStringCreateCopy: parameter 1 (source)"),
            (lambda: s.find("a", -(2**32)), "ZRStringFind: parameter 2 (start)"),
            (
                lambda: zrstring.call("ZRStringICompare", s, 0, -1, s, 0, -1, 0, None),
                "ZRStringICompare: parameter 8 (result)",
            ),
            (lambda: m.truncate(-1), "ZRMutableStringTruncate: parameter 2 (targetLength)"),
            (lambda: a.insert(0, None), "InsertZRStringRefAt: parameter 3 (string)"),
        ]
        for call, message in rows:
            with self.subTest(message), self.assertRaises(InvalidArgument) as caught:
                call()
            self.assertEqual(str(caught.exception), message)
        self.assertEqual((str(m), list(map(str, a))), ("abc", ["x"]))
        self.assertEqual(s.find("a", 2**32), -1)
        with self.assertRaisesRegex(Exception, "not one UTF-16 code unit"):
            s.last_index_of("\U0001f600")
        for index in (1, -2, 2**32):
            for change in (a.__getitem__, a.__delitem__, lambda i: a.insert(i, "x"),
                           lambda i: a.__setitem__(i, "x")):
                self.assertRaises(IndexOutside, change, index)
        self.assertEqual(len(library_entries(a)), 1)

    def test_objects_alive_at_exit_are_destroyed(self):
        script = (
            "import zrstring\n"
            "destroy = zrstring._functions['ZRStringDestroy']\n"
            "spy = lambda handle: (print('destroyed'), destroy(handle))\n"
            "zrstring._functions['ZRStringDestroy'] = spy\n"
            "a = zrstring.StringArray(['x', 'y'])\n"
            "a.itself = a\n"
        )
        done = subprocess.run([sys.executable, "-c", script], capture_output=True)
        self.assertEqual((done.returncode, done.stderr), (0, b""))
        self.assertEqual(done.stdout.split(), [b"destroyed"] * 2)

    def test_objects_live_until_they_leave_their_array(self):
        with destroyed() as calls:
            array = StringArray("abcde")
            for step, change in enumerate(
                [
                    lambda: array[0][1:],
                    lambda: array.__setitem__(0, MutableString("A")),
                    lambda: array.__setitem__(-1, "E"),
                    lambda: array.__delitem__(-2),
                    lambda: array.__delitem__(1),
                ]
            ):
                change()
                gc.collect()
                self.assertEqual(calls, ["ZRStringDestroy"] * (step + 1))
            array.insert(-1, "d")
            array.insert(0, "0")
            self.assertEqual("".join(map(str, array)), "0AcdE")
            owned = [string._as_parameter_.value for string in array]
            self.assertEqual(library_entries(array), owned)
            array.clear()
            gc.collect()
            self.assertEqual((len(calls), len(array)), (5 + 5, 0))
            self.assertEqual(calls.count("ZRMutableStringDestroy"), 1)
            del array
            gc.collect()
            self.assertEqual(calls[10:], ["ZRStringPtrArrayDestroy"])

    def test_edits_show_in_no_other_string(self):
        for edit, arguments, expected in EDITS:
            source = String("Stra\u00dfe")
            edited, other = MutableString(source), MutableString(source)
            getattr(edited, edit)(*arguments)
            with self.subTest(edit):
                found = str(edited), str(source), str(other)
                self.assertEqual(found, (expected, "Stra\u00dfe", "Stra\u00dfe"))
        padded = MutableString("  a ").trim()
        self.assertEqual((padded.pad_leading(1), padded.pad_leading(2)), (False, True))
        padded += padded
        self.assertEqual(str(padded), " a a")

    def test_every_unit_passes_both_ways(self):
        for text, length in [("", 0), ("a\0\ufeff\uffff", 4), ("a\ude00\U0001f600\ud83d", 5)]:
            for kind in (String, MutableString):
                self.assertEqual((str(kind(text)), len(kind(text))), (text, length))
                self.assertEqual(str(kind.from_local(b"\x80\x9f\0\xe9")), "\u20ac\u0178\0\u00e9")
        self.assertEqual(str(String("\U0001f600")[:1]), "\ud83d")
        self.assertEqual(str(String("\ud83d") + "\ude00"), "\U0001f600")
        self.assertEqual(str(String("abc")[-2:]) + str(String("abc")[2:1]), "bc")

    def test_comparisons(self):
        low, high = String("\uffee"), String("\U0001f600")
        self.assertTrue(high < low and low >= high and high != low and low == MutableString(low))
        self.assertEqual(low.compare_code_points(high), -1)
        self.assertEqual(String("xSTRASSEx").icompare("stra\u00dfe", start=1, length=7), 0)
        self.assertEqual(String("I").icompare("\u0131", zrstring.IGNORE_CASE_TURKIC), 0)
        self.assertEqual(String("a").icompare("B", zrstring.COLLATED), -1)
        self.assertFalse(low < String(low) or low != str(low))
        self.assertEqual({String("a"): 1}["a"], 1)
        self.assertRaises(TypeError, hash, MutableString())
        text = String("abcab")
        self.assertEqual((text.find("ab"), text.rfind("ab"), text.last_index_of("b")), (0, 3, 4))


def load_tests(loader, tests, pattern):
    tests.addTests(doctest.DocTestSuite(zrstring))
    return tests


if __name__ == "__main__":
    HEADERS = sys.argv[1:]
    unittest.main(argv=sys.argv[:1], verbosity=2)
