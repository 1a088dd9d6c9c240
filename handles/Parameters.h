#ifndef ZRSTRING_HANDLES_PARAMETERS_H
#define ZRSTRING_HANDLES_PARAMETERS_H

#include "string/Handles.h"

// A handle function states its tests as one list, FirstInvalid(...), with one entry per parameter
// in parameter order, so that a parameter's position and its status agree. Only
// InsertZRStringRefAt() departs.

constexpr bool NotNull(const void* pointer) { return pointer != nullptr; }
constexpr bool NotNegative(ZRLong value) { return value >= 0; }
constexpr bool LengthOrToEnd(ZRLong length) { return length >= -1; }
constexpr bool LengthOrToZeroUnit(ZRLong length) { return length >= -1; }
constexpr bool EndOrThroughLast(ZRLong end) { return end >= -1; }
constexpr bool CapacityOrCurrent(ZRLong capacity) { return capacity >= -1; }
constexpr bool AtLeastOne(ZRLong count) { return count >= 1; }
constexpr bool Untested() { return true; }

/// The status of the first entry that is false; kZRStatusSuccess if none is.
template <typename... Entries>
constexpr ZRLong FirstInvalid(Entries... valid) {
  if ((valid && ...))
    return kZRStatusSuccess;
  ZRLong position = 0;
  static_cast<void>(((++position, !valid) || ...));
  return StatusOfParameter(position);
}

#endif
