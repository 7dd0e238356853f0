// Cutting and joining of 1D elements and members.
//
//   Tarvex::CSplit1dEl split(model);
//   split.SetReplaceElemRef(true);                      // loads and references go to the pieces
//   std::vector<int> created;
//   if (split.Do({SelElement, 7}, 1.5, false, created)) int const node = split.SplitNode();
//
//   Tarvex::CConnect1dEl connect(model);
//   connect.SetSet(elements);
//   connect.SetTol(0.01, 0.05);                         // at first nothing connects
//   bool any = connect.Do();
//
// Lengths are model length units.
#pragma once

#include <vector>

#include "store/numeric/vec.h"
#include "store/select/reference.h"
#include "store/select/set.h"
#include "store/text/cstring.h"
#include "tarvex/export.h"

namespace Tarvex {

class CZelData;
namespace Data {
class CElement;
}  // namespace Data

/// Cuts one 1D element in two, or extends an element or member beyond an end.
class TARVEX_EXPORT CSplit1dEl {
 public:
  explicit CSplit1dEl(CZelData& model);
  CSplit1dEl(CSplit1dEl const&);
  CSplit1dEl(CSplit1dEl&&) noexcept;
  ~CSplit1dEl();  // NOLINT(performance-trivially-destructible): exported

  /// A node within this distance of the cut is taken instead of a new one; 0 unless set.
  void SetCoincidenceTol(double tolerance) {
    m_coincidenceTol = tolerance;
    m_useCoincidenceTol = true;
  }
  /// Whether the loads and references of an element go to its pieces; at first they do not.
  void SetReplaceElemRef(bool replace) { m_replaceElemRef = replace; }

  /// Cuts an element at a distance from its first node, or extends an element or member when the
  /// distance lies outside it. At an end nothing is cut, and the node there is the split node. A
  /// member is never cut: a place within it gives a node.
  ///
  /// The pieces of an element take the next two numbers, the first from the old start, and the old
  /// element goes; their new ends have no releases, and each has all the offsets of the old one. An
  /// extension beyond the start has both its ends on the split node; one beyond the end runs from
  /// the old end to it. An offset element loses its offsets before it is known whether it can be
  /// cut.
  /// @param extend false: a place outside gives a node and nothing else.
  /// @param created the pieces, the second first; of an extension the old number and the new one.
  /// @return whether SplitNode is valid: not for an entity without length, a place within a rigid
  /// offset, and lengths that are not finite.
  /// Throws std::out_of_range "bad entity type" for anything but elements and members, and for a
  /// number that does not exist.
  bool Do(SEntRef entity, double position, bool extend, std::vector<int>& created);

  /// The node at the place of the last cut.
  int SplitNode() const { return m_splitNode; }
  /// False when a load of the last element could not be mapped.
  bool IsAllLoadsMapped() const { return m_allLoadsMapped; }
  /// True when the last place was within a rigid offset.
  bool IsSomeSplitsSkipped() const { return m_someSplitsSkipped; }

 private:
  bool SplitElement(int element, double position, bool extend, std::vector<int>& created);
  bool SplitMember(int member, double position, bool extend, std::vector<int>& created);
  /// Whether the place is an end of a line, whose node then is the split node.
  bool IsAtEnd(SEntRef line, double length, double position);
  /// Takes or makes the node at a place along a line.
  void FindSplitNode(SEntRef line, double position);
  void Cut(int element, std::vector<int>& created, Data::CElement const& old);

  CZelData& m_model;
  double m_coincidenceTol = 0;
  bool m_useCoincidenceTol = false;
  bool m_replaceElemRef = false;
  int m_splitNode = 0;
  bool m_allLoadsMapped = true;
  bool m_someSplitsSkipped = false;
};

/// Finds where 1D entities cross, and where corners of plates touch 1D elements, and cuts them so
/// that they share a node.
class TARVEX_EXPORT CConnect1dEl {
 public:
  explicit CConnect1dEl(CZelData& model);
  CConnect1dEl(CConnect1dEl const&);
  CConnect1dEl(CConnect1dEl&&) noexcept;
  ~CConnect1dEl();

  /// SelElement at first, or SelMember.
  void SetEntType(SelType kind) { m_entType = kind; }
  /// @param connection lines closer than this meet; @param end a meeting this near to an end is the
  /// end, a line shorter than it is left alone, and so far must a meeting be from a rigid offset.
  /// Both are 0 at first.
  void SetTol(double connection, double end) {
    m_connectionTol = connection;
    m_endTol = end;
  }
  /// A node within this distance of a meeting is taken instead of a new one; 0 unless set.
  void SetCoincidenceTol(double tolerance) {
    m_coincidenceTol = tolerance;
    m_useCoincidenceTol = true;
  }
  /// Whether the loads and references of elements go to their pieces; at first they do not. Those
  /// of members never do.
  void SetReplaceElemRef(bool replace) { m_replaceElemRef = replace; }
  /// The entities to work on; empty at first.
  void SetSet(Util::CSet const& set) { m_set = set; }

  /// Works on the entities in ascending number; pieces come above all others and are worked on too.
  /// The piece with the old end takes the lower number. Members of two nodes are cut, others are
  /// left alone.
  /// @return whether any meeting was acted on.
  /// Throws std::out_of_range "bad entity type" for a kind other than elements and members.
  bool Do();

  /// False when a load of the last run could not be mapped.
  bool IsAllLoadsMapped() const { return m_allLoadsMapped; }
  /// True when a meeting of the last run was within a rigid offset.
  bool IsSomeSplitsSkipped() const { return m_someSplitsSkipped; }

 private:
  class Run;

  int SetCoor(int node, Vec3<double> point);
  int DoSplit(int node, int entity, double length, double ratio, double position);
  int SplitElement(int node, int element);
  int SplitMember(int node, int member);
  int Topo(int entity, int index) const;

  CZelData& m_model;
  SelType m_entType = SelElement;
  double m_connectionTol = 0;
  double m_endTol = 0;
  double m_coincidenceTol = 0;
  bool m_useCoincidenceTol = false;
  bool m_replaceElemRef = false;
  bool m_allLoadsMapped = true;
  bool m_someSplitsSkipped = false;
  Util::CSet m_set;
  CString m_text;  // part of the state of a run; nothing here reads it
};

}  // namespace Tarvex
