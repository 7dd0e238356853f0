// The tables of materials, properties, soil and spectra, written out by hand: the registry must
// have the same.
#pragma once

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
#include "store/record/row_pack.h"
#include "store/record/section.h"
#include "store/record/soil.h"
#include "store/record/spring_prop.h"
#include "tests/store/model/table_row.h"

namespace Tarvex::RegistryTest {

#define TARVEX_ROW(Stem, module, Record, a, b) TARVEX_ROW_OF(Stem, module, Data::Record, a, b)

/// Materials, properties, soil and spectra.
inline auto PropertyRows() {
  using Data::CLinkProp;
  using Data::CProp3D;
  using Data::CSecComp;
  using Data::GeoID;
  using Data::GeoSedoStratum;
  using Data::PropertyType2d;
  using Data::Surface2d;
  using Components = std::vector<CSecComp>;
  using Points = std::vector<Vec2<double>>;
  using Strata = std::vector<GeoSedoStratum>;
  return MakeRows(
      TARVEX_ROW(MatSteel, 30, Design::CMatSteel, (L"a"), (L"b")),
      TARVEX_ROW(MatConcrete, 31, Design::CMatConc, (L"a"), (L"b")),
      TARVEX_ROW(MatFrp, 32, Design::CMatFrp, (L"a"), (L"b")),
      TARVEX_ROW(MatAluminium, 33, Design::CMatAlum, (L"a"), (L"b")),
      TARVEX_ROW(MatTimber, 34, Design::CMatTimber, (L"a"), (L"b")),
      TARVEX_ROW(MatGlass, 35, Design::CMatGlass, (L"a"), (L"b")),
      TARVEX_ROW(MatFabric, 36, Design::CMatFabric, (L"a"), (L"b")),
      TARVEX_ROW(MatRebar, 37, Design::CMatRebar, (L"a"), (L"b")),
      TARVEX_ROW(MatAnal, 38, CMatAnal, (L"k", L"a", 1, 2, 3, 4, 5), (L"k", L"b", 6, 7, 8, 9, 10)),
      TARVEX_ROW(MatCurve, 39, CTableT<double>, (L"a", Points{{1, 2}}), (L"b", Points())),
      TARVEX_ROW(MatMatrix, 40, CMatMatrix, (L"a"), (L"b")),
      TARVEX_ROW(Section, 50, CSection, (L"a", Components(1)), (L"b", Components())),
      TARVEX_ROW(SpringProp, 52, CSpringProp,
                 (L"a", SpringType::General, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11), ()),
      TARVEX_ROW(MassProp, 53, CMassProp, (L"a", 1, TensSym3<double>(), Vec3<double>{1, 1, 1}),
                 (L"b", 2, TensSym3<double>(), Vec3<double>{1, 1, 1})),
      TARVEX_ROW(Prop2D, 54, CProp2D,
                 (L"a", 1, MatDesign(), 2, PropertyType2d::Plate, Surface2d::Top, 3,
                  Data::EffectiveThickness()),
                 ()),
      TARVEX_ROW(Prop3D, 55, CProp3D, (L"a", 1, MatDesign(), 2, CProp3D::PropType::Soil), ()),
      TARVEX_ROW(LinkProp, 56, CLinkProp, (L"a", CLinkProp::Type::All),
                 (L"b", CLinkProp::Type::Diaphragm)),
      TARVEX_ROW(DamperProp, 57, CDamperProp, (L"a"), (L"b")),
      TARVEX_ROW(CableProp, 58, CCableProp, (L"a"), (L"b")),
      TARVEX_ROW(SpacerProp, 59, CSpacerProp, (L"a"), (L"b")),
      TARVEX_ROW(ForceDensity1D, 62, CForceDensity1D, (L"a"), (L"b")),
      TARVEX_ROW(SoapStress1D, 63, CSoapStress1D, (L"a"), (L"b")),
      TARVEX_ROW(ForceDensity2D, 64, CForceDensity2D, (L"a"), (L"b")),
      TARVEX_ROW(SoapStress2D, 65, CSoapStress2D, (L"a"), (L"b")),
      TARVEX_ROW(RC2DProp, 75, CRC2DProp, (L"a"), (L"b")),
      TARVEX_ROW(SoilZone, -1, GeoSoilZone, (L"a", GeoID(1)), (L"b", GeoID(2))),
      TARVEX_ROW(SoilProfile, -1, GeoSoilProfile, (L"a", Strata(1)), (L"b", Strata())),
      TARVEX_ROW(ResSpectrum, -1, CResSpectrum, (L"a", 11, 2), (L"b", 15, 3)));
}

#undef TARVEX_ROW

}  // namespace Tarvex::RegistryTest
