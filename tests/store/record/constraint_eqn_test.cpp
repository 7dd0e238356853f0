#include "store/record/constraint_eqn.h"

#include <gtest/gtest.h>

#include "tests/support/stored_fields.h"

namespace Tarvex::Data::ConstraintEqnTest {
namespace {

TEST(ConstraintEqn, AppendsReplacesAndTellsTerms) {
  CConstraintEqn equation;
  EXPECT_EQ(equation.NumTerm(), 0);
  equation.SetRhsTerm(-1, Util::CDofValue(4, Direction::Y, 0.5));
  equation.SetRhsTerm(-1, 5, Direction::ZZ, -2);
  equation.SetRhsTerm(0, 6, Direction::X, 3);
  EXPECT_EQ(equation.NumTerm(), 2);
  EXPECT_EQ(equation.PrimaryNode(0), 6);
  EXPECT_EQ(equation.Dir(0), Direction::X);
  EXPECT_EQ(equation.Factor(0), 3);
  EXPECT_EQ(equation.PrimaryNode(1), 5);
  EXPECT_EQ(equation.Dir(1), Direction::ZZ);
  EXPECT_EQ(equation.Factor(1), -2);
  EXPECT_EQ(equation.Terms()[1], Util::CDofValue(5, Direction::ZZ, -2));
}

TEST(ConstraintEqn, RefusesATermThatThereIsNot) {
  CConstraintEqn equation;
  for (int const term : {-2, 0, 1}) {
    EXPECT_THROW(equation.SetRhsTerm(term, {}), std::out_of_range) << term;
    EXPECT_THROW(equation.Factor(term), std::out_of_range) << term;
    EXPECT_THROW(equation.PrimaryNode(term), std::out_of_range) << term;
    EXPECT_THROW(equation.Dir(term), std::out_of_range) << term;
  }
  EXPECT_THROW(equation.Factor(-1), std::out_of_range);
}

TEST(ConstraintEqn, TellsWhatItWasTold) {
  CConstraintEqn r;
  r.SetName(L"n");
  EXPECT_EQ(r.Name(), L"n");
  r.SetSid(L"s");
  EXPECT_EQ(r.Sid(), L"s");
  r.SetColour(1);
  EXPECT_EQ(r.GetColour(), 1u);
  r.SetConstrainedNode(8);
  EXPECT_EQ(r.ConstrainedNode(), 8);
  r.SetDir(Direction::ZZ);
  EXPECT_EQ(r.Dir(), Direction::ZZ);
  r.SetRhsTerm(-1, 4, Direction::Y, 0.5);
  EXPECT_EQ(r.Factor(0), 0.5);
  r.SetStage(CEntList(SelNone, CString(L"4")));
  EXPECT_EQ(r.Stage().String(), L"4");
}

TEST(ConstraintEqn, ComparesEveryField) {
  Testing::ExpectStoredFields<CConstraintEqn>(
      {{"name", [](CConstraintEqn& r) { r.SetName(L"n"); }},
       {"sid", [](CConstraintEqn& r) { r.SetSid(L"s"); }},
       {"colour", [](CConstraintEqn& r) { r.SetColour(1); }},
       {"constrainedNode", [](CConstraintEqn& r) { r.SetConstrainedNode(8); }},
       {"dir", [](CConstraintEqn& r) { r.SetDir(Direction::ZZ); }},
       {"terms", [](CConstraintEqn& r) { r.SetRhsTerm(-1, 4, Direction::Y, 0.5); }},
       {"stage", [](CConstraintEqn& r) { r.SetStage(CEntList(SelNone, CString(L"4"))); }}});
}

}  // namespace
}  // namespace Tarvex::Data::ConstraintEqnTest
