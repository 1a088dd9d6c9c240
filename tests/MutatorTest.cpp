#include <ZRString/ZRStringMutator.h>
#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "Text.h"

namespace {

using Text = std::u16string;

/// The model of Replace and its kin: text with [start, start + count) replaced.
Text Spliced(const Text& text, ZRLong start, ZRLong length, const Text& part) {
  const auto first = static_cast<std::size_t>(std::clamp<long long>(start, 0, text.size()));
  return text.substr(0, first) + part + text.substr(first + Cut(text, start, length).size());
}

Text SplicedBetween(const Text& text, ZRLong start, ZRLong end, const Text& part) {
  const auto first = static_cast<ZRLong>(std::clamp<long long>(start, 0, text.size()));
  return Spliced(text, first, static_cast<ZRLong>(CutBetween(text, start, end).size()), part);
}

Text AllReplaced(Text text, const Text& oldText, const Text& newText) {
  for (std::size_t at = 0; (at = text.find(oldText, at)) != Text::npos; at += newText.size())
    text.replace(at, oldText.size(), newText);
  return text;
}

struct Edit {
  const char* name;
  std::function<void(ZRStringMutator&, const ZRString&)> apply;
  std::function<Text(const Text&, const Text&)> model;  // of the text and the operand's text
};

using M = ZRStringMutator;
using S = ZRString;

const Text kRaw = u"xyz";

const Edit kEdits[] = {
    {"SetTo", [](M& m, const S& s) { m.SetTo(s, 1, 2); },
     [](const Text&, const Text& o) { return Cut(o, 1, 2); }},
    {"SetTo the rest", [](M& m, const S& s) { m.SetTo(s, 1, -1); },
     [](const Text&, const Text& o) { return Cut(o, 1, -1); }},
    {"SetTo raw", [](M& m, const S&) { m.SetTo(Raw(kRaw), -1); },
     [](const Text&, const Text&) { return kRaw; }},
    {"SetTo part of raw", [](M& m, const S&) { m.SetTo(Raw(kRaw), 2); },
     [](const Text&, const Text&) { return kRaw.substr(0, 2); }},
    {"SetTo null", [](M& m, const S&) { m.SetTo(static_cast<unsigned short*>(nullptr), -1); },
     [](const Text&, const Text&) { return Text(); }},
    {"SetCharAt", [](M& m, const S&) { m.SetCharAt(1, 'Z'); },
     [](const Text& t, const Text&) { return Spliced(t, 1, 1, u"Z"); }},
    {"SetCharAt before the start", [](M& m, const S&) { m.SetCharAt(INT_MIN, 'Z'); },
     [](const Text& t, const Text&) { return Spliced(t, 0, 1, u"Z"); }},
    {"SetCharAt past the end", [](M& m, const S&) { m.SetCharAt(INT_MAX, 'Z'); },
     [](const Text& t, const Text&) { return t.substr(0, t.size() - 1) + u'Z'; }},
    {"SetCharAt with the same unit", [](M& m, const S&) { m.SetCharAt(0, m[0]); },
     [](const Text& t, const Text&) { return t; }},
    {"+= unit", [](M& m, const S&) { m += 'Z'; },
     [](const Text& t, const Text&) { return t + u'Z'; }},
    {"+= string", [](M& m, const S& s) { m += s; },
     [](const Text& t, const Text& o) { return t + o; }},
    {"Append", [](M& m, const S& s) { m.Append(s, 0, -1); },
     [](const Text& t, const Text& o) { return t + o; }},
    {"Append a range", [](M& m, const S& s) { m.Append(s, 1, 2); },
     [](const Text& t, const Text& o) { return t + Cut(o, 1, 2); }},
    {"Append nothing", [](M& m, const S& s) { m.Append(s, 1, 0); },
     [](const Text& t, const Text&) { return t; }},
    {"Append raw", [](M& m, const S&) { m.Append(Raw(kRaw), 0, -1).Append(Raw(kRaw), 2, -1); },
     [](const Text& t, const Text&) { return t + kRaw + u'z'; }},
    {"Append a range of raw", [](M& m, const S&) { m.Append(Raw(kRaw), 1, 1); },
     [](const Text& t, const Text&) { return t + u'y'; }},
    {"Append null", [](M& m, const S&) { m.Append(static_cast<unsigned short*>(nullptr), 0, -1); },
     [](const Text& t, const Text&) { return t; }},
    {"Insert", [](M& m, const S& s) { m.Insert(1, s, 0, -1); },
     [](const Text& t, const Text& o) { return Spliced(t, 1, 0, o); }},
    {"Insert a range", [](M& m, const S& s) { m.Insert(1, s, 2, 2); },
     [](const Text& t, const Text& o) { return Spliced(t, 1, 0, Cut(o, 2, 2)); }},
    {"Insert past the end", [](M& m, const S& s) { m.Insert(INT_MAX, s, -9, INT_MAX); },
     [](const Text& t, const Text& o) { return t + o; }},
    {"Insert before the start", [](M& m, const S& s) { m.Insert(-3, s, 1, -1); },
     [](const Text& t, const Text& o) { return Cut(o, 1, -1) + t; }},
    {"Insert raw", [](M& m, const S&) { m.Insert(1, Raw(kRaw), 0, -1); },
     [](const Text& t, const Text&) { return Spliced(t, 1, 0, kRaw); }},
    {"Insert a range of raw", [](M& m, const S&) { m.Insert(1, Raw(kRaw), 2, -1); },
     [](const Text& t, const Text&) { return Spliced(t, 1, 0, u"z"); }},
    {"Replace", [](M& m, const S& s) { m.Replace(1, 2, s, 1, -1); },
     [](const Text& t, const Text& o) { return Spliced(t, 1, 2, Cut(o, 1, -1)); }},
    {"Replace the rest", [](M& m, const S& s) { m.Replace(2, -1, s, 0, -1); },
     [](const Text& t, const Text& o) { return Spliced(t, 2, -1, o); }},
    {"Replace raw", [](M& m, const S&) { m.Replace(1, -1, Raw(kRaw), 1, -1); },
     [](const Text& t, const Text&) { return Spliced(t, 1, -1, u"yz"); }},
    {"ReplaceBetween", [](M& m, const S& s) { m.ReplaceBetween(0, 1, s, 0, 0); },
     [](const Text& t, const Text& o) { return SplicedBetween(t, 0, 1, CutBetween(o, 0, 0)); }},
    {"ReplaceBetween extremes", [](M& m, const S& s) { m.ReplaceBetween(0, INT_MAX, s, -1, 1); },
     [](const Text& t, const Text& o) { return SplicedBetween(t, 0, INT_MAX, Cut(o, 0, 2)); }},
    {"Remove", [](M& m, const S&) { m.Remove(1, 2); },
     [](const Text& t, const Text&) { return Spliced(t, 1, 2, u""); }},
    {"Remove the rest", [](M& m, const S&) { m.Remove(3, -1); },
     [](const Text& t, const Text&) { return Spliced(t, 3, -1, u""); }},
    {"Remove past the end", [](M& m, const S&) { m.Remove(INT_MAX, INT_MAX); },
     [](const Text& t, const Text&) { return t; }},
    {"RemoveBetween", [](M& m, const S&) { m.RemoveBetween(2, 3); },
     [](const Text& t, const Text&) { return SplicedBetween(t, 2, 3, u""); }},
    {"RemoveBetween -1", [](M& m, const S&) { m.RemoveBetween(2, -1); },
     [](const Text& t, const Text&) { return t; }},
    {"RemoveBetween extremes", [](M& m, const S&) { m.RemoveBetween(-2, 0); },
     [](const Text& t, const Text&) { return t.substr(1); }},
    {"RemoveBetween all", [](M& m, const S&) { m.RemoveBetween(INT_MIN, INT_MAX); },
     [](const Text&, const Text&) { return Text(); }},
    {"FindAndReplace", [](M& m, const S& s) { m.FindAndReplace(0, -1, s, 0, 1, s, 0, -1); },
     [](const Text& t, const Text& o) { return AllReplaced(t, o.substr(0, 1), o); }},
    {"FindAndReplace from", [](M& m, const S& s) { m.FindAndReplace(1, -1, s, 0, 1, s, 1, 2); },
     [](const Text& t, const Text& o) {
       return t.substr(0, 1) + AllReplaced(t.substr(1), o.substr(0, 1), o.substr(1, 2));
     }},
    {"FindAndReplace raw old",
     [](M& m, const S& s) { m.FindAndReplace(0, -1, Raw(u"zab"), 2, 10, s, 1, -1); },
     [](const Text& t, const Text& o) { return AllReplaced(t, u"b", o.substr(1)); }},
    {"FindAndReplace raw new",
     [](M& m, const S& s) { m.FindAndReplace(0, -1, s, 1, 1, Raw(kRaw), 1, -1); },
     [](const Text& t, const Text& o) { return AllReplaced(t, o.substr(1, 1), u"yz"); }},
    {"FindAndReplace raw both",
     [](M& m, const S&) { m.FindAndReplace(0, -1, Raw(u"aa"), 0, 1, Raw(u"aa"), 0, -1); },
     [](const Text& t, const Text&) { return AllReplaced(t, u"a", u"aa"); }},
    {"FindAndReplace start past the raw old",
     [](M& m, const S& s) { m.FindAndReplace(0, -1, Raw(u"a"), 2, -1, s, 0, -1); },
     [](const Text& t, const Text&) { return t; }},
    {"FindAndReplace by another part",
     [](M& m, const S& s) { m.FindAndReplace(0, -1, s, 0, 1, s, 1, 2); },
     [](const Text& t, const Text& o) { return AllReplaced(t, o.substr(0, 1), o.substr(1, 2)); }},
    {"FindAndReplace of a part",
     [](M& m, const S& s) { m.FindAndReplace(0, -1, s, 0, 1, Make(kRaw), 0, -1); },
     [](const Text& t, const Text& o) { return AllReplaced(t, o.substr(0, 1), kRaw); }},
    {"FindAndReplace by a part",
     [](M& m, const S& s) { m.FindAndReplace(0, -1, Make(u"a"), 0, 1, s, 1, 2); },
     [](const Text& t, const Text& o) { return AllReplaced(t, u"a", o.substr(1, 2)); }},
    {"FindAndReplace raw by a part",
     [](M& m, const S& s) { m.FindAndReplace(0, -1, Raw(u"a"), 0, 1, s, 1, 2); },
     [](const Text& t, const Text& o) { return AllReplaced(t, u"a", o.substr(1, 2)); }},
    {"ToLower", [](M& m, const S&) { m.ToLower(); }, [](const Text& t, const Text&) { return t; }},
    {"FindAndReplace nothing", [](M& m, const S& s) { m.FindAndReplace(0, -1, s, 0, 0, s, 0, -1); },
     [](const Text& t, const Text&) { return t; }},
    {"PadLeading", [](M& m, const S&) { EXPECT_EQ(m.PadLeading(40, '*'), 1); },
     [](const Text& t, const Text&) { return Text(40 - t.size(), u'*') + t; }},
    {"PadTrailing", [](M& m, const S&) { EXPECT_EQ(m.PadTrailing(40, '*'), 1); },
     [](const Text& t, const Text&) { return t + Text(40 - t.size(), u'*'); }},
    {"Pad to less",
     [](M& m, const S&) { EXPECT_EQ(m.PadLeading(5, '*') + m.PadTrailing(INT_MIN, '*'), 0); },
     [](const Text& t, const Text&) { return t; }},
    {"Truncate", [](M& m, const S&) { EXPECT_EQ(m.Truncate(2), 1); },
     [](const Text& t, const Text&) { return t.substr(0, 2); }},
    {"Truncate to more", [](M& m, const S&) { EXPECT_EQ(m.Truncate(40) + m.Truncate(-1), 0); },
     [](const Text& t, const Text&) { return t; }},
    {"Trim", [](M& m, const S&) { m.Trim(); },
     [](const Text& t, const Text&) { return t.substr(0, t.find_last_not_of(u' ') + 1); }},
    {"Reverse", [](M& m, const S&) { m.Reverse(1, -1); },
     [](const Text& t, const Text&) { return t.substr(0, 1) + Text(t.rbegin(), t.rend() - 1); }},
    {"Reverse a range", [](M& m, const S&) { m.Reverse(0, 2); },
     [](const Text& t, const Text&) { return Text(1, t[1]) + t[0] + t.substr(2); }},
    {"ToUpper", [](M& m, const S&) { m.ToUpper().ToLower(); },
     [](const Text& t, const Text&) { return t; }},
    {"Extract", [](M& m, const S& s) { ZRStringMutator(s).Extract(1, -1, m); },
     [](const Text&, const Text& o) { return o.substr(1); }},
    {"Extract extremes", [](M& m, const S& s) { ZRStringMutator(s).Extract(1, INT_MAX, m); },
     [](const Text&, const Text& o) { return o.substr(1); }},
    {"ExtractBetween", [](M& m, const S& s) { ZRStringMutator(s).ExtractBetween(1, 2, m); },
     [](const Text&, const Text& o) { return o.substr(1, 2); }},
    {"ExtractBetween -1", [](M& m, const S& s) { ZRStringMutator(s).ExtractBetween(1, -1, m); },
     [](const Text&, const Text&) { return Text(); }},
    {"Extract from itself", [](M& m, const S&) { m.Extract(1, 2, m); },
     [](const Text& t, const Text&) { return t.substr(1, 2); }},
    {"Append own units", [](M& m, const S&) { m.Append(m.GetBuffer(), 1, 2); },
     [](const Text& t, const Text&) { return t + t.substr(1, 2); }},
    {"Insert own units", [](M& m, const S&) { m.Insert(1, m.GetBuffer(), 0, m.GetLength()); },
     [](const Text& t, const Text&) { return Spliced(t, 1, 0, t); }},
    {"the buffer, asked for less than the text",
     [](M& m, const S&) {
       const ZRLong length = m.GetLength();
       m.GetBuffer(0);
       m.ReleaseBuffer(length);
     },
     [](const Text& t, const Text&) { return t; }},
    {"the buffer",
     [](M& m, const S&) {
       const ZRLong length = m.GetLength();
       unsigned short* const units = m.GetBuffer(length + 10);
       EXPECT_GE(m.GetCapacity(), length + 10);
       units[0] = 'Z';
       m.ReleaseBuffer(length);
     },
     [](const Text& t, const Text&) { return Spliced(t, 0, 1, u"Z"); }},
};

// Inside the body, and in storage of its own, which ICU itself shares between copies.
const Text kTexts[] = {u"abcab  ", u"abcabcabcabcabcabcabcabcabcabcabcabcab"};
const Text kOperand = u"bcd";

}  // namespace

TEST(Mutator, EditsReachNoSharer) {
  for (const Edit& edit : kEdits) {
    for (const Text& text : kTexts) {
      SCOPED_TRACE(testing::Message() << edit.name << ", " << text.size() << " units");
      {
        SCOPED_TRACE("sole holder");
        ZRStringMutator string(Make(text));
        edit.apply(string, Make(kOperand));
        EXPECT_EQ(TextOf(string), edit.model(text, kOperand));
        EXPECT_EQ(Holders(string), 1);
      }
      {
        SCOPED_TRACE("shared body");
        ZRStringMutator string(Make(text));
        const ZRString before(string);
        const ZRString another(string);
        const ZRString operand = Make(kOperand);
        edit.apply(string, operand);
        EXPECT_EQ(TextOf(string), edit.model(text, kOperand));
        EXPECT_EQ(Holders(string), 1);
        EXPECT_EQ(TextOf(before), text);
        EXPECT_EQ(Holders(before), 2);
        EXPECT_EQ(TextOf(operand), kOperand);
        EXPECT_EQ(Holders(operand), 1);
      }
      {
        SCOPED_TRACE("itself as the operand");
        ZRStringMutator string(Make(text));
        edit.apply(string, string);
        EXPECT_EQ(TextOf(string), edit.model(text, text));
        EXPECT_EQ(Holders(string), 1);
      }
      {
        SCOPED_TRACE("itself as the operand, shared");
        ZRStringMutator string(Make(text));
        const ZRString before(string);
        edit.apply(string, string);
        EXPECT_EQ(TextOf(string), edit.model(text, text));
        EXPECT_EQ(TextOf(before), text);
        EXPECT_EQ(Holders(before), 1);
      }
      {
        SCOPED_TRACE("an operand that shares the body");
        ZRStringMutator string(Make(text));
        const ZRString operand(string);
        edit.apply(string, operand);
        EXPECT_EQ(TextOf(string), edit.model(text, text));
        EXPECT_EQ(Holders(string), 1);
        EXPECT_EQ(TextOf(operand), text);
        EXPECT_EQ(Holders(operand), 1);
      }
    }
  }
}

TEST(Mutator, RangesOfEveryEdit) {
  const Text text = u"abcab";
  const Text part = u"xyz";
  const ZRString operand = Make(part);
  for (const ZRLong start : kEdges) {
    for (const ZRLong length : kEdges) {
      SCOPED_TRACE(testing::Message() << start << ' ' << length);
      const ZRString source = Make(text);
      EXPECT_EQ(TextOf(M(source).Remove(start, length)), Spliced(text, start, length, u""));
      EXPECT_EQ(TextOf(M(source).RemoveBetween(start, length)),
                SplicedBetween(text, start, length, u""));
      EXPECT_EQ(TextOf(M(source).Replace(start, length, operand, 0, -1)),
                Spliced(text, start, length, part));
      EXPECT_EQ(TextOf(M(source).Replace(start, length, Raw(part), 0, -2)),
                Spliced(text, start, length, part));
      EXPECT_EQ(TextOf(M(source).ReplaceBetween(start, length, operand, start, length)),
                SplicedBetween(text, start, length, CutBetween(part, start, length)));
      EXPECT_EQ(TextOf(M(source).SetTo(operand, start, length)), Cut(part, start, length));
      EXPECT_EQ(TextOf(M(source).Append(operand, start, length)), text + Cut(part, start, length));
      EXPECT_EQ(TextOf(M(source).Insert(start, operand, start, length)),
                Spliced(text, start, 0, Cut(part, start, length)));
      EXPECT_EQ(TextOf(M(source).FindAndReplace(start, length, Raw(u"b"), 0, -1, operand, 0, -1)),
                Spliced(text, start, length, AllReplaced(Cut(text, start, length), u"b", part)));
      EXPECT_EQ(TextOf(M(source).FindAndReplace(0, -1, Raw(u"b"), 0, 1, Raw(part), start, length)),
                AllReplaced(text, u"b", Cut(part, start, length)));
      const Text range = Cut(text, start, length);
      EXPECT_EQ(TextOf(M(source).Reverse(start, length)),
                Spliced(text, start, length, Text(range.rbegin(), range.rend())));
      M target;
      M(source).Extract(start, length, target);
      EXPECT_EQ(TextOf(target), range);
      M(source).ExtractBetween(start, length, target);
      EXPECT_EQ(TextOf(target), CutBetween(text, start, length));
    }
  }
}

TEST(Mutator, PlusLeavesItsOperandsAlone) {
  const ZRStringMutator left(Make(u"ab"));
  const ZRString right = Make(u"c");
  EXPECT_EQ(TextOf(left + right), u"abc");
  EXPECT_EQ(TextOf(left + left), u"abab");
  EXPECT_EQ(TextOf(right + static_cast<unsigned short>('d')), u"cd");
  EXPECT_EQ(TextOf(static_cast<unsigned short>('d') + right), u"dc");
  EXPECT_EQ(TextOf(left), u"ab");
  EXPECT_EQ(TextOf(right), u"c");
  EXPECT_EQ(Holders(left) + Holders(right), 2);
}

TEST(Mutator, VirtualMembersOfTheBaseStayVisible) {
  const ZRStringMutator string(Make(u"abc"));
  const ZRString& base = string;
  EXPECT_EQ(string.GetBuffer(), base.GetBuffer());
  unsigned short units[3];
  string.Extract(1, 1, units, 0);
  EXPECT_EQ(units[0], 'b');
  string.ExtractBetween(2, 2, units, 0);
  EXPECT_EQ(units[0], 'c');
}

TEST(Buffer, StatesOfTheProtocol) {
  ZRStringMutator string(Make(u"abc"));
  string.ReleaseBuffer(1);  // none is open
  EXPECT_EQ(TextOf(string), u"abc");
  EXPECT_EQ(string.GetBuffer(-2), nullptr);
  EXPECT_EQ(TextOf(string), u"abc");

  unsigned short* const units = string.GetBuffer(-1);
  ASSERT_NE(units, nullptr);
  EXPECT_EQ(units[2], 'c');
  EXPECT_EQ(string.GetBuffer(10), nullptr);
  EXPECT_EQ(string.GetTerminatedBuffer(), nullptr);
  EXPECT_EQ(string.GetLength(), 0);
  string.Append(Make(u"x"), 0, -1);
  string.ReleaseBuffer(-2);
  EXPECT_EQ(string.GetLength(), 0);
  units[1] = 0;
  string.ReleaseBuffer(-1);
  EXPECT_EQ(TextOf(string), u"a");

  const ZRLong capacity = string.GetCapacity();
  std::fill_n(string.GetBuffer(capacity), capacity, static_cast<unsigned short>('x'));
  string.ReleaseBuffer(-1);
  EXPECT_EQ(TextOf(string), Text(capacity, u'x'));
  string.GetBuffer(-1);
  string.ReleaseBuffer(INT_MAX);
  EXPECT_EQ(string.GetLength(), capacity);
}

TEST(Buffer, ACopyMadeWhileItIsOpenSharesTheBody) {
  ZRStringMutator string(Make(u"abc"));
  unsigned short* const units = string.GetBuffer(-1);
  const ZRString copy(string);
  EXPECT_EQ(BodyOf(copy), BodyOf(string));
  units[0] = 'Z';
  string.ReleaseBuffer(3);
  EXPECT_EQ(BodyOf(copy), BodyOf(string));
  EXPECT_EQ(TextOf(copy), u"Zbc");
}

TEST(Buffer, TheTerminatedBufferDoesNotDetach) {
  for (const Text& text : kTexts) {
    ZRStringMutator string(Make(text));
    const ZRString copy(string);
    const unsigned short* const units = string.GetTerminatedBuffer();
    EXPECT_EQ(Text(units, units + text.size() + 1), text + u'\0');
    EXPECT_EQ(BodyOf(copy), BodyOf(string));
    EXPECT_EQ(TextOf(copy), text);
  }
}

TEST(Transforms, KeepSurrogatePairsAndMapFully) {
  EXPECT_EQ(TextOf(ZRStringMutator(Make(u"a\U0001F600b")).Reverse(0, -1)), u"b\U0001F600a");
  EXPECT_EQ(TextOf(ZRStringMutator(Make(u"stra\u00DFe")).ToUpper()), u"STRASSE");
  EXPECT_EQ(TextOf(ZRStringMutator(Make(u"\u3000 a b\t")).Trim()), u"a b");
}
