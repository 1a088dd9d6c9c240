#ifndef ZRSTRING_EXAMPLES_LITTLEENDIANSTREAM_H
#define ZRSTRING_EXAMPLES_LITTLEENDIANSTREAM_H

#include <Velmar/IStream.h>

#include <cstddef>
#include <stdexcept>
#include <vector>

//! [stream]
/// A stream in memory: little-endian values of 4, 4 and 2 bytes, whatever the machine.
class LittleEndianStream : public Velmar::IStream {
 public:
  std::vector<unsigned char> bytes;

  void Write(const ZRLong* value) override { Put(static_cast<ZRULong>(*value), 4); }
  void Write(const ZRULong* value) override { Put(*value, 4); }
  void Write(const unsigned short* value) override { Put(*value, 2); }

  void Read(ZRLong* value) override { *value = static_cast<ZRLong>(Get(4)); }
  void Read(ZRULong* value) override { *value = Get(4); }
  void Read(unsigned short* value) override { *value = static_cast<unsigned short>(Get(2)); }

  /// Whether everything has been read.
  bool AtEnd() const { return position_ == bytes.size(); }

 private:
  void Put(ZRULong value, int size) {
    for (int i = 0; i < size; ++i, value >>= 8)
      bytes.push_back(value & 0xFF);
  }

  ZRULong Get(int size) {
    ZRULong value = 0;
    for (int i = 0; i < size; ++i)
      value |= static_cast<ZRULong>(Next()) << 8 * i;
    return value;
  }

  unsigned char Next() {
    if (AtEnd())
      throw std::runtime_error("the data ends inside a record");
    return bytes[position_++];
  }

  std::size_t position_ = 0;
};
//! [stream]

#endif
