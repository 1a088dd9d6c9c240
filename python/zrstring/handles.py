"""The functions of ZRStringHandles.h, which documents each of them.

Call a function as in C: it returns a status, 0 for success, and writes to the object behind
ctypes.byref(). result() makes that object, returns what the function wrote, and raises an
exception for any other status.

    >>> import ctypes
    >>> text, length = StringRef(), Long()
    >>> ZRStringCreateFromCString(b"caf\\xe9", 0, 4, ctypes.byref(text))
    0
    >>> ZRStringGetLength(text, ctypes.byref(length)), length.value
    (0, 4)
    >>> ZRStringGetLength.result(text), ZRStringGetLength(None, ctypes.byref(length))
    (4, 4)
    >>> ZRStringDestroy(text), ZRStringDestroy(text)
    (0, 4)

Arguments of a wrong type raise TypeError, numbers that do not fit ValueError. What C cannot check
is not checked here either: memory must be as large as its ranges say, and a handle must not be
used after its object is destroyed. A destroy function sets the handle that it gets to null. These
functions and ZRStringPtrArrayDeleteAll() refuse Python objects that own what they stand for, which
are accepted as handles everywhere else.
"""

import ctypes
import operator
from typing import TYPE_CHECKING, Any, Callable, Dict, Tuple

from ._library import library

if TYPE_CHECKING:
    _Pointer = ctypes._Pointer[Any]
else:
    _Pointer = ctypes._Pointer

TO_END = -1
FIRST_PARAMETER, INDEX_OUTSIDE = 4, 12  # statuses


class ZRStringRef__(ctypes.Structure):
    """A string, mutable or not."""


class ZRMutableStringRef__(ZRStringRef__):
    """A mutable string."""


class ZRStringPtrArrayRef__(ctypes.Structure):
    """An array of strings."""


class StringRef(_Pointer):
    """The handle of a string. A mutable string's handle is one, too."""

    _type_ = ZRStringRef__


class MutableStringRef(StringRef):
    """The handle of a mutable string."""

    _type_ = ZRMutableStringRef__


class ArrayRef(_Pointer):
    """The handle of an array."""

    _type_ = ZRStringPtrArrayRef__


def _within(value: Any, least: int, most: int) -> int:
    number = operator.index(value)
    if not least <= number <= most:
        raise ValueError(f"{number} is not in {least} .. {most}")
    return number


class Long(ctypes.c_int32):
    """A ZRLong: 32 bits. Passed by its `value`, or as an int."""

    @classmethod
    def from_param(cls, value: Any) -> Any:
        return ctypes.c_int32.from_param(_within(value, -(2**31), 2**31 - 1))


class ULong(ctypes.c_uint32):
    """A ZRULong: 32 bits without a sign."""

    @classmethod
    def from_param(cls, value: Any) -> Any:
        return ctypes.c_uint32.from_param(_within(value, 0, 2**32 - 1))


class Unit(ctypes.c_uint16):
    """A UTF-16 code unit."""

    @classmethod
    def from_param(cls, value: Any) -> Any:
        return ctypes.c_uint16.from_param(_within(value, 0, 2**16 - 1))


Bool = ctypes.c_ubyte
Bytes = ctypes.c_char_p
Units = ctypes.POINTER(ctypes.c_uint16)


class Out:
    """The type of a parameter that the function writes an object of type `kind` to."""

    def __init__(self, kind: Any) -> None:
        self.kind = kind
        self._pointer = ctypes.POINTER(kind)

    def from_param(self, value: Any) -> Any:
        """Refuses subclasses: as a MutableStringRef, an immutable string could be edited."""
        converted: Any = self._pointer.from_param(value)
        target = getattr(value, "_obj", value)  # of byref()
        is_object = isinstance(target, self.kind)
        kind = type(target) if is_object else getattr(target, "_type_", self.kind)
        if kind is not self.kind:
            raise TypeError(f"expected a {self.kind.__name__}, not {kind.__name__}")
        return converted


class Error(Exception):
    """A status other than 0, in `status`, of the function named `function`."""

    def __init__(self, function: str, status: int, what: str) -> None:
        super().__init__(f"{function}: {what}")
        self.function = function
        self.status = status

    def __reduce__(self) -> Tuple[Any, ...]:
        return _error, (self.function, self.status)


class InvalidArgument(Error, ValueError):
    """An invalid argument, for the parameter named `parameter` at `position`, counted from 1."""

    def __init__(self, function: str, status: int) -> None:
        self.position = POSITIONS.get((function, status), status - FIRST_PARAMETER + 1)
        self.parameter = list(FUNCTIONS[function].parameters)[self.position - 1]
        super().__init__(function, status, f"parameter {self.position} ({self.parameter})")


class IndexOutside(Error, IndexError):
    """An index outside an array."""

    def __init__(self, function: str) -> None:
        super().__init__(function, INDEX_OUTSIDE, "index outside the array")


def _error(function: str, status: int) -> Exception:
    if status != INDEX_OUTSIDE:
        return InvalidArgument(function, status)
    if function in ("ZRStringPtrArrayCreate", "ZRStrPtrArrCreateFromZRStrPtrArr"):
        return MemoryError(f"{function}: no memory")
    return IndexOutside(function)


class _Statuses(Dict[int, None]):
    """Looking up a status other than 0 raises. ctypes does that after a call, and looking up 0
    takes less time than calling a function."""

    def __init__(self, function: str) -> None:
        super().__init__({0: None})
        self.function = function

    def __missing__(self, status: int) -> None:
        raise _error(self.function, status)


class Function:
    """A function of the library, with the types of its parameters by their names."""

    # What prepared() passes for a type. ctypes converts to these without a call of from_param() in
    # Python; units are bytes objects then.
    _PLAIN: Dict[Any, Any] = {
        Long: ctypes.c_int32,
        ULong: ctypes.c_uint32,
        Unit: ctypes.c_uint16,
        Units: ctypes.c_char_p,
    }

    def __init__(self, name: str, /, **parameters: Any) -> None:
        self.name = name
        self.parameters = parameters
        self.__doc__ = f"{name}({', '.join(parameters)}) -> status"
        self._destroys = name.endswith(("Destroy", "DeleteAll"))
        try:
            self._function: Callable[..., int] = library[name]
        except AttributeError:
            what = f"{library._name} is not the ZRString library: it has no {name}"
            raise ImportError(what) from None
        FUNCTIONS[name] = self

    def __repr__(self) -> str:
        return f"<function {self.__doc__}>"

    def _converted(self, name: str, value: Any) -> Any:
        try:
            converted = self.parameters[name].from_param(value)
        except (TypeError, ctypes.ArgumentError) as error:
            raise TypeError(f"{self.name}: {name}: {error}") from None
        except ValueError as error:
            raise ValueError(f"{self.name}: {name}: {error}") from None
        if self._destroys and hasattr(converted, "__del__"):
            raise ValueError(f"{self.name}: {name} is a handle that a Python object owns")
        if self._destroys and converted is not None and not hasattr(type(converted), "contents"):
            raise TypeError(f"{self.name}: {name} must be a handle")
        return converted

    def __call__(self, *arguments: Any) -> int:
        """Calls the function and returns its status."""
        if len(arguments) != len(self.parameters):
            count = len(self.parameters)
            raise TypeError(f"{self.__doc__} takes {count} arguments, not {len(arguments)}")
        converted = list(map(self._converted, self.parameters, arguments))
        status = self._function(*converted)
        if self.name.endswith("Destroy") and status == 0:
            ctypes.memset(ctypes.byref(converted[0]), 0, ctypes.sizeof(converted[0]))
        return status

    def result(self, *arguments: Any) -> Any:
        """Calls the function with all arguments but a last one of type Out, and returns what was
        written there, or None if it has no such argument. A status other than 0 raises an Error
        or, if an array was not created, a MemoryError."""
        written = []
        last = list(self.parameters.values())[-1]
        if isinstance(last, Out):
            written.append(last.kind())
        status = self(*arguments, *map(ctypes.byref, written))
        if status != 0:
            raise _error(self.name, status)
        return getattr(written[0], "value", written[0]) if written else None

    def prepared(self, kind: Any = None) -> Callable[..., Any]:
        """A fast result() for arguments that were checked before. What the function writes becomes
        an object of type `kind`, if that is given."""
        kinds, flags = [], []
        for declared in self.parameters.values():
            if isinstance(declared, Out):
                made = kind or self._PLAIN.get(declared.kind, declared.kind)
                kinds.append(ctypes.POINTER(made))
                flags.append((2,))
            else:
                kinds.append(self._PLAIN.get(declared, declared))
                flags.append((1,))
        look_up: Any = _Statuses(self.name).__getitem__
        prototype: Any = ctypes.PYFUNCTYPE(look_up, *kinds)
        function: Callable[..., Any] = prototype((self.name, library), tuple(flags))
        return function


FUNCTIONS: Dict[str, Function] = {}

# Written by tools/write-derived.py: edit ZRStringHandles.h and run that.
ZRStringCreateFromUniChars = Function("ZRStringCreateFromUniChars", chars=Units, start=Long,
    length=Long, out=Out(StringRef))
ZRStringCreateFromLocalString = Function("ZRStringCreateFromLocalString", text=Bytes, start=Long,
    length=Long, out=Out(StringRef))
ZRStringCreateFromCString = Function("ZRStringCreateFromCString", text=Bytes, start=Long,
    length=Long, out=Out(StringRef))
ZRStringCreateCopy = Function("ZRStringCreateCopy", source=StringRef, out=Out(StringRef))
ZRStringCreateCopyRange = Function("ZRStringCreateCopyRange", source=StringRef, start=Long,
    length=Long, out=Out(StringRef))
ZRStringDestroy = Function("ZRStringDestroy", string=StringRef)
ZRStringCompare = Function("ZRStringCompare", string=StringRef, start=Long, length=Long,
    src=StringRef, srcStart=Long, srcLength=Long, result=Out(Long))
ZRStringCompareCodePointOrder = Function("ZRStringCompareCodePointOrder", string=StringRef,
    start=Long, length=Long, src=StringRef, srcStart=Long, srcLength=Long, result=Out(Long))
ZRStringICompare = Function("ZRStringICompare", string=StringRef, start=Long, length=Long,
    src=StringRef, srcStart=Long, srcLength=Long, options=ULong, result=Out(Long))
ZRStringFind = Function("ZRStringFind", string=StringRef, start=Long, length=Long,
    pattern=StringRef, index=Out(Long))
ZRStringFindUniChars = Function("ZRStringFindUniChars", string=StringRef, start=Long, length=Long,
    pattern=Units, patternLength=Long, index=Out(Long))
ZRStringRFind = Function("ZRStringRFind", string=StringRef, start=Long, length=Long,
    pattern=StringRef, index=Out(Long))
ZRStringRFindUniChars = Function("ZRStringRFindUniChars", string=StringRef, start=Long, length=Long,
    pattern=Units, patternLength=Long, index=Out(Long))
ZRStringGetUniCharsAt = Function("ZRStringGetUniCharsAt", string=StringRef, index=Long, count=Long,
    units=Units)
ZRStringExtractIntoUniChars = Function("ZRStringExtractIntoUniChars", string=StringRef, start=Long,
    length=Long, dst=Units, dstStart=Long)
ZRStringGetLength = Function("ZRStringGetLength", string=StringRef, length=Out(Long))
ZRStringIsEmpty = Function("ZRStringIsEmpty", string=StringRef, isEmpty=Out(Bool))
ZRStringGetBuffer = Function("ZRStringGetBuffer", string=StringRef, buffer=Out(Units))
ZRStringLastIndexOf = Function("ZRStringLastIndexOf", string=StringRef, unit=Unit, index=Out(Long))
ZRMutableStringCreateEmpty = Function("ZRMutableStringCreateEmpty", out=Out(MutableStringRef))
ZRMutableStringCreateFromUniChars = Function("ZRMutableStringCreateFromUniChars", chars=Units,
    start=Long, length=Long, out=Out(MutableStringRef))
ZRMutableStringCreateCopy = Function("ZRMutableStringCreateCopy", source=StringRef,
    out=Out(MutableStringRef))
ZRMutableStringCreateCopyRange = Function("ZRMutableStringCreateCopyRange", source=StringRef,
    start=Long, length=Long, out=Out(MutableStringRef))
ZRMutableStringCreateFromLocalString = Function("ZRMutableStringCreateFromLocalString", text=Bytes,
    start=Long, length=Long, out=Out(MutableStringRef))
ZRMutableStringCreateFromCString = Function("ZRMutableStringCreateFromCString", text=Bytes,
    start=Long, length=Long, out=Out(MutableStringRef))
ZRMutableStringDestroy = Function("ZRMutableStringDestroy", string=MutableStringRef)
ZRMutableStringSetUniCharAt = Function("ZRMutableStringSetUniCharAt", string=MutableStringRef,
    index=Long, unit=Unit)
ZRMutableStringSetToZRString = Function("ZRMutableStringSetToZRString", string=MutableStringRef,
    src=StringRef, srcStart=Long, srcLength=Long)
ZRMutableStringAppend = Function("ZRMutableStringAppend", string=MutableStringRef, src=StringRef)
ZRMutableStringAppendUniChars = Function("ZRMutableStringAppendUniChars", string=MutableStringRef,
    chars=Units, srcStart=Long, srcLength=Long)
ZRMutableStringInsert = Function("ZRMutableStringInsert", string=MutableStringRef, position=Long,
    src=StringRef, srcStart=Long, srcLength=Long)
ZRMutableStringInsertUniChars = Function("ZRMutableStringInsertUniChars", string=MutableStringRef,
    position=Long, chars=Units, srcStart=Long, srcLength=Long)
ZRMutableStringReplaceBetween = Function("ZRMutableStringReplaceBetween", string=MutableStringRef,
    start=Long, length=Long, replacement=StringRef)
ZRMutableStringReplaceWithUniChars = Function("ZRMutableStringReplaceWithUniChars",
    string=MutableStringRef, start=Long, length=Long, chars=Units, srcStart=Long, srcLength=Long)
ZRMutableStringFindAndReplace = Function("ZRMutableStringFindAndReplace", string=MutableStringRef,
    start=Long, length=Long, find=StringRef, replacement=StringRef)
ZRMutableStringRemoveBetween = Function("ZRMutableStringRemoveBetween", string=MutableStringRef,
    start=Long, end=Long)
ZRMutableStringPadLeading = Function("ZRMutableStringPadLeading", string=MutableStringRef,
    targetLength=Long, padUnit=Unit, padded=Out(Bool))
ZRMutableStringPadTrailing = Function("ZRMutableStringPadTrailing", string=MutableStringRef,
    targetLength=Long, padUnit=Unit, padded=Out(Bool))
ZRMutableStringTruncate = Function("ZRMutableStringTruncate", string=MutableStringRef,
    targetLength=Long, truncated=Out(Bool))
ZRMutableStringTrim = Function("ZRMutableStringTrim", string=MutableStringRef)
ZRMutableStringToUpper = Function("ZRMutableStringToUpper", string=MutableStringRef)
ZRMutableStringToLower = Function("ZRMutableStringToLower", string=MutableStringRef)
ZRMutableStringGetBufferWithCapacity = Function("ZRMutableStringGetBufferWithCapacity",
    string=MutableStringRef, minCapacity=Long, buffer=Out(Units))
ZRMutableStringGetCapacity = Function("ZRMutableStringGetCapacity", string=MutableStringRef,
    capacity=Out(Long))
ZRMutableStringReleaseBuffer = Function("ZRMutableStringReleaseBuffer", string=MutableStringRef,
    newLength=Long)
ZRMutableStringReverse = Function("ZRMutableStringReverse", string=MutableStringRef, start=Long,
    length=Long)
ZRMutableStringAddStrings = Function("ZRMutableStringAddStrings", first=StringRef, second=StringRef,
    out=Out(MutableStringRef))
ZRMutableStringLastIndexOf = Function("ZRMutableStringLastIndexOf", string=MutableStringRef,
    unit=Unit, index=Out(Long))
ZRStringPtrArrayCreate = Function("ZRStringPtrArrayCreate", out=Out(ArrayRef))
ZRStrPtrArrCreateFromZRStrPtrArr = Function("ZRStrPtrArrCreateFromZRStrPtrArr", source=ArrayRef,
    out=Out(ArrayRef))
ZRStringPtrArrayDestroy = Function("ZRStringPtrArrayDestroy", array=ArrayRef)
ZRStringPtrArraySize = Function("ZRStringPtrArraySize", array=ArrayRef, size=Out(ULong))
ZRStringPtrArrayIsEmpty = Function("ZRStringPtrArrayIsEmpty", array=ArrayRef, isEmpty=Out(Bool))
GetZRStringRefAt = Function("GetZRStringRefAt", array=ArrayRef, index=Long, string=Out(StringRef))
SetZRStringRefAt = Function("SetZRStringRefAt", array=ArrayRef, index=Long, string=StringRef)
InsertZRStringRefAt = Function("InsertZRStringRefAt", array=ArrayRef, index=Long, string=StringRef)
ZRStringPtrArrayPushBack = Function("ZRStringPtrArrayPushBack", array=ArrayRef, string=StringRef)
ZRStringPtrArrayErase = Function("ZRStringPtrArrayErase", array=ArrayRef, index=Long)
ZRStringPtrArrayEraseAll = Function("ZRStringPtrArrayEraseAll", array=ArrayRef)
ZRStringPtrArrayDeleteAll = Function("ZRStringPtrArrayDeleteAll", array=ArrayRef)

# Positions of invalid parameters whose status is not 3 + the position.
POSITIONS = {
    ("InsertZRStringRefAt", 5): 3,
}
# Up to here.
