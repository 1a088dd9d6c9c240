"""ZRString for Python: strings, mutable strings and arrays of strings over the handle interface.

    >>> text = MutableString("Grüße").to_upper()
    >>> str(text), len(text)
    ('GRÜSSE', 6)

Indices and lengths count UTF-16 code units, and a length of -1 means to the end, as in
ZRStringHandles.h, which documents each function. Operands may be of type str. An invalid argument
raises InvalidArgument, which names the parameter.

The library is the file that the environment variable ZRSTRING_LIBRARY names, or else the one that
the system finds.
"""

import ctypes
import ctypes.util
import functools
import operator
import os
import sys
import weakref

TO_END = -1

# What `options` of String.icompare() may be.
IGNORE_CASE, IGNORE_CASE_TURKIC, IGNORE_CASE_CODE_POINT_ORDER, COLLATED = range(4)


class Long(ctypes.c_int32):
    """A ZRLong: 32 bits. Larger numbers are clamped, where ctypes would drop their upper bits."""

    @classmethod
    def from_param(cls, value):
        return ctypes.c_int32(max(-(2**31), min(operator.index(value), 2**31 - 1)))


class Unit(ctypes.c_uint16):
    """A UTF-16 code unit, given as a number or as a str of one unit."""

    @classmethod
    def from_param(cls, value):
        number = ord(value) if isinstance(value, str) else operator.index(value)
        if not 0 <= number <= 0xFFFF:
            raise ValueError("%r is not one UTF-16 code unit" % (value,))
        return ctypes.c_uint16(number)


ULong = ctypes.c_uint32
Bool = ctypes.c_ubyte
Bytes = ctypes.c_char_p
Units = ctypes.POINTER(ctypes.c_uint16)
Handle = ctypes.c_void_p
Out = ctypes.POINTER

# Written by tools/write-derived.py: edit ZRStringHandles.h and run that.
# The functions, with their parameters.
FUNCTIONS = {
    "ZRStringCreateFromUniChars": [("chars", Units), ("start", Long), ("length", Long),
        ("out", Out(Handle))],
    "ZRStringCreateFromLocalString": [("text", Bytes), ("start", Long), ("length", Long),
        ("out", Out(Handle))],
    "ZRStringCreateFromCString": [("text", Bytes), ("start", Long), ("length", Long),
        ("out", Out(Handle))],
    "ZRStringCreateCopy": [("source", Handle), ("out", Out(Handle))],
    "ZRStringCreateCopyRange": [("source", Handle), ("start", Long), ("length", Long),
        ("out", Out(Handle))],
    "ZRStringDestroy": [("string", Handle)],
    "ZRStringCompare": [("string", Handle), ("start", Long), ("length", Long), ("src", Handle),
        ("srcStart", Long), ("srcLength", Long), ("result", Out(Long))],
    "ZRStringCompareCodePointOrder": [("string", Handle), ("start", Long), ("length", Long),
        ("src", Handle), ("srcStart", Long), ("srcLength", Long), ("result", Out(Long))],
    "ZRStringICompare": [("string", Handle), ("start", Long), ("length", Long), ("src", Handle),
        ("srcStart", Long), ("srcLength", Long), ("options", ULong), ("result", Out(Long))],
    "ZRStringFind": [("string", Handle), ("start", Long), ("length", Long), ("pattern", Handle),
        ("index", Out(Long))],
    "ZRStringFindUniChars": [("string", Handle), ("start", Long), ("length", Long),
        ("pattern", Units), ("patternLength", Long), ("index", Out(Long))],
    "ZRStringRFind": [("string", Handle), ("start", Long), ("length", Long), ("pattern", Handle),
        ("index", Out(Long))],
    "ZRStringRFindUniChars": [("string", Handle), ("start", Long), ("length", Long),
        ("pattern", Units), ("patternLength", Long), ("index", Out(Long))],
    "ZRStringGetUniCharsAt": [("string", Handle), ("index", Long), ("count", Long),
        ("units", Units)],
    "ZRStringExtractIntoUniChars": [("string", Handle), ("start", Long), ("length", Long),
        ("dst", Units), ("dstStart", Long)],
    "ZRStringGetLength": [("string", Handle), ("length", Out(Long))],
    "ZRStringIsEmpty": [("string", Handle), ("isEmpty", Out(Bool))],
    "ZRStringGetBuffer": [("string", Handle), ("buffer", Out(Units))],
    "ZRStringLastIndexOf": [("string", Handle), ("unit", Unit), ("index", Out(Long))],
    "ZRMutableStringCreateEmpty": [("out", Out(Handle))],
    "ZRMutableStringCreateFromUniChars": [("chars", Units), ("start", Long), ("length", Long),
        ("out", Out(Handle))],
    "ZRMutableStringCreateCopy": [("source", Handle), ("out", Out(Handle))],
    "ZRMutableStringCreateCopyRange": [("source", Handle), ("start", Long), ("length", Long),
        ("out", Out(Handle))],
    "ZRMutableStringCreateFromLocalString": [("text", Bytes), ("start", Long), ("length", Long),
        ("out", Out(Handle))],
    "ZRMutableStringCreateFromCString": [("text", Bytes), ("start", Long), ("length", Long),
        ("out", Out(Handle))],
    "ZRMutableStringDestroy": [("string", Handle)],
    "ZRMutableStringSetUniCharAt": [("string", Handle), ("index", Long), ("unit", Unit)],
    "ZRMutableStringSetToZRString": [("string", Handle), ("src", Handle), ("srcStart", Long),
        ("srcLength", Long)],
    "ZRMutableStringAppend": [("string", Handle), ("src", Handle)],
    "ZRMutableStringAppendUniChars": [("string", Handle), ("chars", Units), ("srcStart", Long),
        ("srcLength", Long)],
    "ZRMutableStringInsert": [("string", Handle), ("position", Long), ("src", Handle),
        ("srcStart", Long), ("srcLength", Long)],
    "ZRMutableStringInsertUniChars": [("string", Handle), ("position", Long), ("chars", Units),
        ("srcStart", Long), ("srcLength", Long)],
    "ZRMutableStringReplaceBetween": [("string", Handle), ("start", Long), ("length", Long),
        ("replacement", Handle)],
    "ZRMutableStringReplaceWithUniChars": [("string", Handle), ("start", Long), ("length", Long),
        ("chars", Units), ("srcStart", Long), ("srcLength", Long)],
    "ZRMutableStringFindAndReplace": [("string", Handle), ("start", Long), ("length", Long),
        ("find", Handle), ("replacement", Handle)],
    "ZRMutableStringRemoveBetween": [("string", Handle), ("start", Long), ("end", Long)],
    "ZRMutableStringPadLeading": [("string", Handle), ("targetLength", Long), ("padUnit", Unit),
        ("padded", Out(Bool))],
    "ZRMutableStringPadTrailing": [("string", Handle), ("targetLength", Long), ("padUnit", Unit),
        ("padded", Out(Bool))],
    "ZRMutableStringTruncate": [("string", Handle), ("targetLength", Long),
        ("truncated", Out(Bool))],
    "ZRMutableStringTrim": [("string", Handle)],
    "ZRMutableStringToUpper": [("string", Handle)],
    "ZRMutableStringToLower": [("string", Handle)],
    "ZRMutableStringGetBufferWithCapacity": [("string", Handle), ("minCapacity", Long),
        ("buffer", Out(Units))],
    "ZRMutableStringGetCapacity": [("string", Handle), ("capacity", Out(Long))],
    "ZRMutableStringReleaseBuffer": [("string", Handle), ("newLength", Long)],
    "ZRMutableStringReverse": [("string", Handle), ("start", Long), ("length", Long)],
    "ZRMutableStringAddStrings": [("first", Handle), ("second", Handle), ("out", Out(Handle))],
    "ZRMutableStringLastIndexOf": [("string", Handle), ("unit", Unit), ("index", Out(Long))],
    "ZRStringPtrArrayCreate": [("out", Out(Handle))],
    "ZRStrPtrArrCreateFromZRStrPtrArr": [("source", Handle), ("out", Out(Handle))],
    "ZRStringPtrArrayDestroy": [("array", Handle)],
    "ZRStringPtrArraySize": [("array", Handle), ("size", Out(ULong))],
    "ZRStringPtrArrayIsEmpty": [("array", Handle), ("isEmpty", Out(Bool))],
    "GetZRStringRefAt": [("array", Handle), ("index", Long), ("string", Out(Handle))],
    "SetZRStringRefAt": [("array", Handle), ("index", Long), ("string", Handle)],
    "InsertZRStringRefAt": [("array", Handle), ("index", Long), ("string", Handle)],
    "ZRStringPtrArrayPushBack": [("array", Handle), ("string", Handle)],
    "ZRStringPtrArrayErase": [("array", Handle), ("index", Long)],
    "ZRStringPtrArrayEraseAll": [("array", Handle)],
    "ZRStringPtrArrayDeleteAll": [("array", Handle)],
}

# Positions of invalid parameters whose status is not 3 + the position.
_POSITIONS = {
    ("InsertZRStringRefAt", 5): 3,
}
# Up to here.

_INDEX_OUTSIDE = 12
_FIRST_PARAMETER = 4


class Error(Exception):
    """A status other than 0, in `status`, of the function named `function`, which did nothing."""

    def __init__(self, function, status, what):
        super().__init__("%s: %s" % (function, what))
        self.function = function
        self.status = status


class InvalidArgument(Error, ValueError):
    """An invalid argument, for the parameter named `parameter` at `position`, counted from 1."""

    def __init__(self, function, status):
        self.position = _POSITIONS.get((function, status), status - _FIRST_PARAMETER + 1)
        self.parameter = FUNCTIONS[function][self.position - 1][0]
        what = "parameter %d (%s)" % (self.position, self.parameter)
        super().__init__(function, status, what)


class IndexOutside(Error, IndexError):
    """An index outside an array."""

    def __init__(self, function):
        super().__init__(function, _INDEX_OUTSIDE, "index outside the array")


def _library_name():
    system = "ZRString.dll" if sys.platform == "win32" else "libZRString.so.1"
    return os.environ.get("ZRSTRING_LIBRARY") or ctypes.util.find_library("ZRString") or system


def _bound(library, name):
    def raise_unless_done(status, function, arguments):
        if status == _INDEX_OUTSIDE:
            raise MemoryError() if name.endswith("Create") else IndexOutside(name)
        if status:
            raise InvalidArgument(name, status)

    function = getattr(library, name)
    function.argtypes = [kind for _, kind in FUNCTIONS[name]]
    function.restype = ctypes.c_int32
    function.errcheck = raise_unless_done
    return function


# PyDLL holds the interpreter's lock during a call; CDLL would release it. Strings that share their
# text must not be copied, edited or destroyed by two threads at once.
try:
    _library = ctypes.PyDLL(_library_name())
except OSError as error:
    _what = "cannot load the ZRString library (%s); install it or set ZRSTRING_LIBRARY to its file"
    if __name__ == "__main__":
        sys.exit(_what % error)
    raise ImportError(_what % error) from None
_functions = {name: _bound(_library, name) for name in FUNCTIONS}


def call(name, *arguments):
    """Calls any function of the handle interface; a status other than 0 raises an Error."""
    _functions[name](*arguments)


def result(name, *arguments):
    """Calls a function with all arguments but the last and returns what it writes there."""
    out = FUNCTIONS[name][-1][1]._type_()
    call(name, *arguments, ctypes.byref(out))
    return out.value


class _Object:
    """Owns an object of the library, and destroys it with itself or when the interpreter exits."""

    _DESTROY = None

    def __init__(self, create, *arguments):
        self._as_parameter_ = Handle(result(create, *arguments))
        weakref.finalize(self, call, self._DESTROY, self._as_parameter_)


_UTF_16 = "utf-16-le" if sys.byteorder == "little" else "utf-16-be"


def _units(text):
    """The code units of `text` and a zero unit."""
    encoded = text.encode(_UTF_16, "surrogatepass") + b"\0\0"
    return (ctypes.c_uint16 * (len(encoded) // 2)).from_buffer_copy(encoded)


def _operand(value):
    return String(value) if isinstance(value, str) else value


@functools.total_ordering
class String(_Object):
    """An immutable string: a copy of a str, or of a String, whose text it shares.

    Operators compare by code units. A slice is a new string of the same class.

    >>> text = String("naïve cafés")
    >>> text[6:], text[-5:] + "!"
    (String('cafés'), MutableString('cafés!'))
    >>> text.find("n"), text.rfind("a"), text.find("a", 2, 5), text.last_index_of("a")
    (0, 7, -1, 7)
    >>> text < "naïve", text.icompare("NAÏVE CAFÉS"), text.compare("decaffeinated", 6, 3, 2, 3)
    (False, 0, 0)
    >>> String("côté").icompare("coter", COLLATED)
    -1
    """

    _PREFIX = "ZRString"
    _DESTROY = "ZRStringDestroy"

    def __init__(self, source=""):
        if isinstance(source, str):
            units = _units(source)
            super().__init__(self._PREFIX + "CreateFromUniChars", units, 0, len(units) - 1)
        else:
            super().__init__(self._PREFIX + "CreateCopy", source)

    @classmethod
    def _made(cls, create, *arguments):
        string = cls.__new__(cls)
        _Object.__init__(string, create, *arguments)
        return string

    @classmethod
    def from_local(cls, text):
        """A string of `text`, which are bytes in windows-1252."""
        return cls._made(cls._PREFIX + "CreateFromLocalString", text, 0, len(text))

    def __len__(self):
        return result("ZRStringGetLength", self)

    def __str__(self):
        length = len(self)
        units = (ctypes.c_uint16 * (length + 1))()
        call("ZRStringExtractIntoUniChars", self, 0, length, units, 0)
        return bytes(units)[: 2 * length].decode(_UTF_16, "surrogatepass")

    def __repr__(self):
        return "%s(%r)" % (type(self).__name__, str(self))

    def __getitem__(self, key):
        if not isinstance(key, slice):
            raise TypeError("a string is cut by slices only")
        start, stop, step = key.indices(len(self))
        if step != 1:
            raise ValueError("a slice of a string has no step")
        return self._made(self._PREFIX + "CreateCopyRange", self, start, max(stop - start, 0))

    def __iter__(self):
        return iter(str(self))

    def __hash__(self):
        return hash(str(self))

    def __eq__(self, other):
        return self.compare(other) == 0 if isinstance(other, (String, str)) else NotImplemented

    def __lt__(self, other):
        return self.compare(other) < 0 if isinstance(other, (String, str)) else NotImplemented

    def __add__(self, other):
        return MutableString._made("ZRMutableStringAddStrings", self, _operand(other))

    def compare(self, other, start=0, length=TO_END, other_start=0, other_length=TO_END):
        """-1, 0 or 1, by code units."""
        ranges = self, start, length, _operand(other), other_start, other_length
        return result("ZRStringCompare", *ranges)

    def compare_code_points(
        self, other, start=0, length=TO_END, other_start=0, other_length=TO_END
    ):
        """-1, 0 or 1, by code points."""
        ranges = self, start, length, _operand(other), other_start, other_length
        return result("ZRStringCompareCodePointOrder", *ranges)

    def icompare(
        self, other, options=IGNORE_CASE, start=0, length=TO_END, other_start=0, other_length=TO_END
    ):
        """-1, 0 or 1, without regard to case or, with COLLATED, in linguistic order."""
        ranges = self, start, length, _operand(other), other_start, other_length
        return result("ZRStringICompare", *ranges, options)

    def find(self, pattern, start=0, length=TO_END):
        """The first index of `pattern` in a range, or -1."""
        return result("ZRStringFind", self, start, length, _operand(pattern))

    def rfind(self, pattern, start=0, length=TO_END):
        """The last index of `pattern` in a range, or -1."""
        return result("ZRStringRFind", self, start, length, _operand(pattern))

    def last_index_of(self, unit):
        """The last index of a code unit, or -1."""
        return result("ZRStringLastIndexOf", self, unit)


class MutableString(String):
    """A string that can be edited. It copies a shared text before the first edit.

    Edits return the string, so that they chain; the three that may have nothing to do return
    whether they did something.

    >>> text = MutableString("cafe")
    >>> text.set_unit(3, "é").append(" noir").insert(0, "un petit grand", 3, 6)
    MutableString('petit café noir')
    >>> text.remove_between(0, 5).replace(5, 4, "au lait")
    MutableString('café au lait')
    >>> text.find_and_replace("a", "o", 2, 5).to_upper().reverse(5, 2)
    MutableString('CAFÉ UO LAIT')
    >>> text.truncate(4), text.pad_leading(6, "*"), text.pad_trailing(7), text
    (True, True, True, MutableString('**CAFÉ '))
    """

    _PREFIX = "ZRMutableString"
    _DESTROY = "ZRMutableStringDestroy"
    __hash__ = None

    @property
    def capacity(self):
        return result("ZRMutableStringGetCapacity", self)

    def _edited(self, edit, *arguments):
        call("ZRMutableString" + edit, self, *arguments)
        return self

    def set(self, source, start=0, length=TO_END):
        return self._edited("SetToZRString", _operand(source), start, length)

    def set_unit(self, index, unit):
        return self._edited("SetUniCharAt", index, unit)

    def append(self, source):
        return self._edited("Append", _operand(source))

    __iadd__ = append

    def insert(self, position, source, start=0, length=TO_END):
        return self._edited("Insert", position, _operand(source), start, length)

    def replace(self, start, length, replacement):
        return self._edited("ReplaceBetween", start, length, _operand(replacement))

    def find_and_replace(self, find, replacement, start=0, length=TO_END):
        arguments = start, length, _operand(find), _operand(replacement)
        return self._edited("FindAndReplace", *arguments)

    def remove_between(self, start, end=TO_END):
        """Removes the units `start` through `end`."""
        return self._edited("RemoveBetween", start, end)

    def trim(self):
        return self._edited("Trim")

    def to_upper(self):
        return self._edited("ToUpper")

    def to_lower(self):
        return self._edited("ToLower")

    def reverse(self, start=0, length=TO_END):
        return self._edited("Reverse", start, length)

    def pad_leading(self, length, unit=" "):
        return bool(result("ZRMutableStringPadLeading", self, length, unit))

    def pad_trailing(self, length, unit=" "):
        return bool(result("ZRMutableStringPadTrailing", self, length, unit))

    def truncate(self, length):
        return bool(result("ZRMutableStringTruncate", self, length))


class StringArray(_Object):
    """A list of strings. The library's array does not own its strings, so this object does.

    >>> words = StringArray(["deux", "trois"])
    >>> words.insert(0, String("un"))
    >>> len(words), str(words[-1]), [str(word) for word in words]
    (3, 'trois', ['un', 'deux', 'trois'])
    """

    _DESTROY = "ZRStringPtrArrayDestroy"

    def __init__(self, strings=()):
        super().__init__("ZRStringPtrArrayCreate")
        self._strings = []  # the owners of the handles in the array, entry by entry
        for string in strings:
            self.append(string)

    def __len__(self):
        return result("ZRStringPtrArraySize", self)

    def _index(self, index):
        return index + len(self) if index < 0 else index

    def __getitem__(self, index):
        # The library gives the last entry for an index outside the array.
        if not -len(self) <= index < len(self):
            raise IndexOutside("GetZRStringRefAt")
        return self._strings[index]

    def __setitem__(self, index, string):
        string = _operand(string)
        call("SetZRStringRefAt", self, self._index(index), string)
        self._strings[index] = string

    def __delitem__(self, index):
        call("ZRStringPtrArrayErase", self, self._index(index))
        del self._strings[index]

    def insert(self, index, string):
        """Inserts a string before the entry at `index`, which must exist."""
        string = _operand(string)
        call("InsertZRStringRefAt", self, self._index(index), string)
        self._strings.insert(index, string)

    def append(self, string):
        string = _operand(string)
        call("ZRStringPtrArrayPushBack", self, string)
        self._strings.append(string)

    def clear(self):
        call("ZRStringPtrArrayEraseAll", self)
        self._strings.clear()
