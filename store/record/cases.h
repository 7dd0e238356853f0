// Analysis cases, combinations of them, and descriptions that stand alone.
#pragma once

#include <memory>

#include "store/record/case_desc.h"
#include "store/record/entity.h"

namespace Tarvex {
namespace Data {

/// A combination of cases.
class CCombinationCase : public NamedEntity {
 public:
  CCombinationCase() = default;
  /// @param isUsed whether results are to be worked out for it
  explicit CCombinationCase(bool isUsed) : m_isUsed(isUsed) {}

  CCombCaseDesc const& Description() const { return m_description; }
  void SetDescription(CCombCaseDesc const& description) { m_description = description; }
  bool IsUsed() const { return m_isUsed; }
  void SetIsUsed(bool isUsed) { m_isUsed = isUsed; }

  std::unique_ptr<CCombinationCase> Clone() const {
    return std::make_unique<CCombinationCase>(*this);
  }

  friend bool operator==(CCombinationCase const& a, CCombinationCase const& b) {
    return Same(a, b);
  }

  static constexpr auto Fields() {
    using R = CCombinationCase;
    return JoinRows(NamedFields<R>(), MakeRows(Plain<R>("description", &R::m_description),
                                               Plain<R>("isUsed", &R::m_isUsed)));
  }

 private:
  CCombCaseDesc m_description;
  bool m_isUsed = true;
};

/// A description of cases under a number of its own.
class CCaseDescription : public NamedEntity {
 public:
  CCaseDescription() = default;
  explicit CCaseDescription(CString const& name) : NamedEntity(0, name) {}

  CString const& Description() const { return m_description.Text(); }
  void SetDescription(CString const& text) { m_description = CCombCaseDesc(text); }

  friend bool operator==(CCaseDescription const& a, CCaseDescription const& b) {
    return Same(a, b);
  }

  static constexpr auto Fields() {
    using R = CCaseDescription;
    return JoinRows(NamedFields<R>(), MakeRows(Plain<R>("description", &R::m_description)));
  }

 private:
  CCombCaseDesc m_description;
};

}  // namespace Data

namespace Zel {

/// A case that an analysis task works out results for.
class CAnalysisCase : public NamedEntity {
 public:
  CAnalysisCase() = default;
  CAnalysisCase(CString const& name, CString const& description, int task)
      : NamedEntity(0, name), m_description(description), m_task(task) {}

  /// What the case is of: load cases with factors ("L1"), or a mode ("M1").
  CString const& Description() const { return m_description.Text(); }
  void SetDescription(CString const& text) { m_description = Data::CCaseDesc(text); }
  /// Number of the task that the case belongs to, 0 for none.
  int Task() const { return m_task; }
  void SetTask(int task) { m_task = task; }
  /// Of a response: 1, 2, 3 for the direction of the modes x, y, z; 0 for none.
  int ModeDirection() const { return m_modeDirection; }
  void SetModeDirection(int direction) { m_modeDirection = direction; }

  std::unique_ptr<CAnalysisCase> Clone() const { return std::make_unique<CAnalysisCase>(*this); }

  friend bool operator==(CAnalysisCase const& a, CAnalysisCase const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    using R = CAnalysisCase;
    return JoinRows(NamedFields<R>(),
                    MakeRows(Plain<R>("description", &R::m_description),
                             Reference<R, CModule::AnalysisTask>("task", &R::m_task),
                             Plain<R>("modeDirection", &R::m_modeDirection)));
  }

 private:
  Data::CCaseDesc m_description;
  int m_task = 0;
  int m_modeDirection = 0;
};

}  // namespace Zel
}  // namespace Tarvex
