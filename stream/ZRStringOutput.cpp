#include <ZRString/ZRStringOutput.h>

#include <cstddef>
#include <memory>

std::basic_ostream<unsigned short>& SerializeBasicStream(
    const ZRString& string, std::basic_ostream<unsigned short>& stream) {
  const ZRLong length = string.GetLength();
  const std::unique_ptr<unsigned short[]> units(
      new unsigned short[static_cast<std::size_t>(length) + 1]);
  string.Extract(0, length, units.get(), 0);
  return stream << static_cast<const unsigned short*>(units.get());
}

std::basic_ostream<unsigned short>& operator<<(std::basic_ostream<unsigned short>& stream,
                                               const ZRString& string) {
  return SerializeBasicStream(string, stream);
}

std::basic_ostringstream<unsigned short>& operator<<(
    std::basic_ostringstream<unsigned short>& stream, const ZRString& string) {
  return dynamic_cast<std::basic_ostringstream<unsigned short>&>(
      SerializeBasicStream(string, stream));
}

std::basic_ostringstream<unsigned short>& operator<<(
    std::basic_ostringstream<unsigned short>& stream, const char* text) {
  return stream << ZRString(text, 0, -1);
}
