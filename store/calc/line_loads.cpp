#include "store/calc/line_loads.h"

#include <cmath>

#include "store/geometry/integration.h"
#include "store/model/list_expansion.h"
#include "store/record/beam_loads.h"

namespace Tarvex::Calc {
namespace {

/// An arc, and a direction that turns, are integrated in this many parts: with three points each
/// the error is below rounding for half a turn.
constexpr int kPartsOfTurns = 32;

class LineSum {
 public:
  LineSum(LoadSum& sum, LoadDirection const& direction, LoadLine const& line, bool projected)
      : m_sum(sum), m_direction(direction), m_line(line), m_projected(projected) {}

  /// Adds a stretch piece by piece.
  void Add(Stretch const& stretch) {
    double from = stretch.from;
    for (double const end : m_line.PieceEnds()) {
      double const to = std::min(end, stretch.to);
      if (to <= from) continue;
      bool const turns = m_line.IsArc() || !m_direction.IsEven();
      int const parts = turns ? kPartsOfTurns : 1;
      double const step = (to - from) / parts;
      for (int i = 0; i < parts; ++i) AddPart(stretch, from + i * step, from + (i + 1) * step);
      from = to;
    }
  }

 private:
  void AddPart(Stretch const& stretch, double from, double to) {
    for (auto const& rule : Util::RuleOf(Util::ShapeKindOf(SpaceType::Line, 2))) {
      double const at = from + (to - from) * (1 + rule.natural.x) / 2;
      double const share = (at - stretch.from) / (stretch.to - stretch.from);
      double const value = stretch.value[0] * (1 - share) + stretch.value[1] * share;
      auto const point = m_line.At(at);
      double const seen = m_projected ? Length(Cross(m_line.Along(at), m_direction.At(point))) : 1;
      m_sum.Add(m_direction, point, value * seen * rule.weight * (to - from) / 2);
    }
  }

  LoadSum& m_sum;
  LoadDirection const& m_direction;
  LoadLine const& m_line;
  bool m_projected;
};

/// A place along a line: below 0 it is minus a part of the length.
double PlaceOn(double position, double length) {
  return position < 0 ? -position * length : position;
}

/// What a spread load is between two places, the first no further than the second.
std::vector<Stretch> StretchesOf(Data::CBeamLoad const& load, double length) {
  using Type = Data::CBeamLoad::LoadType;
  double const v0 = load.Value(0);
  double const v1 = load.Value(1);
  double const a = PlaceOn(load.Pos(0), length);
  double const b = PlaceOn(load.Pos(1), length);
  switch (load.TypeOf()) {
    case Type::Uniform:
      return {{0, length, {v0, v0}}};
    case Type::Linear:
      return {{0, length, {v0, v1}}};
    case Type::Patch:
      return {{a, b, {v0, v1}}};
    case Type::Trilinear:
      return {{0, a, {0, v0}}, {a, b, {v0, v1}}, {b, length, {v1, 0}}};
    case Type::Point:
      break;
  }
  return {};
}

void AddBeamLoad(LoadSum& sum, Data::CBeamLoad const& load, LoadDirection const& direction,
                 LoadLine const& line) {
  double const length = line.Length();
  // Places that were worked out may miss the end by rounding.
  double const end = length * (1 + 1e-9);
  auto const isOn = [&](double place) { return place >= 0 && place <= end; };
  if (load.TypeOf() == Data::CBeamLoad::LoadType::Point) {
    double const place = PlaceOn(load.Pos(0), length);
    if (!isOn(place)) return sum.LeaveOut("its position is beyond the end");
    return sum.Add(direction, line.At(place), load.Value(0));
  }
  auto const stretches = StretchesOf(load, length);
  for (auto const& stretch : stretches)
    if (!isOn(stretch.from) || !isOn(stretch.to) || stretch.to < stretch.from)
      return sum.LeaveOut("its positions are beyond the end or out of order");
  AddStretches(sum, direction, line, stretches, load.IsProjected());
}

}  // namespace

void AddStretches(LoadSum& sum, LoadDirection const& direction, LoadLine const& line,
                  std::span<Stretch const> stretches, bool projected) {
  LineSum lineSum(sum, direction, line, projected);
  for (auto const& stretch : stretches) lineSum.Add(stretch);
}

void SumLineLoads(CZelData const& model, LoadTotals& totals) {
  ForEachDirectedLoad(
      model, totals, "BeamLoad", model.BeamLoad(),
      [&](LoadSum& sum, Data::CBeamLoad const& load, LoadDirection const& direction) {
        auto const& list = load.LoadedEntities();
        for (int const n : Util::MakeSet(list, model)) {
          SEntRef const ref(list.TypeOf(), n);
          if (!model.EntIs1D(ref)) continue;
          if (auto const line = LoadLine::Of(model, ref))
            AddBeamLoad(sum, load, direction, *line);
          else
            sum.LeaveOut("a line lacks a node");
        }
      });
}

}  // namespace Tarvex::Calc
