// Agreement of the normals of a patch, spreading in waves from seed elements.
#include <algorithm>
#include <span>

#include "frame/flip_rows.h"
#include "frame/rebuild_hold.h"
#include "store/record/node.h"
#include "tarvex/orientation.h"

namespace Tarvex {
namespace {

bool Is2DElement(CZelData const& model, int n) {
  return model.ElemExist(n) && model.Elem(n).Is2D();
}

Vec3<double> NormalOf(CZelData const& model, int n) {
  return model.ElemDC(n, EntAt::Ends, -1).AxisVec(Direction::Z, true);
}

/// Calls visit(neighbour) for the 2D elements of a set that share a corner node with an element:
/// corner by corner, ascending at each; one that shares several corners comes several times.
template <class Visit>
void ForEachNeighbour(CZelData const& model, Util::CSet const& set, int element, Visit&& visit) {
  if (!model.ElemExist(element)) return;
  auto const& nodes = model.Elem(element).Topology();
  auto const corners = nodes.size() < 5 ? nodes.size() : nodes.size() / 2;
  for (auto const node : std::span(nodes.data(), corners)) {
    if (!model.NodeExist(node)) continue;
    for (int const other : model.Node(node).AttachedEnt(SelElement))
      if (other != element && set.IsItemIncluded(other) && Is2DElement(model, other)) visit(other);
  }
}

bool Contains(std::vector<int> const& numbers, int n) {
  return std::find(numbers.begin(), numbers.end(), n) != numbers.end();
}

void AddOnce(std::vector<int>& numbers, int n) {
  if (!Contains(numbers, n)) numbers.push_back(n);
}

}  // namespace

/// One run. Where the vector forms of AttachedElem search their vectors, it marks elements in
/// arrays, so that a patch of n elements costs in the order of n.
class CFlipElem2D::Spread {
 public:
  Spread(CFlipElem2D& tool, double cosine)
      : m_tool(tool),
        m_model(tool.m_model),
        m_cosine(cosine),
        m_processed(NumMarks(tool)),
        m_seen(m_processed.size(), 0) {}

  bool IsProcessed(int n) const { return m_processed[static_cast<std::size_t>(n)]; }

  /// Settles the patch of a seed.
  void From(int seed) {
    MarkProcessed(seed);
    auto z0 = NormalOf(m_model, seed);
    if (z0.z < 0.0) {
      m_tool.FlipElem(seed);
      z0 = NormalOf(m_model, seed);
    }
    for (auto wave = Next({seed}); !wave.empty(); wave = Next(wave))
      for (int const e : wave)
        if (!IsProcessed(e)) Settle(e, z0);
  }

 private:
  /// A mark for each element that can be met; a set may name numbers far above all elements.
  static std::size_t NumMarks(CFlipElem2D const& tool) {
    return static_cast<std::size_t>(
               std::min(tool.m_set.HighestItem(), tool.m_model.HighestElem())) +
           1;
  }

  void MarkProcessed(int n) { m_processed[static_cast<std::size_t>(n)] = true; }

  /// True once for each element within a round.
  bool FirstVisit(int n, int round) {
    auto& seen = m_seen[static_cast<std::size_t>(n)];
    if (seen == round) return false;
    seen = round;
    return true;
  }

  void Settle(int e, Vec3<double> const& z0) {
    MarkProcessed(e);
    auto z = NormalOf(m_model, e);
    if (Dot(z, z0) < 0.0) {
      m_tool.FlipElem(e);
      z = NormalOf(m_model, e);
    }
    int opposed = 0;
    int agreeing = 0;
    int const round = ++m_round;
    ForEachNeighbour(m_model, m_tool.m_set, e, [&](int neighbour) {
      if (!IsProcessed(neighbour) || !FirstVisit(neighbour, round)) return;
      double const product = Dot(z, NormalOf(m_model, neighbour));
      if (product < -m_cosine)
        ++opposed;
      else if (product > m_cosine)
        ++agreeing;
    });
    if (opposed > agreeing) m_tool.FlipElem(e);
  }

  /// The elements that a wave reaches, in the order in which it does. All of the wave is processed.
  std::vector<int> Next(std::vector<int> const& wave) {
    std::vector<int> next;
    int const round = ++m_round;
    for (int const e : wave)
      ForEachNeighbour(m_model, m_tool.m_set, e, [&](int neighbour) {
        if (!IsProcessed(neighbour) && FirstVisit(neighbour, round)) next.push_back(neighbour);
      });
    return next;
  }

  CFlipElem2D& m_tool;
  CZelData const& m_model;
  double m_cosine;
  std::vector<bool> m_processed;
  std::vector<int> m_seen;
  int m_round = 0;
};

CFlipElem2D::CFlipElem2D(CZelData& model) : m_model(model), m_set(SelNone) {}
CFlipElem2D::CFlipElem2D(CFlipElem2D const&) = default;
CFlipElem2D::CFlipElem2D(CFlipElem2D&&) noexcept = default;
CFlipElem2D::~CFlipElem2D() = default;

bool CFlipElem2D::Do() {
  RebuildHold const hold(m_model);
  Spread spread(*this, std::cos(m_facetAngle * kPi / 180.0));
  for (int const n : m_set)
    if (Is2DElement(m_model, n) && !spread.IsProcessed(n)) spread.From(n);
  return true;
}

void CFlipElem2D::FlipElem(int n) {
  if (!m_model.ElemExist(n)) return;
  auto const nodes = m_model.Elem(n).Topology();
  auto const* row = FindPlateFlipByNodes(static_cast<int>(nodes.size()));
  if (row == nullptr) return;
  for (auto const& [a, b] : row->Swaps()) {
    m_model.SetElemTopo(n, a, nodes[static_cast<std::size_t>(b)]);
    m_model.SetElemTopo(n, b, nodes[static_cast<std::size_t>(a)]);
  }
}

bool CFlipElem2D::AttachedElem(int element, std::vector<int>& processed, std::vector<int>& out) {
  ForEachNeighbour(m_model, m_set, element, [&](int neighbour) {
    if (Contains(processed, neighbour)) AddOnce(out, neighbour);
  });
  return !out.empty();
}

bool CFlipElem2D::AttachedElem(std::vector<int>& wave, std::vector<int>& processed,
                               std::vector<int>& out) {
  for (int const element : wave)
    ForEachNeighbour(m_model, m_set, element, [&](int neighbour) {
      if (!Contains(processed, neighbour) && !Contains(wave, neighbour)) AddOnce(out, neighbour);
    });
  return !out.empty();
}

}  // namespace Tarvex
