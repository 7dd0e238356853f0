// Shapes, axes, lines, circles and polygons, as an application links them.
#include <gtest/gtest.h>

#include <array>
#include <span>

#include "store/geometry/axis_trans.h"
#include "store/geometry/circle.h"
#include "store/geometry/edge.h"
#include "store/geometry/intersect.h"
#include "store/geometry/line.h"
#include "store/geometry/polygon.h"
#include "store/geometry/rounding.h"
#include "store/geometry/shape.h"
#include "store/geometry/shape_functions.h"
#include "tests/link/linked.h"

namespace Tarvex {
namespace {

using Data::CAxis;
using Data::CEdge;
using Data::CPolygon;
using Testing::AreLinked;
using Testing::Function;
using Testing::Member;
using Util::CAxisTrans;
using Util::CDirCos;
using Util::CIntersect;
using Util::CShape;
using V = Vec3<double>;

TEST(GeometryLink, Shapes) {
  EXPECT_TRUE(AreLinked(&CShape::CoorAtR, &CShape::CoorAtRS, &CShape::CoorAtRST, &CShape::FindRS,
                        &CShape::HoldsRS, &CShape::FindRST, &CShape::RS, &CShape::RST,
                        &Util::FindShapeKind, &Util::ShapeKindOf, &Util::CentreOf,
                        &Util::Interpolate));
  CShape const tetra(SpaceType::Solid, {{0, 0, 0}, {2, 0, 0}, {0, 2, 0}, {0, 0, 2}});
  V rst;
  EXPECT_TRUE(tetra.FindRST({0.5, 0.5, 0.5}, rst, 1e-6));
  EXPECT_NEAR(rst.y, 0.25, 1e-12);
}

TEST(GeometryLink, Axes) {
  EXPECT_TRUE(AreLinked(Member<void(CAxis const&)>(&CAxisTrans::Assign),
                        Member<bool(V const&, V const&, V const&)>(&CAxisTrans::Assign),
                        Member<void(CDirCos const&, V const&)>(&CAxisTrans::Assign),
                        &CAxisTrans::Global2User, &CAxisTrans::User2Global,
                        Member<CDirCos(V const&) const>(&CAxisTrans::DirCos), &CAxis::DirCos));
  CAxisTrans const trans(CAxis(L"", AxisType::Cylindrical, {}, {1, 0, 0}, {0, 1, 0}));
  EXPECT_NEAR(trans.Global2User({-2, 0, 3}).y, kPi, 1e-15);
}

TEST(GeometryLink, LinesCirclesAndRounding) {
  EXPECT_TRUE(AreLinked(&DistanceBetweenLines, &CircleCentre, &ArcCentre,
                        Function<double(double, int)>(&Round), Function<V(V const&, int)>(&Round)));
  double r1 = 0;
  double r2 = 0;
  double distance = 0;
  EXPECT_TRUE(Data::CLine3({0, 0, 0}, {2, 0, 0})
                  .Intersect(Data::CLine3({1, 0, 1}, {1, 1, 1}), r1, r2, distance));
  EXPECT_EQ(r1, 0.5);
  EXPECT_EQ(Round(0.126, 2), 0.13);
}

TEST(GeometryLink, Polygons) {
  EXPECT_TRUE(AreLinked(
      &CEdge::Point, &CEdge::Intersect, &CEdge::Distance, &CPolygon::Point, &CPolygon::SetPoint,
      &CPolygon::PointExist, &CPolygon::PointOnEdge, &CPolygon::PointInside, &CPolygon::Area,
      &CPolygon::Centroid, &CPolygon::Corners, Member<double() const>(&CPolygon::Length),
      Member<double(int) const>(&CPolygon::Length), &CIntersect::NumPoly, &CIntersect::Intersect));
  CPolygon triangle;
  for (Vec2<double> const p : {Vec2<double>{0, 0}, {2, 0}, {0, 2}}) triangle.AddPoint(p);
  CIntersect common(0.001);
  EXPECT_EQ(common.NumPoly(triangle, *triangle.Clone()), 1);
  EXPECT_NEAR(common.Intersect(0).Area(), 2, 1e-12);
}

}  // namespace
}  // namespace Tarvex
