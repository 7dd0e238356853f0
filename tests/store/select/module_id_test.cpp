#include "store/select/module_id.h"

#include <gtest/gtest.h>

namespace Tarvex::ModuleIdTest {
namespace {

TEST(ModuleId, HasFixedNumbers) {
  using M = CModule;
  std::pair<M::ModuleId, int> const rows[] = {{M::Axis, 20},
                                              {M::GridPlane, 23},
                                              {M::GridSurface, 24},
                                              {M::Polyline, 25},
                                              {M::MatSteel, 30},
                                              {M::MatConcrete, 31},
                                              {M::MatFrp, 32},
                                              {M::MatAluminium, 33},
                                              {M::MatTimber, 34},
                                              {M::MatGlass, 35},
                                              {M::MatFabric, 36},
                                              {M::MatRebar, 37},
                                              {M::MatAnal, 38},
                                              {M::MatCurve, 39},
                                              {M::MatMatrix, 40},
                                              {M::Section, 50},
                                              {M::SpringProp, 52},
                                              {M::MassProp, 53},
                                              {M::Prop2D, 54},
                                              {M::Prop3D, 55},
                                              {M::LinkProp, 56},
                                              {M::DamperProp, 57},
                                              {M::CableProp, 58},
                                              {M::SpacerProp, 59},
                                              {M::ForceDensity1D, 62},
                                              {M::SoapStress1D, 63},
                                              {M::ForceDensity2D, 64},
                                              {M::SoapStress2D, 65},
                                              {M::RC2DProp, 75},
                                              {M::Node, 80},
                                              {M::Member, 100},
                                              {M::Elem, 110},
                                              {M::LoadCaseTitle, 130},
                                              {M::NodeLoad, 135},
                                              {M::AppliedDisplacement, 136},
                                              {M::Settlement, 137},
                                              {M::BeamLoad, 140},
                                              {M::AxialLoad, 142},
                                              {M::BeamDist, 143},
                                              {M::BeamThermalLoad, 144},
                                              {M::FaceLoad, 150},
                                              {M::EdgeLoad, 151},
                                              {M::InPlaneLoad, 152},
                                              {M::FaceThermalLoad, 153},
                                              {M::BodyFaceLoad, 155},
                                              {M::BodyThermalLoad, 156},
                                              {M::GridPointLoad, 161},
                                              {M::GridLineLoad, 162},
                                              {M::GridAreaLoad, 163},
                                              {M::GravityLoad, 170},
                                              {M::AnalStage, 230},
                                              {M::AnalysisTask, 235},
                                              {M::CombinationCase, 236},
                                              {M::DesignTask, 239},
                                              {M::AnalysisCase, 274}};
  for (auto const& [module, number] : rows) EXPECT_EQ(static_cast<int>(module), number);
  EXPECT_LT(static_cast<int>(M::None), 0);
}

}  // namespace
}  // namespace Tarvex::ModuleIdTest
