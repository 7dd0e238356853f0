// Nodes through which a structure and the soil act on each other.
#pragma once

#include "store/numeric/vec.h"
#include "store/record/held_list.h"

namespace Tarvex::Data {

/// Nodes of a raft that bear on soil. What x and y measure, a place or the sides of the area that
/// bears, is the tool's that makes the record.
class CRaftInteraction : public NamedEntity {
 public:
  static constexpr double kNoLimit = 1e38;

  CRaftInteraction() = default;
  /// @param x, y, level model length units. @param lower, upper least and greatest pressure, model
  /// units.
  CRaftInteraction(CEntList const& nodes, double x, double y, double level, double lower,
                   double upper)
      : m_x(x), m_y(y), m_level(level), m_lower(lower), m_upper(upper) {
    m_nodes.Put(nodes);
  }

  Storage<CEntList> const& Nodes() const { return m_nodes; }
  /// Throws std::invalid_argument for a list of another kind than nodes that names something.
  void SetNodes(CEntList const& nodes) { m_nodes.Put(nodes); }
  /// Measures along x and y, and the z of the contact, model length units.
  double X() const { return m_x; }
  void SetX(double x) { m_x = x; }
  double Y() const { return m_y; }
  void SetY(double y) { m_y = y; }
  double Level() const { return m_level; }
  void SetLevel(double level) { m_level = level; }
  /// Least and greatest pressure, model units; at first 0 and, for none, kNoLimit.
  double LowerLimit() const { return m_lower; }
  void SetLowerLimit(double pressure) { m_lower = pressure; }
  double UpperLimit() const { return m_upper; }
  void SetUpperLimit(double pressure) { m_upper = pressure; }

  friend bool operator==(CRaftInteraction const& a, CRaftInteraction const& b) {
    return Same(a, b);
  }

  static constexpr auto Fields() {
    return JoinRows(NamedFields<CRaftInteraction>(),
                    MakeRows(Plain<CRaftInteraction>("nodes", &CRaftInteraction::m_nodes),
                             Plain<CRaftInteraction>("x", &CRaftInteraction::m_x),
                             Plain<CRaftInteraction>("y", &CRaftInteraction::m_y),
                             Plain<CRaftInteraction>("level", &CRaftInteraction::m_level),
                             Plain<CRaftInteraction>("lowerLimit", &CRaftInteraction::m_lower),
                             Plain<CRaftInteraction>("upperLimit", &CRaftInteraction::m_upper)));
  }

 private:
  ListOf<SelNode> m_nodes;
  double m_x = 0;
  double m_y = 0;
  double m_level = 0;
  double m_lower = 0;
  double m_upper = kNoLimit;
};

/// Nodes of a pile.
class CPileInteraction : public NamedEntity {
 public:
  CPileInteraction() = default;
  explicit CPileInteraction(CEntList const& nodes) { m_nodes.Put(nodes); }

  Storage<CEntList> const& Nodes() const { return m_nodes; }
  /// Throws std::invalid_argument for a list of another kind than nodes that names something.
  void SetNodes(CEntList const& nodes) { m_nodes.Put(nodes); }

  friend bool operator==(CPileInteraction const& a, CPileInteraction const& b) {
    return Same(a, b);
  }

  static constexpr auto Fields() {
    return JoinRows(NamedFields<CPileInteraction>(),
                    MakeRows(Plain<CPileInteraction>("nodes", &CPileInteraction::m_nodes)));
  }

 private:
  ListOf<SelNode> m_nodes;
};

}  // namespace Tarvex::Data
