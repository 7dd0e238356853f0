// What holds behind any conversion and refinement on any model.
#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "store/calc/load_totals.h"
#include "store/model/undo_step.h"
#include "store/text/cstring.h"
#include "tarvex/data_mgr.h"
#include "tarvex/refinement.h"
#include "tests/members/random_plate.h"

namespace Tarvex::ConversionPropertyTest {
namespace {

using namespace Testing;

constexpr int kModels = 60;

struct Use {
  std::string name;
  std::function<void(CZelData&, Util::CSet const&)> run;
};

void RefineAtSome(CZelData& model, Util::CSet const& set) {
  std::map<int, std::vector<int>> pieces;
  for (int const n : set)
    if (model.ElemExist(n) && n % 3 == 0 && model.NodeExist(model.Elem(n).Topo(0)))
      ZelUtil::RefineMeshAtNode(model, model.Elem(n).Topo(0), 0.2, 1e-4, pieces, CString(L""));
}

template <class Tool>
Use UseOf(std::string const& name) {
  return {name, [](CZelData& model, Util::CSet const& set) { Convert<Tool>(model, set); }};
}

std::vector<Use> AllUses() {
  return {UseOf<CMod2DToLinear>("linear"),
          UseOf<CMod2DToQuadratic>("quadratic"),
          UseOf<CMod2DToTriangle>("triangle"),
          UseOf<CWarpElem2D>("warped"),
          {"refined", &RefineAtSome}};
}

/// Some numbers up to a little above the highest.
Util::CSet AnyElements(CZelData const& model, Random& random) {
  Util::CSet set(SelElement);
  int const share = random.Of<int>({20, 60, 100});
  for (int n = 1; n <= model.HighestElem() + 3; ++n)
    if (random.Percent(share)) set.AddTo(n);
  return set;
}

/// Calls check(use, before, after, set) for every use on random models.
template <class Check>
void ForEachUse(Check&& check) {
  ForEachRandomModel(kModels, [&](CZelData const& before, Random& random) {
    auto const set = AnyElements(before, random);
    for (auto const& use : AllUses()) {
      SCOPED_TRACE(use.name);
      CZelData after(before);
      use.run(after, set);
      check(use, before, after, set);
      if (::testing::Test::HasFailure()) return;
    }
  });
}

TEST(ConversionProperty, ChangesSomethingWithEachUse) {
  std::map<std::string, int> changed;
  ForEachUse([&](Use const& use, CZelData const& before, CZelData const& after, Util::CSet const&) {
    if (!(after == before)) ++changed[use.name];
  });
  for (auto const& use : AllUses()) EXPECT_GT(changed[use.name], kModels / 6) << use.name;
}

TEST(ConversionProperty, LeavesNoTopologyWithoutItsNodesAndTrueAttachments) {
  ForEachUse([](Use const&, CZelData const&, CZelData const& after, Util::CSet const&) {
    ASSERT_TRUE(NoDanglingReference(after));
    ASSERT_TRUE(AttachmentsFollowTopology(after));
  });
}

TEST(ConversionProperty, IsUndoneToTheBit) {
  ForEachUse([](Use const& use, CZelData const& before, CZelData const&, Util::CSet const& set) {
    CZelData model(before);
    {
      CUndoStep const step(model, false);
      use.run(model, set);
    }
    ASSERT_TRUE(IsUnchanged(model, before));
  });
}

TEST(ConversionProperty, GivesTheSameFromTheSameState) {
  ForEachUse(
      [](Use const& use, CZelData const& before, CZelData const& after, Util::CSet const& set) {
        CZelData again(before);
        use.run(again, set);
        ASSERT_TRUE(IsUnchanged(again, after));
      });
}

TEST(ConversionProperty, LeavesElementsThatAreNotInTheSet) {
  ForEachUse(
      [](Use const& use, CZelData const& before, CZelData const& after, Util::CSet const& set) {
        if (use.name == "quadratic") return;  // merged nodes change neighbours
        for (auto const& [number, element] : before.Elem()) {
          int const n = static_cast<int>(number);
          if (use.name != "refined" && set.IsItemIncluded(n)) continue;
          ASSERT_TRUE(after.ElemExist(n)) << n;
          ASSERT_TRUE(after.Elem(n) == element) << n;
        }
      });
}

TEST(ConversionProperty, QuadraticThenLinearRestoresTheModel) {
  int restored = 0;
  ForEachRandomModel(kModels, [&](CZelData before, Random& random) {
    // What holds nodes by lists of words, "all" among them, would hold the new ones.
    before.DeleteRigid(0, 1);
    before.DeleteTiedInterface(0, 1);
    before.DeleteRaftInteraction(0, 1);
    before.DeletePileInteraction(0, 1);
    before.BlankAssembly(1, before.HighestAssembly());
    Util::CSet linear(SelElement);
    for (int const n : AnyElements(before, random))
      if (before.ElemExist(n) && (before.Elem(n).Type() == ElementType::Quad4 ||
                                  before.Elem(n).Type() == ElementType::Tri3))
        linear.AddTo(n);
    CZelData model(before);
    Convert<CMod2DToQuadratic>(model, linear);
    bool folded = false;
    for (int const n : linear)
      for (int place = CornersOf(model, n); place < model.Elem(n).NumTopo(); ++place)
        folded = folded || model.Elem(n).Topo(place) <= before.HighestNode();
    if (folded) return;  // a node stood in the middle of a side
    if (!linear.IsEmpty()) ++restored;
    Convert<CMod2DToLinear>(model, linear);
    ASSERT_TRUE(IsUnchanged(model, before));
  });
  EXPECT_GT(restored, kModels / 4);
}

// Areas and volumes.

TEST(ConversionProperty, KeepsTheAreaOfEachElementWhenItBecomesQuadraticOrLinear) {
  ForEachRandomModel(kModels, [](CZelData const&, Random& random) {
    auto const before = RandomPlate(random);
    CZelData model(before);
    for (bool const back : {false, true}) {
      if (back)
        Convert<CMod2DToLinear>(model, AllElements(model));
      else
        Convert<CMod2DToQuadratic>(model, AllElements(model));
      for (int const n : ElementNumbers(before)) {
        double const area = SizeOf(before, n);
        ASSERT_EQ(model.Elem(n).NumTopo(), before.Elem(n).NumTopo() * (back ? 1 : 2));
        ASSERT_NEAR(SizeOf(model, n), area, 1e-12 * area);
      }
    }
  });
}

TEST(ConversionProperty, KeepsTheAreaThroughTrianglesOfBothOrders) {
  ForEachRandomModel(kModels, [](CZelData const&, Random& random) {
    auto model = RandomPlate(random);
    if (random.Percent(50)) Convert<CMod2DToQuadratic>(model, AllElements(model));
    double const area = TotalSize(model, 2);
    Convert<CMod2DToTriangle>(model, AllElements(model));
    for (int const n : ElementNumbers(model)) {
      ASSERT_EQ(CornersOf(model, n), 3);
      ASSERT_GT(SizeOf(model, n), 0);
    }
    ASSERT_NEAR(TotalSize(model, 2), area, 1e-12 * area);
  });
}

TEST(ConversionProperty, KeepsTheAreaOfEachPlateThatIsRefined) {
  int refined = 0;
  ForEachRandomModel(kModels, [&](CZelData const&, Random& random) {
    auto model = RandomPlate(random);
    if (random.Percent(50)) Convert<CMod2DToQuadratic>(model, AllElements(model));
    std::map<int, std::vector<int>> pieces;
    int const node = random.Int(1, model.HighestNode());
    ZelUtil::RefineMeshAtNode(model, node, random.Real(0, 0.3), 1e-6, pieces, CString(L""));
    for (auto const& [n, made] : pieces) {
      ++refined;
      double sum = 0;
      for (int const piece : made) sum += SizeOf(model, piece);
      ASSERT_NEAR(sum, SizeOf(model, n), 1e-12 * sum);
    }
    // Neighbours share the nodes of their sides: no two stand in one place.
    for (int const a : NodeNumbers(model))
      for (int const b : NodeNumbers(model))
        ASSERT_TRUE(a >= b || Length(model.NodeCoor(a) - model.NodeCoor(b)) > 1e-3)
            << a << " " << b;
  });
  EXPECT_GT(refined, kModels);
}

/// A brick with plane faces: a frustum, moved, sheared and turned.
int RandomBrick(CZelData& model, Random& random) {
  Vec3<double> const e[]{{random.Real(1, 2), random.Real(-0.3, 0.3), random.Real(-0.3, 0.3)},
                         {random.Real(-0.3, 0.3), random.Real(1, 2), random.Real(-0.3, 0.3)},
                         {random.Real(-0.3, 0.3), random.Real(-0.3, 0.3), random.Real(1, 2)}};
  Vec3<double> const origin{random.Real(-9, 9), random.Real(-9, 9), random.Real(-9, 9)};
  double const top = random.Real(0.6, 1.4);
  Points points;
  for (int level = 0; level < 2; ++level)
    for (auto const& p : Points{{-1, -1, 0}, {1, -1, 0}, {1, 1, 0}, {-1, 1, 0}}) {
      double const scale = level == 0 ? 1 : top;
      points.push_back(origin + e[0] * (p.x * scale) + e[1] * (p.y * scale) + e[2] * level);
    }
  return ElementAt(model, ElementType::Brick8, points);
}

TEST(ConversionProperty, KeepsTheVolumeOfEachBrickThatIsRefined) {
  ForEachRandomModel(kModels, [](CZelData const&, Random& random) {
    CZelData model;
    int const n = RandomBrick(model, random);
    std::map<int, std::vector<int>> pieces;
    int const node = model.Elem(n).Topo(random.Int(0, 7));
    ASSERT_TRUE(
        ZelUtil::RefineMeshAtNode(model, node, random.Real(0, 0.2), 1e-6, pieces, CString(L"")));
    double sum = 0;
    for (int const piece : pieces.at(n)) sum += SizeOf(model, piece);
    ASSERT_EQ(pieces.at(n).size(), 4u);
    ASSERT_NEAR(sum, SizeOf(model, n), 1e-12 * sum);
  });
}

// Loads.

/// Totals by case are those of another model but for 1e-9 of the loads that they are made of.
void ExpectSameTotals(CZelData const& expected, CZelData const& model, int& cases) {
  // Each load as a case of its own, so that loads against each other leave a measure.
  CZelData single(expected);
  std::map<int, int> caseOf;
  int next = 0;
  auto const setApart = [&](auto load) {
    caseOf[++next] = load.LoadCase();
    load.SetLoadCase(next);
    return load;
  };
  for (int n = 1; n <= single.HighestFaceLoad(); ++n)
    single.SetFaceLoad(n, setApart(single.FaceLoad(n)));
  for (int n = 1; n <= single.HighestEdgeLoad(); ++n)
    single.SetEdgeLoad(n, setApart(single.EdgeLoad(n)));
  std::map<int, std::pair<double, double>> sizes;
  for (auto const& [number, total] : SumLoads(single).byCase) {
    sizes[caseOf.at(number)].first += Length(total.force);
    sizes[caseOf.at(number)].second += Length(total.moment);
  }
  auto const before = SumLoads(expected);
  auto const after = SumLoads(model);
  ASSERT_TRUE(before.uncounted.empty());
  ASSERT_TRUE(after.uncounted.empty());
  ASSERT_EQ(after.byCase.size(), before.byCase.size());
  for (auto const& [number, total] : before.byCase) {
    ++cases;
    auto const [force, moment] = sizes.at(number);
    ASSERT_TRUE(IsNear(after.byCase.at(number).force, total.force, 1e-9 * force));
    ASSERT_TRUE(IsNear(after.byCase.at(number).moment, total.moment, 1e-9 * moment));
  }
}

TEST(ConversionProperty, KeepsForceAndMomentOfLoadsThroughTriangles) {
  int cases = 0;
  ForEachRandomModel(kModels, [&](CZelData const&, Random& random) {
    auto model = RandomPlate(random);
    if (random.Percent(50)) Convert<CMod2DToQuadratic>(model, AllElements(model));
    AddPlateLoads(model, random);
    CZelData const before(model);
    Convert<CMod2DToTriangle>(model, AllElements(model));
    ExpectSameTotals(before, model, cases);
  });
  EXPECT_GT(cases, kModels);
}

TEST(ConversionProperty, KeepsForceAndMomentOfLoadsThroughTrianglesAndRefinementAgainAndAgain) {
  int cases = 0;
  ForEachRandomModel(kModels, [&](CZelData const&, Random& random) {
    auto model = RandomPlate(random);
    AddPlateLoads(model, random);
    CZelData const before(model);
    if (random.Percent(50)) Convert<CMod2DToTriangle>(model, AllElements(model));
    for (int i = 0; i < 3; ++i) {
      std::map<int, std::vector<int>> pieces;
      int const node = random.Int(1, before.HighestNode());
      ZelUtil::RefineMeshAtNode(model, node, random.Real(0, 0.3), 1e-6, pieces, CString(L""));
      CDataMgr const manager(model);
      ASSERT_TRUE(manager.Map2DLoading(pieces));
      manager.ReplaceElemRef(pieces, true);
      for (auto const& [n, made] : pieces) model.BlankElem(n, 1);
    }
    ExpectSameTotals(before, model, cases);
  });
  EXPECT_GT(cases, kModels);
}

TEST(ConversionProperty, KeepsPointLoadsThatStandNextToTheCuts) {
  // Within 2 mm of the diagonal, of which 1 mm is the tolerance of the search for a piece.
  int cases = 0;
  ForEachRandomModel(kModels, [&](CZelData const&, Random& random) {
    auto model = RandomPlate(random);
    for (int const n : ElementNumbers(model)) {
      if (CornersOf(model, n) == 3) continue;
      Data::CFaceLoad load;
      load.SetType(Data::CFaceLoad::Load2D::Point);
      load.SetLoadCase(random.Int(1, 3));
      load.SetValue(0, random.Real(1, 5));
      double const r = random.Real(-0.9, 0.9);
      load.SetPosition({r, (random.Percent(50) ? r : -r) + random.Real(-0.004, 0.004)});
      load.SetLoadedEntities(Data::CEntList(SelElement, std::vector<int>{n}));
      model.SetFaceLoad(model.HighestFaceLoad() + 1, load);
    }
    CZelData const before(model);
    Convert<CMod2DToTriangle>(model, AllElements(model));
    ASSERT_EQ(model.HighestFaceLoad(), before.HighestFaceLoad());
    ExpectSameTotals(before, model, cases);
  });
  EXPECT_GT(cases, kModels / 2);
}

}  // namespace
}  // namespace Tarvex::ConversionPropertyTest
