#include "store/record/views.h"

#include <gtest/gtest.h>

#include "tests/support/stored_fields.h"

namespace Tarvex::Data::ViewsTest {
namespace {

/// A list field of a view: its setter, its getter and the kind that it takes.
template <class View>
struct ListRow {
  SelType kind;
  bool (*set)(View&, CEntList const&);
  CEntList const& (*get)(View const&);
  bool allAtFirst;
};

template <class View>
std::vector<ListRow<View>> const kCommon{
    {SelNode, [](View& v, CEntList const& l) { return v.SetNodes(l); },
     [](View const& v) -> CEntList const& { return v.Nodes(); }, true},
    {SelElement, [](View& v, CEntList const& l) { return v.SetElements(l); },
     [](View const& v) -> CEntList const& { return v.Elements(); }, true},
    {SelMember, [](View& v, CEntList const& l) { return v.SetMembers(l); },
     [](View const& v) -> CEntList const& { return v.Members(); }, true}};

std::vector<ListRow<CGrView>> const kHiLite{
    {SelElement, [](CGrView& v, CEntList const& l) { return v.SetHiLiteElements(l); },
     [](CGrView const& v) -> CEntList const& { return v.HiLiteElements(); }, false},
    {SelMember, [](CGrView& v, CEntList const& l) { return v.SetHiLiteMembers(l); },
     [](CGrView const& v) -> CEntList const& { return v.HiLiteMembers(); }, false}};

template <class View>
void ExpectLists(std::vector<ListRow<View>> const& rows) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    SCOPED_TRACE(i);
    auto const& row = rows[i];
    View view;
    EXPECT_EQ(row.get(view).TypeOf(), row.kind);
    EXPECT_EQ(row.get(view).IsAll(), row.allAtFirst);
    EXPECT_EQ(row.get(view).IsEmpty(), !row.allAtFirst);
    EXPECT_TRUE(row.set(view, CEntList(row.kind, L"1 to 4")));
    EXPECT_EQ(row.get(view).String(), L"1 to 4");
    for (auto const kind : {SelNone, SelNode, SelElement, SelMember}) {
      if (kind == row.kind) continue;
      EXPECT_FALSE(row.set(view, CEntList(kind, L"7")));
    }
    EXPECT_EQ(row.get(view).String(), L"1 to 4");
    EXPECT_TRUE(row.set(view, CEntList()));
    EXPECT_TRUE(row.get(view).IsEmpty());
    EXPECT_EQ(row.get(view).TypeOf(), row.kind);
  }
}

TEST(GrView, HasListsOfTheirKindsAndRefusesOthers) {
  ExpectLists(kCommon<CGrView>);
  ExpectLists(kHiLite);
}

TEST(OpView, HasListsOfTheirKindsAndRefusesOthers) { ExpectLists(kCommon<COpView>); }

TEST(GrView, HoldsWhatItDrawsInOrder) {
  CGrView view(L"plan");
  EXPECT_EQ(view.Name(), L"plan");
  EXPECT_EQ(view.NumGrData(), 0);
  CGrData data;
  data.SetAxis(3);
  view.SetGrData(0, data);
  data.SetAxis(5);
  view.SetGrData(1, data);
  EXPECT_EQ(view.NumGrData(), 2);
  EXPECT_EQ(view.GrData(0).Axis(), 3);
  EXPECT_EQ(view.GrData(1).Axis(), 5);
  data.SetAxis(7);
  view.SetGrData(0, data);
  EXPECT_EQ(view.GrData(0).Axis(), 7);
  for (int const none : {-1, 2}) EXPECT_THROW(view.GrData(none), std::out_of_range);
  for (int const none : {-1, 3}) EXPECT_THROW(view.SetGrData(none, data), std::out_of_range);
  EXPECT_EQ(view.NumGrData(), 2);
}

TEST(OpView, HoldsWhatItTellsInOrder) {
  COpView view(L"table");
  EXPECT_EQ(view.Name(), L"table");
  COpData data;
  data.SetAxis(3);
  view.SetOpData(0, data);
  data.SetAxis(5);
  view.SetOpData(1, data);
  EXPECT_EQ(view.NumOpData(), 2);
  EXPECT_EQ(view.OpData(0).Axis(), 3);
  EXPECT_EQ(view.OpData(1).Axis(), 5);
  data.SetAxis(7);
  view.SetOpData(1, data);
  EXPECT_EQ(view.OpData(1).Axis(), 7);
  for (int const none : {-1, 2}) EXPECT_THROW(view.OpData(none), std::out_of_range);
  for (int const none : {-1, 3}) EXPECT_THROW(view.SetOpData(none, data), std::out_of_range);
}

TEST(GrView, ComparesEveryField) {
  Testing::ExpectStoredFields<CGrView>({{"name", [](CGrView& v) { v.SetName(L"n"); }},
                                        {"sid", [](CGrView& v) { v.SetSid(L"s"); }},
                                        {"colour", [](CGrView& v) { v.SetColour(1); }},
                                        {"nodes", [](CGrView& v) { v.SetNodes(CEntList()); }},
                                        {"elements", [](CGrView& v) { v.SetElements(CEntList()); }},
                                        {"members", [](CGrView& v) { v.SetMembers(CEntList()); }},
                                        {"hiLiteElements",
                                         [](CGrView& v) {
                                           v.SetHiLiteElements({SelElement, L"1"});
                                         }},
                                        {"hiLiteMembers",
                                         [](CGrView& v) {
                                           v.SetHiLiteMembers({SelMember, L"1"});
                                         }},
                                        {"data", [](CGrView& v) { v.SetGrData(0, CGrData()); }}});
}

TEST(OpView, ComparesEveryField) {
  Testing::ExpectStoredFields<COpView>({{"name", [](COpView& v) { v.SetName(L"n"); }},
                                        {"sid", [](COpView& v) { v.SetSid(L"s"); }},
                                        {"colour", [](COpView& v) { v.SetColour(1); }},
                                        {"nodes", [](COpView& v) { v.SetNodes(CEntList()); }},
                                        {"elements", [](COpView& v) { v.SetElements(CEntList()); }},
                                        {"members", [](COpView& v) { v.SetMembers(CEntList()); }},
                                        {"axis", [](COpView& v) { v.SetAxis(2); }},
                                        {"data", [](COpView& v) { v.SetOpData(0, COpData()); }}});
}

TEST(ViewItems, CompareTheirAxis) {
  Testing::ExpectFields<CGrData>({{"axis", [](CGrData& d) { d.SetAxis(1); }}});
  Testing::ExpectFields<COpData>({{"axis", [](COpData& d) { d.SetAxis(1); }}});
}

}  // namespace
}  // namespace Tarvex::Data::ViewsTest
