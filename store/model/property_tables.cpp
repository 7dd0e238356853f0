#include "store/model/property_tables.h"

#include "store/model/model_core.h"
#include "store/model/table_ops.h"

namespace Tarvex {

// The operations of a table: its stem, its record and its place in the state.
#define TARVEX_DEFINE_TABLE(Stem, Record, table)                                         \
  bool PropertyTables::Stem##Exist(int n) const { return m_core.state.table.Exist(n); }  \
  Data::Record const& PropertyTables::Stem(int n) const {                                \
    return TableOps::Get(m_core.state.table, #Stem, n);                                  \
  }                                                                                      \
  tarvex_unordered_map<unsigned int, Data::Record> const& PropertyTables::Stem() const { \
    return m_core.state.table;                                                           \
  }                                                                                      \
  int PropertyTables::Highest##Stem() const { return m_core.state.table.Highest(); }     \
  void PropertyTables::Set##Stem(int n, Data::Record const& record, SidMode sid) {       \
    TableOps::Store(m_core.state.table, n, record, sid);                                 \
  }                                                                                      \
  void PropertyTables::Blank##Stem(int first, int count) {                               \
    m_core.state.table.Remove(first, count);                                             \
  }

TARVEX_DEFINE_TABLE(MatSteel, Design::CMatSteel, matSteel)
TARVEX_DEFINE_TABLE(MatConcrete, Design::CMatConc, matConcrete)
TARVEX_DEFINE_TABLE(MatFrp, Design::CMatFrp, matFrp)
TARVEX_DEFINE_TABLE(MatAluminium, Design::CMatAlum, matAluminium)
TARVEX_DEFINE_TABLE(MatTimber, Design::CMatTimber, matTimber)
TARVEX_DEFINE_TABLE(MatGlass, Design::CMatGlass, matGlass)
TARVEX_DEFINE_TABLE(MatFabric, Design::CMatFabric, matFabric)
TARVEX_DEFINE_TABLE(MatRebar, Design::CMatRebar, matRebar)
TARVEX_DEFINE_TABLE(MatAnal, CMatAnal, matAnal)
TARVEX_DEFINE_TABLE(MatCurve, CTableT<double>, matCurve)
TARVEX_DEFINE_TABLE(MatMatrix, CMatMatrix, matMatrix)
TARVEX_DEFINE_TABLE(Section, CSection, section)
TARVEX_DEFINE_TABLE(SpringProp, CSpringProp, springProp)
TARVEX_DEFINE_TABLE(MassProp, CMassProp, massProp)
TARVEX_DEFINE_TABLE(Prop2D, CProp2D, prop2D)
TARVEX_DEFINE_TABLE(Prop3D, CProp3D, prop3D)
TARVEX_DEFINE_TABLE(LinkProp, CLinkProp, linkProp)
TARVEX_DEFINE_TABLE(DamperProp, CDamperProp, damperProp)
TARVEX_DEFINE_TABLE(CableProp, CCableProp, cableProp)
TARVEX_DEFINE_TABLE(SpacerProp, CSpacerProp, spacerProp)
TARVEX_DEFINE_TABLE(ForceDensity1D, CForceDensity1D, forceDensity1D)
TARVEX_DEFINE_TABLE(SoapStress1D, CSoapStress1D, soapStress1D)
TARVEX_DEFINE_TABLE(ForceDensity2D, CForceDensity2D, forceDensity2D)
TARVEX_DEFINE_TABLE(SoapStress2D, CSoapStress2D, soapStress2D)
TARVEX_DEFINE_TABLE(RC2DProp, CRC2DProp, rc2DProp)
TARVEX_DEFINE_TABLE(SoilZone, GeoSoilZone, soilZone)
TARVEX_DEFINE_TABLE(SoilProfile, GeoSoilProfile, soilProfile)
TARVEX_DEFINE_TABLE(ResSpectrum, CResSpectrum, resSpectrum)

#undef TARVEX_DEFINE_TABLE

void PropertyTables::SetSpringPropSid(int n, CString const& sid) {
  TableOps::Edit(m_core.state.springProp, "SpringProp", n).SetSid(sid);
}

}  // namespace Tarvex
