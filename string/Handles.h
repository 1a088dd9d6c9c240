#ifndef ZRSTRING_STRING_HANDLES_H
#define ZRSTRING_STRING_HANDLES_H

#include <ZRString/ZRStringHandles.h>
#include <ZRString/ZRStringMutator.h>

// A handle is the address of its object. All casts between strings and their handles are here,
// those of arrays in array/ZRStringPtrArray.cpp.

inline ZRString& StringOf(ZRStringRef__* handle) { return *reinterpret_cast<ZRString*>(handle); }

inline ZRStringMutator& StringOf(ZRMutableStringRef__* handle) {
  return *reinterpret_cast<ZRStringMutator*>(handle);
}

/// The handle of a string; null for null.
inline ZRStringRef__* HandleOf(const ZRString* string) {
  return reinterpret_cast<ZRStringRef__*>(const_cast<ZRString*>(string));
}

inline ZRMutableStringRef__* HandleOf(ZRStringMutator* string) {
  return reinterpret_cast<ZRMutableStringRef__*>(string);
}

/// The status of an invalid parameter; positions count from 1.
constexpr ZRLong StatusOfParameter(ZRLong position) {
  return kZRStatusFirstParameter - 1 + position;
}

#endif
