#include "store/record/body_loads.h"

#include <gtest/gtest.h>

#include "tests/support/stored_fields.h"

namespace Tarvex::Data::BodyLoadsTest {
namespace {

TEST(BodyLoads, HaveTheTypesOneAndTwoAndOneAndEight) {
  EXPECT_EQ(static_cast<int>(CBodyFaceLoad::Load3D::Uniform), 1);
  EXPECT_EQ(static_cast<int>(CBodyFaceLoad::Load3D::PerCorner), 2);
  EXPECT_EQ(static_cast<int>(CBodyThermalLoad::ThermalType::Uniform), 1);
  EXPECT_EQ(static_cast<int>(CBodyThermalLoad::ThermalType::PerNode), 8);
}

TEST(GravityLoad, IsTheWeightAtFirst) {
  EXPECT_EQ(CGravityLoad().Factor().x, 0);
  EXPECT_EQ(CGravityLoad().Factor().y, 0);
  EXPECT_EQ(CGravityLoad().Factor().z, -1);
}

TEST(GravityLoad, TakesNodesAloneAsNodes) {
  CGravityLoad load;
  EXPECT_THROW(load.SetLoadedNodes(CEntList(SelElement, L"1")), std::invalid_argument);
  EXPECT_TRUE(load.LoadedNodes().IsEmpty());
}

TEST(BodyFaceLoad, TellsWhatItWasTold) {
  CBodyFaceLoad r;
  r.SetSid(L"s");
  EXPECT_EQ(r.Sid(), L"s");
  r.SetLoadCase(2);
  EXPECT_EQ(r.LoadCase(), 2);
  r.SetLoadedEntities(CEntList(SelMember, CString(L"1")));
  EXPECT_EQ(r.LoadedEntities().String(), L"1");
  r.SetType(CBodyFaceLoad::Load3D::PerCorner);
  EXPECT_EQ(r.TypeOf(), CBodyFaceLoad::Load3D::PerCorner);
  r.SetAxis(3);
  EXPECT_EQ(r.Axis(), 3);
  r.SetDirection(Direction::XX);
  EXPECT_EQ(r.GetDirection(), Direction::XX);
  r.SetFace(3);
  EXPECT_EQ(r.Face(), 3);
  r.SetValue(0, 0.5);
  EXPECT_EQ(r.Value(0), 0.5);
  r.SetValue(1, 1.5);
  EXPECT_EQ(r.Value(1), 1.5);
  r.SetValue(2, 2.5);
  EXPECT_EQ(r.Value(2), 2.5);
  r.SetValue(3, 3.5);
  EXPECT_EQ(r.Value(3), 3.5);
}

TEST(BodyFaceLoad, KeepsItsValuesApartAndRefusesOthers) {
  CBodyFaceLoad r;
  for (int i = 0; i < 4; ++i) r.SetValue(i, 10 + i);
  for (int i = 0; i < 4; ++i) EXPECT_EQ(r.Value(i), 10 + i);
  for (int const i : {-1, 4}) {
    EXPECT_THROW(r.Value(i), std::out_of_range);
    EXPECT_THROW(r.SetValue(i, 1), std::out_of_range);
  }
}

TEST(BodyFaceLoad, ComparesEveryField) {
  Testing::ExpectStoredFields<CBodyFaceLoad>(
      {{"sid", [](CBodyFaceLoad& r) { r.SetSid(L"s"); }},
       {"loadCase", [](CBodyFaceLoad& r) { r.SetLoadCase(2); }},
       {"loadedEntities",
        [](CBodyFaceLoad& r) { r.SetLoadedEntities(CEntList(SelMember, CString(L"1"))); }},
       {"type", [](CBodyFaceLoad& r) { r.SetType(CBodyFaceLoad::Load3D::PerCorner); }},
       {"axis", [](CBodyFaceLoad& r) { r.SetAxis(3); }},
       {"direction", [](CBodyFaceLoad& r) { r.SetDirection(Direction::XX); }},
       {"face", [](CBodyFaceLoad& r) { r.SetFace(3); }},
       {"value", [](CBodyFaceLoad& r) { r.SetValue(0, 1.5); }},
       {"value", [](CBodyFaceLoad& r) { r.SetValue(1, 1.5); }},
       {"value", [](CBodyFaceLoad& r) { r.SetValue(2, 2.5); }},
       {"value", [](CBodyFaceLoad& r) { r.SetValue(3, 3.5); }}});
}

TEST(BodyThermalLoad, TellsWhatItWasTold) {
  CBodyThermalLoad r;
  r.SetSid(L"s");
  EXPECT_EQ(r.Sid(), L"s");
  r.SetLoadCase(2);
  EXPECT_EQ(r.LoadCase(), 2);
  r.SetLoadedEntities(CEntList(SelMember, CString(L"1")));
  EXPECT_EQ(r.LoadedEntities().String(), L"1");
  r.SetType(CBodyThermalLoad::ThermalType::PerNode);
  EXPECT_EQ(r.TypeOf(), CBodyThermalLoad::ThermalType::PerNode);
  r.SetValue(0, 0.5);
  EXPECT_EQ(r.Value(0), 0.5);
  r.SetValue(1, 1.5);
  EXPECT_EQ(r.Value(1), 1.5);
  r.SetValue(2, 2.5);
  EXPECT_EQ(r.Value(2), 2.5);
  r.SetValue(3, 3.5);
  EXPECT_EQ(r.Value(3), 3.5);
  r.SetValue(4, 4.5);
  EXPECT_EQ(r.Value(4), 4.5);
  r.SetValue(5, 5.5);
  EXPECT_EQ(r.Value(5), 5.5);
  r.SetValue(6, 6.5);
  EXPECT_EQ(r.Value(6), 6.5);
  r.SetValue(7, 7.5);
  EXPECT_EQ(r.Value(7), 7.5);
}

TEST(BodyThermalLoad, KeepsItsValuesApartAndRefusesOthers) {
  CBodyThermalLoad r;
  for (int i = 0; i < 8; ++i) r.SetValue(i, 10 + i);
  for (int i = 0; i < 8; ++i) EXPECT_EQ(r.Value(i), 10 + i);
  for (int const i : {-1, 8}) {
    EXPECT_THROW(r.Value(i), std::out_of_range);
    EXPECT_THROW(r.SetValue(i, 1), std::out_of_range);
  }
}

TEST(BodyThermalLoad, ComparesEveryField) {
  Testing::ExpectStoredFields<CBodyThermalLoad>(
      {{"sid", [](CBodyThermalLoad& r) { r.SetSid(L"s"); }},
       {"loadCase", [](CBodyThermalLoad& r) { r.SetLoadCase(2); }},
       {"loadedEntities",
        [](CBodyThermalLoad& r) { r.SetLoadedEntities(CEntList(SelMember, CString(L"1"))); }},
       {"type", [](CBodyThermalLoad& r) { r.SetType(CBodyThermalLoad::ThermalType::PerNode); }},
       {"value", [](CBodyThermalLoad& r) { r.SetValue(0, 1.5); }},
       {"value", [](CBodyThermalLoad& r) { r.SetValue(1, 1.5); }},
       {"value", [](CBodyThermalLoad& r) { r.SetValue(2, 2.5); }},
       {"value", [](CBodyThermalLoad& r) { r.SetValue(3, 3.5); }},
       {"value", [](CBodyThermalLoad& r) { r.SetValue(4, 4.5); }},
       {"value", [](CBodyThermalLoad& r) { r.SetValue(5, 5.5); }},
       {"value", [](CBodyThermalLoad& r) { r.SetValue(6, 6.5); }},
       {"value", [](CBodyThermalLoad& r) { r.SetValue(7, 7.5); }}});
}

TEST(GravityLoad, TellsWhatItWasTold) {
  CGravityLoad r;
  r.SetSid(L"s");
  EXPECT_EQ(r.Sid(), L"s");
  r.SetLoadCase(2);
  EXPECT_EQ(r.LoadCase(), 2);
  r.SetLoadedEntities(CEntList(SelMember, CString(L"1")));
  EXPECT_EQ(r.LoadedEntities().String(), L"1");
  r.SetLoadedNodes(CEntList(SelNode, CString(L"5 6")));
  EXPECT_EQ(r.LoadedNodes().String(), L"5 6");
  r.SetFactor({0, 0.5, 0});
  EXPECT_EQ(r.Factor().y, 0.5);
}

TEST(GravityLoad, ComparesEveryField) {
  Testing::ExpectStoredFields<CGravityLoad>(
      {{"sid", [](CGravityLoad& r) { r.SetSid(L"s"); }},
       {"loadCase", [](CGravityLoad& r) { r.SetLoadCase(2); }},
       {"loadedEntities",
        [](CGravityLoad& r) { r.SetLoadedEntities(CEntList(SelMember, CString(L"1"))); }},
       {"loadedNodes",
        [](CGravityLoad& r) { r.SetLoadedNodes(CEntList(SelNode, CString(L"5 6"))); }},
       {"factor", [](CGravityLoad& r) {
          r.SetFactor({0, 0.5, 0});
        }}});
}

}  // namespace
}  // namespace Tarvex::Data::BodyLoadsTest
