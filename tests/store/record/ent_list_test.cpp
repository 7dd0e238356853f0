#include "store/record/ent_list.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

#include "store/select/case_tokens.h"
#include "tests/support/matchers.h"
#include "tests/support/plain_list.h"
#include "tests/support/stored_fields.h"

namespace Tarvex::Data::EntListTest {
namespace {

using Testing::OutOfRangeText;

Util::CSet SetOf(SelType kind, std::vector<int> const& numbers) {
  Util::CSet set(kind);
  for (int const number : numbers) set.AddTo(number);
  return set;
}

CEntList List(CString const& text) { return {SelElement, text}; }

TEST(EntList, IsAnEmptyListWithoutKindAtFirst) {
  CEntList const list;
  EXPECT_EQ(list.TypeOf(), SelNone);
  EXPECT_EQ(list.String(), L"");
  EXPECT_EQ(list.Name(), L"");
  EXPECT_EQ(list.NumWord(), 0);
  EXPECT_TRUE(list.IsEmpty());
  EXPECT_FALSE(list.IsAll());
}

TEST(EntList, IsMadeOfATextOrTokens) {
  CEntList const named(L"roof", SelMember, L"1 to 5");
  EXPECT_EQ(named.Name(), L"roof");
  EXPECT_EQ(named.TypeOf(), SelMember);
  EXPECT_EQ(named.String(), L"1 to 5");
  CEntList const plain(SelNode, L"8 9");
  EXPECT_EQ(plain.Name(), L"");
  EXPECT_EQ(plain.String(), L"8 9");
  EXPECT_EQ(CEntList(SelNode, std::vector<int>{kAll, kNot, 5}).String(), L"all not 5");
  EXPECT_EQ(CEntList(SelNode, std::vector{-4}).String(), L"all");
}

TEST(EntList, IsEmptyWhenMadeOfWhatIsNoList) {
  EXPECT_EQ(CEntList(L"a", SelNode, L"1 to"), CEntList(L"a", SelNode, L""));
  EXPECT_EQ(CEntList(SelNode, std::vector<int>{1, kTo}).NumWord(), 0);
  EXPECT_EQ(CEntList(SelNode, L"L1").NumWord(), 0);
}

TEST(EntList, GivesItsWords) {
  auto const list = List(L"PB2 \"roof\" 1 to * \"\"");
  EXPECT_EQ(list.NumWord(), 7);
  EXPECT_EQ(list.Word(), (std::vector{-16, 2, -11, 1, -1, -6, -11}));
  EXPECT_EQ(list.Word(0), -16);
  EXPECT_EQ(list.Word(6), -11);
  EXPECT_EQ(list.StringRef(0), L"roof");
  EXPECT_EQ(list.StringRef(1), L"");
  for (int const i : {-1, 7})
    EXPECT_EQ(OutOfRangeText([&] { list.Word(i); }), "invalid vector subscript");
  EXPECT_EQ(OutOfRangeText([&] { list.StringRef(2); }), "invalid vector subscript");
  EXPECT_EQ(list.String(true), list.String());
}

TEST(EntList, StaysAsItWasWhenATextIsRefused) {
  auto list = List(L"1 2");
  for (auto const* text : {L"1 to", L"ten", L"(", L"1 step 2", L"-1", L"L1"})
    EXPECT_FALSE(list.SetString(text)) << CString(text).ToUtf8();
  ListFault fault;
  EXPECT_FALSE(list.SetString(L"1 or ten", &fault));
  EXPECT_EQ(fault.position, 5);
  EXPECT_EQ(fault.reason, L"an unknown word");
  EXPECT_FALSE(list.SetTokens({kClose}));
  EXPECT_EQ(list, List(L"1 2"));
  EXPECT_TRUE(list.SetString(L" 3  4 "));
  EXPECT_EQ(list.String(), L"3 4");
}

TEST(EntList, TakesWhatToolsCompose) {
  for (auto const* text : {L"1 2 3 ", L"1 to 9 step 2", L"all not (5 6)", L"1 to 3 not (PB2)",
                           L"((1 2) 3 (4))", L"PB1 to 3 "}) {
    CEntList list(SelElement, L"");
    EXPECT_TRUE(list.SetString(text)) << CString(text).ToUtf8();
  }
}

TEST(EntList, KeepsItsQuotedNamesWhenTokensAreSet) {
  auto list = List(L"\"a\" PB2 \"b\"");
  EXPECT_TRUE(list.SetTokens({kString, -16, 7, kString}));
  EXPECT_EQ(list.String(), L"\"a\" PB7 \"b\"");
  EXPECT_TRUE(list.SetTokens({kString}));
  EXPECT_EQ(list.String(), L"\"a\"");
}

TEST(EntList, TellsAllAndNothing) {
  EXPECT_TRUE(List(CEntList::All()).IsAll());
  EXPECT_FALSE(List(L"all 1").IsAll());
  EXPECT_FALSE(List(L"").IsAll());
  for (auto const* text : {L"", L"none", L"none or none", L"()"})
    EXPECT_TRUE(List(text).IsEmpty()) << CString(text).ToUtf8();
  for (auto const* text : {L"1", L"none 1", L"all", L"PB", L"1 not 1", L"\"\""})
    EXPECT_FALSE(List(text).IsEmpty()) << CString(text).ToUtf8();
}

TEST(EntList, AddsNumbersAndKeepsAPlainListPlain) {
  auto list = List(L"");
  for (int const number : {8, 9, 10}) list.AddTo(number);
  EXPECT_EQ(list.String(), L"8 9 10");
  int count = 0;
  Util::CSet set;
  EXPECT_TRUE(list.CheckSimpleList(count, set));
  EXPECT_EQ(count, list.NumWord());
}

TEST(EntList, IsPlainWhenAllWordsAreNumbers) {
  for (auto const* text : {L"", L"7", L"9 8 9"}) EXPECT_TRUE(List(text).IsPlain());
  for (auto const* text :
       {L"1 to 3", L"all", L"none", L"1 *", L"1 not 2", L"(1)", L"1 \"a\"", L"G1"})
    EXPECT_FALSE(List(text).IsPlain()) << CString(text).ToUtf8();
  EXPECT_FALSE(CEntList(SelCase, L"").IsPlain());
}

TEST(EntList, AddsKeywords) {
  CEntList list(SelNode, L"");
  list.AddTo(-4);
  EXPECT_TRUE(list.IsAll());
  list.AddTo(kNot);
  list.AddTo(5);
  EXPECT_EQ(list.String(), L"all not or 5");  // nothing falls under a word that waits
  list = CEntList(SelNode, L"1 to 3");
  list.AddTo(kAnd);
  EXPECT_EQ(list.String(), L"(1 to 3) and");
}

TEST(EntList, RefusesToAddWhatCanNotStandAtTheEnd) {
  auto list = List(L"1");
  for (int const token : {int{kTo}, int{kStep}, int{kOpen}, int{kClose}, -25, 100000001,
                          CaseToken({CaseOp::Load, 1})})
    EXPECT_EQ(OutOfRangeText([&] { list.AddTo(token); }),
              "list: no place for token " + std::to_string(token));
  EXPECT_EQ(list, List(L"1"));
  CEntList cases(SelCase, L"L1");
  EXPECT_NE(OutOfRangeText([&] { cases.AddTo(2); }), "");
  cases.AddTo(CaseToken({CaseOp::Task, 2}));
  EXPECT_EQ(cases.String(), L"L1 T2");
}

TEST(EntList, AddsToAListOfVeryManyInTheTimeOfOne) {
  auto list = List(L"");
  for (int number = 1; number <= 200000; ++number) list.AddTo(number);
  EXPECT_EQ(list.NumWord(), 200000);
}

TEST(EntList, TakesTheCompactTextOfASet) {
  auto list = List(L"all not 3");
  list.AssignFromSet(SetOf(SelElement, {1, 2, 3, 4, 5, 8, 10, 11}));
  EXPECT_EQ(list.String(), L"1 to 5 8 10 11");
  EXPECT_EQ(list.TypeOf(), SelElement);
  list.AssignFromSet(Util::CSet(SelElement));
  EXPECT_TRUE(list.IsEmpty());
}

TEST(EntList, ExpandsTheCompactTextToTheSameSet) {
  Testing::Random random(4);
  for (int i = 0; i < 300; ++i) {
    std::vector<int> numbers;
    for (int k = random.Int(0, 60); k > 0; --k) numbers.push_back(random.Int(1, 100));
    auto const set = SetOf(SelElement, numbers);
    CEntList list(L"name", SelElement, L"all");
    list.AssignFromSet(set);
    Util::CSet expanded;
    int count = 0;
    EXPECT_TRUE(list.CheckSimpleList(count, expanded));
    EXPECT_EQ(expanded, set);
    EXPECT_EQ(list.String(), set.String(-1, L""));
  }
}

struct Simple {
  bool simple;
  int count;
  std::vector<int> numbers;
  friend bool operator==(Simple const&, Simple const&) = default;
};

Simple CheckSimple(CEntList const& list) {
  int count = -1;
  Util::CSet set;
  bool const simple = list.CheckSimpleList(count, set);
  if (simple) {
    EXPECT_EQ(set.TypeOf(), list.TypeOf());
  }
  return {simple, count, {set.begin(), set.end()}};
}

TEST(EntList, CountsPlainNumbersOfAListThatNeedsNoModel) {
  EXPECT_EQ(CheckSimple(List(L"9 8 9")), (Simple{true, 3, {8, 9}}));
  EXPECT_EQ(CheckSimple(List(L"")), (Simple{true, 0, {}}));
  // Three words, three items and no plain list.
  EXPECT_EQ(CheckSimple(List(L"1 to 3")), (Simple{true, 0, {1, 2, 3}}));
  EXPECT_EQ(CheckSimple(List(L"1 to 3 7")), (Simple{true, 1, {1, 2, 3, 7}}));
  EXPECT_EQ(CheckSimple(List(L"none")), (Simple{true, 0, {}}));
  EXPECT_EQ(CheckSimple(List(L"1 to 9 step 4 not 5")), (Simple{true, 1, {1, 9}}));
  EXPECT_EQ(CheckSimple(List(L"E4 E5")), (Simple{true, 0, {4, 5}}));
  EXPECT_EQ(CheckSimple(CEntList(SelNone, L"0 3")), (Simple{true, 2, {3}}));
}

TEST(EntList, CallsNoListSimpleThatNeedsAModel) {
  for (auto const* text : {L"all", L"1 to *", L"PB1", L"#1", L"\"roof\"", L"G1", L"N1"})
    EXPECT_EQ(CheckSimple(List(text)), (Simple{false, -1, {}})) << CString(text).ToUtf8();
  EXPECT_FALSE(CheckSimple(CEntList(SelCase, L"L1")).simple);
}

TEST(EntList, GivesNoItemBeforeItWasExpanded) {
  auto const list = List(L"1");
  EXPECT_EQ(OutOfRangeText([&] { list.Item(0); }), "invalid vector subscript");
  EXPECT_EQ(OutOfRangeText([&] { list.Case(0); }), "invalid vector subscript");
}

/// A list whose last expansion is the cases or numbers given.
CEntList Expanded(CEntList list, Intervals const& numbers) {
  ListAccess::SetLast(list, boost::make_shared<CBitContainer const>(numbers));
  return list;
}

TEST(EntList, GivesTheItemsOfItsLastExpansionAndSoDoCopies) {
  auto const list = Expanded(List(L"all"), {{3, 4}, {9, 9}});
  auto const copy = list;
  CEntList assigned;
  assigned = copy;
  for (CEntList const* each : {&list, &copy, static_cast<CEntList const*>(&assigned)}) {
    EXPECT_EQ(each->Item(0), 3);
    EXPECT_EQ(each->Item(2), 9);
    EXPECT_EQ(OutOfRangeText([&] { each->Item(3); }), "invalid vector subscript");
  }
  auto const moved = std::move(assigned);
  EXPECT_EQ(moved.Item(1), 4);
}

TEST(EntList, GivesTheCasesOfItsLastExpansion) {
  int const first = CaseToken({CaseOp::Analysis, 6});
  auto const list = Expanded(CEntList(SelCase, L"A6 A7"), {{first, first + 1}});
  EXPECT_EQ(list.Case(0), SCaseRef(CaseOp::Analysis, 6));
  EXPECT_EQ(list.Case(1), SCaseRef(CaseOp::Analysis, 7));
}

TEST(EntList, ForgetsItsExpansionAtEveryChange) {
  void (*const changes[])(CEntList&) = {
      [](CEntList& list) { list.SetString(L"1"); },
      [](CEntList& list) { list.SetTokens({1}); },
      [](CEntList& list) { list.AddTo(1); },
      [](CEntList& list) { list.AddTo(kAll); },
      [](CEntList& list) { list.SetType(SelMember); },
      [](CEntList& list) { list.AssignFromSet(Util::CSet(SelElement)); },
      [](CEntList& list) { list.FlagRebuild(); },
  };
  for (auto const change : changes) {
    auto list = Expanded(List(L"7"), {{7, 7}});
    auto const copy = list;
    auto const words = ListAccess::Text(list).Words();
    change(list);
    EXPECT_EQ(OutOfRangeText([&] { list.Item(0); }), "invalid vector subscript");
    EXPECT_EQ(copy.Item(0), 7);
  }
}

TEST(EntList, LooksNewWhenItIsToBeRebuilt) {
  auto list = List(L"7");
  auto const copy = list;
  EXPECT_EQ(ListAccess::Text(copy).Words(), ListAccess::Text(list).Words());
  list.FlagRebuild();
  EXPECT_NE(ListAccess::Text(copy).Words(), ListAccess::Text(list).Words());
  EXPECT_EQ(list, copy);
}

TEST(EntList, NeedsNoBlankBehindPrefixWordsOnly) {
  for (int token = -100; token <= 10; ++token)
    EXPECT_EQ(CEntList::IsWordSuffixOptional(token),
              (token <= -13 && token >= -39) || (token <= -50 && token >= -58))
        << token;
}

TEST(EntList, TellsWhenItsWordsAreNotOfItsKind) {
  auto list = List(L"1");
  EXPECT_EQ(list.Fault(), L"");
  list.SetType(SelCase);
  EXPECT_EQ(list.Fault(), L"a number without the letter of its case");
  CEntList cases(SelCase, L"L1");
  EXPECT_EQ(cases.Fault(), L"");
  cases.SetType(SelNode);
  EXPECT_EQ(cases.Fault(), L"a case in a list of nodes");
}

TEST(EntList, ComparesEveryField) {
  Testing::ExpectStoredFields<CEntList>({
      {"name", [](CEntList& a) { a.SetName(L"n"); }},
      {"sid", [](CEntList& a) { a.SetSid(L"s"); }},
      {"colour", [](CEntList& a) { a.SetColour(1); }},
      {"kind", [](CEntList& a) { a.SetType(SelMember); }},
      {"text", [](CEntList& a) { a.SetString(L"1"); }},
  });
  EXPECT_FALSE(List(L"\"a\"") == List(L"\"b\""));
}

TEST(EntList, AddsWhatItNamesToASet) {
  auto set = SetOf(SelElement, {5});
  set.AddListToSet(List(L"7 9 to 12 not 10 PB3"), -1);
  EXPECT_EQ(set, SetOf(SelElement, {5, 7, 9, 11, 12}));
  set.AddListToSet(List(L"all"), -1);
  EXPECT_EQ(set.NumItem(), 5);
  set.AddListToSet(List(L"2 to *"), 4);
  EXPECT_EQ(set, SetOf(SelElement, {2, 3, 4, 5, 7, 9, 11, 12}));
  set.AddListToSet(List(L"all"), 3);
  EXPECT_EQ(set.LowestItem(), 1);
  set.AddListToSet(CEntList(SelCase, L"L1"), 3);
  EXPECT_EQ(set.NumItem(), 9);
}

}  // namespace
}  // namespace Tarvex::Data::EntListTest
