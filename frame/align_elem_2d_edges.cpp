// First edges of 2D entities turned towards a direction.
#include "frame/rebuild_hold.h"
#include "store/record/axis.h"
#include "store/select/checked_access.h"
#include "tarvex/orientation.h"

namespace Tarvex {
namespace {

constexpr int kOwnAxis = -1;

/// Number of edges to look at: those between corners, or all of a load panel.
int NumCandidates(CZelData const& model, int n, int count) {
  return model.ElemExist(n) && count >= 5 ? count / 2 : count;
}

/// Index of the edge with the greatest positive product with a direction, -1 when there is none.
/// The last corner of a quadratic element is paired with the first mid-side node, not the first
/// corner.
int BestEdge(CZelData const& model, int n, Vec3<double> const& direction) {
  auto const& nodes = model.VariantElement(n)->Topology();
  int const count = static_cast<int>(nodes.size());
  int best = -1;
  double greatest = 0.0;
  for (int i = 0; i < NumCandidates(model, n, count); ++i) {
    int const a = CheckedAt(nodes, i);
    int const b = CheckedAt(nodes, (i + 1) % count);
    if (!model.NodeExist(a) || !model.NodeExist(b)) break;
    double const value = Dot(model.NodeCoor(b) - model.NodeCoor(a), direction);
    if (value > greatest) {
      greatest = value;
      best = i;
    }
  }
  return best;
}

}  // namespace

CAlignElem2DEdges::CAlignElem2DEdges(CZelData& model) : AlignTool(model) {}
CAlignElem2DEdges::CAlignElem2DEdges(CAlignElem2DEdges const&) = default;
CAlignElem2DEdges::CAlignElem2DEdges(CAlignElem2DEdges&&) noexcept = default;
CAlignElem2DEdges::~CAlignElem2DEdges() = default;

bool CAlignElem2DEdges::Do() {
  if (m_axis < kOwnAxis || m_set.TypeOf() != SelElement) return false;
  bool const own = m_axis == kOwnAxis;
  if (!own && !HasAxis()) return false;
  auto direction = own ? Vec3<double>{1, 0, 0} : m_model.Axis(m_axis).XAxis();
  RebuildHold const hold(m_model);
  bool turned = false;
  for (int const n : m_set) {
    if (!m_model.EntIs2D({SelElement, n})) continue;
    if (own) direction = m_model.ElemDC(n, EntAt::Ends, -1).AxisVec(Direction::X, true);
    if (SpinElement(m_model, n, BestEdge(m_model, n, direction))) turned = true;
  }
  return turned;
}

}  // namespace Tarvex
