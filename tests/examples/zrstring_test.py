"""Tests of examples/python/zrstring.py: what calls return and raise, and who owns its objects."""

import atexit
import collections
import doctest
import gc
import os
import sys
import unittest

import zrstring
from zrstring import IndexOutside, MutableString, String, StringArray

# What calls return or raise that the examples in the module do not show. There is a String
# s("abXßab"), a MutableString m(s) and a StringArray a([s]).
CALLS = {
    "str(m), list(s)[3], m.capacity >= 6, TO_END": "('abXßab', 'ß', True, -1)",
    r"m[2:1], String('\ud83d') + '\ude00'": "(MutableString(''), MutableString('😀'))",
    r"m.from_local(b'\x80\0'), s.from_local(b'\0')": r"(MutableString('€\x00'), String('\x00'))",
    "s == m, s == 'abXßab', s != m, s < s, s == 1": "(True, True, False, False, False)",
    "String('！') < '😀', String('！').compare_code_points('😀')": "(False, -1)",
    "String('！').icompare('😀', IGNORE_CASE_CODE_POINT_ORDER), {s: 1}['abXßab']": "(-1, 1)",
    "s.compare_code_points('xbXy', 1, 2, 1, 2), s.compare_code_points(s)": "(0, 0)",
    "s.icompare('xBxy', IGNORE_CASE, 1, 2, 1, 2), s.compare(s)": "(0, 0)",
    "String('I').icompare('ı', IGNORE_CASE_TURKIC), a[0] is s": "(0, True)",
    "s.rfind('abX'), s.rfind('ab', 1, 4), s.find('Xß'), s.find('ab', 2**32)": "(0, -1, 2, -1)",
    "m.append('!') is m.__iadd__(m)": "True",
    "m.set('replaced', 2, 3).append(MutableString().set('new'))": "MutableString('planew')",
    "m.set_unit(1, 0x63).insert(3, 'xy').remove_between(5)": "MutableString('acXxy')",
    "m.find_and_replace('ab', 'c').reverse()": "MutableString('cßXc')",
    "m.append(' ').to_lower().trim()": "MutableString('abxßab')",
    "m.pad_leading(7), m.pad_trailing(9, '*'), str(m)": "(True, True, ' abXßab**')",
    "m.pad_leading(6), m.pad_trailing(6), m.truncate(6)": "(False, False, False)",
    "String(None)": "InvalidArgument: ZRStringCreateCopy: parameter 1 (source)",
    "a.insert(0, None)": "InvalidArgument: InsertZRStringRefAt: parameter 3 (string)",
    "s.find('a', -(2**32))": "InvalidArgument: ZRStringFind: parameter 2 (start)",
    "(e := InvalidArgument('ZRStringFind', 5)).status, e.function": "(5, 'ZRStringFind')",
    "Unit.from_param('😀')": "ValueError: '😀' is not one UTF-16 code unit",
    "hash(m)": "TypeError: unhashable type: 'MutableString'",
    "s[0]": "TypeError: a string is cut by slices only",
    "s[::2]": "ValueError: a slice of a string has no step",
}

ALIVE = collections.Counter()  # objects created and not destroyed: whether mutable, and handle


def counted(name, *arguments, call=zrstring.call):
    call(name, *arguments)
    if "Create" in name or "Add" in name:
        ALIVE["Mutable" in name, arguments[-1]._obj.value] += 1
    elif "Destroy" in name:
        ALIVE["Mutable" in name, arguments[0].value] -= 1


@atexit.register  # before any object is made, and so called after all are destroyed
def check_that_nothing_is_alive():
    if any(ALIVE.values()):
        print("not destroyed once:", ALIVE, file=sys.stderr)
        os._exit(1)


zrstring.call = counted
KEPT = StringArray(["alive", "at", "exit"])


class Module(unittest.TestCase):
    def test_calls(self):
        for call, expected in CALLS.items():
            s = String("abXßab")
            names = {"s": s, "m": MutableString(s), "a": StringArray([s])}
            try:
                outcome = repr(eval(call, vars(zrstring) | names))
            except (IndexError, TypeError, ValueError) as error:
                outcome = "%s: %s" % (type(error).__name__, error)
            with self.subTest(call):
                self.assertEqual((outcome, str(s)), (expected, "abXßab"))

    def test_every_unit_passes_both_ways(self):
        units = "".join(map(chr, range(0xFFFF, -1, -1)))
        self.assertEqual(str(String(units)), units)

    def test_array_is_a_list_that_owns_its_strings(self):
        array, model = StringArray("abcde"), list("abcde")
        others = sum(ALIVE.values()) - len(model)
        for i in (5, -6, 2**32):
            for refused in ("a[i]", "a[i] = 'x'", "a.insert(i, 'x')", "del a[i]"):
                with self.assertRaises(IndexOutside):
                    exec(refused, {"a": array, "i": i})
        changes = ["a.insert(1, 'x')", "a.insert(-1, 'y')", "a[-1] = 'z'", "del a[1]", "a.clear()"]
        for change in changes:
            exec(change, {"a": array})
            exec(change, {"a": model})
            gc.collect()
            with self.subTest(change):
                self.assertEqual(list(map(str, array)), model)
                self.assertEqual(sum(ALIVE.values()), others + len(model))
                get, indices = "GetZRStringRefAt", range(len(array))
                held = [zrstring.result(get, array, index) for index in indices]
                self.assertEqual(held, [string._as_parameter_.value for string in array])


def load_tests(loader, tests, pattern):
    tests.addTests(doctest.DocTestSuite(zrstring))
    return tests


if __name__ == "__main__":
    unittest.main(verbosity=2)
