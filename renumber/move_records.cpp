#include "renumber/move_records.h"

#include <array>
#include <mutex>

#include "frame/bulk_operations.h"
#include "store/model/registry.h"
#include "store/select/set.h"

namespace Tarvex {
namespace {

using Id = CModule::ModuleId;

/// Whether a scheme keeps every record of some tables under its number.
template <class... Tables>
bool KeepsAll(NumberScheme const& scheme, Tables const&... tables) {
  auto const keeps = [&](auto const& table) {
    for (int n = table.Next(0); n != 0; n = table.Next(n))
      if (scheme.Map(n) != n) return false;
    return true;
  };
  return (keeps(tables) && ...);
}

/// Clears a table and stores its records under their new numbers.
template <class Row>
void MoveTable(RenumberRun const& run, Row const& row, void (CZelData::*clear)(int, int)) {
  (run.model.*clear)(1, (run.model.*row.highest)());
  run.schemes.Find(row.module)->ForEach([&](int old, int number) {
    if (number != 0 && (run.before.*row.exist)(old))
      (run.model.*row.set)(number, (run.before.*row.get)(old), SidMode::Keep);
  });
}

/// Calls move(row) for the table of a module.
template <class Move>
void WithTable(Id module, Move&& move) {
  Registry::kTables.ForEach([&](auto const& row) {
    if constexpr (requires { row.get; })
      if (row.module == module) move(row);
  });
}

void MovePlain(RenumberRun const& run, Id module) {
  WithTable(module, [&](auto const& row) { MoveTable(run, row, row.remove); });
}

void MoveGridSurfaces(RenumberRun const& run, Id module) {
  run.model.BlankGridSurface(1, run.model.HighestGridSurface());
  run.schemes.Find(module)->ForEach([&](int old, int number) {
    if (number != 0 && run.before.GridSurfaceExist(old))
      run.model.SetGridSurface(number, run.before.GridSurface(old), true, SidMode::Keep);
  });
}

/// Of nodes that become one, the one that has the number already stays what it is.
void MoveNodes(RenumberRun const& run, Id module) {
  auto const& scheme = *run.schemes.Find(module);
  auto const& before = run.before;
  auto const& nodes = before.StoredNodes();
  if (KeepsAll(scheme, nodes)) return;
  Util::CSet stay(SelNode);
  scheme.ForEach([&](int old, int number) {
    if (old == number && nodes.Exist(old)) stay.AddTo(old);
  });
  run.model.BlankNode(1, run.model.HighestNode());
  scheme.ForEach([&](int old, int number) {
    auto const* const node = nodes.Find(old);
    if (number == 0 || node == nullptr) return;
    bool const yields = old != number && stay.IsItemIncluded(number);
    if (!yields) run.model._SetNode(number, *node, SidMode::Keep);
  });
}

void MoveElements(RenumberRun const& run, Id module) {
  auto const& scheme = *run.schemes.Find(module);
  auto const& before = run.before;
  auto const& elements = before.Elem();
  auto const& panels = before.LoadPanels();
  if (KeepsAll(scheme, elements, panels)) return;
  std::mutex mutex;
  BulkOperations const bulk(run.model, mutex, {module});
  run.model.BlankVariantElement(1, run.model.HighestElem());
  scheme.ForEach([&](int old, int number) {
    if (number == 0) return;
    if (auto const* const element = elements.Find(old))
      run.model.SetElem(number, *element, SidMode::Keep);
    else if (auto const* const panel = panels.Find(old))
      run.model.SetLoadPanel(number, *panel, SidMode::Keep);
  });
}

void MoveMembers(RenumberRun const& run, Id module) {
  if (!KeepsAll(*run.schemes.Find(module), run.before.Member())) MovePlain(run, module);
}

/// Dampers are stored over those that are there, and springs are cleared in their place.
void MoveDampers(RenumberRun const& run, Id module) {
  WithTable(module, [&](auto const& row) { MoveTable(run, row, &CZelData::BlankSpringProp); });
}

/// Design tasks are stored over those that are there, and stages are cleared in their place.
void MoveDesignTasks(RenumberRun const& run, Id module) {
  WithTable(module, [&](auto const& row) { MoveTable(run, row, &CZelData::BlankAnalStage); });
}

void MoveLoadCases(RenumberRun const& run, Id module) {
  MovePlain(run, module);
  MoveLoads(run);
}

/// One step of the move, when any of its modules has a scheme.
struct MoveRow {
  Id module;
  void (*move)(RenumberRun const& run, Id module);
  Id other = CModule::None;
};

// In this order; what one step clears may be what another has stored.
constexpr std::array kMoveRows{
    MoveRow{CModule::Axis, &MovePlain},
    MoveRow{CModule::GridPlane, &MovePlain},
    MoveRow{CModule::GridSurface, &MoveGridSurfaces},
    MoveRow{CModule::Polyline, &MovePlain},
    MoveRow{CModule::Node, &MoveNodes},
    MoveRow{CModule::Elem, &MoveElements},
    MoveRow{CModule::Member, &MoveMembers},
    MoveRow{CModule::MatAnal, &MovePlain},
    MoveRow{CModule::MatCurve, &MovePlain},
    MoveRow{CModule::MatSteel, &MovePlain},
    MoveRow{CModule::MatConcrete, &MovePlain},
    MoveRow{CModule::MatFrp, &MovePlain},
    MoveRow{CModule::MatAluminium, &MovePlain},
    MoveRow{CModule::MatGlass, &MovePlain},
    MoveRow{CModule::MatTimber, &MovePlain},
    MoveRow{CModule::MatFabric, &MovePlain},
    MoveRow{CModule::Section, &MovePlain},
    MoveRow{CModule::SpringProp, &MovePlain},
    MoveRow{CModule::DamperProp, &MoveDampers},
    MoveRow{CModule::MatMatrix, &MovePlain},
    MoveRow{CModule::MassProp, &MovePlain},
    MoveRow{CModule::Prop2D, &MovePlain},
    MoveRow{CModule::LinkProp, &MovePlain},
    MoveRow{CModule::CableProp, &MovePlain},
    MoveRow{CModule::SpacerProp, &MovePlain},
    MoveRow{CModule::Prop3D, &MovePlain},
    MoveRow{CModule::ForceDensity1D, &MovePlain},
    MoveRow{CModule::SoapStress1D, &MovePlain},
    MoveRow{CModule::ForceDensity2D, &MovePlain},
    MoveRow{CModule::SoapStress2D, &MovePlain},
    MoveRow{CModule::MatRebar, &MovePlain},
    MoveRow{CModule::RC2DProp, &MovePlain},
    MoveRow{CModule::AnalStage, &MovePlain},
    MoveRow{CModule::LoadCaseTitle, &MoveLoadCases},
    MoveRow{CModule::AnalysisTask, [](RenumberRun const& run, Id) { MoveTasksAndCases(run); },
            CModule::AnalysisCase},
    MoveRow{CModule::DesignTask, &MoveDesignTasks},
    MoveRow{CModule::CombinationCase, [](RenumberRun const& run, Id) { MoveCombinations(run); }},
};

}  // namespace

void MoveRecords(RenumberRun const& run) {
  for (auto const& row : kMoveRows)
    if (run.schemes.HasAny(row.module, row.other)) row.move(run, row.module);
}

}  // namespace Tarvex
