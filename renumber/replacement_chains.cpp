// Chains of replacements.
#include <set>

#include "tarvex/renumber.h"

namespace Tarvex {
namespace {

using Numbers = std::vector<int>;
using ReplacementMap = std::map<int, Numbers>;

void AddReplacements(int number, ReplacementMap const& map, Numbers& result) {
  auto const found = map.find(number);
  if (found == map.end() || found->second.empty()) {
    result.push_back(number);
    return;
  }
  for (int const next : found->second) AddReplacements(next, map, result);
}

}  // namespace

std::vector<int> CRenumber::RenumberGetReplacement(int number, ReplacementMap const& map) {
  Numbers result;
  AddReplacements(number, map, result);
  return result;
}

std::vector<int> CRenumber::Renumber(int number, ReplacementMap const& map) {
  Numbers row{number};
  AddReplacements(number, map, row);
  return row;
}

std::vector<std::vector<int>> CRenumber::Renumber(std::vector<int> const& numbers,
                                                  ReplacementMap const& map) {
  std::vector<Numbers> rows;
  rows.reserve(numbers.size());
  for (int const number : numbers) rows.push_back(Renumber(number, map));
  return rows;
}

std::vector<std::vector<int>> CRenumber::Renumber(std::vector<int> const& numbers,
                                                  std::vector<std::pair<int, int>> const& pairs) {
  ReplacementMap map;
  for (auto const& [from, to] : pairs) map[from] = {to};
  return Renumber(numbers, map);
}

std::vector<std::vector<int>> CRenumber::RenumberGetCompressedScheme(ReplacementMap const& map) {
  std::set<int> replacements;
  for (auto const& [number, next] : map) replacements.insert(next.begin(), next.end());
  std::vector<Numbers> rows;
  for (auto const& [number, next] : map)
    if (!replacements.contains(number)) rows.push_back(Renumber(number, map));
  return rows;
}

}  // namespace Tarvex
