"""Runs CPython's own tests of str (test/string_tests.py) with String, and counts by method what
gives the same as str. Only searching for an empty text may give something else, and must.
"""

import collections
import sys
import unittest

import test.string_tests as string_tests
import zrstring
from package_test import outcome

NAMES = ("StringLikeTest", "CommonTest", "MixinStrUnicodeUserStringTest")  # Python 3.13, before it
CLASSES = [getattr(string_tests, name) for name in NAMES if hasattr(string_tests, name)]
SEARCH = {"find", "rfind", "index", "rindex", "count", "replace", "__contains__"}
SAME, DIFFERENT = collections.Counter(), collections.Counter()


class StringTest(*CLASSES, unittest.TestCase):
    type2test = zrstring.String
    test_fixtype = None  # of a method that is not needed here
    test_adaptive_find = None  # of a search that is never quadratic, as ICU's can be

    def fixtype(self, value):
        return value

    def checkequal(self, result, object, methodname, *args, **keywords):
        if not hasattr(zrstring.String, methodname):
            return
        expected, found = (
            outcome(lambda: getattr(kind(object), methodname)(*args, **keywords))
            for kind in (str, zrstring.String)
        )
        (SAME if found == expected else DIFFERENT)[methodname] += 1
        if found != expected:
            by_design = methodname in SEARCH and args[:1] == ("",)
            self.assertTrue(by_design, f"{methodname}{args} of {object!r}: {found!r}, {expected!r}")

    def checkraises(self, exc, obj, methodname, *args, expected_msg=None):
        self.checkequal(exc, obj, methodname, *args)

    def checkcall(self, object, methodname, *args):
        self.checkequal(None, object, methodname, *args)


if __name__ == "__main__":
    done = unittest.main(exit=False).result
    methods, same = set(SAME | DIFFERENT), sum(SAME.values())
    calls = same + sum(DIFFERENT.values())
    print(f"{len(methods)} methods, {len(methods - set(DIFFERENT))} always agree")
    print(f"{calls} calls, {same} agree; different:", *sorted(DIFFERENT))
    sys.exit(not (done.wasSuccessful() and calls and DIFFERENT.keys() == SEARCH))
