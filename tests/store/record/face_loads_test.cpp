#include "store/record/face_loads.h"

#include <gtest/gtest.h>

#include "tests/support/stored_fields.h"

namespace Tarvex::Data::FaceLoadsTest {
namespace {

TEST(FaceLoad, HasTheTypesOneToThree) {
  using Type = CFaceLoad::Load2D;
  int expected = 1;
  for (auto const type : {Type::Uniform, Type::PerCorner, Type::Point})
    EXPECT_EQ(static_cast<int>(type), expected++);
}

TEST(FaceThermalLoad, HasTheTypesOneTwoAndEight) {
  using Type = CFaceThermalLoad::ThermalType;
  EXPECT_EQ(static_cast<int>(Type::Uniform), 1);
  EXPECT_EQ(static_cast<int>(Type::Gradient), 2);
  EXPECT_EQ(static_cast<int>(Type::PerCorner), 8);
}

TEST(EdgeLoad, IsOnTheFirstEdgeAtFirst) { EXPECT_EQ(CEdgeLoad().Edge(), 1); }

TEST(FaceLoad, TellsWhatItWasTold) {
  CFaceLoad r;
  r.SetSid(L"s");
  EXPECT_EQ(r.Sid(), L"s");
  r.SetLoadCase(2);
  EXPECT_EQ(r.LoadCase(), 2);
  r.SetLoadedEntities(CEntList(SelMember, CString(L"1")));
  EXPECT_EQ(r.LoadedEntities().String(), L"1");
  r.SetType(CFaceLoad::Load2D::Point);
  EXPECT_EQ(r.TypeOf(), CFaceLoad::Load2D::Point);
  r.SetAxis(3);
  EXPECT_EQ(r.Axis(), 3);
  r.SetDirection(Direction::XX);
  EXPECT_EQ(r.GetDirection(), Direction::XX);
  r.SetIsProjected(true);
  EXPECT_EQ(r.IsProjected(), true);
  r.SetPosition({0.25, -0.5});
  EXPECT_EQ(r.Position().y, -0.5);
  r.SetValue(0, 0.5);
  EXPECT_EQ(r.Value(0), 0.5);
  r.SetValue(1, 1.5);
  EXPECT_EQ(r.Value(1), 1.5);
  r.SetValue(2, 2.5);
  EXPECT_EQ(r.Value(2), 2.5);
  r.SetValue(3, 3.5);
  EXPECT_EQ(r.Value(3), 3.5);
}

TEST(FaceLoad, KeepsItsValuesApartAndRefusesOthers) {
  CFaceLoad r;
  for (int i = 0; i < 4; ++i) r.SetValue(i, 10 + i);
  for (int i = 0; i < 4; ++i) EXPECT_EQ(r.Value(i), 10 + i);
  for (int const i : {-1, 4}) {
    EXPECT_THROW(r.Value(i), std::out_of_range);
    EXPECT_THROW(r.SetValue(i, 1), std::out_of_range);
  }
}

TEST(FaceLoad, ComparesEveryField) {
  Testing::ExpectStoredFields<CFaceLoad>(
      {{"sid", [](CFaceLoad& r) { r.SetSid(L"s"); }},
       {"loadCase", [](CFaceLoad& r) { r.SetLoadCase(2); }},
       {"loadedEntities",
        [](CFaceLoad& r) { r.SetLoadedEntities(CEntList(SelMember, CString(L"1"))); }},
       {"type", [](CFaceLoad& r) { r.SetType(CFaceLoad::Load2D::Point); }},
       {"axis", [](CFaceLoad& r) { r.SetAxis(3); }},
       {"direction", [](CFaceLoad& r) { r.SetDirection(Direction::XX); }},
       {"projected", [](CFaceLoad& r) { r.SetIsProjected(true); }},
       {"position",
        [](CFaceLoad& r) {
          r.SetPosition({0.25, -0.5});
        }},
       {"value", [](CFaceLoad& r) { r.SetValue(0, 1.5); }},
       {"value", [](CFaceLoad& r) { r.SetValue(1, 1.5); }},
       {"value", [](CFaceLoad& r) { r.SetValue(2, 2.5); }},
       {"value", [](CFaceLoad& r) { r.SetValue(3, 3.5); }}});
}

TEST(EdgeLoad, TellsWhatItWasTold) {
  CEdgeLoad r;
  r.SetSid(L"s");
  EXPECT_EQ(r.Sid(), L"s");
  r.SetLoadCase(2);
  EXPECT_EQ(r.LoadCase(), 2);
  r.SetLoadedEntities(CEntList(SelMember, CString(L"1")));
  EXPECT_EQ(r.LoadedEntities().String(), L"1");
  r.SetAxis(3);
  EXPECT_EQ(r.Axis(), 3);
  r.SetDirection(Direction::XX);
  EXPECT_EQ(r.GetDirection(), Direction::XX);
  r.SetEdge(3);
  EXPECT_EQ(r.Edge(), 3);
  r.SetValue(0, 0.5);
  EXPECT_EQ(r.Value(0), 0.5);
  r.SetValue(1, 1.5);
  EXPECT_EQ(r.Value(1), 1.5);
}

TEST(EdgeLoad, KeepsItsValuesApartAndRefusesOthers) {
  CEdgeLoad r;
  for (int i = 0; i < 2; ++i) r.SetValue(i, 10 + i);
  for (int i = 0; i < 2; ++i) EXPECT_EQ(r.Value(i), 10 + i);
  for (int const i : {-1, 2}) {
    EXPECT_THROW(r.Value(i), std::out_of_range);
    EXPECT_THROW(r.SetValue(i, 1), std::out_of_range);
  }
}

TEST(EdgeLoad, ComparesEveryField) {
  Testing::ExpectStoredFields<CEdgeLoad>(
      {{"sid", [](CEdgeLoad& r) { r.SetSid(L"s"); }},
       {"loadCase", [](CEdgeLoad& r) { r.SetLoadCase(2); }},
       {"loadedEntities",
        [](CEdgeLoad& r) { r.SetLoadedEntities(CEntList(SelMember, CString(L"1"))); }},
       {"axis", [](CEdgeLoad& r) { r.SetAxis(3); }},
       {"direction", [](CEdgeLoad& r) { r.SetDirection(Direction::XX); }},
       {"edge", [](CEdgeLoad& r) { r.SetEdge(3); }},
       {"value", [](CEdgeLoad& r) { r.SetValue(0, 1.5); }},
       {"value", [](CEdgeLoad& r) { r.SetValue(1, 1.5); }}});
}

TEST(InPlaneLoad, TellsWhatItWasTold) {
  CInPlaneLoad r;
  r.SetSid(L"s");
  EXPECT_EQ(r.Sid(), L"s");
  r.SetLoadCase(2);
  EXPECT_EQ(r.LoadCase(), 2);
  r.SetLoadedEntities(CEntList(SelMember, CString(L"1")));
  EXPECT_EQ(r.LoadedEntities().String(), L"1");
  r.SetAxis(3);
  EXPECT_EQ(r.Axis(), 3);
  r.SetValue(0, 0.5);
  EXPECT_EQ(r.Value(0), 0.5);
  r.SetValue(1, 1.5);
  EXPECT_EQ(r.Value(1), 1.5);
  r.SetValue(2, 2.5);
  EXPECT_EQ(r.Value(2), 2.5);
}

TEST(InPlaneLoad, KeepsItsValuesApartAndRefusesOthers) {
  CInPlaneLoad r;
  for (int i = 0; i < 3; ++i) r.SetValue(i, 10 + i);
  for (int i = 0; i < 3; ++i) EXPECT_EQ(r.Value(i), 10 + i);
  for (int const i : {-1, 3}) {
    EXPECT_THROW(r.Value(i), std::out_of_range);
    EXPECT_THROW(r.SetValue(i, 1), std::out_of_range);
  }
}

TEST(InPlaneLoad, ComparesEveryField) {
  Testing::ExpectStoredFields<CInPlaneLoad>(
      {{"sid", [](CInPlaneLoad& r) { r.SetSid(L"s"); }},
       {"loadCase", [](CInPlaneLoad& r) { r.SetLoadCase(2); }},
       {"loadedEntities",
        [](CInPlaneLoad& r) { r.SetLoadedEntities(CEntList(SelMember, CString(L"1"))); }},
       {"axis", [](CInPlaneLoad& r) { r.SetAxis(3); }},
       {"value", [](CInPlaneLoad& r) { r.SetValue(0, 1.5); }},
       {"value", [](CInPlaneLoad& r) { r.SetValue(1, 1.5); }},
       {"value", [](CInPlaneLoad& r) { r.SetValue(2, 2.5); }}});
}

TEST(FaceThermalLoad, TellsWhatItWasTold) {
  CFaceThermalLoad r;
  r.SetSid(L"s");
  EXPECT_EQ(r.Sid(), L"s");
  r.SetLoadCase(2);
  EXPECT_EQ(r.LoadCase(), 2);
  r.SetLoadedEntities(CEntList(SelMember, CString(L"1")));
  EXPECT_EQ(r.LoadedEntities().String(), L"1");
  r.SetType(CFaceThermalLoad::ThermalType::PerCorner);
  EXPECT_EQ(r.TypeOf(), CFaceThermalLoad::ThermalType::PerCorner);
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

TEST(FaceThermalLoad, KeepsItsValuesApartAndRefusesOthers) {
  CFaceThermalLoad r;
  for (int i = 0; i < 8; ++i) r.SetValue(i, 10 + i);
  for (int i = 0; i < 8; ++i) EXPECT_EQ(r.Value(i), 10 + i);
  for (int const i : {-1, 8}) {
    EXPECT_THROW(r.Value(i), std::out_of_range);
    EXPECT_THROW(r.SetValue(i, 1), std::out_of_range);
  }
}

TEST(FaceThermalLoad, ComparesEveryField) {
  Testing::ExpectStoredFields<CFaceThermalLoad>(
      {{"sid", [](CFaceThermalLoad& r) { r.SetSid(L"s"); }},
       {"loadCase", [](CFaceThermalLoad& r) { r.SetLoadCase(2); }},
       {"loadedEntities",
        [](CFaceThermalLoad& r) { r.SetLoadedEntities(CEntList(SelMember, CString(L"1"))); }},
       {"type", [](CFaceThermalLoad& r) { r.SetType(CFaceThermalLoad::ThermalType::PerCorner); }},
       {"value", [](CFaceThermalLoad& r) { r.SetValue(0, 1.5); }},
       {"value", [](CFaceThermalLoad& r) { r.SetValue(1, 1.5); }},
       {"value", [](CFaceThermalLoad& r) { r.SetValue(2, 2.5); }},
       {"value", [](CFaceThermalLoad& r) { r.SetValue(3, 3.5); }},
       {"value", [](CFaceThermalLoad& r) { r.SetValue(4, 4.5); }},
       {"value", [](CFaceThermalLoad& r) { r.SetValue(5, 5.5); }},
       {"value", [](CFaceThermalLoad& r) { r.SetValue(6, 6.5); }},
       {"value", [](CFaceThermalLoad& r) { r.SetValue(7, 7.5); }}});
}

}  // namespace
}  // namespace Tarvex::Data::FaceLoadsTest
