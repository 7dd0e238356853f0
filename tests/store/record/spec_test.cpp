#include "store/record/spec.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/support/print.h"
#include "tests/support/stored_fields.h"

namespace Tarvex::Data::SpecTest {
namespace {

double const kInfinity = std::numeric_limits<double>::infinity();
double const kNan = std::numeric_limits<double>::quiet_NaN();

TEST(Spec, HasToleranceNumbersThatToolsPass) {
  EXPECT_EQ(static_cast<int>(TolType::PointInElement), 1);
  EXPECT_EQ(static_cast<int>(TolType::Vertical), 4);
  EXPECT_EQ(static_cast<int>(TolType::AxisAngle), 7);
  EXPECT_EQ(static_cast<int>(TolType::Coincidence), 10);
}

TEST(Spec, KeepsEachToleranceByItself) {
  CSpec spec;
  spec.SetGenTol(TolType::PointInElement, 0.1);
  spec.SetGenTol(TolType::Vertical, 0.2);
  spec.SetGenTol(TolType::AxisAngle, 0.3);
  spec.SetGenTol(TolType::Coincidence, 0.4);
  EXPECT_EQ(spec.GenTol(TolType::PointInElement), 0.1);
  EXPECT_EQ(spec.GenTol(TolType::Vertical), 0.2);
  EXPECT_EQ(spec.GenTol(TolType::AxisAngle), 0.3);
  EXPECT_EQ(spec.GenTol(TolType::Coincidence), 0.4);
  EXPECT_EQ(spec.GenTol(), 0.4);
}

TEST(Spec, TakesAToleranceOfZero) {
  CSpec spec;
  spec.SetGenTol(TolType::Vertical, 0);
  EXPECT_EQ(spec.GenTol(TolType::Vertical), 0);
}

TEST(Spec, RefusesUnknownTolerancesAndValuesThatAreNone) {
  CSpec spec;
  for (int const type : {0, 2, 11, -1})
    EXPECT_THROW(spec.GenTol(static_cast<TolType>(type)), std::invalid_argument) << type;
  EXPECT_THROW(spec.SetGenTol(static_cast<TolType>(2), 1), std::invalid_argument);
  for (double const value : {-1e-9, kInfinity, kNan})
    EXPECT_THROW(spec.SetGenTol(TolType::Vertical, value), std::invalid_argument) << value;
  EXPECT_EQ(spec, CSpec());
}

TEST(Spec, NamesNoPlaneOfTheConstructionGridAtFirst) {
  CSpec spec;
  EXPECT_EQ(spec.ConsGridRef(), 0);
  spec.SetConsGridRef(4);
  EXPECT_EQ(spec.ConsGridRef(), 4);
}

TEST(Unit, ConvertsLengthsAndAnglesAndNothingElse) {
  CUnit unit;
  EXPECT_EQ(unit.Conversion(CUnit::kLength), 1);
  EXPECT_EQ(unit.Conversion(CUnit::kAngle), 1);
  unit.SetConversion(CUnit::kLength, 1000);
  unit.SetConversion(CUnit::kAngle, 57.3);
  EXPECT_EQ(unit.Conversion(2), 1000);
  EXPECT_EQ(unit.Conversion(201), 57.3);
  EXPECT_EQ(unit.Conversion(3), 1);
}

TEST(Unit, RefusesFactorsThatAreNoneAndUnknownQuantities) {
  CUnit unit;
  for (double const factor : {0.0, -1.0, kInfinity, kNan})
    EXPECT_THROW(unit.SetConversion(CUnit::kLength, factor), std::invalid_argument) << factor;
  EXPECT_THROW(unit.SetConversion(3, 2), std::invalid_argument);
  EXPECT_EQ(unit, CUnit());
}

TEST(Spec, KnowsWhereTheStructureStandsAndWhatItIs) {
  CSpec spec;
  EXPECT_EQ(spec.Country().GetCode(), 0);
  EXPECT_EQ(spec.ZElevation(), 0);
  EXPECT_EQ(spec.StructType(), StrType::Space);
  EXPECT_TRUE(spec.GlobalRestraint().IsNone());
  spec.SetCountry(CCountry(106));
  spec.SetZElevation(1200.5);
  spec.SetStructType(StrType::PlaneStress);
  EXPECT_EQ(spec.Country().GetCode(), 106);
  EXPECT_EQ(spec.ZElevation(), 1200.5);
  EXPECT_EQ(spec.StructType(), StrType::PlaneStress);
  CRaftSpec raft;
  EXPECT_EQ(raft.TopLevel(), 0);
  raft.SetTopLevel(-1.5);
  EXPECT_EQ(raft.TopLevel(), -1.5);
}

TEST(Defaults, NameNewRecordsByTheirNumber) {
  CDefaults const defaults;
  EXPECT_EQ(defaults.AnalysisTaskName(), L"Analysis Task #");
  EXPECT_EQ(defaults.AnalysisCaseName(), L"Analysis Case #");
  EXPECT_EQ(defaults.CombinationCaseName(), L"Combination Case #");
}

TEST(Defaults, KeepEachNameByItself) {
  CDefaults defaults;
  defaults.SetAnalysisTaskName(L"T");
  defaults.SetAnalysisCaseName(L"A");
  defaults.SetCombinationCaseName(L"C");
  EXPECT_EQ(defaults.AnalysisTaskName(), L"T");
  EXPECT_EQ(defaults.AnalysisCaseName(), L"A");
  EXPECT_EQ(defaults.CombinationCaseName(), L"C");
}

TEST(OneOffs, CompareEveryField) {
  Testing::ExpectStoredFields<CSpec>(
      {{"genTol", [](CSpec& s) { s.SetGenTol(TolType::AxisAngle, 2); }},
       {"unit",
        [](CSpec& s) {
          CUnit unit;
          unit.SetConversion(CUnit::kAngle, 2);
          s.SetUnit(unit);
        }},
       {"consGridRef", [](CSpec& s) { s.SetConsGridRef(3); }},
       {"country", [](CSpec& s) { s.SetCountry(CCountry(80)); }},
       {"zElevation", [](CSpec& s) { s.SetZElevation(3); }},
       {"structType", [](CSpec& s) { s.SetStructType(StrType::GridXY); }}});
  Testing::ExpectStoredFields<CRaftSpec>({{"topLevel", [](CRaftSpec& s) { s.SetTopLevel(3); }}});
  Testing::ExpectFields<CUnit>({{"length", [](CUnit& u) { u.SetConversion(CUnit::kLength, 2); }},
                                {"angle", [](CUnit& u) { u.SetConversion(CUnit::kAngle, 2); }}});
  Testing::ExpectFields<GenTolerances>(
      {{"pointInElement", [](GenTolerances& t) { t.pointInElement = 1; }},
       {"vertical", [](GenTolerances& t) { t.vertical = 1; }},
       {"axisAngle", [](GenTolerances& t) { t.axisAngle = 2; }},
       {"coincidence", [](GenTolerances& t) { t.coincidence = 1; }}});
  Testing::ExpectStoredFields<CDefaults>(
      {{"analysisTaskName", [](CDefaults& d) { d.SetAnalysisTaskName(L""); }},
       {"analysisCaseName", [](CDefaults& d) { d.SetAnalysisCaseName(L""); }},
       {"combinationCaseName", [](CDefaults& d) { d.SetCombinationCaseName(L""); }}});
}

}  // namespace
}  // namespace Tarvex::Data::SpecTest
