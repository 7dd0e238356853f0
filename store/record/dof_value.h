// A degree of freedom of a node with a factor.
#pragma once

#include "store/numeric/direction.h"
#include "store/record/field.h"

namespace Tarvex::Util {

/// A value, such as a factor in a constraint equation, for one direction of one node.
class CDofValue {
 public:
  CDofValue() = default;
  CDofValue(int node, Direction direction, double value)
      : m_node(node), m_direction(direction), m_value(value) {}

  int Node() const { return m_node; }
  Direction Dir() const { return m_direction; }
  double Value() const { return m_value; }

  friend bool operator==(CDofValue const& a, CDofValue const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    return MakeRows(Reference<CDofValue, CModule::Node>("node", &CDofValue::m_node),
                    Plain<CDofValue>("direction", &CDofValue::m_direction),
                    Plain<CDofValue>("value", &CDofValue::m_value));
  }

 private:
  int m_node = 0;
  Direction m_direction = Direction::X;
  double m_value = 0;
};

}  // namespace Tarvex::Util
