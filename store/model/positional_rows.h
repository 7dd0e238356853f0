// The rows of the positional tables in the list of all tables (store/model/registry.h).
#pragma once

#include "store/model/table_row.h"
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

namespace Tarvex::Registry {

inline constexpr auto kPositionalTables = MakeRows(
    PositionalRow<Data::CNodeLoad>{
        CModule::NodeLoad, "NodeLoad", TableShape::Positional, RemovalForm::Delete,
        &CZelData::NodeLoadExist, &CZelData::NodeLoad, &CZelData::NodeLoad,
        &CZelData::HighestNodeLoad, &CZelData::SetNodeLoad, &CZelData::DeleteNodeLoad},
    PositionalRow<Data::CNodeLoad>{
        CModule::AppliedDisplacement, "AppliedDisplacement", TableShape::Positional,
        RemovalForm::Delete, &CZelData::AppliedDisplacementExist, &CZelData::AppliedDisplacement,
        &CZelData::AppliedDisplacement, &CZelData::HighestAppliedDisplacement,
        &CZelData::SetAppliedDisplacement, &CZelData::DeleteAppliedDisplacement},
    PositionalRow<Data::CNodeLoad>{
        CModule::Settlement, "Settlement", TableShape::Positional, RemovalForm::Delete,
        &CZelData::SettlementExist, &CZelData::Settlement, &CZelData::Settlement,
        &CZelData::HighestSettlement, &CZelData::SetSettlement, &CZelData::DeleteSettlement},
    PositionalRow<Data::CBeamLoad>{
        CModule::BeamLoad, "BeamLoad", TableShape::Positional, RemovalForm::Delete,
        &CZelData::BeamLoadExist, &CZelData::BeamLoad, &CZelData::BeamLoad,
        &CZelData::HighestBeamLoad, &CZelData::SetBeamLoad, &CZelData::DeleteBeamLoad},
    PositionalRow<Data::CAxialLoad>{
        CModule::AxialLoad, "AxialLoad", TableShape::Positional, RemovalForm::Delete,
        &CZelData::AxialLoadExist, &CZelData::AxialLoad, &CZelData::AxialLoad,
        &CZelData::HighestAxialLoad, &CZelData::SetAxialLoad, &CZelData::DeleteAxialLoad},
    PositionalRow<Data::CBeamDist>{
        CModule::BeamDist, "BeamDist", TableShape::Positional, RemovalForm::Delete,
        &CZelData::BeamDistExist, &CZelData::BeamDist, &CZelData::BeamDist,
        &CZelData::HighestBeamDist, &CZelData::SetBeamDist, &CZelData::DeleteBeamDist},
    PositionalRow<Data::CBeamThermalLoad>{
        CModule::BeamThermalLoad, "BeamThermalLoad", TableShape::Positional, RemovalForm::Delete,
        &CZelData::BeamThermalLoadExist, &CZelData::BeamThermalLoad, &CZelData::BeamThermalLoad,
        &CZelData::HighestBeamThermalLoad, &CZelData::SetBeamThermalLoad,
        &CZelData::DeleteBeamThermalLoad},
    PositionalRow<Data::CFaceLoad>{
        CModule::FaceLoad, "FaceLoad", TableShape::Positional, RemovalForm::Delete,
        &CZelData::FaceLoadExist, &CZelData::FaceLoad, &CZelData::FaceLoad,
        &CZelData::HighestFaceLoad, &CZelData::SetFaceLoad, &CZelData::DeleteFaceLoad},
    PositionalRow<Data::CEdgeLoad>{
        CModule::EdgeLoad, "EdgeLoad", TableShape::Positional, RemovalForm::Delete,
        &CZelData::EdgeLoadExist, &CZelData::EdgeLoad, &CZelData::EdgeLoad,
        &CZelData::HighestEdgeLoad, &CZelData::SetEdgeLoad, &CZelData::DeleteEdgeLoad},
    PositionalRow<Data::CInPlaneLoad>{
        CModule::InPlaneLoad, "InPlaneLoad", TableShape::Positional, RemovalForm::Delete,
        &CZelData::InPlaneLoadExist, &CZelData::InPlaneLoad, &CZelData::InPlaneLoad,
        &CZelData::HighestInPlaneLoad, &CZelData::SetInPlaneLoad, &CZelData::DeleteInPlaneLoad},
    PositionalRow<Data::CFaceThermalLoad>{
        CModule::FaceThermalLoad, "FaceThermalLoad", TableShape::Positional, RemovalForm::Delete,
        &CZelData::FaceThermalLoadExist, &CZelData::FaceThermalLoad, &CZelData::FaceThermalLoad,
        &CZelData::HighestFaceThermalLoad, &CZelData::SetFaceThermalLoad,
        &CZelData::DeleteFaceThermalLoad},
    PositionalRow<Data::CBodyFaceLoad>{
        CModule::BodyFaceLoad, "BodyFaceLoad", TableShape::Positional, RemovalForm::Delete,
        &CZelData::BodyFaceLoadExist, &CZelData::BodyFaceLoad, &CZelData::BodyFaceLoad,
        &CZelData::HighestBodyFaceLoad, &CZelData::SetBodyFaceLoad, &CZelData::DeleteBodyFaceLoad},
    PositionalRow<Data::CBodyThermalLoad>{
        CModule::BodyThermalLoad, "BodyThermalLoad", TableShape::Positional, RemovalForm::Delete,
        &CZelData::BodyThermalLoadExist, &CZelData::BodyThermalLoad, &CZelData::BodyThermalLoad,
        &CZelData::HighestBodyThermalLoad, &CZelData::SetBodyThermalLoad,
        &CZelData::DeleteBodyThermalLoad},
    PositionalRow<Data::CGridPointLoad>{
        CModule::GridPointLoad, "GridPointLoad", TableShape::Positional, RemovalForm::Delete,
        &CZelData::GridPointLoadExist, &CZelData::GridPointLoad, &CZelData::GridPointLoad,
        &CZelData::HighestGridPointLoad, &CZelData::SetGridPointLoad,
        &CZelData::DeleteGridPointLoad},
    PositionalRow<Data::CGridLineLoad>{
        CModule::GridLineLoad, "GridLineLoad", TableShape::Positional, RemovalForm::Delete,
        &CZelData::GridLineLoadExist, &CZelData::GridLineLoad, &CZelData::GridLineLoad,
        &CZelData::HighestGridLineLoad, &CZelData::SetGridLineLoad, &CZelData::DeleteGridLineLoad},
    PositionalRow<Data::CGridAreaLoad>{
        CModule::GridAreaLoad, "GridAreaLoad", TableShape::Positional, RemovalForm::Delete,
        &CZelData::GridAreaLoadExist, &CZelData::GridAreaLoad, &CZelData::GridAreaLoad,
        &CZelData::HighestGridAreaLoad, &CZelData::SetGridAreaLoad, &CZelData::DeleteGridAreaLoad},
    PositionalRow<Data::CGravityLoad>{
        CModule::GravityLoad, "GravityLoad", TableShape::Positional, RemovalForm::Delete,
        &CZelData::GravityLoadExist, &CZelData::GravityLoad, &CZelData::GravityLoad,
        &CZelData::HighestGravityLoad, &CZelData::SetGravityLoad, &CZelData::DeleteGravityLoad},
    PositionalRow<Data::CGenRest>{CModule::None, "GenRest", TableShape::Positional,
                                  RemovalForm::Delete, &CZelData::GenRestExist, &CZelData::GenRest,
                                  &CZelData::GenRest, &CZelData::HighestGenRest,
                                  &CZelData::SetGenRest, &CZelData::DeleteGenRest},
    PositionalRow<Data::CRigid>{CModule::None, "Rigid", TableShape::Positional, RemovalForm::Delete,
                                &CZelData::RigidExist, &CZelData::Rigid, &CZelData::Rigid,
                                &CZelData::HighestRigid, &CZelData::SetRigid,
                                &CZelData::DeleteRigid},
    PositionalRow<Data::CJoint>{CModule::None, "Joint", TableShape::Positional, RemovalForm::Delete,
                                &CZelData::JointExist, &CZelData::Joint, &CZelData::Joint,
                                &CZelData::HighestJoint, &CZelData::SetJoint,
                                &CZelData::DeleteJoint},
    PositionalRow<Data::CConstraintEqn>{
        CModule::None, "ConstraintEqn",
        TableShape::Positional, RemovalForm::Delete, &CZelData::ConstraintEqnExist,
        &CZelData::ConstraintEqn, &CZelData::ConstraintEqn, &CZelData::HighestConstraintEqn,
        &CZelData::SetConstraintEqn, &CZelData::DeleteConstraintEqn},
    PositionalRow<Data::CTiedInterface>{
        CModule::None, "TiedInterface",
        TableShape::Positional, RemovalForm::Delete, &CZelData::TiedInterfaceExist,
        &CZelData::TiedInterface, &CZelData::TiedInterface, &CZelData::HighestTiedInterface,
        &CZelData::SetTiedInterface, &CZelData::DeleteTiedInterface},
    PositionalRow<Data::CRaftInteraction>{
        CModule::None, "RaftInteraction",
        TableShape::Positional, RemovalForm::Delete, &CZelData::RaftInteractionExist,
        &CZelData::RaftInteraction, &CZelData::RaftInteraction, &CZelData::HighestRaftInteraction,
        &CZelData::SetRaftInteraction, &CZelData::DeleteRaftInteraction},
    PositionalRow<Data::CPileInteraction>{
        CModule::None, "PileInteraction",
        TableShape::Positional, RemovalForm::Delete, &CZelData::PileInteractionExist,
        &CZelData::PileInteraction, &CZelData::PileInteraction, &CZelData::HighestPileInteraction,
        &CZelData::SetPileInteraction, &CZelData::DeletePileInteraction},
    PositionalRow<Data::CInfluenceNode>{
        CModule::None, "InfluenceNode",
        TableShape::Positional, RemovalForm::Delete, &CZelData::InfluenceNodeExist,
        &CZelData::InfluenceNode, &CZelData::InfluenceNode, &CZelData::HighestInfluenceNode,
        &CZelData::SetInfluenceNode, &CZelData::DeleteInfluenceNode},
    PositionalRow<Data::CInfluenceBeam>{
        CModule::None, "InfluenceBeam",
        TableShape::Positional, RemovalForm::Delete, &CZelData::InfluenceBeamExist,
        &CZelData::InfluenceBeam, &CZelData::InfluenceBeam, &CZelData::HighestInfluenceBeam,
        &CZelData::SetInfluenceBeam, &CZelData::DeleteInfluenceBeam});

}  // namespace Tarvex::Registry
