// Prints the table of the page on QString: an expression of
// QString's, ours, and what ours gives.

#include <ZRString/ZRStringInterop.h>

#include <iostream>

#define ZR_ROW(qstring, ...) \
  Row(qstring, #__VA_ARGS__, Shown(__VA_ARGS__))

namespace {

std::string Shown(const ZRString& text) {
  return '"' + ToUtf8(text) + '"';
}

std::string Shown(const std::string& utf8) {
  return '"' + utf8 + '"';
}

std::string Shown(ZRLong number) {
  return std::to_string(number);
}

std::string Shown(signed char order) {
  return std::to_string(order);
}

std::string Shown(bool yes) {
  return yes ? "true" : "false";
}

std::string
Shown(const std::vector<ZRStringMutator>& parts) {
  return std::to_string(parts.size()) + " parts";
}

void Row(const char* qstring, const char* ours,
         const std::string& result) {
  std::cout << "| `" << qstring << "` | `" << ours << "` | `"
            << result << "` |\n";
}

}  // namespace

int main() {
  const ZRString s = u"un, deux, un"_zr;
  const ZRStringMutator t(s);
  const char utf8[] = "d\xC3\xA9j\xC3\xA0";
  std::cout << "| QString | ZRString | Result |\n"
               "|---|---|---|\n";
  ZR_ROW("QString::fromUtf8(utf8)", FromUtf8(utf8));
  ZR_ROW("s.toUtf8()", ToUtf8(s));
  ZR_ROW("u\"un\"_s", u"un"_zr);
  ZR_ROW("s.size()", s.GetLength());
  ZR_ROW("s.isEmpty()", s.IsEmpty() != 0);
  ZR_ROW("s[1] == u'n'", s[1] == u'n');
  ZR_ROW("s == u\"un\"", s == u"un");
  ZR_ROW("s + u\".\"_s", s + u".");
  ZR_ROW("s.contains(u\"deux\")", Contains(s, u"deux"));
  ZR_ROW("s.indexOf(u\"un\", 1)", IndexOf(s, u"un", 1));
  ZR_ROW("s.indexOf(u',')", IndexOf(s, u','));
  ZR_ROW("s.lastIndexOf(u',')", s.LastIndexOf(u','));
  ZR_ROW("s.startsWith(u\"un\")", StartsWith(s, u"un"));
  ZR_ROW("s.endsWith(u\"un\")", EndsWith(s, u"un"));
  ZR_ROW("s.left(2)", PartOf(s, 0, 2));
  ZR_ROW("s.mid(4, 4)", PartOf(s, 4, 4));
  ZR_ROW("s.split(u\", \"_s)", PartsOf(s, u", "));
  ZR_ROW("list.join(u'/')", Joined(PartsOf(s, u", "), u'/'));
  ZR_ROW("s.toUpper()", UpperCase(s));
  ZR_ROW("s.trimmed()", Trimmed(s));
  ZR_ROW("t.replace(u\"un\"_s, u\"1\"_s)",
         ReplacedAll(t, u"un", u"1"));
  ZR_ROW("t.append(u\"!\")", ZRStringMutator(t) += u"!"_zr);
  ZR_ROW("t.insert(2, u\"e\")",
         ZRStringMutator(t).Insert(2, u"e"_zr, 0, -1));
  ZR_ROW("t.remove(0, 4)", ZRStringMutator(t).Remove(0, 4));
  ZR_ROW("t.truncate(2)",
         ZRStringMutator(t).Truncate(2) != 0);
  ZR_ROW("t.clear()", ZRStringMutator(t).Truncate(0) != 0);
  ZR_ROW("s.compare(u\"UN, DEUX, UN\", Qt::CaseInsensitive)",
         s.ICompare(0, -1, UpperCase(s), 0, -1,
                    kZRCompareIgnoreCase));
}
