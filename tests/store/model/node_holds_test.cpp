// What a node record knows of all that holds it, against the query of the model, which walks all
// restraints.
#include "store/model/node_holds.h"

#include <gtest/gtest.h>

#include "store/model/undo_step.h"
#include "store/model/zel_data.h"
#include "store/record/ent_list.h"
#include "store/record/node.h"
#include "store/record/restraints.h"
#include "store/record/stages.h"
#include "tests/support/builders.h"
#include "tests/support/random_model.h"

namespace Tarvex::NodeHoldsTest {
namespace {

using Data::CEntList;
using Data::CGenRest;
using Testing::ForEachRandomModel;
using Testing::Random;

constexpr Vbool6 kX(true, false, false, false, false, false);
constexpr Vbool6 kZ(false, false, true, false, false, false);

CGenRest Rest(wchar_t const* nodes, Vbool6 held, wchar_t const* stages = L"all") {
  return {L"", CEntList(SelNode, CString(nodes)), held, CEntList(SelNone, CString(stages))};
}

Vbool6 Held(CZelData const& model, int node, int stage = 0) {
  return model.Node(node).TotalNodalRestraint(stage);
}

TEST(TotalNodalRestraint, OfARecordInNoModelIsItsOwn) {
  EXPECT_EQ(Data::CNode({}, 0, kX).TotalNodalRestraint(0), kX);
}

TEST(TotalNodalRestraint, FollowsRestraintsThatComeChangeAndGo) {
  CZelData model;
  Testing::Grid(model, 1, 1);
  model.SetNodeRestraint(1, kX);
  EXPECT_EQ(Held(model, 1), kX);
  model.SetGenRest(1, Rest(L"1 2", kZ));
  EXPECT_EQ(Held(model, 1), kX | kZ);
  EXPECT_EQ(Held(model, 2), kZ);
  EXPECT_TRUE(Held(model, 3).IsNone());
  model.SetGenRest(1, Rest(L"3", kZ));
  EXPECT_EQ(Held(model, 1), kX);
  EXPECT_EQ(Held(model, 3), kZ);
  model.DeleteGenRest(1, 1);
  EXPECT_TRUE(Held(model, 3).IsNone());
}

TEST(TotalNodalRestraint, TakesTheRestraintsThatActInTheStage) {
  CZelData model;
  Testing::Grid(model, 1, 1);
  for (int const n : {1, 4}) model.SetAnalStage(n, Data::CAnalStage());
  model.SetGenRest(1, Rest(L"1", kX, L"2 4"));
  model.SetGenRest(2, Rest(L"1", kZ));
  EXPECT_EQ(Held(model, 1, 0), kZ);
  EXPECT_EQ(Held(model, 1, 1), kZ);
  EXPECT_EQ(Held(model, 1, 4), kX | kZ);
}

TEST(TotalNodalRestraint, FollowsNodesAndListsThatTheTextReads) {
  CZelData model;
  Testing::Grid(model, 1, 1);
  model.SetList(3, CEntList(SelNode, L"2"));
  model.SetGenRest(1, Rest(L"#3 10 to 20", kZ));
  EXPECT_TRUE(Held(model, 1).IsNone());
  EXPECT_EQ(Held(model, 2), kZ);
  model.SetList(3, CEntList(SelNode, L"1"));
  EXPECT_EQ(Held(model, 1), kZ);
  EXPECT_TRUE(Held(model, 2).IsNone());
  model.CreateNode(12, {}, 0, Vbool6());
  EXPECT_EQ(Held(model, 12), kZ);
  model.SetNode(12, model.Node(2));  // what holds a node does not go with its record
  EXPECT_EQ(Held(model, 12), kZ);
  model.SetNode(5, model.Node(12));
  EXPECT_TRUE(Held(model, 5).IsNone());
  EXPECT_TRUE(model.Node(5) == model.Node(12));
}

TEST(TotalNodalRestraint, FollowsTheKindOfStructure) {
  CZelData model;
  Testing::Grid(model, 1, 1);
  auto spec = model.Spec();
  spec.SetStructType(StrType::GridXY);
  model.SetSpec(spec);
  EXPECT_EQ(Held(model, 1), model.GlobalRestraint());
  model.CreateNode(9, {}, 0, kZ);
  EXPECT_EQ(Held(model, 9), kZ | model.GlobalRestraint());
  spec.SetStructType(StrType::Space);
  model.SetSpec(spec);
  EXPECT_TRUE(Held(model, 1).IsNone());
  EXPECT_EQ(Held(model, 9), kZ);
}

TEST(TotalNodalRestraint, FollowsUndoAndIsEachModelsOwn) {
  CZelData model;
  Testing::Grid(model, 1, 1);
  {
    CUndoStep step(model, false);
    model.SetGenRest(1, Rest(L"1", kZ));
    EXPECT_EQ(Held(model, 1), kZ);
    step.Accept();
  }
  auto const snapshot = model.Snapshot();
  CZelData copy(model);
  model.Undo();
  EXPECT_TRUE(Held(model, 1).IsNone());
  EXPECT_EQ(Held(*snapshot, 1), kZ);
  copy.SetGenRest(1, Rest(L"2", kX));
  EXPECT_EQ(Held(copy, 2), kX);
  EXPECT_TRUE(Held(copy, 1).IsNone());
  EXPECT_EQ(Held(*snapshot, 1), kZ);
  model.Redo();
  EXPECT_EQ(Held(model, 1), kZ);
}

TEST(TotalNodalRestraint, MayLagInAHoldUntilItIsAskedToRebuild) {
  CZelData model;
  Testing::Grid(model, 1, 1);
  model.rebuildHold = true;
  model.SetGenRest(1, Rest(L"1", kZ));
  EXPECT_TRUE(Held(model, 1).IsNone());
  model.FlagRebuild();
  EXPECT_EQ(Held(model, 1), kZ);
  model.SetGenRest(1, Rest(L"2", kZ));
  model.rebuildHold = false;
  EXPECT_EQ(Held(model, 2), kZ);
}

TEST(TotalNodalRestraintProperty, IsThatOfTheQueryThroughChanges) {
  ForEachRandomModel(25, [](CZelData& model, Random& random) {
    for (int change = 0; change < 12; ++change) {
      int const at = random.Int(1, model.HighestGenRest() + 1);
      auto const* nodes = random.Of<wchar_t const*>({L"1 to 9", L"all", L"X3", L"2 5 77", L"G1"});
      auto const* stages = random.Of<wchar_t const*>({L"all", L"1 3", L"2 to 4", L""});
      switch (random.Int(0, 4)) {
        case 0:
          model.SetGenRest(at, Rest(nodes, random.Flags(), stages));
          break;
        case 1:
          model.DeleteGenRest(at, 1);
          break;
        case 2:
          model.CreateNode(random.Int(1, 60), {random.Real(-5, 5), 0, 0}, 0, random.Flags());
          break;
        case 3:
          model.BlankNode(random.Int(1, 60), 1);
          break;
        default:
          model.SetAnalStage(random.Int(1, 5), Data::CAnalStage());
      }
      for (auto const& [n, node] : model.Node())
        for (int stage = 0; stage <= model.HighestAnalStage(); ++stage)
          ASSERT_EQ(node.TotalNodalRestraint(stage),
                    model.NodeTotalRestraint(static_cast<int>(n), stage));
    }
  });
}

}  // namespace
}  // namespace Tarvex::NodeHoldsTest
