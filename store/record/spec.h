// Records that a model has once: its specification and the defaults of new records.
#pragma once

#include "store/export.h"
#include "store/numeric/vbool6.h"
#include "store/record/field.h"
#include "store/record/struct_type.h"
#include "store/text/cstring.h"

namespace Tarvex {

/// Which general tolerance is asked for. The numbers are those that tools pass.
enum class TolType : int {
  PointInElement = 1,  ///< distance of a point from an element that holds it, model length units
  Vertical = 4,        ///< sine of the angle from the vertical or the horizontal
  AxisAngle = 7,       ///< angle between axes that count as the same, degrees
  Coincidence = 10,    ///< distance of points that count as one, model length units
};

namespace Data {

/// The set of units that values are shown in: a user value is an internal value times Conversion.
class TARVEX_STORE_EXPORT CUnit {
 public:
  enum Quantity : int { kLength = 2, kAngle = 201 };

  /// Factor of a quantity; 1 for a quantity without a unit of its own. Angles are radians inside.
  double Conversion(int quantity) const;
  /// Throws std::invalid_argument for a factor that is not above 0, or a quantity without a unit.
  void SetConversion(int quantity, double factor);

  friend bool operator==(CUnit const& a, CUnit const& b) { return Same(a, b); }
  static constexpr auto Fields() {
    return MakeRows(Plain<CUnit>("length", &CUnit::m_length),
                    Plain<CUnit>("angle", &CUnit::m_angle));
  }

 private:
  double m_length = 1;
  double m_angle = 1;
};

/// The general tolerances of a model.
struct GenTolerances {
  double pointInElement = 0.001;
  double vertical = 0.001;
  double axisAngle = 1;
  double coincidence = 0.001;

  friend bool operator==(GenTolerances const& a, GenTolerances const& b) { return Same(a, b); }
  static constexpr auto Fields() {
    return MakeRows(Plain<GenTolerances>("pointInElement", &GenTolerances::pointInElement),
                    Plain<GenTolerances>("vertical", &GenTolerances::vertical),
                    Plain<GenTolerances>("axisAngle", &GenTolerances::axisAngle),
                    Plain<GenTolerances>("coincidence", &GenTolerances::coincidence));
  }
};

/// A country, by the number that recorded work uses for it.
class CCountry {
 public:
  CCountry() = default;
  explicit CCountry(int code) : m_code(code) {}

  /// 0 where none is said.
  int GetCode() const { return m_code; }

  friend bool operator==(CCountry const&, CCountry const&) = default;
  static constexpr auto Fields() { return MakeRows(Plain<CCountry>("code", &CCountry::m_code)); }

 private:
  int m_code = 0;
};

/// Specification of the model.
class TARVEX_STORE_EXPORT CSpec {
 public:
  /// What becomes of the mass of elements.
  enum class MassOp : int {
    Ignored = 0,
    Lumped = 1,  ///< at the nodes
  };

  /// A general tolerance; without argument the one for coincident points.
  double GenTol(TolType type = TolType::Coincidence) const;
  /// Throws std::invalid_argument for a value below 0 or not finite, or an unknown type.
  void SetGenTol(TolType type, double value);

  CUnit const& Unit() const { return m_unit; }
  void SetUnit(CUnit const& unit) { m_unit = unit; }

  /// Number of the grid plane of the construction grid, 0 for none.
  int ConsGridRef() const { return m_consGridRef; }
  void SetConsGridRef(int plane) { m_consGridRef = plane; }

  /// Where the structure stands.
  CCountry Country() const { return m_country; }
  void SetCountry(CCountry country) { m_country = country; }
  /// Height of the global origin above sea level, model length units.
  double ZElevation() const { return m_zElevation; }
  void SetZElevation(double elevation) { m_zElevation = elevation; }
  StrType StructType() const { return m_structType; }
  void SetStructType(StrType type) { m_structType = type; }
  /// Directions that no node moves in, by the kind of structure.
  Vbool6 GlobalRestraint() const;

  friend bool operator==(CSpec const& a, CSpec const& b) { return Same(a, b); }
  static constexpr auto Fields() {
    return MakeRows(Plain<CSpec>("genTol", &CSpec::m_genTol), Plain<CSpec>("unit", &CSpec::m_unit),
                    Reference<CSpec, CModule::GridPlane>("consGridRef", &CSpec::m_consGridRef),
                    Plain<CSpec>("country", &CSpec::m_country),
                    Plain<CSpec>("zElevation", &CSpec::m_zElevation),
                    Plain<CSpec>("structType", &CSpec::m_structType));
  }

 private:
  CCountry m_country;
  double m_zElevation = 0;
  StrType m_structType = StrType::Space;
  GenTolerances m_genTol;
  CUnit m_unit;
  int m_consGridRef = 0;
};

/// Specification of rafts on soil.
class CRaftSpec {
 public:
  /// Level of the surface of the soil, model length units.
  double TopLevel() const { return m_topLevel; }
  void SetTopLevel(double level) { m_topLevel = level; }

  friend bool operator==(CRaftSpec const& a, CRaftSpec const& b) { return Same(a, b); }
  static constexpr auto Fields() {
    return MakeRows(Plain<CRaftSpec>("topLevel", &CRaftSpec::m_topLevel));
  }

 private:
  double m_topLevel = 0;
};

/// Names that new records get; '#' stands for the number.
class CDefaults {
 public:
  CString const& AnalysisTaskName() const { return m_analysisTaskName; }
  void SetAnalysisTaskName(CString const& name) { m_analysisTaskName = name; }
  CString const& AnalysisCaseName() const { return m_analysisCaseName; }
  void SetAnalysisCaseName(CString const& name) { m_analysisCaseName = name; }
  CString const& CombinationCaseName() const { return m_combinationCaseName; }
  void SetCombinationCaseName(CString const& name) { m_combinationCaseName = name; }

  friend bool operator==(CDefaults const& a, CDefaults const& b) { return Same(a, b); }
  static constexpr auto Fields() {
    return MakeRows(Plain<CDefaults>("analysisTaskName", &CDefaults::m_analysisTaskName),
                    Plain<CDefaults>("analysisCaseName", &CDefaults::m_analysisCaseName),
                    Plain<CDefaults>("combinationCaseName", &CDefaults::m_combinationCaseName));
  }

 private:
  CString m_analysisTaskName = L"Analysis Task #";
  CString m_analysisCaseName = L"Analysis Case #";
  CString m_combinationCaseName = L"Combination Case #";
};

}  // namespace Data
}  // namespace Tarvex
