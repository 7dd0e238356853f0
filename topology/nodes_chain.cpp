// Nodes of 1D elements that run end to end.
#include <unordered_map>

#include "store/model/zel_data.h"
#include "store/record/element.h"
#include "tarvex/disconnect.h"

namespace Tarvex {
namespace {

/// The other end of the first element that has a given node at one end.
class NextNodes {
 public:
  NextNodes(CZelData const& model, std::vector<int> const& elements, int from, int to) {
    for (int const n : elements) {
      auto const& element = model.Elem(n);
      m_next.try_emplace(element.Topo(from), element.Topo(to));
    }
  }

  /// Null where no element goes on.
  int const* After(int node) const {
    auto const at = m_next.find(node);
    return at == m_next.end() ? nullptr : &at->second;
  }

 private:
  std::unordered_map<int, int> m_next;
};

}  // namespace

std::deque<int> NodesChain(CZelData const& model, std::vector<int> const& elements) {
  std::deque<int> chain;
  if (elements.empty()) return chain;
  chain.push_back(model.Elem(elements.front()).Topo(0));
  auto const isFull = [&] { return chain.size() >= elements.size() + 1; };  // also of a closed one
  NextNodes const forward(model, elements, 0, 1);
  while (auto const* next = forward.After(chain.back())) {
    if (isFull()) break;
    chain.push_back(*next);
  }
  NextNodes const backward(model, elements, 1, 0);
  while (auto const* next = backward.After(chain.front())) {
    if (isFull()) break;
    chain.push_front(*next);
  }
  return chain;
}

}  // namespace Tarvex
