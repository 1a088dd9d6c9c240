"""Strings that Python shares with C and C++: UTF-16 text, copied only when one of them edits it.

    >>> from zrstring import MutableString, String, StringArray
    >>> name = String("Grüße")
    >>> sign = MutableString(name).to_upper()     # shares the text of `name`; the edit copies it
    >>> str(sign), len(sign), name == "Grüße", "SS" in sign, sign.find("E")
    ('GRÜSSE', 6, True, True, 5)

String is an immutable string, MutableString one that can be edited, and StringArray an array of
strings. What they can do, they do as str and list. Most methods say where they differ; above all,
indices and lengths count UTF-16 code units, of which a character above U+FFFF has two, and an empty
text is found nowhere. Wherever a string is expected, a str will do.

An argument of a wrong type raises TypeError, a wrong value ValueError or IndexError, a text that
might get too long OverflowError. Use zrstring where text comes from C or C++ or goes there: within
Python, str is faster.

The module zrstring.handles has the functions of the C interface.
"""

from . import handles
from ._arrays import StringArray
from ._strings import (
    COLLATED,
    IGNORE_CASE,
    IGNORE_CASE_CODE_POINT_ORDER,
    IGNORE_CASE_TURKIC,
    MAX_LENGTH,
    AnyString,
    BaseString,
    MutableString,
    String,
)
from ._version import __version__

__all__ = [
    "String",
    "MutableString",
    "StringArray",
    "BaseString",
    "AnyString",
    "IGNORE_CASE",
    "IGNORE_CASE_TURKIC",
    "IGNORE_CASE_CODE_POINT_ORDER",
    "COLLATED",
    "MAX_LENGTH",
    "handles",
]

# Where users find them, and where pickles look for them.
for _public in (BaseString, String, MutableString, StringArray):
    _public.__module__ = __name__
