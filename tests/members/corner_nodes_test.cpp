#include "members/corner_nodes.h"

#include <gtest/gtest.h>

#include "tests/support/builders.h"

namespace Tarvex::CornerNodesTest {
namespace {

TEST(CornerNodes, HavePlacesInTheOrderInWhichTheyAreMet) {
  CZelData model;
  for (int const n : {3, 7, 9}) model.CreateNode(n, {1.0 * n, 0, 0}, n, Vbool6());
  CornerNodes corners(model);
  EXPECT_EQ(corners.PlaceOf(9), 0);
  EXPECT_EQ(corners.PlaceOf(3), 1);
  EXPECT_EQ(corners.PlaceOf(9), 0);
  EXPECT_EQ(corners[1].number, 3);
  EXPECT_EQ(corners[1].position, (Vec3<double>{3, 0, 0}));
  EXPECT_EQ(corners[0].axis, 9);
}

TEST(CornerNodes, AreNodesThatTheModelHadAtTheStart) {
  CZelData model;
  model.CreateNode(3, {0, 0, 0}, 0, Vbool6(true, true, true, false, false, false));
  CornerNodes corners(model);
  model.CreateNode(4, {1, 0, 0}, 0, Vbool6());
  EXPECT_EQ(corners.PlaceOf(4), CornerNodes::kNone);
  EXPECT_EQ(corners.PlaceOf(2), CornerNodes::kNone);
  EXPECT_EQ(corners.PlaceOf(0), CornerNodes::kNone);
  EXPECT_EQ(corners.PlaceOf(3), 0);
  EXPECT_EQ(corners[0].restraint, Vbool6(true, true, true, false, false, false));
}

}  // namespace
}  // namespace Tarvex::CornerNodesTest
