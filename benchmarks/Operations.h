#ifndef ZRSTRING_BENCHMARKS_OPERATIONS_H
#define ZRSTRING_BENCHMARKS_OPERATIONS_H

#include <vector>

#include "Texts.h"

/// A call that this library offers and the ICU call that it maps to, on the same texts.
///
/// Both are reached through a pointer, so that neither is inlined into a loop or folded over the
/// values in Texts. Where the library resolves a length of -1, the ICU call is given the length.
struct Operation {
  const char* name;
  ZRLong (*icu)(Texts&);
  ZRLong (*library)(Texts&);
  Before before = Before::kWhateverIsThere;
};

const std::vector<Operation>& Queries();          ///< Members of ZRString.
const std::vector<Operation>& Edits();            ///< Members of ZRStringMutator.
const std::vector<Operation>& HandleFunctions();  ///< Entry points that call one of these members.

/// Calls that make an object, and with it allocate more than the ICU call does.
const std::vector<Operation>& Creations();

#endif
