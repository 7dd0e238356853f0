// Where influence lines and surfaces are told for.
#pragma once

#include "store/record/entity.h"

namespace Tarvex::Data {

/// A node whose displacement an influence is told for.
class CInfluenceNode : public NamedEntity {
 public:
  CInfluenceNode() = default;
  CInfluenceNode(CString const& name, int node) : NamedEntity(0, name), m_node(node) {}

  int Node() const { return m_node; }
  void SetNode(int node) { m_node = node; }

  friend bool operator==(CInfluenceNode const& a, CInfluenceNode const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    return JoinRows(
        NamedFields<CInfluenceNode>(),
        MakeRows(Reference<CInfluenceNode, CModule::Node>("node", &CInfluenceNode::m_node)));
  }

 private:
  int m_node = 0;
};

/// An element whose force an influence is told for.
class CInfluenceBeam : public NamedEntity {
 public:
  CInfluenceBeam() = default;
  CInfluenceBeam(CString const& name, int element) : NamedEntity(0, name), m_element(element) {}

  int Elem() const { return m_element; }
  void SetElem(int element) { m_element = element; }

  friend bool operator==(CInfluenceBeam const& a, CInfluenceBeam const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    return JoinRows(
        NamedFields<CInfluenceBeam>(),
        MakeRows(Reference<CInfluenceBeam, CModule::Elem>("elem", &CInfluenceBeam::m_element)));
  }

 private:
  int m_element = 0;
};

}  // namespace Tarvex::Data
