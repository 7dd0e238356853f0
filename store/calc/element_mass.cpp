#include "store/calc/element_mass.h"

#include <boost/container/small_vector.hpp>
#include <cmath>

#include "store/geometry/integration.h"
#include "store/model/zel_data.h"
#include "store/record/element.h"
#include "store/record/load_panel.h"
#include "store/record/mat_anal.h"
#include "store/record/node.h"
#include "store/record/other_props.h"
#include "store/record/prop_2d.h"
#include "store/record/section.h"

namespace Tarvex {
namespace {

using MaybeMass = std::optional<PointMass>;
using Positions = boost::container::small_vector<Vec3<double>, 8>;

bool HasNodes(CZelData const& model, Data::CElement const& element) {
  for (int const node : element.Topology())
    if (!model.NodeExist(node)) return false;
  return element.NumTopo() >= element.Shape().nodes;
}

/// Of a line with a mass by length that varies along it.
template <class MassByLength>
PointMass LineMass(CZelData const& model, int n, MassByLength&& massAt) {
  std::array const ends{model.Coor(n, 0), model.Coor(n, 1)};
  PointMass sum;
  Vec3<double> moment;
  Util::ForEachElementPoint(Util::ShapeKindOf(SpaceType::Line, 2), ends,
                            [&](Util::ElementPoint const& point) {
                              double const mass = massAt(point.terms[1].value) * point.size;
                              sum.mass += mass;
                              moment += point.position * mass;
                            });
  sum.centre = sum.mass == 0 ? (ends[0] + ends[1]) / 2 : moment / sum.mass;
  return sum;
}

MaybeMass SectionMass(CZelData const& model, int n, int stage) {
  int const property = model.ElemStageProperty(n, stage);
  if (!model.SectionExist(property) || !model.MatAnalExist(model.ElemMatAnal(n, stage)))
    return std::nullopt;
  return LineMass(model, n, [&](double position) {
    auto const beam = model.Elem1DPropMat(n, stage, position, false);
    double const density = std::isfinite(beam.meanDensity) ? beam.meanDensity : beam.density;
    return density * beam.area + beam.additionalMass;
  });
}

MaybeMass CableMass(CZelData const& model, int n, int stage) {
  int const property = model.ElemStageProperty(n, stage);
  if (!model.CablePropExist(property)) return std::nullopt;
  double const mass = model.CableProp(property).mass;
  return LineMass(model, n, [&](double) { return mass; });
}

MaybeMass BodyMass(CZelData const& model, int n, SpaceType space, double byExtent) {
  Positions nodes;
  for (int i = 0; i < model.Elem(n).NumTopo(); ++i) nodes.push_back(model.Coor(n, i));
  auto const extent = Util::ExtentOf(space, {nodes.data(), nodes.size()});
  return PointMass{byExtent * extent.size, extent.Centre()};
}

MaybeMass PlateMass(CZelData const& model, int n, int stage) {
  int const property = model.ElemStageProperty(n, stage);
  if (!model.Prop2DExist(property)) return std::nullopt;
  auto const& plate = model.Prop2D(property);
  if (plate.Type() == Data::PropertyType2d::LoadPanel) return PointMass{};
  int const material = model.ElemMatAnal(n, stage);
  if (!model.MatAnalExist(material)) return std::nullopt;
  double const density = model.MatAnal(material).Value(MatAnalValue::Density);
  return BodyMass(model, n, SpaceType::Surface,
                  density * plate.VolumeThickness() + plate.AdditionalMass());
}

MaybeMass SolidMass(CZelData const& model, int n, int stage) {
  int const material = model.ElemMatAnal(n, stage);
  if (!model.MatAnalExist(material)) return std::nullopt;
  return BodyMass(model, n, SpaceType::Solid, model.MatAnal(material).Value(MatAnalValue::Density));
}

}  // namespace

std::optional<PointMass> MassOfElement(CZelData const& model, int element, int stage) {
  if (model.LoadPanelExist(element)) return PointMass{};
  if (!model.ElemExist(element)) return std::nullopt;
  auto const& record = model.Elem(element);
  if (record.IsDummy()) return PointMass{};
  if (!HasNodes(model, record)) return std::nullopt;
  if (record.IsSection()) return SectionMass(model, element, stage);
  if (record.Type() == ElementType::Cable) return CableMass(model, element, stage);
  if (record.Is2D()) return PlateMass(model, element, stage);
  if (record.Is3D()) return SolidMass(model, element, stage);
  return PointMass{};
}

ModelMass MassOfModel(CZelData const& model, int stage) {
  ModelMass sum;
  Vec3<double> moment;
  for (auto const& [n, element] : model.Elem()) {
    auto const number = static_cast<int>(n);
    if (!model.ElemIsActive(number, stage)) continue;
    auto const mass = MassOfElement(model, number, stage);
    if (!mass) {
      ++sum.unknown;
      continue;
    }
    sum.total.mass += mass->mass;
    moment += mass->centre * mass->mass;
  }
  if (sum.total.mass != 0) sum.total.centre = moment / sum.total.mass;
  return sum;
}

}  // namespace Tarvex
