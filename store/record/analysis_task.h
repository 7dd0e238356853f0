// Analysis tasks: what is to be worked out, and for which analysis cases.
#pragma once

#include <memory>
#include <set>
#include <string_view>

#include "store/export.h"
#include "store/record/entity.h"

namespace Tarvex {

/// What a task solves for. The numbers are those of recorded work.
enum class AnalSoln : int {
  None = 0,
  Static = 1,
  Modal = 2,
  ModalBuckling = 3,
  StaticPDelta = 4,
  ModalPDelta = 5,
  ResponseSpectrum = 6,
  StaticNonLinear = 7,
  FormRelaxation = 12,
  ResponseSpectrumPseudoStatic = 42,
};

/// The solver that a task goes to, which tells its class.
enum class TaskSolver : int {
  None = 0,
  Static = 1,      ///< CZssTask
  Relaxation = 2,  ///< CFormRelaxTask
  Spectrum = 3,    ///< CZdSpecTask
  Envelope = 6,    ///< CEnvelopeTask
};

/// How far a task is.
enum class TaskStatus : int {
  Undone = 0,
  Changed = 1,  ///< its model was renumbered since
  Done = 2,
};

namespace Zel {

/// A task of no particular solver, and what all tasks have in common.
class TARVEX_STORE_EXPORT CAnalysisTask : public NamedEntity {
 public:
  CAnalysisTask() = default;
  CAnalysisTask(CString const& name, AnalSoln solution)
      : CAnalysisTask(name, TaskSolver::None, solution) {}
  virtual ~CAnalysisTask();
  virtual std::unique_ptr<CAnalysisTask> Clone() const;
  /// Name of the class in model files.
  virtual std::string_view ClassName() const;
  /// Equality to the bit of two tasks of one class; tasks of different classes are not equal.
  virtual bool IsEqual(CAnalysisTask const& other) const;

  /// Numbers of the analysis cases that the task works out.
  std::set<int> const& Cases() const { return m_cases; }
  void SetCases(std::set<int> cases) { m_cases = std::move(cases); }
  TaskSolver Solver() const { return m_solver; }
  AnalSoln Solution() const { return m_solution; }
  bool Solution(AnalSoln solution) const { return m_solution == solution; }
  void SetSolution(AnalSoln solution) { m_solution = solution; }
  TaskStatus Status() const { return m_status; }
  void SetStatus(TaskStatus status) { m_status = status; }
  /// Number of the stage that is analysed, 0 for the model without stages.
  int Stage() const { return m_stage; }
  void SetStage(int stage) { m_stage = stage; }

  /// Whether its cases are load cases.
  bool IsStatic() const;
  bool IsPDelta() const;
  bool IsModalBuckling() const { return Solution(AnalSoln::ModalBuckling); }
  /// Whether its cases are modes of vibration.
  bool IsEigenDynamic() const;
  bool IsResponseSpectrum() const;

  friend bool operator==(CAnalysisTask const& a, CAnalysisTask const& b) { return a.IsEqual(b); }

 protected:
  CAnalysisTask(CString const& name, TaskSolver solver, AnalSoln solution)
      : NamedEntity(0, name), m_solver(solver), m_solution(solution) {}
  CAnalysisTask(CAnalysisTask const&) = default;
  CAnalysisTask(CAnalysisTask&&) noexcept = default;
  CAnalysisTask& operator=(CAnalysisTask const&) = default;
  CAnalysisTask& operator=(CAnalysisTask&&) noexcept = default;

  /// Fields of the base, which come first in every task; the class tells the solver.
  template <class Task>
  static constexpr auto TaskFields() {
    using R = CAnalysisTask;
    return JoinRows(
        NamedFields<Task>(),
        MakeRows(Plain<Task>("solution", &R::m_solution), Plain<Task>("status", &R::m_status),
                 Reference<Task, CModule::AnalStage>("stage", &R::m_stage),
                 Reference<Task, CModule::AnalysisCase>("cases", &R::m_cases)));
  }

 public:
  static constexpr std::string_view kClass = "CAnalysisTask";
  static constexpr auto Fields() { return TaskFields<CAnalysisTask>(); }

 private:
  TaskSolver m_solver = TaskSolver::None;
  AnalSoln m_solution = AnalSoln::None;
  TaskStatus m_status = TaskStatus::Undone;
  int m_stage = 0;
  std::set<int> m_cases;
};

/// What a class of tasks adds to its fields: copying and comparing by the class itself.
template <class Task>
class TaskOf : public CAnalysisTask {
 public:
  std::unique_ptr<CAnalysisTask> Clone() const override {
    return std::make_unique<Task>(static_cast<Task const&>(*this));
  }
  std::string_view ClassName() const override { return Task::kClass; }
  bool IsEqual(CAnalysisTask const& other) const override {
    auto const* task = dynamic_cast<Task const*>(&other);
    return task != nullptr && Same(static_cast<Task const&>(*this), *task);
  }

 protected:
  using CAnalysisTask::CAnalysisTask;
};

}  // namespace Zel
}  // namespace Tarvex
