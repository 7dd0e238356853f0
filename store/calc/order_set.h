// Entities in the order of their centres along a vector, for searches that look at a slice of them.
//
//   COrderSet order;
//   order.SetSet(nodes, model, true);
//   if (order.CalcOrderVector(model)) {  // a direction that spreads them
//     order.CreateList(model);
//     order.Sort();
//   }
#pragma once

#include "store/calc/order.h"
#include "store/select/set.h"

namespace Tarvex {

class CZelData;

/// A set of entities and the list of their centres, projected on a vector. The list is not followed
/// up when the model changes, and stays as it is when a number leaves the set.
class TARVEX_STORE_EXPORT COrderSet : public COrder {
 public:
  COrderSet();
  COrderSet(COrderSet const&);
  COrderSet(COrderSet&&) noexcept;
  COrderSet& operator=(COrderSet const&);
  COrderSet& operator=(COrderSet&&) noexcept;
  ~COrderSet();

  /// Takes those of a set that exist, and empties the list. @param panels whether load panels count
  /// as elements. @return whether there are any.
  bool SetSet(Util::CSet const& set, CZelData const& model, bool panels);
  /// Puts an entity in the set, and in the list at its present centre. @return false, with no
  /// change, when there is none of that number.
  bool AddToSet(int number, CZelData const& model);
  /// Takes a number out of the set; the list keeps it. @return whether the set held it.
  bool RemoveFromSet(int number);

  /// Chooses the order vector: of three directions nearly at right angles to one another, on none
  /// of which the points of a regular grid pile up, the one on which most centres are told apart.
  /// It depends on the centres alone, not on their numbers. @return false for a set without items.
  bool CalcOrderVector(CZelData const& model);
  /// Makes the list of the set's entities, ascending by number, in projection on the order vector.
  /// @return whether there are any.
  bool CreateList(CZelData const& model);

  /// Place of a number in the list, negative when it is not there.
  int GetIndexFromRef(int number) const { return PlaceOf(number); }
  /// Number at a place of the list; std::out_of_range "invalid vector subscript" when there is
  /// none.
  int Ref(int place) const;

  SelType TypeOf() const { return m_set.TypeOf(); }
  bool IsItemIncluded(int number) const { return m_set.IsItemIncluded(number); }
  Util::CSet const& Set() const { return m_set; }

 private:
  Util::CSet m_set;
};

}  // namespace Tarvex
