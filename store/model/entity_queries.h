// Geometry of entities.
//
// Queries do not throw: asked about something that does not exist, or whose nodes do not, they
// answer false, 0, an empty value or the global frame.
#pragma once

#include "store/export.h"
#include "store/model/query_types.h"
#include "store/numeric/box.h"
#include "store/numeric/dir_cos.h"
#include "store/record/element.h"
#include "store/select/reference.h"

namespace Tarvex {

class ModelCore;
namespace Data {
class CMember;
}  // namespace Data

/// Geometry queries of a model, by entity reference, which work alike on elements, load panels and
/// members, or by the number of an element (Elem...: load panels too) or member (Member...).
///
/// Places of a topology count nodes from 0; words in the topology of a member do not count. A 1D
/// member is taken from its first to its last node.
class TARVEX_STORE_EXPORT EntityQueries {
 public:
  /// Local frame.
  ///
  /// 1D: x from the first to the last node. A vertical entity has y along global Y, any other a
  /// level y with z upward; the orientation node, where there is one off the axis, puts the xy
  /// plane through itself, and an arc puts it through its centre; the orientation angle then turns
  /// y and z about x. 2D: z is the normal, about which the corners run right-handed; x the first
  /// edge, in the plane, turned by the orientation angle. 3D: of an element x from the first to the
  /// second node, y towards the last node of the near face; of a member the global frame.
  /// @param shift0, shift1 displacements of the ends of a 1D entity, global.
  Util::CDirCos EntDC(SEntRef ref, Vec3<double> const& shift0 = {},
                      Vec3<double> const& shift1 = {}) const;
  /// As EntDC. @param face from 0: the frame of that face of a solid, as for a 2D element; -1: the
  /// whole. Offsets move an entity parallel to itself, so both kinds of ends give the same frame.
  Util::CDirCos ElemDC(int n, EntAt at = EntAt::Ends, int face = -1) const;
  Util::CDirCos MemberDC(int n, EntAt at = EntAt::Ends, Vec3<double> const& shift0 = {},
                         Vec3<double> const& shift1 = {}) const;
  /// Unit normal of a 2D element or panel; the zero vector for anything else or without area.
  /// @param place -2: at the centre, the one place that is known.
  Vec3<double> Normal(int n, int place = -2, EntAt at = EntAt::Ends) const;

  /// Length of a 1D entity, along the arc where it is one, model length units; axial offsets
  /// shorten it at its ends.
  double EntLen(SEntRef ref, EntAt at = EntAt::Ends) const;
  double ElemLen(int n, EntAt at = EntAt::Ends) const { return EntLen({SelElement, n}, at); }
  double MemberLen(int n, EntAt at = EntAt::Ends) const { return EntLen({SelMember, n}, at); }
  /// Area of a 2D element, of its shape through all nodes, or of a panel, of its polygon; 0 for
  /// anything else.
  double ElemArea(int n) const;

  /// Position of a topology place, with the offset of its end or plane when asked for.
  Vec3<double> EntCoor(SEntRef ref, int place, EntAt at = EntAt::Ends,
                       Data::CElement::EntBy by = Data::CElement::kByTopology) const;
  Vec3<double> Coor(int n, int place, EntAt at = EntAt::Ends) const {
    return EntCoor({SelElement, n}, place, at);
  }
  /// Mean of the topology nodes that exist, without offsets.
  Vec3<double> EntCentre(SEntRef ref) const;
  Vec3<double> Centre(int n) const { return EntCentre({SelElement, n}); }
  /// Box of the topology places whose nodes exist.
  Util::CBox3D EntExtents(SEntRef ref, EntAt at = EntAt::Ends) const;
  Util::CBox3D ElemExtents(int n) const { return EntExtents({SelElement, n}); }

  /// Whether the sine of the angle of a 1D entity from the vertical is within GenTol(Vertical).
  bool EntIsVertical(SEntRef ref) const;
  bool ElemIsVertical(int n, EntAt at = EntAt::Ends) const;
  bool MemberIsVertical(int n, EntAt at = EntAt::Ends) const;
  /// 1D: a level axis; 2D: a vertical normal; 3D: false.
  bool ElemIsHorizontal(int n) const;
  bool MemberIsHorizontal(int n) const;

  /// Number of topology positions of an entity; 1 for a node.
  int EntNumTopo(SEntRef ref) const;
  /// Node at a topology position, 0 past the end.
  int EntTopo(SEntRef ref, int place, Data::CElement::EntBy by = Data::CElement::kByTopology) const;
  bool EntIs1D(SEntRef ref) const;
  bool EntIs2D(SEntRef ref) const;
  /// True for a 1D entity with a section.
  bool EntIsSection(SEntRef ref) const;
  bool EntIsOffset(SEntRef ref) const;
  /// The offset of an element or member; one of zeros for anything else.
  Data::COffset EntOffset(SEntRef ref) const;
  /// Vector from the node to an end (0 or 1), global: of a 1D entity by all its offsets, of a 2D
  /// one along its normal.
  Vec3<double> EntOffset(SEntRef ref, int end) const;
  /// Property number in force in a stage; 0 is the whole model.
  int EntProperty(SEntRef ref, int stage) const;
  /// The member that an element or panel was made from, 0 for none.
  int ElemMember(int n) const;

  /// Whether the topology of a member is one that can be meshed: its nodes exist; a 1D member is a
  /// line whose successive nodes stand apart by more than GenTol(Coincidence), or one arc whose
  /// nodes have a centre at equal distance within it; the outline of a 2D member and its holes have
  /// three nodes or more and are wider on the mean than it; the strips of a 3D member close to a
  /// surface.
  bool IsMemberTopoValid(Data::CMember const& member) const;

 protected:
  explicit EntityQueries(ModelCore& core) : m_core(core) {}
  ~EntityQueries() = default;
  EntityQueries(EntityQueries const&) = delete;
  EntityQueries& operator=(EntityQueries const&) = delete;

 private:
  bool IsLevel(SEntRef ref) const;

  ModelCore& m_core;
};

}  // namespace Tarvex
