#include "renumber/record_numbers.h"

#include <algorithm>
#include <array>

#include "store/model/registry.h"

namespace Tarvex {
namespace {

/// Tables whose numbers can be shifted, and kept by a list without a kind.
constexpr std::array kRenumbered{
    CModule::Axis,           CModule::GridPlane,    CModule::GridSurface,
    CModule::Polyline,       CModule::MatSteel,     CModule::MatConcrete,
    CModule::MatFrp,         CModule::MatAluminium, CModule::MatTimber,
    CModule::MatGlass,       CModule::MatFabric,    CModule::MatRebar,
    CModule::MatAnal,        CModule::MatCurve,     CModule::MatMatrix,
    CModule::Section,        CModule::SpringProp,   CModule::MassProp,
    CModule::Prop2D,         CModule::Prop3D,       CModule::LinkProp,
    CModule::DamperProp,     CModule::CableProp,    CModule::SpacerProp,
    CModule::ForceDensity1D, CModule::SoapStress1D, CModule::ForceDensity2D,
    CModule::SoapStress2D,   CModule::RC2DProp,     CModule::Node,
    CModule::Member,         CModule::Elem,         CModule::LoadCaseTitle,
    CModule::AnalStage,      CModule::AnalysisTask, CModule::CombinationCase,
    CModule::AnalysisCase};

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
  if (module == CModule::LoadCaseTitle) return LoadCaseNumbers(model);
  std::vector<int> numbers;
  if (module == CModule::None) return numbers;
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
  return RecordNumbers(model, module == CModule::MassProp ? CModule::Prop2D : module);
}

}  // namespace Tarvex
