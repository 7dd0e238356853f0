#include "store/model/registry.h"

#include <array>

namespace Tarvex {
namespace {

constexpr int kAll = kHighestNumber;

template <std::size_t I>
constexpr ModuleRow Erase() {
  constexpr auto kIndex = I;
  return {
      std::get<I>(Registry::kTables).module,
      [](CZelData const& model, int n) {
        return (model.*std::get<kIndex>(Registry::kTables).exist)(n);
      },
      [](CZelData const& model) { return (model.*std::get<kIndex>(Registry::kTables).highest)(); },
      [](CZelData& model) { (model.*std::get<kIndex>(Registry::kTables).remove)(1, kAll); }};
}

template <std::size_t... I>
constexpr std::array<ModuleRow, sizeof...(I)> EraseAll(std::index_sequence<I...>) {
  return {Erase<I>()...};
}

/// Load panels share the module of the elements: as a module the two are emptied together, and only
/// elements count as existing.
constexpr auto MakeModules() {
  constexpr auto kCount = std::tuple_size_v<decltype(Registry::kTables)>;
  auto const rows = EraseAll(std::make_index_sequence<kCount>());
  std::array<ModuleRow, kCount - 1> modules{};
  std::size_t size = 0;
  for (auto const& row : rows) {
    bool known = false;
    for (std::size_t i = 0; i < size; ++i) known = known || modules[i].module == row.module;
    if (known) continue;
    modules[size] = row;
    if (row.module == CModule::Elem)
      modules[size].clear = [](CZelData& model) { model.BlankVariantElement(1, kAll); };
    ++size;
  }
  return modules;
}

constexpr auto kModules = MakeModules();

}  // namespace

std::span<ModuleRow const> Modules() { return kModules; }

ModuleRow const* FindModule(CModule::ModuleId module) {
  for (auto const& row : kModules)
    if (row.module == module) return &row;
  return nullptr;
}

}  // namespace Tarvex
