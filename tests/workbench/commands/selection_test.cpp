#include "workbench/commands/selection.h"

#include <gtest/gtest.h>

#include "tests/support/builders.h"
#include "workbench/commands/errors.h"

namespace Tarvex {
namespace {

using Workbench::Select;

std::vector<int> Numbers(Util::CSet const& set) { return {set.begin(), set.end()}; }

/// Nodes 1 to 16, elements 1 to 9 without 4, and a load panel 12.
CZelData Model() {
  CZelData model;
  Testing::Grid(model, 3, 3);
  model.BlankElem(4, 1);
  Data::LoadPanel panel;
  panel.SetTopology(std::vector{1, 4, 16});
  model.SetLoadPanel(12, panel);
  return model;
}

std::vector<int> Elements(std::string const& text) {
  return Numbers(Select(Model(), SelElement, text));
}

std::string FaultOf(std::string const& text) {
  try {
    Select(Model(), SelElement, text);
  } catch (Workbench::UsageError const& fault) {
    return fault.what();
  }
  return "no fault";
}

TEST(Selection, TakesNumbersThatExist) { EXPECT_EQ(Elements("9 2 4 2 99"), (std::vector{2, 9})); }

TEST(Selection, TakesRangesWithAndWithoutStep) {
  EXPECT_EQ(Elements("2 to 5"), (std::vector{2, 3, 5}));
  EXPECT_EQ(Elements("1 to 9 step 3"), (std::vector{1, 7}));
  EXPECT_EQ(Elements("5 to 2"), std::vector<int>());
  EXPECT_EQ(Elements("8 to 100000000"), (std::vector{8, 9, 12}));
}

TEST(Selection, StarIsTheHighestNumberOfTheKind) {
  EXPECT_EQ(Elements("8 to *"), (std::vector{8, 9, 12}));
  EXPECT_EQ(Numbers(Select(Model(), SelNode, "15 to *")), (std::vector{15, 16}));
}

TEST(Selection, AllOfElementsHoldsLoadPanels) {
  EXPECT_EQ(Elements("all"), (std::vector{1, 2, 3, 5, 6, 7, 8, 9, 12}));
}

TEST(Selection, NoneAndTheEmptyTextSelectNothing) {
  EXPECT_EQ(Elements("none"), std::vector<int>());
  EXPECT_EQ(Elements(""), std::vector<int>());
}

TEST(Selection, KeepsTheKind) {
  EXPECT_EQ(Select(Model(), SelNode, "1").TypeOf(), SelNode);
  EXPECT_EQ(Workbench::KindOf("element"), SelElement);
  EXPECT_EQ(Workbench::KindOf("member"), SelMember);
  EXPECT_EQ(Workbench::KindOf("node"), SelNode);
}

TEST(Selection, SaysWhereATextIsNoList) {
  EXPECT_EQ(FaultOf("1 to five"), "--list: character 6: an unknown word");
  EXPECT_EQ(FaultOf("1 -2"), "--list: character 3: a negative number");
}

TEST(Selection, SaysWhichWordIsNotKnown) {
  EXPECT_EQ(FaultOf("PB 3"),
            "--list: the word 'PB' is not known here: use numbers, ranges and all");
  EXPECT_EQ(FaultOf("1 to"), "--list: a range without its end");
  EXPECT_EQ(FaultOf("1 to 9 step"), "--list: a step without its number");
  EXPECT_EQ(FaultOf("1 to 9 step 0"), "--list: a step below 1");
}

}  // namespace
}  // namespace Tarvex
