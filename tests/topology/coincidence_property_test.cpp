// What holds behind a merge of coincident nodes on any model.
#include <gtest/gtest.h>

#include <map>

#include "store/model/undo_step.h"
#include "store/record/load_panel.h"
#include "tests/topology/coincidence_support.h"

namespace Tarvex::CoincidencePropertyTest {
namespace {

using Option = CReduceCoinc::Option;
using Testing::AllOf;
using Testing::Pairs;
using Testing::Random;

constexpr int kModels = 25;

struct Merge {
  Option option;
  double tolerance;
  Pairs pairs;
  bool did = false;

  void Run(CZelData& model) {
    auto tool = Testing::Search(model, SelNode, tolerance);
    tool.SetOption(option);
    pairs.clear();
    did = tool.Do(AllOf(model, SelNode), pairs);
  }
};

/// Calls check(before, after, merge) for merges of random models, whose cells are 1 wide.
template <class Check>
void ForEachMerge(Check&& check) {
  int merges = 0;
  Testing::ForEachRandomModel(kModels, [&](CZelData const& before, Random& random) {
    Merge merge{random.Of<Option>(
                    {Option::OptionMergeMax, Option::OptionMergeMin, Option::OptionMergeKeep}),
                random.Of<double>({0.001, 0.6, 1.2}),
                {}};
    CZelData after(before);
    merge.Run(after);
    merges += static_cast<int>(merge.pairs.size());
    check(before, after, merge);
  });
  EXPECT_GT(merges, 100);
}

/// What a node became.
int Survivor(Pairs const& pairs, int node) {
  for (auto const& [removed, kept] : pairs)
    if (removed == node) return Survivor(pairs, kept);
  return node;
}

TEST(CoincidenceProperty, TakesAwayTheRemovedNodesAndNoOther) {
  ForEachMerge([](CZelData const& before, CZelData const& after, Merge const& merge) {
    ASSERT_EQ(merge.did, !merge.pairs.empty());
    for (int const n : AllOf(before, SelNode))
      ASSERT_EQ(after.NodeExist(n), Survivor(merge.pairs, n) == n) << n;
    ASSERT_EQ(after.NumEnt(SelNode), before.NumEnt(SelNode) - static_cast<int>(merge.pairs.size()));
    for (int const n : AllOf(after, SelNode)) ASSERT_EQ(after.NodeCoor(n), before.NodeCoor(n));
  });
}

TEST(CoincidenceProperty, ElementsAndPanelsNameTheSurvivors) {
  ForEachMerge([](CZelData const& before, CZelData const& after, Merge const& merge) {
    for (int const n : AllOf(before, SelElement)) {
      bool const panel = before.LoadPanelExist(n);
      ASSERT_EQ(after.LoadPanelExist(n), panel);
      auto const nodes = panel ? before.LoadPanel(n).Topology() : before.Elem(n).Topology();
      std::vector<int> expected;
      for (int const node : nodes) expected.push_back(Survivor(merge.pairs, node));
      ASSERT_TRUE(Testing::References(after, n, expected));
      if (panel) continue;
      ASSERT_EQ(after.Elem(n).OrientationNode(),
                Survivor(merge.pairs, before.Elem(n).OrientationNode()));
    }
    ASSERT_TRUE(Testing::NoDanglingReference(after));
    ASSERT_TRUE(Testing::AttachmentsFollowTopology(after));
  });
}

TEST(CoincidenceProperty, NothingThatIsLeftIsWithinTheToleranceOfALowerSurvivorUnlessTheyAreTied) {
  // Where copies do not chain: with the least tolerance.
  ForEachMerge([](CZelData const&, CZelData const& after, Merge const& merge) {
    if (merge.tolerance > 0.01) return;
    CZelData model(after);
    auto const tool = Testing::Search(model, SelNode, merge.tolerance);
    for (int const n : AllOf(model, SelNode)) ASSERT_EQ(tool.FindCoinc(n, false), 0);
  });
}

TEST(CoincidenceProperty, GivesTheSameFromTheSameState) {
  ForEachMerge([](CZelData const& before, CZelData const& after, Merge const& merge) {
    CZelData again(before);
    Merge second{merge.option, merge.tolerance, {}};
    second.Run(again);
    ASSERT_EQ(second.pairs, merge.pairs);
    ASSERT_TRUE(Testing::IsUnchanged(again, after));
  });
}

TEST(CoincidenceProperty, AnAbandonedStepRestoresTheModel) {
  ForEachMerge([](CZelData const& before, CZelData const& after, Merge const& merge) {
    CZelData model(before);
    {
      CUndoStep const step(model, false);
      Merge second{merge.option, merge.tolerance, {}};
      second.Run(model);
      ASSERT_TRUE(Testing::IsUnchanged(model, after));
    }
    ASSERT_TRUE(Testing::IsUnchanged(model, before));
  });
}

TEST(CoincidenceProperty, LeavesNoRebuildHold) {
  ForEachMerge([](CZelData const&, CZelData const& after, Merge const&) {
    ASSERT_FALSE(after.rebuildHold);
    ASSERT_EQ(after.rebuildHoldDepth, 0);
  });
}

TEST(CoincidenceProperty, JointsTieFreeNodesAndChangeNothingButJointsAndRestraints) {
  int joints = 0;
  Testing::ForEachRandomModel(kModels, [&](CZelData const& before, Random&) {
    CZelData after(before);
    Merge join{Option::OptionJoint, 0.9, {}};
    join.Run(after);
    ASSERT_TRUE(join.pairs.empty());
    ASSERT_EQ(join.did, after.HighestJoint() > before.HighestJoint());
    for (int n = before.HighestJoint() + 1; n <= after.HighestJoint(); ++n) {
      auto const& joint = after.Joint(n);
      for (int const node : {joint.PrimaryNode(), joint.ConstrainedNode()})
        ASSERT_FALSE(before.NodeIsInConstraint(node, 0)) << node;
      ASSERT_LT(
          Length(after.NodeCoor(joint.PrimaryNode()) - after.NodeCoor(joint.ConstrainedNode())),
          0.9);
      ++joints;
    }
    for (auto const& line : Testing::Differences(after, before)) {
      bool const isJoint = line.starts_with("Joint ");
      bool const isRestraint = line.starts_with("Node ") && line.ends_with(": restraint");
      ASSERT_TRUE(isJoint || isRestraint) << line;
    }
  });
  EXPECT_GT(joints, 20);
}

TEST(CoincidenceProperty, QuestionsChangeNothingAndNameExistingItems) {
  Testing::ForEachRandomModel(kModels, [&](CZelData const& before, Random& random) {
    CZelData model(before);
    for (auto const kind : {SelNode, SelElement, SelMember}) {
      auto tool = Testing::Search(model, kind, random.Real(0.001, 1));
      for (int const n : AllOf(model, kind)) {
        for (int const other : {tool.FindCoinc(n, false), tool.FindCoinc(n, true)}) {
          ASSERT_NE(other, n);
          if (other != 0) {
            ASSERT_TRUE(model.EntExist({kind, other}));
          }
        }
        if (kind != SelNode) {
          ASSERT_NE(tool.FindCross(n), n);
        }
        if (kind == SelElement) {
          int const found = tool.FindUnconnect(n);
          ASSERT_TRUE(found == n || found == 0);
        }
      }
    }
    ASSERT_TRUE(Testing::IsUnchanged(model, before));
  });
}

}  // namespace
}  // namespace Tarvex::CoincidencePropertyTest
