#include "workbench/commands/combine_report.h"

#include <algorithm>
#include <limits>
#include <nlohmann/json.hpp>
#include <numeric>

#include "store/record/cases.h"
#include "workbench/report/text.h"

namespace Tarvex::Workbench {
namespace {

using Json = nlohmann::ordered_json;
using CombineRow = std::vector<std::string>;

std::set<int> ActionsOf(CombinationPlan const& plan) {
  std::set<int> actions;
  for (auto const& entry : plan.actions) actions.insert(entry.first);
  return actions;
}

std::string DescriptionText(CZelData const& model, int n) {
  return model.CombinationCase(n).Description().Text().ToUtf8();
}

std::string FactorsText(std::map<int, OfferedFactors> const& offered, int action) {
  auto const found = offered.find(action);
  if (found == offered.end()) return "-";
  std::string text;
  auto const& values = found->second.values;
  if (found->second.isNonLinear) return "non-linear";
  for (auto value = values.rbegin(); value != values.rend(); ++value)
    text += (text.empty() ? "" : ", ") + NumberText(*value);
  return text;
}

/// Rows of cells as lines, columns two blanks apart.
std::string InColumns(std::vector<CombineRow> const& rows) {
  std::vector<std::size_t> widths;
  for (auto const& row : rows) {
    widths.resize(std::max(widths.size(), row.size()));
    for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], row[i].size());
  }
  std::string text;
  for (auto const& row : rows) {
    for (std::size_t i = 0; i < row.size(); ++i)
      text += i + 1 == row.size() ? row[i] : Padded(row[i], widths[i] + 2);
    text += "\n";
  }
  return text;
}

}  // namespace

std::vector<WrittenFamily> ReadFamilies(CZelData const& model, CombinationPlan const& plan) {
  std::vector<WrittenFamily> families;
  if (plan.actions.empty()) return families;
  FactorOffers offers(model, ActionsOf(plan));
  int end = plan.actions.rbegin()->first;
  for (std::size_t type = 0; type < kNumCombTypes; ++type) {
    auto const count = static_cast<int>(plan.families[type]);
    if (count == 0) continue;
    WrittenFamily family;
    family.type = static_cast<CombType>(type);
    family.first = end + 1;
    family.last = end + count;
    family.permutations = model.CombinationCase(family.last).Description().NumPermutation(model);
    family.offered = offers.Of(family.last);
    families.push_back(family);
    end = family.last;
  }
  return families;
}

std::string CombinationText(CZelData const& model, int n) {
  return "C" + std::to_string(n) + " " + model.CombinationCase(n).Name().ToUtf8();
}

std::string PermutationsText(int permutations) {
  auto const text = std::to_string(permutations);
  return permutations == std::numeric_limits<int>::max() ? "more than " + text : text;
}

std::string LeftOutText(LeftOutCase const& leftOut) {
  auto const type = std::to_string(static_cast<int>(leftOut.title.TypeOf()));
  switch (leftOut.reason) {
    case LeftOutReason::NoTask:
      return "its task does not exist";
    case LeftOutReason::SolutionNotTaken:
      return "its task solves neither load cases nor a response spectrum";
    case LeftOutReason::NoLoadCase:
      return "its description names no load case";
    case LeftOutReason::UntitledLoadCase:
      return "a load case of it has no title";
    case LeftOutReason::TitlesDiffer:
      return "its load cases are of different actions";
    case LeftOutReason::KindNotTaken:
      return "actions of type " + type + " are not combined";
    case LeftOutReason::NoCategory:
      return "an imposed action needs a category from 1 to 8";
    case LeftOutReason::NoDirection:
      return "a seismic action needs a direction that its type has";
    case LeftOutReason::NoBasicCombination:
      return "actions of type " + type + " get no basic combination";
  }
  return {};
}

std::string CombineText(CZelData const& model, CombineRun const& run) {
  if (run.plan.actions.empty()) return {};
  CombineRow head{"action", "cases"};
  CombineRow finals{"final combination", ""};
  CombineRow counts{"combinations", ""};
  CombineRow permutations{"permutations", ""};
  for (auto const& family : run.families) {
    head.push_back(model.CombinationCase(family.last).Name().ToUtf8());
    finals.push_back("C" + std::to_string(family.last));
    counts.push_back(std::to_string(family.last - family.first + 1));
    permutations.push_back(PermutationsText(family.permutations));
  }
  std::vector<CombineRow> rows{head};
  for (auto const& entry : run.plan.actions) {
    CombineRow row{CombinationText(model, entry.first), DescriptionText(model, entry.first)};
    for (auto const& family : run.families) row.push_back(FactorsText(family.offered, entry.first));
    rows.push_back(row);
  }
  rows.insert(rows.end(), {finals, counts, permutations});
  auto const basic = run.plan.actions.size();
  return InColumns(rows) + Counted(static_cast<std::size_t>(run.plan.Total()), "combination") +
         ", " + std::to_string(basic) + " of them basic\n";
}

Json CombineJson(CZelData const& model, CombineRun const& run) {
  Json actions = Json::array();
  for (auto const& entry : run.plan.actions)
    actions.push_back({{"combination", entry.first},
                       {"name", model.CombinationCase(entry.first).Name().ToUtf8()},
                       {"cases", DescriptionText(model, entry.first)}});
  Json families = Json::array();
  for (auto const& family : run.families) {
    Json factors = Json::array();
    for (auto const& [action, offered] : family.offered)
      factors.push_back(
          {{"action", action}, {"values", offered.values}, {"nonLinear", offered.isNonLinear}});
    bool const isCapped = family.permutations == std::numeric_limits<int>::max();
    families.push_back({{"name", model.CombinationCase(family.last).Name().ToUtf8()},
                        {"first", family.first},
                        {"final", family.last},
                        {"combinations", family.last - family.first + 1},
                        {"permutations", family.permutations},
                        {"morePermutations", isCapped},
                        {"factors", factors}});
  }
  return {{"combinations", run.plan.Total()}, {"actions", actions}, {"families", families}};
}

}  // namespace Tarvex::Workbench
