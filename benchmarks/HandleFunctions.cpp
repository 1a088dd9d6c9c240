#include <ZRString/ZRStringHandles.h>

#include "Operations.h"

const std::vector<Operation>& HandleFunctions() {
  static const std::vector<Operation> functions = {
      {"ZRStringCompare",
       [](Texts& t) -> ZRLong {
         return t.text.icu.compareBetween(t.start, t.length, t.twin.icu, t.start, t.length);
       },
       [](Texts& t) -> ZRLong {
         ZRLong result;
         ZRStringCompare(t.text.handle, t.start, kToEnd, t.twin.handle, t.start, kToEnd, &result);
         return result;
       }},
      {"ZRStringCompareCodePointOrder",
       [](Texts& t) -> ZRLong {
         return t.text.icu.compareCodePointOrderBetween(t.start, t.length, t.twin.icu, t.start,
                                                        t.length);
       },
       [](Texts& t) -> ZRLong {
         ZRLong result;
         ZRStringCompareCodePointOrder(t.text.handle, t.start, kToEnd, t.twin.handle, t.start,
                                       kToEnd, &result);
         return result;
       }},
      {"ZRStringICompare",
       [](Texts& t) -> ZRLong {
         return t.text.icu.caseCompareBetween(t.start, t.length, t.upper.icu, t.start, t.length, 0);
       },
       [](Texts& t) -> ZRLong {
         ZRLong result;
         ZRStringICompare(t.text.handle, t.start, kToEnd, t.upper.handle, t.start, kToEnd, 0,
                          &result);
         return result;
       }},
      {"ZRStringFind",
       [](Texts& t) -> ZRLong {
         return t.text.icu.indexOf(t.pattern.icu, 0, t.pattern.length, t.start, t.length);
       },
       [](Texts& t) -> ZRLong {
         ZRLong result;
         ZRStringFind(t.text.handle, t.start, kToEnd, t.pattern.handle, &result);
         return result;
       }},
      {"ZRStringFindUniChars",
       [](Texts& t) -> ZRLong {
         return t.text.icu.indexOf(t.pattern.RawIcu(), 0, t.pattern.length, t.start, t.length);
       },
       [](Texts& t) -> ZRLong {
         ZRLong result;
         ZRStringFindUniChars(t.text.handle, t.start, kToEnd, t.pattern.units.data(),
                              t.pattern.length, &result);
         return result;
       }},
      {"ZRStringRFind",
       [](Texts& t) -> ZRLong {
         return t.text.icu.lastIndexOf(t.word.icu, 0, t.word.length, t.start, t.length);
       },
       [](Texts& t) -> ZRLong {
         ZRLong result;
         ZRStringRFind(t.text.handle, t.start, kToEnd, t.word.handle, &result);
         return result;
       }},
      {"ZRStringRFindUniChars",
       [](Texts& t) -> ZRLong {
         return t.text.icu.lastIndexOf(t.word.RawIcu(), 0, t.word.length, t.start, t.length);
       },
       [](Texts& t) -> ZRLong {
         ZRLong result;
         ZRStringRFindUniChars(t.text.handle, t.start, kToEnd, t.word.units.data(), t.word.length,
                               &result);
         return result;
       }},
      {"ZRStringGetUniCharsAt",
       [](Texts& t) -> ZRLong {
         t.text.icu.extract(t.middle, t.four, icu::Char16Ptr(t.target.data()), 0);
         return 0;
       },
       [](Texts& t) -> ZRLong {
         return ZRStringGetUniCharsAt(t.text.handle, t.middle, t.four, t.target.data());
       }},
      {"ZRStringExtractIntoUniChars",
       [](Texts& t) -> ZRLong {
         t.text.icu.extract(t.start, t.length, icu::Char16Ptr(t.target.data()), t.start);
         return 0;
       },
       [](Texts& t) -> ZRLong {
         return ZRStringExtractIntoUniChars(t.text.handle, t.start, kToEnd, t.target.data(),
                                            t.start);
       }},
      {"ZRStringGetLength", [](Texts& t) -> ZRLong { return t.text.icu.length(); },
       [](Texts& t) -> ZRLong {
         ZRLong result;
         ZRStringGetLength(t.text.handle, &result);
         return result;
       }},
      {"ZRStringIsEmpty", [](Texts& t) -> ZRLong { return t.text.icu.isEmpty(); },
       [](Texts& t) -> ZRLong {
         unsigned char result;
         ZRStringIsEmpty(t.text.handle, &result);
         return result;
       }},
      {"ZRStringGetBuffer", [](Texts& t) -> ZRLong { return t.text.icu.getBuffer() == nullptr; },
       [](Texts& t) -> ZRLong {
         unsigned short* result;
         ZRStringGetBuffer(t.text.handle, &result);
         return result == nullptr;
       }},
      {"ZRStringLastIndexOf",
       [](Texts& t) -> ZRLong { return t.text.icu.lastIndexOf(static_cast<char16_t>(t.unit)); },
       [](Texts& t) -> ZRLong {
         ZRLong result;
         ZRStringLastIndexOf(t.text.handle, t.unit, &result);
         return result;
       }},
      {"ZRStringCreateCopy, ZRStringDestroy",
       [](Texts& t) -> ZRLong {
         return std::make_unique<icu::UnicodeString>(t.text.icu)->isBogus();
       },
       [](Texts& t) -> ZRLong {
         ZRStringRef__* copy;
         ZRStringCreateCopy(t.text.handle, &copy);
         return ZRStringDestroy(copy);
       }},
      {"ZRMutableStringSetUniCharAt",
       [](Texts& t) -> ZRLong {
         t.edited.setCharAt(t.middle, t.unit);
         return 0;
       },
       [](Texts& t) -> ZRLong {
         return ZRMutableStringSetUniCharAt(t.editedHandle, t.middle, t.unit);
       }},
      {"ZRMutableStringSetToZRString",
       [](Texts& t) -> ZRLong {
         t.edited.setTo(t.text.icu, t.start, t.length);
         return 0;
       },
       [](Texts& t) -> ZRLong {
         return ZRMutableStringSetToZRString(t.editedHandle, t.text.handle, t.start, kToEnd);
       }},
      {"ZRMutableStringAppend",
       [](Texts& t) -> ZRLong {
         t.edited.append(t.pattern.icu, 0, t.pattern.length);
         return 0;
       },
       [](Texts& t) -> ZRLong { return ZRMutableStringAppend(t.editedHandle, t.pattern.handle); },
       Before::kText},
      {"ZRMutableStringAppendUniChars",
       [](Texts& t) -> ZRLong {
         t.edited.append(t.pattern.RawIcu(), t.start, t.pattern.length);
         return 0;
       },
       [](Texts& t) -> ZRLong {
         return ZRMutableStringAppendUniChars(t.editedHandle, t.pattern.Raw(), t.start,
                                              t.pattern.length);
       },
       Before::kText},
      {"ZRMutableStringInsert",
       [](Texts& t) -> ZRLong {
         t.edited.insert(t.middle, t.pattern.icu, t.start, t.pattern.length);
         return 0;
       },
       [](Texts& t) -> ZRLong {
         return ZRMutableStringInsert(t.editedHandle, t.middle, t.pattern.handle, t.start, kToEnd);
       },
       Before::kText},
      {"ZRMutableStringInsertUniChars",
       [](Texts& t) -> ZRLong {
         t.edited.insert(t.middle, t.pattern.RawIcu(), t.start, t.pattern.length);
         return 0;
       },
       [](Texts& t) -> ZRLong {
         return ZRMutableStringInsertUniChars(t.editedHandle, t.middle, t.pattern.Raw(), t.start,
                                              t.pattern.length);
       },
       Before::kText},
      {"ZRMutableStringReplaceBetween",
       [](Texts& t) -> ZRLong {
         t.edited.replace(t.middle, t.four, t.pattern.icu, 0, t.pattern.length);
         return 0;
       },
       [](Texts& t) -> ZRLong {
         return ZRMutableStringReplaceBetween(t.editedHandle, t.middle, t.four, t.pattern.handle);
       }},
      {"ZRMutableStringReplaceWithUniChars",
       [](Texts& t) -> ZRLong {
         t.edited.replace(t.middle, t.four, t.pattern.RawIcu(), t.start, t.pattern.length);
         return 0;
       },
       [](Texts& t) -> ZRLong {
         return ZRMutableStringReplaceWithUniChars(t.editedHandle, t.middle, t.four,
                                                   t.pattern.Raw(), t.start, t.pattern.length);
       }},
      {"ZRMutableStringFindAndReplace",
       [](Texts& t) -> ZRLong {
         t.edited.findAndReplace(t.start, t.length, t.word.icu, 0, t.word.length, t.word.icu, 0,
                                 t.word.length);
         return 0;
       },
       [](Texts& t) -> ZRLong {
         return ZRMutableStringFindAndReplace(t.editedHandle, t.start, kToEnd, t.word.handle,
                                              t.word.handle);
       },
       Before::kText},
      {"ZRMutableStringRemoveBetween",
       [](Texts& t) -> ZRLong {
         t.edited.removeBetween(t.middle, t.length);
         return 0;
       },
       [](Texts& t) -> ZRLong {
         return ZRMutableStringRemoveBetween(t.editedHandle, t.middle, kToEnd);
       },
       Before::kText},
      {"ZRMutableStringPadLeading",
       [](Texts& t) -> ZRLong { return t.edited.padLeading(t.length + t.four, t.unit); },
       [](Texts& t) -> ZRLong {
         unsigned char result;
         ZRMutableStringPadLeading(t.editedHandle, t.length + t.four, t.unit, &result);
         return result;
       },
       Before::kText},
      {"ZRMutableStringPadTrailing",
       [](Texts& t) -> ZRLong { return t.edited.padTrailing(t.length + t.four, t.unit); },
       [](Texts& t) -> ZRLong {
         unsigned char result;
         ZRMutableStringPadTrailing(t.editedHandle, t.length + t.four, t.unit, &result);
         return result;
       },
       Before::kText},
      {"ZRMutableStringTruncate", [](Texts& t) -> ZRLong { return t.edited.truncate(t.middle); },
       [](Texts& t) -> ZRLong {
         unsigned char result;
         ZRMutableStringTruncate(t.editedHandle, t.middle, &result);
         return result;
       },
       Before::kText},
      {"ZRMutableStringTrim",
       [](Texts& t) -> ZRLong {
         t.edited.trim();
         return 0;
       },
       [](Texts& t) -> ZRLong { return ZRMutableStringTrim(t.editedHandle); }, Before::kSpaced},
      {"ZRMutableStringToUpper",
       [](Texts& t) -> ZRLong {
         t.edited.toUpper();
         return 0;
       },
       [](Texts& t) -> ZRLong { return ZRMutableStringToUpper(t.editedHandle); }, Before::kText},
      {"ZRMutableStringToLower",
       [](Texts& t) -> ZRLong {
         t.edited.toLower();
         return 0;
       },
       [](Texts& t) -> ZRLong { return ZRMutableStringToLower(t.editedHandle); }, Before::kText},
      {"ZRMutableStringGetBufferWithCapacity, ZRMutableStringReleaseBuffer",
       [](Texts& t) -> ZRLong {
         const char16_t* const buffer = t.edited.getBuffer(-1);
         t.edited.releaseBuffer(t.length);
         return buffer == nullptr;
       },
       [](Texts& t) -> ZRLong {
         unsigned short* buffer;
         ZRMutableStringGetBufferWithCapacity(t.editedHandle, -1, &buffer);
         ZRMutableStringReleaseBuffer(t.editedHandle, t.length);
         return buffer == nullptr;
       }},
      {"ZRMutableStringGetCapacity", [](Texts& t) -> ZRLong { return t.edited.getCapacity(); },
       [](Texts& t) -> ZRLong {
         ZRLong result;
         ZRMutableStringGetCapacity(t.editedHandle, &result);
         return result;
       }},
      {"ZRMutableStringReverse",
       [](Texts& t) -> ZRLong {
         t.edited.reverse(t.start, t.length);
         return 0;
       },
       [](Texts& t) -> ZRLong { return ZRMutableStringReverse(t.editedHandle, t.start, kToEnd); }},
      {"ZRMutableStringLastIndexOf",
       [](Texts& t) -> ZRLong { return t.edited.lastIndexOf(static_cast<char16_t>(t.unit)); },
       [](Texts& t) -> ZRLong {
         ZRLong result;
         ZRMutableStringLastIndexOf(t.editedHandle, t.unit, &result);
         return result;
       }},
  };
  return functions;
}
