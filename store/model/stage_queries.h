// What acts in a stage, and what holds a node.
//
// Queries do not throw: asked about something that does not exist they answer false.
#pragma once

#include "store/export.h"
#include "store/numeric/vbool6.h"
#include "store/select/reference.h"

namespace Tarvex {

class CZelData;
class ModelCore;
namespace Data {
class CEntList;
}  // namespace Data

/// Whether a list of stages names one, by number, range or "all"; the stage need not exist.
TARVEX_STORE_EXPORT bool NamesStage(CZelData const& model, Data::CEntList const& stages, int stage);

/// Queries of a model about its stages. Stage 0 is the model without stages, where all that exists
/// acts; in any other stage the elements and load panels of its list do.
class TARVEX_STORE_EXPORT StageQueries {
 public:
  bool ElemIsActive(int element, int stage) const;
  bool IsLoadPanelActive(int panel, int stage) const;
  /// Whether an entity of a kind that acts in the stage has the node in its topology. Members act
  /// in all stages. What is attached to a node may be as old as attachments are during a rebuild
  /// hold.
  bool NodeIsActive(int node, int stage, SelType kind) const;
  /// Directions that a node does not move in: by its own restraint, by those of the lists that name
  /// it and act in the stage, and by the kind of structure.
  Vbool6 NodeTotalRestraint(int node, int stage) const;

 protected:
  StageQueries(ModelCore& core, CZelData const& model) : m_core(core), m_model(model) {}
  ~StageQueries() = default;
  StageQueries(StageQueries const&) = delete;
  StageQueries& operator=(StageQueries const&) = delete;

 private:
  ModelCore& m_core;
  CZelData const& m_model;
};

}  // namespace Tarvex
