#include "store/geometry/shape_functions.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "tests/support/matchers.h"
#include "tests/support/random_model.h"

namespace Tarvex::Util {
namespace {

using V = Vec3<double>;

struct ShapeRow {
  SpaceType space;
  std::vector<V> nodes;  // natural co-ordinates, written out by hand
  std::vector<V> inside;
};

std::vector<ShapeRow> const& ShapeRows() {
  using enum SpaceType;
  static std::vector<ShapeRow> const rows{
      {Line, {{-1, 0, 0}, {1, 0, 0}}, {{0.3, 0, 0}}},
      {Line, {{-1, 0, 0}, {1, 0, 0}, {0, 0, 0}}, {{-0.7, 0, 0}}},
      {Surface, {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}}, {{0.2, 0.7, 0}}},
      {Surface, {{-1, -1, 0}, {1, -1, 0}, {1, 1, 0}, {-1, 1, 0}}, {{0.3, -0.8, 0}}},
      {Surface,
       {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0.5, 0, 0}, {0.5, 0.5, 0}, {0, 0.5, 0}},
       {{0.1, 0.3, 0}}},
      {Surface,
       {{-1, -1, 0},
        {1, -1, 0},
        {1, 1, 0},
        {-1, 1, 0},
        {0, -1, 0},
        {1, 0, 0},
        {0, 1, 0},
        {-1, 0, 0}},
       {{0.6, -0.4, 0}}},
      {Solid, {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}}, {{0.2, 0.3, 0.4}}},
      {Solid,
       {{-1, -1, 0}, {1, -1, 0}, {1, 1, 0}, {-1, 1, 0}, {0, 0, 1}},
       {{0.2, -0.3, 0.4}, {0.01, 0.05, 0.9}}},
      {Solid,
       {{0, 0, -1}, {1, 0, -1}, {0, 1, -1}, {0, 0, 1}, {1, 0, 1}, {0, 1, 1}},
       {{0.2, 0.3, -0.9}}},
      {Solid,
       {{-1, -1, -1},
        {1, -1, -1},
        {1, 1, -1},
        {-1, 1, -1},
        {-1, -1, 1},
        {1, -1, 1},
        {1, 1, 1},
        {-1, 1, 1}},
       {{0.2, 0.3, -0.9}}}};
  return rows;
}

ShapeKind const& KindOfRow(ShapeRow const& row) {
  return ShapeKindOf(row.space, static_cast<int>(row.nodes.size()));
}

std::string ShapeFault(SpaceType space, int nodes) {
  try {
    ShapeKindOf(space, nodes);
  } catch (std::invalid_argument const& fault) {
    return fault.what();
  }
  return "";
}

TEST(ShapeFunctions, StandAtTheirNaturalNodes) {
  for (auto const& row : ShapeRows()) {
    auto const& kind = KindOfRow(row);
    ASSERT_EQ(kind.natural.size(), row.nodes.size());
    for (std::size_t i = 0; i < row.nodes.size(); ++i) EXPECT_EQ(kind.natural[i], row.nodes[i]);
  }
}

TEST(ShapeFunctions, AreOneAtTheirOwnNodeAndZeroAtTheOthers) {
  for (auto const& row : ShapeRows()) {
    SCOPED_TRACE(row.nodes.size());
    for (std::size_t i = 0; i < row.nodes.size(); ++i) {
      ShapeTerms terms;
      KindOfRow(row).evaluate(row.nodes[i], terms);
      for (std::size_t j = 0; j < row.nodes.size(); ++j)
        EXPECT_NEAR(terms[j].value, i == j ? 1 : 0, 1e-15) << i << ' ' << j;
    }
  }
}

TEST(ShapeFunctions, SumToOneAndGiveTheNaturalCoordinatesBack) {
  for (auto const& row : ShapeRows()) {
    SCOPED_TRACE(row.nodes.size());
    for (auto const& at : row.inside) {
      ShapeTerms terms;
      KindOfRow(row).evaluate(at, terms);
      double sum = 0;
      V slope;
      for (std::size_t i = 0; i < row.nodes.size(); ++i) {
        sum += terms[i].value;
        slope += terms[i].slope;
      }
      EXPECT_NEAR(sum, 1, 1e-15);
      EXPECT_TRUE(Testing::IsNear(slope, {0, 0, 0}, 1e-14));
      EXPECT_TRUE(Testing::IsNear(Interpolate(row.space, row.nodes, at), at, 1e-15));
    }
  }
}

TEST(ShapeFunctions, HaveTheSlopesOfTheirValues) {
  double const h = 1e-6;  // the error of a central difference is about h squared
  for (auto const& row : ShapeRows()) {
    SCOPED_TRACE(row.nodes.size());
    auto const value = [&](V const& at, std::size_t i) {
      ShapeTerms terms;
      KindOfRow(row).evaluate(at, terms);
      return terms[i].value;
    };
    for (auto const& at : row.inside) {
      ShapeTerms terms;
      KindOfRow(row).evaluate(at, terms);
      for (std::size_t i = 0; i < row.nodes.size(); ++i) {
        auto const difference = [&](V const& d) {
          return (value(at + d * h, i) - value(at - d * h, i)) / (2 * h);
        };
        V expected{difference({1, 0, 0}), difference({0, 1, 0}), difference({0, 0, 1})};
        EXPECT_TRUE(Testing::IsNear(terms[i].slope, expected, 1e-8)) << i;
      }
    }
  }
}

TEST(ShapeFunctions, OfTheLineOfThreeNodesAreParabolas) {
  ShapeTerms terms;
  ShapeKindOf(SpaceType::Line, 3).evaluate({0.5, 0, 0}, terms);
  EXPECT_DOUBLE_EQ(terms[0].value, -0.125);  // r (r - 1) / 2 = 0.5 * -0.5 / 2
  EXPECT_DOUBLE_EQ(terms[1].value, 0.375);   // r (r + 1) / 2 = 0.5 * 1.5 / 2
  EXPECT_DOUBLE_EQ(terms[2].value, 0.75);    // 1 - r r
}

TEST(ShapeFunctions, OfTheTriangleOfSixNodes) {
  ShapeTerms terms;
  ShapeKindOf(SpaceType::Surface, 6).evaluate({0.25, 0.25, 0}, terms);
  // L = 1 / 2, 1 / 4, 1 / 4: corners L (2 L - 1), mid-sides 4 L L
  double const expected[] = {0, -0.125, -0.125, 0.5, 0.25, 0.5};
  for (std::size_t i = 0; i < 6; ++i) EXPECT_DOUBLE_EQ(terms[i].value, expected[i]) << i;
}

TEST(ShapeFunctions, OfTheQuadrilateralOfEightNodes) {
  ShapeTerms terms;
  ShapeKindOf(SpaceType::Surface, 8).evaluate({0.5, 0, 0}, terms);
  // Mid-sides: (1 - 1 / 4) / 2 at 4 and 6, (1 + 1 / 2) / 2 at 5, (1 - 1 / 2) / 2 at 7.
  // Corners: (1 - r)(1 - s) / 4 = 1 / 8 less (3 / 8 + 1 / 4) / 2 at 0 and 3,
  // 3 / 8 less (3 / 8 + 3 / 4) / 2 at 1 and 2.
  double const expected[] = {-0.1875, -0.1875, -0.1875, -0.1875, 0.375, 0.75, 0.375, 0.25};
  for (std::size_t i = 0; i < 8; ++i) EXPECT_DOUBLE_EQ(terms[i].value, expected[i]) << i;
}

TEST(ShapeFunctions, OfThePyramidAreRational) {
  ShapeTerms terms;
  ShapeKindOf(SpaceType::Solid, 5).evaluate({0.25, 0.25, 0.5}, terms);
  // r s t / (1 - t) = 1 / 16; node 0: (0.75 * 0.75 - 0.5 + 0.0625) / 4 = 0.03125,
  // node 1: (1.25 * 0.75 - 0.5 - 0.0625) / 4 = 0.09375, node 2: (1.5625 - 0.5 + 0.0625) / 4.
  double const expected[] = {0.03125, 0.09375, 0.28125, 0.09375, 0.5};
  for (std::size_t i = 0; i < 5; ++i) EXPECT_DOUBLE_EQ(terms[i].value, expected[i]) << i;
}

TEST(ShapeFunctions, OfThePyramidAreZeroOnTheFacesAcross) {
  // On the side face s = -(1 - t) only the nodes 0, 1 and 4 count, as on a plane triangle.
  ShapeTerms terms;
  ShapeKindOf(SpaceType::Solid, 5).evaluate({0.3, -0.6, 0.4}, terms);
  EXPECT_NEAR(terms[2].value, 0, 1e-15);
  EXPECT_NEAR(terms[3].value, 0, 1e-15);
  EXPECT_NEAR(terms[0].value, 0.15, 1e-15);  // ((1 - t) - r) / 2
  EXPECT_NEAR(terms[1].value, 0.45, 1e-15);  // ((1 - t) + r) / 2
}

TEST(ShapeFunctions, TellHowFarAPointLiesOutside) {
  struct Case {
    SpaceType space;
    int nodes;
    V at;
    double overrun;
  };
  using enum SpaceType;
  for (auto const& c : std::vector<Case>{{Line, 3, {-1.5, 0, 0}, 0.5},
                                         {Surface, 6, {0.25, 0.25, 0}, -0.25},
                                         {Surface, 3, {0.75, 0.75, 0}, 0.5},
                                         {Surface, 3, {-0.125, 0.5, 0}, 0.125},
                                         {Surface, 8, {0.5, -1.25, 0}, 0.25},
                                         {Surface, 4, {-0.5, 0.25, 0}, -0.5},
                                         {Solid, 4, {0.5, 0.5, 0.5}, 0.5},
                                         {Solid, 4, {0.25, 0.25, -0.5}, 0.5},
                                         {Solid, 5, {0, 0.5, 0.75}, 0.25},
                                         {Solid, 5, {0, 0, -0.5}, 0.5},
                                         {Solid, 5, {-0.75, 0, 0.5}, 0.25},
                                         {Solid, 6, {0.25, 0.25, 1.5}, 0.5},
                                         {Solid, 6, {0.75, 0.5, 0}, 0.25},
                                         {Solid, 8, {0, 0, -1.5}, 0.5},
                                         {Solid, 8, {0.5, -0.75, 0}, -0.25}})
    EXPECT_DOUBLE_EQ(ShapeKindOf(c.space, c.nodes).overrun(c.at), c.overrun) << c.nodes;
}

TEST(ShapeFunctions, HaveTheirCentreAtTheMeanOfTheCorners) {
  EXPECT_TRUE(Testing::IsNear(CentreOf(ShapeKindOf(SpaceType::Surface, 6)), {1. / 3, 1. / 3, 0}));
  EXPECT_TRUE(Testing::IsNear(CentreOf(ShapeKindOf(SpaceType::Surface, 8)), {0, 0, 0}));
  EXPECT_TRUE(Testing::IsNear(CentreOf(ShapeKindOf(SpaceType::Solid, 4)), {0.25, 0.25, 0.25}));
  EXPECT_TRUE(Testing::IsNear(CentreOf(ShapeKindOf(SpaceType::Solid, 5)), {0, 0, 0.2}));
  EXPECT_TRUE(Testing::IsNear(CentreOf(ShapeKindOf(SpaceType::Line, 3)), {0, 0, 0}));
}

TEST(ShapeFunctions, OfOtherNumbersOfNodesDoNotExist) {
  for (int const nodes : {0, 1, 4}) EXPECT_EQ(FindShapeKind(SpaceType::Line, nodes), nullptr);
  EXPECT_EQ(ShapeFault(SpaceType::Line, 4), "invalid number of values for 1D element");
  for (int const nodes : {-1, 0, 2, 5, 7, 9})
    EXPECT_EQ(ShapeFault(SpaceType::Surface, nodes), "invalid number of values for 2D element");
  for (int const nodes : {0, 3, 7, 20})
    EXPECT_EQ(ShapeFault(SpaceType::Solid, nodes), "invalid number of values for 3D element");
  std::vector<V> const five(5);
  EXPECT_THROW(Interpolate(SpaceType::Surface, five, {}), std::invalid_argument);
}

}  // namespace
}  // namespace Tarvex::Util
