// Storeys, grid planes and surfaces, and alignments.
//
// Queries do not throw, but for Storey: asked about something that does not exist they answer
// false, 0, an empty value or the global axes.
#pragma once

#include "store/export.h"
#include "store/numeric/dir_cos.h"
#include "store/record/axis.h"
#include "store/select/reference.h"

namespace Tarvex {

class CZelData;
class ModelCore;
namespace Data {
class CGridPlane;
class CGridSurface;
}  // namespace Data

/// Queries of a model about its grids.
class TARVEX_STORE_EXPORT GridQueries {
 public:
  // Storeys are the grid planes that are one, numbered from 1 by elevation, the lower number first
  // where elevations are equal.
  int NumStorey() const;
  /// Number of the grid plane of a storey, 0 when there is none.
  int GridPlaneStorey(int storey) const;
  /// The grid plane of a storey; std::out_of_range when there is none.
  Data::CGridPlane const& Storey(int storey) const;
  /// The name that a storey is given: "Storey 3".
  static CString StoreyName(int storey);

  /// Number of the grid plane of the construction grid, 0 when none is named; that plane need not
  /// exist.
  int ConsGridRef() const;
  /// The axis of a grid plane with its origin moved along z to the plane's elevation, for an axis
  /// transform: the plane is z = 0 in it. The global axis for a plane that does not exist or whose
  /// axis does not. The second argument is 0.
  Data::CAxis GridPlaneGridAxis(int plane, int = 0) const;

  // Membership. A node is in a plane when its distance from it is at most GenTol(Coincidence), and
  // any other entity when all its nodes are, offsets left aside; nothing is in a plane that does
  // not exist or whose axis does not.
  bool EntIsInGridPlane(SEntRef ref, int plane) const;
  bool ElemIsInGridPlane(int n, int plane) const;
  /// An element is in a surface when it is in the surface's plane and the surface's list selects
  /// it; anything else, when it is in that plane and all its nodes are in the topology of such
  /// listed elements. A load panel gives its load to elements and is none of a surface's. Whether a
  /// listed element is itself in the plane, and which elements take the load, is left aside. What
  /// nodes are used by may be as old as attachments are during a rebuild hold.
  bool EntIsInGridSurface(SEntRef ref, int surface) const;
  bool NodeIsInGridSurface(int node, int surface) const;
  /// Unit normal of a panel of a surface, stored or not, about which the panel's nodes run
  /// right-handed; of the mean plane where it is warped. The zero vector for a panel that does not
  /// exist, has no area or lacks a node. @param panel from 0.
  Vec3<double> PanelNormal(Data::CGridSurface const& surface, int panel) const;

  // Alignments lie in the plane of their grid surface, or in the global xy plane where there is
  // none; see CAlignment.
  /// The frame at a chainage: x along the alignment, y to its left, z the normal of the plane.
  Util::CDirCos AlignmentDC(int n, double chainage) const;
  /// The point at a chainage, global.
  Vec3<double> AlignmentPoint(int n, double chainage) const;

 protected:
  GridQueries(ModelCore& core, CZelData const& model) : m_core(core), m_model(model) {}
  ~GridQueries() = default;
  GridQueries(GridQueries const&) = delete;
  GridQueries& operator=(GridQueries const&) = delete;

 private:
  Data::CAxis AlignmentAxis(int n) const;
  bool IsUsedIn(Data::CGridSurface const& surface, int node) const;

  ModelCore& m_core;
  CZelData const& m_model;
};

}  // namespace Tarvex
