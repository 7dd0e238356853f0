// Rewrites the references of one kind of records after another.
#pragma once

#include <functional>
#include <vector>

#include "renumber/renumber_run.h"
#include "store/record/held_list.h"

namespace Tarvex {

/// A sparse table whose records are rewritten in place.
template <class Record>
struct RewrittenTable {
  tarvex_unordered_map<unsigned int, Record> const& (CZelData::*all)() const;
  void (CZelData::*set)(int, Record const&, SidMode);
};

/// A positional table, from which records may have to go.
template <class Record>
struct RewrittenList {
  std::vector<Record> const& (CZelData::*all)() const;
  void (CZelData::*set)(int, Record const&, SidMode);
  void (CZelData::*remove)(int, int);
};

/// The references of the live model, record by record. Records that do not change are not stored.
class ReferenceRewriter {
 public:
  using Id = CModule::ModuleId;

  ReferenceRewriter(RenumberRun const& run, std::function<void()> const& adjustCases)
      : m_run(run), m_adjustCases(adjustCases), m_lists(run.schemes, run.before, run.refOnly) {}

  RenumberRun const& Run() const { return m_run; }

  // Each does one row of the order of rewriting (reference_rows.cpp).
  bool GridPlanes();
  bool GridSurfaces();
  bool Nodes();
  /// @return false at an element without a table of properties when properties are renumbered.
  bool Elements();
  bool LoadPanels();
  bool Members();
  bool Sections();
  bool Springs();
  bool Plates();
  bool Restraints();
  bool Rigids();
  bool Joints();
  bool Equations();
  bool TiedInterfaces();
  bool NodeLoads();
  bool BeamLoads();
  bool OtherBeamLoads();
  bool FaceAndEdgeLoads();
  bool OtherFaceLoads();
  bool BodyFaceLoads();
  bool BodyThermalLoads();
  bool GridPointLoads();
  bool GridShapeLoads();
  bool GravityLoads();
  bool Interactions();
  bool InfluenceNodes();
  bool InfluenceBeams();
  bool Stages();
  bool StageProperties();
  bool StageMaterials();
  bool Tasks();
  bool Cases() {
    m_adjustCases();
    return true;
  }
  bool SavedLists();
  bool Assemblies();
  bool GraphicViews();
  bool OutputViews();

 private:
  int Map(Id module, int number) const { return m_run.Map(module, number); }
  Data::CEntList List(Data::CEntList const& list, Id propertyModule = CModule::None) {
    return m_lists.Map(list, CModule::None, propertyModule);
  }
  /// Gives a record that acts in stages the new numbers of them.
  template <class Record>
  void MapStages(Record& record) {
    if (m_run.Has(CModule::AnalStage))
      record.SetStage(m_lists.Map(record.Stage(), CModule::AnalStage));
  }
  template <class Record>
  void MapAxis(Record& record) const {
    record.SetAxis(Map(CModule::Axis, record.Axis()));
  }

  /// Calls change(copy) for each record, ascending, and stores the copies that changed.
  template <class Record, class Change>
  void Each(RewrittenTable<Record> const& table, Change&& change) {
    auto const& records = (m_run.model.*table.all)();
    for (int n = records.Next(0); n != 0; n = records.Next(n)) {
      Record copy = *records.Find(n);
      change(copy);
      if (!(copy == *records.Find(n))) (m_run.model.*table.set)(n, copy, SidMode::Keep);
    }
  }

  /// Calls keeps(copy) for each record, which changes it and tells whether it stays; stores the
  /// copies that changed and takes the others out.
  template <class Record, class Keeps>
  void EachOrRemove(RewrittenList<Record> const& table, Keeps&& keeps) {
    std::vector<Record> kept = (m_run.model.*table.all)();
    auto const count = kept.size();
    std::erase_if(kept, [&](Record& record) { return !keeps(record); });
    // Taking records out one by one would move all that stand behind each.
    if (kept.size() != count) (m_run.model.*table.remove)(0, 1);
    for (std::size_t i = 0; i < kept.size(); ++i) {
      auto const& now = (m_run.model.*table.all)();
      if (i >= now.size() || !(kept[i] == now[i]))
        (m_run.model.*table.set)(static_cast<int>(i) + 1, kept[i], SidMode::Keep);
    }
  }

  /// Loads that go when they act on nothing. @param axis whether they have an axis that follows.
  template <class Load>
  void Loads(RewrittenList<Load> const& table, Id propertyModule) {
    EachOrRemove(table, [&](Load& load) {
      load.SetLoadedEntities(List(load.LoadedEntities(), propertyModule));
      return !load.LoadedEntities().IsEmpty();
    });
  }
  template <class Load>
  void LoadsInAxis(RewrittenList<Load> const& table, Id propertyModule) {
    EachOrRemove(table, [&](Load& load) {
      load.SetLoadedEntities(List(load.LoadedEntities(), propertyModule));
      MapAxis(load);
      return !load.LoadedEntities().IsEmpty();
    });
  }

  RenumberRun const& m_run;
  std::function<void()> const& m_adjustCases;
  ListMapper m_lists;
};

}  // namespace Tarvex
