// Entities that meet at nodes, given nodes of their own.
#include "tarvex/disconnect.h"

#include <gtest/gtest.h>

#include "store/model/zel_data.h"
#include "store/record/element.h"
#include "store/record/joint.h"
#include "store/record/member.h"
#include "store/record/node.h"
#include "store/record/spec.h"
#include "store/record/spring_prop.h"
#include "tests/support/builders.h"
#include "tests/support/matchers.h"

namespace Tarvex::DisconnectTest {
namespace {

using Numbers = std::vector<int>;
using Testing::Element;
using Testing::IsUnchanged;
using Testing::MemberAt;
using Testing::NodeAt;
using Testing::References;

Util::CTopoSet SetOf(SelType kind, Numbers const& items) {
  Util::CTopoSet set(kind);
  for (int const n : items) set.AddTo(n, -1);
  return set;
}

/// Beams 1, 2 and 3 from nodes 2, 3 and 4 to node 1.
CZelData Star() {
  CZelData model;
  NodeAt(model, 0, 0, 0);
  for (int n = 1; n <= 3; ++n)
    model.SetElem(n, Element(ElementType::Beam, {NodeAt(model, n, 1, 0), 1}));
  return model;
}

/// The same of members.
CZelData StarOfMembers() {
  CZelData model;
  for (int n = 1; n <= 4; ++n) NodeAt(model, n, n == 1 ? 0 : 1, 0);
  for (auto const* topology : {L"2 1", L"3 1", L"4 1"})
    MemberAt(model, MembType::Generic, topology);
  return model;
}

std::wstring TopoOf(CZelData const& model, int member) {
  return model.Member(member).Topo().String().Str();
}

bool DisconnectNodes(CDisconnect& tool, SelType kind, Numbers const& nodes) {
  auto set = SetOf(SelNode, nodes);
  return tool.DisconnectNode(kind, &set);
}
bool DisconnectEntities(CDisconnect& tool, SelType kind, Numbers const& entities) {
  auto set = SetOf(kind, entities);
  return tool.DisconnectEntity(kind, &set);
}

TEST(DisconnectNode, LeavesTheNodeToTheLowestElementAndGivesTheOthersNewOnes) {
  auto model = Star();
  CDisconnect tool(model);
  EXPECT_TRUE(DisconnectNodes(tool, SelElement, {1}));
  EXPECT_TRUE(References(model, 1, {2, 1}));
  EXPECT_TRUE(References(model, 2, {3, 5}));
  EXPECT_TRUE(References(model, 3, {4, 6}));
  EXPECT_EQ(model.HighestNode(), 6);
  for (int const n : {5, 6}) EXPECT_EQ(model.NodeCoor(n), model.NodeCoor(1));
  EXPECT_EQ(model.HighestJoint(), 0);
  EXPECT_EQ(model.HighestElem(), 3);
}

TEST(DisconnectNode, GivesAllElementsNewNodesInFullDisconnect) {
  auto model = Star();
  CDisconnect tool(model);
  tool.SetFullDisconnect(true);
  EXPECT_TRUE(DisconnectNodes(tool, SelElement, {1}));
  for (int n = 1; n <= 3; ++n) EXPECT_TRUE(References(model, n, {n + 1, n + 4}));
  EXPECT_EQ(model.HighestNode(), 7);
  EXPECT_TRUE(model.NodeExist(1));
}

TEST(DisconnectNode, LeavesANodeWithExactlyOneEntityAlone) {
  auto model = Star();
  auto const before = model;
  CDisconnect tool(model);
  tool.SetFullDisconnect(true);
  EXPECT_FALSE(DisconnectNodes(tool, SelElement, {2, 3, 4, 99}));
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(DisconnectNode, CountsANodeWithoutEntityAndLeavesIt) {
  auto model = Star();
  NodeAt(model, 9, 9, 9);
  auto const before = model;
  CDisconnect tool(model);
  EXPECT_TRUE(DisconnectNodes(tool, SelElement, {5}));
  EXPECT_TRUE(DisconnectNodes(tool, SelMember, {1}));
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(DisconnectNode, LooksAtItemsThatStandForThemselves) {
  auto model = Star();
  CDisconnect tool(model);
  Util::CTopoSet set(SelNode);
  set.AddTo(1, 0);
  EXPECT_FALSE(tool.DisconnectNode(SelElement, &set));
  EXPECT_FALSE(tool.DisconnectNode(SelElement, nullptr));
}

TEST(DisconnectNode, PassesLoadPanelsOver) {
  auto model = Star();
  for (int const n : {1, 2}) {
    Data::LoadPanel panel;
    panel.SetTopology(Numbers{1, 2, 3});
    model.SetLoadPanel(n, panel);
  }
  // Panels 1 and 2 hold node 1, element 3 is the first element there and keeps it.
  auto const before = model;
  CDisconnect tool(model);
  EXPECT_TRUE(DisconnectNodes(tool, SelElement, {1, 2}));
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(DisconnectNode, TreatsItsNodesInAscendingNumber) {
  CZelData model;
  Testing::Grid(model, 2, 1);  // elements 1 (1 2 5 4) and 2 (2 3 6 5)
  CDisconnect tool(model);
  EXPECT_TRUE(DisconnectNodes(tool, SelElement, {5, 2}));
  EXPECT_TRUE(References(model, 1, {1, 2, 5, 4}));
  EXPECT_TRUE(References(model, 2, {7, 3, 6, 8}));
  EXPECT_EQ(model.NodeCoor(7), model.NodeCoor(2));
}

TEST(DisconnectNode, ChangesTheFirstPlaceOfAnElementThatHoldsItsNodeTwice) {
  CZelData model;
  for (int n = 1; n <= 3; ++n) NodeAt(model, n, 0, 0);
  model.SetElem(1, Element(ElementType::Beam, {1, 2}));
  model.SetElem(2, Element(ElementType::Quad4, {3, 1, 2, 1}));
  CDisconnect tool(model);
  EXPECT_TRUE(DisconnectNodes(tool, SelElement, {1}));
  EXPECT_TRUE(References(model, 2, {3, 4, 2, 1}));
}

TEST(DisconnectNode, TreatsMembers) {
  auto model = StarOfMembers();
  CDisconnect tool(model);
  EXPECT_TRUE(DisconnectNodes(tool, SelMember, {1}));
  EXPECT_EQ(TopoOf(model, 1), L"2 1");
  EXPECT_EQ(TopoOf(model, 2), L"3 5");
  EXPECT_EQ(TopoOf(model, 3), L"4 6");
}

TEST(DisconnectNode, FindsThePlaceOfAMemberBehindWords) {
  auto model = StarOfMembers();
  MemberAt(model, MembType::Generic, L"2 arc 3 1");
  CDisconnect tool(model);
  EXPECT_TRUE(DisconnectNodes(tool, SelMember, {1}));
  EXPECT_EQ(TopoOf(model, 4), L"2 arc 3 7");
}

TEST(DisconnectNode, KeepsTheChildrenOfAMember) {
  auto model = StarOfMembers();
  model.SetElem(1, Element(ElementType::Beam, {3, 1}));
  auto member = model.Member(2);
  member.AddChildElement(1, 0);
  model.SetMember(2, member);
  CDisconnect tool(model);
  DisconnectNodes(tool, SelMember, {1});
  EXPECT_EQ(model.Member(2).Elem(0), 1);
}

TEST(DisconnectNode, DoesNothingWithOtherKinds) {
  auto model = Star();
  auto const before = model;
  CDisconnect tool(model);
  tool.SetCreateJoint(true);
  tool.SetCreateSpring(true);
  tool.SetFullDisconnect(true);
  for (auto const kind : {SelNone, SelNode, SelCase}) {
    DisconnectNodes(tool, kind, {1});
    DisconnectEntities(tool, kind, {1, 2});
  }
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(DisconnectEntity, TreatsTheEntitiesOfItsSetOnly) {
  auto model = Star();
  CDisconnect tool(model);
  EXPECT_TRUE(DisconnectEntities(tool, SelElement, {2, 3, 77}));
  EXPECT_TRUE(References(model, 1, {2, 1}));
  EXPECT_TRUE(References(model, 2, {3, 1}));
  EXPECT_TRUE(References(model, 3, {4, 5}));
  auto full = Star();
  CDisconnect fullTool(full);
  fullTool.SetFullDisconnect(true);
  EXPECT_TRUE(DisconnectEntities(fullTool, SelElement, {2, 3}));
  EXPECT_TRUE(References(full, 1, {2, 1}));
  EXPECT_TRUE(References(full, 2, {3, 5}));
  EXPECT_TRUE(References(full, 3, {4, 6}));
}

TEST(DisconnectEntity, LeavesNodesAloneThatOneOfItsEntitiesHas) {
  auto model = Star();
  auto const before = model;
  CDisconnect tool(model);
  tool.SetFullDisconnect(true);
  EXPECT_FALSE(DisconnectEntities(tool, SelElement, {2}));
  EXPECT_FALSE(DisconnectEntities(tool, SelElement, {}));
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(DisconnectEntity, CountsAnEntityThatHoldsANodeTwiceOnce) {
  CZelData model;
  for (int n = 1; n <= 3; ++n) NodeAt(model, n, 0, 0);
  model.SetElem(1, Element(ElementType::Quad4, {1, 2, 3, 1}));
  auto const before = model;
  CDisconnect tool(model);
  EXPECT_FALSE(DisconnectEntities(tool, SelElement, {1}));
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(DisconnectEntity, LeavesNodesAloneThatDoNotExist) {
  auto model = Star();
  model.BlankNode(1, 1);
  auto const before = model;
  CDisconnect tool(model);
  EXPECT_FALSE(DisconnectEntities(tool, SelElement, {1, 2, 3}));
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(DisconnectEntity, TreatsMembers) {
  auto model = StarOfMembers();
  CDisconnect tool(model);
  EXPECT_TRUE(DisconnectEntities(tool, SelMember, {1, 3}));
  EXPECT_EQ(TopoOf(model, 1), L"2 1");
  EXPECT_EQ(TopoOf(model, 2), L"3 1");
  EXPECT_EQ(TopoOf(model, 3), L"4 5");
}

TEST(DisconnectEntity, GoesByTopologyWhileTheRebuildIsHeld) {
  for (auto const kind : {SelElement, SelMember}) {
    CZelData model;
    for (int n = 1; n <= 3; ++n) NodeAt(model, n, 0, 0);
    model.rebuildHold = true;
    for (int n = 1; n <= 2; ++n) model.SetElem(n, Element(ElementType::Beam, {n + 1, 1}));
    for (auto const* topology : {L"2 1", L"3 1"}) MemberAt(model, MembType::Generic, topology);
    CDisconnect tool(model);
    EXPECT_TRUE(DisconnectEntities(tool, kind, {1, 2}));
    EXPECT_EQ(model.HighestNode(), 4);
    EXPECT_TRUE(References(model, 1, {2, 1}));
    EXPECT_TRUE(References(model, 2, {3, kind == SelElement ? 4 : 1}));
    EXPECT_EQ(TopoOf(model, 1), L"2 1");
    EXPECT_EQ(TopoOf(model, 2), kind == SelMember ? L"3 4" : L"3 1");
  }
}

TEST(JointSpring, TreatsTheEntitiesOfTheSetAtOneNode) {
  auto model = Star();
  CDisconnect tool(model);
  tool.JointSpring(1);  // there is no set yet
  EXPECT_EQ(model.HighestNode(), 4);
  auto set = SetOf(SelElement, {2, 3});
  EXPECT_TRUE(tool.DisconnectEntity(SelElement, &set));
  model = Star();
  tool.JointSpring(99);
  tool.JointSpring(1);
  EXPECT_EQ(model.HighestNode(), 5);
  EXPECT_TRUE(References(model, 1, {2, 1}));
  EXPECT_TRUE(References(model, 2, {3, 1}));
  EXPECT_TRUE(References(model, 3, {4, 5}));
}

TEST(JointSpring, MeetsASpringWhoseNumberTheSetNames) {
  auto model = Star();
  CDisconnect tool(model);
  tool.SetCreateSpring(true);
  EXPECT_TRUE(DisconnectEntities(tool, SelElement, {1, 2, 3, 4}));
  // Element 2 goes to node 5 with spring 4, element 3 to node 6 with spring 5. Then 4, which holds
  // node 1 and is of the set, goes to node 7 with spring 6.
  EXPECT_TRUE(References(model, 2, {3, 5}));
  EXPECT_TRUE(References(model, 3, {4, 6}));
  EXPECT_TRUE(References(model, 4, {7, 5}));
  EXPECT_TRUE(References(model, 5, {1, 6}));
  EXPECT_TRUE(References(model, 6, {1, 7}));
  EXPECT_EQ(model.HighestElem(), 6);
}

TEST(CDisconnect, CountsTheNodesOfItsSets) {
  auto model = Star();
  NodeAt(model, 9, 9, 9);
  CDisconnect tool(model);
  Numbers nodes{7, 7};
  EXPECT_EQ(tool.NodesInSet(nodes), 0);  // no set yet
  EXPECT_EQ(nodes, Numbers());
  EXPECT_EQ(tool.NodesOnEntities(nodes), 0);
  auto set = SetOf(SelNode, {5, 1, 2});
  auto copy = model;
  CDisconnect onCopy(copy);
  onCopy.DisconnectNode(SelMember, &set);  // nothing to do; keeps the set
  EXPECT_EQ(onCopy.NodesInSet(nodes), 3);
  EXPECT_EQ(nodes, (Numbers{1, 2, 5}));
  auto entities = SetOf(SelElement, {1, 2, 3});
  tool.DisconnectEntity(SelElement, &entities);
  EXPECT_EQ(tool.NodesOnEntities(nodes), 0);  // they are apart now
  model = Star();
  EXPECT_EQ(tool.NodesOnEntities(nodes), 1);
  EXPECT_EQ(nodes, Numbers{1});
}

TEST(CDisconnect, CanBeUsedAgain) {
  auto model = Star();
  CDisconnect tool(model);
  EXPECT_TRUE(DisconnectEntities(tool, SelElement, {2, 3}));
  EXPECT_TRUE(DisconnectNodes(tool, SelElement, {1}));  // elements 1 and 2 still share it
  EXPECT_TRUE(References(model, 1, {2, 1}));
  EXPECT_TRUE(References(model, 2, {3, 6}));
  EXPECT_TRUE(References(model, 3, {4, 5}));
}

TEST(CDisconnect, FindsPlacesOfNodes) {
  auto model = StarOfMembers();
  model.SetElem(1, Element(ElementType::Beam, {4, 2}));
  int const arc = MemberAt(model, MembType::Generic, L"2 arc 3 1");
  CDisconnect const tool(model);
  EXPECT_EQ(tool.NodeOnElement(4, 1), 0);
  EXPECT_EQ(tool.NodeOnElement(2, 1), 1);
  EXPECT_EQ(tool.NodeOnElement(3, 1), -1);
  EXPECT_EQ(tool.NodeOnElement(4, 9), -1);
  EXPECT_EQ(tool.NodeOnMember(2, arc), 0);
  EXPECT_EQ(tool.NodeOnMember(3, arc), 2);  // behind the word
  EXPECT_EQ(tool.NodeOnMember(1, arc), 3);
  EXPECT_EQ(tool.NodeOnMember(4, arc), -1);
  EXPECT_EQ(tool.NodeOnMember(4, 99), -1);
}

TEST(CreateNode, CopiesANodeWithoutItsRestraint) {
  auto model = Star();
  Data::CNode node({1, 2, 3}, 0, Vbool6(L"pin"));
  node.SetName(L"support");
  node.SetSpringProperty(4);
  node.SetMassProperty(5);
  node.SetDamperProperty(6);
  node.SetMeshSize(0.5);
  model.SetNode(1, node);
  EXPECT_TRUE(CDisconnect(model).CreateNode(1, 8));
  auto expected = node;
  expected.SetRestraint(Vbool6());
  EXPECT_TRUE(model.Node(8) == expected);
  EXPECT_TRUE(model.Node(1) == node);
}

TEST(CreateJoint, TiesTheNewNodeToTheOldOneInAllDirectionsAndStages) {
  auto model = Star();
  CDisconnect tool(model);
  tool.SetCreateJoint(true);
  DisconnectNodes(tool, SelElement, {1});
  ASSERT_EQ(model.HighestJoint(), 2);
  auto const& joint = model.Joint(1);
  EXPECT_EQ(joint.Name(), L"On element 2");
  EXPECT_EQ(joint.PrimaryNode(), 1);
  EXPECT_EQ(joint.ConstrainedNode(), 5);
  EXPECT_EQ(joint.GetDirection(), Vbool6(true, true, true, true, true, true));
  EXPECT_EQ(joint.Stage().String(), L"all");
  EXPECT_EQ(joint.Stage().TypeOf(), SelNone);
  EXPECT_EQ(model.Joint(2).Name(), L"On element 3");
  EXPECT_EQ(model.Joint(2).ConstrainedNode(), 6);
  EXPECT_EQ(model.HighestElem(), 3);
}

TEST(CreateJoint, LeavesTheDirectionsOutThatNoNodeMovesIn) {
  auto model = Star();
  Data::CSpec spec;
  spec.SetStructType(StrType::PlaneXZ);
  model.SetSpec(spec);
  EXPECT_TRUE(CDisconnect(model).CreateJoint(1, 2, 7));
  // In the plane XZ a node moves in X and Z and turns about Y.
  EXPECT_EQ(model.Joint(1).GetDirection(), Vbool6(true, false, true, false, true, false));
}

TEST(CreateJoint, NamesTheMember) {
  auto model = StarOfMembers();
  CDisconnect tool(model);
  tool.SetCreateJoint(true);
  DisconnectEntities(tool, SelMember, {1, 3});
  ASSERT_EQ(model.HighestJoint(), 1);
  EXPECT_EQ(model.Joint(1).Name(), L"On member 3");
}

TEST(CreateSpring, AddsASpringElementAndItsProperty) {
  auto model = Star();
  CDisconnect tool(model);
  tool.SetCreateSpring(true);
  DisconnectNodes(tool, SelElement, {1});
  EXPECT_TRUE(References(model, 4, {1, 5}));
  EXPECT_TRUE(References(model, 5, {1, 6}));
  auto const& spring = model.Elem(4);
  EXPECT_EQ(spring.Type(), ElementType::Spring);
  EXPECT_EQ(spring.Group(), 1);
  EXPECT_EQ(spring.Property(), 1);
  EXPECT_EQ(spring.Name(), L"On element 2");
  EXPECT_EQ(model.Elem(5).Name(), L"On element 3");
  EXPECT_EQ(model.Elem(5).Property(), 2);
  ASSERT_EQ(model.HighestSpringProp(), 2);
  EXPECT_EQ(model.SpringProp(1).Name(), L"Spring 4");
  EXPECT_EQ(model.SpringProp(2).Name(), L"Spring 5");
  for (auto d = Direction::X; d <= Direction::ZZ; ++d)
    EXPECT_EQ(model.SpringProp(1).Stiffness(d), 0);
  EXPECT_EQ(model.HighestJoint(), 0);
}

TEST(CreateSpring, StandsBesideAJointWhenBothAreAskedFor) {
  auto model = Star();
  CDisconnect tool(model);
  tool.SetCreateSpring(true);
  tool.SetCreateJoint(true);
  DisconnectEntities(tool, SelElement, {1, 2});
  EXPECT_TRUE(References(model, 2, {3, 5}));
  EXPECT_TRUE(References(model, 4, {1, 5}));
  EXPECT_EQ(model.HighestJoint(), 1);
}

TEST(CreateSpring, AddsAMemberOfSpringsUnderTheNextNumberOfElements) {
  auto model = StarOfMembers();
  for (int n = 1; n <= 6; ++n) model.SetElem(n, Element(ElementType::Beam, {1, 2}));
  CDisconnect tool(model);
  tool.SetCreateSpring(true);
  DisconnectEntities(tool, SelMember, {2, 3});
  ASSERT_TRUE(model.MemberExist(7));  // 6 elements
  auto const& spring = model.Member(7);
  EXPECT_EQ(TopoOf(model, 7), L"1 5");
  EXPECT_EQ(spring.Name(), L"On member 3");
  EXPECT_EQ(static_cast<int>(spring.Type()), 0);
  EXPECT_EQ(spring.Group(), 1);
  EXPECT_EQ(spring.Property(), 1);
  EXPECT_EQ(static_cast<int>(spring.AnalysisTypes().element1D), 3);
  EXPECT_TRUE(spring.Is1D());
  EXPECT_EQ(model.SpringProp(1).Name(), L"Spring 7");
}

TEST(CreateSpring, ReplacesAMemberThatHasTheNextNumberOfElements) {
  auto model = StarOfMembers();  // no elements: the spring of member 3 takes number 1
  CDisconnect tool(model);
  tool.SetCreateSpring(true);
  DisconnectEntities(tool, SelMember, {2, 3});
  EXPECT_EQ(TopoOf(model, 1), L"1 5");
  EXPECT_EQ(model.Member(1).Name(), L"On member 3");
  EXPECT_EQ(model.HighestMember(), 3);
}

TEST(CreateSpring, PutsTheSpringsOfSeveralMembersUnderOneNumber) {
  auto model = StarOfMembers();
  model.SetElem(9, Element(ElementType::Beam, {1, 2}));
  CDisconnect tool(model);
  tool.SetCreateSpring(true);
  DisconnectNodes(tool, SelMember, {1});
  EXPECT_EQ(model.HighestMember(), 10);
  EXPECT_EQ(TopoOf(model, 10), L"1 6");  // that of member 3; the one of member 2 is gone
  EXPECT_EQ(model.HighestSpringProp(), 2);
}

}  // namespace
}  // namespace Tarvex::DisconnectTest
