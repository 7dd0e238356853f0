// Look-ups whose failure has a fixed text.
#pragma once

#include <cstddef>
#include <stdexcept>

#include "store/export.h"

namespace Tarvex {

/// Throw std::out_of_range with their fixed texts "invalid vector subscript", "invalid map<K, T>
/// key" and "invalid unordered_map<K, T> key".
[[noreturn]] TARVEX_STORE_EXPORT void ThrowBadSubscript();
[[noreturn]] TARVEX_STORE_EXPORT void ThrowBadMapKey();
[[noreturn]] TARVEX_STORE_EXPORT void ThrowBadUnorderedMapKey();

/// Entry of a vector; std::out_of_range "invalid vector subscript" when there is none.
template <class Vector, class Index>
auto& CheckedAt(Vector& vector, Index index) {
  auto const at = static_cast<std::size_t>(index);
  if (index < 0 || at >= vector.size()) ThrowBadSubscript();
  return vector[at];
}

/// Value of a key; std::out_of_range "invalid map<K, T> key" when there is none.
template <class Map, class Key>
auto& CheckedMapAt(Map& map, Key const& key) {
  auto const found = map.find(key);
  if (found == map.end()) ThrowBadMapKey();
  return found->second;
}

/// Value of a key; std::out_of_range "invalid unordered_map<K, T> key" when there is none.
template <class Map, class Key>
auto& CheckedUnorderedMapAt(Map& map, Key const& key) {
  auto const found = map.find(key);
  if (found == map.end()) ThrowBadUnorderedMapKey();
  return found->second;
}

}  // namespace Tarvex
