// Geometry of entities.
//
// Queries do not throw: asked about something that does not exist, or whose nodes do not, they
// answer false, 0, an empty value or the global frame.
#pragma once

#include "store/export.h"
#include "store/model/query_types.h"
#include "store/numeric/dir_cos.h"
#include "store/record/element.h"
#include "store/select/reference.h"

namespace Tarvex {

class ModelCore;

/// Geometry queries of a model, by element number or by entity reference.
class TARVEX_STORE_EXPORT EntityQueries {
 public:
  /// Local frame of an element or load panel.
  ///
  /// 1D: x from the first to the second node. A vertical element has y along global Y, any other a
  /// level y with z upward; the orientation node, where there is one off the axis, puts the xy
  /// plane through itself; the orientation angle then turns y and z about x. 2D: z is the normal,
  /// about which the corners run right-handed; x the first edge, in the plane, turned by the
  /// orientation angle. 3D: x from the first to the second node, y towards the last node of the
  /// near face.
  /// @param face from 0: the frame of that face of a solid, as for a 2D element; -1: the whole.
  /// Offsets move an entity parallel to itself, so both kinds of ends give the same frame.
  Util::CDirCos ElemDC(int n, EntAt at = EntAt::Ends, int face = -1) const;
  /// Unit normal of a 2D element or panel; the zero vector for anything else or without area.
  /// @param place -2: at the centre, the one place that is known.
  Vec3<double> Normal(int n, int place = -2, EntAt at = EntAt::Ends) const;
  /// Length of a 1D element, model length units.
  double ElemLen(int n, EntAt at = EntAt::Ends) const;
  /// Position of a topology place, with the offset of its end or plane when asked for.
  Vec3<double> Coor(int n, int place, EntAt at = EntAt::Ends) const;
  /// Whether the sine of the angle of a 1D element from the vertical is within GenTol(Vertical).
  bool ElemIsVertical(int n, EntAt at = EntAt::Ends) const;
  /// 1D: a level axis; 2D: a vertical normal; 3D: false.
  bool ElemIsHorizontal(int n) const;

  /// Number of topology positions of an entity; 1 for a node.
  int EntNumTopo(SEntRef ref) const;
  /// Node at a topology position, 0 past the end.
  int EntTopo(SEntRef ref, int place, Data::CElement::EntBy by = Data::CElement::kByTopology) const;
  bool EntIs1D(SEntRef ref) const;
  bool EntIs2D(SEntRef ref) const;
  /// Mean of the topology nodes that exist, without offsets.
  Vec3<double> EntCentre(SEntRef ref) const;

 protected:
  explicit EntityQueries(ModelCore& core) : m_core(core) {}
  ~EntityQueries() = default;
  EntityQueries(EntityQueries const&) = delete;
  EntityQueries& operator=(EntityQueries const&) = delete;

 private:
  ModelCore& m_core;
};

}  // namespace Tarvex
