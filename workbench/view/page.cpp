#include "workbench/view/page.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <unordered_map>

#include "store/numeric/box.h"

namespace Tarvex::Workbench {
namespace {

constexpr double kFlat = 1e-9;       // of the size of a model: a width below it is none
constexpr double kDepthStep = 1e-6;  // of the size of a model: depths that differ by less are equal
constexpr double kInPlane = 1e-3;    // of the size of a panel: a point within it is in its plane
constexpr double kNear = 5;          // tenths: points as near as that to a line are on it
constexpr int kShortest = 15;        // tenths: a line below it shows no direction

/// Lowest and highest of the values that were added.
struct Range {
  double low = std::numeric_limits<double>::infinity();
  double high = -std::numeric_limits<double>::infinity();

  void Add(double value) {
    low = std::min(low, value);
    high = std::max(high, value);
  }
  double Width() const { return high - low < kFlat ? 0 : high - low; }
  double Middle() const { return low > high ? 0 : (low + high) / 2; }
};

/// Twice the area of a polygon of the page, above 0 where it runs counter-clockwise for the viewer.
std::int64_t SeenArea(std::vector<PagePoint> const& points) {
  std::int64_t area = 0;
  for (std::size_t i = 0; i < points.size(); ++i) {
    auto const& a = points[i];
    auto const& b = points[(i + 1) % points.size()];
    area += std::int64_t{b.x} * a.y - std::int64_t{a.x} * b.y;  // y of the page runs down
  }
  return area;
}

/// Looks of a face that is seen from the front, from behind and edge on.
using FaceLooks = std::array<Look, 3>;
constexpr FaceLooks kPlateLooks{Look::PlateFront, Look::PlateBack, Look::PlateEdge};
constexpr FaceLooks kPanelLooks{Look::PanelFront, Look::PanelBack, Look::PanelEdge};

Look FaceLook(ThingKind kind, std::int64_t area) {
  if (kind == ThingKind::SolidFace) return Look::Solid;
  auto const& looks = kind == ThingKind::Plate ? kPlateLooks : kPanelLooks;
  return looks[area > 0 ? 0 : area < 0 ? 1 : 2];
}

/// An end of a line, or a spot.
struct LoosePoint {
  PagePoint at;
  Vec3<double> point;
  int node = 0;
};

/// Whether a point is in a polygon, or within the width of a line of its boundary.
bool IsIn(std::vector<PagePoint> const& polygon, PagePoint p) {
  auto const from = [&](PagePoint const& q) {
    return Vec2<double>{static_cast<double>(q.x - p.x), static_cast<double>(q.y - p.y)};
  };
  bool inside = false;
  for (std::size_t i = 0; i < polygon.size(); ++i) {
    auto const a = from(polygon[i]);
    auto const edge = from(polygon[(i + 1) % polygon.size()]) - a;
    double const square = std::max(Dot(edge, edge), 1.0);
    auto const nearest = a + edge * std::clamp(-Dot(a, edge) / square, 0.0, 1.0);
    if (Length(nearest) <= kNear) return true;
    bool const crosses = (a.y > 0) != (a.y + edge.y > 0);
    if (crosses && a.x - a.y * edge.x / edge.y > 0) inside = !inside;
  }
  return inside;
}

/// Normal of a polygon, twice its area long.
Vec3<double> NormalOf(std::vector<Vec3<double>> const& polygon) {
  Vec3<double> normal;
  for (std::size_t i = 2; i < polygon.size(); ++i)
    normal += Cross(polygon[i - 1] - polygon[0], polygon[i] - polygon[0]);
  return normal;
}

/// Makes the marks of a scene and knows how near the faces at each node are.
class MarkMaker {
 public:
  MarkMaker(Scene const& scene, PageFit const& fit) : m_scene(scene), m_fit(fit) {}

  std::vector<Mark> Make() {
    for (auto const& thing : m_scene.things)
      if (IsFace(thing.kind)) AddFace(thing);
    GatherLoosePoints();
    for (auto const& thing : m_scene.things)
      if (thing.kind == ThingKind::Panel) PutOnPanel(thing);
    for (auto const& thing : m_scene.things)
      if (!IsFace(thing.kind)) AddLineOrSpot(thing);
    for (auto const& number : m_scene.numbers) AddNumber(number);
    // Far first; a look that covers another stands behind it in the enumeration.
    std::stable_sort(m_marks.begin(), m_marks.end(), [](Mark const& a, Mark const& b) {
      return a.depth != b.depth ? a.depth > b.depth : Rank(a.look) < Rank(b.look);
    });
    return std::move(m_marks);
  }

 private:
  /// Looks of one kind of thing are equal, so that they stay in the order of numbers.
  static int Rank(Look look) {
    if (look == Look::PlateBack || look == Look::PlateEdge) look = Look::PlateFront;
    if (look == Look::PanelBack || look == Look::PanelEdge) look = Look::PanelFront;
    return static_cast<int>(look);
  }

  std::vector<PagePoint> PlaceAll(Thing const& thing) const {
    std::vector<PagePoint> points;
    for (auto const& p : thing.points) points.push_back(m_fit.Place(p));
    return points;
  }

  std::int64_t MeanDepth(Thing const& thing) const {
    std::int64_t sum = 0;
    for (auto const& p : thing.points) sum += m_fit.Depth(p);
    return sum / static_cast<std::int64_t>(thing.points.size());
  }

  void AddFace(Thing const& thing) {
    auto points = PlaceAll(thing);
    auto const area = SeenArea(points);
    if (thing.kind == ThingKind::SolidFace && area < 0) return;
    auto const depth = MeanDepth(thing);
    for (int const node : thing.nodes) PutOnFace(node, depth);
    m_marks.push_back({FaceLook(thing.kind, area), depth, std::move(points), 0});
  }

  void PutOnFace(int node, std::int64_t depth) {
    auto const [at, isNew] = m_nearest.try_emplace(node, depth);
    if (!isNew) at->second = std::min(at->second, depth);
  }

  void GatherLoosePoints() {
    for (auto const& thing : m_scene.things) {
      if (IsFace(thing.kind)) continue;
      for (auto const& [point, node] : {std::pair(thing.points.front(), thing.nodes.front()),
                                        std::pair(thing.points.back(), thing.nodes.back())})
        m_loose.push_back({m_fit.Place(point), point, node});
    }
    std::sort(m_loose.begin(), m_loose.end(),
              [](auto const& a, auto const& b) { return a.at.x < b.at.x; });
  }

  /// A panel spans over finer elements, whose nodes in its plane are none of its own: they are on
  /// it, too.
  void PutOnPanel(Thing const& panel) {
    auto const points = PlaceAll(panel);
    auto const [left, right] =
        std::minmax_element(points.begin(), points.end(), [](auto a, auto b) { return a.x < b.x; });
    auto const normal = NormalOf(panel.points);
    auto const depth = MeanDepth(panel);
    double const slack = kInPlane * std::sqrt(Length(normal));
    auto at = std::lower_bound(m_loose.begin(), m_loose.end(), left->x,
                               [](LoosePoint const& p, int x) { return p.at.x < x; });
    for (; at != m_loose.end() && at->at.x <= right->x; ++at)
      if (std::abs(Dot(Unit(normal), at->point - panel.points[0])) <= slack && IsIn(points, at->at))
        PutOnFace(at->node, depth);
  }

  /// The depth of something that is drawn upon the faces that all its nodes are nodes of: never
  /// more than theirs. Of something with more than two nodes, one on a face is enough.
  std::int64_t OnFaces(std::int64_t own, std::vector<int> const& nodes) const {
    std::int64_t faces = std::numeric_limits<std::int64_t>::min();
    for (int const node : nodes) {
      auto const found = m_nearest.find(node);
      if (found != m_nearest.end())
        faces = std::max(faces, found->second);
      else if (nodes.size() <= 2)
        return own;
    }
    return faces == std::numeric_limits<std::int64_t>::min() ? own : std::min(own, faces);
  }

  void AddLineOrSpot(Thing const& thing) {
    auto const depth = OnFaces(MeanDepth(thing), thing.nodes);
    m_marks.push_back({LookOf(thing), depth, PlaceAll(thing), 0});
  }

  void AddNumber(NumberMark const& number) {
    auto const depth = OnFaces(m_fit.Depth(number.at), number.nodes);
    auto const look = number.nodes.size() > 2 ? Look::Number : Look::NumberBeside;
    m_marks.push_back({look, depth, {m_fit.Place(number.at)}, number.number});
  }

  Look LookOf(Thing const& thing) const {
    if (thing.kind == ThingKind::Support) return Look::Support;
    if (thing.kind == ThingKind::Fixed) return Look::Fixed;
    if (thing.kind == ThingKind::MemberOutline) return Look::MemberOutline;
    if (thing.kind == ThingKind::MemberBody) return Look::MemberBody;
    if (thing.kind == ThingKind::Member) return Look::Member;
    auto const a = m_fit.Place(thing.points.front());
    auto const b = m_fit.Place(thing.points.back());
    if (std::hypot(b.x - a.x, b.y - a.y) >= kShortest) return Look::Line;
    auto const deeper = m_fit.Depth(thing.points.back()) - m_fit.Depth(thing.points.front());
    return deeper > 0 ? Look::LineAway : Look::LineToward;
  }

  Scene const& m_scene;
  PageFit const& m_fit;
  std::vector<Mark> m_marks;
  std::vector<LoosePoint> m_loose;                  // from left to right
  std::unordered_map<int, std::int64_t> m_nearest;  // of the faces at a node
};

}  // namespace

PageFit::PageFit(View view, std::vector<Vec3<double>> const& points, PageBox const& most,
                 int leastHeight)
    : m_view(view), m_box(most) {
  // In halves, so that the sum and the difference of the greatest numbers are finite.
  Util::CBox3D box;
  for (auto const& p : points) box.AddPoint(p * 0.5);
  m_halfCentre = box.Min() * 0.5 + box.Max() * 0.5;
  auto const size = box.Max() - box.Min();
  double const longest = std::max({size.x, size.y, size.z});
  if (longest > 0) m_halfSize = longest;
  Range right;
  Range up;
  for (auto const& p : points) {
    auto const seen = See(p);
    right.Add(seen.right);
    up.Add(seen.up);
  }
  m_right = right.Middle();
  m_up = up.Middle();
  auto const scale = [](int room, double width) {
    return width > 0 ? room / width : std::numeric_limits<double>::infinity();
  };
  m_scale = std::min(scale(most.width, right.Width()), scale(most.height, up.Width()));
  if (!std::isfinite(m_scale)) m_scale = 0;
  auto const needed = static_cast<int>(std::lround(m_scale * up.Width()));
  m_box.height = std::clamp(needed, std::min(leastHeight, most.height), most.height);
}

SeenPoint PageFit::See(Vec3<double> const& point) const {
  return Project(m_view, (point * 0.5 - m_halfCentre) / m_halfSize);
}

PagePoint PageFit::Place(Vec3<double> const& point) const {
  auto const seen = See(point);
  auto const place = [&](double away) { return static_cast<int>(std::lround(m_scale * away)); };
  return {m_box.left + m_box.width / 2 + place(seen.right - m_right),
          m_box.top + m_box.height / 2 - place(seen.up - m_up)};
}

std::int64_t PageFit::Depth(Vec3<double> const& point) const {
  return std::llround(See(point).depth / kDepthStep);
}

std::vector<Mark> MakeMarks(Scene const& scene, PageFit const& fit) {
  return MarkMaker(scene, fit).Make();
}

}  // namespace Tarvex::Workbench
