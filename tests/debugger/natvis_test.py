"""Checks that ZRString.natvis is well formed and names only types and fields that exist.

    natvis_test.py NATVIS SOURCE_DIRECTORY ICU_INCLUDE_DIRECTORY
"""

import os
import re
import sys
import unittest
from xml.etree import ElementTree

NAMESPACE = "{http://schemas.microsoft.com/vstudio/debugger/natvis/2010}"


def code_of(*path):
    with open(os.path.join(*path), encoding="utf-8") as file:
        return re.sub(r"/\*.*?\*/|//[^\n]*", "", file.read(), flags=re.DOTALL)


def expressions_of(element):
    yield from filter(None, [element.get("Condition")])
    if element.tag == NAMESPACE + "DisplayString":
        yield from re.findall(r"\{(.*?)\}", element.text)
    elif not len(element):
        yield element.text


class Natvis(unittest.TestCase):
    def test_names_exist(self):
        kinds = ElementTree.parse(NATVIS).getroot().findall(NAMESPACE + "Type")
        names = [kind.get("Name") for kind in kinds]
        self.assertEqual(names, ["ZRString", "ZRStringPtrArray"])
        body = code_of(SOURCES, "string/ZRStringImplementation.h")
        body += code_of(SOURCES, "include/ZRString/ZRString.h")  # the count
        icu = code_of(ICU, "unicode/unistr.h")
        for name, kind in zip(names, kinds):
            public = code_of(SOURCES, "include/ZRString", name + ".h")
            self.assertRegex(public, r"\bclass (ZR_API )?%s\b[^;]*\{" % name)
            for expression in (text for element in kind.iter() for text in expressions_of(element)):
                expression = expression.replace("((ZRStringImplementation*)body_)", "body_")
                chains = re.findall(r"\b[a-z]\w*_\b(?:(?:->|\.)\w+)*", expression)
                self.assertTrue(chains, expression)
                for chain in chains:
                    # The object's own field, the body's, then those of ICU's string.
                    owners = [public, body] + [icu] * 9
                    for field, owner in zip(re.split(r"->|\.", chain), owners):
                        with self.subTest(chain=chain, field=field):
                            self.assertRegex(owner, r"\b%s(\[\w+\])?;" % field)


if __name__ == "__main__":
    NATVIS, SOURCES, ICU = sys.argv[1:]
    unittest.main(argv=sys.argv[:1])
