#include "renumber/schemes.h"

#include <algorithm>

namespace Tarvex {

bool Schemes::HasProperties() const {
  constexpr int kFirstProperty = 50;
  constexpr int kLastProperty = 65;
  return std::any_of(m_slots.begin(), m_slots.end(), [](auto const& entry) {
    int const module = entry.first;
    bool const property = module >= kFirstProperty && module <= kLastProperty;
    return entry.second.present && (property || module == CModule::RC2DProp);
  });
}

Schemes Schemes::Settled() const {
  Schemes settled;
  ForEach([&](Id module, NumberScheme const& scheme) {
    settled.m_slots[module] = {true, scheme.SettledInRow()};
  });
  return settled;
}

NumberScheme& Schemes::Start(Id module) {
  auto& slot = m_slots[module];
  slot.present = true;
  slot.scheme.Clear();
  return slot.scheme;
}

void Schemes::ForgetGroups(Id module) {
  auto const found = m_slots.find(module);
  if (found != m_slots.end()) found->second.scheme.ForgetGroups();
}

void Schemes::Clear() {
  for (auto& [module, slot] : m_slots) {
    slot.present = false;
    slot.scheme.Clear();
  }
}

}  // namespace Tarvex
