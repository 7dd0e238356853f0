#include "store/model/list_expansion.h"

#include <gtest/gtest.h>

#include "store/model/undo_step.h"
#include "store/model/zel_data.h"
#include "store/record/node.h"
#include "store/select/case_tokens.h"
#include "tests/support/builders.h"
#include "tests/support/matchers.h"
#include "tests/support/plain_list.h"

namespace Tarvex::ListExpansionTest {
namespace {

using Data::CEntList;
using Testing::OutOfRangeText;
using Numbers = std::vector<int>;

/// Nodes 1 to 16, elements 1 to 9 without 4, load panels 5 and 12.
CZelData Model() {
  CZelData model;
  Testing::Grid(model, 3, 3);
  for (int n = 1; n <= 9; ++n) model.SetElemProperty(n, 1);
  model.BlankElem(4, 1);
  auto panel = Testing::Panel({1, 4, 16});
  panel.SetProperty(1);
  model.SetLoadPanel(5, panel);
  model.SetLoadPanel(12, panel);
  return model;
}

CEntList Elements(CString const& text) { return {SelElement, text}; }

Numbers Walk(CBitContainer const& container) { return {container.begin(), container.end()}; }

Numbers Selected(CEntList const& list, CZelData const& model, bool panels = true) {
  return Walk(Util::Item(list, model, -1, panels));
}

TEST(ListExpansion, HoldsExistingEntitiesInAscendingOrder) {
  auto const model = Model();
  EXPECT_EQ(Selected(Elements(L"9 2 4 99 2"), model), (Numbers{2, 9}));
  EXPECT_EQ(Selected(Elements(L"8 to *"), model), (Numbers{8, 9, 12}));
  EXPECT_EQ(Selected(CEntList(SelNode, L"14 to *"), model), (Numbers{14, 15, 16}));
  EXPECT_EQ(Selected(CEntList(SelMember, L"all 1"), model), Numbers());
  EXPECT_EQ(Selected(CEntList(SelOther, L"all 1"), model), Numbers());
  EXPECT_EQ(Selected(Elements(L"0 1"), model), Numbers{1});
  EXPECT_EQ(Selected(Elements(L""), model), Numbers());
}

TEST(ListExpansion, HasLoadPanelsWhenTheyAreAskedFor) {
  auto const model = Model();
  auto const list = Elements(L"all");
  EXPECT_EQ(Selected(list, model, true), (Numbers{1, 2, 3, 5, 6, 7, 8, 9, 12}));
  EXPECT_EQ(Selected(list, model, false), (Numbers{1, 2, 3, 6, 7, 8, 9}));
  EXPECT_EQ(Walk(Util::Item(list, model)), (Numbers{1, 2, 3, 6, 7, 8, 9}));
  EXPECT_EQ(Selected(Elements(L"5 6"), model, false), Numbers{6});
  // "*" is the highest number of elements and panels in either form.
  EXPECT_EQ(Selected(Elements(L"*"), model, true), Numbers{12});
  EXPECT_EQ(Selected(Elements(L"*"), model, false), Numbers());
}

TEST(ListExpansion, MakesSetsOfTheKind) {
  auto const model = Model();
  auto const set = Util::MakeSet(Elements(L"5 to 7"), model, true);
  EXPECT_EQ(set.TypeOf(), SelElement);
  EXPECT_EQ(Numbers(set.begin(), set.end()), (Numbers{5, 6, 7}));
  EXPECT_EQ(Util::MakeSet(Elements(L"5 to 7"), model, false).NumItem(), 2);
  EXPECT_EQ(Util::MakeSet(CEntList(SelNone, L"3 0"), model).NumItem(), 1);
  EXPECT_TRUE(Util::MakeSet(CEntList(SelCase, L"L1"), model).IsEmpty());
}

TEST(ListExpansion, GivesItemsInTheOrderOfTheText) {
  auto const model = Model();
  Numbers items{99};
  Util::Items(Elements(L"9 4 2 to 3 12 9 5"), items, model, true);
  EXPECT_EQ(items, (Numbers{9, 2, 3, 12, 5}));
  Util::Items(Elements(L"9 4 2 to 3 12 9 5"), items, model);
  EXPECT_EQ(items, (Numbers{9, 2, 3}));
  Util::Items(Elements(L""), items, model);
  EXPECT_EQ(items, Numbers());
}

TEST(ListExpansion, CountsAndTellsItemsWithoutAModel) {
  auto const model = Model();
  auto const list = Elements(L"8 to 12 4 1");
  EXPECT_EQ(Util::NumItem(list, model, -1, true), 4);
  EXPECT_EQ((Numbers{list.Item(0), list.Item(1), list.Item(2), list.Item(3)}),
            (Numbers{1, 8, 9, 12}));
  EXPECT_EQ(Util::NumItem(list, model, -1, false), 3);
  EXPECT_EQ(list.Item(2), 9);
  // Other questions leave what was counted.
  EXPECT_EQ(Selected(list, model, true).size(), 4U);
  EXPECT_EQ(OutOfRangeText([&] { list.Item(3); }), "invalid vector subscript");
}

TEST(ListExpansion, TellsTheItemsOfTheLastCountThoughTheModelChanged) {
  auto model = Model();
  auto const list = Elements(L"all");
  int const count = Util::NumItem(list, model);
  model.BlankElem(1, 100);
  EXPECT_EQ(list.Item(count - 1), 9);
  EXPECT_EQ(Util::NumItem(list, model), 0);
  EXPECT_EQ(OutOfRangeText([&] { list.Item(0); }), "invalid vector subscript");
}

TEST(ListExpansion, SelectsCases) {
  CZelData const model;
  CEntList const list(SelCase, L"C2 L1 to L3 not L2");
  EXPECT_EQ(Util::NumItem(list, model, -1, false), 3);
  EXPECT_EQ(list.Case(0), SCaseRef(CaseOp::Load, 1));
  EXPECT_EQ(list.Case(1), SCaseRef(CaseOp::Load, 3));
  EXPECT_EQ(list.Case(2), SCaseRef(CaseOp::Combination, 2));
  EXPECT_EQ(Util::NumItem(CEntList(SelCase, L"all"), model), 0);  // the model has none
}

// Lists without a kind.

TEST(ListExpansion, GoesUpToTheNumberGivenInListsWithoutAKind) {
  CZelData const model;
  CEntList const all(SelNone, L"all");
  EXPECT_EQ(Walk(Util::Item(all, model, 3)), (Numbers{1, 2, 3}));
  EXPECT_EQ(Walk(Util::Item(all, model, 5)), (Numbers{1, 2, 3, 4, 5}));
  EXPECT_EQ(Walk(Util::Item(all, model, -1)), Numbers());  // no stage
  EXPECT_EQ(Walk(Util::Item(CEntList(SelNone, L"2 to *"), model, 4)), (Numbers{2, 3, 4}));
  EXPECT_EQ(Util::NumItem(CEntList(SelNone, L"7 9 0"), model, 4), 2);
}

TEST(ListExpansion, IncludesZeroInListsWithoutAKind) {
  CZelData const model;
  auto const includes = [&](CString const& text, int number, int highest) {
    return Util::IsItemIncluded(CEntList(SelNone, text), {SelNone, number}, model, highest);
  };
  EXPECT_TRUE(includes(L"all", 0, -1));
  EXPECT_TRUE(includes(L"all", 0, 3));
  EXPECT_TRUE(includes(L"0 2", 0, 3));
  EXPECT_FALSE(includes(L"1 2", 0, 3));
  EXPECT_FALSE(includes(L"all not 0", 0, 3));
  EXPECT_FALSE(includes(L"", 0, 3));
  EXPECT_TRUE(includes(L"all", 3, 3));
  EXPECT_FALSE(includes(L"all", 4, 3));
  EXPECT_TRUE(includes(L"4", 4, 3));  // named
  EXPECT_FALSE(includes(L"all", -1, 3));
  EXPECT_FALSE(Util::IsItemIncluded(Elements(L"all 0"), {SelElement, 0}, model));
}

// Membership.

bool Includes(CZelData const& model, CString const& text, int number, bool panels = true) {
  return Util::IsItemIncluded(Elements(text), {SelElement, number}, model, -1, panels);
}

TEST(ListExpansion, IncludesWhatExistsByTheRulesOfTheList) {
  auto const model = Model();
  EXPECT_TRUE(Includes(model, L"all", 6));
  EXPECT_FALSE(Includes(model, L"all not 6", 6));
  EXPECT_TRUE(Includes(model, L"P1", 6));
  EXPECT_FALSE(Includes(model, L"P2", 6));
  EXPECT_FALSE(Util::IsItemIncluded(Elements(L"all"), {SelNode, 6}, model));
}

TEST(ListExpansion, IncludesLoadPanelsWhenTheyAreAskedFor) {
  auto const model = Model();
  for (auto const* text : {L"5", L"all", L"P1", L"1 to 12"}) {
    EXPECT_TRUE(Includes(model, text, 5, true));
    EXPECT_FALSE(Includes(model, text, 5, false));
  }
}

TEST(ListExpansion, IncludesWhatItNamesThoughItDoesNotExist) {
  auto const model = Model();
  for (auto const* text :
       {L"4", L"1 to 5", L"E4", L"2 to 8 step 2", L"2 to *", L"P1 4", L"all (4 to 5)"})
    for (bool const panels : {true, false}) EXPECT_TRUE(Includes(model, text, 4, panels));
  for (auto const* text :
       {L"all", L"P1", L"3 5", L"1 to 5 not 4", L"1 to 9 step 2", L"1 to 5 and 3"})
    EXPECT_FALSE(Includes(model, text, 4)) << CString(text).ToUtf8();
  EXPECT_TRUE(Includes(model, L"90 to 110", 99));
  EXPECT_FALSE(Includes(model, L"9 to *", 13));
}

TEST(ListExpansion, IncludesAlikeInShortAndLongLists) {
  auto const model = Model();
  CString const more = L" 101 102 103 104 105 106 107 108 109 110 111 112 113 114 115 116 117";
  for (int const number : {1, 2, 4, 5, 9, 12, 13, 99})
    for (CString const text : {L"1 to 4 9", L"5 12 not 12", L"13 to 120 99"})
      for (bool const panels : {true, false})
        EXPECT_EQ(Includes(model, text, number, panels),
                  Includes(model, text + more, number, panels))
            << text.ToUtf8() << ": " << number;
}

// Saved lists.

TEST(ListExpansion, EndsWhereListsReachThemselves) {
  auto model = Model();
  model.SetList(1, Elements(L"1 #2"));
  model.SetList(2, Elements(L"2 #1"));
  model.SetList(3, Elements(L"3 #1"));
  model.SetList(4, Elements(L"6 #4"));
  EXPECT_EQ(Selected(Elements(L"#1 7"), model), Numbers{7});
  EXPECT_EQ(Selected(Elements(L"#3"), model), Numbers{3});
  EXPECT_EQ(Selected(Elements(L"#4"), model), Numbers());
  // As records they select nothing either; the same words in a list of one's own do not go round.
  EXPECT_EQ(Selected(model.List(1), model), Numbers());
  EXPECT_EQ(Selected(CEntList(model.List(4)), model), Numbers());
  EXPECT_EQ(Selected(model.List(3), model), Numbers{3});
  EXPECT_EQ(Selected(Elements(L"6 #4"), model), Numbers{6});
}

TEST(ListExpansion, FollowsAVeryLongChainOfLists) {
  constexpr int kMany = 20000;
  auto model = Model();
  CString text;
  for (int n = 1; n <= kMany; ++n) {
    text.Format(L"#%i", n + 1);
    model.SetList(n, Elements(text));
  }
  model.SetList(kMany, Elements(L"7"));
  EXPECT_EQ(Selected(Elements(L"#1"), model), Numbers{7});
}

// What the model keeps.

TEST(ListExpansion, GivesTheSameReferenceUntilSomethingChanges) {
  auto model = Model();
  auto const list = Elements(L"2 to 5");
  auto const& first = Util::Item(list, model, -1, true);
  auto const& other = Util::Item(list, model, -1, false);
  EXPECT_NE(&first, &other);
  auto const copy = list;
  EXPECT_EQ(&Util::Item(list, model, -1, true), &first);
  EXPECT_EQ(&Util::Item(copy, model, -1, true), &first);
  EXPECT_EQ(&Util::Item(list, model, -1, false), &other);
  model.SetElem(2, Testing::Element(ElementType::Beam, {1, 2}));  // changed, and there as before
  EXPECT_EQ(&Util::Item(list, model, -1, true), &first);
  model.SetElem(40, Testing::Element(ElementType::Beam, {1, 2}));  // not in the list
  EXPECT_EQ(&Util::Item(list, model, -1, true), &first);
  model.SetElem(4, Testing::Element(ElementType::Beam, {1, 2}));
  EXPECT_EQ(Walk(Util::Item(list, model, -1, true)), (Numbers{2, 3, 4, 5}));
}

TEST(ListExpansion, KeepsAReferenceWhileOnlyACopyIsExpandedAgain) {
  auto model = Model();
  auto const list = Elements(L"all");
  auto const copy = list;
  auto const& walked = Util::Item(list, model, -1, true);
  auto const before = Walk(walked);
  model.SetElem(4, Testing::Element(ElementType::Beam, {1, 2}));
  EXPECT_EQ(Selected(copy, model).size(), before.size() + 1);
  EXPECT_EQ(Walk(walked), before);
}

TEST(ListExpansion, KeepsWhatItGaveForAnotherModel) {
  // A list that stands in two models that share its record is one object.
  auto model = Model();
  model.SetList(1, Elements(L"all"));
  auto const snapshot = model.Snapshot();
  ASSERT_EQ(&model.List(1), &snapshot->List(1));
  model.BlankElem(1, 100);
  auto const& now = Util::Item(model.List(1), model, -1, true);
  auto const& then = Util::Item(snapshot->List(1), *snapshot, -1, true);
  EXPECT_EQ(Walk(now), (Numbers{5, 12}));
  EXPECT_EQ(Walk(then), (Numbers{1, 2, 3, 5, 6, 7, 8, 9, 12}));
  EXPECT_EQ(&Util::Item(model.List(1), model, -1, true), &now);
}

TEST(ListExpansion, ForgetsTheListsThatAreGone) {
  auto const model = Model();
  for (int i = 0; i < 5000; ++i) {
    CEntList list(SelElement, L"1 to 3");
    EXPECT_EQ(Util::Item(list, model).NumItem(), 3);
    list.AddTo(7);
    EXPECT_EQ(Util::Item(list, model).NumItem(), 4);
    list.FlagRebuild();
    EXPECT_EQ(Util::NumItem(list, model), 4);
    list.SetType(SelNode);
    EXPECT_EQ(Util::NumItem(list, model), 4);
    list.SetString(L"none");
    EXPECT_EQ(Util::NumItem(list, model), 0);
  }
}

TEST(ListExpansion, FollowsEveryTableThatItsWordsRead) {
  struct Row {
    CString text;
    void (*change)(CZelData&);
    Numbers before;
    Numbers after;
  };
  auto const elem = [](CZelData& model, int n, auto&& change) {
    auto element = model.Elem(n);
    change(element);
    model.SetElem(n, element);
  };
  static auto const kElem = elem;
  Row const rows[] = {
      {L"P2", [](CZelData& m) { m.SetElemProperty(3, 2); }, {}, {3}},
      {L"PA2", [](CZelData& m) { m.SetElemProperty(12, 2); }, {}, {12}},
      {L"PB1",
       [](CZelData& m) { kElem(m, 2, [](auto& e) { e.SetType(ElementType::Beam); }); },
       {},
       {2}},
      {L"G6", [](CZelData& m) { m.SetElemGroup(7, 6); }, {}, {7}},
      {L"Y1 and 1 to 3",
       [](CZelData& m) { m.SetElemTopo(2, 2, 1), m.SetElemTopo(2, 3, 1); },
       {},
       {2}},
      {L"Z1 and 1",
       [](CZelData& m) {
         m.SetNodeCoor(2, {1, 0, 7});
       },
       {1},
       {}},
      {L"Z2 and 1",
       [](CZelData& m) {
         m.SetNodeCoor(1, {0, 0, 0.5});
         auto spec = m.Spec();
         spec.SetGenTol(TolType::Coincidence, 1);
         m.SetSpec(spec);
       },
       {1},
       {1}},
      {L"#1", [](CZelData& m) { m.SetList(1, Elements(L"9")); }, {2, 3}, {9}},
      {L"#1", [](CZelData& m) { m.BlankList(1, 1); }, {2, 3}, {}},
      {L"#7", [](CZelData& m) { m.SetList(7, Elements(L"9")); }, {}, {9}},
      {L"\"a\"", [](CZelData& m) { m.SetList(1, CEntList(L"b", SelElement, L"9")); }, {2, 3}, {}},
      {L"#2", [](CZelData& m) { m.SetElemGroup(7, 6); }, {}, {7}},
      {L"8 to *", [](CZelData& m) { m.BlankLoadPanel(12, 1); }, {8, 9, 12}, {8, 9}},
      {L"1", [](CZelData& m) { m.RemoveModule(CModule::Elem); }, {1}, {}},
  };
  for (auto const& row : rows)
    for (bool const hold : {false, true}) {
      SCOPED_TRACE(row.text.ToUtf8());
      auto model = Model();
      model.SetList(1, CEntList(L"a", SelElement, L"2 3"));
      model.SetList(2, CEntList(L"c", SelElement, L"G6"));
      model.rebuildHold = hold;
      auto const list = Elements(row.text);
      EXPECT_EQ(Selected(list, model), row.before);
      row.change(model);
      EXPECT_EQ(Selected(list, model), row.after);
      auto const copy = list;
      EXPECT_EQ(Selected(copy, model), row.after);
    }
}

TEST(ListExpansion, GoesBackWithTheModel) {
  auto model = Model();
  auto const list = Elements(L"all not G6");
  auto const before = Selected(list, model);
  {
    CUndoStep step(model);
    model.SetElemGroup(7, 6);
    model.BlankElem(1, 2);
    EXPECT_EQ(Selected(list, model).size(), before.size() - 3);
  }
  EXPECT_EQ(Selected(list, model), before);
}

// Changes.

CString Deleted(CString const& text, int number, CZelData const& model, bool expected = true) {
  auto list = Elements(text);
  EXPECT_EQ(Util::Delete(list, number, model), expected);
  EXPECT_TRUE(expected || list == Elements(text));
  return list.String();
}

TEST(ListExpansion, DeletesANumberAndKeepsAPlainListPlain) {
  auto const model = Model();
  EXPECT_EQ(Deleted(L"7 8 9", 8, model), L"7 9");
  EXPECT_EQ(Deleted(L"8", 8, model), L"");
  EXPECT_EQ(Deleted(L"4 8", 4, model), L"8");  // there is no element 4
  EXPECT_EQ(Deleted(L"1 to 9", 4, model), L"1 to 3 5 to 9");
  EXPECT_EQ(Deleted(L"5 6", 5, model), L"6");  // a panel
  EXPECT_EQ(Deleted(L"all", 5, model), L"all not 5");
  EXPECT_EQ(Deleted(L"P1", 6, model), L"P1 not 6");
  EXPECT_EQ(Deleted(L"8 to *", 9, model), L"8 10 to *");
  CEntList plain(SelElement, L"7 8 9");
  Util::Delete(plain, 8, model);
  int count = 0;
  Util::CSet set;
  EXPECT_TRUE(plain.CheckSimpleList(count, set));
  EXPECT_EQ(count, plain.NumWord());
}

TEST(ListExpansion, DeletesNothingThatTheListDoesNotHold) {
  auto const model = Model();
  EXPECT_EQ(Deleted(L"7 9", 8, model, false), L"7 9");
  EXPECT_EQ(Deleted(L"all", 4, model, false), L"all");
  EXPECT_EQ(Deleted(L"P2", 6, model, false), L"P2");
  EXPECT_EQ(Deleted(L"", 6, model, false), L"");
  CEntList stages(SelNone, L"0 3");
  EXPECT_TRUE(Util::Delete(stages, 0, model));
  EXPECT_EQ(stages.String(), L"3");
}

TEST(ListExpansion, ReplacesNumbers) {
  auto const model = Model();
  CEntList nodes(SelNode, L"5 6");
  EXPECT_TRUE(Util::Replace(nodes, {{5, {7, 9}}}, model));
  EXPECT_EQ(nodes.String(), L"7 9 6");
  EXPECT_FALSE(Util::Replace(nodes, {{5, {7, 9}}}, model));
  EXPECT_TRUE(Util::Replace(nodes, {{7, {}}, {9, {}}, {6, {}}}, model));
  EXPECT_TRUE(nodes.IsEmpty());
  auto all = Elements(L"all");
  EXPECT_FALSE(Util::Replace(all, {{1, {}}}, model));
  EXPECT_TRUE(all.IsAll());
  auto range = Elements(L"10 to *");
  EXPECT_TRUE(Util::Replace(range, {{12, {3}}}, model));  // "*" is 12
  EXPECT_EQ(range.String(), L"10 11 3");
}

TEST(ListExpansion, WritesOutWordsOfPropertiesOnly) {
  auto model = Model();
  model.SetElemProperty(2, 3);
  model.SetElemProperty(12, 3);
  auto list = Elements(L"PA3 G1 not P3");
  EXPECT_TRUE(Util::ExpandListProp(list, model));
  EXPECT_EQ(list.String(), L"2 12 G1 not (2 12)");
  auto ranges = Elements(L"1 to 3 not (2 to *)");
  EXPECT_TRUE(Util::ExpandListRange(ranges));
  EXPECT_EQ(ranges.String(), L"1 2 3 not (2 to *)");
  auto large = Elements(L"1 to 100000000");
  EXPECT_FALSE(Util::ExpandListRange(large));
  EXPECT_EQ(large, Elements(L"1 to 100000000"));
}

TEST(ListExpansion, ForgetsItemsAtEveryChangeOfAList) {
  auto const model = Model();
  void (*const changes[])(CEntList&, CZelData const&) = {
      [](CEntList& list, CZelData const& m) { Util::Delete(list, 2, m); },
      [](CEntList& list, CZelData const& m) {
        Util::Replace(list, {{2, {3}}}, m);
      },
      [](CEntList& list, CZelData const& m) { Util::ExpandListProp(list, m); },
      [](CEntList& list, CZelData const&) { Util::ExpandListRange(list); },
  };
  for (auto const change : changes) {
    auto list = Elements(L"1 2 P9");
    EXPECT_EQ(Util::NumItem(list, model), 2);
    change(list, model);
    EXPECT_EQ(OutOfRangeText([&] { list.Item(0); }), "invalid vector subscript");
  }
}

}  // namespace
}  // namespace Tarvex::ListExpansionTest
