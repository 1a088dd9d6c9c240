#include "Calls.h"

#include <ZRString/ZRStringHandles.h>
#include <ZRString/ZRStringInterop.h>
#include <unicode/normlzr.h>

namespace {

using Icu = IcuTexts;
using ZR = ZRTexts;

constexpr ZRLong kEnd = kZRToEnd;

bool NormalizeIcu(icu::UnicodeString& text) {
  UErrorCode status = U_ZERO_ERROR;
  if (icu::Normalizer::quickCheck(text, UNORM_NFC, status) == UNORM_YES)
    return false;
  icu::UnicodeString normalized;
  icu::Normalizer::normalize(text, UNORM_NFC, 0, normalized, status);
  text.setTo(normalized.getBuffer(), normalized.length());
  return true;
}

}  // namespace

const std::vector<Calls>& AllCalls() {
  static const std::vector<Calls> calls = {
      {"Compare",
       [](Icu& t) { return t.text.compare(t.start, t.length, t.twin, t.start, t.length); },
       [](ZR& t) { return t.text.Compare(t.start, t.length, t.twin, t.start, t.length); }},
      {"Compare, -1",
       [](Icu& t) { return t.text.compare(t.start, t.length, t.twin, t.start, t.length); },
       [](ZR& t) { return t.text.Compare(t.start, kEnd, t.twin, t.start, kEnd); }},
      {"Compare, raw",
       [](Icu& t) { return t.text.compare(t.start, t.length, t.twin.Raw(), t.start, t.length); },
       [](ZR& t) { return t.text.Compare(t.start, kEnd, t.twin.Raw(), t.start, t.length); }},
      {"CompareBetween",
       [](Icu& t) { return t.text.compareBetween(t.start, t.length, t.twin, t.start, t.length); },
       [](ZR& t) { return t.text.CompareBetween(t.start, t.last, t.twin, t.start, t.last); },
       "ZRStringCompare",
       [](ZR& t) {
         return ZRStringCompare(t.textHandle, t.start, kEnd, t.twinHandle, t.start, kEnd,
                                &t.result);
       }},
      {"CompareCodePointOrder",
       [](Icu& t) {
         return t.text.compareCodePointOrder(t.start, t.length, t.twin, t.start, t.length);
       },
       [](ZR& t) { return t.text.CompareCodePointOrder(t.start, kEnd, t.twin, t.start, kEnd); }},
      {"CompareCodePointOrder, raw",
       [](Icu& t) {
         return t.text.compareCodePointOrder(t.start, t.length, t.twin.Raw(), t.start, t.length);
       },
       [](ZR& t) {
         return t.text.CompareCodePointOrder(t.start, kEnd, t.twin.Raw(), t.start, t.length);
       }},
      {"CompareCodePointOrderBetween",
       [](Icu& t) {
         return t.text.compareCodePointOrderBetween(t.start, t.length, t.twin, t.start, t.length);
       },
       [](ZR& t) {
         return t.text.CompareCodePointOrderBetween(t.start, t.last, t.twin, t.start, t.last);
       },
       "ZRStringCompareCodePointOrder",
       [](ZR& t) {
         return ZRStringCompareCodePointOrder(t.textHandle, t.start, kEnd, t.twinHandle, t.start,
                                              kEnd, &t.result);
       }},
      {"ICompare, option 0",
       [](Icu& t) { return t.text.caseCompare(t.start, t.length, t.upper, t.start, t.length, 0); },
       [](ZR& t) {
         return t.text.ICompare(t.start, kEnd, t.upper, t.start, kEnd, kZRCompareIgnoreCase);
       }},
      {"ICompare, option 0, accented",
       [](Icu& t) {
         return t.accented.string.caseCompare(t.start, t.length, t.accentedUpper, t.start, t.length,
                                              0);
       },
       [](ZR& t) {
         return t.accented.string.ICompare(t.start, kEnd, t.accentedUpper, t.start, kEnd,
                                           kZRCompareIgnoreCase);
       }},
      {"ICompare, option 0, Greek",
       [](Icu& t) {
         return t.greek.string.caseCompare(t.start, t.length, t.greekUpper, t.start, t.length, 0);
       },
       [](ZR& t) {
         return t.greek.string.ICompare(t.start, kEnd, t.greekUpper, t.start, kEnd,
                                        kZRCompareIgnoreCase);
       }},
      {"ICompare, option 0, supplementary",
       [](Icu& t) {
         return t.paired.string.caseCompare(t.start, t.length, t.pairedUpper, t.start, t.length, 0);
       },
       [](ZR& t) {
         return t.paired.string.ICompare(t.start, kEnd, t.pairedUpper, t.start, kEnd,
                                         kZRCompareIgnoreCase);
       }},
      {"CompareCodePointOrder, supplementary",
       [](Icu& t) {
         return t.paired.string.compareCodePointOrder(t.start, t.length, t.pairedUpper, t.start,
                                                      t.length);
       },
       [](ZR& t) {
         return t.paired.string.CompareCodePointOrder(t.start, kEnd, t.pairedUpper, t.start, kEnd);
       }},
      {"Find, half of a pair",
       [](Icu& t) { return t.paired.string.indexOf(t.pairedUpper, 1, 1, t.start, t.length); },
       [](ZR& t) { return t.paired.string.Find(t.pairedUpper, 1, 1, t.start, kEnd); }},
      {"ICompare, option 0, raw",
       [](Icu& t) {
         return t.text.caseCompare(t.start, t.length, t.upper.Raw(), t.start, t.length, 0);
       },
       [](ZR& t) { return t.text.ICompare(t.start, kEnd, t.upper.Raw(), t.start, t.length, 0); }},
      {"ICompareBetween, option 0",
       [](Icu& t) {
         return t.text.caseCompareBetween(t.start, t.length, t.upper, t.start, t.length, 0);
       },
       [](ZR& t) { return t.text.ICompareBetween(t.start, t.last, t.upper, t.start, t.last, 0); },
       "ZRStringICompare",
       [](ZR& t) {
         return ZRStringICompare(t.textHandle, t.start, kEnd, t.upperHandle, t.start, kEnd, 0,
                                 &t.result);
       }},
      {"ICompare, option 3", [](Icu& t) { return t.collator->compare(t.text, t.upper); },
       [](ZR& t) {
         return t.text.ICompare(t.start, kEnd, t.upper, t.start, kEnd, kZRCompareCollated);
       }},
      {"ICompare, option 3, ranges",
       [](Icu& t) {
         return t.collator->compare(icu::UnicodeString(t.text, t.start, t.middle),
                                    icu::UnicodeString(t.upper, t.start, t.middle));
       },
       [](ZR& t) {
         return t.text.ICompare(t.start, t.middle, t.upper, t.start, t.middle, kZRCompareCollated);
       }},
      {"ICompare, option 3, raw",
       [](Icu& t) {
         return t.collator->compare(t.text, icu::UnicodeString(t.upper.Raw(), t.length));
       },
       [](ZR& t) {
         return t.text.ICompare(t.start, kEnd, t.upper.Raw(), t.start, t.length,
                                kZRCompareCollated);
       }},
      {"ICompareBetween, option 3",
       [](Icu& t) {
         return t.collator->compare(icu::UnicodeString(t.text, t.start, t.length),
                                    icu::UnicodeString(t.upper, t.start, t.length));
       },
       [](ZR& t) {
         return t.text.ICompareBetween(t.start, t.last, t.upper, t.start, t.last,
                                       kZRCompareCollated);
       }},
      {"operator==", [](Icu& t) { return t.text == t.twin; },
       [](ZR& t) { return t.text == t.twin; }},
      {"operator!=", [](Icu& t) { return t.text != t.twin; },
       [](ZR& t) { return t.text != t.twin; }},
      {"operator<", [](Icu& t) { return t.text < t.twin; }, [](ZR& t) { return t.text < t.twin; }},
      {"operator>=", [](Icu& t) { return t.text >= t.twin; },
       [](ZR& t) { return t.text >= t.twin; }},
      {"StartsWith", [](Icu& t) { return t.text.startsWith(t.prefix, t.start, t.prefix.length); },
       [](ZR& t) { return t.text.StartsWith(t.prefix, t.start, kEnd); }},
      {"StartsWith, raw",
       [](Icu& t) { return t.text.startsWith(t.prefix.Raw(), t.start, t.prefix.length); },
       [](ZR& t) { return t.text.StartsWith(t.prefix.Raw(), t.start, t.prefix.length); }},
      {"EndsWith", [](Icu& t) { return t.text.endsWith(t.suffix, t.start, t.suffix.length); },
       [](ZR& t) { return t.text.EndsWith(t.suffix, t.start, kEnd); }},
      {"EndsWith, raw",
       [](Icu& t) { return t.text.endsWith(t.suffix.Raw(), t.start, t.suffix.length); },
       [](ZR& t) { return t.text.EndsWith(t.suffix.Raw(), t.start, t.suffix.length); }},
      {"Find",
       [](Icu& t) {
         return t.text.indexOf(t.pattern, t.start, t.pattern.length, t.start, t.length);
       },
       [](ZR& t) { return t.text.Find(t.pattern, t.start, kEnd, t.start, kEnd); }, "ZRStringFind",
       [](ZR& t) { return ZRStringFind(t.textHandle, t.start, kEnd, t.patternHandle, &t.result); }},
      {"short form IndexOf",
       [](Icu& t) {
         return t.text.indexOf(t.pattern, t.start, t.pattern.length, t.start, t.length);
       },
       [](ZR& t) { return IndexOf(t.text, t.pattern.string); }},
      {"short form StartsWith",
       [](Icu& t) { return t.text.startsWith(t.prefix, t.start, t.prefix.length); },
       [](ZR& t) { return StartsWith(t.text, t.prefix.string); }},
      {"short form EndsWith",
       [](Icu& t) { return t.text.endsWith(t.suffix, t.start, t.suffix.length); },
       [](ZR& t) { return EndsWith(t.text, t.suffix.string); }},
      {"Find, raw",
       [](Icu& t) {
         return t.text.indexOf(t.pattern.Raw(), t.start, t.pattern.length, t.start, t.length);
       },
       [](ZR& t) { return t.text.Find(t.pattern.Raw(), t.start, t.pattern.length, t.start, kEnd); },
       "ZRStringFindUniChars",
       [](ZR& t) {
         return ZRStringFindUniChars(t.textHandle, t.start, kEnd, t.pattern.units.data(),
                                     t.pattern.length, &t.result);
       }},
      {"RFind",
       [](Icu& t) { return t.text.lastIndexOf(t.word, t.start, t.word.length, t.start, t.length); },
       [](ZR& t) { return t.text.RFind(t.word, t.start, kEnd, t.start, kEnd); }, "ZRStringRFind",
       [](ZR& t) { return ZRStringRFind(t.textHandle, t.start, kEnd, t.wordHandle, &t.result); }},
      {"RFind, raw",
       [](Icu& t) {
         return t.text.lastIndexOf(t.word.Raw(), t.start, t.word.length, t.start, t.length);
       },
       [](ZR& t) { return t.text.RFind(t.word.Raw(), t.start, t.word.length, t.start, kEnd); },
       "ZRStringRFindUniChars",
       [](ZR& t) {
         return ZRStringRFindUniChars(t.textHandle, t.start, kEnd, t.word.units.data(),
                                      t.word.length, &t.result);
       }},
      {"LastIndexOf", [](Icu& t) { return t.text.lastIndexOf(t.unit); },
       [](ZR& t) { return t.text.LastIndexOf(t.unit); }, "ZRStringLastIndexOf",
       [](ZR& t) { return ZRStringLastIndexOf(t.textHandle, t.unit, &t.result); }},
      {"CharAt", [](Icu& t) { return t.text.charAt(t.middle); },
       [](ZR& t) { return t.text.CharAt(t.middle); }},
      {"operator[]", [](Icu& t) { return t.text[t.middle]; },
       [](ZR& t) { return t.text[t.middle]; }},
      {"GetLength", [](Icu& t) { return t.text.length(); },
       [](ZR& t) { return t.text.GetLength(); }, "ZRStringGetLength",
       [](ZR& t) { return ZRStringGetLength(t.textHandle, &t.result); }},
      {"IsEmpty", [](Icu& t) { return t.text.isEmpty(); }, [](ZR& t) { return t.text.IsEmpty(); },
       "ZRStringIsEmpty", [](ZR& t) { return ZRStringIsEmpty(t.textHandle, &t.report); }},
      {"GetBuffer", [](Icu& t) { return t.text.getBuffer(); },
       [](ZR& t) { return t.text.GetBuffer(); }, "ZRStringGetBuffer",
       [](ZR& t) { return ZRStringGetBuffer(t.textHandle, &t.buffer); }},
      {"Extract", [](Icu& t) { t.text.extract(t.start, t.length, t.target.data(), t.start); },
       [](ZR& t) { t.text.Extract(t.start, kEnd, t.target.data(), t.start); },
       "ZRStringExtractIntoUniChars",
       [](ZR& t) {
         return ZRStringExtractIntoUniChars(t.textHandle, t.start, kEnd, t.target.data(), t.start);
       }},
      {"Extract of four units",
       [](Icu& t) { t.text.extract(t.middle, t.four, t.target.data(), t.start); },
       [](ZR& t) { t.text.Extract(t.middle, t.four, t.target.data(), t.start); },
       "ZRStringGetUniCharsAt",
       [](ZR& t) {
         return ZRStringGetUniCharsAt(t.textHandle, t.middle, t.four, t.target.data());
       }},
      {"ExtractBetween",
       [](Icu& t) { t.text.extractBetween(t.start, t.length, t.target.data(), t.start); },
       [](ZR& t) { t.text.ExtractBetween(t.start, t.last, t.target.data(), t.start); }},

      {"copy constructor, destructor", [](Icu& t) { return icu::UnicodeString(t.text).isBogus(); },
       [](ZR& t) { return ZRString(t.text).IsEmpty(); }},
      {"copy constructor, destructor of ZRStringMutator",
       [](Icu& t) { return icu::UnicodeString(t.edited).isBogus(); },
       [](ZR& t) { return ZRStringMutator(t.edited).IsEmpty(); }},
      {"new, delete of a copy",
       [](Icu& t) { return std::make_unique<icu::UnicodeString>(t.text)->isBogus(); },
       [](ZR& t) { return std::make_unique<ZRString>(t.text)->IsEmpty(); },
       "ZRStringCreateCopy, ZRStringDestroy",
       [](ZR& t) {
         ZRStringRef__* copy;
         ZRStringCreateCopy(t.textHandle, &copy);
         ZRStringDestroy(copy);
       }},
      {"construct from units",
       [](Icu& t) { return icu::UnicodeString(t.whole.Raw(), t.length).length(); },
       [](ZR& t) { return ZRString(t.whole.Raw(), t.start, t.length).GetLength(); },
       "ZRStringCreateFromUniChars, ZRStringDestroy",
       [](ZR& t) {
         ZRStringRef__* string;
         ZRStringCreateFromUniChars(t.whole.Raw(), t.start, t.length, &string);
         ZRStringDestroy(string);
       }},
      {"construct from a range",
       [](Icu& t) { return icu::UnicodeString(t.text, t.start, t.middle).length(); },
       [](ZR& t) { return ZRString(t.text, t.start, t.middle).GetLength(); }},
      {"operator+", [](Icu& t) { return icu::UnicodeString(t.text).append(t.prefix).length(); },
       [](ZR& t) { return (t.edited + t.prefix).GetLength(); }},

      {"SetTo", [](Icu& t) { t.edited.setTo(t.text, t.start, t.length); },
       [](ZR& t) { t.edited.SetTo(t.text, t.start, kEnd); }, "ZRMutableStringSetToZRString",
       [](ZR& t) {
         return ZRMutableStringSetToZRString(t.editedHandle, t.textHandle, t.start, kEnd);
       }},
      {"SetTo, raw", [](Icu& t) { t.edited.setTo(t.whole.Raw(), t.length); },
       [](ZR& t) { t.edited.SetTo(t.whole.Raw(), t.length); }},
      {"SetCharAt", [](Icu& t) { t.edited.setCharAt(t.middle, t.unit); },
       [](ZR& t) { t.edited.SetCharAt(t.middle, t.unit); }, "ZRMutableStringSetUniCharAt",
       [](ZR& t) { return ZRMutableStringSetUniCharAt(t.editedHandle, t.middle, t.unit); }},
      {"operator+= unit", [](Icu& t) { t.edited += t.unit; }, [](ZR& t) { t.edited += t.unit; }},
      {"operator+=", [](Icu& t) { t.edited += t.pattern; }, [](ZR& t) { t.edited += t.pattern; }},
      {"Append", [](Icu& t) { t.edited.append(t.pattern, t.start, t.pattern.length); },
       [](ZR& t) { t.edited.Append(t.pattern, t.start, kEnd); }, "ZRMutableStringAppend",
       [](ZR& t) { return ZRMutableStringAppend(t.editedHandle, t.patternHandle); }},
      {"Append, raw", [](Icu& t) { t.edited.append(t.pattern.Raw(), t.start, t.pattern.length); },
       [](ZR& t) { t.edited.Append(t.pattern.Raw(), t.start, t.pattern.length); },
       "ZRMutableStringAppendUniChars",
       [](ZR& t) {
         return ZRMutableStringAppendUniChars(t.editedHandle, t.pattern.Raw(), t.start,
                                              t.pattern.length);
       }},
      {"Insert", [](Icu& t) { t.edited.insert(t.middle, t.pattern, t.start, t.pattern.length); },
       [](ZR& t) { t.edited.Insert(t.middle, t.pattern, t.start, kEnd); }, "ZRMutableStringInsert",
       [](ZR& t) {
         return ZRMutableStringInsert(t.editedHandle, t.middle, t.patternHandle, t.start, kEnd);
       }},
      {"Insert, raw",
       [](Icu& t) { t.edited.insert(t.middle, t.pattern.Raw(), t.start, t.pattern.length); },
       [](ZR& t) { t.edited.Insert(t.middle, t.pattern.Raw(), t.start, t.pattern.length); },
       "ZRMutableStringInsertUniChars",
       [](ZR& t) {
         return ZRMutableStringInsertUniChars(t.editedHandle, t.middle, t.pattern.Raw(), t.start,
                                              t.pattern.length);
       }},
      {"Replace",
       [](Icu& t) { t.edited.replace(t.middle, t.four, t.pattern, t.start, t.pattern.length); },
       [](ZR& t) { t.edited.Replace(t.middle, t.four, t.pattern, t.start, kEnd); },
       "ZRMutableStringReplaceBetween",
       [](ZR& t) {
         return ZRMutableStringReplaceBetween(t.editedHandle, t.middle, t.four, t.patternHandle);
       }},
      {"Replace, raw",
       [](Icu& t) {
         t.edited.replace(t.middle, t.four, t.pattern.Raw(), t.start, t.pattern.length);
       },
       [](ZR& t) {
         t.edited.Replace(t.middle, t.four, t.pattern.Raw(), t.start, t.pattern.length);
       },
       "ZRMutableStringReplaceWithUniChars",
       [](ZR& t) {
         return ZRMutableStringReplaceWithUniChars(t.editedHandle, t.middle, t.four,
                                                   t.pattern.Raw(), t.start, t.pattern.length);
       }},
      {"ReplaceBetween",
       [](Icu& t) { t.edited.replaceBetween(t.start, t.length, t.twin, t.start, t.length); },
       [](ZR& t) { t.edited.ReplaceBetween(t.start, t.last, t.twin, t.start, t.last); }},
      {"Remove", [](Icu& t) { t.edited.remove(t.middle, t.length); },
       [](ZR& t) { t.edited.Remove(t.middle, kEnd); }},
      {"RemoveBetween", [](Icu& t) { t.edited.removeBetween(t.middle, t.length); },
       [](ZR& t) { t.edited.RemoveBetween(t.middle, t.last); }, "ZRMutableStringRemoveBetween",
       [](ZR& t) { return ZRMutableStringRemoveBetween(t.editedHandle, t.middle, kEnd); }},
      {"FindAndReplace",
       [](Icu& t) {
         t.edited.findAndReplace(t.start, t.length, t.word, t.start, t.word.length, t.word, t.start,
                                 t.word.length);
       },
       [](ZR& t) {
         t.edited.FindAndReplace(t.start, kEnd, t.word, t.start, kEnd, t.word, t.start, kEnd);
       },
       "ZRMutableStringFindAndReplace",
       [](ZR& t) {
         return ZRMutableStringFindAndReplace(t.editedHandle, t.start, kEnd, t.wordHandle,
                                              t.wordHandle);
       }},
      {"FindAndReplace, raw",
       [](Icu& t) {
         const icu::UnicodeString oldText(t.word.Raw(), t.word.length);
         const icu::UnicodeString newText(t.word.Raw(), t.word.length);
         t.edited.findAndReplace(t.start, t.length, oldText, t.start, t.word.length, newText,
                                 t.start, t.word.length);
       },
       [](ZR& t) {
         t.edited.FindAndReplace(t.start, kEnd, t.word.Raw(), t.start, t.word.length, t.word.Raw(),
                                 t.start, t.word.length);
       }},
      {"Normalize, composed text", [](Icu& t) { return NormalizeIcu(t.edited); },
       [](ZR& t) { return t.edited.Normalize(kZRNormalizationNFC); }},
      {"Normalize, Greek text",
       [](Icu& t) { return NormalizeIcu(t.edited); },
       [](ZR& t) { return t.edited.Normalize(kZRNormalizationNFC); },
       nullptr,
       {},
       Before::kGreek},
      {"Normalize, decomposed text",
       [](Icu& t) { return NormalizeIcu(t.edited); },
       [](ZR& t) { return t.edited.Normalize(kZRNormalizationNFC); },
       nullptr,
       {},
       Before::kDecomposed},
      {"PadLeading", [](Icu& t) { return t.edited.padLeading(t.wider, t.unit); },
       [](ZR& t) { return t.edited.PadLeading(t.wider, t.unit); }, "ZRMutableStringPadLeading",
       [](ZR& t) { return ZRMutableStringPadLeading(t.editedHandle, t.wider, t.unit, &t.report); }},
      {"PadTrailing", [](Icu& t) { return t.edited.padTrailing(t.wider, t.unit); },
       [](ZR& t) { return t.edited.PadTrailing(t.wider, t.unit); }, "ZRMutableStringPadTrailing",
       [](ZR& t) {
         return ZRMutableStringPadTrailing(t.editedHandle, t.wider, t.unit, &t.report);
       }},
      {"Truncate", [](Icu& t) { return t.edited.truncate(t.middle); },
       [](ZR& t) { return t.edited.Truncate(t.middle); }, "ZRMutableStringTruncate",
       [](ZR& t) { return ZRMutableStringTruncate(t.editedHandle, t.middle, &t.report); }},
      {"Trim", [](Icu& t) { t.edited.trim(); }, [](ZR& t) { t.edited.Trim(); },
       "ZRMutableStringTrim", [](ZR& t) { return ZRMutableStringTrim(t.editedHandle); },
       Before::kSpaced},
      {"Reverse", [](Icu& t) { t.edited.reverse(t.start, t.length); },
       [](ZR& t) { t.edited.Reverse(t.start, kEnd); }, "ZRMutableStringReverse",
       [](ZR& t) { return ZRMutableStringReverse(t.editedHandle, t.start, kEnd); }},
      {"ToUpper", [](Icu& t) { t.edited.toUpper(); }, [](ZR& t) { t.edited.ToUpper(); },
       "ZRMutableStringToUpper", [](ZR& t) { return ZRMutableStringToUpper(t.editedHandle); }},
      {"ToLower", [](Icu& t) { t.edited.toLower(); }, [](ZR& t) { t.edited.ToLower(); },
       "ZRMutableStringToLower", [](ZR& t) { return ZRMutableStringToLower(t.editedHandle); }},
      {"Extract to a string", [](Icu& t) { t.source.extract(t.start, t.length, t.edited); },
       [](ZR& t) { t.source.Extract(t.start, kEnd, t.edited); }},
      {"ExtractBetween to a string",
       [](Icu& t) { t.source.extractBetween(t.start, t.length, t.edited); },
       [](ZR& t) { t.source.ExtractBetween(t.start, t.last, t.edited); }},
      {"GetBuffer(-1), ReleaseBuffer",
       [](Icu& t) { t.edited.getBuffer(-1), t.edited.releaseBuffer(t.length); },
       [](ZR& t) { t.edited.GetBuffer(-1), t.edited.ReleaseBuffer(t.length); },
       "ZRMutableStringGetBufferWithCapacity, ZRMutableStringReleaseBuffer",
       [](ZR& t) {
         ZRMutableStringGetBufferWithCapacity(t.editedHandle, -1, &t.buffer);
         ZRMutableStringReleaseBuffer(t.editedHandle, t.length);
       }},
      {"GetTerminatedBuffer", [](Icu& t) { return t.edited.getTerminatedBuffer(); },
       [](ZR& t) { return t.edited.GetTerminatedBuffer(); }},
      {"GetCapacity", [](Icu& t) { return t.edited.getCapacity(); },
       [](ZR& t) { return t.edited.GetCapacity(); }, "ZRMutableStringGetCapacity",
       [](ZR& t) { return ZRMutableStringGetCapacity(t.editedHandle, &t.result); }},
      {"LastIndexOf of a ZRStringMutator", [](Icu& t) { return t.edited.lastIndexOf(t.unit); },
       [](ZR& t) { return t.edited.LastIndexOf(t.unit); }, "ZRMutableStringLastIndexOf",
       [](ZR& t) { return ZRMutableStringLastIndexOf(t.editedHandle, t.unit, &t.result); }},
  };
  return calls;
}
