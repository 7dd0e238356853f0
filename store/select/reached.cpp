#include "store/select/reached.h"

#include <algorithm>
#include <map>

namespace Tarvex {
namespace {

/// The strongly connected components of the references, by the algorithm of Tarjan
/// (Depth-first search and linear graph algorithms, 1972) with a stack of its own.
class Walk {
 public:
  explicit Walk(std::function<std::vector<int>(int)> const& referredBy)
      : m_referredBy(referredBy) {}

  void From(int number) {
    if (m_states.contains(number)) return;
    Enter(number);
    while (!m_path.empty()) Step();
  }
  Reached Result() && { return std::move(m_reached); }

 private:
  struct State {
    int index = 0;
    int lowest = 0;  ///< least index that is reached and still open
    bool open = true;
  };
  struct Place {
    int number;
    std::vector<int> next;
    std::size_t at = 0;
  };

  void Enter(int number) {
    int const index = static_cast<int>(m_states.size());
    m_states[number] = {index, index};
    m_open.push_back(number);
    m_path.push_back({number, m_referredBy(number)});
  }

  void Step() {
    auto& place = m_path.back();
    if (place.at == place.next.size()) return Leave();
    int const next = place.next[place.at++];
    auto const known = m_states.find(next);
    if (known == m_states.end()) return Enter(next);
    if (next == place.number) m_reached.endless.insert(next);
    if (known->second.open) Reach(place.number, known->second.index);
  }

  void Reach(int number, int index) {
    auto& state = m_states[number];
    state.lowest = std::min(state.lowest, index);
  }

  void Leave() {
    int const number = m_path.back().number;
    m_path.pop_back();
    auto const& state = m_states[number];
    if (!m_path.empty()) Reach(m_path.back().number, state.lowest);
    if (state.lowest == state.index) Close(number);
  }

  /// Ends a component: the numbers that are open since one.
  void Close(int number) {
    bool const several = m_open.back() != number;
    for (int last = 0; last != number;) {
      last = m_open.back();
      m_open.pop_back();
      m_states[last].open = false;
      m_reached.order.push_back(last);
      if (several) m_reached.endless.insert(last);
    }
  }

  std::function<std::vector<int>(int)> const& m_referredBy;
  std::map<int, State> m_states;
  std::vector<int> m_open;
  std::vector<Place> m_path;
  Reached m_reached;
};

}  // namespace

Reached FollowReferences(std::function<std::vector<int>(int)> const& referredBy,
                         std::vector<int> const& from) {
  Walk walk(referredBy);
  for (int const number : from) walk.From(number);
  return std::move(walk).Result();
}

}  // namespace Tarvex
