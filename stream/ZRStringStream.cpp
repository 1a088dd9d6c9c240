#include <ZRString/ZRStringStream.h>

#include <cstddef>
#include <memory>

namespace {

template <typename Value>
void Write(Velmar::IStream& stream, const Value& value) {
  static_cast<Velmar::ITransfer<Value>&>(stream).Write(&value);
}

/// Reads the next value; 0 if the stream stores none.
template <typename Value>
void Read(Velmar::IStream& stream, Value& value) {
  value = 0;
  static_cast<Velmar::ITransfer<Value>&>(stream).Read(&value);
}

template <typename Value>
Value Read(Velmar::IStream& stream) {
  Value value;
  Read(stream, value);
  return value;
}

void WriteRecord(Velmar::IStream& stream, const ZRString& string) {
  const ZRLong length = string.GetLength();
  Write(stream, length);
  const unsigned short* const units = string.GetBuffer();
  for (ZRLong i = 0; i < length; ++i)
    Write(stream, units[i]);
}

/// Reads the units of a record.
///
/// `length` may be damaged: if it is negative, the allocation throws, and memory is touched unit
/// by unit.
std::unique_ptr<unsigned short[]> ReadUnits(Velmar::IStream& stream, ZRLong length) {
  const auto count = static_cast<std::size_t>(length);
  std::unique_ptr<unsigned short[]> units(new unsigned short[count]);
  for (ZRLong i = 0; i < length; ++i)
    Read(stream, units[i]);
  return units;
}

void ReadRecord(Velmar::IStream& stream, ZRStringMutator& string) {
  const auto length = Read<ZRLong>(stream);
  if (length < 1)
    return;
  const auto units = ReadUnits(stream, length);
  string.SetTo(units.get(), length);
}

}  // namespace

Velmar::IStream& operator<<(Velmar::IStream& stream, const ZRString& string) {
  WriteRecord(stream, string);
  return stream;
}

Velmar::IStream& operator>>(const ZRString& string, Velmar::IStream& stream) {
  WriteRecord(stream, string);
  return stream;
}

Velmar::IStream& operator>>(Velmar::IStream& stream, ZRStringMutator& string) {
  ReadRecord(stream, string);
  return stream;
}

Velmar::IStream& operator<<(ZRStringMutator& string, Velmar::IStream& stream) {
  ReadRecord(stream, string);
  return stream;
}

Velmar::IStream& operator<<(Velmar::IStream& stream, ZRStringPtrArray& array) {
  Write(stream, array.Size());
  for (auto entry = array.Begin(); entry != array.End(); ++entry)
    WriteRecord(stream, **entry);
  return stream;
}

Velmar::IStream& operator>>(Velmar::IStream& stream, ZRStringPtrArray& array) {
  for (auto remaining = Read<ZRULong>(stream); remaining > 0; --remaining) {
    const auto length = Read<ZRLong>(stream);
    const auto units = ReadUnits(stream, length);
    auto string = std::make_unique<ZRString>(units.get(), length);
    array.PushBack(string.get());
    string.release();
  }
  return stream;
}
