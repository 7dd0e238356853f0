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
  m_settled = m_items.size();
  m_sorted = m_items.empty();
  m_placesKnown = false;
}

void COrder::Put(Item const& item) {
  if (int const place = PlaceOf(item.number); place >= 0) {
    if (m_items[static_cast<std::size_t>(place)].projection == item.projection) return;
    m_items.erase(m_items.begin() + place);
    --m_settled;
  }
  m_items.push_back(item);
  m_placesKnown = false;
  if (!m_sorted) m_settled = m_items.size();
}

void COrder::Sort() {
  m_settled = m_items.size();
  boost::sort::pdqsort_branchless(m_items.begin(), m_items.end());
  m_sorted = true;
  m_placesKnown = false;
}

void COrder::Settle() const {
  auto const added = m_items.begin() + static_cast<std::ptrdiff_t>(m_settled);
  std::sort(added, m_items.end());
  std::inplace_merge(m_items.begin(), added, m_items.end());
  m_settled = m_items.size();
}

PagedTable<int> const& COrder::Places() const {
  auto const& items = Items();
  if (!m_placesKnown) {
    m_places.Clear();
    for (std::size_t place = 0; place < items.size(); ++place)
      m_places.Set(items[place].number, static_cast<int>(place));
    m_placesKnown = true;
  }
  return m_places;
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
