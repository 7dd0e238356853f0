// Loads on nodes, and displacements that nodes are given.
#pragma once

#include "store/record/load_base.h"

namespace Tarvex::Data {

/// A force, moment, displacement or rotation at each node of a list. The table that it stands in
/// says which: node loads, applied displacements or settlements.
class CNodeLoad : public CLoadBase {
 public:
  CNodeLoad() = default;
  CNodeLoad(CEntList const& nodes, int loadCase, int axis, Direction direction, double value,
            CModule::ModuleId module)
      : CLoadBase(loadCase),
        m_axis(axis),
        m_direction(direction),
        m_value(value),
        m_module(module) {
    m_nodes.Put(nodes);
  }

  /// The nodes; setting a list of another kind that names something is std::invalid_argument.
  Storage<CEntList> const& LoadedEntities() const override { return m_nodes; }
  void SetLoadedEntities(CEntList const& list) override { m_nodes.Put(list); }
  /// Axis of the direction, 0 for the global one.
  int Axis() const { return m_axis; }
  void SetAxis(int axis) { m_axis = axis; }
  Direction GetDirection() const { return m_direction; }
  void SetDirection(Direction direction) { m_direction = direction; }
  /// Model force or length units, moments and rotations (radians) about an axis.
  double Value() const { return m_value; }
  void SetValue(double value) { m_value = value; }
  /// The table that the record is for; storing it in one makes it one of that table. No part of
  /// equality or files.
  CModule::ModuleId Module() const { return m_module; }
  void SetModule(CModule::ModuleId module) { m_module = module; }

  friend bool operator==(CNodeLoad const& a, CNodeLoad const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    return JoinRows(LoadFields<CNodeLoad>(),
                    MakeRows(Plain<CNodeLoad>("loadedEntities", &CNodeLoad::m_nodes),
                             Reference<CNodeLoad, CModule::Axis>("axis", &CNodeLoad::m_axis),
                             Plain<CNodeLoad>("direction", &CNodeLoad::m_direction),
                             Plain<CNodeLoad>("value", &CNodeLoad::m_value)));
  }

 private:
  ListOf<SelNode> m_nodes;
  int m_axis = 0;
  Direction m_direction = Direction::X;
  double m_value = 0;
  CModule::ModuleId m_module = CModule::NodeLoad;
};

}  // namespace Tarvex::Data
