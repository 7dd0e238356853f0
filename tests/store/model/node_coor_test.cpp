// Positions of nodes in user axes and units, with figures worked by hand.
#include <gtest/gtest.h>

#include <stdexcept>

#include "store/model/zel_data.h"
#include "store/record/axis.h"
#include "store/record/node.h"
#include "store/record/spec.h"
#include "tests/support/builders.h"
#include "tests/support/matchers.h"

namespace Tarvex::NodeCoorTest {
namespace {

using Testing::IsNear;
using V = Vec3<double>;

Data::CAxis AxisOf(AxisType type) { return {L"", type, {1, 2, 3}, {0, 1, 0}, {-1, 0, 0}}; }

Data::CUnit MillimetresAndDegrees() {
  Data::CUnit unit;
  unit.SetConversion(Data::CUnit::kLength, 1000);
  unit.SetConversion(Data::CUnit::kAngle, 180 / kPi);
  return unit;
}

// Origin (1, 2, 3), x along Y, y along -X, z along Z: the node (1, 4, 3.5) is (2, 0, 0.5) there and
// the node (-1, 2, 3) is (0, 2, 0).
TEST(NodeCoor, IsGivenInAnAxisAndItsUnits) {
  CZelData model;
  Testing::NodeAt(model, 1, 4, 3.5);
  Testing::NodeAt(model, -1, 2, 3);
  auto const unit = MillimetresAndDegrees();
  auto const cartesian = AxisOf(AxisType::Cartesian);
  EXPECT_TRUE(IsNear(model.NodeCoor(1, unit, cartesian), {2000, 0, 500}, 1e-9));
  EXPECT_TRUE(IsNear(model.NodeCoor(2, unit, cartesian), {0, 2000, 0}, 1e-9));
  // Radius 2, 90 degrees from x, height 0.
  auto const cylindrical = AxisOf(AxisType::Cylindrical);
  EXPECT_TRUE(IsNear(model.NodeCoor(2, unit, cylindrical), {2000, 90, 0}, 1e-9));
  // Distance 2, azimuth 90 degrees, 90 degrees from z.
  auto const spherical = AxisOf(AxisType::Spherical);
  EXPECT_TRUE(IsNear(model.NodeCoor(2, unit, spherical), {2000, 90, 90}, 1e-9));
  EXPECT_THROW(model.NodeCoor(3, unit, cartesian), std::out_of_range);
}

TEST(NodeCoor, IsSetInAnAxisAndItsUnits) {
  CZelData model;
  Testing::NodeAt(model, 0, 0, 0);
  auto const unit = MillimetresAndDegrees();
  model.SetNodeCoor(1, unit, AxisOf(AxisType::Cartesian), {2000, 0, 500});
  EXPECT_TRUE(IsNear(model.NodeCoor(1), {1, 4, 3.5}));
  model.SetNodeCoor(1, unit, AxisOf(AxisType::Cylindrical), {2000, 90, 0});
  EXPECT_TRUE(IsNear(model.NodeCoor(1), {-1, 2, 3}));
  model.SetNodeCoor(1, unit, AxisOf(AxisType::Spherical), {2000, 90, 90});
  EXPECT_TRUE(IsNear(model.NodeCoor(1), {-1, 2, 3}));
  EXPECT_EQ(model.NearestNode({-1, 2, 3}, 0.001), 1);
  EXPECT_THROW(model.SetNodeCoor(2, unit, Data::CAxis(), {0, 0, 0}), std::out_of_range);
}

TEST(NodeCoor, ComesBackThroughEveryAxis) {
  CZelData model;
  Testing::NodeAt(model, 0.3, -7, 12);
  auto const unit = MillimetresAndDegrees();
  for (auto const type : {AxisType::Cartesian, AxisType::Cylindrical, AxisType::Spherical}) {
    auto const axis = AxisOf(type);
    model.SetNodeCoor(1, unit, axis, model.NodeCoor(1, unit, axis));
    EXPECT_TRUE(IsNear(model.NodeCoor(1), {0.3, -7, 12}, 1e-12));
  }
}

}  // namespace
}  // namespace Tarvex::NodeCoorTest
