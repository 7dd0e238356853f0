// Lists of records, one row each, for the operations that rewrite them.
#pragma once

#include <functional>

#include "store/record/assembly.h"
#include "store/record/beam_loads.h"
#include "store/record/body_loads.h"
#include "store/record/face_loads.h"
#include "store/record/grid_surface.h"
#include "store/record/node_load.h"
#include "store/record/restraints.h"
#include "store/record/rigid.h"
#include "store/record/stages.h"
#include "topology/list_walk.h"

namespace Tarvex::ListFields {

template <class Record>
using ReadLoad = Record const& (LoadTables::*)(int) const;

/// The list of a load of a table that has a call for its list alone.
template <class Record, ReadLoad<Record> read, auto highest, auto exist, auto write, auto remove>
inline constexpr ListField kLoaded{
    highest, exist,
    [](CZelData const& m, int n) -> Data::CEntList const& {
      return std::invoke(read, m, n).LoadedEntities();
    },
    [](CZelData& m, int n, Data::CEntList const& list) { std::invoke(write, m, n, list); },
    [](CZelData& m, int n) { std::invoke(remove, m, n, 1); }};

inline constexpr auto kNodeLoad =
    kLoaded<Data::CNodeLoad, &CZelData::NodeLoad, &CZelData::HighestNodeLoad,
            &CZelData::NodeLoadExist, &CZelData::SetNodeLoadItem, &CZelData::DeleteNodeLoad>;
inline constexpr auto kAppliedDisplacement =
    kLoaded<Data::CNodeLoad, &CZelData::AppliedDisplacement, &CZelData::HighestAppliedDisplacement,
            &CZelData::AppliedDisplacementExist, &CZelData::SetAppliedDisplacementItem,
            &CZelData::DeleteAppliedDisplacement>;
inline constexpr auto kSettlement =
    kLoaded<Data::CNodeLoad, &CZelData::Settlement, &CZelData::HighestSettlement,
            &CZelData::SettlementExist, &CZelData::SetSettlementItem, &CZelData::DeleteSettlement>;
inline constexpr auto kBeamLoad =
    kLoaded<Data::CBeamLoad, &CZelData::BeamLoad, &CZelData::HighestBeamLoad,
            &CZelData::BeamLoadExist, &CZelData::SetBeamLoadItem, &CZelData::DeleteBeamLoad>;
inline constexpr auto kAxialLoad =
    kLoaded<Data::CAxialLoad, &CZelData::AxialLoad, &CZelData::HighestAxialLoad,
            &CZelData::AxialLoadExist, &CZelData::SetAxialLoadItem, &CZelData::DeleteAxialLoad>;
inline constexpr auto kBeamDist =
    kLoaded<Data::CBeamDist, &CZelData::BeamDist, &CZelData::HighestBeamDist,
            &CZelData::BeamDistExist, &CZelData::SetBeamDistItem, &CZelData::DeleteBeamDist>;
inline constexpr auto kBeamThermalLoad =
    kLoaded<Data::CBeamThermalLoad, &CZelData::BeamThermalLoad, &CZelData::HighestBeamThermalLoad,
            &CZelData::BeamThermalLoadExist, &CZelData::SetBeamThermalLoadItem,
            &CZelData::DeleteBeamThermalLoad>;
inline constexpr auto kEdgeLoad =
    kLoaded<Data::CEdgeLoad, &CZelData::EdgeLoad, &CZelData::HighestEdgeLoad,
            &CZelData::EdgeLoadExist, &CZelData::SetEdgeLoadItem, &CZelData::DeleteEdgeLoad>;
inline constexpr auto kFaceLoad =
    kLoaded<Data::CFaceLoad, &CZelData::FaceLoad, &CZelData::HighestFaceLoad,
            &CZelData::FaceLoadExist, &CZelData::SetFaceLoadItem, &CZelData::DeleteFaceLoad>;
inline constexpr auto kInPlaneLoad =
    kLoaded<Data::CInPlaneLoad, &CZelData::InPlaneLoad, &CZelData::HighestInPlaneLoad,
            &CZelData::InPlaneLoadExist, &CZelData::SetInPlaneLoadItem,
            &CZelData::DeleteInPlaneLoad>;
inline constexpr auto kFaceThermalLoad =
    kLoaded<Data::CFaceThermalLoad, &CZelData::FaceThermalLoad, &CZelData::HighestFaceThermalLoad,
            &CZelData::FaceThermalLoadExist, &CZelData::SetFaceThermalLoadItem,
            &CZelData::DeleteFaceThermalLoad>;
inline constexpr auto kGravityEntities =
    kLoaded<Data::CGravityLoad, &CZelData::GravityLoad, &CZelData::HighestGravityLoad,
            &CZelData::GravityLoadExist, &CZelData::SetGravityLoadEntities,
            &CZelData::DeleteGravityLoad>;

inline constexpr ListField kGravityNodes{
    &CZelData::HighestGravityLoad, &CZelData::GravityLoadExist,
    [](CZelData const& m, int n) -> Data::CEntList const& {
      return m.GravityLoad(n).LoadedNodes();
    },
    [](CZelData& m, int n, Data::CEntList const& list) { m.SetGravityLoadNodes(n, list); },
    [](CZelData& m, int n) { m.DeleteGravityLoad(n, 1); }};

inline constexpr ListField kSavedLists{
    &CZelData::HighestList, &CZelData::ListExist,
    [](CZelData const& m, int n) -> Data::CEntList const& { return m.List(n); },
    [](CZelData& m, int n, Data::CEntList const& list) { m.SetList(n, list); },
    [](CZelData& m, int n) { m.BlankList(n, 1); }};

inline constexpr ListField kGenRest{
    &CZelData::HighestGenRest, &CZelData::GenRestExist,
    [](CZelData const& m, int n) -> Data::CEntList const& { return m.GenRest(n).Nodes(); },
    [](CZelData& m, int n, Data::CEntList const& list) { m.SetGenRestNodes(n, list); },
    [](CZelData& m, int n) { m.DeleteGenRest(n, 1); }};

inline constexpr ListField kRigidNodes{
    &CZelData::HighestRigid, &CZelData::RigidExist,
    [](CZelData const& m, int n) -> Data::CEntList const& { return m.Rigid(n).ConstrainedNodes(); },
    [](CZelData& m, int n, Data::CEntList const& list) { m.SetRigidConstrainedNodes(n, list); },
    [](CZelData& m, int n) { m.DeleteRigid(n, 1); }};

// What stays with an empty list.

inline constexpr ListField kGridSurface{
    &CZelData::HighestGridSurface, &CZelData::GridSurfaceExist,
    [](CZelData const& m, int n) -> Data::CEntList const& { return m.GridSurface(n).Elements(); },
    [](CZelData& m, int n, Data::CEntList const& list) {
      auto surface = m.GridSurface(n);
      surface.SetElements(list);
      m.SetGridSurface(n, surface, true);
    },
    nullptr};

inline constexpr ListField kAnalStage{
    &CZelData::HighestAnalStage, &CZelData::AnalStageExist,
    [](CZelData const& m, int n) -> Data::CEntList const& { return m.AnalStage(n).StageElem(); },
    [](CZelData& m, int n, Data::CEntList const& list) {
      auto stage = m.AnalStage(n);
      stage.SetStageElem(list);
      m.SetAnalStage(n, stage);
    },
    nullptr};

inline constexpr ListField kAssembly{
    &CZelData::HighestAssembly, &CZelData::AssemblyExist,
    [](CZelData const& m, int n) -> Data::CEntList const& { return m.Assembly(n).Entities(); },
    [](CZelData& m, int n, Data::CEntList const& list) {
      auto assembly = m.Assembly(n);
      assembly.SetEntities(list);
      m.SetAssembly(n, assembly);
    },
    nullptr};

// The two sides of a tied interface.

inline constexpr ListField kTiedConstrained{
    &CZelData::HighestTiedInterface, &CZelData::TiedInterfaceExist,
    [](CZelData const& m, int n) -> Data::CEntList const& {
      return m.TiedInterface(n).ConstrainedEntities();
    },
    [](CZelData& m, int n, Data::CEntList const& list) {
      auto tied = m.TiedInterface(n);
      tied.SetConstrainedEntities(list);
      m.SetTiedInterface(n, tied);
    },
    [](CZelData& m, int n) { m.DeleteTiedInterface(n, 1); }};

inline constexpr ListField kTiedPrimary{&CZelData::HighestTiedInterface,
                                        &CZelData::TiedInterfaceExist,
                                        [](CZelData const& m, int n) -> Data::CEntList const& {
                                          return m.TiedInterface(n).PrimaryElements();
                                        },
                                        [](CZelData& m, int n, Data::CEntList const& list) {
                                          auto tied = m.TiedInterface(n);
                                          tied.SetPrimaryElements(list);
                                          m.SetTiedInterface(n, tied);
                                        },
                                        [](CZelData& m, int n) { m.DeleteTiedInterface(n, 1); }};

}  // namespace Tarvex::ListFields
