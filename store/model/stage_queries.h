// What acts in a stage, and what holds a node.
//
// Queries do not throw: asked about something that does not exist they answer false.
#pragma once

#include "store/export.h"
#include "store/numeric/vbool6.h"
#include "store/record/prop_beam.h"
#include "store/record/property_type.h"
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

  // Properties and materials in a stage: those of AnalStageProp and AnalStageMat where they name
  // the stage, else the ones of the model. Stage 0 is the model without stages.
  /// The number of the property that stands in the place of one of a family.
  int StageProperty(PropertyType type, int property, int stage) const;
  /// The property number of an element or load panel; 0 where there is none.
  int StageProperty(int element, int stage) const { return ElemStageProperty(element, stage); }
  int ElemStageProperty(int element, int stage) const;
  /// The analysis material of an element: of its section's first component, of its 2D or 3D
  /// property; 0 where there is none. Below 0 where the property says so.
  int ElemMatAnal(int element, int stage) const;
  /// Section and material of a 1D element at a place along it, from 0 at end 1 to 1 at end 2; zeros
  /// for anything else. @param transformed whether area and second moments count each component by
  /// its modulus, as multiples of that of the first
  Data::CPropBeam Elem1DPropMat(int element, int stage, double position, bool transformed) const;

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
