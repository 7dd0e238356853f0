#include "store/calc/order_set.h"

#include <algorithm>
#include <array>
#include <boost/dynamic_bitset.hpp>
#include <cmath>
#include <span>

#include "store/model/zel_data.h"
#include "store/numeric/box.h"
#include "store/select/checked_access.h"

namespace Tarvex {
namespace {

// No small whole multiples of their components add up to 0, so that no two points of a regular grid
// fall on one another: not those of an axis, of a diagonal or of a plane of the grid.
constexpr std::array kOrderDirections{Vec3<double>{0.852302611, 0.343213847, 0.573618952},
                                      Vec3<double>{-0.573618952, 0.852302611, 0.343213847},
                                      Vec3<double>{0.343213847, 0.573618952, -0.852302611}};

/// How many of the centres a direction tells apart: places of a row of as many cells as there are
/// centres, which is as long as their box, that hold any.
std::size_t CountPlaces(std::span<Vec3<double> const> centres, Vec3<double> const& direction,
                        Util::CBox3D const& box) {
  double const length = Tarvex::Length(box.Max() - box.Min());
  auto const cells = static_cast<double>(centres.size());
  boost::dynamic_bitset<std::uint64_t> held(centres.size() + 1);
  for (auto const& centre : centres) {
    double const along = Dot(centre - box.Centre(), direction) / length + 0.5;
    held.set(static_cast<std::size_t>(std::clamp(along * cells, 0.0, cells)));
  }
  return held.count();
}

}  // namespace

COrderSet::COrderSet() = default;
COrderSet::COrderSet(COrderSet const&) = default;
COrderSet::COrderSet(COrderSet&&) noexcept = default;
COrderSet& COrderSet::operator=(COrderSet const&) = default;
COrderSet& COrderSet::operator=(COrderSet&&) noexcept = default;
COrderSet::~COrderSet() = default;

bool COrderSet::SetSet(Util::CSet const& set, CZelData const& model, bool panels) {
  m_set = set;
  for (int const number : set)
    if (!model.EntExist({set.TypeOf(), number}, panels)) m_set.RemoveFrom(number);
  Assign({});
  return !m_set.IsEmpty();
}

bool COrderSet::AddToSet(int number, CZelData const& model) {
  SEntRef const ref(m_set.TypeOf(), number);
  if (!model.EntExist(ref)) return false;
  m_set.AddTo(number);
  Put({Projection(model.EntCentre(ref)), number});
  return true;
}

bool COrderSet::RemoveFromSet(int number) {
  bool const held = m_set.IsItemIncluded(number);
  m_set.RemoveFrom(number);
  return held;
}

bool COrderSet::CalcOrderVector(CZelData const& model) {
  if (m_set.IsEmpty()) return false;
  std::vector<Vec3<double>> centres;
  centres.reserve(static_cast<std::size_t>(m_set.NumItem()));
  Util::CBox3D box;
  for (int const number : m_set) {
    auto const centre = model.EntCentre({m_set.TypeOf(), number});
    if (!std::isfinite(Tarvex::Length(centre))) continue;
    centres.push_back(centre);
    box.AddPoint(centre);
  }
  auto best = kOrderDirections.front();
  if (double const length = Tarvex::Length(box.Max() - box.Min());
      length > 0 && std::isfinite(length)) {
    std::size_t most = 0;
    for (auto const& direction : kOrderDirections)
      if (auto const places = CountPlaces(centres, Unit(direction), box); places > most) {
        most = places;
        best = direction;
      }
  }
  SetOrderVector(best);
  return true;
}

bool COrderSet::CreateList(CZelData const& model) {
  std::vector<Item> items;
  items.reserve(static_cast<std::size_t>(m_set.NumItem()));
  for (int const number : m_set)
    if (SEntRef const ref(m_set.TypeOf(), number); model.EntExist(ref))
      items.push_back({Projection(model.EntCentre(ref)), number});
  bool const any = !items.empty();
  Assign(std::move(items));
  return any;
}

int COrderSet::Ref(int place) const { return CheckedAt(Items(), place).number; }

}  // namespace Tarvex
