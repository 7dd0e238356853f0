// Which materials and properties a model uses.
#include <array>
#include <limits>
#include <set>
#include <utility>

#include "renumber/property_tables.h"
#include "store/model/registry.h"
#include "tarvex/tidy.h"

namespace Tarvex {
namespace {

using Id = CModule::ModuleId;
using Maps = std::map<Id, std::map<int, int>>;

constexpr std::array kIndexedTables{
    CModule::MatAnal,    CModule::MatSteel, CModule::MatConcrete, CModule::MatAluminium,
    CModule::MatGlass,   CModule::MatFrp,   CModule::MatTimber,   CModule::MatFabric,
    CModule::MatRebar,   CModule::Section,  CModule::Prop2D,      CModule::SpringProp,
    CModule::DamperProp, CModule::MassProp, CModule::LinkProp,    CModule::CableProp,
    CModule::SpacerProp, CModule::Prop3D};

/// Marks what one stage of a model uses.
class UseMarker {
 public:
  UseMarker(CZelData const& model, int stage, Maps& maps)
      : m_model(model), m_stage(stage), m_maps(maps) {}

  void Nodes() {
    for (auto const& [n, node] : m_model.Node()) {
      if (!m_model.NodeIsActive(static_cast<int>(n), m_stage, SelElement)) continue;
      OfNode(PropertyType::Spring, node.SpringProperty());
      OfNode(PropertyType::Mass, node.MassProperty());
      OfNode(PropertyType::Damper, node.DamperProperty());
    }
  }
  void Elements() {
    for (auto const& [n, element] : m_model.Elem()) {
      auto const number = static_cast<int>(n);
      if (!m_model.ElemIsActive(number, m_stage)) continue;
      Property(TidiedTable(element.Type()), m_model.StageProperty(number, m_stage));
    }
  }
  void LoadPanels() {
    for (auto const& [n, panel] : m_model.LoadPanels()) {
      auto const number = static_cast<int>(n);
      if (!m_model.IsLoadPanelActive(number, m_stage)) continue;
      if (int const property = m_model.StageProperty(number, m_stage); property != 0)
        Mark(CModule::Prop2D, property);
    }
  }
  void Members() {
    for (auto const& [n, member] : m_model.Member()) {
      auto const table = TidiedTable(member);
      auto const family = PropertyTypeOf(table);
      int const own = member.Property();
      Property(table,
               family == PropertyType::None ? own : m_model.StageProperty(family, own, m_stage));
    }
  }

 private:
  void Mark(Id module, int n) { m_maps[module].try_emplace(n, n); }

  void OfNode(PropertyType family, int own) {
    int const property = m_model.StageProperty(family, own, m_stage);
    if (property > 0) Mark(PropertyModule(family), property);
  }

  /// Marks a property with what it is made of. A load panel marks the number alone, so that a mark
  /// does not tell that the materials have theirs.
  void Property(Id module, int n) {
    if (module == CModule::None || n == 0) return;
    Mark(module, n);
    if (!m_made.emplace(module, n).second) return;
    if (module == CModule::Section && m_model.SectionExist(n)) {
      auto const& section = m_model.Section(n);
      for (int i = 0; i < section.NumComponent(); ++i) Material(section.Component(i));
    }
    if (module == CModule::Prop2D && m_model.Prop2DExist(n)) Material(m_model.Prop2D(n));
    if (module == CModule::Prop3D && m_model.Prop3DExist(n)) Material(m_model.Prop3D(n));
  }

  void Material(Data::HasMaterial const& made) {
    if (made.MaterialAnalysis() > 0) Mark(CModule::MatAnal, made.MaterialAnalysis());
    auto const grades = MatModule(made.MaterialType());
    if (grades != CModule::None && made.MaterialGrade() > 0) Mark(grades, made.MaterialGrade());
  }

  CZelData const& m_model;
  int m_stage;
  Maps& m_maps;
  std::set<std::pair<Id, int>> m_made;  // properties whose materials are marked
};

}  // namespace

CIndexProp::CIndexProp(CZelData const& model) : m_model(model) {}
CIndexProp::CIndexProp(CIndexProp const&) = default;
CIndexProp::~CIndexProp() = default;

void CIndexProp::_Init() { m_maps.clear(); }

bool CIndexProp::_Index(int stage) {
  if (stage != 0 && !m_model.AnalStageExist(stage)) return false;
  UseMarker marker(m_model, stage, m_maps);
  marker.Nodes();
  marker.Elements();
  marker.LoadPanels();
  marker.Members();
  return true;
}

void CIndexProp::_Post() {
  for (auto& [module, numbers] : m_maps) {
    int next = 0;
    for (auto& [n, number] : numbers)
      if (number != 0) number = ++next;
  }
}

bool CIndexProp::IndexUsed() {
  _Init();
  bool indexed = _Index(0);
  for (auto const& [stage, record] : m_model.AnalStage())
    indexed = _Index(static_cast<int>(stage)) || indexed;
  _Post();
  return indexed;
}

bool CIndexProp::IndexStage(int stage) {
  _Init();
  bool const indexed = _Index(stage);
  _Post();
  return indexed;
}

bool CIndexProp::IndexDefined() {
  _Init();
  for (auto const module : kIndexedTables) {
    auto& numbers = m_maps[module];
    ForEachTable([&](auto const& row) {
      if (row.module != module) return;
      ForEachRecord((m_model.*row.all)(), [&](int n, auto const&) { numbers[n] = n; });
    });
  }
  _Post();
  return true;
}

bool CIndexProp::IsMatGenericUsed(int) const { return false; }

bool CIndexProp::IsUsed(CModule::ModuleId module, int n) const {
  auto const numbers = m_maps.find(module);
  if (numbers == m_maps.end()) return false;
  auto const found = numbers->second.find(n);
  return found != numbers->second.end() && found->second != std::numeric_limits<int>::max();
}

}  // namespace Tarvex
