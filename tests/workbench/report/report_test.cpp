#include "workbench/report/report.h"

#include <gtest/gtest.h>

#include "store/record/axis.h"
#include "tests/support/builders.h"

namespace Tarvex::ReportTest {
namespace {

using Workbench::FindChanges;
using Workbench::Report;

TEST(FindChanges, TellsAddedRemovedAndChangedByTable) {
  CZelData model;
  Testing::Grid(model, 2, 2);
  CZelData const before(model);
  model.BlankElem(2, 1);
  model.SetElemGroup(4, 7);
  model.SetElemGroup(3, model.Elem(3).Group());  // stored, but with the value that it had
  model.CreateElem(9, ElementType::Beam, 1, 1);
  model.SetAxis(1, Data::CAxis());
  auto const changes = FindChanges(before, model);
  ASSERT_EQ(changes.size(), 2u);
  EXPECT_EQ(changes[0].table, "Elem");
  EXPECT_EQ(changes[0].added, (std::vector{9}));
  EXPECT_EQ(changes[0].removed, (std::vector{2}));
  EXPECT_EQ(changes[0].changed, (std::vector{4}));
  EXPECT_EQ(changes[1].table, "Axis");
  EXPECT_EQ(changes[1].added, (std::vector{1}));
}

TEST(FindChanges, TellsAOneOffRecordByNumberZero) {
  CZelData model;
  CZelData const before(model);
  Data::CSpec spec;
  spec.SetGenTol(TolType::Vertical, 0.01);
  model.SetSpec(spec);
  auto const changes = FindChanges(before, model);
  ASSERT_EQ(changes.size(), 1u);
  EXPECT_EQ(changes[0].table, "Spec");
  EXPECT_EQ(changes[0].changed, (std::vector{0}));
}

Report SomeReport() {
  Report report;
  report.command = "flip";
  report.changesModel = true;
  std::vector<int> odd;
  for (int n = 1; n < 100; n += 2) odd.push_back(n);
  report.changes = {{"Elem", {}, {}, odd}};
  report.result.undone = {{"Elem", 4, "why a"}, {"LoadPanel", 8, "why b"}, {"Elem", 6, "why a"}};
  report.dryRun = true;
  return report;
}

TEST(ReportText, CutsALongListUnlessVerbose) {
  auto const text = ReportText(SomeReport(), false);
  EXPECT_NE(text.find("  Elem      changed 50: 1 3 5 "), std::string::npos) << text;
  EXPECT_NE(text.find(" ...\n"), std::string::npos);
  EXPECT_EQ(text.find(" 99"), std::string::npos);
  EXPECT_NE(ReportText(SomeReport(), true).find(" 97 99\n"), std::string::npos);
}

TEST(ReportText, ShowsOldNumbersWithNewOnesInRunsWhereVerbose) {
  auto report = SomeReport();
  report.changes.clear();
  report.result.maps = {{"Elem", {{7, 1}, {8, 2}, {9, 3}, {10, 0}, {11, 0}, {12, 8}, {14, 9}}},
                        {"Node", {{4, 6}, {5, 5}}}};
  EXPECT_EQ(ReportText(report, false).find("->"), std::string::npos);
  EXPECT_EQ(ReportText(report, true)
                .find("flip: nothing changed (dry run)\n"
                      "  Elem      7 to 9 -> 1 to 3\n"
                      "  Elem      10 11 -> gone\n"
                      "  Elem      12 -> 8\n"
                      "  Elem      14 -> 9\n"
                      "  Node      4 -> 6\n"
                      "  Node      5 -> 5\n"),
            0u)
      << ReportText(report, true);
}

TEST(ReportText, GathersWhatWasLeftUndoneByReason) {
  auto const text = ReportText(SomeReport(), false);
  EXPECT_NE(text.find("  left undone: Elem 4 6: why a\n"), std::string::npos) << text;
  EXPECT_NE(text.find("  left undone: LoadPanel 8: why b\n"), std::string::npos);
}

TEST(ReportText, SaysThatNothingChangedAndThatARunWasDry) {
  auto report = SomeReport();
  EXPECT_EQ(ReportText(report, false).find("flip: (dry run)\n"), 0u);
  report.changes.clear();
  EXPECT_EQ(ReportText(report, false).find("flip: nothing changed (dry run)\n"), 0u);
}

}  // namespace
}  // namespace Tarvex::ReportTest
