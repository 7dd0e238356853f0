// Link properties: which directions of a node follow another node.
#pragma once

#include "store/record/entity.h"
#include "store/record/link_type.h"

namespace Tarvex::Data {

/// How a link couples a constrained node to its primary one.
class CLinkProp : public NamedEntity {
 public:
  using Type = LinkType;

  CLinkProp() = default;
  CLinkProp(CString const& name, Type type) : NamedEntity(0, name), m_type(type) {}

  Type TypeOf() const { return m_type; }
  void SetType(Type type) { m_type = type; }
  /// Whether the type is none of the named ones.
  bool IsCustom() const { return LinkTypes::IsCustom(m_type); }

  friend bool operator==(CLinkProp const& a, CLinkProp const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    return JoinRows(NamedFields<CLinkProp>(),
                    MakeRows(Plain<CLinkProp>("type", &CLinkProp::m_type)));
  }

 private:
  Type m_type = Type::All;
};

}  // namespace Tarvex::Data
