// Entities that stand on top of one another: coincident nodes merged or joined; coincident,
// overlapping, crossing and unconnected elements and members found.
//
//   Tarvex::CReduceCoinc reduce(model, 0.001, 0);      // tolerance, stage
//   if (reduce.SetSearchSet(nodes, CReduceCoinc::kWholeSearch)) {
//     std::vector<std::pair<int, int>> merged;         // (removed, kept)
//     reduce.Do(nodes, merged);
//   }
#pragma once

#include <memory>
#include <unordered_set>
#include <utility>
#include <vector>

#include "store/calc/order_set.h"
#include "store/select/reference.h"
#include "tarvex/export.h"

namespace Tarvex {

class CRenumber;
class CZelData;
class ItemExtents;
namespace Data {
class CAxis;
class CUnit;
}  // namespace Data

/// Finds entities of a search set that coincide, and deals with them. The search sorts the centres
/// along a direction and looks at a slice of them for each entity. An instance serves one thread;
/// it keeps the model by reference and nothing of a run.
class TARVEX_EXPORT CReduceCoinc {
 public:
  /// What Do makes of two coincident entities. Any other value changes nothing and counts as done.
  enum Option : int {
    OptionFind = 0,      ///< nothing
    OptionJoint = 1,     ///< a joint in all directions
    OptionMergeMax = 2,  ///< merges: restraints of both, the greater property numbers and mesh size
    OptionMergeMin = 3,  ///< merges: restraints that both have, the lesser ones
    OptionMergeKeep = 4,  ///< merges: the node that stays keeps its own
  };

  /// Steps of SetSearchSet, to be added up.
  enum SearchStep : int {
    kTakeSet = 1,    ///< takes the set, and lists its items
    kFindOrder = 2,  ///< finds an order vector; without it the one of SetOrderVector stays
    kSortList = 4,   ///< sorts the list
    kWholeSearch = kTakeSet | kFindOrder | kSortList,
  };

  /// @param tolerance distance below which two things coincide, model length units.
  /// @param stage analysis stage whose constraints count, 0 for the model without stages.
  CReduceCoinc(CZelData& model, double tolerance, int stage);
  CReduceCoinc(CReduceCoinc const&);
  CReduceCoinc(CReduceCoinc&&) noexcept;
  ~CReduceCoinc();

  double CoincidenceTol() const { return m_tolerance; }
  void SetCoincidenceTol(double tolerance) { m_tolerance = tolerance; }
  /// OptionMergeMax at first.
  void SetOption(Option option) { m_option = option; }
  void SetStage(int stage) { m_stage = stage; }
  /// The direction of the search, of any length above 0; for a caller that does not let
  /// SetSearchSet find one. To be set before the items are listed: those that are keep the places
  /// that they have.
  void SetOrderVector(Vec3<double> const& vector);

  /// Takes the steps that the flags name; the kind of the set says what is searched. Load panels
  /// count as elements. The list is of the centres as they stand now.
  /// @return false, and no further step, when there is nothing to find an order vector for.
  bool SetSearchSet(Util::CSet const& set, int flags);
  /// Puts an entity in the search set. @return false when it does not exist.
  bool AddToSearchSet(int number);
  /// Takes one out; its place in the list stays. @return whether the set held it.
  bool RemoveFromSearchSet(int number);

  /// Deals with each number of `items`, in the search set or not, from the highest down, by the
  /// option: looks for one of the search set that coincides with it. Of two nodes the lower number
  /// stays and every reference to the other becomes one to it, at the end of the run. A joint is
  /// not made where either node is in a constraint of the stage. Joints and restraints go in as
  /// they are found. The search set must be of nodes for a merge or a joint, else std::out_of_range
  /// "bad entity type", with what was changed until then left as it is.
  /// @param pairs gains (removed, kept) for each merge. @return whether anything was found and
  /// done.
  bool Do(Util::CSet const& items, std::vector<std::pair<int, int>>& pairs);
  /// The same for `count` numbers from `first` on.
  bool Do(int first, int count);

  // Questions. Their answer is the number of another entity, 0 for none. A search set of another
  // kind than nodes, elements or members is std::out_of_range "bad entity type".
  /// Nodes: the nearest within the tolerance that no joint of the stage ties to it. Elements and
  /// members: the first, upwards then downwards in the list, whose centre is within the tolerance
  /// and whose nodes are the same in any order. An item outside of the list is compared with the
  /// closest item alone.
  /// @param overlap whether one that overlaps counts too: a line that lies along another for some
  /// of its length, a plate that covers part of another in its plane.
  int FindCoinc(int item, bool overlap) const;
  /// FindCoinc(item, false) of many items, in less time than one by one: (item, answer) for each
  /// that has one, ascending.
  std::vector<std::pair<int, int>> FindAllCoinc(Util::CSet const& items) const;
  /// The first in the list whose line from end to end comes within 0.001 of that of the item, at a
  /// place more than 0.001 inside of both, without a shared end node.
  int FindCross(int item);
  /// The element itself when neither of its ends is in a constraint of any stage or in the topology
  /// of a second element; for a search set of elements.
  int FindUnconnect(int item);
  /// Nodes: the nearest within the tolerance, that distance included. Others: the one with the
  /// nearest centre. @param exclude a number to pass over, 0 for none; of nodes it is passed over
  /// alone, whatever is tied to it.
  int ClosestItem(Vec3<double> const& point, int exclude) const;
  /// The same for a point in the co-ordinates of an axis and a set of units.
  int ClosestItem(Data::CUnit const& unit, Data::CAxis const& axis, Vec3<double> const& point,
                  int exclude) const;
  /// The nearest node of the search set within a radius, that distance included; the lowest of
  /// equally near ones.
  int ClosestNode(Vec3<double> const& point, int exclude, double radius) const;
  /// Whether two elements or members have as many nodes and every node of b is one of a.
  bool IsTopoCoinc(SelType kind, int a, int b) const;

 private:
  class Run;

  template <class Walk>
  bool RunOver(std::vector<std::pair<int, int>>& pairs, Walk&& walk);
  void Foresee(Util::CSet const& items, bool merging, Run& run) const;
  int FindIn(Run& run, int item) const;
  bool DoItem(int item, Run& run, std::vector<std::pair<int, int>>& pairs);
  bool Join(int item, int other, Run& run);
  void Merge(int removed, int kept, Run& run);

  std::unordered_set<int> ExcludedItems(int item) const;
  int FindNode(int item, int place, bool whole) const;
  int FindNodeAround(int item, int place) const;
  int FindEntity(int item, int place) const;
  int FindOverlapping(int item, int place) const;
  int FindOutside(int item, bool overlap) const;
  bool Overlap(SelType kind, int a, int b) const;
  bool Overlap1D(SelType kind, int a, int b) const;
  bool Overlap2D(SelType kind, int a, int b) const;
  ItemExtents const& Extents() const;

  CZelData& m_model;
  double m_tolerance;
  Option m_option = OptionMergeMax;
  COrderSet m_order;
  int m_stage;
  // Boxes of the listed items, good for the model that they were made of; copies share them.
  mutable std::shared_ptr<ItemExtents const> m_extents;
};

}  // namespace Tarvex
