#include "store/record/axis.h"

#include <gtest/gtest.h>

#include "tests/support/matchers.h"
#include "tests/support/stored_fields.h"

namespace Tarvex::Data::AxisTest {
namespace {

TEST(Axis, IsTheGlobalAxisAtFirst) {
  CAxis const axis;
  EXPECT_EQ(axis.Type(), AxisType::Cartesian);
  EXPECT_EQ(axis.Origin(), Vec3<double>());
  EXPECT_EQ(axis.XAxis(), (Vec3<double>{1, 0, 0}));
  EXPECT_EQ(axis.YAxis(), (Vec3<double>{0, 1, 0}));
  EXPECT_EQ(axis.ZAxis(), (Vec3<double>{0, 0, 1}));
}

TEST(Axis, IsGivenByOriginXAndAVectorInItsXYPlane) {
  CAxis const axis(L"ramp", AxisType::Cylindrical, {1, 2, 3}, {3, 0, 4}, {5, 7, 0});
  EXPECT_EQ(axis.Name(), L"ramp");
  EXPECT_EQ(axis.Type(), AxisType::Cylindrical);
  EXPECT_EQ(axis.Origin(), (Vec3<double>{1, 2, 3}));
  // x = (3, 0, 4) / 5. x cross (5, 7, 0) = (0 - 0.8 * 7, 0.8 * 5 - 0, 0.6 * 7) = (-5.6, 4, 4.2)
  double const length = std::sqrt(5.6 * 5.6 + 4 * 4 + 4.2 * 4.2);
  Vec3<double> const z = Vec3<double>{-5.6, 4, 4.2} / length;
  EXPECT_TRUE(Testing::IsNear(axis.XAxis(), {0.6, 0, 0.8}));
  EXPECT_TRUE(Testing::IsNear(axis.ZAxis(), z));
  EXPECT_TRUE(Testing::IsNear(axis.YAxis(), Cross(z, axis.XAxis())));
  EXPECT_EQ(axis.Frame().AxisVec(Direction::X), axis.XAxis());
}

TEST(Axis, CanBeMoved) {
  CAxis axis(L"", AxisType::Spherical, {1, 2, 3}, {0, 1, 0}, {-1, 0, 0});
  axis.SetOrigin({4, 5, 6});
  EXPECT_EQ(axis, CAxis(L"", AxisType::Spherical, {4, 5, 6}, {0, 1, 0}, {-1, 0, 0}));
}

TEST(Axis, HasGlobalDirectionsWhereItsOwnSpanNoPlane) {
  CAxis const axis(L"", AxisType::Cartesian, {}, {0, 1, 0}, {0, 2, 0});
  EXPECT_EQ(axis.Frame(), Util::CDirCos());
}

void ExpectFrame(Util::CDirCos const& frame, Vec3<double> const& x, Vec3<double> const& y,
                 Vec3<double> const& z) {
  EXPECT_TRUE(Testing::IsNear(frame.AxisVec(Direction::X), x));
  EXPECT_TRUE(Testing::IsNear(frame.AxisVec(Direction::Y), y));
  EXPECT_TRUE(Testing::IsNear(frame.AxisVec(Direction::Z), z));
}

TEST(Axis, HasOneFrameAtAllPointsWhenItIsCartesian) {
  CAxis const axis(L"", AxisType::Cartesian, {1, 2, 3}, {0, 1, 0}, {-1, 0, 0});
  EXPECT_EQ(axis.DirCos({5, 6, 7}), axis.Frame());
  EXPECT_EQ(axis.DirCos({0, 0, 0}), axis.Frame());
}

TEST(Axis, PointsOutwardsTangentiallyAndUpWhenItIsCylindrical) {
  CAxis const axis(L"", AxisType::Cylindrical, {1, 2, 3}, {1, 0, 0}, {0, 1, 0});
  ExpectFrame(axis.DirCos({1, 7, -4}), {0, 1, 0}, {-1, 0, 0}, {0, 0, 1});
  ExpectFrame(axis.DirCos({4, -2, 9}), {0.6, -0.8, 0}, {0.8, 0.6, 0}, {0, 0, 1});
  EXPECT_EQ(axis.DirCos({1, 2, 8}), axis.Frame());
}

TEST(Axis, PointsOutwardsTangentiallyAndTowardsThePoleWhenItIsSpherical) {
  CAxis const axis(L"", AxisType::Spherical, {1, 2, 3}, {1, 0, 0}, {0, 1, 0});
  // At the equator as if it were cylindrical.
  ExpectFrame(axis.DirCos({1, 7, 3}), {0, 1, 0}, {-1, 0, 0}, {0, 0, 1});
  // (3, 0, 4) from the origin: outwards (0.6, 0, 0.8); x cross y = (-0.8, 0, 0.6).
  ExpectFrame(axis.DirCos({4, 2, 7}), {0.6, 0, 0.8}, {0, 1, 0}, {-0.8, 0, 0.6});
  ExpectFrame(axis.DirCos({1, 2, 9}), {0, 0, 1}, {0, 1, 0}, {-1, 0, 0});
  ExpectFrame(axis.DirCos({1, 2, -9}), {0, 0, -1}, {0, 1, 0}, {1, 0, 0});
  EXPECT_EQ(axis.DirCos({1, 2, 3}), axis.Frame());
}

TEST(Axis, HasFixedTypeNumbers) {
  EXPECT_EQ(static_cast<int>(AxisType::Cartesian), 1);
  EXPECT_EQ(static_cast<int>(AxisType::Cylindrical), 2);
  EXPECT_EQ(static_cast<int>(AxisType::Spherical), 3);
}

TEST(Axis, ComparesEveryField) {
  using V = Vec3<double>;
  V const x{1, 0, 0};
  V const y{0, 1, 0};
  Testing::ExpectStoredFields<CAxis>(
      {{"name", [](CAxis& a) { a.SetName(L"n"); }},
       {"sid", [](CAxis& a) { a.SetSid(L"s"); }},
       {"colour", [](CAxis& a) { a.SetColour(1); }},
       {"type",
        [](CAxis& a) {
          a = CAxis(L"", AxisType::Spherical, {}, {1, 0, 0}, {0, 1, 0});
        }},
       {"origin",
        [](CAxis& a) {
          a = CAxis(L"", AxisType::Cartesian, {0, 0, 1}, {1, 0, 0}, {0, 1, 0});
        }},
       {"x",
        [](CAxis& a) {
          a = CAxis(L"", AxisType::Cartesian, {}, {2, 0, 0}, {0, 1, 0});
        }},
       {"xy",
        [](CAxis& a) {
          a = CAxis(L"", AxisType::Cartesian, {}, {1, 0, 0}, {0, 2, 0});
        }}},
      CAxis(L"", AxisType::Cartesian, {}, x, y));
}

}  // namespace
}  // namespace Tarvex::Data::AxisTest
