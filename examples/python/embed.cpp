// A program in C++ that runs Python, where both edit one string without converting its text. Python
// gets the string's handle in a capsule, whose name says what it is; C++ gets the address of a
// string that Python made. Each step prints a string.
//
// Needs Python's development files, and the package `zrstring` where Python finds it.

#define PY_SSIZE_T_CLEAN
#include <Python.h>

#include <ZRString/ZRStringInterop.h>
#include <ZRString/ZRStringMutator.h>
#include <ZRString/ZRTypes.h>

#include <cstdlib>
#include <iostream>
#include <memory>

namespace {

const char kScript[] = R"(
from zrstring import MutableString, String

letter = MutableString.from_handle(capsule)  # the program's string, not a copy
letter.find_and_replace("NAME", "Zoë").append("\nRegards")
letter[:4] = "Hello"
print("Python:", str(letter).splitlines(), flush=True)

signature = String(letter)[-7:].upper()      # a string of Python's, which the program will read
)";

struct Release {
  void operator()(PyObject* object) const { Py_DECREF(object); }
};
using Object = std::unique_ptr<PyObject, Release>;

/// Takes a new reference. Python's error, if there is one, ends the program.
Object Checked(PyObject* made) {
  if (!made) {
    PyErr_Print();
    std::exit(2);
  }
  return Object(made);
}

}  // namespace

int main() {
  // The program's string must exist as long as Python's object for it, that is, until Python ends.
  ZRStringMutator letter(u"Dear NAME,"_zr);
  Py_Initialize();
  {
    const Object names = Checked(PyDict_New());
    const Object capsule =
        Checked(PyCapsule_New(letter.GetZRMutableStringRef(), "ZRMutableStringRef__", nullptr));
    PyDict_SetItemString(names.get(), "capsule", capsule.get());
    Checked(PyRun_String(kScript, Py_file_input, names.get(), names.get()));

    // Python's string, while `names` keeps it alive: a string that shares its text.
    PyObject* const made = PyDict_GetItemString(names.get(), "signature");
    const Object address = Checked(PyObject_GetAttrString(made, "address"));
    const ZRString signature(static_cast<ZRStringRef__*>(PyLong_AsVoidPtr(address.get())));
    std::cout << "C++: " << signature << std::endl;

    // What C++ edits, Python sees.
    letter.SetTo(signature, 0, kZRToEnd) += u'!';
    Checked(PyRun_String("print('Python:', letter, flush=True)", Py_file_input, names.get(),
                         names.get()));
  }
  return Py_FinalizeEx() < 0 ? 2 : 0;
}
