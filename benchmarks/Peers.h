// The operations that are timed, as a user of each string class writes them.
#ifndef ZRSTRING_BENCHMARKS_PEERS_H
#define ZRSTRING_BENCHMARKS_PEERS_H

#include <Velmar/IStream.h>
#include <ZRString/ZRStringInterop.h>
#include <ZRString/ZRStringMutator.h>
#include <ZRString/ZRStringPtrArray.h>
#include <ZRString/ZRStringStream.h>
#include <unicode/coll.h>
#include <unicode/normalizer2.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#ifdef ZRSTRING_HAVE_QT
#include <QCollator>
#include <QDataStream>
#include <QIODevice>
#include <QString>
#endif

// Each peer gives the operations that are compared under the same names, as a user of its string
// would write them: case, normalization, UTF-8 and collation (kUnicode), 8-bit text (kCodePage) and
// binary records (kRecords) where it has them.

constexpr const char* kLocale = "fr_FR";

/// A binary stream in memory. Its room doubles and is not filled, like that of QDataStream's
/// buffer.
class MemoryStream final : public Velmar::IStream {
 public:
  void Write(const ZRLong* value) override { Put(value); }
  void Write(const ZRULong* value) override { Put(value); }
  void Write(const unsigned short* value) override { Put(value); }
  void Read(ZRLong* value) override { Get(value); }
  void Read(ZRULong* value) override { Get(value); }
  void Read(unsigned short* value) override { Get(value); }
  void Rewind() { next_ = bytes_.get(); }

 private:
  struct Free {
    void operator()(char* bytes) const { std::free(bytes); }
  };

  template <typename Value>
  void Put(const Value* value) {
    if (static_cast<std::size_t>(end_ - next_) < sizeof *value)
      Grow();
    std::memcpy(next_, value, sizeof *value);
    next_ += sizeof *value;
  }

  template <typename Value>
  void Get(Value* value) {
    std::memcpy(value, next_, sizeof *value);
    next_ += sizeof *value;
  }

  void Grow() {
    const auto size = static_cast<std::size_t>(next_ - bytes_.get());
    const std::size_t room = 2 * size + 64;
    auto* const grown = static_cast<char*>(std::realloc(bytes_.release(), room));
    if (!grown)
      std::abort();
    bytes_.reset(grown);
    next_ = grown + size;
    end_ = grown + room;
  }

  std::unique_ptr<char, Free> bytes_;
  char* next_ = nullptr;
  char* end_ = nullptr;
};

struct ZRPeer {
  using Constant = ZRString;
  using String = ZRStringMutator;
  static constexpr const char* kName = "ZRString";
  static constexpr bool kUnicode = true, kCodePage = true, kRecords = true;

  static const unsigned short* Units(std::u16string_view text) {
    return reinterpret_cast<const unsigned short*>(text.data());
  }
  static String Make(std::u16string_view text) {
    return String(Units(text), 0, static_cast<ZRLong>(text.size()));
  }
  static Constant FromBytes(const std::string& text) {
    return Constant(text.data(), 0, static_cast<ZRLong>(text.size()));
  }
  static auto FromUtf8(const std::string& text) { return ::FromUtf8(text); }
  static auto ToUtf8(const String& text) { return ::ToUtf8(text); }
  static auto Find(const String& text, const String& pattern) {
    return text.Find(pattern, 0, kZRToEnd, 0, kZRToEnd);
  }
  static auto Compare(const String& a, const String& b) {
    return a.Compare(0, kZRToEnd, b, 0, kZRToEnd);
  }
  static auto ICompare(const String& a, const String& b) {
    return a.ICompare(0, kZRToEnd, b, 0, kZRToEnd, kZRCompareIgnoreCase);
  }
  static String Upper(const String& text) {
    String result(text);
    result.ToUpper();
    return result;
  }
  static String Nfc(const String& text) {
    String result(text);
    result.Normalize(kZRNormalizationNFC);
    return result;
  }
  static void Append(String& text, char16_t unit) { text += static_cast<unsigned short>(unit); }
  template <typename Fill>
  static void Build(String& text, int length, Fill fill) {
    fill(text.GetBuffer(length));
    text.ReleaseBuffer(length);
  }
  struct Collated {
    bool operator()(const String& a, const String& b) const {
      return a.ICompare(0, kZRToEnd, b, 0, kZRToEnd, kZRCompareCollated) < 0;
    }
  };

  struct Records {
    explicit Records(const std::vector<String>& words) {
      for (const String& word : words)
        array.PushBack(new ZRString(word));
      Write(written);
    }
    ~Records() { array.DeleteAll(); }
    void Write() {
      MemoryStream stream;
      Write(stream);
    }
    void Read() {
      ZRStringPtrArray read;
      written.Rewind();
      written >> read;
      read.DeleteAll();
    }
    void Write(MemoryStream& stream) { stream << array; }

    ZRStringPtrArray array;
    MemoryStream written;
  };
};

struct IcuPeer {
  using Constant = icu::UnicodeString;
  using String = icu::UnicodeString;
  static constexpr const char* kName = "ICU";
  static constexpr bool kUnicode = true, kCodePage = true, kRecords = false;

  static String Make(std::u16string_view text) {
    return String(text.data(), static_cast<std::int32_t>(text.size()));
  }
  static String FromBytes(const std::string& text) {
    return String(text.data(), static_cast<std::int32_t>(text.size()), "windows-1252");
  }
  static auto FromUtf8(const std::string& text) { return String::fromUTF8(text); }
  static auto ToUtf8(const String& text) {
    std::string bytes;
    return text.toUTF8String(bytes);
  }
  static auto Find(const String& text, const String& pattern) { return text.indexOf(pattern); }
  static auto Compare(const String& a, const String& b) { return a.compare(b); }
  static auto ICompare(const String& a, const String& b) { return a.caseCompare(b, 0); }
  static String Upper(const String& text) {
    String result(text);
    result.toUpper();
    return result;
  }
  static String Nfc(const String& text) {
    UErrorCode status = U_ZERO_ERROR;
    return icu::Normalizer2::getNFCInstance(status)->normalize(text, status);
  }
  static void Append(String& text, char16_t unit) { text += unit; }
  template <typename Fill>
  static void Build(String& text, int length, Fill fill) {
    fill(text.getBuffer(length));
    text.releaseBuffer(length);
  }
  struct Collated {
    Collated() {
      UErrorCode status = U_ZERO_ERROR;
      collator.reset(icu::Collator::createInstance(icu::Locale(kLocale), status));
      if (U_FAILURE(status))
        std::abort();
    }
    bool operator()(const String& a, const String& b) const { return collator->compare(a, b) < 0; }

    std::shared_ptr<const icu::Collator> collator;
  };
};

#ifdef ZRSTRING_HAVE_QT
struct QtPeer {
  using Constant = QString;
  using String = QString;
  static constexpr const char* kName = "QString";
  static constexpr bool kUnicode = true, kCodePage = false, kRecords = true;

  static String Make(std::u16string_view text) {
    return String(reinterpret_cast<const QChar*>(text.data()), static_cast<int>(text.size()));
  }
  static auto FromUtf8(const std::string& text) {
    return String::fromUtf8(text.data(), static_cast<int>(text.size()));
  }
  static auto ToUtf8(const String& text) { return text.toUtf8(); }
  static auto Find(const String& text, const String& pattern) { return text.indexOf(pattern); }
  static auto Compare(const String& a, const String& b) { return a.compare(b); }
  static auto ICompare(const String& a, const String& b) {
    return a.compare(b, Qt::CaseInsensitive);
  }
  static String Upper(const String& text) { return text.toUpper(); }
  static String Nfc(const String& text) { return text.normalized(QString::NormalizationForm_C); }
  static void Append(String& text, char16_t unit) { text += QChar(unit); }
  template <typename Fill>
  static void Build(String& text, int length, Fill fill) {
    text.resize(length);
    fill(text.data());
  }
  struct Collated {
    bool operator()(const String& a, const String& b) const { return collator(a, b); }

    QCollator collator{QLocale(kLocale)};
  };

  struct Records {
    explicit Records(const std::vector<String>& words) : strings(words.begin(), words.end()) {
      Write(&written);
    }
    void Write() {
      QByteArray bytes;
      Write(&bytes);
    }
    void Read() {
      QDataStream stream(written);
      QList<QString> read;
      stream >> read;
    }
    void Write(QByteArray* bytes) {
      QDataStream stream(bytes, QIODevice::WriteOnly);
      stream << strings;
    }

    QList<QString> strings;
    QByteArray written;
  };
};
#endif

struct StdPeer {
  using Constant = std::u16string;
  using String = std::u16string;
  static constexpr const char* kName = "std::u16string";
  static constexpr bool kUnicode = false, kCodePage = false, kRecords = false;

  static String Make(std::u16string_view text) { return String(text); }
  static auto Find(const String& text, const String& pattern) { return text.find(pattern); }
  static auto Compare(const String& a, const String& b) { return a.compare(b); }
  static void Append(String& text, char16_t unit) { text += unit; }
  template <typename Fill>
  static void Build(String& text, int length, Fill fill) {
    text.resize(static_cast<std::size_t>(length));
    fill(text.data());
  }
};

#endif
