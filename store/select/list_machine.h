// The rules by which the items of a list come together. Internal to the store.
//
// Side by side and "or" unite, "and" intersects and binds closer, "not" takes the one item behind
// it away from all that stands before it in the same parenthesis. Whatever an operator lacks is
// nothing; since "not" uses up its item, an "and" behind that item has nothing on its left.
//
// The rules are the same whatever stands for a set: runs of numbers, or whether one number is in.
#pragma once

#include <optional>
#include <utility>
#include <vector>

namespace Tarvex::Data {

/// Takes the parts of a list in their order. It keeps a stack of its own, so the depth of
/// parentheses costs no recursion.
/// @tparam Set is empty by default and has Unite, Intersect and Subtract.
template <class Set>
class ListMachine {
 public:
  void Item(Set set) {
    auto& frame = m_frames.back();
    switch (std::exchange(frame.waiting, Waiting::None)) {
      case Waiting::And:
        frame.term->Intersect(std::move(set));
        return;
      case Waiting::Not:
        frame.before.Subtract(std::move(set));
        return;
      case Waiting::None:
        frame.EndTerm();
        frame.term = std::move(set);
    }
  }
  void Or() { m_frames.back().EndTerm(); }
  void And() {
    auto& frame = m_frames.back();
    if (frame.waiting == Waiting::And || !frame.term) frame.term = Set();
    frame.waiting = Waiting::And;
  }
  void Not() {
    auto& frame = m_frames.back();
    frame.EndTerm();
    frame.waiting = Waiting::Not;
  }
  void Open() { m_frames.emplace_back(); }
  /// A parenthesis that was never opened is passed over.
  void Close() {
    if (m_frames.size() == 1) return;
    auto inner = Leave();
    Item(std::move(inner));
  }
  /// The set of the list; closes what is open.
  Set Finish() {
    while (m_frames.size() > 1) Close();
    auto all = Leave();
    m_frames.emplace_back();
    return all;
  }

 private:
  enum class Waiting { None, And, Not };

  /// What stands in one parenthesis so far.
  struct Frame {
    Set before;               // all but the term
    std::optional<Set> term;  // the last item, or items joined by "and"
    Waiting waiting = Waiting::None;

    /// No "and" goes on with the term. One that waits for its right side gets nothing.
    void EndTerm() {
      if (waiting != Waiting::And && term) before.Unite(std::move(*term));
      term.reset();
      waiting = Waiting::None;
    }
  };

  Set Leave() {
    m_frames.back().EndTerm();
    auto set = std::move(m_frames.back().before);
    m_frames.pop_back();
    return set;
  }

  std::vector<Frame> m_frames = std::vector<Frame>(1);
};

}  // namespace Tarvex::Data
