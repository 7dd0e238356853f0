#include "store/record/section.h"

#include <algorithm>

#include "store/select/checked_access.h"

namespace Tarvex::Data {
namespace {

constexpr double kRadiansPerDegree = kPi / 180;

CSecBox Shifted(CSecBox const& box, Vec2<double> shift) {
  return {box.left + shift.x, box.right + shift.x, box.top + shift.y, box.bottom + shift.y};
}

}  // namespace

Util::AreaMoments CSecComp::Moments(double position) const {
  return Util::Placed(m_geometry.Moments(position), m_angle * kRadiansPerDegree, m_offset);
}

CSecBox CSecComp::Box(double position) const {
  return Shifted(m_geometry.Box(position, m_angle * kRadiansPerDegree), m_offset);
}

SectionProperties PropertiesOf(Util::AreaMoments const& moments) {
  auto const own = Util::AboutCentroid(moments);
  return {own.area, moments.Centroid(), own.yy, own.xx, own.xy};
}

CSecComp const& CSection::Component(int index) const { return CheckedAt(m_components, index); }

CSecComp& CSection::Edit(int index) { return CheckedAt(m_components, index); }

void CSection::SetComponent(int index, CSecComp const& component) {
  if (index == NumComponent())
    m_components.push_back(component);
  else
    Edit(index) = component;
}

SectionShape CSection::Shape() const {
  return NumComponent() == 1 ? m_components.front().Type() : SectionShape::None;
}

CSecBox CSection::Box(double position) const {
  CSecBox box;
  bool first = true;
  for (auto const& component : m_components) {
    if (component.Type() == SectionShape::None) continue;
    auto const own = component.Box(position);
    box = first ? own
                : CSecBox{std::max(box.left, own.left), std::min(box.right, own.right),
                          std::max(box.top, own.top), std::min(box.bottom, own.bottom)};
    first = false;
  }
  return box;
}

Vec2<double> CSection::ReferenceIn(CSecBox const& box, double position) const {
  auto const place = RefPoint();
  if (place == CSecRefPoint()) return Moments(position).Centroid();
  Vec2<double> at{(box.left + box.right) / 2, (box.top + box.bottom) / 2};
  if (place.IsLeft()) at.x = box.left;
  if (place.IsRight()) at.x = box.right;
  if (place.IsTop()) at.y = box.top;
  if (place.IsBottom()) at.y = box.bottom;
  return at;
}

CSecBox CSection::EnclosingBox(double position, SecRef reference) const {
  auto const box = Box(position);
  Vec2<double> from;
  if (reference == SecRef::Reference) from = ReferenceIn(box, position);
  if (reference == SecRef::Centroid) from = Moments(position).Centroid();
  if (reference == SecRef::Middle) from = {(box.left + box.right) / 2, (box.top + box.bottom) / 2};
  return Shifted(box, {-from.x, -from.y});
}

SectionProperties CSection::Properties(double position) const {
  return PropertiesOf(Moments(position));
}

Util::AreaMoments CSection::Moments(double position, std::span<double const> factors) const {
  Util::AreaMoments sum;
  for (std::size_t i = 0; i < m_components.size(); ++i)
    sum += m_components[i].Moments(position) * (i < factors.size() ? factors[i] : 1);
  return sum;
}

void CSection::SetMaterialAnalysis(int index, int material) {
  Edit(index).SetMaterialAnalysis(material);
}

void CSection::SetMaterialGrade(int index, int grade) { Edit(index).SetMaterialGrade(grade); }

}  // namespace Tarvex::Data
