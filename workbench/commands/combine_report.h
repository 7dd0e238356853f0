// What a run of the combination generator gave, and how it differs from EN 1990.
#pragma once

#include <array>
#include <map>
#include <nlohmann/json_fwd.hpp>
#include <string>
#include <vector>

#include "tarvex/combinations.h"
#include "workbench/commands/command.h"
#include "workbench/report/offered_factors.h"

namespace Tarvex::Workbench {

/// What the generator was told, beside the tasks.
struct CombineChoice {
  std::array<bool, kNumCombTypes> families{};
  int psiAccidental = 1;
  Data::RespComb seismicRule = Data::RespComb::SquareRoot;
  bool isUk = false;
};

/// A family as it was written.
struct WrittenFamily {
  CombType type = CombUlsPersistent;
  int first = 0;  ///< its first combination
  int last = 0;   ///< its final one
  int permutations = 0;
  std::map<int, OfferedFactors> offered;  ///< by basic combination
};

/// A run and what came of it.
struct CombineRun {
  CombineChoice choice;
  CombinationPlan plan;
  std::vector<WrittenFamily> families;
};

/// Reads the families that a run wrote behind its basic combinations.
std::vector<WrittenFamily> ReadFamilies(CZelData const& model, CombinationPlan const& plan);

/// "C3 Variable : Wind 1".
std::string CombinationText(CZelData const& model, int n);
/// The number of alternatives, as far as they are counted.
std::string PermutationsText(int permutations);
/// Why an analysis case takes no part.
std::string LeftOutText(LeftOutCase const& leftOut);

/// The factors of each action in each family as a table, and as JSON.
std::string CombineText(CZelData const& model, CombineRun const& run);
nlohmann::ordered_json CombineJson(CZelData const& model, CombineRun const& run);

/// Where the combinations differ from what EN 1990 has for the model, each with its clause.
std::vector<Warning> CompareWithEn1990(CZelData& model, CombineRun const& run);

}  // namespace Tarvex::Workbench
