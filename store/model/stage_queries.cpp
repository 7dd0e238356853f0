#include "store/model/stage_queries.h"

#include <algorithm>

#include "store/model/list_expansion.h"
#include "store/model/model_core.h"

namespace Tarvex {
namespace {

/// Whether a stage holds an element or load panel that exists.
bool HoldsElement(CZelData const& model, int element, int stage) {
  if (stage == 0) return true;
  if (!model.AnalStageExist(stage)) return false;
  return Util::IsItemIncluded(model.AnalStage(stage).StageElem(), {SelElement, element}, model, -1,
                              true);
}

}  // namespace

bool NamesStage(CZelData const& model, Data::CEntList const& stages, int stage) {
  int const highest = std::max(stage, model.HighestAnalStage());
  return Util::IsItemIncluded(stages, {SelNone, stage}, model, highest);
}

bool StageQueries::ElemIsActive(int element, int stage) const {
  return m_model.ElemExist(element) && HoldsElement(m_model, element, stage);
}

bool StageQueries::IsLoadPanelActive(int panel, int stage) const {
  return m_model.LoadPanelExist(panel) && HoldsElement(m_model, panel, stage);
}

bool StageQueries::NodeIsActive(int node, int stage, SelType kind) const {
  if (!m_model.NodeExist(node)) return false;
  auto const& attached = m_model.Node(node).AttachedEnt(kind);
  if (kind == SelMember) return !attached.empty() && (stage == 0 || m_model.AnalStageExist(stage));
  return std::any_of(attached.begin(), attached.end(), [&](int element) {
    return ElemIsActive(element, stage) || IsLoadPanelActive(element, stage);
  });
}

Vbool6 StageQueries::NodeTotalRestraint(int node, int stage) const {
  if (!m_model.NodeExist(node)) return Vbool6();
  auto total = m_model.Node(node).Restraint() | m_model.GlobalRestraint();
  for (auto const& general : m_core.state.genRest.All())
    if (NamesStage(m_model, general.Stage(), stage) &&
        Util::IsItemIncluded(general.Nodes(), {SelNode, node}, m_model))
      total = total | general.Restraint();
  return total;
}

}  // namespace Tarvex
