// References of constraints, interactions and influences.
#include <gtest/gtest.h>

#include "store/record/axis.h"
#include "store/record/constraint_eqn.h"
#include "store/record/influences.h"
#include "store/record/interactions.h"
#include "store/record/joint.h"
#include "store/record/restraints.h"
#include "store/record/rigid.h"
#include "store/record/stages.h"
#include "tests/renumber/renumber_support.h"

namespace Tarvex::RewriteConstraintsTest {
namespace {

using Data::CEntList;
using Data::CRigid;
using Testing::Apply;
using Testing::Scheme;

CEntList Nodes(wchar_t const* text) { return {SelNode, text}; }
CEntList Stages(wchar_t const* text) { return {SelNone, text}; }

/// A model with nodes 1 to 9.
CZelData NineNodes() {
  CZelData model;
  Testing::NodesAt(model, {1, 2, 3, 4, 5, 6, 7, 8, 9});
  return model;
}

/// All nodes but some.
Scheme Without(std::vector<int> const& gone) {
  Scheme scheme;
  for (int n = 1; n <= 9; ++n)
    if (std::find(gone.begin(), gone.end(), n) == gone.end()) scheme[n] = n;
  return scheme;
}

TEST(RewriteRestraint, FollowsNodesAndStages) {
  auto model = NineNodes();
  model.SetGenRest(1, {L"", Nodes(L"1 2"), Vbool6(), Stages(L"1 2")});
  EXPECT_TRUE(Apply(model, CModule::Node, {{1, 5}, {2, 6}}));
  EXPECT_EQ(model.GenRest(1).Nodes().String(), L"5 6");
  EXPECT_EQ(model.GenRest(1).Stage().String(), L"1 2");  // stages have no scheme
  EXPECT_TRUE(Apply(model, CModule::AnalStage, {{1, 3}}));
  EXPECT_EQ(model.GenRest(1).Stage().String(), L"3");
  EXPECT_EQ(model.GenRest(1).Nodes().String(), L"5 6");
}

TEST(RewriteRestraint, WithoutNodesGoes) {
  auto model = NineNodes();
  model.SetGenRest(1, {L"a", Nodes(L"1"), Vbool6(), Stages(L"all")});
  model.SetGenRest(2, {L"b", Nodes(L"2"), Vbool6(), Stages(L"all")});
  model.SetGenRest(3, {L"c", Nodes(L"none"), Vbool6(), Stages(L"all")});
  model.SetGenRest(4, {L"d", Nodes(L"4"), Vbool6(), Stages(L"all")});
  EXPECT_TRUE(Apply(model, CModule::Node, Without({1})));
  ASSERT_EQ(model.HighestGenRest(), 2);
  EXPECT_EQ(model.GenRest(1).Name(), L"b");
  EXPECT_EQ(model.GenRest(2).Name(), L"d");
}

TEST(RewriteRestraint, WithoutNodesStaysWhereNeitherNodesNorStagesMove) {
  auto model = NineNodes();
  model.SetGenRest(1, {L"", Nodes(L"none"), Vbool6(), Stages(L"all")});
  EXPECT_TRUE(Apply(model, CModule::Axis, Scheme()));
  EXPECT_EQ(model.HighestGenRest(), 1);
}

CRigid Rigid(int primary, wchar_t const* constrained) {
  CRigid rigid(L"", Data::LinkType::All, primary, Nodes(constrained), Stages(L"1"));
  rigid.SetParentMember(3);
  return rigid;
}

TEST(RewriteRigid, FollowsNodesStagesAndMembers) {
  auto model = NineNodes();
  model.SetRigid(1, Rigid(1, L"2 3"));
  CRenumber renumber(&model);
  renumber.Index(CModule::Node, {{1, 4}, {2, 5}, {3, 6}});
  renumber.Index(CModule::AnalStage, {{1, 2}});
  renumber.Index(CModule::Member, {{3, 7}});
  EXPECT_TRUE(renumber.Go(false));
  EXPECT_EQ(model.Rigid(1).PrimaryNode(), 4);
  EXPECT_EQ(model.Rigid(1).ConstrainedNodes().String(), L"5 6");
  EXPECT_EQ(model.Rigid(1).Stage().String(), L"2");
  EXPECT_EQ(model.Rigid(1).ParentMember(), 7);
}

TEST(RewriteRigid, LosesAMemberThatGoes) {
  auto model = NineNodes();
  model.SetRigid(1, Rigid(1, L"2 3"));
  EXPECT_TRUE(Apply(model, CModule::Member, Scheme()));
  EXPECT_EQ(model.Rigid(1).ParentMember(), 0);
}

TEST(RewriteRigid, TakesItsFirstConstrainedNodeForAPrimaryNodeThatGoes) {
  auto model = NineNodes();
  model.SetRigid(1, Rigid(1, L"7 4"));
  EXPECT_TRUE(Apply(model, CModule::Node, Without({1})));
  EXPECT_EQ(model.Rigid(1).PrimaryNode(), 4);  // the lowest
  EXPECT_EQ(model.Rigid(1).ConstrainedNodes().String(), L"7 4");
}

TEST(RewriteRigid, WithoutPrimaryNodeAndWithOneConstrainedNodeGoes) {
  auto model = NineNodes();
  model.SetRigid(1, Rigid(1, L"2 3"));
  EXPECT_TRUE(Apply(model, CModule::Node, Without({1, 3})));
  EXPECT_EQ(model.HighestRigid(), 0);
}

TEST(RewriteRigid, WithoutConstrainedNodesGoes) {
  auto model = NineNodes();
  model.SetRigid(1, Rigid(1, L"2 3"));
  model.SetRigid(2, Rigid(1, L"2 3 4"));
  EXPECT_TRUE(Apply(model, CModule::Node, Without({2, 3})));
  ASSERT_EQ(model.HighestRigid(), 1);
  EXPECT_EQ(model.Rigid(1).ConstrainedNodes().String(), L"4");
}

TEST(RewriteJoint, FollowsNodesAndStages) {
  auto model = NineNodes();
  model.SetJoint(1, {L"", Vbool6(), 1, 2, Stages(L"1")});
  CRenumber renumber(&model);
  renumber.Index(CModule::Node, {{1, 4}, {2, 5}});
  renumber.Index(CModule::AnalStage, {{1, 2}});
  EXPECT_TRUE(renumber.Go(false));
  EXPECT_EQ(model.Joint(1).PrimaryNode(), 4);
  EXPECT_EQ(model.Joint(1).ConstrainedNode(), 5);
  EXPECT_EQ(model.Joint(1).Stage().String(), L"2");
}

TEST(RewriteJoint, WithoutEitherNodeGoes) {
  auto model = NineNodes();
  model.SetJoint(1, {L"a", Vbool6(), 1, 2, Stages(L"all")});
  model.SetJoint(2, {L"b", Vbool6(), 2, 1, Stages(L"all")});
  model.SetJoint(3, {L"c", Vbool6(), 2, 3, Stages(L"all")});
  model.SetJoint(4, {L"d", Vbool6(), 0, 3, Stages(L"all")});
  EXPECT_TRUE(Apply(model, CModule::Node, Without({1})));
  ASSERT_EQ(model.HighestJoint(), 1);
  EXPECT_EQ(model.Joint(1).Name(), L"c");
}

TEST(RewriteEquation, FollowsNodesAndStagesAndKeepsTermsWhoseNodeGoes) {
  auto model = NineNodes();
  Data::CConstraintEqn equation;
  equation.SetConstrainedNode(1);
  equation.SetRhsTerm(-1, 2, Direction::Y, 0.5);
  equation.SetRhsTerm(-1, 3, Direction::ZZ, -2);
  equation.SetStage(Stages(L"1"));
  model.SetConstraintEqn(1, equation);
  CRenumber renumber(&model);
  renumber.Index(CModule::Node, {{1, 4}, {2, 5}});
  renumber.Index(CModule::AnalStage, {{1, 2}});
  EXPECT_TRUE(renumber.Go(false));
  auto const& now = model.ConstraintEqn(1);
  EXPECT_EQ(now.ConstrainedNode(), 4);
  ASSERT_EQ(now.NumTerm(), 2);
  EXPECT_EQ(now.Terms()[0], Util::CDofValue(5, Direction::Y, 0.5));
  EXPECT_EQ(now.Terms()[1], Util::CDofValue(0, Direction::ZZ, -2));
  EXPECT_EQ(now.Stage().String(), L"2");
}

TEST(RewriteEquation, WithoutConstrainedNodeGoes) {
  auto model = NineNodes();
  for (int const n : {1, 2}) {
    Data::CConstraintEqn equation;
    equation.SetConstrainedNode(n);
    model.SetConstraintEqn(n, equation);
  }
  EXPECT_TRUE(Apply(model, CModule::Node, Without({1})));
  ASSERT_EQ(model.HighestConstraintEqn(), 1);
  EXPECT_EQ(model.ConstraintEqn(1).ConstrainedNode(), 2);
}

Data::CTiedInterface Tied(wchar_t const* elements, CEntList const& entities) {
  Data::CTiedInterface tied;
  tied.SetPrimaryElements({SelElement, elements});
  tied.SetConstrainedEntities(entities);
  tied.SetStage(Stages(L"1"));
  return tied;
}

TEST(RewriteTiedInterface, FollowsElementsNodesAndStages) {
  auto model = NineNodes();
  model.SetTiedInterface(1, Tied(L"1", Nodes(L"2")));
  CRenumber renumber(&model);
  renumber.Index(CModule::Elem, {{1, 3}});
  renumber.Index(CModule::Node, {{2, 4}});
  renumber.Index(CModule::AnalStage, {{1, 5}});
  EXPECT_TRUE(renumber.Go(false));
  EXPECT_EQ(model.TiedInterface(1).PrimaryElements().String(), L"3");
  EXPECT_EQ(model.TiedInterface(1).ConstrainedEntities().String(), L"4");
  EXPECT_EQ(model.TiedInterface(1).Stage().String(), L"5");
}

TEST(RewriteTiedInterface, WithoutOneOfItsSidesGoes) {
  auto model = NineNodes();
  model.SetTiedInterface(1, Tied(L"1", {SelElement, L"2"}));
  model.SetTiedInterface(2, Tied(L"2", {SelElement, L"1"}));
  model.SetTiedInterface(3, Tied(L"2", {SelElement, L"2"}));
  EXPECT_TRUE(Apply(model, CModule::Elem, {{2, 2}}));
  EXPECT_EQ(model.HighestTiedInterface(), 1);
}

TEST(RewriteInteractions, FollowNodesAndGoWithoutThem) {
  auto model = NineNodes();
  for (int const n : {1, 2}) {
    auto const nodes = Nodes(n == 1 ? L"1" : L"2 3");
    model.SetRaftInteraction(n, {nodes, 1, 2, 3, 4, 5});
    model.SetPileInteraction(n, Data::CPileInteraction(nodes));
  }
  EXPECT_TRUE(Apply(model, CModule::Node, {{2, 8}, {3, 9}}));
  ASSERT_EQ(model.HighestRaftInteraction(), 1);
  EXPECT_EQ(model.RaftInteraction(1).Nodes().String(), L"8 9");
  EXPECT_EQ(model.RaftInteraction(1).UpperLimit(), 5);
  ASSERT_EQ(model.HighestPileInteraction(), 1);
  EXPECT_EQ(model.PileInteraction(1).Nodes().String(), L"8 9");
}

TEST(RewriteInfluences, FollowTheirNodeOrElementAndGoWithoutIt) {
  auto model = NineNodes();
  for (int const n : {1, 2}) {
    model.SetInfluenceNode(n, {L"", n});
    model.SetInfluenceBeam(n, {L"", n});
  }
  EXPECT_TRUE(Apply(model, CModule::Node, {{2, 7}}));
  ASSERT_EQ(model.HighestInfluenceNode(), 1);
  EXPECT_EQ(model.InfluenceNode(1).Node(), 7);
  EXPECT_EQ(model.HighestInfluenceBeam(), 2);
  EXPECT_TRUE(Apply(model, CModule::Elem, {{2, 8}}));
  ASSERT_EQ(model.HighestInfluenceBeam(), 1);
  EXPECT_EQ(model.InfluenceBeam(1).Elem(), 8);
}

}  // namespace
}  // namespace Tarvex::RewriteConstraintsTest
