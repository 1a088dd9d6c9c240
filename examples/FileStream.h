#ifndef ZRSTRING_EXAMPLES_FILESTREAM_H
#define ZRSTRING_EXAMPLES_FILESTREAM_H

#include <Velmar/IStream.h>

#include <fstream>
#include <stdexcept>
#include <string>
#include <type_traits>

/// A binary stream over a file: little-endian values of 4, 4 and 2 bytes, on every machine.
///
/// A failure throws std::runtime_error with the file's name.
class FileStream : public Velmar::IStream {
 public:
  FileStream(const std::string& path, std::ios::openmode mode)
      : path_(path), file_(path, mode | std::ios::binary) {
    if (!file_)
      throw std::runtime_error("cannot open " + path_);
  }

  void Write(const ZRLong* value) override { Put(*value); }
  void Write(const ZRULong* value) override { Put(*value); }
  void Write(const unsigned short* value) override { Put(*value); }
  void Read(ZRLong* value) override { Get(value); }
  void Read(ZRULong* value) override { Get(value); }
  void Read(unsigned short* value) override { Get(value); }

  /// Ends writing; a failure that was still in the buffer is seen here.
  void Close() {
    file_.close();
    if (!file_)
      throw std::runtime_error("cannot write " + path_);
  }

  /// Ends reading, where the file must end too.
  void ExpectEnd() {
    if (file_.peek() != std::char_traits<char>::eof())
      throw std::runtime_error(path_ + " is damaged: it goes on after its last record");
  }

 private:
  template <typename Value>
  void Put(Value value) {
    auto bits = static_cast<std::make_unsigned_t<Value>>(value);
    for (std::size_t i = 0; i < sizeof bits; ++i)
      file_.put(static_cast<char>(bits >> (8 * i) & 0xFF));
    if (!file_)
      throw std::runtime_error("cannot write " + path_);
  }

  template <typename Value>
  void Get(Value* value) {
    std::make_unsigned_t<Value> bits = 0;
    for (std::size_t i = 0; i < sizeof bits; ++i) {
      const int byte = file_.get();
      if (byte == std::char_traits<char>::eof())
        throw std::runtime_error(path_ + " is damaged: it ends before its records do");
      bits = static_cast<std::make_unsigned_t<Value>>(
          bits | static_cast<std::make_unsigned_t<Value>>(byte) << (8 * i));
    }
    *value = static_cast<Value>(bits);
  }

  std::string path_;
  std::fstream file_;
};

#endif
