// Which members list an element as their child. Internal to the store.
#pragma once

#include <unordered_map>
#include <vector>

#include "store/record/member.h"
#include "store/table/paged_table.h"

namespace Tarvex {

/// The members that list an element or load panel, found by its number. Built by the first question
/// and followed from then on, so that blanking n elements does not walk all members n times.
class ChildIndex {
 public:
  struct Owner {
    int member = 0;
    int replica = 0;
    friend bool operator==(Owner const&, Owner const&) = default;
  };

  /// The places where a number is listed.
  std::vector<Owner> const& Of(PagedTable<Data::CMember> const& members, int number);

  /// Follows a member that goes from one record to another; null where it comes or goes.
  void Changed(int member, Data::CMember const* before, Data::CMember const* after);
  /// Follows one number that a stored member has come to list, or no longer lists.
  void Added(int number, Owner owner);
  void Removed(int number);
  /// Forgets everything; the next question builds it anew.
  void Reset();

 private:
  void Build(PagedTable<Data::CMember> const& members);

  bool m_built = false;
  std::unordered_map<int, std::vector<Owner>> m_owners;
};

}  // namespace Tarvex
