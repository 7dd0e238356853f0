#include "workbench/report/new_faults.h"

#include <gtest/gtest.h>

#include "store/record/element.h"
#include "tests/support/builders.h"

namespace Tarvex::NewFaultsTest {
namespace {

using Testing::Element;
using Workbench::CommandResult;
using Workbench::WarnOfNewFaults;

/// Lines on nodes 1 and 2, of which those with an odd number stand on one node twice.
CZelData ModelWithLines(int first, int last) {
  CZelData model;
  Testing::NodeAt(model, 0, 0, 0);
  Testing::NodeAt(model, 1, 0, 0);
  for (int n = first; n <= last; ++n)
    model.SetElem(n, Element(ElementType::Link, {1, n % 2 == 1 ? 1 : 2}));
  return model;
}

CommandResult Compare(CZelData const& before, CZelData const& after, CommandResult result = {}) {
  WarnOfNewFaults(before, after, result);
  return result;
}

TEST(NewFaults, AreToldAndAreSomethingToLookAt) {
  auto const result = Compare(ModelWithLines(1, 2), ModelWithLines(1, 4));
  ASSERT_EQ(result.warnings.size(), 1u);
  EXPECT_EQ(result.warnings[0].code, "repeated-node");
  EXPECT_EQ(result.warnings[0].table, "Elem");
  EXPECT_EQ(result.warnings[0].number, 3);
  EXPECT_EQ(result.warnings[0].text, "Elem 3 topology: repeated-node, which was not before");
  EXPECT_TRUE(result.lookAt);
}

TEST(NewFaults, AreNoneWhereTheModelHadThem) {
  auto const result = Compare(ModelWithLines(1, 4), ModelWithLines(1, 4));
  EXPECT_TRUE(result.warnings.empty());
  EXPECT_FALSE(result.lookAt);
}

TEST(NewFaults, AreNoneWhereFaultyRecordsHaveOtherNumbers) {
  EXPECT_TRUE(Compare(ModelWithLines(1, 4), ModelWithLines(11, 14)).warnings.empty());
}

TEST(NewFaults, AreThoseThatAreMoreWhereRecordsHaveOtherNumbers) {
  // Two lines were faulty, three are: one is told, be it any.
  EXPECT_EQ(Compare(ModelWithLines(1, 4), ModelWithLines(11, 16)).warnings.size(), 1u);
}

TEST(NewFaults, AreNotToldTwiceButAreSomethingToLookAt) {
  CommandResult told;
  told.undone.push_back({"Elem", 3, "was left"});
  EXPECT_TRUE(Compare(ModelWithLines(1, 2), ModelWithLines(1, 4), told).warnings.empty());
  CommandResult warned;
  warned.warnings.push_back({"no-length", "Elem", 3, "element 3 has no length"});
  auto const result = Compare(ModelWithLines(1, 2), ModelWithLines(1, 4), warned);
  EXPECT_EQ(result.warnings.size(), 1u);
  EXPECT_TRUE(result.lookAt);
}

TEST(NewFaults, AreCountedBeyondTwenty) {
  auto const result = Compare(CZelData(), ModelWithLines(1, 50));
  ASSERT_EQ(result.warnings.size(), 20u);  // of 25
  EXPECT_EQ(result.warnings[19].text,
            "Elem 39 topology: repeated-node, and 5 more, which was not before");
}

}  // namespace
}  // namespace Tarvex::NewFaultsTest
