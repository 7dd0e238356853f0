#include "store/record/section.h"

#include "store/select/checked_access.h"

namespace Tarvex::Data {

CSecComp const& CSection::Component(int index) const { return CheckedAt(m_components, index); }

CSecComp& CSection::Edit(int index) { return CheckedAt(m_components, index); }

void CSection::SetComponent(int index, CSecComp const& component) {
  if (index == NumComponent())
    m_components.push_back(component);
  else
    Edit(index) = component;
}

void CSection::SetMaterialAnalysis(int index, int material) {
  Edit(index).SetMaterialAnalysis(material);
}

void CSection::SetMaterialGrade(int index, int grade) { Edit(index).SetMaterialGrade(grade); }

}  // namespace Tarvex::Data
