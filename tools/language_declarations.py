"""Declarations of the functions and constants of the handle interface for Rust, Go and C#."""

from line_wrapping import wrapped

CHARS = "(*C.char)(unsafe.Pointer({}))"  # C's char may be signed
UNITS_OUT = "(**C.ushort)(unsafe.Pointer({}))"

# Each type of a parameter in Rust; in Go, with the conversion to cgo's type; and in C#. Go's
# compiler converts pointers without unsafe.Pointer only if what they point to has the same width.
TYPES = {
    "ZRLong": ("ZRLong", "int32", "C.ZRLong({})", "int"),
    "ZRLong*": ("*mut ZRLong", "*int32", "(*C.ZRLong)({})", "out int"),
    "ZRULong": ("ZRULong", "uint32", "C.ZRULong({})", "uint"),
    "ZRULong*": ("*mut ZRULong", "*uint32", "(*C.ZRULong)({})", "out uint"),
    "unsigned char*": ("*mut u8", "*byte", "(*C.uchar)({})", "out byte"),
    "const unsigned char*": ("*const u8", "*byte", "(*C.uchar)({})", "byte[]"),
    "const char*": ("*const c_char", "*byte", CHARS, "byte[]"),
    "unsigned short": ("u16", "uint16", "C.ushort({})", "char"),
    "unsigned short*": ("*mut u16", "*uint16", "(*C.ushort)({})", "[In, Out] char[]"),
    "const unsigned short*": ("*const u16", "*uint16", "(*C.ushort)({})", "char[]"),
    "unsigned short**": ("*mut *mut u16", "**uint16", UNITS_OUT, "out IntPtr"),
}
for name in ("ZRStringRef", "ZRMutableStringRef", "ZRStringPtrArrayRef"):
    TYPES[f"{name}__*"] = (f"*mut {name}__", name, "{}", name)
    TYPES[f"{name}__**"] = (f"*mut *mut {name}__", f"*{name}", "{}", f"out {name}")
RUST, GO, TO_CGO, CSHARP = range(4)


def constant_type(name):
    """The type of the parameters or results that a constant is for."""
    if name.startswith("kZRCompare"):
        return "ZRULong"
    return "unsigned short" if name == "kZRNoUnit" else "ZRLong"


def rust_constant(name, value):
    return f"pub const {name}: {TYPES[constant_type(name)][RUST]} = {value};\n"


def rust_function(function):
    parameters = [f"{name}: {TYPES[kind][RUST]}" for kind, name in function.parameters]
    head = f"    pub fn {function.name}("
    return wrapped(head, parameters, ") -> ZRLong;", " " * 8) + "\n"


def go_constant(name, value):
    exported = name.removeprefix("k")
    return f"const {exported} {TYPES[constant_type(name)][GO]} = {value}\n"


def go_function(function):
    parameters = [f"{name} {TYPES[kind][GO]}" for kind, name in function.parameters]
    arguments = [TYPES[kind][TO_CGO].format(name) for kind, name in function.parameters]
    signature = wrapped(f"func {function.name}(", parameters, ") int32 {", "\t")
    body = wrapped(f"\treturn int32(C.{function.name}(", arguments, "))", "\t\t")
    return f"\n{signature}\n{body}\n}}\n"


def csharp_constant(name, value):
    kind = TYPES[constant_type(name)][CSHARP]
    number = f"(char){value}" if kind == "char" else value
    return f"        public const {kind} {name} = {number};\n"


def csharp_function(function):
    parameters = [
        f"{TYPES[kind][CSHARP]} {'@' if name in ('out', 'string') else ''}{name}"
        for kind, name in function.parameters
    ]
    named = "CallingConvention = Cdecl, CharSet = Utf16, ExactSpelling = true"
    head = f"        public static extern int {function.name}("
    return f"\n        [DllImport(Library, {named})]\n{wrapped(head, parameters, ');', ' ' * 12)}\n"


RUST_BLOCK = '\n#[rustfmt::skip]\n#[link(name = "ZRString")]\nextern "C" {\n'

# For each file the functions that write a constant and a function, and the text around the
# functions.
FILES = {
    "rust/handles.rs": (rust_constant, rust_function, RUST_BLOCK, "}\n"),
    "go/zrstring/handles.go": (go_constant, go_function, "", ""),
    "csharp/Handles.cs": (csharp_constant, csharp_function, "", "    }\n}\n"),
}
MARK = "// Written by tools/write-derived.py from here on: edit the C headers and run that.\n"


def files(folder, functions, constants):
    """The text of each file of declarations: what is written by hand up to the mark, and more."""
    for function in functions:
        for kind, name in function.parameters:
            if kind not in TYPES:
                raise ValueError(f"{function.name}: {name} has a new type, {kind}")
    for name, (write_constant, write_function, begin, end) in FILES.items():
        head, mark, _ = (folder / name).read_text(encoding="utf-8").partition(MARK)
        if not mark:
            raise ValueError(f"{name} has no mark for what is written")
        declared = [write_constant(*constant) for constant in constants.items()]
        declared += [begin, *map(write_function, functions), end]
        yield folder / name, head + mark + "".join(declared)
