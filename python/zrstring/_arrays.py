"""StringArray."""

import ctypes
import sys
import threading
from typing import Any, Callable, Iterable, List, MutableSequence, Tuple, Type, TypeVar, Union
from typing import overload

from . import handles
from ._strings import AnyString, BaseString, String, _indices, _integer, _operand, _wrong, borrowed

_A = TypeVar("_A", bound="StringArray")
_R = TypeVar("_R")


class _OwnedArray(handles.ArrayRef):
    """A handle that destroys its array."""

    _type_ = handles.ZRStringPtrArrayRef__

    def __del__(self, destroy: Any = handles.ZRStringPtrArrayDestroy._function) -> None:
        if self:
            destroy(self)


handles.ZRStringPtrArrayDestroy._function.argtypes = [  # type: ignore[attr-defined]
    handles.ArrayRef
]

_create = handles.ZRStringPtrArrayCreate.prepared(_OwnedArray)
_get = handles.GetZRStringRefAt.prepared()
_size = handles.ZRStringPtrArraySize.prepared()
_set = handles.SetZRStringRefAt.prepared()
_insert = handles.InsertZRStringRefAt.prepared()
_push_back = handles.ZRStringPtrArrayPushBack.prepared()
_erase = handles.ZRStringPtrArrayErase.prepared()
_erase_all = handles.ZRStringPtrArrayEraseAll.prepared()


def _kept(value: AnyString, name: str) -> BaseString:
    return value if isinstance(value, BaseString) else String._made(_operand(value, name))


def _integers(cut: slice) -> slice:
    """The same slice of integers, whose conversion may run code of the program."""
    parts = (cut.start, cut.stop, cut.step)
    return slice(*[None if part is None else _integer(part, "index") for part in parts])


def _reserve(entries: int) -> None:
    """As for strings: the library could not report that it has no memory for so many entries. An
    array that grows takes up to five pointers for each, those it has freed included."""
    if entries > 2**12:
        bytearray(5 * ctypes.sizeof(ctypes.c_void_p) * entries)


def _all_kept(values: Iterable[AnyString], name: str) -> List[BaseString]:
    try:
        iterator = iter(values)
    except TypeError:
        raise _wrong(name, "iterable", values) from None
    return [_kept(value, f"an entry of {name}") for value in iterator]


class StringArray(MutableSequence[BaseString]):
    """A list of strings: a list in Python and an array of the library with the same strings.

    The library's array does not own its strings, so this object keeps them. It stores the objects
    that it gets; a str becomes a String.

    >>> words = StringArray(["deux", MutableString("trois")])
    >>> words.insert(0, "un")
    >>> words[1:], words[0] is words[0], words == ["un", "deux", "trois"]
    (StringArray([String('deux'), MutableString('trois')]), True, True)
    """

    __slots__ = ("_handle", "_strings", "_lock", "__weakref__")
    _handle: Any
    _lock: Any  # an RLock: keeps the list and the array the same
    _strings: List[BaseString]  # the owners of the handles in the array, entry by entry

    def __new__(cls: Type[_A], strings: Iterable[AnyString] = ()) -> _A:
        new = super().__new__(cls)
        new._lock = threading.RLock()
        new._strings = []
        new._handle = _create()
        kept = _all_kept(strings, "strings")
        new._edit_all(lambda entries: entries.extend(kept))
        return new

    @classmethod
    def from_handle(cls: Type[_A], handle: object) -> _A:
        """An array of Strings that share the texts in an array of C or C++ as they are now.

        `handle` is a capsule (PyCapsule) with a `ZRStringPtrArrayRef__*` and the name of that
        structure, or such a pointer of zrstring.handles."""
        source = borrowed(handle, handles.ArrayRef)
        return cls(String.from_handle(_get(source, index)) for index in range(_size(source)))

    @property
    def address(self) -> int:
        """The address of the library's array, for C and C++. It is valid as long as this object.

        They may read it, and must not change it."""
        return ctypes.cast(self._handle, ctypes.c_void_p).value or 0

    @property
    def _as_parameter_(self) -> Any:
        return self._handle

    def __len__(self) -> int:
        return len(self._strings)

    def __repr__(self) -> str:
        return f"{type(self).__name__}({self._strings!r})"

    def __reduce__(self) -> Tuple[Any, ...]:
        return type(self), (self._strings[:],)

    def __eq__(self, other: object) -> bool:
        if isinstance(other, (StringArray, list)):
            return self._strings == list(other)
        return NotImplemented

    __hash__ = None  # type: ignore[assignment]

    @overload
    def __getitem__(self, index: int) -> BaseString: ...
    @overload
    def __getitem__(self: _A, index: slice) -> _A: ...
    def __getitem__(self: _A, index: Union[int, slice]) -> Union[BaseString, _A]:
        if isinstance(index, slice):
            return type(self)(self._strings[index])
        return self._strings[_integer(index, "index")]

    def _write(self, strings: List[BaseString]) -> None:
        _erase_all(self._handle)
        for string in strings:
            _push_back(self._handle, string._handle)

    def _edit(self, edit: Callable[[], _R]) -> _R:
        """Edits the list and the array, which afterwards are the same even if this is interrupted.
        Returns what the edit removed: its destruction may run code of the program, which must find
        the lock free."""
        if self._lock._is_owned():  # by an edit that a finalizer or a signal handler interrupts
            raise RuntimeError("the array is edited during an edit of it")
        with self._lock:
            try:
                return edit()
            except IndexError:  # before anything has changed
                raise
            except BaseException:
                self._write(self._strings)
                raise

    def _edit_all(self, edit: Callable[[List[BaseString]], object]) -> None:
        def replace_all() -> object:
            strings = self._strings[:]
            edit(strings)
            _reserve(len(strings))
            self._write(strings)
            removed, self._strings = self._strings, strings
            return removed

        self._edit(replace_all)

    def _place(self, index: int) -> int:
        if not -len(self._strings) <= index < len(self._strings):
            raise IndexError("array index out of range")
        return index % len(self._strings)

    @overload
    def __setitem__(self, index: int, value: AnyString) -> None: ...
    @overload
    def __setitem__(self, index: slice, value: Iterable[AnyString]) -> None: ...
    def __setitem__(self, index: Union[int, slice], value: Any) -> None:
        if isinstance(index, slice):
            strings, cut = _all_kept(value, "value"), _integers(index)
            return self._edit_all(lambda entries: entries.__setitem__(cut, strings))
        string, number = _kept(value, "value"), _integer(index, "index")

        def replace() -> BaseString:
            place = self._place(number)
            _set(self._handle, place, string._handle)
            removed, self._strings[place] = self._strings[place], string
            return removed

        self._edit(replace)

    def __delitem__(self, index: Union[int, slice]) -> None:
        if isinstance(index, slice):
            cut = _integers(index)
            self._edit_all(lambda entries: entries.__delitem__(cut))
        else:
            self.pop(index)

    def pop(self, index: int = -1) -> BaseString:
        """Removes the entry at `index` and returns it."""
        number = _integer(index, "index")

        def erase() -> BaseString:
            place = self._place(number)
            _erase(self._handle, place)
            return self._strings.pop(place)

        return self._edit(erase)

    def insert(self, index: int, value: AnyString) -> None:
        """Inserts a string before the entry at `index`, which may lie outside, as for a list."""
        string, number = _kept(value, "value"), _integer(index, "index")

        def insert() -> None:
            size = len(self._strings)
            place, _ = _indices(number, None, size)
            _reserve(size + 1)
            self._strings.insert(place, string)
            if place == size:
                _push_back(self._handle, string._handle)
            else:
                _insert(self._handle, place, string._handle)

        self._edit(insert)

    def append(self, value: AnyString) -> None:
        """Adds a string at the end."""
        self.insert(sys.maxsize, value)

    def extend(self, values: Iterable[AnyString]) -> None:
        """Adds strings at the end."""
        strings = _all_kept(values, "values")
        self._edit_all(lambda entries: entries.extend(strings))

    def __iadd__(self: _A, values: Iterable[AnyString]) -> _A:
        self.extend(values)
        return self

    def remove(self, value: AnyString) -> None:
        """Removes the first entry that equals `value`."""
        del self[self.index(value)]

    def clear(self) -> None:
        """Removes all entries."""
        del self[:]
