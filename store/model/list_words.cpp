#include "store/model/list_words.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <ranges>

#include "store/record/property_type.h"

namespace Tarvex::ListWords {
namespace {

enum class Rule { Property, Material, Group, Coordinates };

/// The co-ordinates that must agree, as bits.
enum Axes : int { kNoAxis = 0, kX = 1, kY = 2, kZ = 4 };

struct WordRow {
  int token;
  Rule rule;
  CModule::ModuleId module = CModule::None;  ///< table of a property, None for any, or material
  int axes = kNoAxis;
};

constexpr std::array kRows{
    WordRow{-15, Rule::Property, CModule::None},        // P
    WordRow{-16, Rule::Property, CModule::Section},     // PB
    WordRow{-17, Rule::Property, CModule::SpringProp},  // PS
    WordRow{-18, Rule::Property, CModule::MassProp},    // PM
    WordRow{-19, Rule::Property, CModule::Prop2D},      // PA
    WordRow{-20, Rule::Property, CModule::LinkProp},    // PL
    WordRow{-21, Rule::Property, CModule::CableProp},   // PC
    WordRow{-22, Rule::Property, CModule::SpacerProp},  // PG
    WordRow{-23, Rule::Property, CModule::Prop3D},      // PV
    WordRow{-32, Rule::Property, CModule::DamperProp},  // PD
    WordRow{-24, Rule::Group},                          // G
    WordRow{-34, Rule::Coordinates, CModule::None, kX},
    WordRow{-35, Rule::Coordinates, CModule::None, kY},
    WordRow{-36, Rule::Coordinates, CModule::None, kX | kY},
    WordRow{-37, Rule::Coordinates, CModule::None, kZ},
    WordRow{-38, Rule::Coordinates, CModule::None, kZ | kX},
    WordRow{-39, Rule::Coordinates, CModule::None, kY | kZ},
    WordRow{-50, Rule::Material, CModule::MatAnal},       // M
    WordRow{-51, Rule::Material, CModule::MatSteel},      // MS
    WordRow{-52, Rule::Material, CModule::MatConcrete},   // MC
    WordRow{-53, Rule::Material, CModule::MatAluminium},  // MA
    WordRow{-54, Rule::Material, CModule::MatGlass},      // MG
    WordRow{-55, Rule::Material, CModule::MatFrp},        // MP
    WordRow{-57, Rule::Material, CModule::MatTimber},     // MT
    WordRow{-58, Rule::Material, CModule::MatFabric},     // MF
};

WordRow const* Find(int token) {
  auto const* const row = std::find_if(kRows.begin(), kRows.end(), [&](WordRow const& candidate) {
    return candidate.token == token;
  });
  return row == kRows.end() ? nullptr : row;
}

constexpr bool IsPropertyTable(CModule::ModuleId module) {
  return module >= CModule::Section && module <= CModule::SpacerProp;
}

/// Whether test(table, number) holds for a property that a record refers to.
template <class Record, class Test>
bool AnyProperty(Record const& record, Test&& test) {
  bool any = false;
  ForEachField<Record>([&](auto const& field) {
    if constexpr (std::is_same_v<typename std::remove_cvref_t<decltype(field)>::Value, int>) {
      if (any || field.target == nullptr) return;
      auto const target = field.target(record);
      any = IsPropertyTable(target) && test(target, record.*field.member);
    }
  });
  return any;
}

/// Properties and materials as they are in a stage.
struct InStage {
  ModelCore& core;
  int stage;

  int Property(CModule::ModuleId table, int property) const {
    return core.stageProperties.Property(core.state, PropertyTypeOf(table), property, stage);
  }
  int Material(CModule::ModuleId table, int material) const {
    if (table != CModule::MatAnal) return material;
    return core.stageProperties.Material(core.state, material, stage);
  }
};

/// Whether a field of a record refers to a property of a table, or of any for CModule::None.
template <class Record>
bool HasProperty(InStage const& in, Record const& record, CModule::ModuleId module, int number) {
  return AnyProperty(record, [&](CModule::ModuleId table, int property) {
    return (module == CModule::None || module == table) && in.Property(table, property) == number;
  });
}

template <class Value>
concept DescribedItems = std::ranges::range<Value> && Described<std::ranges::range_value_t<Value>>;

/// Whether a field of a property, or of a part of it, names a material.
template <class Record>
bool NamesMaterial(InStage const& in, Record const& record, CModule::ModuleId module, int number) {
  bool names = false;
  ForEachField<Record>([&](auto const& field) {
    using Value = typename std::remove_cvref_t<decltype(field)>::Value;
    auto const& value = record.*field.member;
    if constexpr (std::is_same_v<Value, int>) {
      if (names || field.target == nullptr || field.target(record) != module) return;
      names = in.Material(module, value) == number;
    } else if constexpr (DescribedItems<Value>) {
      for (auto const& part : value) names = names || NamesMaterial(in, part, module, number);
    } else if constexpr (Described<Value>) {
      names = names || NamesMaterial(in, value, module, number);
    }
  });
  return names;
}

/// Calls visit(module, table) for the tables of properties that are made of a material.
template <class Visit>
void ForEachMadeTable(ModelState const& state, Visit&& visit) {
  visit(CModule::Section, state.section);
  visit(CModule::Prop2D, state.prop2D);
  visit(CModule::Prop3D, state.prop3D);
}

/// Whether a record refers to a property that is made of a material.
template <class Record>
bool HasMaterial(InStage const& in, Record const& record, CModule::ModuleId module, int number) {
  return AnyProperty(record, [&](CModule::ModuleId target, int property) {
    bool made = false;
    ForEachMadeTable(in.core.state, [&](CModule::ModuleId candidate, auto const& table) {
      if (made || candidate != target) return;
      auto const* found = table.Find(in.Property(target, property));
      made = found != nullptr && NamesMaterial(in, *found, module, number);
    });
    return made;
  });
}

Data::TopoVector const& NodesOf(Data::CElement const& element) { return element.Topology(); }
Data::TopoVector const& NodesOf(Data::LoadPanel const& panel) { return panel.Topology(); }
Data::TopoVector NodesOf(Data::CMember const& member) { return member.Topo().Nodes(); }

/// A node's place in the co-ordinates that a word compares.
class Place {
 public:
  Place(ModelState const& state, int axes, int node)
      : m_state(state), m_axes(axes), m_tolerance(state.spec.GenTol(TolType::Coincidence)) {
    if (auto const* record = state.node.Find(node)) {
      m_exists = true;
      m_point = record->Position();
    }
  }

  bool Has(Data::CNode const& node) const {
    auto const away = node.Position() - m_point;
    return m_exists && Agrees(kX, away.x) && Agrees(kY, away.y) && Agrees(kZ, away.z);
  }
  template <class Entity>
  bool Has(Entity const& entity) const {
    auto const& nodes = NodesOf(entity);
    return !nodes.empty() && std::all_of(nodes.begin(), nodes.end(), [&](int n) {
      auto const* node = m_state.node.Find(n);
      return node != nullptr && Has(*node);
    });
  }

 private:
  bool Agrees(int axis, double away) const {
    return (m_axes & axis) == 0 || std::abs(away) <= m_tolerance;
  }

  ModelState const& m_state;
  int m_axes;
  double m_tolerance;
  bool m_exists = false;
  Vec3<double> m_point;
};

/// The numbers of the entities of a kind that pass a test.
template <class Test>
Intervals Filter(ModelState const& state, SelType kind, Test&& test) {
  Intervals all;
  ForEachTableOf(state, kind, [&](auto const& table) {
    Intervals found;
    for (auto const& [n, record] : table) {
      auto const number = static_cast<int>(n);
      if (test(record)) found.Append({number, number});
    }
    all = Union(all, found);
  });
  return all;
}

}  // namespace

Reads ReadsOf(int token) {
  auto const* row = Find(token);
  if (row == nullptr) return {};
  return {true, row->rule == Rule::Coordinates, row->rule == Rule::Material};
}

bool IsPropertyWord(int token) {
  auto const* row = Find(token);
  return row != nullptr && row->rule == Rule::Property;
}

Intervals Select(ModelCore& core, SelType kind, int token, int number, int stage) {
  auto const& state = core.state;
  InStage const in{core, stage};
  auto const* row = Find(token);
  if (row == nullptr) return {};
  if (row->rule == Rule::Property)
    return Filter(state, kind,
                  [&](auto const& record) { return HasProperty(in, record, row->module, number); });
  if (row->rule == Rule::Material)
    return Filter(state, kind,
                  [&](auto const& record) { return HasMaterial(in, record, row->module, number); });
  if (row->rule == Rule::Coordinates)
    return Filter(state, kind, [place = Place(state, row->axes, number)](auto const& record) {
      return place.Has(record);
    });
  return Filter(state, kind, [&](auto const& record) {
    if constexpr (requires { record.Group(); }) return record.Group() == number;
    return false;
  });
}

}  // namespace Tarvex::ListWords
