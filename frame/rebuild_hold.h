// Guard around bulk changes of topology.
#pragma once

#include "store/model/zel_data.h"

namespace Tarvex {

/// Holds the rebuild of derived data for its lifetime, so that each store costs its own record
/// only. Scopes nest: the hold ends with the outermost one, on every way out.
class RebuildHold {
 public:
  explicit RebuildHold(CZelData& model) : m_model(model) {
    m_model.FlagRebuild();
    m_model.rebuildHold = true;
    ++m_model.rebuildHoldDepth;
  }
  ~RebuildHold() {
    if (--m_model.rebuildHoldDepth == 0) m_model.rebuildHold = false;
  }
  RebuildHold(RebuildHold const&) = delete;
  RebuildHold& operator=(RebuildHold const&) = delete;

 private:
  CZelData& m_model;
};

}  // namespace Tarvex
