// Edges of 2D members, released from what stands around them.
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "store/model/zel_data.h"
#include "store/record/element.h"
#include "store/record/joint.h"
#include "store/record/member.h"
#include "store/record/node.h"
#include "tarvex/disconnect.h"
#include "tests/support/builders.h"
#include "tests/support/matchers.h"

namespace Tarvex::MemberEdgesTest {
namespace {

using Numbers = std::vector<int>;
using Testing::Element;
using Testing::IsUnchanged;
using Testing::References;

/// Reaches the steps.
class Steps : public MemberEdges {
 public:
  using MemberEdges::EdgeNodes;
  using MemberEdges::Edges;
  using MemberEdges::FindAttachedNodes;
  using MemberEdges::FindEdgeNodes;
  using MemberEdges::FindEdges;
  using MemberEdges::MemberEdges;
  using MemberEdges::ReleaseEdges;
};

/// Takes elements for the children of a member.
void Adopt(CZelData& model, int member, Numbers const& elements, int replica = 0) {
  auto copy = model.Member(member);
  for (int const n : elements) {
    if (model.ElemExist(n)) {
      auto element = model.Elem(n);
      element.SetParentMember({member, replica});
      model.SetElem(n, element);
    } else {
      auto panel = model.LoadPanel(n);
      panel.SetParentMember({member, replica});
      model.SetLoadPanel(n, panel);
    }
    copy.AddChildElement(n, replica);
  }
  model.SetMember(member, copy);
}

void Flag(CZelData& model, int member, bool on = true) {
  auto copy = model.Member(member);
  copy.SetReleaseEdges(on);
  model.SetMember(member, copy);
}

/// Slab member 1 on 2 by 2 unit squares (nodes 1 to 9, elements 1 to 4), flagged.
CZelData Slab() {
  CZelData model;
  Testing::Grid(model, 2, 2);
  Testing::MemberAt(model, MembType::Slab, L"1 3 9 7");
  Adopt(model, 1, {1, 2, 3, 4});
  Flag(model, 1);
  return model;
}

/// Adds a beam between two nodes.
int Beam(CZelData& model, int from, int to) {
  int const n = model.HighestElem() + 1;
  model.SetElem(n, Element(ElementType::Beam, {from, to}));
  return n;
}

TEST(MemberEdges, RaisesItsTextForAMemberThatDoesNotExist) {
  auto model = Slab();
  std::string text;
  try {
    MemberEdges(model).ReleaseEdges(2);
  } catch (std::invalid_argument const& fault) {
    text = fault.what();
  }
  EXPECT_EQ(text, "Non existent member selected");
}

TEST(MemberEdges, MovesItsElementsToNewNodesJoinedByAPin) {
  auto model = Slab();
  int const beam = Beam(model, 3, 6);
  model.SetNodeRestraint(3, Vbool6(L"fix"));
  MemberEdges(model).ReleaseEdges(1);
  // Nodes 3 and 6 become 10 and 11 for the slab.
  EXPECT_TRUE(References(model, 1, {1, 2, 5, 4}));
  EXPECT_TRUE(References(model, 2, {2, 10, 11, 5}));
  EXPECT_TRUE(References(model, 3, {4, 5, 8, 7}));
  EXPECT_TRUE(References(model, 4, {5, 11, 9, 8}));
  EXPECT_TRUE(References(model, beam, {3, 6}));
  EXPECT_EQ(model.HighestNode(), 11);
  EXPECT_EQ(model.NodeCoor(10), model.NodeCoor(3));
  EXPECT_EQ(model.Node(10).Restraint(), Vbool6());
  EXPECT_EQ(model.Node(3).Restraint(), Vbool6(L"fix"));
  ASSERT_EQ(model.HighestJoint(), 2);
  auto const& joint = model.Joint(1);
  EXPECT_EQ(joint.Name(), L"");
  EXPECT_EQ(joint.GetDirection(), Vbool6(true, true, true, false, false, false));
  EXPECT_EQ(joint.PrimaryNode(), 3);
  EXPECT_EQ(joint.ConstrainedNode(), 10);
  EXPECT_EQ(joint.Stage().String(), L"all");
  EXPECT_EQ(joint.Stage().TypeOf(), SelNone);
  EXPECT_EQ(model.Joint(2).PrimaryNode(), 6);
  EXPECT_EQ(model.Joint(2).ConstrainedNode(), 11);
}

TEST(MemberEdges, CopiesAllOfANodeButItsRestraint) {
  auto model = Slab();
  Data::CNode node({2, 0, 0}, 2, Vbool6(L"fix"));
  node.SetMassProperty(5);
  node.SetMeshSize(0.5);
  model.SetNode(3, node);
  MemberEdges(model).ReleaseEdges(1);  // node 3 stands on the edge and has a mass
  ASSERT_EQ(model.HighestNode(), 10);
  EXPECT_TRUE(model.Node(3) == node);
  node.SetRestraint(Vbool6());
  EXPECT_TRUE(model.Node(10) == node);
}

TEST(MemberEdges, LeavesTheMembersOwnTopologyAndChildren) {
  auto model = Slab();
  Beam(model, 3, 6);
  auto const before = model;
  MemberEdges(model).ReleaseEdges(1);
  EXPECT_TRUE(model.Member(1) == before.Member(1));
  EXPECT_EQ(model.Elem(2).ParentMember().member, 1);
}

TEST(MemberEdges, LeavesAMemberAloneInTheModelAsItIs) {
  auto model = Slab();
  auto const before = model;
  MemberEdges(model).ReleaseEdges(1);
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(MemberEdges, LeavesNodesInsideAlone) {
  auto model = Slab();
  Beam(model, 5, Testing::NodeAt(model, 1, 1, -3));  // a column below the middle
  auto const before = model;
  MemberEdges(model).ReleaseEdges(1);
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(MemberEdges, DoesNothingWithoutTheFlagAndForA1DMember) {
  auto model = Slab();
  Beam(model, 3, 6);
  Flag(model, 1, false);
  Testing::MemberAt(model, MembType::Beam, L"3 6");
  Adopt(model, 2, {5});
  Flag(model, 2);
  Beam(model, 6, 9);
  auto const before = model;
  MemberEdges(model).ReleaseEdges(1);
  MemberEdges(model).ReleaseEdges(2);
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(MemberEdges, StoresPanelsAmongItsChildrenToo) {
  auto model = Slab();
  int const beam = Beam(model, 3, 6);
  Data::LoadPanel panel;
  panel.SetTopology(Numbers{2, 3, 6, 5});
  model.SetLoadPanel(2, panel);  // in the place of element 2
  Adopt(model, 1, {2});
  MemberEdges(model).ReleaseEdges(1);
  EXPECT_TRUE(References(model, 2, {2, 10, 11, 5}));
  EXPECT_TRUE(model.LoadPanelExist(2));
  EXPECT_TRUE(References(model, beam, {3, 6}));
}

TEST(MemberEdges, TakesTheElementsOfAllReplicas) {
  auto model = Slab();
  auto member = model.Member(1);
  member.ClearChildElements();
  model.SetMember(1, member);
  Adopt(model, 1, {1, 2}, 0);
  Adopt(model, 1, {3, 4}, 1);
  Beam(model, 3, 6);
  MemberEdges(model).ReleaseEdges(1);
  EXPECT_TRUE(References(model, 4, {5, 11, 9, 8}));
}

TEST(FindEdges, LeavesTheOutlineOfElementsThatFaceOneWay) {
  auto model = Slab();
  EXPECT_EQ(Steps(model).FindEdges(model.Member(1)),
            (Steps::Edges{{1, 2}, {2, 3}, {3, 6}, {6, 9}, {9, 8}, {8, 7}, {7, 4}, {4, 1}}));
}

TEST(FindEdges, KeepsTheInnerEdgesOfAnElementThatFacesTheOtherWay) {
  CZelData model;
  Testing::Grid(model, 2, 1);  // 1 2 5 4 and 2 3 6 5
  model.SetElem(2, Element(ElementType::Quad4, {5, 6, 3, 2}));
  Testing::MemberAt(model, MembType::Slab, L"1 3 6 4");
  Adopt(model, 1, {1, 2});
  // Both run from 2 to 5, so neither takes the other away.
  EXPECT_EQ(Steps(model).FindEdges(model.Member(1)),
            (Steps::Edges{{1, 2}, {2, 5}, {5, 4}, {4, 1}, {5, 6}, {6, 3}, {3, 2}}));
}

TEST(FindEdges, PairsTheNodesOfQuadraticElementsInTheOrderOfTheirTopology) {
  CZelData model;
  for (int n = 1; n <= 8; ++n) Testing::NodeAt(model, n, 0, 0);
  model.SetElem(1, Element(ElementType::Quad8, {1, 2, 3, 4, 5, 6, 7, 8}));
  Testing::MemberAt(model, MembType::Slab, L"1 2 3 4");
  Adopt(model, 1, {1});
  EXPECT_EQ(Steps(model).FindEdges(model.Member(1)),
            (Steps::Edges{{1, 2}, {2, 3}, {3, 4}, {4, 5}, {5, 6}, {6, 7}, {7, 8}, {8, 1}}));
}

TEST(FindEdges, PassesChildrenOverThatDoNotExist) {
  CZelData model;
  Testing::MemberAt(model, MembType::Slab, L"1 2 3");
  auto member = model.Member(1);
  member.AddChildElement(5, 0);
  model.SetMember(1, member);
  EXPECT_EQ(Steps(model).FindEdges(model.Member(1)), Steps::Edges());
}

TEST(FindEdgeNodes, TakesTheFirstNodeOfEachPair) {
  CZelData model;
  EXPECT_EQ(Steps(model).FindEdgeNodes({{4, 1}, {2, 9}, {4, 7}}), (std::set<int>{2, 4}));
}

TEST(FindAttachedNodes, KeepsNodesWithPropertiesOrElementsOfOthers) {
  auto model = Slab();
  auto const with = [&](int n, void (Data::CNode::*set)(int)) {
    auto node = model.Node(n);
    (node.*set)(3);
    model.SetNode(n, node);
  };
  with(1, &Data::CNode::SetSpringProperty);
  with(2, &Data::CNode::SetMassProperty);
  with(3, &Data::CNode::SetDamperProperty);
  Beam(model, 4, 5);                    // of no member
  int const other = Beam(model, 7, 8);  // of another member
  auto element = model.Elem(other);
  element.SetParentMember({2, 0});
  model.SetElem(other, element);
  Data::LoadPanel panel;
  panel.SetTopology(Numbers{9, 6, 5});
  model.SetLoadPanel(20, panel);  // passed over
  Steps steps(model);
  EXPECT_EQ(steps.FindAttachedNodes(1, {1, 2, 3, 4, 6, 7, 9, 99}), (std::set<int>{1, 2, 3, 4, 7}));
  EXPECT_EQ(steps.FindAttachedNodes(1, {9}), std::set<int>());
  EXPECT_EQ(steps.FindAttachedNodes(2, {9}), std::set<int>{9});  // elements of member 1 there
  EXPECT_EQ(steps.EdgeNodes(1, model.Member(1)), (std::set<int>{1, 2, 3, 4, 7, 8}));
}

TEST(ReleaseEdges, OfTheStepTakesAnyMember) {
  auto model = Slab();
  Flag(model, 1, false);
  Beam(model, 3, 6);
  auto const member = model.Member(1);
  Steps(model).ReleaseEdges(1, member);
  EXPECT_TRUE(References(model, 2, {2, 10, 11, 5}));
}

}  // namespace
}  // namespace Tarvex::MemberEdgesTest
