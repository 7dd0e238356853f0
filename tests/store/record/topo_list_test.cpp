#include "store/record/topo_list.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace Tarvex::Data::TopoListTest {
namespace {

CTopoList ListOfText(CString const& text) {
  CTopoList list(0);
  EXPECT_TRUE(list.SetString(text)) << text.ToUtf8();
  return list;
}

std::vector<int> ItemsOf(CString const& text) {
  auto const list = ListOfText(text);
  return {list.begin(), list.end()};
}

TEST(OrderList, KeepsItemsInTheirOrder) {
  COrderList<int> list;
  EXPECT_EQ(list.NumItem(), 0);
  list.AddItem(7);
  list.AddItem(3);
  list.AddItem(7);
  list.SetItem(1, 9);
  EXPECT_EQ(list.NumItem(), 3);
  EXPECT_EQ(list.Items(), (COrderList<int>::ItemVector{7, 9, 7}));
  EXPECT_EQ(std::vector<int>(list.begin(), list.end()), (std::vector{7, 9, 7}));
  for (int const place : {-1, 3}) {
    try {
      list.SetItem(place, 1);
      FAIL();
    } catch (std::out_of_range const& fault) {
      EXPECT_STREQ(fault.what(), "invalid vector subscript");
    }
  }
}

TEST(TopoList, IsEmptyAtFirst) {
  CTopoList const list(0);
  EXPECT_EQ(list.NumItem(), 0);
  EXPECT_EQ(list.NumTopo(), 0);
  EXPECT_EQ(list.Topo(0), 0);
  EXPECT_EQ(list.String(), L"");
}

TEST(TopoList, ReadsNodesAndEachWord) {
  EXPECT_EQ(ItemsOf(L"12  7\t3"), (std::vector{12, 7, 3}));
  EXPECT_EQ(ItemsOf(L"1 arc 5 2"), (std::vector{1, -1, 5, 2}));
  EXPECT_EQ(ItemsOf(L"1 about 2"), (std::vector{1, -2, 2}));
  EXPECT_EQ(ItemsOf(L"1 2 3 hole(4 5 6)"), (std::vector{1, 2, 3, -3, 4, 5, 6, -6}));
  EXPECT_EQ(ItemsOf(L"line( 8 9 ) points(4)"), (std::vector{-4, 8, 9, -6, -5, 4, -6}));
  EXPECT_EQ(ItemsOf(L"1 5 2;1 4 2; 5 6 8"), (std::vector{1, 5, 2, -7, 1, 4, 2, -7, 5, 6, 8}));
  EXPECT_EQ(ItemsOf(L" 0 100000000 "), (std::vector{0, 100000000}));
  EXPECT_EQ(ItemsOf(L""), (std::vector<int>{}));
}

TEST(TopoList, WritesWhatReadsBack) {
  for (auto const* text : {L"", L"1 2", L"1 arc 5 2", L"1 about 2",
                           L"1 2 3 hole( 4 5 6 ) line( 7 8 ) points( 9 )", L"1 5 2 6 ; 1 4 2 3"}) {
    EXPECT_EQ(ListOfText(text).String(), text);
  }
}

TEST(TopoList, RefusesATextWithAFaultAndTellsItsPlace) {
  struct Row {
    wchar_t const* text;
    int place;
  };
  for (auto const& [text, place] :
       {Row{L"1 x 2", 2}, Row{L"-1 2", 0}, Row{L"1 arc5 2", 5}, Row{L"1arc 2", 1}, Row{L"1 2,3", 3},
        Row{L"1 100000001", 2}, Row{L"1 hole 2", 2}, Row{L"1 2 (", 4}}) {
    auto list = ListOfText(L"8 9");
    int fault = -1;
    EXPECT_FALSE(list.SetString(text, &fault)) << CString(text).ToUtf8();
    EXPECT_EQ(fault, place) << CString(text).ToUtf8();
    EXPECT_EQ(list.String(), L"8 9");
    EXPECT_FALSE(list.SetString(text));
  }
}

TEST(TopoList, CountsNodesWithoutWords) {
  auto list = ListOfText(L"1 arc 5 2");
  EXPECT_EQ(list.NumItem(), 4);
  EXPECT_EQ(list.NumTopo(), 3);
  EXPECT_EQ(list.Topo(0), 1);
  EXPECT_EQ(list.Topo(1), 5);
  EXPECT_EQ(list.Topo(2), 2);
  EXPECT_EQ(list.Topo(3), 0);
  EXPECT_EQ(list.Topo(-1), 0);
  EXPECT_EQ(list.Nodes(), (TopoVector{1, 5, 2}));
  list.SetTopo(1, 6);
  EXPECT_EQ(list.String(), L"1 arc 6 2");
  EXPECT_THROW(list.SetTopo(3, 9), std::out_of_range);
  EXPECT_THROW(list.SetTopo(-1, 9), std::out_of_range);
}

TEST(TopoList, TakesNodesInThePlaceOfItsOwn) {
  auto list = ListOfText(L"1 arc 5 2");
  list.SetTopo(std::vector{4, 3});
  EXPECT_EQ(list.String(), L"4 3");
}

TEST(TopoList, HasAnOutlineBeforeHolesLinesAndPoints) {
  EXPECT_EQ(ListOfText(L"1 2 arc 3 4 hole(5 6 7)").Outline(), (TopoVector{1, 2, 3, 4}));
  EXPECT_EQ(ListOfText(L"1 2 3 line(5 6)").Outline(), (TopoVector{1, 2, 3}));
  EXPECT_EQ(ListOfText(L"1 2 3 points(5)").Outline(), (TopoVector{1, 2, 3}));
}

TEST(TopoList, ReplacesANodeInEveryPlace) {
  auto list = ListOfText(L"1 2 1 arc 3 1");
  EXPECT_TRUE(list.ReplaceItem(1, 9));
  EXPECT_EQ(list.String(), L"9 2 9 arc 3 9");
  EXPECT_FALSE(list.ReplaceItem(1, 8));
  EXPECT_FALSE(list.ReplaceItem(kTopoArc, 8));
  EXPECT_EQ(list.String(), L"9 2 9 arc 3 9");
}

TEST(TopoList, ReversesLinesAndArcs) {
  struct Row {
    wchar_t const* text;
    wchar_t const* reversed;
  };
  for (auto const& [text, reversed] :
       {Row{L"1 2", L"2 1"}, Row{L"1 2 3 4", L"4 3 2 1"}, Row{L"1 arc 5 2", L"2 arc 5 1"},
        Row{L"1 about 2", L"2 about 1"}, Row{L"1 2 arc 3 4 about 5", L"5 about 4 arc 3 2 1"}}) {
    auto list = ListOfText(text);
    EXPECT_TRUE(list.Reverse());
    EXPECT_EQ(list.String(), reversed);
    EXPECT_TRUE(list.Reverse());
    EXPECT_EQ(list.String(), text);
  }
}

TEST(TopoList, DoesNotReverseWhatIsNoLine) {
  for (auto const* text :
       {L"", L"1", L"arc 1 2", L"1 arc 2", L"1 2 arc", L"1 arc arc 2 3", L"1 arc 2 arc 3",
        L"about 1 2", L"1 about", L"1 2 3 hole(4 5 6)", L"1 2 3 ; 4 5 6", L"1 2 )"}) {
    auto list = ListOfText(text);
    auto const before = list;
    EXPECT_FALSE(list.Reverse()) << CString(text).ToUtf8();
    EXPECT_EQ(list, before);
  }
}

TEST(TopoList, KnowsTheTwoFormsOfArcs) {
  EXPECT_EQ(ListOfText(L"1 2").Geometry(), MembGeom::Line);
  EXPECT_EQ(ListOfText(L"1 2 3").Geometry(), MembGeom::Line);
  EXPECT_EQ(ListOfText(L"1 arc 5 2").Geometry(), MembGeom::ArcThrough);
  EXPECT_EQ(ListOfText(L"1 about 2").Geometry(), MembGeom::ArcAbout);
  EXPECT_EQ(ListOfText(L"1 arc 5 2 3").Geometry(), MembGeom::Line);
  EXPECT_EQ(ListOfText(L"1 arc 5").Geometry(), MembGeom::Line);
}

TEST(TopoList, HasStripsOfTriangles) {
  auto const strips = TriangleStrips(ListOfText(L"1 5 2 6;1 4 2;"));
  ASSERT_EQ(strips.size(), 2u);
  EXPECT_EQ(strips[0], (TopoVector{1, 5, 2, 6}));
  EXPECT_EQ(strips[1], (TopoVector{1, 4, 2}));
  EXPECT_TRUE(TriangleStrips(CTopoList()).empty());
}

}  // namespace
}  // namespace Tarvex::Data::TopoListTest
