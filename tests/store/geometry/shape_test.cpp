#include "store/geometry/shape.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/support/matchers.h"

namespace Tarvex::Util {
namespace {

using V = Vec3<double>;
using Testing::IsNear;

void ExpectNearRS(Vec2<double> actual, Vec2<double> expected) {
  EXPECT_NEAR(actual.x, expected.x, 1e-15);
  EXPECT_NEAR(actual.y, expected.y, 1e-15);
}

TEST(Shape, OfALineGivesItsMiddleAtZero) {
  CShape const straight(SpaceType::Line, {{0, 0, 0}, {4, 2, 0}});
  EXPECT_TRUE(IsNear(straight.CoorAtR(0), {2, 1, 0}));
  EXPECT_TRUE(IsNear(straight.CoorAtR(-1), {0, 0, 0}));
  EXPECT_TRUE(IsNear(straight.CoorAtR(0.5), {3, 1.5, 0}));
  // With a middle node the line passes through it, wherever it stands.
  CShape const curved(SpaceType::Line, {{0, 0, 0}, {4, 0, 0}, {2, 0, 1}});
  EXPECT_TRUE(IsNear(curved.CoorAtR(0), {2, 0, 1}));
  EXPECT_TRUE(IsNear(curved.CoorAtR(0.5), {3, 0, 0.75}));  // z = 1 - r r
}

TEST(Shape, OfASurfaceGivesPointsByRAndS) {
  CShape const plate(SpaceType::Surface, {{0, 0, 1}, {4, 0, 1}, {4, 2, 1}, {0, 2, 5}});
  // Weights at (0.5, -0.5): 0.5 * 1.5, 1.5 * 1.5, 1.5 * 0.5, 0.5 * 0.5, all / 4
  // = 0.1875, 0.5625, 0.1875, 0.0625
  EXPECT_TRUE(IsNear(plate.CoorAtRS({0.5, -0.5}), {3, 0.5, 1.25}));
}

TEST(Shape, OfASolidGivesPointsByRSAndT) {
  CShape const tetra(SpaceType::Solid, {{1, 1, 1}, {3, 1, 1}, {1, 4, 1}, {1, 1, 5}});
  EXPECT_TRUE(IsNear(tetra.CoorAtRST({0.5, 0.25, 0.125}), {2, 1.75, 1.5}));
}

TEST(Shape, HasCoordinatesOfItsOwnSpaceOnly) {
  CShape const plate(SpaceType::Surface, {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}});
  EXPECT_THROW(plate.CoorAtR(0), std::invalid_argument);
  EXPECT_THROW(plate.CoorAtRST({}), std::invalid_argument);
  CShape const solid(SpaceType::Solid, {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}});
  Vec2<double> rs;
  V rst;
  EXPECT_FALSE(solid.FindRS({0, 0, 0}, rs, 1));
  EXPECT_FALSE(plate.FindRST({0, 0, 0}, rst, 1));
}

TEST(Shape, OfAWrongNumberOfNodesThrowsAtItsPointsAndHoldsNone) {
  CShape const plate(SpaceType::Surface, std::vector<V>(5));
  EXPECT_THROW(plate.CoorAtRS({0, 0}), std::invalid_argument);
  Vec2<double> rs{7, 8};
  EXPECT_FALSE(plate.FindRS({0, 0, 0}, rs, 1));
  V rst;
  EXPECT_FALSE(CShape(SpaceType::Solid, {}).FindRST({0, 0, 0}, rst, 1));
  ExpectNearRS(rs, {7, 8});
}

TEST(Shape, NamesNaturalNodesOfSurfaces) {
  ExpectNearRS(CShape::RS(4, 0), {-1, -1});
  ExpectNearRS(CShape::RS(4, 2), {1, 1});
  ExpectNearRS(CShape::RS(8, 3), {-1, 1});
  ExpectNearRS(CShape::RS(8, 5), {1, 0});
  ExpectNearRS(CShape::RS(3, 1), {1, 0});
  ExpectNearRS(CShape::RS(6, 4), {0.5, 0.5});
}

TEST(Shape, NamesTheCentreOfSurfaces) {
  EXPECT_EQ(CShape::kCentre, -1);
  for (int const nodes : {4, 8}) ExpectNearRS(CShape::RS(nodes, -1), {0, 0});
  for (int const nodes : {3, 6}) ExpectNearRS(CShape::RS(nodes, -1), {1. / 3, 1. / 3});
}

TEST(Shape, NamesNaturalNodesOfSolids) {
  EXPECT_EQ(CShape::RST(8, 1), (V{1, -1, -1}));
  EXPECT_EQ(CShape::RST(8, 7), (V{-1, 1, 1}));
  EXPECT_EQ(CShape::RST(6, 4), (V{1, 0, 1}));
  EXPECT_EQ(CShape::RST(5, 4), (V{0, 0, 1}));
  EXPECT_EQ(CShape::RST(4, 3), (V{0, 0, 1}));
  EXPECT_TRUE(IsNear(CShape::RST(8, -1), {0, 0, 0}));
}

TEST(Shape, NamesTheCentresOfFacesOfSolids) {
  // Brick: near, far, then the sides from that of the nodes 0 and 1 on.
  V const brick[] = {{0, 0, -1}, {0, 0, 1}, {0, -1, 0}, {1, 0, 0}, {0, 1, 0}, {-1, 0, 0}};
  for (int face = 0; face < 6; ++face) EXPECT_TRUE(IsNear(CShape::RST(8, -10 - face), brick[face]));
  // Wedge: ends are triangles, the side across node 0 runs from node 1 to node 2.
  EXPECT_TRUE(IsNear(CShape::RST(6, -10), {1. / 3, 1. / 3, -1}));
  EXPECT_TRUE(IsNear(CShape::RST(6, -11), {1. / 3, 1. / 3, 1}));
  EXPECT_TRUE(IsNear(CShape::RST(6, -13), {0.5, 0.5, 0}));
  // Pyramid: base, then the triangle of the nodes 0, 1 and 4.
  EXPECT_TRUE(IsNear(CShape::RST(5, -10), {0, 0, 0}));
  EXPECT_TRUE(IsNear(CShape::RST(5, -11), {0, -2. / 3, 1. / 3}));
  // Tetrahedron: the face across node 0.
  EXPECT_TRUE(IsNear(CShape::RST(4, -12), {1. / 3, 1. / 3, 1. / 3}));
}

TEST(Shape, NamesNothingElse) {
  EXPECT_THROW(CShape::RS(5, 0), std::invalid_argument);
  EXPECT_THROW(CShape::RST(3, 0), std::invalid_argument);
  EXPECT_THROW(CShape::RS(4, 4), std::out_of_range);
  EXPECT_THROW(CShape::RS(4, -2), std::out_of_range);
  EXPECT_THROW(CShape::RS(4, -10), std::out_of_range);
  EXPECT_THROW(CShape::RST(8, 8), std::out_of_range);
  EXPECT_THROW(CShape::RST(8, -9), std::out_of_range);
  EXPECT_THROW(CShape::RST(8, -16), std::out_of_range);
  EXPECT_THROW(CShape::RST(4, -14), std::out_of_range);
}

}  // namespace
}  // namespace Tarvex::Util
