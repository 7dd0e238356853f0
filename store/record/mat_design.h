// Materials as properties name them: a grade by its type and number, and an analysis material.
#pragma once

#include "store/export.h"
#include "store/record/field.h"

namespace Tarvex {

/// The kinds of graded materials; each has a table of its own. The numbers are part of files.
enum class MatType : int {
  Undefined = -2,  ///< none, as None
  None = 0,
  Steel = 1,
  Concrete = 2,
  Aluminium = 3,
  Glass = 4,
  Frp = 5,  ///< fibre-reinforced plastic
  Rebar = 6,
  Timber = 7,
  Fabric = 8,
};

/// The table that holds the grades of a type, CModule::None for a type that means none. Throws
/// std::runtime_error "bad material type" for any other number.
TARVEX_STORE_EXPORT CModule::ModuleId MatModule(MatType type);

/// A graded material: its type and its number in the table of that type.
class TARVEX_STORE_EXPORT MatDesign {
 public:
  MatDesign() = default;
  MatDesign(MatType type, int grade) : m_type(type), m_grade(grade) {}

  MatType Type() const { return m_type; }
  int Grade() const { return m_grade; }
  void SetGrade(int grade) { m_grade = grade; }

  friend bool operator==(MatDesign const& a, MatDesign const& b) { return Same(a, b); }
  static constexpr auto Fields() {
    return MakeRows(Plain<MatDesign>("type", &MatDesign::m_type),
                    Field<MatDesign, int>{"grade", &MatDesign::m_grade, false, &GradeTable});
  }

 private:
  static CModule::ModuleId GradeTable(MatDesign const& design);

  MatType m_type = MatType::None;
  int m_grade = 0;
};

namespace Data {

/// Base of what is made of a material.
class HasMaterial {
 public:
  /// Number of the analysis material; 0 and below for none.
  int MaterialAnalysis() const { return m_materialAnalysis; }
  void SetMaterialAnalysis(int material) { m_materialAnalysis = material; }
  MatDesign const& MaterialDesign() const { return m_materialDesign; }
  void SetMaterialDesign(MatDesign const& design) { m_materialDesign = design; }
  MatType MaterialType() const { return m_materialDesign.Type(); }
  int MaterialGrade() const { return m_materialDesign.Grade(); }
  void SetMaterialGrade(int grade) { m_materialDesign.SetGrade(grade); }

 protected:
  HasMaterial() = default;
  HasMaterial(int analysis, MatDesign const& design)
      : m_materialAnalysis(analysis), m_materialDesign(design) {}

  template <class Record>
  static constexpr auto MaterialFields() {
    return MakeRows(Field<Record, int>{"materialAnalysis", &HasMaterial::m_materialAnalysis, false,
                                       &AnalysisTable<Record>},
                    Plain<Record>("materialDesign", &HasMaterial::m_materialDesign));
  }

 private:
  template <class Record>
  static CModule::ModuleId AnalysisTable(Record const& record) {
    return record.MaterialAnalysis() < 0 ? CModule::None : CModule::MatAnal;
  }

  int m_materialAnalysis = 0;
  MatDesign m_materialDesign;
};

}  // namespace Data
}  // namespace Tarvex
