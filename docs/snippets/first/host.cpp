#include <ZRString/ZRStringHandles.h>
#include <ZRString/ZRStringInterop.h>
#include <ZRString/ZRStringStream.h>

#include <iostream>
#include <sstream>

// The host's own files. This one keeps values as text.
class File : public Velmar::IStream {
 public:
  File() { text_.exceptions(std::ios::badbit); }  // running out of memory throws
  void Write(const ZRLong* value) override { text_ << *value << ' '; }
  void Write(const ZRULong* value) override { text_ << *value << ' '; }
  void Write(const unsigned short* value) override { text_ << *value << ' '; }
  void Read(ZRLong* value) override { text_ >> *value; }
  void Read(ZRULong* value) override { text_ >> *value; }
  void Read(unsigned short* value) override { text_ >> *value; }

 private:
  std::stringstream text_;
};

// What a plug-in in C or another language does with a handle.
extern "C" ZRLong PlugIn(ZRMutableStringRef__* text) {
  return ZRMutableStringToUpper(text);
}

int main() try {
  ZRStringMutator title(u"déjà vu"_zr);

  // Makes ICU load its data while there is memory.
  title.ICompare(0, kZRToEnd, title, 0, kZRToEnd, kZRCompareCollated);
  ZRStringMutator(u"é"_zr).Normalize(kZRNormalizationNFKC);

  const ZRString before(title);  // for "undo": shares the text
  if (PlugIn(title.GetZRMutableStringRef()) != kZRStatusSuccess)
    return 1;

  File file;
  file << before << title;
  ZRStringMutator first, second;
  file >> first >> second;
  std::cout << first << ", then " << second << '\n';
} catch (const std::bad_alloc&) {
  std::cerr << "out of memory\n";
  return 2;
}
