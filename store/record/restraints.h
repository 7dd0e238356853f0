// Restraints of many nodes, and surfaces that are tied to one another.
#pragma once

#include "store/numeric/vbool6.h"
#include "store/record/constraint_base.h"

namespace Tarvex::Data {

/// A restraint of the nodes of a list.
class CGenRest : public CStagedEntity {
 public:
  CGenRest() = default;
  CGenRest(CString const& name, CEntList const& nodes, Vbool6 restraint, CEntList const& stages)
      : CStagedEntity(name, stages), m_restraint(restraint) {
    m_nodes.Put(nodes);
  }

  Storage<CEntList> const& Nodes() const { return m_nodes; }
  /// Throws std::invalid_argument for a list of another kind than nodes that names something.
  void SetNodes(CEntList const& nodes) { m_nodes.Put(nodes); }
  /// Directions that are held.
  Vbool6 Restraint() const { return m_restraint; }
  void SetRestraint(Vbool6 restraint) { m_restraint = restraint; }

  friend bool operator==(CGenRest const& a, CGenRest const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    return JoinRows(NamedFields<CGenRest>(),
                    MakeRows(Plain<CGenRest>("nodes", &CGenRest::m_nodes),
                             Plain<CGenRest>("restraint", &CGenRest::m_restraint)),
                    StageField<CGenRest>());
  }

 private:
  ListOf<SelNode> m_nodes;
  Vbool6 m_restraint;
};

/// Entities that are tied to the faces or edges of elements.
class CTied : public CStagedEntity {
 public:
  /// The elements that lead.
  Storage<CEntList> const& PrimaryElements() const { return m_primaryElements; }
  /// Throws std::invalid_argument for a list of another kind than elements that names something.
  void SetPrimaryElements(CEntList const& elements) { m_primaryElements.Put(elements); }
  /// What follows; a list of any kind.
  Storage<CEntList> const& ConstrainedEntities() const { return m_constrainedEntities; }
  void SetConstrainedEntities(CEntList const& entities) {
    m_constrainedEntities = HeldList(entities);
  }

 protected:
  CTied() = default;

  /// Fields of the bases.
  template <class Record>
  static constexpr auto TiedFields() {
    return JoinRows(NamedFields<Record>(),
                    MakeRows(Plain<Record>("primaryElements", &CTied::m_primaryElements),
                             Plain<Record>("constrainedEntities", &CTied::m_constrainedEntities)),
                    StageField<Record>());
  }

 private:
  ListOf<SelElement> m_primaryElements;
  HeldList m_constrainedEntities;
};

/// An interface of two meshes that do not share nodes.
class CTiedInterface : public CTied {
 public:
  CTiedInterface() = default;

  friend bool operator==(CTiedInterface const& a, CTiedInterface const& b) { return Same(a, b); }

  static constexpr auto Fields() { return TiedFields<CTiedInterface>(); }
};

}  // namespace Tarvex::Data
