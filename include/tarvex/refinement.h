// Finer meshes around a node: elements that meet there are cut into smaller ones, which grow from
// the node to the size of the element at its far corners.
//
//   std::map<int, std::vector<int>> pieces;
//   if (Tarvex::ZelUtil::RefineMeshAtNode(model, node, 0.5, 0.001, pieces, CString(L""))) {
//     Tarvex::CDataMgr(model).ReplaceElemRef(pieces, false);   // after the loads
//     for (auto const& [old, made] : pieces) model.BlankElem(old, 1);
//   }
//
// New elements stand beside the old ones: removing those and mapping their loads is the caller's
// work. New elements and nodes take the numbers behind the highest.
//
// In all functions
//   corner     topology position of the node in the element; one out of range is the caller's fault
//   ratio      where the inner point lies on the way from the element's centre to the corner, in
//              natural co-ordinates: 0 the centre, 1 the corner
//   tolerance  model length units: a node within it of a new point on the element's outline is
//              taken instead of a new one; inner points of quadrilaterals take one at the very same
//              co-ordinates only
//   sid        name and identifier of new nodes; empty for none
// An element whose topology is not that of its type throws std::invalid_argument "invalid number of
// values for 2D element" (3D element), a missing element or node std::out_of_range.
#pragma once

#include <map>
#include <vector>

#include "tarvex/export.h"

namespace Tarvex {

class CString;
class CZelData;

namespace ZelUtil {

/// Refines the plates and bricks that have a node as a corner, in ascending number. Dummy elements,
/// elements of other shapes, elements with a missing node and, when sid is not empty, elements with
/// another identifier are left alone. A missing node is std::out_of_range.
/// @param replacements gains the new elements of each refined one, in order.
/// @return whether any element was refined.
TARVEX_EXPORT bool RefineMeshAtNode(CZelData& model, int node, double ratio, double tolerance,
                                    std::map<int, std::vector<int>>& replacements,
                                    CString const& sid);

/// Cuts a 4- or 8-noded quadrilateral into three: one at the corner and two around it. The pieces
/// are copies but for their topology.
/// @return always true, as the other two.
TARVEX_EXPORT bool RefineQuadAtCorner(CZelData& model, int element, int corner, double ratio,
                                      double tolerance, CString const& sid);

/// Cuts a 3- or 6-noded triangle into a triangle at the corner and a quadrilateral. The pieces are
/// copies but for their type and topology.
TARVEX_EXPORT bool RefineTriAtCorner(CZelData& model, int element, int corner, double tolerance,
                                     CString const& sid);

/// Cuts an 8-noded brick into four: one at the corner and three around it. The pieces are copies
/// but for their topology and without releases, and carry the identifier sid or none.
TARVEX_EXPORT bool RefineBrickAtCorner(CZelData& model, int element, int corner, double ratio,
                                       double tolerance, CString const& sid);

}  // namespace ZelUtil
}  // namespace Tarvex
