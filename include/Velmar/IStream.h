#ifndef VELMAR_ISTREAM_H
#define VELMAR_ISTREAM_H

#include <ZRString/ZRTypes.h>

/// The host application's binary stream interface. A host that saves and restores strings and
/// arrays implements it. Velmar is the application that this library was made for; any other
/// program can implement the interface as well.
namespace Velmar {

/// Moves values of one type between memory and a stream, one value for each call.
///
/// The stream decides how a value is encoded in its medium. An operation that fails may throw; the
/// exception passes through the library's operators unchanged.
template <typename Value>
class ITransfer {
 public:
  /// Never called by this library.
  virtual ~ITransfer() = default;

  /// Writes `*value`.
  virtual void Write(const Value* value) = 0;

  /// Stores the next value in `*value`. A stream that has no more values may leave `*value`, which
  /// the library has set to 0, unchanged.
  virtual void Read(Value* value) = 0;
};

/// A binary stream: one transfer interface each for lengths, counts and code units.
class IStream : public ITransfer<ZRLong>,
                public ITransfer<ZRULong>,
                public ITransfer<unsigned short> {};

}  // namespace Velmar

#endif
