// Selection lists that records hold in a field.
#pragma once

#include <stdexcept>

#include "store/record/ent_list.h"

namespace Tarvex::Data {

/// How a record holds a value of a type that stands alone elsewhere.
template <class T>
using Storage = T;

/// A list of any kind in a field of a record: what it selects alone. Name, identifier and colour
/// are those of saved lists and do not go with it.
class HeldList : public CEntList {
 public:
  HeldList() = default;
  explicit HeldList(CEntList const& list) : CEntList(list) {
    SetName(CString());
    SetSid(CString());
    SetColour(0);
    Lock(false);
    StoreAccess::SetNumber(*this, 0);
  }

  friend bool operator==(HeldList const& a, HeldList const& b) { return Same(a, b); }

  static constexpr auto Fields() { return MakeRows(KindField<HeldList>(), TextField<HeldList>()); }
};

/// A list of one kind in a field of a record; a file holds its text alone.
template <SelType Kind>
class ListOf : public HeldList {
 public:
  ListOf() { SetType(Kind); }
  explicit ListOf(CString const& text) : HeldList(CEntList(Kind, text)) {}

  /// Takes what a list selects. @return false, and the list as it was, for a list of another kind
  /// that names something.
  bool Take(CEntList const& list) {
    bool const right = list.TypeOf() == Kind;
    if (!right && !list.IsEmpty()) return false;
    *this = right ? ListOf(list) : ListOf();
    return true;
  }
  /// As Take, but throws std::invalid_argument where that gives false.
  void Put(CEntList const& list) {
    if (!Take(list)) throw std::invalid_argument("list of another kind than the field's");
  }

  friend bool operator==(ListOf const& a, ListOf const& b) { return Same(a, b); }

  static constexpr auto Fields() { return MakeRows(TextField<ListOf>()); }

 private:
  explicit ListOf(CEntList const& list) : HeldList(list) {}
};

}  // namespace Tarvex::Data
