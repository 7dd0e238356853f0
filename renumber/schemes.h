// The schemes of all tables.
#pragma once

#include <map>

#include "renumber/number_scheme.h"
#include "store/select/module_id.h"

namespace Tarvex {

/// A scheme for each table that has one.
class Schemes {
 public:
  using Id = CModule::ModuleId;

  bool Has(Id module) const { return Find(module) != nullptr; }
  template <class... Modules>
  bool HasAny(Modules... modules) const {
    return (Has(modules) || ...);
  }
  /// The scheme of a table, null for one that has none.
  NumberScheme const* Find(Id module) const {
    auto const found = m_slots.find(module);
    return found != m_slots.end() && found->second.present ? &found->second.scheme : nullptr;
  }
  NumberScheme* Find(Id module) {
    auto const found = m_slots.find(module);
    return found != m_slots.end() && found->second.present ? &found->second.scheme : nullptr;
  }
  /// The new number: the same for a table without a scheme and for a number below 1, 0 for a
  /// record that goes.
  int Map(Id module, int number) const {
    if (number < 1) return number;
    auto const* scheme = Find(module);
    return scheme == nullptr ? number : scheme->Map(number);
  }
  /// Whether properties are renumbered.
  bool HasProperties() const;
  /// The schemes that tables have, for many look-ups: they are not to be changed.
  Schemes Settled() const;

  /// Gives a table an empty scheme in the place of any that it has.
  NumberScheme& Start(Id module);
  /// Forgets what IndexItem found in the scheme that a table has or had.
  void ForgetGroups(Id module);
  /// Takes all schemes away; what IndexItem found in them stays.
  void Clear();

  /// Calls visit(module, scheme) for each scheme.
  template <class Visit>
  void ForEach(Visit&& visit) const {
    for (auto const& [module, slot] : m_slots)
      if (slot.present) visit(module, slot.scheme);
  }

 private:
  struct Slot {
    bool present = false;
    NumberScheme scheme;
  };

  std::map<Id, Slot> m_slots;
};

}  // namespace Tarvex
