#include "store/model/member_topology.h"

#include <algorithm>
#include <map>

#include "store/model/entity_geometry.h"
#include "store/numeric/element_frame.h"

namespace Tarvex::MemberTopology {
namespace {

using Data::CMember;
using Data::CTopoList;
using Data::TopoVector;
using EntityGeometry::Points;

double CoincidenceOf(ModelState const& state) { return state.spec.GenTol(TolType::Coincidence); }

bool StandApart(std::span<Vec3<double> const> points, double tolerance) {
  for (std::size_t i = 1; i < points.size(); ++i)
    if (Length(points[i] - points[i - 1]) <= tolerance) return false;
  return true;
}

bool IsLine(ModelState const& state, CMember const& member) {
  auto const& items = member.Topo();
  bool const plain = std::none_of(items.begin(), items.end(), &CTopoList::IsWord);
  Points const points(state, items.Nodes());
  return plain && points.size() >= 2 && StandApart(points, CoincidenceOf(state));
}

bool IsArc(ModelState const& state, CMember const& member) {
  auto const centre = EntityGeometry::ArcCentre(state, member);
  Points const points(state, member.Topo().Nodes());
  double const tolerance = CoincidenceOf(state);
  if (!centre || !StandApart(points, tolerance)) return false;
  double const difference = Length(points.front() - *centre) - Length(points.back() - *centre);
  return std::abs(difference) <= tolerance;
}

/// One run of nodes of a 2D member: the outline, a hole, an inner line or inner points.
struct Run {
  int kind = 0;  // 0 the outline, else the word that opened it
  TopoVector nodes;
  bool closed = false;
};

/// The runs of a 2D topology; empty where words stand where they must not.
std::vector<Run> RunsOf(CTopoList const& items) {
  std::vector<Run> runs{{0, {}, true}};
  bool inside = false;
  for (int const item : items) {
    bool const opens =
        item == Data::kTopoHole || item == Data::kTopoLine || item == Data::kTopoPoints;
    if (item == Data::kTopoAbout || item == Data::kTopoStripEnd || (opens && inside) ||
        (item == Data::kTopoClose && !inside))
      return {};
    if (opens) runs.push_back({item, {}, false});
    if (item == Data::kTopoClose) runs.back().closed = true;
    if (!CTopoList::IsWord(item) && runs.size() > 1 && !inside) return {};
    if (opens || item == Data::kTopoClose) inside = opens;
    if (!CTopoList::IsWord(item)) runs.back().nodes.push_back(item);
  }
  return runs;
}

/// Arcs stand between nodes; the last one of an outline or hole may end at its first node.
bool ArcsHaveTheirNodes(CTopoList const& items) {
  int before = Data::kTopoClose;
  for (int const item : items) {
    if (item == Data::kTopoArc && CTopoList::IsWord(before)) return false;
    if (before == Data::kTopoArc && CTopoList::IsWord(item)) return false;
    before = item;
  }
  return before != Data::kTopoArc;
}

/// Whether a ring holds an area: it is wider on the mean than a tolerance.
bool IsWide(std::span<Vec3<double> const> ring, double tolerance) {
  double around = Length(ring.front() - ring.back());
  for (std::size_t i = 1; i < ring.size(); ++i) around += Length(ring[i] - ring[i - 1]);
  return Length(Util::PolygonNormal(ring)) > tolerance * around;
}

bool IsGoodRun(ModelState const& state, Run const& run) {
  Points const points(state, run.nodes);
  if (!run.closed || points.size() != run.nodes.size()) return false;
  if (run.kind == Data::kTopoPoints) return !points.empty();
  if (run.kind == Data::kTopoLine)
    return points.size() >= 2 && StandApart(points, CoincidenceOf(state));
  return points.size() >= 3 && IsWide(points, CoincidenceOf(state));
}

bool IsSurface(ModelState const& state, CMember const& member) {
  auto const runs = RunsOf(member.Topo());
  return !runs.empty() && ArcsHaveTheirNodes(member.Topo()) &&
         std::all_of(runs.begin(), runs.end(),
                     [&](Run const& run) { return IsGoodRun(state, run); });
}

/// Whether the strips of triangles close: each edge belongs to two triangles.
bool IsSolid(ModelState const& state, CMember const& member) {
  std::map<std::pair<int, int>, int> edges;
  for (auto const& strip : Data::TriangleStrips(member.Topo())) {
    if (strip.size() < 3 || Points(state, strip).empty()) return false;
    for (std::size_t i = 2; i < strip.size(); ++i)
      for (std::size_t a = 0; a < 3; ++a)
        ++edges[std::minmax(strip[i - 2 + a], strip[i - 2 + (a + 1) % 3])];
  }
  return !edges.empty() && std::all_of(edges.begin(), edges.end(), [](auto const& edge) {
    return edge.second == 2 && edge.first.first != edge.first.second;
  });
}

}  // namespace

bool IsValid(ModelState const& state, CMember const& member) {
  if (member.Is2D()) return IsSurface(state, member);
  if (member.Is3D()) return IsSolid(state, member);
  return member.Geometry() == MembGeom::Line ? IsLine(state, member) : IsArc(state, member);
}

}  // namespace Tarvex::MemberTopology
