#include "store/calc/surface_loads.h"

#include <array>
#include <vector>

#include "store/calc/line_loads.h"
#include "store/geometry/integration.h"
#include "store/geometry/shape.h"
#include "store/model/list_expansion.h"
#include "store/numeric/element_frame.h"
#include "store/record/body_loads.h"
#include "store/record/element.h"
#include "store/record/face_loads.h"
#include "store/record/load_panel.h"
#include "store/record/node.h"

namespace Tarvex::Calc {
namespace {

using Positions = std::vector<Vec3<double>>;

constexpr char const* kLacksNode = "a surface lacks a node";
/// Values that a load gives corners.
constexpr std::size_t kCornerValues = 4;

/// Positions of the places of an element or panel, empty when a node is missing.
Positions PlacesOf(CZelData const& model, int n) {
  SEntRef const ref(SelElement, n);
  Positions positions;
  for (int i = 0; i < model.EntNumTopo(ref); ++i) {
    if (!model.NodeExist(model.EntTopo(ref, i))) return {};
    positions.push_back(model.EntCoor(ref, i));
  }
  return positions;
}

/// The corners of an element; of a panel all its nodes.
std::size_t CornersOf(CZelData const& model, int n) {
  return static_cast<std::size_t>(model.ElemExist(n) ? model.Elem(n).Shape().corners
                                                     : model.LoadPanel(n).NumTopo());
}

/// Calls visit(n, places) for each 2D element and panel that a load acts on.
template <class Visit>
void ForEachLoadedSurface(CZelData const& model, LoadSum& sum, Data::CLoadBase const& load,
                          Visit&& visit) {
  auto const elements = model.GetLoadedElements(load, true);
  auto const& list = load.LoadedEntities();
  if (list.TypeOf() == SelMember && elements.IsEmpty() && !list.IsEmpty())
    sum.LeaveOut("its members have no elements");
  for (int const n : elements) {
    if (!model.EntIs2D({SelElement, n})) continue;
    auto const places = PlacesOf(model, n);
    if (places.empty())
      sum.LeaveOut(kLacksNode);
    else
      visit(n, places);
  }
}

/// The four values of a load, or its first one at all corners.
template <class Load>
std::array<double, kCornerValues> CornerValues(Load const& load, bool byCorner) {
  std::array<double, kCornerValues> values{};
  for (std::size_t i = 0; i < kCornerValues; ++i)
    values[i] = load.Value(byCorner ? static_cast<int>(i) : 0);
  return values;
}

void AddPointLoad(CZelData const& model, LoadSum& sum, Data::CFaceLoad const& load,
                  LoadDirection const& direction, int n, Positions const& places) {
  if (!model.ValidatePointLoadPosition(load, n))
    return sum.LeaveOut("its position is not on an element");
  Util::CShape const shape(SpaceType::Surface, places);
  sum.Add(direction, shape.CoorAtRS(load.Position()), load.Value(0));
}

void AddFaceLoad(CZelData const& model, LoadSum& sum, Data::CFaceLoad const& load,
                 LoadDirection const& direction, int n, Positions const& places) {
  using Type = Data::CFaceLoad::Load2D;
  if (load.TypeOf() == Type::Point) return AddPointLoad(model, sum, load, direction, n, places);
  bool const byCorner = load.TypeOf() == Type::PerCorner;
  bool const panel = !model.ElemExist(n);
  auto const values = CornerValues(load, byCorner);
  if (panel && places.size() > kCornerValues) {
    if (byCorner) return sum.LeaveOut("a panel has more corners than the load has values");
    return AddPolygon(sum, direction, places, values[0], load.IsProjected());
  }
  AddSurface(sum, direction, places, std::span(values).first(CornersOf(model, n)),
             load.IsProjected());
}

void SumFaceLoads(CZelData const& model, LoadTotals& totals) {
  ForEachDirectedLoad(
      model, totals, "FaceLoad", model.FaceLoad(),
      [&](LoadSum& sum, Data::CFaceLoad const& load, LoadDirection const& direction) {
        ForEachLoadedSurface(model, sum, load, [&](int n, Positions const& places) {
          AddFaceLoad(model, sum, load, direction, n, places);
        });
      });
}

/// Adds a load along an edge, which runs through its middle node where it has one.
void AddEdgeLoad(LoadSum& sum, Data::CEdgeLoad const& load, LoadDirection const& direction,
                 Positions const& places, std::size_t corners) {
  auto const edge = static_cast<std::size_t>(load.Edge()) - 1;
  if (load.Edge() < 1 || edge >= corners) return sum.LeaveOut("an element has no such edge");
  if (places.size() != corners && places.size() != 2 * corners)
    return sum.LeaveOut("an element has not the nodes of its type");
  Positions nodes{places[edge], places[(edge + 1) % corners]};
  if (places.size() > corners) nodes.push_back(places[corners + edge]);
  auto const& kind = Util::ShapeKindOf(SpaceType::Line, static_cast<int>(nodes.size()));
  Util::ForEachElementPoint(kind, nodes, [&](Util::ElementPoint const& point) {
    // The values change evenly from corner to corner in the natural co-ordinate.
    double const middle = nodes.size() > 2 ? point.terms[2].value : 0;
    double const share = point.terms[1].value + middle / 2;
    double const value = load.Value(0) * (1 - share) + load.Value(1) * share;
    sum.Add(direction, point.position, value * point.size);
  });
}

void SumEdgeLoads(CZelData const& model, LoadTotals& totals) {
  ForEachDirectedLoad(
      model, totals, "EdgeLoad", model.EdgeLoad(),
      [&](LoadSum& sum, Data::CEdgeLoad const& load, LoadDirection const& direction) {
        ForEachLoadedSurface(model, sum, load, [&](int n, Positions const& places) {
          AddEdgeLoad(sum, load, direction, places, CornersOf(model, n));
        });
      });
}

void AddBodyFaceLoad(CZelData const& model, LoadSum& sum, Data::CBodyFaceLoad const& load,
                     LoadDirection const& direction, int n) {
  Positions nodes;
  for (int const node : model.Elem(n).FaceTopo(load.Face())) {
    if (!model.NodeExist(node)) return sum.LeaveOut(kLacksNode);
    nodes.push_back(model.Node(node).Position());
  }
  if (nodes.empty()) return sum.LeaveOut("an element has no such face");
  bool const byCorner = load.TypeOf() == Data::CBodyFaceLoad::Load3D::PerCorner;
  auto const values = CornerValues(load, byCorner);
  AddSurface(sum, direction, nodes, std::span(values).first(nodes.size()), false);
}

void SumBodyFaceLoads(CZelData const& model, LoadTotals& totals) {
  ForEachDirectedLoad(
      model, totals, "BodyFaceLoad", model.BodyFaceLoad(),
      [&](LoadSum& sum, Data::CBodyFaceLoad const& load, LoadDirection const& direction) {
        for (int const n : model.GetLoadedElements(load, false))
          if (model.Elem(n).Is3D()) AddBodyFaceLoad(model, sum, load, direction, n);
      });
}

}  // namespace

void AddPolygon(LoadSum& sum, LoadDirection const& direction, std::span<Vec3<double> const> corners,
                double value, bool projected) {
  auto const normal = Unit(Util::PolygonNormal(corners));
  constexpr std::size_t kTriangle = 3;
  for (std::size_t i = kTriangle - 1; i < corners.size(); ++i) {
    std::array const triangle{corners[0], corners[i - 1], corners[i]};
    auto const doubled = Cross(triangle[1] - triangle[0], triangle[2] - triangle[0]);
    // Triangles outside an inward corner run the other way and count against the rest.
    std::array<double, kTriangle> values{};
    values.fill(Dot(doubled, normal) < 0 ? -value : value);
    AddSurface(sum, direction, triangle, values, projected);
  }
}

void AddSurface(LoadSum& sum, LoadDirection const& direction, std::span<Vec3<double> const> nodes,
                std::span<double const> values, bool projected) {
  auto const* kind = Util::FindShapeKind(SpaceType::Surface, static_cast<int>(nodes.size()));
  auto const* corners = Util::FindShapeKind(SpaceType::Surface, static_cast<int>(values.size()));
  if (kind == nullptr || corners == nullptr) return sum.LeaveOut("a surface has no such shape");
  Util::ShapeTerms terms;
  Util::ShapeTerms cornerTerms;
  for (auto const& rule : Util::RuleOf(*kind)) {
    auto const point = Util::PointOf(*kind, nodes, rule.natural, terms);
    corners->evaluate(rule.natural, cornerTerms);
    double value = 0;
    for (std::size_t i = 0; i < values.size(); ++i) value += values[i] * cornerTerms[i].value;
    double const size =
        projected ? std::abs(Dot(point.normal, direction.At(point.position))) : point.size;
    sum.Add(direction, point.position, value * size * rule.weight);
  }
}

void SumSurfaceLoads(CZelData const& model, LoadTotals& totals) {
  SumFaceLoads(model, totals);
  SumEdgeLoads(model, totals);
  SumBodyFaceLoads(model, totals);
}

}  // namespace Tarvex::Calc
