#include "store/model/child_index.h"

namespace Tarvex {
namespace {

/// Calls visit(number, owner) for each child of a member.
template <class Visit>
void ForEachChild(int number, Data::CMember const& member, Visit&& visit) {
  for (auto const& children : member.Children())
    for (int const child : children.elements)
      visit(child, ChildIndex::Owner{number, children.replica});
}

}  // namespace

std::vector<ChildIndex::Owner> const& ChildIndex::Of(PagedTable<Data::CMember> const& members,
                                                     int number) {
  static std::vector<Owner> const kNone;
  if (!m_built) Build(members);
  auto const found = m_owners.find(number);
  return found == m_owners.end() ? kNone : found->second;
}

void ChildIndex::Changed(int member, Data::CMember const* before, Data::CMember const* after) {
  if (!m_built) return;
  if (before != nullptr && after != nullptr && before->Children() == after->Children()) return;
  if (before != nullptr)
    ForEachChild(member, *before, [&](int child, Owner owner) {
      auto const found = m_owners.find(child);
      std::erase(found->second, owner);
      if (found->second.empty()) m_owners.erase(found);
    });
  if (after != nullptr)
    ForEachChild(member, *after, [&](int child, Owner owner) { m_owners[child].push_back(owner); });
}

void ChildIndex::Added(int number, Owner owner) {
  if (m_built) m_owners[number].push_back(owner);
}

void ChildIndex::Removed(int number) { m_owners.erase(number); }

void ChildIndex::Reset() {
  m_built = false;
  m_owners.clear();
}

void ChildIndex::Build(PagedTable<Data::CMember> const& members) {
  m_owners.clear();
  for (auto const& [number, member] : members)
    ForEachChild(static_cast<int>(number), member,
                 [&](int child, Owner owner) { m_owners[child].push_back(owner); });
  m_built = true;
}

}  // namespace Tarvex
