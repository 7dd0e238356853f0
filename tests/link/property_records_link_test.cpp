// The records of materials, properties, soil and spectra, as an application links them.
#include <gtest/gtest.h>

#include "store/record/form_props.h"
#include "store/record/link_prop.h"
#include "store/record/mass_prop.h"
#include "store/record/mat_anal.h"
#include "store/record/mat_tables.h"
#include "store/record/material.h"
#include "store/record/other_props.h"
#include "store/record/prop_2d.h"
#include "store/record/prop_3d.h"
#include "store/record/res_spectrum.h"
#include "store/record/section.h"
#include "store/record/soil.h"
#include "store/record/spring_prop.h"
#include "tests/link/linked.h"

namespace Tarvex::PropertyRecordsLinkTest {
namespace {

using Testing::AreLinked;
using namespace Data;  // NOLINT: the records under test

TEST(PropertyRecordsLink, Materials) {
  EXPECT_TRUE(AreLinked(&MatModule, &CMatAnal::Value, &CMatAnal::SetValue, &CMatMatrix::Stiffness,
                        &CMatMatrix::SetStiffness));
  EXPECT_EQ(MatModule(MatType::Steel), CModule::MatSteel);
  CMatAnal material;
  material.SetValue(MatAnalValue::Density, 2);
  EXPECT_EQ(material.Value(MatAnalValue::Density), 2);
  CMatMatrix matrix;
  matrix.SetStiffness(Direction::X, Direction::Y, 3);
  EXPECT_EQ(matrix.Stiffness(Direction::Y, Direction::X), 3);
  EXPECT_EQ(CTableT<double>(L"", {{1, 2}}).Point(0).y, 2);
  EXPECT_EQ(Design::CMatSteel(L"a").Name(), L"a");
  // The table of a grade is asked of the library.
  EXPECT_EQ(GetRow<1>(kFieldsOf<MatDesign>).target(MatDesign(MatType::Glass, 1)),
            CModule::MatGlass);
}

TEST(PropertyRecordsLink, Properties) {
  EXPECT_TRUE(AreLinked(&CSection::Component, &CSection::SetComponent,
                        &CSection::SetMaterialAnalysis, &CSection::SetMaterialGrade,
                        &CSpringProp::Stiffness, &CSpringProp::SetStiffness, &CSpringProp::TableRef,
                        &CSpringProp::SetTableRef, &CProp2D::SetFromDesc, &CDamperProp::Damping,
                        &CDamperProp::SetDamping));
  EXPECT_TRUE(AreLinked(&CSection::Shape, &CSection::Properties, &CSection::Moments,
                        &CSecComp::Moments, &CSecComp::Box, &CSecGeom::SetDescription,
                        &CSecGeom::Description, &CSecGeom::Dimension, &CSecGeom::Moments,
                        &CSecGeom::Box, &SectionShapeOf, &ReadSection, &WriteSection,
                        &PropertiesOf));
  EXPECT_NEAR(CSection(L"", {CSecComp(L"rectangle 2 1", 0, MatDesign())})
                  .EnclosingBox(0, SecRef::Centroid)
                  .top,
              1, 1e-15);
  CSection section;
  section.SetComponent(0, CSecComp());
  section.SetMaterialAnalysis(0, 4);
  EXPECT_EQ(section.MaterialAnalysis(0), 4);
  CProp2D plate;
  EXPECT_TRUE(plate.SetFromDesc(L"0.5"));
  EXPECT_EQ(plate.Thickness(), 0.5);
  EXPECT_EQ(CProp3D(L"", 3, MatDesign(), 0, CProp3D::PropType::Soil).MaterialAnalysis(), 3);
  EXPECT_EQ(CMassProp(L"", 2, CMassProp::DefaultInertia(), {1, 1, 1}).Mass(), 2);
  EXPECT_FALSE(CLinkProp().IsCustom());
  CSpringProp spring;
  spring.SetTableRef(Direction::Y, 4);
  EXPECT_EQ(spring.TableRef(Direction::Y), 4);
  CDamperProp damper;
  damper.SetDamping(Direction::Z, 5);
  EXPECT_EQ(damper.Damping(Direction::Z), 5);
  EXPECT_EQ(CCableProp(L"a").Name(), L"a");
  EXPECT_EQ(CSoapStress2D(L"a").Name(), L"a");
}

TEST(PropertyRecordsLink, SoilAndSpectra) {
  EXPECT_EQ(GeoSoilProfile(L"", {GeoSedoStratum(-3, {})}).GetStratum(0).GetLevel(), -3);
  EXPECT_EQ(GeoSoilZone(L"", GeoID(4)).GetProfile().GetRef(), 4);
  EXPECT_EQ(CResSpectrum(L"", 11, 2).CodeType(), 11);
}

}  // namespace
}  // namespace Tarvex::PropertyRecordsLinkTest
