#include "tests/support/random_properties.h"

#include "store/record/axis.h"
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
#include "tests/support/random_grids.h"

namespace Tarvex::Testing {
namespace {

using CurvePoints = std::vector<Vec2<double>>;

/// Adds to one model. Where several numbers are drawn they stand in statements of their own or in
/// braces, which fix their order.
class PropertyMaker {
 public:
  PropertyMaker(CZelData& model, Random& random) : m_model(model), m_random(random) {}

  void AddAll() {
    AddGrades();
    AddBehaviour();
    AddSections();
    AddPlatesAndSolids();
    AddPointProperties();
    AddFormProperties();
    AddSoil();
    Add(&CZelData::SetResSpectrum, [this](Data::CResSpectrum& spectrum) {
      if (Changed()) spectrum.SetCodeType(m_random.Of<int>({11, 15}));
      if (Changed()) spectrum.SetFactor(Value());
      if (Changed()) spectrum.SetDampingRatio(Value());
      spectrum.SetPoints(Curve());
    });
  }

 private:
  bool Changed() { return Changes(m_random); }
  double Value() { return m_random.Real(0.001, 1000); }
  void Fill(std::initializer_list<double*> values) {
    for (double* value : values)
      if (Changed()) *value = Value();
  }
  CurvePoints Curve() {
    CurvePoints points;
    for (int i = m_random.Int(0, 4); i > 0; --i) points.push_back({Value(), Value()});
    return points;
  }
  template <class Table>
  int ExistingOrNone(Table const& table) {
    if (!Changed()) return 0;
    std::vector<int> numbers;
    for (auto const& [n, record] : table) numbers.push_back(static_cast<int>(n));
    return m_random.Of(numbers);
  }

  /// Stores one to three records, with holes between, after fill(record) changed each.
  template <class Base, class Record, class FillRecord>
  void Add(void (Base::*set)(int, Record const&, SidMode), FillRecord&& fill) {
    for (int const n : m_random.Numbers(m_random.Int(1, 3))) {
      Record record;
      FillNamed(record, m_random);
      fill(record);
      (m_model.*set)(n, record, SidMode::Keep);
    }
  }

  void FillElastic(Data::Design::ElasticValues& elastic) {
    Fill({&elastic.youngsModulus, &elastic.poissonsRatio, &elastic.density,
          &elastic.thermalExpansion, &elastic.dampingRatio});
  }

  void AddGrades() {
    Add(&CZelData::SetMatSteel, [this](Data::Design::CMatSteel& grade) {
      FillElastic(grade.elastic);
      Fill({&grade.yieldStrength, &grade.ultimateStrength, &grade.ultimateStrain});
    });
    Add(&CZelData::SetMatConcrete, [this](Data::Design::CMatConc& grade) {
      FillElastic(grade.elastic);
      Fill({&grade.cylinderStrength, &grade.cubeStrength, &grade.tensileStrength,
            &grade.crushingStrain});
      if (Changed()) grade.lightweight = true;
    });
    Add(&CZelData::SetMatFrp, [this](Data::Design::CMatFrp& grade) {
      FillElastic(grade.elastic);
      Fill({&grade.tensileStrength, &grade.compressiveStrength, &grade.shearStrength,
            &grade.ruptureStrain});
    });
    Add(&CZelData::SetMatAluminium, [this](Data::Design::CMatAlum& grade) {
      FillElastic(grade.elastic);
      Fill({&grade.proofStrength, &grade.ultimateStrength, &grade.proofStrengthHaz,
            &grade.ultimateStrengthHaz});
    });
    Add(&CZelData::SetMatTimber, [this](Data::Design::CMatTimber& grade) {
      FillElastic(grade.elastic);
      Fill({&grade.bendingStrength, &grade.tensionStrength, &grade.compressionStrength,
            &grade.bearingStrength, &grade.shearStrength, &grade.modulusAcrossGrain,
            &grade.shearModulus});
    });
    Add(&CZelData::SetMatGlass, [this](Data::Design::CMatGlass& grade) {
      FillElastic(grade.elastic);
      Fill({&grade.bendingStrength, &grade.surfacePrestress});
    });
    Add(&CZelData::SetMatFabric, [this](Data::Design::CMatFabric& grade) {
      FillElastic(grade.elastic);
      Fill({&grade.warpStiffness, &grade.weftStiffness, &grade.shearStiffness, &grade.warpStrength,
            &grade.weftStrength});
    });
    Add(&CZelData::SetMatRebar, [this](Data::Design::CMatRebar& grade) {
      FillElastic(grade.elastic);
      Fill({&grade.yieldStrength, &grade.ultimateStrength, &grade.ultimateStrain});
    });
  }

  void AddBehaviour() {
    Add(&CZelData::SetMatAnal, [this](Data::CMatAnal& material) {
      if (Changed()) material.SetKind(RandomText(m_random));
      for (int i = 0; i < 5; ++i)
        if (Changed()) material.SetValue(static_cast<MatAnalValue>(i), Value());
    });
    Add(&CZelData::SetMatCurve, [this](Data::CTableT<double>& curve) { curve.SetPoints(Curve()); });
    Add(&CZelData::SetMatMatrix, [this](Data::CMatMatrix& matrix) {
      for (int i = m_random.Int(0, 6); i > 0; --i) {
        auto const row = AnyDirection();
        auto const column = AnyDirection();
        matrix.SetStiffness(row, column, Value());
      }
    });
  }

  Direction AnyDirection() { return static_cast<Direction>(m_random.Int(1, 6)); }

  /// A grade that exists, or none.
  MatDesign Grade() {
    if (m_random.Percent(20)) return {MatType::Undefined, 0};
    if (m_random.Percent(30)) return {MatType::Steel, ExistingOrNone(m_model.MatSteel())};
    if (m_random.Percent(30)) return {MatType::Concrete, ExistingOrNone(m_model.MatConcrete())};
    return {MatType::Timber, ExistingOrNone(m_model.MatTimber())};
  }

  template <class Record>
  void FillMaterial(Record& record) {
    if (Changed()) record.SetMaterialDesign(Grade());
    record.SetMaterialAnalysis(Changed() ? -1 : ExistingOrNone(m_model.MatAnal()));
  }

  CString Shape() {
    return m_random.Of<CString>({L"rectangle 0.5 0.3", L"I(mm) 300 150 7.1 10.7 15",
                                 L"box 0.2 0.1 0.005 0.005 0.0075 0.005", L"tube 0.2 0.01",
                                 L"rectangle 0.5 0.3 to 0.8 0.3", L"channel 0.2 0.08 0.006 0.01"});
  }

  void AddSections() {
    Add(&CZelData::SetSection, [this](Data::CSection& section) {
      for (int i = m_random.Int(0, 3); i > 0; --i) {
        Data::CSecComp component;
        if (!Changed()) component.SetDescription(Shape());
        if (Changed()) component.SetOffset({Value(), Value()});
        if (Changed()) component.SetAngle(m_random.Real(1, 359));
        FillMaterial(component);
        section.SetComponent(section.NumComponent(), component);
      }
      if (Changed())
        section.SetRefPoint(
            Data::CSecRefPoint(static_cast<Data::CSecRefPoint::Place>(m_random.Int(0, 8))));
      if (Changed()) section.SetAdditionalMass(Value());
    });
  }

  void AddPlatesAndSolids() {
    Add(&CZelData::SetProp2D, [this](Data::CProp2D& plate) {
      FillMaterial(plate);
      if (Changed()) plate.SetType(static_cast<Data::PropertyType2d>(m_random.Int(0, 10)));
      plate.SetAxis(ExistingOrNone(m_model.Axis()));
      if (Changed()) plate.SetReferenceSurface(Data::Surface2d::Top);
      if (Changed()) plate.SetThickness(Value());
      auto effective = plate.Effective();
      Fill({&effective.bending, &effective.inPlane, &effective.volume});
      plate.SetEffective(effective);
      if (Changed()) plate.SetAdditionalMass(Value());
    });
    Add(&CZelData::SetProp3D, [this](Data::CProp3D& solid) {
      FillMaterial(solid);
      if (Changed()) solid.SetType(Data::CProp3D::PropType::Soil);
      solid.SetAxis(ExistingOrNone(m_model.Axis()));
    });
    Add(&CZelData::SetRC2DProp, [this](Data::CRC2DProp& bars) {
      Fill({&bars.coverTop, &bars.coverBottom, &bars.angle, &bars.barsTop.x, &bars.barsTop.y,
            &bars.barsBottom.x, &bars.barsBottom.y});
    });
  }

  void FillSpring(Data::CSpringProp& spring) {
    if (Changed()) spring.SetType(static_cast<SpringType>(m_random.Int(0, 8)));
    for (int d = 1; d <= 6; ++d)
      if (Changed()) spring.SetStiffness(static_cast<Direction>(d), Value());
    if (Changed()) spring.SetLateralStiffness(Value());
    for (int d = 1; d <= 3; ++d)
      spring.SetTableRef(static_cast<Direction>(d), ExistingOrNone(m_model.MatCurve()));
    spring.SetMatrix(ExistingOrNone(m_model.MatMatrix()));
    if (Changed()) spring.SetFrictionCoefficient(Value());
    double const lower = Changed() ? -Value() : 0;
    spring.SetLimits(lower, Changed() ? Value() : 0);
  }

  void AddPointProperties() {
    Add(&CZelData::SetSpringProp, [this](Data::CSpringProp& spring) { FillSpring(spring); });
    Add(&CZelData::SetMassProp, [this](Data::CMassProp& mass) {
      if (Changed()) mass.SetMass(Value());
      TensSym3<double> inertia;
      Fill({&inertia.xx, &inertia.yy, &inertia.zz, &inertia.xy, &inertia.yz, &inertia.zx});
      mass.SetInertia(inertia);
      if (Changed()) mass.SetFactors({Value(), Value(), Value()});
    });
    Add(&CZelData::SetLinkProp, [this](Data::CLinkProp& link) {
      if (Changed()) link.SetType(static_cast<Data::CLinkProp::Type>(m_random.Int(0, 4095)));
    });
    Add(&CZelData::SetDamperProp, [this](Data::CDamperProp& damper) {
      for (int d = 1; d <= 6; ++d)
        if (Changed()) damper.SetDamping(static_cast<Direction>(d), Value());
    });
  }

  void AddFormProperties() {
    Add(&CZelData::SetCableProp, [this](Data::CCableProp& cable) {
      Fill({&cable.stiffness, &cable.mass, &cable.thermalExpansion, &cable.dampingRatio});
    });
    Add(&CZelData::SetSpacerProp, [this](Data::CSpacerProp& spacer) {
      if (Changed()) spacer.type = static_cast<Data::SpacerType>(m_random.Int(0, 2));
      Fill({&spacer.axialStiffness, &spacer.torsionStiffness, &spacer.lengthRatio});
    });
    Add(&CZelData::SetForceDensity1D,
        [this](Data::CForceDensity1D& property) { Fill({&property.density}); });
    Add(&CZelData::SetSoapStress1D,
        [this](Data::CSoapStress1D& property) { Fill({&property.force}); });
    Add(&CZelData::SetForceDensity2D, [this](Data::CForceDensity2D& property) {
      Fill({&property.density.x, &property.density.y});
    });
    Add(&CZelData::SetSoapStress2D, [this](Data::CSoapStress2D& property) {
      Fill({&property.stress.x, &property.stress.y, &property.shear});
    });
  }

  void AddSoil() {
    Add(&CZelData::SetSoilProfile, [this](Data::GeoSoilProfile& profile) {
      std::vector<Data::GeoSedoStratum> strata;
      double level = m_random.Real(-2, 2);
      for (int i = m_random.Int(0, 3); i > 0; --i) {
        level -= m_random.Real(0.5, 10);
        double const top = Value();
        double const bottom = Value();
        strata.emplace_back(level, Data::GeoStratum(top, bottom, m_random.Real(0, 0.5)));
      }
      profile.SetStrata(strata);
    });
    Add(&CZelData::SetSoilZone, [this](Data::GeoSoilZone& zone) {
      zone.SetProfile(Data::GeoID(ExistingOrNone(m_model.SoilProfile())));
      double const x = m_random.Real(-20, 20);
      if (Changed()) zone.SetX(x, x + Value());
      double const y = m_random.Real(-20, 20);
      if (Changed()) zone.SetY(y, y + Value());
    });
  }

  CZelData& m_model;
  Random& m_random;
};

}  // namespace

void AddRandomProperties(CZelData& model, Random& random) { PropertyMaker(model, random).AddAll(); }

}  // namespace Tarvex::Testing
