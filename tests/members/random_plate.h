// Random meshes of valid plane plates, and loads on them.
#pragma once

#include <algorithm>

#include "store/numeric/dir_cos.h"
#include "tests/members/plate_support.h"
#include "tests/support/random_model.h"

namespace Tarvex::Testing {

/// A mesh of up to 4 by 4 convex quadrilaterals and triangles in a skew plane, about 1 by 1, each
/// starting at a random corner, half of them with their local axes turned; in half of the meshes
/// all run the other way about.
inline CZelData RandomPlate(Random& random) {
  CZelData model;
  Vec3<double> const origin{random.Real(-9, 9), random.Real(-9, 9), random.Real(-9, 9)};
  auto const x = Unit(Vec3<double>{random.Real(0.2, 1), random.Real(-1, 1), random.Real(-1, 1)});
  auto const z = Unit(Cross(x, {random.Real(-0.1, 0.1), 0.3, random.Real(0.5, 1)}));
  auto const y = Cross(z, x);
  int const columns = random.Int(1, 4);
  int const rows = random.Int(1, 4);
  for (int j = 0; j <= rows; ++j)
    for (int i = 0; i <= columns; ++i) {
      auto const at =
          origin + x * (i + random.Real(-0.15, 0.15)) + y * (j + random.Real(-0.15, 0.15));
      NodeAt(model, at.x, at.y, at.z);
    }
  bool const turned = random.Percent(50);
  auto const add = [&](std::vector<int> nodes) {
    if (turned) std::reverse(nodes.begin(), nodes.end());
    std::rotate(nodes.begin(), nodes.begin() + random.Int(0, static_cast<int>(nodes.size()) - 1),
                nodes.end());
    auto plate = Element(nodes.size() == 3 ? ElementType::Tri3 : ElementType::Quad4, nodes);
    if (random.Percent(50)) plate.SetOrientationAngle(random.Real(-180, 180));
    model.SetElem(model.HighestElem() + 1, plate);
  };
  for (int j = 0; j < rows; ++j)
    for (int i = 0; i < columns; ++i) {
      int const a = j * (columns + 1) + i + 1;
      int const b = a + columns + 1;
      if (random.Percent(25)) {
        add({a, a + 1, b + 1});
        add({a, b + 1, b});
      } else {
        add({a, a + 1, b + 1, b});
      }
    }
  return model;
}

/// Corners of a plate.
inline int CornersOf(CZelData const& model, int n) { return model.Elem(n).Shape().corners; }

/// Uniform, linear, edge and point loads of several cases on elements of a plate.
inline void AddPlateLoads(CZelData& model, Random& random) {
  auto const direction = [&] { return static_cast<Direction>(random.Int(1, 3)); };
  auto const on = [&](auto load, Data::CEntList const& list) {
    load.SetLoadCase(random.Int(1, 3));
    load.SetDirection(direction());
    load.SetLoadedEntities(list);
    return load;
  };
  auto const single = [](int n) { return Data::CEntList(SelElement, std::vector<int>{n}); };
  std::vector<int> some;
  for (int const n : ElementNumbers(model)) {
    if (random.Percent(50)) some.push_back(n);
    if (random.Percent(50)) {  // linear over the plane
      Data::CFaceLoad load;
      load.SetType(Data::CFaceLoad::Load2D::PerCorner);
      Vec3<double> const slope{random.Real(-3, 3), random.Real(-3, 3), random.Real(-3, 3)};
      for (int i = 0; i < CornersOf(model, n); ++i)
        load.SetValue(i, 2 + Dot(slope, model.NodeCoor(model.Elem(n).Topo(i))));
      model.SetFaceLoad(model.HighestFaceLoad() + 1, on(load, single(n)));
    }
    if (random.Percent(50)) {
      Data::CEdgeLoad load;
      load.SetEdge(random.Int(1, CornersOf(model, n)));
      for (int const end : {0, 1}) load.SetValue(end, random.Real(-5, 5));
      model.SetEdgeLoad(model.HighestEdgeLoad() + 1, on(load, single(n)));
    }
    if (random.Percent(50)) {
      Data::CFaceLoad load;
      load.SetType(Data::CFaceLoad::Load2D::Point);
      load.SetValue(0, random.Real(-5, 5));
      bool const triangle = CornersOf(model, n) == 3;
      load.SetPosition({random.Real(triangle ? 0.1 : -0.9, triangle ? 0.4 : 0.9),
                        random.Real(triangle ? 0.1 : -0.9, triangle ? 0.4 : 0.9)});
      model.SetFaceLoad(model.HighestFaceLoad() + 1, on(load, single(n)));
    }
  }
  if (some.empty()) return;
  Data::CFaceLoad load;
  load.SetValue(0, 4);
  model.SetFaceLoad(model.HighestFaceLoad() + 1, on(load, Data::CEntList(SelElement, some)));
}

}  // namespace Tarvex::Testing
