// Plates with a node in the middle of each side.
#include <algorithm>
#include <array>
#include <limits>
#include <utility>

#include "frame/rebuild_hold.h"
#include "members/corner_nodes.h"
#include "members/edge_middles.h"
#include "members/plate_corners.h"
#include "members/rigid_followers.h"
#include "tarvex/coincidence.h"
#include "tarvex/conversion.h"

namespace Tarvex {
namespace {

/// New nodes fold into nodes that are nearer than this, model length units.
constexpr double kFoldTolerance = 1e-5;
constexpr int kWholeModel = 0;  // the stage whose joints keep nodes apart

/// One run over the elements of a set.
class MiddleRun {
 public:
  explicit MiddleRun(CZelData& model)
      : m_model(model), m_corners(model), m_rigids(model), m_highestOld(model.HighestNode()) {
    m_bystanders.Invert(1, m_highestOld);
  }

  void Raise(int n) {
    auto element = m_model.Elem(n);
    if (element.Type() != ElementType::Tri3 && element.Type() != ElementType::Quad4) return;
    int const corners = element.Shape().corners;
    std::array<int, kQuadCorners> places{};
    for (int i = 0; i < corners; ++i)
      if (Place(places, i) = m_corners.PlaceOf(element.Topo(i)); Place(places, i) < 0) return;
    bool const released = element.IsConnect();
    element.SetType(element.Shape().quadratic);
    for (int i = 0; i < corners; ++i) {
      m_bystanders.RemoveFrom(element.Topo(i));
      element.SetTopo(corners + i, MiddleOf(Place(places, i), Place(places, (i + 1) % corners)));
    }
    if (released) ReleaseMiddles(element, corners);
    m_model.SetElem(n, element);
  }

  void Finish() {
    m_rigids.Store();
    Fold();
  }

 private:
  static int& Place(std::array<int, kQuadCorners>& places, int corner) {
    return places[static_cast<std::size_t>(corner)];
  }

  /// The node between two corners, by their places.
  int MiddleOf(int a, int b) {
    if (int const known = m_edges.Find(a, b); known > 0) return known;
    auto const& start = m_corners[a];
    auto const& end = m_corners[b];
    bool const sameAxis = start.axis == end.axis;
    Data::CNode node((start.position + end.position) * 0.5, 0, Vbool6());
    if (sameAxis) {
      node.SetAxis(start.axis);
      node.SetRestraint(start.restraint & end.restraint);
    }
    int const number = m_model.HighestNode() + 1;
    m_model.SetNode(number, node);
    m_edges.Add(a, b, number);
    if (sameAxis) m_rigids.Join(start.number, end.number, number);
    return number;
  }

  static void ReleaseMiddles(Data::CElement& element, int corners) {
    for (int i = 0; i < corners; ++i) {
      auto const start = element.Connect(i).Release();
      auto const end = element.Connect((i + 1) % corners).Release();
      element.SetConnect(corners + i, CElemConnect(start & end));
    }
  }

  /// Merges new nodes into nodes that stand there and were no corner of the run. The new nodes are
  /// not in the search set, so that none folds into another.
  void Fold() {
    CReduceCoinc reduce(m_model, kFoldTolerance, kWholeModel);
    if (!reduce.SetSearchSet(m_bystanders, CReduceCoinc::kWholeSearch)) return;
    auto const [first, last] = MiddlesAmongBystanders();
    if (first <= last) reduce.Do(first, last - first + 1);
  }

  /// The lowest and the highest new node in the box of the bystanders: those outside can't fold.
  std::pair<int, int> MiddlesAmongBystanders() const {
    constexpr double kFar = std::numeric_limits<double>::infinity();
    Vec3<double> low{kFar, kFar, kFar};
    Vec3<double> high{-kFar, -kFar, -kFar};
    for (int const n : m_bystanders) {
      if (!m_model.NodeExist(n)) continue;
      auto const& p = m_model.NodeCoor(n);
      low = {std::min(low.x, p.x), std::min(low.y, p.y), std::min(low.z, p.z)};
      high = {std::max(high.x, p.x), std::max(high.y, p.y), std::max(high.z, p.z)};
    }
    constexpr double kMargin = 2 * kFoldTolerance;  // more than rounding can take from it
    std::pair<int, int> range{m_model.HighestNode() + 1, 0};
    for (int n = m_highestOld + 1; n <= m_model.HighestNode(); ++n) {
      auto const& p = m_model.NodeCoor(n);
      bool const outside = p.x < low.x - kMargin || p.x > high.x + kMargin ||
                           p.y < low.y - kMargin || p.y > high.y + kMargin ||
                           p.z < low.z - kMargin || p.z > high.z + kMargin;
      if (outside) continue;
      range = {std::min(range.first, n), n};
    }
    return range;
  }

  CZelData& m_model;
  CornerNodes m_corners;
  EdgeMiddles m_edges;
  RigidFollowers m_rigids;
  Util::CSet m_bystanders{SelNode};  // nodes that are no corner of an element of the run
  int m_highestOld;
};

}  // namespace

CMod2DToQuadratic::CMod2DToQuadratic(CZelData& model) : OrderTool(model) {}
CMod2DToQuadratic::CMod2DToQuadratic(CMod2DToQuadratic const&) = default;
CMod2DToQuadratic::CMod2DToQuadratic(CMod2DToQuadratic&&) noexcept = default;
CMod2DToQuadratic::~CMod2DToQuadratic() = default;

bool CMod2DToQuadratic::Do() {
  RebuildHold const hold(m_model);
  MiddleRun run(m_model);
  for (int const n : m_set)
    if (m_model.ElemExist(n)) run.Raise(n);
  run.Finish();
  return true;
}

}  // namespace Tarvex
