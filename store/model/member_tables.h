// Table of members. The operations are those of store/model/entity_tables.h.
#pragma once

#include "store/export.h"
#include "store/model/query_types.h"
#include "store/table/paged_table.h"

namespace Tarvex {

class ModelCore;
namespace Data {
class CMember;
}  // namespace Data

/// Members of a model.
class TARVEX_STORE_EXPORT MemberTables {
 public:
  // Members (100). A record that was stored under another number comes without its children: they
  // belong to the member that they were made from.
  bool MemberExist(int n) const;
  Data::CMember const& Member(int n) const;
  tarvex_unordered_map<unsigned int, Data::CMember> const& Member() const;
  int HighestMember() const;
  void SetMember(int n, Data::CMember const& member, SidMode sid = SidMode::Keep);
  /// Removes members but for those that are locked.
  void BlankMember(int first, int count);

  /// Protects a member against removal until it is called with false.
  void LockMember(int n, bool on);
  /// Lists an element or load panel as a child of a replica of a stored member, once. Blanking the
  /// element takes it off the list.
  void AddChildElement(int n, int number, int replica);

 protected:
  explicit MemberTables(ModelCore& core) : m_core(core) {}
  ~MemberTables() = default;
  MemberTables(MemberTables const&) = delete;
  MemberTables& operator=(MemberTables const&) = delete;

 private:
  ModelCore& m_core;
};

}  // namespace Tarvex
