// Selection lists, as an application links them.
#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <utility>

#include "store/model/list_expansion.h"
#include "store/model/saved_lists.h"
#include "store/model/zel_data.h"
#include "store/record/ent_list.h"
#include "store/select/case_tokens.h"
#include "store/select/compact_text.h"
#include "store/select/interval_builder.h"
#include "store/select/list_evaluation.h"
#include "store/select/list_grammar.h"
#include "store/select/list_rewrite.h"
#include "store/select/list_scan.h"
#include "store/select/list_text.h"
#include "store/select/list_tokens.h"
#include "tests/link/linked.h"
#include "tests/support/builders.h"

namespace Tarvex::ListsLinkTest {
namespace {

using Data::CEntList;
using Data::ListTokens;
using Testing::AreLinked;
using Testing::Function;
using Testing::Member;

TEST(ListsLink, Lists) {
  EXPECT_TRUE(AreLinked(
      &CEntList::SetType, &CEntList::SetString, &CEntList::SetTokens, &CEntList::StringRef,
      &CEntList::IsAll, &CEntList::IsEmpty, &CEntList::AddTo, &CEntList::AssignFromSet,
      &CEntList::Item, &CEntList::Case, &CEntList::CheckSimpleList, &CEntList::IsPlain,
      &CEntList::FlagRebuild, &CEntList::Fault, Member<int(int) const>(&CEntList::Word)));
  CEntList list(L"name", SelElement, L"1 2");
  list.AddTo(5);
  CEntList copy(list);
  CEntList const moved(std::move(copy));
  CEntList assigned;
  assigned = moved;
  EXPECT_TRUE(assigned == list);
  EXPECT_EQ(assigned.Word(2), 5);
  EXPECT_EQ(CEntList(SelNode, std::vector{3, 4}).String(), CString(L"3 4"));
}

TEST(ListsLink, ExpansionOnAModel) {
  EXPECT_TRUE(AreLinked(&Util::MakeSet, &Util::Item, &Util::Items, &Util::NumItem,
                        &Util::IsItemIncluded, &Util::Delete, &Util::Replace, &Util::ExpandListProp,
                        &Util::ExpandListRange, &ListsThatReachThemselves));
  CZelData model;
  Testing::Grid(model, 3, 1);
  CEntList list(SelElement, L"2 to 9");
  EXPECT_EQ(Util::NumItem(list, model), 2);
  EXPECT_EQ(list.Item(1), 3);
  EXPECT_TRUE(Util::MakeSet(list, model).IsItemIncluded(2));
  EXPECT_TRUE(Util::Delete(list, 2, model));
  EXPECT_TRUE(ListsThatReachThemselves(model).empty());
}

TEST(ListsLink, ReferencesBetweenSavedLists) {
  EXPECT_TRUE(AreLinked(&SavedLists::Find, &SavedLists::Named, &SavedLists::ReferredBy,
                        &SavedLists::MissingIn, &ReachLists));
  CZelData model;
  model.SetList(1, CEntList(L"frames", SelElement, L"#2 #7"));
  model.SetList(2, CEntList(L"columns", SelElement, L"1 2"));
  SavedLists lists(model.List(), SelElement);
  EXPECT_EQ(lists.Find(2), &model.List(2));
  EXPECT_EQ(lists.Named(L"columns"), 2);
  auto const tokens = *Data::ReadList(L"#2 #7", SelElement);
  EXPECT_EQ(lists.ReferredBy(tokens), std::vector{2});
  EXPECT_EQ(lists.MissingIn(tokens).size(), 1u);
  EXPECT_EQ(ReachLists(lists, {1}).order, (std::vector{2, 1}));
}

TEST(ListsLink, WordsOfLists) {
  EXPECT_TRUE(AreLinked(&Data::ListWords, &Data::IsListWord, &Data::IsPrefixWord,
                        &Data::ReadListTokens, &Data::WriteListTokens));
  EXPECT_TRUE(AreLinked(&Data::NormalizeList, &Data::ReadList, &Data::IsListOfKind,
                        &Data::IsPlainList, &Data::NeedsNoModel, &Data::IsOwnNumberWord));
  EXPECT_TRUE(
      AreLinked(&Data::CaseToken, &Data::CaseOfToken, &Data::CaseOfLetter, &Data::LetterOfCase));
  auto const tokens = Data::ReadList(L"PB1 to 3", SelElement);
  ASSERT_TRUE(tokens.has_value());
  EXPECT_EQ(Data::WriteListTokens(*tokens), CString(L"PB1 PB2 PB3"));
  EXPECT_EQ(Data::CaseOfToken(Data::CaseToken({CaseOp::Load, 7})).Case(), 7);
}

TEST(ListsLink, TextsOfLists) {
  using Data::ListText;
  using Kind = std::optional<SelType>;
  EXPECT_TRUE(AreLinked(Member<bool(std::wstring_view, Kind, Data::ListFault*)>(&ListText::Set),
                        Member<bool(ListTokens, Kind, Data::ListFault*)>(&ListText::Set),
                        &ListText::Tokens, &ListText::Take, &ListText::Put));
  EXPECT_TRUE(AreLinked(&Data::ListScanner::Next));
  ListText text;
  EXPECT_TRUE(text.Set(L"4 5", SelNode));
  Data::ListScanner scanner(text.Tokens());
  Data::ListElement element;
  ASSERT_TRUE(scanner.Next(element));
  EXPECT_EQ(element.first, 4);
}

/// Answers for a list that has no words.
class Plain : public Data::ListResolver {
 public:
  int Highest() override { return 10; }
  int Limit() override { return 100; }
  Intervals All() override { return {{1, 10}}; }
  Intervals Word(int, int) override { return {}; }
  Intervals Named(CString const&) override { return {}; }
};

TEST(ListsLink, EvaluationAndRewriting) {
  using NewNumbers = std::map<int, std::vector<int>>;
  EXPECT_TRUE(AreLinked(&Data::ExpandList, &Data::ListNames, &Data::ListOrder, &Data::NamesNothing,
                        &Data::AppendToList, &Data::RemoveFromList, &Data::ReplaceInList,
                        &Data::WriteOutRanges, &Data::WriteOutWords, &Data::CompactWords));
  EXPECT_TRUE(AreLinked(Function<CString(Intervals const&)>(&CompactText),
                        Function<CString(std::span<int const>)>(&CompactText)));
  auto tokens = *Data::ReadList(L"all not 5", SelElement);
  Plain resolver;
  auto const numbers = Data::ExpandList(tokens, SelElement, resolver);
  EXPECT_EQ(CompactText(numbers), CString(L"1 to 4 6 to 10"));
  auto some = *Data::ReadList(L"1 2", SelElement);
  EXPECT_TRUE(Data::ReplaceInList(some, SelElement, NewNumbers{{2, {8, 9}}}, 10));
  EXPECT_EQ(Data::WriteListTokens(some), CString(L"1 8 9"));
}

TEST(ListsLink, BuildersOfSets) {
  EXPECT_TRUE(AreLinked(&IntervalBuilder::Unite, &IntervalBuilder::Intersect,
                        &IntervalBuilder::Subtract, &IntervalBuilder::Take, &IntervalBuilder::Add,
                        &IntervalBuilder::Remove));
  IntervalBuilder builder(Interval{1, 9});
  builder.Remove({4, 5});
  builder.Subtract(IntervalBuilder(Interval{9, 9}));
  EXPECT_TRUE(builder.Take() == (Intervals{{1, 3}, {6, 8}}));
}

}  // namespace
}  // namespace Tarvex::ListsLinkTest
