// States that undo and redo go to.
#pragma once

#include <cstddef>
#include <utility>
#include <vector>

namespace Tarvex {

/// The undo history of one value that is cheap to copy. Steps nest: only the outermost makes an
/// entry.
template <class State>
class History {
 public:
  int OpenSteps() const { return m_open; }
  std::size_t NumUndo() const { return m_undo.size(); }
  std::size_t NumRedo() const { return m_redo.size(); }

  /// Number of entries that are kept at most; the oldest go.
  void SetDepth(std::size_t depth) {
    m_depth = depth;
    Trim();
  }

  void Open() { ++m_open; }
  /// Ends a step without an entry; the owner puts the state back.
  void Abandon() { --m_open; }
  /// Ends a step. The outermost makes an entry of the state before it and drops what could be
  /// redone.
  void Accept(State before) {
    if (--m_open > 0) return;
    m_undo.push_back(std::move(before));
    Trim();
    m_redo.clear();
  }

  /// Exchanges the present state for that of the last entry, or of the last one undone.
  /// @return false, with no change, when there is none or a step is open.
  template <class Replace>
  bool Undo(State const& present, Replace&& replace) {
    return Move(m_undo, m_redo, present, replace);
  }
  template <class Replace>
  bool Redo(State const& present, Replace&& replace) {
    return Move(m_redo, m_undo, present, replace);
  }

 private:
  template <class Replace>
  bool Move(std::vector<State>& from, std::vector<State>& to, State const& present,
            Replace&& replace) {
    if (from.empty() || m_open > 0) return false;
    to.push_back(present);
    auto target = std::move(from.back());
    from.pop_back();
    replace(std::move(target));
    return true;
  }

  void Trim() {
    if (m_undo.size() <= m_depth) return;
    m_undo.erase(m_undo.begin(), m_undo.end() - static_cast<std::ptrdiff_t>(m_depth));
  }

  std::vector<State> m_undo;  // the oldest first
  std::vector<State> m_redo;
  std::size_t m_depth = 100;
  int m_open = 0;
};

}  // namespace Tarvex
