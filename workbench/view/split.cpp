#include "workbench/view/split.h"

#include <algorithm>

#include "store/numeric/box.h"

namespace Tarvex::Workbench {
namespace {

constexpr double kOnLine = 1e-6;  // of the length of a line: a point as near as that is on it

/// A node of an element.
struct MeetingPoint {
  double along = 0;  ///< co-ordinate by which the points are sorted
  Vec3<double> at;
  int node = 0;
};

/// A place on a line.
struct Stop {
  double fraction = 0;
  Vec3<double> at;
  int node = 0;
};

bool IsMemberLine(Thing const& thing) {
  return (thing.kind == ThingKind::Member || thing.kind == ThingKind::MemberOutline) &&
         thing.points.size() == 2;
}

/// The direction in which a box is longest.
Vec3<double> LongestAxis(Util::CBox3D const& box) {
  auto const size = box.Max() - box.Min();
  if (size.x >= size.y && size.x >= size.z) return {1, 0, 0};
  return size.y >= size.z ? Vec3<double>{0, 1, 0} : Vec3<double>{0, 0, 1};
}

/// Parts lines at points, which it keeps sorted along one direction.
class LineSplitter {
 public:
  explicit LineSplitter(std::vector<Thing> const& things) {
    Util::CBox3D box;
    for (auto const& thing : things)
      for (auto const& point : thing.points) box.AddPoint(point);
    m_axis = LongestAxis(box);
    for (auto const& thing : things)
      if (IsFace(thing.kind) || thing.kind == ThingKind::Line) AddPoints(thing);
    auto const order = [](auto const& a, auto const& b) {
      return a.along != b.along ? a.along < b.along : a.node < b.node;
    };
    std::sort(m_points.begin(), m_points.end(), order);
    auto const same = [](auto const& a, auto const& b) { return a.node == b.node; };
    m_points.erase(std::unique(m_points.begin(), m_points.end(), same), m_points.end());
  }

  void Split(Thing const& line, std::vector<Thing>& parts) const {
    auto const stops = StopsOf(line);
    for (std::size_t i = 1; i < stops.size(); ++i) {
      bool const last = i + 1 == stops.size();
      auto const kind = line.kind == ThingKind::Member && !last ? ThingKind::MemberBody : line.kind;
      parts.push_back({kind, {stops[i - 1].at, stops[i].at}, {stops[i - 1].node, stops[i].node}});
    }
  }

 private:
  void AddPoints(Thing const& thing) {
    for (std::size_t i = 0; i < thing.points.size(); ++i)
      m_points.push_back({Dot(m_axis, thing.points[i]), thing.points[i], thing.nodes[i]});
  }

  std::vector<Stop> StopsOf(Thing const& line) const {
    auto const& from = line.points[0];
    auto const run = line.points[1] - from;
    double const square = Dot(run, run);
    double const slack = kOnLine * Length(run);
    auto const [low, high] = std::minmax({Dot(m_axis, from), Dot(m_axis, line.points[1])});
    std::vector<Stop> stops{{0, from, line.nodes[0]}, {1, line.points[1], line.nodes[1]}};
    auto at = std::lower_bound(m_points.begin(), m_points.end(), low - slack,
                               [](MeetingPoint const& p, double v) { return p.along < v; });
    for (; square > 0 && at != m_points.end() && at->along <= high + slack; ++at) {
      double const fraction = Dot(at->at - from, run) / square;
      if (fraction <= kOnLine || fraction >= 1 - kOnLine) continue;
      if (Length(at->at - from - run * fraction) <= slack)
        stops.push_back({fraction, at->at, at->node});
    }
    std::sort(stops.begin(), stops.end(),
              [](auto const& a, auto const& b) { return a.fraction < b.fraction; });
    return stops;
  }

  Vec3<double> m_axis;
  std::vector<MeetingPoint> m_points;
};

}  // namespace

void SplitAtNodes(Scene& scene) {
  if (std::none_of(scene.things.begin(), scene.things.end(), IsMemberLine)) return;
  LineSplitter const splitter(scene.things);
  std::vector<Thing> parts;
  for (auto& thing : scene.things)
    if (IsMemberLine(thing))
      splitter.Split(thing, parts);
    else
      parts.push_back(std::move(thing));
  scene.things = std::move(parts);
}

}  // namespace Tarvex::Workbench
