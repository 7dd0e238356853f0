#include "workbench/view/scene.h"

#include <algorithm>
#include <array>
#include <map>
#include <span>

#include "store/record/load_panel.h"
#include "store/record/member.h"
#include "store/record/node.h"
#include "workbench/view/member_outline.h"
#include "workbench/view/split.h"

namespace Tarvex::Workbench {
namespace {

using Data::CElement;
using Nodes = std::vector<int>;

/// The ring of nodes round a plate: corners, and between them the mid-side nodes where there are
/// any.
Nodes PlateRing(CElement const& element) {
  auto const& topology = element.Topology();
  auto const corners = static_cast<std::size_t>(element.Shape().corners);
  if (topology.size() != 2 * corners) return {topology.begin(), topology.end()};
  Nodes ring;
  for (std::size_t i = 0; i < corners; ++i) {
    ring.push_back(topology[i]);
    ring.push_back(topology[i + corners]);
  }
  return ring;
}

/// Collects the things of a scene.
class SceneMaker {
 public:
  SceneMaker(CZelData const& model, SceneRequest const& request)
      : m_model(model), m_request(request) {}

  Scene Make() {
    for (int const n : m_request.elements) AddElement(n);
    AddSkin();
    for (int const n : m_request.members) AddMember(n);
    AddNodes();
    SplitAtNodes(m_scene);
    return std::move(m_scene);
  }

 private:
  bool HasAll(std::span<int const> nodes) const {
    return std::all_of(nodes.begin(), nodes.end(), [&](int n) { return m_model.NodeExist(n); });
  }

  void AddThing(ThingKind kind, Nodes const& nodes) {
    Thing thing{kind, {}, nodes};
    for (int const n : nodes) thing.points.push_back(m_model.Node(n).Position());
    m_scene.things.push_back(std::move(thing));
  }

  /// Adds a thing when its nodes are there and enough, and counts it.
  bool AddCounted(ThingKind kind, Nodes const& nodes, std::size_t fewest, std::size_t& count) {
    bool const drawn = nodes.size() >= fewest && HasAll(nodes);
    if (drawn) AddThing(kind, nodes);
    ++(drawn ? count : m_scene.counts.left);
    return drawn;
  }

  void AddElement(int n) {
    bool const drawn = m_model.LoadPanelExist(n) ? AddPanel(n) : AddShape(m_model.Elem(n));
    if (!drawn) return;
    auto const& nodes =
        m_model.LoadPanelExist(n) ? m_model.LoadPanel(n).Topology() : m_model.Elem(n).Topology();
    Show(nodes);
    if (m_request.numbers == NumbersOf::Elements) AddNumber(n, nodes, m_model.Centre(n));
  }

  bool AddPanel(int n) {
    auto const& topology = m_model.LoadPanel(n).Topology();
    return AddCounted(ThingKind::Panel, {topology.begin(), topology.end()}, 3,
                      m_scene.counts.panels);
  }

  bool AddShape(CElement const& element) {
    auto& counts = m_scene.counts;
    auto const& topology = element.Topology();
    if (element.Is1D())
      return AddCounted(ThingKind::Line, {topology.begin(), topology.end()}, 2, counts.lines);
    if (element.Is2D()) return AddCounted(ThingKind::Plate, PlateRing(element), 3, counts.plates);
    bool const drawn = element.Is3D() && HasAll(topology) &&
                       topology.size() >= static_cast<std::size_t>(element.Shape().nodes);
    ++(drawn ? counts.solids : counts.left);
    for (int face = 0; drawn && face < static_cast<int>(element.Shape().faces.size()); ++face)
      CountFace(element.FaceTopo(face));
    return drawn;
  }

  /// Keeps the faces that have been met once: they are the skin.
  void CountFace(Nodes const& face) {
    auto key = face;
    std::sort(key.begin(), key.end());
    auto const [at, isNew] = m_skin.try_emplace(std::move(key), face);
    if (!isNew) at->second.clear();
  }

  void AddSkin() {
    for (auto const& [key, face] : m_skin)
      if (!face.empty()) AddThing(ThingKind::SolidFace, face);
  }

  void AddMember(int n) {
    auto const lines = MemberLines(m_model, n);
    ++(lines.empty() ? m_scene.counts.left : m_scene.counts.members);
    if (lines.empty()) return;
    for (auto const& line : lines)
      m_scene.things.push_back(
          {line.main ? ThingKind::Member : ThingKind::MemberOutline, line.points, line.nodes});
    auto const nodes = m_model.Member(n).Topo().Nodes();
    Show(nodes);
    if (m_request.numbers == NumbersOf::Members)
      AddNumber(n, lines.front().nodes, Middle(lines.front(), m_model.EntCentre({SelMember, n})));
  }

  /// Where a member's number stands: in the middle of its line, which an arc's nodes may not meet.
  static Vec3<double> Middle(MemberLine const& line, Vec3<double> const& centre) {
    auto const count = line.points.size();
    return line.main && count > 2 ? line.points[count / 2] : centre;
  }

  void AddNumber(int number, std::span<int const> nodes, Vec3<double> const& at) {
    m_scene.numbers.push_back({number, at, {nodes.begin(), nodes.end()}});
  }

  void Show(std::span<int const> nodes) {
    for (int const n : nodes) m_shown.AddTo(n);
  }

  void AddNodes() {
    if (!m_request.allNodes)
      for (int const n : m_shown) AddNode(n, m_model.Node(n));
    else
      for (auto const& [n, node] : m_model.StoredNodes()) AddNode(static_cast<int>(n), node);
  }

  void AddNode(int n, Data::CNode const& node) {
    if (m_request.numbers == NumbersOf::Nodes) AddNumber(n, std::array{n}, node.Position());
    if (node.Restraint().IsNone()) return;
    bool const fixed = node.Restraint() == Vbool6(true, true, true, true, true, true);
    AddThing(fixed ? ThingKind::Fixed : ThingKind::Support, {n});
    ++m_scene.counts.supports;
  }

  CZelData const& m_model;
  SceneRequest const& m_request;
  Scene m_scene;
  std::map<Nodes, Nodes> m_skin;
  Util::CSet m_shown{SelNode};
};

}  // namespace

Scene MakeScene(CZelData const& model, SceneRequest const& request) {
  return SceneMaker(model, request).Make();
}

}  // namespace Tarvex::Workbench
