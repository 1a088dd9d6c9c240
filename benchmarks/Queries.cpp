#include "Operations.h"

namespace {

ZRLong Address(const void* pointer) {
  return static_cast<ZRLong>(reinterpret_cast<std::uintptr_t>(pointer));
}

}  // namespace

const std::vector<Operation>& Queries() {
  static const std::vector<Operation> queries = {
      {"Compare",
       [](Texts& t) -> ZRLong {
         return t.text.icu.compare(t.start, t.length, t.twin.icu, t.start, t.length);
       },
       [](Texts& t) -> ZRLong {
         return t.text.string.Compare(t.start, t.length, t.twin.string, t.start, t.length);
       }},
      {"Compare, -1",
       [](Texts& t) -> ZRLong {
         return t.text.icu.compare(t.start, t.length, t.twin.icu, t.start, t.length);
       },
       [](Texts& t) -> ZRLong {
         return t.text.string.Compare(t.start, kToEnd, t.twin.string, t.start, kToEnd);
       }},
      {"Compare, raw",
       [](Texts& t) -> ZRLong {
         return t.text.icu.compare(t.start, t.length, t.twin.RawIcu(), t.start, t.length);
       },
       [](Texts& t) -> ZRLong {
         return t.text.string.Compare(t.start, kToEnd, t.twin.Raw(), t.start, t.length);
       }},
      {"CompareBetween",
       [](Texts& t) -> ZRLong {
         return t.text.icu.compareBetween(t.start, t.length, t.twin.icu, t.start, t.length);
       },
       [](Texts& t) -> ZRLong {
         return t.text.string.CompareBetween(t.start, t.last, t.twin.string, t.start, t.last);
       }},
      {"CompareCodePointOrder",
       [](Texts& t) -> ZRLong {
         return t.text.icu.compareCodePointOrder(t.start, t.length, t.twin.icu, t.start, t.length);
       },
       [](Texts& t) -> ZRLong {
         return t.text.string.CompareCodePointOrder(t.start, kToEnd, t.twin.string, t.start,
                                                    kToEnd);
       }},
      {"CompareCodePointOrder, raw",
       [](Texts& t) -> ZRLong {
         return t.text.icu.compareCodePointOrder(t.start, t.length, t.twin.RawIcu(), t.start,
                                                 t.length);
       },
       [](Texts& t) -> ZRLong {
         return t.text.string.CompareCodePointOrder(t.start, kToEnd, t.twin.Raw(), t.start,
                                                    t.length);
       }},
      {"CompareCodePointOrderBetween",
       [](Texts& t) -> ZRLong {
         return t.text.icu.compareCodePointOrderBetween(t.start, t.length, t.twin.icu, t.start,
                                                        t.length);
       },
       [](Texts& t) -> ZRLong {
         return t.text.string.CompareCodePointOrderBetween(t.start, t.last, t.twin.string, t.start,
                                                           t.last);
       }},
      {"ICompare, option 0",
       [](Texts& t) -> ZRLong {
         return t.text.icu.caseCompare(t.start, t.length, t.upper.icu, t.start, t.length, 0);
       },
       [](Texts& t) -> ZRLong {
         return t.text.string.ICompare(t.start, kToEnd, t.upper.string, t.start, kToEnd, 0);
       }},
      {"ICompare, option 0, raw",
       [](Texts& t) -> ZRLong {
         return t.text.icu.caseCompare(t.start, t.length, t.upper.RawIcu(), t.start, t.length, 0);
       },
       [](Texts& t) -> ZRLong {
         return t.text.string.ICompare(t.start, kToEnd, t.upper.Raw(), t.start, t.length, 0);
       }},
      {"ICompare, option 3",
       [](Texts& t) -> ZRLong {
         return t.collator->compare(icu::UnicodeString(t.text.icu, t.start, t.length),
                                    icu::UnicodeString(t.upper.icu, t.start, t.length));
       },
       [](Texts& t) -> ZRLong {
         return t.text.string.ICompare(t.start, kToEnd, t.upper.string, t.start, kToEnd, 3);
       }},
      {"ICompare, option 3, raw",
       [](Texts& t) -> ZRLong {
         return t.collator->compare(t.text.icu, icu::UnicodeString(t.upper.RawIcu(), t.length));
       },
       [](Texts& t) -> ZRLong {
         return t.text.string.ICompare(t.start, kToEnd, t.upper.Raw(), t.start, t.length, 3);
       }},
      {"ICompareBetween, option 0",
       [](Texts& t) -> ZRLong {
         return t.text.icu.caseCompareBetween(t.start, t.length, t.upper.icu, t.start, t.length, 0);
       },
       [](Texts& t) -> ZRLong {
         return t.text.string.ICompareBetween(t.start, t.last, t.upper.string, t.start, t.last, 0);
       }},
      {"ICompareBetween, option 3",
       [](Texts& t) -> ZRLong {
         return t.collator->compare(icu::UnicodeString(t.text.icu, t.start, t.length),
                                    icu::UnicodeString(t.upper.icu, t.start, t.length));
       },
       [](Texts& t) -> ZRLong {
         return t.text.string.ICompareBetween(t.start, t.last, t.upper.string, t.start, t.last, 3);
       }},
      {"operator==", [](Texts& t) -> ZRLong { return t.text.icu == t.twin.icu; },
       [](Texts& t) -> ZRLong { return t.text.string == t.twin.string; }},
      {"operator!=", [](Texts& t) -> ZRLong { return t.text.icu != t.twin.icu; },
       [](Texts& t) -> ZRLong { return t.text.string != t.twin.string; }},
      {"operator<", [](Texts& t) -> ZRLong { return t.text.icu < t.twin.icu; },
       [](Texts& t) -> ZRLong { return t.text.string < t.twin.string; }},
      {"operator>=", [](Texts& t) -> ZRLong { return t.text.icu >= t.twin.icu; },
       [](Texts& t) -> ZRLong { return t.text.string >= t.twin.string; }},
      {"StartsWith",
       [](Texts& t) -> ZRLong {
         return t.text.icu.startsWith(t.prefix.icu, t.start, t.prefix.length);
       },
       [](Texts& t) -> ZRLong {
         return t.text.string.StartsWith(t.prefix.string, t.start, kToEnd);
       }},
      {"StartsWith, raw",
       [](Texts& t) -> ZRLong {
         return t.text.icu.startsWith(t.prefix.RawIcu(), t.start, t.prefix.length);
       },
       [](Texts& t) -> ZRLong {
         return t.text.string.StartsWith(t.prefix.Raw(), t.start, t.prefix.length);
       }},
      {"EndsWith",
       [](Texts& t) -> ZRLong {
         return t.text.icu.endsWith(t.suffix.icu, t.start, t.suffix.length);
       },
       [](Texts& t) -> ZRLong { return t.text.string.EndsWith(t.suffix.string, t.start, kToEnd); }},
      {"EndsWith, raw",
       [](Texts& t) -> ZRLong {
         return t.text.icu.endsWith(t.suffix.RawIcu(), t.start, t.suffix.length);
       },
       [](Texts& t) -> ZRLong {
         return t.text.string.EndsWith(t.suffix.Raw(), t.start, t.suffix.length);
       }},
      {"Find",
       [](Texts& t) -> ZRLong {
         return t.text.icu.indexOf(t.pattern.icu, t.start, t.pattern.length, t.start, t.length);
       },
       [](Texts& t) -> ZRLong {
         return t.text.string.Find(t.pattern.string, t.start, kToEnd, t.start, kToEnd);
       }},
      {"Find, raw",
       [](Texts& t) -> ZRLong {
         return t.text.icu.indexOf(t.pattern.RawIcu(), t.start, t.pattern.length, t.start,
                                   t.length);
       },
       [](Texts& t) -> ZRLong {
         return t.text.string.Find(t.pattern.Raw(), t.start, t.pattern.length, t.start, kToEnd);
       }},
      {"RFind",
       [](Texts& t) -> ZRLong {
         return t.text.icu.lastIndexOf(t.word.icu, t.start, t.word.length, t.start, t.length);
       },
       [](Texts& t) -> ZRLong {
         return t.text.string.RFind(t.word.string, t.start, kToEnd, t.start, kToEnd);
       }},
      {"RFind, raw",
       [](Texts& t) -> ZRLong {
         return t.text.icu.lastIndexOf(t.word.RawIcu(), t.start, t.word.length, t.start, t.length);
       },
       [](Texts& t) -> ZRLong {
         return t.text.string.RFind(t.word.Raw(), t.start, t.word.length, t.start, kToEnd);
       }},
      {"LastIndexOf",
       [](Texts& t) -> ZRLong { return t.text.icu.lastIndexOf(static_cast<char16_t>(t.unit)); },
       [](Texts& t) -> ZRLong { return t.text.string.LastIndexOf(t.unit); }},
      {"CharAt", [](Texts& t) -> ZRLong { return t.text.icu.charAt(t.middle); },
       [](Texts& t) -> ZRLong { return t.text.string.CharAt(t.middle); }},
      {"operator[]", [](Texts& t) -> ZRLong { return t.text.icu[t.middle]; },
       [](Texts& t) -> ZRLong { return t.text.string[t.middle]; }},
      {"GetLength", [](Texts& t) -> ZRLong { return t.text.icu.length(); },
       [](Texts& t) -> ZRLong { return t.text.string.GetLength(); }},
      {"IsEmpty", [](Texts& t) -> ZRLong { return t.text.icu.isEmpty(); },
       [](Texts& t) -> ZRLong { return t.text.string.IsEmpty(); }},
      {"GetBuffer", [](Texts& t) -> ZRLong { return Address(t.text.icu.getBuffer()); },
       [](Texts& t) -> ZRLong { return Address(t.text.string.GetBuffer()); }},
      {"Extract",
       [](Texts& t) -> ZRLong {
         t.text.icu.extract(t.start, t.length, icu::Char16Ptr(t.target.data()), t.start);
         return 0;
       },
       [](Texts& t) -> ZRLong {
         t.text.string.Extract(t.start, kToEnd, t.target.data(), t.start);
         return 0;
       }},
      {"ExtractBetween",
       [](Texts& t) -> ZRLong {
         t.text.icu.extractBetween(t.start, t.length, icu::Char16Ptr(t.target.data()), t.start);
         return 0;
       },
       [](Texts& t) -> ZRLong {
         t.text.string.ExtractBetween(t.start, t.last, t.target.data(), t.start);
         return 0;
       }},
      {"copy constructor, destructor",
       [](Texts& t) -> ZRLong { return icu::UnicodeString(t.text.icu).isBogus(); },
       [](Texts& t) -> ZRLong { return ZRString(t.text.string).IsEmpty(); }},
  };
  return queries;
}

const std::vector<Operation>& Creations() {
  static const std::vector<Operation> creations = {
      {"construct from units",
       [](Texts& t) -> ZRLong {
         return std::make_unique<icu::UnicodeString>(t.text.RawIcu(), t.length)->length();
       },
       [](Texts& t) -> ZRLong { return ZRString(t.text.Raw(), t.start, t.length).GetLength(); }},
      {"construct from a range",
       [](Texts& t) -> ZRLong {
         return std::make_unique<icu::UnicodeString>(t.text.icu, t.start, t.middle)->length();
       },
       [](Texts& t) -> ZRLong { return ZRString(t.text.string, t.start, t.middle).GetLength(); }},
      {"operator+",
       [](Texts& t) -> ZRLong {
         icu::UnicodeString sum(t.text.icu);
         return sum.append(t.prefix.icu).length();
       },
       [](Texts& t) -> ZRLong { return (t.editedString + t.prefix.string).GetLength(); }},
  };
  return creations;
}
