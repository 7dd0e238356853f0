// What a member asks the model for.
#include "store/model/entity_geometry.h"
#include "store/model/get_node_at.h"
#include "store/record/axis.h"

namespace Tarvex::Data {

bool CMember::ArcCentre(CZelData const& model, Vec3<double>& centre) const {
  auto const found = EntityGeometry::ArcCentre(ModelAccess::Core(model).state, *this);
  if (found) centre = *found;
  return found.has_value();
}

int CMember::GenerateOrientNode(CZelData& model, int orientationNode) const {
  Vec3<double> centre;
  if (!ArcCentre(model, centre)) return orientationNode;
  return ZelUtil::GetNodeAt(model, centre, model.Spec().GenTol(TolType::Coincidence), L"");
}

CAxis CMember::LocalAxis(CZelData const& model) const {
  auto const& state = ModelAccess::Core(model).state;
  auto const first = Is3D() ? std::nullopt : EntityGeometry::Position(state, Topo(0));
  if (!first) return CAxis();
  auto const frame = EntityGeometry::FrameOf(state, *this);
  return CAxis(Name(), AxisType::Cartesian, *first, frame.AxisVec(Direction::X),
               frame.AxisVec(Direction::Y));
}

}  // namespace Tarvex::Data
