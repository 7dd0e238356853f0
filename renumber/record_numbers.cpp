#include "renumber/record_numbers.h"

#include <algorithm>
#include <array>

#include "store/model/registry.h"

namespace Tarvex {
namespace {

using Id = CModule;

/// Tables whose numbers can be shifted, and kept by a list without a kind.
constexpr std::array kRenumbered{
    Id::Axis,           Id::GridPlane,    Id::GridSurface,    Id::Polyline,
    Id::MatSteel,       Id::MatConcrete,  Id::MatFrp,         Id::MatAluminium,
    Id::MatTimber,      Id::MatGlass,     Id::MatFabric,      Id::MatRebar,
    Id::MatAnal,        Id::MatCurve,     Id::MatMatrix,      Id::Section,
    Id::SpringProp,     Id::MassProp,     Id::Prop2D,         Id::Prop3D,
    Id::LinkProp,       Id::DamperProp,   Id::CableProp,      Id::SpacerProp,
    Id::ForceDensity1D, Id::SoapStress1D, Id::ForceDensity2D, Id::SoapStress2D,
    Id::RC2DProp,       Id::Node,         Id::Member,         Id::Elem,
    Id::LoadCaseTitle,  Id::AnalStage,    Id::AnalysisTask,   Id::CombinationCase,
    Id::AnalysisCase};

std::vector<int> LoadCaseNumbers(CZelData const& model) {
  std::vector<int> numbers;
  auto const inUse = model.LoadCaseTypes();
  auto const& titles = model.LoadCaseTitle();
  for (auto const& [number, type] : inUse) numbers.push_back(number);
  for (int n = titles.Next(0); n != 0; n = titles.Next(n))
    if (!inUse.contains(n)) numbers.push_back(n);
  std::sort(numbers.begin(), numbers.end());
  return numbers;
}

}  // namespace

std::vector<int> RecordNumbers(CZelData const& model, CModule::ModuleId module) {
  if (module == Id::LoadCaseTitle) return LoadCaseNumbers(model);
  std::vector<int> numbers;
  if (module == Id::None) return numbers;
  ForEachTable([&](auto const& row) {
    if (row.module != module) return;
    auto const tables = numbers.size();
    Tarvex::ForEachRecord((model.*row.all)(), [&](int n, auto const&) { numbers.push_back(n); });
    std::inplace_merge(numbers.begin(), numbers.begin() + static_cast<std::ptrdiff_t>(tables),
                       numbers.end());
  });
  return numbers;
}

bool IsRenumbered(CModule::ModuleId module) {
  return std::find(kRenumbered.begin(), kRenumbered.end(), module) != kRenumbered.end();
}

std::vector<int> ShiftedNumbers(CZelData const& model, CModule::ModuleId module) {
  if (!IsRenumbered(module)) return {};
  return RecordNumbers(model, module == Id::MassProp ? Id::Prop2D : module);
}

}  // namespace Tarvex
