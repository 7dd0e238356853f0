// The list of all tables: one row a table.
//
// Whole-model walks (equality, difference, files, integrity) loop over it, and access by module
// number looks it up; no switch over modules stands beside it. The order of the rows is the order
// of the tables in model files.
#pragma once

#include <span>
#include <string_view>
#include <tuple>

#include "store/export.h"
#include "store/model/zel_data.h"
#include "store/record/alignment.h"
#include "store/record/assembly.h"
#include "store/record/axis.h"
#include "store/record/block.h"
#include "store/record/ent_list.h"
#include "store/record/grid_line.h"
#include "store/record/grid_plane.h"
#include "store/record/grid_surface.h"
#include "store/record/member.h"
#include "store/record/node.h"
#include "store/record/polyline.h"
#include "store/record/views.h"

namespace Tarvex {

/// How the records of a table are numbered.
enum class TableShape {
  Sparse,      ///< numbers with holes
  Positional,  ///< the number is the position from 1
};

/// How records leave a table.
enum class RemovalForm {
  Blank,   ///< leaves holes
  Delete,  ///< closes up where the table is positional
};

/// One sparse table with its operations.
template <class R>
struct TableRow {
  using Record = R;

  CModule::ModuleId module;
  std::string_view stem;  ///< name of the table in files and messages
  TableShape shape;
  RemovalForm removal;
  bool (CZelData::*exist)(int) const;
  R const& (CZelData::*get)(int) const;
  tarvex_unordered_map<unsigned int, R> const& (CZelData::*all)() const;
  int (CZelData::*highest)() const;  ///< of a number space, which two tables may share
  void (CZelData::*set)(int, R const&, SidMode);
  void (CZelData::*remove)(int, int);
};

/// One record that a model has once.
template <class R>
struct OneOffRow {
  using Record = R;

  std::string_view stem;
  R const& (CZelData::*get)() const;
  void (CZelData::*set)(R const&);
};

namespace Registry {

inline constexpr std::tuple kOneOffs{
    OneOffRow<Data::CSpec>{"Spec", &CZelData::Spec, &CZelData::SetSpec},
    OneOffRow<Data::CDefaults>{"Defaults", &CZelData::Defaults, &CZelData::SetDefaults},
};

inline constexpr std::tuple kTables{
    TableRow<Data::CNode>{CModule::Node, "Node", TableShape::Sparse, RemovalForm::Blank,
                          &CZelData::NodeExist, &CZelData::Node, &CZelData::Node,
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
};

}  // namespace Registry

/// Calls visit(row) for each table, in the order of the registry.
template <class Visit>
void ForEachTable(Visit&& visit) {
  std::apply([&](auto const&... rows) { (visit(rows), ...); }, Registry::kTables);
}

/// Calls visit(row) for each one-off record.
template <class Visit>
void ForEachOneOff(Visit&& visit) {
  std::apply([&](auto const&... rows) { (visit(rows), ...); }, Registry::kOneOffs);
}

/// Access to the records of a module without knowing their class.
struct ModuleRow {
  CModule::ModuleId module;
  bool (*exist)(CZelData const&, int);
  int (*highest)(CZelData const&);
  void (*clear)(CZelData&);
};

/// The rows of all modules that have a table; a table without a module number has none.
TARVEX_STORE_EXPORT std::span<ModuleRow const> Modules();
/// The row of a module, null when no table has it.
TARVEX_STORE_EXPORT ModuleRow const* FindModule(CModule::ModuleId module);

}  // namespace Tarvex
