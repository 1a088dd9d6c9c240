// Compiles the members that programs compile inline, so that the library exports them.
#define ZR_COMPILE_INLINE_MEMBERS
#include <ZRString/ZRStringMutator.h>
