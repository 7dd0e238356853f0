#include "workbench/report/totals.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "store/model/zel_data.h"
#include "store/record/mat_anal.h"
#include "store/record/node.h"
#include "store/record/node_load.h"
#include "store/record/prop_2d.h"
#include "tests/support/builders.h"

namespace Tarvex::Workbench::TotalsReportTest {
namespace {

/// Two nodes with a force of 10 each in case 3, and a plate of 5 kg.
CZelData Loaded() {
  CZelData model;
  Testing::Grid(model, 1, 1);
  model.SetNodeLoad(1,
                    Data::CNodeLoad({SelNode, L"1 2"}, 3, 0, Direction::Z, 10, CModule::NodeLoad));
  model.SetMatAnal(1, Data::CMatAnal(L"", L"", 1, 0, 50, 0, 0));
  Data::CProp2D plate;
  plate.SetMaterialAnalysis(1);
  plate.SetThickness(0.1);
  model.SetProp2D(1, plate);
  model.SetElemProperty(1, 1);
  return model;
}

TEST(TotalChanges, AreNoneOfEqualModels) {
  auto const changes = FindTotalChanges(Loaded(), Loaded());
  EXPECT_TRUE(changes.cases.empty());
  EXPECT_FALSE(changes.mass);
  EXPECT_EQ(TotalChangesText(changes), "");
}

TEST(TotalChanges, TellCasesThatDifferBeforeAndAfter) {
  auto const before = Loaded();
  auto after = before;
  after.SetNodeLoad(1, Data::CNodeLoad({SelNode, L"2"}, 4, 0, Direction::Z, 10, CModule::NodeLoad));
  auto const changes = FindTotalChanges(before, after);
  ASSERT_EQ(changes.cases.size(), 2U);
  EXPECT_EQ(changes.cases[0].loadCase, 3);
  EXPECT_EQ(changes.cases[0].before.force.z, 20);
  EXPECT_EQ(changes.cases[0].after.force.z, 0);
  EXPECT_EQ(changes.cases[1].loadCase, 4);
  EXPECT_EQ(changes.cases[1].after.moment.y, -10);
  EXPECT_EQ(TotalChangesJson(changes).at(0), nlohmann::ordered_json::parse(R"({"loadCase": 3,
    "before": {"force": [0.0, 0.0, 20.0], "moment": [0.0, -10.0, 0.0]},
    "after": {"force": [0.0, 0.0, 0.0], "moment": [0.0, 0.0, 0.0]}})"));
  EXPECT_EQ(TotalChangesText(changes),
            "  load case 3 before: force (0, 0, 20) N, moment (0, -10, 0) Nm\n"
            "  load case 3 after:  force (0, 0, 0) N, moment (0, 0, 0) Nm\n"
            "  load case 4 before: force (0, 0, 0) N, moment (0, 0, 0) Nm\n"
            "  load case 4 after:  force (0, 0, 10) N, moment (0, -10, 0) Nm\n");
}

TEST(TotalChanges, TellTheMassWhereItDiffers) {
  auto const before = Loaded();
  auto after = before;
  auto plate = after.Prop2D(1);
  plate.SetThickness(0.2);
  after.SetProp2D(1, plate);
  auto const changes = FindTotalChanges(before, after);
  ASSERT_TRUE(changes.mass);
  EXPECT_EQ(changes.mass->first, 5);
  EXPECT_EQ(changes.mass->second, 10);
  EXPECT_EQ(TotalChangesText(changes), "  mass before: 5 kg, after: 10 kg\n");
}

TEST(TotalChanges, WarnOfWhatIsNotFiniteAndLeaveItOutOfJson) {
  auto const before = Loaded();
  auto after = before;
  // 1e308 over two nodes is more than a number holds; so is a plate of 1e308 x 50.
  after.SetNodeLoad(
      1, Data::CNodeLoad({SelNode, L"1 2"}, 3, 0, Direction::Z, 1e308, CModule::NodeLoad));
  auto plate = after.Prop2D(1);
  plate.SetThickness(1e308);
  after.SetProp2D(1, plate);
  auto const changes = FindTotalChanges(before, after);
  ASSERT_EQ(changes.cases.size(), 1U);
  EXPECT_EQ(TotalChangesJson(changes).at(0).at("after").count("force"), 0U);
  EXPECT_EQ(TotalChangesJson(changes).at(0).at("before").count("force"), 1U);
  auto const text = TotalChangesText(changes);
  EXPECT_NE(text.find("load case 3 after:  force not finite, moment "), std::string::npos) << text;
  EXPECT_NE(text.find("  mass before: 5 kg, after: not finite\n"), std::string::npos) << text;
  CommandResult result;
  WarnOfNotFinite(changes, result);
  ASSERT_EQ(result.warnings.size(), 2U);
  EXPECT_EQ(result.warnings[0].code, "total-not-finite");
  EXPECT_EQ(result.warnings[0].number, 3);
  EXPECT_EQ(result.warnings[0].text,
            "the total of load case 3 is not finite: a place or a value is too large to sum");
  EXPECT_EQ(result.warnings[1].text,
            "the mass is not finite: a place or a value is too large to sum");
  EXPECT_TRUE(result.lookAt);
}

TEST(TotalChanges, PassOverRoundingOfSums) {
  auto const before = Loaded();
  auto after = before;
  auto load = after.NodeLoad(1);
  load.SetValue(10 * (1 + 1e-12));
  after.SetNodeLoad(1, load);
  EXPECT_TRUE(FindTotalChanges(before, after).cases.empty());
}

}  // namespace
}  // namespace Tarvex::Workbench::TotalsReportTest
