#include "store/record/results.h"

#include <gtest/gtest.h>

#include "tests/support/stored_fields.h"

namespace Tarvex::Data::ResultsTest {
namespace {

SCaseRef const kA1(CaseOp::Analysis, 1);
SCaseRef const kA2(CaseOp::Analysis, 2);
SCaseRef const kC1(CaseOp::Combination, 1);

TEST(ElemResult, KeepsItsEndsInTheOrderOfCaseAndEnd) {
  CElemResult record;
  record.At(kA2, 1).force = {1, 0, 0};
  record.At(kC1, 0).force = {2, 0, 0};
  record.At(kA2, 0).force = {3, 0, 0};
  record.At(kA1, 1).force = {4, 0, 0};
  record.At(kA2, 0).moment = {0, 5, 0};
  ASSERT_EQ(record.Ends().size(), 4U);
  double const forces[] = {4, 3, 1, 2};
  for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(record.Ends()[i].force.x, forces[i]);
  EXPECT_EQ(record.Find(kA2, 0)->moment.y, 5);
  EXPECT_EQ(record.Find(kA1, 0), nullptr);
  EXPECT_EQ(record.Find(SCaseRef(CaseOp::Analysis, 2, 1), 0), nullptr);
  EXPECT_EQ(record.Fault(), L"");
}

TEST(ElemResult, ComparesEveryField) {
  Testing::ExpectStoredFields<CElemResult>(
      {{"sid", [](CElemResult& r) { r.SetSid(L"s"); }}, {"ends", [](CElemResult& r) {
                                                           r.At(kA1, 0).force = {1, 2, 3};
                                                         }}});
  Testing::ExpectFields<EndResult>({{"of", [](EndResult& r) { r.of = kC1; }},
                                    {"end", [](EndResult& r) { r.end = 1; }},
                                    {"force", [](EndResult& r) { r.force.x = 1; }},
                                    {"moment", [](EndResult& r) { r.moment.x = 1; }}});
  Testing::ExpectFields<ResultCase>({{"type", [](ResultCase& r) { r.type = CaseOp::Load; }},
                                     {"number", [](ResultCase& r) { r.num = 1; }},
                                     {"permutation", [](ResultCase& r) { r.permutation = 1; }}});
}

TEST(CaseResult, HasAValueOfAllModesAndOneAMode) {
  CCaseResult record(kC1);
  EXPECT_EQ(record.Of(), kC1);
  record.SetMass(0, 100);
  record.SetMass(2, 70);
  record.SetPeriod(1, 0.5);
  record.SetBaseShear(0, 9);
  EXPECT_EQ(record.Mass(0), 100);
  EXPECT_EQ(record.Mass(1), 0);
  EXPECT_EQ(record.Mass(2), 70);
  EXPECT_EQ(record.Mass(3), 0);
  EXPECT_EQ(record.Mass(-1), 0);
  EXPECT_EQ(record.Period(0), 0);
  EXPECT_EQ(record.Period(1), 0.5);
  EXPECT_EQ(record.BaseShear(0), 9);
  EXPECT_THROW(record.SetMass(-1, 1), std::out_of_range);
}

TEST(CaseResult, ComparesEveryField) {
  Testing::ExpectStoredFields<CCaseResult>(
      {{"sid", [](CCaseResult& r) { r.SetSid(L"s"); }},
       {"of", [](CCaseResult& r) { r.SetOf(kA2); }},
       {"masses", [](CCaseResult& r) { r.SetMass(0, 1); }},
       {"periods", [](CCaseResult& r) { r.SetPeriod(1, 1); }},
       {"baseShears", [](CCaseResult& r) { r.SetBaseShear(0, 1); }}});
}

}  // namespace
}  // namespace Tarvex::Data::ResultsTest
