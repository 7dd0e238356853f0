// How a table holds analysis tasks, which are of several classes.
#pragma once

#include <memory>

#include "store/record/tasks.h"

namespace Tarvex::Zel {

/// A task that is never changed in place; copies share it, and null is never held.
class TaskSlot {
 public:
  TaskSlot() : m_task(std::make_shared<CAnalysisTask const>()) {}
  explicit TaskSlot(CAnalysisTask const& task) : m_task(task.Clone()) {}
  /// A copy that knows its number. @param dropSid whether it goes without text identifier
  TaskSlot(CAnalysisTask const& task, int number, bool dropSid) {
    auto copy = task.Clone();
    StoreAccess::SetNumber(*copy, number);
    if (dropSid) StoreAccess::ClearSid(*copy);
    m_task = std::move(copy);
  }

  CAnalysisTask const& Get() const { return *m_task; }
  CString const& Sid() const { return m_task->Sid(); }
  unsigned int Number() const { return m_task->Number(); }
  std::shared_ptr<CAnalysisTask const> const& Pointer() const { return m_task; }

  friend bool operator==(TaskSlot const& a, TaskSlot const& b) {
    return a.m_task == b.m_task || a.Get() == b.Get();
  }

 private:
  std::shared_ptr<CAnalysisTask const> m_task;
};

/// Calls visit(static_cast<Task*>(nullptr)) for each class of tasks; the base comes first.
template <class Visit>
void ForEachTaskClass(Visit&& visit) {
  visit(static_cast<CAnalysisTask*>(nullptr));
  visit(static_cast<CZssTask*>(nullptr));
  visit(static_cast<CZdSpecTask*>(nullptr));
  visit(static_cast<CEnvelopeTask*>(nullptr));
  visit(static_cast<CFormRelaxTask*>(nullptr));
}

/// Calls visit(task) with a task as the class that it is of.
template <class Visit>
void VisitTask(CAnalysisTask const& task, Visit&& visit) {
  ForEachTaskClass([&]<class Task>(Task*) {
    if (task.ClassName() == Task::kClass) visit(static_cast<Task const&>(task));
  });
}

}  // namespace Tarvex::Zel
