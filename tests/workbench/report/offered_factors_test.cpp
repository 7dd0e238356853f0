#include "workbench/report/offered_factors.h"

#include <gtest/gtest.h>

#include "store/record/cases.h"

namespace Tarvex::OfferedFactorsTest {
namespace {

using Workbench::FactorOffers;
using Values = std::set<double>;

/// A model of combinations 1 to 3 that count as cases, and one more with a description.
CZelData With(wchar_t const* description) {
  CZelData model;
  for (int n = 1; n <= 3; ++n) model.SetCombinationCase(n, Data::CCombinationCase(true));
  Data::CCombinationCase record(true);
  record.SetDescription(Data::CCombCaseDesc(description));
  model.SetCombinationCase(9, record);
  return model;
}

std::map<int, Values> ValuesOf(CZelData const& model) {
  std::map<int, Values> values;
  for (auto const& [n, offered] : FactorOffers(model, {1, 2, 3}).Of(9)) {
    EXPECT_FALSE(offered.isNonLinear);
    values[n] = offered.values;
  }
  return values;
}
std::map<int, Values> ValuesOf(wchar_t const* description) { return ValuesOf(With(description)); }

using Offers = std::map<int, Values>;

TEST(FactorOffers, OfASumHasTheFactorsOfEachTerm) {
  EXPECT_EQ(ValuesOf(L"C1"), (Offers{{1, {1}}}));
  EXPECT_EQ(ValuesOf(L"(1.35 or 1)C1 + 0.3C2"), (Offers{{1, {1, 1.35}}, {2, {0.3}}}));
}

TEST(FactorOffers, OfASumWithACaseTwiceAddsThemUp) {
  EXPECT_EQ(ValuesOf(L"(1 or 2)C1 + (10 or 20)C1"), (Offers{{1, {11, 12, 21, 22}}}));
}

TEST(FactorOffers, OfAlternativesHasZeroForWhatSomeAreWithout) {
  EXPECT_EQ(ValuesOf(L"C1 + C2 or 2C1"), (Offers{{1, {1, 2}}, {2, {0, 1}}}));
  EXPECT_EQ(ValuesOf(L"C1 to C3"), (Offers{{1, {0, 1}}, {2, {0, 1}}, {3, {0, 1}}}));
}

TEST(FactorOffers, OfARangePassesOverHoles) {
  auto model = With(L"C1 to C2");
  model.BlankCombinationCase(1, 1);
  EXPECT_EQ(FactorOffers(model, {2, 3}).Of(9).at(2).values, Values{1});
}

TEST(FactorOffers, MultipliesFactorsAndSigns) {
  EXPECT_EQ(ValuesOf(L"(1 or -1)(0.5C1 + C2)"), (Offers{{1, {-0.5, 0.5}}, {2, {-1, 1}}}));
  auto const zero = ValuesOf(L"(1 or -1)(0C1)").at(1);
  EXPECT_EQ(zero, Values{0});
  EXPECT_FALSE(std::signbit(*zero.begin()));
}

TEST(FactorOffers, FollowsCombinations) {
  auto model = With(L"2C20");
  Data::CCombinationCase record(true);
  record.SetDescription(Data::CCombCaseDesc(L"C1 or 3C2"));
  model.SetCombinationCase(20, record);
  EXPECT_EQ(ValuesOf(model), (Offers{{1, {0, 2}}, {2, {0, 6}}}));
}

TEST(FactorOffers, MarksWhatIsNotLinear) {
  auto const model = With(L"SRSS(C1,2C2) + C3abs");
  auto const offered = FactorOffers(model, {1, 2, 3}).Of(9);
  for (int const n : {1, 2, 3}) {
    EXPECT_TRUE(offered.at(n).isNonLinear);
    EXPECT_EQ(offered.at(n).values, Values{0});
  }
}

TEST(FactorOffers, OfWhatCannotBeWorkedOutIsNothing) {
  EXPECT_EQ(ValuesOf(L"C5 to C4"), Offers());  // a range that ends before it begins
  EXPECT_EQ(ValuesOf(L"C1 + C9"), Offers());   // reaches itself
  EXPECT_EQ(ValuesOf(L"C1 + C77"), Offers());  // does not exist
  EXPECT_EQ(ValuesOf(L""), Offers());
  EXPECT_TRUE(FactorOffers(CZelData(), {}).Of(9).empty());
}

/// What the alternatives give one by one, by the store.
Offers OneByOne(CZelData const& model) {
  auto const description = model.CombinationCase(9).Description();
  Offers offers;
  int const count = description.NumPermutation(model);
  for (int i = 1; i <= count; ++i)
    for (int n = 1; n <= 3; ++n)
      offers[n].insert(description.CaseFactor(i, {CaseOp::Analysis, n}) + 0.0);
  std::erase_if(offers, [](auto const& entry) { return entry.second == Values{0}; });
  return offers;
}

TEST(FactorOffers, HasTheFactorsOfAllAlternativesOneByOne) {
  for (auto const* description :
       {L"C1", L"(1.35 or 1)C1 + (1.5 or 0)C2 + (0.5 or 0)C3", L"C1 to C3", L"C1 or C2 or C3",
        L"(1 or -1)(C1 or C2) + 0.25C3", L"2(C1 + (1 or 3)C2 or C3)", L"C1 + C1 to C2",
        L"C10 + C11 or C12", L"(1 or -1)C10 to C12"}) {
    auto model = With(description);
    auto const add = [&](int n, wchar_t const* text) {
      Data::CCombinationCase record(true);
      record.SetDescription(Data::CCombCaseDesc(text));
      model.SetCombinationCase(n, record);
    };
    for (int n = 1; n <= 3; ++n) {
      CString text;
      text.Format(L"A%i", n);
      add(n, text.c_str());
    }
    add(10, L"(1.5 or 0)C1 + 0.5C2");
    add(11, L"C1 or C3");
    add(12, L"0.25C10 + C3");
    Offers offers;
    for (auto const& [n, offered] : FactorOffers(model, {1, 2, 3}).Of(9))
      offers[n] = offered.values;
    EXPECT_EQ(offers, OneByOne(model)) << CString(description).ToUtf8();
  }
}

}  // namespace
}  // namespace Tarvex::OfferedFactorsTest
