// Rigid constraints between columns and the slab elements at their ends.
#include "tarvex/connect_slab.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "store/model/list_expansion.h"
#include "store/model/zel_data.h"
#include "store/record/element.h"
#include "store/record/node.h"
#include "store/record/rigid.h"
#include "store/record/section.h"

namespace Tarvex {
namespace {

constexpr auto kHead = 0;
constexpr auto kFoot = 1;

/// Places in the counts of a run.
constexpr std::size_t kEndsExamined = 0;
constexpr std::size_t kEndsConnected = 1;
constexpr std::size_t kRigidsWritten = 2;

/// Share of width times height of a section that counts as its radius.
constexpr double kSectionShare = 0.25;

}  // namespace

/// One run of the tool, with what it looks up by node.
class CConnectSlab::Run {
 public:
  explicit Run(CConnectSlab& tool) : m_tool(tool), m_model(tool.m_model) {
    IndexRigids();
    if (m_tool.m_mode == ConnectMode::WithinSection) IndexSections();
  }

  /// Takes up the ends of one pass and ties all that were taken up so far, those of the pass before
  /// once more.
  void Pass(int pass) {
    for (int const n : m_tool.m_set) {
      if (!IsColumn(n)) continue;
      ++m_tool.m_counts[kEndsExamined];
      int const node = EndNode(n, pass);
      bool const isLeft = !m_tool.m_overwrite && IsRigid(node);
      (isLeft ? m_tool.m_passedOver : m_candidates).push_back({n, node});
    }
    for (auto const& end : m_candidates) Tie(end);
  }

 private:
  void IndexRigids() {
    for (int n = 1; n <= m_model.HighestRigid(); ++n) Index(n, m_model.Rigid(n));
  }

  /// What a replaced constraint held stays in the index: whether a node is held is asked only where
  /// none is replaced.
  void Index(int number, Data::CRigid const& rigid) {
    m_rigidOf.try_emplace(rigid.PrimaryNode(), number);
    for (int const node : Util::Item(rigid.ConstrainedNodes(), m_model)) m_held.insert(node);
  }

  void IndexSections() {
    std::unordered_map<int, double> radiusOf;
    for (int const n : m_tool.m_set) {
      if (!IsBeamColumn(n)) continue;
      auto const& column = m_model.Elem(n);
      int const section = column.Property();
      if (!m_model.SectionExist(section)) continue;
      auto const [at, isNew] = radiusOf.try_emplace(section, 0.0);
      if (isNew) at->second = SectionRadius(m_model.Section(section));
      for (int const node : {column.Topo(0), column.Topo(1)}) {
        auto& greatest = m_radiusAt[node];
        greatest = std::max(greatest, at->second);
      }
    }
  }

  static double SectionRadius(Data::CSection const& section) {
    Data::CSecBox box;
    section.EnclosingBox(box, 0.0, Data::SecRef::Middle);
    return box.Width() * box.Height() * kSectionShare;
  }

  bool IsBeamColumn(int n) const {
    return m_model.ElemExist(n) && m_model.Elem(n).IsBeam() &&
           m_model.ElemIsVertical(n, EntAt::Ends);
  }

  bool IsColumn(int n) const {
    return IsBeamColumn(n) && m_model.NodeExist(m_model.Elem(n).Topo(0)) &&
           m_model.NodeExist(m_model.Elem(n).Topo(1));
  }

  /// The upper node for the pass of heads, the lower one for that of feet; the second of two that
  /// are level.
  int EndNode(int column, int pass) const {
    auto const& element = m_model.Elem(column);
    double const z1 = m_model.NodeCoor(element.Topo(0)).z;
    double const z2 = m_model.NodeCoor(element.Topo(1)).z;
    bool const first = pass == kHead ? z1 > z2 : z1 < z2;
    return element.Topo(first ? 0 : 1);
  }

  /// Whether a node leads a rigid constraint or is held by one.
  bool IsRigid(int node) const { return m_rigidOf.contains(node) || m_held.contains(node); }

  /// The lowest rigid constraint that a node leads, 0 for none.
  int RigidAtNode(int node) const {
    auto const at = m_rigidOf.find(node);
    return at == m_rigidOf.end() ? 0 : at->second;
  }

  /// The greatest radius that the section of a column at the node gives, 0 for none.
  double Radius(int node) const {
    auto const at = m_radiusAt.find(node);
    return at == m_radiusAt.end() ? 0 : at->second;
  }

  bool IsSlab(int n, int node) const {
    if (!m_model.ElemExist(n) || !m_model.Elem(n).Is2D() || !m_model.ElemIsHorizontal(n))
      return false;
    if (m_tool.m_mode != ConnectMode::WithinSection && m_tool.m_mode != ConnectMode::WithinRadius)
      return true;
    return Length(m_model.NodeCoor(node) - m_model.Centre(n)) <= m_tool.m_radius;
  }

  /// The node of an end and those of the slab elements there, each once.
  std::vector<int> NodesAt(End const& end) const {
    std::vector<int> nodes{end.node};
    for (int const n : m_model.Node(end.node).AttachedEnt(SelElement)) {
      if (n == end.column || !IsSlab(n, end.node)) continue;
      for (int const node : m_model.Elem(n).Topology())
        if (m_model.NodeExist(node) && std::find(nodes.begin(), nodes.end(), node) == nodes.end())
          nodes.push_back(node);
    }
    return nodes;
  }

  void Tie(End const& end) {
    if (m_tool.m_mode == ConnectMode::WithinSection) m_tool.m_radius = Radius(end.node);
    auto const nodes = NodesAt(end);
    ++m_tool.m_counts[kEndsConnected];
    if (nodes.size() < 2) return;  // the column's own node alone
    int const existing = RigidAtNode(end.node);
    if (existing != 0 && !m_tool.m_overwrite) return;
    Write(existing != 0 ? existing : m_model.HighestRigid() + 1, end, nodes);
  }

  void Write(int number, End const& end, std::vector<int> const& nodes) {
    CString name;
    name.Format(L"Column %i", end.column);
    Data::CEntList list(SelNode, L"");
    for (int const node : nodes) list.AddTo(node);
    Data::CRigid const rigid(name, Data::LinkType::All, end.node, list,
                             Data::CEntList(SelNone, Data::CEntList::All()));
    m_model.SetRigid(number, rigid);
    Index(number, rigid);
    ++m_tool.m_counts[kRigidsWritten];
  }

  CConnectSlab& m_tool;
  CZelData& m_model;
  std::vector<End> m_candidates;
  std::unordered_map<int, int> m_rigidOf;
  std::unordered_set<int> m_held;
  std::unordered_map<int, double> m_radiusAt;
};

CConnectSlab::CConnectSlab(CZelData& model) : m_model(model), m_set(SelNone) {}
CConnectSlab::CConnectSlab(CConnectSlab const&) = default;
CConnectSlab::CConnectSlab(CConnectSlab&&) noexcept = default;
CConnectSlab::~CConnectSlab() = default;

bool CConnectSlab::Do() {
  m_counts = {};
  m_passedOver.clear();
  m_model.FlagRebuild();
  m_model.rebuildHold = true;
  Run run(*this);
  run.Pass(kHead);
  run.Pass(kFoot);
  m_model.rebuildHold = false;
  return m_counts[kRigidsWritten] > 0;
}

int CConnectSlab::NumItem(int index) const {
  return index < 1 || index > 3 ? 0 : m_counts[static_cast<std::size_t>(index) - 1];
}

}  // namespace Tarvex
