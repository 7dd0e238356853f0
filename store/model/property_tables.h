// Tables of materials and properties, of soil and of response spectra. The operations are those of
// store/model/entity_tables.h.
#pragma once

#include "store/export.h"
#include "store/model/query_types.h"
#include "store/table/paged_table.h"

namespace Tarvex {

class CString;
class ModelCore;
namespace Data {
namespace Design {
class CMatSteel;
class CMatConc;
class CMatFrp;
class CMatAlum;
class CMatTimber;
class CMatGlass;
class CMatFabric;
class CMatRebar;
}  // namespace Design
class CCableProp;
class CDamperProp;
class CForceDensity1D;
class CForceDensity2D;
class CLinkProp;
class CMassProp;
class CMatAnal;
class CMatMatrix;
class CProp2D;
class CProp3D;
class CRC2DProp;
class CResSpectrum;
class CSection;
class CSoapStress1D;
class CSoapStress2D;
class CSpacerProp;
class CSpringProp;
class GeoSoilProfile;
class GeoSoilZone;
template <class T>
class CTableT;
}  // namespace Data

/// Materials and properties of a model.
class TARVEX_STORE_EXPORT PropertyTables {
 public:
  // Steel grades (30).
  bool MatSteelExist(int n) const;
  Data::Design::CMatSteel const& MatSteel(int n) const;
  tarvex_unordered_map<unsigned int, Data::Design::CMatSteel> const& MatSteel() const;
  int HighestMatSteel() const;
  void SetMatSteel(int n, Data::Design::CMatSteel const& record, SidMode sid = SidMode::Keep);
  void BlankMatSteel(int first, int count);

  // Concrete grades (31).
  bool MatConcreteExist(int n) const;
  Data::Design::CMatConc const& MatConcrete(int n) const;
  tarvex_unordered_map<unsigned int, Data::Design::CMatConc> const& MatConcrete() const;
  int HighestMatConcrete() const;
  void SetMatConcrete(int n, Data::Design::CMatConc const& record, SidMode sid = SidMode::Keep);
  void BlankMatConcrete(int first, int count);

  // Grades of fibre-reinforced plastic (32).
  bool MatFrpExist(int n) const;
  Data::Design::CMatFrp const& MatFrp(int n) const;
  tarvex_unordered_map<unsigned int, Data::Design::CMatFrp> const& MatFrp() const;
  int HighestMatFrp() const;
  void SetMatFrp(int n, Data::Design::CMatFrp const& record, SidMode sid = SidMode::Keep);
  void BlankMatFrp(int first, int count);

  // Aluminium grades (33).
  bool MatAluminiumExist(int n) const;
  Data::Design::CMatAlum const& MatAluminium(int n) const;
  tarvex_unordered_map<unsigned int, Data::Design::CMatAlum> const& MatAluminium() const;
  int HighestMatAluminium() const;
  void SetMatAluminium(int n, Data::Design::CMatAlum const& record, SidMode sid = SidMode::Keep);
  void BlankMatAluminium(int first, int count);

  // Timber grades (34).
  bool MatTimberExist(int n) const;
  Data::Design::CMatTimber const& MatTimber(int n) const;
  tarvex_unordered_map<unsigned int, Data::Design::CMatTimber> const& MatTimber() const;
  int HighestMatTimber() const;
  void SetMatTimber(int n, Data::Design::CMatTimber const& record, SidMode sid = SidMode::Keep);
  void BlankMatTimber(int first, int count);

  // Glass grades (35).
  bool MatGlassExist(int n) const;
  Data::Design::CMatGlass const& MatGlass(int n) const;
  tarvex_unordered_map<unsigned int, Data::Design::CMatGlass> const& MatGlass() const;
  int HighestMatGlass() const;
  void SetMatGlass(int n, Data::Design::CMatGlass const& record, SidMode sid = SidMode::Keep);
  void BlankMatGlass(int first, int count);

  // Fabric grades (36).
  bool MatFabricExist(int n) const;
  Data::Design::CMatFabric const& MatFabric(int n) const;
  tarvex_unordered_map<unsigned int, Data::Design::CMatFabric> const& MatFabric() const;
  int HighestMatFabric() const;
  void SetMatFabric(int n, Data::Design::CMatFabric const& record, SidMode sid = SidMode::Keep);
  void BlankMatFabric(int first, int count);

  // Grades of reinforcing steel (37).
  bool MatRebarExist(int n) const;
  Data::Design::CMatRebar const& MatRebar(int n) const;
  tarvex_unordered_map<unsigned int, Data::Design::CMatRebar> const& MatRebar() const;
  int HighestMatRebar() const;
  void SetMatRebar(int n, Data::Design::CMatRebar const& record, SidMode sid = SidMode::Keep);
  void BlankMatRebar(int first, int count);

  // Analysis materials (38).
  bool MatAnalExist(int n) const;
  Data::CMatAnal const& MatAnal(int n) const;
  tarvex_unordered_map<unsigned int, Data::CMatAnal> const& MatAnal() const;
  int HighestMatAnal() const;
  void SetMatAnal(int n, Data::CMatAnal const& record, SidMode sid = SidMode::Keep);
  void BlankMatAnal(int first, int count);

  // Curves of springs (39).
  bool MatCurveExist(int n) const;
  Data::CTableT<double> const& MatCurve(int n) const;
  tarvex_unordered_map<unsigned int, Data::CTableT<double>> const& MatCurve() const;
  int HighestMatCurve() const;
  void SetMatCurve(int n, Data::CTableT<double> const& record, SidMode sid = SidMode::Keep);
  void BlankMatCurve(int first, int count);

  // Matrices of springs (40).
  bool MatMatrixExist(int n) const;
  Data::CMatMatrix const& MatMatrix(int n) const;
  tarvex_unordered_map<unsigned int, Data::CMatMatrix> const& MatMatrix() const;
  int HighestMatMatrix() const;
  void SetMatMatrix(int n, Data::CMatMatrix const& record, SidMode sid = SidMode::Keep);
  void BlankMatMatrix(int first, int count);

  // Sections (50).
  bool SectionExist(int n) const;
  Data::CSection const& Section(int n) const;
  tarvex_unordered_map<unsigned int, Data::CSection> const& Section() const;
  int HighestSection() const;
  void SetSection(int n, Data::CSection const& record, SidMode sid = SidMode::Keep);
  void BlankSection(int first, int count);

  // Spring properties (52).
  bool SpringPropExist(int n) const;
  Data::CSpringProp const& SpringProp(int n) const;
  tarvex_unordered_map<unsigned int, Data::CSpringProp> const& SpringProp() const;
  int HighestSpringProp() const;
  void SetSpringProp(int n, Data::CSpringProp const& record, SidMode sid = SidMode::Keep);
  /// Replaces the text identifier of an existing property.
  void SetSpringPropSid(int n, CString const& sid);
  void BlankSpringProp(int first, int count);

  // Mass properties (53).
  bool MassPropExist(int n) const;
  Data::CMassProp const& MassProp(int n) const;
  tarvex_unordered_map<unsigned int, Data::CMassProp> const& MassProp() const;
  int HighestMassProp() const;
  void SetMassProp(int n, Data::CMassProp const& record, SidMode sid = SidMode::Keep);
  void BlankMassProp(int first, int count);

  // 2D properties, of load panels too (54).
  bool Prop2DExist(int n) const;
  Data::CProp2D const& Prop2D(int n) const;
  tarvex_unordered_map<unsigned int, Data::CProp2D> const& Prop2D() const;
  int HighestProp2D() const;
  void SetProp2D(int n, Data::CProp2D const& record, SidMode sid = SidMode::Keep);
  void BlankProp2D(int first, int count);

  // 3D properties (55).
  bool Prop3DExist(int n) const;
  Data::CProp3D const& Prop3D(int n) const;
  tarvex_unordered_map<unsigned int, Data::CProp3D> const& Prop3D() const;
  int HighestProp3D() const;
  void SetProp3D(int n, Data::CProp3D const& record, SidMode sid = SidMode::Keep);
  void BlankProp3D(int first, int count);

  // Link properties (56).
  bool LinkPropExist(int n) const;
  Data::CLinkProp const& LinkProp(int n) const;
  tarvex_unordered_map<unsigned int, Data::CLinkProp> const& LinkProp() const;
  int HighestLinkProp() const;
  void SetLinkProp(int n, Data::CLinkProp const& record, SidMode sid = SidMode::Keep);
  void BlankLinkProp(int first, int count);

  // Damper properties (57).
  bool DamperPropExist(int n) const;
  Data::CDamperProp const& DamperProp(int n) const;
  tarvex_unordered_map<unsigned int, Data::CDamperProp> const& DamperProp() const;
  int HighestDamperProp() const;
  void SetDamperProp(int n, Data::CDamperProp const& record, SidMode sid = SidMode::Keep);
  void BlankDamperProp(int first, int count);

  // Cable properties (58).
  bool CablePropExist(int n) const;
  Data::CCableProp const& CableProp(int n) const;
  tarvex_unordered_map<unsigned int, Data::CCableProp> const& CableProp() const;
  int HighestCableProp() const;
  void SetCableProp(int n, Data::CCableProp const& record, SidMode sid = SidMode::Keep);
  void BlankCableProp(int first, int count);

  // Spacer properties (59).
  bool SpacerPropExist(int n) const;
  Data::CSpacerProp const& SpacerProp(int n) const;
  tarvex_unordered_map<unsigned int, Data::CSpacerProp> const& SpacerProp() const;
  int HighestSpacerProp() const;
  void SetSpacerProp(int n, Data::CSpacerProp const& record, SidMode sid = SidMode::Keep);
  void BlankSpacerProp(int first, int count);

  // Force densities of lines (62).
  bool ForceDensity1DExist(int n) const;
  Data::CForceDensity1D const& ForceDensity1D(int n) const;
  tarvex_unordered_map<unsigned int, Data::CForceDensity1D> const& ForceDensity1D() const;
  int HighestForceDensity1D() const;
  void SetForceDensity1D(int n, Data::CForceDensity1D const& record, SidMode sid = SidMode::Keep);
  void BlankForceDensity1D(int first, int count);

  // Constant forces of lines (63).
  bool SoapStress1DExist(int n) const;
  Data::CSoapStress1D const& SoapStress1D(int n) const;
  tarvex_unordered_map<unsigned int, Data::CSoapStress1D> const& SoapStress1D() const;
  int HighestSoapStress1D() const;
  void SetSoapStress1D(int n, Data::CSoapStress1D const& record, SidMode sid = SidMode::Keep);
  void BlankSoapStress1D(int first, int count);

  // Force densities of 2D elements (64).
  bool ForceDensity2DExist(int n) const;
  Data::CForceDensity2D const& ForceDensity2D(int n) const;
  tarvex_unordered_map<unsigned int, Data::CForceDensity2D> const& ForceDensity2D() const;
  int HighestForceDensity2D() const;
  void SetForceDensity2D(int n, Data::CForceDensity2D const& record, SidMode sid = SidMode::Keep);
  void BlankForceDensity2D(int first, int count);

  // Constant stresses of 2D elements (65).
  bool SoapStress2DExist(int n) const;
  Data::CSoapStress2D const& SoapStress2D(int n) const;
  tarvex_unordered_map<unsigned int, Data::CSoapStress2D> const& SoapStress2D() const;
  int HighestSoapStress2D() const;
  void SetSoapStress2D(int n, Data::CSoapStress2D const& record, SidMode sid = SidMode::Keep);
  void BlankSoapStress2D(int first, int count);

  // Reinforcement of 2D elements (75).
  bool RC2DPropExist(int n) const;
  Data::CRC2DProp const& RC2DProp(int n) const;
  tarvex_unordered_map<unsigned int, Data::CRC2DProp> const& RC2DProp() const;
  int HighestRC2DProp() const;
  void SetRC2DProp(int n, Data::CRC2DProp const& record, SidMode sid = SidMode::Keep);
  void BlankRC2DProp(int first, int count);

  // Soil zones (no module number).
  bool SoilZoneExist(int n) const;
  Data::GeoSoilZone const& SoilZone(int n) const;
  tarvex_unordered_map<unsigned int, Data::GeoSoilZone> const& SoilZone() const;
  int HighestSoilZone() const;
  void SetSoilZone(int n, Data::GeoSoilZone const& record, SidMode sid = SidMode::Keep);
  void BlankSoilZone(int first, int count);

  // Soil profiles (no module number).
  bool SoilProfileExist(int n) const;
  Data::GeoSoilProfile const& SoilProfile(int n) const;
  tarvex_unordered_map<unsigned int, Data::GeoSoilProfile> const& SoilProfile() const;
  int HighestSoilProfile() const;
  void SetSoilProfile(int n, Data::GeoSoilProfile const& record, SidMode sid = SidMode::Keep);
  void BlankSoilProfile(int first, int count);

  // Response spectra (no module number).
  bool ResSpectrumExist(int n) const;
  Data::CResSpectrum const& ResSpectrum(int n) const;
  tarvex_unordered_map<unsigned int, Data::CResSpectrum> const& ResSpectrum() const;
  int HighestResSpectrum() const;
  void SetResSpectrum(int n, Data::CResSpectrum const& record, SidMode sid = SidMode::Keep);
  void BlankResSpectrum(int first, int count);

 protected:
  explicit PropertyTables(ModelCore& core) : m_core(core) {}
  ~PropertyTables() = default;
  PropertyTables(PropertyTables const&) = delete;
  PropertyTables& operator=(PropertyTables const&) = delete;

 private:
  ModelCore& m_core;
};

}  // namespace Tarvex
