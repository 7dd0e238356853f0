#include "tests/support/random_loads.h"

#include "store/record/axis.h"
#include "store/record/beam_loads.h"
#include "store/record/body_loads.h"
#include "store/record/constraint_eqn.h"
#include "store/record/face_loads.h"
#include "store/record/grid_loads.h"
#include "store/record/grid_surface.h"
#include "store/record/influences.h"
#include "store/record/interactions.h"
#include "store/record/joint.h"
#include "store/record/member.h"
#include "store/record/node.h"
#include "store/record/node_load.h"
#include "store/record/polyline.h"
#include "store/record/restraints.h"
#include "store/record/rigid.h"
#include "tests/support/plain_list.h"
#include "tests/support/random_grids.h"

namespace Tarvex::Testing {
namespace {

using Data::CEntList;

/// Adds to one model. Where several numbers are drawn for one call they stand in statements of
/// their own, which fix their order.
class LoadMaker {
 public:
  LoadMaker(CZelData& model, Random& random) : m_model(model), m_random(random) {}

  void AddAll() {
    Append<Data::CNodeLoad>(&CZelData::SetNodeLoad);
    Append<Data::CNodeLoad>(&CZelData::SetAppliedDisplacement);
    Append<Data::CNodeLoad>(&CZelData::SetSettlement);
    Append<Data::CBeamLoad>(&CZelData::SetBeamLoad);
    Append<Data::CAxialLoad>(&CZelData::SetAxialLoad);
    Append<Data::CBeamDist>(&CZelData::SetBeamDist);
    Append<Data::CBeamThermalLoad>(&CZelData::SetBeamThermalLoad);
    Append<Data::CFaceLoad>(&CZelData::SetFaceLoad);
    Append<Data::CEdgeLoad>(&CZelData::SetEdgeLoad);
    Append<Data::CInPlaneLoad>(&CZelData::SetInPlaneLoad);
    Append<Data::CFaceThermalLoad>(&CZelData::SetFaceThermalLoad);
    Append<Data::CBodyFaceLoad>(&CZelData::SetBodyFaceLoad);
    Append<Data::CBodyThermalLoad>(&CZelData::SetBodyThermalLoad);
    Append<Data::CGridPointLoad>(&CZelData::SetGridPointLoad);
    Append<Data::CGridLineLoad>(&CZelData::SetGridLineLoad);
    Append<Data::CGridAreaLoad>(&CZelData::SetGridAreaLoad);
    Append<Data::CGravityLoad>(&CZelData::SetGravityLoad);
    Append<Data::CGenRest>(&CZelData::SetGenRest);
    Append<Data::CRigid>(&CZelData::SetRigid);
    Append<Data::CJoint>(&CZelData::SetJoint);
    Append<Data::CConstraintEqn>(&CZelData::SetConstraintEqn);
    Append<Data::CTiedInterface>(&CZelData::SetTiedInterface);
    Append<Data::CRaftInteraction>(&CZelData::SetRaftInteraction);
    Append<Data::CPileInteraction>(&CZelData::SetPileInteraction);
    Append<Data::CInfluenceNode>(&CZelData::SetInfluenceNode);
    Append<Data::CInfluenceBeam>(&CZelData::SetInfluenceBeam);
  }

 private:
  template <class Record>
  void Append(void (CZelData::*set)(int, Record const&, SidMode)) {
    int const count = m_random.Int(1, 4);
    for (int n = 1; n <= count; ++n) {
      Record record;
      if constexpr (std::derived_from<Record, NamedEntity>)
        FillNamed(record, m_random);
      else if (Changed())
        record.SetSid(RandomText(m_random));
      Fill(record);
      (m_model.*set)(n, record, SidMode::Keep);
    }
  }

  bool Changed() { return Changes(m_random); }
  template <class Table>
  int Existing(Table const& table) {
    std::vector<int> numbers;
    for (auto const& [n, record] : table) numbers.push_back(static_cast<int>(n));
    return m_random.Of(numbers);
  }
  double AnyValue() { return m_random.Real(-100, 100); }
  Direction AnyDirection() { return static_cast<Direction>(m_random.Int(1, 6)); }
  Vec2<double> AnyPoint() {
    double const x = m_random.Real(-20, 20);
    return {x, m_random.Real(-20, 20)};
  }

  CEntList List(SelType kind) {
    ListForm form;
    form.words = {L"G", L"X", L"#", L"PB"};
    form.names = {L"roof"};
    auto const text = RandomListText(m_random, form, m_random.Int(1, 5));
    return {kind, CString(text)};
  }
  CEntList Entities() { return List(m_random.Percent(50) ? SelElement : SelMember); }
  CEntList Stages() { return {SelNone, CString(m_random.Percent(50) ? L"1 3" : L"2 to 4 not 3")}; }

  // What several classes have, each where a class has it.

  template <class Load>
  void FillValues(Load& load, int count) {
    for (int i = 0; i < count; ++i)
      if (Changed()) load.SetValue(i, AnyValue());
  }
  template <class Load>
  void FillAxis(Load& load) {
    if (Changed()) load.SetAxis(Existing(m_model.Axis()));
  }
  template <class Load>
  void FillDirection(Load& load) {
    if (Changed()) load.SetDirection(AnyDirection());
  }
  template <class Load>
  void FillProjected(Load& load) {
    if (Changed()) load.SetIsProjected(true);
  }
  template <class Load>
  void FillCase(Load& load) {
    if (!Changed()) load.SetLoadCase(m_random.Int(1, 5));
  }
  void FillLoad(Data::CElementLoadBase& load) {
    FillCase(load);
    if (!Changed()) load.SetLoadedEntities(Entities());
  }

  void Fill(Data::CNodeLoad& load) {
    FillCase(load);
    if (!Changed()) load.SetLoadedEntities(List(SelNode));
    FillAxis(load);
    FillDirection(load);
    if (Changed()) load.SetValue(AnyValue());
  }
  void Fill(Data::CBeamLoad& load) {
    FillLoad(load);
    load.SetType(static_cast<Data::CBeamLoad::LoadType>(m_random.Int(1, 5)));
    FillAxis(load);
    FillDirection(load);
    FillProjected(load);
    for (int i = 0; i < 2; ++i)
      if (Changed()) load.SetPos(i, m_random.Real(0, 2));
    FillValues(load, 2);
  }
  void Fill(Data::CAxialLoad& load) {
    FillLoad(load);
    if (Changed()) load.SetValue(AnyValue());
  }
  void Fill(Data::CBeamDist& load) {
    FillLoad(load);
    FillDirection(load);
    if (Changed()) load.SetPos(m_random.Real(0, 2));
    if (Changed()) load.SetValue(AnyValue());
  }
  void Fill(Data::CBeamThermalLoad& load) {
    FillLoad(load);
    load.SetType(static_cast<Data::CBeamThermalLoad::ThermalType>(m_random.Int(1, 3)));
    FillValues(load, 2);
  }
  void Fill(Data::CFaceLoad& load) {
    FillLoad(load);
    load.SetType(static_cast<Data::CFaceLoad::Load2D>(m_random.Int(1, 3)));
    FillAxis(load);
    FillDirection(load);
    FillProjected(load);
    if (Changed()) load.SetPosition(AnyPoint());
    FillValues(load, 4);
  }
  void Fill(Data::CEdgeLoad& load) {
    FillLoad(load);
    FillAxis(load);
    FillDirection(load);
    if (Changed()) load.SetEdge(m_random.Int(2, 4));
    FillValues(load, 2);
  }
  void Fill(Data::CInPlaneLoad& load) {
    FillLoad(load);
    FillAxis(load);
    FillValues(load, 3);
  }
  void Fill(Data::CFaceThermalLoad& load) {
    FillLoad(load);
    load.SetType(m_random.Of<Data::CFaceThermalLoad::ThermalType>(
        {Data::CFaceThermalLoad::ThermalType::Uniform,
         Data::CFaceThermalLoad::ThermalType::Gradient,
         Data::CFaceThermalLoad::ThermalType::PerCorner}));
    FillValues(load, 8);
  }
  void Fill(Data::CBodyFaceLoad& load) {
    FillLoad(load);
    load.SetType(static_cast<Data::CBodyFaceLoad::Load3D>(m_random.Int(1, 2)));
    FillAxis(load);
    FillDirection(load);
    if (Changed()) load.SetFace(m_random.Int(1, 5));
    FillValues(load, 4);
  }
  void Fill(Data::CBodyThermalLoad& load) {
    FillLoad(load);
    if (Changed()) load.SetType(Data::CBodyThermalLoad::ThermalType::PerNode);
    FillValues(load, 8);
  }
  void Fill(Data::CGravityLoad& load) {
    FillLoad(load);
    if (Changed()) load.SetLoadedNodes(List(SelNode));
    if (Changed()) load.SetFactor({0.1, 0, -1});
  }

  void FillGrid(Data::CGridLoadBase& load) {
    FillCase(load);
    if (!Changed()) load.SetSurface(Existing(m_model.GridSurface()));
    FillAxis(load);
    FillDirection(load);
    FillProjected(load);
  }
  void FillShape(Data::CGridShapeLoad& load) {
    FillGrid(load);
    if (Changed()) load.SetPolyRef(Existing(m_model.Polyline()), m_random.Percent(50));
    if (!Changed()) return;
    Data::CPolygon polygon;
    for (int i = m_random.Int(1, 5); i > 0; --i) polygon.AddPoint(AnyPoint());
    load.SetPolygon(polygon, m_random.Percent(50));
  }
  void Fill(Data::CGridPointLoad& load) {
    FillGrid(load);
    if (Changed()) load.SetGridCoor(AnyPoint());
    if (Changed()) load.SetValue(AnyValue());
  }
  void Fill(Data::CGridLineLoad& load) {
    FillShape(load);
    FillValues(load, 2);
  }
  void Fill(Data::CGridAreaLoad& load) {
    FillShape(load);
    if (Changed()) load.SetValue(AnyValue());
  }

  // Constraints.

  void FillStages(Data::CStagedEntity& constraint) {
    if (Changed()) constraint.SetStage(Stages());
  }
  void Fill(Data::CGenRest& restraint) {
    FillStages(restraint);
    if (!Changed()) restraint.SetNodes(List(SelNode));
    if (Changed()) restraint.SetRestraint(m_random.Flags());
  }
  void Fill(Data::CRigid& rigid) {
    FillStages(rigid);
    if (Changed()) rigid.SetType(static_cast<Data::LinkType>(m_random.Int(0, 4095)));
    rigid.SetPrimaryNode(Existing(m_model.Node()));
    if (!Changed()) rigid.SetConstrainedNodes(List(SelNode));
    if (Changed()) rigid.SetParentMember(Existing(m_model.Member()));
  }
  void Fill(Data::CJoint& joint) {
    FillStages(joint);
    if (Changed()) joint.SetDirection(m_random.Flags());
    joint.SetPrimaryNode(Existing(m_model.Node()));
    joint.SetConstrainedNode(Existing(m_model.Node()));
  }
  void Fill(Data::CConstraintEqn& equation) {
    FillStages(equation);
    equation.SetConstrainedNode(Existing(m_model.Node()));
    if (Changed()) equation.SetDir(AnyDirection());
    for (int i = m_random.Int(0, 3); i > 0; --i) {
      int const node = Existing(m_model.Node());
      auto const direction = AnyDirection();
      equation.SetRhsTerm(-1, node, direction, AnyValue());
    }
  }
  void Fill(Data::CTiedInterface& tied) {
    FillStages(tied);
    if (Changed()) tied.SetPrimaryElements(List(SelElement));
    if (Changed())
      tied.SetConstrainedEntities(List(static_cast<SelType>(m_random.Int(SelNode, SelMember))));
  }
  void Fill(Data::CRaftInteraction& raft) {
    if (!Changed()) raft.SetNodes(List(SelNode));
    if (Changed()) raft.SetX(AnyValue());
    if (Changed()) raft.SetY(AnyValue());
    if (Changed()) raft.SetLevel(AnyValue());
    if (Changed()) raft.SetLowerLimit(AnyValue());
    if (Changed()) raft.SetUpperLimit(AnyValue());
  }
  void Fill(Data::CPileInteraction& pile) {
    if (!Changed()) pile.SetNodes(List(SelNode));
  }
  void Fill(Data::CInfluenceNode& influence) {
    if (!Changed()) influence.SetNode(Existing(m_model.Node()));
  }
  void Fill(Data::CInfluenceBeam& influence) {
    if (!Changed()) influence.SetElem(Existing(m_model.Elem()));
  }

  CZelData& m_model;
  Random& m_random;
};

}  // namespace

void AddRandomLoads(CZelData& model, Random& random) { LoadMaker(model, random).AddAll(); }

}  // namespace Tarvex::Testing
