#include "tests/support/builders.h"

#include <gtest/gtest.h>

#include "tests/support/matchers.h"

namespace Tarvex::Testing {
namespace {

using V = Vec3<double>;

TEST(Grid, IsAPlateOfSquaresThatFacesUp) {
  CZelData model;
  Grid(model, 3, 2);
  EXPECT_EQ(model.NumEnt(SelNode), 12);
  EXPECT_EQ(model.NumEnt(SelElement), 6);
  EXPECT_EQ(model.NodeCoor(7), (V{2, 1, 0}));  // 4 nodes a row: the third of the second row
  EXPECT_TRUE(References(model, 5, {6, 7, 11, 10}));
  for (int n = 1; n <= 6; ++n) EXPECT_EQ(model.Normal(n), (V{0, 0, 1}));
}

TEST(Frame, HasColumnsThenBeams) {
  CZelData model;
  Frame(model, 2, 3);
  EXPECT_EQ(model.NumEnt(SelNode), 12);     // 3 by 4
  EXPECT_EQ(model.NumEnt(SelElement), 15);  // 3 * 3 columns, 2 * 3 beams
  for (int n = 1; n <= 9; ++n) {
    EXPECT_TRUE(model.ElemIsVertical(n));
    EXPECT_EQ(model.ElemLen(n), 3);
  }
  for (int n = 10; n <= 15; ++n) {
    EXPECT_TRUE(model.ElemIsHorizontal(n));
    EXPECT_EQ(model.ElemLen(n), 6);
  }
  EXPECT_TRUE(References(model, 15, {11, 12}));
  EXPECT_TRUE(NoDanglingReference(model));
}

TEST(Builders, AddToWhatIsThere) {
  CZelData model;
  Grid(model, 1, 1);
  EXPECT_EQ(BeamAt(model, {0, 0, 0}, {0, 0, 1}), 2);
  EXPECT_TRUE(References(model, 2, {5, 6}));
  EXPECT_EQ(PanelAt(model, {{0, 0, 2}, {1, 0, 2}, {1, 1, 2}}), 3);
  EXPECT_EQ(Brick(model, 1, 2, 3), 4);
  EXPECT_EQ(model.EntCentre({SelElement, 4}), (V{0.5, 1, 1.5}));
  EXPECT_TRUE(model.LoadPanelExist(3));
}

}  // namespace
}  // namespace Tarvex::Testing
