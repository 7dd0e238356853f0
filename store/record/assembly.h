// Assemblies: groups of entities whose forces are summed along a line.
#pragma once

#include <array>

#include "store/record/held_list.h"

namespace Tarvex::Data {

/// A named group of entities with a line of three nodes: start, end and one that orients the cuts.
class TARVEX_STORE_EXPORT CAssembly : public NamedEntity {
 public:
  /// Ways in which cuts are laid out that something depends on; others are kept as they are.
  static constexpr int kByPoints = 0;
  static constexpr int kByStoreys = 3;

  CAssembly() = default;
  explicit CAssembly(CString const& name) : NamedEntity(0, name) {}

  /// The entities; a list of any kind.
  Storage<CEntList> const& Entities() const { return m_entities; }
  void SetEntities(CEntList const& entities) { m_entities = HeldList(entities); }

  /// Node of the line: 0 its start, 1 its end, 2 the orientation; 0 for none and past the end.
  int Topo(int place) const {
    auto const at = static_cast<std::size_t>(place);
    return at < m_topology.size() ? m_topology[at] : 0;
  }
  /// Throws std::out_of_range for a place that there is not.
  void SetTopo(int place, int node);
  /// Nodes that the line runs through between its ends.
  Storage<CEntList> const& IntTopo() const { return m_intTopo; }
  /// Throws std::invalid_argument for a list of another kind than nodes that names something.
  void SetIntTopo(CEntList const& nodes) { m_intTopo.Put(nodes); }

  /// How the cuts are laid out.
  int Definition() const { return definition; }
  /// The storeys at which cuts are made, a list without a kind; of effect with kByStoreys.
  Storage<CEntList> const& Storey() const { return m_storey; }
  /// Throws std::invalid_argument for a list with a kind that names something.
  void SetStorey(CEntList const& storeys) { m_storey.Put(storeys); }
  /// Distance between the points of the line at which forces are told, model length units.
  double Spacing() const { return m_spacing; }
  void SetSpacing(double spacing) { m_spacing = spacing; }

  int definition = kByPoints;
  double cutSpacing = 0;  ///< distance from cut to cut along the line, model length units

  friend bool operator==(CAssembly const& a, CAssembly const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    return JoinRows(
        NamedFields<CAssembly>(),
        MakeRows(Plain<CAssembly>("entities", &CAssembly::m_entities),
                 Reference<CAssembly, CModule::Node>("topology", &CAssembly::m_topology),
                 Plain<CAssembly>("intTopo", &CAssembly::m_intTopo),
                 Plain<CAssembly>("definition", &CAssembly::definition),
                 Reference<CAssembly, CModule::Storey>("storey", &CAssembly::m_storey),
                 Plain<CAssembly>("spacing", &CAssembly::m_spacing),
                 Plain<CAssembly>("cutSpacing", &CAssembly::cutSpacing)));
  }

 private:
  HeldList m_entities;
  std::array<int, 3> m_topology{};
  ListOf<SelNode> m_intTopo;
  ListOf<SelNone> m_storey;
  double m_spacing = 0;
};

}  // namespace Tarvex::Data
