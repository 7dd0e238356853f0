// Entities that meet at nodes, given nodes of their own.
#include "tarvex/disconnect.h"

#include <algorithm>
#include <map>
#include <utility>

#include "store/model/zel_data.h"
#include "store/record/element.h"
#include "store/record/joint.h"
#include "store/record/member.h"
#include "store/record/node.h"
#include "store/record/spring_prop.h"

namespace Tarvex {
namespace {

constexpr int kItself = -1;  // place of an item in a set that means the item
constexpr int kNowhere = -1;
constexpr int kSpringGroup = 1;

/// Calls visit(number) for each item of a set that stands for itself, ascending.
template <class Visit>
void ForEachItem(Util::CTopoSet const* set, Visit&& visit) {
  if (set == nullptr) return;
  for (auto const& [item, place] : *set)
    if (place == kItself) visit(item);
}

template <class Items>
int IndexIn(Items const& items, int node) {
  auto const at = std::find(items.begin(), items.end(), node);
  return at == items.end() ? kNowhere : static_cast<int>(at - items.begin());
}

/// Adds a number to an ascending row, where it is not there yet.
void AddAscending(std::vector<int>& row, int number) {
  auto const at = std::lower_bound(row.begin(), row.end(), number);
  if (at == row.end() || *at != number) row.insert(at, number);
}

CString TieName(SelType kind, int entity) {
  CString name;
  name.Format(L"On %s %i", SelTypeLabel(kind), entity);
  return name;
}

Vbool6 AllBut(Vbool6 left) {
  Vbool6 directions;
  for (auto d = Direction::X; d <= Direction::ZZ; ++d) directions.Set(d, !left.Get(d));
  return directions;
}

}  // namespace

/// The entity set of the tool for the length of a scope.
class CDisconnect::EntitySetScope {
 public:
  EntitySetScope(CDisconnect& tool, Util::CTopoSet& set) : m_tool(tool) {
    m_tool.m_entities = &set;
  }
  ~EntitySetScope() { m_tool.m_entities = nullptr; }
  EntitySetScope(EntitySetScope const&) = delete;
  EntitySetScope& operator=(EntitySetScope const&) = delete;

 private:
  CDisconnect& m_tool;
};

bool CDisconnect::DisconnectNode(SelType kind, Util::CTopoSet* nodes) {
  m_kind = kind;
  m_nodes = nodes;
  Util::CTopoSet entities(kind);
  EntitySetScope const scope(*this, entities);
  std::vector<int> treated;
  int const count = NodesInSet(treated);
  JointSprings(treated);
  return count > 0;
}

bool CDisconnect::DisconnectEntity(SelType kind, Util::CTopoSet* entities) {
  m_kind = kind;
  m_entities = entities;
  std::vector<int> treated;
  int const count = NodesOnEntities(treated);
  JointSprings(treated);
  return count > 0;
}

int CDisconnect::NodesInSet(std::vector<int>& nodes) {
  nodes.clear();
  ForEachItem(m_nodes, [&](int node) {
    if (!m_model.NodeExist(node)) return;
    auto const& attached = m_model.Node(node).AttachedEnt(m_kind);
    if (attached.size() == 1) return;
    if (m_entities != nullptr)
      for (int const entity : attached) m_entities->AddTo(entity, kItself);
    nodes.push_back(node);
  });
  return static_cast<int>(nodes.size());
}

int CDisconnect::NodesOnEntities(std::vector<int>& nodes) {
  nodes.clear();
  std::map<int, int> uses;
  std::vector<int> own;
  ForEachItem(m_entities, [&](int entity) {
    if (!IsSelected(entity)) return;
    ReadNodes(entity, own);
    for (int const node : own) ++uses[node];
  });
  for (auto const& [node, count] : uses)
    if (count > 1 && m_model.NodeExist(node)) nodes.push_back(node);
  return static_cast<int>(nodes.size());
}

/// Whether an entity is in the set and can be treated.
bool CDisconnect::IsSelected(int entity) const {
  if (m_entities == nullptr || !m_entities->IsItemIncluded(entity, kItself)) return false;
  if (m_kind == SelElement) return m_model.ElemExist(entity);
  return m_kind == SelMember && m_model.MemberExist(entity);
}

/// The nodes of an entity that can be treated, each once.
void CDisconnect::ReadNodes(int entity, std::vector<int>& nodes) const {
  if (m_kind == SelElement) {
    auto const& topology = m_model.Elem(entity).Topology();
    nodes.assign(topology.begin(), topology.end());
  } else {
    auto const topology = m_model.Member(entity).Topo().Nodes();
    nodes.assign(topology.begin(), topology.end());
  }
  std::sort(nodes.begin(), nodes.end());
  nodes.erase(std::unique(nodes.begin(), nodes.end()), nodes.end());
}

/// The entities of the set at each of some nodes. By topology: what a node knows of its entities
/// may lag during a hold of the rebuild.
CDisconnect::UsersOf CDisconnect::UsersOfNodes(std::vector<int> const& nodes) const {
  UsersOf users;
  for (int const node : nodes) users[node];
  std::vector<int> own;
  ForEachItem(m_entities, [&](int entity) {
    if (!IsSelected(entity)) return;
    ReadNodes(entity, own);
    for (int const node : own)
      if (auto const at = users.find(node); at != users.end()) at->second.push_back(entity);
  });
  return users;
}

int CDisconnect::PlaceOf(int node, int entity) const {
  return m_kind == SelElement ? NodeOnElement(node, entity) : NodeOnMember(node, entity);
}

void CDisconnect::PutNode(int entity, int place, int node) {
  if (m_kind == SelElement) {
    auto element = m_model.Elem(entity);
    element.SetTopo(place, node);
    m_model.SetElem(entity, element);
  } else {
    auto member = m_model.Member(entity);
    auto topology = member.Topo();
    topology.SetItem(place, node);
    member.SetTopo(topology);
    m_model.SetMember(entity, member);
  }
}

void CDisconnect::JointSprings(std::vector<int> const& nodes) {
  auto usersOf = UsersOfNodes(nodes);
  for (int const node : nodes) JointSpring(node, usersOf[node]);
}

void CDisconnect::JointSpring(int node) { JointSprings({node}); }

/// As the step, with the entities of the set that held the node when the run began.
void CDisconnect::JointSpring(int node, std::vector<int>& users) {
  if (!m_model.NodeExist(node)) return;
  bool keepFirst = !m_fullDisconnect;
  for (std::size_t i = 0; i < users.size(); ++i) {
    int const entity = users[i];
    // Asked for anew, since a spring may have come in the place of the entity.
    int const place = IsSelected(entity) ? PlaceOf(node, entity) : kNowhere;
    if (place == kNowhere) continue;
    if (std::exchange(keepFirst, false)) continue;
    int const newNode = m_model.HighestNode() + 1;
    PutNode(entity, place, newNode);
    CreateNode(node, newNode);
    if (m_createJoint) CreateJoint(node, newNode, entity);
    if (!m_createSpring) continue;
    // The spring holds the node too, and may be of the set.
    if (int const spring = NextSpring(); spring > entity) AddAscending(users, spring);
    CreateSpring(node, newNode, entity);
  }
}

/// Number of the next spring: elements and members that stand for springs share the numbers of
/// elements.
int CDisconnect::NextSpring() const { return m_model.HighestElem() + 1; }

bool CDisconnect::CreateNode(int oldNode, int newNode) {
  auto node = m_model.Node(oldNode);
  node.SetRestraint(Vbool6(0, 0, 0, 0, 0, 0));
  m_model.SetNode(newNode, node);
  return true;
}

bool CDisconnect::CreateJoint(int oldNode, int newNode, int entity) {
  Data::CJoint joint(CString(), Vbool6(), 0, 0, Data::CEntList(SelNone, Data::CEntList::All()));
  joint.SetPrimaryNode(oldNode);
  joint.SetConstrainedNode(newNode);
  joint.SetDirection(AllBut(m_model.GlobalRestraint()));
  joint.SetName(TieName(m_kind, entity));
  m_model.SetJoint(m_model.HighestJoint() + 1, joint);
  return true;
}

bool CDisconnect::CreateSpring(int oldNode, int newNode, int entity) {
  int const property = m_model.HighestSpringProp() + 1;
  int const n = NextSpring();
  if (m_kind == SelElement) {
    Data::CElement spring(kSpringGroup, ElementType::Spring, property);
    spring.SetName(TieName(m_kind, entity));
    spring.SetTopo(0, oldNode);
    spring.SetTopo(1, newNode);
    m_model.SetElem(n, spring);
  } else if (m_kind == SelMember) {
    Data::CTopoList topology(0);
    topology.AddItem(oldNode);
    topology.AddItem(newNode);
    Data::CMember spring(MembType::Generic, kSpringGroup, property);
    spring.SetName(TieName(m_kind, entity));
    spring.SetTopo(topology);
    spring.SetAnalysisType1D(ElementType::Spring);
    m_model.SetMember(n, spring);
  } else {
    return true;
  }
  Data::CSpringProp stiffness;
  CString name;
  name.Format(L"Spring %i", n);
  stiffness.SetName(name);
  m_model.SetSpringProp(property, stiffness);
  return true;
}

int CDisconnect::NodeOnElement(int node, int element) const {
  return m_model.ElemExist(element) ? IndexIn(m_model.Elem(element).Topology(), node) : kNowhere;
}

int CDisconnect::NodeOnMember(int node, int member) const {
  return m_model.MemberExist(member) ? IndexIn(m_model.Member(member).Topo().Items(), node)
                                     : kNowhere;
}

}  // namespace Tarvex
