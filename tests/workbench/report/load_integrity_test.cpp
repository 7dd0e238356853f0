// A missing number planted in each reference and each list of the loads and constraints.
#include <gtest/gtest.h>

#include "store/record/axis.h"
#include "store/record/beam_loads.h"
#include "store/record/body_loads.h"
#include "store/record/constraint_eqn.h"
#include "store/record/face_loads.h"
#include "store/record/grid_loads.h"
#include "store/record/influences.h"
#include "store/record/interactions.h"
#include "store/record/joint.h"
#include "store/record/node_load.h"
#include "store/record/restraints.h"
#include "store/record/rigid.h"
#include "store/record/stages.h"
#include "tests/support/builders.h"
#include "workbench/report/field_changes.h"
#include "workbench/report/integrity.h"
#include "workbench/report/model_changes.h"

namespace Tarvex::LoadIntegrityTest {
namespace {

using Data::CEntList;
using Workbench::FindFaults;
using Workbench::Finding;

CEntList Nodes(wchar_t const* text) { return {SelNode, CString(text)}; }
CEntList Elements(wchar_t const* text) { return {SelElement, CString(text)}; }
CEntList Members(wchar_t const* text) { return {SelMember, CString(text)}; }

/// Nodes 1 to 9 and elements 1 to 4.
CZelData Sound() {
  CZelData model;
  Testing::Grid(model, 2, 2);
  return model;
}

/// Puts a changed record behind a new one: it is number 2.
template <class R, class Change>
void Put(CZelData& model, void (CZelData::*set)(int, R const&, SidMode), Change&& change) {
  R record;
  (model.*set)(1, record, SidMode::Keep);
  change(record);
  (model.*set)(2, record, SidMode::Keep);
}

/// Sets a list and an axis of a load on elements, where it has one.
template <class R>
void PutList(CZelData& model, void (CZelData::*set)(int, R const&, SidMode), CEntList const& list) {
  Put<R>(model, set, [&](R& r) { r.SetLoadedEntities(list); });
}
template <class R>
void PutAxis(CZelData& model, void (CZelData::*set)(int, R const&, SidMode)) {
  Put<R>(model, set, [](R& r) { r.SetAxis(91); });
}

template <class R>
void PutStage(CZelData& model, void (CZelData::*set)(int, R const&, SidMode)) {
  model.SetAnalStage(1, Data::CAnalStage());
  Put<R>(model, set, [](R& r) { r.SetStage(CEntList(SelNone, CString(L"1 96"))); });
}

struct Planted {
  char const* table;
  char const* field;
  int index;
  int value;
  char const* target;
  void (*plant)(CZelData&);
};

using M = CZelData;

Planted const kRows[] = {
    {"NodeLoad", "loadedEntities", 1, 92, "Node",
     [](M& m) { PutList<Data::CNodeLoad>(m, &M::SetNodeLoad, Nodes(L"1 92")); }},
    {"NodeLoad", "axis", -1, 91, "Axis",
     [](M& m) { PutAxis<Data::CNodeLoad>(m, &M::SetNodeLoad); }},
    {"AppliedDisplacement", "loadedEntities", 0, 92, "Node",
     [](M& m) { PutList<Data::CNodeLoad>(m, &M::SetAppliedDisplacement, Nodes(L"92")); }},
    {"AppliedDisplacement", "axis", -1, 91, "Axis",
     [](M& m) { PutAxis<Data::CNodeLoad>(m, &M::SetAppliedDisplacement); }},
    {"Settlement", "loadedEntities", 0, 92, "Node",
     [](M& m) { PutList<Data::CNodeLoad>(m, &M::SetSettlement, Nodes(L"92")); }},
    {"Settlement", "axis", -1, 91, "Axis",
     [](M& m) { PutAxis<Data::CNodeLoad>(m, &M::SetSettlement); }},
    {"BeamLoad", "loadedEntities", 0, 93, "Elem",
     [](M& m) { PutList<Data::CBeamLoad>(m, &M::SetBeamLoad, Elements(L"93")); }},
    {"BeamLoad", "loadedEntities", 0, 94, "Member",
     [](M& m) { PutList<Data::CBeamLoad>(m, &M::SetBeamLoad, Members(L"94")); }},
    {"BeamLoad", "loadedEntities", 1, 95, "List",
     [](M& m) { PutList<Data::CBeamLoad>(m, &M::SetBeamLoad, Elements(L"1 #95")); }},
    {"BeamLoad", "axis", -1, 91, "Axis",
     [](M& m) { PutAxis<Data::CBeamLoad>(m, &M::SetBeamLoad); }},
    {"AxialLoad", "loadedEntities", 0, 93, "Elem",
     [](M& m) { PutList<Data::CAxialLoad>(m, &M::SetAxialLoad, Elements(L"93")); }},
    {"BeamDist", "loadedEntities", 0, 93, "Elem",
     [](M& m) { PutList<Data::CBeamDist>(m, &M::SetBeamDist, Elements(L"93")); }},
    {"BeamThermalLoad", "loadedEntities", 0, 93, "Elem",
     [](M& m) { PutList<Data::CBeamThermalLoad>(m, &M::SetBeamThermalLoad, Elements(L"93")); }},
    {"FaceLoad", "loadedEntities", 0, 93, "Elem",
     [](M& m) { PutList<Data::CFaceLoad>(m, &M::SetFaceLoad, Elements(L"93")); }},
    {"FaceLoad", "axis", -1, 91, "Axis",
     [](M& m) { PutAxis<Data::CFaceLoad>(m, &M::SetFaceLoad); }},
    {"EdgeLoad", "loadedEntities", 0, 93, "Elem",
     [](M& m) { PutList<Data::CEdgeLoad>(m, &M::SetEdgeLoad, Elements(L"93")); }},
    {"EdgeLoad", "axis", -1, 91, "Axis",
     [](M& m) { PutAxis<Data::CEdgeLoad>(m, &M::SetEdgeLoad); }},
    {"InPlaneLoad", "loadedEntities", 0, 93, "Elem",
     [](M& m) { PutList<Data::CInPlaneLoad>(m, &M::SetInPlaneLoad, Elements(L"93")); }},
    {"InPlaneLoad", "axis", -1, 91, "Axis",
     [](M& m) { PutAxis<Data::CInPlaneLoad>(m, &M::SetInPlaneLoad); }},
    {"FaceThermalLoad", "loadedEntities", 0, 93, "Elem",
     [](M& m) { PutList<Data::CFaceThermalLoad>(m, &M::SetFaceThermalLoad, Elements(L"93")); }},
    {"BodyFaceLoad", "loadedEntities", 0, 93, "Elem",
     [](M& m) { PutList<Data::CBodyFaceLoad>(m, &M::SetBodyFaceLoad, Elements(L"93")); }},
    {"BodyFaceLoad", "axis", -1, 91, "Axis",
     [](M& m) { PutAxis<Data::CBodyFaceLoad>(m, &M::SetBodyFaceLoad); }},
    {"BodyThermalLoad", "loadedEntities", 0, 93, "Elem",
     [](M& m) { PutList<Data::CBodyThermalLoad>(m, &M::SetBodyThermalLoad, Elements(L"93")); }},
    {"GravityLoad", "loadedEntities", 0, 93, "Elem",
     [](M& m) { PutList<Data::CGravityLoad>(m, &M::SetGravityLoad, Elements(L"93")); }},
    {"GravityLoad", "loadedNodes", 0, 92, "Node",
     [](M& m) {
       Put<Data::CGravityLoad>(m, &M::SetGravityLoad,
                               [](auto& r) { r.SetLoadedNodes(Nodes(L"92")); });
     }},
    {"GridPointLoad", "surface", -1, 96, "GridSurface",
     [](M& m) {
       Put<Data::CGridPointLoad>(m, &M::SetGridPointLoad, [](auto& r) { r.SetSurface(96); });
     }},
    {"GridPointLoad", "axis", -1, 91, "Axis",
     [](M& m) { PutAxis<Data::CGridPointLoad>(m, &M::SetGridPointLoad); }},
    {"GridLineLoad", "surface", -1, 96, "GridSurface",
     [](M& m) {
       Put<Data::CGridLineLoad>(m, &M::SetGridLineLoad, [](auto& r) { r.SetSurface(96); });
     }},
    {"GridLineLoad", "axis", -1, 91, "Axis",
     [](M& m) { PutAxis<Data::CGridLineLoad>(m, &M::SetGridLineLoad); }},
    {"GridLineLoad", "polyRef", -1, 97, "Polyline",
     [](M& m) {
       Put<Data::CGridLineLoad>(m, &M::SetGridLineLoad, [](auto& r) { r.SetPolyRef(97, true); });
     }},
    {"GridAreaLoad", "surface", -1, 96, "GridSurface",
     [](M& m) {
       Put<Data::CGridAreaLoad>(m, &M::SetGridAreaLoad, [](auto& r) { r.SetSurface(96); });
     }},
    {"GridAreaLoad", "axis", -1, 91, "Axis",
     [](M& m) { PutAxis<Data::CGridAreaLoad>(m, &M::SetGridAreaLoad); }},
    {"GridAreaLoad", "polyRef", -1, 97, "Polyline",
     [](M& m) {
       Put<Data::CGridAreaLoad>(m, &M::SetGridAreaLoad, [](auto& r) { r.SetPolyRef(97, true); });
     }},
    {"GenRest", "nodes", 1, 92, "Node",
     [](M& m) {
       Put<Data::CGenRest>(m, &M::SetGenRest, [](auto& r) { r.SetNodes(Nodes(L"1 92")); });
     }},
    {"GenRest", "stage", 1, 96, "AnalStage",
     [](M& m) { PutStage<Data::CGenRest>(m, &M::SetGenRest); }},
    {"Rigid", "stage", 1, 96, "AnalStage", [](M& m) { PutStage<Data::CRigid>(m, &M::SetRigid); }},
    {"Joint", "stage", 1, 96, "AnalStage", [](M& m) { PutStage<Data::CJoint>(m, &M::SetJoint); }},
    {"ConstraintEqn", "stage", 1, 96, "AnalStage",
     [](M& m) { PutStage<Data::CConstraintEqn>(m, &M::SetConstraintEqn); }},
    {"TiedInterface", "stage", 1, 96, "AnalStage",
     [](M& m) { PutStage<Data::CTiedInterface>(m, &M::SetTiedInterface); }},
    {"Rigid", "primaryNode", -1, 92, "Node",
     [](M& m) { Put<Data::CRigid>(m, &M::SetRigid, [](auto& r) { r.SetPrimaryNode(92); }); }},
    {"Rigid", "constrainedNodes", 1, 92, "Node",
     [](M& m) {
       Put<Data::CRigid>(m, &M::SetRigid, [](auto& r) { r.SetConstrainedNodes(Nodes(L"1 92")); });
     }},
    {"Rigid", "parentMember", -1, 94, "Member",
     [](M& m) { Put<Data::CRigid>(m, &M::SetRigid, [](auto& r) { r.SetParentMember(94); }); }},
    {"Joint", "primaryNode", -1, 92, "Node",
     [](M& m) { Put<Data::CJoint>(m, &M::SetJoint, [](auto& r) { r.SetPrimaryNode(92); }); }},
    {"Joint", "constrainedNode", -1, 92, "Node",
     [](M& m) { Put<Data::CJoint>(m, &M::SetJoint, [](auto& r) { r.SetConstrainedNode(92); }); }},
    {"ConstraintEqn", "constrainedNode", -1, 92, "Node",
     [](M& m) {
       Put<Data::CConstraintEqn>(m, &M::SetConstraintEqn,
                                 [](auto& r) { r.SetConstrainedNode(92); });
     }},
    {"ConstraintEqn", "terms.node", 1, 92, "Node",
     [](M& m) {
       Put<Data::CConstraintEqn>(m, &M::SetConstraintEqn, [](auto& r) {
         r.SetRhsTerm(-1, 1, Direction::X, 1);
         r.SetRhsTerm(-1, 92, Direction::X, 1);
       });
     }},
    {"TiedInterface", "primaryElements", 0, 93, "Elem",
     [](M& m) {
       Put<Data::CTiedInterface>(m, &M::SetTiedInterface,
                                 [](auto& r) { r.SetPrimaryElements(Elements(L"93")); });
     }},
    {"TiedInterface", "constrainedEntities", 0, 92, "Node",
     [](M& m) {
       Put<Data::CTiedInterface>(m, &M::SetTiedInterface,
                                 [](auto& r) { r.SetConstrainedEntities(Nodes(L"92")); });
     }},
    {"RaftInteraction", "nodes", 0, 92, "Node",
     [](M& m) {
       Put<Data::CRaftInteraction>(m, &M::SetRaftInteraction,
                                   [](auto& r) { r.SetNodes(Nodes(L"92")); });
     }},
    {"PileInteraction", "nodes", 0, 92, "Node",
     [](M& m) {
       Put<Data::CPileInteraction>(m, &M::SetPileInteraction,
                                   [](auto& r) { r.SetNodes(Nodes(L"92")); });
     }},
    {"InfluenceNode", "node", -1, 92, "Node",
     [](M& m) {
       Put<Data::CInfluenceNode>(m, &M::SetInfluenceNode, [](auto& r) { r.SetNode(92); });
     }},
    {"InfluenceBeam", "elem", -1, 93, "Elem",
     [](M& m) {
       Put<Data::CInfluenceBeam>(m, &M::SetInfluenceBeam, [](auto& r) { r.SetElem(93); });
     }},
};

TEST(FindFaults, NamesAMissingNumberInEachReferenceAndListOfLoadsAndConstraints) {
  for (auto const& row : kRows) {
    SCOPED_TRACE(std::string(row.table) + " " + row.field + " " + std::to_string(row.value));
    auto model = Sound();
    row.plant(model);
    EXPECT_EQ(FindFaults(model),
              (std::vector<Finding>{{"dangling-reference", row.table, 2, row.field, row.index,
                                     row.value, row.target}}));
  }
}

TEST(FindFaults, TakesALoadCaseThatALoadNamesForOneThatExists) {
  auto model = Sound();
  Put<Data::CNodeLoad>(model, &M::SetNodeLoad, [](auto& r) { r.SetLoadCase(5); });
  Put<Data::CGridAreaLoad>(model, &M::SetGridAreaLoad, [](auto& r) { r.SetLoadCase(5); });
  EXPECT_TRUE(FindFaults(model).empty());
}

TEST(FindFaults, FindsANumberThatIsNotFiniteInLoadsAndConstraints) {
  double const nan = std::numeric_limits<double>::quiet_NaN();
  auto model = Sound();
  Put<Data::CFaceLoad>(model, &M::SetFaceLoad, [&](auto& r) { r.SetValue(3, nan); });
  Put<Data::CConstraintEqn>(model, &M::SetConstraintEqn,
                            [&](auto& r) { r.SetRhsTerm(-1, 1, Direction::X, nan); });
  EXPECT_EQ(FindFaults(model),
            (std::vector<Finding>{
                {"dimension-not-finite", "FaceLoad", 2, "value", 3, std::nullopt, ""},
                {"dimension-not-finite", "ConstraintEqn", 2, "terms.value", 0, std::nullopt, ""}}));
}

TEST(FindChanges, TellsWhatCameWentAndChangedInAPositionalTable) {
  auto model = Sound();
  Put<Data::CInfluenceNode>(model, &M::SetInfluenceNode, [](auto& r) { r.SetNode(4); });
  auto const before = model.Snapshot();
  model.SetInfluenceNode(1, Data::CInfluenceNode(L"", 7));
  model.SetInfluenceNode(3, Data::CInfluenceNode(L"", 8));
  auto const changes = Workbench::FindChanges(*before, model);
  ASSERT_EQ(changes.size(), 1u);
  EXPECT_EQ(changes[0].table, "InfluenceNode");
  EXPECT_EQ(changes[0].added, (std::vector<int>{3}));
  EXPECT_EQ(changes[0].changed, (std::vector<int>{1}));
  EXPECT_TRUE(changes[0].removed.empty());
  auto const back = Workbench::FindChanges(model, *before);
  ASSERT_EQ(back.size(), 1u);
  EXPECT_EQ(back[0].removed, (std::vector<int>{3}));
  auto const fields = Workbench::FindFieldChanges(*before, model);
  ASSERT_EQ(fields.size(), 1u);
  EXPECT_EQ(fields[0].table, "InfluenceNode");
  EXPECT_EQ(fields[0].number, 1);
  EXPECT_EQ(fields[0].field, "node");
  EXPECT_EQ(fields[0].before, "0");
  EXPECT_EQ(fields[0].after, "7");
}

}  // namespace
}  // namespace Tarvex::LoadIntegrityTest
