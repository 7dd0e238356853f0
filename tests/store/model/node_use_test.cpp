// What is attached to nodes: after every store, in a rebuild hold, in copies. Random sequences of
// operations stand in node_use_property_test.cpp.
#include <gtest/gtest.h>

#include "store/model/zel_data.h"
#include "store/record/node.h"
#include "tests/support/builders.h"
#include "tests/support/matchers.h"

namespace Tarvex::NodeUseTest {
namespace {

using Data::CNode;
using Testing::AttachmentsFollowTopology;
using Testing::Element;
using Testing::Panel;

/// Numbers of the elements and panels at nodes 1, 2, ... to the highest: "1 2|1||3".
std::string Attached(CZelData const& model) {
  std::string text;
  for (int n = 1; n <= model.HighestNode(); ++n) {
    if (n > 1) text += '|';
    if (!model.NodeExist(n)) continue;
    std::string numbers;
    for (int const entity : model.Node(n).AttachedEnt(SelElement))
      numbers += (numbers.empty() ? "" : " ") + std::to_string(entity);
    text += numbers;
  }
  return text;
}

class Attachments : public ::testing::Test {
 protected:
  Attachments() {
    for (int i = 0; i < 5; ++i) Testing::NodeAt(model, i, i % 2, 0);
    model.SetElem(1, Element(ElementType::Beam, {1, 2}));
    model.SetElem(2, Element(ElementType::Beam, {2, 3}));
  }
  CZelData model;
};

TEST_F(Attachments, AreTheEntitiesThatNameANode) {
  EXPECT_EQ(Attached(model), "1|1 2|2||");
  EXPECT_EQ(model.Node(2).NumEntAttached(SelElement), 2);
  EXPECT_TRUE(model.Node(2).AttachedEnt(SelMember).empty());
  EXPECT_TRUE(model.Node(2).AttachedEnt(SelNode).empty());
}

TEST_F(Attachments, FollowAnElementThatIsReplaced) {
  model.SetElem(2, Element(ElementType::Tri3, {3, 4, 5}));
  EXPECT_EQ(Attached(model), "1|1|2|2|2");
  model.SetElem(2, Element(ElementType::Tri3, {5, 3, 4}));  // the same nodes in another order
  EXPECT_EQ(Attached(model), "1|1|2|2|2");
}

TEST_F(Attachments, FollowOneTopologyPlace) {
  model.SetElemTopo(1, 0, 5);
  EXPECT_EQ(Attached(model), "|1 2|2||1");
  model.SetElemTopo(1, 1, 0);
  EXPECT_EQ(Attached(model), "|2|2||1");
  model.SetEntTopo({SelElement, 1}, 1, 4);
  EXPECT_EQ(Attached(model), "|2|2|1|1");
}

TEST_F(Attachments, FollowAChangeOfType) {
  model.SetElem(3, Element(ElementType::Quad4, {1, 2, 3, 4}));
  EXPECT_EQ(Attached(model), "1 3|1 2 3|2 3|3|");
  model.SetElemType(3, ElementType::Tri3);
  EXPECT_EQ(Attached(model), "1 3|1 2 3|2 3||");
  model.SetElemType(3, ElementType::Quad8);
  EXPECT_EQ(Attached(model), "1 3|1 2 3|2 3||");
}

TEST_F(Attachments, FollowAnElementThatIsCreatedAndFilled) {
  model.CreateElem(3, ElementType::Tri3, 1, 1);
  for (int i = 0; i < 3; ++i) model.SetElemTopo(3, i, 5 - i);
  EXPECT_EQ(Attached(model), "1|1 2|2 3|3|3");
}

TEST_F(Attachments, EndWithTheElement) {
  model.BlankElem(2, 1);
  EXPECT_EQ(Attached(model), "1|1|||");
  model.BlankElem(1, 10);
  EXPECT_EQ(Attached(model), "||||");
}

TEST_F(Attachments, AreOfLoadPanelsToo) {
  model.SetLoadPanel(3, Panel({3, 4, 5}));
  EXPECT_EQ(Attached(model), "1|1 2|2 3|3|3");
  model.SetElemTopo(3, 3, 1);
  EXPECT_EQ(Attached(model), "1 3|1 2|2 3|3|3");
  model.BlankLoadPanel(3, 1);
  EXPECT_EQ(Attached(model), "1|1 2|2||");
}

TEST_F(Attachments, FollowAPanelInThePlaceOfAnElementAndBack) {
  model.SetLoadPanel(2, Panel({3, 4, 5}));
  EXPECT_EQ(Attached(model), "1|1|2|2|2");
  model.SetElem(2, Element(ElementType::Beam, {1, 5}));
  EXPECT_EQ(Attached(model), "1 2|1|||2");
  model.SetVariantElement(2, Panel({1, 2, 3}));
  model.BlankVariantElement(1, 2);
  EXPECT_EQ(Attached(model), "||||");
}

TEST_F(Attachments, ComeToANodeThatComesUnderANumberInUse) {
  model.SetElem(3, Element(ElementType::Beam, {7, 8}));
  EXPECT_EQ(Attached(model), "1|1 2|2||");
  model.SetNode(8, CNode());
  EXPECT_EQ(Attached(model), "1|1 2|2|||||3");
  model.CreateNode(7, {}, 0, Vbool6());
  EXPECT_EQ(Attached(model), "1|1 2|2||||3|3");
}

TEST_F(Attachments, GoWithTheNodeAndComeBackUnderItsNumber) {
  model.BlankNode(2, 2);
  EXPECT_EQ(Attached(model), "1||||");
  model.BlankElem(2, 1);
  model.SetElem(4, Element(ElementType::Beam, {3, 4}));
  model.SetNode(2, CNode());
  model.SetNode(3, CNode());
  EXPECT_EQ(Attached(model), "1|1|4|4|");
}

TEST_F(Attachments, OfANodeThatNothingNamesAnyLongerDoNotComeBack) {
  model.SetElem(3, Element(ElementType::Beam, {4, 6}));
  model.SetNode(6, CNode());
  model.BlankElem(3, 1);
  model.BlankNode(6, 1);
  model.SetNode(6, CNode());
  EXPECT_EQ(Attached(model), "1|1 2|2|||");
}

TEST_F(Attachments, NameAnEntityOnceForRepeatedNodes) {
  model.SetElem(3, Element(ElementType::Quad4, {4, 5, 4, 4}));
  EXPECT_EQ(Attached(model), "1|1 2|2|3|3");
  model.SetElemTopo(3, 0, 1);
  EXPECT_EQ(Attached(model), "1 3|1 2|2|3|3");
  model.SetElem(3, Element(ElementType::Quad4, {4, 5, 5, 5}));
  EXPECT_EQ(Attached(model), "1|1 2|2|3|3");
  model.SetElem(3, Element(ElementType::Quad4, {1, 5, 5, 1}));
  EXPECT_EQ(Attached(model), "1 3|1 2|2||3");
}

TEST_F(Attachments, PassOverNumbersThatAreNoNodes) {
  model.SetElem(3, Element(ElementType::Quad4, {0, -1, 4, 2000000000}));
  EXPECT_EQ(Attached(model), "1|1 2|2|3|");
  model.FlagRebuild();
  model.InitNodalUseElem();
  EXPECT_EQ(Attached(model), "1|1 2|2|3|");
}

TEST_F(Attachments, AreNotMadeByOrientationNodes) {
  model.SetElemOrientNode(1, 5);
  EXPECT_EQ(Attached(model), "1|1 2|2||");
}

TEST_F(Attachments, AreNotBroughtByARecordThatIsStored) {
  CNode const copy(model.Node(2));
  EXPECT_EQ(copy.NumEntAttached(SelElement), 2);
  model.SetNode(5, copy);
  model.SetNode(6, copy);
  model.SetNode(1, model.Node(2));
  EXPECT_EQ(Attached(model), "1|1 2|2|||");
  model.SetNode(2, CNode());
  EXPECT_EQ(Attached(model), "1|1 2|2|||");
}

TEST_F(Attachments, StayInACopyOfTheNodeAsTheyWere) {
  CNode const copy(model.Node(2));
  model.BlankElem(1, 1);
  EXPECT_EQ(copy.NumEntAttached(SelElement), 2);
  EXPECT_EQ(Attached(model), "|2|2||");
}

TEST_F(Attachments, AreNoPartOfEquality) {
  CNode const copy(model.Node(2));
  EXPECT_EQ(copy, CNode(copy.Position(), 0, Vbool6()));
  CZelData held(model);
  held.rebuildHold = true;
  held.SetElem(3, Element(ElementType::Beam, {4, 5}));
  model.SetElem(3, Element(ElementType::Beam, {4, 5}));
  EXPECT_EQ(Attached(held), "1|1 2|2||");
  EXPECT_EQ(Attached(model), "1|1 2|2|3|3");
  EXPECT_EQ(held, model);
}

TEST_F(Attachments, DoNotChangeWithShortcutsOfANode) {
  model.SetNodeCoor(2, {9, 9, 9});
  model.SetNodeAxis(2, 1);
  model.SetNodeRestraint(2, Vbool6(L"pin"));
  model.SetNodeSid(2, L"id");
  EXPECT_EQ(Attached(model), "1|1 2|2||");
}

TEST_F(Attachments, GoWhenAModuleIsRemoved) {
  model.SetLoadPanel(3, Panel({3, 4, 5}));
  model.RemoveModule(CModule::Elem);
  EXPECT_EQ(Attached(model), "||||");
}

TEST_F(Attachments, AreTrueInACopyWhicheverOfTheTwoChanges) {
  CZelData copy(model);
  auto const snapshot = model.Snapshot();
  model.SetElem(3, Element(ElementType::Beam, {1, 9}));
  copy.BlankElem(1, 1);
  EXPECT_EQ(Attached(model), "1 3|1 2|2||");
  EXPECT_EQ(Attached(copy), "|2|2||");
  EXPECT_EQ(Attached(*snapshot), "1|1 2|2||");
  // Node 9, which only one of them names, comes to all.
  model.SetNode(9, CNode());
  copy.SetNode(9, CNode());
  EXPECT_EQ(Attached(model), "1 3|1 2|2||||||3");
  EXPECT_EQ(Attached(copy), "|2|2||||||");
  model = *snapshot;
  EXPECT_EQ(Attached(model), "1|1 2|2||");
}

// The rebuild hold.

TEST_F(Attachments, StayAsLastBuiltWhileAHoldIsUp) {
  model.rebuildHold = true;
  model.SetElem(3, Element(ElementType::Beam, {4, 5}));
  model.SetElemTopo(1, 0, 3);
  model.BlankElem(2, 1);
  EXPECT_EQ(Attached(model), "1|1 2|2||");
}

TEST_F(Attachments, AreBuiltOnceByTheFirstQueryAfterAFlag) {
  model.rebuildHold = true;
  model.SetElem(3, Element(ElementType::Beam, {4, 5}));
  model.FlagRebuild();
  EXPECT_EQ(Attached(model), "1|1 2|2|3|3");
  model.BlankElem(3, 1);
  EXPECT_EQ(Attached(model), "1|1 2|2|3|3");
  model.FlagRebuild();
  EXPECT_EQ(Attached(model), "1|1 2|2||");
}

TEST_F(Attachments, AreBuiltOnceForAFlagWhateverBuildsThem) {
  model.rebuildHold = true;
  model.SetElem(3, Element(ElementType::Beam, {4, 5}));
  model.FlagRebuild();
  EXPECT_EQ(model.Node(4).NumEntAttached(SelElement), 1);  // the one query
  model.BlankElem(3, 1);
  EXPECT_EQ(Attached(model), "1|1 2|2|3|3");
  model.FlagRebuild();
  model.InitNodalUseElem();
  model.BlankElem(2, 1);
  EXPECT_EQ(Attached(model), "1|1 2|2||");
}

TEST_F(Attachments, AreBuiltByTheFirstQueryOfAHoldThatBeganWithAFlag) {
  model.FlagRebuild();
  model.rebuildHold = true;
  model.SetElem(3, Element(ElementType::Beam, {4, 5}));
  EXPECT_EQ(Attached(model), "1|1 2|2|3|3");
  model.BlankElem(3, 1);
  EXPECT_EQ(Attached(model), "1|1 2|2|3|3");
}

TEST_F(Attachments, AreBuiltAtOnceOnRequestInAHold) {
  model.rebuildHold = true;
  model.SetElem(3, Element(ElementType::Beam, {4, 5}));
  model.InitNodalUseElem();
  EXPECT_EQ(Attached(model), "1|1 2|2|3|3");
  model.BlankElem(1, 1);
  EXPECT_EQ(Attached(model), "1|1 2|2|3|3");
  model.InitNodalUseElem();
  EXPECT_EQ(Attached(model), "|2|2|3|3");
}

TEST_F(Attachments, DoNotComeToANewNodeWhileAHoldIsUp) {
  model.SetElem(3, Element(ElementType::Beam, {5, 6}));
  model.rebuildHold = true;
  model.SetNode(6, CNode());
  EXPECT_EQ(Attached(model), "1|1 2|2||3|");
  model.rebuildHold = false;
  EXPECT_EQ(Attached(model), "1|1 2|2||3|3");
}

TEST_F(Attachments, AreTrueAgainOnceTheHoldIsDown) {
  model.rebuildHold = true;
  model.SetElem(3, Element(ElementType::Beam, {4, 5}));
  model.BlankNode(3, 1);
  model.SetNode(6, CNode());
  model.SetElemTopo(1, 0, 6);
  model.rebuildHold = false;
  EXPECT_EQ(Attached(model), "|1 2||3|3|1");
  model.SetNode(3, CNode());
  EXPECT_EQ(Attached(model), "|1 2|2|3|3|1");
}

TEST_F(Attachments, AreTrueWhenTheFirstThingAfterAHoldIsAStore) {
  model.rebuildHold = true;
  model.SetElem(3, Element(ElementType::Beam, {4, 5}));
  model.rebuildHold = false;
  model.BlankElem(1, 1);
  model.SetElem(4, Element(ElementType::Beam, {4, 6}));
  model.SetNode(6, CNode());
  EXPECT_EQ(Attached(model), "|2|2|3 4|3|4");
}

TEST_F(Attachments, OfAHoldThatChangesNoTopologyStay) {
  model.rebuildHold = true;
  model.SetElemProperty(1, 9);
  model.SetElem(1, Element(ElementType::Beam, {2, 1}));
  model.SetNode(1, CNode());
  EXPECT_EQ(Attached(model), "1|1 2|2||");
}

TEST_F(Attachments, AreBuiltOverNumbersWithWideHolesToo) {
  model.SetNode(100000000, CNode({9, 9, 9}, 0, {}));
  model.SetNode(5000000, CNode({8, 8, 8}, 0, {}));
  model.rebuildHold = true;
  model.SetElem(2, Element(ElementType::Tri3, {100000000, 2, 5000000}));
  model.SetElem(3, Element(ElementType::Beam, {4999999, 100000000}));
  model.rebuildHold = false;
  EXPECT_EQ(model.Node(100000000).AttachedEnt(SelElement), (boost::container::flat_set<int>{2, 3}));
  EXPECT_EQ(model.Node(5000000).AttachedEnt(SelElement), (boost::container::flat_set<int>{2}));
  EXPECT_TRUE(AttachmentsFollowTopology(model));
}

TEST_F(Attachments, AreSeenByTheWholeTableToo) {
  model.rebuildHold = true;
  model.SetElem(3, Element(ElementType::Beam, {4, 5}));
  model.rebuildHold = false;
  EXPECT_EQ(model.Node().at(4).NumEntAttached(SelElement), 1);
}

TEST_F(Attachments, OfACopyTakenInAHoldAreTrue) {
  model.rebuildHold = true;
  model.SetElem(3, Element(ElementType::Beam, {4, 5}));
  CZelData const copy(model);
  EXPECT_FALSE(copy.rebuildHold);
  EXPECT_EQ(Attached(copy), "1|1 2|2|3|3");
  EXPECT_EQ(Attached(*model.Snapshot()), "1|1 2|2|3|3");
  EXPECT_EQ(Attached(model), "1|1 2|2||");
}

TEST_F(Attachments, AreNotBroughtUpToDateByAWalkThatAsksNothingOfThem) {
  model.rebuildHold = true;
  model.SetElem(3, Element(ElementType::Beam, {4, 5}));
  model.FlagRebuild();
  EXPECT_EQ(model.StoredNodes().Find(4)->NumEntAttached(SelElement), 0);
  EXPECT_EQ(model.StoredNodes().size(), 5u);
  EXPECT_EQ(Attached(model), "1|1 2|2|3|3");
  EXPECT_EQ(model.StoredNodes().Find(4)->NumEntAttached(SelElement), 1);
}

// The raw store.

TEST_F(Attachments, OfANodeThatIsReplacedRawStay) {
  model._SetNode(2, CNode({9, 9, 9}, 0, Vbool6()));
  EXPECT_EQ(model.NodeCoor(2), (Vec3<double>{9, 9, 9}));
  EXPECT_EQ(Attached(model), "1|1 2|2||");
}

TEST_F(Attachments, OfANodeThatIsStoredRawAreBuiltByTheNextQueryOutsideAHold) {
  model.SetElem(3, Element(ElementType::Beam, {6, 5}));
  model._SetNode(6, CNode());
  EXPECT_EQ(Attached(model), "1|1 2|2||3|3");
}

TEST_F(Attachments, OfANodeThatIsStoredRawInAHoldWaitForTheNextBuild) {
  model.SetElem(3, Element(ElementType::Beam, {6, 5}));
  model.rebuildHold = true;
  model._SetNode(6, model.Node(2));
  EXPECT_EQ(Attached(model), "1|1 2|2||3|");
  model.FlagRebuild();
  EXPECT_EQ(Attached(model), "1|1 2|2||3|3");
}

}  // namespace
}  // namespace Tarvex::NodeUseTest
