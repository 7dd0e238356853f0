#include "store/model/stage_properties.h"

#include "store/model/model_core.h"

namespace Tarvex {

void StageProperties::Follow(ModelState const& state) {
  std::array const revisions{state.analStageProp.Revision(), state.analStageMat.Revision()};
  if (revisions == m_revisions) return;
  m_revisions = revisions;
  m_properties.clear();
  m_materials.clear();
  for (auto const& [n, row] : state.analStageProp)
    m_properties[{row.Stage(), row.PropType(), row.ElemProp()}] = row.PropRec();
  for (auto const& [n, row] : state.analStageMat)
    m_materials[{row.Stage(), row.ElemOriginalMat()}] = row.ElemStageMat();
}

int StageProperties::Property(ModelState const& state, PropertyType type, int property, int stage) {
  if (stage == 0 || property == 0) return property;
  Follow(state);
  auto const found = m_properties.find({stage, type, property});
  return found == m_properties.end() ? property : found->second;
}

int StageProperties::Material(ModelState const& state, int material, int stage) {
  if (stage == 0 || material <= 0) return material;
  Follow(state);
  auto const found = m_materials.find({stage, material});
  return found == m_materials.end() ? material : found->second;
}

}  // namespace Tarvex
