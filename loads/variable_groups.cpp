#include "loads/variable_groups.h"

#include <limits>

#include "loads/formatted.h"
#include "loads/saturating.h"
#include "loads/source_slots.h"

namespace Tarvex {
namespace {

/// The negative of a source; the lowest number there is has none and stays.
int OppositeSource(int source) {
  return source == std::numeric_limits<int>::min() ? source : -source;
}

bool IsCompanion(VariableEntries::value_type const& entry) { return entry.second.first < 0; }

long long CountLeaders(VariableEntries const& group) {
  return std::count_if(group.begin(), group.end(),
                       [](auto const& entry) { return !IsCompanion(entry); });
}

/// Pairs of an imposed action and one on a roof with the same source, companions left out.
long long CountRoofPairs(VariableEntries const& imposed, VariableEntries const& roofs) {
  std::map<int, long long> roofsOfSource;
  for (auto const& entry : roofs)
    if (!IsCompanion(entry)) ++roofsOfSource[entry.second.first];
  long long pairs = 0;
  for (auto const& entry : imposed)
    if (auto const found = roofsOfSource.find(entry.second.first); found != roofsOfSource.end())
      pairs = CappedCountSum(pairs, found->second);
  return pairs;
}

}  // namespace

std::optional<std::size_t> VariableGroupOf(CaseType type, bool roofApart) {
  constexpr std::array kTypes{CaseType::Imposed, CaseType::Wind,    CaseType::Snow,
                              CaseType::Rain,    CaseType::Thermal, CaseType::VariableEquivalent};
  if (type == CaseType::ImposedRoof) return roofApart ? kRoofGroup : 0;
  for (std::size_t group = 0; group < kTypes.size(); ++group)
    if (kTypes[group] == type) return group;
  return std::nullopt;
}

VariableTexts::VariableTexts(VariableEntries const& group) : m_group(group) {
  for (auto const& [n, entry] : group) m_bySource[entry.first].push_back(n);
}

CString VariableTexts::Text(int n, bool leading) const {
  int const source = m_group.at(n).first;
  CString text;
  if (source < 0) return text;
  int const behind = leading ? 0 : 1;
  text = Formatted(L"C%i + ", n + behind);
  auto const companions = m_bySource.find(OppositeSource(source));
  if (companions == m_bySource.end()) return text;
  for (int const other : companions->second)
    if (other != n) text += Formatted(L"C%i + ", other + behind);
  return text;
}

void PairSources(VariableEntries& group) {
  // Flipping, for each entry in turn, every later one that now has its source leaves each entry
  // with the opposite of the one before it among those with the same source but for the sign.
  std::map<int, int> before;
  for (auto& entry : group) {
    int& source = entry.second.first;
    auto const [found, isFirst] =
        before.try_emplace(std::max(source, OppositeSource(source)), source);
    if (!isFirst) source = OppositeSource(found->second);
    found->second = source;
  }
}

long long CountVariableWays(std::vector<VariableEntries> const& groups) {
  long long ways = CountEntries(groups) == 0 ? 0 : 1;
  for (auto const& group : groups)
    if (!group.empty()) ways = CappedCountProduct(ways, static_cast<long long>(group.size()));
  return ways;
}

long long CountLeadingWays(std::vector<VariableEntries> const& sortedGroups) {
  auto const& roofs = sortedGroups[kRoofGroup];
  long long ways = CountRoofPairs(sortedGroups[0], roofs);
  for (std::size_t leading = 0; leading < kNumVariableGroups; ++leading) {
    auto const& group = sortedGroups[leading];
    // Ways of taking one of each other group: with an entry that is no companion, and without.
    long long withLeader = 0;
    long long companionsAlone = 1;
    for (std::size_t k = 0; k < kNumVariableGroups; ++k) {
      auto const& other = sortedGroups[k];
      if (k == leading || other.empty()) continue;
      auto const size = static_cast<long long>(other.size());
      auto const leaders = CountLeaders(other);
      withLeader = CappedCountSum(CappedCountProduct(withLeader, size),
                                  CappedCountProduct(companionsAlone, leaders));
      companionsAlone = CappedCountProduct(companionsAlone, size - leaders);
    }
    ways = CappedCountSum(ways, CappedCountProduct(CountLeaders(group), withLeader));
  }
  return ways;
}

std::size_t CountEntries(std::vector<VariableEntries> const& groups) {
  std::size_t total = 0;
  for (std::size_t group = 0; group < kNumVariableGroups; ++group) total += groups[group].size();
  return total;
}

}  // namespace Tarvex
