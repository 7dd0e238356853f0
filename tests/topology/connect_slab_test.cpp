// Slabs tied to the heads and feet of columns.
#include "tarvex/connect_slab.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

#include "store/model/zel_data.h"
#include "store/record/element.h"
#include "store/record/node.h"
#include "store/record/rigid.h"
#include "store/record/section.h"
#include "store/record/spec.h"
#include "tests/support/builders.h"
#include "tests/support/matchers.h"

namespace Tarvex::ConnectSlabTest {
namespace {

using Testing::Element;
using Testing::Grid;
using Testing::IsUnchanged;
using Testing::NodeAt;

/// Adds a beam between two nodes, of a section.
int Beam(CZelData& model, int from, int to, int section = 0) {
  int const n = model.HighestElem() + 1;
  auto element = Element(ElementType::Beam, {from, to});
  element.SetProperty(section);
  model.SetElem(n, element);
  return n;
}

int AddElement(CZelData& model, ElementType type, std::vector<int> const& nodes) {
  int const n = model.HighestElem() + 1;
  model.SetElem(n, Element(type, nodes));
  return n;
}

/// Four unit squares about node 5, at the height 0 (nodes 1 to 9, elements 1 to 4), and a column
/// from node 10, three below, up to node 5 (element 5).
CZelData SlabOnColumn(int section = 0) {
  CZelData model;
  Grid(model, 2, 2);
  Beam(model, NodeAt(model, 1, 1, -3), 5, section);
  return model;
}

/// The eight nodes of a quadratic square of 2 by 2, and node 9 three below the first.
CZelData QuadraticPoints() {
  CZelData model;
  for (auto const& p : Testing::Points{{0, 0, 0},
                                       {2, 0, 0},
                                       {2, 2, 0},
                                       {0, 2, 0},
                                       {1, 0, 0},
                                       {2, 1, 0},
                                       {1, 2, 0},
                                       {0, 1, 0},
                                       {0, 0, -3}})
    NodeAt(model, p.x, p.y, p.z);
  return model;
}

void AddSection(CZelData& model, int n, wchar_t const* description) {
  Data::CSecComp component;
  component.SetDescription(CString(description));
  model.SetSection(n, Data::CSection(L"", {component}));
}

Data::CRigid Rigid(int primary, wchar_t const* nodes) {
  return {L"before", Data::LinkType::Diaphragm, primary, Data::CEntList(SelNode, CString(nodes)),
          Data::CEntList(SelNone, CString(L"all"))};
}

/// One run on all elements, and what it counted.
struct Outcome {
  bool did;
  std::array<int, 3> counts;

  friend bool operator==(Outcome const&, Outcome const&) = default;
};
void PrintTo(Outcome const& o, std::ostream* out) {
  *out << o.did << " (" << o.counts[0] << ", " << o.counts[1] << ", " << o.counts[2] << ")";
}

Outcome RunTool(CConnectSlab& tool) {
  bool const did = tool.Do();
  return {did, {tool.NumItem(1), tool.NumItem(2), tool.NumItem(3)}};
}

Util::CSet AllElements(CZelData const& model) {
  Util::CSet set(SelElement);
  for (int n = 1; n <= model.HighestElem() + 3; ++n) set.AddTo(n);
  return set;
}

Outcome Connect(CZelData& model, ConnectMode mode = ConnectMode::AllAttached, double radius = 0,
                bool overwrite = false) {
  CConnectSlab tool(model);
  tool.SetSet(AllElements(model));
  tool.SetMode(mode);
  tool.SetRadius(radius);
  tool.SetOverwrite(overwrite);
  return RunTool(tool);
}
Outcome Overwrite(CZelData& model) { return Connect(model, ConnectMode::AllAttached, 0, true); }

std::wstring NodesOf(CZelData const& model, int rigid) {
  return model.Rigid(rigid).ConstrainedNodes().String().Str();
}

TEST(CConnectSlab, TiesTheHeadToTheNodesOfEverySlabElementThere) {
  auto model = SlabOnColumn();
  // Ends: head and foot. Connected: the head in both passes, the foot by its own node. One written.
  EXPECT_EQ(Connect(model), (Outcome{true, {2, 3, 1}}));
  ASSERT_EQ(model.HighestRigid(), 1);
  auto const& rigid = model.Rigid(1);
  EXPECT_EQ(rigid.Name(), L"Column 5");
  EXPECT_EQ(static_cast<int>(rigid.TypeOf()), 4095);
  EXPECT_EQ(rigid.PrimaryNode(), 5);
  // The node itself first, then 1 2 5 4, 2 3 6 5, 4 5 8 7, 5 6 9 8, each node once.
  EXPECT_EQ(NodesOf(model, 1), L"5 1 2 4 3 6 8 7 9");
  EXPECT_EQ(rigid.ConstrainedNodes().TypeOf(), SelNode);
  EXPECT_EQ(rigid.Stage().String(), L"all");
  EXPECT_EQ(rigid.Stage().TypeOf(), SelNone);
  EXPECT_EQ(rigid.ParentMember(), 0);
}

TEST(CConnectSlab, ChangesNothingButTheRigidConstraints) {
  auto model = SlabOnColumn();
  auto const before = model;
  Connect(model);
  EXPECT_EQ(Testing::Differences(model, before), std::vector<std::string>{"Rigid 1: came"});
  EXPECT_FALSE(model.rebuildHold);
}

TEST(CConnectSlab, TiesTheFootToo) {
  CZelData model;
  Grid(model, 1, 1);
  Beam(model, NodeAt(model, 0, 0, 3), 1);  // runs downwards: its second end is the foot
  // Connected: head 5 twice by its own node, foot 1 once.
  EXPECT_EQ(Connect(model), (Outcome{true, {2, 3, 1}}));
  EXPECT_EQ(model.Rigid(1).PrimaryNode(), 1);
  EXPECT_EQ(NodesOf(model, 1), L"1 2 4 3");
}

TEST(CConnectSlab, WritesNothingForEndsWithoutSlabAndSaysFalse) {
  CZelData model;
  Testing::BeamAt(model, {0, 0, 0}, {0, 0, 3});
  auto const before = model;
  EXPECT_EQ(Connect(model), (Outcome{false, {2, 3, 0}}));
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(CConnectSlab, SkipsAnEndThatLeadsARigidConstraint) {
  auto model = SlabOnColumn();
  model.SetRigid(1, Rigid(5, L"1"));
  auto const before = model;
  EXPECT_EQ(Connect(model), (Outcome{false, {2, 1, 0}}));  // the foot alone is taken up
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(CConnectSlab, SkipsAnEndThatIsHeldByARigidConstraint) {
  auto model = SlabOnColumn();
  model.SetRigid(1, Rigid(1, L"4 to 6"));
  auto const before = model;
  EXPECT_EQ(Connect(model), (Outcome{false, {2, 1, 0}}));
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(CConnectSlab, OverwritesTheLowestConstraintThatTheNodeLeads) {
  auto model = SlabOnColumn();
  model.SetRigid(1, Rigid(9, L"5"));
  model.SetRigid(2, Rigid(5, L"1"));
  model.SetRigid(3, Rigid(5, L"2"));
  auto const before = model;
  // The head is met again in the second pass and overwritten once more.
  EXPECT_EQ(Overwrite(model), (Outcome{true, {2, 3, 2}}));
  EXPECT_EQ(model.HighestRigid(), 3);
  EXPECT_TRUE(model.Rigid(1) == before.Rigid(1));
  EXPECT_TRUE(model.Rigid(3) == before.Rigid(3));
  EXPECT_EQ(model.Rigid(2).Name(), L"Column 5");
  EXPECT_EQ(model.Rigid(2).TypeOf(), Data::LinkType::All);
  EXPECT_EQ(NodesOf(model, 2), L"5 1 2 4 3 6 8 7 9");
}

TEST(CConnectSlab, OverwritingAppendsWhereTheNodeIsHeldButLeadsNone) {
  auto model = SlabOnColumn();
  model.SetRigid(1, Rigid(1, L"5"));
  auto const before = model;
  EXPECT_EQ(Overwrite(model), (Outcome{true, {2, 3, 2}}));
  EXPECT_EQ(model.HighestRigid(), 2);
  EXPECT_TRUE(model.Rigid(1) == before.Rigid(1));
  EXPECT_EQ(model.Rigid(2).PrimaryNode(), 5);
}

TEST(CConnectSlab, MeetsTheHeadsAgainInThePassOfFeet) {
  auto model = SlabOnColumn();
  Beam(model, 5, NodeAt(model, 1, 1, 3));  // element 6 stands on the head of element 5
  // First pass: heads 5 and 11. Second: both again, foot 10 of 5; foot 5 of 6 is held by then.
  EXPECT_EQ(Connect(model), (Outcome{true, {4, 5, 1}}));
  EXPECT_EQ(model.Rigid(1).Name(), L"Column 5");
}

TEST(CConnectSlab, SkipsAFootThatIsHeldByAConstraintOfThisRun) {
  auto model = SlabOnColumn();
  Beam(model, 9, NodeAt(model, 2, 2, 3));  // element 6 stands on a corner of the slab
  CConnectSlab tool(model);
  tool.SetSet(AllElements(model));
  // First pass: heads 5 and 11. Second: both again and foot 10; foot 9 is held by "Column 5".
  EXPECT_EQ(RunTool(tool), (Outcome{true, {4, 5, 1}}));
  EXPECT_EQ(NodesOf(model, 1), L"5 1 2 4 3 6 8 7 9");
  ASSERT_EQ(tool.PassedOver().size(), 1U);
  EXPECT_EQ(tool.PassedOver()[0].column, 6);
  EXPECT_EQ(tool.PassedOver()[0].node, 9);
  // Each run tells its own: heads 5 and 9 are held now, and so is foot 9 of 6.
  tool.Do();
  ASSERT_EQ(tool.PassedOver().size(), 2U);
  EXPECT_EQ(tool.PassedOver()[0].node, 5);
  EXPECT_EQ(tool.PassedOver()[1].node, 9);
  tool.SetOverwrite(true);
  tool.Do();
  EXPECT_TRUE(tool.PassedOver().empty());
}

TEST(CConnectSlab, OverwritingLetsTheColumnAboveHaveTheLastWord) {
  auto model = SlabOnColumn();
  Beam(model, 5, NodeAt(model, 1, 1, 3));
  // Second pass: 5 and 11 again, foot 10, foot 5. Written: once, then twice.
  EXPECT_EQ(Overwrite(model), (Outcome{true, {4, 6, 3}}));
  EXPECT_EQ(model.HighestRigid(), 1);
  EXPECT_EQ(model.Rigid(1).Name(), L"Column 6");
}

TEST(CConnectSlab, GivesTwoColumnsWithOneHeadOneConstraint) {
  auto model = SlabOnColumn();
  Beam(model, NodeAt(model, 1, 1, -4), 5);  // element 6 inside element 5
  EXPECT_EQ(Connect(model), (Outcome{true, {4, 6, 1}}));
  EXPECT_EQ(model.HighestRigid(), 1);
  EXPECT_EQ(model.Rigid(1).Name(), L"Column 5");
}

TEST(CConnectSlab, TakesTheSecondEndOfALevelColumnInBothPasses) {
  CZelData model;
  Grid(model, 1, 1);
  Data::CSpec spec;
  spec.SetGenTol(TolType::Vertical, 2);  // every line is vertical and every plate level
  model.SetSpec(spec);
  AddElement(model, ElementType::Beam, {1, 2});
  // Taken up: 2 in the first pass; in the second it is held.
  EXPECT_EQ(Connect(model), (Outcome{true, {2, 2, 1}}));
  EXPECT_EQ(model.Rigid(1).PrimaryNode(), 2);
  CZelData turned;
  Grid(turned, 1, 1);
  turned.SetSpec(spec);
  AddElement(turned, ElementType::Beam, {2, 1});
  EXPECT_EQ(Overwrite(turned), (Outcome{true, {2, 3, 3}}));
  EXPECT_EQ(turned.HighestRigid(), 1);
  EXPECT_EQ(turned.Rigid(1).PrimaryNode(), 1);
}

// What is a column.

TEST(CConnectSlab, TakesVerticalBeamsOnly) {
  for (auto const type : {ElementType::Bar, ElementType::Link, ElementType::Spring}) {
    auto model = SlabOnColumn();
    model.SetElemType(5, type);
    EXPECT_EQ(Connect(model), (Outcome{false, {0, 0, 0}}));
  }
  auto sloping = SlabOnColumn();
  sloping.SetNodeCoor(10, {1.1, 1, -3});
  EXPECT_EQ(Connect(sloping), (Outcome{false, {0, 0, 0}}));
  auto lost = SlabOnColumn();
  lost.BlankNode(10, 1);
  EXPECT_EQ(Connect(lost), (Outcome{false, {0, 0, 0}}));
}

TEST(CConnectSlab, TakesTheColumnsOfItsSetOnly) {
  auto model = SlabOnColumn();
  CConnectSlab tool(model);
  EXPECT_EQ(RunTool(tool), (Outcome{false, {0, 0, 0}}));
  Util::CSet set(SelElement);
  for (int const n : {1, 2, 99}) set.AddTo(n);
  tool.SetSet(set);
  EXPECT_EQ(RunTool(tool), (Outcome{false, {0, 0, 0}}));
  set.AddTo(5);  // the slab need not be in it
  tool.SetSet(set);
  EXPECT_EQ(RunTool(tool), (Outcome{true, {2, 3, 1}}));
}

// What is a slab element.

TEST(CConnectSlab, LeavesSlopingElementsOut) {
  auto model = SlabOnColumn();
  model.SetNodeCoor(9, {2, 2, 0.1});  // element 4 is no longer level
  Connect(model);
  EXPECT_EQ(NodesOf(model, 1), L"5 1 2 4 3 6 8 7");
}

TEST(CConnectSlab, PassesLoadPanelsAndLinesOver) {
  auto model = SlabOnColumn();
  model.BlankElem(1, 4);
  Data::LoadPanel panel;
  panel.SetTopology(std::vector<int>{1, 2, 5, 4});
  model.SetLoadPanel(7, panel);
  AddElement(model, ElementType::Beam, {5, 6});
  auto const before = model;
  EXPECT_EQ(Connect(model), (Outcome{false, {2, 3, 0}}));
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(CConnectSlab, TiesMidSideNodesToo) {
  auto model = QuadraticPoints();
  AddElement(model, ElementType::Quad8, {1, 2, 3, 4, 5, 6, 7, 8});
  Beam(model, 9, 1);
  Connect(model);
  EXPECT_EQ(NodesOf(model, 1), L"1 2 3 4 5 6 7 8");
}

TEST(CConnectSlab, LeavesElementsOutThatLackACorner) {
  auto model = SlabOnColumn();
  model.BlankNode(9, 1);       // element 4
  model.SetElemTopo(1, 0, 0);  // element 1
  Connect(model);
  EXPECT_EQ(NodesOf(model, 1), L"5 2 3 6 4 8 7");
}

TEST(CConnectSlab, LeavesMidSideNodesOutThatDoNotExist) {
  auto model = QuadraticPoints();
  AddElement(model, ElementType::Quad8, {1, 2, 3, 4, 5, 0, 7, 8});
  model.BlankNode(7, 1);
  Beam(model, 9, 1);
  Connect(model);
  EXPECT_EQ(NodesOf(model, 1), L"1 2 3 4 5 8");
}

// Radii.

TEST(CConnectSlab, TakesElementsWithinTheRadiusThatWasSetTheLimitIncluded) {
  // The centres of the four squares stand sqrt(0.5^2 + 0.5^2) from node 5.
  double const limit = std::sqrt(0.5);
  auto model = SlabOnColumn();
  EXPECT_EQ(Connect(model, ConnectMode::WithinRadius, limit), (Outcome{true, {2, 3, 1}}));
  auto out = SlabOnColumn();
  EXPECT_EQ(Connect(out, ConnectMode::WithinRadius, std::nextafter(limit, 0.0)),
            (Outcome{false, {2, 3, 0}}));
  // Without a mode for it the radius is not looked at.
  EXPECT_EQ(Connect(out, ConnectMode::AllAttached, 0.1), (Outcome{true, {2, 3, 1}}));
}

TEST(CConnectSlab, MeasuresEachElementByItself) {
  auto model = SlabOnColumn();
  model.SetNodeCoor(9, {3, 3, 0});  // centre of element 4: ((1+2+3+1)/4, same) = (1.75, 1.75)
  Connect(model, ConnectMode::WithinRadius, 0.8);
  EXPECT_EQ(NodesOf(model, 1), L"5 1 2 4 3 6 8 7");  // |(0.75, 0.75)| = 1.06
}

TEST(CConnectSlab, TakesAQuarterOfTheAreaOfTheBoxAroundTheSectionForTheRadius) {
  // sqrt(0.5) = 0.7071 is asked for; 0.25 * 2 * 1.5 = 0.75 and 0.25 * 2 * 1.4 = 0.7.
  for (auto const& [description, isWithin] :
       {std::pair(L"rectangle 2 1.5", true), std::pair(L"rectangle 1.5 2", true),
        std::pair(L"rectangle 2 1.4", false)}) {
    auto model = SlabOnColumn(3);
    AddSection(model, 3, description);
    EXPECT_EQ(Connect(model, ConnectMode::WithinSection, 100).did, isWithin);
  }
}

TEST(CConnectSlab, TakesTheGreatestSectionOfTheColumnsAtTheNode) {
  auto model = SlabOnColumn(1);
  Beam(model, 5, NodeAt(model, 1, 1, 3), 2);  // stands on node 5 with its foot
  AddSection(model, 1, L"rectangle 0.3 0.3");
  AddSection(model, 2, L"rectangle 2 2");  // 1.0
  EXPECT_EQ(Connect(model, ConnectMode::WithinSection).counts[2], 1);
  EXPECT_EQ(model.Rigid(1).Name(), L"Column 5");
  // The greatest, not the last.
  auto turned = SlabOnColumn(2);
  Beam(turned, 5, NodeAt(turned, 1, 1, 3), 1);
  AddSection(turned, 1, L"rectangle 0.3 0.3");
  AddSection(turned, 2, L"rectangle 2 2");
  EXPECT_EQ(Connect(turned, ConnectMode::WithinSection).counts[2], 1);
  // Columns outside the set do not count.
  auto alone = SlabOnColumn(1);
  Beam(alone, 5, NodeAt(alone, 1, 1, 3), 2);
  AddSection(alone, 1, L"rectangle 0.3 0.3");
  AddSection(alone, 2, L"rectangle 2 2");
  CConnectSlab tool(alone);
  Util::CSet set(SelElement);
  set.AddTo(5);
  tool.SetSet(set);
  tool.SetMode(ConnectMode::WithinSection);
  EXPECT_FALSE(tool.Do());
}

TEST(CConnectSlab, TakesTheSectionsOfVerticalBeamsOnlyForTheRadius) {
  for (auto const type : {ElementType::Beam, ElementType::Bar}) {
    auto model = SlabOnColumn(1);
    AddSection(model, 1, L"rectangle 0.3 0.3");
    AddSection(model, 2, L"rectangle 2 2");  // 1.0, which would do
    int const level = Beam(model, 5, 6, 2);
    model.SetElemType(level, type);
    EXPECT_FALSE(Connect(model, ConnectMode::WithinSection).did);
  }
  auto bar = SlabOnColumn(1);
  AddSection(bar, 1, L"rectangle 0.3 0.3");
  AddSection(bar, 2, L"rectangle 2 2");
  int const above = Beam(bar, 5, NodeAt(bar, 1, 1, 3), 2);
  bar.SetElemType(above, ElementType::Bar);
  EXPECT_FALSE(Connect(bar, ConnectMode::WithinSection).did);
}

TEST(CConnectSlab, TakesTheSectionAtTheFirstEndOfTheColumnForTheRadius) {
  // 0.25 * 2 * 1.5 = 0.75 at the start, 0.25 * 1.5 * 1.25 = 0.47 halfway, 0.25 at the end.
  auto model = SlabOnColumn(3);
  AddSection(model, 3, L"rectangle 2 1.5 to 1 1");
  EXPECT_TRUE(Connect(model, ConnectMode::WithinSection).did);
  auto turned = SlabOnColumn(3);
  AddSection(turned, 3, L"rectangle 1 1 to 2 1.5");
  EXPECT_FALSE(Connect(turned, ConnectMode::WithinSection).did);
}

TEST(CConnectSlab, TakesARadiusOfZeroWithoutASection) {
  auto model = SlabOnColumn(3);
  EXPECT_EQ(Connect(model, ConnectMode::WithinSection, 100), (Outcome{false, {2, 3, 0}}));
}

TEST(CConnectSlab, OverwritesTheRadiusThatWasSetByTheSectionsOne) {
  auto model = SlabOnColumn(3);
  AddSection(model, 3, L"rectangle 1 1");
  CConnectSlab tool(model);
  tool.SetSet(AllElements(model));
  tool.SetRadius(100);
  tool.SetMode(ConnectMode::WithinSection);
  EXPECT_FALSE(tool.Do());
  tool.SetMode(ConnectMode::WithinRadius);
  EXPECT_FALSE(tool.Do());  // 0.25 now
  tool.SetRadius(100);
  EXPECT_TRUE(tool.Do());
}

TEST(CConnectSlab, CountsAnewInEachRunAndNothingForOtherIndices) {
  auto model = SlabOnColumn();
  CConnectSlab tool(model);
  for (int i = -1; i <= 5; ++i) EXPECT_EQ(tool.NumItem(i), 0);
  tool.SetSet(AllElements(model));
  EXPECT_EQ(RunTool(tool), (Outcome{true, {2, 3, 1}}));
  EXPECT_EQ(RunTool(tool), (Outcome{false, {2, 1, 0}}));  // the head is held now
  for (int const i : {-1, 0, 4}) EXPECT_EQ(tool.NumItem(i), 0);
}

TEST(CConnectSlab, SeesElementsThatCameDuringAHoldOfTheRebuild) {
  auto model = SlabOnColumn();
  auto const corner = model.Elem(4);  // 5 6 9 8
  model.BlankElem(4, 1);
  model.rebuildHold = true;
  model.SetElem(4, corner);
  Connect(model);
  EXPECT_EQ(NodesOf(model, 1), L"5 1 2 4 3 6 8 7 9");
}

TEST(CConnectSlab, ClearsTheRebuildHoldPlainly) {
  auto model = SlabOnColumn();
  model.rebuildHold = true;
  Connect(model);
  EXPECT_FALSE(model.rebuildHold);
}

}  // namespace
}  // namespace Tarvex::ConnectSlabTest
