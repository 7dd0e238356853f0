#include "workbench/report/integrity.h"

#include <gtest/gtest.h>

#include <limits>

#include "store/record/axis.h"
#include "store/record/constraint_eqn.h"
#include "store/record/ent_list.h"
#include "store/record/joint.h"
#include "store/record/member.h"
#include "store/record/node.h"
#include "store/record/rigid.h"
#include "tests/support/builders.h"

namespace Tarvex::IntegrityTest {
namespace {

using Workbench::FindFaults;
using Workbench::Finding;
using Workbench::FindingText;

/// Four elements of unit squares with nothing wrong.
CZelData Sound() {
  CZelData model;
  Testing::Grid(model, 2, 2);
  return model;
}

TEST(FindFaults, FindsNoneInASoundModel) { EXPECT_TRUE(FindFaults(Sound()).empty()); }

/// A missing number planted in each reference field: table, record, field, place and target.
struct Planted {
  char const* field;
  int index;
  char const* target;
  void (*plant)(CZelData&);
};

void Change(CZelData& model, void (*change)(Data::CElement&)) {
  Data::CElement element(model.Elem(2));
  change(element);
  model.SetElem(2, element);
}

TEST(FindFaults, NamesAMissingNumberInEachReferenceFieldOfAnElement) {
  Planted const rows[] = {
      {"topology", 2, "Node", [](CZelData& m) { m.SetElemTopo(2, 2, 99); }},
      {"orientationNode", -1, "Node", [](CZelData& m) { m.SetElemOrientNode(2, 99); }},
  };
  for (auto const& row : rows) {
    auto model = Sound();
    row.plant(model);
    auto const found = FindFaults(model);
    ASSERT_EQ(found.size(), 1u) << row.field;
    EXPECT_EQ(found[0],
              (Finding{"dangling-reference", "Elem", 2, row.field, row.index, 99, row.target}));
  }
}

TEST(FindFaults, NamesTheMissingParentOfAnElementOrPanel) {
  auto model = Sound();
  Change(model, [](Data::CElement& e) { e.SetParentMember({99, 0}); });
  auto panel = Testing::Panel({1, 2, 3});
  panel.SetParentMember({98, 0});
  model.SetLoadPanel(7, panel);
  EXPECT_EQ(FindFaults(model),
            (std::vector<Finding>{
                {"dangling-reference", "Elem", 2, "parentMember.member", -1, 99, "Member"},
                {"dangling-reference", "LoadPanel", 7, "parentMember.member", -1, 98, "Member"}}));
}

TEST(FindFaults, NamesAMissingNumberInEachReferenceFieldOfAMember) {
  struct Row {
    char const* field;
    int index;
    char const* target;
    void (*plant)(Data::CMember&);
  };
  for (auto const& row :
       {Row{"topology", 2, "Node", [](Data::CMember& m) { m.SetTopo(CString(L"1 arc 99 3")); }},
        Row{"orientationNode", -1, "Node", [](Data::CMember& m) { m.SetOrientationNode(99); }},
        Row{"children", 1, "Elem", [](Data::CMember& m) {
              m.AddChildElement(2, 0);
              m.AddChildElement(99, 0);
            }}}) {
    auto model = Sound();
    Data::CMember member(MembType::Beam, 1, 0);
    member.SetTopo(CString(L"1 3"));
    row.plant(member);
    model.SetMember(5, member);
    auto const found = FindFaults(model);
    ASSERT_EQ(found.size(), 1u) << row.field;
    EXPECT_EQ(found[0],
              (Finding{"dangling-reference", "Member", 5, row.field, row.index, 99, row.target}));
  }
}

TEST(FindFaults, NamesAMissingAxisOfANode) {
  auto model = Sound();
  model.SetNodeAxis(3, 4);
  auto const found = FindFaults(model);
  ASSERT_EQ(found.size(), 1u);
  EXPECT_EQ(found[0], (Finding{"dangling-reference", "Node", 3, "axis", -1, 4, "Axis"}));
  model.SetAxis(4, Data::CAxis());
  EXPECT_TRUE(FindFaults(model).empty());
}

TEST(FindFaults, NamesAMissingNodeOfALoadPanel) {
  auto model = Sound();
  Data::LoadPanel panel;
  panel.SetTopology(std::vector{1, 2, 77});
  model.SetLoadPanel(9, panel);
  auto const found = FindFaults(model);
  ASSERT_EQ(found.size(), 1u);
  EXPECT_EQ(found[0], (Finding{"dangling-reference", "LoadPanel", 9, "topology", 2, 77, "Node"}));
}

TEST(FindFaults, CountsANegativeNumberAsDangling) {
  auto model = Sound();
  model.SetElemOrientNode(1, -3);
  ASSERT_EQ(FindFaults(model).size(), 1u);
  EXPECT_EQ(FindFaults(model)[0].value, -3);
}

TEST(FindFaults, FindsANodeThatStandsTwice) {
  auto model = Sound();
  model.SetElemTopo(1, 3, model.Elem(1).Topo(0));
  auto const found = FindFaults(model);
  ASSERT_EQ(found.size(), 1u);
  EXPECT_EQ(found[0], (Finding{"repeated-node", "Elem", 1, "topology", 3, 1, ""}));
}

TEST(FindFaults, FindsATopologyOfAnotherLengthThanTheShape) {
  auto model = Sound();
  Change(model, [](Data::CElement& e) { e.SetTopo(std::vector{1, 2, 5}); });
  auto const found = FindFaults(model);
  ASSERT_EQ(found.size(), 1u);
  EXPECT_EQ(found[0], (Finding{"wrong-topology-count", "Elem", 2, "topology", -1, 3, "",
                               "3 nodes, type 5 has 4"}));
  EXPECT_EQ(FindingText(found[0]), "wrong-topology-count: Elem 2 topology: 3 nodes, type 5 has 4");
}

TEST(FindFaults, CountsAPositionWithoutANodeAsMissing) {
  auto model = Sound();
  model.CreateElem(8, ElementType::Tri3, 1, 0);
  auto const found = FindFaults(model);
  ASSERT_EQ(found.size(), 1u);
  EXPECT_EQ(found[0], (Finding{"wrong-topology-count", "Elem", 8, "topology", -1, 0, "",
                               "0 of 3 places with a node"}));
}

TEST(FindFaults, TellsPlacesWithoutANodeAndTheCountOfTheTypeAtOnce) {
  auto model = Sound();
  Change(model, [](Data::CElement& e) { e.SetTopo(std::vector{1, 0}); });
  auto const found = FindFaults(model);
  ASSERT_EQ(found.size(), 1u);
  EXPECT_EQ(found[0].value, 1);
  EXPECT_EQ(found[0].reason, "1 of 2 places with a node, type 5 has 4");
}

TEST(FindFaults, AsksThreeNodesOfAPanelAndAnyNumberOfAnElementWithoutShape) {
  auto model = Sound();
  Data::LoadPanel panel;
  panel.SetTopology(std::vector{1, 2});
  model.SetLoadPanel(9, panel);
  Data::CElement other(1, static_cast<ElementType>(4), 1);
  other.SetTopo(std::vector{1, 2, 3, 4, 5});
  model.SetElem(10, other);
  auto const found = FindFaults(model);
  ASSERT_EQ(found.size(), 1u);
  EXPECT_EQ(found[0].table, "LoadPanel");
  EXPECT_EQ(found[0].code, "wrong-topology-count");
  EXPECT_EQ(found[0].reason, "2 nodes, a panel has 3 at least");
}

TEST(FindingText, SaysInWordsWhatEachCodeMeans) {
  struct Row {
    Finding finding;
    char const* text;
  };
  for (auto const& row :
       {Row{{"dangling-reference", "Elem", 3, "topology", 2, 99, "Node"},
            "dangling-reference: Elem 3 topology/2 names Node 99"},
        Row{{"repeated-node", "Elem", 3, "topology", 3, 1, ""},
            "repeated-node: Elem 3 topology/3: node 1 a second time"},
        Row{{"self-constraint", "ConstraintEqn", 3, "terms", 1, 7, ""},
            "self-constraint: ConstraintEqn 3 terms/1: node 7 is held by itself"},
        Row{{"dimension-not-finite", "Spec", 0, "zElevation", -1, {}, ""},
            "dimension-not-finite: Spec zElevation: it is not finite"},
        Row{{"list-reaches-itself", "List", 2, "text", -1, {}, ""},
            "list-reaches-itself: List 2 text: it leads back to itself, and selects nothing"},
        Row{{"deleted-case", "CombinationCase", 8, "description", 1, {}, ""},
            "deleted-case: CombinationCase 8 description/1: it names a case that was deleted"},
        Row{{"combination-reaches-itself", "CombinationCase", 2, "description", -1, {}, ""},
            "combination-reaches-itself: CombinationCase 2 description: it leads back to itself, "
            "and has no factors"}})
    EXPECT_EQ(FindingText(row.finding), row.text);
}

TEST(FindFaults, FindsConstraintsOfANodeWithItself) {
  auto model = Sound();
  Data::CEntList const stages(SelNone, L"all");
  for (int const constrained : {2, 1}) {
    model.SetJoint(model.HighestJoint() + 1, {L"", Vbool6(L"fix"), 1, constrained, stages});
    // An equation of other directions of one node is a rule like any other.
    Data::CConstraintEqn equation;
    equation.SetConstrainedNode(1);
    equation.SetDir(Direction::Z);
    equation.SetRhsTerm(-1, 2, Direction::Z, 1);
    equation.SetRhsTerm(-1, 1, constrained == 1 ? Direction::Z : Direction::XX, 3);
    model.SetConstraintEqn(model.HighestConstraintEqn() + 1, equation);
  }
  for (auto const* nodes : {L"1 2", L"2", L"", L"1", L"1 1"})
    model.SetRigid(model.HighestRigid() + 1,
                   {L"", Data::LinkType::All, 1, Data::CEntList(SelNode, nodes), stages});
  auto const found = FindFaults(model);
  ASSERT_EQ(found.size(), 4u);
  EXPECT_EQ(found[0], (Finding{"self-constraint", "Joint", 2, "constrainedNode", -1, 1, ""}));
  EXPECT_EQ(found[1], (Finding{"self-constraint", "ConstraintEqn", 2, "terms", 1, 1, ""}));
  EXPECT_EQ(found[2], (Finding{"self-constraint", "Rigid", 4, "constrainedNodes", -1, 1, ""}));
  EXPECT_EQ(found[3], (Finding{"self-constraint", "Rigid", 5, "constrainedNodes", -1, 1, ""}));
}

TEST(FindFaults, FindsNumbersThatAreNotFiniteWhereverTheyStand) {
  double const nan = std::numeric_limits<double>::quiet_NaN();
  double const inf = std::numeric_limits<double>::infinity();
  auto model = Sound();
  model.SetNodeCoor(2, {0, nan, 0});
  Data::COffset offset;
  offset.SetY(inf);
  model.SetElemOffset(3, offset);
  CElemConnect connect;
  connect.SetStiffness(Direction::ZZ, inf);
  model.SetElemConnect(4, 1, connect);
  auto const found = FindFaults(model);
  ASSERT_EQ(found.size(), 3u);
  EXPECT_EQ(found[0],
            (Finding{"dimension-not-finite", "Node", 2, "position", 1, std::nullopt, ""}));
  EXPECT_EQ(found[1],
            (Finding{"dimension-not-finite", "Elem", 3, "offset.y", -1, std::nullopt, ""}));
  EXPECT_EQ(found[2],
            (Finding{"dimension-not-finite", "Elem", 4, "connect.stiffness", 5, std::nullopt, ""}));
}

TEST(FindFaults, FindsListsThatReachThemselvesAndReferToNone) {
  auto model = Sound();
  model.SetList(2, Data::CEntList(SelElement, L"1 #4"));
  model.SetList(4, Data::CEntList(SelElement, L"#2 #7 \"other\""));
  model.SetList(5, Data::CEntList(SelElement, L"#4"));
  model.SetList(6, Data::CEntList(SelNode, L"#5"));  // which is of another kind
  EXPECT_EQ(
      FindFaults(model),
      (std::vector<Finding>{{"dangling-reference", "List", 4, "text", 2, 7, "List"},
                            {"dangling-reference", "List", 6, "text", 0, 5, "List"},
                            {"list-reaches-itself", "List", 2, "text", -1, std::nullopt, ""},
                            {"list-reaches-itself", "List", 4, "text", -1, std::nullopt, ""}}));
}

}  // namespace
}  // namespace Tarvex::IntegrityTest
