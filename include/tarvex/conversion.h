// Shapes of 2D elements: mid-side nodes taken away or added, quadrilaterals cut into triangles.
//
//   Tarvex::CMod2DToQuadratic tool(model);
//   tool.SetSet(elements);   // Util::CSet of element numbers
//   tool.Do();
//
// A tool keeps the model by reference and a copy of the selection, and nothing of a run. Elements
// that it does not take, numbers without an element and load panels are passed over without a word;
// so is an element with a corner node that does not exist, but by CMod2DToLinear; CWarpElem2D asks
// for the mid-side nodes too. New nodes and elements take the numbers behind the highest. Do is
// always true.
#pragma once

#include "store/select/set.h"
#include "tarvex/export.h"

namespace Tarvex {

class CZelData;

/// What the conversion tools have in common: model and selection.
class TARVEX_EXPORT ConversionTool {
 public:
  /// Numbers of elements, whatever the kind of the set. Empty at first.
  void SetSet(Util::CSet const& set) { m_set = set; }

 protected:
  explicit ConversionTool(CZelData& model);
  ConversionTool(ConversionTool const&);
  ConversionTool(ConversionTool&&) noexcept;
  ~ConversionTool();

  CZelData& m_model;
  Util::CSet m_set;
};

/// What the two tools that change the order of elements have in common.
class TARVEX_EXPORT OrderTool : public ConversionTool {
 public:
  /// Model length units, 0.01 at first. Kept for applications that set it; no run reads it.
  void SetCoincidenceTol(double tolerance) { m_coincidenceTol = tolerance; }

 protected:
  explicit OrderTool(CZelData& model);
  OrderTool(OrderTool const&);
  OrderTool(OrderTool&&) noexcept;
  ~OrderTool();

  double m_coincidenceTol = 0.01;
};

/// Makes 6-noded triangles and 8-noded quadrilaterals 3- and 4-noded ones. Their releases at
/// mid-side nodes go. A mid-side node that nothing else uses is removed.
class TARVEX_EXPORT CMod2DToLinear : public OrderTool {
 public:
  explicit CMod2DToLinear(CZelData& model);
  CMod2DToLinear(CMod2DToLinear const&);
  CMod2DToLinear(CMod2DToLinear&&) noexcept;
  ~CMod2DToLinear();

  bool Do();
};

/// Makes 3- and 4-noded elements 6- and 8-noded ones. Elements of the set share the node in the
/// middle of a side. It takes the axis of the corners beside it when they have the same, and then
/// the restraints that both have, and it joins the rigid constraints that hold both. It is released
/// where both corners of the element are. New nodes within 1e-5 (model length units) of a node that
/// is no corner of the set's elements are merged into that node.
class TARVEX_EXPORT CMod2DToQuadratic : public OrderTool {
 public:
  explicit CMod2DToQuadratic(CZelData& model);
  CMod2DToQuadratic(CMod2DToQuadratic const&);
  CMod2DToQuadratic(CMod2DToQuadratic&&) noexcept;
  ~CMod2DToQuadratic();

  bool Do();
};

/// Replaces each quadrilateral by two triangles of its order, cut from the corner with the smallest
/// product of its two sides: the flattest one. Edge lengths count: a corner with a product of 1 or
/// more (model length units squared) is not looked at, and without any other the cut starts at the
/// first corner. Loads go to the triangles and references follow; the pieces are not entered in the
/// lists of members.
class TARVEX_EXPORT CMod2DToTriangle : public ConversionTool {
 public:
  explicit CMod2DToTriangle(CZelData& model);
  CMod2DToTriangle(CMod2DToTriangle const&);
  CMod2DToTriangle(CMod2DToTriangle&&) noexcept;
  ~CMod2DToTriangle();

  bool Do();
};

/// Cuts warped quadrilaterals into two triangles along the shorter diagonal; that from the first
/// corner is taken while it is at most 1.1 times the other. An element is warped when its first
/// side leaves the plane of its normal by more than 0.01 of its longest side. Elements whose 2D
/// property is for curved shells stay whole. One triangle keeps the number, the other takes the
/// next. Lists, those of loads among them, name both where they named the element; values of loads
/// and releases at the places of the topology stay as they are.
class TARVEX_EXPORT CWarpElem2D : public ConversionTool {
 public:
  explicit CWarpElem2D(CZelData& model);
  CWarpElem2D(CWarpElem2D const&);
  CWarpElem2D(CWarpElem2D&&) noexcept;
  ~CWarpElem2D();

  bool Do();
};

}  // namespace Tarvex
