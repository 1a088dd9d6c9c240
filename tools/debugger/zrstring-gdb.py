"""Shows ZRString, ZRStringMutator and ZRStringPtrArray, and handles to them, in GDB.

GDB loads this file with the library if it is installed below GDB's auto-load directory under the
library's full path: share/gdb/auto-load/<library directory>/libZRString.so.<version>-gdb.py. With a
build tree, use `source tools/debugger/zrstring-gdb.py`. `print/r` shows the fields instead.

    "text" (length 4, holders 1)        the text is cut at `set print elements`

The printers read memory by its layout and need only the program's own debug information, not that
of ICU or of this library. Without the latter, the string classes are incomplete types to GDB. It
then shows no strings in C++ arrays and vectors, and GDB 13 lists members, arguments passed by
value and local variables as <incomplete type>, though `print` with the name of one shows it. All
are shown if the library's debug information is installed (package libzrstring1-dbgsym).
"""

import gdb
import gdb.printing

# icu::UnicodeString as in ICU 72 (unicode/unistr.h): a virtual table pointer, then a union of
#   { int16_t fLengthAndFlags; char16_t fBuffer[]; }                                 short texts
#   { int16_t fLengthAndFlags; int32_t fLength, fCapacity; char16_t* fArray; }       all others
IS_BOGUS = 1
USING_STACK_BUFFER = 2
OPEN_GET_BUFFER = 16
LENGTH_SHIFT = 5

ESCAPES = {'"': '\\"', "\\": "\\\\", "\n": "\\n", "\r": "\\r", "\t": "\\t"}


class NotAString(Exception):
    """Raised if memory holds no body, for example before a constructor has run."""


def byte_order():
    return "big" if "big" in gdb.execute("show endian", to_string=True) else "little"


def pointer_size():
    return gdb.lookup_type("char").pointer().sizeof


def read(address, size):
    if address + size > 1 << 8 * pointer_size():  # for GDB an OverflowError
        raise gdb.MemoryError("Cannot access memory at address 0x%x" % address)
    return gdb.selected_inferior().read_memory(address, size).tobytes()


def read_integer(address, size, signed=True):
    return int.from_bytes(read(address, size), byte_order(), signed=signed)


def read_pointer(address):
    return read_integer(address, pointer_size(), signed=False)


class Body:
    """A ZRStringImplementation: the count of its holders, then the icu::UnicodeString."""

    def __init__(self, address):
        union = address + 2 * pointer_size()  # the count with its padding; the virtual table
        flags = read_integer(union, 2)
        self.holders = read_integer(address, 4)
        self.is_open = bool(flags & OPEN_GET_BUFFER)
        self.is_bogus = bool(flags & IS_BOGUS)
        self.length = flags >> LENGTH_SHIFT if flags >= 0 else read_integer(union + 4, 4)
        if flags & USING_STACK_BUFFER:
            self.units = union + 2
        else:
            self.units = read_pointer(union + (16 if pointer_size() == 8 else 12))
        if self.holders < 1 or self.length < 0:
            raise NotAString

    def text(self):
        """The text in quotes, cut between characters at `set print elements`."""
        limit = gdb.parameter("print elements") or self.length
        count = min(self.length, limit)
        order = "utf-16-le" if byte_order() == "little" else "utf-16-be"
        units = read(self.units, 2 * count) if count else b""
        if count < self.length and "\ud800" <= units[-2:].decode(order, "surrogatepass") < "\udc00":
            units = units[:-2]
        text = units.decode(order, "surrogatepass")
        return '"' + "".join(map(escaped, text)) + '"' + ("..." if count < self.length else "")


def escaped(character):
    """`character` in a form that GDB can print: unpaired surrogates and characters outside GDB's
    character set become numbers."""
    if character in ESCAPES:
        return ESCAPES[character]
    charset = gdb.host_charset() if hasattr(gdb, "host_charset") else "ascii"
    try:
        character.encode(charset)
        if character.isprintable():
            return character
    except (UnicodeEncodeError, LookupError):
        pass
    return ("\\u%04x" if ord(character) < 0x10000 else "\\U%08x") % ord(character)


def described(address):
    """One line that describes the body at `address`."""
    try:
        body = Body(address)
        if body.is_open:
            return "<buffer open> (holders %d)" % body.holders
        if body.is_bogus:
            return "<error state> (holders %d)" % body.holders
        return "%s (length %d, holders %d)" % (body.text(), body.length, body.holders)
    except (gdb.error, NotAString):  # gdb.MemoryError is a gdb.error
        return "<no string: nothing readable as its body at 0x%x>" % address


def body_of(string):
    """The address of the body of the string at `string`: the string's second pointer."""
    return read_pointer(string + pointer_size())


class StringPrinter:
    def __init__(self, string):
        self.string = string

    def to_string(self):
        if self.string.address is None:  # a function's result, which GDB holds
            return described(int(self.string["body_"]))
        return described(body_of(int(self.string.address)))


class StringHandlePrinter:
    """For a string's handle, which is the string's address."""

    def __init__(self, handle):
        self.handle = int(handle)

    def to_string(self):
        if not self.handle:
            return "0x0"
        try:
            return "0x%x %s" % (self.handle, described(body_of(self.handle)))
        except gdb.MemoryError:
            return "0x%x <no string: unreadable>" % self.handle


class ArrayPrinter:
    """For an array, whose vector begins with two pointers: to the first entry and past the last.

    `entry_type` is ZRString*, or None if GDB does not know that type.
    """

    def __init__(self, address, entry_type=None, prefix=""):
        self.entry_type = entry_type
        self.prefix = prefix
        try:
            self.begin = read_pointer(address)
            self.size = (read_pointer(address + pointer_size()) - self.begin) // pointer_size()
        except gdb.MemoryError:
            self.size = -1

    def to_string(self):
        if self.size < 0:
            return self.prefix + "<no array: unreadable>"
        return "%sZRStringPtrArray of %d" % (self.prefix, self.size)

    def children(self):
        for index in range(self.size):
            yield "[%d]" % index, self.entry(read_pointer(self.begin + index * pointer_size()))

    def entry(self, string):
        if self.entry_type is None:
            return StringHandlePrinter(string).to_string()
        pointer = gdb.Value(string).cast(self.entry_type)
        # A reference, since GDB does not ask printers about children of incomplete type.
        return pointer.dereference().reference_value() if string else pointer

    def display_hint(self):
        return "array"


class Printers(gdb.printing.PrettyPrinter):
    def __init__(self):
        super().__init__("ZRString")

    def __call__(self, value):
        if value.type.code in (gdb.TYPE_CODE_REF, gdb.TYPE_CODE_RVALUE_REF):
            value = value.referenced_value()
        kind = value.type.strip_typedefs().unqualified()
        if kind.code == gdb.TYPE_CODE_PTR:
            name = kind.target().strip_typedefs().unqualified().tag
            if name in ("ZRStringRef__", "ZRMutableStringRef__"):
                return StringHandlePrinter(value)
            if name == "ZRStringPtrArrayRef__" and int(value):
                return ArrayPrinter(int(value), prefix="0x%x " % int(value))
        elif kind.tag in ("ZRString", "ZRStringMutator"):
            return StringPrinter(value)
        elif kind.tag == "ZRStringPtrArray" and value.address is not None:
            vectors = [field.type for field in kind.fields() if field.name == "strings_"]
            return ArrayPrinter(
                int(value.address), vectors[0].template_argument(0) if vectors else None
            )
        return None


gdb.printing.register_pretty_printer(gdb.current_objfile(), Printers(), replace=True)
