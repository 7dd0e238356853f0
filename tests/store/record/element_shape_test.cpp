// The facts of all element types, written out beside the table that holds them.
#include "store/record/element_shape.h"

#include <gtest/gtest.h>

#include <climits>
#include <map>
#include <set>

#include "store/numeric/element_frame.h"

namespace Tarvex::ElementShapeTest {
namespace {

struct Row {
  int type;
  int dimension;
  int nodes;
  int corners;
  std::size_t edges;
  std::size_t faces;
  bool section;
  int property;  // number of the table of its property, -1 for none
  int linear;
  int quadratic;
  int variant;
};

void PrintTo(Row const& row, std::ostream* out) { *out << "type " << row.type; }

constexpr Row kRows[] = {
    // type, dimension, nodes, corners, edges, faces, section, property, linear, quadratic, variant
    {1, 1, 2, 2, 1, 0, true, 50, 1, 0, 1},      // bar
    {2, 1, 2, 2, 1, 0, true, 50, 2, 0, 2},      // beam
    {3, 1, 2, 2, 1, 0, false, 52, 3, 0, 3},     // spring
    {4, 0, 0, 0, 0, 0, false, -1, 0, 0, 4},     // without a shape
    {5, 2, 4, 4, 4, 1, false, 54, 5, 6, 5},     // 4-noded quadrilateral
    {6, 2, 8, 4, 4, 1, false, 54, 5, 6, 6},     // 8-noded quadrilateral
    {7, 2, 3, 3, 3, 1, false, 54, 7, 8, 7},     // 3-noded triangle
    {8, 2, 6, 3, 3, 1, false, 54, 7, 8, 8},     // 6-noded triangle
    {9, 1, 2, 2, 1, 0, false, 56, 9, 0, 9},     // link
    {10, 1, 2, 2, 1, 0, false, 58, 10, 0, 10},  // cable
    {11, 0, 0, 0, 0, 0, false, -1, 0, 0, 11},
    {12, 3, 8, 8, 12, 6, false, 55, 12, 0, 12},  // brick
    {13, 0, 0, 0, 0, 0, false, -1, 0, 0, 13},
    {14, 3, 6, 6, 9, 5, false, 55, 14, 0, 14},  // wedge
    {15, 0, 0, 0, 0, 0, false, -1, 0, 0, 15},
    {16, 3, 4, 4, 6, 4, false, 55, 16, 0, 16},  // tetrahedron
    {17, 0, 0, 0, 0, 0, false, -1, 0, 0, 17},
    {18, 0, 0, 0, 0, 0, false, -1, 0, 0, 18},
    {19, 1, 2, 2, 1, 0, false, 59, 19, 0, 27},  // spacer: 19 is the load panel among variants
    {20, 1, 2, 2, 1, 0, true, 50, 20, 0, 20},
    {21, 1, 2, 2, 1, 0, true, 50, 21, 0, 21},
    {22, 0, 0, 0, 0, 0, false, -1, 0, 0, 22},
    {23, 1, 2, 2, 1, 0, true, 50, 23, 0, 23},
    {24, 1, 2, 2, 1, 0, false, 57, 24, 0, 24},  // damper
    {25, 0, 0, 0, 0, 0, false, -1, 0, 0, 25},
    {26, 3, 5, 5, 8, 5, false, 55, 26, 0, 26},  // pyramid
};

class ElementShapeRow : public ::testing::TestWithParam<Row> {};

TEST_P(ElementShapeRow, HasItsFacts) {
  auto const& row = GetParam();
  auto const& shape = ShapeOf(static_cast<ElementType>(row.type));
  EXPECT_EQ(static_cast<int>(shape.type), row.type);
  EXPECT_EQ(shape.dimension, row.dimension);
  EXPECT_EQ(shape.nodes, row.nodes);
  EXPECT_EQ(shape.corners, row.corners);
  EXPECT_EQ(shape.edges.size(), row.edges);
  EXPECT_EQ(shape.faces.size(), row.faces);
  EXPECT_EQ(shape.section, row.section);
  EXPECT_EQ(static_cast<int>(shape.property), row.property);
  EXPECT_EQ(static_cast<int>(shape.linear), row.linear);
  EXPECT_EQ(static_cast<int>(shape.quadratic), row.quadratic);
  EXPECT_EQ(static_cast<int>(shape.variant), row.variant);
}

TEST_P(ElementShapeRow, IsOfItsDimensionOnly) {
  auto const& row = GetParam();
  auto const type = static_cast<ElementType>(row.type);
  EXPECT_EQ(Is1dType(type), row.dimension == 1);
  EXPECT_EQ(Is2dType(type), row.dimension == 2);
  EXPECT_EQ(Is3dType(type), row.dimension == 3);
}

INSTANTIATE_TEST_SUITE_P(AllTypes, ElementShapeRow, ::testing::ValuesIn(kRows));

TEST(ElementShape, HasNoFactsForANumberThatIsNoType) {
  EXPECT_EQ(kHighestElementType, 26);
  EXPECT_EQ(std::size(kRows), 26u);
  for (int const type : {0, -1, 27, 1000, INT_MIN, INT_MAX}) {
    auto const& shape = ShapeOf(static_cast<ElementType>(type));
    EXPECT_EQ(shape.dimension, 0) << type;
    EXPECT_EQ(shape.nodes, 0) << type;
    EXPECT_EQ(shape.type, ElementType::None) << type;
  }
}

TEST(ElementShape, NamesItsTypesByFixedNumbers) {
  std::pair<ElementType, int> const rows[] = {
      {ElementType::None, 0},     {ElementType::Bar, 1},     {ElementType::Beam, 2},
      {ElementType::Spring, 3},   {ElementType::Quad4, 5},   {ElementType::Quad8, 6},
      {ElementType::Tri3, 7},     {ElementType::Tri6, 8},    {ElementType::Link, 9},
      {ElementType::Cable, 10},   {ElementType::Brick8, 12}, {ElementType::Wedge6, 14},
      {ElementType::Tetra4, 16},  {ElementType::Spacer, 19}, {ElementType::Line20, 20},
      {ElementType::Line21, 21},  {ElementType::Line23, 23}, {ElementType::Damper, 24},
      {ElementType::Pyramid5, 26}};
  for (auto const& [type, number] : rows) EXPECT_EQ(static_cast<int>(type), number);
}

template <class Row>
std::vector<std::vector<int>> Listed(std::span<Row const> rows) {
  std::vector<std::vector<int>> listed;
  for (auto const& row : rows) {
    listed.emplace_back();
    for (int const place : row)
      if (place >= 0) listed.back().push_back(place);
  }
  return listed;
}

using Lists = std::vector<std::vector<int>>;

TEST(ElementShape, RunsTheEdgesOfPlatesAroundTheCorners) {
  Lists const tri{{0, 1}, {1, 2}, {2, 0}};
  Lists const quad{{0, 1}, {1, 2}, {2, 3}, {3, 0}};
  EXPECT_EQ(Listed(ShapeOf(ElementType::Tri3).edges), tri);
  EXPECT_EQ(Listed(ShapeOf(ElementType::Tri6).edges), tri);
  EXPECT_EQ(Listed(ShapeOf(ElementType::Quad4).edges), quad);
  EXPECT_EQ(Listed(ShapeOf(ElementType::Quad8).edges), quad);
  EXPECT_EQ(Listed(ShapeOf(ElementType::Beam).edges), (Lists{{0, 1}}));
  EXPECT_EQ(Listed(ShapeOf(ElementType::Tri6).faces), (Lists{{0, 1, 2}}));
  EXPECT_EQ(Listed(ShapeOf(ElementType::Quad8).faces), (Lists{{0, 1, 2, 3}}));
}

TEST(ElementShape, NumbersTheFacesOfABrickNearFarAndAround) {
  auto const faces = Listed(ShapeOf(ElementType::Brick8).faces);
  std::vector<std::set<int>> places;
  for (auto const& face : faces) places.emplace_back(face.begin(), face.end());
  EXPECT_EQ(
      places,
      (std::vector<std::set<int>>{
          {0, 1, 2, 3}, {4, 5, 6, 7}, {0, 1, 4, 5}, {1, 2, 5, 6}, {2, 3, 6, 7}, {0, 3, 4, 7}}));
}

/// Corners of the solids as the drawings beside their table show them.
using Corners = std::vector<Vec3<double>>;
std::map<ElementType, Corners> const kSolids{
    {ElementType::Brick8,
     {{0, 0, 0}, {2, 0, 0}, {2, 2, 0}, {0, 2, 0}, {0, 0, 2}, {2, 0, 2}, {2, 2, 2}, {0, 2, 2}}},
    {ElementType::Wedge6, {{0, 0, 0}, {2, 0, 0}, {0, 2, 0}, {0, 0, 2}, {2, 0, 2}, {0, 2, 2}}},
    {ElementType::Tetra4, {{0, 0, 0}, {2, 0, 0}, {0, 2, 0}, {0, 0, 2}}},
    {ElementType::Pyramid5, {{0, 0, 0}, {2, 0, 0}, {2, 2, 0}, {0, 2, 0}, {1, 1, 2}}}};

/// A solid of kSolids with its faces as points.
struct Solid {
  ElementType type;
  Corners const& corners;

  Corners Face(std::vector<int> const& places) const {
    Corners points;
    for (int const place : places) points.push_back(corners.at(static_cast<std::size_t>(place)));
    return points;
  }
};

Vec3<double> Mean(Corners const& points) {
  Vec3<double> sum;
  for (auto const& p : points) sum += p;
  return sum / static_cast<double>(points.size());
}

template <class Check>
void ForEachSolid(Check&& check) {
  for (auto const& [type, corners] : kSolids) {
    SCOPED_TRACE(static_cast<int>(type));
    check(Solid{type, corners});
  }
}

TEST(SolidFaces, RunRightHandedAboutTheirOutwardNormal) {
  ForEachSolid([](Solid const& solid) {
    for (auto const& places : Listed(ShapeOf(solid.type).faces)) {
      auto const face = solid.Face(places);
      auto const outward = Mean(face) - Mean(solid.corners);
      EXPECT_GT(Dot(Util::PolygonNormal(face), outward), 0);
    }
  });
}

TEST(SolidFaces, EncloseTheVolume) {
  // By the divergence theorem a third of the sum of (point on a face) . (its area vector).
  std::map<ElementType, double> const volumes{{ElementType::Brick8, 8},        // 2 * 2 * 2
                                              {ElementType::Wedge6, 4},        // half of it
                                              {ElementType::Tetra4, 8.0 / 6},  // 2 * 2 / 2 * 2 / 3
                                              {ElementType::Pyramid5, 8.0 / 3}};  // 4 * 2 / 3
  ForEachSolid([&](Solid const& solid) {
    double volume = 0;
    for (auto const& places : Listed(ShapeOf(solid.type).faces)) {
      auto const face = solid.Face(places);
      volume += Dot(face[0], Util::PolygonNormal(face)) / 6;
    }
    EXPECT_NEAR(volume, volumes.at(solid.type), 1e-12);
  });
}

TEST(SolidFaces, MeetInEachEdgeTwiceAndInOppositeDirections) {
  ForEachSolid([](Solid const& solid) {
    std::map<std::pair<int, int>, int> directed;
    for (auto const& face : Listed(ShapeOf(solid.type).faces))
      for (std::size_t i = 0; i < face.size(); ++i)
        ++directed[{face[i], face[(i + 1) % face.size()]}];
    EXPECT_EQ(directed.size(), 2 * ShapeOf(solid.type).edges.size());
    for (auto const& edge : Listed(ShapeOf(solid.type).edges)) {
      EXPECT_EQ((directed[{edge[0], edge[1]}]), 1) << edge[0] << ' ' << edge[1];
      EXPECT_EQ((directed[{edge[1], edge[0]}]), 1) << edge[0] << ' ' << edge[1];
    }
  });
}

TEST(SolidFaces, BeginWithTheNearFaceWhoseSecondPlaceIsItsLastNode) {
  // The frame of a solid takes its y towards that node.
  EXPECT_EQ(ShapeOf(ElementType::Brick8).faces[0][1], 3);
  EXPECT_EQ(ShapeOf(ElementType::Wedge6).faces[0][1], 2);
  EXPECT_EQ(ShapeOf(ElementType::Tetra4).faces[0][1], 2);
  EXPECT_EQ(ShapeOf(ElementType::Pyramid5).faces[0][1], 3);
}

}  // namespace
}  // namespace Tarvex::ElementShapeTest
