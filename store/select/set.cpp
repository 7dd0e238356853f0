#include "store/select/set.h"

#include <algorithm>
#include <stdexcept>
#include <string>

#include "store/select/compact_text.h"
#include "store/select/numbers.h"

namespace Tarvex::Util {

CSet::CSet(SelType kind) : m_kind(kind) {}
CSet::CSet(SelType kind, Intervals const& numbers) : m_kind(kind) {
  for (auto const& run : numbers.Runs()) Add(run);
}
CSet::CSet(CSet const&) = default;
CSet::CSet(CSet&&) noexcept = default;
CSet& CSet::operator=(CSet const&) = default;
CSet& CSet::operator=(CSet&&) noexcept = default;
CSet::~CSet() = default;

void CSet::AddTo(int number) {
  if (number < 1)
    throw std::out_of_range("set: number " + std::to_string(number) + " is not a record number");
  Add({number, number});
}

void CSet::Add(Interval run) {
  run.first = std::max(run.first, 1);
  if (run.IsEmpty()) return;
  if (run.last > kHighestNumber)
    throw std::out_of_range("set: number " + std::to_string(run.last) + " is not a record number");
  auto const first = static_cast<std::size_t>(run.first);
  auto const end = static_cast<std::size_t>(run.last) + 1;
  // Doubling keeps a long run of ascending additions linear.
  if (end > m_bits.size()) m_bits.resize(std::max(end, 2 * m_bits.size()));
  m_bits.set(first, end - first, true);
}

void CSet::Invert(int first, int last) {
  auto const now = Intersection(Runs(), {{first, last}});
  Add({first, last});
  for (auto const& run : now.Runs())
    m_bits.reset(static_cast<std::size_t>(run.first),
                 static_cast<std::size_t>(run.last - run.first) + 1);
}

void CSet::RemoveFrom(int number) {
  if (IsItemIncluded(number)) m_bits.reset(static_cast<std::size_t>(number));
}

bool CSet::IsItemIncluded(int number) const {
  auto const bit = static_cast<std::size_t>(number);
  return number > 0 && bit < m_bits.size() && m_bits.test(bit);
}

int CSet::LowestItem() const { return IsEmpty() ? 0 : static_cast<int>(m_bits.find_first()); }

int CSet::HighestItem() const {
  for (auto bit = m_bits.size(); bit > 0; --bit)
    if (m_bits.test(bit - 1)) return static_cast<int>(bit - 1);
  return 0;
}

CString CSet::String(int most, CString const& before) const {
  if (most < 0 || most >= NumItem()) return before + CompactText(Runs());
  Intervals some;
  for (auto at = begin(); most > 0; ++at, --most) some.Append({*at, *at});
  return before + CompactText(some) + L" ...";
}

Intervals CSet::Runs() const {
  Intervals runs;
  for (int const number : *this) runs.Append({number, number});
  return runs;
}

bool CSet::IsEqual(CSet const& other) const {
  return m_kind == other.m_kind && std::equal(begin(), end(), other.begin(), other.end());
}

}  // namespace Tarvex::Util
