#include "store/record/cases.h"

#include <gtest/gtest.h>

#include "tests/support/stored_fields.h"

namespace Tarvex::CasesTest {
namespace {

using Data::CCaseDescription;
using Data::CCombCaseDesc;
using Data::CCombinationCase;
using Zel::CAnalysisCase;

TEST(CombinationCase, KeepsItsDescriptionAndWhetherItIsUsed) {
  EXPECT_TRUE(CCombinationCase().IsUsed());
  EXPECT_TRUE(CCombinationCase(true).IsUsed());
  CCombinationCase combination(false);
  EXPECT_FALSE(combination.IsUsed());
  combination.SetIsUsed(true);
  EXPECT_TRUE(combination.IsUsed());
  CCombCaseDesc description;
  description.SetDescription(L"1.35A1 + C2");
  combination.SetDescription(description);
  EXPECT_EQ(combination.Description().Text(), L"1.35A1 + C2");
}

TEST(CombinationCase, IsClonedWhole) {
  CCombinationCase combination(false);
  combination.SetName(L"ULS");
  combination.SetDescription(CCombCaseDesc(L"A1"));
  auto const clone = combination.Clone();
  EXPECT_EQ(*clone, combination);
  clone->SetName(L"SLS");
  EXPECT_EQ(combination.Name(), L"ULS");
}

TEST(CaseDescription, KeepsItsText) {
  CCaseDescription description(L"a");
  description.SetDescription(L"C1 or C2");
  EXPECT_EQ(description.Name(), L"a");
  EXPECT_EQ(description.Description(), L"C1 or C2");
}

TEST(AnalysisCase, IsMadeWithNameDescriptionAndTask) {
  CAnalysisCase record(L"a", L"L1", 3);
  EXPECT_EQ(record.Name(), L"a");
  EXPECT_EQ(record.Description(), L"L1");
  EXPECT_EQ(record.Task(), 3);
  EXPECT_EQ(record.ModeDirection(), 0);
  record.SetDescription(L"L2");
  record.SetTask(4);
  record.SetModeDirection(2);
  EXPECT_EQ(record.Description(), L"L2");
  EXPECT_EQ(record.Task(), 4);
  EXPECT_EQ(record.ModeDirection(), 2);
  auto const clone = record.Clone();
  EXPECT_EQ(*clone, record);
}

TEST(Cases, CompareEveryField) {
  Testing::ExpectStoredFields<CCombinationCase>(
      {{"name", [](auto& c) { c.SetName(L"a"); }},
       {"sid", [](auto& c) { c.SetSid(L"a"); }},
       {"colour", [](auto& c) { c.SetColour(1); }},
       {"description", [](auto& c) { c.SetDescription(CCombCaseDesc(L"A1")); }},
       {"isUsed", [](auto& c) { c.SetIsUsed(false); }}});
  Testing::ExpectStoredFields<CCaseDescription>(
      {{"name", [](auto& c) { c.SetName(L"a"); }},
       {"sid", [](auto& c) { c.SetSid(L"a"); }},
       {"colour", [](auto& c) { c.SetColour(1); }},
       {"description", [](auto& c) { c.SetDescription(L"A1"); }}});
  Testing::ExpectStoredFields<CAnalysisCase>(
      {{"name", [](auto& c) { c.SetName(L"a"); }},
       {"sid", [](auto& c) { c.SetSid(L"a"); }},
       {"colour", [](auto& c) { c.SetColour(1); }},
       {"description", [](auto& c) { c.SetDescription(L"A1"); }},
       {"task", [](auto& c) { c.SetTask(1); }},
       {"modeDirection", [](auto& c) { c.SetModeDirection(1); }}});
}

}  // namespace
}  // namespace Tarvex::CasesTest
