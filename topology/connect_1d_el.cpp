#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "store/geometry/axis_trans.h"
#include "store/geometry/line.h"
#include "store/geometry/rounding.h"
#include "store/model/get_node_at.h"
#include "store/model/zel_data.h"
#include "store/record/node.h"
#include "tarvex/split_connect.h"
#include "topology/line_index.h"
#include "topology/perimeter.h"

namespace Tarvex {
namespace {

/// Significant digits that the co-ordinates of a meeting are rounded to.
constexpr int kMeetingDigits = 15;
/// What boxes are drawn wider by, as part of their distance from the origin, so that rounding
/// leaves no meeting out.
constexpr double kBoxSlack = 1e-12;

/// The zones at the ends of a line that its rigid offsets take, along it.
struct EndZones {
  double start = 0;  ///< above 0
  double end = 0;    ///< below 0, from the end
};

EndZones ZonesOf(CZelData const& model, SEntRef ref, Data::CLine3 const& line) {
  if (!model.EntIsOffset(ref)) return {};
  auto const chord = line.End() - line.Start();
  auto const x = Length(chord) < kZeroLength ? Vec3<double>{1, 0, 0} : Unit(chord);
  return {std::max(0.0, Dot(model.EntOffset(ref, 0), x)),
          std::min(0.0, Dot(model.EntOffset(ref, 1), x))};
}

/// A side of a plate or a 1D entity between two nodes.
struct MeetingLine {
  int entity = 0;
  int a = 0;
  int b = 0;
  Data::CLine3 line{{}, {}};
  double length = 0;
  EndZones zones;

  bool Has(int node) const { return node == a || node == b; }
};

}  // namespace

/// One run. Lines too far away to meet are passed over unseen, so that a model of n lines costs in
/// the order of n log n and not of n squared.
class CConnect1dEl::Run {
 public:
  explicit Run(CConnect1dEl& tool) : m_tool(tool), m_model(tool.m_model), m_set(tool.m_set) {}

  bool Connect() {
    m_highest = m_set.HighestItem();
    for (int const n : Util::CSet(m_set)) PutLine(n);
    for (int i = std::max(m_set.LowestItem(), 1); i <= m_highest; ++i) {
      if (!m_set.IsItemIncluded(i) || !CanBeFirst(i)) continue;
      SEntRef const ref(m_tool.m_entType, i);
      bool const plate = m_model.EntIs2D(ref);
      int const sides = plate ? m_model.EntNumTopo(ref) : 1;
      for (int side = 0; side < sides; ++side)
        if (!ConnectSide(i, plate, side)) break;
    }
    return m_changed;
  }

 private:
  bool CanBeFirst(int entity) const {
    if (m_tool.m_entType == SelMember) return m_model.MemberExist(entity);
    if (!m_model.ElemExist(entity)) return false;
    auto const& element = m_model.Elem(entity);
    return element.Is1D() || element.Is2D();
  }
  bool CanBeSecond(int entity) const {
    if (m_tool.m_entType == SelMember) return m_model.MemberExist(entity);
    return m_model.ElemExist(entity) && m_model.Elem(entity).Is1D();
  }

  /// Reads a side of an entity. @return false when one of its nodes does not exist.
  bool ReadLine(int entity, int side, bool zones, MeetingLine& line) const {
    line.entity = entity;
    line.a = m_tool.Topo(entity, side);
    line.b = m_tool.Topo(entity, side + 1);
    if (!PlaceLine(line)) return false;
    if (zones) line.zones = ZonesOf(m_model, {m_tool.m_entType, entity}, line.line);
    return true;
  }
  bool PlaceLine(MeetingLine& line) const {
    if (!m_model.NodeExist(line.a) || !m_model.NodeExist(line.b)) return false;
    line.line = {m_model.NodeCoor(line.a), m_model.NodeCoor(line.b)};
    line.length = line.line.Length();
    return true;
  }

  /// A box that holds every point of a line at which it can meet another: a meeting may be beyond
  /// its ends by the end tolerance, and off it by the connection tolerance.
  LineBox BoxOf(MeetingLine const& line) const {
    auto const& a = line.line.Start();
    auto const& b = line.line.End();
    double const slack = kBoxSlack * (Length(a) + Length(b));
    double const margin = std::abs(m_tool.m_endTol) + std::abs(m_tool.m_connectionTol) + slack;
    return LineBox::Around(a, b, margin);
  }
  /// A box that holds every point of a line at which a corner can touch it, too: corners are looked
  /// for along its axis. That of an entity with more nodes than two leaves its first two.
  LineBox BoxWithAxis(MeetingLine const& line) const {
    auto along = line;
    auto const x = m_model.EntDC({m_tool.m_entType, line.entity}).AxisVec(Direction::X);
    along.line = {line.line.Start(), line.line.Start() + line.length * x};
    return BoxOf(line).With(BoxOf(along));
  }
  void PutLine(int entity) {
    MeetingLine line;
    if (!CanBeSecond(entity) || !ReadLine(entity, 0, false, line)) return;
    SEntRef const ref(m_tool.m_entType, entity);
    std::vector<int> nodes;
    for (int i = 0; i < m_model.EntNumTopo(ref); ++i) nodes.push_back(m_model.EntTopo(ref, i));
    m_index.Put(entity, nodes, BoxWithAxis(line));
  }

  /// What came of two lines.
  enum class Outcome { Nothing, Changed, FirstGone };

  /// Connects one side of an entity with all others, ascending. @return false when it has gone.
  bool ConnectSide(int entity, bool plate, int side) {
    MeetingLine first;
    if (!ReadLine(entity, side, !plate, first)) return true;
    int done = 0;
    for (bool again = true; again;) {
      again = false;
      for (int const j : m_index.Near(BoxOf(first), done)) {
        auto const outcome = ConnectWith(first, plate, j);
        if (outcome == Outcome::FirstGone) return false;
        if (outcome == Outcome::Nothing) continue;
        // Nodes have moved, lines have come and gone: what is near is found anew.
        if (!PlaceLine(first)) return true;
        done = j;
        again = true;
        break;
      }
    }
    return true;
  }

  Outcome ConnectWith(MeetingLine const& first, bool plate, int j) {
    MeetingLine second;
    if (j == first.entity || !m_set.IsItemIncluded(j) || !CanBeSecond(j)) return Outcome::Nothing;
    if (!ReadLine(j, 0, true, second)) return Outcome::Nothing;
    if (!plate && (second.Has(first.a) || second.Has(first.b))) return Outcome::Nothing;
    double const t = m_tool.m_endTol;
    if (first.length < t || second.length < t) return Outcome::Nothing;
    return plate ? TouchCorner(first.a, second) : Cross(first, second);
  }

  Outcome Cross(MeetingLine const& first, MeetingLine const& second) {
    double r1 = 0;
    double r2 = 0;
    double distance = 0;
    if (!first.line.Intersect(second.line, r1, r2, distance)) return Outcome::Nothing;
    if (!(distance < m_tool.m_connectionTol)) return Outcome::Nothing;
    double const p1 = r1 * first.length;
    double const p2 = r2 * second.length;
    double const t = m_tool.m_endTol;
    bool const within = -t < p1 && p1 < first.length + t && -t < p2 && p2 < second.length + t;
    if (!within) return Outcome::Nothing;
    auto const isRigid = [t](MeetingLine const& line, double p) {
      return (line.zones.start != 0 && p < t + line.zones.start) ||
             (line.zones.end != 0 && p > line.length + line.zones.end - t);
    };
    if (isRigid(first, p1) || isRigid(second, p2)) {
      m_tool.m_someSplitsSkipped = true;
      return Outcome::Nothing;
    }
    int const node = MeetingNode(first, second, r1, r2);
    m_changed = true;
    if (!second.Has(node)) SplitAt(node, second, r2, p2);
    bool const gone = !first.Has(node) && SplitAt(node, first, r1, p1);
    return gone ? Outcome::FirstGone : Outcome::Changed;
  }

  /// The node at which two lines meet.
  int MeetingNode(MeetingLine const& first, MeetingLine const& second, double r1, double r2) {
    double const t = m_tool.m_endTol;
    auto const endNear = [t](MeetingLine const& line, double r) {
      double const p = r * line.length;
      if (std::abs(p) < t) return line.a;
      return std::abs(p - line.length) < t ? line.b : 0;
    };
    auto const at = first.line.Point(r1);
    if (int const node = endNear(first, r1); node >= 1) {
      MoveNode(node, at);
      return node;
    }
    if (int const node = endNear(second, r2); node >= 1) {
      MoveNode(node, second.line.Point(r2));
      return node;
    }
    double const tolerance = m_tool.m_useCoincidenceTol ? m_tool.m_coincidenceTol : 0.0;
    return ZelUtil::GetNodeAt(m_model, Round(at, kMeetingDigits), tolerance, CString(L""));
  }

  Outcome TouchCorner(int corner, MeetingLine const& line) {
    if (line.Has(corner)) return Outcome::Nothing;
    Util::CAxisTrans along;
    along.Assign(m_model.EntDC({m_tool.m_entType, line.entity}), line.line.Start());
    auto const at = along.Global2User(m_model.NodeCoor(corner));
    if (!(0 < at.x && at.x < line.length)) return Outcome::Nothing;
    if (!(std::hypot(at.y, at.z) < m_tool.m_connectionTol)) return Outcome::Nothing;
    double const t = m_tool.m_endTol;
    if (at.x < t + line.zones.start || at.x > line.zones.end + line.length - t) {
      m_tool.m_someSplitsSkipped = true;
      return Outcome::Nothing;
    }
    SplitAt(corner, line, at.x / line.length, at.x);
    m_changed = true;
    return Outcome::Changed;
  }

  void MoveNode(int node, Vec3<double> const& point) {
    m_tool.SetCoor(node, point);
    for (int const line : m_index.LinesAt(node))
      if (m_set.IsItemIncluded(line)) PutLine(line);
  }

  /// @return whether the line has been cut in two, and gone.
  bool SplitAt(int node, MeetingLine const& line, double ratio, double position) {
    int const highest = m_tool.DoSplit(node, line.entity, line.length, ratio, position);
    if (highest == 0) {
      PutLine(line.entity);  // an end of it may have moved
      return false;
    }
    m_index.Remove(line.entity);
    PutLine(highest - 1);
    PutLine(highest);
    m_highest = highest;
    return true;
  }

  CConnect1dEl& m_tool;
  CZelData& m_model;
  Util::CSet& m_set;
  LineIndex m_index;
  int m_highest = 0;
  bool m_changed = false;
};

CConnect1dEl::CConnect1dEl(CZelData& model) : m_model(model) {}
CConnect1dEl::CConnect1dEl(CConnect1dEl const&) = default;
CConnect1dEl::CConnect1dEl(CConnect1dEl&&) noexcept = default;
CConnect1dEl::~CConnect1dEl() = default;

bool CConnect1dEl::Do() {
  m_allLoadsMapped = true;
  m_someSplitsSkipped = false;
  m_model.FlagRebuild();
  m_model.rebuildHold = true;
  bool const changed = Run(*this).Connect();
  m_model.rebuildHold = false;
  return changed;
}

int CConnect1dEl::Topo(int entity, int index) const {
  if (m_entType != SelElement && m_entType != SelMember) throw std::out_of_range("bad entity type");
  SEntRef const ref(m_entType, entity);
  if (!m_model.EntIs2D(ref)) return m_model.EntTopo(ref, index);
  // For members too the type is read of the element that bears the number.
  int const place = m_model.ElemExist(entity) ? PerimeterPlace(m_model.Elem(entity).Type(), index)
                                              : index % std::max(m_model.EntNumTopo(ref), 1);
  return m_model.EntTopo(ref, place);
}

}  // namespace Tarvex
