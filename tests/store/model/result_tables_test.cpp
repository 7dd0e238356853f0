#include "store/model/result_tables.h"

#include <gtest/gtest.h>

#include "store/model/undo_step.h"
#include "store/model/zel_data.h"
#include "store/record/results.h"

namespace Tarvex::ResultTablesTest {
namespace {

SCaseRef const kA1(CaseOp::Analysis, 1);
SCaseRef const kC2(CaseOp::Combination, 2);
constexpr auto kAll = static_cast<CaseOp>(127);

TEST(Results, GiveBackForcesAndMomentsByElementCaseAndEnd) {
  CZelData model;
  model.SetForce(7, kA1, 0, {1, 2, 3});
  model.SetForce(7, kA1, 1, {4, 5, 6});
  model.SetMoment(7, kA1, 1, {7, 8, 9});
  model.SetForce(7, kC2, 1, {10, 0, 0});
  EXPECT_EQ(model.Force(7, kA1, 0), (Vec3<double>{1, 2, 3}));
  EXPECT_EQ(model.Force(7, kA1, 1), (Vec3<double>{4, 5, 6}));
  EXPECT_EQ(model.Moment(7, kA1, 0), Vec3<double>{});
  EXPECT_EQ(model.Moment(7, kA1, 1), (Vec3<double>{7, 8, 9}));
  EXPECT_EQ(model.Force(7, kC2, 1).x, 10);
  EXPECT_EQ(model.ElemResult(7).Ends().size(), 3U);
}

TEST(Results, AreZeroWhereThereIsNone) {
  CZelData model;
  model.SetForce(7, kA1, 0, {1, 2, 3});
  EXPECT_EQ(model.Force(8, kA1, 0), Vec3<double>{});
  EXPECT_EQ(model.Force(7, kC2, 0), Vec3<double>{});
  EXPECT_EQ(model.Force(7, SCaseRef(CaseOp::Analysis, 1, 1), 0), Vec3<double>{});
  EXPECT_EQ(model.Mass(kA1, 0), 0);
  EXPECT_EQ(model.Period(kA1, ResponseType::FirstMode), 0);
  EXPECT_EQ(model.TotalBaseShear(kA1, ResponseType::Combined), 0);
}

TEST(Results, GiveBackValuesOfCasesByMode) {
  CZelData model;
  model.SetMass(kA1, 0, 500);
  model.SetPeriod(kA1, ResponseType::FirstMode, 0.8);
  model.SetTotalBaseShear(kC2, ResponseType::Combined, 12);
  model.SetMass(kA1, 0, 600);
  EXPECT_EQ(model.Mass(kA1, 0), 600);
  EXPECT_EQ(model.Mass(kA1, 1), 0);
  EXPECT_EQ(model.Period(kA1, ResponseType::FirstMode), 0.8);
  EXPECT_EQ(model.Period(kC2, ResponseType::FirstMode), 0);
  EXPECT_EQ(model.TotalBaseShear(kC2, ResponseType::Combined), 12);
  EXPECT_EQ(model.HighestCaseResult(), 2);
}

TEST(AnyResults, IsTrueWithAnyOneAndFalseOnceTheyAreRemoved) {
  CZelData model;
  EXPECT_FALSE(model.AnyResults());
  model.SetForce(1, kA1, 0, {});
  EXPECT_TRUE(model.AnyResults());
  model.RemoveResults();
  EXPECT_FALSE(model.AnyResults());
  model.SetMass(kA1, 0, 1);
  EXPECT_TRUE(model.AnyResults());
  model.RemoveResults();
  EXPECT_EQ(model, CZelData());
}

TEST(AnalysisTaskHasResults, IsAnyResultsForAllKindsWhetherOrNotTheTaskExists) {
  CZelData model;
  EXPECT_FALSE(model.AnalysisTaskHasResults(5, kAll));
  model.SetForce(1, kA1, 0, {1, 0, 0});
  EXPECT_TRUE(model.AnalysisTaskHasResults(5, kAll));
}

TEST(AnalysisTaskHasResults, LooksForTheKindsThatAreAskedFor) {
  CZelData model;
  model.SetForce(1, kA1, 0, {1, 0, 0});
  EXPECT_TRUE(model.AnalysisTaskHasResults(1, CaseOp::Analysis));
  EXPECT_FALSE(model.AnalysisTaskHasResults(1, CaseOp::Combination));
  model.SetMass(kC2, 0, 1);
  EXPECT_TRUE(model.AnalysisTaskHasResults(1, CaseOp::Combination));
  EXPECT_FALSE(model.AnalysisTaskHasResults(1, CaseOp::Load));
}

TEST(Results, AreUndone) {
  CZelData model;
  model.SetMass(kA1, 0, 1);
  auto const before = model;
  {
    CUndoStep const step(model);
    model.SetForce(1, kA1, 0, {1, 0, 0});
    model.SetMass(kA1, 0, 2);
  }
  EXPECT_EQ(model, before);
}

}  // namespace
}  // namespace Tarvex::ResultTablesTest
