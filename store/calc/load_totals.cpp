#include "store/calc/load_totals.h"

#include "store/calc/element_mass.h"
#include "store/calc/load_sum.h"
#include "store/model/list_expansion.h"
#include "store/record/beam_loads.h"
#include "store/record/body_loads.h"
#include "store/record/face_loads.h"
#include "store/record/mass_prop.h"
#include "store/record/node.h"
#include "store/record/node_load.h"

namespace Tarvex {
namespace Calc {
namespace {

void SumNodeLoads(CZelData const& model, LoadTotals& totals) {
  ForEachDirectedLoad(
      model, totals, "NodeLoad", model.NodeLoad(),
      [&](LoadSum& sum, Data::CNodeLoad const& load, LoadDirection const& direction) {
        for (int const n : Util::MakeSet(load.LoadedEntities(), model))
          sum.Add(direction, model.Node(n).Position(), load.Value());
      });
}

Vec3<double> Times(Vec3<double> const& a, Vec3<double> const& b) {
  return {a.x * b.x, a.y * b.y, a.z * b.z};
}

void AddElementGravity(CZelData const& model, LoadSum& sum, Data::CGravityLoad const& load) {
  for (int const n : model.GetLoadedElements(load, false)) {
    auto const mass = MassOfElement(model, n, 0);
    if (mass)
      sum.AddForce(mass->centre, load.Factor() * (mass->mass * kGravity));
    else
      sum.LeaveOut("the mass of an element is not known");
  }
}

void AddNodeGravity(CZelData const& model, LoadSum& sum, Data::CGravityLoad const& load) {
  for (int const n : Util::MakeSet(load.LoadedNodes(), model)) {
    auto const& node = model.Node(n);
    int const property = node.MassProperty();
    if (property == 0) continue;
    if (!model.MassPropExist(property)) {
      sum.LeaveOut("the mass property of a node does not exist");
      continue;
    }
    auto const& mass = model.MassProp(property);
    sum.AddForce(node.Position(), Times(load.Factor(), mass.Factors()) * (mass.Mass() * kGravity));
  }
}

void SumGravityLoads(CZelData const& model, LoadTotals& totals) {
  auto const& loads = model.GravityLoad();
  for (std::size_t i = 0; i < loads.size(); ++i) {
    if (loads[i].LoadCase() == 0) continue;
    LoadSum sum(totals, "GravityLoad", static_cast<int>(i) + 1, loads[i].LoadCase());
    AddElementGravity(model, sum, loads[i]);
    AddNodeGravity(model, sum, loads[i]);
  }
}

/// Loads without a resultant bring their case into the totals.
template <class... Tables>
void AddCases(LoadTotals& totals, Tables const&... tables) {
  auto const add = [&](auto const& table) {
    for (auto const& load : table)
      if (load.LoadCase() != 0) totals.byCase[load.LoadCase()];
  };
  (add(tables), ...);
}

}  // namespace
}  // namespace Calc

LoadTotals SumLoads(CZelData const& model) {
  LoadTotals totals;
  Calc::SumNodeLoads(model, totals);
  Calc::SumLineLoads(model, totals);
  Calc::SumSurfaceLoads(model, totals);
  Calc::SumGridLoads(model, totals);
  Calc::SumGravityLoads(model, totals);
  Calc::AddCases(totals, model.AppliedDisplacement(), model.Settlement(), model.AxialLoad(),
                 model.BeamDist(), model.BeamThermalLoad(), model.InPlaneLoad(),
                 model.FaceThermalLoad(), model.BodyThermalLoad());
  return totals;
}

}  // namespace Tarvex
