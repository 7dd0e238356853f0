// Lines by where they are, for walks that cut lines and move their ends as they go.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <unordered_map>
#include <utility>
#include <vector>

#include "store/numeric/vec.h"

namespace Tarvex {

/// A box along the axes.
struct LineBox {
  Vec3<double> low;
  Vec3<double> high;

  static LineBox Around(Vec3<double> const& a, Vec3<double> const& b, double margin) {
    return {
        {std::min(a.x, b.x) - margin, std::min(a.y, b.y) - margin, std::min(a.z, b.z) - margin},
        {std::max(a.x, b.x) + margin, std::max(a.y, b.y) + margin, std::max(a.z, b.z) + margin}};
  }
  bool Meets(LineBox const& other) const {
    return low.x <= other.high.x && other.low.x <= high.x && low.y <= other.high.y &&
           other.low.y <= high.y && low.z <= other.high.z && other.low.z <= high.z;
  }
  LineBox With(LineBox const& other) const {
    return {
        {std::min(low.x, other.low.x), std::min(low.y, other.low.y), std::min(low.z, other.low.z)},
        {std::max(high.x, other.high.x), std::max(high.y, other.high.y),
         std::max(high.z, other.high.z)}};
  }
};

/// Finds lines by their boxes. Most stand in a tree that is built once; what came or changed since
/// is looked through one by one, until it is so much that the tree is built anew. A line that has
/// gone or moved is still found where it was: who asks looks at the line itself.
class LineIndex {
 public:
  /// Takes a line, new or changed, and the nodes that its box follows from.
  void Put(int line, std::vector<int> const& nodes, LineBox const& box) {
    m_boxes[line] = box;
    for (int const node : nodes) {
      auto& lines = m_linesAt[node];
      if (std::find(lines.begin(), lines.end(), line) == lines.end()) lines.push_back(line);
    }
    m_changed.push_back(line);
  }
  void Remove(int line) { m_boxes.erase(line); }

  /// The lines whose boxes follow, or once followed, from a node.
  std::vector<int> LinesAt(int node) const {
    auto const found = m_linesAt.find(node);
    return found == m_linesAt.end() ? std::vector<int>() : found->second;
  }

  /// The numbers above a given one of the lines whose boxes meet a box, ascending.
  std::vector<int> Near(LineBox const& box, int above) {
    if (m_changed.size() * m_changed.size() > kMostSquared + m_boxes.size()) Build();
    std::vector<int> found;
    auto const offer = [&](int line) {
      if (line <= above) return;
      auto const at = m_boxes.find(line);
      if (at != m_boxes.end() && at->second.Meets(box)) found.push_back(line);
    };
    for (int const line : m_changed) offer(line);
    if (!m_tree.empty()) Search(0, box, offer);
    std::sort(found.begin(), found.end());
    found.erase(std::unique(found.begin(), found.end()), found.end());
    return found;
  }

 private:
  /// A branch holds the lines first to last of m_order; its two halves follow from its place.
  struct Branch {
    LineBox box;
    std::size_t first;
    std::size_t last;
    std::size_t left = 0;  ///< 0 for a leaf
    std::size_t right = 0;
  };
  static constexpr std::size_t kLeaf = 8;
  static constexpr std::size_t kMostSquared = 4096;

  void Build() {
    m_changed.clear();
    m_order.clear();
    m_tree.clear();
    for (auto const& [line, box] : m_boxes) m_order.push_back(line);
    std::sort(m_order.begin(), m_order.end());
    if (!m_order.empty()) Grow(0, m_order.size());
  }

  double Centre(int line, int axis) const {
    auto const& box = m_boxes.at(line);
    std::array const sums{box.low.x + box.high.x, box.low.y + box.high.y, box.low.z + box.high.z};
    return sums[static_cast<std::size_t>(axis)];
  }

  std::size_t Grow(std::size_t first, std::size_t last) {
    auto box = m_boxes.at(m_order[first]);
    for (auto i = first; i < last; ++i) box = box.With(m_boxes.at(m_order[i]));
    auto const branch = m_tree.size();
    m_tree.push_back({box, first, last});
    if (last - first <= kLeaf) return branch;
    auto const size = box.high - box.low;
    int const axis = size.x >= size.y && size.x >= size.z ? 0 : (size.y >= size.z ? 1 : 2);
    auto const middle = first + (last - first) / 2;
    auto const at = [&](std::size_t i) { return m_order.begin() + static_cast<std::ptrdiff_t>(i); };
    std::nth_element(at(first), at(middle), at(last), [&](int a, int b) {
      return std::pair(Centre(a, axis), a) < std::pair(Centre(b, axis), b);
    });
    auto const left = Grow(first, middle);
    auto const right = Grow(middle, last);
    m_tree[branch].left = left;
    m_tree[branch].right = right;
    return branch;
  }

  template <class Offer>
  void Search(std::size_t branch, LineBox const& box, Offer const& offer) const {
    auto const& at = m_tree[branch];
    if (!at.box.Meets(box)) return;
    if (at.left == 0) {
      for (auto i = at.first; i < at.last; ++i) offer(m_order[i]);
      return;
    }
    Search(at.left, box, offer);
    Search(at.right, box, offer);
  }

  std::unordered_map<int, LineBox> m_boxes;
  std::unordered_map<int, std::vector<int>> m_linesAt;
  std::vector<int> m_changed;
  std::vector<int> m_order;
  std::vector<Branch> m_tree;
};

}  // namespace Tarvex
