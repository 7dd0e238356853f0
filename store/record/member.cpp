#include "store/record/member.h"

#include <algorithm>
#include <array>

#include "store/record/variant_element.h"

namespace Tarvex {
namespace {

constexpr std::array kMembTypes{
    MembTypeRow{MembType::Generic, 0, false},   MembTypeRow{MembType::Beam, 1, false},
    MembTypeRow{MembType::Column, 1, false},    MembTypeRow{MembType::Brace, 1, false},
    MembTypeRow{MembType::Slab, 2, false},      MembTypeRow{MembType::Wall, 2, false},
    MembTypeRow{MembType::VoidCutter, 2, true}, MembTypeRow{MembType::Solid, 3, false}};

int DimensionOf(Data::CTopoList const& topology) {
  if (std::find(topology.begin(), topology.end(), Data::kTopoStripEnd) != topology.end()) return 3;
  return topology.NumTopo() <= 2 || topology.Geometry() != MembGeom::Line ? 1 : 2;
}

}  // namespace

MembTypeRow const& MembTypeOf(MembType type) {
  auto const* row = std::find_if(kMembTypes.begin(), kMembTypes.end(),
                                 [type](MembTypeRow const& r) { return r.type == type; });
  return row == kMembTypes.end() ? kMembTypes.front() : *row;
}

namespace Data {

void AppendChild(ChildLists& lists, int number, int replica) {
  auto at = std::lower_bound(lists.begin(), lists.end(), replica,
                             [](auto const& list, int wanted) { return list.replica < wanted; });
  if (at == lists.end() || at->replica != replica) at = lists.insert(at, {replica, {}});
  at->elements.push_back(number);
}

int CMember::Dimension() const {
  int const dimension = MembTypeOf(m_type).dimension;
  return dimension != 0 ? dimension : DimensionOf(m_topology);
}

MembGeom CMember::Geometry() const { return Is1D() ? m_topology.Geometry() : MembGeom::Line; }

CModule::ModuleId CMember::PropertyTable() const {
  constexpr std::array kByDimension{CModule::None, CModule::None, CModule::Prop2D, CModule::Prop3D};
  if (Is1D()) return ShapeOf(m_analysisType1D).property;
  return kByDimension[static_cast<std::size_t>(Dimension())];
}

bool CMember::IsElementTypeValid(VariantElementType type) const {
  auto const element = ToElementType(type);
  return (element ? ShapeOf(*element).dimension : 2) == Dimension();
}

bool CMember::DoesElementTypeMatchAnalysisType(VariantElementType type) const {
  if (!IsElementTypeValid(type)) return false;
  auto const element = ToElementType(type);
  if (Is1D()) return element == m_analysisType1D;
  if (Is3D()) return true;
  if (!element) return m_analysisOrder == Member::AnalysisOrder::LoadPanels;
  bool const quadratic = ShapeOf(*element).quadratic == *element;
  return m_analysisOrder != Member::AnalysisOrder::LoadPanels &&
         quadratic == (m_analysisOrder == Member::AnalysisOrder::Quadratic);
}

ZEL::ReplicatedMesh CMember::AnalysisMesh(bool, bool) const {
  auto const mesh = m_mesh.Get();
  return mesh == nullptr ? ZEL::ReplicatedMesh() : *mesh;
}

int CMember::NumElem() const {
  std::size_t count = 0;
  for (auto const& children : m_children) count += children.elements.size();
  return static_cast<int>(count);
}

int CMember::Elem(int place) const {
  auto at = static_cast<std::size_t>(place);
  for (auto const& children : m_children) {
    if (at < children.elements.size()) return children.elements[at];
    at -= children.elements.size();
  }
  return 0;
}

std::map<int, std::vector<int>> CMember::ChildElements() const {
  std::map<int, std::vector<int>> map;
  for (auto const& children : m_children) map.emplace(children.replica, children.elements);
  return map;
}

void CMember::AddChildElement(int number, int replica) {
  for (auto const& children : m_children) {
    auto const& listed = children.elements;
    if (children.replica == replica &&
        std::find(listed.begin(), listed.end(), number) != listed.end())
      return;
  }
  AppendChildElement(number, replica);
}

bool CMember::RemoveChildElement(int number) {
  std::size_t removed = 0;
  for (auto& children : m_children) removed += std::erase(children.elements, number);
  std::erase_if(m_children, [](auto const& children) { return children.elements.empty(); });
  return removed > 0;
}

}  // namespace Data
}  // namespace Tarvex
