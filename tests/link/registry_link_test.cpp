// The list of all tables, as an application links it.
#include "store/model/registry.h"

#include <gtest/gtest.h>

#include "tests/link/linked.h"
#include "tests/support/builders.h"

namespace Tarvex::RegistryLinkTest {
namespace {

using Testing::AreLinked;

TEST(RegistryLink, EveryRowOfATableHasItsOperations) {
  CZelData const model;
  int tables = 0;
  ForEachTable([&](auto const& row) {
    EXPECT_TRUE(AreLinked(row.exist, row.get, row.all, row.highest, row.set, row.remove));
    EXPECT_FALSE((model.*row.exist)(1));
    EXPECT_EQ((model.*row.highest)(), 0);
    ++tables;
  });
  EXPECT_GE(tables, 4);
  ForEachOneOff([&](auto const& row) { EXPECT_TRUE(AreLinked(row.get, row.set)); });
}

TEST(RegistryLink, ModulesAreFound) {
  EXPECT_TRUE(AreLinked(&Modules, &FindModule));
  CZelData model;
  Testing::Grid(model, 1, 1);
  for (auto const& row : Modules()) EXPECT_EQ(FindModule(row.module), &row);
  auto const* elements = FindModule(CModule::Elem);
  ASSERT_NE(elements, nullptr);
  EXPECT_TRUE(elements->exist(model, 1));
  EXPECT_EQ(elements->highest(model), 1);
  elements->clear(model);
  EXPECT_FALSE(model.ElemExist(1));
}

}  // namespace
}  // namespace Tarvex::RegistryLinkTest
