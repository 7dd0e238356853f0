// Which nodes constraints, loads and the like name. Internal to the store.
#pragma once

#include <array>
#include <cstdint>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace Tarvex {

struct ModelState;

/// What names nodes beside topology, by node. It is worked out from some tables and good for their
/// revisions.
class NodeNaming {
 public:
  enum class Table { Rigid, Joint, ConstraintEqn, TiedInterface, Raft, Pile, Assembly };
  /// A record of a table.
  struct Record {
    Table table;
    int number;
  };

  /// Brings what constraints, loads and assemblies name up to date.
  void Update(ModelState const& state);
  /// Brings what orientations name up to date. @param held whether it stays as it was last built.
  void UpdateOrientation(ModelState const& state, bool held);
  /// Makes the next UpdateOrientation build it, held or not.
  void ForgetOrientation() { m_orientationKnown = false; }

  /// The rigids, joints, equations and ties that name a node by a list or field that says so alone.
  std::vector<Record> const& Links(int node) const;
  /// Those with a list that depends on more of the model, which has to be asked.
  std::vector<Record> const& OpenLinks() const { return m_openLinks; }
  /// Whether anything else names a node alone, and the records with a list that has to be asked.
  bool IsNamed(int node) const { return m_named.contains(node); }
  std::vector<Record> const& OpenLists() const { return m_openLists; }
  /// Whether a node orients an element or a member.
  bool Orients(int node) const { return m_orientation.contains(node); }

 private:
  void BuildLinks(ModelState const& state);
  void BuildNamed(ModelState const& state);

  std::unordered_map<int, std::vector<Record>> m_links;
  std::vector<Record> m_openLinks;
  std::unordered_set<int> m_named;
  std::vector<Record> m_openLists;
  std::vector<std::uint64_t> m_sources;  // revisions, empty at first
  std::unordered_set<int> m_orientation;
  std::array<std::uint64_t, 2> m_orientationSources{};
  bool m_orientationKnown = false;
};

}  // namespace Tarvex
