"""Tests of the Python package. With "fuzz SEED", calls everything with everything instead."""

import concurrent.futures
import copy
import ctypes
import doctest
import itertools
import os
import pathlib
import pickle
import random
import resource
import subprocess
import sys
import unittest
import unittest.mock
import weakref

import zrstring
from zrstring import MutableString, String, StringArray, _arrays, _strings, handles

PAGE = pathlib.Path(__file__).resolve().parents[2] / "docs/python.md"

REFUSED = "ValueError: ZRStringPtrArrayDeleteAll: array is a handle that a Python object owns"
INSERT = "InsertZRStringRefAt: parameter 3 (string)"
# What examples do not show: calls, and the errors or what the results equal. There is a String
# s("abXßab"), a MutableString m(s), its handle, and a StringArray a([s]).
CALLS = {
    "String(b'abc')": "TypeError: source must be str, String or MutableString, not bytes",
    "s.find(a)": "TypeError: sub must be str, String or MutableString, not StringArray",
    "s.find('a', 'b')": "TypeError: start must be an integer or None, not str",
    "s.compare('a', 0, 1, 0, 1.5)": "TypeError: other_end must be an integer or None, not float",
    "s.icompare('a', -1)": "ValueError: options must be 0 to 2**32 - 1, not -1",
    "s + 1": "TypeError: unsupported operand type(s) for +: 'String' and 'int'",
    "m.pad_leading(9, 'xy')": "ValueError: unit must have one code unit, not 2",
    "m.pad_leading(2**31)": "OverflowError: a text of up to 2147483648 code units is too long",
    "m.from_handle(handles.MutableStringRef())": "ValueError: handle is null",
    "handles.ZRStringDestroy(s)": REFUSED.replace("PtrArrayDeleteAll: array", "Destroy: string"),
    "handles.ZRStringPtrArrayDeleteAll(a)": REFUSED,
    "handles.ZRStringDestroy(mutable.contents)": "TypeError: ZRStringDestroy: string must be a "
    "handle",
    "handles.ZRStringGetLength.result(m), handles.ZRMutableStringTrim(s)": "TypeError: "
    "ZRMutableStringTrim: string: expected MutableStringRef instance instead of _OwnedString",
    "handles.InsertZRStringRefAt.result(a, 0, None)": "InvalidArgument: " + INSERT,
    "handles.ZRStringGetBuffer.result(s)[0], m.from_handle(mutable).clear(), str(m)": "(97, m, '')",
    "copy.copy(s) is s, pickle.loads(pickle.dumps(s)), copy.deepcopy(a)": "(True, s, a)",
    "copy.copy(m).append('!'), pickle.loads(pickle.dumps(m)) == s": "('abXßab!', True)",
    "String('！') < '😀', '😀' > String('！'), s == 1, s != m": "(True, True, False, False)",
    "StringArray.from_handle(handles.ArrayRef.from_param(a))": "a",
    "String('\\ud83d') + '\\ude00', String('a😀')[::-1]": r"('😀', '\ude00\ud83da')",
    "String('\\xa0 a\\x85 ').strip(), s.strip('ab')": r"('\xa0 a\x85', 'Xß')",
    "s.startswith(('x', 'ab')), s.endswith('ab', 5), s.index('X', -4)": "(True, False, 2)",
}

TEXTS = ["a", "b", "ab", "ba", "bab", "ß", "！", "a b", "xab", ""]
RANGES = [(), (1,), (-3,), (0, 4), (2, -1), (-9, 9), (5, 2), (None, 3)]
SLICES = [slice(*r) for r in RANGES[1:]] + [slice(None, None, -1), slice(1, 9, 2), slice(3, 3)]
SLICES += [slice(0, 3, -1), slice(-99, None, -2)]
INDICES = [0, 1, -1, -2, 5, 99, -99, True]
SEARCHED = [(text, *r) for text in TEXTS if text for r in RANGES]
# The methods that str has, and what they are called with: the result is what str gives.
LIKE_STR = {
    **dict.fromkeys("find rfind index rindex count startswith endswith".split(), SEARCHED),
    "replace": [(a, b, *n) for a in TEXTS if a for b in TEXTS for n in [(), (0,), (2,), (-1,)]],
    **dict.fromkeys("upper lower strip __str__ __hash__ __len__".split(), [()]),
    **dict.fromkeys("ljust rjust".split(), [(n, *u) for n in INDICES for u in [(), ("*",)]]),
    **dict.fromkeys("__add__ __eq__ __ne__ __lt__ __le__ __gt__ __ge__".split(), zip(TEXTS)),
    "__contains__": [(text,) for text in TEXTS if text],
    "__mul__": [(n,) for n in INDICES],
    "__getitem__": [(key,) for key in [*INDICES, *SLICES]],
    "__format__": [("",), (">9",), ("^12s",), ("d",)],
}
LIKE_STR = {name: list(arguments) for name, arguments in LIKE_STR.items()}
# Edits of a mutable string, with the same edits of a list of units; and edits of arrays and lists.
EDITS = {
    "m[key] = text[0]": "m[key] = text[0]",
    "m[cut] = text": "m[cut] = list(text)",
    "del m[key]": "del m[key]",
    "del m[cut]": "del m[cut]",
    "m.insert(key, text)": "m[key:key] = list(text)",
    "m.append(text)": "m += list(text)",
    "m += m": "m += m[:]",
    "m.reverse(cut.start, cut.stop)": "cut = slice(cut.start, cut.stop)\nm[cut] = m[cut][::-1]",
    "m.find_and_replace('a', text)": "m[:] = ''.join(m).replace('a', text)",
    "m.pad_leading(9, '-')": "m[:0] = '-' * (9 - len(m))",
    "m.pad_trailing(9)": "m[:] = ''.join(m).ljust(9)",
    "m.truncate(4)": "del m[4:]",
}
ARRAY_EDITS = (
    "a[key] = text", "a[cut] = [text, text]", "del a[key]", "del a[cut]", "a.insert(key, text)",
    "a.append(text)", "a += [text]", "a.extend(a)", "a.reverse()", "a.pop(key)", "a.remove(text)",
    "a.clear()",
)  # fmt: skip


def outcome(call, *arguments):
    try:
        result = call(*arguments)
    except Exception as error:
        return type(error)
    if result is NotImplemented:  # a TypeError of the operator
        return TypeError
    return str(result) if isinstance(result, zrstring.BaseString) else result


def check_that_the_library_has_the_same(array):
    entries = [handles.GetZRStringRefAt.result(array, index) for index in range(len(array))]
    found = [ctypes.cast(entry, ctypes.c_void_p).value for entry in entries]
    assert found == [string.address for string in array], f"the library's array is not {array}"
    assert handles.ZRStringPtrArraySize.result(array) == len(array), f"more than {array}"


class Package(unittest.TestCase):
    maxDiff = None  # what a child process printed

    def test_calls(self):
        for call, expected in CALLS.items():
            s = String("abXßab")
            names = {"s": s, "m": MutableString(s), "a": StringArray([s])}
            names["mutable"] = handles.MutableStringRef.from_param(names["m"])
            with self.subTest(call):
                try:
                    found = eval(call, globals() | names)
                except Exception as error:
                    self.assertEqual(f"{type(error).__name__}: {error}", expected)
                else:
                    self.assertEqual(found, eval(expected, names))
                self.assertEqual(str(s), "abXßab")

    def test_methods_give_what_str_gives(self):
        texts = ["", "abxabb a", "  bab！ßa\t", "Xab" * 9, "a" * 40000]
        for (name, calls), text in itertools.product(LIKE_STR.items(), texts):
            for kind, arguments in itertools.product((String, MutableString), calls):
                if (kind, name) == (MutableString, "__hash__"):
                    continue
                with self.subTest(f"{kind.__name__}({text[:20]!r}).{name}{arguments}"):
                    expected = outcome(getattr(text, name), *arguments)
                    found = outcome(getattr(kind(text), name), *arguments)
                    self.assertEqual(found, expected)

    def check_edits(self, edits, name, make):
        randoms = random.Random(1)
        for number in range(6000):
            if number % 8 == 0:
                model = randoms.choices("abß！x", k=randoms.randrange(12))
                edited = make(model)
            edit, same = randoms.choice(edits)
            values = [randoms.choice(values) for values in (INDICES, SLICES, TEXTS)]
            names = dict(zip(("key", "cut", "text"), values))
            before = f"{model} {edit} {values}"
            found = outcome(exec, edit, {name: edited, **names})
            expected = outcome(exec, same, {name: model, **names})
            self.assertEqual((list(map(str, edited)), found), (model, expected), before)
            yield edited

    def test_edits_are_those_of_a_list_of_units(self):
        list(self.check_edits(list(EDITS.items()), "m", lambda m: MutableString("".join(m))))

    def test_array_is_a_list_and_the_library_has_the_same_strings(self):
        for array in self.check_edits(list(zip(ARRAY_EDITS, ARRAY_EDITS)), "a", StringArray):
            check_that_the_library_has_the_same(array)

    def test_reading_is_not_disturbed_by_edits(self):
        def edited(handle, buffer=_strings._buffer):
            address = buffer(handle)
            handles.ZRMutableStringSetToZRString.result(text, other, 0, -1)
            return address

        text, other = MutableString("as it was" * 9999), String("edited" * 9999)
        sub, find = MutableString("aa"), _strings._find
        with unittest.mock.patch.object(_strings, "_buffer", edited):
            self.assertEqual(str(text), "as it was" * 9999)
        with unittest.mock.patch.object(_strings, "_find", lambda *a: sub.set("a") and find(*a)):
            self.assertEqual(String("aaa").count(sub), 1)

    def test_array_is_edited_by_what_its_edits_destroy_and_survives_interruptions(self):
        index = unittest.mock.MagicMock(**{"__index__.side_effect": [0, 1]})
        array = StringArray("ab")
        self.assertEqual((array.pop(index), array), ("a", ["b"]))  # takes the index only once
        array, growing = StringArray("ab"), unittest.mock.MagicMock()
        growing.__index__.side_effect = lambda: array.append("c") or 1
        array[growing:] = "x"
        self.assertEqual(array, ["a", "x"])
        for edit in ("del a[0]", "a.clear()", "a[0] = 'x'", "a[:] = 'xy'", "a.remove('one')"):
            array = StringArray(["one", "two"])
            weakref.finalize(array[0], array.append, "gone")
            exec(edit, {"a": array})
            check_that_the_library_has_the_same(array)
            self.assertEqual(str(array[-1]), "gone")
        interrupted = unittest.mock.Mock(wraps=_arrays._push_back)
        interrupted.side_effect = [KeyboardInterrupt] + [unittest.mock.DEFAULT] * 9
        with unittest.mock.patch.object(_arrays, "_push_back", interrupted):
            self.assertRaises(KeyboardInterrupt, array.extend, "abc")
        check_that_the_library_has_the_same(array)
        with self.assertRaises(RuntimeError):  # as from a finalizer during an edit
            array._edit(lambda: array.append("x"))

    def test_a_string_keeps_the_capsule_of_its_handle(self):
        types = ctypes.py_object, handles.StringRef, ctypes.c_char_p, ctypes.c_void_p
        owner = MutableString("text")
        new = ctypes.PYFUNCTYPE(*types)(("PyCapsule_New", ctypes.pythonapi))
        capsule = new(owner, b"ZRMutableStringRef__", None)
        references = sys.getrefcount(capsule)
        string = MutableString.from_handle(capsule)
        self.assertGreater(sys.getrefcount(capsule), references)
        self.assertEqual((string.append("!"), owner), ("text!", "text!"))

    def test_every_unit_passes_both_ways(self):
        units = "".join(map(chr, range(0xFFFF, -1, -1)))
        self.assertEqual((str(String(units)), list(MutableString(units))), (units, list(units)))

    def test_functions_name_the_parameter_of_a_wrong_type(self):
        for text in (String("ab").upper(), String("a") + "b", String("ab")[:1], String("a") * 2):
            self.assertRaises(TypeError, handles.ZRMutableStringTrim, text)
        out = handles.MutableStringRef()
        for pointer in (out, ctypes.byref(out), ctypes.pointer(out)):
            self.assertRaises(TypeError, handles.ZRStringCreateCopy, String(), pointer)
        numbers = (handles.Long, handles.ULong, handles.Unit)
        for function in handles.FUNCTIONS.values():
            valid = [0 if kind in numbers else None for kind in function.parameters.values()]
            self.assertGreater(function(*valid), 0)
            for place, name in enumerate(function.parameters):
                for wrong in (object(), 2**32 if valid[place] == 0 else 5, "x", []):
                    with self.assertRaisesRegex((TypeError, ValueError), f": {name}: "):
                        function(*valid[:place], wrong, *valid[place + 1 :])

    def child(self, *arguments, **names):
        command, environment = [sys.executable, *arguments], {**os.environ, **names}
        return subprocess.run(command, capture_output=True, text=True, env=environment)

    def test_nothing_crashes_the_interpreter(self):
        for seed in range(2):
            done = self.child(__file__, "fuzz", str(seed))
            self.assertEqual((done.returncode, done.stderr), (0, ""), f"seed {seed}")

    def test_objects_are_destroyed_once(self):
        done = self.child("-c", ALIVE_AT_EXIT, PYTHONPATH=os.pathsep.join(sys.path))
        made = [line[1:] for line in done.stdout.splitlines() if line[0] == "+"]
        destroyed = [line[1:] for line in done.stdout.splitlines() if line[0] == "-"]
        self.assertEqual((sorted(destroyed), done.stderr), (sorted(made), ""))
        self.assertGreater(len(made), 10)

    def test_a_library_that_is_none_gives_a_sentence(self):
        for file, what in (
            ("/missing.so", r"cannot load the ZRString library \(/missing.so: .*; install"),
            ("/", "cannot load the ZRString library: / is a folder; install"),
            ("libc.so.6", "libc.so.6 is not the ZRString library: it has no ZRStringCreate"),
        ):
            done = self.child("-c", "import zrstring", ZRSTRING_LIBRARY=file)
            self.assertRegex(done.stderr, "\nImportError: " + what)


ALIVE_AT_EXIT = """
import package_test, threading
from zrstring import MutableString, String, StringArray
package_test.watch_objects()
kept = [StringArray("ab"), MutableString("c"), [String("d") + "e"]]
kept.append(kept)
thread = threading.Thread(target=lambda: kept.append(kept.pop(1).upper()))
thread.start()
thread.join()
gone = [StringArray("fgh")]
gone.append(gone)
del gone
"""
EXPECTED = (TypeError, ValueError, LookupError, AttributeError, OverflowError, MemoryError)


class Evil:
    """Edits what it is an argument of."""

    def __init__(self, edited):
        self.edited = edited

    def __index__(self):
        self.edited.clear()
        return 1

    def __iter__(self):
        return iter(["evil", self.__index__()])


def fuzz(seed):
    limited = "asan" not in os.environ.get("LD_PRELOAD", "")  # which needs terabytes of addresses
    if limited:
        resource.setrlimit(resource.RLIMIT_AS, (2**30, 2**30))
    randoms = random.Random(seed)
    strings, mutables, arrays = String("aß😀b"), MutableString("xyz"), StringArray(["a", "b"])
    values = [
        None, True, 0, 1, -1, 7, 2**31 - 1, 2**31, -(2**40), 1.5, "", "a", "ß😀", "\ud800", b"a",
        bytearray(b"b"), memoryview(b"c"), [], ["a"], [5], ("a", "b"), {}, object(), slice(1, 2),
        slice(None, None, -1), slice("a"), slice(2**70, None, 2), String, strings, mutables, arrays,
        Evil(mutables), Evil(arrays), handles.StringRef(), handles.Long(3), ctypes.c_void_p(8),
        ctypes.create_string_buffer(8), iter("ab"), lambda *_: "a", ">9", "__class__",
    ]  # fmt: skip
    targets = (strings, mutables, arrays, String, MutableString, StringArray)
    methods = [(target, name) for target in targets for name in dir(target)]
    methods = [(target, name) for target, name in methods if name[0] != "_" or name[1] == "_"]
    values = [value for value in values if limited or value != 2**31 - 1]
    for _ in range(10000):
        target, name = randoms.choice(methods)
        arguments = randoms.choices(values, k=randoms.randrange(5))
        try:
            getattr(target, name)(*arguments)
        except (*EXPECTED, ctypes.ArgumentError):  # the latter if `self` is something else
            pass
        if len(mutables) > 100:
            mutables.clear()
        if len(arrays) > 100:
            arrays.clear()

    def hammer(randoms):
        for _ in range(2000):
            text, key = randoms.choice(["", "a", "b" * 5000, mutables]), randoms.choice(SLICES)
            method = getattr(mutables, randoms.choice("set append __str__ count __eq__".split()))
            method(*[text] * (method.__name__ != "__str__"))
            try:
                edit = randoms.choice(["a.extend([t] * 20)", "del a[k]", "a.insert(2, t)", "a[:]"])
                exec(edit, globals(), {"a": arrays, "t": text, "k": key})
                mutables[key] = text
                list(mutables[key])
            except ValueError:
                pass
            if len(mutables) > 20000:
                mutables.clear()
                with arrays._lock:
                    check_that_the_library_has_the_same(arrays)
                del arrays[9:]

    sys.setswitchinterval(1e-6)
    mutables, arrays = MutableString(), StringArray()
    with concurrent.futures.ThreadPoolExecutor(4) as pool:
        list(pool.map(hammer, [random.Random(seed + number) for number in range(4)]))

    if not limited:
        return
    pages = int(pathlib.Path("/proc/self/statm").read_text().split()[0])
    resource.setrlimit(resource.RLIMIT_AS, (pages * resource.getpagesize() + 2**26, 2**30))
    grown = MutableString("ab" * 40000)
    shared = String(grown)
    edits = ["grown *= 2"] * 20 + ["grown.replace('a', 'long')", "String(str(grown) * 9)"]
    edits += ["array.extend(array._strings[::3])"] * 50
    names = {"grown": grown, "String": String, "array": StringArray(["a"] * 9)}
    failed = {edit for edit in edits if outcome(exec, edit, names) == MemoryError}
    assert failed == set(edits) and grown[-1] == "b" and len(shared) == 80000, failed


def watch_objects():
    """Prints +NUMBER for each object of the library that is made, -NUMBER when it is destroyed."""

    def made(self):
        type(self).__base__.__init__(self)
        self.number = next(numbers)
        os.write(1, b"+%d\n" % self.number)

    numbers = itertools.count()
    for kind in (_strings._OwnedString, _strings._OwnedMutableString, _arrays._OwnedArray):
        kind.__init__ = made
    for kind in (_strings._OwnedString, _arrays._OwnedArray):

        def destroyed(handle, destroy=kind.__del__.__defaults__[0], write=os.write):
            write(1, b"-%d\n" % handle.number)
            destroy(handle)

        kind.__del__.__defaults__ = (destroyed,)


def load_tests(loader, tests, pattern):
    for module in (zrstring, handles):
        tests.addTests(doctest.DocTestSuite(module))
    tests.addTests(doctest.DocFileSuite(str(PAGE), module_relative=False, encoding="utf-8"))
    return tests


if __name__ == "__main__":
    if sys.argv[1:2] == ["fuzz"]:
        fuzz(int(sys.argv[2]))
    else:
        unittest.main(verbosity=2)
