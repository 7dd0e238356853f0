// Plates with a node in the middle of each side.
#include <algorithm>

#include "frame/rebuild_hold.h"
#include "members/edge_middles.h"
#include "members/plate_corners.h"
#include "members/rigid_followers.h"
#include "tarvex/conversion.h"
#include "tarvex/renumber.h"

namespace Tarvex {
namespace {

/// New nodes fold into nodes that are nearer than this, model length units.
constexpr double kFoldTolerance = 1e-5;

/// One run over the elements of a set.
class MiddleRun {
 public:
  MiddleRun(CZelData& model, Util::CSet const& elements)
      : m_model(model),
        m_edges(kEdgesPerElement * static_cast<std::size_t>(elements.NumItem())),
        m_rigids(model) {
    m_bystanders.Invert(1, model.HighestNode());
    m_highestOld = model.HighestNode();
  }

  void Raise(int n) {
    auto element = m_model.Elem(n);
    if (element.Type() != ElementType::Tri3 && element.Type() != ElementType::Quad4) return;
    int const corners = element.Shape().corners;
    if (!HasOldCorners(element, corners)) return;
    bool const released = element.IsConnect();
    element.SetType(element.Shape().quadratic);
    for (int i = 0; i < corners; ++i) {
      int const a = element.Topo(i);
      int const b = element.Topo((i + 1) % corners);
      m_bystanders.RemoveFrom(a);
      element.SetTopo(corners + i, MiddleOf(a, b));
    }
    if (released) ReleaseMiddles(element, corners);
    m_model.SetElem(n, element);
  }

  void Finish() {
    m_rigids.Store();
    Fold();
  }

 private:
  static constexpr std::size_t kEdgesPerElement = 2;  // of a mesh of quadrilaterals

  /// A number behind the highest may become that of a new node, which is no corner.
  bool HasOldCorners(Data::CElement const& element, int corners) const {
    for (int i = 0; i < corners; ++i)
      if (element.Topo(i) > m_highestOld) return false;
    return HasCorners(m_model, element, corners);
  }

  int MiddleOf(int a, int b) {
    if (int const known = m_edges.Find(a, b); known > 0) return known;
    auto const& start = m_model.Node(a);
    auto const& end = m_model.Node(b);
    bool const sameAxis = start.Axis() == end.Axis();
    Data::CNode node((start.Position() + end.Position()) * 0.5, 0, Vbool6());
    if (sameAxis) {
      node.SetAxis(start.Axis());
      node.SetRestraint(start.Restraint() & end.Restraint());
    }
    int const number = m_model.HighestNode() + 1;
    m_model.SetNode(number, node);
    m_middles.AddTo(number);
    m_edges.Add(a, b, number);
    if (sameAxis) m_rigids.Join(a, b, number);
    return number;
  }

  static void ReleaseMiddles(Data::CElement& element, int corners) {
    for (int i = 0; i < corners; ++i) {
      auto const start = element.Connect(i).Release();
      auto const end = element.Connect((i + 1) % corners).Release();
      element.SetConnect(corners + i, CElemConnect(start & end));
    }
  }

  /// Merges new nodes into bystanders, as a merge of coincident nodes does: the lower number stays
  /// and takes the restraints of both.
  void Fold() {
    if (m_bystanders.IsEmpty() || m_middles.IsEmpty()) return;
    CRenumber renumber(&m_model);
    renumber.Index(Data::CEntList(SelNode, CString(L"")), CModule::None);
    bool any = false;
    for (int const middle : m_middles) {
      int const kept = BystanderAt(m_model.NodeCoor(middle));
      if (kept == 0) continue;
      auto node = m_model.Node(kept);
      auto const& gone = m_model.Node(middle);
      if (node.Axis() == gone.Axis()) node.SetRestraint(node.Restraint() | gone.Restraint());
      m_model.SetNode(kept, node);
      renumber.IndexItem(CModule::Node, middle, kept);
      any = true;
    }
    if (any) renumber.Go(false);
  }

  /// The bystander nearest to a point and nearer than the tolerance, 0 for none.
  int BystanderAt(Vec3<double> const& point) {
    m_model.NodesAroundPoint(point, m_around, kFoldTolerance);
    int found = 0;
    double least = kFoldTolerance;
    for (int const n : m_around) {
      if (!m_bystanders.IsItemIncluded(n)) continue;
      double const distance = Length(m_model.NodeCoor(n) - point);
      if (distance < least) {
        least = distance;
        found = n;
      }
    }
    return found;
  }

  CZelData& m_model;
  EdgeMiddles m_edges;
  RigidFollowers m_rigids;
  Util::CSet m_bystanders{SelNode};  // nodes that are no corner of an element of the run
  Util::CSet m_middles{SelNode};
  std::vector<int> m_around;
  int m_highestOld = 0;
};

}  // namespace

CMod2DToQuadratic::CMod2DToQuadratic(CZelData& model) : OrderTool(model) {}
CMod2DToQuadratic::CMod2DToQuadratic(CMod2DToQuadratic const&) = default;
CMod2DToQuadratic::CMod2DToQuadratic(CMod2DToQuadratic&&) noexcept = default;
CMod2DToQuadratic::~CMod2DToQuadratic() = default;

bool CMod2DToQuadratic::Do() {
  RebuildHold const hold(m_model);
  MiddleRun run(m_model, m_set);
  for (int const n : m_set)
    if (m_model.ElemExist(n)) run.Raise(n);
  run.Finish();
  return true;
}

}  // namespace Tarvex
