#include "store/model/member_tables.h"

#include <algorithm>

#include "store/model/model_core.h"
#include "store/model/node_use.h"
#include "store/model/table_ops.h"

namespace Tarvex {
namespace {

using Data::CMember;

SEntRef MemberRef(int n) { return {SelMember, n}; }

/// A record as it is to stand under a number: children and the mesh stay with the member that they
/// came from.
CMember AsStoredUnder(int n, CMember const& member) {
  auto copy = member;
  auto const from = static_cast<int>(member.Number());
  if (from != 0 && from != n) {
    copy.ClearChildElements();
    copy.ClearAnalysisMesh();
  }
  return copy;
}

}  // namespace

bool MemberTables::MemberExist(int n) const { return m_core.state.member.Exist(n); }

CMember const& MemberTables::Member(int n) const {
  return TableOps::Get(m_core.state.member, "Member", n);
}

tarvex_unordered_map<unsigned int, CMember> const& MemberTables::Member() const {
  return m_core.state.member;
}

int MemberTables::HighestMember() const { return m_core.state.member.Highest(); }

void MemberTables::SetMember(int n, CMember const& member, SidMode sid) {
  auto& table = m_core.state.member;
  auto const copy = AsStoredUnder(n, member);
  auto const* old = table.Find(n);
  auto const before = old == nullptr ? Data::TopoVector() : old->Topo().Nodes();
  if (old != nullptr) m_core.children.Changed(n, old, nullptr);
  auto const& stored = TableOps::Store(table, n, copy, sid);
  m_core.children.Changed(n, nullptr, &stored);
  NodeUse::TopologyChanged(m_core, MemberRef(n), before, stored.Topo().Nodes());
}

void MemberTables::BlankMember(int first, int count) {
  auto& table = m_core.state.member;
  TableOps::RemoveUnlocked(table, first, count, [&](int n, CMember const& member) {
    m_core.children.Changed(n, &member, nullptr);
    NodeUse::TopologyChanged(m_core, MemberRef(n), member.Topo().Nodes(), {});
  });
}

void MemberTables::LockMember(int n, bool on) {
  TableOps::Edit(m_core.state.member, "Member", n).Lock(on);
}

void MemberTables::AddChildElement(int n, int number, int replica) {
  auto const& owners = m_core.children.Of(m_core.state.member, number);
  ChildIndex::Owner const owner{n, replica};
  if (std::find(owners.begin(), owners.end(), owner) != owners.end()) return;
  TableOps::Edit(m_core.state.member, "Member", n).AppendChildElement(number, replica);
  m_core.children.Added(number, owner);
}

}  // namespace Tarvex
