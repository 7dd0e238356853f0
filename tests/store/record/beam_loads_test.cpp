#include "store/record/beam_loads.h"

#include <gtest/gtest.h>

#include "tests/support/stored_fields.h"

namespace Tarvex::Data::BeamLoadsTest {
namespace {

TEST(BeamLoad, IsAUniformOneDownTheGlobalZAtFirst) {
  CBeamLoad const load;
  EXPECT_EQ(load.TypeOf(), CBeamLoad::LoadType::Uniform);
  EXPECT_EQ(load.GetDirection(), Direction::Z);
  EXPECT_EQ(load.Axis(), 0);
  EXPECT_FALSE(load.IsProjected());
  EXPECT_EQ(load.LoadedEntities().TypeOf(), SelElement);
}

TEST(BeamLoad, HasTheTypesOneToFive) {
  using Type = CBeamLoad::LoadType;
  int expected = 1;
  for (auto const type : {Type::Point, Type::Uniform, Type::Linear, Type::Patch, Type::Trilinear})
    EXPECT_EQ(static_cast<int>(type), expected++);
}

TEST(BeamLoad, TellsWhatItWasTold) {
  CBeamLoad r;
  r.SetSid(L"s");
  EXPECT_EQ(r.Sid(), L"s");
  r.SetLoadCase(2);
  EXPECT_EQ(r.LoadCase(), 2);
  r.SetLoadedEntities(CEntList(SelMember, CString(L"1")));
  EXPECT_EQ(r.LoadedEntities().String(), L"1");
  r.SetType(CBeamLoad::LoadType::Patch);
  EXPECT_EQ(r.TypeOf(), CBeamLoad::LoadType::Patch);
  r.SetAxis(3);
  EXPECT_EQ(r.Axis(), 3);
  r.SetDirection(Direction::XX);
  EXPECT_EQ(r.GetDirection(), Direction::XX);
  r.SetIsProjected(true);
  EXPECT_EQ(r.IsProjected(), true);
  r.SetPos(0, 0.5);
  EXPECT_EQ(r.Pos(0), 0.5);
  r.SetPos(1, 1.5);
  EXPECT_EQ(r.Pos(1), 1.5);
  r.SetValue(0, 0.5);
  EXPECT_EQ(r.Value(0), 0.5);
  r.SetValue(1, 1.5);
  EXPECT_EQ(r.Value(1), 1.5);
}

TEST(BeamLoad, KeepsItsValuesApartAndRefusesOthers) {
  CBeamLoad r;
  for (int i = 0; i < 2; ++i) r.SetValue(i, 10 + i);
  for (int i = 0; i < 2; ++i) EXPECT_EQ(r.Value(i), 10 + i);
  for (int const i : {-1, 2}) {
    EXPECT_THROW(r.Value(i), std::out_of_range);
    EXPECT_THROW(r.SetValue(i, 1), std::out_of_range);
  }
}

TEST(BeamLoad, ComparesEveryField) {
  Testing::ExpectStoredFields<CBeamLoad>(
      {{"sid", [](CBeamLoad& r) { r.SetSid(L"s"); }},
       {"loadCase", [](CBeamLoad& r) { r.SetLoadCase(2); }},
       {"loadedEntities",
        [](CBeamLoad& r) { r.SetLoadedEntities(CEntList(SelMember, CString(L"1"))); }},
       {"type", [](CBeamLoad& r) { r.SetType(CBeamLoad::LoadType::Patch); }},
       {"axis", [](CBeamLoad& r) { r.SetAxis(3); }},
       {"direction", [](CBeamLoad& r) { r.SetDirection(Direction::XX); }},
       {"projected", [](CBeamLoad& r) { r.SetIsProjected(true); }},
       {"pos", [](CBeamLoad& r) { r.SetPos(0, 1.5); }},
       {"pos", [](CBeamLoad& r) { r.SetPos(1, 1.5); }},
       {"value", [](CBeamLoad& r) { r.SetValue(0, 1.5); }},
       {"value", [](CBeamLoad& r) { r.SetValue(1, 1.5); }}});
}

TEST(BeamDist, TellsWhatItWasTold) {
  CBeamDist r;
  r.SetSid(L"s");
  EXPECT_EQ(r.Sid(), L"s");
  r.SetLoadCase(2);
  EXPECT_EQ(r.LoadCase(), 2);
  r.SetLoadedEntities(CEntList(SelMember, CString(L"1")));
  EXPECT_EQ(r.LoadedEntities().String(), L"1");
  r.SetDirection(Direction::XX);
  EXPECT_EQ(r.GetDirection(), Direction::XX);
  r.SetPos(1.5);
  EXPECT_EQ(r.Pos(), 1.5);
  r.SetValue(2.5);
  EXPECT_EQ(r.Value(), 2.5);
}

TEST(BeamDist, ComparesEveryField) {
  Testing::ExpectStoredFields<CBeamDist>(
      {{"sid", [](CBeamDist& r) { r.SetSid(L"s"); }},
       {"loadCase", [](CBeamDist& r) { r.SetLoadCase(2); }},
       {"loadedEntities",
        [](CBeamDist& r) { r.SetLoadedEntities(CEntList(SelMember, CString(L"1"))); }},
       {"direction", [](CBeamDist& r) { r.SetDirection(Direction::XX); }},
       {"pos", [](CBeamDist& r) { r.SetPos(1.5); }},
       {"value", [](CBeamDist& r) { r.SetValue(2.5); }}});
}

TEST(AxialLoad, TellsWhatItWasTold) {
  CAxialLoad r;
  r.SetSid(L"s");
  EXPECT_EQ(r.Sid(), L"s");
  r.SetLoadCase(2);
  EXPECT_EQ(r.LoadCase(), 2);
  r.SetLoadedEntities(CEntList(SelMember, CString(L"1")));
  EXPECT_EQ(r.LoadedEntities().String(), L"1");
  r.SetValue(2.5);
  EXPECT_EQ(r.Value(), 2.5);
}

TEST(AxialLoad, ComparesEveryField) {
  Testing::ExpectStoredFields<CAxialLoad>(
      {{"sid", [](CAxialLoad& r) { r.SetSid(L"s"); }},
       {"loadCase", [](CAxialLoad& r) { r.SetLoadCase(2); }},
       {"loadedEntities",
        [](CAxialLoad& r) { r.SetLoadedEntities(CEntList(SelMember, CString(L"1"))); }},
       {"value", [](CAxialLoad& r) { r.SetValue(2.5); }}});
}

TEST(BeamThermalLoad, TellsWhatItWasTold) {
  CBeamThermalLoad r;
  r.SetSid(L"s");
  EXPECT_EQ(r.Sid(), L"s");
  r.SetLoadCase(2);
  EXPECT_EQ(r.LoadCase(), 2);
  r.SetLoadedEntities(CEntList(SelMember, CString(L"1")));
  EXPECT_EQ(r.LoadedEntities().String(), L"1");
  r.SetType(CBeamThermalLoad::ThermalType::GradientZ);
  EXPECT_EQ(r.TypeOf(), CBeamThermalLoad::ThermalType::GradientZ);
  r.SetValue(0, 0.5);
  EXPECT_EQ(r.Value(0), 0.5);
  r.SetValue(1, 1.5);
  EXPECT_EQ(r.Value(1), 1.5);
}

TEST(BeamThermalLoad, KeepsItsValuesApartAndRefusesOthers) {
  CBeamThermalLoad r;
  for (int i = 0; i < 2; ++i) r.SetValue(i, 10 + i);
  for (int i = 0; i < 2; ++i) EXPECT_EQ(r.Value(i), 10 + i);
  for (int const i : {-1, 2}) {
    EXPECT_THROW(r.Value(i), std::out_of_range);
    EXPECT_THROW(r.SetValue(i, 1), std::out_of_range);
  }
}

TEST(BeamThermalLoad, ComparesEveryField) {
  Testing::ExpectStoredFields<CBeamThermalLoad>(
      {{"sid", [](CBeamThermalLoad& r) { r.SetSid(L"s"); }},
       {"loadCase", [](CBeamThermalLoad& r) { r.SetLoadCase(2); }},
       {"loadedEntities",
        [](CBeamThermalLoad& r) { r.SetLoadedEntities(CEntList(SelMember, CString(L"1"))); }},
       {"type", [](CBeamThermalLoad& r) { r.SetType(CBeamThermalLoad::ThermalType::GradientZ); }},
       {"value", [](CBeamThermalLoad& r) { r.SetValue(0, 1.5); }},
       {"value", [](CBeamThermalLoad& r) { r.SetValue(1, 1.5); }}});
}

}  // namespace
}  // namespace Tarvex::Data::BeamLoadsTest
