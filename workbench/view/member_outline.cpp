#include "workbench/view/member_outline.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

#include "store/record/member.h"
#include "store/record/node.h"

namespace Tarvex::Workbench {
namespace {

using Data::CMember;
using Points = std::vector<Vec3<double>>;
using Nodes = std::vector<int>;

constexpr double kArcStep = kPi / 24;  // 7.5 degrees
constexpr double kPlaneSine = 1e-6;    // of the angle between triangles of one plane

/// Points of an arc about a centre, right-handed about an axis, both ends among them.
Points ArcPoints(Vec3<double> const& centre, Vec3<double> const& axis, Vec3<double> const& from,
                 Vec3<double> const& to) {
  auto const along = from - centre;
  auto const across = Cross(Unit(axis), along);
  auto const end = to - centre;
  double angle = std::atan2(Dot(end, across), Dot(end, along));
  if (angle <= 0) angle += 2 * kPi;
  int const steps = std::max(1, static_cast<int>(std::ceil(angle / kArcStep - 1e-9)));
  Points points{from};
  for (int i = 1; i < steps; ++i) {
    double const turn = angle * i / steps;
    points.push_back(centre + along * std::cos(turn) + across * std::sin(turn));
  }
  points.push_back(to);
  return points;
}

/// The axis about which the arc of a member runs right-handed from its first to its last node.
Vec3<double> ArcAxis(CMember const& member, Points const& nodes, Vec3<double> const& centre) {
  if (member.Geometry() == MembGeom::ArcThrough && nodes.size() > 2)
    return Cross(nodes[1] - nodes[0], nodes[2] - nodes[1]);
  return Cross(nodes.front() - centre, nodes.back() - centre);
}

Points MemberPoints(CZelData const& model, Nodes const& nodes) {
  Points points;
  for (int const node : nodes) points.push_back(model.Node(node).Position());
  return points;
}

std::vector<MemberLine> Line1D(CZelData const& model, CMember const& member, Nodes const& nodes) {
  if (nodes.size() < 2) return {};
  auto points = MemberPoints(model, nodes);
  Vec3<double> centre;
  if (member.Geometry() != MembGeom::Line && member.ArcCentre(model, centre)) {
    auto const axis = ArcAxis(member, points, centre);
    if (Length(axis) > 0) points = ArcPoints(centre, axis, points.front(), points.back());
  }
  return {{points, {nodes.front(), nodes.back()}, true}};
}

/// The edges of node chains: each edge once, whichever way it is met.
class EdgeSet {
 public:
  explicit EdgeSet(CZelData const& model) : m_model(model) {}

  void AddEdge(int a, int b) {
    if (!m_seen.insert(std::minmax(a, b)).second) return;
    m_lines.push_back({MemberPoints(m_model, {a, b}), {a, b}, false});
  }
  void AddChain(Nodes const& nodes, bool closed) {
    for (std::size_t i = 1; i < nodes.size(); ++i) AddEdge(nodes[i - 1], nodes[i]);
    if (closed && nodes.size() > 2) AddEdge(nodes.back(), nodes.front());
  }
  std::vector<MemberLine> const& Lines() const { return m_lines; }

 private:
  CZelData const& m_model;
  std::set<std::pair<int, int>> m_seen;
  std::vector<MemberLine> m_lines;
};

/// The chains of a 2D topology: the outline and what stands in brackets behind it.
void AddAreaEdges(Data::CTopoList const& topology, EdgeSet& edges) {
  auto const isBracket = [](int item) {
    return item == Data::kTopoHole || item == Data::kTopoLine || item == Data::kTopoPoints ||
           item == Data::kTopoClose;
  };
  Nodes chain;
  int within = Data::kTopoHole;  // the outline closes as a hole does
  for (int const item : topology) {
    if (!Data::CTopoList::IsWord(item)) chain.push_back(item);
    if (!isBracket(item)) continue;
    if (within != Data::kTopoPoints) edges.AddChain(chain, within == Data::kTopoHole);
    chain.clear();
    within = item == Data::kTopoClose ? Data::kTopoPoints : item;
  }
  if (within != Data::kTopoPoints) edges.AddChain(chain, within == Data::kTopoHole);
}

/// The edges of a surface of triangles, but for those within a plane part of it.
void AddStripEdges(CZelData const& model, Data::CTopoList const& topology, EdgeSet& edges) {
  std::map<std::pair<int, int>, Points> normals;  // of the triangles at an edge
  for (auto const& strip : Data::TriangleStrips(topology))
    for (std::size_t i = 2; i < strip.size(); ++i) {
      auto const at = MemberPoints(model, {strip[i - 2], strip[i - 1], strip[i]});
      auto const normal = Unit(Cross(at[1] - at[0], at[2] - at[0]));
      for (auto const& [a, b] :
           {std::minmax(strip[i - 2], strip[i - 1]), std::minmax(strip[i - 1], strip[i]),
            std::minmax(strip[i - 2], strip[i])})
        normals[{a, b}].push_back(normal);
    }
  for (auto const& [edge, sides] : normals) {
    bool const within = sides.size() == 2 && Length(Cross(sides[0], sides[1])) < kPlaneSine;
    if (!within) edges.AddEdge(edge.first, edge.second);
  }
}

}  // namespace

std::vector<MemberLine> MemberLines(CZelData const& model, int number) {
  auto const& member = model.Member(number);
  auto const topology = member.Topo().Nodes();
  Nodes const nodes(topology.begin(), topology.end());
  auto const exists = [&](int node) { return model.NodeExist(node); };
  if (!std::all_of(nodes.begin(), nodes.end(), exists)) return {};
  if (member.Is1D()) return Line1D(model, member, nodes);
  EdgeSet edges(model);
  if (member.Is3D())
    AddStripEdges(model, member.Topo(), edges);
  else
    AddAreaEdges(member.Topo(), edges);
  return edges.Lines();
}

}  // namespace Tarvex::Workbench
