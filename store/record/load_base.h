// What all loads on nodes and entities have in common.
#pragma once

#include "store/numeric/direction.h"
#include "store/record/held_list.h"

namespace Tarvex::Data {

/// A list of what a load acts on: elements at first, or members.
class EntityList : public HeldList {
 public:
  EntityList() { SetType(SelElement); }

  /// Takes what a list selects. Throws std::invalid_argument for a list of another kind than
  /// elements and members that names something; one that names nothing gives no elements.
  void Put(CEntList const& list) {
    bool const right = list.TypeOf() == SelElement || list.TypeOf() == SelMember;
    if (!right && !list.IsEmpty())
      throw std::invalid_argument("list of another kind than elements and members");
    *this = right ? EntityList(list) : EntityList();
  }
  /// What makes the list no field that a file may hold, empty when nothing does.
  CString Fault() const {
    if (TypeOf() != SelElement && TypeOf() != SelMember)
      return L"a list of another kind than elements (2) and members (3)";
    return CEntList::Fault();
  }

  friend bool operator==(EntityList const& a, EntityList const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    return MakeRows(KindField<EntityList>(), TextField<EntityList>());
  }

 private:
  explicit EntityList(CEntList const& list) : HeldList(list) {}
};

/// A load of a load case on the nodes or entities of a list.
class CLoadBase : public BaseEntity {
 public:
  virtual ~CLoadBase() = default;

  /// Number of the load case, 0 for none.
  int LoadCase() const { return m_loadCase; }
  void SetLoadCase(int loadCase) { m_loadCase = loadCase; }
  /// What the load acts on.
  virtual Storage<CEntList> const& LoadedEntities() const = 0;
  /// Throws std::invalid_argument for a list that names something of a kind the load can't act on.
  virtual void SetLoadedEntities(CEntList const& list) = 0;

 protected:
  CLoadBase() = default;
  explicit CLoadBase(int loadCase) : m_loadCase(loadCase) {}
  CLoadBase(CLoadBase const&) = default;
  CLoadBase(CLoadBase&&) noexcept = default;
  CLoadBase& operator=(CLoadBase const&) = default;
  CLoadBase& operator=(CLoadBase&&) noexcept = default;

  /// Fields of the base, which come first in every load.
  template <class Record>
  static constexpr auto LoadFields() {
    return MakeRows(SidField<Record>(),
                    Reference<Record, CModule::LoadCaseTitle>("loadCase", &CLoadBase::m_loadCase));
  }

 private:
  int m_loadCase = 0;
};

/// A load on elements or members.
class CElementLoadBase : public CLoadBase {
 public:
  Storage<CEntList> const& LoadedEntities() const override { return m_entities; }
  void SetLoadedEntities(CEntList const& list) override { m_entities.Put(list); }

 protected:
  /// Fields of the bases, which come first in every load on entities.
  template <class Record>
  static constexpr auto ElementLoadFields() {
    return JoinRows(LoadFields<Record>(),
                    MakeRows(Plain<Record>("loadedEntities", &CElementLoadBase::m_entities)));
  }

 private:
  EntityList m_entities;
};

}  // namespace Tarvex::Data
