// Edges of 2D members, released from what stands around them.
#include <algorithm>
#include <map>
#include <stdexcept>

#include "store/model/zel_data.h"
#include "store/record/joint.h"
#include "store/record/member.h"
#include "store/record/node.h"
#include "tarvex/disconnect.h"

namespace Tarvex {
namespace {

constexpr char const* kNoMember = "Non existent member selected";

/// Calls visit(number, view) for each child of a member that exists.
template <class Visit>
void ForEachChild(CZelData const& model, Data::CMember const& member, Visit&& visit) {
  for (auto const& [replica, children] : member.ChildElements())
    for (int const child : children)
      if (auto const view = model.VariantElement(child)) visit(child, *view);
}

/// Puts other nodes into the topology of an element or panel, and stores it when it had one of the
/// old ones.
void ReplaceNodes(CZelData& model, int number, Data::VariantElementConstRef const& view,
                  std::map<int, int> const& newNodes) {
  auto topology = view.Topology();
  bool changed = false;
  for (int& node : topology) {
    auto const at = newNodes.find(node);
    if (at == newNodes.end()) continue;
    node = at->second;
    changed = true;
  }
  if (!changed) return;
  if (auto const* panel = view.Panel()) {
    auto copy = *panel;
    copy.SetTopology(topology);
    model.SetVariantElement(number, copy);
  } else {
    auto copy = *view.Element();
    copy.SetTopology(topology);
    model.SetElem(number, copy);
  }
}

bool HasProperty(Data::CNode const& node) {
  return node.SpringProperty() > 0 || node.MassProperty() > 0 || node.DamperProperty() > 0;
}

}  // namespace

void MemberEdges::ReleaseEdges(int number) {
  if (!m_model.MemberExist(number)) throw std::invalid_argument(kNoMember);
  auto const member = m_model.Member(number);
  if (member.Is2D() && member.ReleaseEdges()) ReleaseEdges(number, member);
}

void MemberEdges::ReleaseEdges(int number, Data::CMember const& member) {
  int node = m_model.HighestNode();
  int joint = m_model.HighestJoint();
  std::map<int, int> newNodes;
  for (int const oldNode : EdgeNodes(number, member)) {
    auto copy = m_model.Node(oldNode);
    copy.SetRestraint(Vbool6(L"free"));
    m_model.SetNode(++node, copy);
    Data::CJoint pin(CString(), Vbool6(L"pin"), 0, 0,
                     Data::CEntList(SelNone, Data::CEntList::All()));
    pin.SetPrimaryNode(oldNode);
    pin.SetConstrainedNode(node);
    m_model.SetJoint(++joint, pin);
    newNodes.emplace(oldNode, node);
  }
  if (newNodes.empty()) return;
  ForEachChild(m_model, member, [&](int child, Data::VariantElementConstRef const& view) {
    ReplaceNodes(m_model, child, view, newNodes);
  });
}

std::set<int> MemberEdges::EdgeNodes(int number, Data::CMember const& member) {
  return FindAttachedNodes(number, FindEdgeNodes(FindEdges(member)));
}

MemberEdges::Edges MemberEdges::FindEdges(Data::CMember const& member) {
  Edges edges;
  ForEachChild(m_model, member, [&](int, Data::VariantElementConstRef const& view) {
    auto const& nodes = view.Topology();
    for (std::size_t i = 0; i < nodes.size(); ++i) {
      int const a = nodes[i];
      int const b = nodes[(i + 1) % nodes.size()];
      if (edges.erase({b, a}) == 0) edges.insert({a, b});
    }
  });
  return edges;
}

std::set<int> MemberEdges::FindEdgeNodes(Edges const& edges) {
  std::set<int> nodes;
  for (auto const& [first, second] : edges) nodes.insert(first);
  return nodes;
}

std::set<int> MemberEdges::FindAttachedNodes(int member, std::set<int> const& nodes) {
  std::set<int> attached;
  for (int const n : nodes) {
    if (!m_model.NodeExist(n)) continue;
    auto const& node = m_model.Node(n);
    auto const& users = node.AttachedEnt(SelElement);
    bool const foreign = std::any_of(users.begin(), users.end(), [&](int e) {
      return m_model.ElemExist(e) && m_model.Elem(e).ParentMember().member != member;
    });
    if (foreign || HasProperty(node)) attached.insert(n);
  }
  return attached;
}

}  // namespace Tarvex
