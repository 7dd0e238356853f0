#include "store/select/bit_container.h"

#include <algorithm>

#include "store/select/checked_access.h"

namespace Tarvex {

CBitContainer::CBitContainer(Intervals numbers) : m_numbers(std::move(numbers)) {
  auto const runs = m_numbers.Runs();
  m_before.reserve(runs.size());
  for (auto const& run : runs) {
    m_before.push_back(m_count);
    m_count += run.last - run.first + 1;
  }
}

int CBitContainer::Item(int n) const {
  if (n < 0 || n >= m_count) ThrowBadSubscript();
  auto const run = std::prev(std::upper_bound(m_before.begin(), m_before.end(), n));
  auto const at = static_cast<std::size_t>(run - m_before.begin());
  return m_numbers.Runs()[at].first + (n - *run);
}

std::size_t CBitContainer::RunOf(int number) const {
  auto const runs = m_numbers.Runs();
  auto const at = std::lower_bound(runs.begin(), runs.end(), number,
                                   [](Interval const& run, int value) { return run.last < value; });
  return static_cast<std::size_t>(at - runs.begin());
}

CBitContainer::MyIterator::MyIterator(CBitContainer const& container, int start)
    : m_container(&container), m_at(start) {
  if (start == kEnd) return;
  m_run = container.RunOf(start);
  m_last = container.m_numbers.Runs()[m_run].last;
}

void CBitContainer::MyIterator::NextRun() {
  auto const runs = m_container->m_numbers.Runs();
  ++m_run;
  bool const more = m_run < runs.size();
  m_at = more ? runs[m_run].first : kEnd;
  m_last = more ? runs[m_run].last : kEnd;
}

}  // namespace Tarvex
