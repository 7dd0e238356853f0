// Steps that can be undone.
#pragma once

#include <memory>

#include "store/export.h"

namespace Tarvex {

class CZelData;
struct ModelState;

/// One undoable step: from its construction to Accept(). A step that is destroyed without Accept(),
/// also by an exception, restores the model as it was when the step opened; what is outside the
/// tables (rebuild hold, bulk counter) stays. Steps nest: an inner step that is accepted belongs to
/// the outer one. Opening and accepting costs microseconds whatever the size of the model.
class TARVEX_STORE_EXPORT CUndoStep {
 public:
  /// Opens a step. @param quiet is kept for applications that show steps; it has no effect here.
  explicit CUndoStep(CZelData& model, bool quiet = false);
  explicit CUndoStep(CZelData* model, bool quiet = false);
  ~CUndoStep();
  CUndoStep(CUndoStep const&) = delete;
  CUndoStep& operator=(CUndoStep const&) = delete;

  /// Keeps what was done. The outermost step becomes an entry of the undo history, even if nothing
  /// changed, and what could be redone goes. A second call does nothing.
  void Accept();

 private:
  CZelData& m_model;
  std::unique_ptr<ModelState> m_before;  // empty once the step has ended
};

}  // namespace Tarvex
