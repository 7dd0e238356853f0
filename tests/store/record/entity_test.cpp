#include "store/record/entity.h"

#include <gtest/gtest.h>

#include "store/record/node.h"
#include "tests/support/print.h"

namespace Tarvex::EntityTest {
namespace {

// The bases are reached through nodes, which have no other text of their own.
using Data::CNode;

TEST(NamedEntity, HasNeitherNameNorIdentifierAtFirst) {
  CNode const node;
  EXPECT_TRUE(node.Name().IsEmpty());
  EXPECT_TRUE(node.Sid().IsEmpty());
  EXPECT_EQ(node.GetColour(), 0u);
  EXPECT_EQ(node.Number(), 0u);
  EXPECT_FALSE(node.IsLocked());
}

TEST(NamedEntity, KeepsNameIdentifierAndColour) {
  CNode node;
  node.SetName(L"St\u00FCtze");
  node.SetSid(L"{id}");
  node.SetColour(0x123456);
  EXPECT_EQ(node.Name(), L"St\u00FCtze");
  EXPECT_EQ(node.Sid(), L"{id}");
  EXPECT_EQ(node.GetColour(), 0x123456u);
}

TEST(NamedEntity, DropsColourBitsAboveTwentyFour) {
  CNode node;
  node.SetColour(0xFF00000000ABCDEFul);
  EXPECT_EQ(node.GetColour(), 0xABCDEFu);
}

TEST(BaseEntity, LocksAndUnlocksWithoutBecomingAnotherRecord) {
  CNode node;
  node.Lock(true);
  EXPECT_TRUE(node.IsLocked());
  EXPECT_EQ(node, CNode());
  node.Lock(false);
  EXPECT_FALSE(node.IsLocked());
}

TEST(StoreAccess, GivesNumbersThatAreNoPartOfEquality) {
  CNode node;
  node.SetSid(L"id");
  StoreAccess::SetNumber(node, 7);
  EXPECT_EQ(node.Number(), 7u);
  StoreAccess::ClearSid(node);
  EXPECT_TRUE(node.Sid().IsEmpty());
  EXPECT_EQ(node, CNode());
}

}  // namespace
}  // namespace Tarvex::EntityTest
