// Lists with new numbers.
#include <gtest/gtest.h>

#include <stdexcept>

#include "store/model/list_expansion.h"
#include "store/record/member.h"
#include "store/record/node.h"
#include "tests/renumber/renumber_support.h"

namespace Tarvex::MapListTest {
namespace {

using Data::CEntList;
using Testing::OpenRenumber;
using Testing::Scheme;

/// A model with nodes 1 to 20, elements 1 to 20 (19 and 20 load panels) and members 1 to 20.
CZelData TwentyOfEach() {
  CZelData model;
  for (int n = 1; n <= 20; ++n) {
    Testing::NodesAt(model, {n});
    model.SetMember(n, Data::CMember());
    if (n < 19)
      model.SetElem(n, Testing::Element(ElementType::Beam, {1, 2}));
    else
      model.SetLoadPanel(n, Testing::Panel({1, 2, 3}));
  }
  return model;
}

/// The numbers 1 to 20 without some, each moved by a shift.
Scheme Without(std::vector<int> const& gone, int shift = 0) {
  Scheme scheme;
  for (int n = 1; n <= 20; ++n)
    if (std::find(gone.begin(), gone.end(), n) == gone.end()) scheme[n] = n + shift;
  return scheme;
}

/// What becomes of a list of nodes under a scheme of nodes.
std::wstring Mapped(wchar_t const* text, Scheme const& scheme) {
  auto model = TwentyOfEach();
  OpenRenumber renumber(&model);
  renumber.Index(CModule::Node, scheme);
  return renumber.MapList({SelNode, text}, CModule::None, CModule::None).String().Str();
}

TEST(MapList, KeepsNameIdentifierColourAndKind) {
  auto model = TwentyOfEach();
  CEntList list(L"roof", SelNode, L"3");
  list.SetSid(L"id");
  list.SetColour(0x123456);
  OpenRenumber renumber(&model);
  renumber.Index(CModule::Node, {{3, 5}});
  auto const mapped = renumber.MapList(list, CModule::None, CModule::None);
  EXPECT_EQ(mapped.Name(), L"roof");
  EXPECT_EQ(mapped.Sid(), L"id");
  EXPECT_EQ(mapped.GetColour(), 0x123456u);
  EXPECT_EQ(mapped.TypeOf(), SelNode);
  EXPECT_EQ(mapped.String(), L"5");
}

TEST(MapList, LeavesAllAndNothingAsTheyAre) {
  EXPECT_EQ(Mapped(L"all", Scheme()), L"all");
  EXPECT_EQ(Mapped(L"none", Scheme()), L"none");
  EXPECT_EQ(Mapped(L"", Scheme()), L"");
}

TEST(MapList, LeavesListsOfTablesWithoutScheme) {
  auto model = TwentyOfEach();
  OpenRenumber renumber(&model);
  renumber.Index(CModule::Axis, Scheme());
  for (auto const kind : {SelNode, SelElement, SelMember})
    EXPECT_EQ(renumber.MapList({kind, L"3 X4"}, CModule::None, CModule::None).String(), L"3 X4");
}

TEST(MapList, FollowsPropertiesInListsOfElementsAndMembersButNotOfNodes) {
  auto model = TwentyOfEach();
  OpenRenumber renumber(&model);
  renumber.Index(CModule::Section, {{2, 7}});
  EXPECT_EQ(renumber.MapList({SelElement, L"PB2 3"}, CModule::None, CModule::None).String(),
            L"PB7 3");
  EXPECT_EQ(renumber.MapList({SelMember, L"PB2 3"}, CModule::None, CModule::None).String(),
            L"PB7 3");
  EXPECT_EQ(renumber.MapList({SelNode, L"PB2 3"}, CModule::None, CModule::None).String(), L"PB2 3");
}

TEST(MapList, TakesNodeWordsOfElementListsOnlyWithASchemeOfElements) {
  auto model = TwentyOfEach();
  OpenRenumber renumber(&model);
  renumber.Index(CModule::Node, {{4, 9}});
  EXPECT_EQ(renumber.MapList({SelElement, L"X4"}, CModule::None, CModule::None).String(), L"X4");
  renumber.Index(CModule::Elem, {{1, 1}});
  EXPECT_EQ(renumber.MapList({SelElement, L"X4"}, CModule::None, CModule::None).String(), L"X9");
}

TEST(MapList, MapsEachNumber) { EXPECT_EQ(Mapped(L"3 7 5", {{3, 30}, {7, 1}, {5, 2}}), L"30 1 2"); }

TEST(MapList, WritesARangeOutWhoseMiddleGoes) {
  EXPECT_EQ(Mapped(L"1 to 10", Without({5})), L"1 2 3 4 6 7 8 9 10");
}

TEST(MapList, KeepsARangeThatLosesItsEnds) {
  EXPECT_EQ(Mapped(L"1 to 10", Without({1, 10})), L"2 to 9");
}

TEST(MapList, KeepsARangeThatLosesSeveralAtEachEnd) {
  EXPECT_EQ(Mapped(L"1 to 10", Without({1, 2, 3, 8, 9, 10})), L"4 to 7");
}

TEST(MapList, KeepsARangeThatMovesAsAWhole) {
  EXPECT_EQ(Mapped(L"3 to 8", Without({}, 100)), L"103 to 108");
}

TEST(MapList, KeepsASteppedRangeThatMovesAsAWhole) {
  EXPECT_EQ(Mapped(L"3 to 9 step 2", Without({}, 100)), L"103 to 109 step 2");
}

TEST(MapList, WritesASteppedRangeOutThatLosesOne) {
  EXPECT_EQ(Mapped(L"3 to 9 step 2", Without({7}, 100)), L"103 105 109");
  EXPECT_EQ(Mapped(L"3 to 9 step 2", Without({3}, 100)), L"105 107 109");
}

TEST(MapList, KeepsASteppedRangeWhoseBeginGoesWhereTheOthersMoveDownByIt) {
  Scheme closed;  // 1 to 3 go, and the others close up
  for (int n = 4; n <= 20; ++n) closed[n] = n - 3;
  // 3 becomes 0, 5 becomes 2, 7 becomes 4, 9 becomes 6: each 3 less
  EXPECT_EQ(Mapped(L"3 to 9 step 2", closed), L"2 to 6 step 2");
  // 2 becomes 0, which is 2 less, and 4 becomes 1, which is 3 less
  EXPECT_EQ(Mapped(L"2 to 8 step 2", closed), L"1 3 5");
}

TEST(MapList, TakesTheEndOfASteppedRangeThatGoesToANumberOfTheRange) {
  // The range is 1, 4, 7. From 8 down by (8 - 1) mod 3 = 1 is 7.
  EXPECT_EQ(Mapped(L"1 to 9 step 3", Without({9})), L"1 to 7 step 3");
}

TEST(MapList, KeepsASteppedRangeWhoseNumbersBetweenGo) {
  EXPECT_EQ(Mapped(L"3 to 9 step 2", Without({4, 6})), L"3 to 9 step 2");
}

TEST(MapList, WritesARangeOutThatIsTornApart) {
  EXPECT_EQ(Mapped(L"3 to 5", {{3, 3}, {4, 9}, {5, 5}}), L"3 9 5");
}

TEST(MapList, KeepsTheHighestNumberOfARange) {
  EXPECT_EQ(Mapped(L"15 to *", Without({}, 5)), L"20 to *");
  EXPECT_EQ(Mapped(L"15 to *", Without({15}, 5)), L"21 to *");
}

TEST(MapList, KeepsARangeOutOfOrder) { EXPECT_EQ(Mapped(L"9 to 5", Without({}, 1)), L"10 to 6"); }

TEST(MapList, LeavesTheEndOfARangeOutOfOrderThatLosesItsBeginToWhatStandsBefore) {
  // The begin is looked for below the end only.
  EXPECT_EQ(Mapped(L"1 2 9 to 5", Without({9})), L"1 2 to 5");
}

TEST(MapList, KeepsWhatStaysOfAListWhoseWordsReadAsNoneWithoutTheOthers) {
  // The range holds 5 alone; without its numbers "10 7 step 2" would be left.
  EXPECT_EQ(Mapped(L"10 5 to 6 step 2", Without({5, 6})), L"10");
  EXPECT_EQ(Mapped(L"10 11 12 5 to 6 step 2", Without({5, 6}, 100)), L"110 to 112");
}

TEST(MapList, ThatLosesAllItemsBecomesNone) {
  EXPECT_EQ(Mapped(L"3 5", Without({3, 5})), L"none");
  EXPECT_EQ(Mapped(L"3 to 5", Without({3, 4, 5})), L"none");
  EXPECT_EQ(Mapped(L"3 to 7 step 2", Without({3, 5, 7})), L"none");
}

TEST(MapList, LosesParenthesesWithoutNumbersAndNotBeforeThem) {
  EXPECT_EQ(Mapped(L"all not (3 5)", Without({3, 5})), L"all");
  EXPECT_EQ(Mapped(L"7 or (3 5)", Without({3, 5})), L"7 or");
  EXPECT_EQ(Mapped(L"all not 3", Without({3})), L"all");
  EXPECT_EQ(Mapped(L"all not ((3) 4)", Without({3})), L"all not (4)");
}

TEST(MapList, LosesACoordinateWordWithItsNode) {
  EXPECT_EQ(Mapped(L"2 X5", Without({5})), L"2");
  EXPECT_EQ(Mapped(L"2 XY5 YZ5 ZX5", Without({5})), L"2");
  EXPECT_EQ(Mapped(L"2 Z5 4", Without({5})), L"2 4");
}

TEST(MapList, KeepsWordsApartThatWouldReadAsOne) {
  EXPECT_EQ(Mapped(L"X Y5 1 to 3", Without({})), L"X Y5 1 to 3");
}

TEST(MapList, KeepsAWordThatLosesItsNumber) {
  auto model = TwentyOfEach();
  OpenRenumber renumber(&model);
  renumber.Index(CModule::Section, {{1, 1}});
  EXPECT_EQ(renumber.MapList({SelElement, L"PB2 or 5"}, CModule::None, CModule::None).String(),
            L"PB or 5");
  EXPECT_EQ(renumber.MapList({SelElement, L"PB2 5"}, CModule::None, CModule::None).String(),
            L"PB5");  // the word takes the number that follows
}

TEST(MapList, KeepsQuotedNamesSavedListsAndGroups) {
  EXPECT_EQ(Mapped(L"\"roof\" #3 G4 3", {{3, 8}, {4, 9}}), L"\"roof\" #3 G4 8");
  EXPECT_EQ(Mapped(L"\"a\" 3 to 5 \"b\" G0", Without({}, 1)), L"\"a\" 4 to 6 \"b\" G0");
}

TEST(MapList, MapsNumbersBehindTheWordsOfTheirOwnKind) {
  EXPECT_EQ(Mapped(L"N3", {{3, 8}}), L"N8");
  auto model = TwentyOfEach();
  OpenRenumber renumber(&model);
  renumber.Index(CModule::Elem, {{3, 8}});
  EXPECT_EQ(renumber.MapList({SelElement, L"E3"}, CModule::None, CModule::None).String(), L"E8");
}

TEST(MapList, SeesLoadPanelsAsElements) {
  auto model = TwentyOfEach();
  OpenRenumber renumber(&model);
  renumber.Index(CModule::Elem, Without({}, 10));
  EXPECT_EQ(
      renumber.MapList({SelElement, L"18 to 20 step 1"}, CModule::None, CModule::None).String(),
      L"28 to 30 step 1");
}

TEST(MapList, WithAnIdentityChangesNoText) {
  for (auto const* text :
       {L"1 to 10 not 5 7", L"1 2 3", L"all not (1 to 10)", L"(1 to 3) and (2 to 4)",
        L"3 to 9 step 2", L"5 to *", L"X3 or 4 and G2", L"\"a b\" #1"})
    EXPECT_EQ(Mapped(text, Without({})), text);
}

// Lists without a kind.

TEST(MapListUntyped, MapsStagesAndDropsThoseThatGo) {
  CZelData model;
  OpenRenumber renumber(&model);
  renumber.Index(CModule::AnalStage, {{1, 4}, {2, 2}, {3, 1}});
  CEntList const stages(SelNone, L"1 to 3 9");
  EXPECT_EQ(renumber.MapList(stages, CModule::AnalStage, CModule::None).String(), L"1 2 4");
}

TEST(MapListUntyped, DropsStageZero) {
  CZelData model;
  OpenRenumber renumber(&model);
  renumber.Index(CModule::AnalStage, {{1, 1}});
  EXPECT_EQ(renumber.MapList({SelNone, L"0 1"}, CModule::AnalStage, CModule::None).String(), L"1");
  EXPECT_TRUE(renumber.MapList({SelNone, L"0"}, CModule::AnalStage, CModule::None).IsEmpty());
}

TEST(MapListUntyped, ComesOutEmptyForAnyOtherTable) {
  CZelData model;
  OpenRenumber renumber(&model);
  for (auto const module : {CModule::None, CModule::Section}) {
    renumber.Index(module, {{1, 1}});
    EXPECT_TRUE(renumber.MapList({SelNone, L"1 2"}, module, CModule::None).IsEmpty());
  }
  EXPECT_EQ(renumber.MapList({SelNone, L"all"}, CModule::None, CModule::None).String(), L"all");
}

TEST(MapListCases, AndOthersAreRefused) {
  CZelData model;
  OpenRenumber renumber(&model);
  for (auto const& list : {CEntList(SelCase, L"L1"), CEntList(SelOther, L"1")})
    EXPECT_EQ(
        Testing::OutOfRangeText([&] { renumber.MapList(list, CModule::None, CModule::None); }),
        "bad entity type");
}

// References alone.

std::wstring MappedAlone(wchar_t const* text, Scheme const& scheme) {
  auto model = TwentyOfEach();
  OpenRenumber renumber(&model);
  renumber.SetRefOnly(true);
  renumber.Index(CModule::Node, scheme);
  return renumber.MapList({SelNode, text}, CModule::None, CModule::None).String().Str();
}

TEST(MapListAlone, TurnsAllIntoNumbers) {
  EXPECT_EQ(MappedAlone(L"all", Without({5}, 1)), L"2 to 5 7 to 21");
}

TEST(MapListAlone, GathersNumbersAndDropsThoseThatGo) {
  EXPECT_EQ(MappedAlone(L"9 3 4 5", {{3, 1}, {4, 2}, {5, 3}}), L"1 to 3");
}

TEST(MapListAlone, TakesNumbersAndRangesAsTheyAreWritten) {
  // Neither 30 nor 40 to 42 exist, since the tool has moved them already.
  EXPECT_EQ(MappedAlone(L"30 40 to 42", {{30, 3}, {40, 4}, {42, 6}}), L"3 4 6");
}

TEST(MapListAlone, GoesByTheModelForTheHighestNumberAndWords) {
  EXPECT_EQ(MappedAlone(L"18 to *", Without({})), L"18 to 20");
  EXPECT_EQ(MappedAlone(L"Y5 not 2 to 20", Without({})), L"1");
}

}  // namespace
}  // namespace Tarvex::MapListTest
