// Titles of load cases: what a load case is called and which action it stands for.
#pragma once

#include "store/record/case_type.h"
#include "store/record/entity.h"

namespace Tarvex::Data {

/// Name and action of a load case. A load case may be in use without one.
class CLoadCaseTitle : public NamedEntity {
 public:
  CLoadCaseTitle() = default;
  CLoadCaseTitle(CString const& name, CaseType type, int source = 1)
      : NamedEntity(0, name), m_type(type), m_source(source) {}

  CaseType TypeOf() const { return m_type; }
  void SetType(CaseType type) { m_type = type; }
  /// Number of the action: load cases with the same type and source are one action.
  int Source() const { return m_source; }
  void SetSource(int source) { m_source = source; }
  /// Of imposed loads: 1 to 8 for the categories A to H of areas (EN 1991-1-1, 6.3), 0 for none.
  int Category() const { return m_category; }
  void SetCategory(int category) { m_category = category; }
  /// Of permanent actions and prestress: 1 takes the upper partial factor alone, 2 the lower one
  /// alone, anything else both.
  int PermanentMode() const { return m_permanentMode; }
  void SetPermanentMode(int mode) { m_permanentMode = mode; }
  /// Of seismic actions: 1, 2, 3 for x, y, z; 0 for none.
  int GetDirection() const { return m_direction; }
  void SetDirection(int direction) { m_direction = direction; }

  friend bool operator==(CLoadCaseTitle const& a, CLoadCaseTitle const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    using R = CLoadCaseTitle;
    return JoinRows(NamedFields<R>(),
                    MakeRows(Plain<R>("type", &R::m_type), Plain<R>("source", &R::m_source),
                             Plain<R>("category", &R::m_category),
                             Plain<R>("permanentMode", &R::m_permanentMode),
                             Plain<R>("direction", &R::m_direction)));
  }

 private:
  CaseType m_type = CaseType::Undefined;
  int m_source = 1;
  int m_category = 0;
  int m_permanentMode = 0;
  int m_direction = 0;
};

}  // namespace Tarvex::Data
