#include "store/model/undo_step.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "store/model/zel_data.h"
#include "store/record/node.h"
#include "tests/support/builders.h"
#include "tests/support/matchers.h"

namespace Tarvex::UndoStepTest {
namespace {

using Testing::IsUnchanged;

class UndoStep : public ::testing::Test {
 protected:
  UndoStep() { Testing::Grid(model, 3, 3); }

  void Change() {
    model.BlankElem(2, 1);
    model.SetNodeCoor(1, {-5, 0, 0});
    model.CreateElem(20, ElementType::Beam, 1, 1);
  }

  CZelData model;
};

TEST_F(UndoStep, AcceptedIsUndoneAndRedone) {
  CZelData const before(model);
  {
    CUndoStep step(model, false);
    Change();
    step.Accept();
  }
  CZelData const after(model);
  EXPECT_EQ(model.NumUndo(), 1);
  EXPECT_TRUE(model.Undo());
  EXPECT_TRUE(IsUnchanged(model, before));
  EXPECT_EQ(model.NumRedo(), 1);
  EXPECT_TRUE(model.Redo());
  EXPECT_TRUE(IsUnchanged(model, after));
  EXPECT_FALSE(model.Redo());
}

TEST_F(UndoStep, AbandonedLeavesNothing) {
  CZelData const before(model);
  {
    CUndoStep step(&model, false);
    Change();
  }
  EXPECT_TRUE(IsUnchanged(model, before));
  EXPECT_EQ(model.NumUndo(), 0);
}

TEST_F(UndoStep, DroppedByAnExceptionLeavesNothing) {
  CZelData const before(model);
  auto const run = [&] {
    CUndoStep step(model);
    Change();
    throw std::runtime_error("fault");
  };
  EXPECT_THROW(run(), std::runtime_error);
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST_F(UndoStep, AnInnerAcceptedStepBelongsToTheOuterOne) {
  CZelData const before(model);
  {
    CUndoStep outer(model);
    {
      CUndoStep inner(model);
      Change();
      inner.Accept();
    }
    EXPECT_EQ(model.NumUndo(), 0);
  }
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST_F(UndoStep, AnInnerAbandonedStepTakesOnlyItsOwnAway) {
  CUndoStep outer(model);
  model.SetElemGroup(1, 9);
  {
    CUndoStep inner(model);
    Change();
  }
  EXPECT_EQ(model.Elem(1).Group(), 9);
  EXPECT_TRUE(model.ElemExist(2));
  outer.Accept();
  EXPECT_EQ(model.NumUndo(), 1);
}

TEST_F(UndoStep, AcceptedWithoutAChangeIsAnEntryAllTheSame) {
  CUndoStep step(model);
  step.Accept();
  step.Accept();
  EXPECT_EQ(model.NumUndo(), 1);
}

TEST_F(UndoStep, AbandonedWithoutAChangeTouchesNotEvenARevision) {
  auto const nodes = model.Node().Revision();
  auto const elements = model.Elem().Revision();
  { CUndoStep step(model); }
  EXPECT_EQ(model.Node().Revision(), nodes);
  EXPECT_EQ(model.Elem().Revision(), elements);
}

TEST_F(UndoStep, UndoIsRefusedWhileAStepIsOpen) {
  {
    CUndoStep step(model);
    Change();
    step.Accept();
  }
  CUndoStep open(model);
  EXPECT_FALSE(model.Undo());
  EXPECT_FALSE(model.Redo());
}

TEST_F(UndoStep, TheDepthOfTheHistoryIsBounded) {
  model.SetUndoDepth(2);
  for (int group = 2; group <= 5; ++group) {
    CUndoStep step(model);
    model.SetElemGroup(1, group);
    step.Accept();
  }
  EXPECT_EQ(model.NumUndo(), 2);
  while (model.Undo()) continue;
  EXPECT_EQ(model.Elem(1).Group(), 3);
}

TEST_F(UndoStep, AttachmentsAndPositionsAreRightAfterUndo) {
  EXPECT_EQ(model.NearestNode({0, 0, 0}, 0), 1);  // builds the index
  {
    CUndoStep step(model);
    Change();
    EXPECT_EQ(model.NearestNode({0, 0, 0}, 0), 0);
    EXPECT_EQ(model.Node(2).NumEntAttached(SelElement), 1);
    step.Accept();
  }
  model.Undo();
  EXPECT_EQ(model.NearestNode({0, 0, 0}, 0), 1);
  EXPECT_EQ(model.NearestNode({-5, 0, 0}, 0), 0);
  EXPECT_EQ(model.Node(2).NumEntAttached(SelElement), 2);
  model.Redo();
  EXPECT_EQ(model.NearestNode({-5, 0, 0}, 0), 1);
  EXPECT_EQ(model.Node(2).NumEntAttached(SelElement), 1);
}

TEST_F(UndoStep, WhatIsOutsideTheTablesStays) {
  {
    CUndoStep step(model);
    model.rebuildHold = true;
    model.bulkCounter = 2;
  }
  EXPECT_TRUE(model.rebuildHold);
  EXPECT_EQ(model.bulkCounter, 2);
}

TEST_F(UndoStep, StoringOneRecordAfterASnapshotKeepsAllOtherRecordsInPlace) {
  auto const snapshot = model.Snapshot();
  auto const* far = &model.Elem(9);
  model.SetNodeCoor(3, {7, 7, 7});
  EXPECT_EQ(&model.Elem(9), far);
  EXPECT_EQ(&snapshot->Elem(9), far);  // both states have the same record
  EXPECT_NE(&snapshot->Node(3), &model.Node(3));
}

TEST(Lock, ALockedElementIsNotBlanked) {
  CZelData model;
  Testing::Grid(model, 4, 1);
  model.LockElem(2, true);
  model.BlankElem(1, 3);
  EXPECT_FALSE(model.ElemExist(1));
  EXPECT_TRUE(model.ElemExist(2));
  EXPECT_FALSE(model.ElemExist(3));
  EXPECT_EQ(model.Node(2).AttachedEnt(SelElement), (boost::container::flat_set<int>{2}));
  model.LockElem(2, false);
  model.BlankVariantElement(2, 1);
  EXPECT_FALSE(model.ElemExist(2));
  EXPECT_TRUE(model.ElemExist(4));
}

TEST(BulkOperations, AttachmentsAreBuiltByTheNextQuery) {
  CZelData model;
  Testing::Grid(model, 2, 1);
  model.AddBulkOperations({CModule::Elem});
  model.BlankElem(1, 1);
  EXPECT_EQ(model.Node(2).NumEntAttached(SelElement), 1);
  model.ClearBulkOperations();
  model.BlankElem(2, 1);
  EXPECT_EQ(model.Node(2).NumEntAttached(SelElement), 0);
}

TEST(SidMode, KeepsTheIdentifierOrDropsIt) {
  CZelData model;
  Data::CNode node;
  node.SetSid(L"A7");
  model.SetNode(1, node);
  model.SetNode(2, node, SidMode::Drop);
  EXPECT_EQ(model.Node(1).Sid(), L"A7");
  EXPECT_EQ(model.Node(2).Sid(), L"");
}

}  // namespace
}  // namespace Tarvex::UndoStepTest
