// Expansions of lists that a model keeps. Internal to the store.
//
// An expansion is kept for the words of a list, which its copies share, so that it serves them all:
// a tool that copies the same load a thousand times expands its list once. Words that no list has
// any more are swept out now and then.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <unordered_map>
#include <vector>

#include "store/record/ent_list.h"

namespace Tarvex {

/// What an expansion is made of beside the words: two with equal marks are equal.
struct ListSources {
  std::array<std::uint64_t, 10> marks{};
  friend bool operator==(ListSources const&, ListSources const&) = default;
};

/// Which form of an expansion.
struct ListForm {
  SelType kind = SelNone;
  bool panels = false;  ///< whether load panels count as elements
  int highest = 0;      ///< of lists without a kind: what "all" goes up to
  int stage = 0;        ///< of others: whose properties and materials words mean

  friend bool operator==(ListForm const&, ListForm const&) = default;
};

class ListCache {
 public:
  using Pointer = Data::KeptExpansions::Pointer;

  /// Which tables the words read, as the caller numbers them; told with the expansion so that its
  /// sources can be asked for again.
  struct Kept {
    ListForm form;
    int reads = 0;
    ListSources sources;
    Pointer numbers;
  };

  /// What is kept of some words in a form; null when nothing is.
  Kept* Find(Data::ListText::Shared const& words, ListForm const& form) {
    auto const found = m_entries.find(words.get());
    if (found == m_entries.end()) return nullptr;
    for (auto& kept : found->second.forms)
      if (kept.form == form) return &kept;
    return nullptr;
  }

  /// Keeps an expansion in the place of an older one.
  void Keep(Data::ListText::Shared const& words, Kept kept) {
    if (m_entries.size() >= m_sweepAt) Sweep();
    auto& entry = m_entries[words.get()];
    entry.words = words;
    for (auto& old : entry.forms)
      if (old.form == kept.form) {
        old = std::move(kept);
        return;
      }
    entry.forms.push_back(std::move(kept));
  }

  std::size_t Size() const { return m_entries.size(); }

 private:
  struct Entry {
    // Keeps the address from being used again, though not the words.
    std::weak_ptr<Data::ListTokens const> words;
    std::vector<Kept> forms;
  };

  void Sweep() {
    std::erase_if(m_entries, [](auto const& entry) { return entry.second.words.expired(); });
    m_sweepAt = std::max(kFew, 2 * m_entries.size());
  }

  static constexpr std::size_t kFew = 64;
  std::unordered_map<Data::ListTokens const*, Entry> m_entries;
  std::size_t m_sweepAt = kFew;
};

}  // namespace Tarvex
