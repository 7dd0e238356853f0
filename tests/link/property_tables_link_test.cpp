// Tables of materials, properties, soil and spectra, as an application links them.
#include <gtest/gtest.h>

#include "store/model/zel_data.h"
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

namespace Tarvex::PropertyTablesLinkTest {
namespace {

using Testing::AreLinked;
using Testing::Member;
using T = PropertyTables;

/// Stores a record, reads it back and blanks it.
template <class Record>
void ExpectTable(bool (T::*exist)(int) const, Record const& (T::*get)(int) const,
                 tarvex_unordered_map<unsigned int, Record> const& (T::*all)() const,
                 int (T::*highest)() const, void (T::*set)(int, Record const&, SidMode),
                 void (T::*blank)(int, int)) {
  EXPECT_TRUE(AreLinked(exist, get, all, highest, set, blank));
  CZelData model;
  Record record;
  record.SetName(L"some");
  (model.*set)(2, record, SidMode::Keep);
  EXPECT_TRUE((model.*exist)(2));
  EXPECT_EQ((model.*get)(2).Name(), L"some");
  EXPECT_EQ((model.*all)().size(), 1u);
  EXPECT_EQ((model.*highest)(), 2);
  (model.*blank)(2, 1);
  EXPECT_FALSE((model.*exist)(2));
}

TEST(PropertyTablesLink, MatSteelOperations) {
  ExpectTable<Data::Design::CMatSteel>(&T::MatSteelExist, &T::MatSteel, &T::MatSteel,
                                       &T::HighestMatSteel, &T::SetMatSteel, &T::BlankMatSteel);
}

TEST(PropertyTablesLink, MatConcreteOperations) {
  ExpectTable<Data::Design::CMatConc>(&T::MatConcreteExist, &T::MatConcrete, &T::MatConcrete,
                                      &T::HighestMatConcrete, &T::SetMatConcrete,
                                      &T::BlankMatConcrete);
}

TEST(PropertyTablesLink, MatFrpOperations) {
  ExpectTable<Data::Design::CMatFrp>(&T::MatFrpExist, &T::MatFrp, &T::MatFrp, &T::HighestMatFrp,
                                     &T::SetMatFrp, &T::BlankMatFrp);
}

TEST(PropertyTablesLink, MatAluminiumOperations) {
  ExpectTable<Data::Design::CMatAlum>(&T::MatAluminiumExist, &T::MatAluminium, &T::MatAluminium,
                                      &T::HighestMatAluminium, &T::SetMatAluminium,
                                      &T::BlankMatAluminium);
}

TEST(PropertyTablesLink, MatTimberOperations) {
  ExpectTable<Data::Design::CMatTimber>(&T::MatTimberExist, &T::MatTimber, &T::MatTimber,
                                        &T::HighestMatTimber, &T::SetMatTimber, &T::BlankMatTimber);
}

TEST(PropertyTablesLink, MatGlassOperations) {
  ExpectTable<Data::Design::CMatGlass>(&T::MatGlassExist, &T::MatGlass, &T::MatGlass,
                                       &T::HighestMatGlass, &T::SetMatGlass, &T::BlankMatGlass);
}

TEST(PropertyTablesLink, MatFabricOperations) {
  ExpectTable<Data::Design::CMatFabric>(&T::MatFabricExist, &T::MatFabric, &T::MatFabric,
                                        &T::HighestMatFabric, &T::SetMatFabric, &T::BlankMatFabric);
}

TEST(PropertyTablesLink, MatRebarOperations) {
  ExpectTable<Data::Design::CMatRebar>(&T::MatRebarExist, &T::MatRebar, &T::MatRebar,
                                       &T::HighestMatRebar, &T::SetMatRebar, &T::BlankMatRebar);
}

TEST(PropertyTablesLink, MatAnalOperations) {
  ExpectTable<Data::CMatAnal>(&T::MatAnalExist, &T::MatAnal, &T::MatAnal, &T::HighestMatAnal,
                              &T::SetMatAnal, &T::BlankMatAnal);
}

TEST(PropertyTablesLink, MatCurveOperations) {
  ExpectTable<Data::CTableT<double>>(&T::MatCurveExist, &T::MatCurve, &T::MatCurve,
                                     &T::HighestMatCurve, &T::SetMatCurve, &T::BlankMatCurve);
}

TEST(PropertyTablesLink, MatMatrixOperations) {
  ExpectTable<Data::CMatMatrix>(&T::MatMatrixExist, &T::MatMatrix, &T::MatMatrix,
                                &T::HighestMatMatrix, &T::SetMatMatrix, &T::BlankMatMatrix);
}

TEST(PropertyTablesLink, SectionOperations) {
  ExpectTable<Data::CSection>(&T::SectionExist, &T::Section, &T::Section, &T::HighestSection,
                              &T::SetSection, &T::BlankSection);
}

TEST(PropertyTablesLink, SpringPropOperations) {
  ExpectTable<Data::CSpringProp>(&T::SpringPropExist, &T::SpringProp, &T::SpringProp,
                                 &T::HighestSpringProp, &T::SetSpringProp, &T::BlankSpringProp);
}

TEST(PropertyTablesLink, MassPropOperations) {
  ExpectTable<Data::CMassProp>(&T::MassPropExist, &T::MassProp, &T::MassProp, &T::HighestMassProp,
                               &T::SetMassProp, &T::BlankMassProp);
}

TEST(PropertyTablesLink, Prop2DOperations) {
  ExpectTable<Data::CProp2D>(&T::Prop2DExist, &T::Prop2D, &T::Prop2D, &T::HighestProp2D,
                             &T::SetProp2D, &T::BlankProp2D);
}

TEST(PropertyTablesLink, Prop3DOperations) {
  ExpectTable<Data::CProp3D>(&T::Prop3DExist, &T::Prop3D, &T::Prop3D, &T::HighestProp3D,
                             &T::SetProp3D, &T::BlankProp3D);
}

TEST(PropertyTablesLink, LinkPropOperations) {
  ExpectTable<Data::CLinkProp>(&T::LinkPropExist, &T::LinkProp, &T::LinkProp, &T::HighestLinkProp,
                               &T::SetLinkProp, &T::BlankLinkProp);
}

TEST(PropertyTablesLink, DamperPropOperations) {
  ExpectTable<Data::CDamperProp>(&T::DamperPropExist, &T::DamperProp, &T::DamperProp,
                                 &T::HighestDamperProp, &T::SetDamperProp, &T::BlankDamperProp);
}

TEST(PropertyTablesLink, CablePropOperations) {
  ExpectTable<Data::CCableProp>(&T::CablePropExist, &T::CableProp, &T::CableProp,
                                &T::HighestCableProp, &T::SetCableProp, &T::BlankCableProp);
}

TEST(PropertyTablesLink, SpacerPropOperations) {
  ExpectTable<Data::CSpacerProp>(&T::SpacerPropExist, &T::SpacerProp, &T::SpacerProp,
                                 &T::HighestSpacerProp, &T::SetSpacerProp, &T::BlankSpacerProp);
}

TEST(PropertyTablesLink, ForceDensity1DOperations) {
  ExpectTable<Data::CForceDensity1D>(&T::ForceDensity1DExist, &T::ForceDensity1D,
                                     &T::ForceDensity1D, &T::HighestForceDensity1D,
                                     &T::SetForceDensity1D, &T::BlankForceDensity1D);
}

TEST(PropertyTablesLink, SoapStress1DOperations) {
  ExpectTable<Data::CSoapStress1D>(&T::SoapStress1DExist, &T::SoapStress1D, &T::SoapStress1D,
                                   &T::HighestSoapStress1D, &T::SetSoapStress1D,
                                   &T::BlankSoapStress1D);
}

TEST(PropertyTablesLink, ForceDensity2DOperations) {
  ExpectTable<Data::CForceDensity2D>(&T::ForceDensity2DExist, &T::ForceDensity2D,
                                     &T::ForceDensity2D, &T::HighestForceDensity2D,
                                     &T::SetForceDensity2D, &T::BlankForceDensity2D);
}

TEST(PropertyTablesLink, SoapStress2DOperations) {
  ExpectTable<Data::CSoapStress2D>(&T::SoapStress2DExist, &T::SoapStress2D, &T::SoapStress2D,
                                   &T::HighestSoapStress2D, &T::SetSoapStress2D,
                                   &T::BlankSoapStress2D);
}

TEST(PropertyTablesLink, RC2DPropOperations) {
  ExpectTable<Data::CRC2DProp>(&T::RC2DPropExist, &T::RC2DProp, &T::RC2DProp, &T::HighestRC2DProp,
                               &T::SetRC2DProp, &T::BlankRC2DProp);
}

TEST(PropertyTablesLink, SoilZoneOperations) {
  ExpectTable<Data::GeoSoilZone>(&T::SoilZoneExist, &T::SoilZone, &T::SoilZone, &T::HighestSoilZone,
                                 &T::SetSoilZone, &T::BlankSoilZone);
}

TEST(PropertyTablesLink, SoilProfileOperations) {
  ExpectTable<Data::GeoSoilProfile>(&T::SoilProfileExist, &T::SoilProfile, &T::SoilProfile,
                                    &T::HighestSoilProfile, &T::SetSoilProfile,
                                    &T::BlankSoilProfile);
}

TEST(PropertyTablesLink, ResSpectrumOperations) {
  ExpectTable<Data::CResSpectrum>(&T::ResSpectrumExist, &T::ResSpectrum, &T::ResSpectrum,
                                  &T::HighestResSpectrum, &T::SetResSpectrum, &T::BlankResSpectrum);
}

TEST(PropertyTablesLink, SpringIdentifiers) {
  EXPECT_TRUE(AreLinked(&T::SetSpringPropSid));
  CZelData model;
  model.SetSpringProp(2, Data::CSpringProp());
  model.SetSpringPropSid(2, L"id");
  EXPECT_EQ(model.SpringProp(2).Sid(), L"id");
}

}  // namespace
}  // namespace Tarvex::PropertyTablesLinkTest
