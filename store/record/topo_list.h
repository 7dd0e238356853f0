/* The topology of members: node numbers in order, with words between them.

   As text, items stand with one blank between them:

     1 2                      a line from node 1 to node 2
     1 2 3                    a line through three nodes; in 2D the outline 1, 2, 3 and back to 1
     1 arc 5 2                an arc from node 1 through node 5 to node 2
     1 about 2                an arc from node 1 to node 2 about the member's orientation node, the
                              shorter way round
     1 2 3 4 hole( 5 6 7 )    an outline with a hole; line( 8 9 ) is a line and points( 8 9 ) are
                              points that the mesh must meet
     1 5 2 6 ; 1 4 2 3        the surface of a solid: strips of triangles, each of three successive
                              nodes of a strip
 */
#pragma once

#include <optional>
#include <span>

#include "store/export.h"
#include "store/record/order_list.h"
#include "store/record/topology.h"
#include "store/text/cstring.h"

namespace Tarvex {

/// The shape of a 1D member.
enum class MembGeom : int {
  Line = 0,        ///< straight from node to node
  ArcThrough = 1,  ///< an arc through its middle node
  ArcAbout = 2,    ///< an arc about the orientation node
};

namespace Data {

/// Items of a topology that are no nodes. Node numbers are not negative.
enum TopoWord : int {
  kTopoArc = -1,       ///< the next node is one that the arc passes
  kTopoAbout = -2,     ///< the line to the next node is an arc about the orientation node
  kTopoHole = -3,      ///< opens a hole
  kTopoLine = -4,      ///< opens an inner line
  kTopoPoints = -5,    ///< opens inner points
  kTopoClose = -6,     ///< closes a hole, an inner line or inner points
  kTopoStripEnd = -7,  ///< ends a strip of triangles
};

/// The ordered topology of a member: node numbers and words.
class TARVEX_STORE_EXPORT CTopoList : public COrderList<int> {
 public:
  /// What a list is for: 0, the topology of a member, is the only kind.
  using TypeId = int;

  explicit CTopoList(TypeId = 0) {}

  /// Whether an item is a word.
  static bool IsWord(int item) { return item < 0; }

  /// Number of nodes, words left out.
  int NumTopo() const;
  /// Node of a place among the nodes, 0 past the end.
  int Topo(int place) const;
  /// The nodes in order, words left out.
  TopoVector Nodes() const;
  /// The nodes of the line or outline, before the first hole, inner line or inner points.
  TopoVector Outline() const;
  /// Changes the node of a place among the nodes; std::out_of_range "invalid vector subscript" past
  /// the end.
  void SetTopo(int place, int node);
  /// Replaces the list by nodes without words.
  void SetTopo(std::span<int const> nodes);
  /// Replaces the list by that of a text. @return false, and the list stays, when it does not
  /// parse; the position of the fault is then left in @p fault.
  bool SetString(CString const& text, int* fault = nullptr);
  /// The text of the list, with one blank between items.
  CString String() const;

  /// Puts a node in every place of another. @return whether there was one.
  bool ReplaceItem(int oldNode, int newNode);
  /// Turns a line round. @return false, and the list stays, unless it is a line of two nodes or
  /// more in which every arc has the nodes that it needs.
  bool Reverse();

  /// The shape of a 1D member with this topology.
  MembGeom Geometry() const;
};

/// A strip of triangles: the nodes of a list between two ends of strips.
TARVEX_STORE_EXPORT std::vector<TopoVector> TriangleStrips(CTopoList const& list);

}  // namespace Data
}  // namespace Tarvex
