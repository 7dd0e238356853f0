#include "store/record/section.h"

#include <gtest/gtest.h>

#include "tests/support/matchers.h"
#include "tests/support/stored_fields.h"

namespace Tarvex::Data::SectionTest {
namespace {

using Testing::OutOfRangeText;
using Place = CSecRefPoint::Place;

/// A steel tube full of concrete.
CSection Filled() {
  return {L"column",
          {CSecComp(L"tube 0.3 0.01", 4, MatDesign(MatType::Steel, 2)),
           CSecComp(L"circle 0.28", 5, MatDesign(MatType::Concrete, 3))}};
}

TEST(Section, IsMadeOfComponentsWithTheirMaterials) {
  auto const section = Filled();
  EXPECT_EQ(section.Name(), L"column");
  ASSERT_EQ(section.NumComponent(), 2);
  EXPECT_EQ(section.Component(0).Description(), L"tube 0.3 0.01");
  EXPECT_EQ(section.Component(1).Description(), L"circle 0.28");
  EXPECT_EQ(section.MaterialAnalysis(0), 4);
  EXPECT_EQ(section.MaterialAnalysis(1), 5);
  EXPECT_EQ(section.MaterialType(0), MatType::Steel);
  EXPECT_EQ(section.MaterialType(1), MatType::Concrete);
  EXPECT_EQ(section.MaterialGrade(0), 2);
  EXPECT_EQ(section.MaterialGrade(1), 3);
  EXPECT_EQ(section.MaterialDesign(1), MatDesign(MatType::Concrete, 3));
  EXPECT_EQ(section.Component(1).MaterialAnalysis(), 5);
  EXPECT_EQ(section.Component(1).MaterialType(), MatType::Concrete);
  EXPECT_EQ(section.Component(1).MaterialGrade(), 3);
}

TEST(Section, SetsTheMaterialsOfOneComponent) {
  auto section = Filled();
  section.SetMaterialAnalysis(1, 8);
  section.SetMaterialGrade(0, 9);
  EXPECT_EQ(section.MaterialAnalysis(0), 4);
  EXPECT_EQ(section.MaterialAnalysis(1), 8);
  EXPECT_EQ(section.MaterialGrade(0), 9);
  EXPECT_EQ(section.MaterialType(0), MatType::Steel);
  EXPECT_EQ(section.MaterialGrade(1), 3);
}

TEST(Section, ReplacesAndAppendsComponents) {
  auto section = Filled();
  CSecComp bar;
  bar.SetDescription(L"bar");
  bar.SetMaterialAnalysis(6);
  bar.SetMaterialDesign(MatDesign(MatType::Rebar, 7));
  EXPECT_EQ(bar.MaterialDesign(), MatDesign(MatType::Rebar, 7));
  section.SetComponent(2, bar);
  ASSERT_EQ(section.NumComponent(), 3);
  EXPECT_EQ(section.Component(2), bar);
  section.SetComponent(0, bar);
  EXPECT_EQ(section.NumComponent(), 3);
  EXPECT_EQ(section.Component(0), bar);
}

TEST(Section, RefusesAComponentThatThereIsNot) {
  auto section = Filled();
  std::string const text = "invalid vector subscript";
  EXPECT_EQ(OutOfRangeText([&] { section.Component(2); }), text);
  EXPECT_EQ(OutOfRangeText([&] { section.MaterialType(-1); }), text);
  EXPECT_EQ(OutOfRangeText([&] { section.SetMaterialAnalysis(2, 1); }), text);
  EXPECT_EQ(OutOfRangeText([&] { section.SetMaterialGrade(2, 1); }), text);
  EXPECT_EQ(OutOfRangeText([&] { section.SetComponent(3, CSecComp()); }), text);
}

TEST(Section, KeepsItsReferencePointAndAdditionalMass) {
  CSection section;
  EXPECT_EQ(section.RefPoint().At(), Place::Centroid);
  EXPECT_EQ(section.AdditionalMass(), 0);
  section.SetRefPoint(CSecRefPoint(Place::BottomLeft));
  section.SetAdditionalMass(2.5);
  EXPECT_EQ(section.RefPoint().At(), Place::BottomLeft);
  EXPECT_EQ(section.AdditionalMass(), 2.5);
}

TEST(SecRefPoint, TellsItsSides) {
  struct Row {
    Place place;
    bool top, bottom, left, right;
  };
  for (auto const& row : {Row{Place::Centroid, false, false, false, false},
                          Row{Place::TopLeft, true, false, true, false},
                          Row{Place::TopCentre, true, false, false, false},
                          Row{Place::TopRight, true, false, false, true},
                          Row{Place::MiddleLeft, false, false, true, false},
                          Row{Place::MiddleRight, false, false, false, true},
                          Row{Place::BottomLeft, false, true, true, false},
                          Row{Place::BottomCentre, false, true, false, false},
                          Row{Place::BottomRight, false, true, false, true}}) {
    SCOPED_TRACE(static_cast<int>(row.place));
    CSecRefPoint const point(row.place);
    EXPECT_EQ(point.IsTop(), row.top);
    EXPECT_EQ(point.IsBottom(), row.bottom);
    EXPECT_EQ(point.IsLeft(), row.left);
    EXPECT_EQ(point.IsRight(), row.right);
  }
}

TEST(SecComp, ComparesEveryField) {
  using R = CSecComp;
  Testing::ExpectFields<R>({{"description", [](R& r) { r.SetDescription(L"d"); }},
                            {"materialAnalysis", [](R& r) { r.SetMaterialAnalysis(1); }},
                            {"materialDesign", [](R& r) { r.SetMaterialGrade(1); }}});
}

TEST(Section, ComparesEveryField) {
  using R = CSection;
  Testing::ExpectStoredFields<R>(
      {{"name", [](R& r) { r.SetName(L"n"); }},
       {"sid", [](R& r) { r.SetSid(L"s"); }},
       {"colour", [](R& r) { r.SetColour(1); }},
       {"components", [](R& r) { r.SetComponent(0, CSecComp()); }},
       {"refPoint", [](R& r) { r.SetRefPoint(CSecRefPoint(Place::TopLeft)); }},
       {"additionalMass", [](R& r) { r.SetAdditionalMass(1); }}});
}

}  // namespace
}  // namespace Tarvex::Data::SectionTest
