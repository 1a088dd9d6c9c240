#ifndef ZRSTRING_BENCHMARKS_TIMECALLS_H
#define ZRSTRING_BENCHMARKS_TIMECALLS_H

#include <array>

// Every benchmark is named "what/length of the text/side". The sides of one "what" and length are
// compared with the one called "icu".

/// Within a string object, beyond it, and far beyond it: ICU keeps up to 27 units in the object.
constexpr std::array<int, 3> kTextLengths = {20, 200, 2000};

void RegisterCopies();  ///< Copying and destroying a string.
void RegisterEdits();   ///< Edits as programs make them: loops, edits that undo each other.

#endif
