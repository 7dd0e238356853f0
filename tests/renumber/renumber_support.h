// What the tests of renumbering share.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "store/model/registry.h"
#include "tarvex/renumber.h"
#include "tests/support/builders.h"
#include "tests/support/matchers.h"
#include "tests/support/random_model.h"

namespace Tarvex::Testing {

/// A renumbering whose protected members can be called.
class OpenRenumber : public CRenumber {
 public:
  explicit OpenRenumber(CZelData* model = nullptr) : CRenumber(model) {}
  using CRenumber::GoCases;
  using CRenumber::HighestItem;
  using CRenumber::IsModule;
  using CRenumber::ItemExist;
  using CRenumber::ListPreconversion;
  using CRenumber::MapList;
  using CRenumber::MapWord;
  using CRenumber::RenumberGetReplacement;
  using CRenumber::String;
  using CRenumber::Word;
};

using Scheme = std::map<int, int>;

/// What a renumbering makes of the numbers of a table, those that go left out. Numbers that the
/// scheme lacks are looked for up to the given one.
inline Scheme SchemeOf(CRenumber const& renumber, CModule::ModuleId module, int highest = 200) {
  Scheme scheme;
  for (int n = 1; n <= highest; ++n)
    if (int const number = renumber.MapItem(module, n); number != 0) scheme[n] = number;
  return scheme;
}

/// Runs one scheme on a model.
inline bool Apply(CZelData& model, CModule::ModuleId module, Scheme const& scheme,
                  bool keepDescriptions = false) {
  CRenumber renumber(&model);
  renumber.Index(module, scheme);
  return renumber.Go(keepDescriptions);
}

/// Adds nodes under the numbers, at x = number.
inline void NodesAt(CZelData& model, std::vector<int> const& numbers) {
  for (int const n : numbers) model.CreateNode(n, {static_cast<double>(n), 0, 0}, 0, Vbool6());
}

/// The numbers of a table, ascending.
template <class Table>
std::vector<int> Numbers(Table const& table) {
  std::vector<int> numbers;
  ForEachRecord(table, [&](int n, auto const&) { numbers.push_back(n); });
  return numbers;
}

}  // namespace Tarvex::Testing
