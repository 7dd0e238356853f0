// The scope of a bulk change of whole tables.
#include "frame/bulk_operations.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <type_traits>

#include "store/record/member.h"
#include "store/record/node.h"
#include "tests/support/builders.h"
#include "tests/support/matchers.h"

namespace Tarvex::BulkOperationsTest {
namespace {

std::vector<CModule::ModuleId> const kElements{CModule::Elem};

TEST(BulkOperations, CountsTheScopesOfAModel) {
  CZelData model;
  std::mutex mutex;
  {
    BulkOperations const outer(model, mutex, kElements);
    EXPECT_EQ(model.bulkCounter, 1);
    {
      BulkOperations const inner(model, mutex, {CModule::Node});
      EXPECT_EQ(model.bulkCounter, 2);
    }
    EXPECT_EQ(model.bulkCounter, 1);
  }
  EXPECT_EQ(model.bulkCounter, 0);
  static_assert(!std::is_copy_constructible_v<BulkOperations>);
}

TEST(BulkOperations, EndWhenAnExceptionPasses) {
  CZelData model;
  std::mutex mutex;
  try {
    BulkOperations const scope(model, mutex, kElements);
    throw std::runtime_error("passes");
  } catch (std::runtime_error const&) {
  }
  EXPECT_EQ(model.bulkCounter, 0);
  EXPECT_TRUE(mutex.try_lock());  // nor does it hold the mutex any longer
  mutex.unlock();
}

TEST(BulkOperations, HoldTheMutexWhileTheyCountOnly) {
  CZelData model;
  std::mutex mutex;
  BulkOperations const scope(model, mutex, kElements);
  EXPECT_TRUE(mutex.try_lock());
  mutex.unlock();
}

TEST(BulkOperations, LeaveAttachmentsTrueAtEveryQueryAndBehindThem) {
  CZelData model;
  Testing::Grid(model, 2, 1);  // nodes 1 to 6, elements 1 and 2
  std::mutex mutex;
  {
    BulkOperations const scope(model, mutex, kElements);
    auto const first = model.Elem(1);
    model.BlankElem(1, 1);
    model.SetElem(7, first);
    EXPECT_EQ(model.Node(1).AttachedEnt(SelElement), (boost::container::flat_set<int>{7}));
    model.SetElem(8, first);
  }
  EXPECT_EQ(model.Node(1).AttachedEnt(SelElement), (boost::container::flat_set<int>{7, 8}));
  EXPECT_TRUE(Testing::AttachmentsFollowTopology(model));
}

// As the plain form: a store that rebuilds after every change.
TEST(BulkOperations, GiveTheSameModelAsWithoutThem) {
  CZelData plain;
  Testing::Grid(plain, 5, 5);
  CZelData bulk(plain);
  std::mutex mutex;
  auto const renumber = [](CZelData& model) {
    for (int n = 25; n >= 1; --n) {
      auto const element = model.Elem(n);
      model.BlankElem(n, 1);
      model.SetElem(n + 100, element);
    }
  };
  renumber(plain);
  {
    BulkOperations const scope(bulk, mutex, kElements);
    renumber(bulk);
  }
  EXPECT_TRUE(plain == bulk);
  EXPECT_TRUE(Testing::AttachmentsFollowTopology(bulk));
}

TEST(BulkOperations, LeaveTheListsOfMembersToTheirTool) {
  CZelData model;
  Testing::Grid(model, 2, 1);
  Data::CMember member;
  for (int const child : {1, 2}) member.AddChildElement(child, 0);
  model.SetMember(1, member);
  std::mutex mutex;
  {
    BulkOperations const scope(model, mutex, kElements);
    model.BlankElem(1, 1);
    EXPECT_EQ(model.Member(1).NumElem(), 2);
  }
  model.BlankElem(2, 1);  // behind the scope an element takes itself off
  EXPECT_EQ(model.Member(1).NumElem(), 1);
}

}  // namespace
}  // namespace Tarvex::BulkOperationsTest
