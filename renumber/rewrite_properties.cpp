// References of properties, and of what stands in their place in stages.
#include <array>

#include "renumber/reference_rewriter.h"
#include "store/record/prop_2d.h"
#include "store/record/section.h"
#include "store/record/spring_prop.h"
#include "store/record/stages.h"

namespace Tarvex {
namespace {

template <class Key>
struct KeyTable {
  Key key;
  CModule::ModuleId module;
};

/// The tables of grades that sections follow; rebar and fabric stay.
constexpr std::array kGradeTables{KeyTable<MatType>{MatType::Steel, CModule::MatSteel},
                                  KeyTable<MatType>{MatType::Concrete, CModule::MatConcrete},
                                  KeyTable<MatType>{MatType::Aluminium, CModule::MatAluminium},
                                  KeyTable<MatType>{MatType::Glass, CModule::MatGlass},
                                  KeyTable<MatType>{MatType::Frp, CModule::MatFrp},
                                  KeyTable<MatType>{MatType::Timber, CModule::MatTimber}};

/// The tables of the properties of stages that are followed; dampers stay.
constexpr std::array kStageTables{KeyTable<PropertyType>{PropertyType::Section, CModule::Section},
                                  KeyTable<PropertyType>{PropertyType::Spring, CModule::SpringProp},
                                  KeyTable<PropertyType>{PropertyType::Mass, CModule::MassProp},
                                  KeyTable<PropertyType>{PropertyType::Plate, CModule::Prop2D},
                                  KeyTable<PropertyType>{PropertyType::Link, CModule::LinkProp},
                                  KeyTable<PropertyType>{PropertyType::Cable, CModule::CableProp},
                                  KeyTable<PropertyType>{PropertyType::Solid, CModule::Prop3D}};

template <class Rows, class Key>
CModule::ModuleId TableOf(Rows const& rows, Key key) {
  for (auto const& row : rows)
    if (row.key == key) return row.module;
  return CModule::None;
}

}  // namespace

bool ReferenceRewriter::Sections() {
  Each(RewrittenTable<Data::CSection>{&CZelData::Section, &CZelData::SetSection},
       [&](Data::CSection& section) {
         for (int i = 0; i < section.NumComponent(); ++i) {
           section.SetMaterialAnalysis(i, Map(CModule::MatAnal, section.MaterialAnalysis(i)));
           auto const table = TableOf(kGradeTables, section.MaterialType(i));
           section.SetMaterialGrade(i, Map(table, section.MaterialGrade(i)));
         }
       });
  return true;
}

bool ReferenceRewriter::Springs() {
  Each(RewrittenTable<Data::CSpringProp>{&CZelData::SpringProp, &CZelData::SetSpringProp},
       [&](Data::CSpringProp& spring) {
         for (auto const d : {Direction::X, Direction::Y, Direction::Z})
           spring.SetTableRef(d, Map(CModule::MatCurve, spring.TableRef(d)));
         spring.SetMatrix(Map(CModule::MatMatrix, spring.Matrix()));
       });
  return true;
}

bool ReferenceRewriter::Plates() {
  Each(RewrittenTable<Data::CProp2D>{&CZelData::Prop2D, &CZelData::SetProp2D},
       [&](Data::CProp2D& plate) {
         MapAxis(plate);
         plate.SetMaterialAnalysis(Map(CModule::MatAnal, plate.MaterialAnalysis()));
       });
  return true;
}

bool ReferenceRewriter::StageProperties() {
  using Record = Data::CAnalStageProp;
  Each(RewrittenTable<Record>{&CZelData::AnalStageProp, &CZelData::SetAnalStageProp},
       [&](Record& record) {
         record.SetStage(Map(CModule::AnalStage, record.Stage()));
         auto const table = TableOf(kStageTables, record.PropType());
         record.SetElemProp(Map(table, record.ElemProp()));
         record.SetPropRec(Map(table, record.PropRec()));
       });
  return true;
}

bool ReferenceRewriter::StageMaterials() {
  using Record = Data::CAnalStageMat;
  Each(RewrittenTable<Record>{&CZelData::AnalStageMat, &CZelData::SetAnalStageMat},
       [&](Record& record) {
         record.SetStage(Map(CModule::AnalStage, record.Stage()));
         record.SetElemOriginalMat(Map(CModule::MatAnal, record.ElemOriginalMat()));
         record.SetElemStageMat(Map(CModule::MatAnal, record.ElemStageMat()));
       });
  return true;
}

}  // namespace Tarvex
