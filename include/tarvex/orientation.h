// Orientation of elements, load panels and members: which way they run, where their edges start,
// and to which side their normals point.
//
//   Tarvex::CAlignElem1D tool(model);
//   tool.SetSet(elements);   // Util::CSet of kind SelElement
//   tool.SetAxis(0);         // the global axis
//   bool turned = tool.Do();
//
// A tool keeps the model by reference and a copy of the selection; it keeps nothing of a run, so it
// can be used again. Topology, releases, offsets and positions along the member stay with the
// physical end or corner that they belong to. Loads are left as they are.
#pragma once

#include <vector>

#include "store/select/reference.h"
#include "store/select/set.h"
#include "tarvex/export.h"

namespace Tarvex {

class CZelData;

/// Reverses one element, load panel or member, by FlipElement, FlipLoadPanel or FlipMember.
/// @return false when there is none of that number or kind, or when it can't be reversed.
TARVEX_EXPORT bool FlipEntity(CZelData& model, SEntRef ref);

/// Reverses an element: a 1D element runs the other way, a 2D element faces the other way (its Z
/// offset changes sign, so that it stays where it is), a brick exchanges near and far face.
/// @return false, with no change, for a missing number, for the types 14, 16, 26 and those without
/// a shape, and for a topology shorter than its type asks for.
TARVEX_EXPORT bool FlipElement(CZelData& model, int element);

/// Reverses a load panel; the edge between its first two nodes stays its first edge.
/// @return false for a missing number.
TARVEX_EXPORT bool FlipLoadPanel(CZelData& model, int panel);

/// Reverses a 1D member: its topology (words of arcs stay where they belong), restraints and
/// releases change ends, the axial and automatic offsets too; the offset in z of a vertical member
/// and the one in y of any other changes its sign. Its elements are left as they are.
/// @return false, with no change, for a missing number, for a member that is not 1D and for a
/// topology that can't be reversed.
TARVEX_EXPORT bool FlipMember(CZelData& model, int member);

/// Turns the topology of a 2D element or load panel so that position `steps` becomes position 0.
/// A step exchanges one pair of positions fewer than there are edges, and each exchange negates the
/// Z offset of an element: a 4-noded quadrilateral changes the sign of its offset once a step, a
/// triangle and a quadratic element do not.
/// @return false, with no change, when steps is below 1, when there is no such 2D element or panel,
/// and for a topology that has neither the corners alone nor a mid-side node for each.
TARVEX_EXPORT bool SpinElement(CZelData& model, int element, int steps);

/// What the align tools have in common: model, selection and axis.
class TARVEX_EXPORT AlignTool {
 public:
  /// The entities to work on; the kind of the set decides what they are. Empty of kind 0 at first.
  void SetSet(Util::CSet const& set) { m_set = set; }
  /// Number in the table of axes, 0 (at first) for the global axis.
  void SetAxis(int axis) { m_axis = axis; }

 protected:
  explicit AlignTool(CZelData& model);
  AlignTool(AlignTool const&);
  AlignTool(AlignTool&&) noexcept;
  ~AlignTool();

  /// True when the axis is the global one or stands in the model.
  bool HasAxis() const;

  CZelData& m_model;
  Util::CSet m_set;
  int m_axis = 0;
};

/// Makes 1D elements run towards the positive sense of an axis.
class TARVEX_EXPORT CAlignElem1D : public AlignTool {
 public:
  explicit CAlignElem1D(CZelData& model);
  CAlignElem1D(CAlignElem1D const&);
  CAlignElem1D(CAlignElem1D&&) noexcept;
  ~CAlignElem1D();

  /// Reverses each 1D entity of the set whose dominant component of direction in the axis is
  /// negative; X wins ties over Y and Y over Z. The walk goes in ascending number and ends at the
  /// first entity with a missing end node.
  /// @return whether any was reversed; false for an axis below 0 or not in the model and for a set
  /// of another kind than elements or members.
  bool Do();
};

/// Turns 2D elements and load panels so that their first edge points along a direction.
class TARVEX_EXPORT CAlignElem2DEdges : public AlignTool {
 public:
  explicit CAlignElem2DEdges(CZelData& model);
  CAlignElem2DEdges(CAlignElem2DEdges const&);
  CAlignElem2DEdges(CAlignElem2DEdges&&) noexcept;
  ~CAlignElem2DEdges();

  /// Spins each 2D entity of the set so that the edge with the greatest product with the X
  /// direction of the axis comes first; axis -1 takes the x direction of each element's own frame.
  /// Edges are not normalised, so a long one wins over a short one; of equal ones the first wins,
  /// and edges with a product of 0 or less are not chosen. In a quadratic element the last corner
  /// is paired with the first mid-side node.
  /// @return whether any was turned; false for an axis below -1 or not in the model and for a set
  /// of another kind than elements.
  bool Do();
};

/// Makes the normals of 2D elements and load panels point towards the positive Z of an axis.
class TARVEX_EXPORT CAlignElem2DZ : public AlignTool {
 public:
  explicit CAlignElem2DZ(CZelData& model);
  CAlignElem2DZ(CAlignElem2DZ const&);
  CAlignElem2DZ(CAlignElem2DZ&&) noexcept;
  ~CAlignElem2DZ();

  /// Reverses each 2D entity of the set whose normal has a negative product with the Z direction of
  /// the axis; there is no tolerance.
  /// @return whether any was reversed; false for an axis below 0 or not in the model and for a set
  /// of another kind than elements.
  bool Do();
};

/// Makes the normals of a connected patch of 2D elements agree, spreading out from seed elements in
/// waves over shared corner nodes. Load panels are passed over. A reversal exchanges topology only:
/// releases, offsets and positions stay as they are.
class TARVEX_EXPORT CFlipElem2D {
 public:
  explicit CFlipElem2D(CZelData& model);
  CFlipElem2D(CFlipElem2D const&);
  CFlipElem2D(CFlipElem2D&&) noexcept;
  ~CFlipElem2D();

  void SetSet(Util::CSet const& set) { m_set = set; }
  /// Degrees, 15 at first: neighbours whose normals are within this angle of an element's normal,
  /// or of its opposite, have a vote on it.
  void SetFacetAngle(double degrees) { m_facetAngle = degrees; }

  /// Each seed, in ascending number, is turned upward. An element that the wave reaches is turned
  /// to the seed's side, and turned again when more of its settled neighbours vote against it than
  /// for it, so that a surface may fold back.
  /// @return always true.
  bool Do();

 protected:
  /// Reverses the topology of an element with 3, 4, 6 or 8 nodes; leaves others alone.
  void FlipElem(int element);
  /// Adds to out, each once, the 2D elements of the set that share a corner node with an element
  /// and are processed. @return whether out is not empty.
  bool AttachedElem(int element, std::vector<int>& processed, std::vector<int>& out);
  /// As above for each element of a wave, with neighbours that are neither processed nor in it.
  bool AttachedElem(std::vector<int>& wave, std::vector<int>& processed, std::vector<int>& out);

 private:
  class Spread;

  CZelData& m_model;
  Util::CSet m_set;
  double m_facetAngle = 15.0;
};

}  // namespace Tarvex
