// Entities that share nodes, given nodes of their own: the inverse of connecting.
//
//   Tarvex::Util::CTopoSet nodes(SelNode);
//   nodes.AddTo(7, -1);
//   Tarvex::CDisconnect tool(model);
//   tool.SetCreateJoint(true);
//   bool any = tool.DisconnectNode(SelElement, &nodes);
//
// A new node is a copy of the old one without restraint: what else the record holds (axis, spring,
// mass, damper, mesh size) stands at both nodes then.
#pragma once

#include <deque>
#include <set>
#include <unordered_map>
#include <utility>
#include <vector>

#include "store/select/reference.h"
#include "store/select/topo_set.h"
#include "tarvex/export.h"

namespace Tarvex {

class CZelData;
namespace Data {
class CEntList;
class CMember;
}  // namespace Data

/// Gives elements or members that meet at nodes nodes of their own and ties them again where that
/// is asked for. Load panels are passed over. Sets are the caller's, hold items with place -1, and
/// must last for the call.
class TARVEX_EXPORT CDisconnect {
 public:
  explicit CDisconnect(CZelData& model) : m_model(model) {}

  /// Whether a joint or a spring ties each new node to the old one; both may. False at first.
  void SetCreateJoint(bool create) { m_createJoint = create; }
  void SetCreateSpring(bool create) { m_createSpring = create; }
  /// Whether all entities at a node get a node of their own; else the lowest one keeps it. False at
  /// first.
  void SetFullDisconnect(bool full) { m_fullDisconnect = full; }

  /// Disconnects all entities of a kind (elements or members) at each node of a set that does not
  /// have exactly one of them.
  /// @return whether there was such a node; one without any entity counts, and stays as it is.
  bool DisconnectNode(SelType kind, Util::CTopoSet* nodes);
  /// Disconnects the entities of a set from each other at each node that two or more of them share.
  /// @return whether there was such a node.
  bool DisconnectEntity(SelType kind, Util::CTopoSet* entities);

  // The steps.

  /// The nodes that DisconnectNode treats, ascending. Within it, it also gathers the entities.
  /// @return how many they are.
  int NodesInSet(std::vector<int>& nodes);
  /// The nodes that DisconnectEntity treats, ascending. @return how many they are.
  int NodesOnEntities(std::vector<int>& nodes);
  /// Gives the entities of the set that hold a node, in ascending number, nodes of their own. Of an
  /// entity that holds it several times the first place changes.
  void JointSpring(int node);
  /// Stores a copy of a node without restraint. @return true.
  bool CreateNode(int oldNode, int newNode);
  /// Adds a joint in all directions but those that the kind of structure rules out, in all stages,
  /// named "On %s %i" by kind and number of the entity. @return true.
  bool CreateJoint(int oldNode, int newNode, int entity);
  /// Adds a spring element, or a member of springs, and its property without stiffness, named
  /// "Spring %i". The number of either is the highest one of elements plus 1: a member that has it
  /// is replaced. @return true.
  bool CreateSpring(int oldNode, int newNode, int entity);
  /// Index of a node in the topology of an element, or among the items (words count) of that of a
  /// member; -1 when it is not there.
  int NodeOnElement(int node, int element) const;
  int NodeOnMember(int node, int member) const;

 private:
  class EntitySetScope;

  /// Entities of the set by node, ascending.
  using UsersOf = std::unordered_map<int, std::vector<int>>;

  bool IsSelected(int entity) const;
  void ReadNodes(int entity, std::vector<int>& nodes) const;
  int PlaceOf(int node, int entity) const;
  int NextSpring() const;
  UsersOf UsersOfNodes(std::vector<int> const& nodes) const;
  void JointSprings(std::vector<int> const& nodes);
  void JointSpring(int node, std::vector<int>& users);
  void PutNode(int entity, int place, int node);

  CZelData& m_model;
  SelType m_kind = SelElement;
  Util::CTopoSet* m_nodes = nullptr;
  Util::CTopoSet* m_entities = nullptr;
  bool m_createJoint = false;
  bool m_createSpring = false;
  bool m_fullDisconnect = false;
};

/// Releases the edges of 2D members that are flagged for it.
class TARVEX_EXPORT MemberEdges {
 public:
  using Edges = std::set<std::pair<int, int>>;

  explicit MemberEdges(CZelData& model) : m_model(model) {}

  /// Gives the elements and panels of a member nodes of their own at those of its edge that
  /// anything else uses, joined to the old ones by a pin. Does nothing for a member that is not 2D
  /// or not flagged. A member that does not exist is std::invalid_argument "Non existent member
  /// selected".
  void ReleaseEdges(int member);

 protected:
  /// As above for a member that is flagged.
  void ReleaseEdges(int number, Data::CMember const& member);
  /// The nodes of the edge that anything else uses.
  std::set<int> EdgeNodes(int number, Data::CMember const& member);
  /// The pairs of successive nodes of the children, in their sense, that no other child runs the
  /// other way: the outline when all children face one way. The nodes of a child count in the order
  /// of its topology, so that mid-side nodes come behind the corners.
  Edges FindEdges(Data::CMember const& member);
  /// The first node of each pair.
  std::set<int> FindEdgeNodes(Edges const& edges);
  /// Those of the nodes that have a spring, mass or damper, or an element of another member or
  /// none.
  std::set<int> FindAttachedNodes(int member, std::set<int> const& nodes);

 private:
  CZelData& m_model;
};

/// The nodes of 1D elements that run end to end, in order, from any order of the elements. The walk
/// begins at the first element, goes forward, then backward; where several elements begin at a node
/// the first given one counts. An element that does not join on is left out; a closed chain repeats
/// its start. An element that does not exist is std::out_of_range.
TARVEX_EXPORT std::deque<int> NodesChain(CZelData const& model, std::vector<int> const& elements);

/// Turns blocks into members of their own: for each block of a list, each of its members and each
/// offset of its replica, a copy of the member on copies of its nodes, moved by the offset. The
/// blocks are removed. A copy has no elements; the numbers of those whose original has some are
/// added to `members`, so that they can be given theirs. Orientation nodes stay those of the
/// original. Then the new nodes are merged with each other and with those that stood there, within
/// GenTol(Coincidence); a tolerance of 0 leaves them apart. Blocks and members that do not exist
/// are passed over.
/// @param blocks a list without a kind, in which "all" goes up to the highest block.
TARVEX_EXPORT void ExplodeBlocks(CZelData& model, Data::CEntList const& blocks,
                                 Data::CEntList& members);

}  // namespace Tarvex
