#ifndef ZRSTRING_EXAMPLES_UTF8_H
#define ZRSTRING_EXAMPLES_UTF8_H

#include <ZRString/ZRString.h>

#include <cstdint>
#include <streambuf>
#include <string_view>
#include <vector>

/// Writes the UTF-16 code units of a 16-bit stream to an 8-bit one as UTF-8. An unpaired surrogate
/// becomes U+FFFD.
class Utf8Buffer : public std::basic_streambuf<unsigned short> {
 public:
  explicit Utf8Buffer(std::streambuf& bytes) : bytes_(bytes) {}
  ~Utf8Buffer() override { Utf8Buffer::sync(); }

 protected:
  int_type overflow(int_type value) override {
    if (traits_type::eq_int_type(value, traits_type::eof()))
      return traits_type::not_eof(value);
    const std::uint32_t unit = traits_type::to_char_type(value);
    if (lead_ != 0) {
      const std::uint32_t lead = lead_;
      lead_ = 0;
      if (unit >= 0xDC00 && unit <= 0xDFFF)
        return Put(0x10000 + ((lead - 0xD800) << 10) + (unit - 0xDC00)) ? value
                                                                        : traits_type::eof();
      if (!Put(kReplacement))
        return traits_type::eof();
    }
    if (unit >= 0xD800 && unit <= 0xDBFF) {
      lead_ = unit;
      return value;
    }
    return Put(unit >= 0xDC00 && unit <= 0xDFFF ? kReplacement : unit) ? value : traits_type::eof();
  }

  int sync() override {
    const bool whole = lead_ == 0 || Put(kReplacement);
    lead_ = 0;
    return whole ? bytes_.pubsync() : -1;
  }

 private:
  static constexpr std::uint32_t kReplacement = 0xFFFD;

  bool Put(std::uint32_t c) {
    if (c < 0x80)
      return PutByte(c);
    if (c < 0x800)
      return PutByte(0xC0 | c >> 6) && PutByte(0x80 | (c & 0x3F));
    if (c < 0x10000)
      return PutByte(0xE0 | c >> 12) && PutByte(0x80 | (c >> 6 & 0x3F)) &&
             PutByte(0x80 | (c & 0x3F));
    return PutByte(0xF0 | c >> 18) && PutByte(0x80 | (c >> 12 & 0x3F)) &&
           PutByte(0x80 | (c >> 6 & 0x3F)) && PutByte(0x80 | (c & 0x3F));
  }

  bool PutByte(std::uint32_t byte) {
    const auto character = static_cast<char>(byte);
    return bytes_.sputc(character) == std::char_traits<char>::to_int_type(character);
  }

  std::streambuf& bytes_;
  std::uint32_t lead_ = 0;
};

/// A string from UTF-8, as the command line gives it. A malformed byte becomes U+FFFD.
inline ZRString FromUtf8(std::string_view bytes) {
  std::vector<unsigned short> units;
  for (std::size_t i = 0; i < bytes.size();) {
    const auto first = static_cast<unsigned char>(bytes[i++]);
    const int following = first < 0x80   ? 0
                          : first < 0xC2 ? -1
                          : first < 0xE0 ? 1
                          : first < 0xF0 ? 2
                          : first < 0xF5 ? 3
                                         : -1;
    std::uint32_t c = following > 0 ? first & (0x3Fu >> following) : first;
    bool valid = following >= 0;
    for (int n = 0; valid && n < following; ++n) {
      valid = i < bytes.size() && (bytes[i] & 0xC0) == 0x80;
      if (valid)
        c = c << 6 | (static_cast<unsigned char>(bytes[i++]) & 0x3Fu);
    }
    static constexpr std::uint32_t kLeast[] = {0, 0x80, 0x800, 0x10000};
    if (!valid || c < kLeast[following] || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF))
      c = 0xFFFD;
    if (c >= 0x10000)
      units.push_back(static_cast<unsigned short>(0xD7C0 + (c >> 10)));
    units.push_back(static_cast<unsigned short>(c >= 0x10000 ? 0xDC00 + (c & 0x3FF) : c));
  }
  return ZRString(units.data(), 0, static_cast<ZRLong>(units.size()));
}

#endif
