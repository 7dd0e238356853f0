// Tables of nodes, elements and load panels.
//
// Each table has the same operations. Shown for a table X:
//   XExist(n)      whether record n exists
//   X(n)           the record; a missing number is std::out_of_range that names table and number
//   X()            the whole table, walked in ascending number
//   HighestX()     highest number in use, 0 for an empty table
//   SetX(n, r, m)  stores a copy under n; a number not from 1 to 100000000 is std::out_of_range
//   BlankX(f, c)   removes the numbers f to f + c - 1 as far as they exist; a count below 1 removes
//                  nothing; what refers to them is left alone
// All are constant-time but for the walk. A reference is good until the next store into or removal
// from the same table.
#pragma once

#include <optional>
#include <vector>

#include "store/export.h"
#include "store/model/query_types.h"
#include "store/numeric/vec.h"
#include "store/record/variant_element.h"
#include "store/table/paged_table.h"

namespace Tarvex {

class CString;
class ModelCore;
class Vbool6;
namespace Data {
class CAxis;
class CNode;
class CUnit;
}  // namespace Data

/// Nodes, elements and load panels of a model.
class TARVEX_STORE_EXPORT EntityTables {
 public:
  // Nodes (80). What is attached to a node is kept true outside a rebuild hold, see CZelData.
  bool NodeExist(int n) const;
  Data::CNode const& Node(int n) const;
  tarvex_unordered_map<unsigned int, Data::CNode> const& Node() const;
  /// The table as it is stored, for walks that ask nothing of attachments and of what lists hold:
  /// both may be out of date in it, and are not brought up to date by looking.
  tarvex_unordered_map<unsigned int, Data::CNode> const& StoredNodes() const;
  int HighestNode() const;
  void SetNode(int n, Data::CNode const& node, SidMode sid = SidMode::Keep);
  void BlankNode(int first, int count);
  /// Stores a node raw: attachments stay as they were until they are next built.
  void _SetNode(int n, Data::CNode const& node, SidMode sid = SidMode::Keep);  // NOLINT: its name

  /// Stores a new node. @param position global, model length units.
  void CreateNode(int n, Vec3<double> const& position, int axis, Vbool6 restraint,
                  SidMode sid = SidMode::Keep);
  /// Change one field of a stored node; a missing number is std::out_of_range.
  void SetNodeCoor(int n, Vec3<double> const& position);
  void SetNodeAxis(int n, int axis);
  void SetNodeRestraint(int n, Vbool6 restraint);
  void SetNodeSid(int n, CString const& sid);
  /// Global co-ordinates of a node; a missing number is std::out_of_range.
  Vec3<double> const& NodeCoor(int n) const;
  /// The same in the co-ordinates of an axis and a set of units: lengths and, for the angles of a
  /// cylindrical or spherical axis, angles are internal values times the conversion of the unit.
  Vec3<double> NodeCoor(int n, Data::CUnit const& unit, Data::CAxis const& axis) const;
  void SetNodeCoor(int n, Data::CUnit const& unit, Data::CAxis const& axis,
                   Vec3<double> const& position);
  /// The nodes within a radius of a point (inclusive, model length units), ascending. Right at all
  /// times, also during a rebuild hold.
  std::vector<int> NodesAroundPoint(Vec3<double> const& point, double radius) const;
  void NodesAroundPoint(Vec3<double> const& point, std::vector<int>& nodes, double radius) const;
  /// The node nearest to a point within a distance (inclusive), the lowest of equally near ones; 0
  /// when there is none.
  int NearestNode(Vec3<double> const& point, double distance) const;
  /// Builds the attachments of nodes at once, also during a rebuild hold.
  void InitNodalUseElem();

  // Elements (110). They share their numbers with load panels: HighestElem() covers both, and
  // storing one under the number of the other replaces it.
  bool ElemExist(int n) const;
  Data::CElement const& Elem(int n) const;
  tarvex_unordered_map<unsigned int, Data::CElement> const& Elem() const;
  int HighestElem() const;
  void SetElem(int n, Data::CElement const& element, SidMode sid = SidMode::Keep);
  void BlankElem(int first, int count);

  /// Stores a new element with the topology length of its type, all 0.
  void CreateElem(int n, ElementType type, int group, int property, SidMode sid = SidMode::Keep);
  /// Changes one topology position; in a load panel it extends the topology where needed. In an
  /// element a position past the end is std::out_of_range "invalid vector subscript".
  void SetElemTopo(int n, int place, int node);
  /// Change one field of a stored element; a missing number is std::out_of_range. Property, group
  /// and dummy state are those of load panels too.
  void SetElemType(int n, ElementType type);
  void SetElemProperty(int n, int property);
  void SetElemGroup(int n, int group);
  void SetElemDummy(int n, bool dummy);
  void SetElemBeta(int n, double degrees);
  void SetElemOrientNode(int n, int node);
  void SetElemConnect(int n, int place, CElemConnect const& connect);
  void SetElemOffset(int n, Data::COffset const& offset);
  void SetElemSid(int n, CString const& sid);
  /// Protects an element against deletion, for the time of one tool, or ends that. The lock goes
  /// with copies of the record; it is no part of equality or files.
  void LockElem(int n, bool on);

  // Load panels.
  bool LoadPanelExist(int n) const;
  Data::LoadPanel const& LoadPanel(int n) const;
  tarvex_unordered_map<unsigned int, Data::LoadPanel> const& LoadPanels() const;
  int HighestLoadPanel() const;
  void SetLoadPanel(int n, Data::LoadPanel const& panel, SidMode sid = SidMode::Keep);
  void BlankLoadPanel(int first, int count);

  // Elements and load panels together.
  bool VariantElementExist(int n) const;
  /// View of the element or panel of a number; empty when there is neither.
  std::optional<Data::VariantElementConstRef> VariantElement(int n) const;
  void SetVariantElement(int n, Data::VariantElementValue const& value,
                         SidMode sid = SidMode::Keep);
  void BlankVariantElement(int first, int count);

 protected:
  explicit EntityTables(ModelCore& core) : m_core(core) {}
  ~EntityTables() = default;
  EntityTables(EntityTables const&) = delete;
  EntityTables& operator=(EntityTables const&) = delete;

 private:
  ModelCore& m_core;
};

}  // namespace Tarvex
