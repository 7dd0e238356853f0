// The nodes in the middle of sides, by the nodes at the ends.
#pragma once

#include <cstdint>
#include <utility>
#include <vector>

namespace Tarvex {

/// Maps two corner nodes, in either order, to the node between them. One flat table with open
/// addressing, since a mesh asks once a side of each element.
class EdgeMiddles {
 public:
  /// @param edges about how many there will be.
  explicit EdgeMiddles(std::size_t edges = 0) {
    std::size_t slots = kLeastSlots;
    while (slots < 2 * edges) slots *= 2;
    m_slots.resize(slots);
  }

  /// The node between two, 0 when there is none yet.
  int Find(int a, int b) const { return m_slots[Place(KeyOf(a, b))].node; }

  /// Enters the node between two that have none.
  void Add(int a, int b, int node) {
    if (2 * (m_count + 1) > m_slots.size()) Grow();
    auto const key = KeyOf(a, b);
    m_slots[Place(key)] = {key, node};
    ++m_count;
  }

 private:
  struct Slot {
    std::uint64_t key = 0;
    int node = 0;  // 0 in a free slot
  };
  static constexpr std::size_t kLeastSlots = 64;

  static std::uint64_t KeyOf(int a, int b) {
    auto const low = static_cast<std::uint64_t>(a < b ? a : b);
    auto const high = static_cast<std::uint64_t>(a < b ? b : a);
    return low << 32 | high;
  }

  /// Slot of a key: the one that holds it, or the free one that it would go to.
  std::size_t Place(std::uint64_t key) const {
    // The finalizer of MurmurHash3 spreads neighbouring numbers over the table.
    auto hash = key;
    hash = (hash ^ hash >> 33) * 0xff51afd7ed558ccdULL;
    hash = (hash ^ hash >> 33) * 0xc4ceb9fe1a85ec53ULL;
    hash ^= hash >> 33;
    std::size_t const mask = m_slots.size() - 1;
    auto place = static_cast<std::size_t>(hash) & mask;
    while (m_slots[place].node != 0 && m_slots[place].key != key) place = (place + 1) & mask;
    return place;
  }

  void Grow() {
    auto const old = std::move(m_slots);
    m_slots.assign(2 * old.size(), {});
    for (auto const& slot : old)
      if (slot.node != 0) m_slots[Place(slot.key)] = slot;
  }

  std::vector<Slot> m_slots;  // a power of two of them, at most half in use
  std::size_t m_count = 0;
};

}  // namespace Tarvex
