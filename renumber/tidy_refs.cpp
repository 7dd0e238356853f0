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

/// Rewrites what names materials and properties, kind of record by kind of record.
template <class NewNumber, class UpdateList>
class ReferenceTidier {
 public:
  ReferenceTidier(CZelData& model, NewNumber const& newNumber, UpdateList const& updateList)
      : m_model(model), m_newNumber(newNumber), m_updateList(updateList) {}

  void Members() {
    EachRecord(m_model, RowOfTable<Data::CMember>(&CZelData::Member, &CZelData::SetMember),
               [&](Data::CMember& member) {
                 member.SetProperty(m_newNumber(TidiedTable(member), member.Property()));
               });
  }
  void Elements() {
    auto const& elements = m_model.Elem();
    for (int n = elements.Next(0); n != 0; n = elements.Next(n)) {
      auto const& element = *elements.Find(n);
      int const property = m_newNumber(TidiedTable(element.Type()), element.Property());
      if (property != element.Property()) m_model.SetElemProperty(n, property);
    }
  }
  void LoadPanels() {
    EachRecord(m_model, RowOfTable<Data::LoadPanel>(&CZelData::LoadPanels, &CZelData::SetLoadPanel),
               [&](Data::LoadPanel& panel) {
                 panel.SetProperty(m_newNumber(CModule::Prop2D, panel.Property()));
               });
  }
  void GridSurfaces() {
    EachRecord(m_model,
               RowOfTable<Data::CGridSurface>(&CZelData::GridSurface, &CZelData::SetGridSurface),
               [&](Data::CGridSurface& surface) {
                 Update(surface.Elements(), [&](auto const& l) { surface.SetElements(l); });
               });
  }
  void TiedInterfaces() {
    using Data::CTiedInterface;
    EachListed(
        m_model, ListedTable<CTiedInterface>{&CZelData::TiedInterface, &CZelData::SetTiedInterface},
        [&](CTiedInterface& tied) {
          bool const primary =
              Update(tied.PrimaryElements(), [&](auto const& l) { tied.SetPrimaryElements(l); });
          if (tied.ConstrainedEntities().TypeOf() != SelElement) return primary;
          return Update(tied.ConstrainedEntities(),
                        [&](auto const& l) { tied.SetConstrainedEntities(l); }) ||
                 primary;
        });
  }
  void Loads() {
    kListedLoads.ForEach([&](auto const& table) {
      EachListed(m_model, table, [&](auto& load) {
        return Update(load.LoadedEntities(), [&](auto const& l) { load.SetLoadedEntities(l); });
      });
    });
    EachListed(
        m_model, ListedTable<Data::CGravityLoad>{&CZelData::GravityLoad, &CZelData::SetGravityLoad},
        [&](Data::CGravityLoad& load) {
          bool const entities =
              Update(load.LoadedEntities(), [&](auto const& l) { load.SetLoadedEntities(l); });
          return Update(load.LoadedNodes(), [&](auto const& l) { load.SetLoadedNodes(l); }) ||
                 entities;
        });
  }
  void Stages() {
    using Prop = Data::CAnalStageProp;
    using Mat = Data::CAnalStageMat;
    EachRecord(m_model, RowOfTable<Prop>(&CZelData::AnalStageProp, &CZelData::SetAnalStageProp),
               [&](Prop& record) {
                 auto const module = PropertyModule(record.PropType());
                 record.SetElemProp(m_newNumber(module, record.ElemProp()));
                 record.SetPropRec(m_newNumber(module, record.PropRec()));
               });
    EachRecord(m_model, RowOfTable<Mat>(&CZelData::AnalStageMat, &CZelData::SetAnalStageMat),
               [&](Mat& record) {
                 record.SetElemOriginalMat(m_newNumber(CModule::MatAnal, record.ElemOriginalMat()));
                 record.SetElemStageMat(m_newNumber(CModule::MatAnal, record.ElemStageMat()));
               });
  }
  void SavedListsAndAssemblies() {
    EachRecord(m_model, RowOfTable<CEntList>(&CZelData::List, &CZelData::SetList),
               [&](CEntList& list) {
                 if (IsEntityList(list)) m_updateList(list);
               });
    EachRecord(m_model, RowOfTable<Data::CAssembly>(&CZelData::Assembly, &CZelData::SetAssembly),
               [&](Data::CAssembly& assembly) {
                 if (IsEntityList(assembly.Entities()))
                   Update(assembly.Entities(), [&](auto const& l) { assembly.SetEntities(l); });
               });
  }

 private:
  /// Rewrites one list of a record. @return whether it changed.
  template <class Put>
  bool Update(CEntList const& stored, Put&& put) {
    CEntList list(stored);
    bool const changed = m_updateList(list);
    if (changed) put(list);
    return changed;
  }

  CZelData& m_model;
  NewNumber const& m_newNumber;
  UpdateList const& m_updateList;
};

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
  auto const newNumber = [&](CModule::ModuleId module, int n) {
    auto const numbers = m_maps.find(module);
    return numbers == m_maps.end() ? n : UpdateRef(n, numbers->second);
  };
  auto const updateList = [&](CEntList& list) { return UpdateList(list); };
  ReferenceTidier tidier(m_live, newNumber, updateList);
  tidier.Members();
  tidier.Elements();
  tidier.LoadPanels();
  tidier.GridSurfaces();
  tidier.TiedInterfaces();
  tidier.Loads();
  tidier.Stages();
  tidier.SavedListsAndAssemblies();
}

}  // namespace Tarvex
