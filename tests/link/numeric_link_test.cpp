// Frames, restraints and points by position, as an application links them.
#include <gtest/gtest.h>

#include <array>
#include <span>
#include <stdexcept>
#include <utility>

#include "store/numeric/cell_size.h"
#include "store/numeric/dir_cos.h"
#include "store/numeric/element_frame.h"
#include "store/numeric/point_index.h"
#include "store/numeric/vbool6.h"
#include "store/table/revision.h"
#include "tests/link/linked.h"

namespace Tarvex::NumericLinkTest {
namespace {

using Testing::AreLinked;
using Util::CDirCos;
using Util::PointIndex;

TEST(NumericLink, Frames) {
  EXPECT_TRUE(AreLinked(&CDirCos::Assign, &CDirCos::AssignNormal, &CDirCos::AxisVec, &CDirCos::GtoL,
                        &CDirCos::LtoG, &CDirCos::Rotate));
  CDirCos frame({0, 2, 0}, {-1, 0, 0});
  CDirCos copy(frame);
  CDirCos assigned;
  assigned = std::move(copy);
  EXPECT_EQ(assigned, frame);
  EXPECT_TRUE(frame.Assign({0, 0, 3}, {1, 0, 0}));
  EXPECT_EQ(frame.AxisVec(Direction::X).z, 1);
  EXPECT_EQ(frame.LtoG(frame.GtoL({1, 2, 3})), (Vec3<double>{1, 2, 3}));
  frame.Rotate(Direction::X, kPi);
  EXPECT_NEAR(frame.AxisVec(Direction::Y).x, -1, 1e-15);
}

TEST(NumericLink, FramesOfElements) {
  EXPECT_TRUE(AreLinked(&IsVertical, &IsHorizontal, &Util::LineFrame, &Util::PolygonNormal,
                        &Util::PlateFrame));
  std::array<Vec3<double>, 3> const triangle{{{0, 0, 0}, {2, 0, 0}, {0, 3, 0}}};
  EXPECT_TRUE(IsVertical({0, 0, 1}, 0.001) && IsHorizontal({1, 1, 0}, 0.001));
  EXPECT_EQ(Util::PolygonNormal(triangle).z, 6);
  EXPECT_EQ(Util::PlateFrame(triangle, 0), CDirCos());
  EXPECT_EQ(Util::LineFrame({0, 0, 0}, {5, 0, 0}, {}, 0, 0.001), CDirCos());
}

TEST(NumericLink, PointsByPosition) {
  EXPECT_TRUE(AreLinked(&PointIndex::Insert, &PointIndex::Erase, &PointIndex::Nearest,
                        &PointIndex::Around, &Util::SuitableCellSize));
  PointIndex index(std::vector<PointIndex::Entry>{{1, {0, 0, 0}}, {2, {1, 0, 0}}});
  index.Insert(3, {2, 0, 0});
  index.Erase(1, {0, 0, 0});
  EXPECT_EQ(index.Around({1, 0, 0}, 1), (std::vector{2, 3}));
  EXPECT_EQ(PointIndex(index).Nearest({0, 0, 0}, 5), 2);
  std::array<Vec3<double>, 2> const points{{{0, 0, 0}, {1, 0, 0}}};
  EXPECT_GT(Util::SuitableCellSize(points, 1), 0);
}

TEST(NumericLink, RestraintsByName) {
  EXPECT_TRUE(Vbool6(CString(L"fix")).ZZ());
  EXPECT_THROW(Vbool6(CString(L"glued")), std::invalid_argument);
}

TEST(NumericLink, Revisions) {
  EXPECT_TRUE(AreLinked(&NextRevision));
  auto const one = NextRevision();
  EXPECT_GT(NextRevision(), one);
}

}  // namespace
}  // namespace Tarvex::NumericLinkTest
