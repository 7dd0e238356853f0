#include "store/model/constraint_queries.h"

#include <gtest/gtest.h>

#include "store/model/list_expansion.h"
#include "store/model/undo_step.h"
#include "store/model/zel_data.h"
#include "store/record/assembly.h"
#include "store/record/beam_loads.h"
#include "store/record/body_loads.h"
#include "store/record/constraint_eqn.h"
#include "store/record/influences.h"
#include "store/record/interactions.h"
#include "store/record/joint.h"
#include "store/record/member.h"
#include "store/record/node.h"
#include "store/record/node_load.h"
#include "store/record/restraints.h"
#include "store/record/rigid.h"
#include "store/record/task_slot.h"
#include "store/record/views.h"
#include "tests/support/builders.h"
#include "tests/support/random_model.h"

namespace Tarvex::ConstraintQueriesTest {
namespace {

using Data::CEntList;

CEntList Nodes(wchar_t const* text) { return {SelNode, CString(text)}; }
CEntList Stages(wchar_t const* text) { return {SelNone, CString(text)}; }

/// Nodes 1 to 20 that nothing uses.
CZelData Loose() {
  CZelData model;
  for (int n = 1; n <= 20; ++n) model.SetNode(n, Data::CNode({1.0 * n, 0, 0}, 0, Vbool6()));
  return model;
}

/// The nodes 1 to 21 of which a query is true.
template <class Query>
std::vector<int> Where(Query&& query) {
  std::vector<int> nodes;
  for (int n = -1; n <= 21; ++n)
    if (query(n)) nodes.push_back(n);
  return nodes;
}
std::vector<int> Used(CZelData const& model) {
  return Where([&](int n) { return model.NodeIsUsed(n); });
}
std::vector<int> Constrained(CZelData const& model, int stage) {
  return Where([&](int n) { return model.NodeIsInConstraint(n, stage); });
}
using Numbers = std::vector<int>;

/// A change of a model without uses, and the nodes that it makes used.
struct Use {
  char const* what;
  void (*make)(CZelData&);
  Numbers used;
};

Use const kUses[] = {
    {"topology of an element",
     [](CZelData& m) {
       m.SetElem(1, Testing::Element(ElementType::Beam, {3, 4}));
     },
     {3, 4}},
    {"orientation of an element",
     [](CZelData& m) {
       auto element = Testing::Element(ElementType::Beam, {0, 0});
       element.SetOrientationNode(7);
       m.SetElem(1, element);
     },
     {7}},
    {"topology of a panel",
     [](CZelData& m) {
       m.SetLoadPanel(1, Testing::Panel({3, 5, 9}));
     },
     {3, 5, 9}},
    {"topology and orientation of a member",
     [](CZelData& m) {
       Data::CMember member(1, 1);
       member.SetTopo(CString(L"3 4"));
       member.SetOrientationNode(6);
       m.SetMember(1, member);
     },
     {3, 4, 6}},
    {"joint",
     [](CZelData& m) {
       m.SetJoint(1, {L"", Vbool6(), 2, 5, CEntList()});
     },
     {2, 5}},
    {"rigid constraint",
     [](CZelData& m) {
       m.SetRigid(1, {L"", Data::LinkType::Inert, 2, Nodes(L"5 to 7 not 6 19"), CEntList()});
     },
     {2, 5, 7, 19}},
    {"rigid constraint with a list that needs the model",
     [](CZelData& m) {
       m.SetRigid(1, {L"", Data::LinkType::All, 2, Nodes(L"all not (4 to 20)"), Stages(L"2")});
     },
     {1, 2, 3}},
    {"constraint equation",
     [](CZelData& m) {
       Data::CConstraintEqn equation;
       equation.SetConstrainedNode(8);
       equation.SetRhsTerm(-1, 9, Direction::X, 1);
       equation.SetRhsTerm(-1, 10, Direction::X, 0);
       m.SetConstraintEqn(1, equation);
     },
     {8, 9, 10}},
    {"nodes tied to elements",
     [](CZelData& m) {
       Data::CTiedInterface tied;
       tied.SetPrimaryElements({SelElement, L"3"});
       tied.SetConstrainedEntities(Nodes(L"11 12"));
       m.SetTiedInterface(1, tied);
     },
     {11, 12}},
    {"elements tied to elements",
     [](CZelData& m) {
       Data::CTiedInterface tied;
       tied.SetConstrainedEntities({SelElement, L"11 12"});
       m.SetTiedInterface(1, tied);
     },
     {}},
    {"raft",
     [](CZelData& m) {
       m.SetRaftInteraction(1, {Nodes(L"4 to 6"), 0, 0, 0, 0, 0});
     },
     {4, 5, 6}},
    {"raft with a list that needs the model",
     [](CZelData& m) {
       m.SetRaftInteraction(1, {Nodes(L"18 to *"), 0, 0, 0, 0, 0});
     },
     {18, 19, 20}},
    {"pile",
     [](CZelData& m) { m.SetPileInteraction(1, Data::CPileInteraction(Nodes(L"4 6"))); },
     {4, 6}},
    {"influence",
     [](CZelData& m) {
       m.SetInfluenceNode(1, {L"", 13});
     },
     {13}},
    {"influence of an element",
     [](CZelData& m) {
       m.SetInfluenceBeam(1, {L"", 13});
     },
     {}},
    {"assembly",
     [](CZelData& m) {
       Data::CAssembly assembly;
       assembly.SetEntities(Nodes(L"1 2"));
       assembly.SetTopo(0, 4);
       assembly.SetTopo(1, 5);
       assembly.SetTopo(2, 6);
       assembly.SetIntTopo(Nodes(L"8 to 9"));
       m.SetAssembly(1, assembly);
     },
     {1, 2, 4, 5, 6, 8, 9}},
    {"assembly of elements",
     [](CZelData& m) {
       Data::CAssembly assembly;
       assembly.SetEntities({SelElement, L"1 2"});
       m.SetAssembly(1, assembly);
     },
     {}},
    {"restraint that names nodes singly and by a range",
     [](CZelData& m) {
       m.SetGenRest(1, {L"", Nodes(L"14 1 to 5 or 16"), Vbool6(), CEntList()});
     },
     {14, 16}},
    {"restraint of all",
     [](CZelData& m) {
       m.SetGenRest(1, {L"", Nodes(L"all"), Vbool6(), CEntList()});
     },
     {}},
    {"node load",
     [](CZelData& m) {
       m.SetNodeLoad(1, {Nodes(L"14 1 to 5"), 1, 0, Direction::X, 1, CModule::NodeLoad});
     },
     {14}},
    {"applied displacement",
     [](CZelData& m) {
       m.SetAppliedDisplacement(1, {Nodes(L"X3 15"), 1, 0, Direction::X, 1, CModule::NodeLoad});
     },
     {15}},
    {"settlement",
     [](CZelData& m) {
       m.SetSettlement(1, {Nodes(L"16 all"), 1, 0, Direction::X, 1, CModule::NodeLoad});
     },
     {16}},
    {"gravity on nodes",
     [](CZelData& m) {
       Data::CGravityLoad load;
       load.SetLoadedEntities({SelElement, L"4 5"});
       load.SetLoadedNodes(Nodes(L"17 all not 2 to 3"));
       m.SetGravityLoad(1, load);
     },
     {17}},
    {"load on elements",
     [](CZelData& m) {
       Data::CBeamLoad load;
       load.SetLoadedEntities({SelElement, L"4 5"});
       m.SetBeamLoad(1, load);
     },
     {}},
    {"relative displacements of a task",
     [](CZelData& m) {
       CZdSpecTask task;
       task.SetRelDisp(0, CRelDisp(0, 4, 5));
       task.SetRelDisp(1, CRelDisp(0, 6, 0));
       m.SetAnalysisTask(1, task);
     },
     {4, 5, 6}},
    {"task of another class", [](CZelData& m) { m.SetAnalysisTask(1, CZssTask()); }, {}},
    {"saved list", [](CZelData& m) { m.SetList(1, Nodes(L"4 5")); }, {}},
    {"view",
     [](CZelData& m) {
       Data::CGrView view;
       view.SetNodes(Nodes(L"4 5"));
       m.SetGrView(1, view);
     },
     {}},
};

TEST(NodeIsUsed, IsTrueOfWhatEachKindOfRecordUses) {
  EXPECT_EQ(Used(Loose()), Numbers());
  for (auto const& use : kUses) {
    SCOPED_TRACE(use.what);
    auto model = Loose();
    EXPECT_FALSE(model.NodeIsUsed(3));  // so that what is known of the model has to be built anew
    auto const before = model.Snapshot();
    use.make(model);
    EXPECT_EQ(Used(model), use.used);
    EXPECT_EQ(Used(*before), Numbers());
    model = *before;
    EXPECT_EQ(Used(model), Numbers());
  }
}

TEST(NodeIsUsed, IsTrueOfAMissingNodeThatAConstraintNames) {
  CZelData model;
  model.SetJoint(1, {L"", Vbool6(), 2, 5, CEntList()});
  EXPECT_TRUE(model.NodeIsUsed(2));
  EXPECT_FALSE(model.NodeIsUsed(3));
  EXPECT_FALSE(model.NodeIsUsed(0));
}

TEST(NodeIsUsed, FollowsChangesOfConstraintsDuringAHoldToo) {
  auto model = Loose();
  model.SetRigid(1, {L"", Data::LinkType::All, 2, Nodes(L"3 4"), CEntList()});
  EXPECT_EQ(Used(model), (Numbers{2, 3, 4}));
  model.rebuildHold = true;
  model.SetRigidConstrainedNodes(1, Nodes(L"3"));
  model.InitNodalUseRigid();
  EXPECT_EQ(Used(model), (Numbers{2, 3}));
  model.DeleteRigid(1, 1);
  EXPECT_EQ(Used(model), Numbers());
}

TEST(NodeIsUsed, HasElementsAsTheyWereDuringAHoldUntilTheirUseIsBuilt) {
  auto const make = [](int orientation) {
    auto element = Testing::Element(ElementType::Beam, {3, 4});
    element.SetOrientationNode(orientation);
    return element;
  };
  auto model = Loose();
  model.SetElem(1, make(7));
  EXPECT_EQ(Used(model), (Numbers{3, 4, 7}));
  model.rebuildHold = true;
  auto changed = make(8);
  changed.SetTopo(0, 5);
  model.SetElem(1, changed);
  EXPECT_EQ(Used(model), (Numbers{3, 4, 7}));
  model.InitNodalUseElem();
  EXPECT_EQ(Used(model), (Numbers{4, 5, 8}));
  model.SetElem(1, make(9));
  model.FlagRebuild();
  EXPECT_EQ(Used(model), (Numbers{3, 4, 9}));
  model.SetElem(1, make(10));
  model.rebuildHold = false;
  EXPECT_EQ(Used(model), (Numbers{3, 4, 10}));
}

TEST(NodeIsInConstraint, IsTrueOfPrimaryAndConstrainedNodesInTheStagesOfTheConstraint) {
  auto model = Loose();
  model.SetRigid(1, {L"", Data::LinkType::All, 1, Nodes(L"2 to 3"), Stages(L"all")});
  model.SetRigid(2, {L"", Data::LinkType::All, 4, Nodes(L"all not (1 to 18)"), Stages(L"2")});
  model.SetJoint(1, {L"", Vbool6(), 5, 6, Stages(L"0 3")});
  Data::CConstraintEqn equation;
  equation.SetConstrainedNode(7);
  equation.SetRhsTerm(-1, 8, Direction::X, 1);
  equation.SetStage(Stages(L"2 to 3"));
  model.SetConstraintEqn(1, equation);
  Data::CTiedInterface tied;
  tied.SetConstrainedEntities(Nodes(L"9"));
  tied.SetStage(Stages(L"4"));
  model.SetTiedInterface(1, tied);
  EXPECT_EQ(Constrained(model, -1), (Numbers{1, 2, 3, 4, 5, 6, 7, 8, 9, 19, 20}));
  EXPECT_EQ(Constrained(model, 0), (Numbers{1, 2, 3, 5, 6}));
  EXPECT_EQ(Constrained(model, 1), (Numbers{1, 2, 3}));
  EXPECT_EQ(Constrained(model, 2), (Numbers{1, 2, 3, 4, 7, 8, 19, 20}));
  EXPECT_EQ(Constrained(model, 3), (Numbers{1, 2, 3, 5, 6, 7, 8}));
  EXPECT_EQ(Constrained(model, 4), (Numbers{1, 2, 3, 9}));
}

TEST(NodeIsInConstraint, IsFalseOfRestraintsAndLoads) {
  auto model = Loose();
  model.SetGenRest(1, {L"", Nodes(L"1"), Vbool6(L"pin"), Stages(L"all")});
  model.SetNodeLoad(1, {Nodes(L"2"), 1, 0, Direction::X, 1, CModule::NodeLoad});
  EXPECT_EQ(Constrained(model, -1), Numbers());
}

TEST(NodeIsInConstraint, FollowsNodesThatComeWhereAListNamesAll) {
  auto model = Loose();
  model.SetRigid(1, {L"", Data::LinkType::All, 1, Nodes(L"all"), Stages(L"all")});
  EXPECT_FALSE(model.NodeIsInConstraint(21, 0));
  model.SetNode(21, Data::CNode());
  EXPECT_TRUE(model.NodeIsInConstraint(21, 0));
}

TEST(NodeIsInConstraint, ComesBackByUndo) {
  auto model = Loose();
  {
    CUndoStep step(model, false);
    model.SetJoint(1, {L"", Vbool6(), 5, 6, CEntList()});
    EXPECT_TRUE(model.NodeIsInConstraint(5, -1));
    step.Accept();
  }
  model.Undo();
  EXPECT_FALSE(model.NodeIsInConstraint(5, -1));
  model.Redo();
  EXPECT_TRUE(model.NodeIsInConstraint(5, -1));
}

TEST(RigidIsActive, NeedsATypeNodesAndTheStage) {
  auto const model = Loose();
  Data::CRigid const active(L"", Data::LinkType::Diaphragm, 1, Nodes(L"2 30"), Stages(L"0 2"));
  EXPECT_TRUE(model.RigidIsActive(active, 0));
  EXPECT_TRUE(model.RigidIsActive(active, 2));
  EXPECT_TRUE(model.RigidIsActive(active, -1));
  EXPECT_FALSE(model.RigidIsActive(active, 1));
  auto rigid = active;
  rigid.SetType(Data::LinkType::Inert);
  EXPECT_FALSE(model.RigidIsActive(rigid, 0));
  rigid = active;
  rigid.SetPrimaryNode(30);
  EXPECT_FALSE(model.RigidIsActive(rigid, 0));
  rigid = active;
  rigid.SetConstrainedNodes(Nodes(L"30"));
  EXPECT_FALSE(model.RigidIsActive(rigid, 0));
  rigid = active;
  rigid.SetStage(Stages(L"all"));
  for (int const stage : {-1, 0, 1, 7}) EXPECT_TRUE(model.RigidIsActive(rigid, stage)) << stage;
}

/// Whether a plain walk finds a node in a joint, rigid constraint or equation.
bool PlainlyLinked(CZelData const& model, int node) {
  for (auto const& joint : model.Joint())
    if (joint.PrimaryNode() == node || joint.ConstrainedNode() == node) return true;
  for (auto const& rigid : model.Rigid())
    if (rigid.PrimaryNode() == node ||
        Util::IsItemIncluded(rigid.ConstrainedNodes(), {SelNode, node}, model))
      return true;
  for (auto const& equation : model.ConstraintEqn()) {
    if (equation.ConstrainedNode() == node) return true;
    for (auto const& term : equation.Terms())
      if (term.Node() == node) return true;
  }
  for (auto const& tied : model.TiedInterface())
    if (Util::IsItemIncluded(tied.ConstrainedEntities(), {SelNode, node}, model)) return true;
  return false;
}

TEST(NodeIsInConstraint, AgreesWithAPlainWalkOfRandomModels) {
  Testing::ForEachRandomModel(40, [](CZelData& model, Testing::Random& random) {
    for (int round = 0; round < 3; ++round) {
      for (int n = 1; n <= model.HighestNode() + 2; ++n)
        EXPECT_EQ(model.NodeIsInConstraint(n, -1), PlainlyLinked(model, n)) << n;
      model.DeleteRigid(random.Int(1, 4), 1);
      model.DeleteJoint(1, random.Int(0, 1));
      model.BlankNode(random.Int(1, model.HighestNode()), 1);
    }
  });
}

}  // namespace
}  // namespace Tarvex::ConstraintQueriesTest
