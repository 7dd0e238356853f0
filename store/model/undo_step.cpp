#include "store/model/undo_step.h"

#include "store/model/model_core.h"
#include "store/model/zel_data.h"

namespace Tarvex {

CUndoStep::CUndoStep(CZelData& model, bool)
    : m_model(model), m_before(std::make_unique<ModelState>(model.m_owned->state)) {
  m_model.m_owned->history.Open();
}

CUndoStep::CUndoStep(CZelData* model, bool quiet) : CUndoStep(*model, quiet) {}

CUndoStep::~CUndoStep() {
  if (m_before == nullptr) return;
  m_model.m_owned->history.Abandon();
  m_model.m_owned->Restore(std::move(*m_before));
}

void CUndoStep::Accept() {
  if (m_before == nullptr) return;
  m_model.m_owned->history.Accept(std::move(*m_before));
  m_before.reset();
}

}  // namespace Tarvex
