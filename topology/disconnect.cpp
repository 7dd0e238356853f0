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

/// The lowest entity above a number that uses a node, 0 for none.
int NextAttached(CZelData const& model, int node, SelType kind, int above) {
  auto const& attached = model.Node(node).AttachedEnt(kind);
  auto const at = attached.upper_bound(above);
  return at == attached.end() ? 0 : *at;
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
  for (int const node : treated) JointSpring(node);
  return count > 0;
}

bool CDisconnect::DisconnectEntity(SelType kind, Util::CTopoSet* entities) {
  m_kind = kind;
  m_entities = entities;
  std::vector<int> treated;
  int const count = NodesOnEntities(treated);
  for (int const node : treated) JointSpring(node);
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
    own.clear();
    if (m_kind == SelElement) {
      auto const& topology = m_model.Elem(entity).Topology();
      own.assign(topology.begin(), topology.end());
    } else {
      auto const topology = m_model.Member(entity).Topo().Nodes();
      own.assign(topology.begin(), topology.end());
    }
    std::sort(own.begin(), own.end());
    own.erase(std::unique(own.begin(), own.end()), own.end());
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

void CDisconnect::JointSpring(int node) {
  if (!m_model.NodeExist(node)) return;
  bool keepFirst = !m_fullDisconnect;
  int entity = 0;
  // What uses the node is asked for anew at each step, since each store changes it.
  while ((entity = NextAttached(m_model, node, m_kind, entity)) != 0) {
    if (!IsSelected(entity)) continue;
    int const place = PlaceOf(node, entity);
    if (place == kNowhere) continue;
    if (std::exchange(keepFirst, false)) continue;
    int const newNode = m_model.HighestNode() + 1;
    PutNode(entity, place, newNode);
    CreateNode(node, newNode);
    if (m_createJoint) CreateJoint(node, newNode, entity);
    if (m_createSpring) CreateSpring(node, newNode, entity);
  }
}

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
  // Elements and members that stand for springs share the numbers of elements.
  int const n = m_model.HighestElem() + 1;
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
