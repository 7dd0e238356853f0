// Rigid constraints that touch each other, merged for a while.
//
//   {
//     Tarvex::MergeRigid merged(model);
//     merged.Merge(stage);
//     // here the model has fewer and larger rigid constraints
//   }
//   // here it has its own again
#pragma once

#include <vector>

#include "store/record/rigid.h"
#include "tarvex/export.h"

namespace Tarvex {

class CZelData;

/// A guard: what it merges is put back when it goes, on every way out. One guard serves one
/// Merge(): another one on the same guard would take what the first made for the earlier
/// constraints. The model must outlive it.
class TARVEX_EXPORT MergeRigid {
 public:
  explicit MergeRigid(CZelData& model);
  MergeRigid(MergeRigid const&) = delete;
  MergeRigid& operator=(MergeRigid const&) = delete;
  /// Stores the earlier rigid constraints under 1, 2, 3 and so on. Those that came meanwhile above
  /// their number stay.
  ~MergeRigid();

  /// Merges each rigid constraint that acts in a stage (0: the model without stages) with those
  /// after it that share a node with it or with what it has taken in so far, and are of the same
  /// type with another primary node. What is merged away stays as a constraint of type 0, which
  /// holds nothing, with its nodes as they were.
  ///
  /// The walk goes once, in ascending number: a constraint that was passed by before the one that
  /// would have joined it came is not looked at again. A constraint that has taken another in is
  /// found by its constrained nodes from then on, and by its primary node only where those name it.
  /// Fewer than two constraints are left alone.
  void Merge(int stage);

  /// Whether a constraint may be merged in a stage: it is active there, its stages name the stage,
  /// and it is neither a pin nor of a custom type.
  bool CheckRigid(Data::CRigid const& rigid, int stage) const;

  /// Whether two lists of one kind share a node; false for lists of two kinds.
  bool ListsOverlap(Data::CEntList const& a, Data::CEntList const& b) const;

  /// Takes a second constraint into a first: its constrained nodes and its primary node come behind
  /// those of the first, and its type becomes 0. Where the model restrains its primary node, in the
  /// model without stages, in a direction that it constrains, that node leads the first from then
  /// on; the former primary node of the first is then held only where the lists name it. What the
  /// kind of structure rules out counts as restrained.
  void DoMerge(Data::CRigid& first, Data::CRigid& second) const;

  /// Keeps the model's rigid constraints for the destructor, unless the kept ones are given, and
  /// puts the given ones in their place.
  void UpdateRigids(std::vector<Data::CRigid> const& rigids);

 private:
  class Run;

  void TakeIn(Data::CRigid& first, Data::CRigid& second, Data::CEntList& list) const;

  CZelData& m_model;
  std::vector<Data::CRigid> m_saved;
};

}  // namespace Tarvex
