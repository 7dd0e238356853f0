// Groups of variable actions: what is taken together, what leads, and how many ways there are.
#pragma once

#include <array>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "store/record/load_case_title.h"
#include "store/text/cstring.h"

namespace Tarvex {

/// Of each combination of a group its source, negated for a companion, and its category.
using VariableEntries = std::map<int, std::pair<int, int>>;

inline constexpr std::size_t kNumVariableGroups = 6;  ///< without that of roofs
inline constexpr std::size_t kRoofGroup = 6;

/// The group of a variable action: imposed, wind, snow, rain, thermal, equivalent; imposed on
/// roofs goes to the first, or apart to the one behind the last. Nothing for other types.
std::optional<std::size_t> VariableGroupOf(CaseType type, bool roofApart);

/// The texts of the entries of one sorted group.
class VariableTexts {
 public:
  explicit VariableTexts(VariableEntries const& group);

  /// The entry with its companions, "C4 + C6 + "; nothing for a companion itself. What is not
  /// leading stands one number behind. Throws std::out_of_range for a number not in the group.
  CString Text(int n, bool leading) const;

 private:
  VariableEntries const& m_group;
  std::map<int, std::vector<int>> m_bySource;
};

/// Negates the source of every second entry of one source in a group.
void PairSources(VariableEntries& group);

// How many combinations the ways of taking one entry of each group give; at most
// CombinationPlan::kMost.

/// Where all actions have one factor: 0 without entries, 1 for a single one.
long long CountVariableWays(std::vector<VariableEntries> const& groups);
/// Where one group leads at a time.
long long CountLeadingWays(std::vector<VariableEntries> const& sortedGroups);

/// Entries of the groups without that of roofs.
std::size_t CountEntries(std::vector<VariableEntries> const& groups);

}  // namespace Tarvex
