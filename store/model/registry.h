// The list of all tables: one row a table.
//
// Whole-model walks (equality, difference, files, integrity) loop over it, and access by module
// number looks it up; no switch over modules stands beside it. The order of the rows is the order
// of the tables in model files.
#pragma once

#include <span>
#include <string_view>

#include "store/export.h"
#include "store/model/case_rows.h"
#include "store/model/positional_rows.h"
#include "store/model/result_rows.h"
#include "store/model/table_row.h"
#include "store/model/zel_data.h"
#include "store/record/alignment.h"
#include "store/record/assembly.h"
#include "store/record/axis.h"
#include "store/record/block.h"
#include "store/record/ent_list.h"
#include "store/record/form_props.h"
#include "store/record/grid_line.h"
#include "store/record/grid_plane.h"
#include "store/record/grid_surface.h"
#include "store/record/link_prop.h"
#include "store/record/mass_prop.h"
#include "store/record/mat_anal.h"
#include "store/record/mat_tables.h"
#include "store/record/material.h"
#include "store/record/member.h"
#include "store/record/node.h"
#include "store/record/other_props.h"
#include "store/record/polyline.h"
#include "store/record/prop_2d.h"
#include "store/record/prop_3d.h"
#include "store/record/record_classes.h"
#include "store/record/res_spectrum.h"
#include "store/record/section.h"
#include "store/record/soil.h"
#include "store/record/spring_prop.h"
#include "store/record/views.h"

namespace Tarvex {

/// One record that a model has once.
template <class R>
struct OneOffRow {
  using Record = R;

  std::string_view stem;
  R const& (CZelData::*get)() const;
  void (CZelData::*set)(R const&);
};

namespace Registry {

inline constexpr auto kOneOffs =
    MakeRows(OneOffRow<Data::CSpec>{"Spec", &CZelData::Spec, &CZelData::SetSpec},
             OneOffRow<Data::CDefaults>{"Defaults", &CZelData::Defaults, &CZelData::SetDefaults},
             OneOffRow<Data::CRaftSpec>{"RaftSpec", &CZelData::RaftSpec, &CZelData::SetRaftSpec});

inline constexpr auto kSparseTables = MakeRows(
    TableRow<Data::CNode>{CModule::Node, "Node", TableShape::Sparse, RemovalForm::Blank,
                          &CZelData::NodeExist, &CZelData::Node, &CZelData::StoredNodes,
                          &CZelData::HighestNode, &CZelData::SetNode, &CZelData::BlankNode},
    TableRow<Data::CElement>{CModule::Elem, "Elem", TableShape::Sparse, RemovalForm::Blank,
                             &CZelData::ElemExist, &CZelData::Elem, &CZelData::Elem,
                             &CZelData::HighestElem, &CZelData::SetElem, &CZelData::BlankElem},
    TableRow<Data::LoadPanel>{CModule::Elem, "LoadPanel", TableShape::Sparse, RemovalForm::Blank,
                              &CZelData::LoadPanelExist, &CZelData::LoadPanel,
                              &CZelData::LoadPanels, &CZelData::HighestElem,
                              &CZelData::SetLoadPanel, &CZelData::BlankLoadPanel},
    TableRow<Data::CMember>{CModule::Member, "Member", TableShape::Sparse, RemovalForm::Blank,
                            &CZelData::MemberExist, &CZelData::Member, &CZelData::Member,
                            &CZelData::HighestMember, &CZelData::SetMember, &CZelData::BlankMember},
    TableRow<Data::CAxis>{CModule::Axis, "Axis", TableShape::Sparse, RemovalForm::Blank,
                          &CZelData::AxisExist, &CZelData::Axis, &CZelData::Axis,
                          &CZelData::HighestAxis, &CZelData::SetAxis, &CZelData::BlankAxis},
    TableRow<Data::CGridPlane>{CModule::GridPlane, "GridPlane", TableShape::Sparse,
                               RemovalForm::Blank, &CZelData::GridPlaneExist, &CZelData::GridPlane,
                               &CZelData::GridPlane, &CZelData::HighestGridPlane,
                               &CZelData::SetGridPlane, &CZelData::BlankGridPlane},
    TableRow<Data::CGridSurface>{
        CModule::GridSurface, "GridSurface", TableShape::Sparse, RemovalForm::Blank,
        &CZelData::GridSurfaceExist, &CZelData::GridSurface, &CZelData::GridSurface,
        &CZelData::HighestGridSurface, &CZelData::SetGridSurface, &CZelData::BlankGridSurface},
    TableRow<Data::CGridLine>{CModule::None, "GridLine", TableShape::Sparse, RemovalForm::Blank,
                              &CZelData::GridLineExist, &CZelData::GridLine, &CZelData::GridLine,
                              &CZelData::HighestGridLine, &CZelData::SetGridLine,
                              &CZelData::BlankGridLine},
    TableRow<Data::CPolyline>{CModule::Polyline, "Polyline", TableShape::Sparse, RemovalForm::Blank,
                              &CZelData::PolylineExist, &CZelData::Polyline, &CZelData::Polyline,
                              &CZelData::HighestPolyline, &CZelData::SetPolyline,
                              &CZelData::BlankPolyline},
    TableRow<Data::CAlignment>{CModule::None, "Alignment", TableShape::Sparse, RemovalForm::Blank,
                               &CZelData::AlignmentExist, &CZelData::Alignment,
                               &CZelData::Alignment, &CZelData::HighestAlignment,
                               &CZelData::SetAlignment, &CZelData::BlankAlignment},
    TableRow<Data::CEntList>{CModule::None, "List", TableShape::Sparse, RemovalForm::Blank,
                             &CZelData::ListExist, &CZelData::List, &CZelData::List,
                             &CZelData::HighestList, &CZelData::SetList, &CZelData::BlankList},
    TableRow<Data::CBlock>{CModule::None, "Block", TableShape::Sparse, RemovalForm::Blank,
                           &CZelData::BlockExist, &CZelData::Block, &CZelData::Block,
                           &CZelData::HighestBlock, &CZelData::SetBlock, &CZelData::BlankBlock},
    TableRow<Data::CAssembly>{CModule::None, "Assembly", TableShape::Sparse, RemovalForm::Blank,
                              &CZelData::AssemblyExist, &CZelData::Assembly, &CZelData::Assembly,
                              &CZelData::HighestAssembly, &CZelData::SetAssembly,
                              &CZelData::BlankAssembly},
    TableRow<Data::CGrView>{CModule::None, "GrView", TableShape::Sparse, RemovalForm::Blank,
                            &CZelData::GrViewExist, &CZelData::GrView, &CZelData::GrView,
                            &CZelData::HighestGrView, &CZelData::SetGrView, &CZelData::BlankGrView},
    TableRow<Data::COpView>{CModule::None, "OpView", TableShape::Sparse, RemovalForm::Blank,
                            &CZelData::OpViewExist, &CZelData::OpView, &CZelData::OpView,
                            &CZelData::HighestOpView, &CZelData::SetOpView, &CZelData::BlankOpView},
    TableRow<Data::Design::CMatSteel>{
        CModule::MatSteel, "MatSteel", TableShape::Sparse, RemovalForm::Blank,
        &CZelData::MatSteelExist, &CZelData::MatSteel, &CZelData::MatSteel,
        &CZelData::HighestMatSteel, &CZelData::SetMatSteel, &CZelData::BlankMatSteel},
    TableRow<Data::Design::CMatConc>{CModule::MatConcrete, "MatConcrete", TableShape::Sparse,
                                     RemovalForm::Blank, &CZelData::MatConcreteExist,
                                     &CZelData::MatConcrete, &CZelData::MatConcrete,
                                     &CZelData::HighestMatConcrete, &CZelData::SetMatConcrete,
                                     &CZelData::BlankMatConcrete},
    TableRow<Data::Design::CMatFrp>{CModule::MatFrp, "MatFrp", TableShape::Sparse,
                                    RemovalForm::Blank, &CZelData::MatFrpExist, &CZelData::MatFrp,
                                    &CZelData::MatFrp, &CZelData::HighestMatFrp,
                                    &CZelData::SetMatFrp, &CZelData::BlankMatFrp},
    TableRow<Data::Design::CMatAlum>{
        CModule::MatAluminium, "MatAluminium", TableShape::Sparse, RemovalForm::Blank,
        &CZelData::MatAluminiumExist, &CZelData::MatAluminium, &CZelData::MatAluminium,
        &CZelData::HighestMatAluminium, &CZelData::SetMatAluminium, &CZelData::BlankMatAluminium},
    TableRow<Data::Design::CMatTimber>{
        CModule::MatTimber, "MatTimber", TableShape::Sparse, RemovalForm::Blank,
        &CZelData::MatTimberExist, &CZelData::MatTimber, &CZelData::MatTimber,
        &CZelData::HighestMatTimber, &CZelData::SetMatTimber, &CZelData::BlankMatTimber},
    TableRow<Data::Design::CMatGlass>{
        CModule::MatGlass, "MatGlass", TableShape::Sparse, RemovalForm::Blank,
        &CZelData::MatGlassExist, &CZelData::MatGlass, &CZelData::MatGlass,
        &CZelData::HighestMatGlass, &CZelData::SetMatGlass, &CZelData::BlankMatGlass},
    TableRow<Data::Design::CMatFabric>{
        CModule::MatFabric, "MatFabric", TableShape::Sparse, RemovalForm::Blank,
        &CZelData::MatFabricExist, &CZelData::MatFabric, &CZelData::MatFabric,
        &CZelData::HighestMatFabric, &CZelData::SetMatFabric, &CZelData::BlankMatFabric},
    TableRow<Data::Design::CMatRebar>{
        CModule::MatRebar, "MatRebar", TableShape::Sparse, RemovalForm::Blank,
        &CZelData::MatRebarExist, &CZelData::MatRebar, &CZelData::MatRebar,
        &CZelData::HighestMatRebar, &CZelData::SetMatRebar, &CZelData::BlankMatRebar},
    TableRow<Data::CMatAnal>{CModule::MatAnal, "MatAnal", TableShape::Sparse, RemovalForm::Blank,
                             &CZelData::MatAnalExist, &CZelData::MatAnal, &CZelData::MatAnal,
                             &CZelData::HighestMatAnal, &CZelData::SetMatAnal,
                             &CZelData::BlankMatAnal},
    TableRow<Data::CTableT<double>>{
        CModule::MatCurve, "MatCurve", TableShape::Sparse, RemovalForm::Blank,
        &CZelData::MatCurveExist, &CZelData::MatCurve, &CZelData::MatCurve,
        &CZelData::HighestMatCurve, &CZelData::SetMatCurve, &CZelData::BlankMatCurve},
    TableRow<Data::CMatMatrix>{CModule::MatMatrix, "MatMatrix", TableShape::Sparse,
                               RemovalForm::Blank, &CZelData::MatMatrixExist, &CZelData::MatMatrix,
                               &CZelData::MatMatrix, &CZelData::HighestMatMatrix,
                               &CZelData::SetMatMatrix, &CZelData::BlankMatMatrix},
    TableRow<Data::CSection>{CModule::Section, "Section", TableShape::Sparse, RemovalForm::Blank,
                             &CZelData::SectionExist, &CZelData::Section, &CZelData::Section,
                             &CZelData::HighestSection, &CZelData::SetSection,
                             &CZelData::BlankSection},
    TableRow<Data::CSpringProp>{
        CModule::SpringProp, "SpringProp", TableShape::Sparse, RemovalForm::Blank,
        &CZelData::SpringPropExist, &CZelData::SpringProp, &CZelData::SpringProp,
        &CZelData::HighestSpringProp, &CZelData::SetSpringProp, &CZelData::BlankSpringProp},
    TableRow<Data::CMassProp>{CModule::MassProp, "MassProp", TableShape::Sparse, RemovalForm::Blank,
                              &CZelData::MassPropExist, &CZelData::MassProp, &CZelData::MassProp,
                              &CZelData::HighestMassProp, &CZelData::SetMassProp,
                              &CZelData::BlankMassProp},
    TableRow<Data::CProp2D>{CModule::Prop2D, "Prop2D", TableShape::Sparse, RemovalForm::Blank,
                            &CZelData::Prop2DExist, &CZelData::Prop2D, &CZelData::Prop2D,
                            &CZelData::HighestProp2D, &CZelData::SetProp2D, &CZelData::BlankProp2D},
    TableRow<Data::CProp3D>{CModule::Prop3D, "Prop3D", TableShape::Sparse, RemovalForm::Blank,
                            &CZelData::Prop3DExist, &CZelData::Prop3D, &CZelData::Prop3D,
                            &CZelData::HighestProp3D, &CZelData::SetProp3D, &CZelData::BlankProp3D},
    TableRow<Data::CLinkProp>{CModule::LinkProp, "LinkProp", TableShape::Sparse, RemovalForm::Blank,
                              &CZelData::LinkPropExist, &CZelData::LinkProp, &CZelData::LinkProp,
                              &CZelData::HighestLinkProp, &CZelData::SetLinkProp,
                              &CZelData::BlankLinkProp},
    TableRow<Data::CDamperProp>{
        CModule::DamperProp, "DamperProp", TableShape::Sparse, RemovalForm::Blank,
        &CZelData::DamperPropExist, &CZelData::DamperProp, &CZelData::DamperProp,
        &CZelData::HighestDamperProp, &CZelData::SetDamperProp, &CZelData::BlankDamperProp},
    TableRow<Data::CCableProp>{CModule::CableProp, "CableProp", TableShape::Sparse,
                               RemovalForm::Blank, &CZelData::CablePropExist, &CZelData::CableProp,
                               &CZelData::CableProp, &CZelData::HighestCableProp,
                               &CZelData::SetCableProp, &CZelData::BlankCableProp},
    TableRow<Data::CSpacerProp>{
        CModule::SpacerProp, "SpacerProp", TableShape::Sparse, RemovalForm::Blank,
        &CZelData::SpacerPropExist, &CZelData::SpacerProp, &CZelData::SpacerProp,
        &CZelData::HighestSpacerProp, &CZelData::SetSpacerProp, &CZelData::BlankSpacerProp},
    TableRow<Data::CForceDensity1D>{CModule::ForceDensity1D, "ForceDensity1D", TableShape::Sparse,
                                    RemovalForm::Blank, &CZelData::ForceDensity1DExist,
                                    &CZelData::ForceDensity1D, &CZelData::ForceDensity1D,
                                    &CZelData::HighestForceDensity1D, &CZelData::SetForceDensity1D,
                                    &CZelData::BlankForceDensity1D},
    TableRow<Data::CSoapStress1D>{
        CModule::SoapStress1D, "SoapStress1D", TableShape::Sparse, RemovalForm::Blank,
        &CZelData::SoapStress1DExist, &CZelData::SoapStress1D, &CZelData::SoapStress1D,
        &CZelData::HighestSoapStress1D, &CZelData::SetSoapStress1D, &CZelData::BlankSoapStress1D},
    TableRow<Data::CForceDensity2D>{CModule::ForceDensity2D, "ForceDensity2D", TableShape::Sparse,
                                    RemovalForm::Blank, &CZelData::ForceDensity2DExist,
                                    &CZelData::ForceDensity2D, &CZelData::ForceDensity2D,
                                    &CZelData::HighestForceDensity2D, &CZelData::SetForceDensity2D,
                                    &CZelData::BlankForceDensity2D},
    TableRow<Data::CSoapStress2D>{
        CModule::SoapStress2D, "SoapStress2D", TableShape::Sparse, RemovalForm::Blank,
        &CZelData::SoapStress2DExist, &CZelData::SoapStress2D, &CZelData::SoapStress2D,
        &CZelData::HighestSoapStress2D, &CZelData::SetSoapStress2D, &CZelData::BlankSoapStress2D},
    TableRow<Data::CRC2DProp>{CModule::RC2DProp, "RC2DProp", TableShape::Sparse, RemovalForm::Blank,
                              &CZelData::RC2DPropExist, &CZelData::RC2DProp, &CZelData::RC2DProp,
                              &CZelData::HighestRC2DProp, &CZelData::SetRC2DProp,
                              &CZelData::BlankRC2DProp},
    TableRow<Data::GeoSoilZone>{CModule::None, "SoilZone", TableShape::Sparse, RemovalForm::Blank,
                                &CZelData::SoilZoneExist, &CZelData::SoilZone, &CZelData::SoilZone,
                                &CZelData::HighestSoilZone, &CZelData::SetSoilZone,
                                &CZelData::BlankSoilZone},
    TableRow<Data::GeoSoilProfile>{
        CModule::None, "SoilProfile", TableShape::Sparse, RemovalForm::Blank,
        &CZelData::SoilProfileExist, &CZelData::SoilProfile, &CZelData::SoilProfile,
        &CZelData::HighestSoilProfile, &CZelData::SetSoilProfile, &CZelData::BlankSoilProfile},
    TableRow<Data::CResSpectrum>{
        CModule::None, "ResSpectrum", TableShape::Sparse, RemovalForm::Blank,
        &CZelData::ResSpectrumExist, &CZelData::ResSpectrum, &CZelData::ResSpectrum,
        &CZelData::HighestResSpectrum, &CZelData::SetResSpectrum, &CZelData::BlankResSpectrum});

/// All tables.
inline constexpr auto kTables =
    JoinRows(kSparseTables, kPositionalTables, kCaseTables, kResultTables);

}  // namespace Registry

/// Calls visit(row) for each table, in the order of the registry.
template <class Visit>
void ForEachTable(Visit&& visit) {
  Registry::kTables.ForEach(visit);
}

/// Calls visit(row) for each one-off record.
template <class Visit>
void ForEachOneOff(Visit&& visit) {
  Registry::kOneOffs.ForEach(visit);
}

/// Access to the records of a table or module without knowing their class.
struct ModuleRow {
  CModule::ModuleId module;
  std::string_view stem;  ///< of the table, for a module of its first one
  bool (*exist)(CZelData const&, int);
  int (*highest)(CZelData const&);
  void (*clear)(CZelData&);
};

/// The rows of all tables.
TARVEX_STORE_EXPORT std::span<ModuleRow const> Tables();
/// The rows of all modules that have a table; a table without a module number has none.
TARVEX_STORE_EXPORT std::span<ModuleRow const> Modules();
/// The row of a module, null when no table has it.
TARVEX_STORE_EXPORT ModuleRow const* FindModule(CModule::ModuleId module);

}  // namespace Tarvex
