// What holds behind any orientation tool on any model.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <string>

#include "tarvex/orientation.h"
#include "tests/frame/orientation_support.h"

namespace Tarvex::OrientationPropertyTest {
namespace {

using Testing::AnySelection;
using Testing::IsNear;
using Testing::Random;
using Testing::Ring;

constexpr int kModels = 40;
constexpr int kUserAxis = 1000;  // the first one of a model, whatever its number

/// One use of a tool on a selection.
struct Use {
  std::string name;
  std::function<bool(CZelData&, Util::CSet const&)> run;
};

template <class Tool>
Use UseOf(std::string const& name, int axis) {
  return {name + " with axis " + std::to_string(axis), [=](CZelData& model, Util::CSet const& set) {
            Tool tool(model);
            tool.SetSet(set);
            tool.SetAxis(axis == kUserAxis ? Testing::FirstAxis(model) : axis);
            return tool.Do();
          }};
}

Use AgreeWithin(double angle) {
  return {"agreement within " + std::to_string(angle), [=](CZelData& model, Util::CSet const& set) {
            CFlipElem2D tool(model);
            tool.SetSet(set);
            tool.SetFacetAngle(angle);
            return tool.Do();
          }};
}

Use OnEach(std::string const& name, std::function<bool(CZelData&, int)> const& verb) {
  return {name, [=](CZelData& model, Util::CSet const& set) {
            bool any = false;
            for (int const n : set)
              if (verb(model, n)) any = true;
            return any;
          }};
}

std::vector<Use> AllUses() {
  std::vector<Use> uses;
  for (int const axis : {0, kUserAxis}) {
    uses.push_back(UseOf<CAlignElem1D>("1D alignment", axis));
    uses.push_back(UseOf<CAlignElem2DEdges>("edge alignment", axis));
    uses.push_back(UseOf<CAlignElem2DZ>("normal alignment", axis));
  }
  uses.push_back(UseOf<CAlignElem2DEdges>("edge alignment", -1));
  for (double const angle : {15.0, 90.0}) uses.push_back(AgreeWithin(angle));
  uses.push_back(OnEach("flip", [](CZelData& model, int n) {
    return FlipEntity(model, {SelElement, n});
  }));
  for (int const steps : {1, 2, 7})
    uses.push_back(OnEach("spin by " + std::to_string(steps),
                          [=](CZelData& model, int n) { return SpinElement(model, n, steps); }));
  return uses;
}

/// Calls check(use, before, after, selection) for every use on random models, of which some nodes
/// are missing.
template <class Check>
void ForEachUse(Check&& check) {
  Testing::ForEachRandomModel(kModels, [&](CZelData before, Random& random) {
    Testing::LoseNodes(before, random);
    auto const selection = AnySelection(before, random);
    for (auto const& use : AllUses()) {
      SCOPED_TRACE(use.name);
      CZelData after(before);
      use.run(after, selection);
      check(use, before, after, selection);
      if (::testing::Test::HasFailure()) return;
    }
  });
}

std::vector<int> Sorted(std::vector<int> numbers) {
  std::sort(numbers.begin(), numbers.end());
  return numbers;
}

/// Area of the polygon of an entity's corners. Corners of missing nodes are left out.
double AreaOf(CZelData const& model, int n) {
  auto ring = Ring(model, n);
  if (model.ElemExist(n) && ring.size() > 4) ring.resize(ring.size() / 2);
  std::erase_if(ring, [&](int node) { return !model.NodeExist(node); });
  Vec3<double> sum;
  for (std::size_t i = 0; i < ring.size(); ++i)
    sum += Cross(model.NodeCoor(ring[i]), model.NodeCoor(ring[(i + 1) % ring.size()]));
  return Length(sum) / 2;
}

TEST(OrientationProperty, ChangesRecordsOfTheSelectionOnlyAndOfThemWhatHasAnOrder) {
  int changes = 0;
  ForEachUse([&](Use const&, CZelData const& before, CZelData const& after, Util::CSet const& set) {
    for (auto const& line : Testing::Differences(after, before)) {
      auto const blank = line.find(' ');
      auto const colon = line.find(':');
      ASSERT_NE(colon, std::string::npos) << line;
      auto const table = line.substr(0, blank);
      EXPECT_TRUE(table == "Elem" || table == "LoadPanel") << line;
      EXPECT_TRUE(set.IsItemIncluded(std::stoi(line.substr(blank)))) << line;
      for (auto const* field : {"topology", "offset", "connect", "longPosition"})
        if (auto const at = line.find(field); at != std::string::npos) ++changes;
      auto rest = line.substr(colon + 1);
      for (std::string const field : {" topology", " offset", " connect", " longPosition", ","})
        while (rest.find(field) != std::string::npos) rest.erase(rest.find(field), field.size());
      EXPECT_EQ(rest, "") << line;
    }
  });
  EXPECT_GT(changes, 5000);
}

TEST(OrientationProperty, KeepsTheNodesOfEveryEntitySoThatNoReferenceIsNew) {
  ForEachUse([](Use const&, CZelData const& before, CZelData const& after, Util::CSet const&) {
    ASSERT_EQ(after.HighestElem(), before.HighestElem());
    for (int n = 1; n <= before.HighestElem(); ++n) {
      ASSERT_EQ(after.ElemExist(n), before.ElemExist(n));
      ASSERT_EQ(after.LoadPanelExist(n), before.LoadPanelExist(n));
      if (before.VariantElementExist(n)) {
        ASSERT_EQ(Sorted(Ring(after, n)), Sorted(Ring(before, n)));
      }
    }
  });
}

TEST(OrientationProperty, LeavesTheNodeTableAloneAndItsAttachmentsTrue) {
  ForEachUse([](Use const&, CZelData const& before, CZelData const& after, Util::CSet const&) {
    for (auto const& [number, node] : before.Node()) {
      int const n = static_cast<int>(number);
      ASSERT_TRUE(after.Node(n) == node);
      boost::container::flat_set<int> users;
      for (int e = 1; e <= after.HighestElem(); ++e) {
        if (!after.VariantElementExist(e)) continue;
        auto const ring = Ring(after, e);
        if (std::count(ring.begin(), ring.end(), n) != 0) users.insert(e);
      }
      ASSERT_EQ(after.Node(n).AttachedEnt(SelElement), users);
    }
  });
}

TEST(OrientationProperty, KeepsAreaLengthAndCentre) {
  ForEachUse([](Use const&, CZelData const& before, CZelData const& after, Util::CSet const&) {
    for (int n = 1; n <= before.HighestElem(); ++n) {
      SEntRef const ref(SelElement, n);
      ASSERT_TRUE(IsNear(after.EntCentre(ref), before.EntCentre(ref)));
      ASSERT_EQ(after.ElemLen(n, EntAt::Nodes), before.ElemLen(n, EntAt::Nodes));
      if (before.EntIs2D(ref)) {
        ASSERT_NEAR(AreaOf(after, n), AreaOf(before, n), 1e-9);
      }
    }
  });
}

TEST(OrientationProperty, GivesTheSameFromTheSameState) {
  ForEachUse(
      [](Use const& use, CZelData const& before, CZelData const& after, Util::CSet const& set) {
        CZelData again(before);
        use.run(again, set);
        ASSERT_TRUE(Testing::IsUnchanged(again, after));
      });
}

TEST(OrientationProperty, LeavesNoRebuildHold) {
  ForEachUse([](Use const&, CZelData const&, CZelData const& after, Util::CSet const&) {
    ASSERT_FALSE(after.rebuildHold);
    ASSERT_EQ(after.rebuildHoldDepth, 0);
  });
}

TEST(OrientationProperty, SaysOfAnAlignmentThatItChangedSomething) {
  ForEachUse(
      [](Use const& use, CZelData const& before, CZelData const& after, Util::CSet const& set) {
        if (use.name.find("alignment") == std::string::npos) return;
        CZelData again(before);
        ASSERT_EQ(use.run(again, set), !(after == before));
      });
}

// A second run. Where it may change more: the edges of quadratic elements, and the own x axis (see
// the tests of CAlignElem2DEdges); plates without a normal of their own under an axis that points
// down (see those of CAlignElem2DZ), or across it to within the rounding of a normal; what the
// tests of CFlipElem2D say of the agreement of normals.

/// Expects that a second run of a tool with an axis changes nothing and says so, when its set is
/// what `takes` lets through.
template <class Tool>
void ExpectRestAfterOneRun(int axis, std::function<bool(CZelData const&, int)> const& takes) {
  auto const use = UseOf<Tool>("alignment", axis);
  int turned = 0;
  Testing::ForEachRandomModel(kModels, [&](CZelData model, Random& random) {
    Testing::LoseNodes(model, random);
    Util::CSet set(SelElement);
    for (int const n : AnySelection(model, random))
      if (takes(model, n)) set.AddTo(n);
    if (use.run(model, set)) ++turned;
    CZelData const once(model);
    ASSERT_FALSE(use.run(model, set));
    ASSERT_TRUE(Testing::IsUnchanged(model, once));
  });
  EXPECT_GT(turned, kModels / 2);
}

TEST(OrientationProperty, A1DAlignmentComesToRestInOneRun) {
  for (int const axis : {0, kUserAxis})
    ExpectRestAfterOneRun<CAlignElem1D>(axis, [](CZelData const&, int) { return true; });
}

TEST(OrientationProperty, AnEdgeAlignmentOfLinearPlatesAndPanelsComesToRestInOneRun) {
  auto const isLinear = [](CZelData const& model, int n) {
    return model.LoadPanelExist(n) || (model.ElemExist(n) && model.Elem(n).NumTopo() < 5);
  };
  for (int const axis : {0, kUserAxis}) ExpectRestAfterOneRun<CAlignElem2DEdges>(axis, isLinear);
}

TEST(OrientationProperty, ANormalAlignmentComesToRestInOneRunWhereNormalsAreClearlyOnOneSide) {
  for (int const axis : {0, kUserAxis}) {
    auto const isClear = [=](CZelData const& model, int n) {
      auto const up = model.Axis(axis == 0 ? 0 : Testing::FirstAxis(model)).ZAxis();
      return std::abs(Dot(model.Normal(n), up)) > 1e-9;
    };
    ExpectRestAfterOneRun<CAlignElem2DZ>(axis, isClear);
  }
}

// Where things are.

TEST(OrientationProperty, LeavesTheEndsOfOffsetLinesWhereTheyAre) {
  int seen = 0;
  Testing::ForEachRandomModel(kModels, [&](CZelData before, Random& random) {
    // Local axes that an angle or a node gives do not turn about themselves: not looked at here.
    for (int n = 1; n <= before.HighestElem(); ++n) {
      if (!before.ElemExist(n)) continue;
      before.SetElemBeta(n, 0);
      before.SetElemOrientNode(n, 0);
    }
    auto after = before;
    UseOf<CAlignElem1D>("alignment", kUserAxis).run(after, AnySelection(before, random));
    for (int n = 1; n <= before.HighestElem(); ++n) {
      if (!before.EntIs1D({SelElement, n}) || Ring(after, n) == Ring(before, n)) continue;
      ++seen;
      ASSERT_TRUE(IsNear(after.Coor(n, 0), before.Coor(n, 1)));
      ASSERT_TRUE(IsNear(after.Coor(n, 1), before.Coor(n, 0)));
    }
  });
  EXPECT_GT(seen, 50);
}

TEST(OrientationProperty, LeavesTheCornersOfOffsetPlatesWhereTheyAreWhenTheirNormalsAreTurned) {
  int seen = 0;
  Testing::ForEachRandomModel(kModels, [&](CZelData const& before, Random& random) {
    auto after = before;
    UseOf<CAlignElem2DZ>("alignment", kUserAxis).run(after, AnySelection(before, random));
    for (int n = 1; n <= before.HighestElem(); ++n) {
      if (!before.EntIs2D({SelElement, n}) || Ring(after, n) == Ring(before, n)) continue;
      ++seen;
      auto const ring = Ring(before, n);
      auto const turned = Ring(after, n);
      for (std::size_t i = 0; i < ring.size(); ++i) {
        auto const at = std::find(turned.begin(), turned.end(), ring[i]) - turned.begin();
        ASSERT_TRUE(
            IsNear(after.Coor(n, static_cast<int>(at)), before.Coor(n, static_cast<int>(i))));
      }
    }
  });
  EXPECT_GT(seen, 200);
}

}  // namespace
}  // namespace Tarvex::OrientationPropertyTest
