// Each field of the materials, properties, soil and spectra, with a value that differs from its
// default: its text in a file, and the record that the text reads back as.
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
#include "tests/support/matchers.h"
#include "tests/workbench/file/file_support.h"
#include "workbench/file/file_error.h"
#include "workbench/file/model_writer.h"

namespace Tarvex::Workbench::PropertyCodecsTest {
namespace {

using Testing::Read;

/// What the writer gives for a model behind the head of the file.
std::string Entries(CZelData const& model) {
  auto const text = WriteModelText(model);
  auto const headEnd = text.find("\"deg\"}") + 6;
  return text.substr(headEnd, text.size() - headEnd - 3);
}

/// Expects that a record, under number 3, writes its fields as a line, and reads back.
template <class R>
void Expect(std::string const& table, void (PropertyTables::*set)(int, R const&, SidMode),
            R const& record, std::string const& fields) {
  CZelData model;
  (model.*set)(3, record, SidMode::Keep);
  EXPECT_EQ(Entries(model), ",\n  \"" + table + "\": [\n    {\"n\": 3" + fields + "}\n  ]");
  EXPECT_TRUE(Testing::IsUnchanged(Read(WriteModelText(model)), model));
}

/// Expects that a record without a change writes nothing but its number.
template <class R>
void ExpectEmpty(std::string const& table, void (PropertyTables::*set)(int, R const&, SidMode)) {
  Expect(table, set, R(), "");
}

TEST(GradeFields, AreWrittenWhereTheyDifferFromTheDefault) {
  Data::Design::CMatSteel steel(L"S355");
  steel.elastic = {21, 0.3, 7850, 0.5, 0.02};
  steel.yieldStrength = 355;
  steel.ultimateStrength = 490;
  steel.ultimateStrain = 0.15;
  Expect("MatSteel", &CZelData::SetMatSteel, steel,
         R"(, "name": "S355", "elastic": {"youngsModulus": 21, "poissonsRatio": 0.3, )"
         R"("density": 7850, "thermalExpansion": 0.5, "dampingRatio": 0.02}, )"
         R"("yieldStrength": 355, "ultimateStrength": 490, "ultimateStrain": 0.15)");
  Data::Design::CMatConc concrete;
  concrete.cylinderStrength = 1;
  concrete.cubeStrength = 2;
  concrete.tensileStrength = 3;
  concrete.crushingStrain = 4;
  concrete.lightweight = true;
  Expect("MatConcrete", &CZelData::SetMatConcrete, concrete,
         R"(, "cylinderStrength": 1, "cubeStrength": 2, "tensileStrength": 3, )"
         R"("crushingStrain": 4, "lightweight": true)");
  Data::Design::CMatFrp plastic;
  plastic.tensileStrength = 1;
  plastic.compressiveStrength = 2;
  plastic.shearStrength = 3;
  plastic.ruptureStrain = 4;
  Expect("MatFrp", &CZelData::SetMatFrp, plastic,
         R"(, "tensileStrength": 1, "compressiveStrength": 2, "shearStrength": 3, )"
         R"("ruptureStrain": 4)");
  Data::Design::CMatAlum alloy;
  alloy.proofStrength = 1;
  alloy.ultimateStrength = 2;
  alloy.proofStrengthHaz = 3;
  alloy.ultimateStrengthHaz = 4;
  Expect("MatAluminium", &CZelData::SetMatAluminium, alloy,
         R"(, "proofStrength": 1, "ultimateStrength": 2, "proofStrengthHaz": 3, )"
         R"("ultimateStrengthHaz": 4)");
}

TEST(GradeFields, OfTimberGlassFabricAndRebarAreWrittenToo) {
  Data::Design::CMatTimber timber;
  timber.bendingStrength = 1;
  timber.tensionStrength = 2;
  timber.compressionStrength = 3;
  timber.bearingStrength = 4;
  timber.shearStrength = 5;
  timber.modulusAcrossGrain = 6;
  timber.shearModulus = 7;
  Expect("MatTimber", &CZelData::SetMatTimber, timber,
         R"(, "bendingStrength": 1, "tensionStrength": 2, "compressionStrength": 3, )"
         R"("bearingStrength": 4, "shearStrength": 5, "modulusAcrossGrain": 6, "shearModulus": 7)");
  Data::Design::CMatGlass glass;
  glass.bendingStrength = 1;
  glass.surfacePrestress = 2;
  Expect("MatGlass", &CZelData::SetMatGlass, glass,
         R"(, "bendingStrength": 1, "surfacePrestress": 2)");
  Data::Design::CMatFabric fabric;
  fabric.warpStiffness = 1;
  fabric.weftStiffness = 2;
  fabric.shearStiffness = 3;
  fabric.warpStrength = 4;
  fabric.weftStrength = 5;
  Expect("MatFabric", &CZelData::SetMatFabric, fabric,
         R"(, "warpStiffness": 1, "weftStiffness": 2, "shearStiffness": 3, "warpStrength": 4, )"
         R"("weftStrength": 5)");
  Data::Design::CMatRebar rebar;
  rebar.yieldStrength = 1;
  rebar.ultimateStrength = 2;
  rebar.ultimateStrain = 3;
  Expect("MatRebar", &CZelData::SetMatRebar, rebar,
         R"(, "yieldStrength": 1, "ultimateStrength": 2, "ultimateStrain": 3)");
}

TEST(MaterialFields, AreWrittenWhereTheyDifferFromTheDefault) {
  Expect("MatAnal", &CZelData::SetMatAnal, Data::CMatAnal(L"MAT_OTHER", L"Soil", 1, 2, 3, 4, 5),
         R"(, "name": "Soil", "kind": "MAT_OTHER", "youngsModulus": 1, "poissonsRatio": 2, )"
         R"("density": 3, "thermalExpansion": 4, "dampingRatio": 5)");
  Expect("MatCurve", &CZelData::SetMatCurve, Data::CTableT<double>(L"c", {{0, 1}, {2, 3}}),
         R"(, "name": "c", "points": [[0, 1], [2, 3]])");
  Data::CMatMatrix matrix;
  matrix.SetStiffness(Direction::Y, Direction::X, 4);
  matrix.SetStiffness(Direction::ZZ, Direction::ZZ, 5);
  Expect("MatMatrix", &CZelData::SetMatMatrix, matrix,
         R"(, "terms": [0, 4, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 5])");
}

TEST(SectionFields, AreWrittenWhereTheyDifferFromTheDefault) {
  Data::CSection section(
      L"s", {Data::CSecComp(L"tube", 4, MatDesign(MatType::Steel, 5)), Data::CSecComp()});
  section.SetRefPoint(Data::CSecRefPoint(Data::CSecRefPoint::Place::TopCentre));
  section.SetAdditionalMass(6);
  Expect("Section", &CZelData::SetSection, section,
         R"(, "name": "s", "components": [{"description": "tube", "materialAnalysis": 4, )"
         R"("materialDesign": {"type": 1, "grade": 5}}, {}], "refPoint": 2, "additionalMass": 6)");
}

TEST(SpringPropFields, AreWrittenWhereTheyDifferFromTheDefault) {
  Data::CSpringProp spring(L"s", SpringType::Matrix, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11);
  spring.SetTableRef(Direction::Y, 12);
  Expect("SpringProp", &CZelData::SetSpringProp, spring,
         R"(, "name": "s", "type": 3, "stiffness": [1, 2, 3, 4, 5, 6], "lateralStiffness": 7, )"
         R"("tableRef": [0, 12, 0], "matrix": 8, "frictionCoefficient": 9, "lowerLimit": 10, )"
         R"("upperLimit": 11)");
}

TEST(MassPropFields, AreWrittenWhereTheyDifferFromTheDefault) {
  Expect("MassProp", &CZelData::SetMassProp,
         Data::CMassProp(L"m", 1, {2, 0, 0, 0, 0, 3}, {1, 1, 0}),
         R"(, "name": "m", "mass": 1, "inertia": {"xx": 2, "zx": 3}, "factors": [1, 1, 0])");
}

TEST(Prop2DFields, AreWrittenWhereTheyDifferFromTheDefault) {
  Data::CProp2D plate(L"p", -1, MatDesign(MatType::Undefined, 0), 2,
                      Data::PropertyType2d::CurvedShell, Data::Surface2d::Top, 0.25, {1, 0.5, 2});
  plate.SetAdditionalMass(9);
  Expect("Prop2D", &CZelData::SetProp2D, plate,
         R"(, "name": "p", "type": 7, "materialAnalysis": -1, "materialDesign": {"type": -2}, )"
         R"("axis": 2, "surface": 1, "thickness": 0.25, )"
         R"("effective": {"inPlane": 0.5, "volume": 2}, "additionalMass": 9)");
}

TEST(Prop3DFields, AreWrittenWhereTheyDifferFromTheDefault) {
  Expect("Prop3D", &CZelData::SetProp3D,
         Data::CProp3D(L"p", 3, MatDesign(MatType::Concrete, 4), 5, Data::CProp3D::PropType::Soil),
         R"(, "name": "p", "type": 1, "materialAnalysis": 3, )"
         R"("materialDesign": {"type": 2, "grade": 4}, "axis": 5)");
}

TEST(LinkAndDamperFields, AreWrittenWhereTheyDifferFromTheDefault) {
  Expect("LinkProp", &CZelData::SetLinkProp,
         Data::CLinkProp(L"l", static_cast<Data::CLinkProp::Type>(1000)),
         R"(, "name": "l", "type": 1000)");
  Data::CDamperProp damper(L"d");
  damper.SetDamping(Direction::Z, 7);
  Expect("DamperProp", &CZelData::SetDamperProp, damper,
         R"(, "name": "d", "damping": [0, 0, 7, 0, 0, 0])");
}

TEST(CableAndSpacerFields, AreWrittenWhereTheyDifferFromTheDefault) {
  Data::CCableProp cable(L"c");
  cable.stiffness = 1;
  cable.mass = 2;
  cable.thermalExpansion = 3;
  cable.dampingRatio = 4;
  Expect("CableProp", &CZelData::SetCableProp, cable,
         R"(, "name": "c", "stiffness": 1, "mass": 2, "thermalExpansion": 3, "dampingRatio": 4)");
  Data::CSpacerProp spacer(L"s");
  spacer.type = Data::SpacerType::Bar;
  spacer.axialStiffness = 1;
  spacer.torsionStiffness = 2;
  spacer.lengthRatio = 3;
  Expect("SpacerProp", &CZelData::SetSpacerProp, spacer,
         R"(, "name": "s", "type": 2, "axialStiffness": 1, "torsionStiffness": 2, )"
         R"("lengthRatio": 3)");
}

TEST(FormPropertyFields, AreWrittenWhereTheyDifferFromTheDefault) {
  Data::CForceDensity1D line;
  line.density = 1;
  Expect("ForceDensity1D", &CZelData::SetForceDensity1D, line, R"(, "density": 1)");
  Data::CSoapStress1D film;
  film.force = 2;
  Expect("SoapStress1D", &CZelData::SetSoapStress1D, film, R"(, "force": 2)");
  Data::CForceDensity2D net;
  net.density = {3, 4};
  Expect("ForceDensity2D", &CZelData::SetForceDensity2D, net, R"(, "density": [3, 4])");
  Data::CSoapStress2D membrane;
  membrane.stress = {5, 6};
  membrane.shear = 7;
  Expect("SoapStress2D", &CZelData::SetSoapStress2D, membrane, R"(, "stress": [5, 6], "shear": 7)");
  Data::CRC2DProp bars;
  bars.coverTop = 1;
  bars.coverBottom = 2;
  bars.angle = 3;
  bars.barsTop = {4, 5};
  bars.barsBottom = {6, 7};
  Expect("RC2DProp", &CZelData::SetRC2DProp, bars,
         R"(, "coverTop": 1, "coverBottom": 2, "angle": 3, "barsTop": [4, 5], )"
         R"("barsBottom": [6, 7])");
}

TEST(SoilFields, AreWrittenWhereTheyDifferFromTheDefault) {
  Data::GeoSoilZone zone(L"z", Data::GeoID(4));
  zone.SetX(-1, 2);
  zone.SetY(-3, 5);
  Expect("SoilZone", &CZelData::SetSoilZone, zone,
         R"(, "name": "z", "profile": {"ref": 4}, "xmin": -1, "xmax": 2, "ymin": -3, "ymax": 5)");
  Expect("SoilProfile", &CZelData::SetSoilProfile,
         Data::GeoSoilProfile(L"p", {Data::GeoSedoStratum(-2, Data::GeoStratum(1, 2, 0.3)), {}}),
         R"(, "name": "p", "strata": [{"level": -2, "topYoungsModulus": 1, )"
         R"("bottomYoungsModulus": 2, "poissonsRatio": 0.3}, {}])");
}

TEST(ResSpectrumFields, AreWrittenWhereTheyDifferFromTheDefault) {
  Data::CResSpectrum spectrum(L"s", 11, 2);
  spectrum.SetDampingRatio(0.02);
  spectrum.SetPoints({{0, 1}, {0.5, 2.5}});
  Expect("ResSpectrum", &CZelData::SetResSpectrum, spectrum,
         R"(, "name": "s", "codeType": 11, "factor": 2, "dampingRatio": 0.02, )"
         R"("points": [[0, 1], [0.5, 2.5]])");
}

TEST(PropertyRecords, WriteNothingOfADefault) {
  ExpectEmpty("MatSteel", &CZelData::SetMatSteel);
  ExpectEmpty("MatAnal", &CZelData::SetMatAnal);
  ExpectEmpty("MatCurve", &CZelData::SetMatCurve);
  ExpectEmpty("MatMatrix", &CZelData::SetMatMatrix);
  ExpectEmpty("Section", &CZelData::SetSection);
  ExpectEmpty("SpringProp", &CZelData::SetSpringProp);
  ExpectEmpty("MassProp", &CZelData::SetMassProp);
  ExpectEmpty("Prop2D", &CZelData::SetProp2D);
  ExpectEmpty("Prop3D", &CZelData::SetProp3D);
  ExpectEmpty("LinkProp", &CZelData::SetLinkProp);
  ExpectEmpty("DamperProp", &CZelData::SetDamperProp);
  ExpectEmpty("CableProp", &CZelData::SetCableProp);
  ExpectEmpty("SpacerProp", &CZelData::SetSpacerProp);
  ExpectEmpty("RC2DProp", &CZelData::SetRC2DProp);
  ExpectEmpty("SoilZone", &CZelData::SetSoilZone);
  ExpectEmpty("SoilProfile", &CZelData::SetSoilProfile);
  ExpectEmpty("ResSpectrum", &CZelData::SetResSpectrum);
}

/// The fault of a file with one record in one table.
std::string FaultOf(std::string const& table, std::string const& record) {
  CZelData model;
  model.SetProp2D(1, Data::CProp2D());
  auto text = WriteModelText(model);
  std::string const old = "\"Prop2D\": [\n    {\"n\": 1}\n  ]";
  auto const at = text.find(old);
  EXPECT_NE(at, std::string::npos);
  text.replace(at, old.size(), "\"" + table + "\": [" + record + "]");
  try {
    Read(text);
  } catch (FileError const& fault) {
    return fault.Place().pointer + ": " + fault.Text();
  }
  return "";
}

TEST(PropertyFaults, AreTold) {
  EXPECT_EQ(FaultOf("Prop3D", R"({"n": 1, "materialDesign": {"type": -1}})"),
            "/Prop3D/0/materialDesign/type: unknown value -1");
  EXPECT_NE(FaultOf("Prop3D", R"({"n": 1, "materialDesign": {"type": 9}})"), "");
  EXPECT_NE(FaultOf("Prop2D", R"({"n": 1, "type": 11})"), "");
  EXPECT_EQ(FaultOf("LinkProp", R"({"n": 1, "type": 4095})"), "");
  EXPECT_NE(FaultOf("LinkProp", R"({"n": 1, "type": 4096})"), "");
  EXPECT_NE(FaultOf("LinkProp", R"({"n": 1, "type": -1})"), "");
  EXPECT_EQ(FaultOf("MatMatrix", R"({"n": 1, "terms": [1, 2]})"),
            "/MatMatrix/0/terms: expected 21 values, found 2");
}

}  // namespace
}  // namespace Tarvex::Workbench::PropertyCodecsTest
