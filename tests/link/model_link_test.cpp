// The model and its undo steps, as an application links them.
#include <gtest/gtest.h>

#include "store/model/get_node_at.h"
#include "store/model/undo_step.h"
#include "store/model/zel_data.h"
#include "store/text/cstring.h"
#include "tests/link/linked.h"
#include "tests/support/builders.h"

namespace Tarvex::ModelLinkTest {
namespace {

using Testing::AreLinked;
using M = CZelData;

TEST(ModelLink, IsMadeCopiedAssignedComparedAndDestroyed) {
  CZelData model;
  Testing::Grid(model, 1, 1);
  CZelData const copy(model);
  CZelData assigned;
  assigned = copy;
  EXPECT_TRUE(model == copy && copy == assigned);
  model.BlankElem(1, 1);
  EXPECT_FALSE(model == copy);
}

TEST(ModelLink, OneOffRecordsAndAccessByKindAndModule) {
  EXPECT_TRUE(AreLinked(&M::Spec, &M::SetSpec, &M::Defaults, &M::SetDefaults, &M::HighestEnt,
                        &M::NumEnt, &M::EntExist, &M::SetEntTopo, &M::RecordExist,
                        &M::HighestRecord, &M::RemoveModule));
  CZelData model;
  Testing::Grid(model, 2, 1);
  model.SetSpec(model.Spec());
  model.SetDefaults(model.Defaults());
  model.SetEntTopo({SelElement, 1}, 0, 6);
  EXPECT_EQ(model.HighestEnt(SelNode), 6);
  EXPECT_EQ(model.NumEnt(SelElement), 2);
  EXPECT_TRUE(model.EntExist({SelElement, 2}));
  EXPECT_EQ(model.HighestRecord(CModule::Elem), 2);
  model.RemoveModule(CModule::Elem);
  EXPECT_FALSE(model.RecordExist(CModule::Elem, 1));
}

TEST(ModelLink, StateOfTheModel) {
  EXPECT_TRUE(AreLinked(&M::FlagRebuild, &M::AddBulkOperations, &M::ClearBulkOperations, &M::Undo,
                        &M::Redo, &M::NumUndo, &M::NumRedo, &M::SetUndoDepth, &M::Snapshot,
                        &M::Extents));
  CZelData model;
  model.FlagRebuild();
  model.AddBulkOperations({CModule::Node});
  Testing::Grid(model, 3, 2);
  model.ClearBulkOperations();
  auto const snapshot = model.Snapshot();
  EXPECT_TRUE(*snapshot == model);
  EXPECT_EQ(model.Extents().Right(), 3);
}

TEST(ModelLink, StepsAreOpenedAcceptedAbandonedUndoneAndRedone) {
  EXPECT_TRUE(AreLinked(&CUndoStep::Accept));
  CZelData model;
  model.SetUndoDepth(5);
  {
    CUndoStep step(model, false);
    Testing::NodeAt(model, 0, 0, 0);
    step.Accept();
  }
  {
    CUndoStep const step(&model);
    Testing::NodeAt(model, 1, 0, 0);
  }
  EXPECT_EQ(model.HighestNode(), 1);
  EXPECT_TRUE(model.Undo());
  EXPECT_EQ(model.HighestNode(), 0);
  EXPECT_EQ(model.NumUndo(), 0);
  EXPECT_EQ(model.NumRedo(), 1);
  EXPECT_TRUE(model.Redo());
  EXPECT_EQ(model.HighestNode(), 1);
}

TEST(ModelLink, NodesByPosition) {
  EXPECT_TRUE(AreLinked(&ZelUtil::GetNodeAt));
  CZelData model;
  EXPECT_EQ(ZelUtil::GetNodeAt(model, {1, 1, 1}, 0.0, L"a"), 1);
  EXPECT_EQ(ZelUtil::GetNodeAt(model, {1, 1, 1.5}, 1.0, L"b"), 1);
}

}  // namespace
}  // namespace Tarvex::ModelLinkTest
