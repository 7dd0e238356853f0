#include "store/record/panel.h"

#include <gtest/gtest.h>

#include "tests/support/matchers.h"

namespace Tarvex::Data::PanelTest {
namespace {

TEST(Panel, HasAsManyEdgesAsNodesAndClosesToTheFirst) {
  CPanel const panel({7, 3, 9});
  EXPECT_EQ(panel.NumEdge(), 3);
  EXPECT_EQ(panel.EdgeNode(0, 0), 7);
  EXPECT_EQ(panel.EdgeNode(0, 1), 3);
  EXPECT_EQ(panel.EdgeNode(1, 0), 3);
  EXPECT_EQ(panel.EdgeNode(1, 1), 9);
  EXPECT_EQ(panel.EdgeNode(2, 0), 9);
  EXPECT_EQ(panel.EdgeNode(2, 1), 7);
}

TEST(Panel, HasNoEdgeNodeBeyondItsEdgesAndTheirEnds) {
  CPanel const panel({7, 3, 9});
  for (auto const& [edge, end] : {std::pair{-1, 0}, {3, 0}, {0, -1}, {0, 2}})
    EXPECT_EQ(Testing::OutOfRangeText([&, e = edge, i = end] { panel.EdgeNode(e, i); }),
              "invalid vector subscript");
  EXPECT_THROW(CPanel().EdgeNode(0, 0), std::out_of_range);
  EXPECT_EQ(CPanel().NumEdge(), 0);
}

TEST(Panel, IsAFieldWithCornersAtAllNodesUnlessSaid) {
  EXPECT_FALSE(CPanel({1, 2, 3}).IsBoundary());
  EXPECT_FALSE(CPanel({1, 2, 3}).Straight());
  EXPECT_TRUE(CPanel({1, 2, 3}, true).IsBoundary());
  EXPECT_TRUE(CPanel({1, 2, 3}, false, true).Straight());
}

}  // namespace
}  // namespace Tarvex::Data::PanelTest
