#include "store/record/alignment.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace Tarvex::Data {
namespace {

constexpr char const* kNotAscending = "chainages of an alignment must ascend";

/// Moves along an arc, or a straight line where the curvature is 0; back for a length below 0. The
/// chord of an arc runs at half of its turn.
void MoveAlongArc(CAlignment::Place& place, double length, double curvature) {
  double const half = 0.5 * curvature * length;
  double const chord = half == 0 ? length : length * (std::sin(half) / half);
  double const direction = place.heading + half;
  place.point =
      place.point + Vec2<double>{chord * std::cos(direction), chord * std::sin(direction)};
  place.heading += 2 * half;
}

bool ChainagesAscend(std::vector<AlignmentItem> const& items) {
  return std::adjacent_find(items.begin(), items.end(), [](auto const& a, auto const& b) {
           return !(a.chainage < b.chainage);
         }) == items.end();
}

}  // namespace

void CAlignment::SetItems(std::vector<AlignmentItem> items) {
  if (!ChainagesAscend(items)) throw std::invalid_argument(kNotAscending);
  m_items = std::move(items);
}

CAlignment::Place CAlignment::At(double chainage) const {
  Place place;
  if (m_items.empty()) place.point.x = chainage;
  for (auto item = m_items.begin(); item != m_items.end(); ++item) {
    auto const next = item + 1;
    bool const ends = next == m_items.end() || chainage < next->chainage;
    double const end = ends ? chainage : next->chainage;
    MoveAlongArc(place, end - item->chainage, item->curvature);
    if (ends) break;
  }
  return place;
}

CString CAlignment::Fault() const {
  return ChainagesAscend(m_items) ? CString() : CString::FromUtf8(kNotAscending);
}

}  // namespace Tarvex::Data
