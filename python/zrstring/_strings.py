"""String and MutableString."""

import array
import codecs
import collections.abc
import ctypes
import operator
import sys
from typing import TYPE_CHECKING, Any, Callable, Iterator, Optional, Sequence, Tuple, Type, TypeVar
from typing import Union, overload

from . import handles

AnyString = Union[str, "BaseString"]
_S = TypeVar("_S", bound="BaseString")
_M = TypeVar("_M", bound="MutableString")

if TYPE_CHECKING:
    _SequenceOfUnits = Sequence[str]
else:
    # As str, a sequence without being derived from Sequence: isinstance() takes longer with that.
    _SequenceOfUnits = object

MAX_LENGTH = 0x7FFFFFF5  # of a text, in units: the longest that the library creates
_SMALL = 2**14  # units. Up to here, free memory is not checked beforehand.

# The named `options` of BaseString.icompare().
IGNORE_CASE, IGNORE_CASE_TURKIC, IGNORE_CASE_CODE_POINT_ORDER, COLLATED = range(4)


class _OwnedString(handles.StringRef):
    """A handle that destroys its string."""

    _type_ = handles.ZRStringRef__

    # A parameter, since the module's names may be gone when the interpreter exits.
    def __del__(self, destroy: Any = handles.ZRStringDestroy._function) -> None:
        if self:
            destroy(self)


class _OwnedMutableString(handles.MutableStringRef):
    _type_ = handles.ZRMutableStringRef__
    __del__ = _OwnedString.__del__


handles.ZRStringDestroy._function.argtypes = [handles.StringRef]  # type: ignore[attr-defined]

_create = handles.ZRStringCreateFromUniChars.prepared(_OwnedString)
_create_from_local = handles.ZRStringCreateFromLocalString.prepared(_OwnedString)
_copy = handles.ZRStringCreateCopy.prepared(_OwnedString)
_copy_range = handles.ZRStringCreateCopyRange.prepared(_OwnedString)
_create_mutable = handles.ZRMutableStringCreateFromUniChars.prepared(_OwnedMutableString)
_copy_mutable = handles.ZRMutableStringCreateCopy.prepared(_OwnedMutableString)
_add = handles.ZRMutableStringAddStrings.prepared(_OwnedMutableString)
_length = handles.ZRStringGetLength.prepared()
_buffer = handles.ZRStringGetBuffer.prepared(ctypes.c_void_p)
_find = handles.ZRStringFind.prepared()
_find_units = handles.ZRStringFindUniChars.prepared()
_rfind = handles.ZRStringRFind.prepared()
_rfind_units = handles.ZRStringRFindUniChars.prepared()
_compare = handles.ZRStringCompare.prepared()
_compare_code_points = handles.ZRStringCompareCodePointOrder.prepared()
_icompare = handles.ZRStringICompare.prepared()
_set = handles.ZRMutableStringSetToZRString.prepared()
_append = handles.ZRMutableStringAppend.prepared()
_insert = handles.ZRMutableStringInsert.prepared()
_replace = handles.ZRMutableStringReplaceBetween.prepared()
_find_and_replace = handles.ZRMutableStringFindAndReplace.prepared()
_pad_leading = handles.ZRMutableStringPadLeading.prepared()
_pad_trailing = handles.ZRMutableStringPadTrailing.prepared()
_truncate = handles.ZRMutableStringTruncate.prepared()
_trim = handles.ZRMutableStringTrim.prepared()
_to_upper = handles.ZRMutableStringToUpper.prepared()
_to_lower = handles.ZRMutableStringToLower.prepared()
_reverse = handles.ZRMutableStringReverse.prepared()
_capacity = handles.ZRMutableStringGetCapacity.prepared()

if sys.byteorder == "little":
    _encode, _decode = codecs.utf_16_le_encode, codecs.utf_16_le_decode
else:
    _encode, _decode = codecs.utf_16_be_encode, codecs.utf_16_be_decode


def _wrong(name: str, expected: str, value: object) -> TypeError:
    return TypeError(f"{name} must be {expected}, not {type(value).__name__}")


def _integer(value: Any, name: str) -> int:
    try:
        return operator.index(value)
    except TypeError:
        raise _wrong(name, "an integer", value) from None


def _indices(start: Any, stop: Any, length: int, prefix: str = "") -> Tuple[int, int]:
    """The start and the length of a slice of a text of `length` units."""
    try:
        first, limit, _ = slice(start, stop).indices(length)
    except TypeError:
        is_start = start is not None and not hasattr(start, "__index__")
        name, value = ("start", start) if is_start else ("end", stop)
        raise _wrong(prefix + name, "an integer or None", value) from None
    return first, max(limit - first, 0)


def _is_slice(start: Any, stop: Any, length: int) -> bool:
    """Whether [start:stop] is a slice of a text of `length` units, possibly an empty one."""
    first, limit, _ = slice(start, stop).indices(length)
    return first <= limit and (start is None or operator.index(start) <= length)


def _reserve(length: int) -> None:
    """Raises an exception if there is no room for a text of `length` units and its copies. The
    library would throw a C++ exception, which nothing in Python can catch, or lose the text."""
    if length > MAX_LENGTH:
        raise OverflowError(f"a text of up to {length} code units is too long")
    if length > _SMALL:
        bytearray(6 * length)


def _made_by(create: Callable[..., Any], units: bytes) -> Any:
    length = len(units) // 2
    if length > _SMALL:
        _reserve(length)
    return create(units, 0, length)


def _operand(value: object, name: str) -> Any:
    """The handle of a string, which for a str is a new one."""
    if isinstance(value, BaseString):
        return value._handle
    if isinstance(value, str):
        return _made_by(_create, _encode(value, "surrogatepass")[0])
    raise _wrong(name, "str, String or MutableString", value)


def _stable_operand(value: object, name: str) -> Any:
    """As _operand(), but no other thread can edit that string."""
    return value._stable() if isinstance(value, BaseString) else _operand(value, name)


def _unit(value: object, name: str) -> int:
    if not isinstance(value, (str, BaseString)):
        raise _wrong(name, "a str of one code unit", value)
    units = _encode(str(value), "surrogatepass")[0]
    if len(units) != 2:
        raise ValueError(f"{name} must have one code unit, not {len(units) // 2}")
    return int.from_bytes(units, sys.byteorder)


# Unlike ctypes.string_at(), it takes 2**31 bytes and more.
_bytes_at: Any = ctypes.PYFUNCTYPE(ctypes.py_object, ctypes.c_void_p, ctypes.c_ssize_t)(
    ("PyBytes_FromStringAndSize", ctypes.pythonapi)
)
_is_capsule: Any = ctypes.pythonapi.PyCapsule_IsValid
_is_capsule.argtypes = [ctypes.py_object, ctypes.c_char_p]
_pointer_of: Any = ctypes.pythonapi.PyCapsule_GetPointer
_pointer_of.argtypes = [ctypes.py_object, ctypes.c_char_p]
_pointer_of.restype = ctypes.c_void_p


def borrowed(value: object, *kinds: Type[Any]) -> Any:
    """The handle that is in a capsule with its name or is an object of module `handles`."""
    for kind in kinds:
        name = kind._type_.__name__
        if isinstance(value, kind):
            handle: Any = value
        elif _is_capsule(value, name.encode()):
            handle = ctypes.cast(_pointer_of(value, name.encode()), kind)
            handle.capsule = value  # which may own the object
        else:
            continue
        if not handle:
            raise ValueError("handle is null")
        return handle
    names = " or ".join(f"{kind._type_.__name__}*" for kind in kinds)
    raise _wrong("handle", f"a capsule with a {names} or such a pointer of zrstring.handles", value)


class BaseString(_SequenceOfUnits):
    """What String and MutableString have in common. Indices and lengths count UTF-16 code units."""

    __slots__ = ("_handle", "__weakref__")
    _handle: Any

    def __new__(cls: Type[_S], source: AnyString = "") -> _S:
        raise TypeError("make a String or a MutableString")

    @classmethod
    def _made(cls: Type[_S], handle: Any) -> _S:
        string = object.__new__(cls)
        string._handle = handle
        return string

    @classmethod
    def from_local(cls: Type[_S], data: Union[bytes, bytearray, memoryview]) -> _S:
        """A string of bytes in windows-1252.

        >>> String.from_local(b"\\x80uro")
        String('€uro')
        """
        if not isinstance(data, (bytes, bytearray, memoryview)):
            raise _wrong("data", "bytes", data)
        copied = bytes(data)
        _reserve(len(copied))
        return cls(String._made(_create_from_local(copied, 0, len(copied))))

    def _stable(self) -> Any:
        """The handle of a string with this text that no other thread can edit."""
        raise NotImplementedError

    def _units(self) -> bytes:
        handle = self._stable()
        length = _length(handle)
        units: bytes = _bytes_at(_buffer(handle), 2 * length) if length else b""
        return units

    def _changed(self: _S, edit: Callable[["MutableString"], object]) -> _S:
        copy = MutableString(self)
        edit(copy)
        return type(self)._owning(copy._handle)

    @classmethod
    def _owning(cls: Type[_S], handle: Any) -> _S:
        """A string of a mutable string's handle that no other object has."""
        return cls._made(handle)

    @property
    def address(self) -> int:
        """The address of the library's object, for C and C++. It is valid as long as this one."""
        return ctypes.cast(self._handle, ctypes.c_void_p).value or 0

    @property
    def _as_parameter_(self) -> Any:
        """For functions of ctypes that take a StringRef or, if this is mutable, a MutableStringRef.
        """
        return self._handle

    def __len__(self) -> int:
        """The number of code units. A character above U+FFFF has two."""
        length: int = _length(self._handle)
        return length

    def __str__(self) -> str:
        return _decode(self._units(), "surrogatepass", True)[0]

    def __repr__(self) -> str:
        return f"{type(self).__name__}({str(self)!r})"

    def __format__(self, format_string: str) -> str:
        """As for str: the width counts characters."""
        return format(str(self), format_string)

    def __reduce__(self) -> Tuple[Any, ...]:
        return type(self), (str(self),)

    def __iter__(self) -> Iterator[str]:
        """The units of the text as it is now, each as a str.

        >>> len(String("a😀")), list(String("a😀"))
        (3, ['a', '\\ud83d', '\\ude00'])
        """
        return map(chr, memoryview(self._units()).cast("H"))

    @overload
    def __getitem__(self, key: int) -> str: ...
    @overload
    def __getitem__(self: _S, key: slice) -> _S: ...
    def __getitem__(self: _S, key: Union[int, slice]) -> Union[str, _S]:
        """An index gives a unit as a str, a slice a new string."""
        handle = self._stable()
        length = _length(handle)
        if isinstance(key, slice):
            start, stop, step = key.indices(length)
            if step == 1:
                size = max(stop - start, 0)
                if size < length:  # else the copy shares the text
                    _reserve(size)
                copy = _copy_range(handle, start, size)
            else:
                units = memoryview(self._units()).cast("H")[key]
                copy = _made_by(_create, units.tobytes())
            return type(self)._made(type(self)._holding(copy))
        index = _integer(key, "index")
        if not -length <= index < length:
            raise IndexError("string index out of range")
        address = _buffer(handle) + 2 * (index % length)
        return chr(ctypes.c_uint16.from_address(address).value)

    @classmethod
    def _holding(cls, handle: Any) -> Any:
        """The handle of an object of this class's kind, which may be `handle`."""
        raise NotImplementedError

    def __contains__(self, sub: object) -> bool:
        return self.find(sub) >= 0  # type: ignore[arg-type]

    def __eq__(self, other: object) -> bool:
        if isinstance(other, str):
            return str(self) == other
        if isinstance(other, BaseString):
            equal: bool = _compare(self._handle, 0, -1, other._handle, 0, -1) == 0
            return equal
        return NotImplemented

    def _ordered(self, other: object, holds: Callable[[int, int], bool]) -> bool:
        result: bool = NotImplemented
        if isinstance(other, (str, BaseString)):
            operand = _operand(other, "other")
            result = holds(_compare_code_points(self._handle, 0, -1, operand, 0, -1), 0)
        return result

    def __lt__(self, other: AnyString) -> bool:
        """In code point order, as str. compare() has the order of code units."""
        return self._ordered(other, operator.lt)

    def __le__(self, other: AnyString) -> bool:
        return self._ordered(other, operator.le)

    def __gt__(self, other: AnyString) -> bool:
        return self._ordered(other, operator.gt)

    def __ge__(self, other: AnyString) -> bool:
        return self._ordered(other, operator.ge)

    def _sum(self: _S, first: Any, second: Any) -> _S:
        _reserve(_length(first) + _length(second))
        return type(self)._owning(_add(first, second))

    def __add__(self: _S, other: AnyString) -> _S:
        if not isinstance(other, (str, BaseString)):
            return NotImplemented
        return self._sum(self._handle, _operand(other, "other"))

    def __radd__(self: _S, other: str) -> _S:
        if not isinstance(other, str):
            return NotImplemented
        return self._sum(_operand(other, "other"), self._handle)

    def __mul__(self: _S, times: int) -> _S:
        if not hasattr(times, "__index__"):
            return NotImplemented
        count = max(_integer(times, "times"), 0)
        _reserve(len(self) * count)
        copies = _made_by(_create, self._units() * count)
        return type(self)._made(type(self)._holding(copies))

    __rmul__ = __mul__

    def _range(self, start: Any, end: Any) -> Tuple[int, int]:
        if start is None and end is None:
            return 0, -1
        return _indices(start, end, len(self))

    def _ranges(self, start: Any, end: Any, other: Any, other_start: Any, other_end: Any) -> Any:
        operand = _operand(other, "other")
        other_range = _indices(other_start, other_end, _length(operand), "other_")
        return (self._handle, *self._range(start, end), operand, *other_range)

    def compare(
        self,
        other: AnyString,
        start: Optional[int] = None,
        end: Optional[int] = None,
        other_start: Optional[int] = None,
        other_end: Optional[int] = None,
    ) -> int:
        """-1, 0 or 1: how a range sorts against a range of `other`, by code units.

        >>> String("naïve cafés").compare("decaffeinated", 6, 9, 2, 5)
        0
        >>> String("！").compare("😀"), String("！").compare_code_points("😀")
        (1, -1)
        """
        result: int = _compare(*self._ranges(start, end, other, other_start, other_end))
        return result

    def compare_code_points(
        self,
        other: AnyString,
        start: Optional[int] = None,
        end: Optional[int] = None,
        other_start: Optional[int] = None,
        other_end: Optional[int] = None,
    ) -> int:
        """As compare(), by code points."""
        ranges = self._ranges(start, end, other, other_start, other_end)
        result: int = _compare_code_points(*ranges)
        return result

    def icompare(
        self,
        other: AnyString,
        options: int = IGNORE_CASE,
        start: Optional[int] = None,
        end: Optional[int] = None,
        other_start: Optional[int] = None,
        other_end: Optional[int] = None,
    ) -> int:
        """As compare(), without regard to case or, with COLLATED, in the linguistic order of ICU's
        default locale. Without memory, COLLATED may give a wrong result.

        >>> String("straße").icompare("STRASSE"), String("côté").icompare("coter", COLLATED)
        (0, -1)
        """
        bits = _integer(options, "options")
        if not 0 <= bits < 2**32:
            raise ValueError(f"options must be 0 to 2**32 - 1, not {bits}")
        ranges = self._ranges(start, end, other, other_start, other_end)
        result: int = _icompare(*ranges, bits)
        return result

    def find(
        self, sub: AnyString, start: Optional[int] = None, end: Optional[int] = None
    ) -> int:
        """The first index of `sub` within the slice [start:end], or -1.

        Unlike str, an empty `sub` is found nowhere, here and in all methods that search. A `sub`
        that begins with a trail surrogate or ends with a lead surrogate is not found where it
        would split a pair of the slice.

        >>> text = String("naïve cafés")
        >>> text.find("a"), text.find("a", -5), text.find("a", 2, 6), text.find("")
        (1, 7, -1, -1)
        """
        return self._search(_find_units, _find, sub, start, end)

    def rfind(
        self, sub: AnyString, start: Optional[int] = None, end: Optional[int] = None
    ) -> int:
        """The last index of `sub` within the slice [start:end], or -1."""
        return self._search(_rfind_units, _rfind, sub, start, end)

    def _search(self, of_units: Any, of_string: Any, sub: Any, start: Any, end: Any) -> int:
        index: int
        first, length = self._range(start, end)
        if isinstance(sub, str):
            units = _encode(sub, "surrogatepass")[0]
            width = len(units) // 2
            if width > MAX_LENGTH:
                return -1
            index = of_units(self._handle, first, length, units, width)
        else:
            index = of_string(self._handle, first, length, _operand(sub, "sub"))
        return index

    def index(
        self, sub: AnyString, start: Optional[int] = None, end: Optional[int] = None
    ) -> int:
        """As find(), but raises ValueError if `sub` is not found."""
        return self._found(self.find(sub, start, end))

    def rindex(
        self, sub: AnyString, start: Optional[int] = None, end: Optional[int] = None
    ) -> int:
        """As rfind(), but raises ValueError if `sub` is not found."""
        return self._found(self.rfind(sub, start, end))

    @staticmethod
    def _found(index: int) -> int:
        if index < 0:
            raise ValueError("substring not found")
        return index

    def _finds(self, pattern: Any, start: Any, end: Any) -> Iterator[int]:
        """The ends of the occurrences of a stable operand in a slice, which do not overlap."""
        text = self._stable()
        width = _length(pattern)
        first, length = _indices(start, end, _length(text))
        limit = first + length
        while True:
            index = _find(text, first, limit - first, pattern)
            if index < 0:
                return
            first = index + width
            yield first

    def count(
        self, sub: AnyString, start: Optional[int] = None, end: Optional[int] = None
    ) -> int:
        """The number of occurrences of `sub` within the slice [start:end] that do not overlap."""
        return sum(1 for _ in self._finds(_stable_operand(sub, "sub"), start, end))

    def _fits(self, sub: object, start: Any, end: Any, at_end: bool, name: str) -> bool:
        text = self._stable()
        size = _length(text)
        for one in sub if isinstance(sub, tuple) else (sub,):
            operand = _stable_operand(one, name)
            width = _length(operand)
            first, length = _indices(start, end, size)
            place = first + length - width if at_end else first
            if width > length or (width == 0 and not _is_slice(start, end, size)):
                continue
            if _compare(text, place, width, operand, 0, -1) == 0:
                return True
        return False

    def startswith(
        self,
        prefix: Union[AnyString, Tuple[AnyString, ...]],
        start: Optional[int] = None,
        end: Optional[int] = None,
    ) -> bool:
        """Whether the slice [start:end] begins with `prefix`, or with one of a tuple."""
        return self._fits(prefix, start, end, False, "prefix")

    def endswith(
        self,
        suffix: Union[AnyString, Tuple[AnyString, ...]],
        start: Optional[int] = None,
        end: Optional[int] = None,
    ) -> bool:
        """Whether the slice [start:end] ends with `suffix`, or with one of a tuple."""
        return self._fits(suffix, start, end, True, "suffix")

    def replace(self: _S, old: AnyString, new: AnyString, count: int = -1) -> _S:
        """A copy with the first `count` occurrences of `old` replaced by `new`; -1: with all.

        >>> String("a-b-c").replace("-", "+"), String("a-b-c").replace("-", "", 1)
        (String('a+b+c'), String('ab-c'))
        """
        left = _integer(count, "count")

        def edit(copy: MutableString) -> None:
            end = None
            if left >= 0:
                end = 0
                found = copy._finds(_stable_operand(old, "old"), None, None)
                for end, _ in zip(found, range(left)):
                    pass
            copy.find_and_replace(old, new, 0, end)

        return self._changed(edit)

    def upper(self: _S) -> _S:
        """A copy in upper case, by the rules of ICU's default locale."""
        return self._changed(MutableString.to_upper)

    def lower(self: _S) -> _S:
        """A copy in lower case, by the rules of ICU's default locale."""
        return self._changed(MutableString.to_lower)

    def strip(self: _S, chars: Optional[AnyString] = None) -> _S:
        """A copy without leading and trailing white space, or without those characters.

        Unlike str, white space does not include no-break spaces (U+00A0, U+2007, U+202F) and
        U+0085."""
        if chars is None:
            return self._changed(MutableString.trim)
        _operand(chars, "chars")
        return self._changed(lambda copy: copy.set(str(self).strip(str(chars))))

    def ljust(self: _S, width: int, fillchar: AnyString = " ") -> _S:
        """A copy with `fillchar`, one code unit, appended up to a length of `width`."""
        return self._changed(lambda copy: copy._pad(_pad_trailing, width, fillchar, "fillchar"))

    def rjust(self: _S, width: int, fillchar: AnyString = " ") -> _S:
        """A copy with `fillchar`, one code unit, put before it up to a length of `width`."""
        return self._changed(lambda copy: copy._pad(_pad_leading, width, fillchar, "fillchar"))


collections.abc.Sequence.register(BaseString)


class String(BaseString):
    """An immutable string: a copy of a str, or of a string, whose text it shares.

    It follows str, where the library has the operation; str(text) has all others. An operand may
    be a str, a String or a MutableString.

    >>> text = String("naïve cafés")
    >>> text[6:], text[-5:] + "!", "<" + text[::-2] + ">", text[0]
    (String('cafés'), String('cafés!'), String('<sfceïn>'), 'n')
    >>> "café" in text, text == "naïve cafés", text < "naïve", {text: 1}["naïve cafés"]
    (True, True, False, 1)
    >>> f"{text:>13}|", text * 2
    ('  naïve cafés|', String('naïve cafésnaïve cafés'))
    """

    __slots__ = ()

    def __new__(cls: Type[_S], source: AnyString = "") -> _S:
        if isinstance(source, str):
            handle = _made_by(_create, _encode(source, "surrogatepass")[0])
        else:
            handle = _copy(_operand(source, "source"))
        string = object.__new__(cls)
        string._handle = handle
        return string

    @classmethod
    def from_handle(cls: Type[_S], handle: object) -> _S:
        """A string that shares the text of a string of C or C++ as it is now.

        `handle` is a capsule (PyCapsule) with a `ZRStringRef__*` or a `ZRMutableStringRef__*` and
        with the name of that structure, or such a pointer of zrstring.handles."""
        source = borrowed(handle, handles.StringRef, handles.MutableStringRef)
        return cls._made(_copy(source))

    def _stable(self) -> Any:
        return self._handle

    @classmethod
    def _owning(cls: Type[_S], handle: Any) -> _S:
        handle.__class__ = _OwnedString  # so that no function takes it for a mutable one
        return cls._made(handle)

    @classmethod
    def _holding(cls, handle: Any) -> Any:
        return handle

    def __hash__(self) -> int:
        return hash(str(self))

    def __copy__(self: _S) -> _S:
        return self

    def __deepcopy__(self: _S, memo: object) -> _S:
        return self


class MutableString(BaseString):
    """A string that can be edited. It shares the text of its source until the first edit.

    Edits return the string, so that they chain; three return whether they did something. The
    methods that str has leave the string as it is. Indices and slices can be assigned to and
    deleted.

    >>> text = MutableString("cafe")
    >>> text.append(" noir").insert(0, "un ")
    MutableString('un cafe noir')
    >>> text[6] = "é"
    >>> text[-4:] = "au lait"
    >>> del text[:3]
    >>> text.to_upper().reverse(5, 7), text.lower()
    (MutableString('CAFÉ UA LAIT'), MutableString('café ua lait'))
    >>> text.truncate(4), text.pad_leading(6, "*"), text.pad_trailing(6), text
    (True, True, False, MutableString('**CAFÉ'))
    """

    __slots__ = ()
    __hash__ = None  # type: ignore[assignment]

    def __new__(cls: Type[_M], source: AnyString = "") -> _M:
        string = object.__new__(cls)
        if isinstance(source, str):
            string._handle = _made_by(_create_mutable, _encode(source, "surrogatepass")[0])
        else:
            string._handle = _copy_mutable(_operand(source, "source"))
        return string

    @classmethod
    def from_handle(cls: Type[_M], handle: object) -> _M:
        """The mutable string of C or C++ that the handle refers to: edits show on both sides.

        `handle` is a capsule (PyCapsule) with a `ZRMutableStringRef__*` and the name of that
        structure, which this object keeps alive, or such a pointer of zrstring.handles. The string
        must exist as long as this object does, which does not destroy it."""
        return cls._made(borrowed(handle, handles.MutableStringRef))

    def _stable(self) -> Any:
        return _copy(self._handle)

    @classmethod
    def _holding(cls, handle: Any) -> Any:
        return _copy_mutable(handle)

    def __copy__(self: _M) -> _M:
        return type(self)(self)

    def __deepcopy__(self: _M, memo: object) -> _M:
        return type(self)(self)

    @property
    def capacity(self) -> int:
        """The number of units that the text's storage has room for."""
        capacity: int = _capacity(self._handle)
        return capacity

    def _edited(self: _M, length: int, edit: Callable[..., Any], *arguments: Any) -> _M:
        """Makes an edit that leaves at most `length` units and begins with no more."""
        if length > _SMALL:
            _reserve(length)
        edit(self._handle, *arguments)
        if length > _SMALL and _buffer(self._handle) is None:
            raise MemoryError("no memory for an edit: the text is lost")
        return self

    def set(self: _M, text: AnyString) -> _M:
        """Replaces the whole text."""
        operand = _operand(text, "text")
        return self._edited(max(len(self), _length(operand)), _set, operand, 0, -1)

    def clear(self: _M) -> _M:
        """Removes the whole text."""
        return self._edited(len(self), _truncate, 0)

    def append(self: _M, text: AnyString) -> _M:
        """Adds a text at the end."""
        operand = _operand(text, "text")
        return self._edited(len(self) + _length(operand), _append, operand)

    def __iadd__(self: _M, text: AnyString) -> _M:
        return self.append(text)

    def __imul__(self: _M, times: int) -> _M:
        _integer(times, "times")
        return self.set(self * times)

    def insert(self: _M, index: int, text: AnyString) -> _M:
        """Inserts a text before the unit at `index`, which is clamped as in a list."""
        operand = _operand(text, "text")
        length = len(self)
        place = slice(_integer(index, "index"), None).indices(length)[0]
        return self._edited(length + _length(operand), _insert, place, operand, 0, -1)

    def __setitem__(self, key: Union[int, slice], text: AnyString) -> None:
        if isinstance(key, slice):
            self._set_slice(key, _operand(text, "text"))
        else:
            _unit(text, "text")
            self._set_slice(self._slice_of(key), _operand(text, "text"))

    def __delitem__(self, key: Union[int, slice]) -> None:
        if not isinstance(key, slice):
            key = self._slice_of(key)
        if key.step is None:
            self._set_slice(key, _operand("", "text"))
        else:
            units = array.array("H", self._units())
            del units[key]
            self.set(String._made(_made_by(_create, units.tobytes())))

    def _slice_of(self, key: Any) -> slice:
        index, length = _integer(key, "index"), len(self)
        if not -length <= index < length:
            raise IndexError("string index out of range")
        return slice(index % length, index % length + 1)

    def _set_slice(self, key: slice, operand: Any) -> None:
        length = len(self)
        start, stop, step = key.indices(length)
        if step == 1:
            removed = max(stop - start, 0)
            longest = length + _length(operand)
            self._edited(longest, _replace, start, removed, operand)
        else:
            units = array.array("H", self._units())
            size, given = len(range(*key.indices(len(units)))), _length(operand)
            if size != given:
                raise ValueError(f"a slice of {size} units cannot be replaced by {given}")
            units[key] = array.array("H", String._made(_copy(operand))._units())
            self.set(String._made(_made_by(_create, units.tobytes())))

    def find_and_replace(
        self: _M,
        old: AnyString,
        new: AnyString,
        start: Optional[int] = None,
        end: Optional[int] = None,
    ) -> _M:
        """Replaces all occurrences of `old` within the slice [start:end] by `new`. Replacements are
        not searched again.

        >>> MutableString("banana").find_and_replace("an", "ann", 2)
        MutableString('bananna')
        """
        first, last = _operand(old, "old"), _operand(new, "new")
        length, width, growth = len(self), _length(first), _length(last) - _length(first)
        longest = length + (max(growth, 0) * (length // width) if width else 0)
        if longest > MAX_LENGTH:
            longest = length + growth * self.count(old, start, end)
        return self._edited(longest, _find_and_replace, *self._range(start, end), first, last)

    def trim(self: _M) -> _M:
        """Removes leading and trailing white space, as strip() does."""
        return self._edited(len(self), _trim)

    def _cased(self: _M, edit: Callable[..., Any]) -> _M:
        return self._edited(3 * len(self), edit)  # no unit becomes more than three

    def to_upper(self: _M) -> _M:
        """Maps to upper case by the rules of ICU's default locale. The length may change."""
        return self._cased(_to_upper)

    def to_lower(self: _M) -> _M:
        """Maps to lower case by the rules of ICU's default locale. The length may change."""
        return self._cased(_to_lower)

    def reverse(self: _M, start: Optional[int] = None, end: Optional[int] = None) -> _M:
        """Reverses the slice [start:end]. Surrogate pairs stay in order.

        >>> MutableString("a😀b").reverse()
        MutableString('b😀a')
        """
        return self._edited(len(self), _reverse, *self._range(start, end))

    def _pad(self, pad: Callable[..., Any], width: Any, unit: Any, name: str = "unit") -> bool:
        target, number = _integer(width, "width"), _unit(unit, name)
        length = len(self)
        if target <= length:
            return False
        _reserve(target)
        self._edited(target, pad, target, number)
        return True

    def pad_leading(self, width: int, unit: AnyString = " ") -> bool:
        """Puts `unit` before the text up to `width` units. Returns whether it was shorter."""
        return self._pad(_pad_leading, width, unit)

    def pad_trailing(self, width: int, unit: AnyString = " ") -> bool:
        """Appends `unit` up to `width` units. Returns whether the text was shorter."""
        return self._pad(_pad_trailing, width, unit)

    def truncate(self, length: int) -> bool:
        """Cuts the text to `length` units. Returns whether it was longer."""
        target = _integer(length, "length")
        if target < 0:
            raise ValueError(f"length must not be negative: {target}")
        longer = len(self) > target
        if longer:
            self._edited(len(self), _truncate, target)
        return longer
