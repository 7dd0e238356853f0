#include "store/record/held_list.h"

#include <gtest/gtest.h>

#include "store/model/list_expansion.h"
#include "store/model/zel_data.h"
#include "tests/support/builders.h"
#include "tests/support/record_fields.h"

namespace Tarvex::Data::HeldListTest {
namespace {

TEST(HeldList, TakesKindAndWordsAndNothingElseOfAList) {
  CEntList list(L"columns", SelMember, L"1 to 5");
  list.SetSid(L"id");
  list.SetColour(7);
  list.Lock(true);
  HeldList const held(list);
  EXPECT_EQ(held.TypeOf(), SelMember);
  EXPECT_EQ(held.String(), L"1 to 5");
  EXPECT_EQ(held.Name(), L"");
  EXPECT_EQ(held.Sid(), L"");
  EXPECT_EQ(held.GetColour(), 0u);
  EXPECT_FALSE(held.IsLocked());
  EXPECT_EQ(held, HeldList(CEntList(SelMember, L"1 to 5")));
}

TEST(HeldList, ComparesKindAndText) {
  Testing::ExpectFields<HeldList>({{"kind", [](HeldList& l) { l.SetType(SelNode); }},
                                   {"text", [](HeldList& l) { l.SetString(L"4"); }}});
}

TEST(HeldList, KeepsWhatTheListWasLastCountedFor) {
  CZelData model;
  Testing::Grid(model, 3, 1);
  CEntList const list(SelElement, L"3 1");
  EXPECT_EQ(Util::NumItem(list, model), 2);
  EXPECT_EQ(HeldList(list).Item(1), 3);
}

TEST(ListOf, IsAnEmptyListOfItsKindAtFirst) {
  ListOf<SelNode> const list;
  EXPECT_EQ(list.TypeOf(), SelNode);
  EXPECT_TRUE(list.IsEmpty());
  EXPECT_EQ(ListOf<SelElement>(L"2 4").String(), L"2 4");
  EXPECT_EQ(ListOf<SelElement>(L"2 4").TypeOf(), SelElement);
}

TEST(ListOf, TakesListsOfItsKind) {
  ListOf<SelNode> list;
  EXPECT_TRUE(list.Take(CEntList(L"named", SelNode, L"1 to 3")));
  EXPECT_EQ(list.String(), L"1 to 3");
  EXPECT_EQ(list.Name(), L"");
}

TEST(ListOf, RefusesWhatAnotherKindNamesAndStaysAsItWas) {
  ListOf<SelNode> list(L"7");
  EXPECT_FALSE(list.Take(CEntList(SelElement, L"1")));
  EXPECT_THROW(list.Put(CEntList(SelElement, L"1")), std::invalid_argument);
  EXPECT_EQ(list.String(), L"7");
  EXPECT_EQ(list.TypeOf(), SelNode);
}

TEST(ListOf, TakesNothingFromAListOfAnotherKindThatNamesNothing) {
  for (auto const* nothing : {L"", L"none"}) {
    ListOf<SelNode> list(L"7");
    list.Put(CEntList(SelNone, CString(nothing)));
    EXPECT_EQ(list, ListOf<SelNode>());
    EXPECT_EQ(list.TypeOf(), SelNode);
  }
}

TEST(ListOf, ComparesItsText) {
  Testing::ExpectFields<ListOf<SelElement>>(
      {{"text", [](ListOf<SelElement>& l) { l.SetString(L"4"); }}});
}

}  // namespace
}  // namespace Tarvex::Data::HeldListTest
