// The six-storey example: its members against their elements, and its storeys.
#include <gtest/gtest.h>

#include <map>

#include "store/calc/load_totals.h"
#include "store/model/analysis_case_table.h"
#include "store/model/list_expansion.h"
#include "store/model/zel_data.h"
#include "store/numeric/element_frame.h"
#include "store/record/face_loads.h"
#include "store/record/grid_plane.h"
#include "store/record/member.h"
#include "store/record/node.h"
#include "store/record/res_spectrum.h"
#include "store/record/rigid.h"
#include "store/record/task_slot.h"
#include "tests/support/matchers.h"
#include "workbench/file/model_reader.h"
#include "workbench/report/integrity.h"

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

TEST(SixStorey, NamesNothingThatIsMissing) {
  EXPECT_TRUE(Workbench::FindFaults(Building()).empty());
}

TEST(SixStorey, HasLoadCasesWithTheirActions) {
  EXPECT_EQ(Building().LoadCaseTypes(), (std::map<int, CaseType>{{1, CaseType::SelfWeight},
                                                                 {2, CaseType::PermanentEquivalent},
                                                                 {3, CaseType::Imposed},
                                                                 {4, CaseType::ImposedRoof},
                                                                 {5, CaseType::Wind},
                                                                 {6, CaseType::Wind},
                                                                 {7, CaseType::Snow},
                                                                 {8, CaseType::Thermal},
                                                                 {13, CaseType::Imposed},
                                                                 {14, CaseType::Imposed},
                                                                 {15, CaseType::Imposed},
                                                                 {16, CaseType::Wind},
                                                                 {17, CaseType::Wind},
                                                                 {18, CaseType::Accidental},
                                                                 {19, CaseType::SeismicTorsion},
                                                                 {20, CaseType::SeismicTorsion}}));
}

/// Area of the 2D elements and panels that the face loads of a load case act on.
double LoadedArea(CZelData const& model, int loadCase) {
  double area = 0;
  for (auto const& load : model.FaceLoad()) {
    if (load.LoadCase() != loadCase) continue;
    for (int const n : Util::MakeSet(load.LoadedEntities(), model, true))
      area += model.ElemExist(n) ? model.ElemArea(n)
                                 : AreaOf(model, {model.LoadPanel(n).Topology().begin(),
                                                  model.LoadPanel(n).Topology().end()});
  }
  return area;
}

TEST(SixStorey, LoadsTheAreasThatItsPageSays) {
  auto const model = Building();
  EXPECT_NEAR(LoadedArea(model, 4), 30 * 14, 1e-9);  // the roof, which has no shafts
  // And the canopy, of which a triangle of 2 by 1.75 is cut off at each corner.
  EXPECT_NEAR(LoadedArea(model, 7), 30 * 14 + 10 * 7.5 - 4 * 2 * 1.75 / 2, 1e-9);
  // Facades: all of the perimeter but two walls of 6 m each on the long sides and one of 4 m on
  // each short side, over 19 m.
  EXPECT_NEAR(LoadedArea(model, 5), 2 * (14 - 4) * 19, 1e-9);
  EXPECT_NEAR(LoadedArea(model, 6), 2 * (30 - 6) * 19, 1e-9);
}

TEST(SixStorey, CarriesWhatItsAreasTimesTheirLoadsComeTo) {
  auto const totals = SumLoads(Building());
  EXPECT_TRUE(totals.uncounted.empty());
  auto const near = [&](int loadCase, Vec3<double> const& force) {
    EXPECT_TRUE(Testing::IsNear(totals.byCase.at(loadCase).force, force, 0.01)) << loadCase;
  };
  // Offices: two floors of 30 x 21 and five of 30 x 14, each less a stair (4 + 1) / 2 x 2 and a
  // lift 2 x 1.5.
  near(3, {0, 0, -3000.0 * (2 * 630 + 5 * 420 - 7 * (5 + 3))});
  near(4, {0, 0, -400.0 * 420});
  // The canopy is 10 x 7.5 less four corners of 2 x 1.75 / 2.
  near(7, {0, 0, -640.0 * (420 + 75 - 7)});
  // Facades of 19 m without their wall in the middle: 14 - 4 and 30 - 6 wide.
  near(5, {(800.0 + 400) * 10 * 19, 0, 0});
  near(6, {0, (800.0 + 400) * 24 * 19, 0});
  near(8, {});
  // Odd floors: one of 30 x 21 and three of 30 x 14; even ones: one and two.
  near(13, {0, 0, -3000.0 * (630 + 3 * 420 - 4 * (5 + 3))});
  near(14, {0, 0, -3000.0 * (630 + 2 * 420 - 3 * (5 + 3))});
  near(15, {0, 0, -7500.0 * (630 - (5 + 3))});
  near(16, {-(800.0 + 400) * 10 * 19, 0, 0});
  near(17, {0, -(800.0 + 400) * 24 * 19, 0});
  // 0.5 m above the ground at (0, 3.5).
  near(18, {50000, 0, 0});
  EXPECT_TRUE(Testing::IsNear(totals.byCase.at(18).moment, {0, 25000, -175000}, 0.01));
}

TEST(SixStorey, HasCombinationsOfWhatItAnalyses) {
  auto const model = Building();
  auto const count = [&](int n) {
    return model.CombinationCase(n).Description().NumPermutation(model);
  };
  EXPECT_EQ(count(1), 1);
  EXPECT_EQ(count(2), 2);
  EXPECT_EQ(count(3), 4);
  EXPECT_EQ(count(4), 7);
  auto const wind = model.CombinationCase(2).Description();
  wind.NumPermutation(model);
  EXPECT_EQ(wind.CaseFactor(2, {CaseOp::Analysis, 6}), 1.5);
  EXPECT_EQ(wind.CaseFactor(2, {CaseOp::Analysis, 5}), 0);
  EXPECT_EQ(wind.CaseFactor(2, {CaseOp::Analysis, 3}), 1.05);
}

TEST(SixStorey, HoldsEachFloorInItsShape) {
  auto const model = Building();
  ASSERT_EQ(model.HighestRigid(), 8);
  for (int i = 1; i <= 8; ++i) {
    auto const& rigid = model.Rigid(i);
    double const level = model.Storey(i).Elevation();
    int nodes = 0;
    for (auto const& [n, node] : model.Node()) nodes += node.Position().z == level ? 1 : 0;
    EXPECT_EQ(model.NodeCoor(rigid.PrimaryNode()).z, level);
    EXPECT_EQ(Util::NumItem(rigid.ConstrainedNodes(), model), nodes - 1) << i;
    EXPECT_TRUE(model.RigidIsActive(rigid, 1));
  }
}

TEST(SixStorey, StandsInStages) {
  auto const model = Building();
  int active = 0;
  for (auto const& [n, element] : model.Elem())
    active += model.ElemIsActive(static_cast<int>(n), 1);
  EXPECT_EQ(active, 1132 + 195);  // the basement and the raft
  for (auto const& [n, element] : model.Elem())
    ASSERT_TRUE(model.ElemIsActive(static_cast<int>(n), 2));
  int const wall = [&] {  // a node of the south basement wall above its base
    for (auto const& [n, node] : model.Node())
      if (node.Position().y == 0 && node.Position().z == -3) return static_cast<int>(n);
    return 0;
  }();
  EXPECT_FALSE(model.NodeTotalRestraint(wall, 1).Y());
  EXPECT_TRUE(model.NodeTotalRestraint(wall, 2).Y());
}

TEST(SixStorey, HasTheSpectrumOfTheCode) {
  auto const model = Building();
  auto const& points = model.ResSpectrum(1).Points();
  // EN 1998-1, 3.2.2.2: a_g S 2.5 = 0.25 x 9.80665 x 1.2 x 2.5 on the plateau; 0.5 / T of it up to
  // 2 s, then 0.5 x 2 / T^2.
  double const plateau = 7.3549875;
  EXPECT_NEAR(points[0].y, plateau / 2.5, 1e-6);
  EXPECT_NEAR(points[1].y, plateau, 1e-6);
  EXPECT_NEAR(points[4].y, plateau * 0.5, 1e-6);
  EXPECT_EQ(points[4].x, 1);
  EXPECT_NEAR(points.back().y, plateau * 0.5 * 2 / 16, 1e-6);
  EXPECT_EQ(points.back().x, 4);
}

TEST(SixStorey, HasATaskForEachOfItsAnalyses) {
  auto const model = Building();
  EXPECT_TRUE(model.AnalysisTask(1).IsStatic());
  EXPECT_EQ(model.AnalysisTask(1).Cases().size(), 16u);
  EXPECT_TRUE(model.AnalysisTask(2).IsEigenDynamic());
  EXPECT_TRUE(model.AnalysisTask(3).IsResponseSpectrum());
  EXPECT_TRUE(model.AnalysisTask(4).IsPDelta());
  for (auto const& [ref, record] : model.AnalysisCase())
    EXPECT_TRUE(model.AnalysisTask(record.Task()).Cases().contains(ref.Case()));
  EXPECT_EQ(model.AnalysisCaseStage(1), 2);
}

}  // namespace
}  // namespace Tarvex::SixStoreyTest
