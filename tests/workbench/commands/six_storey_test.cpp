// The six-storey example: its members against their elements, and its storeys.
#include <gtest/gtest.h>

#include <map>

#include "store/model/zel_data.h"
#include "store/numeric/element_frame.h"
#include "store/record/grid_plane.h"
#include "store/record/member.h"
#include "store/record/node.h"
#include "workbench/file/model_reader.h"

namespace Tarvex::SixStoreyTest {
namespace {

CZelData Building() {
  CZelData model;
  Workbench::ReadModel(TARVEX_SOURCE_DIR "/examples/six-storey/six-storey.json", model);
  return model;
}

double AreaOf(CZelData const& model, std::vector<int> const& nodes) {
  std::vector<Vec3<double>> points;
  for (int const node : nodes) points.push_back(model.NodeCoor(node));
  return Length(Util::PolygonNormal(points)) / 2;
}

/// Area of an outline less that of its holes.
double AreaOf(CZelData const& model, Data::CTopoList const& topology) {
  double area = 0;
  std::vector<int> ring;
  double sign = 1;
  for (int const item : topology) {
    if (!Data::CTopoList::IsWord(item)) {
      ring.push_back(item);
      continue;
    }
    if (!ring.empty()) area += sign * AreaOf(model, ring);
    ring.clear();
    sign = -1;
  }
  return ring.empty() ? area : area + sign * AreaOf(model, ring);
}

TEST(SixStorey, HasAMemberForEachElementAndOneOnly) {
  auto const model = Building();
  std::map<int, int> owner;
  for (auto const& [n, member] : model.Member())
    for (int i = 0; i < member.NumElem(); ++i) {
      EXPECT_TRUE(owner.emplace(member.Elem(i), n).second) << member.Elem(i);
      EXPECT_EQ(model.ElemMember(member.Elem(i)), static_cast<int>(n));
    }
  EXPECT_EQ(owner.size(), 3507u + 72);
}

TEST(SixStorey, HasMembersThatCanBeMeshed) {
  auto const model = Building();
  std::map<MembType, int> kinds;
  for (auto const& [n, member] : model.Member()) {
    EXPECT_TRUE(model.IsMemberTopoValid(member)) << n;
    ++kinds[member.Type()];
  }
  // 20 columns through 8 storeys and 4 posts; 9 slabs: 8 levels of which the ground has three, and
  // the canopy; one raft; 72 facade panels among the walls.
  EXPECT_EQ(kinds[MembType::Column], 20 * 8 + 4);
  EXPECT_EQ(kinds[MembType::Slab], 8 + 2 + 1);
  EXPECT_EQ(kinds[MembType::Solid], 1);
  // Walls: 4 round the basement in 2 storeys, 2 end walls in 6, 6 core walls in 8.
  EXPECT_EQ(kinds[MembType::Wall], 4 * 2 + 2 * 6 + 6 * 8 + 72);
}

TEST(SixStorey, HasMembersAsLongAndAsLargeAsTheirElements) {
  auto const model = Building();
  for (auto const& [n, member] : model.Member()) {
    int const number = static_cast<int>(n);
    double length = 0;
    double area = 0;
    for (int i = 0; i < member.NumElem(); ++i) {
      length += model.ElemLen(member.Elem(i), EntAt::Nodes);
      area += model.ElemArea(member.Elem(i));
    }
    EXPECT_NEAR(length, member.Is1D() ? model.MemberLen(number, EntAt::Nodes) : 0, 1e-9) << n;
    EXPECT_NEAR(area, member.Is2D() ? AreaOf(model, member.Topo()) : 0, 1e-9) << n;
  }
}

TEST(SixStorey, HasElementsThatKnowTheirPlaceAlongTheirMember) {
  auto const model = Building();
  for (auto const& [n, member] : model.Member()) {
    if (!member.Is1D()) continue;
    auto const start = model.NodeCoor(member.Topo(0));
    double const whole = model.MemberLen(static_cast<int>(n), EntAt::Nodes);
    for (int i = 0; i < member.NumElem(); ++i) {
      auto const& element = model.Elem(member.Elem(i));
      for (int end = 0; end < 2; ++end)
        EXPECT_NEAR(element.LongPosition(end == 0),
                    Length(model.NodeCoor(element.Topo(end)) - start) / whole, 1e-6)
            << member.Elem(i);
    }
  }
}

TEST(SixStorey, HasItsStoreysAsGridPlanes) {
  auto const model = Building();
  ASSERT_EQ(model.NumStorey(), 8);
  double const elevations[] = {-3, 0, 4, 7, 10, 13, 16, 19};  // m, of the floors
  for (int i = 1; i <= 8; ++i) {
    EXPECT_EQ(model.Storey(i).Elevation(), elevations[i - 1]);
    EXPECT_EQ(model.GridPlaneStorey(i), i);
  }
  // Every slab member lies in a storey but the canopy, 3 m above the roof.
  int outside = 0;
  for (auto const& [n, member] : model.Member()) {
    if (member.Type() != MembType::Slab) continue;
    bool in = false;
    for (int p = 1; p <= 8; ++p)
      in = in || model.EntIsInGridPlane({SelMember, static_cast<int>(n)}, p);
    outside += in ? 0 : 1;
  }
  EXPECT_EQ(outside, 1);
}

}  // namespace
}  // namespace Tarvex::SixStoreyTest
