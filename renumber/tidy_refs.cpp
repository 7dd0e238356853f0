// References to materials and properties whose numbers have closed up.
#include "renumber/list_word_text.h"
#include "renumber/property_tables.h"
#include "store/model/registry.h"
#include "tarvex/tidy.h"

namespace Tarvex {
namespace {

using Data::CEntList;

bool IsEntityList(CEntList const& list) {
  return list.TypeOf() >= SelNode && list.TypeOf() <= SelMember;
}

/// Calls change(copy) for each record of a table and stores the copies that it changed.
template <class Record, class Change>
void EachRecord(CZelData& model, TableRow<Record> const& row, Change&& change) {
  auto const& records = (model.*row.all)();
  for (int n = records.Next(0); n != 0; n = records.Next(n)) {
    Record copy = *records.Find(n);
    change(copy);
    if (!(copy == *records.Find(n))) (model.*row.set)(n, copy, SidMode::Keep);
  }
}

/// A table of loads or the like of which a list is rewritten.
template <class Record>
struct ListedTable {
  std::vector<Record> const& (CZelData::*all)() const;
  void (CZelData::*set)(int, Record const&, SidMode);
};

template <class Record, class Change>
void EachListed(CZelData& model, ListedTable<Record> const& table, Change&& change) {
  auto const count = static_cast<int>((model.*table.all)().size());
  for (int n = 1; n <= count; ++n) {
    Record copy = (model.*table.all)()[static_cast<std::size_t>(n) - 1];
    if (change(copy)) (model.*table.set)(n, copy, SidMode::Keep);
  }
}

// The loads whose lists follow; those on solids do not.
constexpr auto kListedLoads = MakeRows(
    ListedTable<Data::CBeamLoad>{&CZelData::BeamLoad, &CZelData::SetBeamLoad},
    ListedTable<Data::CAxialLoad>{&CZelData::AxialLoad, &CZelData::SetAxialLoad},
    ListedTable<Data::CBeamDist>{&CZelData::BeamDist, &CZelData::SetBeamDist},
    ListedTable<Data::CBeamThermalLoad>{&CZelData::BeamThermalLoad, &CZelData::SetBeamThermalLoad},
    ListedTable<Data::CFaceLoad>{&CZelData::FaceLoad, &CZelData::SetFaceLoad},
    ListedTable<Data::CEdgeLoad>{&CZelData::EdgeLoad, &CZelData::SetEdgeLoad},
    ListedTable<Data::CInPlaneLoad>{&CZelData::InPlaneLoad, &CZelData::SetInPlaneLoad},
    ListedTable<Data::CFaceThermalLoad>{&CZelData::FaceThermalLoad, &CZelData::SetFaceThermalLoad});

template <class Record>
TableRow<Record> RowOfTable(tarvex_unordered_map<unsigned int, Record> const& (CZelData::*all)()
                                const,
                            void (CZelData::*set)(int, Record const&, SidMode)) {
  TableRow<Record> row{};
  row.all = all;
  row.set = set;
  return row;
}

}  // namespace

bool CUpdateProp::UpdateList(CEntList& list) const {
  auto tokens = list.Word();
  bool changed = false;
  for (std::size_t i = 1; i < tokens.size(); ++i) {
    auto const* const word = tokens[i] < 0 ? nullptr : FindListWord(tokens[i - 1]);
    if (word == nullptr) continue;
    auto const numbers = m_maps.find(static_cast<CModule::ModuleId>(word->next));
    if (numbers == m_maps.end()) continue;
    int const number = UpdateRef(tokens[i], numbers->second);
    changed = changed || number != tokens[i];
    tokens[i] = number;
  }
  return changed && list.SetTokens(tokens);
}

void CUpdateProp::TidyRef() {
  auto& model = m_live;
  auto const newNumber = [&](CModule::ModuleId module, int n) {
    auto const numbers = m_maps.find(module);
    return numbers == m_maps.end() ? n : UpdateRef(n, numbers->second);
  };
  /// Rewrites one list of a record.
  auto const update = [&](CEntList const& stored, auto&& put) {
    CEntList list(stored);
    bool const changed = UpdateList(list);
    if (changed) put(list);
    return changed;
  };

  EachRecord(model, RowOfTable<Data::CMember>(&CZelData::Member, &CZelData::SetMember),
             [&](Data::CMember& member) {
               member.SetProperty(newNumber(TidiedTable(member), member.Property()));
             });
  auto const& elements = model.Elem();
  for (int n = elements.Next(0); n != 0; n = elements.Next(n)) {
    auto const& element = *elements.Find(n);
    int const property = newNumber(TidiedTable(element.Type()), element.Property());
    if (property != element.Property()) model.SetElemProperty(n, property);
  }
  EachRecord(model, RowOfTable<Data::LoadPanel>(&CZelData::LoadPanels, &CZelData::SetLoadPanel),
             [&](Data::LoadPanel& panel) {
               panel.SetProperty(newNumber(CModule::Prop2D, panel.Property()));
             });
  EachRecord(model,
             RowOfTable<Data::CGridSurface>(&CZelData::GridSurface, &CZelData::SetGridSurface),
             [&](Data::CGridSurface& surface) {
               update(surface.Elements(), [&](auto const& list) { surface.SetElements(list); });
             });
  EachListed(
      model,
      ListedTable<Data::CTiedInterface>{&CZelData::TiedInterface, &CZelData::SetTiedInterface},
      [&](Data::CTiedInterface& tied) {
        bool changed = update(tied.PrimaryElements(),
                              [&](auto const& list) { tied.SetPrimaryElements(list); });
        if (tied.ConstrainedEntities().TypeOf() == SelElement)
          changed = update(tied.ConstrainedEntities(),
                           [&](auto const& l) { tied.SetConstrainedEntities(l); }) ||
                    changed;
        return changed;
      });
  kListedLoads.ForEach([&](auto const& table) {
    EachListed(model, table, [&](auto& load) {
      return update(load.LoadedEntities(), [&](auto const& l) { load.SetLoadedEntities(l); });
    });
  });
  EachListed(model,
             ListedTable<Data::CGravityLoad>{&CZelData::GravityLoad, &CZelData::SetGravityLoad},
             [&](Data::CGravityLoad& load) {
               bool const entities =
                   update(load.LoadedEntities(), [&](auto const& l) { load.SetLoadedEntities(l); });
               return update(load.LoadedNodes(), [&](auto const& l) { load.SetLoadedNodes(l); }) ||
                      entities;
             });
  EachRecord(
      model,
      RowOfTable<Data::CAnalStageProp>(&CZelData::AnalStageProp, &CZelData::SetAnalStageProp),
      [&](Data::CAnalStageProp& record) {
        auto const module = PropertyModule(record.PropType());
        record.SetElemProp(newNumber(module, record.ElemProp()));
        record.SetPropRec(newNumber(module, record.PropRec()));
      });
  EachRecord(model,
             RowOfTable<Data::CAnalStageMat>(&CZelData::AnalStageMat, &CZelData::SetAnalStageMat),
             [&](Data::CAnalStageMat& record) {
               record.SetElemOriginalMat(newNumber(CModule::MatAnal, record.ElemOriginalMat()));
               record.SetElemStageMat(newNumber(CModule::MatAnal, record.ElemStageMat()));
             });
  EachRecord(model, RowOfTable<CEntList>(&CZelData::List, &CZelData::SetList), [&](CEntList& list) {
    if (IsEntityList(list)) UpdateList(list);
  });
  EachRecord(model, RowOfTable<Data::CAssembly>(&CZelData::Assembly, &CZelData::SetAssembly),
             [&](Data::CAssembly& assembly) {
               if (IsEntityList(assembly.Entities()))
                 update(assembly.Entities(), [&](auto const& l) { assembly.SetEntities(l); });
             });
}

}  // namespace Tarvex
