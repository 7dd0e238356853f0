// Reads analysis tasks, which are of several classes.
#pragma once

#include <memory>

#include "store/record/analysis_task.h"
#include "workbench/file/json_value.h"

namespace Tarvex::Workbench {

/// One task of a file: its number and class, then the fields of the class.
class TaskReader {
 public:
  /// Fails in the value for anything but a task.
  void Read(JsonValue& in);

  int Number() const { return m_number; }
  char const* Place() const { return m_place; }  ///< of the number in the text
  Zel::CAnalysisTask const& Task() const { return *m_task; }

 private:
  int m_number = 0;
  char const* m_place = nullptr;
  std::unique_ptr<Zel::CAnalysisTask> m_task;
};

}  // namespace Tarvex::Workbench
