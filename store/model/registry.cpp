#include "store/model/registry.h"

#include <array>

namespace Tarvex {
namespace {

constexpr int kAll = kHighestNumber;

template <std::size_t I>
constexpr ModuleRow Erase() {
  constexpr auto kIndex = I;
  return {
      GetRow<I>(Registry::kTables).module, GetRow<I>(Registry::kTables).stem,
      [](CZelData const& model, int n) {
        return (model.*GetRow<kIndex>(Registry::kTables).exist)(n);
      },
      [](CZelData const& model) { return (model.*GetRow<kIndex>(Registry::kTables).highest)(); },
      [](CZelData& model) { (model.*GetRow<kIndex>(Registry::kTables).remove)(1, kAll); }};
}

template <std::size_t... I>
constexpr std::array<ModuleRow, sizeof...(I)> EraseAll(std::index_sequence<I...>) {
  return {Erase<I>()...};
}

constexpr auto kTableCount = Registry::kTables.kSize;
constexpr auto kTableRows = EraseAll(std::make_index_sequence<kTableCount>());

struct ModuleRows {
  std::array<ModuleRow, kTableCount> rows{};
  std::size_t size = 0;

  constexpr bool Knows(CModule::ModuleId module) const {
    for (std::size_t i = 0; i < size; ++i)
      if (rows[i].module == module) return true;
    return false;
  }
};

/// Load panels share the module of the elements: as a module the two are emptied together, and only
/// elements count as existing. A load case exists by its loads too.
constexpr ModuleRows MakeModules() {
  ModuleRows modules;
  for (auto row : kTableRows) {
    if (row.module == CModule::None || modules.Knows(row.module)) continue;
    if (row.module == CModule::Elem)
      row.clear = [](CZelData& model) { model.BlankVariantElement(1, kAll); };
    if (row.module == CModule::LoadCaseTitle) {
      row.exist = [](CZelData const& model, int n) { return model.LoadCaseExist(n); };
      row.highest = [](CZelData const& model) { return model.HighestLoadCase(); };
    }
    modules.rows[modules.size++] = row;
  }
  return modules;
}

constexpr auto kModules = MakeModules();

}  // namespace

std::span<ModuleRow const> Tables() { return kTableRows; }

std::span<ModuleRow const> Modules() { return std::span(kModules.rows).first(kModules.size); }

ModuleRow const* FindModule(CModule::ModuleId module) {
  for (auto const& row : Modules())
    if (row.module == module) return &row;
  return nullptr;
}

}  // namespace Tarvex
