#include "store/record/load_panel.h"

#include <gtest/gtest.h>

#include <climits>

#include "tests/support/builders.h"
#include "tests/support/print.h"
#include "tests/support/stored_fields.h"

namespace Tarvex::Data::LoadPanelTest {
namespace {

TEST(LoadPanel, HasNoNodesAtFirst) {
  LoadPanel const panel;
  EXPECT_EQ(panel.NumTopo(), 0);
  EXPECT_EQ(panel.Topo(0), 0);
  EXPECT_EQ(panel.Group(), 1);
  EXPECT_EQ(panel.Property(), 0);
  EXPECT_FALSE(panel.IsDummy());
  EXPECT_EQ(panel.OrientationAngle(), 0);
  EXPECT_EQ(panel.ParentMember(), ParentMember());
}

TEST(LoadPanel, KeepsWhatIsSet) {
  LoadPanel panel;
  panel.SetTopology(std::vector{4, 5, 6, 7, 8, 9, 10, 11, 12});
  panel.SetGroup(2);
  panel.SetProperty(3);
  panel.SetIsDummy(true);
  panel.SetOrientationAngle(45);
  panel.SetParentMember({5, 6});
  EXPECT_EQ(panel.NumTopo(), 9);
  EXPECT_EQ(panel.Topo(0), 4);
  EXPECT_EQ(panel.Topo(8), 12);
  for (int const place : {9, -1, INT_MIN, INT_MAX}) EXPECT_EQ(panel.Topo(place), 0);
  EXPECT_EQ(panel.Group(), 2);
  EXPECT_EQ(panel.Property(), 3);
  EXPECT_TRUE(panel.IsDummy());
  EXPECT_EQ(panel.OrientationAngle(), 45);
  EXPECT_EQ(panel.ParentMember().member, 5);
  EXPECT_EQ(panel.ParentMember().replica, 6);
}

TEST(LoadPanel, ComparesEveryField) {
  Testing::ExpectStoredFields<LoadPanel>(
      {{"name", [](LoadPanel& p) { p.SetName(L"n"); }},
       {"sid", [](LoadPanel& p) { p.SetSid(L"s"); }},
       {"colour", [](LoadPanel& p) { p.SetColour(1); }},
       {"group", [](LoadPanel& p) { p.SetGroup(2); }},
       {"property", [](LoadPanel& p) { p.SetProperty(2); }},
       {"topology",
        [](LoadPanel& p) {
          p.SetTopology(std::vector{1, 2});
        }},
       {"orientationAngle", [](LoadPanel& p) { p.SetOrientationAngle(-0.0); }},
       {"dummy", [](LoadPanel& p) { p.SetIsDummy(true); }},
       {"parentMember",
        [](LoadPanel& p) {
          p.SetParentMember({1, 0});
        }}},
      Testing::Panel({1, 2, 3}));
}

TEST(ParentMember, ComparesEveryField) {
  Testing::ExpectFields<ParentMember>({{"member", [](ParentMember& p) { p.member = 1; }},
                                       {"replica", [](ParentMember& p) { p.replica = 1; }}});
}

}  // namespace
}  // namespace Tarvex::Data::LoadPanelTest
