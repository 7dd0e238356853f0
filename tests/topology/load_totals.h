// Resultants of loads in global axes, by quadrature from the model alone: the measure of what a
// mapping must keep. It knows loads on beams, plates and bricks whose axis is the global one.
#pragma once

#include <array>
#include <cmath>

#include "tests/topology/topology_support.h"

namespace Tarvex::Testing {

/// Force and moment about the origin, and the sum of the magnitudes that went into them.
struct Resultant {
  Vec3<double> force;
  Vec3<double> moment;
  double forceSize = 0;
  double momentSize = 0;

  void AddForce(Vec3<double> const& at, Vec3<double> const& f) {
    force += f;
    moment += Cross(at, f);
    forceSize += Length(f);
    momentSize += Length(at) * Length(f);
  }
};

inline ::testing::AssertionResult AreEqual(Resultant const& a, Resultant const& b,
                                           double relative) {
  double const force = Length(a.force - b.force);
  double const moment = Length(a.moment - b.moment);
  if (force <= relative * a.forceSize && moment <= relative * (a.momentSize + a.forceSize))
    return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << "forces differ by " << force << " of " << a.forceSize
                                       << ", moments by " << moment << " of " << a.momentSize;
}

inline Vec3<double> UnitOf(Direction direction) {
  return {direction == Direction::X ? 1.0 : 0.0, direction == Direction::Y ? 1.0 : 0.0,
          direction == Direction::Z ? 1.0 : 0.0};
}

/// Points and weights of Gauss on 0 to 1, exact up to the fifth power.
struct GaussPoint {
  double at;
  double weight;
};
inline std::array<GaussPoint, 3> Gauss() {
  double const d = std::sqrt(0.15);
  return {{{0.5 - d, 5.0 / 18}, {0.5, 8.0 / 18}, {0.5 + d, 5.0 / 18}}};
}

/// The numbers of a list of plain numbers.
inline std::vector<int> PlainNumbers(Data::CEntList const& list) {
  std::vector<int> numbers;
  for (int const word : list.Word()) {
    EXPECT_GT(word, 0) << "no list of plain numbers: " << list.String().ToUtf8();
    numbers.push_back(word);
  }
  return numbers;
}

/// A straight run of load from (x0, q0) to (x1, q1) on a line, by Gauss.
inline void AddRun(Resultant& sum, Vec3<double> const& a, Vec3<double> const& axis,
                   Vec3<double> const& e, double x0, double q0, double x1, double q1) {
  for (auto const& [t, w] : Gauss()) {
    double const x = x0 + (x1 - x0) * t;
    sum.AddForce(a + axis * x, e * ((q0 + (q1 - q0) * t) * w * (x1 - x0)));
  }
}

inline Resultant BeamTotals(CZelData const& model) {
  using Type = Data::CBeamLoad::LoadType;
  Resultant sum;
  for (auto const& load : model.BeamLoad())
    for (int const n : PlainNumbers(load.LoadedEntities())) {
      auto const a = model.Coor(n, 0);
      auto const b = model.Coor(n, 1);
      double const length = Length(b - a);
      auto const axis = (b - a) / length;
      auto const e = UnitOf(load.GetDirection());
      auto const place = [&](int i) {
        return load.Pos(i) < 0 ? -load.Pos(i) * length : load.Pos(i);
      };
      auto const run = [&](double x0, double q0, double x1, double q1) {
        AddRun(sum, a, axis, e, x0, q0, x1, q1);
      };
      double const v0 = load.Value(0);
      double const v1 = load.Value(1);
      if (load.TypeOf() == Type::Point) sum.AddForce(a + axis * place(0), e * v0);
      if (load.TypeOf() == Type::Uniform) run(0, v0, length, v0);
      if (load.TypeOf() == Type::Linear) run(0, v0, length, v1);
      if (load.TypeOf() == Type::Patch) run(place(0), v0, place(1), v1);
      if (load.TypeOf() == Type::Trilinear) {
        run(0, 0, place(0), v0);
        run(place(0), v0, place(1), v1);
        run(place(1), v1, length, 0);
      }
    }
  return sum;
}

/// A plate of three or four corners by its shape functions: r and s from 0 to 1.
struct PlainPlate {
  std::vector<Vec3<double>> corners;

  std::vector<double> Weights(double r, double s) const {
    if (corners.size() == 3) return {1 - r - s, r, s};
    return {(1 - r) * (1 - s), r * (1 - s), r * s, (1 - r) * s};
  }
  Vec3<double> At(double r, double s) const {
    Vec3<double> at;
    auto const weights = Weights(r, s);
    for (std::size_t i = 0; i < corners.size(); ++i) at += corners[i] * weights[i];
    return at;
  }
  /// Calls visit(r, s, area) for points whose areas make up the plate.
  template <class Visit>
  void Integrate(Visit&& visit) const {
    for (auto const& u : Gauss())
      for (auto const& v : Gauss()) {
        bool const triangle = corners.size() == 3;
        // A triangle is a square with one side drawn together.
        double const r = u.at;
        double const s = triangle ? v.at * (1 - u.at) : v.at;
        double const fold = triangle ? 1 - u.at : 1;
        auto const dr = triangle
                            ? corners[1] - corners[0]
                            : (corners[1] - corners[0]) * (1 - s) + (corners[2] - corners[3]) * s;
        auto const ds = triangle
                            ? corners[2] - corners[0]
                            : (corners[3] - corners[0]) * (1 - r) + (corners[2] - corners[1]) * r;
        visit(r, s, Length(Cross(dr, ds)) * u.weight * v.weight * fold);
      }
  }
};

inline PlainPlate PlateOf(CZelData const& model, std::vector<int> const& nodes) {
  PlainPlate plate;
  for (int const node : nodes) plate.corners.push_back(model.NodeCoor(node));
  return plate;
}

/// Adds a pressure by corner in a direction.
inline void AddPressure(Resultant& sum, PlainPlate const& plate, Vec3<double> const& e,
                        std::vector<double> const& values) {
  plate.Integrate([&](double r, double s, double area) {
    double pressure = 0;
    auto const weights = plate.Weights(r, s);
    for (std::size_t i = 0; i < weights.size(); ++i) pressure += weights[i] * values[i];
    sum.AddForce(plate.At(r, s), e * (pressure * area));
  });
}

inline Resultant PlateTotals(CZelData const& model) {
  using Type = Data::CFaceLoad::Load2D;
  Resultant sum;
  for (auto const& load : model.FaceLoad())
    for (int const n : PlainNumbers(load.LoadedEntities())) {
      auto const& nodes = model.Elem(n).Topology();
      auto const plate = PlateOf(model, {nodes.begin(), nodes.end()});
      auto const e = UnitOf(load.GetDirection());
      std::vector<double> values(nodes.size(), load.Value(0));
      if (load.TypeOf() == Type::PerCorner)
        for (std::size_t i = 0; i < nodes.size(); ++i) values[i] = load.Value(static_cast<int>(i));
      auto at = load.Position();
      // Natural co-ordinates of quadrilaterals run from -1 to 1.
      if (nodes.size() == 4) at = {(at.x + 1) / 2, (at.y + 1) / 2};
      if (load.TypeOf() == Type::Point)
        sum.AddForce(plate.At(at.x, at.y), e * load.Value(0));
      else
        AddPressure(sum, plate, e, values);
    }
  for (auto const& load : model.EdgeLoad())
    for (int const n : PlainNumbers(load.LoadedEntities())) {
      auto const& element = model.Elem(n);
      auto const a = model.NodeCoor(element.Topo(load.Edge() - 1));
      auto const b = model.NodeCoor(element.Topo(load.Edge() % element.NumTopo()));
      double const length = Length(b - a);
      AddRun(sum, a, (b - a) / length, UnitOf(load.GetDirection()), 0, load.Value(0), length,
             load.Value(1));
    }
  return sum;
}

/// Uniform pressures on faces with four corners.
inline Resultant BodyTotals(CZelData const& model) {
  Resultant sum;
  for (auto const& load : model.BodyFaceLoad())
    for (int const n : PlainNumbers(load.LoadedEntities()))
      AddPressure(sum, PlateOf(model, model.Elem(n).FaceTopo(load.Face())),
                  UnitOf(load.GetDirection()), std::vector<double>(4, load.Value(0)));
  return sum;
}

}  // namespace Tarvex::Testing
