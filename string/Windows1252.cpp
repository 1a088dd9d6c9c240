#include "string/Windows1252.h"

#include <iterator>

namespace {

constexpr std::uint8_t kFirst = 0x80;

/// The units of the bytes 0x80 to 0x9F; all other bytes have the unit of the same value. So have
/// the five bytes that the code page does not define, as in ICU's converter.
constexpr char16_t kUnits[] = {
    u'\u20AC', 0x81,      u'\u201A', u'\u0192', u'\u201E', u'\u2026', u'\u2020', u'\u2021',
    u'\u02C6', u'\u2030', u'\u0160', u'\u2039', u'\u0152', 0x8D,      u'\u017D', 0x8F,
    0x90,      u'\u2018', u'\u2019', u'\u201C', u'\u201D', u'\u2022', u'\u2013', u'\u2014',
    u'\u02DC', u'\u2122', u'\u0161', u'\u203A', u'\u0153', 0x9D,      u'\u017E', u'\u0178'};

}  // namespace

void DecodeWindows1252(const char* bytes, std::int32_t count, char16_t* units) {
  for (std::int32_t i = 0; i < count; ++i) {
    const auto byte = static_cast<std::uint8_t>(bytes[i]);
    const unsigned index = byte - unsigned{kFirst};
    units[i] = index < std::size(kUnits) ? kUnits[index] : byte;
  }
}
