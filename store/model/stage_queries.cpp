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

double ValueOf(Data::CMatAnal const* material, MatAnalValue value) {
  return material == nullptr ? 0 : material->Value(value);
}

/// @param materialOf the analysis material of a component, null where there is none
template <class MaterialOf>
Data::CPropBeam BeamOf(Data::CSection const& section, MaterialOf&& materialOf, double position,
                       bool transformed) {
  Data::CPropBeam beam;
  auto const* first = materialOf(0);
  beam.youngsModulus = ValueOf(first, MatAnalValue::YoungsModulus);
  beam.density = ValueOf(first, MatAnalValue::Density);
  beam.additionalMass = section.AdditionalMass();
  std::vector<double> factors;
  double mass = 0;
  double area = 0;
  bool alike = true;
  for (int i = 0; i < section.NumComponent(); ++i) {
    auto const* material = materialOf(i);
    double const own = section.Component(i).Moments(position).area;
    double const density = ValueOf(material, MatAnalValue::Density);
    alike = alike && density == beam.density;
    mass += own * density;
    area += own;
    double const modulus = ValueOf(material, MatAnalValue::YoungsModulus);
    factors.push_back(beam.youngsModulus == 0 ? 1 : modulus / beam.youngsModulus);
  }
  if (!alike && area > 0) beam.meanDensity = mass / area;
  if (!transformed) factors.clear();
  auto const properties = Data::PropertiesOf(section.Moments(position, factors));
  beam.area = properties.area;
  beam.iyy = properties.iyy;
  beam.izz = properties.izz;
  beam.iyz = properties.iyz;
  return beam;
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

int StageQueries::StageProperty(PropertyType type, int property, int stage) const {
  return m_core.stageProperties.Property(m_core.state, type, property, stage);
}

int StageQueries::ElemStageProperty(int element, int stage) const {
  return m_model.EntProperty({SelElement, element}, stage);
}

int StageQueries::ElemMatAnal(int element, int stage) const {
  auto const& state = m_core.state;
  auto const* record = state.elem.Find(element);
  if (record == nullptr) return 0;
  int const property = ElemStageProperty(element, stage);
  int material = 0;
  if (auto const* plate = record->Is2D() ? state.prop2D.Find(property) : nullptr)
    material = plate->MaterialAnalysis();
  if (auto const* solid = record->Is3D() ? state.prop3D.Find(property) : nullptr)
    material = solid->MaterialAnalysis();
  if (auto const* section = record->IsSection() ? state.section.Find(property) : nullptr)
    material = section->NumComponent() == 0 ? 0 : section->MaterialAnalysis(0);
  return m_core.stageProperties.Material(state, material, stage);
}

Data::CPropBeam StageQueries::Elem1DPropMat(int element, int stage, double position,
                                            bool transformed) const {
  auto const& state = m_core.state;
  auto const* record = state.elem.Find(element);
  auto const* section = record != nullptr && record->IsSection()
                            ? state.section.Find(ElemStageProperty(element, stage))
                            : nullptr;
  if (section == nullptr || section->NumComponent() == 0) return {};
  auto const material = [&](int component) -> Data::CMatAnal const* {
    int const own = section->MaterialAnalysis(component);
    return state.matAnal.Find(m_core.stageProperties.Material(state, own, stage));
  };
  return BeamOf(*section, material, position, transformed);
}

}  // namespace Tarvex
