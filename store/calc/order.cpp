#include "store/calc/order.h"

#include <algorithm>
#include <boost/sort/pdqsort/pdqsort.hpp>
#include <cmath>
#include <functional>
#include <limits>

#include "store/select/checked_access.h"
#include "store/table/paged_table_impl.h"

namespace Tarvex {

COrder::COrder() = default;
COrder::COrder(COrder const&) = default;
COrder::COrder(COrder&&) noexcept = default;
COrder& COrder::operator=(COrder const&) = default;
COrder& COrder::operator=(COrder&&) noexcept = default;
COrder::~COrder() = default;

void COrder::SetOrderVector(Vec3<double> const& vector) { m_vector = Unit(vector); }

double COrder::Projection(Vec3<double> const& point) const {
  double const projection = Dot(point, m_vector);
  return std::isnan(projection) ? std::numeric_limits<double>::infinity() : projection;
}

double COrder::PointItem(int place) const { return CheckedAt(Items(), place).projection; }

void COrder::Assign(std::vector<Item> items) {
  m_items = std::move(items);
  m_added.clear();
  m_sorted = m_items.empty();
  m_placesKnown = false;
}

void COrder::Put(Item const& item) {
  if (!m_sorted) return PutLast(item);
  auto const* const place = SettledPlaces().Find(item.number);
  bool const asItIs =
      place != nullptr && m_items[static_cast<std::size_t>(*place)].projection == item.projection;
  if (asItIs)
    m_added.erase(item.number);
  else
    m_added[item.number] = item.projection;
}

void COrder::PutLast(Item const& item) {
  if (int const place = PlaceOf(item.number); place >= 0) {
    if (m_items[static_cast<std::size_t>(place)].projection == item.projection) return;
    m_items.erase(m_items.begin() + place);
    m_placesKnown = false;
  }
  m_items.push_back(item);
  if (m_placesKnown) m_places.Set(item.number, static_cast<int>(m_items.size()) - 1);
}

void COrder::Sort() {
  if (!m_added.empty()) Settle();
  boost::sort::pdqsort_branchless(m_items.begin(), m_items.end());
  m_sorted = true;
  m_placesKnown = false;
}

void COrder::Settle() const {
  std::erase_if(m_items, [&](Item const& item) { return m_added.contains(item.number); });
  auto const settled = static_cast<std::ptrdiff_t>(m_items.size());
  for (auto const& [number, projection] : m_added) m_items.push_back({projection, number});
  m_added.clear();
  std::sort(m_items.begin() + settled, m_items.end());
  std::inplace_merge(m_items.begin(), m_items.begin() + settled, m_items.end());
  m_placesKnown = false;
}

PagedTable<int> const& COrder::SettledPlaces() const {
  if (!m_placesKnown) {
    m_places.Clear();
    for (std::size_t place = 0; place < m_items.size(); ++place)
      m_places.Set(m_items[place].number, static_cast<int>(place));
    m_placesKnown = true;
  }
  return m_places;
}

PagedTable<int> const& COrder::Places() const {
  if (!m_added.empty()) Settle();
  return SettledPlaces();
}

int COrder::PlaceOf(int number) const {
  auto const* const place = Places().Find(number);
  return place == nullptr ? -1 : *place;
}

int COrder::FirstAbove(double projection) const {
  auto const& items = Items();
  auto const isAbove = [&](Item const& item) { return item.projection > projection; };
  auto const found = m_sorted
                         ? std::partition_point(items.begin(), items.end(), std::not_fn(isAbove))
                         : std::find_if(items.begin(), items.end(), isAbove);
  return static_cast<int>(found - items.begin());
}

int COrder::FirstFrom(double projection) const {
  auto const& items = Items();
  auto const isFrom = [&](Item const& item) { return item.projection >= projection; };
  auto const found = m_sorted
                         ? std::partition_point(items.begin(), items.end(), std::not_fn(isFrom))
                         : std::find_if(items.begin(), items.end(), isFrom);
  return static_cast<int>(found - items.begin());
}

}  // namespace Tarvex
