// What loads on grid surfaces come to, whatever elements take them.
#include <optional>

#include "store/calc/line_loads.h"
#include "store/calc/surface_loads.h"
#include "store/geometry/axis_trans.h"
#include "store/model/list_expansion.h"
#include "store/record/grid_loads.h"
#include "store/record/grid_surface.h"
#include "store/record/polyline.h"

namespace Tarvex::Calc {
namespace {

using GridPoints = std::vector<Vec3<double>>;

/// The plane of a surface.
std::optional<Util::CAxisTrans> PlaneOf(CZelData const& model, int surface) {
  if (!model.GridSurfaceExist(surface)) return std::nullopt;
  int const plane = model.GridSurface(surface).Plane();
  if (plane != 0 && !model.GridPlaneExist(plane)) return std::nullopt;
  return Util::CAxisTrans(model.GridPlaneGridAxis(plane));
}

/// The points of a load's outline in space; empty when it has none.
GridPoints OutlineOf(CZelData const& model, Data::CGridShapeLoad const& load,
                     Data::GridLoadShape shape, Util::CAxisTrans const& plane) {
  GridPoints points;
  auto const add = [&](std::vector<Vec2<double>> const& outline) {
    for (auto const& p : outline) points.push_back(plane.User2Global({p.x, p.y, 0}));
  };
  if (shape == Data::GridLoadShape::Polygon) add(load.Polygon().Points());
  if (shape == Data::GridLoadShape::Polyline && model.PolylineExist(load.PolyRef()))
    add(model.Polyline(load.PolyRef()).Points());
  return points;
}

/// Calls visit(sum, load, direction, plane) for the loads of a table whose surface exists.
template <class Load, class Visit>
void ForEachGridLoad(CZelData const& model, LoadTotals& totals, std::string_view table,
                     std::vector<Load> const& loads, Visit&& visit) {
  ForEachDirectedLoad(model, totals, table, loads,
                      [&](LoadSum& sum, Load const& load, LoadDirection const& direction) {
                        if (auto const plane = PlaneOf(model, load.Surface()))
                          visit(sum, load, direction, *plane);
                        else
                          sum.LeaveOut("its grid surface or the plane of it does not exist");
                      });
}

void AddLineLoad(CZelData const& model, LoadSum& sum, Data::CGridLineLoad const& load,
                 LoadDirection const& direction, Util::CAxisTrans const& plane) {
  auto const points = OutlineOf(model, load, load.Line(), plane);
  if (points.size() < 2) return sum.LeaveOut("it has no line");
  LoadLine const line(points);
  Stretch const whole{0, line.Length(), {load.Value(0), load.Value(1)}};
  AddStretches(sum, direction, line, {&whole, 1}, load.IsProjected());
}

/// A load on all elements of a surface of 2D elements.
void AddWholeSurface(CZelData const& model, LoadSum& sum, Data::CGridAreaLoad const& load,
                     LoadDirection const& direction) {
  auto const& surface = model.GridSurface(load.Surface());
  if (surface.ElementType() != GridElementType::Plates)
    return sum.LeaveOut("it covers a whole surface of 1D elements");
  for (int const n : Util::MakeSet(surface.Elements(), model)) {
    SEntRef const ref(SelElement, n);
    if (!model.EntIs2D(ref) || !model.EntIsInGridSurface(ref, load.Surface())) continue;
    GridPoints nodes;
    for (int i = 0; i < model.EntNumTopo(ref); ++i)
      nodes.push_back(model.EntCoor(ref, i, EntAt::Nodes));
    std::vector<double> const values(nodes.size() > 4 ? nodes.size() / 2 : nodes.size(),
                                     load.Value());
    AddSurface(sum, direction, nodes, values, load.IsProjected());
  }
}

void AddAreaLoad(CZelData const& model, LoadSum& sum, Data::CGridAreaLoad const& load,
                 LoadDirection const& direction, Util::CAxisTrans const& plane) {
  if (load.Area() == Data::GridLoadShape::None) return AddWholeSurface(model, sum, load, direction);
  auto const points = OutlineOf(model, load, load.Area(), plane);
  if (points.size() < 3) return sum.LeaveOut("it has no outline");
  AddPolygon(sum, direction, points, load.Value(), load.IsProjected());
}

}  // namespace

void SumGridLoads(CZelData const& model, LoadTotals& totals) {
  ForEachGridLoad(model, totals, "GridPointLoad", model.GridPointLoad(),
                  [](LoadSum& sum, Data::CGridPointLoad const& load, LoadDirection const& direction,
                     Util::CAxisTrans const& plane) {
                    auto const& at = load.GridCoor();
                    sum.Add(direction, plane.User2Global({at.x, at.y, 0}), load.Value());
                  });
  ForEachGridLoad(model, totals, "GridLineLoad", model.GridLineLoad(),
                  [&](auto& sum, auto const& load, auto const& direction, auto const& plane) {
                    AddLineLoad(model, sum, load, direction, plane);
                  });
  ForEachGridLoad(model, totals, "GridAreaLoad", model.GridAreaLoad(),
                  [&](auto& sum, auto const& load, auto const& direction, auto const& plane) {
                    AddAreaLoad(model, sum, load, direction, plane);
                  });
}

}  // namespace Tarvex::Calc
