#include "store/select/set.h"

#include <algorithm>
#include <stdexcept>
#include <string>

#include "store/select/numbers.h"

namespace Tarvex::Util {

CSet::CSet(SelType kind) : m_kind(kind) {}
CSet::CSet(CSet const&) = default;
CSet::CSet(CSet&&) noexcept = default;
CSet& CSet::operator=(CSet const&) = default;
CSet& CSet::operator=(CSet&&) noexcept = default;
CSet::~CSet() = default;

void CSet::AddTo(int number) {
  if (number < 1 || number > kHighestNumber)
    throw std::out_of_range("set: number " + std::to_string(number) + " is not a record number");
  auto const bit = static_cast<std::size_t>(number);
  // Doubling keeps a long run of ascending additions linear.
  if (bit >= m_bits.size()) m_bits.resize(std::max(bit + 1, 2 * m_bits.size()));
  m_bits.set(bit);
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

bool CSet::IsEqual(CSet const& other) const {
  return m_kind == other.m_kind && std::equal(begin(), end(), other.begin(), other.end());
}

}  // namespace Tarvex::Util
