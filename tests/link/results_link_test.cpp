// Results, masses and totals, as an application links them.
#include <gtest/gtest.h>

#include "store/calc/element_mass.h"
#include "store/calc/load_totals.h"
#include "store/geometry/area_moments.h"
#include "store/geometry/integration.h"
#include "store/model/zel_data.h"
#include "store/numeric/scalar.h"
#include "store/record/results.h"
#include "store/text/number_text.h"
#include "tests/link/linked.h"

namespace Tarvex::ResultsLinkTest {
namespace {

using Testing::AreLinked;
using Testing::Member;
using T = ResultTables;

TEST(ResultsLink, TablesAndQueries) {
  using ElemResult = Data::CElemResult const&(int) const;
  using CaseResult = Data::CCaseResult const&(int) const;
  EXPECT_TRUE(AreLinked(&T::ElemResultExist, Member<ElemResult>(&T::ElemResult),
                        &T::HighestElemResult, &T::SetElemResult, &T::BlankElemResult,
                        &T::CaseResultExist, Member<CaseResult>(&T::CaseResult),
                        &T::HighestCaseResult, &T::SetCaseResult, &T::BlankCaseResult));
  EXPECT_TRUE(AreLinked(&T::AnyResults, &T::AnalysisTaskHasResults, &T::RemoveResults, &T::Force,
                        &T::Moment, &T::SetForce, &T::SetMoment, &T::Mass, &T::SetMass, &T::Period,
                        &T::SetPeriod, &T::TotalBaseShear, &T::SetTotalBaseShear));
  CZelData model;
  EXPECT_TRUE(model.ElemResult().empty());
  EXPECT_TRUE(model.CaseResult().empty());
}

TEST(ResultsLink, PropertiesOfStages) {
  using S = StageQueries;
  using OfFamily = int(PropertyType, int, int) const;
  EXPECT_TRUE(AreLinked(Member<OfFamily>(&S::StageProperty), &S::ElemStageProperty, &S::ElemMatAnal,
                        &S::Elem1DPropMat));
  CZelData const model;
  EXPECT_EQ(model.StageProperty(1, 0), 0);
}

TEST(ResultsLink, MassesTotalsAndTheirGeometry) {
  EXPECT_TRUE(AreLinked(&MassOfElement, &MassOfModel, &SumLoads, &Util::MomentsOfPolygon,
                        &Util::MomentsOfDisc, &Util::MomentsOfFillet, &Util::Placed,
                        &Util::Mirrored, &Util::AboutCentroid, &Util::RuleOf, &Util::PointOf,
                        &Util::ExtentOf, &ArcCos, &IsAboutEqual, &Util::ColString));
  EXPECT_EQ(MassOfModel(CZelData(), 0).unknown, 0);
}

}  // namespace
}  // namespace Tarvex::ResultsLinkTest
