#include <unicode/normlzr.h>

#include "Operations.h"

const std::vector<Operation>& Edits() {
  static const std::vector<Operation> edits = {
      {"SetTo",
       [](Texts& t) -> ZRLong {
         t.edited.setTo(t.text.icu, t.start, t.length);
         return 0;
       },
       [](Texts& t) -> ZRLong {
         t.editedString.SetTo(t.text.string, t.start, kToEnd);
         return 0;
       }},
      {"SetTo, raw",
       [](Texts& t) -> ZRLong {
         t.edited.setTo(t.text.RawIcu(), t.length);
         return 0;
       },
       [](Texts& t) -> ZRLong {
         t.editedString.SetTo(t.text.Raw(), t.length);
         return 0;
       }},
      {"SetCharAt",
       [](Texts& t) -> ZRLong {
         t.edited.setCharAt(t.middle, t.unit);
         return 0;
       },
       [](Texts& t) -> ZRLong {
         t.editedString.SetCharAt(t.middle, t.unit);
         return 0;
       }},
      {"operator+= unit",
       [](Texts& t) -> ZRLong {
         t.edited += static_cast<char16_t>(t.unit);
         return 0;
       },
       [](Texts& t) -> ZRLong {
         t.editedString += t.unit;
         return 0;
       },
       Before::kText},
      {"operator+=",
       [](Texts& t) -> ZRLong {
         t.edited += t.pattern.icu;
         return 0;
       },
       [](Texts& t) -> ZRLong {
         t.editedString += t.pattern.string;
         return 0;
       },
       Before::kText},
      {"Append",
       [](Texts& t) -> ZRLong {
         t.edited.append(t.pattern.icu, t.start, t.pattern.length);
         return 0;
       },
       [](Texts& t) -> ZRLong {
         t.editedString.Append(t.pattern.string, t.start, kToEnd);
         return 0;
       },
       Before::kText},
      {"Append, raw",
       [](Texts& t) -> ZRLong {
         t.edited.append(t.pattern.RawIcu(), t.start, t.pattern.length);
         return 0;
       },
       [](Texts& t) -> ZRLong {
         t.editedString.Append(t.pattern.Raw(), t.start, t.pattern.length);
         return 0;
       },
       Before::kText},
      {"Insert",
       [](Texts& t) -> ZRLong {
         t.edited.insert(t.middle, t.pattern.icu, t.start, t.pattern.length);
         return 0;
       },
       [](Texts& t) -> ZRLong {
         t.editedString.Insert(t.middle, t.pattern.string, t.start, kToEnd);
         return 0;
       },
       Before::kText},
      {"Insert, raw",
       [](Texts& t) -> ZRLong {
         t.edited.insert(t.middle, t.pattern.RawIcu(), t.start, t.pattern.length);
         return 0;
       },
       [](Texts& t) -> ZRLong {
         t.editedString.Insert(t.middle, t.pattern.Raw(), t.start, t.pattern.length);
         return 0;
       },
       Before::kText},
      {"Replace",
       [](Texts& t) -> ZRLong {
         t.edited.replace(t.middle, t.four, t.pattern.icu, t.start, t.pattern.length);
         return 0;
       },
       [](Texts& t) -> ZRLong {
         t.editedString.Replace(t.middle, t.four, t.pattern.string, t.start, kToEnd);
         return 0;
       }},
      {"Replace, raw",
       [](Texts& t) -> ZRLong {
         t.edited.replace(t.middle, t.four, t.pattern.RawIcu(), t.start, t.pattern.length);
         return 0;
       },
       [](Texts& t) -> ZRLong {
         t.editedString.Replace(t.middle, t.four, t.pattern.Raw(), t.start, t.pattern.length);
         return 0;
       }},
      {"ReplaceBetween",
       [](Texts& t) -> ZRLong {
         t.edited.replaceBetween(t.start, t.length, t.twin.icu, t.start, t.length);
         return 0;
       },
       [](Texts& t) -> ZRLong {
         t.editedString.ReplaceBetween(t.start, t.last, t.twin.string, t.start, t.last);
         return 0;
       },
       Before::kText},
      {"Remove",
       [](Texts& t) -> ZRLong {
         t.edited.remove(t.middle, t.length);
         return 0;
       },
       [](Texts& t) -> ZRLong {
         t.editedString.Remove(t.middle, kToEnd);
         return 0;
       },
       Before::kText},
      {"RemoveBetween",
       [](Texts& t) -> ZRLong {
         t.edited.removeBetween(t.middle, t.length);
         return 0;
       },
       [](Texts& t) -> ZRLong {
         t.editedString.RemoveBetween(t.middle, t.last);
         return 0;
       },
       Before::kText},
      {"FindAndReplace",
       [](Texts& t) -> ZRLong {
         t.edited.findAndReplace(t.start, t.length, t.word.icu, t.start, t.word.length, t.word.icu,
                                 t.start, t.word.length);
         return 0;
       },
       [](Texts& t) -> ZRLong {
         t.editedString.FindAndReplace(t.start, kToEnd, t.word.string, t.start, kToEnd,
                                       t.word.string, t.start, kToEnd);
         return 0;
       },
       Before::kText},
      {"FindAndReplace, raw",
       [](Texts& t) -> ZRLong {
         const icu::UnicodeString oldText(t.word.RawIcu(), t.word.length);
         const icu::UnicodeString newText(t.word.RawIcu(), t.word.length);
         t.edited.findAndReplace(t.start, t.length, oldText, t.start, t.word.length, newText,
                                 t.start, t.word.length);
         return 0;
       },
       [](Texts& t) -> ZRLong {
         t.editedString.FindAndReplace(t.start, kToEnd, t.word.Raw(), t.start, t.word.length,
                                       t.word.Raw(), t.start, t.word.length);
         return 0;
       },
       Before::kText},
      {"Normalize, decomposed text",
       [](Texts& t) -> ZRLong {
         UErrorCode status = U_ZERO_ERROR;
         if (icu::Normalizer::quickCheck(t.edited, UNORM_NFC, status) == UNORM_YES)
           return 0;
         icu::UnicodeString normalized;
         icu::Normalizer::normalize(t.edited, UNORM_NFC, 0, normalized, status);
         t.edited.setTo(normalized.getBuffer(), normalized.length());
         return 1;
       },
       [](Texts& t) -> ZRLong { return t.editedString.Normalize(kZRNormalizationNFC); },
       Before::kDecomposed},
      {"Normalize, composed text",
       [](Texts& t) -> ZRLong {
         UErrorCode status = U_ZERO_ERROR;
         return icu::Normalizer::quickCheck(t.edited, UNORM_NFC, status) != UNORM_YES;
       },
       [](Texts& t) -> ZRLong { return t.editedString.Normalize(kZRNormalizationNFC); },
       Before::kText},
      {"PadLeading",
       [](Texts& t) -> ZRLong { return t.edited.padLeading(t.length + t.four, t.unit); },
       [](Texts& t) -> ZRLong { return t.editedString.PadLeading(t.length + t.four, t.unit); },
       Before::kText},
      {"PadTrailing",
       [](Texts& t) -> ZRLong { return t.edited.padTrailing(t.length + t.four, t.unit); },
       [](Texts& t) -> ZRLong { return t.editedString.PadTrailing(t.length + t.four, t.unit); },
       Before::kText},
      {"Truncate", [](Texts& t) -> ZRLong { return t.edited.truncate(t.middle); },
       [](Texts& t) -> ZRLong { return t.editedString.Truncate(t.middle); }, Before::kText},
      {"Trim",
       [](Texts& t) -> ZRLong {
         t.edited.trim();
         return 0;
       },
       [](Texts& t) -> ZRLong {
         t.editedString.Trim();
         return 0;
       },
       Before::kSpaced},
      {"Reverse",
       [](Texts& t) -> ZRLong {
         t.edited.reverse(t.start, t.length);
         return 0;
       },
       [](Texts& t) -> ZRLong {
         t.editedString.Reverse(t.start, kToEnd);
         return 0;
       }},
      {"ToUpper",
       [](Texts& t) -> ZRLong {
         t.edited.toUpper();
         return 0;
       },
       [](Texts& t) -> ZRLong {
         t.editedString.ToUpper();
         return 0;
       },
       Before::kText},
      {"ToLower",
       [](Texts& t) -> ZRLong {
         t.edited.toLower();
         return 0;
       },
       [](Texts& t) -> ZRLong {
         t.editedString.ToLower();
         return 0;
       },
       Before::kText},
      {"Extract to a string",
       [](Texts& t) -> ZRLong {
         t.text.icu.extract(t.start, t.length, t.edited);
         return 0;
       },
       [](Texts& t) -> ZRLong {
         t.sourceString.Extract(t.start, kToEnd, t.editedString);
         return 0;
       }},
      {"ExtractBetween to a string",
       [](Texts& t) -> ZRLong {
         t.text.icu.extractBetween(t.start, t.length, t.edited);
         return 0;
       },
       [](Texts& t) -> ZRLong {
         t.sourceString.ExtractBetween(t.start, t.last, t.editedString);
         return 0;
       }},
      {"GetBuffer(-1), ReleaseBuffer",
       [](Texts& t) -> ZRLong {
         const char16_t* const buffer = t.edited.getBuffer(-1);
         t.edited.releaseBuffer(t.length);
         return buffer == nullptr;
       },
       [](Texts& t) -> ZRLong {
         const unsigned short* const buffer = t.editedString.GetBuffer(-1);
         t.editedString.ReleaseBuffer(t.length);
         return buffer == nullptr;
       }},
      {"GetTerminatedBuffer",
       [](Texts& t) -> ZRLong { return t.edited.getTerminatedBuffer() == nullptr; },
       [](Texts& t) -> ZRLong { return t.editedString.GetTerminatedBuffer() == nullptr; }},
      {"GetCapacity", [](Texts& t) -> ZRLong { return t.edited.getCapacity(); },
       [](Texts& t) -> ZRLong { return t.editedString.GetCapacity(); }},
  };
  return edits;
}
