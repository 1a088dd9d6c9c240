#ifndef VELMAR_ISTREAM_H
#define VELMAR_ISTREAM_H

#include <ZRString/ZRTypes.h>

/// The host's binary stream interface: what a host implements to have strings and arrays saved and
/// restored.
namespace Velmar {

/// Moves values of one type between memory and a stream, one value a call.
///
/// How a value is laid out in the stream's medium is the stream's own affair. An operation that
/// fails may throw; the exception passes through the library's operators unchanged.
template <typename Value>
class ITransfer {
 public:
  /// Never called by this library.
  virtual ~ITransfer() = default;

  /// Writes `*value`.
  virtual void Write(const Value* value) = 0;

  /// Stores the next value in `*value`. A stream that has none may leave `*value` as it is; the
  /// library has put 0 there.
  virtual void Read(Value* value) = 0;
};

/// A binary stream: one transfer interface each for lengths, counts and code units.
class IStream : public ITransfer<ZRLong>,
                public ITransfer<ZRULong>,
                public ITransfer<unsigned short> {};

}  // namespace Velmar

#endif
