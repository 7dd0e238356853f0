// Tables of constraints and queries about them, as an application links them.
#include <gtest/gtest.h>

#include "store/model/zel_data.h"
#include "store/record/constraint_eqn.h"
#include "store/record/influences.h"
#include "store/record/interactions.h"
#include "store/record/joint.h"
#include "store/record/restraints.h"
#include "store/record/rigid.h"
#include "tests/link/linked.h"

namespace Tarvex::ConstraintTablesLinkTest {
namespace {

using Testing::AreLinked;
using Testing::Member;
using T = ConstraintTables;

Data::CEntList const kNodes(SelNode, L"1 2");

TEST(ConstraintTablesLink, GenRestOperations) {
  using R = Data::CGenRest;
  EXPECT_TRUE(AreLinked(&T::GenRestExist, Member<R const&(int) const>(&T::GenRest),
                        Member<std::vector<R> const&() const>(&T::GenRest), &T::HighestGenRest,
                        &T::SetGenRest, &T::DeleteGenRest, &T::SetGenRestNodes));
  CZelData model;
  model.SetGenRest(1, R());
  EXPECT_TRUE(model.GenRestExist(1));
  EXPECT_EQ(model.HighestGenRest(), 1);
  EXPECT_EQ(&model.GenRest()[0], &model.GenRest(1));
  model.SetGenRestNodes(1, kNodes);
  EXPECT_EQ(model.GenRest(1).Nodes().String(), L"1 2");
  model.DeleteGenRest(1, 1);
  EXPECT_FALSE(model.GenRestExist(1));
}

TEST(ConstraintTablesLink, RigidOperations) {
  using R = Data::CRigid;
  EXPECT_TRUE(AreLinked(&T::RigidExist, Member<R const&(int) const>(&T::Rigid),
                        Member<std::vector<R> const&() const>(&T::Rigid), &T::HighestRigid,
                        &T::SetRigid, &T::DeleteRigid, &T::SetRigidConstrainedNodes));
  CZelData model;
  model.SetRigid(1, R());
  EXPECT_TRUE(model.RigidExist(1));
  EXPECT_EQ(model.HighestRigid(), 1);
  EXPECT_EQ(&model.Rigid()[0], &model.Rigid(1));
  model.SetRigidConstrainedNodes(1, kNodes);
  EXPECT_EQ(model.Rigid(1).ConstrainedNodes().String(), L"1 2");
  model.DeleteRigid(1, 1);
  EXPECT_FALSE(model.RigidExist(1));
}

TEST(ConstraintTablesLink, JointOperations) {
  using R = Data::CJoint;
  EXPECT_TRUE(AreLinked(&T::JointExist, Member<R const&(int) const>(&T::Joint),
                        Member<std::vector<R> const&() const>(&T::Joint), &T::HighestJoint,
                        &T::SetJoint, &T::DeleteJoint, &T::SetJointPrimaryNode,
                        &T::SetJointConstrainedNode));
  CZelData model;
  model.SetJoint(1, R());
  EXPECT_TRUE(model.JointExist(1));
  EXPECT_EQ(model.HighestJoint(), 1);
  EXPECT_EQ(&model.Joint()[0], &model.Joint(1));
  model.SetJointPrimaryNode(1, 4);
  EXPECT_EQ(model.Joint(1).PrimaryNode(), 4);
  model.SetJointConstrainedNode(1, 5);
  EXPECT_EQ(model.Joint(1).ConstrainedNode(), 5);
  model.DeleteJoint(1, 1);
  EXPECT_FALSE(model.JointExist(1));
}

TEST(ConstraintTablesLink, ConstraintEqnOperations) {
  using R = Data::CConstraintEqn;
  EXPECT_TRUE(AreLinked(&T::ConstraintEqnExist, Member<R const&(int) const>(&T::ConstraintEqn),
                        Member<std::vector<R> const&() const>(&T::ConstraintEqn),
                        &T::HighestConstraintEqn, &T::SetConstraintEqn, &T::DeleteConstraintEqn,
                        &T::SetConstraintEqnSid));
  CZelData model;
  model.SetConstraintEqn(1, R());
  EXPECT_TRUE(model.ConstraintEqnExist(1));
  EXPECT_EQ(model.HighestConstraintEqn(), 1);
  EXPECT_EQ(&model.ConstraintEqn()[0], &model.ConstraintEqn(1));
  model.SetConstraintEqnSid(1, L"s");
  EXPECT_EQ(model.ConstraintEqn(1).Sid(), L"s");
  model.DeleteConstraintEqn(1, 1);
  EXPECT_FALSE(model.ConstraintEqnExist(1));
}

TEST(ConstraintTablesLink, TiedInterfaceOperations) {
  using R = Data::CTiedInterface;
  EXPECT_TRUE(AreLinked(&T::TiedInterfaceExist, Member<R const&(int) const>(&T::TiedInterface),
                        Member<std::vector<R> const&() const>(&T::TiedInterface),
                        &T::HighestTiedInterface, &T::SetTiedInterface, &T::DeleteTiedInterface));
  CZelData model;
  model.SetTiedInterface(1, R());
  EXPECT_TRUE(model.TiedInterfaceExist(1));
  EXPECT_EQ(model.HighestTiedInterface(), 1);
  EXPECT_EQ(&model.TiedInterface()[0], &model.TiedInterface(1));
  model.DeleteTiedInterface(1, 1);
  EXPECT_FALSE(model.TiedInterfaceExist(1));
}

TEST(ConstraintTablesLink, RaftInteractionOperations) {
  using R = Data::CRaftInteraction;
  EXPECT_TRUE(AreLinked(&T::RaftInteractionExist, Member<R const&(int) const>(&T::RaftInteraction),
                        Member<std::vector<R> const&() const>(&T::RaftInteraction),
                        &T::HighestRaftInteraction, &T::SetRaftInteraction,
                        &T::DeleteRaftInteraction, &T::SetRaftInteractionSid));
  CZelData model;
  model.SetRaftInteraction(1, R());
  EXPECT_TRUE(model.RaftInteractionExist(1));
  EXPECT_EQ(model.HighestRaftInteraction(), 1);
  EXPECT_EQ(&model.RaftInteraction()[0], &model.RaftInteraction(1));
  model.SetRaftInteractionSid(1, L"s");
  EXPECT_EQ(model.RaftInteraction(1).Sid(), L"s");
  model.DeleteRaftInteraction(1, 1);
  EXPECT_FALSE(model.RaftInteractionExist(1));
}

TEST(ConstraintTablesLink, PileInteractionOperations) {
  using R = Data::CPileInteraction;
  EXPECT_TRUE(AreLinked(&T::PileInteractionExist, Member<R const&(int) const>(&T::PileInteraction),
                        Member<std::vector<R> const&() const>(&T::PileInteraction),
                        &T::HighestPileInteraction, &T::SetPileInteraction,
                        &T::DeletePileInteraction));
  CZelData model;
  model.SetPileInteraction(1, R());
  EXPECT_TRUE(model.PileInteractionExist(1));
  EXPECT_EQ(model.HighestPileInteraction(), 1);
  EXPECT_EQ(&model.PileInteraction()[0], &model.PileInteraction(1));
  model.DeletePileInteraction(1, 1);
  EXPECT_FALSE(model.PileInteractionExist(1));
}

TEST(ConstraintTablesLink, InfluenceNodeOperations) {
  using R = Data::CInfluenceNode;
  EXPECT_TRUE(AreLinked(&T::InfluenceNodeExist, Member<R const&(int) const>(&T::InfluenceNode),
                        Member<std::vector<R> const&() const>(&T::InfluenceNode),
                        &T::HighestInfluenceNode, &T::SetInfluenceNode, &T::DeleteInfluenceNode));
  CZelData model;
  model.SetInfluenceNode(1, R());
  EXPECT_TRUE(model.InfluenceNodeExist(1));
  EXPECT_EQ(model.HighestInfluenceNode(), 1);
  EXPECT_EQ(&model.InfluenceNode()[0], &model.InfluenceNode(1));
  model.DeleteInfluenceNode(1, 1);
  EXPECT_FALSE(model.InfluenceNodeExist(1));
}

TEST(ConstraintTablesLink, InfluenceBeamOperations) {
  using R = Data::CInfluenceBeam;
  EXPECT_TRUE(AreLinked(&T::InfluenceBeamExist, Member<R const&(int) const>(&T::InfluenceBeam),
                        Member<std::vector<R> const&() const>(&T::InfluenceBeam),
                        &T::HighestInfluenceBeam, &T::SetInfluenceBeam, &T::DeleteInfluenceBeam));
  CZelData model;
  model.SetInfluenceBeam(1, R());
  EXPECT_TRUE(model.InfluenceBeamExist(1));
  EXPECT_EQ(model.HighestInfluenceBeam(), 1);
  EXPECT_EQ(&model.InfluenceBeam()[0], &model.InfluenceBeam(1));
  model.DeleteInfluenceBeam(1, 1);
  EXPECT_FALSE(model.InfluenceBeamExist(1));
}

TEST(ConstraintQueriesLink, AnswersAboutNodesAndRigids) {
  using Q = ConstraintQueries;
  EXPECT_TRUE(
      AreLinked(&Q::NodeIsInConstraint, &Q::RigidIsActive, &Q::NodeIsUsed, &Q::InitNodalUseRigid));
  CZelData model;
  model.SetRigid(1, Data::CRigid(L"", Data::LinkType::All, 3, kNodes, Data::CEntList()));
  model.InitNodalUseRigid();
  EXPECT_TRUE(model.NodeIsUsed(1));
  EXPECT_TRUE(model.NodeIsInConstraint(3, -1));
  EXPECT_FALSE(model.RigidIsActive(model.Rigid(1), -1));  // its nodes do not exist
}

}  // namespace
}  // namespace Tarvex::ConstraintTablesLinkTest
