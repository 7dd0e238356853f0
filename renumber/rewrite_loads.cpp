// References of loads. A load that comes to act on nothing goes.
#include "renumber/reference_rewriter.h"
#include "store/record/beam_loads.h"
#include "store/record/body_loads.h"
#include "store/record/face_loads.h"
#include "store/record/grid_loads.h"
#include "store/record/node_load.h"

namespace Tarvex {

using Data::CGravityLoad;
using Data::CNodeLoad;

bool ReferenceRewriter::NodeLoads() {
  using Table = RewrittenList<CNodeLoad>;
  LoadsInAxis(Table{&CZelData::NodeLoad, &CZelData::SetNodeLoad, &CZelData::DeleteNodeLoad},
              CModule::None);
  LoadsInAxis(Table{&CZelData::AppliedDisplacement, &CZelData::SetAppliedDisplacement,
                    &CZelData::DeleteAppliedDisplacement},
              CModule::None);
  LoadsInAxis(Table{&CZelData::Settlement, &CZelData::SetSettlement, &CZelData::DeleteSettlement},
              CModule::None);
  return true;
}

bool ReferenceRewriter::BeamLoads() {
  LoadsInAxis(RewrittenList<Data::CBeamLoad>{&CZelData::BeamLoad, &CZelData::SetBeamLoad,
                                             &CZelData::DeleteBeamLoad},
              CModule::Section);
  return true;
}

bool ReferenceRewriter::OtherBeamLoads() {
  Loads(RewrittenList<Data::CBeamDist>{&CZelData::BeamDist, &CZelData::SetBeamDist,
                                       &CZelData::DeleteBeamDist},
        CModule::Section);
  Loads(RewrittenList<Data::CBeamThermalLoad>{&CZelData::BeamThermalLoad,
                                              &CZelData::SetBeamThermalLoad,
                                              &CZelData::DeleteBeamThermalLoad},
        CModule::Section);
  Loads(RewrittenList<Data::CAxialLoad>{&CZelData::AxialLoad, &CZelData::SetAxialLoad,
                                        &CZelData::DeleteAxialLoad},
        CModule::Section);
  return true;
}

bool ReferenceRewriter::FaceAndEdgeLoads() {
  LoadsInAxis(RewrittenList<Data::CFaceLoad>{&CZelData::FaceLoad, &CZelData::SetFaceLoad,
                                             &CZelData::DeleteFaceLoad},
              CModule::Prop2D);
  LoadsInAxis(RewrittenList<Data::CEdgeLoad>{&CZelData::EdgeLoad, &CZelData::SetEdgeLoad,
                                             &CZelData::DeleteEdgeLoad},
              CModule::Prop2D);
  return true;
}

bool ReferenceRewriter::OtherFaceLoads() {
  Loads(RewrittenList<Data::CFaceThermalLoad>{&CZelData::FaceThermalLoad,
                                              &CZelData::SetFaceThermalLoad,
                                              &CZelData::DeleteFaceThermalLoad},
        CModule::Prop2D);
  Loads(RewrittenList<Data::CInPlaneLoad>{&CZelData::InPlaneLoad, &CZelData::SetInPlaneLoad,
                                          &CZelData::DeleteInPlaneLoad},
        CModule::Prop2D);
  return true;
}

bool ReferenceRewriter::BodyFaceLoads() {
  LoadsInAxis(
      RewrittenList<Data::CBodyFaceLoad>{&CZelData::BodyFaceLoad, &CZelData::SetBodyFaceLoad,
                                         &CZelData::DeleteBodyFaceLoad},
      CModule::Prop3D);
  return true;
}

bool ReferenceRewriter::BodyThermalLoads() {
  Loads(RewrittenList<Data::CBodyThermalLoad>{&CZelData::BodyThermalLoad,
                                              &CZelData::SetBodyThermalLoad,
                                              &CZelData::DeleteBodyThermalLoad},
        CModule::Prop3D);
  return true;
}

bool ReferenceRewriter::GridPointLoads() {
  EachOrRemove(
      RewrittenList<Data::CGridPointLoad>{&CZelData::GridPointLoad, &CZelData::SetGridPointLoad,
                                          &CZelData::DeleteGridPointLoad},
      [&](auto& load) {
        MapAxis(load);
        load.SetSurface(Map(CModule::GridSurface, load.Surface()));
        return true;
      });
  return true;
}

bool ReferenceRewriter::GridShapeLoads() {
  auto const rewrite = [&](auto& load) {
    MapAxis(load);
    load.SetSurface(Map(CModule::GridSurface, load.Surface()));
    load.SetPolyRef(Map(CModule::Polyline, load.PolyRef()), false);
    return true;
  };
  EachOrRemove(
      RewrittenList<Data::CGridLineLoad>{&CZelData::GridLineLoad, &CZelData::SetGridLineLoad,
                                         &CZelData::DeleteGridLineLoad},
      rewrite);
  EachOrRemove(
      RewrittenList<Data::CGridAreaLoad>{&CZelData::GridAreaLoad, &CZelData::SetGridAreaLoad,
                                         &CZelData::DeleteGridAreaLoad},
      rewrite);
  return true;
}

bool ReferenceRewriter::GravityLoads() {
  EachOrRemove(RewrittenList<CGravityLoad>{&CZelData::GravityLoad, &CZelData::SetGravityLoad,
                                           &CZelData::DeleteGravityLoad},
               [&](CGravityLoad& load) {
                 load.SetLoadedEntities(List(load.LoadedEntities()));
                 load.SetLoadedNodes(List(load.LoadedNodes()));
                 return !load.LoadedEntities().IsEmpty() || !load.LoadedNodes().IsEmpty();
               });
  return true;
}

}  // namespace Tarvex
