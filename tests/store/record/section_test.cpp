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

/// Two channels 200 by 80 back to back, 10 between them.
CSection Pair() {
  CSecComp right(L"channel 0.2 0.08 0.01 0.02", 0, MatDesign());
  right.SetOffset({-0.045, 0});
  right.SetAngle(180);
  CSecComp left(L"channel 0.2 0.08 0.01 0.02", 0, MatDesign());
  left.SetOffset({0.045, 0});
  return {L"pair", {right, left}};
}

TEST(Section, HasTheShapeOfItsOneComponent) {
  EXPECT_EQ(CSection(L"", {CSecComp(L"I 0.4 0.2 0.01 0.02", 0, MatDesign())}).Shape(),
            SectionShape::I);
  EXPECT_EQ(Filled().Shape(), SectionShape::None);
  EXPECT_EQ(CSection().Shape(), SectionShape::None);
}

TEST(Section, AddsUpItsComponents) {
  // The webs face each other, so that the centroid of each lies to the side of its middle.
  auto const pair = Pair().Properties(0);
  auto const one = PropertiesOf(CSecGeom(L"channel 0.2 0.08 0.01 0.02").Moments(0));
  double const lever = 0.045 + one.centroid.x;
  EXPECT_NEAR(pair.area, 2 * one.area, 1e-15);
  EXPECT_NEAR(pair.centroid.x, 0, 1e-15);
  EXPECT_NEAR(pair.iyy, 2 * one.iyy, 1e-15);
  EXPECT_NEAR(pair.izz, 2 * (one.izz + one.area * lever * lever), 1e-15);
}

TEST(Section, EnclosesItsComponents) {
  auto const box = Pair().EnclosingBox(0, SecRef::Origin);
  EXPECT_NEAR(box.left, 0.085, 1e-15);
  EXPECT_NEAR(box.right, -0.085, 1e-15);
  EXPECT_NEAR(box.top, 0.1, 1e-15);
  EXPECT_NEAR(box.bottom, -0.1, 1e-15);
  CSecBox other;
  Pair().EnclosingBox(other, 0, SecRef::Middle);
  EXPECT_NEAR(other.Width() * other.Height(), 0.17 * 0.2, 1e-15);
  EXPECT_EQ(CSection().EnclosingBox(0, SecRef::Centroid), CSecBox());
}

TEST(Section, MeasuresItsBoxFromTheReferenceThatIsAskedFor) {
  // A tee 500 deep: its centroid is (0.04 * 0.2 - 0.08 * 0.05) / 0.12 = 1 / 30 above the middle.
  CSecComp tee(L"tee 0.5 0.4 0.2 0.1", 0, MatDesign());
  tee.SetOffset({1, 2});
  CSection section(L"", {tee});
  EXPECT_NEAR(section.EnclosingBox(0, SecRef::Origin).top, 2.25, 1e-15);
  EXPECT_NEAR(section.EnclosingBox(0, SecRef::Centroid).top, 0.25 - 1.0 / 30, 1e-15);
  EXPECT_NEAR(section.EnclosingBox(0, SecRef::Centroid).left, 0.2, 1e-15);
  EXPECT_NEAR(section.EnclosingBox(0, SecRef::Middle).top, 0.25, 1e-15);
  EXPECT_NEAR(section.EnclosingBox(0, SecRef::Reference).top, 0.25 - 1.0 / 30, 1e-15);
  section.SetRefPoint(CSecRefPoint(Place::TopLeft));
  auto const box = section.EnclosingBox(0, SecRef::Reference);
  EXPECT_NEAR(box.top, 0, 1e-15);
  EXPECT_NEAR(box.bottom, -0.5, 1e-15);
  EXPECT_NEAR(box.left, 0, 1e-15);
  EXPECT_NEAR(box.right, -0.4, 1e-15);
  section.SetRefPoint(CSecRefPoint(Place::BottomRight));
  EXPECT_NEAR(section.EnclosingBox(0, SecRef::Reference).top, 0.5, 1e-15);
  EXPECT_NEAR(section.EnclosingBox(0, SecRef::Reference).left, 0.4, 1e-15);
}

TEST(Section, WeighsItsComponentsWhereAsked) {
  // A steel tube full of concrete, the concrete counting a seventh.
  auto const moments = Filled().Moments(0, std::vector{1.0, 1.0 / 7});
  EXPECT_NEAR(moments.area, kPi * (0.15 * 0.15 - 0.14 * 0.14 + 0.14 * 0.14 / 7), 1e-15);
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
                            {"materialDesign", [](R& r) { r.SetMaterialGrade(1); }},
                            {"offset",
                             [](R& r) {
                               r.SetOffset({0, 1});
                             }},
                            {"angle", [](R& r) { r.SetAngle(1); }}});
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
