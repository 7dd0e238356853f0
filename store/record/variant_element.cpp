#include "store/record/variant_element.h"

#include <algorithm>

namespace Tarvex {

std::optional<ElementType> ToElementType(VariantElementType type) {
  if (type == VariantElementType::LoadPanel) return std::nullopt;
  if (type == VariantElementType::Spacer) return ElementType::Spacer;
  auto const number = static_cast<int>(type);
  if (number < 1 || number > kHighestElementType) return std::nullopt;
  return static_cast<ElementType>(number);
}

VariantElementType ToVariantType(ElementType type) { return ShapeOf(type).variant; }

namespace Data {
namespace {

/// Copies what elements and panels have in common, topology left out.
template <class From, class To>
void CopyCommon(From const& from, To& to) {
  to.SetName(from.Name());
  to.SetSid(from.Sid());
  to.SetColour(from.GetColour());
  to.SetGroup(from.Group());
  to.SetProperty(from.Property());
  to.SetIsDummy(from.IsDummy());
  to.SetOrientationAngle(from.OrientationAngle());
  to.SetParentMember(from.ParentMember());
}

}  // namespace

std::optional<ElementType> VariantElementConstRef::Type() const {
  return IsLoadPanel() ? std::nullopt : std::optional(m_element->Type());
}

VariantElementType VariantElementConstRef::VariantType() const {
  return IsLoadPanel() ? VariantElementType::LoadPanel : ToVariantType(m_element->Type());
}

bool VariantElementConstRef::IsDummy() const {
  return IsLoadPanel() ? m_panel->IsDummy() : m_element->IsDummy();
}

int VariantElementConstRef::Group() const {
  return IsLoadPanel() ? m_panel->Group() : m_element->Group();
}

int VariantElementConstRef::Property() const {
  return IsLoadPanel() ? m_panel->Property() : m_element->Property();
}

TopoVector const& VariantElementConstRef::Topology() const {
  return IsLoadPanel() ? m_panel->Topology() : m_element->Topology();
}

double VariantElementConstRef::OrientationAngle() const {
  return IsLoadPanel() ? m_panel->OrientationAngle() : m_element->OrientationAngle();
}

std::optional<int> VariantElementConstRef::OrientationNode() const {
  return IsLoadPanel() ? std::nullopt : std::optional(m_element->OrientationNode());
}

std::optional<COffset> VariantElementConstRef::Offset() const {
  return IsLoadPanel() ? std::nullopt : std::optional(m_element->Offset());
}

std::optional<CElemConnect> VariantElementConstRef::Connect(int place) const {
  return IsLoadPanel() ? std::nullopt : std::optional(m_element->Connect(place));
}

VariantElementValue VariantElementConstRef::CopyAsType(VariantElementType type) const {
  auto const elementType = ToElementType(type);
  if (!elementType) return CopyAsPanel();
  return CopyAsElement(*elementType);
}

LoadPanel VariantElementConstRef::CopyAsPanel() const {
  if (IsLoadPanel()) return *m_panel;
  LoadPanel panel;
  CopyCommon(*m_element, panel);
  auto const& nodes = m_element->Topology();
  auto const corners = static_cast<std::size_t>(m_element->Shape().corners);
  panel.SetTopology(std::span(nodes.data(), std::min(nodes.size(), corners)));
  return panel;
}

CElement VariantElementConstRef::CopyAsElement(ElementType type) const {
  if (!IsLoadPanel()) {
    CElement copy(*m_element);
    if (copy.Type() != type) copy.SetType(type);
    return copy;
  }
  CElement element(1, type, 1);
  CopyCommon(*m_panel, element);
  auto const corners = std::min<int>(element.Shape().corners, m_panel->NumTopo());
  for (int i = 0; i < corners; ++i) element.SetTopo(i, m_panel->Topo(i));
  return element;
}

}  // namespace Data
}  // namespace Tarvex
