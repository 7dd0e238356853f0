// The positional tables of a model, written out by hand: the registry must have the same.
#pragma once

#include <string>
#include <vector>

#include "store/model/zel_data.h"
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
#include "store/record/row_pack.h"

namespace Tarvex::PositionalTablesTest {

/// One positional table: its operations by name, and a change of a record that shows.
template <class R>
struct PlaceRow {
  std::string stem;
  int module;
  void (*change)(R&);
  bool (*exist)(CZelData const&, int);
  R const& (*get)(CZelData const&, int);
  std::vector<R> const& (*all)(CZelData const&);
  int (*highest)(CZelData const&);
  void (*set)(CZelData&, int, R const&, SidMode);
  void (*remove)(CZelData&, int, int);
};

// A row of a table whose operations all bear its stem.
#define TARVEX_PLACE_ROW(Stem, module, Record, change)                                       \
  PlaceRow<Data::Record> {                                                                   \
#Stem, module, [](Data::Record& r) { change; },                                            \
        [](CZelData const& m, int n) { return m.Stem##Exist(n); },                             \
        [](CZelData const& m, int n) -> Data::Record const& { return m.Stem(n); },             \
        [](CZelData const& m) -> std::vector<Data::Record> const& { return m.Stem(); },        \
        [](CZelData const& m) { return m.Highest##Stem(); },                                   \
        [](CZelData& m, int n, Data::Record const& r, SidMode s) { m.Set##Stem(n, r, s); },    \
        [](CZelData& m, int first, int count) { m.Delete##Stem(first, count); } \
  }

/// Loads and constraints.
inline auto PlaceRows() {
  return MakeRows(TARVEX_PLACE_ROW(NodeLoad, 135, CNodeLoad, r.SetValue(4)),
                  TARVEX_PLACE_ROW(AppliedDisplacement, 136, CNodeLoad, r.SetValue(4)),
                  TARVEX_PLACE_ROW(Settlement, 137, CNodeLoad, r.SetValue(4)),
                  TARVEX_PLACE_ROW(BeamLoad, 140, CBeamLoad, r.SetValue(1, 4)),
                  TARVEX_PLACE_ROW(AxialLoad, 142, CAxialLoad, r.SetValue(4)),
                  TARVEX_PLACE_ROW(BeamDist, 143, CBeamDist, r.SetValue(4)),
                  TARVEX_PLACE_ROW(BeamThermalLoad, 144, CBeamThermalLoad, r.SetValue(1, 4)),
                  TARVEX_PLACE_ROW(FaceLoad, 150, CFaceLoad, r.SetValue(1, 4)),
                  TARVEX_PLACE_ROW(EdgeLoad, 151, CEdgeLoad, r.SetValue(1, 4)),
                  TARVEX_PLACE_ROW(InPlaneLoad, 152, CInPlaneLoad, r.SetValue(1, 4)),
                  TARVEX_PLACE_ROW(FaceThermalLoad, 153, CFaceThermalLoad, r.SetValue(1, 4)),
                  TARVEX_PLACE_ROW(BodyFaceLoad, 155, CBodyFaceLoad, r.SetValue(1, 4)),
                  TARVEX_PLACE_ROW(BodyThermalLoad, 156, CBodyThermalLoad, r.SetValue(1, 4)),
                  TARVEX_PLACE_ROW(GridPointLoad, 161, CGridPointLoad, r.SetValue(4)),
                  TARVEX_PLACE_ROW(GridLineLoad, 162, CGridLineLoad, r.SetValue(1, 4)),
                  TARVEX_PLACE_ROW(GridAreaLoad, 163, CGridAreaLoad, r.SetValue(4)),
                  TARVEX_PLACE_ROW(GravityLoad, 170, CGravityLoad, r.SetFactor({1, 0, 0})),
                  TARVEX_PLACE_ROW(GenRest, -1, CGenRest, r.SetRestraint(Vbool6(L"pin"))),
                  TARVEX_PLACE_ROW(Rigid, -1, CRigid, r.SetPrimaryNode(4)),
                  TARVEX_PLACE_ROW(Joint, -1, CJoint, r.SetPrimaryNode(4)),
                  TARVEX_PLACE_ROW(ConstraintEqn, -1, CConstraintEqn, r.SetConstrainedNode(4)),
                  TARVEX_PLACE_ROW(TiedInterface, -1, CTiedInterface, r.SetName(L"b")),
                  TARVEX_PLACE_ROW(RaftInteraction, -1, CRaftInteraction, r.SetX(4)),
                  TARVEX_PLACE_ROW(PileInteraction, -1, CPileInteraction, r.SetName(L"b")),
                  TARVEX_PLACE_ROW(InfluenceNode, -1, CInfluenceNode, r.SetNode(4)),
                  TARVEX_PLACE_ROW(InfluenceBeam, -1, CInfluenceBeam, r.SetElem(4)));
}

#undef TARVEX_PLACE_ROW

}  // namespace Tarvex::PositionalTablesTest
