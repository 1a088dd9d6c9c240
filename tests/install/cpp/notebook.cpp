// Keeps two lines of text in a notebook: makes them, edits a copy, saves both to memory, restores
// them and prints them through a stream of 16-bit characters.

#include <ZRString/ZRStringOutput.h>
#include <ZRString/ZRStringStream.h>

#include <cstddef>
#include <cstdio>
#include <cstring>
#include <iomanip>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using Output = std::basic_ostringstream<unsigned short>;

class MemoryStream : public Velmar::IStream {
 public:
  void Write(const ZRLong* value) override { Put(value); }
  void Write(const ZRULong* value) override { Put(value); }
  void Write(const unsigned short* value) override { Put(value); }
  void Read(ZRLong* value) override { Get(value); }
  void Read(ZRULong* value) override { Get(value); }
  void Read(unsigned short* value) override { Get(value); }

  std::size_t Size() const { return bytes_.size(); }

 private:
  template <typename Value>
  void Put(const Value* value) {
    const auto* const first = reinterpret_cast<const unsigned char*>(value);
    bytes_.insert(bytes_.end(), first, first + sizeof *value);
  }

  template <typename Value>
  void Get(Value* value) {
    if (bytes_.size() - position_ < sizeof *value)
      throw std::out_of_range("the notebook ends here");
    std::memcpy(value, &bytes_[position_], sizeof *value);
    position_ += sizeof *value;
  }

  std::vector<unsigned char> bytes_;
  std::size_t position_ = 0;
};

ZRString Text(const char* text) { return ZRString(text, 0, -1); }

void Print(const Output& output) {
  const auto units = output.str();
  for (const unsigned short unit : units)
    unit < 0x80 ? std::printf("%c", unit) : std::printf("\\u%04X", unit);
}

}  // namespace

int main() {
  const ZRString original = Text("  r\xE9sum\xE9 of the day ");
  ZRStringMutator edited(original);
  edited.Trim().FindAndReplace(0, -1, Text("day"), 0, -1, Text("night"), 0, -1).ToUpper();

  MemoryStream stream;
  ZRStringPtrArray lines;
  ZRString kept(original);
  lines.PushBack(&kept);
  lines.PushBack(&edited);
  stream << lines;
  std::printf("saved %u bytes\n", static_cast<unsigned>(stream.Size()));

  ZRStringPtrArray restored;
  stream >> restored;

  Output output;
  for (ZRString* const line : {restored[0], restored[1]}) {
    output << std::left << std::setw(22) << std::setfill<unsigned short>('.') << *line << std::endl;
  }
  output << "original " << (*restored[0] == original ? "kept" : "changed") << ", edited "
         << (*restored[1] == edited ? "restored" : "lost") << ", "
         << (original == edited ? "equal" : "different") << std::endl;
  Print(output);
  std::printf("compared %d, without case %d\n", restored[1]->Compare(0, 6, original, 2, 6),
              restored[1]->ICompare(0, 6, original, 2, 6, 0));
  restored.DeleteAll();

  try {
    ZRStringMutator missing;
    stream >> missing;
  } catch (const std::out_of_range& error) {
    std::printf("%s\n", error.what());
  }
}
