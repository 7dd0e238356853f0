#include "workbench/report/new_faults.h"

#include <map>
#include <set>
#include <tuple>

#include "workbench/report/integrity.h"

namespace Tarvex::Workbench {
namespace {

/// What faults are counted by: code, table and field.
using FaultGroup = std::tuple<std::string, std::string, std::string>;
using FaultyRecords = std::multiset<int>;

FaultGroup GroupOf(Finding const& finding) { return {finding.code, finding.table, finding.field}; }

std::map<FaultGroup, FaultyRecords> NumbersByGroup(CZelData const& model) {
  std::map<FaultGroup, FaultyRecords> numbers;
  for (auto const& finding : FindFaults(model)) numbers[GroupOf(finding)].insert(finding.number);
  return numbers;
}

/// The records with a fault that they had not before, as many as there are more faults.
std::vector<int> NewOnes(FaultyRecords const& before, FaultyRecords const& after) {
  std::vector<int> fresh;
  if (after.size() <= before.size()) return fresh;
  auto const more = after.size() - before.size();
  for (auto at = after.begin(); at != after.end() && fresh.size() < more;
       at = after.upper_bound(*at))
    for (auto i = before.count(*at); i < after.count(*at) && fresh.size() < more; ++i)
      fresh.push_back(*at);
  return fresh;
}

}  // namespace

void WarnOfNewFaults(CZelData const& before, CZelData const& after, CommandResult& result) {
  constexpr std::size_t kMost = 20;
  auto const known = NumbersByGroup(before);
  std::set<std::pair<std::string, int>> told;
  for (auto const& undone : result.undone) told.emplace(undone.table, undone.number);
  for (auto const& warning : result.warnings) told.emplace(warning.table, warning.number);
  for (auto const& [group, numbers] : NumbersByGroup(after)) {
    auto const& code = std::get<0>(group);
    auto const& table = std::get<1>(group);
    auto const& field = std::get<2>(group);
    auto const found = known.find(group);
    auto fresh = NewOnes(found == known.end() ? FaultyRecords() : found->second, numbers);
    if (!fresh.empty()) result.lookAt = true;
    std::erase_if(fresh, [&](int n) { return told.contains({table, n}); });
    for (std::size_t i = 0; i < fresh.size() && i < kMost; ++i) {
      auto text = table;
      for (auto const& part : {" " + std::to_string(fresh[i]), " " + field, ": " + code})
        text += part;
      if (i + 1 == kMost && fresh.size() > kMost)
        text += ", and " + std::to_string(fresh.size() - kMost) + " more";
      result.warnings.push_back({code, table, fresh[i], text + ", which was not before"});
    }
  }
}

}  // namespace Tarvex::Workbench
