// Load cases, tasks and cases on the move.
#include "renumber/move_records.h"
#include "store/model/analysis_case_table.h"
#include "store/model/registry.h"
#include "store/record/tasks.h"
#include "store/text/number_text.h"

namespace Tarvex {
namespace {

/// Gives a record the default name of its new number when it has that of the old one.
void Rename(NamedEntity& record, CString const& defaultName, int old, int number) {
  if (record.Name() == Util::ReplaceHash(defaultName, old))
    record.SetName(Util::ReplaceHash(defaultName, number));
}

template <class Record>
using StoreAt = void (*)(CZelData&, int, Record const&);

/// A table of loads: how it is read, cleared and appended to.
template <class Record>
struct MovedLoads {
  std::vector<Record> const& (CZelData::*all)() const;
  void (CZelData::*clear)(int, int);
  StoreAt<Record> store;
};

template <class Record>
bool MoveTable(RenumberRun const& run, MovedLoads<Record> const& table) {
  (run.model.*table.clear)(0, 1);
  int next = 0;
  for (auto const& load : (run.before.*table.all)()) {
    // A load of no case is of none afterwards, too.
    int const loadCase = run.Map(CModule::LoadCaseTitle, load.LoadCase());
    if (loadCase == 0 && load.LoadCase() != 0) continue;
    Record copy(load);
    copy.SetLoadCase(loadCase);
    table.store(run.model, ++next, copy);
  }
  return next > 0;
}

/// Stores a load in a table whose store takes nothing but the record.
template <class Record, void (LoadTables::*Set)(int, Record const&, SidMode)>
void Plain(CZelData& model, int n, Record const& load) {
  (model.*Set)(n, load, SidMode::Keep);
}

using Data::CAxialLoad;
using Data::CBeamDist;
using Data::CBeamLoad;
using Data::CBeamThermalLoad;
using Data::CEdgeLoad;
using Data::CFaceLoad;
using Data::CFaceThermalLoad;
using Data::CGravityLoad;
using Data::CGridAreaLoad;
using Data::CGridLineLoad;
using Data::CGridPointLoad;
using Data::CInPlaneLoad;
using Data::CNodeLoad;

// In the order in which they are moved. Loads on solids are not among them: they keep the number of
// their load case.
constexpr auto kMovedLoads = MakeRows(
    MovedLoads<CNodeLoad>{&CZelData::NodeLoad, &CZelData::DeleteNodeLoad,
                          &Plain<CNodeLoad, &LoadTables::SetNodeLoad>},
    MovedLoads<CNodeLoad>{&CZelData::AppliedDisplacement, &CZelData::DeleteAppliedDisplacement,
                          &Plain<CNodeLoad, &LoadTables::SetAppliedDisplacement>},
    MovedLoads<CNodeLoad>{&CZelData::Settlement, &CZelData::DeleteSettlement,
                          &Plain<CNodeLoad, &LoadTables::SetSettlement>},
    MovedLoads<CBeamLoad>{&CZelData::BeamLoad, &CZelData::DeleteBeamLoad,
                          &Plain<CBeamLoad, &LoadTables::SetBeamLoad>},
    MovedLoads<CAxialLoad>{&CZelData::AxialLoad, &CZelData::DeleteAxialLoad,
                           &Plain<CAxialLoad, &LoadTables::SetAxialLoad>},
    MovedLoads<CBeamDist>{&CZelData::BeamDist, &CZelData::DeleteBeamDist,
                          &Plain<CBeamDist, &LoadTables::SetBeamDist>},
    MovedLoads<CBeamThermalLoad>{&CZelData::BeamThermalLoad, &CZelData::DeleteBeamThermalLoad,
                                 &Plain<CBeamThermalLoad, &LoadTables::SetBeamThermalLoad>},
    MovedLoads<CFaceLoad>{&CZelData::FaceLoad, &CZelData::DeleteFaceLoad,
                          [](CZelData& model, int n, CFaceLoad const& load) {
                            model.SetFaceLoad(n, load, true, SidMode::Keep);
                          }},
    MovedLoads<CEdgeLoad>{&CZelData::EdgeLoad, &CZelData::DeleteEdgeLoad,
                          &Plain<CEdgeLoad, &LoadTables::SetEdgeLoad>},
    MovedLoads<CInPlaneLoad>{&CZelData::InPlaneLoad, &CZelData::DeleteInPlaneLoad,
                             &Plain<CInPlaneLoad, &LoadTables::SetInPlaneLoad>},
    MovedLoads<CFaceThermalLoad>{&CZelData::FaceThermalLoad, &CZelData::DeleteFaceThermalLoad,
                                 &Plain<CFaceThermalLoad, &LoadTables::SetFaceThermalLoad>},
    MovedLoads<CGridPointLoad>{&CZelData::GridPointLoad, &CZelData::DeleteGridPointLoad,
                               [](CZelData& model, int n, CGridPointLoad const& load) {
                                 model.SetGridPointLoad(n, load, true, SidMode::Keep);
                               }},
    MovedLoads<CGridLineLoad>{&CZelData::GridLineLoad, &CZelData::DeleteGridLineLoad,
                              [](CZelData& model, int n, CGridLineLoad const& load) {
                                model.SetGridLineLoad(n, load, true, SidMode::Keep);
                              }},
    MovedLoads<CGridAreaLoad>{&CZelData::GridAreaLoad, &CZelData::DeleteGridAreaLoad,
                              [](CZelData& model, int n, CGridAreaLoad const& load) {
                                model.SetGridAreaLoad(n, load, true, SidMode::Keep);
                              }},
    MovedLoads<CGravityLoad>{&CZelData::GravityLoad, &CZelData::DeleteGravityLoad,
                             &Plain<CGravityLoad, &LoadTables::SetGravityLoad>});

}  // namespace

bool MoveLoads(RenumberRun const& run) {
  bool any = false;
  kMovedLoads.ForEach([&](auto const& table) { any = MoveTable(run, table) || any; });
  return any;
}

void MoveTasksAndCases(RenumberRun const& run) {
  auto& model = run.model;
  auto const& before = run.before;
  auto const& defaults = before.Defaults();
  int const highestTask = model.HighestAnalysisTask();
  int const highestCase = model.HighestAnalysisCase();
  auto const* const tasks = run.schemes.Find(CModule::AnalysisTask);
  auto const* const cases = run.schemes.Find(CModule::AnalysisCase);
  if (tasks != nullptr) model.BlankAnalysisTask(1, highestTask);
  if (cases != nullptr) model.BlankAnalysisCase(1, highestCase);
  if (tasks != nullptr)
    tasks->ForEach([&](int old, int number) {
      if (number == 0 || !before.AnalysisTaskExist(old)) return;
      auto const task = before.AnalysisTask(old).Clone();
      Rename(*task, defaults.AnalysisTaskName(), old, number);
      task->SetStatus(TaskStatus::Changed);
      model.SetAnalysisTask(number, *task);
    });
  if (cases != nullptr)
    cases->ForEach([&](int old, int number) {
      if (number == 0 || !before.AnalysisCaseExist(old)) return;
      auto copy = before.AnalysisCase(old);
      Rename(copy, defaults.AnalysisCaseName(), old, number);
      copy.SetTask(run.Map(CModule::AnalysisTask, copy.Task()));
      model.SetAnalysisCase(number, copy);
    });
}

void MoveCombinations(RenumberRun const& run) {
  auto const& before = run.before;
  run.schemes.Find(CModule::CombinationCase)->ForEach([&](int old, int number) {
    if (number == 0 || !before.CombinationCaseExist(old)) return;
    auto copy = before.CombinationCase(old);
    Rename(copy, before.Defaults().CombinationCaseName(), old, number);
    run.model.SetCombinationCase(number, copy, SidMode::Keep);
  });
}

}  // namespace Tarvex
